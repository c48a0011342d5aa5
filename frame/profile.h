// The platform's profile functions, safe against paths that no file can have: the platform copies the path into a
// buffer of MAX_PATH characters.
#pragma once

#include <algorithm>
#include <cstring>
#include <span>

#include <afx.h>

namespace profile {

inline bool CanExist(const char* file)
{
    return strnlen(file, MAX_PATH) < MAX_PATH;
}

/// Copies the value of a key, or the fallback where file, section or key is missing; cut off at the buffer's end.
template <size_t Size>
void ReadText(const char* section, const char* key, const char* fallback, char (&text)[Size], const char* file)
{
    if (CanExist(file)) {
        GetPrivateProfileStringA(section, key, fallback, text, DWORD{Size}, file);
        return;
    }
    const size_t length = strnlen(fallback, Size - 1);
    std::memcpy(text, fallback, length);
    text[length] = '\0';
}

/// Copies the lines of a section, each ended by a terminator, and another one after the last. What does not fit is left
/// out.
inline void ReadSection(const char* section, std::span<char> lines, const char* file)
{
    std::ranges::fill(lines, '\0');
    if (CanExist(file))
        GetPrivateProfileSectionA(section, lines.data(), static_cast<DWORD>(lines.size() - 2), file);
}

inline int ReadWhole(const char* section, const char* key, int fallback, const char* file)
{
    return CanExist(file) ? static_cast<int>(GetPrivateProfileIntA(section, key, fallback, file)) : fallback;
}

inline bool WriteText(const char* section, const char* key, const char* text, const char* file)
{
    return CanExist(file) && WritePrivateProfileStringA(section, key, text, file);
}

} // namespace profile
