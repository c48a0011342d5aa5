// Texts in the settings files, in the system's ANSI code page.
#pragma once

#include <string>

namespace pelmar {

/// A text of the settings file, cut off at 255 characters; empty where file, section or key is missing.
std::string ReadText(const char* section, const char* key);

/// Writes a text to the system-wide profile.
void WriteSystemText(const char* section, const char* key, const char* text);

} // namespace pelmar
