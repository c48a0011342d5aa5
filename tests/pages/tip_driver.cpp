#include "pages/tip_driver.h"

#include <cstdlib>
#include <stdexcept>

#include "ui/ui_thread.h"

namespace {

BOOL CALLBACK FindTip(HWND window, LPARAM parameter)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) || ui::ClassOf(window) != L"PelmarDlgs.Tip")
        return TRUE;
    *reinterpret_cast<HWND*>(parameter) = window;
    return FALSE;
}

void PostMove(HWND window, POINT place)
{
    ScreenToClient(window, &place);
    PostMessage(window, WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y));
    ui::Settle(window);
}

UINT RestMilliseconds()
{
    UINT milliseconds = 0;
    SystemParametersInfo(SPI_GETMOUSEHOVERTIME, 0, &milliseconds, 0);
    return milliseconds;
}

/// Whether a tip is one of this control's: right below or above it.
bool IsBeside(HWND tip, HWND control)
{
    RECT tipArea{};
    RECT area{};
    GetWindowRect(tip, &tipArea);
    GetWindowRect(control, &area);
    constexpr int kNear = 5;
    const bool isNear = std::abs(tipArea.top - area.bottom) < kNear || std::abs(area.top - tipArea.bottom) < kNear;
    return isNear && tipArea.left < area.right && tipArea.right > area.left;
}

volatile LONG g_isOver = 0;

void CALLBACK OnOver(HWND, UINT, UINT_PTR timer, DWORD)
{
    KillTimer(nullptr, timer);
    g_isOver = 1;
}

/// Waits for a timer of the thread that shows the tips: one that was set before for as long has run off by then.
void WaitForRest()
{
    g_isOver = 0;
    ui::UiThread::Get().Call([] { SetTimer(nullptr, 0, RestMilliseconds(), OnOver); });
    if (!ui::WaitUntil([] { return g_isOver != 0; }))
        throw std::runtime_error("a timer does not run off");
}

} // namespace

ShortRests::ShortRests()
{
    // Out of the way: what the display reports of its own pointer, early or late, is on no window.
    SetCursorPos(0, 0);
    m_before = RestMilliseconds();
    SystemParametersInfo(SPI_SETMOUSEHOVERTIME, USER_TIMER_MINIMUM, nullptr, 0);
}

ShortRests::~ShortRests()
{
    SystemParametersInfo(SPI_SETMOUSEHOVERTIME, m_before, nullptr, 0);
}

bool RestOn(HWND dialog, int id)
{
    constexpr DWORD kOneRest = 2000;
    MoveAway(dialog);
    MoveOver(dialog, id);
    return ui::WaitUntil([=] { return OpenTip() && IsBeside(OpenTip(), ui::Control(dialog, id)); }, kOneRest);
}

HWND OpenTip()
{
    HWND tip = nullptr;
    EnumWindows(FindTip, reinterpret_cast<LPARAM>(&tip));
    return tip;
}

void MoveOver(HWND dialog, int id)
{
    const HWND control = ui::Control(dialog, id);
    RECT area;
    GetWindowRect(control, &area);
    PostMove(IsWindowEnabled(control) ? control : dialog, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

void MoveAway(HWND dialog)
{
    RECT area;
    GetWindowRect(dialog, &area);
    PostMove(dialog, {area.left, area.top});
}

std::vector<std::wstring> TipOn(HWND dialog, int id)
{
    std::wstring text;
    // The display's own pointer may jump, which takes an open tip away: the person rests once more then.
    const auto rests = [&] {
        if (RestOn(dialog, id))
            text = ui::TextOf(OpenTip());
        return !text.empty();
    };
    if (!ui::WaitUntil(rests))
        throw std::runtime_error("no tip came on control " + std::to_string(id));
    MoveAway(dialog);
    std::vector<std::wstring> lines(1);
    for (const wchar_t letter : text) {
        if (letter == L'\n')
            lines.emplace_back();
        else
            lines.back() += letter;
    }
    return lines;
}

bool ComesATip(HWND dialog, int id)
{
    MoveAway(dialog);
    MoveOver(dialog, id);
    WaitForRest();
    const bool came = OpenTip() != nullptr;
    MoveAway(dialog);
    return came;
}
