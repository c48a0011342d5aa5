// The shell's folder browser.
#pragma once

#include <optional>
#include <string>

#include <afxwin.h>

namespace pelmar {

/// Shows the shell's folder browser over `owner`, with the text of the string table as its title and `initial` selected
/// at first. The chosen folder's path; nothing where the user cancelled or what was chosen is no folder of the file
/// system.
std::optional<std::string> BrowseForFolder(HWND owner, UINT title, const char* initial);

} // namespace pelmar
