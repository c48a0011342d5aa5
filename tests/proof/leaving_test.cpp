// A user who has typed what is refused, or not yet wanted, leaves each page and dialog as he likes.
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "option_pages.h"
#include "pages/dialogs.h"
#include "pages/page_driver.h"
#include "resources/resource.h"

namespace {

// ---- the user ----

/// Presses and lets go. What the press brings about comes before the button is up again, as with a hand.
void ClickAt(HWND control, POINT point)
{
    const LPARAM place = MAKELPARAM(point.x, point.y);
    PostMessage(control, WM_LBUTTONDOWN, MK_LBUTTON, place);
    ui::Settle(control);
    PostMessage(control, WM_LBUTTONUP, 0, place);
    ui::Settle(control);
}

void ClickWithMouse(HWND control)
{
    ClickAt(control, {5, 5});
}

constexpr DWORD kLongerThanAFocusRests = 300; // milliseconds

void GoTo(HWND control)
{
    PostMessage(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    ui::Settle(control);
}

struct Way {
    const char* name;
    std::function<void(HWND window, HWND edit, int button)> go;
};

HWND Button(HWND window, int button)
{
    return ui::Control(window, button);
}

/// Ways to press a button of the window from one of its edits.
const Way kPresses[] = {
    {"mouse", [](HWND window, HWND, int button) { ClickWithMouse(Button(window, button)); }},
    {"click",
     [](HWND window, HWND, int button) {
         PostMessage(Button(window, button), BM_CLICK, 0, 0);
         ui::Settle(window);
     }},
    {"Tab and Space",
     [](HWND window, HWND, int button) {
         GoTo(Button(window, button));
         ui::Press(Button(window, button), VK_SPACE);
     }},
    {"access key",
     [](HWND window, HWND edit, int button) {
         SetWindowText(Button(window, button), L"&Q");
         PostMessage(edit, WM_SYSCHAR, L'q', 1 << 29);
         ui::Settle(window);
     }},
};

/// The other ways to close a window without OK.
const Way kClosings[] = {
    {"Esc", [](HWND, HWND edit, int) { ui::Press(edit, VK_ESCAPE); }},
    {"close box",
     [](HWND window, HWND, int) {
         PostMessage(window, WM_SYSCOMMAND, SC_CLOSE, 0);
         ui::Settle(window);
     }},
};

/// All ways are tried on one page; what each page has of its own shows in these.
const Way kWaysOutOfEachPage[] = {kPresses[0], kClosings[0], kClosings[1]};
const Way& kPressOnEachPage = kPresses[0];

std::vector<Way> WaysOut()
{
    std::vector<Way> ways(std::begin(kPresses), std::end(kPresses));
    ways.insert(ways.end(), std::begin(kClosings), std::end(kClosings));
    return ways;
}

/// Whether the window closes with nothing asked, before or after. What is asked is answered, for the next test.
bool ClosesWithoutAWord(HWND window)
{
    ui::WaitUntil([&] { return !IsWindow(window) || ui::IsBoxOpen(); });
    const bool isClosed = !IsWindow(window) && ui::UiThread::Get().WaitForStarted() && !ui::IsBoxOpen();
    ui::DismissBoxes();
    return isClosed;
}

bool IsOpenAndSilent(HWND window)
{
    ui::Settle(window);
    const bool isSilent = !ui::IsBoxOpen();
    ui::DismissBoxes();
    return IsWindow(window) && isSilent;
}

/// The same once the focus has rested where it is.
bool StaysOpenAndSilent(HWND window)
{
    Sleep(kLongerThanAFocusRests);
    return IsOpenAndSilent(window);
}

void ClickOnTab(HWND sheet, int index)
{
    const auto tabs = reinterpret_cast<HWND>(SendMessage(sheet, PSM_GETTABCONTROL, 0, 0));
    RECT rect{};
    ui::UiThread::Get().Call([&] { TabCtrl_GetItemRect(tabs, index, &rect); });
    ClickAt(tabs, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

/// The edits of a dialog that take expressions and can be used now.
std::vector<HWND> ExpressionEdits(HWND dialog)
{
    std::vector<HWND> edits;
    for (const HWND control : ui::Children(dialog)) {
        const bool takesExpressions =
            ui::On([&] { return dynamic_cast<CExpEqEdit*>(CWnd::FromHandlePermanent(control)) != nullptr; });
        if (takesExpressions && ui::ClassOf(control) == L"Edit" && IsWindowVisible(control) && IsWindowEnabled(control))
            edits.push_back(control);
    }
    return edits;
}

void TypeInto(HWND edit, const std::wstring& text)
{
    ui::Type(GetParent(edit), GetDlgCtrlID(edit), text);
}

/// One prompt, after which the user is back in the edit with what he has typed.
void ExpectOnePrompt(HWND edit, const std::wstring& text)
{
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_TRUE(IsOpenAndSilent(GetParent(edit)));
    EXPECT_EQ(edit, ui::Focus(edit));
    EXPECT_EQ(text, ui::TextOf(edit));
}

// ---- all pages ----

class LeavingAPage : public testing::TestWithParam<size_t> {
protected:
    LeavingAPage()
    {
        host.WriteSettings("[HoleProcessLocation]\r\nAccurateMode=1\r\n"); // which enables its edits
        row.restore();
    }
    ~LeavingAPage() override
    {
        row.defaults();
        Make();
    }
    std::unique_ptr<CPropertyPage> Make()
    {
        return ui::On([this] { return row.make(kInch); });
    }
    std::string Saved()
    {
        row.save();
        return host.ReadSettings();
    }

    const HostFolder host;
    const OptionPage& row = OptionPages()[GetParam()];
};

TEST_P(LeavingAPage, AsksAndStoresNothingOnTheWayOut)
{
    const std::string before = Saved();
    for (const Way& way : kWaysOutOfEachPage) {
        SCOPED_TRACE(way.name);
        const auto page = Make();
        OpenSheet sheet({page.get()});
        const HWND edit = ExpressionEdits(sheet.Page()).at(0);
        TypeInto(edit, L"abc");
        way.go(sheet.window, edit, IDCANCEL);
        EXPECT_TRUE(ClosesWithoutAWord(sheet.window));
        EXPECT_EQ(before, Saved());
    }
}

TEST_P(LeavingAPage, AsksOnceOnOk)
{
    const auto page = Make();
    OpenSheet sheet({page.get()});
    const HWND edit = ExpressionEdits(sheet.Page()).at(0);
    const std::wstring shown = ui::TextOf(edit);
    TypeInto(edit, L"abc");
    kPressOnEachPage.go(sheet.window, edit, IDOK);
    ExpectOnePrompt(edit, L"abc");
    TypeInto(edit, shown);
    kPressOnEachPage.go(sheet.window, edit, IDOK);
    EXPECT_TRUE(ClosesWithoutAWord(sheet.window));
}

TEST_P(LeavingAPage, AsksOnceOnAClickOnAnotherPagesTab)
{
    const auto page = Make();
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    const HWND edit = ExpressionEdits(sheet.Page()).at(0);
    const std::wstring shown = ui::TextOf(edit);
    TypeInto(edit, L"abc");
    ClickOnTab(sheet.window, 1);
    ExpectOnePrompt(edit, L"abc");
    EXPECT_EQ(page->m_hWnd, sheet.Page());
    TypeInto(edit, shown);
    ClickOnTab(sheet.window, 1);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(other.m_hWnd, sheet.Page());
}

TEST_P(LeavingAPage, AsksNothingOnTheWayToDefaultsWhichReplaceTheText)
{
    const auto page = Make();
    OpenSheet sheet({page.get()});
    if (!GetDlgItem(sheet.Page(), IDC_RESTORE_DEFAULTS))
        return;
    const HWND edit = ExpressionEdits(sheet.Page()).at(0);
    const std::wstring shown = ui::TextOf(edit);
    TypeInto(edit, L"abc");
    kPressOnEachPage.go(sheet.Page(), edit, IDC_RESTORE_DEFAULTS);
    EXPECT_TRUE(IsOpenAndSilent(sheet.window));
    EXPECT_EQ(shown, ui::TextOf(edit));
}

/// A sheet may give its pages up before it hides them, and go on moving the focus.
TEST_P(LeavingAPage, AsksAndTakesNothingOnceTheSheetHasGivenItUp)
{
    const auto page = Make();
    OpenSheet sheet({page.get()});
    const std::string before = Saved();
    const std::vector<HWND> edits = ExpressionEdits(sheet.Page());
    TypeInto(edits.at(0), L"abc");
    NMHDR givenUp{sheet.window, 0, static_cast<UINT>(PSN_RESET)};
    SendMessage(sheet.Page(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&givenUp));
    GoTo(edits.at(1));
    EXPECT_TRUE(IsOpenAndSilent(sheet.window));
    EXPECT_EQ(before, Saved());
    sheet.Press(IDCANCEL);
    EXPECT_TRUE(ClosesWithoutAWord(sheet.window));
}

/// A host's sheet with a button that restores the defaults of the page in front.
class CHostSheet : public CPropertySheetTVEx {
public:
    static constexpr int kDefaults = 500;

    explicit CHostSheet(bool marks) : CPropertySheetTVEx(L"Лист программы"), m_marks(marks) {}
    BOOL OnInitDialog() override
    {
        CRect besideOk;
        ::GetWindowRect(::GetDlgItem(m_hWnd, IDOK), besideOk);
        MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&besideOk), 2);
        besideOk.left = 0;
        besideOk.right = 30;
        m_button.CreateEx(0, L"BUTTON", L"По умолчанию", WS_CHILD | WS_VISIBLE | WS_TABSTOP, besideOk, this, kDefaults);
        if (m_marks)
            MarkAsDefaultsButton(m_button.m_hWnd);
        return CPropertySheetTVEx::OnInitDialog();
    }

protected:
    void OnDefaults() { GetActivePage()->SendMessage(kSetDefaultsMessage); }
    DECLARE_MESSAGE_MAP()

private:
    bool m_marks;
    CButton m_button;
};

BEGIN_MESSAGE_MAP(CHostSheet, CPropertySheetTVEx)
    ON_BN_CLICKED(CHostSheet::kDefaults, &CHostSheet::OnDefaults)
END_MESSAGE_MAP()

class OpenHostSheet {
public:
    OpenHostSheet(CPropertyPage& page, bool marks) : m_sheet(marks)
    {
        m_sheet.AddPage(&page);
        ui::UiThread::Get().Start([this] { m_sheet.DoModal(); });
        window = ui::WaitForWindow(L"Лист программы");
    }
    ~OpenHostSheet()
    {
        ui::DismissBoxes();
        PostMessage(window, WM_COMMAND, IDCANCEL, 0);
        ui::WaitForCloseWithBoxes(window);
        ui::UiThread::Get().WaitForStarted();
    }

    HWND window = nullptr;

private:
    CHostSheet m_sheet;
};

TEST_P(LeavingAPage, AsksNothingOnTheWayToAHostsDefaultsWhichReplaceTheText)
{
    const auto page = Make();
    OpenHostSheet sheet(*page, false);
    const HWND edit = ExpressionEdits(page->m_hWnd).at(0);
    const std::wstring shown = ui::TextOf(edit);
    TypeInto(edit, L"abc");
    kPressOnEachPage.go(sheet.window, edit, CHostSheet::kDefaults);
    EXPECT_TRUE(IsOpenAndSilent(sheet.window));
    EXPECT_EQ(shown, ui::TextOf(edit));
}

INSTANTIATE_TEST_SUITE_P(AllPages, LeavingAPage, testing::Range(size_t{0}, OptionPages().size()));

// ---- one page ----

constexpr int kSideClearance = 3912;
constexpr int kGougeCheck = 1058;

class LeavingTheSideClearance : public testing::Test {
protected:
    LeavingTheSideClearance()
    {
        *GetLast2xOptions() = C2AxisOptionsInfo();
        ui::UiThread::Get().Call([this] { page.GetData(0); });
    }
    ~LeavingTheSideClearance() override { *GetLast2xOptions() = C2AxisOptionsInfo(); }

    HWND Edit(OpenSheet& sheet) { return ui::Control(sheet.Page(), kSideClearance); }

    const HostFolder host;
    CDefs2xPage page;
    SiblingSpy spy;
};

TEST_F(LeavingTheSideClearance, AsksStoresAndTellsNothingOnTheWayOut)
{
    for (const wchar_t* const left : {L"abc", L"0.25"})
        for (const Way& way : WaysOut()) {
            SCOPED_TRACE(way.name);
            OpenSheet sheet({&page, &spy});
            spy.notices.clear();
            TypeInto(Edit(sheet), left);
            way.go(sheet.window, Edit(sheet), IDCANCEL);
            EXPECT_TRUE(ClosesWithoutAWord(sheet.window));
            EXPECT_TRUE(spy.notices.empty());
            EXPECT_EQ(C2AxisOptionsInfo().SideClearance, GetLast2xOptions()->SideClearance);
        }
}

TEST_F(LeavingTheSideClearance, AsksOnceOnOkHoweverItIsPressed)
{
    std::vector<Way> ways(std::begin(kPresses), std::end(kPresses));
    ways.push_back({"Enter", [](HWND, HWND edit, int) { ui::Press(edit, VK_RETURN); }});
    OpenSheet sheet({&page, &spy});
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        TypeInto(Edit(sheet), L"abc");
        way.go(sheet.window, Edit(sheet), IDOK);
        ExpectOnePrompt(Edit(sheet), L"abc");
    }
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(LeavingTheSideClearance, AsksNothingOnTheWayToDefaultsHoweverTheyArePressed)
{
    OpenSheet sheet({&page, &spy});
    for (const Way& way : kPresses) {
        SCOPED_TRACE(way.name);
        TypeInto(Edit(sheet), L"abc");
        way.go(sheet.Page(), Edit(sheet), IDC_RESTORE_DEFAULTS);
        EXPECT_TRUE(IsOpenAndSilent(sheet.window));
        EXPECT_EQ(L"0.1000", ui::TextOf(Edit(sheet)));
    }
}

TEST_F(LeavingTheSideClearance, AsksNothingOnTheWayToAHostsDefaultsHoweverTheyArePressed)
{
    for (const bool marks : {true, false}) {
        const OpenHostSheet sheet(page, marks);
        const HWND edit = ui::Control(page.m_hWnd, kSideClearance);
        for (const Way& way : kPresses) {
            SCOPED_TRACE(way.name);
            TypeInto(edit, L"abc");
            way.go(sheet.window, edit, CHostSheet::kDefaults);
            EXPECT_TRUE(IsOpenAndSilent(sheet.window));
            EXPECT_EQ(L"0.1000", ui::TextOf(edit));
        }
    }
}

TEST_F(LeavingTheSideClearance, AsksWhereTheFocusRestsOnAHostsDefaultsThatAreNotMarked)
{
    for (const bool marks : {true, false}) {
        const OpenHostSheet sheet(page, marks);
        const HWND edit = ui::Control(page.m_hWnd, kSideClearance);
        TypeInto(edit, L"abc");
        GoTo(Button(sheet.window, CHostSheet::kDefaults));
        if (marks)
            EXPECT_TRUE(StaysOpenAndSilent(sheet.window));
        else
            ExpectOnePrompt(edit, L"abc");
    }
}

TEST_F(LeavingTheSideClearance, TellsTheOthersOnTheWayToOkAndToDefaults)
{
    OpenSheet sheet({&page, &spy});
    ui::Choose(sheet.Page(), kGougeCheck, 0); // which enables Apply
    for (const int button : {int{IDOK}, kApply}) {
        spy.notices.clear();
        TypeInto(Edit(sheet), L"1/4");
        GoTo(Button(sheet.window, button));
        EXPECT_EQ(1u, spy.notices.size());
        EXPECT_EQ(L"0.2500", ui::TextOf(Edit(sheet)));
    }
    spy.notices.clear();
    TypeInto(Edit(sheet), L"1/8");
    GoTo(ui::Control(sheet.Page(), IDC_RESTORE_DEFAULTS));
    EXPECT_EQ(1u, spy.notices.size());
    EXPECT_EQ(L"0.1250", ui::TextOf(Edit(sheet)));
}

TEST_F(LeavingTheSideClearance, AsksWhereTheFocusComesToRestOnAButtonOrTab)
{
    OpenSheet sheet({&page, &spy});
    ui::Choose(sheet.Page(), kGougeCheck, 0); // which enables Apply
    const auto tabs = reinterpret_cast<HWND>(SendMessage(sheet.window, PSM_GETTABCONTROL, 0, 0));
    for (const HWND place : {Button(sheet.window, IDOK), Button(sheet.window, kApply), tabs}) {
        TypeInto(Edit(sheet), L"abc");
        GoTo(place);
        ExpectOnePrompt(Edit(sheet), L"abc");
    }
    TypeInto(Edit(sheet), L"1");
}

TEST_F(LeavingTheSideClearance, MindsNoBlanksBehindAWholeNumber)
{
    constexpr int kLeadAngle = 3913;
    OpenSheet sheet({&page, &spy});
    for (const wchar_t* const whole : {L"7 ", L"7 x"}) {
        SetWindowText(ui::Control(sheet.Page(), kLeadAngle), whole);
        TypeInto(Edit(sheet), L"1/4");
        GoTo(Button(sheet.window, IDOK));
        EXPECT_EQ(whole[2] ? L"1/4" : L"0.2500", ui::TextOf(Edit(sheet))) << CStringA(whole);
        ui::DismissBoxes();
    }
    sheet.Cancel();
}

TEST_F(LeavingTheSideClearance, AsksOnceAButtonThatIsHeldDownIsLetGoBesideIt)
{
    OpenSheet sheet({&page, &spy});
    TypeInto(Edit(sheet), L"abc");
    const HWND button = Button(sheet.window, IDOK);
    PostMessage(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(StaysOpenAndSilent(sheet.window));
    EXPECT_EQ(button, ui::Focus(sheet.window));
    PostMessage(button, WM_LBUTTONUP, 0, MAKELPARAM(-50, -50));
    ExpectOnePrompt(Edit(sheet), L"abc");
    sheet.Cancel();
}

TEST_F(LeavingTheSideClearance, AsksNothingWhereTheFocusComesToRestOnCancelOrDefaults)
{
    OpenSheet sheet({&page, &spy});
    TypeInto(Edit(sheet), L"abc");
    for (const HWND place :
         {Button(sheet.window, IDCANCEL), ui::Control(sheet.Page(), IDC_RESTORE_DEFAULTS), Edit(sheet)}) {
        GoTo(place);
        EXPECT_TRUE(StaysOpenAndSilent(sheet.window)) << GetDlgCtrlID(place);
    }
    EXPECT_EQ(L"abc", ui::TextOf(Edit(sheet)));
    ui::Press(Edit(sheet), VK_RETURN);
    ExpectOnePrompt(Edit(sheet), L"abc");
    sheet.Cancel();
}

TEST_F(LeavingTheSideClearance, TakesItAndAsksOnceWhereTheFocusGoesToAnotherProgram)
{
    OpenSheet sheet({&page, &spy});
    // A window of another thread is as good as one of another program.
    const HWND other = CreateWindow(L"Static", L"Другая программа", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                    nullptr, nullptr, nullptr, nullptr);
    const auto goToOther = [&] {
        SetForegroundWindow(sheet.window);
        ui::WaitUntil([&] { return GetForegroundWindow() == sheet.window; });
        GoTo(Edit(sheet));
        SetForegroundWindow(other);
        ui::Settle(sheet.window);
    };
    TypeInto(Edit(sheet), L"1/4");
    goToOther();
    EXPECT_EQ(L"0.2500", ui::TextOf(Edit(sheet)));
    EXPECT_EQ(1u, spy.notices.size());
    TypeInto(Edit(sheet), L"abc");
    goToOther();
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter a number.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_FALSE(ui::IsBoxOpen());
    TypeInto(Edit(sheet), L"1");
    DestroyWindow(other);
}

TEST_F(LeavingTheSideClearance, TakesItAndAsksOnceWhereAnotherPageComesToTheFront)
{
    OpenSheet sheet({&page, &spy});
    TypeInto(Edit(sheet), L"abc");
    sheet.Switch(1);
    ExpectOnePrompt(Edit(sheet), L"abc");
    TypeInto(Edit(sheet), L"1/4");
    ClickOnTab(sheet.window, 1);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(1u, spy.notices.size());
    sheet.Switch(0);
    EXPECT_EQ(L"0.2500", ui::TextOf(Edit(sheet)));
}

TEST_F(LeavingTheSideClearance, APageThatIsShownOnceMoreKnowsTheEqualsSign)
{
    for (int showing = 0; showing < 3; ++showing) {
        OpenSheet sheet({&page});
        TypeInto(Edit(sheet), L"2*0.25=");
        EXPECT_EQ(L"0.5000", ui::TextOf(Edit(sheet))) << showing;
        TypeInto(Edit(sheet), L"abc");
        ui::FocusOn(sheet.Page(), kGougeCheck);
        ExpectOnePrompt(Edit(sheet), L"abc");
        sheet.Cancel();
    }
}

// ---- the axis of rotation ----

constexpr int kStartX = 1910;
constexpr int kStartY = 1911;

class LeavingTheRotaryDialog : public testing::Test {
protected:
    LeavingTheRotaryDialog()
    {
        ui::UiThread::Get().Call([this] {
            double axis[2][3] = {{1, 2, 3}, {4, 5, 6}};
            page.GetData(0, axis);
        });
    }
    HWND Open(OpenSheet& sheet)
    {
        ui::Click(sheet.Page(), IDC_MX_ROTARY_OPTIONS);
        return ui::WaitForWindow(L"Параметры осей поворота");
    }
    double Start(int coordinate)
    {
        return ui::On([&] {
            double axis[2][3];
            page.SetData(axis);
            return axis[0][coordinate];
        });
    }

    const HostFolder host;
    CDefs5xPage page;
};

/// Whether the dialog over a sheet closes with nothing asked.
bool ClosesOverTheSheet(HWND dialog)
{
    ui::WaitUntil([&] { return !IsWindow(dialog) || ui::IsBoxOpen(); });
    const bool isClosed = !IsWindow(dialog) && !ui::IsBoxOpen();
    ui::DismissBoxes();
    return isClosed;
}

TEST_F(LeavingTheRotaryDialog, HandsOnWhatWasTakenBefore)
{
    OpenSheet sheet({&page});
    double expected = 10;
    for (const wchar_t* const left : {L"abc", L"99"})
        for (const Way& way : WaysOut()) {
            SCOPED_TRACE(way.name);
            const HWND dialog = Open(sheet);
            ui::Type(dialog, kStartX, std::to_wstring(++expected));
            ui::Type(dialog, kStartY, left);
            way.go(dialog, ui::Control(dialog, kStartY), IDCANCEL);
            EXPECT_TRUE(ClosesOverTheSheet(dialog));
            EXPECT_EQ(expected, Start(0));
            EXPECT_EQ(2.0, Start(1));
        }
}

TEST_F(LeavingTheRotaryDialog, AsksOnceOnOkHoweverItIsPressed)
{
    OpenSheet sheet({&page});
    const HWND dialog = Open(sheet);
    const HWND edit = ui::Control(dialog, kStartY);
    for (const Way& way : kPresses) {
        SCOPED_TRACE(way.name);
        TypeInto(edit, L"abc");
        way.go(dialog, edit, IDOK);
        ExpectOnePrompt(edit, L"abc");
    }
    TypeInto(edit, L"7");
    ClickWithMouse(Button(dialog, IDOK));
    EXPECT_TRUE(ClosesOverTheSheet(dialog));
    EXPECT_EQ(7.0, Start(1));
}

// ---- the setup sheet, in a window of the host's ----

/// A host's window around the dialog, with the buttons.
class CSetupFrame : public CDialog {
public:
    CSetupFrame() : CDialog(IDD_FRAME) {}

    CDefsSetupsheet dialog;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        EXPECT_TRUE(dialog.Create(CDefsSetupsheet::IDD, this));
        dialog.GetData(kInch);
        dialog.ShowWindow(SW_SHOW);
        MarkAsDefaultsButton(::GetDlgItem(m_hWnd, IDC_FRAME_DEFAULTS));
        return TRUE;
    }

protected:
    void OnOK() override
    {
        if (!dialog.UpdateData(TRUE))
            return;
        dialog.SetData();
        CDialog::OnOK();
    }
    void OnDefaults()
    {
        dialog.SendMessage(kSetDefaultsMessage);
        dialog.UpdateData(FALSE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSetupFrame, CDialog)
    ON_BN_CLICKED(IDC_FRAME_DEFAULTS, &CSetupFrame::OnDefaults)
END_MESSAGE_MAP()

class LeavingTheSetupSheet : public testing::Test {
protected:
    LeavingTheSetupSheet() { *GetLastSSheetOptions() = CSSheetOptionsInfo(); }
    ~LeavingTheSetupSheet() override { *GetLastSSheetOptions() = CSSheetOptionsInfo(); }

    static HWND Edit(const CSetupFrame& frame) { return ui::Control(frame.dialog.m_hWnd, IDC_SHEET_RAPID_RATE); }

    const HostFolder host;
};

TEST_F(LeavingTheSetupSheet, AsksAndTakesNothingOnTheWayOut)
{
    for (const wchar_t* const left : {L"abc", L"99"})
        for (const Way& way : WaysOut()) {
            SCOPED_TRACE(way.name);
            CSetupFrame frame;
            const OpenModal open(frame, L"Рамка");
            TypeInto(Edit(frame), left);
            way.go(open.window, Edit(frame), IDCANCEL);
            EXPECT_TRUE(ClosesWithoutAWord(open.window));
            ui::UiThread::Get().Call([&] { frame.dialog.SetData(); });
            EXPECT_EQ(400.0, GetLastSSheetOptions()->RapidRate);
        }
}

TEST_F(LeavingTheSetupSheet, AsksNothingOnceItsOwnCancelHasComeWhereverTheFocusRests)
{
    CSetupFrame frame;
    const OpenModal open(frame, L"Рамка");
    TypeInto(Edit(frame), L"abc");
    ui::UiThread::Get().Call([&] {
        frame.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Button(open.window, IDOK)), TRUE);
        frame.dialog.SendMessage(WM_COMMAND, IDCANCEL);
    });
    EXPECT_TRUE(StaysOpenAndSilent(open.window));
    EXPECT_EQ(Button(open.window, IDOK), ui::Focus(open.window));
    EXPECT_FALSE(IsWindowVisible(frame.dialog.m_hWnd));
}

TEST_F(LeavingTheSetupSheet, AsksOnceOnOkHoweverItIsPressed)
{
    CSetupFrame frame;
    const OpenModal open(frame, L"Рамка");
    for (const Way& way : kPresses) {
        SCOPED_TRACE(way.name);
        TypeInto(Edit(frame), L"abc");
        way.go(open.window, Edit(frame), IDOK);
        ExpectOnePrompt(Edit(frame), L"abc");
    }
    TypeInto(Edit(frame), L"7");
    ClickWithMouse(Button(open.window, IDOK));
    EXPECT_TRUE(ClosesWithoutAWord(open.window));
    EXPECT_EQ(7.0, GetLastSSheetOptions()->RapidRate);
}

TEST_F(LeavingTheSetupSheet, AsksNothingOnTheWayToDefaultsWhichReplaceTheText)
{
    CSetupFrame frame;
    const OpenModal open(frame, L"Рамка");
    for (const Way& way : kPresses) {
        SCOPED_TRACE(way.name);
        TypeInto(Edit(frame), L"abc");
        way.go(open.window, Edit(frame), IDC_FRAME_DEFAULTS);
        EXPECT_TRUE(IsOpenAndSilent(open.window));
        EXPECT_EQ(L"400.0000", ui::TextOf(Edit(frame)));
    }
}

TEST_F(LeavingTheSetupSheet, AsksNothingWhereTheHostDestroysItsWindow)
{
    CDefsSetupsheet dialog;
    const OpenInside inside(dialog, CDefsSetupsheet::IDD);
    ui::UiThread::Get().Call([&] { dialog.GetData(kInch); });
    ui::Type(dialog.m_hWnd, IDC_SHEET_RAPID_RATE, L"abc");
    ui::UiThread::Get().Start([&] { DestroyWindow(inside.frame); });
    EXPECT_TRUE(ClosesWithoutAWord(inside.frame));
}

TEST_F(LeavingTheSetupSheet, ShowsTheStyleOfItsDefaultsAtTheNextRefreshAndEnablesTheBoxes)
{
    constexpr int kOutputs[] = {IDC_SHEET_TOOLING, IDC_SHEET_TOOLING_GRAPHICS, IDC_SHEET_OPERATIONS};
    CSetupFrame frame;
    const OpenModal open(frame, L"Рамка");
    const HWND dialog = frame.dialog.m_hWnd;
    for (const int style : {2, 1, 0}) {
        host.WriteDefaults("[OptionsSSheet]\r\nSetupStyle=" + std::to_string(style) + "\r\n");
        const int shownBefore = ui::Selection(dialog, IDC_SHEET_STYLE);
        SendHostMessage(dialog, kSetDefaultsMessage);
        EXPECT_EQ(shownBefore, ui::Selection(dialog, IDC_SHEET_STYLE)) << style;
        ui::UiThread::Get().Call([&] { frame.dialog.UpdateData(FALSE); });
        EXPECT_EQ(style == 2 ? 2 : 1 - style, ui::Selection(dialog, IDC_SHEET_STYLE)) << style;
        for (const int output : kOutputs)
            EXPECT_EQ(style == 1, ui::IsEnabled(dialog, output)) << style;
        ui::UiThread::Get().Call([&] { frame.dialog.SetData(); });
        EXPECT_EQ(style, GetLastSSheetOptions()->SetupStyle);
    }
}

// ---- the global defaults, which ask on OK alone ----

TEST(LeavingNcDefaults, AsksOnOkAlone)
{
    const HostFolder host;
    for (const Way& way : WaysOut()) {
        SCOPED_TRACE(way.name);
        CDefsNCDefaultsDlg dialog;
        const OpenModal open(dialog, L"Параметры ЧПУ");
        ui::Click(open.window, IDC_NCDEF_FILTER_SPANS);
        const HWND edit = ui::Control(open.window, IDC_NCDEF_MAX_SPAN);
        TypeInto(edit, L"abc");
        way.go(open.window, edit, IDCANCEL);
        EXPECT_TRUE(ClosesWithoutAWord(open.window));
    }
    CDefsNCDefaultsDlg dialog;
    const OpenModal open(dialog, L"Параметры ЧПУ");
    ui::Click(open.window, IDC_NCDEF_FILTER_SPANS);
    const HWND edit = ui::Control(open.window, IDC_NCDEF_MAX_SPAN);
    for (const Way& way : kPresses) {
        SCOPED_TRACE(way.name);
        TypeInto(edit, L"abc");
        way.go(open.window, edit, IDOK);
        ExpectOnePrompt(edit, L"abc");
    }
}

} // namespace
