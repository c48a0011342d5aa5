// What the code behind the pages adds to showing their templates in a property sheet.
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

#include <ControlLib.h>
#include <psapi.h>

#include "bench/stopwatch.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "resources/resource.h"

namespace {

constexpr wchar_t kCaption[] = L"Options";
constexpr UINT kCloseShown = WM_APP + 1;

/// Whether every sheet so far came up and was cancelled.
bool g_shown = true;
/// The pages of the sheet to come, and the controls seen on the pages of the last one.
int g_pages = 1;
size_t g_controls = 0;

size_t CountChildren(HWND window)
{
    size_t count = 0;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        ++count;
    return count;
}

/// Shows one page of the sheet, painted.
void ShowPage(HWND sheet, int index)
{
    SendMessage(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
    RedrawWindow(sheet, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    const auto page = reinterpret_cast<HWND>(SendMessage(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    g_shown = g_shown && page;
    g_controls += CountChildren(page);
}

/// Runs once the sheet's message loop does: shows all pages and presses Cancel.
LRESULT CALLBACK CloseWhenShown(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kCloseShown)
        return DefWindowProc(window, message, wParam, lParam);
    const HWND sheet = FindWindow(L"#32770", kCaption);
    if (!sheet || !IsWindowVisible(sheet)) {
        PostMessage(window, kCloseShown, 0, 0);
        return 0;
    }
    g_controls = 0;
    for (int index = 0; index < g_pages; ++index)
        ShowPage(sheet, index);
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

PROPSHEETPAGEW BareTemplate(const wchar_t* name)
{
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_HASHELP;
    page.hInstance = GetModuleHandle(L"PelmarDlgs.dll");
    page.pszTemplate = name;
    page.pfnDlgProc = NoCode;
    return page;
}

void ShowBare(HWND closer, const std::vector<PROPSHEETPAGEW>& pages)
{
    PROPSHEETHEADERW sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_PROPSHEETPAGE;
    sheet.pszCaption = kCaption;
    sheet.nPages = static_cast<UINT>(pages.size());
    sheet.ppsp = pages.data();
    g_pages = static_cast<int>(pages.size());
    PostMessage(closer, kCloseShown, 0, 0);
    g_shown = g_shown && PropertySheetW(&sheet) == 0;
}

/// Shows pages of the host, made anew.
void ShowPages(HWND closer, std::span<const OptionPage> rows)
{
    std::vector<std::unique_ptr<CPropertyPage>> pages;
    CPropertySheetTVEx sheet(kCaption);
    for (const OptionPage& row : rows)
        sheet.AddPage(pages.emplace_back(row.make(kInch)).get());
    g_pages = static_cast<int>(rows.size());
    PostMessage(closer, kCloseShown, 0, 0);
    g_shown = g_shown && sheet.DoModal() == IDCANCEL;
}

/// The templates of pages of the host, without their code.
std::vector<PROPSHEETPAGEW> TemplatesOf(std::span<const OptionPage> rows)
{
    std::vector<PROPSHEETPAGEW> templates;
    for (const OptionPage& row : rows)
        templates.push_back(BareTemplate(row.make(kInch)->m_psp.pszTemplate));
    return templates;
}

struct Shown {
    double own;
    double bare;
    size_t controls;
};

Shown Measure(HWND closer, std::span<const OptionPage> rows, int rounds)
{
    const std::vector<PROPSHEETPAGEW> templates = TemplatesOf(rows);
    const auto [own, bare] = bench::BestTimes(
        rounds, 1, [&] { ShowPages(closer, rows); }, [&] { ShowBare(closer, templates); });
    return {own, bare, g_controls};
}

/// The memory that the process has in use after the sheet of all pages has been shown once, with or without their code.
int PrintWorkingSet(HWND closer, bool withCode)
{
    if (withCode)
        ShowPages(closer, OptionPages());
    else
        ShowBare(closer, TemplatesOf(OptionPages()));
    PROCESS_MEMORY_COUNTERS memory{};
    memory.cb = sizeof memory;
    if (!g_shown || !GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory))
        return 1;
    std::printf("%llu\n", static_cast<unsigned long long>(memory.WorkingSetSize));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const CWinApp application(L"TORVEX");
    const HostFolder host;
    InitPelmarDlgsDLL();
    const HWND closer = CreateCloser();
    if (argc > 1)
        return PrintWorkingSet(closer, argv[1] == std::string_view("--memory-of-pages"));
    const std::span<const OptionPage> all = OptionPages();
    const Shown first = Measure(closer, all.first(1), 40);
    const Shown whole = Measure(closer, all, 10);
    if (!g_shown) {
        std::printf("page: a sheet did not come up\n");
        return 1;
    }
    bench::PrintRatio("page: showing the 2-axis page with tips / its template without code", first.own / first.bare,
                      "at most 1.1");
    bench::PrintRatio("pages: showing all with tips / their templates without code", whole.own / whole.bare,
                      "at most 1.1");
    const auto perControl = [](const Shown& shown) { return shown.own / static_cast<double>(shown.controls); };
    bench::PrintRatio("pages: time per control, all pages / the 2-axis page", perControl(whole) / perControl(first),
                      "at most 1");
    std::printf("  milliseconds for bare templates: %.1f the 2-axis page (%zu controls), %.1f all (%zu controls)\n",
                first.bare * 1e3, first.controls, whole.bare * 1e3, whole.controls);
}
