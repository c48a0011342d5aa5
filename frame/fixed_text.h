// Narrow texts of bounded length, for paths and for what is read from settings files.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include <afx.h>

#include "frame/profile.h"

namespace pelmar {

/// A zero-terminated text in a buffer of `Capacity` characters, terminator included. What does not fit is cut off.
template <size_t Capacity> class FixedText {
public:
    FixedText() = default;

    const char* c_str() const { return m_text; }
    std::string_view view() const { return m_text; }
    operator std::string_view() const { return view(); }

    /// Replaces the text by the pieces, one after the other.
    template <class... Pieces> void Assign(const Pieces&... pieces)
    {
        m_text[0] = '\0';
        (Append(pieces), ...);
    }

    void Append(std::string_view piece)
    {
        const size_t length = std::strlen(m_text);
        const size_t room = std::min(piece.size(), Capacity - 1 - length);
        std::memcpy(m_text + length, piece.data(), room);
        m_text[length + room] = '\0';
    }

    /// The value of a key of a settings file, or the fallback where the file, the section or the key is missing.
    static FixedText FromProfile(const char* section, const char* key, const char* fallback, const char* file)
    {
        FixedText text;
        profile::ReadText(section, key, fallback, text.m_text, file);
        return text;
    }

    /// The full path of the process's executable.
    static FixedText OfExecutable()
    {
        FixedText path;
        if (GetModuleFileNameA(nullptr, path.m_text, DWORD{Capacity}) == 0)
            path.m_text[0] = '\0';
        path.m_text[Capacity - 1] = '\0';
        return path;
    }

    void MakeUpper() { CharUpperBuffA(m_text, static_cast<DWORD>(std::strlen(m_text))); }

private:
    char m_text[Capacity] = {};
};

/// What stands in `path` up to and including its last "\"; empty where there is none.
inline std::string_view FolderOf(std::string_view path)
{
    return path.substr(0, path.rfind('\\') + 1);
}

} // namespace pelmar
