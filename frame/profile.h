// The platform's profile functions, safe against paths that no file can have: the platform copies the path into a
// buffer of MAX_PATH characters. What an open step has written is read from where it stands.
#pragma once

#include <cstddef>
#include <span>

namespace profile {

/// Copies the value of a key, or the fallback where file, section or key is missing; cut off at the buffer's end.
void ReadText(const char* section, const char* key, const char* fallback, std::span<char> text, const char* file);

/// Copies the lines of a section, each ended by a terminator, and another one after the last. What does not fit is left
/// out; there is room for two characters at least.
void ReadSection(const char* section, std::span<char> lines, const char* file);

int ReadWhole(const char* section, const char* key, int fallback, const char* file);

/// Writes the value of a key in a step: at once, or with the step that is open. False where it could not be saved.
bool WriteText(const char* section, const char* key, const char* text, const char* file);

} // namespace profile
