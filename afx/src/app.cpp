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
/// Offers the message to the windows from the one it is for upward, and to the main window last.
bool PreTranslate(MSG& message)
{
    CWnd* const main = AfxGetMainWnd();
    for (HWND window = message.hwnd; window; window = GetParent(window)) {
        CWnd* const object = CWnd::FromHandlePermanent(window);
        if (object && object != main && object->PreTranslateMessage(&message))
            return true;
    }
    return main && main->m_hWnd && main->PreTranslateMessage(&message);
}
} // namespace

int CWinApp::Run()
{
    MSG message{};
    while (GetMessage(&message, nullptr, 0, 0) > 0) {
        if (!PreTranslate(message)) {
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
        if (AfxGetState().messageDepth == 0)
            AfxDropTemporaries();
    }
    return static_cast<int>(message.wParam);
}

int CWinApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT)
{
    return ::MessageBox(AfxModalOwner(nullptr), prompt, m_pszAppName, type);
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

HWND AfxModalOwner(const CWnd* parent)
{
    if (parent && parent->m_hWnd)
        return GetAncestor(parent->m_hWnd, GA_ROOT);
    if (const HWND active = GetActiveWindow())
        return active;
    const CWnd* const main = AfxGetMainWnd();
    return main && main->m_hWnd ? GetLastActivePopup(main->m_hWnd) : nullptr;
}

int AfxWinMain(HINSTANCE instance, HINSTANCE, LPTSTR commandLine, int show)
{
    CWinApp* const application = AfxGetApp();
    if (!application)
        return -1;
    application->m_hInstance = instance;
    application->m_lpCmdLine = commandLine;
    application->m_nCmdShow = show;
    if (!application->InitInstance())
        return application->ExitInstance();
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
                       : ::MessageBox(AfxModalOwner(nullptr), text, nullptr, type);
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
