// The application object, its message loop and its message boxes.
#include "state.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCTSTR name) : m_pszAppName(name), m_hInstance(GetModuleHandle(nullptr))
{
    AfxGetState().application = this;
}

CWinApp::~CWinApp()
{
    if (AfxGetState().application == this)
        AfxGetState().application = nullptr;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    return 0;
}

namespace {
/// Offers the message to the windows from the one it is for up to its top-level parent, then to the main window.
bool PreTranslate(MSG& message)
{
    for (HWND window = message.hwnd; window; window = GetParent(window)) {
        CWnd* const object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&message))
            return true;
    }
    CWnd* const main = AfxGetMainWnd();
    return main && main->m_hWnd && main->PreTranslateMessage(&message);
}
} // namespace

int CWinApp::Run()
{
    MSG message{};
    while (GetMessage(&message, nullptr, 0, 0) > 0) {
        if (PreTranslate(message))
            continue;
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return static_cast<int>(message.wParam);
}

int CWinApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT)
{
    HWND owner = GetActiveWindow();
    if (!owner && AfxGetMainWnd() && AfxGetMainWnd()->m_hWnd)
        owner = GetLastActivePopup(AfxGetMainWnd()->m_hWnd);
    return ::MessageBox(owner, prompt, m_pszAppName, type);
}

CWinApp* AfxGetApp()
{
    return AfxGetState().application;
}

CWnd* AfxGetMainWnd()
{
    CWinApp* const application = AfxGetApp();
    return application ? application->m_pMainWnd : nullptr;
}

int AfxWinMain()
{
    CWinApp* const application = AfxGetApp();
    if (!application)
        return -1;
    if (!application->InitInstance()) {
        application->ExitInstance();
        return -1;
    }
    const int result = application->Run();
    const int exit = application->ExitInstance();
    return exit ? exit : result;
}

int AfxMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    if (!(type & MB_ICONMASK)) {
        const UINT buttons = type & MB_TYPEMASK;
        type |= buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? MB_ICONQUESTION : MB_ICONEXCLAMATION;
    }
    CWinApp* const application = AfxGetApp();
    return application ? application->DoMessageBox(text, type, helpId)
                       : ::MessageBox(GetActiveWindow(), text, nullptr, type);
}

int AfxMessageBox(UINT promptId, UINT type, UINT helpId)
{
    CString text;
    text.LoadString(promptId);
    return AfxMessageBox(text, type, helpId == static_cast<UINT>(-1) ? promptId : helpId);
}

void AfxFormatString2(CString& result, UINT id, LPCTSTR first, LPCTSTR second)
{
    std::wstring format;
    AfxLoadText(id, format);
    result.Empty();
    for (size_t at = 0; at < format.size(); ++at) {
        const wchar_t next = at + 1 < format.size() ? format[at + 1] : L'\0';
        if (format[at] == L'%' && (next == L'1' || next == L'2')) {
            result += next == L'1' ? first : second;
            ++at;
        } else {
            result += format[at];
        }
    }
}
