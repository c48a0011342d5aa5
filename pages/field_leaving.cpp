#include "pages/field_leaving.h"

#include "PelmarDlgs/leaving.h"
#include "expr/refusals.h"
#include "resources/resource.h"

namespace pelmar {
namespace {

constexpr wchar_t kDefaultsProperty[] = L"PelmarDlgs.RestoresDefaults";

/// Long enough for a click to do what it does, short enough for the user to see what he is asked about.
constexpr UINT kRestMilliseconds = 100;

/// Where the focus goes, seen from the window whose edit loses it.
enum class Way {
    Out,        ///< of the window: it is being closed, or will be
    ToDefaults, ///< which replace what is refused
    Around,     ///< to what may ask by itself: OK, Apply, tabs, a host's buttons
    Elsewhere,
};

bool IsInside(HWND window, HWND child)
{
    return child == window || IsChild(window, child);
}

/// Whether it is a control of the window or of one around it, and not of a neighbour.
bool IsOfThisOrAround(HWND window, HWND control)
{
    return IsInside(GetParent(control), window);
}

Way WayTo(HWND window, HWND target)
{
    const HWND root = GetAncestor(window, GA_ROOT);
    if (!IsWindowVisible(root))
        return Way::Out; // a window that is destroyed is hidden first
    if (!target || GetAncestor(target, GA_ROOT) != root)
        return Way::Elsewhere;
    // A dialog that ends takes the focus itself. So does a window whose page is hidden, and that is no way out.
    if (IsInside(target, window))
        return IsWindowVisible(window) ? Way::Out : Way::Elsewhere;
    if (!IsOfThisOrAround(window, target))
        return Way::Elsewhere;
    const int id = GetDlgCtrlID(target);
    if (id == IDCANCEL)
        return Way::Out;
    const bool isOwn = GetParent(target) == window;
    if ((isOwn && id == IDC_RESTORE_DEFAULTS) || GetProp(target, kDefaultsProperty))
        return Way::ToDefaults;
    return isOwn && id != IDOK ? Way::Elsewhere : Way::Around;
}

} // namespace

void MarkAsDefaultsButton(HWND button)
{
    SetProp(button, kDefaultsProperty, button);
}

bool FieldLeaving::TakeData(CWnd& window)
{
    const HWND target = ::GetFocus(); // has it already
    const Way way = m_isGivenUp ? Way::Out : WayTo(window.m_hWnd, target);
    if (way == Way::Out)
        return false;
    if (way == Way::Elsewhere)
        return window.UpdateData(TRUE) != FALSE;
    {
        const SilentRefusals silent;
        if (window.UpdateData(TRUE))
            return true;
    }
    if (way == Way::Around)
        AskIfFocusRests(window, target);
    return false;
}

/// A click or a key that presses the control does so at once. Who only comes by with the Tab key is asked in its place.
void FieldLeaving::AskIfFocusRests(const CWnd& window, HWND control)
{
    m_restingPlace = control;
    SetTimer(window.m_hWnd, reinterpret_cast<UINT_PTR>(this), kRestMilliseconds, OnRested);
}

void CALLBACK FieldLeaving::OnRested(HWND window, UINT, UINT_PTR leaving, DWORD)
{
    const auto& self = *reinterpret_cast<const FieldLeaving*>(leaving);
    if (::GetCapture() == self.m_restingPlace)
        return; // is being pressed
    KillTimer(window, leaving);
    CWnd* const shown = CWnd::FromHandlePermanent(window);
    if (shown && !self.m_isGivenUp && ::GetFocus() == self.m_restingPlace)
        shown->UpdateData(TRUE);
}

} // namespace pelmar
