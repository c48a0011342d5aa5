#include "pages/page_checks.h"
#include "pages/record_checks.h"

namespace {

using Record = CFlatSurfaceOptionsInfo;

// ---- the record ----

class RecordFlatSurface : public testing::Test {
protected:
    HostFolder host;
};

constexpr char kFreshFile[] = "[OptionsFlatSurface]\r\n"
                              "Units=0\r\n"
                              "CornerAngle=135.000000\r\n"
                              "CornerAngleType=0\r\n"
                              "CornerClearance=0.000000\r\n"
                              "CornerClearanceType=0\r\n"
                              "SideStep=0.800000\r\n"
                              "SideStepType=1\r\n"
                              "FeedBetweenRate=1\r\n"
                              "DepthFirst=1\r\n"
                              "MaterialCutMode=2\r\n"
                              "PocketCutMode=0\r\n"
                              "PlungeWarnings=0\r\n"
                              "IslandPlunges=0\r\n"
                              "LeadAngleTol=5\r\n"
                              "GougeCheck=1\r\n"
                              "AlignPlunges=0\r\n";

/// Every key another value; the cut mode the only other one that is kept.
const std::string kOtherFile = WithValue(EveryKeyChanged(kFreshFile), "MaterialCutMode", "1");

const RecordOperations<Record> kOperations = {kFreshFile, &Record::vOptions_Defaults, &Record::vOptions_Save,
                                              &Record::vOptions_Restore, &Record::vFlatSurfaceOptionsCheckUnits};

TEST_F(RecordFlatSurface, AFreshOneSavesItsBuiltInValuesInOrder)
{
    Record record;
    EXPECT_EQ(kFreshFile, Saved(host, record, kOperations));
}

TEST_F(RecordFlatSurface, RestoresEveryKey)
{
    const Record record = CheckRestoresEveryKey(host, kOperations, kOtherFile);
    EXPECT_EQ(2, record.Units);
    EXPECT_EQ(3.5, record.CornerAngle);
    EXPECT_EQ(4, record.CornerAngleType);
    EXPECT_EQ(5.5, record.CornerClearance);
    EXPECT_EQ(6, record.CornerClearanceType);
    EXPECT_EQ(7.5, record.SideStep);
    EXPECT_EQ(8, record.SideStepType);
    EXPECT_EQ(9, record.FeedBetweenRate);
    EXPECT_EQ(10, record.DepthFirst);
    EXPECT_EQ(1, record.MaterialCutMode);
    EXPECT_EQ(12, record.PocketCutMode);
    EXPECT_EQ(13, record.PlungeWarnings);
    EXPECT_EQ(14, record.IslandPlunges);
    EXPECT_EQ(15, record.LeadAngleTol);
    EXPECT_EQ(16, record.GougeCheck);
    EXPECT_EQ(17, record.AlignPlunges);
}

TEST_F(RecordFlatSurface, AnAbsentKeyStaysAsItWas)
{
    CheckTakesKeysOneByOne(host, kOperations, kOtherFile);
}

TEST_F(RecordFlatSurface, OfTheValuesOfAFileOnlyTheCutModeIsLimitedAndOnlyFromAbove)
{
    CheckLimit(host, kOperations, "MaterialCutMode", {{"7", 2}, {"3", 2}, {"2", 2}, {"0", 0}, {"-1", -1}},
               &Record::MaterialCutMode);
}

TEST_F(RecordFlatSurface, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[OptionsFlatSurface]\r\nUnits=1\r\nCornerClearance=2.5\r\n");
    Record record;
    record.vOptions_Restore();
    EXPECT_EQ(1, record.Units);
    EXPECT_EQ(2.5, record.CornerClearance);
}

TEST_F(RecordFlatSurface, ConvertingScalesTheSideStepWhileItsTypeIsConstantAndTheCornerClearanceAlways)
{
    const std::vector<Length<Record>> lengths = {{&Record::CornerClearance},
                                                 {&Record::SideStep, &Record::SideStepType}};
    CheckConversion<Record>(kOperations, lengths, {&Record::CornerAngle}, {&Record::CornerClearanceType});
    CheckConversion<Record>(kOperations, lengths, {&Record::CornerAngle});
}

TEST_F(RecordFlatSurface, DefaultsAreTheFilesValuesOverTheBuiltInOnes)
{
    CheckDefaults(host, kOperations, kOtherFile);
}

TEST_F(RecordFlatSurface, DefaultsOfAMetricFileAreConverted)
{
    host.WriteDefaults("[OptionsFlatSurface]\r\nUnits=1\r\nCornerClearance=5\r\nCornerClearanceType=1\r\n"
                       "SideStep=50\r\nSideStepType=0\r\nMaterialCutMode=3\r\n");
    host.WriteSettings("[OptionsFlatSurface]\r\nCornerClearance=99\r\n");
    Record record;
    record.vOptions_Defaults();
    EXPECT_EQ(0, record.Units);
    EXPECT_EQ(0.2, record.CornerClearance);
    EXPECT_EQ(2.0, record.SideStep);
    EXPECT_EQ(2, record.MaterialCutMode);
}

TEST_F(RecordFlatSurface, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordFlatSurface, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save, {"MaterialCutMode"});
}

TEST_F(RecordFlatSurface, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLastFlatSurfaceOptions());
    EXPECT_EQ(GetLastFlatSurfaceOptions(), GetLastFlatSurfaceOptions());
}

// ---- the page ----

constexpr int kCornerAngle = 3902;
constexpr int kCornerClearance = 3903;
constexpr int kSideStep = 3904;
constexpr int kLeadAngle = 3907;
constexpr int kSideStepType = 1050;
constexpr int kMaterialCutMode = 1057;
constexpr int kPocketCutMode = 1058;
constexpr int kGougeCheck = 4589;
constexpr int kDefaultsButton = 4456;

class PageFlatSurface : public OptionPageTest<CDefsFlatSurfacePage, Record, GetLastFlatSurfaceOptions> {
protected:
    int OtherControl(int) override { return kPocketCutMode; }
};

const std::vector<RealControl<Record>> kReals = {
    {kCornerAngle, &Record::CornerAngle, L"135.0000"},
    {kCornerClearance, &Record::CornerClearance, L"0.0000"},
    {kSideStep, &Record::SideStep, L"0.8000"},
};

const std::vector<ListControl<Record>> kLists = {
    {3964, &Record::CornerAngleType, kCornerTypeItems},
    {1052, &Record::CornerClearanceType, kLengthTypeItems},
    {kSideStepType, &Record::SideStepType, kLengthTypeItems},
    {1055, &Record::FeedBetweenRate, kFeedItems},
    {kMaterialCutMode, &Record::MaterialCutMode, {L"По спирали", L"По зигзагу", L"По контуру"}},
    {kPocketCutMode, &Record::PocketCutMode, {L"По спирали", L"По зигзагу"}},
};

TEST_F(PageFlatSurface, EveryRealIsShownEvaluatedOnLeavingAndKept)
{
    CheckReals(kReals);
}

TEST_F(PageFlatSurface, AnExpressionBecomesAValueInTheSettingsFile)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideStep, L"1/8+0.02");
    sheet.Ok();
    GetLastFlatSurfaceOptions()->vOptions_Save();
    EXPECT_EQ("0.145000", Value(host.settings, "OptionsFlatSurface", "SideStep"));
}

TEST_F(PageFlatSurface, TheEditsButTheLeadAngleEvaluateInPlace)
{
    OpenSheet sheet({page.get()});
    for (const RealControl<Record>& row : kReals) {
        ui::Type(sheet.Page(), row.id, L"2*45=");
        EXPECT_EQ(L"90.0000", ui::TextOf(sheet.Page(), row.id)) << row.id;
    }
    ui::Type(sheet.Page(), kLeadAngle, L"45=");
    EXPECT_EQ(L"45=", ui::TextOf(sheet.Page(), kLeadAngle));
}

TEST_F(PageFlatSurface, EveryEditMarksThePageModified)
{
    CheckEditsMark({kCornerAngle, kCornerClearance, kSideStep, kLeadAngle});
}

TEST_F(PageFlatSurface, LeavingTheLeadAngleTakesNothing)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kLeadAngle, L"x");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_FALSE(ui::IsBoxOpen());
    ui::Type(sheet.Page(), kLeadAngle, L"-3");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(5, Held(*page).LeadAngleTol);
    sheet.Ok();
    EXPECT_EQ(-3, GetLastFlatSurfaceOptions()->LeadAngleTol);
}

TEST_F(PageFlatSurface, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(PageFlatSurface, AChoiceIsHeldAtOnceAndNoSelectionIsNone)
{
    CheckChoicesHeldAtOnce(kLists);
}

TEST_F(PageFlatSurface, AListWithoutASelectionIsTakenAsSuchWhenThePageIsLeft)
{
    CheckListsWithoutSelection(kLists, -1);
}

TEST_F(PageFlatSurface, TheGougeCheckIsKeptButMarksNothing)
{
    CheckBoxes({{kGougeCheck, &Record::GougeCheck, 1, 2}}, Marking::Nothing);
}

TEST_F(PageFlatSurface, AClickOfTheGougeCheckIsHeldOnlyOnceAnEditIsLeft)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    ui::Click(sheet.Page(), kGougeCheck);
    EXPECT_EQ(1, Held(*page).GougeCheck);
    ui::FocusOn(sheet.Page(), kSideStep);
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(2, Held(*page).GougeCheck);
}

TEST_F(PageFlatSurface, AGougeCheckThatIsNotOffShowsAsOnAndIsKeptAsOn)
{
    for (const int stored : {0, 1, -1, 3}) {
        Record record;
        record.GougeCheck = stored;
        const auto shown = Fresh(record);
        OpenSheet sheet({shown.get()});
        EXPECT_TRUE(ui::IsChecked(sheet.Page(), kGougeCheck)) << stored;
        sheet.Ok();
        EXPECT_EQ(1, GetLastFlatSurfaceOptions()->GougeCheck) << stored;
    }
}

TEST_F(PageFlatSurface, AGougeCheckThatIsOffStaysOff)
{
    Record record;
    record.GougeCheck = 2;
    const auto shown = Fresh(record);
    OpenSheet sheet({shown.get()});
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
    sheet.Ok();
    EXPECT_EQ(2, GetLastFlatSurfaceOptions()->GougeCheck);
}

TEST_F(PageFlatSurface, FieldsWithoutAControlPassThroughUnchanged)
{
    host.WriteSettings("[OptionsFlatSurface]\r\nDepthFirst=0\r\nPlungeWarnings=1\r\nIslandPlunges=1\r\n"
                       "AlignPlunges=3\r\n");
    Record stored;
    stored.vOptions_Restore();
    const auto shown = Fresh(stored);
    SiblingSpy other;
    OpenSheet sheet({shown.get(), &other});
    for (const int id : {1056, 1059, 1061, 1063})
        EXPECT_EQ(nullptr, GetDlgItem(sheet.Page(), id)) << id;
    ui::Type(sheet.Page(), kSideStep, L"0.5");
    sheet.Switch(1);
    sheet.Switch(0);
    sheet.Ok();
    host.WriteSettings("");
    GetLastFlatSurfaceOptions()->vOptions_Save();
    EXPECT_EQ("0", Value(host.settings, "OptionsFlatSurface", "DepthFirst"));
    EXPECT_EQ("1", Value(host.settings, "OptionsFlatSurface", "PlungeWarnings"));
    EXPECT_EQ("1", Value(host.settings, "OptionsFlatSurface", "IslandPlunges"));
    EXPECT_EQ("3", Value(host.settings, "OptionsFlatSurface", "AlignPlunges"));
}

TEST_F(PageFlatSurface, TheListsThatTheTemplateDoesNotHoldAreFilledWhereTheyArePutThere)
{
    Record record;
    record.IslandPlunges = 1;
    record.AlignPlunges = 1;
    const auto shown = Fresh(record);
    SiblingSpy other;
    OpenSheet sheet({shown.get(), &other});
    ui::UiThread::Get().Call([&] {
        for (const int id : {1056, 1059, 1061, 1063})
            CreateWindow(L"ComboBox", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0, 80, 80, sheet.Page(),
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    });
    sheet.Switch(1);
    sheet.Switch(0);
    const std::vector<std::wstring> noYes = {L"Нет", L"Да"};
    EXPECT_EQ(noYes, ui::Items(sheet.Page(), 1056));
    EXPECT_EQ(noYes, ui::Items(sheet.Page(), 1059));
    EXPECT_EQ((std::vector<std::wstring>{L"Да", L"Нет"}), ui::Items(sheet.Page(), 1061));
    EXPECT_EQ(noYes, ui::Items(sheet.Page(), 1063));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1056));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), 1059));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1061));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), 1063));
    // Nothing is taken from them.
    for (const int id : {1056, 1059, 1061, 1063})
        ui::Choose(sheet.Page(), id, 0);
    EXPECT_FALSE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(1, GetLastFlatSurfaceOptions()->DepthFirst);
    EXPECT_EQ(1, GetLastFlatSurfaceOptions()->IslandPlunges);
    EXPECT_EQ(1, GetLastFlatSurfaceOptions()->AlignPlunges);
}

TEST_F(PageFlatSurface, ValuesOutOfRangeAreRefusedAndBoundsAccepted)
{
    std::vector<Bound> bounds = {{kCornerAngle, L"29.9", L"30", L"30.0000", L"150.0000"},
                                 {kCornerAngle, L"150.1", L"150", L"30.0000", L"150.0000"}};
    for (const int id : {kCornerClearance, kSideStep}) {
        bounds.push_back({id, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded});
        bounds.push_back({id, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded});
    }
    CheckBounds(bounds);
}

TEST_F(PageFlatSurface, ATextThatDoesNotEvaluateIsRefusedOnOk)
{
    CheckRefused({{kCornerAngle, L"radius", kEnterNumber},
                  {kSideStep, L"", kEnterNumber},
                  {kLeadAngle, L"x", kEnterInteger},
                  {kLeadAngle, L"2.5", kEnterInteger},
                  {kLeadAngle, L"2147483648", kEnterInteger}});
}

TEST_F(PageFlatSurface, LeavingTheSideStepTellsTheOtherPagesItsValue)
{
    CheckRealNotices({{kSideStep, 0x801B}});
}

TEST_F(PageFlatSurface, ChoosingAnotherStepTypeTellsTheOtherPagesAndChoosingTheSameDoesNot)
{
    CheckTypeNotices({{kSideStepType, 0x801C}});
}

TEST_F(PageFlatSurface, ChoosingACutModeTellsTheOtherPagesTheSameOneToo)
{
    CheckChoiceNotices({{kMaterialCutMode, 0x800E}, {kPocketCutMode, 0x800E}});
}

TEST_F(PageFlatSurface, NothingElseTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const int id : {3964, 1052, 1055})
        for (const int index : {0, 1})
            ui::Choose(sheet.Page(), id, index);
    for (const int id : {kCornerAngle, kCornerClearance, kLeadAngle})
        ui::Type(sheet.Page(), id, L"40");
    ui::Click(sheet.Page(), kGougeCheck);
    SendMessage(sheet.Page(), 3072, 0, 0);
    EXPECT_TRUE(spy.notices.empty());
}

class DefaultsOfFlatSurface : public PageFlatSurface {
protected:
    DefaultsOfFlatSurface()
    {
        host.WriteDefaults("[OptionsFlatSurface]\r\nSideStep=0.25\r\nDepthFirst=0\r\nGougeCheck=2\r\n"
                           "MaterialCutMode=9\r\nAlignPlunges=1\r\n");
        Record record;
        record.CornerAngle = 40;
        record.CornerAngleType = 1;
        record.FeedBetweenRate = 2;
        record.MaterialCutMode = 0;
        record.LeadAngleTol = 9;
        page = Fresh(record);
    }

    void ExpectDefaults(OpenSheet& sheet)
    {
        EXPECT_EQ(L"135.0000", ui::TextOf(sheet.Page(), kCornerAngle));
        EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideStep));
        EXPECT_EQ(L"5", ui::TextOf(sheet.Page(), kLeadAngle));
        EXPECT_EQ(0, ui::Selection(sheet.Page(), 3964));
        EXPECT_EQ(1, ui::Selection(sheet.Page(), 1055));
        EXPECT_EQ(2, ui::Selection(sheet.Page(), kMaterialCutMode));
        EXPECT_FALSE(ui::IsChecked(sheet.Page(), kGougeCheck));
        EXPECT_FALSE(sheet.IsModified());
        EXPECT_EQ(40.0, GetLastFlatSurfaceOptions()->CornerAngle);
        sheet.Ok();
        EXPECT_EQ(135.0, GetLastFlatSurfaceOptions()->CornerAngle);
        EXPECT_EQ(0, GetLastFlatSurfaceOptions()->DepthFirst);
        EXPECT_EQ(1, GetLastFlatSurfaceOptions()->AlignPlunges);
    }
};

TEST_F(DefaultsOfFlatSurface, AreShownByTheHostsMessageWithoutMarkingThePage)
{
    OpenSheet sheet({page.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    ExpectDefaults(sheet);
}

TEST_F(DefaultsOfFlatSurface, AreShownByAButtonThatTheTemplateDoesNotHold)
{
    OpenSheet sheet({page.get()});
    EXPECT_EQ(nullptr, GetDlgItem(sheet.Page(), kDefaultsButton));
    ui::UiThread::Get().Call([&] {
        CreateWindow(L"Button", L"", WS_CHILD | WS_VISIBLE, 0, 0, 8, 8, sheet.Page(),
                     reinterpret_cast<HMENU>(INT_PTR{kDefaultsButton}), nullptr, nullptr);
    });
    ui::Click(sheet.Page(), kDefaultsButton);
    ExpectDefaults(sheet);
}

TEST_F(PageFlatSurface, DefaultsAreInTheUnitsThatThePageWasGiven)
{
    host.WriteDefaults("[OptionsFlatSurface]\r\nCornerClearance=0.5\r\n");
    const auto shown = Fresh(Record(), 1);
    OpenSheet sheet({shown.get()});
    SendMessage(sheet.Page(), 3072, 0, 0);
    EXPECT_EQ(L"12.5000", ui::TextOf(sheet.Page(), kCornerClearance));
    sheet.Ok();
    EXPECT_EQ(1, GetLastFlatSurfaceOptions()->Units);
}

TEST_F(PageFlatSurface, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    Record record;
    record.CornerClearance = 0.1;
    record.CornerClearanceType = 1;
    Fresh(record, 1);
    EXPECT_EQ(1, GetLastFlatSurfaceOptions()->Units);
    EXPECT_EQ(2.5, GetLastFlatSurfaceOptions()->CornerClearance);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLastFlatSurfaceOptions()->Units);
    EXPECT_EQ(0.1, GetLastFlatSurfaceOptions()->CornerClearance);
}

TEST_F(PageFlatSurface, ANewPageHoldsTheLiveRecord)
{
    GetLastFlatSurfaceOptions()->SideStep = 3;
    CDefsFlatSurfacePage made;
    OpenSheet sheet({&made});
    EXPECT_EQ(L"3.0000", ui::TextOf(sheet.Page(), kSideStep));
}

TEST_F(PageFlatSurface, CancelLeavesTheLiveRecordAloneAndApplyStores)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideStep, L"3");
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(3.0, GetLastFlatSurfaceOptions()->SideStep);
    ui::Type(sheet.Page(), kSideStep, L"4");
    sheet.Cancel();
    EXPECT_EQ(3.0, GetLastFlatSurfaceOptions()->SideStep);
}

TEST_F(PageFlatSurface, ActivatingAgainAddsNoItemsTwice)
{
    CheckReactivation();
}

TEST_F(PageFlatSurface, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    constexpr char cutMode[] = "pelmar-_optionspopups_material_cut_mode.htm";
    CheckTopics({{0, "pelmar-_options_3_axis_flat_surface_pocket_options.htm"},
                 {kCornerAngle, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
                 {3964, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
                 {kCornerClearance, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
                 {kSideStep, "pelmar-_optionspopups_side_step_size.htm"},
                 {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
                 {kSideStepType, step},
                 {1052, step},
                 {1055, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
                 {kMaterialCutMode, cutMode},
                 {kPocketCutMode, cutMode},
                 {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"}});
}

TEST_F(PageFlatSurface, AnyOtherControlHasThePagesTopic)
{
    CheckTopicOfMissingControl(kDefaultsButton, "pelmar-_options_3_axis_flat_surface_pocket_options.htm");
}

TEST_F(PageFlatSurface, ControlsThatAreMissingAreSkipped)
{
    Record odd{0, 3.5, 4, 5.5, 6, 7.5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    Record after = AfterEveryControlWasMissing(odd);
    EXPECT_EQ(Saved(host, odd, kOperations), Saved(host, after, kOperations));
}

TEST_F(PageFlatSurface, ItsLayoutClipsAndOverlapsNothing)
{
    CheckLayout();
}

TEST_F(PageFlatSurface, CanBeCreatedDynamically)
{
    CheckCreation(106, L"Параметры для карманов");
}

} // namespace
