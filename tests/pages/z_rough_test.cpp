#include "pages/page_checks.h"
#include "pages/record_checks.h"

namespace {

using Record = CZRoughOptionsInfo;

// ---- the record ----

class RecordZRough : public testing::Test {
protected:
    HostFolder host;
};

constexpr char kFreshFile[] = "[OptionsZRough]\r\n"
                              "Units=0\r\n"
                              "CornerAngle=135.000000\r\n"
                              "CornerAngleType=0\r\n"
                              "CornerClearance=0.000000\r\n"
                              "CornerClearanceType=0\r\n"
                              "SideRoughStep=0.800000\r\n"
                              "SideRoughStepType=1\r\n"
                              "DepthRoughStep=0.800000\r\n"
                              "DepthRoughStepType=1\r\n"
                              "CutterCompTop=0\r\n"
                              "FeedBetweenRate=1\r\n"
                              "DepthFirst=1\r\n"
                              "MaterialCutMode=2\r\n"
                              "PocketCutMode=0\r\n"
                              "PlungeWarnings=0\r\n"
                              "SideClearance=0.100000\r\n"
                              "SideClearanceType=1\r\n"
                              "IslandPlunges=0\r\n"
                              "LeadAngleTol=5\r\n"
                              "GougeCheck=1\r\n"
                              "AlignPlunges=0\r\n";

/// Every key another value; the cut mode the only other one that is kept.
const std::string kOtherFile = WithValue(EveryKeyChanged(kFreshFile), "MaterialCutMode", "1");

const RecordOperations<Record> kOperations = {kFreshFile, &Record::vOptions_Default, &Record::vOptions_Save,
                                              &Record::vOptions_Restore, &Record::vZRoughOptionsCheckUnits};

TEST_F(RecordZRough, AFreshOneSavesItsBuiltInValuesInOrder)
{
    Record record;
    EXPECT_EQ(kFreshFile, Saved(host, record, kOperations));
}

TEST_F(RecordZRough, RestoresEveryKey)
{
    const Record record = CheckRestoresEveryKey(host, kOperations, kOtherFile);
    EXPECT_EQ(2, record.Units);
    EXPECT_EQ(3.5, record.CornerAngle);
    EXPECT_EQ(4, record.CornerAngleType);
    EXPECT_EQ(5.5, record.CornerClearance);
    EXPECT_EQ(6, record.CornerClearanceType);
    EXPECT_EQ(7.5, record.SideRoughStep);
    EXPECT_EQ(8, record.SideRoughStepType);
    EXPECT_EQ(9.5, record.DepthRoughStep);
    EXPECT_EQ(10, record.DepthRoughStepType);
    EXPECT_EQ(11, record.CutterCompTop);
    EXPECT_EQ(12, record.FeedBetweenRate);
    EXPECT_EQ(13, record.DepthFirst);
    EXPECT_EQ(1, record.MaterialCutMode);
    EXPECT_EQ(15, record.PocketCutMode);
    EXPECT_EQ(16, record.PlungeWarnings);
    EXPECT_EQ(17.5, record.SideClearance);
    EXPECT_EQ(18, record.SideClearanceType);
    EXPECT_EQ(19, record.IslandPlunges);
    EXPECT_EQ(20, record.LeadAngleTol);
    EXPECT_EQ(21, record.GougeCheck);
    EXPECT_EQ(22, record.AlignPlunges);
}

TEST_F(RecordZRough, AnAbsentKeyStaysAsItWas)
{
    CheckTakesKeysOneByOne(host, kOperations, kOtherFile);
}

TEST_F(RecordZRough, OfTheValuesOfAFileOnlyTheCutModeIsLimitedAndOnlyFromAbove)
{
    CheckLimit(host, kOperations, "MaterialCutMode", {{"7", 2}, {"3", 2}, {"2", 2}, {"0", 0}, {"-1", -1}},
               &Record::MaterialCutMode);
}

TEST_F(RecordZRough, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[OptionsZRough]\r\nUnits=1\r\nCornerClearance=2.5\r\n");
    Record record;
    record.vOptions_Restore();
    EXPECT_EQ(1, record.Units);
    EXPECT_EQ(2.5, record.CornerClearance);
}

TEST_F(RecordZRough, ConvertingScalesLengthsWhoseTypeIsConstantAndTheCornerClearanceAlways)
{
    const std::vector<Length<Record>> lengths = {{&Record::CornerClearance},
                                                 {&Record::SideRoughStep, &Record::SideRoughStepType},
                                                 {&Record::DepthRoughStep, &Record::DepthRoughStepType},
                                                 {&Record::SideClearance, &Record::SideClearanceType}};
    CheckConversion<Record>(kOperations, lengths, {&Record::CornerAngle}, {&Record::CornerClearanceType});
    CheckConversion<Record>(kOperations, lengths, {&Record::CornerAngle});
}

TEST_F(RecordZRough, DefaultsAreTheFilesValuesOverTheBuiltInOnes)
{
    CheckDefaults(host, kOperations, kOtherFile);
}

TEST_F(RecordZRough, DefaultsOfAMetricFileAreConverted)
{
    host.WriteDefaults("[OptionsZRough]\r\nUnits=1\r\nCornerClearance=5\r\nCornerClearanceType=1\r\n"
                       "DepthRoughStep=50\r\nDepthRoughStepType=0\r\nSideRoughStep=5\r\nMaterialCutMode=3\r\n");
    host.WriteSettings("[OptionsZRough]\r\nCornerClearance=99\r\n");
    Record record;
    record.vOptions_Default();
    EXPECT_EQ(0, record.Units);
    EXPECT_EQ(0.2, record.CornerClearance);
    EXPECT_EQ(2.0, record.DepthRoughStep);
    EXPECT_EQ(5.0, record.SideRoughStep);
    EXPECT_EQ(2, record.MaterialCutMode);
}

TEST_F(RecordZRough, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordZRough, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save, {"MaterialCutMode"});
}

TEST_F(RecordZRough, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLastZRoughOptions());
    EXPECT_EQ(GetLastZRoughOptions(), GetLastZRoughOptions());
}

// ---- the page ----

constexpr int kCornerAngle = 3902;
constexpr int kCornerClearance = 3903;
constexpr int kSideStep = 3904;
constexpr int kDepthStep = 3905;
constexpr int kSideClearance = 3906;
constexpr int kLeadAngle = 3907;
constexpr int kSideStepType = 1050;
constexpr int kDepthStepType = 1053;
constexpr int kSideClearanceType = 1060;
constexpr int kMaterialCutMode = 1057;
constexpr int kPocketCutMode = 1058;
constexpr int kIslandPlunges = 4592;
constexpr int kGougeCheck = 4593;

class PageZRough : public OptionPageTest<CDefsZRoughPage, Record, GetLastZRoughOptions> {
protected:
    int OtherControl(int) override { return kPocketCutMode; }

    static Record WithIslandPlunges(int value)
    {
        Record record;
        record.IslandPlunges = value;
        return record;
    }
};

const std::vector<RealControl<Record>> kReals = {
    {kCornerAngle, &Record::CornerAngle, L"135.0000"},   {kCornerClearance, &Record::CornerClearance, L"0.0000"},
    {kSideStep, &Record::SideRoughStep, L"0.8000"},      {kDepthStep, &Record::DepthRoughStep, L"0.8000"},
    {kSideClearance, &Record::SideClearance, L"0.1000"},
};

const std::vector<ListControl<Record>> kLists = {
    {3964, &Record::CornerAngleType, kCornerTypeItems},
    {1052, &Record::CornerClearanceType, kLengthTypeItems},
    {kSideStepType, &Record::SideRoughStepType, kLengthTypeItems},
    {kDepthStepType, &Record::DepthRoughStepType, kLengthTypeItems},
    {1055, &Record::FeedBetweenRate, kFeedItems},
    {kMaterialCutMode, &Record::MaterialCutMode, {L"По спирали", L"По зигзагу", L"По контуру"}},
    {kPocketCutMode, &Record::PocketCutMode, {L"По спирали", L"По зигзагу"}},
    {kSideClearanceType, &Record::SideClearanceType, kLengthTypeItems},
};

TEST_F(PageZRough, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    CheckReals(kReals);
}

TEST_F(PageZRough, AnExpressionBecomesAValueInTheSettingsFile)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideStep, L"1/8+0.02");
    sheet.Ok();
    GetLastZRoughOptions()->vOptions_Save();
    EXPECT_EQ("0.145000", Value(host.settings, "OptionsZRough", "SideRoughStep"));
}

TEST_F(PageZRough, TheEditsButSideClearanceAndLeadAngleEvaluateInPlace)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kCornerAngle, kCornerClearance, kSideStep, kDepthStep}) {
        ui::Type(sheet.Page(), id, L"2*45=");
        EXPECT_EQ(L"90.0000", ui::TextOf(sheet.Page(), id)) << id;
    }
    for (const int id : {kSideClearance, kLeadAngle}) {
        ui::Type(sheet.Page(), id, L"45=");
        EXPECT_EQ(L"45=", ui::TextOf(sheet.Page(), id)) << id;
        ui::Type(sheet.Page(), id, L"45");
    }
}

TEST_F(PageZRough, TheSideClearanceTakesExpressionsWhenItIsLeft)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideClearance, L"1/4");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideClearance));
}

TEST_F(PageZRough, EveryEditMarksThePageModified)
{
    CheckEditsMark({kCornerAngle, kCornerClearance, kSideStep, kDepthStep, kSideClearance, kLeadAngle});
}

TEST_F(PageZRough, LeavingTheLeadAngleTakesNothing)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kLeadAngle, L"x");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_FALSE(ui::IsBoxOpen());
    ui::Type(sheet.Page(), kLeadAngle, L"-3");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(5, Held(*page).LeadAngleTol);
    sheet.Ok();
    EXPECT_EQ(-3, GetLastZRoughOptions()->LeadAngleTol);
}

TEST_F(PageZRough, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(PageZRough, AChoiceIsHeldAtOnceAndNoSelectionIsNone)
{
    CheckChoicesHeldAtOnce(kLists);
}

TEST_F(PageZRough, AListWithoutASelectionIsTakenAsSuchWhenThePageIsLeft)
{
    CheckListsWithoutSelection(kLists, -1);
}

TEST_F(PageZRough, EveryCheckBoxKeepsItsStateAndMarksThePageModified)
{
    CheckBoxes({{4589, &Record::CutterCompTop},
                {4590, &Record::DepthFirst},
                {4591, &Record::PlungeWarnings},
                {kGougeCheck, &Record::GougeCheck, 1, 2},
                {4594, &Record::AlignPlunges}});
}

TEST_F(PageZRough, AClickIsHeldAtOnce)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    for (const int id : {4589, 4590, 4591, kGougeCheck, 4594})
        ui::Click(sheet.Page(), id);
    const Record held = Held(*page);
    EXPECT_EQ(1, held.CutterCompTop);
    EXPECT_EQ(0, held.DepthFirst);
    EXPECT_EQ(1, held.PlungeWarnings);
    EXPECT_EQ(2, held.GougeCheck);
    EXPECT_EQ(1, held.AlignPlunges);
}

TEST_F(PageZRough, TheFirstActivationShowsPlungesOnIslandsWhereTheFieldIsZero)
{
    for (const int stored : {0, 1, 5}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        EXPECT_EQ(stored == 0, ui::IsChecked(sheet.Page(), kIslandPlunges)) << stored;
        EXPECT_FALSE(sheet.IsModified()) << stored;
    }
}

TEST_F(PageZRough, AClickOnPlungesOnIslandsStoresZeroForChecked)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    ui::Click(sheet.Page(), kIslandPlunges);
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kIslandPlunges));
    EXPECT_TRUE(sheet.IsModified());
    EXPECT_EQ(1, Held(*page).IslandPlunges);
    ui::Click(sheet.Page(), kIslandPlunges);
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), kIslandPlunges));
    EXPECT_EQ(0, Held(*page).IslandPlunges);
}

TEST_F(PageZRough, LeavingAnEditStoresPlungesOnIslandsTheOtherWayRound)
{
    for (const int stored : {0, 1}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        ui::FocusOn(sheet.Page(), kDepthStep);
        ui::FocusOn(sheet.Page(), kPocketCutMode);
        EXPECT_EQ(1 - stored, Held(*shown).IslandPlunges);
    }
}

TEST_F(PageZRough, OkStoresPlungesOnIslandsTheOtherWayRound)
{
    for (const int stored : {0, 1}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        sheet.Ok();
        EXPECT_EQ(1 - stored, GetLastZRoughOptions()->IslandPlunges);
    }
}

TEST_F(PageZRough, ALaterActivationShowsPlungesOnIslandsAsTheFieldIs)
{
    for (const int stored : {0, 1}) {
        SiblingSpy other;
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get(), &other});
        const bool checked = ui::IsChecked(sheet.Page(), kIslandPlunges);
        sheet.Switch(1);
        EXPECT_EQ(1 - stored, Held(*shown).IslandPlunges);
        sheet.Switch(0);
        EXPECT_EQ(checked, ui::IsChecked(sheet.Page(), kIslandPlunges)) << "shown directly after it was taken directly";
        // What is handed over between two activations shows it plainly.
        sheet.Switch(1);
        *GetLastZRoughOptions() = WithIslandPlunges(stored);
        ui::UiThread::Get().Call([&] { shown->GetData(0); });
        sheet.Switch(0);
        EXPECT_EQ(stored == 1, ui::IsChecked(sheet.Page(), kIslandPlunges));
    }
}

TEST_F(PageZRough, DefaultsShowPlungesOnIslandsAsTheFieldIs)
{
    for (const int byDefault : {0, 1}) {
        host.WriteDefaults("[OptionsZRough]\r\nIslandPlunges=" + std::to_string(byDefault) + "\r\n");
        const auto shown = Fresh(WithIslandPlunges(byDefault));
        OpenSheet sheet({shown.get()});
        EXPECT_EQ(byDefault == 0, ui::IsChecked(sheet.Page(), kIslandPlunges));
        SendMessage(sheet.Page(), 3072, 0, 0);
        EXPECT_EQ(byDefault == 1, ui::IsChecked(sheet.Page(), kIslandPlunges));
    }
}

TEST_F(PageZRough, AGougeCheckThatIsNotOffShowsAsOnAndIsKeptAsOn)
{
    for (const int stored : {0, 1, -1, 3}) {
        Record record;
        record.GougeCheck = stored;
        const auto shown = Fresh(record);
        OpenSheet sheet({shown.get()});
        EXPECT_TRUE(ui::IsChecked(sheet.Page(), kGougeCheck)) << stored;
        sheet.Ok();
        EXPECT_EQ(1, GetLastZRoughOptions()->GougeCheck) << stored;
    }
}

TEST_F(PageZRough, AGougeCheckThatIsOffStaysOff)
{
    Record record;
    record.GougeCheck = 2;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
    sheet.Ok();
    EXPECT_EQ(2, GetLastZRoughOptions()->GougeCheck);
}

TEST_F(PageZRough, ValuesOutOfRangeAreRefusedAndBoundsAccepted)
{
    std::vector<Bound> bounds = {{kCornerAngle, L"29.9", L"30", L"30.0000", L"150.0000"},
                                 {kCornerAngle, L"150.1", L"150", L"30.0000", L"150.0000"}};
    for (const int id : {kCornerClearance, kSideStep, kDepthStep, kSideClearance}) {
        bounds.push_back({id, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded});
        bounds.push_back({id, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded});
    }
    CheckBounds(bounds);
}

TEST_F(PageZRough, ATextThatDoesNotEvaluateIsRefusedOnOk)
{
    CheckRefused({{kCornerAngle, L"radius", kEnterNumber},
                  {kSideStep, L"", kEnterNumber},
                  {kSideClearance, L"1/0", kEnterNumber},
                  {kLeadAngle, L"x", kEnterInteger},
                  {kLeadAngle, L"2+3", kEnterInteger},
                  {kLeadAngle, L"2147483648", kEnterInteger}});
}

TEST_F(PageZRough, LeavingAStepOrTheSideClearanceTellsTheOtherPagesItsValue)
{
    CheckRealNotices({{kSideStep, 0x8025}, {kDepthStep, 0x8027}, {kSideClearance, 0x8029}});
}

TEST_F(PageZRough, ChoosingAnotherStepTypeTellsTheOtherPagesAndChoosingTheSameDoesNot)
{
    CheckTypeNotices({{kSideStepType, 0x8026}, {kDepthStepType, 0x8028}, {kSideClearanceType, 0x802A}});
}

TEST_F(PageZRough, ChoosingACutModeTellsTheOtherPagesTheSameOneToo)
{
    CheckChoiceNotices({{kMaterialCutMode, 0x800E}, {kPocketCutMode, 0x800E}});
}

TEST_F(PageZRough, NothingElseTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const int id : {3964, 1052, 1055})
        for (const int index : {0, 1})
            ui::Choose(sheet.Page(), id, index);
    for (const int id : {kCornerAngle, kCornerClearance, kLeadAngle})
        ui::Type(sheet.Page(), id, L"40");
    for (const int id : {4589, 4590, 4591, kIslandPlunges, kGougeCheck, 4594})
        ui::Click(sheet.Page(), id);
    SendMessage(sheet.Page(), 3072, 0, 0);
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(PageZRough, TheHostsDefaultsMessageShowsTheDefaultsAndLeavesThePageUnmodified)
{
    host.WriteDefaults("[OptionsZRough]\r\nSideRoughStep=0.25\r\nDepthFirst=0\r\nGougeCheck=2\r\n"
                       "MaterialCutMode=9\r\nAlignPlunges=1\r\n");
    Record record;
    record.CornerAngle = 40;
    record.CornerAngleType = 1;
    record.FeedBetweenRate = 2;
    record.MaterialCutMode = 0;
    record.LeadAngleTol = 9;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(L"135.0000", ui::TextOf(sheet.Page(), kCornerAngle));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideStep));
    EXPECT_EQ(L"5", ui::TextOf(sheet.Page(), kLeadAngle));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 3964));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1055));
    EXPECT_EQ(2, ui::Selection(sheet.Page(), kMaterialCutMode));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), 4590));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
    EXPECT_TRUE(ui::IsChecked(sheet.Page(), 4594));
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(40.0, GetLastZRoughOptions()->CornerAngle);
    sheet.Ok();
    EXPECT_EQ(135.0, GetLastZRoughOptions()->CornerAngle);
}

TEST_F(PageZRough, DefaultsAreInTheUnitsThatThePageWasGiven)
{
    host.WriteDefaults("[OptionsZRough]\r\nCornerClearance=0.5\r\n");
    const auto shown = Fresh(Record(), 1);
    OpenSheet sheet({shown.get()});
    SendMessage(sheet.Page(), 3072, 0, 0);
    EXPECT_EQ(L"12.5000", ui::TextOf(sheet.Page(), kCornerClearance));
    sheet.Ok();
    EXPECT_EQ(1, GetLastZRoughOptions()->Units);
}

TEST_F(PageZRough, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    Record record;
    record.CornerClearance = 0.1;
    record.CornerClearanceType = 1;
    Fresh(record, 1);
    EXPECT_EQ(1, GetLastZRoughOptions()->Units);
    EXPECT_EQ(2.5, GetLastZRoughOptions()->CornerClearance);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLastZRoughOptions()->Units);
    EXPECT_EQ(0.1, GetLastZRoughOptions()->CornerClearance);
}

TEST_F(PageZRough, ANewPageHoldsTheLiveRecord)
{
    GetLastZRoughOptions()->SideRoughStep = 3;
    CDefsZRoughPage made;
    OpenSheet sheet({&made});
    EXPECT_EQ(L"3.0000", ui::TextOf(sheet.Page(), kSideStep));
}

TEST_F(PageZRough, CancelLeavesTheLiveRecordAloneAndApplyStores)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideStep, L"3");
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(3.0, GetLastZRoughOptions()->SideRoughStep);
    ui::Type(sheet.Page(), kSideStep, L"4");
    sheet.Cancel();
    EXPECT_EQ(3.0, GetLastZRoughOptions()->SideRoughStep);
}

TEST_F(PageZRough, ACutModeBelowTheFirstSelectsNothingAndIsKept)
{
    Record record;
    record.MaterialCutMode = -1;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_EQ(-1, ui::Selection(sheet.Page(), kMaterialCutMode));
    sheet.Ok();
    EXPECT_EQ(-1, GetLastZRoughOptions()->MaterialCutMode);
}

TEST_F(PageZRough, ActivatingAgainAddsNoItemsTwice)
{
    CheckReactivation();
}

TEST_F(PageZRough, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    constexpr char pageTopic[] = "pelmar-_options_hidd_zrough_pocket_opt.htm";
    CheckTopics({{0, pageTopic},
                 {kCornerAngle, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
                 {3964, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
                 {kCornerClearance, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
                 {kSideStep, "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"},
                 {kDepthStep, "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm"},
                 {kSideClearance, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
                 {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
                 {kSideStepType, step},
                 {1052, step},
                 {kDepthStepType, step},
                 {kSideClearanceType, step},
                 {1055, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
                 {kPocketCutMode, "pelmar-_optionspopups_hidc_zropts_pocket_cut_mode.htm"},
                 {4589, "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm"},
                 {4590, "pelmar-_optionspopups_hidc_zropts_depth_first.htm"},
                 {4591, "pelmar-_optionspopups_hidc_zropts_dsp_changes.htm"},
                 {kIslandPlunges, "pelmar-_options_hidc_zropts_of_island_plunges.htm"},
                 {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
                 {4594, "pelmar-_optionspopups_align_to_deepest_plunge.htm"},
                 {kMaterialCutMode, pageTopic}});
}

TEST_F(PageZRough, ControlsThatAreMissingAreSkipped)
{
    Record odd{0, 3.5, 4, 5.5, 6, 7.5, 8, 9.5, 10, 11, 12, 13, 14, 15, 16, 17.5, 18, 19, 20, 21, 22};
    Record after = AfterEveryControlWasMissing(odd);
    EXPECT_EQ(Saved(host, odd, kOperations), Saved(host, after, kOperations));
}

TEST_F(PageZRough, ItsLayoutClipsAndOverlapsNothing)
{
    CheckLayout();
}

TEST_F(PageZRough, CanBeCreatedDynamically)
{
    CheckCreation(3946, L"Параметры для карманов");
}

} // namespace
