// The factory's values, and where they are taken from.
#pragma once

#include <optional>
#include <string>

#include "review/values.h"
#include "settings_file.h"

namespace pelmar::tool {

/// The defaults file, or none: the built-in values alone.
struct Factory {
    std::optional<SettingsFile> file{};
    review::SettingsText text{};

    /// The named file; without a name DEFAULT.INI beside `of`, unless `of` is that file itself; else none. Throws
    /// NotDone where a file is there but cannot be read.
    static Factory For(const std::optional<std::string>& name, const FilePath* of);
    /// "DEFAULT.INI", "встроенные значения".
    std::string Name() const;
    review::Values ValuesLike(const review::Values& other) const { return review::Values::Factory(text, other); }
};

} // namespace pelmar::tool
