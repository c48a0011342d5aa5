#include "PelmarDlgs/expression_edits.h"

#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expr/expression_dialog.h"
#include "module/host_folder.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

constexpr double kUnbounded = 3.4028234663852886e38;
constexpr double kLargest = std::numeric_limits<double>::max();

class CExpressionDialog : public CDialog {
public:
    CExpressionDialog() : CDialog(IDD_EXPRESSIONS) {}

    double m_real = 0.5;
    double m_optional = 2.5;
    int m_isSet = 1;
    double m_ranged = 0.75;
    double m_low = 0.0;
    double m_high = 1.0;
    std::optional<double> m_checkedInstead; ///< of m_ranged
    CExpEqEdit m_realEdit;
    CExpEqEdit m_rangedEdit;
    CExpEqEditInt m_wholeEdit;
    CExpEqEditUInt m_unsignedEdit;
    HWND m_focusAfterOk = nullptr; ///< taken at once: the display may take it away when the box above is gone
    std::map<int, int> m_changes;  ///< notices of a changed text, by control

    BOOL OnInitDialog() override
    {
        EXPECT_NE(0, m_realEdit.SubclassDlgItem(IDC_REAL, this));
        EXPECT_NE(0, m_wholeEdit.SubclassDlgItem(IDC_WHOLE, this));
        EXPECT_NE(0, m_unsignedEdit.SubclassDlgItem(IDC_UNSIGNED, this));
        EXPECT_NE(0, m_rangedEdit.SubclassDlgItem(IDC_RANGED, this));
        return CDialog::OnInitDialog();
    }

protected:
    void OnOK() override
    {
        CDialog::OnOK();
        m_focusAfterOk = ::GetFocus();
    }

    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Expression(exchange, IDC_REAL, m_real);
        DDX_Expression(exchange, IDC_OPTIONAL, m_optional, &m_isSet);
        DDX_Expression(exchange, IDC_RANGED, m_ranged);
        DDV_ExpressionRange(exchange, m_checkedInstead.value_or(m_ranged), m_low, m_high);
    }

    /// Counts below the message map, which hears nothing while data are exchanged.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE)
            ++m_changes[LOWORD(wParam)];
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

/// Takes down what the application is asked to show, and shows it.
class CListeningApp : public CWinApp {
public:
    CListeningApp() : CWinApp(L"TORVEX") {}

    struct Shown {
        std::wstring text;
        UINT type;
        UINT promptId;
    };
    std::vector<Shown> m_shown;

    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override
    {
        m_shown.push_back({prompt, type, promptId});
        return CWinApp::DoMessageBox(prompt, type, promptId);
    }
};

class ExpressionEdits : public testing::Test {
protected:
    void SetUp() override
    {
        ui::UiThread::Get().Call([] { ExpressionQuietFlag() = 0; });
    }

    void TearDown() override
    {
        if (IsWindow(m_window))
            Close(IDCANCEL);
        ui::UiThread::Get().Call([] { ExpressionQuietFlag() = 0; });
    }

    void Open(const std::string& settings = "[Settings]\r\nDecimals=4\r\n")
    {
        m_host.WriteSettings(settings);
        ui::UiThread::Get().Start([this] { m_result = m_dialog.DoModal(); });
        m_window = ui::WaitForWindow(L"Выражения");
        ui::UiThread::Get().Call([this] { m_dialog.m_changes.clear(); });
    }

    void OpenWithDecimals(const std::string& decimals) { Open("[Settings]\r\nDecimals=" + decimals + "\r\n"); }

    void Close(int button)
    {
        ui::Click(m_window, button);
        ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
        EXPECT_EQ(button, m_result);
    }

    std::wstring Text(int id) const { return ui::TextOf(m_window, id); }
    void Type(int id, const std::wstring& text) const { ui::Type(m_window, id, text); }
    void Put(int id, const std::wstring& text) const { SetWindowText(ui::Control(m_window, id), text.c_str()); }

    /// The text after it was typed anew, "=" at its end.
    std::wstring TypedWithEquals(int id, const std::wstring& text) const
    {
        Type(id, text + L"=");
        return Text(id);
    }

    int Changes(int id)
    {
        return ui::On([this, id] { return m_dialog.m_changes[id]; });
    }

    bool Exchange(bool saveAndValidate)
    {
        return ui::On([this, saveAndValidate] { return m_dialog.UpdateData(saveAndValidate) != FALSE; });
    }

    void SetQuiet(int quiet) const
    {
        ui::UiThread::Get().Call([quiet] { ExpressionQuietFlag() = quiet; });
    }

    int Quiet() const
    {
        return ui::On([] { return ExpressionQuietFlag(); });
    }

    /// Presses OK, which must bring up the prompt; answers it and checks that the user is back in the control.
    void ExpectRefused(int id, UINT promptId, const std::wstring& text)
    {
        const size_t before = m_app.m_shown.size();
        ui::Click(m_window, IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(text, box.text);
        EXPECT_EQ(L"TORVEX", box.caption);
        EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
        EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
        ui::Answer(box, IDOK);
        ASSERT_EQ(before + 1, m_app.m_shown.size());
        EXPECT_EQ(promptId, m_app.m_shown.back().promptId);
        EXPECT_EQ(UINT{MB_OK | MB_ICONEXCLAMATION}, m_app.m_shown.back().type);
        ASSERT_TRUE(IsWindow(m_window));
        ExpectFocusOnAllOf(id);
    }

    void ExpectFocusOnAllOf(int id) const
    {
        EXPECT_EQ(ui::Control(m_window, id), m_dialog.m_focusAfterOk);
        DWORD first = 1;
        DWORD last = 0;
        SendMessage(ui::Control(m_window, id), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                    reinterpret_cast<LPARAM>(&last));
        EXPECT_EQ(0U, first);
        EXPECT_EQ(Text(id).size(), last);
    }

    void ExpectNotANumber(int id) { ExpectRefused(id, 61713, L"Please enter a number."); }

    void ExpectOutOfRange(const std::wstring& low, const std::wstring& high)
    {
        ExpectRefused(IDC_RANGED, 61715, L"Please enter a number between " + low + L" and " + high + L".");
    }

    void ExpectAccepted()
    {
        Close(IDOK);
        EXPECT_TRUE(m_app.m_shown.empty());
    }

    HostFolder m_host;
    CListeningApp m_app;
    CExpressionDialog m_dialog;
    INT_PTR m_result = 0;
    HWND m_window = nullptr;
};

// ---- the "=" key ----

TEST_F(ExpressionEdits, ReplaceAnExpressionByItsValueAtTheEqualsKey)
{
    Open();
    EXPECT_EQ(L"0.5000", TypedWithEquals(IDC_REAL, L"2*0.25"));
    EXPECT_EQ(L"0.1450", TypedWithEquals(IDC_REAL, L"1/8+0.02"));
    EXPECT_EQ(L"-3.5000", TypedWithEquals(IDC_REAL, L"-7/2"));
    EXPECT_EQ(L"31.0000", TypedWithEquals(IDC_REAL, L"0x1F"));
}

TEST_F(ExpressionEdits, StayAsTheyAreAtASecondEqualsKey)
{
    Open();
    EXPECT_EQ(L"0.5000", TypedWithEquals(IDC_REAL, L"2*0.25"));
    const int changes = Changes(IDC_REAL);
    ui::TypeAt(ui::Control(m_window, IDC_REAL), L"=");
    EXPECT_EQ(L"0.5000", Text(IDC_REAL));
    EXPECT_EQ(changes, Changes(IDC_REAL)) << "nobody is told of a change that is none";
}

TEST_F(ExpressionEdits, TellOfTheReplacementLikeOfAnyChange)
{
    Open();
    Type(IDC_REAL, L"1+1");
    const int changes = Changes(IDC_REAL);
    ui::TypeAt(ui::Control(m_window, IDC_REAL), L"=");
    EXPECT_EQ(changes + 1, Changes(IDC_REAL));
}

TEST_F(ExpressionEdits, EvaluateWhereverTheCaretIs)
{
    Open();
    Type(IDC_REAL, L"1+2");
    const HWND control = ui::Control(m_window, IDC_REAL);
    SendMessage(control, EM_SETSEL, 1, 2);
    ui::TypeAt(control, L"=");
    EXPECT_EQ(L"3.0000", Text(IDC_REAL));
}

TEST_F(ExpressionEdits, CalculateWithWholeNumbersInAnEditOfThem)
{
    Open();
    EXPECT_EQ(L"3", TypedWithEquals(IDC_WHOLE, L"7/2"));
    EXPECT_EQ(L"-3", TypedWithEquals(IDC_WHOLE, L"-7/2"));
    EXPECT_EQ(L"1", TypedWithEquals(IDC_WHOLE, L"7%3"));
    EXPECT_EQ(L"3", TypedWithEquals(IDC_WHOLE, L"3.9"));
    EXPECT_EQ(L"-1", TypedWithEquals(IDC_WHOLE, L"0-1"));
    EXPECT_EQ(L"-2147483648", TypedWithEquals(IDC_WHOLE, L"2147483647+1"));
}

TEST_F(ExpressionEdits, ShowTheSame32BitsWithoutASignInAnUnsignedEdit)
{
    Open();
    EXPECT_EQ(L"4294967295", TypedWithEquals(IDC_UNSIGNED, L"0-1"));
    EXPECT_EQ(L"2147483648", TypedWithEquals(IDC_UNSIGNED, L"2147483647+1"));
    EXPECT_EQ(L"3", TypedWithEquals(IDC_UNSIGNED, L"7/2"));
    EXPECT_EQ(L"4294967295", TypedWithEquals(IDC_UNSIGNED, L"4294967295"));
}

TEST_F(ExpressionEdits, KeepATextThatDoesNotEvaluateAndSayNothing)
{
    Open();
    for (const wchar_t* text : {L"2+", L"(2", L"7%3", L"1/0", L"x", L"мм", L".", L"   "}) {
        EXPECT_EQ(text, TypedWithEquals(IDC_REAL, text));
        EXPECT_FALSE(ui::IsBoxOpen());
    }
    for (const wchar_t* text : {L"2+", L"(2", L"7%0", L"1/0", L"x", L"мм", L"2^31"}) {
        EXPECT_EQ(text, TypedWithEquals(IDC_WHOLE, text));
        EXPECT_EQ(text, TypedWithEquals(IDC_UNSIGNED, text));
        EXPECT_FALSE(ui::IsBoxOpen());
    }
    EXPECT_TRUE(m_app.m_shown.empty());
}

TEST_F(ExpressionEdits, StayEmptyAtTheEqualsKey)
{
    Open();
    for (const int id : {IDC_REAL, IDC_WHOLE, IDC_UNSIGNED}) {
        Type(id, L"");
        const int changes = Changes(id);
        ui::TypeAt(ui::Control(m_window, id), L"=");
        EXPECT_EQ(L"", Text(id));
        EXPECT_EQ(changes, Changes(id));
    }
    EXPECT_EQ(L"3.5000", TypedWithEquals(IDC_REAL, L"7/2")) << "an empty text is not evaluated at all";
}

TEST_F(ExpressionEdits, LeaveIntegerModeOnAfterBlanksInAnEditOfWholeNumbers)
{
    Open();
    EXPECT_EQ(L"  ", TypedWithEquals(IDC_WHOLE, L"  "));
    EXPECT_EQ(L"3.0000", TypedWithEquals(IDC_REAL, L"7/2"));
    EXPECT_EQ(L"3.5000", TypedWithEquals(IDC_REAL, L"7/2"));
}

TEST_F(ExpressionEdits, TakeEveryOtherCharacterAsTyped)
{
    Open();
    for (const int id : {IDC_REAL, IDC_WHOLE, IDC_UNSIGNED}) {
        Type(id, L"5 mm, ммs#!");
        EXPECT_EQ(L"5 mm, ммs#!", Text(id));
        Type(id, L"12");
        ui::TypeAt(ui::Control(m_window, id), L"\b");
        EXPECT_EQ(L"1", Text(id));
    }
}

TEST_F(ExpressionEdits, IgnoreWhatFollowsTheExpression)
{
    Open();
    EXPECT_EQ(L"5.0000", TypedWithEquals(IDC_REAL, L"5 mm"));
    EXPECT_EQ(L"5.0000", TypedWithEquals(IDC_REAL, L"5 мм"));
    EXPECT_EQ(L"5", TypedWithEquals(IDC_WHOLE, L"5 мм"));
    EXPECT_EQ(L"5.0000", TypedWithEquals(IDC_REAL, L"5 毫米"));
}

TEST_F(ExpressionEdits, TakeNo255thCharacter)
{
    Open();
    for (const int id : {IDC_REAL, IDC_WHOLE, IDC_UNSIGNED}) {
        Type(id, std::wstring(253, L' ') + L"12");
        EXPECT_EQ(std::wstring(253, L' ') + L"1", Text(id));
    }
}

TEST_F(ExpressionEdits, EvaluateAFullEdit)
{
    Open();
    const std::wstring full = L"1+" + std::wstring(251, L' ') + L"2";
    ASSERT_EQ(254U, full.size());
    EXPECT_EQ(L"3.0000", TypedWithEquals(IDC_REAL, full));
    EXPECT_EQ(L"3", TypedWithEquals(IDC_WHOLE, full));
}

TEST_F(ExpressionEdits, KeepATextOfOver255CharactersThatTheHostPutThere)
{
    Open();
    const std::wstring tooLong = L"1" + std::wstring(255, L' ');
    for (const int id : {IDC_REAL, IDC_WHOLE, IDC_UNSIGNED}) {
        Put(id, tooLong);
        ui::TypeAt(ui::Control(m_window, id), L"=");
        EXPECT_EQ(tooLong, Text(id));
    }
    EXPECT_EQ(L"1.0000", TypedWithEquals(IDC_REAL, L"1"));
}

TEST_F(ExpressionEdits, CanBeDisabledAndEnabled)
{
    Open();
    for (CExpEqEditBase* edit : std::initializer_list<CExpEqEditBase*>{&m_dialog.m_realEdit, &m_dialog.m_wholeEdit,
                                                                       &m_dialog.m_unsignedEdit}) {
        ui::UiThread::Get().Call([edit] { edit->Disable(); });
        EXPECT_FALSE(IsWindowEnabled(edit->m_hWnd));
        ui::UiThread::Get().Call([edit] { edit->Enable(); });
        EXPECT_TRUE(IsWindowEnabled(edit->m_hWnd));
    }
}

TEST_F(ExpressionEdits, DoNotAttachToAMissingControl)
{
    Open();
    const int attached = ui::On([this] {
        CExpEqEdit edit;
        return edit.SubclassDlgItem(4711, &m_dialog);
    });
    EXPECT_EQ(0, attached);
}

// ---- display precision ----

TEST_F(ExpressionEdits, ShowFourDecimalsWhereNoneAreSet)
{
    Open("");
    EXPECT_EQ(L"0.5000", Text(IDC_REAL));
    EXPECT_EQ(L"0.1250", TypedWithEquals(IDC_REAL, L"1/8"));
}

TEST_F(ExpressionEdits, ShowNoFractionAtZeroDecimals)
{
    m_dialog.m_real = 12.7;
    OpenWithDecimals("0");
    EXPECT_EQ(L"13", Text(IDC_REAL));
    EXPECT_EQ(L"4", TypedWithEquals(IDC_REAL, L"7/2"));
}

TEST_F(ExpressionEdits, ShowAsManyDecimalsAsAreSet)
{
    OpenWithDecimals("2");
    EXPECT_EQ(L"0.50", Text(IDC_REAL));
    EXPECT_EQ(L"0.33", TypedWithEquals(IDC_REAL, L"1/3"));
}

TEST_F(ExpressionEdits, ShowFourDecimalsWhereANegativeNumberIsSet)
{
    OpenWithDecimals("-3");
    EXPECT_EQ(L"0.5000", Text(IDC_REAL));
}

TEST_F(ExpressionEdits, ShowNoFractionWhereNoNumberIsSet)
{
    OpenWithDecimals("many");
    EXPECT_EQ(L"4", TypedWithEquals(IDC_REAL, L"7/2"));
}

TEST_F(ExpressionEdits, ShowFiftyDecimalsAtTheMost)
{
    OpenWithDecimals("2147483647");
    EXPECT_EQ(L"0.5" + std::wstring(49, L'0'), Text(IDC_REAL));
    EXPECT_EQ(L"0.25" + std::wstring(48, L'0'), TypedWithEquals(IDC_REAL, L"1/4"));
}

TEST_F(ExpressionEdits, StayBoundedWhereDecimalsExceed32Bits)
{
    OpenWithDecimals("99999999999999999999");
    EXPECT_LE(Text(IDC_REAL).size(), 52U);
}

TEST_F(ExpressionEdits, ShowTheLargestNumberInFull)
{
    m_dialog.m_real = -kLargest;
    OpenWithDecimals("50");
    const std::wstring shown = Text(IDC_REAL);
    EXPECT_EQ(1U + 309U + 1U + 50U, shown.size());
    EXPECT_EQ(L"-17976931348623157", shown.substr(0, 18));
    EXPECT_EQ(shown.substr(1), TypedWithEquals(IDC_REAL, L"1.7976931348623157e308"));
}

TEST_F(ExpressionEdits, AcceptWhatNobodyTouchedThoughItIsLongerThanAFieldTakes)
{
    m_dialog.m_real = 1e300;
    Open();
    ASSERT_GT(Text(IDC_REAL).size(), 255U);
    ExpectAccepted();
    EXPECT_EQ(1e300, m_dialog.m_real);
}

TEST_F(ExpressionEdits, RefuseWhatIsLongerThanAFieldTakesOnceItHasBeenTouched)
{
    m_dialog.m_real = 1e300;
    Open();
    Put(IDC_REAL, L"2" + Text(IDC_REAL).substr(1));
    ExpectNotANumber(IDC_REAL);
    EXPECT_EQ(1e300, m_dialog.m_real);
}

TEST_F(ExpressionEdits, FollowTheSettingAtOnce)
{
    Open();
    m_host.WriteSettings("[Settings]\r\nDecimals=1\r\n");
    EXPECT_EQ(L"0.2", TypedWithEquals(IDC_REAL, L"0.24"));
}

TEST_F(ExpressionEdits, ShowWhatIsTooSmallAsZero)
{
    m_dialog.m_real = 1e-9;
    m_dialog.m_optional = -9.999e-9;
    m_dialog.m_ranged = 1e-8;
    OpenWithDecimals("12");
    EXPECT_EQ(L"0.000000000000", Text(IDC_REAL));
    EXPECT_EQ(L"0.000000000000", Text(IDC_OPTIONAL));
    EXPECT_EQ(L"0.000000010000", Text(IDC_RANGED));
    EXPECT_EQ(L"0.000000000000", TypedWithEquals(IDC_REAL, L"1.0e-9"));
    EXPECT_EQ(L"0.000000000000", TypedWithEquals(IDC_REAL, L"-1.0e-9"));
    EXPECT_EQ(L"0.000000010000", TypedWithEquals(IDC_REAL, L"1.0e-8"));
}

// ---- loading and saving ----

TEST_F(ExpressionEdits, ShowTheFieldsAndStoreWhatIsTyped)
{
    Open();
    EXPECT_EQ(L"0.5000", Text(IDC_REAL));
    EXPECT_EQ(L"2.5000", Text(IDC_OPTIONAL));
    EXPECT_EQ(L"0.7500", Text(IDC_RANGED));
    Type(IDC_REAL, L"1/8+0.02");
    ExpectAccepted();
    EXPECT_EQ(0.145, m_dialog.m_real);
    EXPECT_EQ(2.5, m_dialog.m_optional);
    EXPECT_EQ(1, m_dialog.m_isSet);
    EXPECT_EQ(0.75, m_dialog.m_ranged);
}

TEST_F(ExpressionEdits, StoreTheTypedValueInFullPrecision)
{
    Open();
    Type(IDC_REAL, L"1/3");
    ExpectAccepted();
    EXPECT_EQ(1.0 / 3.0, m_dialog.m_real);
}

TEST_F(ExpressionEdits, KeepATinyValueInTheFieldWhenLoading)
{
    m_dialog.m_real = 1e-9;
    Open();
    EXPECT_EQ(L"0.0000", Text(IDC_REAL));
    EXPECT_EQ(1e-9, m_dialog.m_real);
}

TEST_F(ExpressionEdits, LeaveAControlAloneThatShowsTheTextAlready)
{
    Open();
    ASSERT_TRUE(Exchange(false));
    EXPECT_EQ(0, Changes(IDC_REAL));
    EXPECT_EQ(0, Changes(IDC_OPTIONAL));
    ui::UiThread::Get().Call([this] { m_dialog.m_real = 0.50001; });
    ASSERT_TRUE(Exchange(false));
    EXPECT_EQ(0, Changes(IDC_REAL)) << "the same at this precision";
    ui::UiThread::Get().Call([this] { m_dialog.m_real = 0.51; });
    ASSERT_TRUE(Exchange(false));
    EXPECT_EQ(1, Changes(IDC_REAL));
    EXPECT_EQ(L"0.5100", Text(IDC_REAL));
}

TEST_F(ExpressionEdits, RefuseATextThatIsNoExpression)
{
    Open();
    Type(IDC_REAL, L"2+");
    ExpectNotANumber(IDC_REAL);
    EXPECT_EQ(L"2+", Text(IDC_REAL));
    EXPECT_EQ(0.5, m_dialog.m_real);
    Close(IDCANCEL);
    EXPECT_EQ(0.5, m_dialog.m_real);
}

TEST_F(ExpressionEdits, RefuseEveryKindOfBadText)
{
    Open();
    const std::wstring nested = std::wstring(127, L'(') + L"1" + std::wstring(126, L')');
    for (const std::wstring& text :
         {std::wstring(L"миллиметр"), std::wstring(L"毫米"), std::wstring(L"1/0"), std::wstring(L"nan"),
          std::wstring(L"(-1)^0.5"), std::wstring(L"10^400"), std::wstring(L"  "), std::wstring(254, L'('), nested}) {
        Type(IDC_REAL, text);
        ExpectNotANumber(IDC_REAL);
        EXPECT_EQ(0.5, m_dialog.m_real);
    }
}

TEST_F(ExpressionEdits, RefuseATextOfOver255Characters)
{
    Open();
    Put(IDC_REAL, L"1" + std::wstring(255, L' '));
    ExpectNotANumber(IDC_REAL);
    Put(IDC_REAL, L"1" + std::wstring(100000, L' '));
    ExpectNotANumber(IDC_REAL);
    EXPECT_EQ(0.5, m_dialog.m_real);
    Put(IDC_REAL, L"1" + std::wstring(254, L' '));
    Close(IDOK);
    EXPECT_EQ(1.0, m_dialog.m_real);
}

TEST_F(ExpressionEdits, RefuseAnEmptyTextInAFieldThatIsNotOptional)
{
    Open();
    Type(IDC_REAL, L"");
    ExpectNotANumber(IDC_REAL);
    EXPECT_EQ(0.5, m_dialog.m_real);
}

TEST_F(ExpressionEdits, StopTheExchangeAtTheControlThatIsRefused)
{
    Open();
    Type(IDC_REAL, L"2");
    Type(IDC_OPTIONAL, L"x");
    Type(IDC_RANGED, L"0.25");
    ExpectNotANumber(IDC_OPTIONAL);
    EXPECT_EQ(2.0, m_dialog.m_real);
    EXPECT_EQ(2.5, m_dialog.m_optional);
    EXPECT_EQ(0.75, m_dialog.m_ranged);
}

// ---- optional fields ----

TEST_F(ExpressionEdits, SaveAnEmptyOptionalFieldAsNotSetAndReloadItEmpty)
{
    Open();
    Type(IDC_OPTIONAL, L"");
    ASSERT_TRUE(Exchange(true));
    EXPECT_EQ(0, m_dialog.m_isSet);
    EXPECT_EQ(2.5, m_dialog.m_optional) << "the field keeps its old value";
    Put(IDC_OPTIONAL, L"8");
    ASSERT_TRUE(Exchange(false));
    EXPECT_EQ(L"", Text(IDC_OPTIONAL));
    ExpectAccepted();
}

TEST_F(ExpressionEdits, SetAnOptionalFieldThatIsFilled)
{
    m_dialog.m_isSet = 0;
    Open();
    EXPECT_EQ(L"", Text(IDC_OPTIONAL));
    Type(IDC_OPTIONAL, L"3/2");
    ExpectAccepted();
    EXPECT_EQ(1, m_dialog.m_isSet);
    EXPECT_EQ(1.5, m_dialog.m_optional);
}

TEST_F(ExpressionEdits, ShowAnOptionalFieldWithAnyFlagButZero)
{
    m_dialog.m_isSet = -7;
    Open();
    EXPECT_EQ(L"2.5000", Text(IDC_OPTIONAL));
}

TEST_F(ExpressionEdits, RefuseBlanksInAnOptionalField)
{
    m_dialog.m_isSet = 0;
    Open();
    Type(IDC_OPTIONAL, L"  ");
    ExpectNotANumber(IDC_OPTIONAL);
    EXPECT_EQ(0, m_dialog.m_isSet);
    EXPECT_EQ(2.5, m_dialog.m_optional);
}

// ---- ranges ----

TEST_F(ExpressionEdits, AcceptBothBoundsOfARange)
{
    Open();
    for (const wchar_t* text : {L"0", L"1", L"0.5"}) {
        Type(IDC_RANGED, text);
        EXPECT_TRUE(Exchange(true)) << text;
    }
    EXPECT_TRUE(m_app.m_shown.empty());
}

TEST_F(ExpressionEdits, RefuseAValueOutsideOfItsRange)
{
    Open();
    Type(IDC_RANGED, L"1.0001");
    ExpectOutOfRange(L"0.0000", L"1.0000");
    Type(IDC_RANGED, L"-0.0001");
    ExpectOutOfRange(L"0.0000", L"1.0000");
    Type(IDC_RANGED, L"1+1.0e-9");
    ExpectOutOfRange(L"0.0000", L"1.0000");
    Type(IDC_RANGED, L"1");
    Close(IDOK);
    EXPECT_EQ(1.0, m_dialog.m_ranged);
}

TEST_F(ExpressionEdits, ShowTheBoundsAtTheDisplayPrecision)
{
    m_dialog.m_low = 1e-9;
    m_dialog.m_high = 2.0 / 3.0;
    m_dialog.m_ranged = 0.25;
    OpenWithDecimals("10");
    Type(IDC_RANGED, L"1");
    ExpectOutOfRange(L"0.0000000000", L"0.6666666667");
    m_host.WriteSettings("[Settings]\r\nDecimals=0\r\n");
    ExpectOutOfRange(L"0", L"1");
}

TEST_F(ExpressionEdits, ShowTheBoundsThatStandForNone)
{
    m_dialog.m_low = -kUnbounded;
    m_dialog.m_high = kUnbounded;
    Open();
    const std::wstring bound = L"340282346638528859811704183484516925440.0000";
    Type(IDC_RANGED, L"1.0e39");
    ExpectOutOfRange(L"-" + bound, bound);
    Type(IDC_RANGED, L"3.4028234663852886e38");
    EXPECT_TRUE(Exchange(true));
    Type(IDC_RANGED, L"-3.4028234663852886e38");
    EXPECT_TRUE(Exchange(true));
}

TEST_F(ExpressionEdits, ShowBoundsOfAnySize)
{
    m_dialog.m_low = kLargest;
    m_dialog.m_high = kLargest;
    OpenWithDecimals("50");
    Type(IDC_RANGED, L"1");
    ui::Click(m_window, IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    ASSERT_EQ(1U, m_app.m_shown.size());
    EXPECT_EQ(std::wstring(L"Please enter a number between  and .").size() + size_t{2} * (309 + 1 + 50),
              m_app.m_shown[0].text.size());
}

TEST_F(ExpressionEdits, DoNotCheckARangeWhenLoading)
{
    m_dialog.m_ranged = 5;
    Open();
    EXPECT_EQ(L"5.0000", Text(IDC_RANGED));
    EXPECT_TRUE(Exchange(false));
    EXPECT_TRUE(m_app.m_shown.empty());
}

TEST_F(ExpressionEdits, RefuseAValueThatIsNoNumberInAnyRange)
{
    m_dialog.m_checkedInstead = std::numeric_limits<double>::quiet_NaN();
    m_dialog.m_low = -kLargest;
    m_dialog.m_high = kLargest;
    OpenWithDecimals("0");
    ui::Click(m_window, IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    ASSERT_EQ(1U, m_app.m_shown.size());
    EXPECT_EQ(61715U, m_app.m_shown[0].promptId);
    EXPECT_TRUE(IsWindow(m_window));
}

// ---- the quiet flag ----

TEST_F(ExpressionEdits, AreNotQuietAtFirst)
{
    EXPECT_EQ(0, Quiet());
}

TEST_F(ExpressionEdits, PassOverOneBadTextWhileQuiet)
{
    Open();
    SetQuiet(1);
    Type(IDC_REAL, L"x");
    Type(IDC_RANGED, L"0.25");
    ExpectAccepted();
    EXPECT_EQ(0.5, m_dialog.m_real);
    EXPECT_EQ(0.25, m_dialog.m_ranged) << "the exchange goes on";
    EXPECT_EQ(0, Quiet());
}

TEST_F(ExpressionEdits, RefuseASecondBadTextAsTheFirstEndsTheQuiet)
{
    Open();
    SetQuiet(1);
    Type(IDC_REAL, L"x");
    Type(IDC_RANGED, L"y");
    ExpectNotANumber(IDC_RANGED);
}

TEST_F(ExpressionEdits, PassOverARangeWhileQuietAndStayQuiet)
{
    Open();
    SetQuiet(-1);
    Type(IDC_RANGED, L"2");
    ExpectAccepted();
    EXPECT_EQ(2.0, m_dialog.m_ranged);
    EXPECT_EQ(-1, Quiet());
}

TEST_F(ExpressionEdits, StayQuietThroughGoodTexts)
{
    Open();
    SetQuiet(1);
    Type(IDC_REAL, L"2");
    Type(IDC_OPTIONAL, L"");
    ExpectAccepted();
    EXPECT_EQ(2.0, m_dialog.m_real);
    EXPECT_EQ(1, Quiet());
}

TEST_F(ExpressionEdits, KeepAnOptionalFieldAsItWasWhileQuiet)
{
    m_dialog.m_isSet = 0;
    Open();
    SetQuiet(1);
    Type(IDC_OPTIONAL, L"x");
    ExpectAccepted();
    EXPECT_EQ(0, m_dialog.m_isSet);
    EXPECT_EQ(2.5, m_dialog.m_optional);
}

// ---- showing one value ----

class ShowExpressionTest : public ExpressionEdits {
protected:
    void Show(double* value, int* isSet = nullptr, int id = IDC_REAL)
    {
        ui::UiThread::Get().Call([&] { ShowExpression(&m_dialog, id, value, isSet); });
    }
};

TEST_F(ShowExpressionTest, ShowsTheValueAtTheDisplayPrecision)
{
    OpenWithDecimals("3");
    double value = 2.0 / 3.0;
    Show(&value);
    EXPECT_EQ(L"0.667", Text(IDC_REAL));
    EXPECT_EQ(2.0 / 3.0, value);
}

TEST_F(ShowExpressionTest, StoresWhatIsTooSmallAsZero)
{
    Open();
    double value = -1e-9;
    Show(&value);
    EXPECT_EQ(L"0.0000", Text(IDC_REAL));
    EXPECT_EQ(0.0, value);
    value = 1e-8;
    Show(&value);
    EXPECT_EQ(1e-8, value);
}

TEST_F(ShowExpressionTest, ShowsAValueThatIsNotSetAsAnEmptyText)
{
    Open();
    double value = 3;
    int isSet = 0;
    Show(&value, &isSet);
    EXPECT_EQ(L"", Text(IDC_REAL));
    EXPECT_EQ(3.0, value);
    isSet = 1;
    Show(&value, &isSet);
    EXPECT_EQ(L"3.0000", Text(IDC_REAL));
    EXPECT_EQ(1, isSet);
}

TEST_F(ShowExpressionTest, LeavesAControlAloneThatShowsTheTextAlready)
{
    Open();
    double value = 0.5;
    Show(&value);
    EXPECT_EQ(0, Changes(IDC_REAL));
    value = 0.6;
    Show(&value);
    EXPECT_EQ(1, Changes(IDC_REAL));
}

TEST_F(ShowExpressionTest, DoesNothingWithoutAParentOrControl)
{
    Open();
    double value = 1e-9;
    Show(&value, nullptr, 4711);
    EXPECT_EQ(1e-9, value);
    ui::UiThread::Get().Call([&] { ShowExpression(nullptr, IDC_REAL, &value); });
    EXPECT_EQ(1e-9, value);
    EXPECT_EQ(L"0.5000", Text(IDC_REAL));
}

} // namespace
