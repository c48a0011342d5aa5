// What the resolution of the display asks of a window that is laid out in pixels.
#pragma once

#include <afxwin.h>

/// The dots per inch of the display that shows the window. 96 stands for a display that is not scaled.
int DpiOf(HWND window);

/// A number of pixels of an unscaled display at this resolution.
int Scaled(int pixels, int dpi);

/// The system's font for messages at this resolution. The caller deletes it.
HFONT MakeMessageFont(int dpi);
/// The height of a line in that font.
int LineHeight(HFONT font);
