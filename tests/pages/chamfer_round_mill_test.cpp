#include "pages/feature_mills.h"

namespace {

// ---- the records ----

TEST(ChamferMillRecord, ConvertingScalesItsBuiltInDepthsToo)
{
    CChamferMillDefsInfo options;
    options.ChamferMillDefsCheckUnits(1);
    EXPECT_EQ(0.25, options.DefChamferLen);
    EXPECT_EQ(0.625, options.DefMaxRoughDOC);
    EXPECT_EQ(0.0625, options.DefFinishDOC);
    EXPECT_EQ(25.0, options.RapidPlane);
}

TEST(RoundMillRecord, ConvertingLeavesMultiplesOfTheToolRadius)
{
    CRoundMillDefsInfo options;
    options.RoundMillDefsCheckUnits(1);
    EXPECT_EQ(0.8, options.DefMaxRoughDOC);
    EXPECT_EQ(0.08, options.DefFinishDOC);
    EXPECT_EQ(0.1, options.SideClearance);
    EXPECT_EQ(25.0, options.RapidPlane);
}

TEST(RoundMillRecord, TheSideClearanceThatItSavesIsNotTheOneThatItRestores)
{
    const HostFolder host;
    host.WriteSettings("[Options2x]\r\nSideClearance=0.200000\r\nSideClearanceType=0\r\n");
    CRoundMillDefsInfo options;
    options.SideClearance = 0.3;
    options.SideClearanceType = 1;
    options.vRoundMillDefs_Save();
    EXPECT_EQ("0.300000", Value(host.settings, "RoundMill", "SideClearance"));
    EXPECT_EQ("1", Value(host.settings, "RoundMill", "SideClearanceType"));
    EXPECT_EQ("0.200000", Value(host.settings, "Options2x", "SideClearance"));
    options.vRoundMillDefs_Restore();
    EXPECT_EQ(0.20000000298023224, options.SideClearance);
    EXPECT_EQ(0, options.SideClearanceType);
}

TEST(RoundMillRecord, DefaultsTakeTheSideClearanceFromTheTwoAxisSectionToo)
{
    const HostFolder host;
    host.WriteDefaults("[RoundMill]\r\nUnits=1\r\nSideClearance=9\r\nSideClearanceType=1\r\n"
                       "[Options2x]\r\nUnits=0\r\nSideClearance=5\r\nSideClearanceType=0\r\n");
    CRoundMillDefsInfo options;
    options.Defaults();
    // Taken for millimetre as all of the record is, whatever units the other section is in.
    EXPECT_EQ(0.2, options.SideClearance);
    EXPECT_EQ(0, options.SideClearanceType);
}

TEST(RoundMillRecord, ASideClearanceInTheTwoAxisSectionThatIsNoNumberKeepsTheField)
{
    const HostFolder host;
    for (const std::string& hostile : {std::string(), std::string("  "), std::string(10000, '1') + "x",
                                       std::string("nan"), std::string("1e400"), std::string("-inf")}) {
        host.WriteSettings("[Options2x]\r\nSideClearance=" + hostile + "\r\nSideClearanceType=-1\r\n");
        CRoundMillDefsInfo options;
        options.SideClearance = 0.25;
        options.vRoundMillDefs_Restore();
        EXPECT_EQ(0.25, options.SideClearance) << hostile.substr(0, 20);
        EXPECT_EQ(-1, options.SideClearanceType);
    }
}

// ---- the pages ----

template <class Mill> class FinishPassesPage : public EveryPage<Mill> {
};
using MillsWithFinishPasses = testing::Types<ChamferMill, RoundMill>;
TYPED_TEST_SUITE(FinishPassesPage, MillsWithFinishPasses);

TYPED_TEST(FinishPassesPage, TheNumberOfFinishPassesIsAWholeNumberOfAnySign)
{
    OpenSheet sheet({this->page.get()});
    ui::Type(sheet.Page(), 4453, L"2.5");
    ui::FocusOn(sheet.Page(), 4440);
    EXPECT_FALSE(ui::IsBoxOpen()); // no handler takes the data on leaving it
    sheet.Press(IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    ui::Answer(box, IDOK);
    ui::Type(sheet.Page(), 4453, L"-3");
    sheet.Ok();
    EXPECT_EQ(-3, TypeParam::Live()->FinishPassZ);
}

class RoundMillPage : public EveryPage<RoundMill> {
protected:
    /// The notification that the list would send if it had the id that it has on the 2-axis page.
    static void NotifyAsOn2Axis(OpenSheet& sheet)
    {
        PostMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(3965, CBN_SELCHANGE),
                    reinterpret_cast<LPARAM>(ui::Control(sheet.Page(), 4604)));
        ui::Settle(sheet.window);
    }
};

TEST_F(RoundMillPage, TheTypeOfTheSideClearanceIsShown)
{
    OpenSheet sheet({page.get()});
    EXPECT_EQ(kLengthTypeItems, ui::Items(sheet.Page(), 4604));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 4604));
}

TEST_F(RoundMillPage, ChoosingTheTypeOfTheSideClearanceReachesNoHandler)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    EXPECT_EQ(nullptr, GetDlgItem(sheet.Page(), 3965));
    ui::Choose(sheet.Page(), 4604, 0);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_TRUE(spy.notices.empty());
    sheet.Ok();
    EXPECT_EQ(1, GetLastRoundMillDefsInfo()->SideClearanceType);
}

TEST_F(RoundMillPage, TheTypeOfTheSideClearanceChangesByDefaultsAlone)
{
    host.WriteDefaults("[Options2x]\r\nSideClearanceType=0\r\n");
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), 4456);
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 4604));
    sheet.Ok();
    EXPECT_EQ(0, GetLastRoundMillDefsInfo()->SideClearanceType);
}

TEST_F(RoundMillPage, TheHandlerOfTheTypeIsBoundToTheListOfTheTwoAxisPage)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    ui::Choose(sheet.Page(), 4604, 0);
    NotifyAsOn2Axis(sheet);
    EXPECT_EQ((std::vector<SiblingSpy::Notice>{{0x8018, 0}}), spy.notices);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(0, GetLastRoundMillDefsInfo()->SideClearanceType);
}

TEST_F(RoundMillPage, ThatHandlerIsSilentAboutTheSameTypeAndAboutNoSelection)
{
    for (const int selection : {1, -1}) {
        SiblingSpy spy;
        const auto shown = Fresh();
        OpenSheet sheet({shown.get(), &spy});
        ui::Choose(sheet.Page(), 4604, selection);
        NotifyAsOn2Axis(sheet);
        EXPECT_TRUE(spy.notices.empty());
        EXPECT_TRUE(sheet.IsModified());
        sheet.Ok();
        EXPECT_EQ(1, GetLastRoundMillDefsInfo()->SideClearanceType);
    }
}

} // namespace
