#include <string>
#include <vector>

#include <afxdlgs.h>

#include "modal.h"
#include "resource.h"

namespace {

constexpr UINT kPlain = WM_APP + 1;
constexpr UINT kOverridden = WM_APP + 2;
constexpr UINT kTwice = WM_APP + 3;
constexpr UINT kNested = WM_APP + 4;
constexpr UINT kThrows = WM_APP + 5;
constexpr UINT kThrowsText = WM_APP + 6;
constexpr UINT kCommand = 0x8001;
constexpr UINT kSmallCommand = 0x7FFF;
constexpr UINT kSystemCommand = 0xF000;
constexpr UINT kControl = 77;

using Log = std::vector<std::string>;

class CBaseWindow : public CWnd {
public:
    bool Open() { return CreateEx(0, AfxRegisterWndClass(0), L"Окно", WS_POPUP, CRect(10, 10, 110, 60), nullptr, 0); }
    Log log;

protected:
    LRESULT OnPlain(WPARAM wParam, LPARAM lParam)
    {
        log.push_back("base plain");
        return static_cast<LRESULT>(wParam) * 100 + lParam;
    }
    LRESULT OnOverriddenInBase(WPARAM, LPARAM) { return Note("base overridden"); }
    void OnCommandInBase() { log.push_back("base command"); }
    LRESULT Note(const char* what)
    {
        log.push_back(what);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseWindow, CWnd)
    ON_MESSAGE(kPlain, &CBaseWindow::OnPlain)
    ON_MESSAGE(kOverridden, &CBaseWindow::OnOverriddenInBase)
    ON_COMMAND(kCommand, &CBaseWindow::OnCommandInBase)
END_MESSAGE_MAP()

class CTextException : public CException {
public:
    BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT*) const override
    {
        lstrcpyn(text, L"Не вышло", static_cast<int>(capacity));
        return TRUE;
    }
};

class CDerivedWindow : public CBaseWindow {
public:
    MSG seen{};
    MSG seenAfterNested{};

protected:
    LRESULT OnOverridden(WPARAM, LPARAM) { return Note("derived overridden"); }
    LRESULT OnFirst(WPARAM, LPARAM) { return Note("first"); }
    LRESULT OnSecond(WPARAM, LPARAM) { return Note("second"); }
    LRESULT OnNested(WPARAM, LPARAM)
    {
        seen = *GetCurrentMessage();
        SendMessage(kPlain, 3, 4);
        seenAfterNested = *GetCurrentMessage();
        return 0;
    }
    LRESULT OnGetTextLength(WPARAM, LPARAM)
    {
        SendMessage(kPlain);
        return Default() + 1000;
    }
    LRESULT OnThrows(WPARAM, LPARAM)
    {
        log.push_back("throws");
        AfxThrowUserException();
    }
    LRESULT OnThrowsText(WPARAM, LPARAM) { throw new CTextException; }
    BOOL OnNcCreate(CREATESTRUCTW* create)
    {
        log.push_back("nccreate " + std::to_string(create->cx));
        return CBaseWindow::OnNcCreate(create);
    }
    void OnChar(UINT character, UINT repeatCount, UINT flags)
    {
        log.push_back("char " + std::to_string(character) + " " + std::to_string(repeatCount) + " " +
                      std::to_string(flags));
    }
    void OnSize(UINT type, int width, int height)
    {
        log.push_back("size " + std::to_string(type) + " " + std::to_string(width) + " " + std::to_string(height));
    }
    void OnClose() { log.push_back("close"); }
    void OnDestroy() { log.push_back("destroy"); }
    BOOL OnHelpInfo(HELPINFO* info)
    {
        log.push_back("help " + std::to_string(info->iCtrlId));
        return TRUE;
    }
    void OnEditChange() { log.push_back("edit change"); }
    void OnEditLeft() { log.push_back("edit left"); }
    void OnListChosen() { log.push_back("list chosen"); }
    void OnListDouble() { log.push_back("list double"); }
    void OnClicked() { log.push_back("clicked"); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (messages.size() < 3)
            messages.push_back(message);
        return CBaseWindow::WindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()

public:
    std::vector<UINT> messages; ///< the first few
};

BEGIN_MESSAGE_MAP(CDerivedWindow, CBaseWindow)
    ON_MESSAGE(kOverridden, &CDerivedWindow::OnOverridden)
    ON_MESSAGE(kTwice, &CDerivedWindow::OnFirst)
    ON_MESSAGE(kTwice, &CDerivedWindow::OnSecond)
    ON_MESSAGE(kNested, &CDerivedWindow::OnNested)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CDerivedWindow::OnGetTextLength)
    ON_MESSAGE(kThrows, &CDerivedWindow::OnThrows)
    ON_MESSAGE(kThrowsText, &CDerivedWindow::OnThrowsText)
    ON_WM_NCCREATE()
    ON_WM_CHAR()
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_HELPINFO()
    ON_EN_CHANGE(kControl, &CDerivedWindow::OnEditChange)
    ON_EN_KILLFOCUS(kControl, &CDerivedWindow::OnEditLeft)
    ON_CBN_SELCHANGE(kControl, &CDerivedWindow::OnListChosen)
    ON_LBN_DBLCLK(kControl, &CDerivedWindow::OnListDouble)
    ON_BN_CLICKED(kControl, &CDerivedWindow::OnClicked)
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap()
    {
        OnUi([this] { EXPECT_TRUE(window.Open()); });
        window.log.clear();
    }
    ~MessageMap() override
    {
        OnUi([this] { window.DestroyWindow(); });
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendMessage(window.m_hWnd, message, wParam, lParam);
    }
    /// What a control of that id would report.
    LRESULT Notify(UINT id, UINT code)
    {
        return Send(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(window.m_hWnd));
    }
    CDerivedWindow window;
};

TEST_F(MessageMap, PassesBothWordsAndReturnsTheResult)
{
    EXPECT_EQ(304, Send(kPlain, 3, 4));
}

TEST_F(MessageMap, IsSearchedFromTheMostDerivedClassUpward)
{
    Send(kOverridden);
    Send(kPlain);
    EXPECT_EQ((Log{"derived overridden", "base plain"}), window.log);
}

TEST_F(MessageMap, RunsTheFirstOfTwoEntriesThatMatch)
{
    Send(kTwice);
    EXPECT_EQ(Log{"first"}, window.log);
}

TEST_F(MessageMap, LeavesWhatItDoesNotHoldToDefaultProcessing)
{
    EXPECT_EQ(0, Send(WM_APP + 99, 1, 2));
    EXPECT_TRUE(Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Новое имя")));
    wchar_t text[32];
    InternalGetWindowText(window.m_hWnd, text, 32);
    EXPECT_STREQ(L"Новое имя", text);
    EXPECT_TRUE(window.log.empty());
}

TEST_F(MessageMap, TellsNotificationsApartByCodeAndId)
{
    Notify(kControl, EN_CHANGE);
    Notify(kControl, EN_KILLFOCUS);
    Notify(kControl, CBN_SELCHANGE);
    Notify(kControl, LBN_DBLCLK);
    Notify(kControl, BN_CLICKED);
    EXPECT_EQ((Log{"edit change", "edit left", "list chosen", "list double", "clicked"}), window.log);
    window.log.clear();
    EXPECT_EQ(0, Notify(kControl + 1, EN_CHANGE));
    EXPECT_EQ(0, Notify(kControl, EN_UPDATE));
    EXPECT_TRUE(window.log.empty());
}

TEST_F(MessageMap, AnswersOneForACommandThatItHandles)
{
    EXPECT_EQ(1, Send(WM_COMMAND, kCommand));
    EXPECT_EQ(0, Send(WM_COMMAND, kCommand + 1));
}

TEST_F(MessageMap, TakesMenuAcceleratorAndButtonForTheSameCommand)
{
    Send(WM_COMMAND, MAKEWPARAM(kCommand, 0));
    Send(WM_COMMAND, MAKEWPARAM(kCommand, 1));
    Notify(kCommand, BN_CLICKED);
    EXPECT_EQ((Log{"base command", "base command", "base command"}), window.log);
}

TEST_F(MessageMap, CracksTheMessagesOfTheWindow)
{
    Send(WM_CHAR, L'=', MAKELPARAM(2, 0x0D));
    Send(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 200));
    Send(WM_CLOSE);
    HELPINFO help{};
    help.iCtrlId = 42;
    EXPECT_EQ(TRUE, Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&help)));
    OnUi([this] { window.DestroyWindow(); });
    EXPECT_EQ((Log{"char 61 2 13", "size 2 300 200", "close", "help 42", "destroy"}), window.log);
}

TEST_F(MessageMap, ReachesTheCreationOfTheFrameBeforeAnythingElse)
{
    CDerivedWindow other;
    OnUi([&] {
        EXPECT_TRUE(other.Open());
        other.DestroyWindow();
    });
    EXPECT_EQ("nccreate 100", other.log.front());
    EXPECT_EQ(UINT{WM_NCCREATE}, other.messages.front());
}

TEST_F(MessageMap, KnowsTheMessageBeingHandled)
{
    const DWORD before = GetTickCount();
    PostMessage(window.m_hWnd, kNested, 5, 6);
    ui::Settle(window.m_hWnd);
    EXPECT_EQ(window.m_hWnd, window.seen.hwnd);
    EXPECT_EQ(kNested, window.seen.message);
    EXPECT_EQ(5U, window.seen.wParam);
    EXPECT_EQ(6, window.seen.lParam);
    EXPECT_GE(window.seen.time + 1000, before);
}

TEST_F(MessageMap, KnowsTheOuterMessageAgainAfterANestedOne)
{
    Send(kNested, 5, 6);
    EXPECT_EQ(kNested, window.seenAfterNested.message);
    EXPECT_EQ(5U, window.seenAfterNested.wParam);
    EXPECT_EQ(Log{"base plain"}, window.log);
}

TEST_F(MessageMap, ProcessesTheOuterMessageByDefaultAfterANestedOne)
{
    EXPECT_EQ(1004, Send(WM_GETTEXTLENGTH));
}

TEST_F(MessageMap, KnowsWhereThePointerWas)
{
    SetCursorPos(123, 45);
    PostMessage(window.m_hWnd, kNested, 0, 0);
    ui::Settle(window.m_hWnd);
    EXPECT_EQ(123, window.seen.pt.x);
    EXPECT_EQ(45, window.seen.pt.y);
}

TEST_F(MessageMap, LetsNoExceptionOutOfAHandler)
{
    EXPECT_EQ(0, Send(kThrows));
    EXPECT_EQ(Log{"throws"}, window.log);
    EXPECT_EQ(304, Send(kPlain, 3, 4));
}

TEST_F(MessageMap, ShowsTheTextOfAnExceptionThatLeavesAHandler)
{
    PostMessage(window.m_hWnd, kThrowsText, 0, 0);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Не вышло", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(304, Send(kPlain, 3, 4));
}

/// Other files have a class of this name with a handler of this name.
class CAskingWindow : public CWnd {
protected:
    LRESULT OnAsk(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 70; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAskingWindow, CWnd)
    ON_MESSAGE(WM_APP, &CAskingWindow::OnAsk)
END_MESSAGE_MAP()

TEST(MessageMapOfAFile, IsNotTakenForThatOfAnEquallyNamedClassInAnotherFile)
{
    OnUi([] {
        CAskingWindow window;
        ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
        EXPECT_EQ(77, window.SendMessage(WM_APP, 7));
    });
}

// ---- where commands go that a dialog does not handle ----

class CRoutingApp : public CWinApp {
public:
    CRoutingApp() : CWinApp(L"Проверка") {}
    int commands = 0;

protected:
    void OnAnyCommand() { ++commands; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CRoutingApp, CWinApp)
    ON_COMMAND(kCommand + 1, &CRoutingApp::OnAnyCommand)
    ON_COMMAND(kSmallCommand, &CRoutingApp::OnAnyCommand)
    ON_COMMAND(kSystemCommand, &CRoutingApp::OnAnyCommand)
    ON_CONTROL(EN_CHANGE, kCommand + 1, &CRoutingApp::OnAnyCommand)
END_MESSAGE_MAP()

class CommandRouting : public MessageMap {
protected:
    CommandRouting()
    {
        OnUi([this] { EXPECT_TRUE(dialog.Create(IDD_NUMBER, &window)); });
    }
    ~CommandRouting() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    CRoutingApp application;
    CDialog dialog;
};

TEST_F(CommandRouting, GoesFromADialogToItsParent)
{
    EXPECT_EQ(1, dialog.SendMessage(WM_COMMAND, kCommand));
    EXPECT_EQ(Log{"base command"}, window.log);
}

TEST_F(CommandRouting, GoesToTheApplicationLast)
{
    EXPECT_EQ(1, dialog.SendMessage(WM_COMMAND, kCommand + 1));
    EXPECT_EQ(1, application.commands);
}

TEST_F(CommandRouting, StopsAtTheDialogForSmallIdsSystemIdsAndNotifications)
{
    EXPECT_EQ(0, dialog.SendMessage(WM_COMMAND, kSmallCommand));
    EXPECT_EQ(0, dialog.SendMessage(WM_COMMAND, kSystemCommand));
    EXPECT_EQ(0, dialog.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand + 1, EN_CHANGE),
                                    reinterpret_cast<LPARAM>(dialog.m_hWnd)));
    EXPECT_EQ(0, application.commands);
}

} // namespace
