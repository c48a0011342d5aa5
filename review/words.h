// Texts of the review that are not its own: of the library's string table, and of settings files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pelmar::review {

/// Where texts come from. All that the review says is UTF-8.
struct Words {
    std::string (*ofString)(unsigned id) = nullptr;          ///< a text of the string table
    std::string (*ofFile)(std::string_view bytes) = nullptr; ///< a text of a settings file, in its code page
    /// A text for a settings file; null where none are entered. False where its code page lacks a letter.
    bool (*toFile)(std::string_view text, std::string& bytes) = nullptr;
};

/// A text, or as many of its letters as go into so many bytes, and "…".
inline std::string Shortened(std::string_view text, std::size_t mostBytes)
{
    if (text.size() <= mostBytes)
        return std::string(text);
    std::size_t end = mostBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end; // not within a letter
    return std::string(text.substr(0, end)) + "…";
}

} // namespace pelmar::review
