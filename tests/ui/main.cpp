// Entry of the test programs that show windows.
#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>
#include <windows.h>

#include "ui_thread.h"

namespace {
/// Whether the display has the resolution that the run is meant for; any will do where none is named.
bool IsDisplayAsMeant()
{
    const char* const meant = std::getenv("PELMAR_DPI");
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    if (!meant || std::atoi(meant) == dpi)
        return true;
    std::cerr << "the display has " << dpi << " dots per inch, not " << meant << std::endl;
    return false;
}
} // namespace

int main(int argc, char** argv)
{
    SetProcessDPIAware(); // layouts are measured as a scaled display shows them
    if (!IsDisplayAsMeant())
        return 1;
    testing::InitGoogleTest(&argc, argv);
    ui::UiThread::Get();
    return RUN_ALL_TESTS();
}
