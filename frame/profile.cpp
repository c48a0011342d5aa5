#include "frame/profile.h"

#include <algorithm>
#include <cstring>

#include <windows.h>

#include "frame/settings_journal.h"

namespace profile {
namespace {

bool CanExist(const char* file)
{
    return strnlen(file, MAX_PATH) < MAX_PATH;
}

} // namespace

void ReadText(const char* section, const char* key, const char* fallback, std::span<char> text, const char* file)
{
    if (CanExist(file)) {
        GetPrivateProfileStringA(section, key, fallback, text.data(), static_cast<DWORD>(text.size()),
                                 pelmar::Journal().FileToRead(section, key, file));
        return;
    }
    const size_t length = strnlen(fallback, text.size() - 1);
    std::memcpy(text.data(), fallback, length);
    text[length] = '\0';
}

void ReadSection(const char* section, std::span<char> lines, const char* file)
{
    std::ranges::fill(lines, '\0');
    if (CanExist(file))
        GetPrivateProfileSectionA(section, lines.data(), static_cast<DWORD>(lines.size()),
                                  pelmar::Journal().FileToRead(section, nullptr, file));
    std::ranges::fill(lines.last(2), '\0');
}

int ReadWhole(const char* section, const char* key, int fallback, const char* file)
{
    if (!CanExist(file))
        return fallback;
    return static_cast<int>(
        GetPrivateProfileIntA(section, key, fallback, pelmar::Journal().FileToRead(section, key, file)));
}

bool WriteText(const char* section, const char* key, const char* text, const char* file)
{
    return pelmar::Journal().Write(section, key, text, file);
}

} // namespace profile
