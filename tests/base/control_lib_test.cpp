#include <ControlLib.h>
#include <gtest/gtest.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

constexpr UINT kTemplate = 1000;
constexpr int kEdit = 1001;
constexpr int kHelpButton = 9; // the sheet's own

CWinApp g_application(L"Host tests");

class CHelpedPage : public CPropertyPageTVEx {
public:
    CHelpedPage() : CPropertyPageTVEx(kTemplate) {}
    std::vector<bool> m_helpModes; ///< the application's help mode at each Help command

protected:
    void OnHelp() { m_helpModes.push_back(AfxGetApp()->m_bHelpMode != FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHelpedPage, CPropertyPageTVEx)
    ON_COMMAND(ID_HELP, &CHelpedPage::OnHelp)
END_MESSAGE_MAP()

class HelpKeys : public testing::Test {
protected:
    void SetUp() override
    {
        m_sheet.AddPage(&m_page);
        ui::UiThread::Get().Start([this] { m_sheet.DoModal(); });
        m_window = ui::WaitForWindow(L"Лист");
    }
    void TearDown() override
    {
        ui::Click(m_window, IDCANCEL);
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    }

    void PointWithQuestionMark(int id)
    {
        HELPINFO info{};
        info.cbSize = sizeof info;
        info.iContextType = HELPINFO_WINDOW;
        info.iCtrlId = id;
        info.hItemHandle = ui::Control(m_page.m_hWnd, id);
        SendMessage(ui::Control(m_page.m_hWnd, id), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    }

    CPropertySheetTVEx m_sheet{L"Лист"};
    CHelpedPage m_page;
    HWND m_window = nullptr;
};

TEST_F(HelpKeys, F1AsksAboutThePage)
{
    ui::PressF1(ui::Control(m_page.m_hWnd, kEdit));
    EXPECT_EQ(std::vector<bool>{false}, m_page.m_helpModes);
}

TEST_F(HelpKeys, ShiftF1AsksAboutTheControl)
{
    ui::PressF1(ui::Control(m_page.m_hWnd, kEdit), true);
    EXPECT_EQ(std::vector<bool>{true}, m_page.m_helpModes);
}

TEST_F(HelpKeys, QuestionMarkPointerAsksAboutTheControl)
{
    PointWithQuestionMark(kEdit);
    EXPECT_EQ(std::vector<bool>{true}, m_page.m_helpModes);
}

TEST_F(HelpKeys, HelpModeEndsWithTheQuestion)
{
    PointWithQuestionMark(kEdit);
    EXPECT_FALSE(g_application.m_bHelpMode);
}

TEST_F(HelpKeys, F1OnAButtonOfTheSheetReachesThePageInFront)
{
    ui::PressF1(ui::Control(m_window, IDOK));
    EXPECT_EQ(std::vector<bool>{false}, m_page.m_helpModes);
}

TEST_F(HelpKeys, HelpButtonOfTheSheetAsksAboutThePage)
{
    ui::Click(m_window, kHelpButton);
    EXPECT_EQ(std::vector<bool>{false}, m_page.m_helpModes);
}

TEST(PageClass, NamesTheFrameworksPageAsItsBase)
{
    const CPropertyPageTVEx page(kTemplate);
    EXPECT_STREQ("CPropertyPageTVEx", page.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(RUNTIME_CLASS(CPropertyPage), page.GetRuntimeClass()->m_pfnGetBaseClass());
    EXPECT_TRUE(page.m_psp.dwFlags & PSP_HASHELP);
}

} // namespace
