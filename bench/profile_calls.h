// The platform's profile functions called bare: what others are compared with.
#pragma once

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <afxwin.h>

namespace bench {

struct Entry {
    std::string section;
    std::string key;
    std::string text;
    bool isReal;
    int whole;
};

/// The zero-terminated texts of a list that ends with an empty one.
inline std::vector<std::string> TextsOf(const std::vector<char>& list)
{
    std::vector<std::string> texts;
    for (const char* text = list.data(); *text; text += std::strlen(text) + 1)
        texts.emplace_back(text);
    return texts;
}

/// What a settings file holds, in its order.
inline std::vector<Entry> EntriesOf(const char* file)
{
    std::vector<char> list(32765);
    GetPrivateProfileSectionNamesA(list.data(), static_cast<DWORD>(list.size()), file);
    std::vector<Entry> entries;
    for (const std::string& section : TextsOf(list)) {
        std::vector<char> lines(32765);
        GetPrivateProfileSectionA(section.c_str(), lines.data(), static_cast<DWORD>(lines.size()), file);
        for (const std::string& line : TextsOf(lines)) {
            const size_t equals = line.find('=');
            const std::string text = line.substr(equals + 1);
            const bool isReal = text.find('.') != std::string::npos;
            entries.push_back({section, line.substr(0, equals), text, isReal, isReal ? 0 : std::atoi(text.c_str())});
        }
    }
    return entries;
}

/// Reads each of the entries by a call of its own.
inline void RestoreBare(const std::vector<Entry>& entries, const char* file)
{
    char text[256];
    for (const Entry& entry : entries) {
        if (entry.isReal)
            GetPrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), entry.text.c_str(), text, sizeof text,
                                     file);
        else
            GetPrivateProfileIntA(entry.section.c_str(), entry.key.c_str(), entry.whole, file);
    }
}

} // namespace bench
