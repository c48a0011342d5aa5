#include "pages/page_checks.h"

namespace {

// ---- the record ----

class Record2x : public testing::Test {
protected:
    C2AxisOptionsInfo options;
    HostFolder host;
};

constexpr char kFreshFile[] = "[Options2x]\r\n"
                              "Units=0\r\n"
                              "MaxFeedBetween=4.000000\r\n"
                              "FeedBetweenType=1\r\n"
                              "CornerAngle=135.000000\r\n"
                              "CornerAngleType=0\r\n"
                              "CornerClearance=0.000000\r\n"
                              "CornerClearanceType=0\r\n"
                              "SideClearance=0.100000\r\n"
                              "SideClearanceType=1\r\n"
                              "SideRoughStep=0.800000\r\n"
                              "SideRoughStepType=1\r\n"
                              "SideFinishStep=0.080000\r\n"
                              "SideFinishStepType=1\r\n"
                              "DepthRoughStep=0.800000\r\n"
                              "DepthRoughStepType=1\r\n"
                              "DepthFinishStep=0.080000\r\n"
                              "DepthFinishStepType=1\r\n"
                              "RapidPlane=1.000000\r\n"
                              "RapidPlunge=0.100000\r\n"
                              "PathIslandDepths=0\r\n"
                              "GougeCheck=1\r\n"
                              "FeedBetweenRate=1\r\n"
                              "ThreadMillFeedBetween=1\r\n"
                              "DepthFirst=1\r\n"
                              "FinishCutOn=1\r\n"
                              "PocketNestingType=0\r\n"
                              "PocketNestingDepth=1\r\n"
                              "SortType=1\r\n"
                              "SelectMaterial=0\r\n"
                              "DispPlungeChanges=0\r\n"
                              "IslandPlunges=0\r\n"
                              "LeadAngleTol=5\r\n"
                              "AlignPlunges=0\r\n";

TEST_F(Record2x, AFreshOneSavesItsBuiltInValuesInOrder)
{
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(Record2x, CompensationAtTheTopIsNeitherSavedNorRestored)
{
    options.CutterCompTop = 1;
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
    options.vOptions_Restore();
    EXPECT_EQ(1, options.CutterCompTop);
    const C2AxisOptionsInfo copy = options;
    EXPECT_EQ(1, copy.CutterCompTop);
}

TEST_F(Record2x, RestoresEveryKey)
{
    const std::string file = EveryKeyChanged(kFreshFile);
    host.WriteSettings(file);
    options.vOptions_Restore();
    EXPECT_EQ(2, options.Units);
    EXPECT_EQ(3.5, options.MaxFeedBetween);
    EXPECT_EQ(18, options.DepthFinishStepType);
    EXPECT_EQ(20.5, options.RapidPlunge);
    EXPECT_EQ(34, options.AlignPlunges);
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(Record2x, AnAbsentKeyStaysAsItWas)
{
    host.WriteSettings("[Options2x]\r\nSideRoughStep=0.5\r\n");
    options.SortType = 2;
    options.MaxFeedBetween = 7.25;
    options.vOptions_Restore();
    EXPECT_EQ(0.5, options.SideRoughStep);
    EXPECT_EQ(2, options.SortType);
    EXPECT_EQ(7.25, options.MaxFeedBetween);
    EXPECT_EQ(0.07999999821186066, options.SideFinishStep);
}

TEST_F(Record2x, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[Options2x]\r\nUnits=1\r\nRapidPlane=2.5\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(2.5, options.RapidPlane);
}

TEST_F(Record2x, ConvertingScalesLengthsWhoseTypeIsConstant)
{
    options.v2xOptionsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(25.0, options.RapidPlane);
    EXPECT_EQ(2.5, options.RapidPlunge);
    EXPECT_EQ(0.0, options.CornerClearance);
    EXPECT_EQ(135.0, options.CornerAngle);
}

struct TypedLength {
    double C2AxisOptionsInfo::*length;
    int C2AxisOptionsInfo::*type;
};

constexpr TypedLength kTypedLengths[] = {
    {&C2AxisOptionsInfo::MaxFeedBetween, &C2AxisOptionsInfo::FeedBetweenType},
    {&C2AxisOptionsInfo::CornerClearance, &C2AxisOptionsInfo::CornerClearanceType},
    {&C2AxisOptionsInfo::SideClearance, &C2AxisOptionsInfo::SideClearanceType},
    {&C2AxisOptionsInfo::SideRoughStep, &C2AxisOptionsInfo::SideRoughStepType},
    {&C2AxisOptionsInfo::SideFinishStep, &C2AxisOptionsInfo::SideFinishStepType},
    {&C2AxisOptionsInfo::DepthRoughStep, &C2AxisOptionsInfo::DepthRoughStepType},
    {&C2AxisOptionsInfo::DepthFinishStep, &C2AxisOptionsInfo::DepthFinishStepType},
};

TEST_F(Record2x, ALengthIsScaledThereAndBackExactlyWhileItsTypeIsConstant)
{
    for (const TypedLength& row : kTypedLengths) {
        options.*row.type = 0;
        options.*row.length = 0.8;
    }
    options.v2xOptionsCheckUnits(1);
    for (const TypedLength& row : kTypedLengths)
        EXPECT_EQ(20.0, options.*row.length);
    options.v2xOptionsCheckUnits(0);
    for (const TypedLength& row : kTypedLengths)
        EXPECT_EQ(0.8, options.*row.length);
}

TEST_F(Record2x, AMultipleOfTheToolRadiusIsNotScaled)
{
    for (const TypedLength& row : kTypedLengths) {
        options.*row.type = 1;
        options.*row.length = 0.8;
    }
    options.CornerAngleType = 0;
    options.v2xOptionsCheckUnits(1);
    for (const TypedLength& row : kTypedLengths)
        EXPECT_EQ(0.8, options.*row.length);
    EXPECT_EQ(135.0, options.CornerAngle);
}

TEST_F(Record2x, ConvertingToItsOwnUnitsChangesNothingAndFromAnOddCodeCountsAsMillimetre)
{
    options.v2xOptionsCheckUnits(0);
    EXPECT_EQ(1.0, options.RapidPlane);
    options.Units = 7;
    options.v2xOptionsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(0.04, options.RapidPlane);
}

TEST_F(Record2x, DefaultsReportPlungeChangesThoughAFreshRecordDoesNot)
{
    EXPECT_EQ(0, options.DispPlungeChanges);
    options.SideRoughStepType = 0;
    options.CutterCompTop = 1;
    options.vOptions_Defaults();
    EXPECT_EQ(1, options.DispPlungeChanges);
    EXPECT_EQ(1, options.SideRoughStepType);
    EXPECT_EQ(0, options.CutterCompTop);
    EXPECT_EQ(0.800000011920929, options.SideRoughStep);
}

TEST_F(Record2x, DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesAgain)
{
    host.WriteDefaults("[Options2x]\r\nUnits=1\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(1.0, options.RapidPlane);
    EXPECT_DOUBLE_EQ(0.1, options.RapidPlunge);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
}

TEST_F(Record2x, DefaultsComeFromTheDefaultsFileInItsUnits)
{
    host.WriteDefaults("[Options2x]\r\nUnits=1\r\nRapidPlane=50\r\nSideRoughStep=5\r\nSideRoughStepType=0\r\n"
                       "DispPlungeChanges=0\r\n");
    host.WriteSettings("[Options2x]\r\nRapidPlane=99\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(2.0, options.RapidPlane);
    EXPECT_EQ(0.2, options.SideRoughStep);
    EXPECT_EQ(0, options.DispPlungeChanges);
}

TEST_F(Record2x, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &C2AxisOptionsInfo::vOptions_Restore, &C2AxisOptionsInfo::vOptions_Save);
}

TEST_F(Record2x, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &C2AxisOptionsInfo::vOptions_Restore, &C2AxisOptionsInfo::vOptions_Save);
}

TEST_F(Record2x, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLast2xOptions());
    EXPECT_EQ(GetLast2xOptions(), GetLast2xOptions());
}

// ---- the page ----

constexpr int kSideRoughStep = 3905;
constexpr int kSideClearance = 3912;
constexpr int kIslandDepths = 1057;
constexpr int kNestingType = 1063;
constexpr int kNestingDepth = 3911;
constexpr int kAlignPlunges = 4594;
constexpr int kDefaultsButton = 4456;

class Page2x : public OptionPageTest<CDefs2xPage, C2AxisOptionsInfo, GetLast2xOptions> {
protected:
    int OtherControl(int) override { return 1058; }
    void Prepare(CDefs2xPage& made) override { made.m_operationCode = 6; }
};

TEST_F(Page2x, AnExpressionBecomesAValueInTheSettingsFile)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideRoughStep, L"1/8+0.02");
    ui::TypeAt(ui::Control(sheet.Page(), kSideRoughStep), L"=");
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kSideRoughStep));
    EXPECT_EQ(0.8, GetLast2xOptions()->SideRoughStep);
    sheet.Ok();
    EXPECT_EQ(0.145, GetLast2xOptions()->SideRoughStep);
    EXPECT_EQ("", host.ReadSettings());
    GetLast2xOptions()->vOptions_Save();
    EXPECT_EQ("0.145000", Value(host.settings, "Options2x", "SideRoughStep"));
}

TEST_F(Page2x, CancelLeavesTheLiveRecordAlone)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideRoughStep, L"3");
    sheet.Cancel();
    EXPECT_EQ(0.8, GetLast2xOptions()->SideRoughStep);
}

const std::vector<RealControl<C2AxisOptionsInfo>> kReals = {
    {3902, &C2AxisOptionsInfo::MaxFeedBetween, L"4.0000"},  {3903, &C2AxisOptionsInfo::CornerAngle, L"135.0000"},
    {3904, &C2AxisOptionsInfo::CornerClearance, L"0.0000"}, {3912, &C2AxisOptionsInfo::SideClearance, L"0.1000"},
    {3905, &C2AxisOptionsInfo::SideRoughStep, L"0.8000"},   {3906, &C2AxisOptionsInfo::SideFinishStep, L"0.0800"},
    {3907, &C2AxisOptionsInfo::DepthRoughStep, L"0.8000"},  {3908, &C2AxisOptionsInfo::DepthFinishStep, L"0.0800"},
    {3909, &C2AxisOptionsInfo::RapidPlane, L"1.0000"},      {3910, &C2AxisOptionsInfo::RapidPlunge, L"0.1000"},
};

const std::vector<ListControl<C2AxisOptionsInfo>> kLists = {
    {3964, &C2AxisOptionsInfo::FeedBetweenType, kLengthTypeItems},
    {1052, &C2AxisOptionsInfo::CornerAngleType, kCornerTypeItems},
    {1050, &C2AxisOptionsInfo::CornerClearanceType, kLengthTypeItems},
    {3965, &C2AxisOptionsInfo::SideClearanceType, kLengthTypeItems},
    {1053, &C2AxisOptionsInfo::SideRoughStepType, kLengthTypeItems},
    {1054, &C2AxisOptionsInfo::SideFinishStepType, kLengthTypeItems},
    {1055, &C2AxisOptionsInfo::DepthRoughStepType, kLengthTypeItems},
    {1056, &C2AxisOptionsInfo::DepthFinishStepType, kLengthTypeItems},
    {1058, &C2AxisOptionsInfo::GougeCheck, {L"Одиночный", L"Полный", L"Траектория"}},
    {1060, &C2AxisOptionsInfo::FeedBetweenRate, kFeedItems},
    {4617, &C2AxisOptionsInfo::ThreadMillFeedBetween, kFeedItems},
    {1062, &C2AxisOptionsInfo::FinishCutOn, {L"Все глубины", L"Конечн. глубина"}},
    {1063, &C2AxisOptionsInfo::PocketNestingType, {L"Все", L"По выбору"}},
    {1064, &C2AxisOptionsInfo::SortType, {L"Нет", L"Авто", L"Вложенные"}},
};

TEST_F(Page2x, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    CheckReals(kReals);
}

TEST_F(Page2x, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(Page2x, AListWithoutASelectionOrWithAValueThatItDoesNotHoldKeepsTheField)
{
    CheckListsWithoutSelection(kLists);
}

TEST_F(Page2x, EveryCheckBoxKeepsItsStateAndMarksThePageModified)
{
    CheckBoxes({{4589, &C2AxisOptionsInfo::CutterCompTop},
                {4590, &C2AxisOptionsInfo::DepthFirst},
                {4591, &C2AxisOptionsInfo::DispPlungeChanges},
                {4593, &C2AxisOptionsInfo::IslandPlunges},
                {4594, &C2AxisOptionsInfo::AlignPlunges}});
}

TEST_F(Page2x, WholeNumbersAreExchangedAndOthersRefused)
{
    GetLast2xOptions()->PocketNestingType = 1;
    ui::UiThread::Get().Call([this] { page->GetData(0); });
    OpenSheet sheet({page.get()});
    EXPECT_EQ(L"1", ui::TextOf(sheet.Page(), kNestingDepth));
    EXPECT_EQ(L"5", ui::TextOf(sheet.Page(), 3913));
    ui::Type(sheet.Page(), kNestingDepth, L"12");
    ui::Type(sheet.Page(), 3913, L"1/2");
    sheet.Press(IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), 3913), ui::Focus(sheet.window));
    ui::Type(sheet.Page(), 3913, L"-3");
    sheet.Ok();
    EXPECT_EQ(12, GetLast2xOptions()->PocketNestingDepth);
    EXPECT_EQ(-3, GetLast2xOptions()->LeadAngleTol);
}

TEST_F(Page2x, ValuesOutOfRangeAreRefusedAndBoundsAccepted)
{
    CheckBounds({{3903, L"29", L"30", L"30.0000", L"150.0000"},
                 {3903, L"29.9", L"30", L"30.0000", L"150.0000"},
                 {3903, L"151", L"150", L"30.0000", L"150.0000"},
                 {3903, L"150.1", L"150", L"30.0000", L"150.0000"},
                 {3910, L"-0.0001", L"0", L"0.0000", kShownUnbounded}});
}

TEST_F(Page2x, AnyRealReachesToTheLargestSinglePrecisionValue)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), 3909, L"-3.4028234663852886e38");
    ui::FocusOn(sheet.Page(), 1058);
    EXPECT_FALSE(ui::IsBoxOpen());
    ui::Type(sheet.Page(), 3909, L"3.4028234663852887e38*2");
    ui::FocusOn(sheet.Page(), 1058);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), 3909), ui::Focus(sheet.window));
    ui::Type(sheet.Page(), 3909, L"-5");
    sheet.Ok();
    EXPECT_EQ(-5.0, GetLast2xOptions()->RapidPlane);
}

TEST_F(Page2x, ATextThatDoesNotEvaluateIsRefusedOnLeavingTheField)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideRoughStep, L"radius");
    ui::FocusOn(sheet.Page(), 1058);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(ui::Control(sheet.Page(), kSideRoughStep), ui::Focus(sheet.window));
    EXPECT_EQ(L"radius", ui::TextOf(sheet.Page(), kSideRoughStep));
    ui::Type(sheet.Page(), kSideRoughStep, L"1");
    sheet.Cancel();
}

TEST_F(Page2x, LeavingTheSideClearanceTellsTheOtherPagesItsNewValue)
{
    SiblingSpy spy;
    spy.realCodes = {32791};
    OpenSheet sheet({page.get(), &spy});
    ui::Type(sheet.Page(), kSideClearance, L"0.25");
    ui::FocusOn(sheet.Page(), kSideRoughStep);
    ASSERT_EQ(1u, spy.notices.size());
    EXPECT_EQ(32791u, spy.notices[0].code);
    EXPECT_EQ(std::vector<double>{0.25}, spy.reals);
    ui::FocusOn(sheet.Page(), 3906);
    EXPECT_EQ(1u, spy.notices.size());

    ui::Type(sheet.Page(), kSideClearance, L"(");
    ui::FocusOn(sheet.Page(), kSideRoughStep);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_EQ(1u, spy.notices.size());
    ui::Type(sheet.Page(), kSideClearance, L"1");
}

TEST_F(Page2x, ChoosingIslandDepthsTellsTheOtherPagesTheIndex)
{
    SiblingSpy spy;
    page->m_contextBits = 1;
    OpenSheet sheet({page.get(), &spy});
    ui::Choose(sheet.Page(), kIslandDepths, 2);
    ui::Choose(sheet.Page(), kIslandDepths, -1);
    EXPECT_EQ((std::vector<SiblingSpy::Notice>{{32772, 2}}), spy.notices);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(2, GetLast2xOptions()->PathIslandDepths);
}

TEST_F(Page2x, NoOtherControlTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const auto& row : kLists)
        ui::Choose(sheet.Page(), row.id, 0);
    for (const auto& row : kReals)
        if (row.id != kSideClearance)
            ui::Type(sheet.Page(), row.id, L"40");
    ui::FocusOn(sheet.Page(), 1058);
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(Page2x, IslandDepthsVaryOnlyWhereTheContextAllowsIt)
{
    struct Context {
        int bits, flag, operation;
        bool varies;
    };
    for (const Context& context : {Context{0, 0, 0, false}, Context{1, 0, 0, true}, Context{3, 0, 6, true},
                                   Context{2, 0, 0, false}, Context{1, 1, 0, false}, Context{1, 0, 35, false}}) {
        CDefs2xPage fresh;
        *GetLast2xOptions() = C2AxisOptionsInfo();
        GetLast2xOptions()->PathIslandDepths = 1;
        ui::UiThread::Get().Call([&] { fresh.GetData(0); });
        fresh.m_contextBits = context.bits;
        fresh.m_contextFlag = context.flag;
        fresh.m_operationCode = context.operation;
        OpenSheet sheet({&fresh});
        const std::vector<std::wstring> all = {L"Константа", L"Разная", L"Черновая 3D"};
        const std::vector<std::wstring> constant = {L"Константа"};
        EXPECT_EQ(context.varies ? all : constant, ui::Items(sheet.Page(), kIslandDepths));
        EXPECT_EQ(context.varies, ui::IsEnabled(sheet.Page(), kIslandDepths));
        EXPECT_EQ(context.varies ? 1 : 0, ui::Selection(sheet.Page(), kIslandDepths));
        sheet.Ok();
        EXPECT_EQ(context.varies ? 1 : 0, GetLast2xOptions()->PathIslandDepths);
    }
}

TEST_F(Page2x, TheOperationDecidesWhichFeedsAndPlungesCanBeSet)
{
    struct Operation {
        int code;
        bool feed, threadFeed, align;
    };
    for (const Operation& operation : {Operation{0, true, true, false}, Operation{38, false, true, false},
                                       Operation{6, true, false, true}, Operation{1, true, false, false}}) {
        CDefs2xPage fresh;
        *GetLast2xOptions() = C2AxisOptionsInfo();
        GetLast2xOptions()->AlignPlunges = 1;
        ui::UiThread::Get().Call([&] { fresh.GetData(0); });
        fresh.m_operationCode = operation.code;
        OpenSheet sheet({&fresh});
        for (const int id : {1060, 4619})
            EXPECT_EQ(operation.feed, ui::IsEnabled(sheet.Page(), id)) << operation.code;
        for (const int id : {4617, 4618})
            EXPECT_EQ(operation.threadFeed, ui::IsEnabled(sheet.Page(), id)) << operation.code;
        EXPECT_EQ(operation.align, ui::IsEnabled(sheet.Page(), kAlignPlunges)) << operation.code;
        EXPECT_EQ(operation.align, ui::IsChecked(sheet.Page(), kAlignPlunges)) << operation.code;
        sheet.Ok();
        EXPECT_EQ(operation.align ? 1 : 0, GetLast2xOptions()->AlignPlunges) << operation.code;
    }
}

TEST_F(Page2x, TheNestingDepthCanBeSetOnlyForChosenNesting)
{
    OpenSheet sheet({page.get()});
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kNestingDepth));
    ui::Choose(sheet.Page(), kNestingType, 1);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kNestingDepth));
    ui::Choose(sheet.Page(), kNestingType, 0);
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kNestingDepth));
}

TEST_F(Page2x, FilledWithUnitsAloneItHidesTheCompensationLists)
{
    OpenSheet sheet({page.get()});
    for (const int id : {1065, 1066, 4600, 4601})
        EXPECT_FALSE(ui::IsShown(sheet.Page(), id)) << id;
}

TEST_F(Page2x, FilledWithTheCompensationIndexesItShowsThemAndGivesThemBack)
{
    CDefs2xPage fresh;
    ui::UiThread::Get().Call([&] { fresh.GetData(1, 1, 0); });
    OpenSheet sheet({&fresh});
    for (const int id : {1065, 1066, 4600, 4601})
        EXPECT_TRUE(ui::IsShown(sheet.Page(), id)) << id;
    EXPECT_EQ((std::vector<std::wstring>{L"Одному элементу", L"Всему контуру"}), ui::Items(sheet.Page(), 1065));
    EXPECT_EQ((std::vector<std::wstring>{L"Программный контур", L"С коррекцией"}), ui::Items(sheet.Page(), 1066));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1065));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 1066));
    ui::UiThread::Get().Call([&] { fresh.GetData(1, 0, 1); });
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 1065));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1066));
    EXPECT_FALSE(sheet.IsModified());
    ui::Choose(sheet.Page(), 1065, 1);
    EXPECT_TRUE(sheet.IsModified());
    ui::Choose(sheet.Page(), 1066, 0);
    int lookAhead = 7;
    int showToolpath = 7;
    fresh.SetData(lookAhead, showToolpath);
    EXPECT_EQ(1, lookAhead);
    EXPECT_EQ(0, showToolpath);
}

TEST_F(Page2x, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    ui::UiThread::Get().Call([this] { page->GetData(1); });
    EXPECT_EQ(1, GetLast2xOptions()->Units);
    EXPECT_EQ(25.0, GetLast2xOptions()->RapidPlane);
    GetLast2xOptions()->vOptions_Defaults();
    EXPECT_EQ(25.0, GetLast2xOptions()->RapidPlane);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLast2xOptions()->Units);
    EXPECT_EQ(1.0, GetLast2xOptions()->RapidPlane);
}

TEST_F(Page2x, ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain)
{
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::Type(sheet.Page(), kSideRoughStep, L"0.5");
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(3u, ui::Items(sheet.Page(), 1064).size());
    EXPECT_EQ(1u, ui::Items(sheet.Page(), kIslandDepths).size());
    EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), kSideRoughStep));
}

TEST_F(Page2x, DefaultsByButtonShowTheBuiltInValuesAndTellTheIslandDepths)
{
    GetLast2xOptions()->SortType = 2;
    GetLast2xOptions()->SideRoughStep = 0.5;
    GetLast2xOptions()->DepthFirst = 0;
    ui::UiThread::Get().Call([this] { page->GetData(0); });
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1064));
    EXPECT_EQ(L"0.8000", ui::TextOf(sheet.Page(), kSideRoughStep));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), 4590));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), 4591));
    EXPECT_EQ((std::vector<SiblingSpy::Notice>{{32772, 0}}), spy.notices);
    EXPECT_EQ(2, GetLast2xOptions()->SortType);
    sheet.Ok();
    EXPECT_EQ(1, GetLast2xOptions()->SortType);
}

TEST_F(Page2x, TheHostsDefaultsMessageDoesTheSameAndIsAnsweredWithZero)
{
    host.WriteDefaults("[Options2x]\r\nSideRoughStep=0.25\r\n");
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideRoughStep));
    EXPECT_EQ((std::vector<SiblingSpy::Notice>{{32772, 0}}), spy.notices);
}

TEST_F(Page2x, ApplyStoresAndLeavesThePageUnmodified)
{
    OpenSheet sheet({page.get()});
    ui::Choose(sheet.Page(), 1064, 2);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(2, GetLast2xOptions()->SortType);
    EXPECT_TRUE(sheet.IsOpen());
}

TEST_F(Page2x, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    page = std::make_unique<CDefs2xPage>();
    ui::UiThread::Get().Call([this] { page->GetData(0, 0, 0); });
    CheckTopics({
        {0, "pelmar-_options_hidd_2axis_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_2axisopts_maxfeed.htm"},
        {1050, step},
        {1053, step},
        {1054, step},
        {1055, step},
        {1056, step},
        {3964, step},
        {3965, step},
        {1052, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
        {1057, "pelmar-_optionspopups_hidc_2axisopts_path_depths.htm"},
        {1058, "pelmar-_optionspopups_hidc_2axisopts_gouge_check.htm"},
        {1060, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {1062, "pelmar-_optionspopups_hidc_2axisopts_finish_cut_on.htm"},
        {1063, "pelmar-_optionspopups_hidc_2axisopts_nesting_depth_type.htm"},
        {1064, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
        {1065, "pelmar-_optionspopups_cutter_compensation_look_ahead_.htm"},
        {1066, "pelmar-_optionspopups_show_backplot_toolpath_using.htm"},
        {4456, "pelmar-_ncdlgs_defaults_button.htm"},
        {3903, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
        {3904, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
        {3905, "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"},
        {3906, "pelmar-_optionspopups_hidc_2axisopts_side_finish_step.htm"},
        {3907, "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm"},
        {3908, "pelmar-_optionspopups_hidc_2axisopts_depth_finish_step.htm"},
        {3909, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
        {3910, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
        {3911, "pelmar-_optionspopups_hidc_2axisopts_nesting_depth.htm"},
        {3912, "pelmar-_optionspopups_side_clearance_options_tab.htm"},
        {3913, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
        {4589, "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm"},
        {4590, "pelmar-_optionspopups_hidc_zropts_depth_first.htm"},
        {4591, "pelmar-_optionspopups_hidc_2axisopts_dsp_changes.htm"},
        {4593, "pelmar-_optionspopups_hidc_2axisopts_island_plunges.htm"},
        {4594, "pelmar-_optionspopups_align_to_deepest_plunge.htm"},
        {4617, "pelmar-_cutctrlpopups_threadmill_feed_between.htm"},
        {4619, "pelmar-_options_hidd_2axis_cut_opt.htm"},
    });
}

TEST_F(Page2x, TheTopicOfTheGaugeLengthIsKeptForPagesThatHaveTheButton)
{
    CheckTopicOfMissingControl(4592, "pelmar-_optionspopups_toollib_gauge_length.htm");
}

TEST_F(Page2x, ControlsThatAreMissingAreSkipped)
{
    OpenSheet sheet({page.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {3905, 1064, 4590, 3911, 1057})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Type(sheet.Page(), 3906, L"0.5");
    ui::Click(sheet.Page(), kDefaultsButton);
    ui::Choose(sheet.Page(), kNestingType, 1);
    sheet.Ok();
    EXPECT_EQ(1, GetLast2xOptions()->PocketNestingType);
    EXPECT_EQ(1, GetLast2xOptions()->SortType);
}

TEST_F(Page2x, ItsLayoutClipsAndOverlapsNothing)
{
    page = std::make_unique<CDefs2xPage>();
    ui::UiThread::Get().Call([this] { page->GetData(0, 0, 0); });
    page->m_contextBits = 1;
    CheckLayout();
}

TEST_F(Page2x, CanBeCreatedDynamically)
{
    EXPECT_EQ(3926, int{CDefs2xPage::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), CDefs2xPage::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CDefs2xPage::GetThisClass()->CreateObject(); });
}

} // namespace
