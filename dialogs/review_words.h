// The library's texts for the review, and the way between its UTF-8 and what windows and files hold.
#pragma once

#include <string>
#include <string_view>

#include <afxwin.h>

#include "review/words.h"

namespace pelmar {

extern const review::Words kLibraryWords;

CString WideText(std::string_view utf8);
std::string Utf8Text(const CString& text);

} // namespace pelmar
