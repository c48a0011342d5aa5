#include "display.h"

namespace {

constexpr int kUnscaledDpi = 96;

/// A function of the system that Windows has had since version 10; null where it lacks it.
template <class Function> Function* Newer(const char* name)
{
    const FARPROC address = GetProcAddress(GetModuleHandle(L"user32.dll"), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

/// The one resolution that a system has which does not tell its displays apart.
int SystemDpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace

int DpiOf(HWND window)
{
    static auto* const ask = Newer<UINT WINAPI(HWND)>("GetDpiForWindow");
    const UINT dpi = ask ? ask(window) : 0;
    return dpi ? static_cast<int>(dpi) : SystemDpi();
}

int Scaled(int pixels, int dpi)
{
    return MulDiv(pixels, dpi, kUnscaledDpi);
}

HFONT MakeMessageFont(int dpi)
{
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONT font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, dpi, SystemDpi());
    return CreateFontIndirect(&font);
}

int LineHeight(HFONT font)
{
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    TEXTMETRIC metrics{};
    GetTextMetrics(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return metrics.tmHeight;
}
