#include "pages/pocket_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
constexpr char kPageTopic[] = "pelmar-_options_hidd_zrough_pocket_opt.htm";

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

struct ZRough : OperationOf<CZRoughOptionsInfo, CDefsZRoughPage> {
    using R = Record;
    static constexpr auto Live = GetLastZRoughOptions;
    static inline const Operations operations = {"[OptionsZRough]\r\n"
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
                                                 "AlignPlunges=0\r\n",
                                                 &R::vOptions_Default, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::vZRoughOptionsCheckUnits};
    static inline const Fields fields = {
        {"CornerAngle", &R::CornerAngle},         {"CornerAngleType", &R::CornerAngleType},
        {"CornerClearance", &R::CornerClearance}, {"CornerClearanceType", &R::CornerClearanceType},
        {"SideRoughStep", &R::SideRoughStep},     {"SideRoughStepType", &R::SideRoughStepType},
        {"DepthRoughStep", &R::DepthRoughStep},   {"DepthRoughStepType", &R::DepthRoughStepType},
        {"CutterCompTop", &R::CutterCompTop},     {"FeedBetweenRate", &R::FeedBetweenRate},
        {"DepthFirst", &R::DepthFirst},           {"MaterialCutMode", &R::MaterialCutMode},
        {"PocketCutMode", &R::PocketCutMode},     {"PlungeWarnings", &R::PlungeWarnings},
        {"SideClearance", &R::SideClearance},     {"SideClearanceType", &R::SideClearanceType},
        {"IslandPlunges", &R::IslandPlunges},     {"LeadAngleTol", &R::LeadAngleTol},
        {"GougeCheck", &R::GougeCheck},           {"AlignPlunges", &R::AlignPlunges}};
    static inline const Lengths lengths = {{&R::CornerClearance},
                                           {&R::SideRoughStep, &R::SideRoughStepType},
                                           {&R::DepthRoughStep, &R::DepthRoughStepType},
                                           {&R::SideClearance, &R::SideClearanceType}};
    static inline const Unscaled unscaled = {&R::CornerAngle};
    /// The cut mode has the only other value that is kept.
    static inline const std::string changed = WithValue(EveryKeyChanged(operations.fresh), "MaterialCutMode", "1");
    static inline const FileRules rules{.ownRules = {"MaterialCutMode"}};

    static constexpr int templateId = 3946;
    static constexpr wchar_t title[] = L"Параметры для карманов";
    static constexpr int other = kPocketCutMode;
    static constexpr int gougeCheck = kGougeCheck;
    static inline const Sample<R> sample = {kSideStep, "SideRoughStep", &R::SideRoughStep, L"1/8+0.02",
                                            0.145,     L"0.1450",       "0.145000"};
    static inline const SampleLength<R> length = {kCornerClearance, "CornerClearance", &R::CornerClearance};
    static inline const Reals reals = {
        {kCornerAngle, &R::CornerAngle, L"135.0000"},   {kCornerClearance, &R::CornerClearance, L"0.0000"},
        {kSideStep, &R::SideRoughStep, L"0.8000"},      {kDepthStep, &R::DepthRoughStep, L"0.8000"},
        {kSideClearance, &R::SideClearance, L"0.1000"},
    };
    static inline const Wholes wholes = {{kLeadAngle, &R::LeadAngleTol, L"5"}};
    static inline const std::vector<int> plainEdits = {kSideClearance, kLeadAngle};
    static inline const std::vector<int> markingEdits = {kCornerAngle, kCornerClearance, kSideStep,
                                                         kDepthStep,   kSideClearance,   kLeadAngle};
    static inline const Lists lists = {
        {3964, &R::CornerAngleType, kCornerTypeItems},
        {1052, &R::CornerClearanceType, kLengthTypeItems},
        {kSideStepType, &R::SideRoughStepType, kLengthTypeItems},
        {kDepthStepType, &R::DepthRoughStepType, kLengthTypeItems},
        {1055, &R::FeedBetweenRate, kFeedItems},
        {kMaterialCutMode, &R::MaterialCutMode, {L"По спирали", L"По зигзагу", L"По контуру"}},
        {kPocketCutMode, &R::PocketCutMode, {L"По спирали", L"По зигзагу"}},
        {kSideClearanceType, &R::SideClearanceType, kLengthTypeItems},
    };
    static int LeftWithoutSelection(int) { return -1; }
    static inline const Boxes boxes = {{4589, &R::CutterCompTop},
                                       {4590, &R::DepthFirst},
                                       {4591, &R::PlungeWarnings},
                                       {kGougeCheck, &R::GougeCheck, 1, 2},
                                       {4594, &R::AlignPlunges}};
    static inline const std::vector<Bound> bounds = Joined({{{kCornerAngle, L"29.9", L"30", L"30.0000", L"150.0000"},
                                                             {kCornerAngle, L"150.1", L"150", L"30.0000", L"150.0000"}},
                                                            Unbounded(kCornerClearance),
                                                            Unbounded(kSideStep),
                                                            Unbounded(kDepthStep),
                                                            Unbounded(kSideClearance)});
    static inline const std::vector<Refusal> refusals = {
        {kCornerAngle, L"radius", kEnterNumber}, {kSideStep, L"", kEnterNumber},
        {kSideClearance, L"1/0", kEnterNumber},  {kLeadAngle, L"x", kEnterInteger},
        {kLeadAngle, L"2+3", kEnterInteger},     {kLeadAngle, L"2147483648", kEnterInteger}};
    static inline const Told realNotices = {{kSideStep, 0x8025}, {kDepthStep, 0x8027}, {kSideClearance, 0x8029}};
    static inline const Told typeNotices = {
        {kSideStepType, 0x8026}, {kDepthStepType, 0x8028}, {kSideClearanceType, 0x802A}};
    static inline const Told choiceNotices = {{kMaterialCutMode, 0x800E}, {kPocketCutMode, 0x800E}};
    static inline const DefaultsCase defaults = {
        "SideRoughStep=0.25\r\nDepthFirst=0\r\nGougeCheck=2\r\nMaterialCutMode=9\r\nAlignPlunges=1\r\n",
        {{"SideRoughStep", "0.250000"},
         {"DepthFirst", "0"},
         {"GougeCheck", "2"},
         {"MaterialCutMode", "2"},
         {"AlignPlunges", "1"}},
        {{kSideStep, L"0.2500"}}};
    static inline const std::vector<Topic> topics = {
        {0, kPageTopic},
        {kCornerAngle, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
        {3964, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
        {kCornerClearance, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
        {kSideStep, "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"},
        {kDepthStep, "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm"},
        {kSideClearance, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
        {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
        {kSideStepType, kStepTopic},
        {1052, kStepTopic},
        {kDepthStepType, kStepTopic},
        {kSideClearanceType, kStepTopic},
        {1055, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {kPocketCutMode, "pelmar-_optionspopups_hidc_zropts_pocket_cut_mode.htm"},
        {4589, "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm"},
        {4590, "pelmar-_optionspopups_hidc_zropts_depth_first.htm"},
        {4591, "pelmar-_optionspopups_hidc_zropts_dsp_changes.htm"},
        {kIslandPlunges, "pelmar-_options_hidc_zropts_of_island_plunges.htm"},
        {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
        {4594, "pelmar-_optionspopups_align_to_deepest_plunge.htm"},
        {kMaterialCutMode, kPageTopic}};
    static inline const std::vector<Topic> absentTopics = {{4456, kPageTopic}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, EveryRecord, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, RecordOfLengths, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PocketRecord, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, EveryPage, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageWithBoxes, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageTakingEditsAtOnce, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageWithRefusals, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageTellingEdits, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageTellingChoices, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageTellingTypes, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageWithDefaults, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageOfLengths, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PageWithGougeCheck, ZRough);
INSTANTIATE_TYPED_TEST_SUITE_P(ZRough, PocketPage, ZRough);

class ZRoughPage : public EveryPage<ZRough> {
protected:
    static Record WithIslandPlunges(int value)
    {
        Record record;
        record.IslandPlunges = value;
        return record;
    }
};

TEST_F(ZRoughPage, TheSideClearanceTakesExpressionsWhenItIsLeft)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSideClearance, L"1/4");
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kSideClearance));
}

TEST_F(ZRoughPage, AClickIsHeldAtOnce)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    for (const int id : {4589, 4590, 4591, kGougeCheck, 4594})
        ui::Click(sheet.Page(), id);
    const CZRoughOptionsInfo held = Held(*page);
    EXPECT_EQ(1, held.CutterCompTop);
    EXPECT_EQ(0, held.DepthFirst);
    EXPECT_EQ(1, held.PlungeWarnings);
    EXPECT_EQ(2, held.GougeCheck);
    EXPECT_EQ(1, held.AlignPlunges);
}

TEST_F(ZRoughPage, TheFirstActivationShowsPlungesOnIslandsWhereTheFieldIsZero)
{
    for (const int stored : {0, 1, 5}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        EXPECT_EQ(stored == 0, ui::IsChecked(sheet.Page(), kIslandPlunges)) << stored;
        EXPECT_FALSE(sheet.IsModified()) << stored;
    }
}

TEST_F(ZRoughPage, AClickOnPlungesOnIslandsStoresZeroForChecked)
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

TEST_F(ZRoughPage, LeavingAnEditStoresPlungesOnIslandsTheOtherWayRound)
{
    for (const int stored : {0, 1}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        ui::FocusOn(sheet.Page(), kDepthStep);
        ui::FocusOn(sheet.Page(), kPocketCutMode);
        EXPECT_EQ(1 - stored, Held(*shown).IslandPlunges);
    }
}

TEST_F(ZRoughPage, OkStoresPlungesOnIslandsTheOtherWayRound)
{
    for (const int stored : {0, 1}) {
        const auto shown = Fresh(WithIslandPlunges(stored));
        OpenSheet sheet({shown.get()});
        sheet.Ok();
        EXPECT_EQ(1 - stored, GetLastZRoughOptions()->IslandPlunges);
    }
}

TEST_F(ZRoughPage, ALaterActivationShowsPlungesOnIslandsAsTheFieldIs)
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

TEST_F(ZRoughPage, DefaultsShowPlungesOnIslandsAsTheFieldIs)
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

TEST_F(ZRoughPage, PlungesOnIslandsTellTheOtherPagesNothing)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    ui::Click(sheet.Page(), kIslandPlunges);
    EXPECT_TRUE(spy.notices.empty());
}

} // namespace
