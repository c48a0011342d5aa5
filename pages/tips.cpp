#include "pages/tips.h"

#include <algorithm>

#include "PelmarDlgs/help.h"
#include "frame/display.h"
#include "frame/module.h"
#include "pages/page_controls.h"

namespace pelmar {
namespace {

constexpr wchar_t kClassName[] = L"PelmarDlgs.Tip";
constexpr UINT_PTR kLook = 1;
constexpr UINT kLookMilliseconds = 100;

// In units of dialogs, so that they grow with the font.
constexpr int kTextWidth = 200;
constexpr int kMargin = 3;

bool g_areShown = true;

/// The system's own measure of resting.
UINT RestMilliseconds()
{
    UINT milliseconds = 0;
    SystemParametersInfo(SPI_GETMOUSEHOVERTIME, 0, &milliseconds, 0);
    return std::max<UINT>(milliseconds, USER_TIMER_MINIMUM);
}

bool EndsTip(UINT message)
{
    const bool isMove = message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
    const bool isMouse = (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
                         (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
    return (isMouse && !isMove) || message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

/// Where a message of the mouse's movement has it, in screen coordinates.
std::optional<CPoint> PlaceOf(const MSG& message)
{
    CPoint place(static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam)));
    if (message.message == WM_NCMOUSEMOVE)
        return place;
    if (message.message != WM_MOUSEMOVE)
        return {};
    ClientToScreen(message.hwnd, &place);
    return place;
}

bool IsOn(HWND control, CPoint place)
{
    CRect area;
    return control && IsWindowVisible(control) && ::GetWindowRect(control, area) && area.PtInRect(place);
}

const Control* ControlAt(const CWnd& window, std::span<const Control> controls, CPoint place)
{
    const auto found = std::ranges::find_if(
        controls, [&](const Control& control) { return IsOn(ControlOf(window, control.id), place); });
    return found == controls.end() ? nullptr : &*found;
}

CPoint Pointer()
{
    CPoint place;
    GetCursorPos(&place);
    return place;
}

/// Of the program, as all windows of the framework are. Nothing of the library's is in it: it may stay behind.
void RegisterTipClass()
{
    WNDCLASS windowClass{};
    windowClass.style = CS_SAVEBITS | CS_DROPSHADOW;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_INFOBK + 1));
    windowClass.lpszClassName = kClassName;
    RegisterClass(&windowClass);
}

HFONT FontOf(HWND window)
{
    return reinterpret_cast<HFONT>(::SendMessage(window, WM_GETFONT, 0, 0));
}

/// A device context with the window's font.
class FontContext {
public:
    FontContext(HDC context, HWND window) : m_context(context), m_before(SelectObject(context, FontOf(window))) {}
    ~FontContext() { SelectObject(m_context, m_before); }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

private:
    HDC m_context;
    HGDIOBJ m_before;
};

CSize SizeOfText(HWND window, const CString& text, int width)
{
    const HDC context = ::GetDC(window);
    CRect area(0, 0, width, 0);
    {
        const FontContext font(context, window);
        DrawText(context, text, text.GetLength(), area, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    }
    ::ReleaseDC(window, context);
    return area.Size();
}

/// As large as it is meant to be, on this display.
CSize SizeOfDrawing(HBITMAP drawing)
{
    BITMAP facts{};
    if (!drawing || !GetObject(drawing, sizeof facts, &facts))
        return {};
    return {OnThisDisplay(facts.bmWidth), OnThisDisplay(facts.bmHeight)};
}

void Draw(HDC context, HBITMAP drawing, const CRect& area)
{
    BITMAP facts{};
    if (!drawing || !GetObject(drawing, sizeof facts, &facts))
        return;
    const HDC memory = CreateCompatibleDC(context);
    const HGDIOBJ before = SelectObject(memory, drawing);
    SetStretchBltMode(context, HALFTONE);
    SetBrushOrgEx(context, 0, 0, nullptr);
    StretchBlt(context, area.left, area.top, area.Width(), area.Height(), memory, 0, 0, facts.bmWidth, facts.bmHeight,
               SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
}

/// Below the control, so that the field stays to be seen; above it where there is no room below.
CPoint PlaceBeside(HWND control, CSize size)
{
    CRect area;
    ::GetWindowRect(control, area);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfo(MonitorFromRect(area, MONITOR_DEFAULTTONEAREST), &screen);
    const CRect room = screen.rcWork;
    constexpr int kGap = 2;
    const int below = area.bottom + kGap;
    const bool fitsBelow = below + size.cy <= room.bottom;
    const int top = fitsBelow ? below : std::max<int>(room.top, area.top - kGap - size.cy);
    const int left = std::max<int>(room.left, std::min<int>(area.left, room.right - size.cx));
    return {left, top};
}

} // namespace

void ShowTips(bool show)
{
    g_areShown = show;
}

bool AreTipsShown()
{
    return g_areShown;
}

BEGIN_MESSAGE_MAP(Tips, CWnd)
    ON_WM_PAINT()
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_NCHITTEST, &Tips::OnNcHitTest)
END_MESSAGE_MAP()

void Tips::Watch(const CWnd& window, const MSG& message)
{
    if (!g_areShown)
        return;
    if (const std::optional<CPoint> place = PlaceOf(message)) {
        PointerMoved(window, *place);
    } else if (EndsTip(message.message)) {
        Hide();
        ::KillTimer(window.m_hWnd, reinterpret_cast<UINT_PTR>(this));
    }
}

/// The system reports a movement also where a window has come or gone below the pointer.
void Tips::PointerMoved(const CWnd& window, CPoint place)
{
    if (m_watched == window.m_hWnd && m_place == place)
        return;
    m_watched = window.m_hWnd;
    m_place = place;
    m_pointer = Pointer();
    const Control* const before = m_control;
    m_control = ControlAt(window, m_source.Facts().controls, place);
    if (m_hWnd && m_control == before)
        return;
    Hide();
    const auto timer = reinterpret_cast<UINT_PTR>(this);
    if (m_control)
        ::SetTimer(m_watched, timer, RestMilliseconds(), OnRested);
    else
        ::KillTimer(m_watched, timer);
}

void CALLBACK Tips::OnRested(HWND window, UINT, UINT_PTR tips, DWORD)
{
    ::KillTimer(window, tips);
    auto& self = *reinterpret_cast<Tips*>(tips);
    if (!self.m_hWnd && self.IsPointedAtStill())
        self.Show();
}

/// No message says that the pointer has left for another window, or that another window has come to the front.
bool Tips::IsPointedAtStill() const
{
    if (!g_areShown || !m_control || !IsWindow(m_watched))
        return false;
    const HWND control = ::GetDlgItem(m_watched, m_control->id);
    const HWND root = GetAncestor(m_watched, GA_ROOT);
    if (!control || !::IsWindowVisible(control) || ::GetActiveWindow() != root || ::GetCapture())
        return false;
    const CPoint pointer = Pointer();
    return pointer == m_pointer || IsOn(control, pointer);
}

void Tips::Show()
{
    const CWnd* const window = FromHandlePermanent(m_watched);
    if (!window)
        return;
    const Tip tip = TipOf(*window, *m_control, m_source);
    if (tip.text.IsEmpty())
        return;
    if (tip.drawing)
        m_drawing =
            static_cast<HBITMAP>(LoadImageA(ModuleInstance(), tip.drawing, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    RegisterTipClass();
    const CRect place = PlaceFor(tip);
    if (!CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kClassName, tip.text, WS_POPUP | WS_BORDER,
                  place, FromHandle(GetAncestor(m_watched, GA_ROOT)), 0)) {
        OnDestroy();
        return;
    }
    SetTimer(kLook, kLookMilliseconds, nullptr);
    ShowWindow(SW_SHOWNOACTIVATE);
}

/// Lays the tip out: the text, and below it the drawing.
CRect Tips::PlaceFor(const Tip& tip)
{
    CRect units(kMargin, kMargin, kTextWidth, 0);
    MapDialogRect(m_watched, units);
    const CPoint margin = units.TopLeft();
    const CSize drawing = SizeOfDrawing(m_drawing);
    const CSize text = SizeOfText(m_watched, tip.text, std::max<int>(units.right, drawing.cx));
    m_textArea = CRect(margin, text);
    m_drawingArea = CRect(CPoint(margin.x, m_textArea.bottom + margin.y), drawing);
    const int width = std::max<int>(text.cx, drawing.cx) + 2 * margin.x;
    const int height = text.cy + (m_drawing ? drawing.cy + margin.y : 0) + 2 * margin.y;
    constexpr int kBorders = 2;
    const CSize size(width + kBorders, height + kBorders);
    return CRect(PlaceBeside(::GetDlgItem(m_watched, m_control->id), size), size);
}

void Tips::Hide()
{
    if (m_hWnd)
        DestroyWindow();
}

void Tips::OnDestroy()
{
    DeleteObject(m_drawing);
    m_drawing = nullptr;
}

void Tips::OnTimer(UINT_PTR)
{
    if (!IsPointedAtStill())
        Hide();
}

/// The pointer is on what lies below.
LRESULT Tips::OnNcHitTest(WPARAM, LPARAM)
{
    return HTTRANSPARENT;
}

void Tips::OnPaint()
{
    PAINTSTRUCT paint;
    const HDC context = ::BeginPaint(m_hWnd, &paint);
    CString text;
    GetWindowText(text);
    SetTextColor(context, GetSysColor(COLOR_INFOTEXT));
    SetBkMode(context, TRANSPARENT);
    {
        const FontContext font(context, m_watched);
        DrawText(context, text, text.GetLength(), m_textArea, DT_WORDBREAK | DT_NOPREFIX);
    }
    Draw(context, m_drawing, m_drawingArea);
    ::EndPaint(m_hWnd, &paint);
}

} // namespace pelmar
