#include "PelmarDlgs/pages/option_page.h"

#include "frame/module.h"

// The host walks the run-time classes of its pages and expects the framework's page right below this one.
IMPLEMENT_DYNCREATE(CExpRegenPropertyPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CExpRegenPropertyPage, CPropertyPageTVEx)
END_MESSAGE_MAP()

CExpRegenPropertyPage::CExpRegenPropertyPage(int templateId) : CPropertyPageTVEx(static_cast<UINT>(templateId))
{
    m_psp.hInstance = pelmar::ModuleInstance();
}

BOOL CExpRegenPropertyPage::Create(UINT templateId, CWnd* parent)
{
    const pelmar::ModuleResources resources;
    return CPropertyPageTVEx::Create(templateId, parent);
}

void CExpRegenPropertyPage::DisableNonEditParameters()
{
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        ::EnableWindow(child, FALSE);
}

BOOL CExpRegenPropertyPage::OnInitDialog()
{
    CPropertyPageTVEx::OnInitDialog();
    if (m_readOnly)
        DisableNonEditParameters();
    return TRUE;
}

BOOL CExpRegenPropertyPage::OnSetActive()
{
    if (m_readOnly)
        DisableNonEditParameters();
    return CPropertyPage::OnSetActive();
}

void CExpRegenPropertyPage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPageTVEx::DoDataExchange(exchange);
}
