#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr int kSideRoughStep = 3905;
constexpr int kSideClearance = 3912;
constexpr int kRapidPlane = 3909;
constexpr int kIslandDepths = 1057;
constexpr int kNestingType = 1063;
constexpr int kNestingDepth = 3911;
constexpr int kAlignPlunges = 4594;
constexpr int kDefaultsButton = 4456;

struct Milling2Axis : OperationOf<C2AxisOptionsInfo, CDefs2xPage> {
    using R = Record;
    static constexpr auto Live = GetLast2xOptions;
    static inline const Operations operations = {"[Options2x]\r\n"
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
                                                 "AlignPlunges=0\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::v2xOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    /// Defaults report plunge changes, though a fresh record does not.
    static inline const FileRules rules{.otherDefaults = {{"DispPlungeChanges", "1"}}};
    static inline const Fields fields = {{"MaxFeedBetween", &R::MaxFeedBetween},
                                         {"FeedBetweenType", &R::FeedBetweenType},
                                         {"CornerAngle", &R::CornerAngle},
                                         {"CornerAngleType", &R::CornerAngleType},
                                         {"CornerClearance", &R::CornerClearance},
                                         {"CornerClearanceType", &R::CornerClearanceType},
                                         {"SideClearance", &R::SideClearance},
                                         {"SideClearanceType", &R::SideClearanceType},
                                         {"SideRoughStep", &R::SideRoughStep},
                                         {"SideRoughStepType", &R::SideRoughStepType},
                                         {"SideFinishStep", &R::SideFinishStep},
                                         {"SideFinishStepType", &R::SideFinishStepType},
                                         {"DepthRoughStep", &R::DepthRoughStep},
                                         {"DepthRoughStepType", &R::DepthRoughStepType},
                                         {"DepthFinishStep", &R::DepthFinishStep},
                                         {"DepthFinishStepType", &R::DepthFinishStepType},
                                         {"RapidPlane", &R::RapidPlane},
                                         {"RapidPlunge", &R::RapidPlunge},
                                         {"PathIslandDepths", &R::PathIslandDepths},
                                         {"GougeCheck", &R::GougeCheck},
                                         {"FeedBetweenRate", &R::FeedBetweenRate},
                                         {"ThreadMillFeedBetween", &R::ThreadMillFeedBetween},
                                         {"DepthFirst", &R::DepthFirst},
                                         {"FinishCutOn", &R::FinishCutOn},
                                         {"PocketNestingType", &R::PocketNestingType},
                                         {"PocketNestingDepth", &R::PocketNestingDepth},
                                         {"SortType", &R::SortType},
                                         {"SelectMaterial", &R::SelectMaterial},
                                         {"DispPlungeChanges", &R::DispPlungeChanges},
                                         {"IslandPlunges", &R::IslandPlunges},
                                         {"LeadAngleTol", &R::LeadAngleTol},
                                         {"AlignPlunges", &R::AlignPlunges}};
    static inline const Lengths lengths = {{&R::RapidPlane},
                                           {&R::RapidPlunge},
                                           {&R::MaxFeedBetween, &R::FeedBetweenType},
                                           {&R::CornerClearance, &R::CornerClearanceType},
                                           {&R::SideClearance, &R::SideClearanceType},
                                           {&R::SideRoughStep, &R::SideRoughStepType},
                                           {&R::SideFinishStep, &R::SideFinishStepType},
                                           {&R::DepthRoughStep, &R::DepthRoughStepType},
                                           {&R::DepthFinishStep, &R::DepthFinishStepType}};
    static inline const Unscaled unscaled = {&R::CornerAngle};

    static constexpr int templateId = 3926;
    static constexpr wchar_t title[] = L"2-осевые параметры";
    static constexpr int other = 1058;
    static constexpr bool startsWithLiveRecord = false;
    static void Prepare(CDefs2xPage& page)
    {
        page.m_operationCode = 6;
        page.m_contextBits = 1;
    }
    static void ShowMost(CDefs2xPage& page)
    {
        page.GetData(0, 0, 0);
        page.m_contextBits = 1;
    }
    static inline const Sample<R> sample = {kSideRoughStep, "SideRoughStep", &R::SideRoughStep, L"1/8+0.02",
                                            0.145,          L"0.1450",       "0.145000"};
    static inline const SampleLength<R> length = {kRapidPlane, "RapidPlane", &R::RapidPlane};
    static inline const Reals reals = {
        {3902, &R::MaxFeedBetween, L"4.0000"},  {3903, &R::CornerAngle, L"135.0000"},
        {3904, &R::CornerClearance, L"0.0000"}, {3912, &R::SideClearance, L"0.1000"},
        {3905, &R::SideRoughStep, L"0.8000"},   {3906, &R::SideFinishStep, L"0.0800"},
        {3907, &R::DepthRoughStep, L"0.8000"},  {3908, &R::DepthFinishStep, L"0.0800"},
        {3909, &R::RapidPlane, L"1.0000"},      {3910, &R::RapidPlunge, L"0.1000"},
    };
    static inline const Wholes wholes = {{kNestingDepth, &R::PocketNestingDepth, L"1"}, {3913, &R::LeadAngleTol, L"5"}};
    static inline const Lists lists = {
        {3964, &R::FeedBetweenType, kLengthTypeItems},
        {1052, &R::CornerAngleType, kCornerTypeItems},
        {1050, &R::CornerClearanceType, kLengthTypeItems},
        {3965, &R::SideClearanceType, kLengthTypeItems},
        {1053, &R::SideRoughStepType, kLengthTypeItems},
        {1054, &R::SideFinishStepType, kLengthTypeItems},
        {1055, &R::DepthRoughStepType, kLengthTypeItems},
        {1056, &R::DepthFinishStepType, kLengthTypeItems},
        {1058, &R::GougeCheck, {L"Одиночный", L"Полный", L"Траектория"}},
        {1060, &R::FeedBetweenRate, kFeedItems},
        {4617, &R::ThreadMillFeedBetween, kFeedItems},
        {1062, &R::FinishCutOn, {L"Все глубины", L"Конечн. глубина"}},
        {1063, &R::PocketNestingType, {L"Все", L"По выбору"}},
        {1064, &R::SortType, {L"Нет", L"Авто", L"Вложенные"}},
    };
    static inline const Boxes boxes = {{4589, &R::CutterCompTop},
                                       {4590, &R::DepthFirst},
                                       {4591, &R::DispPlungeChanges},
                                       {4593, &R::IslandPlunges},
                                       {kAlignPlunges, &R::AlignPlunges}};
    static inline const std::vector<Bound> bounds = {{3903, L"29", L"30", L"30.0000", L"150.0000"},
                                                     {3903, L"29.9", L"30", L"30.0000", L"150.0000"},
                                                     {3903, L"151", L"150", L"30.0000", L"150.0000"},
                                                     {3903, L"150.1", L"150", L"30.0000", L"150.0000"},
                                                     {3910, L"-0.0001", L"0", L"0.0000", kShownUnbounded}};
    static inline const Told realNotices = {{kSideClearance, 32791}};
    static inline const std::vector<SiblingSpy::Notice> defaultsNotices = {{32772, 0}}; // of the island depths
    static inline const DefaultsCase defaults = {
        "SideRoughStep=0.25\r\n", {{"SideRoughStep", "0.250000"}}, {{kSideRoughStep, L"0.2500"}}};
    static inline const std::vector<Topic> topics = {
        {0, "pelmar-_options_hidd_2axis_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_2axisopts_maxfeed.htm"},
        {1050, kStepTopic},
        {1053, kStepTopic},
        {1054, kStepTopic},
        {1055, kStepTopic},
        {1056, kStepTopic},
        {3964, kStepTopic},
        {3965, kStepTopic},
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
    };
    static inline const std::vector<Topic> absentTopics = {{4592, "pelmar-_optionspopups_toollib_gauge_length.htm"}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, EveryRecord, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, RecordOfLengths, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, EveryPage, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageWithBoxes, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageTakingEditsAtOnce, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageWithDefaults, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageWithDefaultsButton, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageOfLengths, Milling2Axis);
INSTANTIATE_TYPED_TEST_SUITE_P(Milling2Axis, PageTellingEdits, Milling2Axis);

// ---- the record ----

class Record2x : public EveryRecord<Milling2Axis> {};

TEST_F(Record2x, CompensationAtTheTopIsNeitherSavedNorRestored)
{
    record.CutterCompTop = 1;
    EXPECT_EQ(Fresh(), Saved());
    record.vOptions_Restore();
    EXPECT_EQ(1, record.CutterCompTop);
    const C2AxisOptionsInfo copy = record;
    EXPECT_EQ(1, copy.CutterCompTop);
}

TEST_F(Record2x, DefaultsReportPlungeChangesThoughAFreshRecordDoesNot)
{
    EXPECT_EQ(0, record.DispPlungeChanges);
    record.SideRoughStepType = 0;
    record.CutterCompTop = 1;
    record.vOptions_Defaults();
    EXPECT_EQ(1, record.DispPlungeChanges);
    EXPECT_EQ(1, record.SideRoughStepType);
    EXPECT_EQ(0, record.CutterCompTop);
    EXPECT_EQ(0.800000011920929, record.SideRoughStep);
}

// ---- the page ----

class Page2x : public EveryPage<Milling2Axis> {};

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

TEST_F(Page2x, WhereControlsAreMissingTheOthersWork)
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

} // namespace
