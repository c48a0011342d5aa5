#include <functional>

#include "modal.h"
#include "resource.h"

namespace {

class CTestDialog : public CDialog {
public:
    explicit CTestDialog(UINT templateId = IDD_NUMBER, CWnd* parent = nullptr) : CDialog(templateId, parent) {}
    std::function<BOOL()> onInit = [] { return TRUE; };
    std::function<void(CDataExchange*)> exchange = [](CDataExchange*) {};
    std::vector<std::string> log;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        log.push_back("init");
        return onInit();
    }

protected:
    void DoDataExchange(CDataExchange* pass) override
    {
        log.push_back(pass->m_bSaveAndValidate ? "save" : "load");
        exchange(pass);
    }
    void OnOK() override
    {
        log.push_back("ok");
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        log.push_back("cancel");
        CDialog::OnCancel();
    }
};

using Log = std::vector<std::string>;

TEST(Dialog, LoadsAtItsStartAndSavesOnOk)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ((Log{"load", "init"}), dialog.log);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    EXPECT_EQ((Log{"load", "init", "ok", "save"}), dialog.log);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Dialog, SavesNothingOnCancel)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
    EXPECT_EQ((Log{"load", "init", "cancel"}), dialog.log);
}

TEST(Dialog, StaysWhereItsDataAreRefused)
{
    CTestDialog dialog;
    dialog.exchange = [](CDataExchange* pass) {
        if (pass->m_bSaveAndValidate)
            pass->Fail();
    };
    Modal open(dialog, L"Проба");
    ui::Click(open.window, IDOK);
    EXPECT_TRUE(IsWindow(open.window));
    EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
}

TEST(Dialog, TakesEnterForOkAndEscapeForCancel)
{
    CTestDialog first;
    Modal confirmed(first, L"Проба");
    ui::Press(ui::Focus(confirmed.window), VK_RETURN);
    EXPECT_EQ(IDOK, confirmed.Result());
    CTestDialog second;
    Modal left(second, L"Проба");
    ui::Press(ui::Focus(left.window), VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, left.Result());
}

TEST(Dialog, TakesTheClosingCrossForCancel)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    PostMessage(open.window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(IDCANCEL, open.Result());
    EXPECT_EQ("cancel", dialog.log.back());
}

TEST(Dialog, EndsWithTheGivenResult)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    OnUi([&] { dialog.EndDialog(1234); });
    EXPECT_EQ(1234, open.Result());
}

TEST(Dialog, CanEndBeforeItIsShown)
{
    CTestDialog dialog;
    dialog.onInit = [&] {
        dialog.EndDialog(7);
        return TRUE;
    };
    EXPECT_EQ(7, ui::On([&] { return dialog.DoModal(); }));
}

TEST(Dialog, CanBeShownAgain)
{
    CTestDialog dialog;
    for (int round = 0; round < 2; ++round) {
        dialog.log.clear();
        Modal open(dialog, L"Проба");
        EXPECT_EQ(IDOK, open.CloseBy(IDOK));
        EXPECT_EQ((Log{"load", "init", "ok", "save"}), dialog.log);
    }
}

TEST(Dialog, AttachesItsControlObjectsAnewEachTimeItIsShown)
{
    CTestDialog dialog;
    CEdit edit;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Control(pass, IDC_NUMBER, edit); };
    for (int round = 0; round < 2; ++round) {
        Modal open(dialog, L"Проба");
        EXPECT_EQ(ui::Control(open.window, IDC_NUMBER), edit.m_hWnd);
        open.CloseBy(IDOK);
        EXPECT_EQ(nullptr, edit.m_hWnd);
    }
}

TEST(Dialog, GivesTheFirstFocusToItsFirstField)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ(ui::Control(open.window, IDC_NUMBER), ui::Focus(open.window));
    open.CloseBy(IDCANCEL);
}

TEST(Dialog, LeavesTheFocusWhereItsStartHasPutIt)
{
    CTestDialog dialog;
    dialog.onInit = [&] {
        dialog.GetDlgItem(IDCANCEL)->SetFocus();
        return FALSE;
    };
    Modal open(dialog, L"Проба");
    EXPECT_EQ(ui::Control(open.window, IDCANCEL), ui::Focus(open.window));
    open.CloseBy(IDCANCEL);
}

TEST(Dialog, IsNotShownWithoutATemplate)
{
    CTestDialog dialog(IDD_NOWHERE);
    EXPECT_EQ(-1, ui::On([&] { return dialog.DoModal(); }));
    EXPECT_FALSE(ui::On([&] { return dialog.Create(IDD_NOWHERE); }));
    EXPECT_TRUE(dialog.log.empty());
}

TEST(Dialog, IsNotShownWhereAWindowOfItCannotBeCreated)
{
    for (const UINT id : {IDD_BROKEN, IDD_UNKNOWN_CLASS}) {
        CTestDialog dialog(id);
        EXPECT_EQ(-1, ui::On([&] { return dialog.DoModal(); }));
        EXPECT_FALSE(ui::On([&] { return dialog.Create(id); }));
        EXPECT_EQ(nullptr, dialog.m_hWnd);
        EXPECT_TRUE(dialog.log.empty());
    }
}

TEST(Dialog, IsNotShownTwiceAtATime)
{
    CTestDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ(-1, ui::On([&] { return dialog.DoModal(); }));
    EXPECT_FALSE(ui::On([&] { return dialog.Create(IDD_NUMBER); }));
    EXPECT_EQ(open.window, dialog.m_hWnd);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST(Dialog, KeepsItsParentFromInputMeanwhile)
{
    CTestDialog outer;
    Modal open(outer, L"Проба");
    CTestDialog inner(IDD_EXCHANGE, &outer);
    Modal openInside(inner, L"Обмен");
    EXPECT_FALSE(IsWindowEnabled(open.window));
    EXPECT_EQ(open.window, GetWindow(openInside.window, GW_OWNER));
    ui::Click(openInside.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(openInside.window));
    EXPECT_TRUE(IsWindowEnabled(open.window));
    open.CloseBy(IDOK);
}

TEST(Dialog, BelongsToTheActiveWindowWithoutAParent)
{
    CTestDialog outer;
    Modal open(outer, L"Проба");
    CTestDialog inner(IDD_EXCHANGE);
    Modal openInside(inner, L"Обмен");
    EXPECT_EQ(open.window, GetWindow(openInside.window, GW_OWNER));
    ui::Click(openInside.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(openInside.window));
    open.CloseBy(IDOK);
}

TEST(Dialog, BelongsToTheWholeWindowOfAControl)
{
    CTestDialog outer;
    Modal open(outer, L"Проба");
    CEdit edit;
    OnUi([&] { edit.SubclassDlgItem(IDC_NUMBER, &outer); });
    CTestDialog inner(IDD_EXCHANGE, &edit);
    Modal openInside(inner, L"Обмен");
    EXPECT_EQ(open.window, GetWindow(openInside.window, GW_OWNER));
    ui::Click(openInside.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(openInside.window));
    open.CloseBy(IDOK);
}

/// Asks for the "?" in its caption while its frame is being created.
class CContextHelpDialog : public CTestDialog {
protected:
    BOOL OnNcCreate(CREATESTRUCTW* create)
    {
        log.push_back("nccreate");
        ModifyStyleEx(0, WS_EX_CONTEXTHELP);
        return CTestDialog::OnNcCreate(create);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CContextHelpDialog, CTestDialog)
    ON_WM_NCCREATE()
END_MESSAGE_MAP()

TEST(Dialog, CanChangeItsStyleWhileItsFrameIsCreated)
{
    CContextHelpDialog dialog;
    Modal open(dialog, L"Проба");
    EXPECT_EQ((Log{"nccreate", "load", "init"}), dialog.log);
    EXPECT_TRUE(GetWindowLong(open.window, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST(Dialog, StandsModelesslyUntilItIsDestroyed)
{
    CTestDialog dialog;
    OnUi([&] {
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        EXPECT_EQ((Log{"load", "init"}), dialog.log);
        EXPECT_FALSE(dialog.IsWindowVisible());
        EXPECT_TRUE(dialog.DestroyWindow());
    });
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Dialog, MovesTheFocusByKeysWhereItIsModeless)
{
    CTestDialog dialog;
    OnUi([&] {
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        dialog.ShowWindow(SW_SHOW);
        dialog.GetDlgItem(IDC_NUMBER)->SetFocus();
        MSG tab{GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
        EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
        EXPECT_EQ(GetDlgItem(dialog, IDOK), GetFocus());
        dialog.DestroyWindow();
        EXPECT_FALSE(dialog.PreTranslateMessage(&tab));
    });
}

} // namespace
