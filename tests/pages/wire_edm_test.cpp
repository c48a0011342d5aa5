#include "frame/tool_library.h"
#include "pages/page_checks.h"

namespace {

using Record = CEDMOptionsInfo;

// ---- the record ----

class RecordEdm : public testing::Test {
protected:
    Record options;
    HostFolder host;
};

constexpr char kFreshFile[] = "[OptionsEDM]\r\n"
                              "Units=0\r\n"
                              "GougeCheck=1\r\n"
                              "SortType=1\r\n"
                              "SharpCorneAngleLimit=89.000000\r\n"
                              "CurveTolerance=0.000000\r\n";

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

TEST_F(RecordEdm, AFreshOneSavesFiveKeysInOrder)
{
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(RecordEdm, HiddenFieldsAreNeitherSavedNorRestored)
{
    options = WithHiddenFields();
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
    host.WriteSettings("[OptionsEDM]\r\nMaxFeedBetween=9\r\nFeedBetweenType=9\r\nCornerAngle=9\r\nCornerAngleType=9\r\n"
                       "CornerClearance=9\r\nCornerClearanceType=9\r\nSideClearance=9\r\nSideClearanceType=9\r\n"
                       "SideFinishStep=9\r\nSideFinishStepType=9\r\nToolLengthGauge=9\r\nDispPlungeChanges=9\r\n");
    options.vOptions_Restore();
    ExpectSameHiddenFields(WithHiddenFields(), options);
    const Record copy = options;
    ExpectSameHiddenFields(WithHiddenFields(), copy);
}

TEST_F(RecordEdm, RestoresEveryKey)
{
    const std::string file = EveryKeyChanged(kFreshFile);
    host.WriteSettings(file);
    options.vOptions_Restore();
    EXPECT_EQ(2, options.Units);
    EXPECT_EQ(3, options.GougeCheck);
    EXPECT_EQ(4, options.SortType);
    EXPECT_EQ(5.5, options.SharpCorneAngleLimit);
    EXPECT_EQ(6.5, options.CurveTolerance);
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(RecordEdm, AnAbsentKeyStaysAsItWas)
{
    host.WriteSettings("[OptionsEDM]\r\nCurveTolerance=0.08\r\n");
    options.SortType = 0;
    options.SharpCorneAngleLimit = 45.0;
    options.vOptions_Restore();
    EXPECT_EQ(0.07999999821186066, options.CurveTolerance);
    EXPECT_EQ(0, options.SortType);
    EXPECT_EQ(45.0, options.SharpCorneAngleLimit);
}

TEST_F(RecordEdm, AnEmptyFileRestoresNothing)
{
    options.vOptions_Restore();
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(RecordEdm, TheLimitAngleHasNoOtherKey)
{
    host.WriteSettings("[OptionsEDM]\r\nSharpCornerAngleLimit=45\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(89.0, options.SharpCorneAngleLimit);
}

TEST_F(RecordEdm, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[OptionsEDM]\r\nUnits=1\r\nCurveTolerance=2.5\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(2.5, options.CurveTolerance);
    EXPECT_EQ(4.0, options.MaxFeedBetween);
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

struct TypedLength {
    double Record::*length;
    int Record::*type;
};

constexpr TypedLength kTypedLengths[] = {
    {&Record::MaxFeedBetween, &Record::FeedBetweenType},
    {&Record::CornerClearance, &Record::CornerClearanceType},
    {&Record::SideClearance, &Record::SideClearanceType},
    {&Record::SideFinishStep, &Record::SideFinishStepType},
};

TEST_F(RecordEdm, EachLengthIsScaledThereAndBackExactlyWhileItsOwnTypeIsConstant)
{
    for (const TypedLength& constant : kTypedLengths) {
        Record record;
        for (const TypedLength& row : kTypedLengths) {
            record.*row.length = 0.8;
            record.*row.type = 1;
        }
        record.*constant.type = 0;
        record.vEDMOptionsCheckUnits(1);
        for (const TypedLength& row : kTypedLengths)
            EXPECT_EQ(row.length == constant.length ? 20.0 : 0.8, record.*row.length);
        record.vEDMOptionsCheckUnits(0);
        for (const TypedLength& row : kTypedLengths)
            EXPECT_EQ(0.8, record.*row.length);
    }
}

TEST_F(RecordEdm, TheToleranceIsAlwaysScaledAndAnglesNever)
{
    for (const int type : {0, 1}) {
        Record record;
        record.CornerAngleType = type;
        record.CurveTolerance = 0.8;
        record.vEDMOptionsCheckUnits(1);
        EXPECT_EQ(20.0, record.CurveTolerance);
        EXPECT_EQ(135.0, record.CornerAngle);
        EXPECT_EQ(89.0, record.SharpCorneAngleLimit);
        record.vEDMOptionsCheckUnits(0);
        EXPECT_EQ(0.8, record.CurveTolerance);
        EXPECT_EQ(135.0, record.CornerAngle);
        EXPECT_EQ(89.0, record.SharpCorneAngleLimit);
    }
}

TEST_F(RecordEdm, ConvertingToItsOwnUnitsChangesNothing)
{
    for (const int units : {0, 1}) {
        options.Units = units;
        options.CurveTolerance = 0.8;
        options.vEDMOptionsCheckUnits(units);
        EXPECT_EQ(0.8, options.CurveTolerance);
    }
}

TEST_F(RecordEdm, DefaultsWithoutAFileAreTheBuiltInValuesHiddenFieldsIncluded)
{
    host.WriteSettings(EveryKeyChanged(kFreshFile));
    options = WithHiddenFields();
    options.vOptions_Restore();
    options.vOptions_Defaults();
    ExpectSameHiddenFields(Record(), options);
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(RecordEdm, DefaultsTakeEveryKeyOfTheirFileAndNoHiddenField)
{
    const std::string file = EveryKeyChanged(kFreshFile).replace(14, 7, "Units=0");
    host.WriteDefaults(file + "MaxFeedBetween=9\r\nSideClearance=9\r\nToolLengthGauge=1\r\n");
    options.vOptions_Defaults();
    ExpectSameHiddenFields(Record(), options);
    options.vOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(RecordEdm, DefaultsOfAMetricFileWithoutValuesAreTheBuiltInOnesAgain)
{
    host.WriteDefaults("[OptionsEDM]\r\nUnits=1\r\n");
    options.vOptions_Defaults();
    ExpectSameHiddenFields(Record(), options);
    options.vOptions_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(RecordEdm, DefaultsComeFromTheDefaultsFileInItsUnits)
{
    host.WriteDefaults("[OptionsEDM]\r\nUnits=1\r\nCurveTolerance=5\r\n");
    host.WriteSettings("[OptionsEDM]\r\nCurveTolerance=99\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(0.2, options.CurveTolerance);
    EXPECT_EQ(89.0, options.SharpCorneAngleLimit);
}

TEST_F(RecordEdm, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordEdm, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::vOptions_Restore, &Record::vOptions_Save);
}

TEST_F(RecordEdm, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLastEDMOptions());
    EXPECT_EQ(GetLastEDMOptions(), GetLastEDMOptions());
}

// ---- the page ----

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

class PageEdm : public OptionPageTest<CDefsEDMPage, Record, GetLastEDMOptions> {
protected:
    int OtherControl(int) override { return kSortType; }
};

/// The page with everything that it hides in sight, as a host may show it, and the plunge changes enabled.
class WholeEdmPage : public CDefsEDMPage {
public:
    BOOL OnInitDialog() override
    {
        const BOOL result = CDefsEDMPage::OnInitDialog();
        for (const HWND control : ui::Children(m_hWnd))
            ::ShowWindow(control, SW_SHOW);
        ::EnableWindow(ui::Control(m_hWnd, kPlungeChanges), TRUE);
        return result;
    }
};

class WholePageEdm : public OptionPageTest<WholeEdmPage, Record, GetLastEDMOptions> {
protected:
    WholePageEdm() { MaterialLibrarySwitch() = true; }
    ~WholePageEdm() override { MaterialLibrarySwitch() = false; }
    int OtherControl(int) override { return kSortType; }
};

const RealControl<Record> kTolerance = {3907, &Record::CurveTolerance, L"0.0000"};

const std::vector<RealControl<Record>> kRealsButTolerance = {
    {3902, &Record::MaxFeedBetween, L"4.0000"},  {3903, &Record::CornerAngle, L"135.0000"},
    {3904, &Record::CornerClearance, L"0.0000"}, {3905, &Record::SideClearance, L"1.5000"},
    {3906, &Record::SideFinishStep, L"0.8000"},  {3909, &Record::SharpCorneAngleLimit, L"89.0000"},
};

const std::vector<ListControl<Record>> kLists = {
    {3964, &Record::FeedBetweenType, kLengthTypeItems},     {1052, &Record::CornerAngleType, kCornerTypeItems},
    {1050, &Record::CornerClearanceType, kLengthTypeItems}, {1053, &Record::SideClearanceType, kLengthTypeItems},
    {1054, &Record::SideFinishStepType, kLengthTypeItems},  {1055, &Record::GougeCheck, {L"Одиночный", L"Полный"}},
    {1056, &Record::SortType, {L"Нет", L"Авто"}},           {1057, &Record::ToolLengthGauge, {L"Нет", L"Да"}},
};

const std::vector<BoxControl<Record>> kBoxes = {{4589, &Record::DispPlungeChanges}};

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

TEST_F(WholePageEdm, EveryRealButTheToleranceIsShownEvaluatedOnLeavingAndKept)
{
    CheckReals(kRealsButTolerance);
}

TEST_F(WholePageEdm, EveryRealKnowsTheEqualsKey)
{
    OpenSheet sheet({page.get()});
    for (const auto& row : kRealsButTolerance) {
        ui::Type(sheet.Page(), row.id, L"2*20.25=");
        EXPECT_EQ(L"40.5000", ui::TextOf(sheet.Page(), row.id)) << row.id;
    }
    ui::Type(sheet.Page(), kCurveTolerance, L"2*0.25=");
    EXPECT_EQ(L"0.5000", ui::TextOf(sheet.Page(), kCurveTolerance));
}

TEST_F(WholePageEdm, EveryListShowsItsItemsInOrderAndKeepsTheChosenOne)
{
    CheckLists(kLists);
}

TEST_F(WholePageEdm, AListWithoutASelectionOrWithAValueThatItDoesNotHoldKeepsTheField)
{
    CheckListsWithoutSelection(kLists);
}

TEST_F(WholePageEdm, TheCheckBoxKeepsItsStateAndMarksThePageModified)
{
    CheckBoxes(kBoxes);
}

TEST_F(WholePageEdm, LeavingAnEditDoesNotMarkThePageModified)
{
    OpenSheet sheet({page.get()});
    for (const auto& row : kRealsButTolerance)
        ui::Type(sheet.Page(), row.id, L"40");
    ui::Type(sheet.Page(), kCurveTolerance, L"40");
    ui::FocusOn(sheet.Page(), kSortType);
    EXPECT_FALSE(sheet.IsModified());
}

TEST_F(WholePageEdm, ValuesOutOfRangeAreRefusedAndBoundsAccepted)
{
    CheckBounds({{kSharpCornerAngle, L"4.9", L"5", L"5.0000", L"160.0000"},
                 {kSharpCornerAngle, L"160.1", L"160", L"5.0000", L"160.0000"},
                 {3903, L"29.9", L"30", L"30.0000", L"150.0000"},
                 {3903, L"150.1", L"150", L"30.0000", L"150.0000"}});
}

TEST_F(WholePageEdm, EveryOtherRealReachesToTheLargestSinglePrecisionValue)
{
    for (const int id : {3902, 3904, 3905, 3906, 3907})
        CheckBounds({{id, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
                     {id, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded}});
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

TEST_F(WholePageEdm, LeavingTheSideClearanceOrFinishStepTellsTheOtherPagesItsNewValue)
{
    struct Notice {
        int id;
        WPARAM code;
    };
    for (const Notice& row : {Notice{kSideClearance, 32797}, Notice{kSideFinishStep, 32799}}) {
        const std::unique_ptr<WholeEdmPage> shown = Fresh();
        SiblingSpy spy;
        spy.realCodes = {row.code};
        OpenSheet sheet({shown.get(), &spy});
        ui::Type(sheet.Page(), row.id, L"1/8");
        EXPECT_TRUE(spy.notices.empty()) << row.id;
        ui::FocusOn(sheet.Page(), kSortType);
        ASSERT_EQ(1u, spy.notices.size()) << row.id;
        EXPECT_EQ(row.code, spy.notices[0].code);
        EXPECT_EQ(std::vector<double>{0.125}, spy.reals) << row.id;

        ui::Type(sheet.Page(), row.id, L"(");
        ui::FocusOn(sheet.Page(), kSortType);
        ui::Answer(ui::WaitForBox(), IDOK);
        EXPECT_EQ(1u, spy.notices.size()) << row.id;
        ui::Type(sheet.Page(), row.id, L"1");
    }
}

TEST_F(WholePageEdm, ChoosingTheGaugeTellsTheOtherPagesTheIndex)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    ui::Choose(sheet.Page(), kToolLengthGauge, 1);
    ui::Choose(sheet.Page(), kToolLengthGauge, -1);
    EXPECT_EQ((std::vector<SiblingSpy::Notice>{{32770, 1}}), spy.notices);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(1, GetLastEDMOptions()->ToolLengthGauge);
}

TEST_F(WholePageEdm, NoOtherControlTellsTheOtherPagesAnything)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const auto& row : kLists)
        if (row.id != kToolLengthGauge)
            ui::Choose(sheet.Page(), row.id, 0);
    for (const auto& row : kRealsButTolerance)
        if (row.id != kSideClearance && row.id != kSideFinishStep)
            ui::Type(sheet.Page(), row.id, L"40");
    ui::Type(sheet.Page(), kCurveTolerance, L"40");
    ui::Click(sheet.Page(), kPlungeChanges);
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_TRUE(spy.notices.empty());
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

TEST_F(PageEdm, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    GetLastEDMOptions()->CurveTolerance = 1.0;
    ui::UiThread::Get().Call([this] { page->GetData(1); });
    EXPECT_EQ(1, GetLastEDMOptions()->Units);
    EXPECT_EQ(25.0, GetLastEDMOptions()->CurveTolerance);
    ui::UiThread::Get().Call([this] { page->GetData(2); });
    EXPECT_EQ(0, GetLastEDMOptions()->Units);
    EXPECT_EQ(1.0, GetLastEDMOptions()->CurveTolerance);
}

TEST_F(PageEdm, ShowsMillimetresAndDefaultsInThem)
{
    host.WriteDefaults("[OptionsEDM]\r\nCurveTolerance=2\r\n");
    Record record;
    record.CurveTolerance = 1.0;
    page = Fresh(record, 1);
    OpenSheet sheet({page.get()});
    EXPECT_EQ(L"25.0000", ui::TextOf(sheet.Page(), kCurveTolerance));
    ui::Click(sheet.Page(), kDefaultsButton);
    EXPECT_EQ(L"50.0000", ui::TextOf(sheet.Page(), kCurveTolerance));
    sheet.Ok();
    EXPECT_EQ(1, GetLastEDMOptions()->Units);
}

TEST_F(PageEdm, OkStoresCancelDoesNotAndNeitherWritesAFile)
{
    {
        OpenSheet sheet({page.get()});
        ui::Type(sheet.Page(), kSharpCornerAngle, L"60+1/2");
        EXPECT_EQ(89.0, GetLastEDMOptions()->SharpCorneAngleLimit);
        sheet.Ok();
    }
    EXPECT_EQ(60.5, GetLastEDMOptions()->SharpCorneAngleLimit);
    page = Fresh();
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kSharpCornerAngle, L"30");
    sheet.Cancel();
    EXPECT_EQ(89.0, GetLastEDMOptions()->SharpCorneAngleLimit);
    EXPECT_EQ("", host.ReadSettings());
}

TEST_F(PageEdm, ApplyStoresAndLeavesThePageUnmodified)
{
    OpenSheet sheet({page.get()});
    ui::Choose(sheet.Page(), kSortType, 0);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Press(kApply);
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(0, GetLastEDMOptions()->SortType);
    EXPECT_TRUE(sheet.IsOpen());
}

TEST_F(WholePageEdm, DefaultsByButtonShowTheBuiltInValuesInEveryControl)
{
    Record other;
    for (const auto& row : kRealsButTolerance)
        other.*row.field = 40.0;
    other.CurveTolerance = 3.0;
    for (const auto& row : kLists)
        other.*row.field = 1 - Record().*row.field;
    other.DispPlungeChanges = 1;
    page = Fresh(other);
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kDefaultsButton);
    for (const auto& row : kRealsButTolerance)
        EXPECT_EQ(row.shown, ui::TextOf(sheet.Page(), row.id)) << row.id;
    EXPECT_EQ(kTolerance.shown, ui::TextOf(sheet.Page(), kTolerance.id));
    for (const auto& row : kLists)
        EXPECT_EQ(Record().*row.field, ui::Selection(sheet.Page(), row.id)) << row.id;
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kPlungeChanges));
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(40.0, GetLastEDMOptions()->SharpCorneAngleLimit);
    sheet.Ok();
    ExpectSameHiddenFields(Record(), *GetLastEDMOptions());
}

TEST_F(PageEdm, TheHostsDefaultsMessageDoesTheSameAndIsAnsweredWithZero)
{
    host.WriteDefaults("[OptionsEDM]\r\nCurveTolerance=0.25\r\nSortType=0\r\n");
    OpenSheet sheet({page.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(L"0.2500", ui::TextOf(sheet.Page(), kCurveTolerance));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kSortType));
}

TEST_F(PageEdm, ActivatingAgainAddsNoItemsTwiceAndShowsTheDataAgain)
{
    CheckReactivation();
    page = Fresh();
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::Type(sheet.Page(), kSharpCornerAngle, L"60+1/2");
    ui::Choose(sheet.Page(), kGougeCheck, 0);
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(L"60.5000", ui::TextOf(sheet.Page(), kSharpCornerAngle));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kGougeCheck));
}

TEST_F(WholePageEdm, EveryTopicOfItsTableIsShown)
{
    constexpr char step[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
    CheckTopics({
        {0, "pelmar-_options_hidd_edm_cut_opt.htm"},
        {3902, "pelmar-_optionspopups_hidc_edmopts_maxfeed.htm"},
        {1050, step},
        {1053, step},
        {1054, step},
        {3964, step},
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
    });
}

TEST_F(PageEdm, ControlsThatAreMissingAreSkipped)
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

TEST_F(WholePageEdm, ItsLayoutHasRoomForWhatIsHidden)
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
