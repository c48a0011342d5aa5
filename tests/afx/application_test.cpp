#include "modal.h"
#include "resource.h"

namespace {

using Log = std::vector<std::string>;

class CTestFrame : public CFrameWnd {
public:
    CTestFrame(Log& sharedLog) : log(sharedLog) {}
    ~CTestFrame() override { log.push_back("frame gone"); }
    bool Open(DWORD style = WS_POPUP, CWnd* parent = nullptr, LPCTSTR menu = nullptr)
    {
        return Create(AfxRegisterWndClass(0), L"Рамка", style, CRect(0, 0, 200, 100), parent, menu);
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_APP)
            log.push_back("frame pretranslates");
        return eats && message->message == WM_APP;
    }
    bool eats = false;

protected:
    LRESULT OnApp(WPARAM, LPARAM)
    {
        log.push_back("frame handles");
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& log;
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_MESSAGE(WM_APP, &CTestFrame::OnApp)
END_MESSAGE_MAP()

class CChild : public CWnd {
public:
    explicit CChild(Log& sharedLog) : log(sharedLog) {}
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_APP)
            log.push_back("child pretranslates");
        return eats && message->message == WM_APP;
    }
    bool eats = false;

private:
    Log& log;
};

class CTestApp : public CWinApp {
public:
    CTestApp() : CWinApp(L"Проверка") {}
    BOOL InitInstance() override
    {
        log.push_back("init");
        return starts;
    }
    int Run() override
    {
        log.push_back("run");
        return CWinApp::Run();
    }
    int ExitInstance() override
    {
        log.push_back("exit");
        return exitCode;
    }
    Log log;
    bool starts = true;
    int exitCode = 0;
};

TEST(Application, IsKnownWhileItExists)
{
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    {
        CWinApp application(L"Проверка");
        EXPECT_EQ(&application, AfxGetApp());
        EXPECT_STREQ(L"Проверка", application.m_pszAppName);
        EXPECT_EQ(GetModuleHandle(nullptr), application.m_hInstance);
        EXPECT_EQ(nullptr, AfxGetMainWnd());
        EXPECT_FALSE(application.m_bHelpMode);
    }
    EXPECT_EQ(nullptr, AfxGetApp());
}

int RunApplication()
{
    return AfxWinMain(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWDEFAULT);
}

TEST(Application, IsNeededToRun)
{
    EXPECT_EQ(-1, RunApplication());
}

TEST(Application, EndsAtOnceWhereItDoesNotStart)
{
    CTestApp application;
    application.starts = false;
    EXPECT_EQ(0, ui::On([] { return RunApplication(); })); // as a program does whose one dialog is its start
    EXPECT_EQ((Log{"init", "exit"}), application.log);
}

TEST(Application, KnowsHowItWasStarted)
{
    CTestApp application;
    application.starts = false;
    wchar_t commandLine[] = L"torvex.exe part.tvx";
    const HINSTANCE instance = GetModuleHandle(L"user32.dll");
    ui::On([&] { return AfxWinMain(instance, nullptr, commandLine, SW_SHOWMINIMIZED); });
    EXPECT_EQ(instance, application.m_hInstance);
    EXPECT_EQ(commandLine, application.m_lpCmdLine);
    EXPECT_EQ(SW_SHOWMINIMIZED, application.m_nCmdShow);
}

TEST(Application, TellsWhyItDidNotStart)
{
    CTestApp application;
    application.starts = false;
    application.exitCode = 9;
    EXPECT_EQ(9, ui::On([] { return RunApplication(); }));
}

/// The application's loop runs on the user-interface thread, with a frame and a child window in it.
class RunningApplication : public testing::Test {
protected:
    RunningApplication()
    {
        OnUi([this] {
            frame = new CTestFrame(application.log);
            EXPECT_TRUE(frame->Open());
            EXPECT_TRUE(child.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 9, 9), frame, 1));
            window = *frame;
            application.m_pMainWnd = frame;
        });
        ui::UiThread::Get().Start([this] { result = RunApplication(); });
        ui::UiThread::Get().Settle();
        application.log.clear();
    }
    ~RunningApplication() override { End(); }
    void End()
    {
        PostMessage(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    }
    Log LogOf(HWND target)
    {
        PostMessage(target, WM_APP, 0, 0);
        ui::Settle(window);
        return application.log;
    }
    CTestApp application;
    CTestFrame* frame = nullptr;
    CChild child{application.log};
    HWND window = nullptr;
    int result = -99;
};

TEST_F(RunningApplication, EndsWithItsMainWindowWhichDeletesItself)
{
    EXPECT_EQ(frame, AfxGetMainWnd());
    End();
    EXPECT_EQ((Log{"frame gone", "exit"}), application.log);
    EXPECT_EQ(0, result);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

TEST_F(RunningApplication, RunsOnWhenAnotherFrameCloses)
{
    HWND other = nullptr;
    OnUi([&] {
        auto* const second = new CTestFrame(application.log);
        EXPECT_TRUE(second->Open());
        other = *second;
    });
    PostMessage(other, WM_CLOSE, 0, 0);
    ui::Settle(window);
    EXPECT_EQ(Log{"frame gone"}, application.log);
    EXPECT_EQ(-99, result);
}

TEST_F(RunningApplication, GivesTheExitCodeOfItsEnd)
{
    application.exitCode = 5;
    End();
    EXPECT_EQ(5, result);
}

TEST_F(RunningApplication, EndsWithTheCodeThatItIsToldToQuitWith)
{
    OnUi([] { PostQuitMessage(3); });
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(3, result);
    OnUi([this] {
        application.m_pMainWnd = nullptr; // the frame's end is not to end the thread's own loop
        ::DestroyWindow(window);
    });
}

TEST_F(RunningApplication, OffersMessagesFromTheirWindowUpward)
{
    EXPECT_EQ((Log{"child pretranslates", "frame pretranslates"}), LogOf(child));
}

TEST_F(RunningApplication, OffersAMessageToTheMainWindowOnce)
{
    EXPECT_EQ((Log{"frame pretranslates", "frame handles"}), LogOf(window));
}

TEST_F(RunningApplication, OffersTheMainWindowWhatIsForAnotherWindow)
{
    const HWND other =
        ui::On([] { return CreateWindow(L"EDIT", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr); });
    EXPECT_EQ(Log{"frame pretranslates"}, LogOf(other));
    OnUi([&] { ::DestroyWindow(other); });
}

TEST_F(RunningApplication, PassesNoMessageOnThatIsTakenUnderWay)
{
    frame->eats = true;
    EXPECT_EQ(Log{"frame pretranslates"}, LogOf(window));
    application.log.clear();
    child.eats = true;
    EXPECT_EQ(Log{"child pretranslates"}, LogOf(child));
}

TEST_F(RunningApplication, OwnsTheMessageBoxesThatNoActiveWindowOwns)
{
    OnUi([] { SetActiveWindow(nullptr); });
    ui::UiThread::Get().Start([] {
        EXPECT_EQ(nullptr, GetActiveWindow());
        AfxMessageBox(L"x");
    });
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(window, GetWindow(box.window, GW_OWNER));
    ui::Answer(box, IDOK);
}

TEST(Frame, BearsTheMenuThatIsNamed)
{
    Log log;
    OnUi([&] {
        auto* const frame = new CTestFrame(log);
        ASSERT_TRUE(frame->Open(WS_OVERLAPPEDWINDOW, nullptr, MAKEINTRESOURCE(IDR_MENU)));
        const HMENU menu = GetMenu(*frame);
        ASSERT_NE(nullptr, menu);
        EXPECT_EQ(0x8001U, GetMenuItemID(menu, 0));
        frame->DestroyWindow();
    });
    EXPECT_EQ(Log{"frame gone"}, log);
}

TEST(Frame, IsNotCreatedWithoutTheMenuThatIsNamed)
{
    Log log;
    OnUi([&] {
        CTestFrame frame(log);
        EXPECT_FALSE(frame.Open(WS_OVERLAPPEDWINDOW, nullptr, MAKEINTRESOURCE(IDD_NOWHERE)));
        EXPECT_EQ(nullptr, frame.m_hWnd);
    });
}

TEST(Frame, NeedsNoClassOfItsOwn)
{
    Log log;
    OnUi([&] {
        auto* const frame = new CTestFrame(log);
        ASSERT_TRUE(frame->Create(nullptr, L"Главное"));
        EXPECT_EQ(L"Главное", ui::TextOf(*frame));
        EXPECT_TRUE(frame->GetStyle() & WS_THICKFRAME);
        CRect client;
        frame->GetClientRect(client);
        EXPECT_FALSE(client.IsRectEmpty()) << "the system has chosen a size";
        CEdit edit;
        ASSERT_TRUE(edit.CreateEx(0, L"EDIT", L"поле", WS_CHILD | WS_VISIBLE, CRect(5, 5, 60, 25), frame, 7));
        EXPECT_EQ(&edit, frame->GetDlgItem(7));
        frame->ShowWindow(SW_SHOW);
        EXPECT_TRUE(edit.IsWindowVisible());
        EXPECT_EQ(LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HCURSOR>(GetClassLongPtr(*frame, GCLP_HCURSOR)));
        frame->DestroyWindow();
    });
    EXPECT_EQ(Log{"frame gone"}, log);
}

TEST(Frame, BelongsToItsParent)
{
    Log log;
    OnUi([&] {
        auto* const parent = new CTestFrame(log);
        ASSERT_TRUE(parent->Open());
        auto* const frame = new CTestFrame(log);
        ASSERT_TRUE(frame->Open(WS_POPUP, parent));
        EXPECT_EQ(parent->m_hWnd, GetWindow(*frame, GW_OWNER));
        parent->DestroyWindow();
    });
    EXPECT_EQ((Log{"frame gone", "frame gone"}), log);
}

} // namespace
