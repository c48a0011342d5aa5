#include "pages/pocket_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
constexpr char kCutModeTopic[] = "pelmar-_optionspopups_material_cut_mode.htm";
constexpr char kPageTopic[] = "pelmar-_options_3_axis_flat_surface_pocket_options.htm";

constexpr int kCornerAngle = 3902;
constexpr int kCornerClearance = 3903;
constexpr int kSideStep = 3904;
constexpr int kLeadAngle = 3907;
constexpr int kSideStepType = 1050;
constexpr int kMaterialCutMode = 1057;
constexpr int kPocketCutMode = 1058;
constexpr int kGougeCheck = 4589;
constexpr int kDefaultsButton = 4456;

struct FlatSurface : OperationOf<CFlatSurfaceOptionsInfo, CDefsFlatSurfacePage> {
    using R = Record;
    static constexpr auto Live = GetLastFlatSurfaceOptions;
    static inline const Operations operations = {"[OptionsFlatSurface]\r\n"
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
                                                 "AlignPlunges=0\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::vFlatSurfaceOptionsCheckUnits};
    static inline const Fields fields = {{"CornerAngle", &R::CornerAngle},
                                         {"CornerAngleType", &R::CornerAngleType},
                                         {"CornerClearance", &R::CornerClearance},
                                         {"CornerClearanceType", &R::CornerClearanceType},
                                         {"SideStep", &R::SideStep},
                                         {"SideStepType", &R::SideStepType},
                                         {"FeedBetweenRate", &R::FeedBetweenRate},
                                         {"DepthFirst", &R::DepthFirst},
                                         {"MaterialCutMode", &R::MaterialCutMode},
                                         {"PocketCutMode", &R::PocketCutMode},
                                         {"PlungeWarnings", &R::PlungeWarnings},
                                         {"IslandPlunges", &R::IslandPlunges},
                                         {"LeadAngleTol", &R::LeadAngleTol},
                                         {"GougeCheck", &R::GougeCheck},
                                         {"AlignPlunges", &R::AlignPlunges}};
    static inline const Lengths lengths = {{&R::CornerClearance}, {&R::SideStep, &R::SideStepType}};
    static inline const Unscaled unscaled = {&R::CornerAngle};
    /// The cut mode has the only other value that is kept.
    static inline const std::string changed = WithValue(EveryKeyChanged(operations.fresh), "MaterialCutMode", "1");
    static inline const FileRules rules{.ownRules = {"MaterialCutMode"}};

    static constexpr int templateId = 106;
    static constexpr wchar_t title[] = L"Параметры для карманов";
    static constexpr int other = kPocketCutMode;
    static constexpr int gougeCheck = kGougeCheck;
    static inline const Sample<R> sample = {kSideStep, "SideStep", &R::SideStep, L"1/8+0.02",
                                            0.145,     L"0.1450",  "0.145000"};
    static inline const SampleLength<R> length = {kCornerClearance, "CornerClearance", &R::CornerClearance};
    static inline const Reals reals = {
        {kCornerAngle, &R::CornerAngle, L"135.0000"},
        {kCornerClearance, &R::CornerClearance, L"0.0000"},
        {kSideStep, &R::SideStep, L"0.8000"},
    };
    static inline const Wholes wholes = {{kLeadAngle, &R::LeadAngleTol, L"5"}};
    static inline const std::vector<int> plainEdits = {kLeadAngle};
    static inline const std::vector<int> markingEdits = {kCornerAngle, kCornerClearance, kSideStep, kLeadAngle};
    static inline const Lists lists = {
        {3964, &R::CornerAngleType, kCornerTypeItems},
        {1052, &R::CornerClearanceType, kLengthTypeItems},
        {kSideStepType, &R::SideStepType, kLengthTypeItems},
        {1055, &R::FeedBetweenRate, kFeedItems},
        {kMaterialCutMode, &R::MaterialCutMode, {L"По спирали", L"По зигзагу", L"По контуру"}},
        {kPocketCutMode, &R::PocketCutMode, {L"По спирали", L"По зигзагу"}},
    };
    static int LeftWithoutSelection(int) { return -1; }
    static inline const Boxes boxes = {{kGougeCheck, &R::GougeCheck, 1, 2, Marking::Nothing}};
    static inline const std::vector<Bound> bounds = Joined({{{kCornerAngle, L"29.9", L"30", L"30.0000", L"150.0000"},
                                                             {kCornerAngle, L"150.1", L"150", L"30.0000", L"150.0000"}},
                                                            Unbounded(kCornerClearance),
                                                            Unbounded(kSideStep)});
    static inline const std::vector<Refusal> refusals = {{kCornerAngle, L"radius", kEnterNumber},
                                                         {kSideStep, L"", kEnterNumber},
                                                         {kLeadAngle, L"x", kEnterInteger},
                                                         {kLeadAngle, L"2.5", kEnterInteger},
                                                         {kLeadAngle, L"2147483648", kEnterInteger}};
    static inline const Told realNotices = {{kSideStep, 0x801B}};
    static inline const Told typeNotices = {{kSideStepType, 0x801C}};
    static inline const Told choiceNotices = {{kMaterialCutMode, 0x800E}, {kPocketCutMode, 0x800E}};
    static inline const DefaultsCase defaults = {
        "SideStep=0.25\r\nDepthFirst=0\r\nGougeCheck=2\r\nMaterialCutMode=9\r\nAlignPlunges=1\r\n",
        {{"SideStep", "0.250000"},
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
        {kSideStep, "pelmar-_optionspopups_side_step_size.htm"},
        {kLeadAngle, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
        {kSideStepType, kStepTopic},
        {1052, kStepTopic},
        {1055, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {kMaterialCutMode, kCutModeTopic},
        {kPocketCutMode, kCutModeTopic},
        {kGougeCheck, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"}};
    static inline const std::vector<Topic> absentTopics = {{kDefaultsButton, kPageTopic}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, EveryRecord, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, RecordOfLengths, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PocketRecord, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, EveryPage, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageWithBoxes, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageTakingEditsAtOnce, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageWithRefusals, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageTellingEdits, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageTellingChoices, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageTellingTypes, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageWithDefaults, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageOfLengths, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PageWithGougeCheck, FlatSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(FlatSurface, PocketPage, FlatSurface);

class FlatSurfacePage : public EveryPage<FlatSurface> {};

TEST_F(FlatSurfacePage, AClickOfTheGougeCheckIsHeldOnlyOnceAnEditIsLeft)
{
    OpenSheet sheet({page.get()});
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    ui::Click(sheet.Page(), kGougeCheck);
    EXPECT_EQ(1, Held(*page).GougeCheck);
    ui::FocusOn(sheet.Page(), kSideStep);
    ui::FocusOn(sheet.Page(), kPocketCutMode);
    EXPECT_EQ(2, Held(*page).GougeCheck);
}

TEST_F(FlatSurfacePage, FieldsWithoutAControlPassThroughUnchanged)
{
    host.WriteSettings("[OptionsFlatSurface]\r\nDepthFirst=0\r\nPlungeWarnings=1\r\nIslandPlunges=1\r\n"
                       "AlignPlunges=3\r\n");
    CFlatSurfaceOptionsInfo stored;
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

TEST_F(FlatSurfacePage, TheListsThatTheTemplateDoesNotHoldAreFilledWhereTheyArePutThere)
{
    CFlatSurfaceOptionsInfo record;
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

TEST_F(FlatSurfacePage, AButtonThatTheTemplateDoesNotHoldShowsTheDefaults)
{
    CheckDefaults([](OpenSheet& sheet) {
        EXPECT_EQ(nullptr, GetDlgItem(sheet.Page(), kDefaultsButton));
        ui::UiThread::Get().Call([&] {
            CreateWindow(L"Button", L"", WS_CHILD | WS_VISIBLE, 0, 0, 8, 8, sheet.Page(),
                         reinterpret_cast<HMENU>(INT_PTR{kDefaultsButton}), nullptr, nullptr);
        });
        ui::Click(sheet.Page(), kDefaultsButton);
    });
}

} // namespace
