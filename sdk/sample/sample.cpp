// The smallest host: shows the 2-axis page and saves its record on OK.
#include <PelmarDlgs.h>

namespace {

class CSampleApp : public CWinApp {
public:
    CSampleApp() : CWinApp(L"Sample") {}

    BOOL InitInstance() override
    {
        if (!InitPelmarDlgsDLL())
            return FALSE;
        InitializePelmarDlgsDLL(); // without a tool library everything but choosing tools works
        ShowOptions();
        FinalizePelmarDlgsDLL();
        return FALSE; // there is no main window to run a message loop for
    }

private:
    static void ShowOptions()
    {
        C2AxisOptionsInfo& options = *GetLast2xOptions();
        options.vOptions_Restore();
        CDefs2xPage page;
        page.GetData(pelmar::kInch);
        CPropertySheetTVEx sheet(L"PelmarDlgs sample");
        sheet.AddPage(&page);
        if (sheet.DoModal() == IDOK)
            options.vOptions_Save();
    }
};

CSampleApp g_application;

} // namespace

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR, int nShowCmd)
{
    return AfxWinMain(hInstance, hPrevInstance, GetCommandLine(), nShowCmd);
}
