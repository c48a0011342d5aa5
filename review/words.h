// Texts of the review that are not its own: of the library's string table, and of settings files.
#pragma once

#include <string>
#include <string_view>

namespace pelmar::review {

/// Where texts come from. All that the review says is UTF-8.
struct Words {
    std::string (*ofString)(unsigned id) = nullptr;          ///< a text of the string table
    std::string (*ofFile)(std::string_view bytes) = nullptr; ///< a text of a settings file, in its code page
    /// A text for a settings file. False where its code page lacks a letter.
    bool (*toFile)(std::string_view text, std::string& bytes) = nullptr;
};

} // namespace pelmar::review
