#include "frame/tool_library.h"
#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace {

constexpr char kStepTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr int kMaxFeedBetween = 3902;
constexpr int kSideClearance = 3905;
constexpr int kSideFinishStep = 3906;
constexpr int kCurveTolerance = 3907;
constexpr int kSharpCornerAngle = 3909;
constexpr int kGougeCheck = 1055;
constexpr int kSortType = 1056;
constexpr int kToolLengthGauge = 1057;
constexpr int kPlungeChanges = 4589;
constexpr int kDefaultsButton = 4456;

/// The page with everything that it hides in sight, as a host may show it, and the plunge changes enabled.
class WholeEdmPage : public CDefsEDMPage {
public:
    BOOL OnInitDialog() override
    {
        const BOOL result = CDefsEDMPage::OnInitDialog();
        for (const HWND control : ui::Children(m_hWnd))
            ::ShowWindow(control, SW_SHOW);
        ::EnableWindow(::GetDlgItem(m_hWnd, kPlungeChanges), TRUE);
        return result;
    }
};

struct WireEdm : OperationOf<CEDMOptionsInfo, WholeEdmPage> {
    using R = Record;
    static constexpr auto Live = GetLastEDMOptions;
    static inline const Operations operations = {"[OptionsEDM]\r\n"
                                                 "Units=0\r\n"
                                                 "GougeCheck=1\r\n"
                                                 "SortType=1\r\n"
                                                 "SharpCorneAngleLimit=89.000000\r\n"
                                                 "CurveTolerance=0.000000\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::vEDMOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {{"GougeCheck", &R::GougeCheck},
                                         {"SortType", &R::SortType},
                                         {"SharpCorneAngleLimit", &R::SharpCorneAngleLimit},
                                         {"CurveTolerance", &R::CurveTolerance}};
    static inline const Lengths lengths = {{&R::CurveTolerance},
                                           {&R::MaxFeedBetween, &R::FeedBetweenType},
                                           {&R::CornerClearance, &R::CornerClearanceType},
                                           {&R::SideClearance, &R::SideClearanceType},
                                           {&R::SideFinishStep, &R::SideFinishStepType}};
    static inline const Unscaled unscaled = {&R::SharpCorneAngleLimit, &R::CornerAngle};

    struct Surroundings {
        Surroundings() { MaterialLibrarySwitch() = true; }
        ~Surroundings() { MaterialLibrarySwitch() = false; }
    };
    static constexpr int templateId = 3934;
    static constexpr wchar_t title[] = L"По умолчанию";
    static constexpr int other = kSortType;
    static constexpr bool startsWithLiveRecord = false;
    static inline const Sample<R> sample = {
        kSharpCornerAngle, "SharpCorneAngleLimit", &R::SharpCorneAngleLimit, L"60+1/2", 60.5, L"60.5000", "60.500000"};
    static inline const SampleLength<R> length = {kCurveTolerance, "CurveTolerance", &R::CurveTolerance};
    static inline const Reals reals = {
        {3902, &R::MaxFeedBetween, L"4.0000"},  {3903, &R::CornerAngle, L"135.0000"},
        {3904, &R::CornerClearance, L"0.0000"}, {3905, &R::SideClearance, L"1.5000"},
        {3906, &R::SideFinishStep, L"0.8000"},  {3909, &R::SharpCorneAngleLimit, L"89.0000"},
    };
    static inline const Reals otherReals = {{kCurveTolerance, &R::CurveTolerance, L"0.0000"}};
    static inline const Lists lists = {
        {3964, &R::FeedBetweenType, kLengthTypeItems},     {1052, &R::CornerAngleType, kCornerTypeItems},
        {1050, &R::CornerClearanceType, kLengthTypeItems}, {1053, &R::SideClearanceType, kLengthTypeItems},
        {1054, &R::SideFinishStepType, kLengthTypeItems},  {1055, &R::GougeCheck, {L"Одиночный", L"Полный"}},
        {1056, &R::SortType, {L"Нет", L"Авто"}},           {1057, &R::ToolLengthGauge, {L"Нет", L"Да"}},
    };
    static inline const Boxes boxes = {{kPlungeChanges, &R::DispPlungeChanges}};
    static inline const std::vector<Bound> bounds =
        Joined({{{kSharpCornerAngle, L"4.9", L"5", L"5.0000", L"160.0000"},
                 {kSharpCornerAngle, L"160.1", L"160", L"5.0000", L"160.0000"},
                 {3903, L"29.9", L"30", L"30.0000", L"150.0000"},
                 {3903, L"150.1", L"150", L"30.0000", L"150.0000"}},
                Unbounded(3902),
                Unbounded(3904),
                Unbounded(3905),
                Unbounded(3906),
                Unbounded(3907)});
    static inline const Told realNotices = {{kSideClearance, 32797}, {kSideFinishStep, 32799}};
    static inline const Told choiceNotices = {{kToolLengthGauge, 32770}};
    static inline const DefaultsCase defaults = {"CurveTolerance=0.25\r\nSortType=0\r\n",
                                                 {{"CurveTolerance", "0.250000"}, {"SortType", "0"}},
                                                 {{kCurveTolerance, L"0.2500"}}};
    static inline const std::vector<Topic> topics = {
        {0, "pelmar-_options_hidd_edm_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_edmopts_maxfeed.htm"},
        {1050, kStepTopic},
        {1053, kStepTopic},
        {1054, kStepTopic},
        {3964, kStepTopic},
        {1052, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
        {1055, "pelmar-_optionspopups_hidc_edmopts_gouge_check.htm"},
        {1056, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
        {4456, "pelmar-_ncdlgs_defaults_button.htm"},
        {4589, "pelmar-_optionspopups_hidc_edmopts_dsp_changes.htm"},
        {3903, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
        {3904, "pelmar-_optionspopups_hidc_edmopts_corner_clear.htm"},
        {3905, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
        {3906, "pelmar-_optionspopups_hidc_edmopts_side_fstep.htm"},
        {3907, "pelmar-_cutctrlpopups_curve_tolerance.htm"},
        {3909, "pelmar-_optionspopups_hidc_edm_sharpcorner_angtol.htm"},
        {1057, "pelmar-_options_hidd_edm_cut_opt.htm"},
    };
};

INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, EveryRecord, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, RecordOfLengths, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, EveryPage, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageWithBoxes, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageTakingEditsAtOnce, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageWithDefaults, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageWithDefaultsButton, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageOfLengths, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageTellingEdits, WireEdm);
INSTANTIATE_TYPED_TEST_SUITE_P(WireEdm, PageTellingChoices, WireEdm);

// ---- the record ----

using Record = CEDMOptionsInfo;

class RecordEdm : public testing::Test {
protected:
    Record options;
    HostFolder host;
};

/// Values of the fields that no file holds, none of them a built-in one.
Record WithHiddenFields()
{
    Record record;
    record.MaxFeedBetween = 7.25;
    record.FeedBetweenType = 0;
    record.CornerAngle = 45.0;
    record.CornerAngleType = 1;
    record.CornerClearance = 0.5;
    record.CornerClearanceType = 1;
    record.SideClearance = 0.75;
    record.SideClearanceType = 0;
    record.SideFinishStep = 0.25;
    record.SideFinishStepType = 0;
    record.ToolLengthGauge = 1;
    record.DispPlungeChanges = 1;
    return record;
}

void ExpectSameHiddenFields(const Record& expected, const Record& actual)
{
    EXPECT_EQ(expected.MaxFeedBetween, actual.MaxFeedBetween);
    EXPECT_EQ(expected.FeedBetweenType, actual.FeedBetweenType);
    EXPECT_EQ(expected.CornerAngle, actual.CornerAngle);
    EXPECT_EQ(expected.CornerAngleType, actual.CornerAngleType);
    EXPECT_EQ(expected.CornerClearance, actual.CornerClearance);
    EXPECT_EQ(expected.CornerClearanceType, actual.CornerClearanceType);
    EXPECT_EQ(expected.SideClearance, actual.SideClearance);
    EXPECT_EQ(expected.SideClearanceType, actual.SideClearanceType);
    EXPECT_EQ(expected.SideFinishStep, actual.SideFinishStep);
    EXPECT_EQ(expected.SideFinishStepType, actual.SideFinishStepType);
    EXPECT_EQ(expected.ToolLengthGauge, actual.ToolLengthGauge);
    EXPECT_EQ(expected.DispPlungeChanges, actual.DispPlungeChanges);
}

TEST_F(RecordEdm, HasItsBuiltInValues)
{
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(1, options.FeedBetweenType);
    EXPECT_EQ(135.0, options.CornerAngle);
    EXPECT_EQ(0, options.CornerAngleType);
    EXPECT_EQ(0.0, options.CornerClearance);
    EXPECT_EQ(0, options.CornerClearanceType);
    EXPECT_EQ(1.5, options.SideClearance);
    EXPECT_EQ(1, options.SideClearanceType);
    EXPECT_EQ(0.8, options.SideFinishStep);
    EXPECT_EQ(1, options.SideFinishStepType);
    EXPECT_EQ(0, options.ToolLengthGauge);
    EXPECT_EQ(0, options.DispPlungeChanges);
}

TEST_F(RecordEdm, HiddenFieldsAreNeitherSavedNorRestored)
{
    options = WithHiddenFields();
    options.vOptions_Save();
    EXPECT_EQ(WireEdm::operations.fresh, host.ReadSettings());
    host.WriteSettings("[OptionsEDM]\r\nMaxFeedBetween=9\r\nFeedBetweenType=9\r\nCornerAngle=9\r\nCornerAngleType=9\r\n"
                       "CornerClearance=9\r\nCornerClearanceType=9\r\nSideClearance=9\r\nSideClearanceType=9\r\n"
                       "SideFinishStep=9\r\nSideFinishStepType=9\r\nToolLengthGauge=9\r\nDispPlungeChanges=9\r\n");
    options.vOptions_Restore();
    ExpectSameHiddenFields(WithHiddenFields(), options);
    const Record copy = options;
    ExpectSameHiddenFields(WithHiddenFields(), copy);
}

TEST_F(RecordEdm, TheLimitAngleHasNoOtherKey)
{
    host.WriteSettings("[OptionsEDM]\r\nSharpCornerAngleLimit=45\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(89.0, options.SharpCorneAngleLimit);
}

TEST_F(RecordEdm, AFreshOneConvertsWithoutAChange)
{
    options.vEDMOptionsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(0.0, options.CurveTolerance);
    EXPECT_EQ(1.5, options.SideClearance);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
    EXPECT_EQ(0.0, options.CornerClearance);
}

TEST_F(RecordEdm, DefaultsWithoutAFileAreTheBuiltInValuesHiddenFieldsIncluded)
{
    host.WriteSettings(EveryKeyChanged(WireEdm::operations.fresh));
    options = WithHiddenFields();
    options.vOptions_Restore();
    options.vOptions_Defaults();
    ExpectSameHiddenFields(Record(), options);
    options.vOptions_Save();
    EXPECT_EQ(WireEdm::operations.fresh, host.ReadSettings());
}

TEST_F(RecordEdm, DefaultsTakeEveryKeyOfTheirFileAndNoHiddenField)
{
    const std::string file = EveryKeyChanged(WireEdm::operations.fresh).replace(14, 7, "Units=0");
    host.WriteDefaults(file + "MaxFeedBetween=9\r\nSideClearance=9\r\nToolLengthGauge=1\r\n");
    options.vOptions_Defaults();
    ExpectSameHiddenFields(Record(), options);
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

// ---- the page ----

class PageEdm : public OptionPageTest<CDefsEDMPage, Record, GetLastEDMOptions> {
protected:
    int OtherControl(int) override { return kSortType; }
};

class WholePageEdm : public EveryPage<WireEdm> {};

TEST_F(PageEdm, ShowsFourFieldsWithTheirLabelsAndTheDefaultsButton)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kGougeCheck, kSortType, kSharpCornerAngle, kCurveTolerance, kDefaultsButton})
        EXPECT_TRUE(ui::IsShown(sheet.Page(), id)) << id;
    for (const int id : {3902, 3964, 3903, 1052, 3904, 1050, 3905, 1053, 3906, 1054, 1057, 4589})
        EXPECT_FALSE(ui::IsShown(sheet.Page(), id)) << id;
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kPlungeChanges));
    std::vector<std::wstring> labels;
    for (const HWND control : ui::Children(sheet.Page()))
        if (ui::ClassOf(control) == L"Static" && IsWindowVisible(control))
            labels.push_back(ui::TextOf(control));
    EXPECT_EQ((std::vector<std::wstring>{L"Контроль пересечений:", L"Тип сортировки:", L"Предельное значение угла:",
                                         L"&Точность:"}),
              labels);
}

TEST_F(PageEdm, ATextThatDoesNotEvaluateIsRefusedOnLeavingTheField)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kSharpCornerAngle, kCurveTolerance}) {
        ui::Type(sheet.Page(), id, L"radius");
        ui::FocusOn(sheet.Page(), kSortType);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Please enter a number.", box.text);
        ui::Answer(box, IDOK);
        EXPECT_EQ(ui::Control(sheet.Page(), id), ui::Focus(sheet.window));
        EXPECT_EQ(L"radius", ui::TextOf(sheet.Page(), id));
        EXPECT_EQ(L"4.0000", ui::TextOf(sheet.Page(), kMaxFeedBetween));
        ui::Type(sheet.Page(), id, L"10");
    }
}

TEST_F(PageEdm, TheToleranceLeftShowsInTheHiddenThresholdAndTheNextExchangeStoresItThere)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kCurveTolerance, L"1/4");
    ui::FocusOn(sheet.Page(), kSortType);
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kMaxFeedBetween));
    EXPECT_EQ(L"1/4", ui::TextOf(sheet.Page(), kCurveTolerance));
    sheet.Ok();
    EXPECT_EQ(0.25, GetLastEDMOptions()->CurveTolerance);
    EXPECT_EQ(0.25, GetLastEDMOptions()->MaxFeedBetween);
    GetLastEDMOptions()->vOptions_Save();
    EXPECT_EQ("0.250000", Value(host.settings, "OptionsEDM", "CurveTolerance"));
    EXPECT_EQ("<absent>", Value(host.settings, "OptionsEDM", "MaxFeedBetween"));
}

TEST_F(PageEdm, AToleranceThatIsNotLeftYetIsStoredInItsOwnFieldAlone)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kCurveTolerance, L"1/4");
    sheet.Press(kApply);
    EXPECT_EQ(0.25, GetLastEDMOptions()->CurveTolerance);
    EXPECT_EQ(4.0, GetLastEDMOptions()->MaxFeedBetween);
}

TEST_F(PageEdm, AnswersASiblingThatAsksForTheGaugeAndNobodyElse)
{
    for (const int gauge : {1, 0}) {
        Record record;
        record.ToolLengthGauge = gauge;
        const std::unique_ptr<CDefsEDMPage> shown = Fresh(record);
        SiblingSpy spy;
        OpenSheet sheet({shown.get(), &spy});
        const auto ask = [&](WPARAM code, LPARAM parameter) {
            return ui::On([&] { return spy.QuerySiblings(code, parameter); });
        };
        EXPECT_EQ(gauge, ask(32770, 2));
        EXPECT_EQ(0, ask(32770, 0));
        EXPECT_EQ(0, ask(32770, 1));
        EXPECT_EQ(0, ask(32770, 3));
        EXPECT_EQ(0, ask(32771, 2));
        EXPECT_EQ(0, ask(0, 2));
    }
}

TEST_F(PageEdm, EitherLockDisablesGougeCheckAndSortTypeUntilTheActivationAfterItEnds)
{
    for (unsigned char CDefsEDMPage::*const lock : {&CDefsEDMPage::m_lockedByOperation, &CDefsEDMPage::m_lockedByHost})
        for (const auto value : std::initializer_list<unsigned char>{1, 255}) {
            const std::unique_ptr<CDefsEDMPage> shown = Fresh();
            (*shown).*lock = value;
            SiblingSpy other;
            OpenSheet sheet({shown.get(), &other});
            for (const int id : {kGougeCheck, kSortType})
                EXPECT_FALSE(ui::IsEnabled(sheet.Page(), id)) << id;
            EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSharpCornerAngle));
            (*shown).*lock = 0;
            sheet.Switch(1);
            sheet.Switch(0);
            for (const int id : {kGougeCheck, kSortType})
                EXPECT_TRUE(ui::IsEnabled(sheet.Page(), id)) << id;
        }
}

TEST_F(PageEdm, BothListsAreEnabledWithoutALock)
{
    OpenSheet sheet({page.get()});
    for (const int id : {kGougeCheck, kSortType})
        EXPECT_TRUE(ui::IsEnabled(sheet.Page(), id)) << id;
}

TEST_F(WholePageEdm, TheGaugeCanBeChosenOnlyWhileTheMaterialLibraryIsSwitchedOn)
{
    MaterialLibrarySwitch() = false;
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    for (const bool on : {false, true, false}) {
        MaterialLibrarySwitch() = on;
        sheet.Switch(1);
        sheet.Switch(0);
        EXPECT_EQ(on, ui::IsEnabled(sheet.Page(), kToolLengthGauge)) << on;
    }
}

TEST_F(PageEdm, TheMaterialLibraryIsOffByItself)
{
    EXPECT_FALSE(MaterialLibrarySwitch());
    OpenSheet sheet({page.get()});
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kToolLengthGauge));
}

TEST_F(PageEdm, WhereControlsAreMissingTheOthersWork)
{
    Record odd;
    odd.SortType = 0;
    odd.CurveTolerance = 3.0;
    page = Fresh(odd);
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kMaxFeedBetween, kCurveTolerance, kSortType, kToolLengthGauge, kPlungeChanges})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kSortType, CBN_SELCHANGE), 1);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kToolLengthGauge, CBN_SELCHANGE), 1);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kCurveTolerance, EN_KILLFOCUS), 1);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kPlungeChanges, BN_CLICKED), 1);
    EXPECT_TRUE(other.notices.empty());
    sheet.Switch(1);
    sheet.Switch(0);
    ui::Type(sheet.Page(), kSharpCornerAngle, L"45");
    sheet.Ok();
    EXPECT_EQ(45.0, GetLastEDMOptions()->SharpCorneAngleLimit);
    EXPECT_EQ(0, GetLastEDMOptions()->SortType);
    EXPECT_EQ(3.0, GetLastEDMOptions()->CurveTolerance);
    EXPECT_EQ(0, GetLastEDMOptions()->ToolLengthGauge);
}

TEST_F(PageEdm, ItsLayoutClipsAndOverlapsNothing)
{
    CheckLayout();
}

TEST_F(PageEdm, CanBeCreatedDynamically)
{
    EXPECT_EQ(3934, int{CDefsEDMPage::IDD});
    EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), CDefsEDMPage::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CDefsEDMPage::GetThisClass()->CreateObject(); });
}

} // namespace
