#include "modal.h"
#include "resource.h"

namespace {

/// The real message box, on the screen.
ui::MessageBoxSeen Show(const std::function<void()>& box)
{
    ui::UiThread::Get().Start(box);
    return ui::WaitForBox();
}

void AnswerAndEnd(const ui::MessageBoxSeen& box, int button)
{
    ui::Answer(box, button);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
}

HICON Icon(LPCTSTR name)
{
    return LoadIcon(nullptr, name);
}

TEST(Box, BearsTheNameOfTheApplicationAndAnExclamationMark)
{
    CWinApp application(L"Проверка");
    int answer = 0;
    const ui::MessageBoxSeen box = Show([&] { answer = AfxMessageBox(L"Текст – ё"); });
    EXPECT_EQ(L"Проверка", box.caption);
    EXPECT_EQ(L"Текст – ё", box.text);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    EXPECT_EQ(Icon(IDI_EXCLAMATION), box.icon);
    AnswerAndEnd(box, IDOK);
    EXPECT_EQ(IDOK, answer);
}

TEST(Box, BearsAQuestionMarkWhereItAsks)
{
    CWinApp application(L"Проверка");
    int answer = 0;
    const ui::MessageBoxSeen box = Show([&] { answer = AfxMessageBox(IDS_QUESTION, MB_YESNO); });
    EXPECT_EQ(L"Продолжить?", box.text);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.buttons);
    EXPECT_EQ(Icon(IDI_QUESTION), box.icon);
    AnswerAndEnd(box, IDNO);
    EXPECT_EQ(IDNO, answer);
}

TEST(Box, BearsTheIconThatIsAskedFor)
{
    CWinApp application(L"Проверка");
    const ui::MessageBoxSeen box = Show([] { AfxMessageBox(L"x", MB_OK | MB_ICONINFORMATION); });
    EXPECT_EQ(Icon(IDI_INFORMATION), box.icon);
    AnswerAndEnd(box, IDOK);
}

TEST(Box, ComesUpWithoutAnApplicationToo)
{
    ASSERT_EQ(nullptr, AfxGetApp());
    int answer = 0;
    const ui::MessageBoxSeen box = Show([&] { answer = AfxMessageBox(L"Текст"); });
    EXPECT_EQ(L"Текст", box.text);
    EXPECT_EQ(Icon(IDI_EXCLAMATION), box.icon);
    AnswerAndEnd(box, IDOK);
    EXPECT_EQ(IDOK, answer);
}

TEST(Box, KeepsTheActiveWindowFromInput)
{
    CWinApp application(L"Проверка");
    CDialog dialog(IDD_NUMBER);
    Modal open(dialog, L"Проба");
    ui::UiThread::Get().Start([] { AfxMessageBox(L"x"); });
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_FALSE(IsWindowEnabled(open.window));
    ui::Answer(box, IDOK);
    EXPECT_TRUE(IsWindowEnabled(open.window));
    open.CloseBy(IDOK);
}

TEST(Box, OfAWindowBearsTheNameOfTheApplicationOrItsOwn)
{
    CWinApp application(L"Проверка");
    CDialog dialog(IDD_NUMBER);
    Modal open(dialog, L"Проба");
    ui::UiThread::Get().Start([&] { dialog.MessageBox(L"один"); });
    ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Проверка", box.caption);
    EXPECT_EQ(nullptr, box.icon);
    EXPECT_EQ(open.window, GetWindow(box.window, GW_OWNER));
    ui::Answer(box, IDOK);
    ui::UiThread::Get().Start([&] { dialog.MessageBox(L"два", L"Заголовок", MB_OKCANCEL); });
    box = ui::WaitForBox();
    EXPECT_EQ(L"Заголовок", box.caption);
    EXPECT_EQ((std::vector<int>{IDOK, IDCANCEL}), box.buttons);
    ui::Answer(box, IDCANCEL);
    open.CloseBy(IDOK);
}

// ---- what reaches the application ----

TEST(BoxOfTheApplication, GetsTextTypeAndHelpContext)
{
    CQuietApp application;
    application.answer = IDRETRY;
    EXPECT_EQ(IDRETRY, AfxMessageBox(L"text", MB_RETRYCANCEL, 55));
    ASSERT_EQ(1U, application.boxes.size());
    EXPECT_EQ(L"text", application.boxes[0].text);
    EXPECT_EQ(UINT{MB_RETRYCANCEL | MB_ICONEXCLAMATION}, application.boxes[0].type);
    EXPECT_EQ(55U, application.boxes[0].helpId);
}

TEST(BoxOfTheApplication, HasNoHelpContextForAPlainText)
{
    CQuietApp application;
    AfxMessageBox(L"text");
    EXPECT_EQ(0U, application.boxes.at(0).helpId);
}

TEST(BoxOfTheApplication, HasThePromptForItsHelpContext)
{
    CQuietApp application;
    AfxMessageBox(IDS_QUESTION);
    AfxMessageBox(IDS_QUESTION, MB_OK, 7);
    EXPECT_EQ(UINT{IDS_QUESTION}, application.boxes.at(0).helpId);
    EXPECT_EQ(7U, application.boxes.at(1).helpId);
}

TEST(BoxOfTheApplication, GetsTheIconThatFitsTheButtons)
{
    CQuietApp application;
    const struct {
        UINT asked;
        UINT shown;
    } cases[] = {{MB_OK, MB_ICONEXCLAMATION},
                 {MB_OKCANCEL, MB_OKCANCEL | MB_ICONEXCLAMATION},
                 {MB_YESNO, MB_YESNO | MB_ICONQUESTION},
                 {MB_YESNOCANCEL, MB_YESNOCANCEL | MB_ICONQUESTION},
                 {MB_YESNO | MB_ICONERROR, MB_YESNO | MB_ICONERROR},
                 {MB_YESNO | MB_DEFBUTTON2, MB_YESNO | MB_DEFBUTTON2 | MB_ICONQUESTION}};
    for (const auto& [asked, shown] : cases) {
        application.boxes.clear();
        AfxMessageBox(L"text", asked);
        EXPECT_EQ(shown, application.boxes.at(0).type);
    }
}

TEST(BoxOfTheApplication, IsEmptyWhereThePromptIsMissing)
{
    CQuietApp application;
    AfxMessageBox(UINT{IDS_NOWHERE});
    EXPECT_EQ(L"", application.boxes.at(0).text);
}

// ---- prompts with parts ----

TEST(Prompt, TakesItsTwoParts)
{
    CString text(L"old");
    AfxFormatString2(text, IDS_TWO_PARTS, L"0.0000", L"1.0000");
    EXPECT_STREQ(L"От 0.0000 до 1.0000, а не %3 и не %", text);
}

TEST(Prompt, TakesPartsThatLookLikePlacesForParts)
{
    CString text;
    AfxFormatString2(text, IDS_TWO_PARTS, L"%2", L"%1");
    EXPECT_STREQ(L"От %2 до %1, а не %3 и не %", text);
}

TEST(Prompt, TakesANullPartForTheEmptyText)
{
    CString text;
    AfxFormatString2(text, IDS_TWO_PARTS, nullptr, L"x");
    EXPECT_STREQ(L"От  до x, а не %3 и не %", text);
}

TEST(Prompt, IsEmptyWhereTheStringIsMissing)
{
    CString text(L"old");
    AfxFormatString2(text, IDS_NOWHERE, L"a", L"b");
    EXPECT_STREQ(L"", text);
}

TEST(Prompt, StandsReadyForTheDataExchange)
{
    CString text;
    EXPECT_TRUE(text.LoadString(61712));
    EXPECT_STREQ(L"Please enter an integer.", text);
    EXPECT_TRUE(text.LoadString(61713));
    EXPECT_STREQ(L"Please enter a number.", text);
    AfxFormatString2(text, 61715, L"0.0000", L"1.0000");
    EXPECT_STREQ(L"Please enter a number between 0.0000 and 1.0000.", text);
}

} // namespace
