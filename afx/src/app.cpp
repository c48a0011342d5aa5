// The application object, its message loop and its message boxes.
#include "state.h"

#include <afxwin.h>

#include <initializer_list>

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
BOOL PreTranslate(MSG& message)
{
    CWnd* const main = AfxGetMainWnd();
    const HWND mainWindow = main ? main->m_hWnd : nullptr;
    if (CWnd::WalkPreTranslateTree(mainWindow, &message))
        return TRUE;
    // The main window has accelerators for the windows beside it too.
    const bool isBeside = mainWindow && GetAncestor(message.hwnd, GA_ROOTOWNER) != mainWindow;
    return isBeside && main->PreTranslateMessage(&message);
}
} // namespace

BOOL CWinApp::PreTranslateMessage(MSG* message)
{
    return PreTranslate(*message);
}

bool AfxPumpMessage(int& exitCode)
{
    MSG message{};
    if (GetMessage(&message, nullptr, 0, 0) <= 0) {
        exitCode = static_cast<int>(message.wParam);
        return false;
    }
    CWinApp* const application = AfxGetApp();
    if (!(application ? application->PreTranslateMessage(&message) : PreTranslate(message))) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return true;
}

int CWinApp::Run()
{
    int exitCode = 0;
    while (AfxPumpMessage(exitCode))
        if (AfxGetState().messageDepth == 0)
            AfxDropTemporaries();
    return exitCode;
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

namespace {
/// Replaces %1, %2 and so on by the texts that there are.
void FormatWith(CString& result, UINT id, std::initializer_list<LPCTSTR> texts)
{
    std::wstring format;
    AfxLoadText(id, format);
    result.Empty();
    for (size_t at = 0; at < format.size(); ++at) {
        const wchar_t next = at + 1 < format.size() ? format[at + 1] : L'\0';
        if (format[at] == L'%' && next >= L'1' && next < L'1' + static_cast<int>(texts.size())) {
            result += texts.begin()[next - L'1'];
            ++at;
        } else {
            result += format[at];
        }
    }
}
} // namespace

void AfxFormatString1(CString& result, UINT id, LPCTSTR first)
{
    FormatWith(result, id, {first});
}

void AfxFormatString2(CString& result, UINT id, LPCTSTR first, LPCTSTR second)
{
    FormatWith(result, id, {first, second});
}
