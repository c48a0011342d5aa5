// A host with a page of its own that hears what the 2-axis page tells, and asks the 5-axis page. Ends with 0 where it
// heard and was answered as the headers say.
#include <PelmarDlgs.h>

namespace {

int g_result = 1;

class CListeningPage : public CPropertyPage {
public:
    CListeningPage() : CPropertyPage(CDefs3xPage::IDD) { m_psp.hInstance = GetModuleHandle(L"PelmarDlgs.dll"); }

    int islandDepths = -1;

protected:
    LRESULT OnQuerySiblings(WPARAM code, LPARAM argument)
    {
        if (code == pelmar::kIslandDepthsChosen)
            islandDepths = static_cast<int>(argument);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CListeningPage, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CListeningPage::OnQuerySiblings)
END_MESSAGE_MAP()

/// Plays by itself as soon as it is shown.
class CPlayingSheet : public CPropertySheetTVEx {
public:
    CPlayingSheet() : CPropertySheetTVEx(L"PelmarDlgs")
    {
        milling2x.GetData(pelmar::kInch);
        milling5x.GetData(pelmar::kInch);
        AddPage(&milling2x);
        AddPage(&milling5x);
        AddPage(&listening);
    }

    BOOL OnInitDialog() override
    {
        const BOOL result = CPropertySheetTVEx::OnInitDialog();
        for (const int page : {1, 2, 0}) // a page exists once it has been shown
            SetActivePage(page);
        milling2x.SendMessage(pelmar::kSetDefaultsMessage);
        const LRESULT normals = listening.QuerySiblings(pelmar::kAsksForNormals, 0);
        if (listening.islandDepths == 0 && normals == pelmar::kNormalsOff)
            g_result = 0;
        PressButton(PSBTN_CANCEL);
        return result;
    }

private:
    CDefs2xPage milling2x;
    CDefs5xPage milling5x;
    CListeningPage listening;
};

class CListeningApp : public CWinApp {
public:
    CListeningApp() : CWinApp(L"Listening") {}

    BOOL InitInstance() override
    {
        if (!InitPelmarDlgsDLL())
            return FALSE;
        InitializePelmarDlgsDLL();
        CPlayingSheet().DoModal();
        FinalizePelmarDlgsDLL();
        return FALSE;
    }
};

CListeningApp g_application;

} // namespace

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR, int nShowCmd)
{
    AfxWinMain(hInstance, hPrevInstance, GetCommandLine(), nShowCmd);
    return g_result;
}
