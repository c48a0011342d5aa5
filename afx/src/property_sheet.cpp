// Property pages and sheets.
#include <afxdlgs.h>

#include <algorithm>

#include "state.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)
IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

namespace {
INT_PTR CALLBACK PageProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}
} // namespace

CPropertyPage::CPropertyPage() : CPropertyPage(0) {}

CPropertyPage::CPropertyPage(UINT templateId, UINT caption) : CDialog(templateId)
{
    m_psp.dwSize = sizeof m_psp;
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.hInstance = AfxGetResourceHandle();
    m_psp.pszTemplate = MAKEINTRESOURCE(templateId);
    m_psp.pfnDlgProc = PageProc;
    m_psp.pfnCallback = PageCallback;
    if (caption && m_caption.LoadString(caption))
        m_psp.dwFlags |= PSP_USETITLE;
}

namespace {
/// The font of the sheet itself, in which it also reckons how large its pages are. Empty where it cannot be told.
AfxDialogFont FontOfSheets()
{
    constexpr WORD kSheet = 1006; // the template of sheets in the system's library
    const DLGTEMPLATE* const sheet = AfxLoadTemplate(GetModuleHandle(L"comctl32.dll"), MAKEINTRESOURCE(kSheet));
    return sheet ? AfxFontOf(*sheet) : AfxDialogFont{};
}
} // namespace

/// Makes the page as the system wants it, with the template filled in. False where it cannot be shown: it is shown
/// already, or has no template.
bool CPropertyPage::Prepare(CPropertySheet& sheet, PROPSHEETPAGEW& page)
{
    if (m_hWnd)
        return false;
    page = m_psp;
    if (!m_caption.IsEmpty())
        page.pszTitle = m_caption;
    page.lParam = reinterpret_cast<LPARAM>(this);
    const DLGTEMPLATE* const pageTemplate = FindTemplate(page);
    if (!pageTemplate)
        return false;
    // In another font than the sheet's a page would be cut, or lost in its place.
    const AfxDialogFont font = FontOfSheets();
    const AfxDialogFont own = AfxFontOf(*pageTemplate);
    if (!font.face.empty() && (font.face != own.face || font.points != own.points)) {
        m_template = AfxTemplateWithFont(*pageTemplate, font);
        page.dwFlags |= PSP_DLGINDIRECT;
        page.pResource = reinterpret_cast<const DLGTEMPLATE*>(m_template.data());
    }
    m_sheet = &sheet;
    m_activatedBefore = false;
    return true;
}

/// Looks into the page's own module first and fills in the one that holds the template.
const DLGTEMPLATE* CPropertyPage::FindTemplate(PROPSHEETPAGEW& page) const
{
    if (page.dwFlags & PSP_DLGINDIRECT)
        return page.pResource;
    if (!FindResource(page.hInstance, page.pszTemplate, RT_DIALOG))
        page.hInstance = AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
    return AfxLoadTemplate(page.hInstance, page.pszTemplate);
}

UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, PROPSHEETPAGEW* page)
{
    if (message == PSPCB_CREATE) {
        auto* const object = reinterpret_cast<CPropertyPage*>(page->lParam);
        AfxAwaitWindow(object, object->m_sheet->m_hWnd);
    }
    return TRUE;
}

void CPropertyPage::SetModified(BOOL changed)
{
    if (m_hWnd && m_sheet)
        m_sheet->SendMessage(changed ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd));
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    const int pages = m_sheet ? m_sheet->GetPageCount() : 0;
    for (int index = 0; index < pages; ++index) {
        const CPropertyPage* const page = m_sheet->GetPage(index);
        if (page == this || !page->m_hWnd)
            continue;
        if (const LRESULT answer = page->SendMessage(PSM_QUERYSIBLINGS, wParam, lParam))
            return answer;
    }
    return 0;
}

/// The sheet moves the focus, over the page's own controls and its own. A page that stands alone is a dialog like any.
BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    return m_sheet ? FALSE : CDialog::PreTranslateMessage(message);
}

BOOL CPropertyPage::OnSetActive()
{
    if (m_activatedBefore)
        UpdateData(FALSE);
    m_activatedBefore = true;
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (reinterpret_cast<const NMHDR*>(lParam)->code) {
    case static_cast<UINT>(PSN_SETACTIVE):
        *result = OnSetActive() ? 0 : -1;
        return TRUE;
    case static_cast<UINT>(PSN_KILLACTIVE):
        *result = OnKillActive() ? FALSE : TRUE;
        return TRUE;
    case static_cast<UINT>(PSN_APPLY):
        *result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case static_cast<UINT>(PSN_RESET):
        OnReset();
        return TRUE;
    case static_cast<UINT>(PSN_HELP):
        SendMessage(WM_COMMAND, ID_HELP);
        return TRUE;
    default:
        return CDialog::OnNotify(wParam, lParam, result);
    }
}

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT firstPage) : m_caption(caption), m_parent(parent)
{
    m_psh.dwSize = sizeof m_psh;
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.nStartPage = firstPage;
}

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (GetPageIndex(page) < 0 && (!m_hWnd || ShowTab(*page)))
        m_pages.push_back(page);
}

/// Adds a page to the sheet that is shown. False where the page cannot be shown.
bool CPropertySheet::ShowTab(CPropertyPage& page)
{
    PROPSHEETPAGEW prepared{};
    if (!page.Prepare(*this, prepared))
        return false;
    const HPROPSHEETPAGE handle = CreatePropertySheetPageW(&prepared);
    if (handle && SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle)))
        return true;
    if (handle)
        DestroyPropertySheetPage(handle);
    page.m_sheet = nullptr;
    return false;
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    RemovePage(GetPageIndex(page));
}

void CPropertySheet::RemovePage(int index)
{
    CPropertyPage* const page = GetPage(index);
    if (!page)
        return;
    if (m_hWnd)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(index));
    m_pages.erase(m_pages.begin() + index);
    if (page->m_sheet == this)
        page->m_sheet = nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const
{
    const auto found = std::find(m_pages.begin(), m_pages.end(), page);
    return found == m_pages.end() ? -1 : static_cast<int>(found - m_pages.begin());
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(m_pages.size());
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_pages[static_cast<size_t>(index)] : nullptr;
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (!m_hWnd)
        return GetPage(GetActiveIndex());
    const auto window = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
    for (CPropertyPage* page : m_pages)
        if (page->m_hWnd && page->m_hWnd == window)
            return page;
    return nullptr;
}

int CPropertySheet::GetActiveIndex() const
{
    return m_hWnd ? GetTabControl()->GetCurSel() : static_cast<int>(m_psh.nStartPage);
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (m_hWnd)
        return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(index)));
    if (!GetPage(index))
        return FALSE;
    m_psh.nStartPage = static_cast<UINT>(index);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    return SetActivePage(GetPageIndex(page));
}

void CPropertySheet::PressButton(int button)
{
    SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button));
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    m_tab.m_hWnd = reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL));
    return &m_tab;
}

INT_PTR CPropertySheet::DoModal()
{
    if (m_hWnd || m_pages.empty())
        return -1;
    INT_PTR result = -1;
    const HWND owner = AfxModalOwner(m_parent);
    {
        const AfxDisabledOwner disabled(owner);
        result = Show(owner);
        // Gone from sight before the owner takes input again, so that the activation goes to the owner.
        if (m_hWnd)
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (m_hWnd && owner && GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    for (CPropertyPage* page : m_pages)
        if (page->m_sheet == this)
            page->m_sheet = nullptr;
    return result;
}

INT_PTR CPropertySheet::Show(HWND owner)
{
    std::vector<PROPSHEETPAGEW> pages;
    for (CPropertyPage* page : m_pages)
        if (!page->Prepare(*this, pages.emplace_back()))
            return -1;

    // The sheet's own loop would not let the windows see their messages first.
    PROPSHEETHEADERW header = m_psh;
    header.dwFlags |= PSH_MODELESS;
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_caption;
    header.nPages = static_cast<UINT>(pages.size());
    header.ppsp = pages.data();
    header.hwndParent = owner;

    // The sheet's dialog is the first window that the call creates.
    m_nModalResult = -1;
    m_continuesModal = true;
    AfxAwaitWindow(this);
    const INT_PTR created = PropertySheetW(&header);
    AfxStopAwaiting();
    if (created == -1 || !m_hWnd)
        return -1;
    if (!m_continuesModal) // ended before the loop
        return m_nModalResult;
    if (const int told = RunModalLoop(MLF_SHOWONIDLE); told != -1)
        return told;
    return m_hWnd && SendMessage(PSM_GETRESULT) > 0 ? IDOK : IDCANCEL;
}

/// A sheet that has been closed by one of its buttons has no page any more.
BOOL CPropertySheet::ContinueModal()
{
    return CWnd::ContinueModal() && SendMessage(PSM_GETCURRENTPAGEHWND);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    return m_hWnd && AfxIsInput(*message) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(message));
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    OnInitDialog();
    return result;
}

BOOL CPropertySheet::OnInitDialog()
{
    if (!(GetStyle() & WS_CHILD))
        CenterWindow();
    return TRUE;
}
