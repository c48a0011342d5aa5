#include "pages/feature_mills.h"

namespace {

// ---- the record ----

TEST(FaceMillRecord, WithoutUnitsInTheDefaultsFileThoseOfTheRecordAreTaken)
{
    const HostFolder host;
    host.WriteDefaults("[FaceMill2x]\r\nRapidPlane=50\r\n");
    CFaceMillDefsInfo options;
    options.Units = 1;
    options.Defaults();
    // The file's 50 are millimetre, as the record was; so are the built-in values that it overlays.
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(2.0, options.RapidPlane);
    EXPECT_DOUBLE_EQ(0.1, options.DefSideClearance);
    options.Defaults();
    EXPECT_EQ(50.0, options.RapidPlane);
}

TEST(FaceMillRecord, AMetricDefaultsFileWithoutValuesScalesTheBuiltInOnesWhereTheHostIsMetric)
{
    const HostFolder host;
    host.WriteDefaults("[FaceMill2x]\r\nUnits=1\r\n");
    ui::UiThread::Get().Call([] { CDefsFMPage().GetData(1); });
    CFaceMillDefsInfo options;
    options.Defaults();
    EXPECT_EQ(2.5, options.DefSideClearance);
    EXPECT_EQ(25.0, options.RapidPlane);
    EXPECT_EQ(0.800000011920929, options.DefMaxSideStep); // a multiple of the tool radius
    ui::UiThread::Get().Call([] { CDefsFMPage().GetData(0); });
    options.Defaults();
    EXPECT_EQ(0.1, options.DefSideClearance);
    EXPECT_EQ(1.0, options.RapidPlane);
    *GetLastFaceMillDefsInfo() = CFaceMillDefsInfo();
}

TEST(FaceMillRecord, ConvertingLeavesARoughDepthThatIsAMultipleOfTheToolRadius)
{
    CFaceMillDefsInfo options;
    options.FaceMillDefsCheckUnits(1);
    EXPECT_EQ(0.8, options.DefMaxRoughDOC);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(2.5, options.DefSideClearance);
    EXPECT_EQ(25.0, options.RapidPlane);
}

// ---- the page ----

class FaceMillPage : public EveryPage<FaceMill> {};

TEST_F(FaceMillPage, HighSpeedMachiningAndTheRetractThresholdAreNeverShown)
{
    OpenSheet sheet({page.get()});
    for (const int id : {4444, 4457, 4458})
        EXPECT_FALSE(ui::IsShown(sheet.Page(), id)) << id;
    const HWND label = GetWindow(ui::Control(sheet.Page(), 4457), GW_HWNDPREV);
    EXPECT_EQ(L"Порог для отвода:", ui::TextOf(label));
    EXPECT_FALSE(IsWindowVisible(label));
    EXPECT_EQ(L"Высокоскоростная обработка", ui::TextOf(sheet.Page(), 4444));
    ui::Click(sheet.Page(), 4456);
    for (const int id : {4444, 4457, 4458})
        EXPECT_FALSE(ui::IsShown(sheet.Page(), id)) << id;
}

TEST_F(FaceMillPage, HiddenControlsShowTheirFieldsAndAreExchangedAllTheSame)
{
    CFaceMillDefsInfo record;
    record.DefEnableHSM = 1;
    record.MaxFeedBetween = 2.25;
    record.FeedBetweenType = 0;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), 4444));
    EXPECT_EQ(L"2.2500", ui::TextOf(sheet.Page(), 4457));
    EXPECT_EQ(kLengthTypeItems, ui::Items(sheet.Page(), 4458));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 4458));
    ui::UiThread::Get().Call([&] {
        SendMessage(ui::Control(sheet.Page(), 4444), BM_SETCHECK, BST_UNCHECKED, 0);
        SetWindowText(ui::Control(sheet.Page(), 4457), L"3/2");
    });
    sheet.Ok();
    EXPECT_EQ(0, GetLastFaceMillDefsInfo()->DefEnableHSM);
    EXPECT_EQ(1.5, GetLastFaceMillDefsInfo()->MaxFeedBetween);
    EXPECT_EQ(0, GetLastFaceMillDefsInfo()->FeedBetweenType);
}

TEST_F(FaceMillPage, TheHiddenThresholdReachesToTheLargestSinglePrecisionValueOnBothSides)
{
    for (const wchar_t* const refused : {L"-3.4028234663852887e38*2", L"3.4028234663852887e38*2"}) {
        const auto shown = Fresh();
        OpenSheet sheet({shown.get()});
        const HWND edit = ui::Control(sheet.Page(), 4457);
        ui::UiThread::Get().Call([&] { SetWindowText(edit, refused); });
        sheet.Press(IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(std::wstring(L"Please enter a number between ") + kShownUnboundedBelow + L" and " + kShownUnbounded +
                      L".",
                  box.text);
        ui::Answer(box, IDOK);
        ui::UiThread::Get().Call([&] { SetWindowText(edit, L"-7"); });
        sheet.Ok();
        EXPECT_EQ(-7.0, GetLastFaceMillDefsInfo()->MaxFeedBetween);
    }
}

TEST_F(FaceMillPage, LeavingTheHiddenThresholdShowsItsValue)
{
    OpenSheet sheet({page.get()});
    const HWND edit = ui::Control(sheet.Page(), 4457);
    ui::UiThread::Get().Call([&] {
        SetWindowText(edit, L"1/4");
        SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(4457, EN_KILLFOCUS), reinterpret_cast<LPARAM>(edit));
    });
    EXPECT_EQ(L"0.2500", ui::TextOf(edit));
}

TEST_F(FaceMillPage, OnlyTheHiddenListMarksThePageModified)
{
    // The others do not: EveryListShowsItsItemsInOrderAndKeepsTheChosenOne.
    CheckLists({{4458, &CFaceMillDefsInfo::FeedBetweenType, kLengthTypeItems}}, Marking::Modified);
}

TEST_F(FaceMillPage, TheHiddenListWithoutASelectionKeepsItsFieldAndMarksThePageModified)
{
    OpenSheet sheet({page.get()});
    ui::Choose(sheet.Page(), 4458, -1);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(1, GetLastFaceMillDefsInfo()->FeedBetweenType);
}

TEST_F(FaceMillPage, StockAndSafetyPlaneMayBeNegative)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), 4448, L"-2");
    ui::Type(sheet.Page(), 4459, L"-3");
    sheet.Ok();
    EXPECT_EQ(-2.0, GetLastFaceMillDefsInfo()->DefLeaveStockZ);
    EXPECT_EQ(-3.0, GetLastFaceMillDefsInfo()->RapidPlane);
}

TEST_F(FaceMillPage, LeavingTheNumberOfFinishPassesTakesThePagesData)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), 4453, L"2.5");
    ui::FocusOn(sheet.Page(), 4440);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), 4453), ui::Focus(sheet.window));
    ui::Type(sheet.Page(), 4453, L"-3");
    ui::FocusOn(sheet.Page(), 4440);
    EXPECT_FALSE(ui::IsBoxOpen());
    sheet.Ok();
    EXPECT_EQ(-3, GetLastFaceMillDefsInfo()->FinishPassZ);
}

} // namespace
