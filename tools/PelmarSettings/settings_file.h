// Files that the user names, checked before anything is done with them.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "review/settings_text.h"

namespace pelmar::tool {

/// Why something is not done, for people.
class NotDone : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A path as the user gave it, and as the library and the platform's profile functions take it.
struct FilePath {
    std::string shown;  ///< UTF-8
    std::string narrow; ///< full, in the ANSI code page, shorter than MAX_PATH

    /// Throws NotDone where the name can be none of a settings file: a device, letters outside of the code page, too
    /// long.
    static FilePath Of(std::string_view name);
    /// A file beside this one.
    FilePath Beside(std::string_view name) const;
    bool IsSame(const FilePath& other) const;
    bool Exists() const;
};

/// A whole file of at most `largest` bytes, as of one moment. Throws NotDone with the file and the reason.
std::string ReadWhole(const FilePath& path, std::size_t largest);

struct SettingsFile {
    FilePath path;
    review::SettingsText text;

    /// Throws NotDone where it cannot be read.
    static SettingsFile Read(const FilePath& path);
    static SettingsFile Read(std::string_view name) { return Read(FilePath::Of(name)); }
    /// Throws NotDone where it is no text of settings as a whole. One that is empty is: it holds none.
    const SettingsFile& MustBeSound() const;
};

} // namespace pelmar::tool
