// Who sees a message while a modal window is open, and how its loop ends.
#include "sheet.h"

namespace {

/// Notes the keys that it sees before they are dispatched, and keeps one of them for itself.
template <class Base> class CWatching : public Base {
public:
    template <class... Arguments> CWatching(const char* watcher, Log& sharedKeys, Arguments... arguments)
        : Base(arguments...), name(watcher), keys(sharedKeys)
    {
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_KEYDOWN) {
            keys.push_back(name + " " + std::to_string(message->wParam));
            if (message->wParam == kept)
                return TRUE;
        }
        return Base::PreTranslateMessage(message);
    }
    const std::string name;
    Log& keys;
    WPARAM kept = 0;
};

class ModalLoop : public testing::Test {
protected:
    Log TakeKeys()
    {
        Log taken;
        taken.swap(keys);
        return taken;
    }
    Log keys;
};

TEST_F(ModalLoop, OffersEachMessageToItsWindowAndThenToTheParentsOfThat)
{
    CWatching<CDialog> dialog("dialog", keys, UINT{IDD_NUMBER});
    CWatching<CEdit> edit("edit", keys);
    Modal open(dialog, L"Проба");
    OnUi([&] { edit.SubclassDlgItem(IDC_NUMBER, &dialog); });
    ui::Press(edit.m_hWnd, VK_F2);
    EXPECT_EQ((Log{"edit 113", "dialog 113"}), TakeKeys());
    edit.kept = VK_F2;
    ui::Press(edit.m_hWnd, VK_F2);
    EXPECT_EQ(Log{"edit 113"}, TakeKeys());
    ui::Press(ui::Control(open.window, IDOK), VK_F2);
    EXPECT_EQ(Log{"dialog 113"}, TakeKeys());
    open.CloseBy(IDCANCEL);
}

TEST_F(ModalLoop, LeavesOutWhatAWindowKeepsForItself)
{
    CWatching<CDialog> dialog("dialog", keys, UINT{IDD_NUMBER});
    dialog.kept = VK_ESCAPE;
    Modal open(dialog, L"Проба");
    ui::Press(ui::Focus(open.window), VK_ESCAPE);
    EXPECT_TRUE(IsWindow(open.window));
    dialog.kept = 0;
    ui::Press(ui::Focus(open.window), VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, open.Result());
}

TEST_F(ModalLoop, OffersTheMessagesOfASheetToThePageAndTheSheet)
{
    Log log;
    CWatching<CNotingPage> page("page", keys, "one", log);
    CWatching<CPropertySheet> sheet("sheet", keys, L"Параметры");
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    ui::Press(ui::Control(page.m_hWnd, IDC_NUMBER), VK_F2);
    EXPECT_EQ((Log{"page 113", "sheet 113"}), TakeKeys());
    page.kept = VK_F2;
    ui::Press(ui::Control(page.m_hWnd, IDC_NUMBER), VK_F2);
    EXPECT_EQ(Log{"page 113"}, TakeKeys());
    open.CloseBy(IDCANCEL);
}

TEST_F(ModalLoop, MovesTheFocusFromAPageToTheButtonsOfItsSheet)
{
    Log log;
    CNotingPage page("one", log);
    CPropertySheet sheet(L"Параметры");
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    ui::FocusOn(page.m_hWnd, IDC_TEXT);
    ui::Press(ui::Focus(open.window), VK_TAB);
    EXPECT_EQ(ui::Control(open.window, IDOK), ui::Focus(open.window));
    ui::Press(ui::Focus(open.window), VK_RETURN);
    EXPECT_EQ(IDOK, open.Result());
}

TEST_F(ModalLoop, LetsTheApplicationSeeEachMessageFirst)
{
    class CWatchingApp : public CWinApp {
    public:
        CWatchingApp() : CWinApp(L"Проверка") {}
        BOOL PreTranslateMessage(MSG* message) override
        {
            const bool isKept = message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
            return isKept || CWinApp::PreTranslateMessage(message);
        }
    };
    CWatchingApp application;
    CDialog dialog(IDD_NUMBER);
    Modal open(dialog, L"Проба");
    ui::Press(ui::Focus(open.window), VK_RETURN);
    EXPECT_TRUE(IsWindow(open.window));
    ui::Press(ui::Focus(open.window), VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, open.Result());
}

/// A dialog that stands beside a modal one.
class CBesideDialog : public CDialog {
public:
    int confirmed = 0;

protected:
    void OnOK() override { ++confirmed; }
};

TEST_F(ModalLoop, LeavesTheKeysOfAModelessDialogToIt)
{
    CDialog dialog(IDD_EXCHANGE);
    Modal open(dialog, L"Обмен");
    CBesideDialog beside;
    OnUi([&] {
        ASSERT_TRUE(beside.Create(IDD_NUMBER, &dialog));
        beside.ShowWindow(SW_SHOW);
    });
    ui::FocusOn(beside.m_hWnd, IDC_NUMBER);
    ui::Press(ui::Focus(beside.m_hWnd), VK_TAB);
    EXPECT_EQ(ui::Control(beside.m_hWnd, IDOK), ui::Focus(beside.m_hWnd));
    ui::FocusOn(beside.m_hWnd, IDC_NUMBER);
    ui::Press(ui::Focus(beside.m_hWnd), VK_RETURN);
    EXPECT_EQ(1, beside.confirmed);
    EXPECT_TRUE(IsWindow(open.window));
    OnUi([&] { beside.DestroyWindow(); });
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(ModalLoop, EndsWithTheWindowThatItIsFor)
{
    CDialog dialog(IDD_NUMBER);
    Modal open(dialog, L"Проба");
    OnUi([&] { dialog.DestroyWindow(); });
    EXPECT_EQ(-1, open.Result());
    Log log;
    CNotingPage page("one", log);
    CPropertySheet sheet(L"Параметры");
    sheet.AddPage(&page);
    Modal openSheet(sheet, L"Параметры");
    OnUi([&] { sheet.DestroyWindow(); });
    EXPECT_EQ(IDCANCEL, openSheet.Result());
}

TEST_F(ModalLoop, EndsWithTheProgramAndLetsTheLoopsAroundItEndToo)
{
    CWinApp application(L"Проверка");
    const int code = ui::On([&] {
        CDialog dialog(IDD_NUMBER);
        PostQuitMessage(42);
        EXPECT_EQ(-1, dialog.DoModal());
        EXPECT_EQ(nullptr, dialog.m_hWnd);
        return application.Run();
    });
    EXPECT_EQ(42, code);
}

TEST_F(ModalLoop, MayEndBeforeItBegins)
{
    class CBriefSheet : public CPropertySheet {
    public:
        CBriefSheet() : CPropertySheet(L"Параметры") {}
        BOOL OnInitDialog() override
        {
            EndModalLoop(5);
            return CPropertySheet::OnInitDialog();
        }
    };
    Log log;
    CNotingPage page("one", log);
    CBriefSheet sheet;
    sheet.AddPage(&page);
    EXPECT_EQ(5, ui::On([&] { return sheet.DoModal(); }));
    EXPECT_EQ(nullptr, sheet.m_hWnd);
}

/// Has an accelerator, as any window that is asked before its messages are dispatched may.
class CSearchDialog : public CDialog {
public:
    CSearchDialog() : CDialog(IDD_NUMBER)
    {
        ACCEL search{FVIRTKEY, VK_F3, 0x8007};
        m_accelerators = CreateAcceleratorTable(&search, 1);
    }
    ~CSearchDialog() override { DestroyAcceleratorTable(m_accelerators); }
    BOOL PreTranslateMessage(MSG* message) override
    {
        return TranslateAccelerator(m_hWnd, m_accelerators, message) || CDialog::PreTranslateMessage(message);
    }
    int searches = 0;

protected:
    void OnSearch() { ++searches; }
    DECLARE_MESSAGE_MAP()

private:
    HACCEL m_accelerators;
};

BEGIN_MESSAGE_MAP(CSearchDialog, CDialog)
    ON_COMMAND(0x8007, &CSearchDialog::OnSearch)
END_MESSAGE_MAP()

TEST_F(ModalLoop, LetsADialogHaveAccelerators)
{
    CSearchDialog dialog;
    Modal open(dialog, L"Проба");
    ui::Press(ui::Focus(open.window), VK_F3);
    EXPECT_EQ(1, dialog.searches);
    open.CloseBy(IDCANCEL);
}

TEST_F(ModalLoop, RunsForAnyWindow)
{
    CWnd window;
    OnUi([&] {
        ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"Окно", WS_POPUP, CRect(9, 9, 60, 60), nullptr, 0));
    });
    int result = 0;
    ui::UiThread::Get().Start([&] { result = window.RunModalLoop(MLF_SHOWONIDLE); });
    EXPECT_TRUE(ui::WaitUntil([&] { return IsWindowVisible(window.m_hWnd) != FALSE; }));
    OnUi([&] { window.EndModalLoop(17); });
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(17, result);
    EXPECT_NE(nullptr, window.m_hWnd) << "the loop destroys nothing";
    OnUi([&] { window.DestroyWindow(); });
}

TEST_F(ModalLoop, GivesTheActivationBackToTheOwner)
{
    CDialog dialog(IDD_EXCHANGE);
    Modal open(dialog, L"Обмен");
    CDialog inner(IDD_NUMBER, &dialog);
    Modal openInside(inner, L"Проба");
    ui::Click(openInside.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(openInside.window));
    EXPECT_EQ(open.window, ui::On([] { return GetActiveWindow(); }));
    EXPECT_TRUE(IsWindowEnabled(open.window));
    open.CloseBy(IDCANCEL);
}

} // namespace
