#include "ControlLib.h"

IMPLEMENT_DYNAMIC(CPropertyPageTVEx, CPropertyPage)

BEGIN_MESSAGE_MAP(CPropertyPageTVEx, CPropertyPage)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

CPropertyPageTVEx::CPropertyPageTVEx() : CPropertyPageTVEx(0) {}

CPropertyPageTVEx::CPropertyPageTVEx(UINT templateId, UINT caption) : CPropertyPage(templateId, caption)
{
    m_psp.dwFlags |= PSP_HASHELP;
}

namespace {
bool IsDown(int key)
{
    return GetKeyState(key) < 0;
}

/// The message says nothing of what caused it: without F1 held down it came from the "?" pointer.
bool AsksAboutControl()
{
    return !IsDown(VK_F1) || IsDown(VK_SHIFT);
}
} // namespace

BOOL CPropertyPageTVEx::OnHelpInfo(HELPINFO*)
{
    CWinApp* const application = AfxGetApp();
    if (application && AsksAboutControl())
        application->m_bHelpMode = TRUE;
    SendMessage(WM_COMMAND, ID_HELP);
    if (application)
        application->m_bHelpMode = FALSE; // a page that handles no Help leaves it on
    return TRUE;
}
