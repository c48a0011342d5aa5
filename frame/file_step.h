// One save of one settings file: whole or not at all.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "PelmarDlgs/saving.h"
#include "frame/profile_entry.h"

namespace pelmar {

/// Has the profile functions write the entries into the file, in their order and in one step. `file` is a full path.
/// Waits for others that use it until the system's 64-bit tick count is `until`, and tries once at least.
SaveOutcome SaveInOneStep(const std::string& file, std::span<const ProfileEntry> entries, std::uint64_t until);

/// The file beside a settings file that is held while that one is saved.
std::string LockOf(const std::string& file);

/// Makes a file of the system's folder for passing files that holds what `file` will hold with the entries. Its path,
/// for the caller to delete; empty where it cannot be made.
std::string MakePreview(const std::string& file, std::span<const ProfileEntry> entries);

} // namespace pelmar
