// The tips of every page and dialog: the pointer comes to rest on a control, as on the screen.
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "description/description.h"
#include "dialogs/dialog_driver.h"
#include "help/topic_texts.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "pages/dialogs.h"
#include "pages/page_driver.h"
#include "pages/tip_driver.h"

using Lines = std::vector<std::wstring>;

namespace {

constexpr wchar_t kSame[] = L"Сейчас значение заводское.";
constexpr wchar_t kDiffers[] = L"Сейчас значение другое.";

std::wstring Wide(std::string_view utf8)
{
    std::wstring text(utf8.size(), L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                                                        text.data(), static_cast<int>(text.size()))));
    return text;
}

bool Holds(const Lines& lines, const std::wstring& line)
{
    return std::ranges::find(lines, line) != lines.end();
}

bool HasLineFrom(const Lines& lines, const std::wstring& start)
{
    return std::ranges::any_of(lines, [&](const std::wstring& line) { return line.starts_with(start); });
}

std::string Shown(const Lines& lines)
{
    std::wstring all;
    for (const std::wstring& line : lines)
        all += line + L"\n";
    std::string utf8(all.size() * 3, '\0'); // no UTF-16 unit takes more
    utf8.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, all.c_str(), static_cast<int>(all.size()),
                                                        utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr)));
    return utf8;
}

// ---- every page ----

struct ShownPage {
    explicit ShownPage(size_t index, int units, bool readOnly = false) : page(OptionPages()[index].make(units))
    {
        if (readOnly)
            static_cast<CExpRegenPropertyPage&>(*page).m_readOnly = 1;
        sheet = std::make_unique<OpenSheet>(std::vector<CPropertyPage*>{page.get()});
        window = sheet->Page();
        const int number = LOWORD(reinterpret_cast<ULONG_PTR>(page->m_psp.pszTemplate));
        for (const WindowDescription& described : DescribeWindows())
            if (described.page.templateId == number)
                facts = &described.page;
    }

    /// The controls of options that are to be seen.
    std::vector<const Control*> Options() const
    {
        std::vector<const Control*> found;
        for (const Control& control : facts->controls)
            if (control.option && GetDlgItem(window, control.id) && ui::IsShown(window, control.id))
                found.push_back(&control);
        return found;
    }

    std::unique_ptr<CPropertyPage> page;
    std::unique_ptr<OpenSheet> sheet;
    HWND window = nullptr;
    const PageFacts* facts = nullptr;
};

class TipsOfPage : public testing::TestWithParam<size_t> {
protected:
    ~TipsOfPage() override
    {
        const OptionPage& row = OptionPages()[GetParam()];
        ui::UiThread::Get().Call([&] { row.defaults(), row.make(kInch); });
    }

    /// The live record at its factory values.
    void TakeFactoryValues() const
    {
        ui::UiThread::Get().Call([] { OptionPages()[GetParam()].defaults(); });
    }

    const HostFolder host;
    const ShortRests rests;
};

std::wstring SentenceOn(const PageFacts& page, const Control& control)
{
    return Wide(FirstSentenceOf(control.topic ? control.topic : page.topic, control.option->label));
}

TEST_P(TipsOfPage, TellOfEveryOptionWhatItDoesItsRangeAndItsFactoryValue)
{
    TakeFactoryValues();
    const ShownPage shown(GetParam(), kInch);
    ASSERT_NE(nullptr, shown.facts);
    EXPECT_LE(3u, shown.Options().size());
    for (const Control* control : shown.Options()) {
        const Lines tip = TipOn(shown.window, control->id);
        const bool isButton = control->kind == ControlKind::Button;
        EXPECT_EQ(SentenceOn(*shown.facts, *control), tip.front()) << control->id;
        EXPECT_EQ(control->kind == ControlKind::Edit, HasLineFrom(tip, L"Диапазон: ")) << control->id << Shown(tip);
        EXPECT_EQ(!isButton, HasLineFrom(tip, L"Заводское значение: ")) << control->id << Shown(tip);
        EXPECT_EQ(!isButton, Holds(tip, kSame)) << control->id << Shown(tip);
        EXPECT_FALSE(Holds(tip, kDiffers)) << control->id << Shown(tip);
    }
}

/// What a length counts, from the record and not from the library's words.
std::wstring LengthUnit(const Option& option, bool isInches, bool isInRadii)
{
    if (isInRadii)
        return L"Единица: радиус инструмента (× R)";
    const std::wstring length = isInches ? L"дюйм" : L"мм";
    return L"Единица: " + length + (option.kind == OptionKind::Feed ? L"/мин" : L"");
}

/// Whether the list beside a length says that it counts radii.
bool IsInRadii(const ShownPage& shown, const Option& option)
{
    for (const Control* control : shown.Options())
        if (option.lengthType && control->option->whole == option.lengthType)
            return ui::Selection(shown.window, control->id) != 0;
    return false;
}

TEST_P(TipsOfPage, TellTheUnitOfEveryNumberInInchAndInMillimetre)
{
    for (const int units : {kInch, kMillimetre}) {
        const ShownPage shown(GetParam(), units);
        size_t lengths = 0;
        for (const Control* control : shown.Options()) {
            if (control->kind != ControlKind::Edit)
                continue;
            const Option& option = *control->option;
            const Lines tip = TipOn(shown.window, control->id);
            if (option.kind == OptionKind::Angle) {
                EXPECT_TRUE(Holds(tip, L"Единица: °")) << control->id << Shown(tip);
            } else if (option.kind == OptionKind::Percent) {
                EXPECT_TRUE(Holds(tip, L"Единица: %")) << control->id << Shown(tip);
            } else if (option.kind == OptionKind::Length || option.kind == OptionKind::Feed) {
                ++lengths;
                EXPECT_TRUE(Holds(tip, LengthUnit(option, units == kInch, IsInRadii(shown, option))))
                    << control->id << Shown(tip);
            } else {
                EXPECT_FALSE(HasLineFrom(tip, L"Единица")) << control->id << Shown(tip);
            }
        }
        EXPECT_LT(0u, lengths);
    }
}

TEST_P(TipsOfPage, TellWhatDiffersFromTheFactoryValueAsSoonAsItIsTypedOrChosen)
{
    TakeFactoryValues();
    const ShownPage shown(GetParam(), kInch);
    size_t changed = 0;
    for (const Control* control : shown.Options()) {
        if (control->kind == ControlKind::Button || !ui::IsEnabled(shown.window, control->id))
            continue;
        if (control->kind == ControlKind::Edit)
            ui::Type(shown.window, control->id, L"77");
        else if (control->kind == ControlKind::Check)
            ui::Click(shown.window, control->id);
        else if (ui::Items(shown.window, control->id).size() < 2)
            continue;
        else
            ui::Choose(shown.window, control->id, ui::Selection(shown.window, control->id) == 0 ? 1 : 0);
        const Lines tip = TipOn(shown.window, control->id);
        EXPECT_TRUE(Holds(tip, kDiffers)) << control->id << Shown(tip);
        EXPECT_FALSE(Holds(tip, kSame)) << control->id << Shown(tip);
        ++changed;
    }
    EXPECT_LE(3u, changed);
}

TEST_P(TipsOfPage, ComeOnEveryControlOfAReadOnlyPage)
{
    TakeFactoryValues();
    const ShownPage shown(GetParam(), kMillimetre, true);
    for (const Control* control : shown.Options()) {
        ASSERT_FALSE(ui::IsEnabled(shown.window, control->id));
        EXPECT_EQ(SentenceOn(*shown.facts, *control), TipOn(shown.window, control->id).front()) << control->id;
    }
}

TEST_P(TipsOfPage, DoNotComeOnceTheHostHasSwitchedThemOff)
{
    const ShownPage shown(GetParam(), kInch);
    const int id = shown.Options().front()->id;
    TipOn(shown.window, id);
    EXPECT_TRUE(ui::On([] { return AreTipsShown(); }));
    ui::UiThread::Get().Call([] { ShowTips(false); });
    EXPECT_FALSE(ui::On([] { return AreTipsShown(); }));
    for (const Control* control : shown.Options())
        EXPECT_FALSE(ComesATip(shown.window, control->id)) << control->id;
    ui::UiThread::Get().Call([] { ShowTips(true); });
    EXPECT_FALSE(TipOn(shown.window, id).front().empty());
}

INSTANTIATE_TEST_SUITE_P(AllPages, TipsOfPage, testing::Range(size_t{0}, OptionPages().size()));

// ---- one page to the letter ----

class Tips2x : public testing::Test {
protected:
    ~Tips2x() override
    {
        *GetLast2xOptions() = {};
        ui::UiThread::Get().Call([] { CDefs2xPage().GetData(kInch); });
    }

    void Open(int units)
    {
        page = std::make_unique<CDefs2xPage>();
        ui::UiThread::Get().Call([&] { page->GetData(units); });
        sheet = std::make_unique<OpenSheet>(std::vector<CPropertyPage*>{page.get()});
    }
    Lines On(int id) { return TipOn(sheet->Page(), id); }

    const HostFolder host;
    const ShortRests rests;
    std::unique_ptr<CDefs2xPage> page;
    std::unique_ptr<OpenSheet> sheet;
};

TEST_F(Tips2x, OfALengthInInch)
{
    GetLast2xOptions()->RapidPlunge = 0.5;
    Open(kInch);
    const Lines tip = On(IDC_2X_RAPID_PLUNGE);
    ASSERT_EQ(5u, tip.size()) << Shown(tip);
    EXPECT_EQ(L"Единица: дюйм", tip[1]);
    EXPECT_EQ(L"Диапазон: не меньше 0", tip[2]);
    EXPECT_EQ(L"Заводское значение: 0.1 дюйм", tip[3]);
    EXPECT_EQ(kDiffers, tip[4]);
}

TEST_F(Tips2x, OfALengthInMillimetre)
{
    host.WriteDefaults("[Options2x]\r\nUnits=0\r\nRapidPlunge=0.2\r\n");
    GetLast2xOptions()->RapidPlunge = 0.2;
    Open(kMillimetre);
    const Lines tip = On(IDC_2X_RAPID_PLUNGE);
    ASSERT_EQ(5u, tip.size()) << Shown(tip);
    EXPECT_EQ(L"Единица: мм", tip[1]);
    EXPECT_EQ(L"Диапазон: не меньше 0", tip[2]);
    EXPECT_EQ(L"Заводское значение: 5 мм", tip[3]);
    EXPECT_EQ(kSame, tip[4]);
}

TEST_F(Tips2x, OfAnAngleInBounds)
{
    Open(kInch);
    const Lines tip = On(IDC_2X_CORNER_ANGLE);
    EXPECT_TRUE(Holds(tip, L"Единица: °")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, L"Диапазон: от 30 до 150")) << Shown(tip);
}

TEST_F(Tips2x, OfALengthFollowTheTypeThatIsChosenBesideIt)
{
    GetLast2xOptions()->SideRoughStepType = 0;
    Open(kMillimetre);
    EXPECT_TRUE(Holds(On(IDC_2X_SIDE_ROUGH_STEP), L"Единица: мм"));
    ui::Choose(sheet->Page(), IDC_2X_SIDE_ROUGH_STEP_TYPE, 1);
    const Lines tip = On(IDC_2X_SIDE_ROUGH_STEP);
    EXPECT_TRUE(Holds(tip, L"Единица: радиус инструмента (× R)")) << Shown(tip);
}

TEST_F(Tips2x, CompareWhatIsBeingTypedAsSoonAsItEvaluates)
{
    host.WriteDefaults("[Options2x]\r\nRapidPlunge=0.25\r\n");
    GetLast2xOptions()->RapidPlunge = 0.5;
    Open(kInch);
    EXPECT_TRUE(Holds(On(IDC_2X_RAPID_PLUNGE), kDiffers));
    ui::Type(sheet->Page(), IDC_2X_RAPID_PLUNGE, L"1/4");
    EXPECT_TRUE(Holds(On(IDC_2X_RAPID_PLUNGE), kSame));
    EXPECT_EQ(L"1/4", ui::TextOf(sheet->Page(), IDC_2X_RAPID_PLUNGE));
    // What does not evaluate leaves the value that the page holds.
    ui::Type(sheet->Page(), IDC_2X_RAPID_PLUNGE, L"1/");
    EXPECT_TRUE(Holds(On(IDC_2X_RAPID_PLUNGE), kDiffers));
    ui::Type(sheet->Page(), IDC_2X_RAPID_PLUNGE, L"0.5");
}

TEST_F(Tips2x, CompareAllDecimalsOfAValueThatNobodyTouched)
{
    host.WriteDefaults("[Options2x]\r\nRapidPlunge=0.123456\r\n");
    ui::UiThread::Get().Call([] { GetLast2xOptions()->vOptions_Defaults(); });
    Open(kInch);
    EXPECT_EQ(L"0.1235", ui::TextOf(sheet->Page(), IDC_2X_RAPID_PLUNGE));
    const Lines tip = On(IDC_2X_RAPID_PLUNGE);
    EXPECT_TRUE(Holds(tip, L"Заводское значение: 0.123456 дюйм")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kSame)) << Shown(tip);
}

TEST_F(Tips2x, OfAListTellOfTheChosenItem)
{
    GetLast2xOptions()->CornerAngleType = 0;
    Open(kInch);
    Lines tip = On(IDC_2X_CORNER_ANGLE_TYPE);
    ASSERT_EQ(4u, tip.size()) << Shown(tip);
    EXPECT_EQ(L"Выбор того, чем инструмент огибает острый внешний угол контура.", tip[0]);
    EXPECT_TRUE(tip[1].starts_with(L"«Дуга» обкатывает вершину")) << Shown(tip);
    EXPECT_EQ(L"Заводское значение: Дуга", tip[2]);
    EXPECT_EQ(kSame, tip[3]);
    ui::Choose(sheet->Page(), IDC_2X_CORNER_ANGLE_TYPE, 1);
    tip = On(IDC_2X_CORNER_ANGLE_TYPE);
    EXPECT_TRUE(tip[1].starts_with(L"«Прямая» продолжает оба прохода")) << Shown(tip);
    EXPECT_EQ(kDiffers, tip[3]);
}

TEST_F(Tips2x, OfABoxTellItsFactoryState)
{
    GetLast2xOptions()->DepthFirst = 1;
    Open(kInch);
    EXPECT_TRUE(Holds(On(IDC_2X_DEPTH_FIRST), L"Заводское значение: Да"));
    EXPECT_TRUE(Holds(On(IDC_2X_DEPTH_FIRST), kSame));
    ui::Click(sheet->Page(), IDC_2X_DEPTH_FIRST);
    EXPECT_TRUE(Holds(On(IDC_2X_DEPTH_FIRST), kDiffers));
}

TEST_F(Tips2x, OfAButtonTellWhatItDoes)
{
    Open(kInch);
    const Lines tip = On(IDC_RESTORE_DEFAULTS);
    EXPECT_EQ(1u, tip.size()) << Shown(tip);
    EXPECT_LT(20u, tip.front().size());
}

TEST_F(Tips2x, LeaveTheIntegerModeOfTheEvaluatorAsItIs)
{
    Open(kInch);
    ui::Type(sheet->Page(), IDC_2X_RAPID_PLUNGE, L"7/2");
    int whole = 0;
    ui::UiThread::Get().Call([&] { EvalExpressionInt("", &whole); });
    On(IDC_2X_RAPID_PLUNGE);
    double real = 0;
    ui::UiThread::Get().Call([&] { EvalExpressionReal("7/2", &real); });
    EXPECT_EQ(3.0, real);
    ui::Type(sheet->Page(), IDC_2X_RAPID_PLUNGE, L"1");
}

TEST_F(Tips2x, StandBesideTheControlWithItsDrawing)
{
    Open(kInch);
    const HWND window = sheet->Page();
    RECT plain{}, drawn{}, field{};
    const auto open = [&](int id, RECT& place) {
        return ui::WaitUntil([&] { return RestOn(window, id) && GetWindowRect(OpenTip(), &place); });
    };
    ASSERT_TRUE(open(IDC_2X_DEPTH_FIRST, plain));
    ASSERT_TRUE(open(IDC_2X_SIDE_ROUGH_STEP, drawn));
    GetWindowRect(ui::Control(window, IDC_2X_SIDE_ROUGH_STEP), &field);
    EXPECT_LT(plain.bottom - plain.top + 200, drawn.bottom - drawn.top);
    RECT shared;
    EXPECT_FALSE(IntersectRect(&shared, &drawn, &field));
    MoveAway(window);
}

TEST_F(Tips2x, LeaveThePointerToWhatTheyCover)
{
    Open(kInch);
    const HWND window = sheet->Page();
    RECT place{};
    ASSERT_TRUE(
        ui::WaitUntil([&] { return RestOn(window, IDC_2X_SIDE_ROUGH_STEP) && GetWindowRect(OpenTip(), &place); }));
    const LPARAM within = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    EXPECT_EQ(HTTRANSPARENT, SendMessage(OpenTip(), WM_NCHITTEST, 0, within));
    MoveAway(window);
}

TEST_F(Tips2x, GoWithAKeyAClickAndThePointer)
{
    Open(kInch);
    const HWND window = sheet->Page();
    const HWND edit = ui::Control(window, IDC_2X_RAPID_PLUNGE);
    const auto rest = [&] { return ui::WaitUntil([&] { return RestOn(window, IDC_2X_RAPID_PLUNGE); }); };
    ASSERT_TRUE(rest());
    MoveAway(window);
    EXPECT_EQ(nullptr, OpenTip());
    ASSERT_TRUE(rest());
    ui::Press(edit, VK_RIGHT);
    EXPECT_EQ(nullptr, OpenTip());
    ASSERT_TRUE(rest());
    PostMessage(edit, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessage(edit, WM_LBUTTONUP, 0, 0);
    ui::Settle(edit);
    EXPECT_EQ(nullptr, OpenTip());
}

TEST_F(Tips2x, GoWithTheirPage)
{
    CDefs3xPage other;
    ui::UiThread::Get().Call([&] { other.GetData(kInch); });
    page = std::make_unique<CDefs2xPage>();
    sheet = std::make_unique<OpenSheet>(std::vector<CPropertyPage*>{page.get(), &other});
    const HWND window = sheet->Page();
    ASSERT_TRUE(ui::WaitUntil([&] { return RestOn(window, IDC_2X_RAPID_PLUNGE); }));
    sheet->Switch(1);
    EXPECT_TRUE(ui::WaitUntil([] { return !OpenTip(); }));
    sheet->Cancel();
    EXPECT_EQ(nullptr, OpenTip());
    sheet.reset(); // before the other page
}

// ---- dialogs ----

TEST(TipsOfDialogs, OfTheNcDefaults)
{
    const HostFolder host;
    const ShortRests rests;
    host.WriteDefaults("[DefaultNCParameter]\r\nFilterMaxSpan=0.25\r\n[ALLTIPI]\r\nDefToLastTool=1\r\n");
    CDefsNCDefaultsDlg dialog;
    OpenModal open(dialog, L"Параметры ЧПУ");
    // Disabled as long as the filter is off.
    ASSERT_FALSE(ui::IsEnabled(open.window, IDC_NCDEF_MAX_SPAN));
    Lines tip = TipOn(open.window, IDC_NCDEF_MAX_SPAN);
    EXPECT_TRUE(Holds(tip, L"Диапазон: не меньше 0")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, L"Заводское значение: 0.25")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kSame)) << Shown(tip);
    ui::Click(open.window, IDC_NCDEF_FILTER_SPANS);
    ui::Type(open.window, IDC_NCDEF_MAX_SPAN, L"0.3");
    EXPECT_TRUE(Holds(TipOn(open.window, IDC_NCDEF_MAX_SPAN), kDiffers));
    tip = TipOn(open.window, IDC_NCDEF_LAST_TOOL);
    EXPECT_TRUE(Holds(tip, L"Заводское значение: Да")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kDiffers)) << Shown(tip);
    ui::Click(open.window, IDC_NCDEF_LAST_TOOL);
    EXPECT_TRUE(Holds(TipOn(open.window, IDC_NCDEF_LAST_TOOL), kSame));
    ui::UiThread::Get().Call([] { ShowTips(false); });
    EXPECT_FALSE(ComesATip(open.window, IDC_NCDEF_LAST_TOOL));
    ui::UiThread::Get().Call([] { ShowTips(true); });
    open.End(IDCANCEL);
}

/// The setup sheet in a window of the host's, whose loop is the framework's.
class CSheetFrame : public CDialog {
public:
    explicit CSheetFrame(int units) : CDialog(IDD_FRAME), m_units(units) {}
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        EXPECT_TRUE(m_sheet.Create(CDefsSetupsheet::IDD, this));
        m_sheet.GetData(m_units);
        m_sheet.ShowWindow(SW_SHOW);
        return TRUE;
    }

    CDefsSetupsheet m_sheet;

private:
    int m_units;
};

class TipsOfSetupSheet : public testing::TestWithParam<int> {
protected:
    TipsOfSetupSheet() { *GetLastSSheetOptions() = {}; }
    ~TipsOfSetupSheet() override
    {
        *GetLastSSheetOptions() = {};
        ui::UiThread::Get().Call([] { CDefsSetupsheet().GetData(kInch); });
    }
    Lines On(int id) { return TipOn(frame.m_sheet.m_hWnd, id); }

    const HostFolder host;
    const ShortRests rests;
    CSheetFrame frame{GetParam()};
};

TEST_P(TipsOfSetupSheet, TellUnitAndFactoryValueOfWhatIsTypedAndChosen)
{
    OpenModal open(frame, L"Рамка");
    const HWND sheet = frame.m_sheet.m_hWnd;
    Lines tip = On(IDC_SHEET_RAPID_RATE);
    EXPECT_TRUE(Holds(tip, GetParam() == kInch ? L"Единица: дюйм/мин" : L"Единица: мм/мин")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kSame)) << Shown(tip);
    ui::Type(sheet, IDC_SHEET_RAPID_RATE, L"7");
    EXPECT_TRUE(Holds(On(IDC_SHEET_RAPID_RATE), kDiffers));
    // Its items stand in another order than their values.
    tip = On(IDC_SHEET_STYLE);
    EXPECT_TRUE(Holds(tip, L"Заводское значение: Текущий - HTML")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kSame)) << Shown(tip);
    ui::Choose(sheet, IDC_SHEET_STYLE, 1);
    EXPECT_TRUE(Holds(On(IDC_SHEET_STYLE), kDiffers));
    // Not to be clicked with that style.
    ASSERT_FALSE(ui::IsEnabled(sheet, IDC_SHEET_OPERATIONS));
    EXPECT_TRUE(Holds(On(IDC_SHEET_OPERATIONS), L"Заводское значение: Да"));
    ui::UiThread::Get().Call([] { ShowTips(false); });
    EXPECT_FALSE(ComesATip(sheet, IDC_SHEET_RAPID_RATE));
    ui::UiThread::Get().Call([] { ShowTips(true); });
    open.End(IDCANCEL);
}

INSTANTIATE_TEST_SUITE_P(BothUnits, TipsOfSetupSheet, testing::Values(int{kInch}, int{kMillimetre}));

class TipsOfRotaryDialog : public testing::Test {
protected:
    const HostFolder host;
    const ShortRests rests;
};

template <class Page> Lines TipsOfStart(const wchar_t* typed)
{
    Page page;
    double axis[2][3] = {{1, 2, 3}, {4, 5, 6}};
    ui::UiThread::Get().Call([&] { page.GetData(kMillimetre, axis); });
    OpenSheet sheet({&page});
    PostMessage(ui::Control(sheet.Page(), IDC_MX_ROTARY_OPTIONS), BM_CLICK, 0, 0);
    const HWND dialog = ui::WaitForWindow(L"Параметры осей поворота");
    if (typed)
        ui::Type(dialog, IDC_ROTARY_START_Y, typed);
    const Lines tip = TipOn(dialog, IDC_ROTARY_START_Y);
    PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    ui::WaitForClose(dialog);
    return tip;
}

TEST_F(TipsOfRotaryDialog, CompareTheAxisWithThatOfTheDefaultsOn4Axis)
{
    host.WriteDefaults("[Options4x]\r\nStartPY=7\r\n");
    Lines tip = TipsOfStart<CDefs4xPage>(nullptr);
    EXPECT_TRUE(Holds(tip, L"Диапазон: любое число")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, L"Заводское значение: 7")) << Shown(tip);
    EXPECT_TRUE(Holds(tip, kDiffers)) << Shown(tip);
    tip = TipsOfStart<CDefs4xPage>(L"3+4");
    EXPECT_TRUE(Holds(tip, kSame)) << Shown(tip);
    *GetLast4xOptions() = {};
    ui::UiThread::Get().Call([] { CDefs4xPage().GetData(kInch); });
}

TEST_F(TipsOfRotaryDialog, KnowNoFactoryValueOn5Axis)
{
    const Lines tip = TipsOfStart<CDefs5xPage>(nullptr);
    EXPECT_TRUE(Holds(tip, L"Диапазон: любое число")) << Shown(tip);
    EXPECT_FALSE(HasLineFrom(tip, L"Заводское значение")) << Shown(tip);
    *GetLast5xOptions() = {};
    ui::UiThread::Get().Call([] { CDefs5xPage().GetData(kInch); });
}

} // namespace
