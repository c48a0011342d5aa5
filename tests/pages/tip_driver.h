// Tips as the person at the screen has them: the pointer comes to rest on a control, and something comes up or not.
#pragma once

#include <string>
#include <vector>

#include "ui/person.h"

/// While one lives, resting takes as little time as the system allows.
class ShortRests {
public:
    ShortRests();
    ~ShortRests();
    ShortRests(const ShortRests&) = delete;
    ShortRests& operator=(const ShortRests&) = delete;

private:
    UINT m_before = 0;
};

/// The window of the open tip; null where none is open.
HWND OpenTip();
/// Moves the pointer over the middle of a control. Whose window gets the message is as with the real pointer: a
/// disabled control's, its parent. The display's own pointer stays where it is.
void MoveOver(HWND dialog, int id);
/// Moves it to a corner of the dialog, where nothing is.
void MoveAway(HWND dialog);
/// Rests on a control. Whether its tip has come; an open one stays until the pointer is moved.
bool RestOn(HWND dialog, int id);
/// Rests on a control: the lines of the tip that comes up.
std::vector<std::wstring> TipOn(HWND dialog, int id);
/// Rests on a control for the time that a tip takes. Whether one has come.
bool ComesATip(HWND dialog, int id);
