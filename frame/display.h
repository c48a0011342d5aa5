// Lengths on the display that the program runs on.
#pragma once

#include <afxwin.h>

namespace pelmar {

/// What a length in pixels of 96 to the inch takes here.
inline int OnThisDisplay(int pixels)
{
    constexpr int kUsualDotsPerInch = 96;
    const HDC screen = ::GetDC(nullptr);
    const int dotsPerInch = GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return MulDiv(pixels, dotsPerInch, kUsualDotsPerInch);
}

} // namespace pelmar
