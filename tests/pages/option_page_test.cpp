#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "pages/dialogs.h"
#include "pages/page_driver.h"

namespace {

class OptionPage : public testing::Test {
protected:
    HostFolder host;
};

TEST_F(OptionPage, NamesTheFrameworksPageAsItsBase)
{
    const CRuntimeClass* const thisClass = CExpRegenPropertyPage::GetThisClass();
    EXPECT_STREQ("CExpRegenPropertyPage", thisClass->m_lpszClassName);
    EXPECT_EQ(CPropertyPage::GetThisClass(), thisClass->m_pfnGetBaseClass());
}

TEST_F(OptionPage, CanBeCreatedDynamically)
{
    ui::UiThread::Get().Call([] {
        CObject* const page = CExpRegenPropertyPage::GetThisClass()->CreateObject();
        ASSERT_NE(nullptr, page);
        EXPECT_TRUE(page->IsKindOf(CPropertyPage::GetThisClass()));
        delete page;
    });
}

TEST_F(OptionPage, ShownReadOnlyItDisablesEveryControlAtEveryActivation)
{
    CDefs2xPage page;
    SiblingSpy other;
    page.m_readOnly = 1;
    OpenSheet sheet({&page, &other});
    for (const HWND control : ui::Children(sheet.Page()))
        EXPECT_FALSE(IsWindowEnabled(control)) << GetDlgCtrlID(control);

    EnableWindow(ui::Control(sheet.Page(), 3905), TRUE);
    EnableWindow(ui::Control(sheet.Page(), 4619), TRUE);
    sheet.Switch(1);
    sheet.Switch(0);
    for (const HWND control : ui::Children(sheet.Page()))
        EXPECT_FALSE(IsWindowEnabled(control)) << GetDlgCtrlID(control);
}

TEST_F(OptionPage, ReadOnlyBetweenActivationsTakesEffectAtTheNextAndEnablesNothingWhenItEnds)
{
    CDefs2xPage page;
    SiblingSpy other;
    OpenSheet sheet({&page, &other});
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), 3905));
    page.m_readOnly = 1;
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), 3905));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), 3905));
    page.m_readOnly = 0;
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), 3905));
}

TEST_F(OptionPage, IsCreatedModelesslyFromItsTemplate)
{
    ui::UiThread::Get().Call([] {
        CWnd parent;
        ASSERT_TRUE(parent.CreateEx(0, L"Static", L"", WS_POPUP, CRect(0, 0, 600, 500), nullptr, 0));
        CExpRegenPropertyPage page(CDefs2xPage::IDD);
        EXPECT_TRUE(page.Create(CDefs2xPage::IDD, &parent));
        EXPECT_NE(nullptr, page.GetDlgItem(3905));
        CExpRegenPropertyPage none(1);
        EXPECT_FALSE(none.Create(1, &parent));
    });
}

TEST_F(OptionPage, HelpKeysAskAboutThePageOrAboutTheControlUnderThePointer)
{
    CDefs2xPage page;
    OpenSheet sheet({&page});
    ui::PointAt(ui::Control(sheet.Page(), 3905));
    ui::FocusOn(sheet.Page(), 3905);
    ui::Press(ui::Control(sheet.Page(), 3905), VK_F1);
    EXPECT_EQ("pelmar-_options_hidd_2axis_cut_opt.htm", TopicShownFor(sheet.Page(), 0));
    EXPECT_EQ(GetSettingsLocations().helpFile.view(), HelpFileShown());
    EXPECT_EQ("pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm", TopicShownFor(sheet.Page(), 3905));
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
}

TEST_F(OptionPage, HelpOnAControlWithoutATopicShowsThePagesAndEndsHelpMode)
{
    CDefs2xPage page;
    OpenSheet sheet({&page});
    EXPECT_EQ("pelmar-_options_hidd_2axis_cut_opt.htm", TopicShownFor(sheet.Page(), 4619));
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
    ui::PointAt(sheet.window);
}

} // namespace
