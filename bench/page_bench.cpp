// What the code behind the 2-axis page adds to showing its template in a property sheet.
#include <cstdio>

#include <ControlLib.h>

#include "bench/stopwatch.h"
#include "module/host_folder.h"
#include "resources/resource.h"

namespace {

constexpr wchar_t kCaption[] = L"Options";
constexpr UINT kCloseShown = WM_APP + 1;

/// Whether every sheet so far came up and was cancelled.
bool g_shown = true;

/// Runs once the sheet's message loop does: paints what is not painted yet and presses Cancel.
LRESULT CALLBACK CloseWhenShown(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kCloseShown)
        return DefWindowProc(window, message, wParam, lParam);
    const HWND sheet = FindWindow(L"#32770", kCaption);
    if (!sheet || !IsWindowVisible(sheet)) {
        PostMessage(window, kCloseShown, 0, 0);
        return 0;
    }
    RedrawWindow(sheet, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    PostMessage(sheet, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

HWND CreateCloser()
{
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = CloseWhenShown;
    windowClass.hInstance = GetModuleHandle(nullptr);
    windowClass.lpszClassName = L"PelmarCloser";
    RegisterClass(&windowClass);
    return CreateWindow(windowClass.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance,
                        nullptr);
}

INT_PTR CALLBACK NoCode(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

void ShowBareTemplate(HWND closer)
{
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_HASHELP;
    page.hInstance = GetModuleHandle(L"PelmarDlgs.dll");
    page.pszTemplate = MAKEINTRESOURCE(IDD_2X);
    page.pfnDlgProc = NoCode;
    PROPSHEETHEADERW sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_PROPSHEETPAGE;
    sheet.pszCaption = kCaption;
    sheet.nPages = 1;
    sheet.ppsp = &page;
    PostMessage(closer, kCloseShown, 0, 0);
    g_shown = g_shown && PropertySheetW(&sheet) == 0;
}

void ShowPage(HWND closer)
{
    CDefs2xPage page;
    page.GetData(kInch);
    CPropertySheetTVEx sheet(kCaption);
    sheet.AddPage(&page);
    PostMessage(closer, kCloseShown, 0, 0);
    g_shown = g_shown && sheet.DoModal() == IDCANCEL;
}

} // namespace

int main()
{
    const CWinApp application(L"TORVEX");
    const HostFolder host;
    InitPelmarDlgsDLL();
    const HWND closer = CreateCloser();
    constexpr int kRounds = 40;
    const auto [ours, bare] = bench::BestTimes(
        kRounds, 1, [&] { ShowPage(closer); }, [&] { ShowBareTemplate(closer); });
    if (!g_shown) {
        std::printf("page: a sheet did not come up\n");
        return 1;
    }
    bench::PrintRatio("page: showing the 2-axis page / its template without code", ours / bare, "at most 1.3");
    std::printf("%-60s %8.1f\n", "  milliseconds for the bare template", bare * 1e3);
}
