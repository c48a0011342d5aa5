// TORVEX: the reference host. It shows how an application loads, uses and ends PelmarDlgs.
#include <string>

#include <PelmarDlgs.h>
#include <afxwin.h>

#include "help_report.h"
#include "main_frame.h"
#include "settings.h"

namespace {

/// Relative folders in the settings files start from the host's own folder, wherever the host was started.
void GoToOwnFolder()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileName(nullptr, path, MAX_PATH);
    const std::wstring file(path, length);
    SetCurrentDirectory(file.substr(0, file.rfind(L'\\') + 1).c_str());
}

class CTorvexApp : public CWinApp {
public:
    CTorvexApp() : CWinApp(L"TORVEX") {}

    BOOL InitInstance() override
    {
        GoToOwnFolder();
        if (!InitPelmarDlgsDLL())
            return FALSE;
        // Loaded as long as the program runs: its lists outlive the calls that hand them out.
        LoadLibrary(L"PELMAR.dll");
        StartNcModule();
        TellWhereHelpIsMissing();

        auto* const frame = new CMainFrame;
        m_pMainWnd = frame;
        if (!frame->Create())
            return FALSE;
        frame->ShowWindow(SW_SHOW);
        frame->UpdateWindow();
        return TRUE;
    }

    int ExitInstance() override
    {
        FinalizePelmarDlgsDLL();
        return CWinApp::ExitInstance();
    }
};

CTorvexApp g_application;

} // namespace

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR, int nShowCmd)
{
    return AfxWinMain(hInstance, hPrevInstance, GetCommandLine(), nShowCmd);
}
