// Dialogs and frames.
#include <afxwin.h>

#include "state.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)
IMPLEMENT_DYNAMIC(CFrameWnd, CWnd)

namespace {
/// All of a dialog's messages are handled by its object, which stands before this procedure.
INT_PTR CALLBACK DialogProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// Null where the chain holds none.
const DLGTEMPLATE* FindTemplate(UINT id)
{
    const LPCTSTR name = MAKEINTRESOURCE(id);
    return AfxLoadTemplate(AfxFindResourceHandle(name, RT_DIALOG), name);
}

/// What a template begins with where it is one of the extended kind.
#pragma pack(push, 1)
struct ExtendedTemplate {
    WORD version;
    WORD signature; ///< 0xFFFF tells the kinds apart
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD controls;
    short x;
    short y;
};
#pragma pack(pop)

/// Whether a template leaves the place of its dialog open.
bool LeavesPlaceOpen(const DLGTEMPLATE& dialogTemplate)
{
    constexpr DWORD kPlaced = WS_CHILD | DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN;
    const auto& extended = reinterpret_cast<const ExtendedTemplate&>(dialogTemplate);
    if (extended.signature == 0xFFFF)
        return !(extended.style & kPlaced) && extended.x == 0 && extended.y == 0;
    return !(dialogTemplate.style & kPlaced) && dialogTemplate.x == 0 && dialogTemplate.y == 0;
}
} // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : m_templateId(templateId), m_parent(parent) {}

INT_PTR CDialog::DoModal()
{
    const DLGTEMPLATE* const dialogTemplate = m_hWnd ? nullptr : FindTemplate(m_templateId);
    if (!dialogTemplate)
        return -1;
    const HWND owner = AfxModalOwner(m_parent);
    INT_PTR result = -1;
    {
        const AfxDisabledOwner disabled(owner);
        result = RunModal(*dialogTemplate, owner);
        // Gone from sight before the owner takes input again, so that the activation goes to the owner.
        if (m_hWnd)
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (m_hWnd && owner && GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    return result;
}

/// The result of the dialog, which stays for the caller to destroy.
INT_PTR CDialog::RunModal(const DLGTEMPLATE& dialogTemplate, HWND owner)
{
    m_nModalResult = -1;
    m_continuesModal = true; // EndDialog may come before the loop
    AfxAwaitWindow(this);
    CreateDialogIndirectParam(AfxGetInstanceHandle(), &dialogTemplate, owner, DialogProc, 0);
    AfxStopAwaiting();
    if (!m_hWnd || !m_continuesModal)
        return m_nModalResult;
    return RunModalLoop(MLF_SHOWONIDLE | (GetStyle() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0));
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    const DLGTEMPLATE* const dialogTemplate = m_hWnd ? nullptr : FindTemplate(templateId);
    if (!dialogTemplate)
        return FALSE;
    m_templateId = templateId;
    AfxAwaitWindow(this);
    const HWND window = CreateDialogIndirectParam(AfxGetInstanceHandle(), dialogTemplate,
                                                  parent ? parent->m_hWnd : nullptr, DialogProc, 0);
    AfxStopAwaiting();
    return window != nullptr;
}

void CDialog::EndDialog(int result)
{
    if (m_continuesModal)
        EndModalLoop(result);
    ::EndDialog(m_hWnd, result);
}

/// A dialog whose template leaves its place open comes up in the middle of its owner, with the size that OnInitDialog
/// has given it; not where that has moved it, shown it or ended it.
LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    CRect before;
    GetWindowRect(before);
    const BOOL result = OnInitDialog();
    if (!m_hWnd || IsWindowVisible())
        return result;
    CRect after;
    GetWindowRect(after);
    const DLGTEMPLATE* const dialogTemplate = FindTemplate(m_templateId);
    if (before.TopLeft() == after.TopLeft() && dialogTemplate && LeavesPlaceOpen(*dialogTemplate))
        CenterWindow();
    return result;
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

bool AfxIsInput(const MSG& message)
{
    const UINT kind = message.message;
    return (kind >= WM_KEYFIRST && kind <= WM_KEYLAST) || (kind >= WM_MOUSEFIRST && kind <= WM_MOUSELAST);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    return m_hWnd && AfxIsInput(*message) && IsDialogMessage(m_hWnd, message);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, void* handlerInfo)
{
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    // What a dialog does not handle of the commands proper, its parent and the application may.
    const bool isCommand = code == int{CN_COMMAND} && (id & 0x8000) && id < 0xF000;
    if (!isCommand)
        return FALSE;
    CWnd* const parent = m_hWnd ? FromHandlePermanent(::GetParent(m_hWnd)) : nullptr;
    if (parent && parent->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinApp* const application = AfxGetApp();
    return application && application->OnCmdMsg(id, code, extra, handlerInfo);
}

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle)
{
    HMENU menu = nullptr;
    if (menuName && !(menu = LoadMenu(AfxFindResourceHandle(menuName, RT_MENU), menuName)))
        return FALSE;
    if (!className)
        className = AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW),
                                        reinterpret_cast<HBRUSH>(UINT_PTR{COLOR_WINDOW + 1}));
    if (!CreateEx(exStyle, className, windowName, style, rect, parent, 0)) {
        DestroyMenu(menu);
        return FALSE;
    }
    return !menu || ::SetMenu(m_hWnd, menu);
}

void CFrameWnd::OnDestroy()
{
    if (AfxGetMainWnd() == this)
        PostQuitMessage(0);
    Default();
}

void CFrameWnd::PostNcDestroy()
{
    if (AfxGetMainWnd() == this)
        AfxGetApp()->m_pMainWnd = nullptr;
    delete this;
}
