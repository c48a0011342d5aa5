#include <climits>
#include <functional>
#include <limits>
#include <optional>

#include <afxcmn.h>

#include "modal.h"
#include "resource.h"

namespace {

/// Exchanges what the test tells it to, and counts the notifications that reach it.
class CExchangeDialog : public CDialog {
public:
    explicit CExchangeDialog(UINT templateId = IDD_EXCHANGE) : CDialog(templateId) {}
    std::function<void(CDataExchange*)> exchange = [](CDataExchange*) {};
    int changes = 0;
    int leavings = 0;
    int notices = 0;

protected:
    void DoDataExchange(CDataExchange* pass) override
    {
        CDialog::DoDataExchange(pass);
        exchange(pass);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (CDialog::OnNotify(wParam, lParam, result))
            return TRUE;
        ++notices;
        return FALSE;
    }
    void OnChange() { ++changes; }
    void OnLeave() { ++leavings; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CExchangeDialog, CDialog)
    ON_EN_CHANGE(IDC_NUMBER, &CExchangeDialog::OnChange)
    ON_EN_CHANGE(IDC_TEXT, &CExchangeDialog::OnChange)
    ON_EN_KILLFOCUS(IDC_NUMBER, &CExchangeDialog::OnLeave)
END_MESSAGE_MAP()

/// The dialog stands unseen; its message boxes are noted and answered by the application.
class Exchange : public testing::Test {
protected:
    Exchange()
    {
        OnUi([this] {
            EXPECT_TRUE(dialog.Create(IDD_EXCHANGE));
            for (const wchar_t* item : {L"нуль", L"один", L"два"})
                dialog.SendDlgItemMessage(IDC_CHOICE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        });
    }
    ~Exchange() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    bool Save()
    {
        return ui::On([this] { return dialog.UpdateData(TRUE) != FALSE; });
    }
    bool Load()
    {
        return ui::On([this] { return dialog.UpdateData(FALSE) != FALSE; });
    }
    void SetText(int id, const wchar_t* text)
    {
        OnUi([=, this] { dialog.SetDlgItemText(id, text); });
    }
    std::wstring Text(int id) { return ui::TextOf(dialog.m_hWnd, id); }
    LRESULT Ask(int id, UINT message, WPARAM wParam = 0) { return dialog.SendDlgItemMessage(id, message, wParam); }

    CQuietApp application;
    CExchangeDialog dialog;
};

// ---- whole numbers ----

class ExchangeOfANumber : public Exchange {
protected:
    ExchangeOfANumber()
    {
        dialog.exchange = [this](CDataExchange* pass) { DDX_Text(pass, IDC_NUMBER, number); };
    }
    int number = 77;
};

TEST_F(ExchangeOfANumber, TakesEveryWholeNumberOf32Bits)
{
    const struct {
        const wchar_t* text;
        int number;
    } cases[] = {{L"0", 0},
                 {L"12", 12},
                 {L"-1", -1},
                 {L"+5", 5},
                 {L"007", 7},
                 {L"  8\t", 8},
                 {L" -9 ", -9},
                 {L"-0", 0},
                 {L"2147483647", 2147483647},
                 {L"-2147483648", -2147483647 - 1},
                 {L"0000000000000000000000000000001", 1}};
    for (const auto& [text, expected] : cases) {
        SetText(IDC_NUMBER, text);
        EXPECT_TRUE(Save()) << CStringA(text);
        EXPECT_EQ(expected, number) << CStringA(text);
    }
    EXPECT_TRUE(application.boxes.empty());
}

TEST_F(ExchangeOfANumber, RefusesWhatIsNoneWithTheStandardPromptAndKeepsTheValue)
{
    for (const wchar_t* text :
         {L"",    L" ",   L"-",   L"+",   L"x",    L"12x", L"x12",        L"1 2",         L"1.0",
          L"1,5", L"--1", L"+-1", L"- 1", L"0x10", L"1e3", L"2147483648", L"-2147483649", L"99999999999999999999999999",
          L"٣",   L"²"}) {
        SetText(IDC_NUMBER, text);
        application.boxes.clear();
        EXPECT_FALSE(Save()) << CStringA(text);
        EXPECT_EQ(77, number) << CStringA(text);
        ASSERT_EQ(1U, application.boxes.size()) << CStringA(text);
        EXPECT_EQ(L"Please enter an integer.", application.boxes[0].text);
        EXPECT_EQ(UINT{MB_OK | MB_ICONEXCLAMATION}, application.boxes[0].type);
        EXPECT_EQ(61712U, application.boxes[0].helpId);
        EXPECT_EQ(text, Text(IDC_NUMBER));
    }
}

TEST_F(ExchangeOfANumber, ShowsTheNumber)
{
    for (const int shown : {0, -5, 2147483647, -2147483647 - 1}) {
        number = shown;
        EXPECT_TRUE(Load());
        EXPECT_EQ(std::to_wstring(shown), Text(IDC_NUMBER));
    }
}

TEST_F(ExchangeOfANumber, EndsThePassSoThatLaterFieldsKeepTheirValues)
{
    CString later(L"kept");
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Text(pass, IDC_NUMBER, number);
        DDX_Text(pass, IDC_TEXT, later);
    };
    SetText(IDC_NUMBER, L"x");
    SetText(IDC_TEXT, L"new");
    EXPECT_FALSE(Save());
    EXPECT_STREQ(L"kept", later);
}

// ---- strings ----

class ExchangeOfAText : public Exchange {
protected:
    ExchangeOfAText()
    {
        dialog.exchange = [this](CDataExchange* pass) { DDX_Text(pass, IDC_TEXT, text); };
    }
    CString text;
};

TEST_F(ExchangeOfAText, GoesBothWaysUnchanged)
{
    for (const wchar_t* sample : {L"", L" ", L" Шаг \"2\" ", L"é"}) {
        text = sample;
        EXPECT_TRUE(Load());
        EXPECT_EQ(sample, Text(IDC_TEXT));
        text = L"other";
        EXPECT_TRUE(Save());
        EXPECT_STREQ(sample, text);
    }
}

TEST_F(ExchangeOfAText, HasNoLimitOfItsOwn)
{
    text = CString(L'ы', 20000);
    EXPECT_TRUE(Load());
    text.Empty();
    EXPECT_TRUE(Save());
    EXPECT_EQ(20000, text.GetLength());
}

TEST_F(ExchangeOfAText, LeavesAControlAloneThatShowsTheTextAlready)
{
    text = L"same";
    Load();
    Ask(IDC_TEXT, EM_SETMODIFY, TRUE);
    Load();
    EXPECT_TRUE(Ask(IDC_TEXT, EM_GETMODIFY)); // a text set anew would have cleared it
    text = L"Same";
    Load();
    EXPECT_EQ(L"Same", Text(IDC_TEXT));
}

// ---- check boxes and radio buttons ----

class ExchangeOfACheck : public Exchange {
protected:
    ExchangeOfACheck()
    {
        dialog.exchange = [this](CDataExchange* pass) { DDX_Check(pass, IDC_CHECK, value); };
    }
    int value = 0;
};

TEST_F(ExchangeOfACheck, GoesBothWaysForItsThreeStates)
{
    for (const int state : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        value = state;
        EXPECT_TRUE(Load());
        EXPECT_EQ(state, Ask(IDC_CHECK, BM_GETCHECK));
        value = 99;
        EXPECT_TRUE(Save());
        EXPECT_EQ(state, value);
    }
}

TEST_F(ExchangeOfACheck, ShowsAnyOtherValueAsOff)
{
    for (const int odd : {3, -1, 2147483647}) {
        Ask(IDC_CHECK, BM_SETCHECK, BST_CHECKED);
        value = odd;
        EXPECT_TRUE(Load());
        EXPECT_EQ(BST_UNCHECKED, Ask(IDC_CHECK, BM_GETCHECK)) << odd;
    }
}

class ExchangeOfARadio : public Exchange {
protected:
    ExchangeOfARadio()
    {
        dialog.exchange = [this](CDataExchange* pass) { DDX_Radio(pass, IDC_FIRST_RADIO, value); };
        dialog.CheckDlgButton(IDC_AFTER_GROUP, BST_CHECKED);
    }
    std::vector<UINT> States()
    {
        std::vector<UINT> states;
        for (const int id : {IDC_FIRST_RADIO, IDC_SECOND_RADIO, IDC_THIRD_RADIO})
            states.push_back(dialog.IsDlgButtonChecked(id));
        return states;
    }
    int value = 0;
};

TEST_F(ExchangeOfARadio, NamesTheButtonThatIsOnCountingButtonsOnly)
{
    const std::vector<UINT> shown[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (const int index : {0, 1, 2}) {
        value = index;
        EXPECT_TRUE(Load());
        EXPECT_EQ(shown[index], States());
        value = 99;
        EXPECT_TRUE(Save());
        EXPECT_EQ(index, value);
    }
}

TEST_F(ExchangeOfARadio, IsMinusOneWhereNoneIsOn)
{
    value = -1;
    EXPECT_TRUE(Load());
    EXPECT_EQ((std::vector<UINT>{0, 0, 0}), States());
    value = 99;
    EXPECT_TRUE(Save());
    EXPECT_EQ(-1, value);
}

TEST_F(ExchangeOfARadio, TurnsAllOffForAValueOutOfRange)
{
    for (const int odd : {3, -2, 1000}) {
        value = 1;
        Load();
        value = odd;
        EXPECT_TRUE(Load());
        EXPECT_EQ((std::vector<UINT>{0, 0, 0}), States()) << odd;
    }
}

TEST_F(ExchangeOfARadio, EndsAtTheNextGroup)
{
    value = 0;
    Load();
    EXPECT_EQ(UINT{BST_CHECKED}, dialog.IsDlgButtonChecked(IDC_AFTER_GROUP));
    value = -1;
    Load();
    Save();
    EXPECT_EQ(-1, value);
}

// ---- lists ----

class ExchangeOfAChoice : public Exchange {
protected:
    ExchangeOfAChoice()
    {
        dialog.exchange = [this](CDataExchange* pass) { DDX_CBIndex(pass, IDC_CHOICE, value); };
    }
    int value = 0;
};

TEST_F(ExchangeOfAChoice, GoesBothWaysAsAnIndex)
{
    for (const int index : {2, 0, 1}) {
        value = index;
        EXPECT_TRUE(Load());
        EXPECT_EQ(index, ui::Selection(dialog.m_hWnd, IDC_CHOICE));
        value = 99;
        EXPECT_TRUE(Save());
        EXPECT_EQ(index, value);
    }
}

TEST_F(ExchangeOfAChoice, SelectsNothingForAnIndexThatTheListLacks)
{
    for (const int odd : {-1, 3, -2}) {
        value = 1;
        Load();
        value = odd;
        EXPECT_TRUE(Load());
        EXPECT_EQ(-1, ui::Selection(dialog.m_hWnd, IDC_CHOICE)) << odd;
        EXPECT_TRUE(Save());
        EXPECT_EQ(-1, value);
    }
}

// ---- control objects ----

TEST_F(Exchange, AttachesAControlObjectOnce)
{
    CEdit edit;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Control(pass, IDC_NUMBER, edit); };
    EXPECT_TRUE(Load());
    EXPECT_EQ(ui::Control(dialog.m_hWnd, IDC_NUMBER), edit.m_hWnd);
    EXPECT_TRUE(Load());
    EXPECT_TRUE(Save());
    OnUi([&] {
        EXPECT_EQ(&edit, dialog.GetDlgItem(IDC_NUMBER));
        dialog.DestroyWindow();
    });
    EXPECT_EQ(nullptr, edit.m_hWnd);
}

TEST_F(Exchange, RefusesASecondObjectForAControl)
{
    CEdit first;
    CEdit second;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Control(pass, IDC_NUMBER, first);
        DDX_Control(pass, IDC_NUMBER, second);
    };
    EXPECT_FALSE(Load());
    EXPECT_EQ(nullptr, second.m_hWnd);
    SetText(IDC_NUMBER, L"5"); // the control still works
    EXPECT_EQ(L"5", Text(IDC_NUMBER));
    OnUi([&] { dialog.DestroyWindow(); });
}

// ---- what every exchange shares ----

TEST_F(Exchange, FailsWithoutAWordWhereAControlIsMissing)
{
    int number = 5;
    CString text(L"kept");
    CEdit control;
    const std::function<void(CDataExchange*)> kinds[] = {
        [&](CDataExchange* pass) { DDX_Text(pass, IDC_MISSING, number); },
        [&](CDataExchange* pass) { DDX_Text(pass, IDC_MISSING, text); },
        [&](CDataExchange* pass) { DDX_Check(pass, IDC_MISSING, number); },
        [&](CDataExchange* pass) { DDX_Radio(pass, IDC_MISSING, number); },
        [&](CDataExchange* pass) { DDX_CBIndex(pass, IDC_MISSING, number); },
        [&](CDataExchange* pass) { DDX_Control(pass, IDC_MISSING, control); }};
    for (const auto& kind : kinds) {
        dialog.exchange = kind;
        EXPECT_FALSE(Load());
        EXPECT_FALSE(Save());
    }
    EXPECT_EQ(5, number);
    EXPECT_STREQ(L"kept", text);
    EXPECT_TRUE(application.boxes.empty());
}

TEST_F(Exchange, FailsWithoutAWindow)
{
    CExchangeDialog closed;
    int number = 5;
    closed.exchange = [&](CDataExchange* pass) { DDX_Text(pass, IDC_NUMBER, number); };
    EXPECT_FALSE(closed.UpdateData(FALSE));
    EXPECT_FALSE(closed.UpdateData(TRUE));
    EXPECT_EQ(5, number);
}

TEST_F(Exchange, TellsTheDirectionAndTheDialog)
{
    std::vector<BOOL> directions;
    const CWnd* owner = nullptr;
    dialog.exchange = [&](CDataExchange* pass) {
        directions.push_back(pass->m_bSaveAndValidate);
        owner = pass->m_pDlgWnd;
    };
    Save();
    Load();
    EXPECT_EQ((std::vector<BOOL>{TRUE, FALSE}), directions);
    EXPECT_EQ(&dialog, owner);
}

TEST_F(Exchange, LetsNothingOutOfAFailedPass)
{
    dialog.exchange = [](CDataExchange* pass) { pass->Fail(); };
    for (const BOOL direction : {TRUE, FALSE}) {
        std::optional<BOOL> result;
        OnUi([&] { result = dialog.UpdateData(direction); });
        EXPECT_EQ(FALSE, result);
    }
}

TEST_F(Exchange, KeepsChangesThatItMakesItselfFromTheHandlers)
{
    CString text(L"loaded");
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, IDC_TEXT, text); };
    EXPECT_TRUE(Load());
    EXPECT_EQ(L"loaded", Text(IDC_TEXT));
    EXPECT_EQ(0, dialog.changes);
    SetText(IDC_TEXT, L"set");
    EXPECT_EQ(1, dialog.changes);
}

TEST_F(Exchange, HearsTheControlsAgainAfterAFailedPass)
{
    dialog.exchange = [](CDataExchange* pass) { pass->Fail(); };
    EXPECT_FALSE(Save());
    SetText(IDC_TEXT, L"set");
    EXPECT_EQ(1, dialog.changes);
}

TEST_F(Exchange, LocksOutEveryNotificationWhileItRuns)
{
    dialog.exchange = [this](CDataExchange*) {
        dialog.SetDlgItemText(IDC_NUMBER, L"1");
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_NUMBER, EN_KILLFOCUS),
                           reinterpret_cast<LPARAM>(ui::Control(dialog.m_hWnd, IDC_NUMBER)));
        dialog.SendDlgItemMessage(IDC_UP_DOWN, WM_LBUTTONDOWN, 0, MAKELPARAM(2, 2));
        dialog.SendDlgItemMessage(IDC_UP_DOWN, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    };
    EXPECT_TRUE(Save());
    EXPECT_EQ(0, dialog.changes);
    EXPECT_EQ(0, dialog.leavings);
    EXPECT_EQ(0, dialog.notices);
    OnUi([this] { dialog.exchange(nullptr); });
    EXPECT_EQ(1, dialog.changes);
    EXPECT_EQ(1, dialog.leavings);
    EXPECT_LT(0, dialog.notices);
}

TEST_F(Exchange, LocksOutTheControlsOfItsOwnDialogOnly)
{
    CExchangeDialog other;
    OnUi([&] {
        ASSERT_TRUE(other.Create(IDD_EXCHANGE));
        dialog.exchange = [&](CDataExchange*) { other.SetDlgItemText(IDC_TEXT, L"x"); };
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        other.DestroyWindow();
    });
    EXPECT_EQ(1, other.changes);
}

TEST_F(Exchange, StaysLockedOutAfterAnExchangeWithinTheExchange)
{
    bool inner = false;
    dialog.exchange = [&](CDataExchange*) {
        if (inner)
            return;
        inner = true;
        dialog.UpdateData(FALSE);
        dialog.SetDlgItemText(IDC_TEXT, L"x");
    };
    EXPECT_TRUE(Save());
    EXPECT_TRUE(inner);
    EXPECT_EQ(0, dialog.changes);
}

// ---- with a person at the screen ----

class CNumberDialog : public CExchangeDialog {
public:
    CNumberDialog() : CExchangeDialog(IDD_NUMBER)
    {
        exchange = [this](CDataExchange* pass) { DDX_Text(pass, IDC_NUMBER, number); };
    }
    int number = 7;
};

TEST(ExchangeAtTheScreen, TakesATypedNumberOnOk)
{
    CNumberDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ(L"7", ui::TextOf(open.window, IDC_NUMBER));
    EXPECT_EQ(0, dialog.changes);
    ui::Type(open.window, IDC_NUMBER, L"12");
    EXPECT_EQ(2, dialog.changes);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    EXPECT_EQ(12, dialog.number);
}

TEST(ExchangeAtTheScreen, ReturnsToTheRefusedFieldWithItsTextSelected)
{
    CNumberDialog dialog;
    Modal open(dialog, L"Проба");
    ui::Type(open.window, IDC_NUMBER, L"12x");
    ui::Click(open.window, IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
    ui::Answer(box, IDOK);
    const HWND edit = ui::Control(open.window, IDC_NUMBER);
    EXPECT_EQ(edit, ui::Focus(open.window));
    EXPECT_EQ(static_cast<LRESULT>(MAKELONG(0, 3)), SendMessage(edit, EM_GETSEL, 0, 0));
    EXPECT_TRUE(IsWindow(open.window));
    EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
    EXPECT_EQ(7, dialog.number);
}

TEST(ExchangeAtTheScreen, IsNotDisturbedByTheFieldThatLosesTheFocusToThePrompt)
{
    CNumberDialog dialog;
    Modal open(dialog, L"Проба");
    ui::Type(open.window, IDC_NUMBER, L"x");
    dialog.leavings = 0;
    OnUi([&] { dialog.PostMessage(WM_COMMAND, IDOK); });
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_NE(ui::Control(open.window, IDC_NUMBER), ui::Focus(open.window));
    EXPECT_EQ(0, dialog.leavings);
    ui::Answer(box, IDOK);
    EXPECT_EQ(0, dialog.leavings);
    ui::FocusOn(open.window, IDCANCEL);
    EXPECT_EQ(1, dialog.leavings);
    open.CloseBy(IDCANCEL);
}

/// Takes its data whenever the field is left, as the option pages do.
class CEagerDialog : public CNumberDialog {
protected:
    void OnLeaveAndTake() { UpdateData(TRUE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CEagerDialog, CNumberDialog)
    ON_EN_KILLFOCUS(IDC_NUMBER, &CEagerDialog::OnLeaveAndTake)
END_MESSAGE_MAP()

TEST(ExchangeAtTheScreen, PromptsOnceWhenAFieldIsTakenAsItLosesTheFocus)
{
    CEagerDialog dialog;
    Modal open(dialog, L"Проба");
    ui::Type(open.window, IDC_NUMBER, L"x");
    ui::FocusOn(open.window, IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(ui::Control(open.window, IDC_NUMBER), ui::Focus(open.window));
    ui::Type(open.window, IDC_NUMBER, L"9");
    open.CloseBy(IDOK);
    EXPECT_EQ(9, dialog.number);
}

// ---- numbers of other types, and their bounds ----

class ExchangeOfATypedNumber : public Exchange {
protected:
    /// Saves what is typed; the prompt that refused it, 0 where it was taken.
    template <class Number> UINT Typed(const wchar_t* text, Number& value)
    {
        dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, IDC_NUMBER, value); };
        SetText(IDC_NUMBER, text);
        application.boxes.clear();
        return Save() ? 0 : application.boxes.at(0).helpId;
    }
    template <class Number> std::wstring Shown(Number value)
    {
        dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, IDC_NUMBER, value); };
        Load();
        return Text(IDC_NUMBER);
    }
    /// Saves with a check; the text of the prompt that refused, empty where it was taken.
    std::wstring Checked(const std::function<void(CDataExchange*)>& check)
    {
        dialog.exchange = [&](CDataExchange* pass) {
            pass->PrepareEditCtrl(IDC_NUMBER);
            check(pass);
        };
        application.boxes.clear();
        return Save() ? L"" : application.boxes.at(0).text;
    }
};

TEST_F(ExchangeOfATypedNumber, TakesWhatItsTypeHolds)
{
    BYTE byte = 7;
    EXPECT_EQ(0U, Typed(L"255", byte));
    EXPECT_EQ(255, byte);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_BYTE}, Typed(L"256", byte));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_BYTE}, Typed(L"-1", byte));
    EXPECT_EQ(255, byte);
    short small = 0;
    EXPECT_EQ(0U, Typed(L"-32768", small));
    EXPECT_EQ(-32768, small);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_INT}, Typed(L"32768", small));
    UINT natural = 0;
    EXPECT_EQ(0U, Typed(L"4294967295", natural));
    EXPECT_EQ(4294967295U, natural);
    EXPECT_EQ(0U, Typed(L"-0", natural));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_UINT}, Typed(L"-5", natural));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_UINT}, Typed(L"4294967296", natural));
    long whole = 0;
    EXPECT_EQ(0U, Typed(L"-2147483648", whole));
    EXPECT_EQ(LONG_MIN, whole);
    DWORD word = 0;
    EXPECT_EQ(0U, Typed(L"4000000000", word));
    EXPECT_EQ(4000000000U, word);
    LONGLONG wide = 0;
    EXPECT_EQ(0U, Typed(L"-9223372036854775808", wide));
    EXPECT_EQ(LLONG_MIN, wide);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_INT}, Typed(L"9223372036854775808", wide));
    ULONGLONG natural64 = 0;
    EXPECT_EQ(0U, Typed(L"18446744073709551615", natural64));
    EXPECT_EQ(ULLONG_MAX, natural64);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_UINT}, Typed(L"18446744073709551616", natural64));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_UINT}, Typed(L"99999999999999999999999", natural64));
}

TEST_F(ExchangeOfATypedNumber, TakesRealsAndNothingElse)
{
    double real = 7;
    const struct {
        const wchar_t* text;
        double value;
    } cases[] = {{L"0.1", 0.1}, {L" -2.5e3 ", -2500}, {L"+.5", 0.5}, {L"3.", 3}, {L"1e-3", 0.001}};
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(0U, Typed(text, real)) << CStringA(text);
        EXPECT_EQ(value, real) << CStringA(text);
    }
    for (const wchar_t* text :
         {L"", L" ", L"x", L"1,5", L"1.5x", L"1 2", L"+-1", L"-+1", L"nan", L"inf", L"1e999", L"٣"})
        EXPECT_EQ(UINT{AFX_IDP_PARSE_REAL}, Typed(text, real)) << CStringA(text);
    EXPECT_EQ(0.001, real);
    float single = 0;
    EXPECT_EQ(0U, Typed(L"0.1", single));
    EXPECT_EQ(0.1F, single);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_REAL}, Typed(L"1e39", single));
}

TEST_F(ExchangeOfATypedNumber, IsShownAsItsTypeIs)
{
    EXPECT_EQ(L"255", Shown(BYTE{255}));
    EXPECT_EQ(L"-32768", Shown(short{-32768}));
    EXPECT_EQ(L"4294967295", Shown(UINT{4294967295U}));
    EXPECT_EQ(L"-5", Shown(-5L));
    EXPECT_EQ(L"4294967295", Shown(DWORD{4294967295U}));
    EXPECT_EQ(L"-9223372036854775808", Shown(LONGLONG{LLONG_MIN}));
    EXPECT_EQ(L"18446744073709551615", Shown(ULONGLONG{ULLONG_MAX}));
    EXPECT_EQ(L"0.1", Shown(0.1));
    EXPECT_EQ(L"0.1", Shown(0.1F));
    EXPECT_EQ(L"0.333333333333333", Shown(1.0 / 3));
    EXPECT_EQ(L"0.333333", Shown(1.0F / 3));
}

TEST_F(ExchangeOfATypedNumber, IsRefusedOutOfItsBounds)
{
    const std::wstring whole = L"Please enter an integer between 2 and 5.";
    EXPECT_EQ(L"", Checked([](CDataExchange* pass) { DDV_MinMaxInt(pass, 2, 2, 5); }));
    EXPECT_EQ(L"", Checked([](CDataExchange* pass) { DDV_MinMaxInt(pass, 5, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxInt(pass, 6, 2, 5); }));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_INT_RANGE}, application.boxes[0].helpId);
    EXPECT_EQ(UINT{MB_OK | MB_ICONEXCLAMATION}, application.boxes[0].type);
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxByte(pass, 1, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxShort(pass, -1, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxLong(pass, 6, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxUInt(pass, 4294967295U, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxDWord(pass, 6, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxLongLong(pass, LLONG_MIN, 2, 5); }));
    EXPECT_EQ(whole, Checked([](CDataExchange* pass) { DDV_MinMaxULongLong(pass, ULLONG_MAX, 2, 5); }));
    EXPECT_EQ(L"Please enter an integer between -7 and -5.",
              Checked([](CDataExchange* pass) { DDV_MinMaxInt(pass, 0, -7, -5); }));
    const std::wstring real = L"Please enter a number between 0.1 and 2.5.";
    EXPECT_EQ(L"", Checked([](CDataExchange* pass) { DDV_MinMaxDouble(pass, 0.1, 0.1, 2.5); }));
    EXPECT_EQ(real, Checked([](CDataExchange* pass) { DDV_MinMaxDouble(pass, 2.6, 0.1, 2.5); }));
    EXPECT_EQ(UINT{AFX_IDP_PARSE_REAL_RANGE}, application.boxes[0].helpId);
    EXPECT_EQ(real, Checked([](CDataExchange* pass) { DDV_MinMaxFloat(pass, 0, 0.1F, 2.5F); }));
    EXPECT_EQ(real, Checked([](CDataExchange* pass) {
                  DDV_MinMaxDouble(pass, std::numeric_limits<double>::quiet_NaN(), 0.1, 2.5);
              }));
}

TEST_F(ExchangeOfATypedNumber, IsNotCheckedWhenItIsShown)
{
    dialog.exchange = [](CDataExchange* pass) { DDV_MinMaxInt(pass, 6, 2, 5); };
    EXPECT_TRUE(Load());
    EXPECT_TRUE(application.boxes.empty());
}

// ---- texts and lists ----

class ExchangeOfAListText : public Exchange {
protected:
    ExchangeOfAListText()
    {
        OnUi([this] {
            for (const wchar_t* item : {L"нуль", L"один", L"два"})
                dialog.SendDlgItemMessage(IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        });
    }
    CString value{L"old"};
    int index = 7;
};

TEST_F(ExchangeOfAListText, LimitsWhatCanBeTypedAndRefusesTheRest)
{
    dialog.exchange = [this](CDataExchange* pass) {
        DDX_Text(pass, IDC_TEXT, value);
        DDV_MaxChars(pass, value, 3);
    };
    EXPECT_TRUE(Load());
    EXPECT_EQ(3, Ask(IDC_TEXT, EM_GETLIMITTEXT));
    SetText(IDC_TEXT, L"шаг");
    EXPECT_TRUE(Save());
    SetText(IDC_TEXT, L"шаги");
    EXPECT_FALSE(Save());
    ASSERT_EQ(1U, application.boxes.size());
    EXPECT_EQ(L"Please enter no more than 3 characters.", application.boxes[0].text);
    EXPECT_EQ(UINT{AFX_IDP_PARSE_STRING_SIZE}, application.boxes[0].helpId);
}

TEST_F(ExchangeOfAListText, GivesTheSelectedTextOfAList)
{
    dialog.exchange = [this](CDataExchange* pass) { DDX_LBString(pass, IDC_LIST, value); };
    EXPECT_TRUE(Save());
    EXPECT_STREQ(L"", value) << "nothing is selected";
    value = L"дв";
    EXPECT_TRUE(Load());
    EXPECT_EQ(2, Ask(IDC_LIST, LB_GETCURSEL));
    EXPECT_TRUE(Save());
    EXPECT_STREQ(L"два", value);
    value = L"три";
    EXPECT_TRUE(Load());
    EXPECT_EQ(LB_ERR, Ask(IDC_LIST, LB_GETCURSEL));
}

TEST_F(ExchangeOfAListText, SelectsJustTheTextWhereItIsToBeExact)
{
    dialog.exchange = [this](CDataExchange* pass) { DDX_LBStringExact(pass, IDC_LIST, value); };
    value = L"один";
    EXPECT_TRUE(Load());
    EXPECT_EQ(1, Ask(IDC_LIST, LB_GETCURSEL));
    value = L"дв";
    EXPECT_TRUE(Load());
    EXPECT_EQ(LB_ERR, Ask(IDC_LIST, LB_GETCURSEL));
    value = L"два";
    EXPECT_TRUE(Load());
    value.Empty();
    EXPECT_TRUE(Save());
    EXPECT_STREQ(L"два", value);
}

TEST_F(ExchangeOfAListText, GivesTheIndexThatIsSelected)
{
    dialog.exchange = [this](CDataExchange* pass) { DDX_LBIndex(pass, IDC_LIST, index); };
    EXPECT_TRUE(Save());
    EXPECT_EQ(-1, index);
    index = 1;
    EXPECT_TRUE(Load());
    EXPECT_EQ(1, Ask(IDC_LIST, LB_GETCURSEL));
    index = 9;
    EXPECT_TRUE(Load());
    EXPECT_EQ(LB_ERR, Ask(IDC_LIST, LB_GETCURSEL));
}

TEST_F(ExchangeOfAListText, GivesTheTextOfAComboBox)
{
    dialog.exchange = [this](CDataExchange* pass) { DDX_CBString(pass, IDC_CHOICE, value); };
    value = L"од";
    EXPECT_TRUE(Load());
    EXPECT_EQ(1, Ask(IDC_CHOICE, CB_GETCURSEL));
    EXPECT_TRUE(Save());
    EXPECT_STREQ(L"один", value);
    dialog.exchange = [this](CDataExchange* pass) { DDX_CBStringExact(pass, IDC_CHOICE, value); };
    value = L"два";
    EXPECT_TRUE(Load());
    EXPECT_EQ(2, Ask(IDC_CHOICE, CB_GETCURSEL));
    value = L"од";
    EXPECT_TRUE(Load());
    EXPECT_EQ(CB_ERR, Ask(IDC_CHOICE, CB_GETCURSEL));
}

TEST_F(ExchangeOfAListText, PutsATextThatNoItemHasIntoTheEditOfAComboBox)
{
    CComboBox free;
    OnUi([&] { ASSERT_TRUE(free.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 90, 90), &dialog, IDC_MISSING)); });
    dialog.exchange = [this](CDataExchange* pass) { DDX_CBString(pass, IDC_MISSING, value); };
    value = L"свой";
    EXPECT_TRUE(Load());
    EXPECT_EQ(L"свой", ui::TextOf(free));
    value.Empty();
    EXPECT_TRUE(Save());
    EXPECT_STREQ(L"свой", value);
}

} // namespace
