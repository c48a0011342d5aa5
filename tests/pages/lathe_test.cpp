#include <clocale>
#include <cmath>
#include <limits>

#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace {

constexpr int kCornerAngle = 3902;
constexpr int kCornerAngleType = 3964;
constexpr int kCornerClearance = 3903;
constexpr int kGrooveSideStep = 3904;
constexpr int kLeadIn = 1052;
constexpr int kLeadOut = 1050;
constexpr int kFollow = 4589;
constexpr int kRadiusAxes = 3940;
constexpr int kDiameterAxes = 3941;
constexpr int kDefaultsButton = 4456;

struct Turning : OperationOf<CLatheOptionsInfo, CDefsLathePage> {
    using R = Record;
    static constexpr auto Live = GetLastLatheOptions;
    static inline const Operations operations = {"[OptionsLathe]\r\n"
                                                 "Units=0\r\n"
                                                 "CornerAngle=90.000000\r\n"
                                                 "CornerAngleType=0\r\n"
                                                 "CornerClearance=0.000000\r\n"
                                                 "GrooveSideStep=95.000000\r\n"
                                                 "LeadInSpeed=1\r\n"
                                                 "LeadOutSpeed=1\r\n"
                                                 "Follow=1\r\n",
                                                 &R::vOptions_Defaults, &R::vOptions_Save, &R::vOptions_Restore,
                                                 &R::vLatheOptionsCheckUnits};
    static inline const std::string changed = EveryKeyChanged(operations.fresh);
    static inline const Fields fields = {{"CornerAngle", &R::CornerAngle},
                                         {"CornerAngleType", &R::CornerAngleType},
                                         {"CornerClearance", &R::CornerClearance},
                                         {"GrooveSideStep", &R::GrooveSideStep},
                                         {"LeadInSpeed", &R::LeadInSpeed},
                                         {"LeadOutSpeed", &R::LeadOutSpeed},
                                         {"Follow", &R::Follow}};
    static inline const Lengths lengths;
    static inline const Unscaled unscaled = {&R::CornerAngle, &R::CornerClearance, &R::GrooveSideStep};

    static constexpr int templateId = 3937;
    static constexpr wchar_t title[] = L"Токарные параметры";
    static constexpr int other = kFollow;
    static constexpr bool startsWithLiveRecord = false;
    static inline const Sample<R> sample = {kGrooveSideStep, "GrooveSideStep", &R::GrooveSideStep, L"60+1/2", 60.5,
                                            L"60.5000",      "60.500000"};
    static inline const Reals reals = {
        {kCornerAngle, &R::CornerAngle, L"90.0000"},
        {kCornerClearance, &R::CornerClearance, L"0.0000"},
        {kGrooveSideStep, &R::GrooveSideStep, L"95.0000"},
    };
    static inline const std::vector<int> markingEdits = {kCornerAngle, kCornerClearance, kGrooveSideStep};
    static inline const Lists lists = {
        {kCornerAngleType, &R::CornerAngleType, kCornerTypeItems},
        {kLeadIn, &R::LeadInSpeed, kFeedItems},
        {kLeadOut, &R::LeadOutSpeed, kFeedItems},
    };
    /// The lead-in alone stores that nothing is selected.
    static int LeftWithoutSelection(int id) { return id == kLeadIn ? -1 : 99; }
    static inline const std::vector<std::pair<std::string, std::string>> whereMissing = {{"LeadInSpeed", "-1"}};
    static inline const Boxes boxes = {{kFollow, &R::Follow}};
    static inline const std::vector<Bound> bounds = {
        {kCornerAngle, L"29.9999", L"30", L"30.0000", L"150.0000"},
        {kCornerAngle, L"150.0001", L"150", L"30.0000", L"150.0000"},
        {kGrooveSideStep, L"4.9999", L"5", L"5.0000", L"95.0000"},
        {kGrooveSideStep, L"95.0001", L"95", L"5.0000", L"95.0000"},
        {kCornerClearance, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
        {kCornerClearance, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded}};
    static inline const DefaultsCase defaults = {
        "GrooveSideStep=70\r\nFollow=0\r\nLeadOutSpeed=2\r\n",
        {{"GrooveSideStep", "70.000000"}, {"Follow", "0"}, {"LeadOutSpeed", "2"}},
        {{kGrooveSideStep, L"70.0000"}}};
    static inline const std::vector<Topic> topics = {
        {0, "pelmar-_options_hidd_lathe_cut_opt.htm"},
        {kCornerAngle, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
        {kCornerClearance, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
        {kGrooveSideStep, "pelmar-_optionspopups_hidc_latheopts_groove_sidestep.htm"},
        {kCornerAngleType, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
        {kLeadOut, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {kLeadIn, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {kFollow, "pelmar-_optionspopups_hidc_latheopts_follow.htm"},
        {kDefaultsButton, "pelmar-_ncdlgs_defaults_button.htm"},
    };
    /// Of the tool gauge.
    static inline const std::vector<Topic> absentTopics = {{4590, "pelmar-_optionspopups_hidc_latheopts_tl_gauge.htm"}};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Turning, EveryRecord, Turning);
INSTANTIATE_TYPED_TEST_SUITE_P(Turning, EveryPage, Turning);
INSTANTIATE_TYPED_TEST_SUITE_P(Turning, PageWithBoxes, Turning);
INSTANTIATE_TYPED_TEST_SUITE_P(Turning, PageTakingEditsAtOnce, Turning);
INSTANTIATE_TYPED_TEST_SUITE_P(Turning, PageWithDefaults, Turning);
INSTANTIATE_TYPED_TEST_SUITE_P(Turning, PageWithDefaultsButton, Turning);

// ---- the record ----

class RecordLathe : public EveryRecord<Turning> {};

TEST_F(RecordLathe, OtherUnitsChangeNoNumber)
{
    record.CornerClearance = 0.3;
    for (const long units : {1L, 1L, 7L, 0L}) {
        Convert(units);
        EXPECT_EQ(units, record.Units);
        EXPECT_EQ(90.0, record.CornerAngle);
        EXPECT_EQ(0.3, record.CornerClearance);
        EXPECT_EQ(95.0, record.GrooveSideStep);
    }
}

TEST_F(RecordLathe, DefaultsOfAFileInInchAreNotConvertedToMillimetreEither)
{
    SetUnits(1);
    host.WriteDefaults("[OptionsLathe]\r\nUnits=0\r\nCornerClearance=2.5\r\n");
    record.GrooveSideStep = 20.0;
    Defaults();
    EXPECT_EQ(1, record.Units);
    EXPECT_EQ(2.5, record.CornerClearance);
    EXPECT_EQ(95.0, record.GrooveSideStep);
    EXPECT_EQ(90.0, record.CornerAngle);
}

// ---- the page ----

using Lathe = CLatheOptionsInfo;

class PageLathe : public EveryPage<Turning> {};

TEST_F(PageLathe, TheLeadInStoresThatNothingIsSelected)
{
    OpenSheet sheet({page.get()});
    ui::Choose(sheet.Page(), kLeadIn, -1);
    EXPECT_TRUE(sheet.IsModified());
    sheet.Ok();
    EXPECT_EQ(-1, GetLastLatheOptions()->LeadInSpeed);
}

TEST_F(PageLathe, ALeadInThatTheListDoesNotHoldSelectsNothingAndIsKeptUntouched)
{
    Lathe odd;
    odd.LeadInSpeed = 99;
    page = Fresh(odd);
    OpenSheet sheet({page.get()});
    EXPECT_EQ(-1, ui::Selection(sheet.Page(), kLeadIn));
    sheet.Ok();
    EXPECT_EQ(99, GetLastLatheOptions()->LeadInSpeed);
}

TEST_F(PageLathe, AValueOutOfRangeIsRefusedOnLeavingTheField)
{
    OpenSheet sheet({page.get()});
    ui::Type(sheet.Page(), kGrooveSideStep, L"96");
    ui::FocusOn(sheet.Page(), kFollow);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_EQ(ui::Control(sheet.Page(), kGrooveSideStep), ui::Focus(sheet.window));
    EXPECT_EQ(L"96", ui::TextOf(sheet.Page(), kGrooveSideStep));
    ui::Type(sheet.Page(), kGrooveSideStep, L"50");
    sheet.Ok();
    EXPECT_EQ(50.0, GetLastLatheOptions()->GrooveSideStep);
}

TEST_F(PageLathe, TheHostsUnitsConvertNothingAndOnlyOneIsMillimetre)
{
    Lathe stored;
    stored.CornerClearance = 0.3;
    for (const auto& [given, kept] : {std::pair{1, 1}, std::pair{2, 0}, std::pair{1, 1}, std::pair{0, 0}}) {
        page = Fresh(stored, given);
        EXPECT_EQ(kept, GetLastLatheOptions()->Units) << given;
        EXPECT_EQ(0.3, GetLastLatheOptions()->CornerClearance) << given;
        Lathe defaults;
        defaults.vOptions_Defaults();
        EXPECT_EQ(kept, defaults.Units) << given;
    }
}

TEST_F(PageLathe, WhereControlsAreMissingTheOthersWork)
{
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kCornerClearance, kLeadIn, kFollow, kRadiusAxes})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Type(sheet.Page(), kCornerAngle, L"45");
    ui::Click(sheet.Page(), kDefaultsButton);
    sheet.Switch(1);
    sheet.Switch(0);
    ui::Choose(sheet.Page(), kLeadOut, 2);
    sheet.Ok();
    EXPECT_EQ(90.0, GetLastLatheOptions()->CornerAngle);
    EXPECT_EQ(2, GetLastLatheOptions()->LeadOutSpeed);
    EXPECT_EQ(1, GetLastLatheOptions()->LeadInSpeed);
}

// ---- the axis modes ----

constexpr int kFirstLabel = 1047;
constexpr int kAtStartup = 1050;
constexpr int kFirstX = 1910;
constexpr int kFirstY = 1911;
constexpr int kThirdZ = 1920;
constexpr double kUnusedRow = 777.0;

enum ModeIndex { kRadiusInput, kRadiusDisplay, kDiameterInput, kDiameterDisplay };

/// The arrays of a host.
struct HostModes {
    int labels[4][3];
    int active[4] = {};
    double directions[4][4][3];

    /// Every mode with labels and directions of its own.
    HostModes()
    {
        for (int mode = 0; mode < 4; ++mode)
            for (int axis = 0; axis < 3; ++axis) {
                labels[mode][axis] = (mode + axis) % 6;
                for (int component = 0; component < 3; ++component)
                    directions[mode][component][axis] = mode + 0.25 * axis + 0.0625 * component;
                directions[mode][3][axis] = kUnusedRow;
            }
    }
};

void ExpectSame(const HostModes& expected, const HostModes& actual)
{
    for (int mode = 0; mode < 4; ++mode) {
        EXPECT_EQ(expected.active[mode], actual.active[mode]) << "mode " << mode;
        for (int axis = 0; axis < 3; ++axis) {
            EXPECT_EQ(expected.labels[mode][axis], actual.labels[mode][axis]) << "mode " << mode << ", axis " << axis;
            for (int row = 0; row < 4; ++row)
                EXPECT_EQ(expected.directions[mode][row][axis], actual.directions[mode][row][axis])
                    << "mode " << mode << ", axis " << axis << ", row " << row;
        }
    }
}

/// The sheet of one measure, opened by its button; closed at the end of the test, where nobody has.
class AxesSheet {
public:
    AxesSheet(HWND lathePage, int button)
    {
        ui::Click(lathePage, button);
        window = ui::WaitForWindow(button == kRadiusAxes ? L"Режим токарных осей - радиус"
                                                         : L"Режим токарных осей - диаметр");
    }
    ~AxesSheet()
    {
        if (IsWindow(window))
            Close(IDCANCEL);
    }
    AxesSheet(const AxesSheet&) = delete;
    AxesSheet& operator=(const AxesSheet&) = delete;

    HWND Page() const { return reinterpret_cast<HWND>(SendMessage(window, PSM_GETCURRENTPAGEHWND, 0, 0)); }
    void ShowDisplay() const
    {
        PostMessage(window, PSM_SETCURSEL, 1, 0);
        ui::Settle(window);
    }
    void Press(int button) const
    {
        PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button),
                    reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
        ui::Settle(window);
    }
    void Close(int button) const
    {
        Press(button);
        if (!ui::WaitForClose(window))
            throw std::runtime_error("the sheet of the axes did not close");
    }

    HWND window = nullptr;
};

class LatheAxes : public PageLathe {
protected:
    LatheAxes() { Give(modes); }

    /// Hands the modes to a new page.
    void Give(const HostModes& given)
    {
        axesPage = std::make_unique<CDefsLathePage>();
        ui::UiThread::Get().Call([&] { axesPage->GetData(0, given.labels, given.active, given.directions); });
    }
    HostModes Taken()
    {
        HostModes taken;
        ui::UiThread::Get().Call([&] { axesPage->SetData(taken.labels, taken.active, taken.directions); });
        return taken;
    }
    std::string Line(const char* key) { return Value(host.hostSettings, "DefaultNCParameter", key); }

    HostModes modes;
    std::unique_ptr<CDefsLathePage> axesPage;
};

TEST_F(LatheAxes, TheModesComeBackAsTheyWereGivenAndTheUnusedRowIsLeftAlone)
{
    modes.active[kRadiusDisplay] = 1;
    modes.active[kDiameterInput] = 5;
    Give(modes);
    HostModes taken;
    for (auto& table : taken.directions)
        for (double& unused : table[3])
            unused = -1.0;
    axesPage->SetData(taken.labels, taken.active, taken.directions);
    for (auto& table : modes.directions)
        for (double& unused : table[3])
            unused = -1.0;
    ExpectSame(modes, taken);
}

TEST_F(LatheAxes, GivingTheModesTakesTheUnitsAndTheLiveRecordToo)
{
    GetLastLatheOptions()->CornerClearance = 0.3;
    ui::UiThread::Get().Call([&] { axesPage->GetData(1, modes.labels, modes.active, modes.directions); });
    EXPECT_EQ(1, GetLastLatheOptions()->Units);
    EXPECT_EQ(0.3, GetLastLatheOptions()->CornerClearance);
    OpenSheet sheet({axesPage.get()});
    EXPECT_EQ(L"0.3000", ui::TextOf(sheet.Page(), kCornerClearance));
}

TEST_F(LatheAxes, TheButtonsAreHiddenOnceThePageWasGivenUnitsAlone)
{
    OpenSheet sheet({page.get()});
    EXPECT_FALSE(ui::IsShown(sheet.Page(), kRadiusAxes));
    EXPECT_FALSE(ui::IsShown(sheet.Page(), kDiameterAxes));
}

TEST_F(LatheAxes, TheButtonsAreShownForModesAndForAPageThatWasGivenNothing)
{
    CDefsLathePage untouched;
    for (CDefsLathePage* shown : {axesPage.get(), &untouched}) {
        OpenSheet sheet({shown});
        EXPECT_TRUE(ui::IsShown(sheet.Page(), kRadiusAxes));
        EXPECT_TRUE(ui::IsShown(sheet.Page(), kDiameterAxes));
    }
}

TEST_F(LatheAxes, ModesThatComeAfterUnitsAloneDoNotShowTheButtonsAgain)
{
    ui::UiThread::Get().Call([&] {
        axesPage->GetData(0);
        axesPage->GetData(0, modes.labels, modes.active, modes.directions);
    });
    OpenSheet sheet({axesPage.get()});
    EXPECT_FALSE(ui::IsShown(sheet.Page(), kRadiusAxes));
    EXPECT_FALSE(ui::IsShown(sheet.Page(), kDiameterAxes));
}

std::wstring TabText(HWND sheet, int index)
{
    const auto tabs = reinterpret_cast<HWND>(SendMessage(sheet, PSM_GETTABCONTROL, 0, 0));
    wchar_t text[80] = {};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 80;
    SendMessage(tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return text;
}

TEST_F(LatheAxes, TheSheetHasTwoNamedTabsAndNeitherApplyNorHelp)
{
    OpenSheet sheet({axesPage.get()});
    for (const int button : {kRadiusAxes, kDiameterAxes}) {
        const AxesSheet axes(sheet.Page(), button);
        EXPECT_EQ(L"Задание", TabText(axes.window, 0));
        EXPECT_EQ(L"Отображение", TabText(axes.window, 1));
        for (const int absent : {kApply, IDHELP}) {
            const HWND control = GetDlgItem(axes.window, absent);
            EXPECT_TRUE(!control || !IsWindowVisible(control)) << absent;
        }
        EXPECT_FALSE(IsWindowEnabled(sheet.window));
        EXPECT_EQ(sheet.window, GetWindow(axes.window, GW_OWNER));
    }
}

TEST_F(LatheAxes, TheSheetAndItsPagesKnowTheirClasses)
{
    ui::UiThread::Get().Call([] {
        const CLatheInputDisplayPS sheet(L"");
        EXPECT_TRUE(sheet.IsKindOf(RUNTIME_CLASS(CLatheInputDisplayPS)));
        EXPECT_TRUE(sheet.m_input.IsKindOf(RUNTIME_CLASS(CLatheInputDisplayPage)));
        EXPECT_FALSE(sheet.m_input.IsKindOf(RUNTIME_CLASS(CLatheInputDisplayPS)));
    });
}

TEST_F(LatheAxes, ASheetWithAThirdPageKeepsTheNamesOfTheTemplates)
{
    CLatheInputDisplayPS sheet(L"Оси");
    CDefsLathePage third;
    ui::UiThread::Get().Call([&] { sheet.AddPage(&third); });
    ui::UiThread::Get().Start([&] { sheet.DoModal(); });
    const HWND window = ui::WaitForWindow(L"Оси");
    EXPECT_NE(L"Задание", TabText(window, 0));
    EXPECT_EQ(TabText(window, 0), TabText(window, 1));
    PostMessage(window, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(ui::WaitForClose(window));
    ui::UiThread::Get().WaitForStarted();
}

TEST_F(LatheAxes, ThePagesShowTheirModes)
{
    modes.active[kRadiusDisplay] = 1;
    modes.active[kDiameterInput] = 1;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    for (const int button : {kRadiusAxes, kDiameterAxes}) {
        const AxesSheet axes(sheet.Page(), button);
        for (const int use : {0, 1}) {
            const int mode = (button == kRadiusAxes ? kRadiusInput : kDiameterInput) + use;
            if (use == 1)
                axes.ShowDisplay();
            const HWND shown = axes.Page();
            EXPECT_EQ(use == 0 ? L"Ярлык клавиатуры при запуске" : L"Показать КВид при запуске",
                      ui::TextOf(shown, kAtStartup));
            EXPECT_EQ(modes.active[mode] != 0, ui::IsChecked(shown, kAtStartup)) << mode;
            for (int axis = 0; axis < 3; ++axis) {
                EXPECT_EQ((std::vector<std::wstring>{L"-", L"X", L"Y", L"Z", L"D", L"R"}),
                          ui::Items(shown, kFirstLabel + axis));
                EXPECT_EQ(modes.labels[mode][axis], ui::Selection(shown, kFirstLabel + axis)) << mode;
                for (int component = 0; component < 3; ++component)
                    EXPECT_EQ(CString(FormatForDisplay(modes.directions[mode][component][axis]).c_str()).GetString(),
                              ui::TextOf(shown, kFirstX + 4 * axis + component))
                        << mode;
            }
        }
    }
}

TEST_F(LatheAxes, OkPutsWhatWasEditedIntoTheModesOfThatMeasure)
{
    OpenSheet sheet({axesPage.get()});
    HostModes expected = modes;
    for (const int button : {kRadiusAxes, kDiameterAxes}) {
        const AxesSheet axes(sheet.Page(), button);
        for (const int use : {0, 1}) {
            const int mode = (button == kRadiusAxes ? kRadiusInput : kDiameterInput) + use;
            if (use == 1)
                axes.ShowDisplay();
            for (int axis = 0; axis < 3; ++axis) {
                expected.labels[mode][axis] = (modes.labels[mode][axis] + 1) % 6;
                ui::Choose(axes.Page(), kFirstLabel + axis, expected.labels[mode][axis]);
                for (int component = 0; component < 3; ++component) {
                    expected.directions[mode][component][axis] = -(mode * 9 + axis * 3 + component + 0.5);
                    ui::Type(axes.Page(), kFirstX + 4 * axis + component,
                             std::to_wstring(expected.directions[mode][component][axis] - 1) + L"+1");
                }
            }
            if (button == kRadiusAxes) {
                ui::Click(axes.Page(), kAtStartup);
                expected.active[mode] = 1;
            }
        }
        axes.Close(IDOK);
        ExpectSame(expected, Taken());
    }
    EXPECT_FALSE(sheet.IsModified());
}

TEST_F(LatheAxes, CancelLeavesTheModesAlone)
{
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kDiameterAxes);
    ui::Choose(axes.Page(), kFirstLabel, 5);
    ui::Type(axes.Page(), kFirstX, L"9");
    ui::Click(axes.Page(), kAtStartup);
    axes.ShowDisplay();
    ui::Type(axes.Page(), kThirdZ, L"9");
    axes.Close(IDCANCEL);
    ExpectSame(modes, Taken());
}

TEST_F(LatheAxes, OkChangesNothingWhereNothingWasEdited)
{
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    axes.Close(IDOK);
    ExpectSame(modes, Taken());
}

TEST_F(LatheAxes, APageKeepsItsEditsWhileTheOtherIsInFront)
{
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Type(axes.Page(), kFirstY, L"1/8");
    ui::Choose(axes.Page(), kFirstLabel, 5);
    ui::Click(axes.Page(), kAtStartup);
    axes.ShowDisplay();
    PostMessage(axes.window, PSM_SETCURSEL, 0, 0);
    ui::Settle(axes.window);
    EXPECT_EQ(L"0.1250", ui::TextOf(axes.Page(), kFirstY));
    EXPECT_EQ(5, ui::Selection(axes.Page(), kFirstLabel));
    EXPECT_EQ(6u, ui::Items(axes.Page(), kFirstLabel).size());
    EXPECT_TRUE(ui::IsChecked(axes.Page(), kAtStartup));
}

TEST_F(LatheAxes, DirectionsHaveNoRangeButMustBeNumbers)
{
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Type(axes.Page(), kFirstX, L"-1.0e200");
    ui::Type(axes.Page(), kFirstY, L"вверх");
    axes.Press(IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(ui::Control(axes.Page(), kFirstY), ui::Focus(axes.window));
    ExpectSame(modes, Taken());
    ui::Type(axes.Page(), kFirstY, L"1");
    axes.Close(IDOK);
    EXPECT_EQ(-1e200, Taken().directions[kRadiusInput][0][0]);
    EXPECT_EQ(1.0, Taken().directions[kRadiusInput][1][0]);
}

// ---- both measures active ----

constexpr wchar_t kBothInputs[] = L"Задание по радиусу и по диаметру включены одновременно. При запуске может "
                                  L"действовать только одно.";
constexpr wchar_t kBothDisplays[] = L"Отображение по радиусу и по диаметру включены одновременно. При запуске может "
                                    L"действовать только одно.";

void AnswerConflict(const wchar_t* conflict, int answer)
{
    const ui::MessageBoxSeen told = ui::WaitForBox();
    EXPECT_EQ(conflict, told.text);
    EXPECT_EQ(std::vector<int>{IDOK}, told.buttons);
    ui::Answer(told, IDOK);
    const ui::MessageBoxSeen asked = ui::WaitForBox();
    EXPECT_EQ(L"Вы хотите изменить переменную и установить активное значение?", asked.text);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), asked.buttons);
    EXPECT_EQ(LoadIcon(nullptr, IDI_HAND), asked.icon);
    ui::Answer(asked, answer);
}

struct Conflict {
    int button;
    int edited;
    int other;
};

constexpr Conflict kConflicts[] = {
    {kRadiusAxes, kRadiusInput, kDiameterInput},
    {kRadiusAxes, kRadiusDisplay, kDiameterDisplay},
    {kDiameterAxes, kDiameterInput, kRadiusInput},
    {kDiameterAxes, kDiameterDisplay, kRadiusDisplay},
};

bool IsDisplay(int mode)
{
    return mode == kRadiusDisplay || mode == kDiameterDisplay;
}

TEST_F(LatheAxes, YesMakesTheModeOfTheOtherMeasureGiveWayOnceTheSheetHasClosed)
{
    for (const Conflict& conflict : kConflicts) {
        HostModes given;
        given.active[conflict.other] = 1;
        Give(given);
        OpenSheet sheet({axesPage.get()});
        const AxesSheet axes(sheet.Page(), conflict.button);
        if (IsDisplay(conflict.edited))
            axes.ShowDisplay();
        ui::Click(axes.Page(), kAtStartup);
        AnswerConflict(IsDisplay(conflict.edited) ? kBothDisplays : kBothInputs, IDYES);
        EXPECT_TRUE(ui::IsChecked(axes.Page(), kAtStartup));
        EXPECT_EQ(1, Taken().active[conflict.other]);
        axes.Close(IDOK);
        given.active[conflict.edited] = 1;
        given.active[conflict.other] = 0;
        ExpectSame(given, Taken());
    }
}

TEST_F(LatheAxes, NoUnchecksTheBoxAndChangesNothing)
{
    for (const Conflict& conflict : kConflicts) {
        HostModes given;
        given.active[conflict.other] = 1;
        Give(given);
        OpenSheet sheet({axesPage.get()});
        const AxesSheet axes(sheet.Page(), conflict.button);
        if (IsDisplay(conflict.edited))
            axes.ShowDisplay();
        ui::Click(axes.Page(), kAtStartup);
        AnswerConflict(IsDisplay(conflict.edited) ? kBothDisplays : kBothInputs, IDNO);
        EXPECT_FALSE(ui::IsChecked(axes.Page(), kAtStartup));
        axes.Close(IDOK);
        ExpectSame(given, Taken());
    }
}

TEST_F(LatheAxes, NothingIsAskedWhereTheOtherMeasureHasOnlyTheOtherUseActive)
{
    for (const Conflict& conflict : kConflicts) {
        HostModes given;
        for (int& active : given.active)
            active = 1;
        given.active[conflict.edited] = 0;
        given.active[conflict.other] = 0;
        Give(given);
        OpenSheet sheet({axesPage.get()});
        const AxesSheet axes(sheet.Page(), conflict.button);
        if (IsDisplay(conflict.edited))
            axes.ShowDisplay();
        ui::Click(axes.Page(), kAtStartup);
        EXPECT_FALSE(ui::IsBoxOpen());
        axes.Close(IDOK);
        given.active[conflict.edited] = 1;
        ExpectSame(given, Taken());
    }
}

TEST_F(LatheAxes, UncheckingAsksNothing)
{
    modes.active[kRadiusInput] = 1;
    modes.active[kDiameterInput] = 1;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Click(axes.Page(), kAtStartup);
    EXPECT_FALSE(ui::IsBoxOpen());
    axes.Close(IDOK);
    modes.active[kRadiusInput] = 0;
    ExpectSame(modes, Taken());
}

TEST_F(LatheAxes, YesAppliesEvenWhenTheSheetIsCancelled)
{
    modes.active[kDiameterInput] = 1;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Click(axes.Page(), kAtStartup);
    AnswerConflict(kBothInputs, IDYES);
    axes.Close(IDCANCEL);
    modes.active[kDiameterInput] = 0;
    ExpectSame(modes, Taken());
}

TEST_F(LatheAxes, TheLastAnswerCounts)
{
    modes.active[kDiameterInput] = 1;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Click(axes.Page(), kAtStartup);
    AnswerConflict(kBothInputs, IDYES);
    ui::Click(axes.Page(), kAtStartup);
    ui::Click(axes.Page(), kAtStartup);
    AnswerConflict(kBothInputs, IDNO);
    axes.Close(IDOK);
    ExpectSame(modes, Taken());
}

TEST_F(LatheAxes, ARefusedNumberDoesNotSpareTheQuestion)
{
    modes.active[kDiameterInput] = 1;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    ui::Type(axes.Page(), kFirstX, L"(");
    ui::Click(axes.Page(), kAtStartup);
    ui::Answer(ui::WaitForBox(), IDOK);
    AnswerConflict(kBothInputs, IDNO);
    EXPECT_FALSE(ui::IsChecked(axes.Page(), kAtStartup));
}

// ---- the lines in the host settings file ----

TEST_F(LatheAxes, TheHostsMessageWritesTheFourLinesInOrderAndIsAnsweredWithZero)
{
    for (int mode = 0; mode < 4; ++mode)
        for (int axis = 0; axis < 3; ++axis) {
            modes.labels[mode][axis] = axis + 1;
            for (int component = 0; component < 3; ++component)
                modes.directions[mode][component][axis] = component == axis ? 1.0 : 0.0;
        }
    modes.active[kRadiusInput] = 1;
    modes.labels[kRadiusDisplay][1] = 5;
    modes.directions[kDiameterInput][0][1] = -0.25; // X of the second axis
    modes.directions[kDiameterDisplay][2][0] = 1e7; // Z of the first axis
    Give(modes);
    const std::string before = ReadWholeFile(host.hostSettings);
    OpenSheet sheet({axesPage.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3073, 5, 6));
    const std::string lines =
        "[DefaultNCParameter]\r\n"
        "LatheInput=1 2 3 1 1.000000 0.000000 0.000000 0.000000 1.000000 0.000000 0.000000 0.000000 1.000000\r\n"
        "LatheView=1 5 3 0 1.000000 0.000000 0.000000 0.000000 1.000000 0.000000 0.000000 0.000000 1.000000\r\n"
        "LatheInputDia=1 2 3 0 1.000000 0.000000 0.000000 -0.250000 1.000000 0.000000 0.000000 0.000000 1.000000\r\n"
        "LatheViewDia=1 2 3 0 1.000000 0.000000 10000000.000000 0.000000 1.000000 0.000000 0.000000 0.000000 "
        "1.000000\r\n";
    const std::string after = ReadWholeFile(host.hostSettings);
    EXPECT_EQ(before, after.substr(0, before.size()));
    EXPECT_EQ(lines, after.substr(after.find("[DefaultNCParameter]")));
    EXPECT_EQ("", host.ReadSettings());
}

TEST_F(LatheAxes, TheMessageWritesWhatTheSheetHasChangedAndNotWhatItHasNotYet)
{
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kDiameterAxes);
    ui::Choose(axes.Page(), kFirstLabel, 5);
    SendMessage(sheet.Page(), 3073, 0, 0);
    EXPECT_EQ("2 3 4 0 ", Line("LatheInputDia").substr(0, 8));
    axes.Close(IDOK);
    SendMessage(sheet.Page(), 3073, 0, 0);
    EXPECT_EQ("5 3 4 0 ", Line("LatheInputDia").substr(0, 8));
}

TEST_F(LatheAxes, NeitherOkNorApplyWritesTheLines)
{
    OpenSheet sheet({axesPage.get()});
    ui::Click(sheet.Page(), kFollow);
    sheet.Press(kApply);
    sheet.Ok();
    EXPECT_EQ("<absent>", Line("LatheInput"));
}

TEST_F(LatheAxes, APageWithoutModesWritesEmptyOnes)
{
    OpenSheet sheet({page.get()});
    SendMessage(sheet.Page(), 3073, 0, 0);
    EXPECT_EQ("0 0 0 0 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000",
              Line("LatheViewDia"));
}

TEST_F(LatheAxes, TheLinesAreTheSameWhereTheDecimalSignIsAComma)
{
    ASSERT_NE(nullptr, setlocale(LC_ALL, "Russian"));
    ASSERT_EQ(std::string(","), localeconv()->decimal_point);
    OpenSheet sheet({axesPage.get()});
    SendMessage(sheet.Page(), 3073, 0, 0);
    setlocale(LC_ALL, "C");
    EXPECT_EQ("0 1 2 0 0.000000 0.062500 0.125000 0.250000 0.312500 0.375000 0.500000 0.562500 0.625000",
              Line("LatheInput"));
}

TEST_F(LatheAxes, ASettingsPathThatCannotExistTakesNoLines)
{
    WriteWholeFile(host.coreFile, "[DefaultPath]\r\nTorvexIniPath=C:\\" + std::string(1000, 'p') + "\r\n");
    host.Initialize();
    ASSERT_LT(size_t{MAX_PATH}, GetSettingsLocations().hostSettingsFile.view().size());
    OpenSheet sheet({axesPage.get()});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3073, 0, 0));
    EXPECT_EQ("<absent>", Line("LatheInput"));
}

// ---- what a host can get wrong ----

TEST_F(LatheAxes, LabelsOutOfRangeSelectNothingAreKeptAndWritten)
{
    modes.labels[kRadiusInput][0] = -7;
    modes.labels[kRadiusInput][1] = 6;
    modes.labels[kRadiusInput][2] = std::numeric_limits<int>::max();
    modes.labels[kRadiusDisplay][0] = std::numeric_limits<int>::min();
    modes.active[kRadiusInput] = 5;
    Give(modes);
    OpenSheet sheet({axesPage.get()});
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_EQ(-1, ui::Selection(axes.Page(), kFirstLabel + axis)) << axis;
    EXPECT_TRUE(ui::IsChecked(axes.Page(), kAtStartup));
    ui::Choose(axes.Page(), kFirstLabel, 4);
    axes.ShowDisplay();
    EXPECT_EQ(-1, ui::Selection(axes.Page(), kFirstLabel));
    axes.Close(IDOK);
    modes.labels[kRadiusInput][0] = 4;
    modes.active[kRadiusInput] = 1;
    ExpectSame(modes, Taken());
    SendMessage(sheet.Page(), 3073, 0, 0);
    EXPECT_EQ("4 6 2147483647 1 ", Line("LatheInput").substr(0, 17));
    EXPECT_EQ("-2147483648 2 3 0 ", Line("LatheView").substr(0, 18));
}

TEST_F(LatheAxes, ADirectionWithoutAnEditKeepsItsValue)
{
    OpenSheet sheet({axesPage.get()});
    {
        const AxesSheet axes(sheet.Page(), kRadiusAxes);
        ui::UiThread::Get().Call([&] { DestroyWindow(ui::Control(axes.Page(), kFirstX)); });
        ui::Type(axes.Page(), kFirstX + 1, L"7");
        axes.Close(IDOK);
    }
    HostModes expected = modes;
    expected.directions[kRadiusInput][1][0] = 7;
    ExpectSame(expected, Taken());
}

TEST_F(LatheAxes, DirectionsThatAreNoNumbersAreRefusedUntilTheyAreCorrected)
{
    for (const double value : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        HostModes given;
        given.directions[kRadiusInput][0][0] = value;
        Give(given);
        OpenSheet sheet({axesPage.get()});
        const AxesSheet axes(sheet.Page(), kRadiusAxes);
        axes.Press(IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Please enter a number.", box.text);
        ui::Answer(box, IDOK);
        EXPECT_EQ(ui::Control(axes.Page(), kFirstX), ui::Focus(axes.window));
        ui::Type(axes.Page(), kFirstX, L"1");
        axes.Close(IDOK);
        given.directions[kRadiusInput][0][0] = 1.0;
        ExpectSame(given, Taken());
    }
}

TEST_F(LatheAxes, EveryDirectionFitsItsLine)
{
    for (auto& table : modes.directions)
        for (auto& row : table)
            for (double& value : row)
                value = -std::numeric_limits<double>::max();
    modes.directions[kDiameterDisplay][0][0] = std::numeric_limits<double>::quiet_NaN();
    modes.directions[kDiameterDisplay][1][0] = -std::numeric_limits<double>::infinity();
    Give(modes);
    host.WriteSettings("[Settings]\r\nDecimals=50\r\n");
    OpenSheet sheet({axesPage.get()});
    {
        const AxesSheet axes(sheet.Page(), kRadiusAxes);
        EXPECT_EQ(1u + 309u + 1u + 50u, ui::TextOf(axes.Page(), kThirdZ).size());
        axes.Close(IDCANCEL);
    }
    SendMessage(sheet.Page(), 3073, 0, 0);
    const std::string line = Line("LatheView");
    EXPECT_EQ(std::string("1 2 3 0").size() + size_t{9} * (1 + 1 + 309 + 1 + 6), line.size());
    EXPECT_EQ(" -1797693134862315708145274237317043", line.substr(7, 36));
    EXPECT_EQ("3 4 5 0 nan -inf -1797693", Line("LatheViewDia").substr(0, 25));
}

// ---- layout ----

TEST_F(LatheAxes, TheLayoutsClipAndOverlapNothing)
{
    OpenSheet sheet({axesPage.get()});
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(sheet.Page()));
    const AxesSheet axes(sheet.Page(), kRadiusAxes);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(axes.Page()));
    axes.ShowDisplay();
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(axes.Page()));
}

} // namespace
