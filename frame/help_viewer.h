// Topics of the help file.
#pragma once

#include <optional>

#include <afxwin.h>

namespace pelmar {

/// Ends the application's context-help mode. The id of the control of `window` at `position` (screen coordinates), -1
/// where there is none; nothing where the application is not in that mode.
std::optional<INT_PTR> EndHelpMode(const CWnd& window, CPoint position);

/// Shows a topic of the help file. Where the system has no help viewer nothing happens, now and later.
void ShowTopic(const CWnd& window, const char* topic);

} // namespace pelmar
