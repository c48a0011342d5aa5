// What a person does and sees at the screen. Works on windows of this process and of another one alike: it knows
// window handles only.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace ui {

// ---- seeing ----

std::wstring TextOf(HWND window);
std::wstring ClassOf(HWND window);
/// A control of a dialog, by id; throws where there is none.
HWND Control(HWND dialog, int id);
std::wstring TextOf(HWND dialog, int id);
bool IsEnabled(HWND dialog, int id);
bool IsShown(HWND dialog, int id); ///< by its own style, whatever its parents do
bool IsChecked(HWND dialog, int id);
int Selection(HWND dialog, int id); ///< -1 when nothing is selected
std::vector<std::wstring> Items(HWND dialog, int id);
/// Whether a place of the screen, as messages bear it, is in the area.
bool IsIn(const RECT& area, DWORD place);
/// The control that has the focus on the thread of `window`.
HWND Focus(HWND window);
std::vector<HWND> Children(HWND window);
/// The visible top-level windows of a process, this one when `process` is 0.
std::vector<HWND> TopLevelWindows(DWORD process = 0);
/// Waits for a visible top-level window of the process with this title; throws when none comes.
HWND WaitForWindow(const std::wstring& title, DWORD process = 0);
bool WaitForClose(HWND window);

struct MessageBoxSeen {
    HWND window = nullptr;
    std::wstring caption;
    std::wstring text;
    std::vector<int> buttons; ///< ids, in tab order
    HICON icon = nullptr;
};
/// Waits for a message box; throws when none comes.
MessageBoxSeen WaitForBox(DWORD process = 0);
/// Whether a message box is open now, everything posted so far being handled.
bool IsBoxOpen(DWORD process = 0);

// ---- acting (everything is posted, as input is, and waited for) ----

/// Waits until the thread of `window` has handled what was posted to it. Another process has only come to it by then:
/// wait there for what is to be seen.
void Settle(HWND window);
void FocusOn(HWND dialog, int id);
/// Puts the focus on an edit, selects its text and types over it.
void Type(HWND dialog, int id, const std::wstring& text);
/// Types at the caret of the control.
void TypeAt(HWND control, const std::wstring& text);
void Press(HWND control, WPARAM key);
/// Presses F1 in a control of this process, as the system reports it to its window.
void PressF1(HWND control, bool withShift = false);
/// Clicks a button or a check box; throws when it is disabled or hidden, as nobody could.
void Click(HWND dialog, int id);
/// Chooses an item of a list as the user does: the choice and its notification.
void Choose(HWND dialog, int id, int index);
void Answer(const MessageBoxSeen& box, int button);
/// Answers the message boxes that are still open with their last button. For the end of a test that has failed: what it
/// left open must not spoil the next one.
void DismissBoxes();
/// Waits for a window to close, dismissing what comes up meanwhile: a field that holds what is refused says so whenever
/// it loses the focus.
bool WaitForCloseWithBoxes(HWND window);
/// Rests the pointer on the middle of a window.
void PointAt(HWND window);

} // namespace ui
