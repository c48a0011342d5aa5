#include "options_sheet.h"

#include <algorithm>

#include <PelmarDlgs.h>

#include "option_pages.h"
#include "resource.h"
#include "settings.h"
#include "texts.h"

using namespace pelmar;

namespace {
constexpr UINT kGoToControl = WM_APP + 1;
} // namespace

IMPLEMENT_DYNAMIC(COptionsSheet, CPropertySheetTVEx)

BEGIN_MESSAGE_MAP(COptionsSheet, CPropertySheetTVEx)
    ON_BN_CLICKED(IDC_PAGE_DEFAULTS, &COptionsSheet::OnPageDefaults)
    ON_MESSAGE(kGoToControl, &COptionsSheet::OnGoToControl)
END_MESSAGE_MAP()

namespace {

constexpr int kApplyButton = 0x3021; ///< as the system numbers it in every property sheet

CString Title(int units)
{
    return Text(units == kMillimetre ? IDS_OPTIONS_TITLE_MILLIMETRE : IDS_OPTIONS_TITLE_INCH);
}

/// The place of the page that is made from a template; the first one where none is.
int PageOf(int templateId)
{
    const auto pages = OptionPages();
    const auto found = std::ranges::find(pages, templateId, &OptionPage::templateId);
    return found == pages.end() ? 0 : static_cast<int>(found - pages.begin());
}

CRect RectIn(const CWnd& parent, HWND control)
{
    CRect rect;
    ::GetWindowRect(control, rect);
    MapWindowPoints(nullptr, parent.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

/// Afterwards there may be no page in front any more.
bool MayClose(UINT message)
{
    return message == WM_COMMAND || message == WM_SYSCOMMAND || message == WM_CLOSE || message == PSM_PRESSBUTTON;
}

} // namespace

COptionsSheet::COptionsSheet(CWnd* parent, int units, Use use, SettingPlace place)
    : CPropertySheetTVEx(Title(units), parent), m_use(use), m_place(place)
{
    for (const OptionPage& row : OptionPages()) {
        CPropertyPage& made = *m_ownPages.emplace_back(row.make(units));
        made.m_psp.pszTitle = m_tabs.emplace_back(Text(row.tab));
        made.m_psp.dwFlags |= PSP_USETITLE;
        if (auto* const page = dynamic_cast<CExpRegenPropertyPage*>(&made))
            page->m_readOnly = use == Use::Look;
        AddPage(&made);
    }
    m_psh.nStartPage = static_cast<UINT>(PageOf(place.templateId ? place.templateId : LoadOptionsPage()));
}

BOOL COptionsSheet::OnInitDialog()
{
    // Beside the sheet's own buttons, at the left border of the pages.
    CRect rect = RectIn(*this, ::GetDlgItem(m_hWnd, IDOK));
    const int width = rect.Width() * 3 / 2;
    rect.left = RectIn(*this, GetTabControl()->m_hWnd).left;
    rect.right = rect.left + width;
    m_defaults.CreateEx(0, L"BUTTON", Text(IDS_PAGE_DEFAULTS), WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, this,
                        IDC_PAGE_DEFAULTS);
    m_defaults.SendMessage(WM_SETFONT, static_cast<WPARAM>(SendMessage(WM_GETFONT)), TRUE);
    m_defaults.EnableWindow(m_use == Use::Edit);
    MarkAsDefaultsButton(m_defaults.m_hWnd);
    if (m_place.controlId)
        PostMessage(kGoToControl); // once the sheet is shown: it puts the focus on its first control
    return CPropertySheetTVEx::OnInitDialog();
}

/// A control that cannot take the focus leaves it where it is.
LRESULT COptionsSheet::OnGoToControl(WPARAM, LPARAM)
{
    const CPropertyPage* const page = GetActivePage();
    const HWND control = page ? ::GetDlgItem(page->m_hWnd, m_place.controlId) : nullptr;
    if (control && ::IsWindowEnabled(control) && ::IsWindowVisible(control))
        page->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    return 0;
}

void COptionsSheet::OnPageDefaults()
{
    if (const CPropertyPage* const page = GetActivePage())
        page->SendMessage(kSetDefaultsMessage);
}

/// Has all pages hand their changes over, and saves the records. False where a page refuses or nothing was saved.
bool COptionsSheet::TakeAndSave()
{
    return SendMessage(PSM_APPLY) != 0 && SaveRecords();
}

bool COptionsSheet::SaveRecords()
{
    return m_save.Save(IDS_WHAT_OPTIONS, SaveAll);
}

INT_PTR COptionsSheet::DoModal()
{
    const INT_PTR result = CPropertySheetTVEx::DoModal();
    // A program that presses the sheet's button by message comes past the command.
    if (result == IDOK && m_use == Use::Edit && !m_isSaved)
        SaveRecords();
    m_save.Forget(); // the page is no part of it
    if (m_lastPage >= 0 && m_lastPage != PageOf(LoadOptionsPage()))
        SaveOptionsPage(OptionPages()[static_cast<size_t>(m_lastPage)].templateId);
    return result;
}

LRESULT COptionsSheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (MayClose(message) && GetActivePage())
        m_lastPage = GetActiveIndex();
    const bool isCommand = message == WM_COMMAND && m_use == Use::Edit;
    // Before the sheet closes: it cannot be kept open afterwards.
    if (isCommand && LOWORD(wParam) == IDOK) {
        m_isSaved = TakeAndSave();
        if (!m_isSaved)
            return 0;
    }
    const LRESULT result = CPropertySheetTVEx::WindowProc(message, wParam, lParam);
    // The sheet disables the button when every page has taken its changes.
    if (isCommand && LOWORD(wParam) == kApplyButton && !GetDlgItem(kApplyButton)->IsWindowEnabled() && !SaveRecords())
        GetActivePage()->SetModified();
    return result;
}
