#include "ControlLib.h"

IMPLEMENT_DYNAMIC(CPropertySheetTVEx, CPropertySheet)

BEGIN_MESSAGE_MAP(CPropertySheetTVEx, CPropertySheet)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

CPropertySheetTVEx::CPropertySheetTVEx(LPCTSTR caption, CWnd* parent, UINT firstPage)
    : CPropertySheet(caption, parent, firstPage)
{
}

BOOL CPropertySheetTVEx::OnHelpInfo(HELPINFO* info)
{
    const CPropertyPage* const page = GetActivePage();
    if (!page)
        return CPropertySheet::OnHelpInfo(info);
    page->SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(info));
    return TRUE;
}
