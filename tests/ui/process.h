// Programs that a test starts.
#pragma once

#include <string>

#include <windows.h>

namespace ui {

enum class Inherits { Nothing, Handles };

/// Starts a program in `folder`, the current one unless given. Both handles are the caller's; all is zero, and the test
/// has failed, where it does not start.
PROCESS_INFORMATION StartProcess(const std::wstring& command, const wchar_t* folder = nullptr,
                                 Inherits inherits = Inherits::Nothing, STARTUPINFOW startup = {});

} // namespace ui
