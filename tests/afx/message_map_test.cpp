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

// ---- what entries take apart ----

/// Notes each message with what its handler was given.
class CCrackingWindow : public CWnd {
public:
    bool Open()
    {
        return CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"Окно", WS_OVERLAPPEDWINDOW, CRect(10, 10, 310, 210),
                        nullptr, 0);
    }
    std::string Take()
    {
        std::string taken;
        taken.swap(m_noted);
        return taken;
    }

protected:
    std::string Id(const CWnd* window) const { return !window ? "none" : window == this ? "self" : "other"; }
    void Note(const std::string& what) { m_noted = what; }
    void NotePoint(const char* what, UINT flags, CPoint point)
    {
        Note(what + std::to_string(flags) + " " + std::to_string(point.x) + " " + std::to_string(point.y));
    }
    void OnActivate(UINT state, CWnd* other, BOOL minimized)
    {
        Note("activate " + std::to_string(state) + " " + Id(other) + " " + std::to_string(minimized));
    }
    void OnContextMenu(CWnd* window, CPoint point) { NotePoint(("menu " + Id(window) + " ").c_str(), 0, point); }
    int OnCreate(CREATESTRUCTW* create)
    {
        createdWidth = create->cx;
        return refusesCreation ? -1 : CWnd::OnCreate(create);
    }
    void OnEnable(BOOL enabled) { Note("enable " + std::to_string(enabled)); }
    void OnGetMinMaxInfo(MINMAXINFO* limits)
    {
        CWnd::OnGetMinMaxInfo(limits);
        if (createdWidth) // once it exists
            limits->ptMinTrackSize = {250, 150};
    }
    void OnKeyDown(UINT key, UINT repeatCount, UINT flags)
    {
        Note("key " + std::to_string(key) + " " + std::to_string(repeatCount) + " " + std::to_string(flags));
    }
    void OnKillFocus(CWnd* next) { Note("focus to " + Id(next)); }
    void OnLButtonDblClk(UINT flags, CPoint point) { NotePoint("double ", flags, point); }
    void OnLButtonDown(UINT flags, CPoint point) { NotePoint("left down ", flags, point); }
    void OnLButtonUp(UINT flags, CPoint point) { NotePoint("left up ", flags, point); }
    void OnMouseMove(UINT flags, CPoint point) { NotePoint("moved ", flags, point); }
    void OnMove(int x, int y) { Note("placed " + std::to_string(x) + " " + std::to_string(y)); }
    void OnNcDestroy()
    {
        Note("gone");
        CWnd::OnNcDestroy();
    }
    void OnPaint()
    {
        ::ValidateRect(m_hWnd, nullptr);
        Note("paint");
    }
    void OnRButtonDown(UINT flags, CPoint point) { NotePoint("right down ", flags, point); }
    void OnRButtonUp(UINT flags, CPoint point) { NotePoint("right up ", flags, point); }
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message)
    {
        Note("cursor " + Id(window) + " " + std::to_string(hitTest) + " " + std::to_string(message));
        return TRUE;
    }
    void OnSetFocus(CWnd* previous) { Note("focus from " + Id(previous)); }
    void OnShowWindow(BOOL shown, UINT status) { Note("show " + std::to_string(shown) + " " + std::to_string(status)); }
    void OnSysCommand(UINT id, LPARAM lParam) { Note("system " + std::to_string(id) + " " + std::to_string(lParam)); }
    void OnTimer(UINT_PTR id) { Note("timer " + std::to_string(id)); }
    DECLARE_MESSAGE_MAP()

public:
    int createdWidth = 0;
    bool refusesCreation = false;

private:
    std::string m_noted;
};

BEGIN_MESSAGE_MAP(CCrackingWindow, CWnd)
    ON_WM_ACTIVATE()
    ON_WM_CONTEXTMENU()
    ON_WM_CREATE()
    ON_WM_ENABLE()
    ON_WM_GETMINMAXINFO()
    ON_WM_KEYDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOVE()
    ON_WM_NCDESTROY()
    ON_WM_PAINT()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_SHOWWINDOW()
    ON_WM_SYSCOMMAND()
    ON_WM_TIMER()
END_MESSAGE_MAP()

class MessagesOfAWindow : public testing::Test {
protected:
    MessagesOfAWindow()
    {
        OnUi([this] { EXPECT_TRUE(window.Open()); });
    }
    ~MessagesOfAWindow() override
    {
        OnUi([this] { window.DestroyWindow(); });
    }
    /// What is noted of a message.
    std::string Noted(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ui::On([&] {
            window.Take();
            window.SendMessage(message, wParam, lParam);
            return window.Take();
        });
    }
    WPARAM Self() const { return reinterpret_cast<WPARAM>(window.m_hWnd); }
    CCrackingWindow window;
};

TEST_F(MessagesOfAWindow, AreHandedOverInTheirParts)
{
    const auto desktop = reinterpret_cast<WPARAM>(GetDesktopWindow());
    const LPARAM negative = MAKELPARAM(-3, -4);
    EXPECT_EQ("activate 1 self 1", Noted(WM_ACTIVATE, MAKEWPARAM(WA_ACTIVE, 1), static_cast<LPARAM>(Self())));
    EXPECT_EQ("menu self 0 -3 -4", Noted(WM_CONTEXTMENU, Self(), negative));
    EXPECT_EQ("menu other 0 -1 -1", Noted(WM_CONTEXTMENU, desktop, -1));
    EXPECT_EQ("enable 1", Noted(WM_ENABLE, TRUE));
    EXPECT_EQ("key 13 2 28", Noted(WM_KEYDOWN, VK_RETURN, MAKELPARAM(2, 0x1C)));
    EXPECT_EQ("focus to none", Noted(WM_KILLFOCUS));
    EXPECT_EQ("focus from other", Noted(WM_SETFOCUS, desktop));
    EXPECT_EQ("double 1 -3 -4", Noted(WM_LBUTTONDBLCLK, MK_LBUTTON, negative));
    EXPECT_EQ("left down 1 5 6", Noted(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6)));
    EXPECT_EQ("left up 0 5 6", Noted(WM_LBUTTONUP, 0, MAKELPARAM(5, 6)));
    EXPECT_EQ("right down 2 5 6", Noted(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 6)));
    EXPECT_EQ("right up 0 5 6", Noted(WM_RBUTTONUP, 0, MAKELPARAM(5, 6)));
    EXPECT_EQ("moved 0 -3 -4", Noted(WM_MOUSEMOVE, 0, negative));
    EXPECT_EQ("placed -3 -4", Noted(WM_MOVE, 0, negative));
    EXPECT_EQ("paint", Noted(WM_PAINT));
    EXPECT_EQ("cursor self 1 512", Noted(WM_SETCURSOR, Self(), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ("show 1 3", Noted(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING));
    EXPECT_EQ("system 61728 7", Noted(WM_SYSCOMMAND, SC_RESTORE, 7));
}

TEST_F(MessagesOfAWindow, LimitTheSizeThatAPersonMayGiveIt)
{
    const CRect size = ui::On([this] {
        window.MoveWindow(10, 10, 100, 90);
        CRect rect;
        window.GetWindowRect(rect);
        return rect;
    });
    EXPECT_EQ(250, size.Width());
    EXPECT_EQ(150, size.Height());
}

TEST_F(MessagesOfAWindow, MayRefuseItsCreation)
{
    EXPECT_EQ(300, window.createdWidth);
    CCrackingWindow other;
    other.refusesCreation = true;
    EXPECT_FALSE(ui::On([&] { return other.Open(); }));
    EXPECT_EQ(nullptr, other.m_hWnd);
    EXPECT_EQ("gone", other.Take());
}

TEST_F(MessagesOfAWindow, TellItsTimersApart)
{
    OnUi([this] {
        window.Take();
        EXPECT_EQ(21U, window.SetTimer(21, 10, nullptr));
    });
    EXPECT_TRUE(ui::WaitUntil([this] { return ui::On([this] { return window.Take(); }) == "timer 21"; }));
    EXPECT_TRUE(ui::On([this] { return window.KillTimer(21); }));
}

// ---- commands and notifications by a range of ids, and those of common controls ----

class CRangeWindow : public CWnd {
public:
    bool Open() { return CreateEx(0, AfxRegisterWndClass(0), L"Окно", WS_POPUP, CRect(), nullptr, 0); }
    Log log;
    BOOL goesNoFurther = TRUE;

protected:
    void OnAnyCommand(UINT id) { Note("command ", id); }
    void OnAnyChange(UINT id) { Note("change ", id); }
    BOOL OnCommandOrOn(UINT id)
    {
        Note("command or on ", id);
        return goesNoFurther;
    }
    void OnNotice(NMHDR* header, LRESULT* result)
    {
        Note("notice ", static_cast<UINT>(header->idFrom));
        *result = 77;
    }
    void OnAnyNotice(UINT id, NMHDR*, LRESULT* result)
    {
        Note("any notice ", id);
        *result = 78;
    }
    BOOL OnNoticeOrOn(UINT id, NMHDR*, LRESULT* result)
    {
        Note("notice or on ", id);
        *result = 79;
        return goesNoFurther;
    }
    DECLARE_MESSAGE_MAP()

private:
    void Note(const char* what, UINT id) { log.push_back(what + std::to_string(id)); }
};

BEGIN_MESSAGE_MAP(CRangeWindow, CWnd)
    ON_COMMAND_RANGE(0x8010, 0x8012, &CRangeWindow::OnAnyCommand)
    ON_COMMAND_EX(0x8020, &CRangeWindow::OnCommandOrOn)
    ON_CONTROL_RANGE(EN_CHANGE, 30, 32, &CRangeWindow::OnAnyChange)
    ON_NOTIFY(NM_CLICK, 40, &CRangeWindow::OnNotice)
    ON_NOTIFY_RANGE(NM_DBLCLK, 40, 41, &CRangeWindow::OnAnyNotice)
    ON_NOTIFY_EX(NM_RCLICK, 40, &CRangeWindow::OnNoticeOrOn)
    ON_NOTIFY_EX_RANGE(NM_RETURN, 40, 41, &CRangeWindow::OnNoticeOrOn)
END_MESSAGE_MAP()

class RangesOfIds : public testing::Test {
protected:
    RangesOfIds()
    {
        OnUi([this] {
            EXPECT_TRUE(window.Open());
            for (const UINT id : {40U, 41U})
                EXPECT_TRUE(controls[id - 40].CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(), &window, id));
        });
    }
    ~RangesOfIds() override
    {
        OnUi([this] { window.DestroyWindow(); });
    }
    LRESULT Notice(UINT id, UINT code)
    {
        // Of a tool tip it names no control but the tool.
        NMHDR header{controls[id - 40].m_hWnd, 1234, code};
        return window.SendMessage(WM_NOTIFY, 1234, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT Command(UINT id, UINT code = 0)
    {
        return window.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), code ? reinterpret_cast<LPARAM>(window.m_hWnd) : 0);
    }
    CRangeWindow window;
    CWnd controls[2];
};

TEST_F(RangesOfIds, ShareOneHandlerThatIsToldWhichItWas)
{
    for (const UINT id : {0x800FU, 0x8010U, 0x8012U, 0x8013U})
        EXPECT_EQ(id == 0x8010 || id == 0x8012, Command(id)) << id;
    for (const UINT id : {29U, 30U, 32U, 33U})
        Command(id, EN_CHANGE);
    EXPECT_EQ(0, Command(31, EN_UPDATE));
    EXPECT_EQ((Log{"command 32784", "command 32786", "change 30", "change 32"}), window.log);
}

TEST_F(RangesOfIds, MayLetACommandGoOn)
{
    EXPECT_EQ(1, Command(0x8020));
    window.goesNoFurther = FALSE;
    EXPECT_EQ(0, Command(0x8020));
    EXPECT_EQ((Log{"command or on 32800", "command or on 32800"}), window.log);
}

TEST_F(RangesOfIds, AnswerTheNotificationsOfCommonControls)
{
    EXPECT_EQ(77, Notice(40, NM_CLICK));
    EXPECT_EQ(0, Notice(41, NM_CLICK));
    EXPECT_EQ(0, Notice(40, NM_SETFOCUS));
    EXPECT_EQ(78, Notice(40, NM_DBLCLK));
    EXPECT_EQ(78, Notice(41, NM_DBLCLK));
    EXPECT_EQ((Log{"notice 1234", "any notice 40", "any notice 41"}), window.log);
}

TEST_F(RangesOfIds, MayLetANotificationGoOn)
{
    EXPECT_EQ(79, Notice(40, NM_RCLICK));
    EXPECT_EQ(79, Notice(41, NM_RETURN));
    window.goesNoFurther = FALSE;
    EXPECT_EQ(0, Notice(40, NM_RCLICK)) << "default processing answers";
    EXPECT_EQ((Log{"notice or on 40", "notice or on 41", "notice or on 40"}), window.log);
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
