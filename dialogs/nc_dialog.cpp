#include "PelmarDlgs/dialogs/nc_dialog.h"

#include "dialogs/restart_question.h"
#include "frame/help_viewer.h"
#include "frame/module.h"
#include "resources/resource.h"

namespace pelmar {

INT_PTR CNCDialog::DoModal()
{
    const ModuleResources resources;
    return CDialog::DoModal();
}

BOOL CNCDialog::Create(UINT templateId, CWnd* parent)
{
    const ModuleResources resources;
    return CDialog::Create(templateId, parent);
}

BOOL CNCDialog::OnNcCreate(CREATESTRUCTW* create)
{
    ModifyStyleEx(0, WS_EX_CONTEXTHELP);
    return CDialog::OnNcCreate(create);
}

void CNCDialog::WatchForContextHelp(UINT message, WPARAM wParam)
{
    CWinApp* const application = AfxGetApp();
    if (application && CaptionHelp::IsClickOn(message, wParam))
        application->m_bHelpMode = TRUE;
}

BOOL CNCDialog::PreTranslateMessage(MSG* message)
{
    return CaptionHelp::Takes(*this, *message) || CDialog::PreTranslateMessage(message);
}

LRESULT CNCDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_HELP) {
        AskForHelp(*this);
        return TRUE;
    }
    const CaptionHelp help(*this, message, wParam);
    return CDialog::WindowProc(message, wParam, lParam);
}

bool AskToStoreUntilRestart()
{
    return AfxMessageBox(LoadText(IDS_RESTART_QUESTION), MB_YESNO) == IDYES;
}

} // namespace pelmar
