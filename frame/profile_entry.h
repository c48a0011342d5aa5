// One write of the platform's profile functions, before it is made.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

/// Without a text the key is deleted, without a key the section.
struct ProfileEntry {
    std::string section;
    std::optional<std::string> key;
    std::optional<std::string> text;
};

/// Whether two names of files, sections or keys are one: case does not count.
bool IsSameName(std::string_view one, std::string_view other);

/// Those of the entries that change a settings file when they are written in their order. One whose line stands there
/// already, letter by letter, does not.
std::vector<ProfileEntry> Changes(std::span<const ProfileEntry> entries, const std::string& file);

} // namespace pelmar
