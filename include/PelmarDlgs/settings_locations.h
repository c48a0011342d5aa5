// Where the settings files are. Computed when the library starts; nothing else computes a path.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "PelmarDlgs/export.h"

namespace pelmar {

/// A path or a name in the system's ANSI code page, zero-terminated. What does not fit is cut off.
class SettingsText {
public:
    static constexpr std::size_t kCapacity = 1284; ///< terminator included

    const char* c_str() const { return m_text; }
    std::string_view view() const { return m_text; }

    SettingsText& operator=(std::string_view text)
    {
        const std::size_t length = text.size() < kCapacity ? text.size() : kCapacity - 1;
        std::memcpy(m_text, text.data(), length);
        m_text[length] = '\0';
        return *this;
    }

private:
    char m_text[kCapacity] = {};
};

struct SettingsLocations {
    SettingsText helpFile;   ///< at most 254 characters
    SettingsText hostFolder; ///< of the host's executable, ends in "\"
    SettingsText hostSettingsFile;
    SettingsText hostDefaultsFile;
    SettingsText settingsFile; ///< records save and restore here
    SettingsText defaultsFile; ///< records take their defaults from here
    SettingsText toolLibraryName;
};

/// The locations as last computed; all but the help file are empty until the library has been initialised.
PELMAR_API const SettingsLocations& GetSettingsLocations();

} // namespace pelmar
