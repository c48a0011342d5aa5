// The system's dialog for choosing a file, as a person uses it.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace ui {

/// The file dialog of this process that is open, or null.
HWND FindFileDialog();
/// Waits for a file dialog of this process; throws when none comes.
HWND WaitForFileDialog();
/// The edit in which the file's name is typed; null in a window that is no file dialog.
HWND FileNameEdit(HWND dialog);
/// The file types that are offered.
std::vector<std::wstring> FileTypes(HWND dialog);
/// Types the name over what stands there and presses Open, with no wait for anything to close.
void NameFile(HWND dialog, const std::wstring& name);
/// The same, and waits for the dialog to close; throws where it stays.
void ChooseFile(HWND dialog, const std::wstring& name);
void CancelFileDialog(HWND dialog);

} // namespace ui
