// Texts in their encodings: the program's own are UTF-8, the system's wide, those of settings files in the ANSI code
// page.
#pragma once

#include <string>
#include <string_view>

#include "review/words.h"

namespace pelmar::tool {

std::string Utf8(std::wstring_view text);
std::wstring Wide(std::string_view utf8);
/// In the ANSI code page. False where that lacks a letter.
bool ToNarrow(std::wstring_view text, std::string& narrow);
std::string Utf8OfNarrow(std::string_view narrow);

/// The texts of the library that the program runs with.
const review::Words& LibraryWords();

/// The system's words for one of its error codes, with the code.
std::string SystemReason(unsigned long error);

/// "1 234 567": a count that people read.
std::string Grouped(unsigned long long number);

/// The number of letters of a text.
std::size_t LengthOf(std::string_view utf8);

} // namespace pelmar::tool
