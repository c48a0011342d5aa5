#include "PelmarDlgs/dialogs/nc_dialog.h"

#include "dialogs/restart_question.h"
#include "frame/module.h"
#include "resources/resource.h"

namespace pelmar {

namespace {
/// The low bits of a system command are the system's own.
constexpr WPARAM kSystemCommandMask = 0xFFF0;
} // namespace

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
    if (application && message == WM_SYSCOMMAND && (wParam & kSystemCommandMask) == SC_CONTEXTHELP)
        application->m_bHelpMode = TRUE;
}

bool AskToStoreUntilRestart()
{
    return AfxMessageBox(LoadText(IDS_RESTART_QUESTION), MB_YESNO) == IDYES;
}

} // namespace pelmar
