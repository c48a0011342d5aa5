// The entries of message maps. Part of afxwin.h, which includes it.
#pragma once

template <class Function> struct AfxMember;
template <class Class, class Result, class... Arguments> struct AfxMember<Result (Class::*)(Arguments...)> {
    using Type = Class;
};

/// A handler of commands and control notifications.
using AFX_PMSG = void (CCmdTarget::*)();

/// Turns a handler of a known signature into the one shape that message maps hold. The type stands beside the handler
/// because some compilers take equally named classes that are local to different files for one by the handler alone.
template <class Function, Function handler> struct AfxThunk {
    using Class = typename AfxMember<Function>::Type;

    template <class... Arguments> static decltype(auto) Run(CCmdTarget& target, Arguments... arguments)
    {
        return (static_cast<Class&>(target).*handler)(arguments...);
    }

    // ---- commands and notifications: the id, what goes with it; whether that was all ----

    static LRESULT Command(CCmdTarget& target, WPARAM, LPARAM)
    {
        Run(target);
        return TRUE;
    }
    static LRESULT CommandOfRange(CCmdTarget& target, WPARAM id, LPARAM)
    {
        Run(target, static_cast<UINT>(id));
        return TRUE;
    }
    static LRESULT CommandOrOn(CCmdTarget& target, WPARAM id, LPARAM) { return Run(target, static_cast<UINT>(id)); }
    static LRESULT Notify(CCmdTarget& target, WPARAM, LPARAM extra)
    {
        const auto& notify = *reinterpret_cast<const AFX_NOTIFY*>(extra);
        Run(target, notify.pNMHDR, notify.pResult);
        return TRUE;
    }
    static LRESULT NotifyOfRange(CCmdTarget& target, WPARAM id, LPARAM extra)
    {
        const auto& notify = *reinterpret_cast<const AFX_NOTIFY*>(extra);
        Run(target, static_cast<UINT>(id), notify.pNMHDR, notify.pResult);
        return TRUE;
    }
    static LRESULT NotifyOrOn(CCmdTarget& target, WPARAM id, LPARAM extra)
    {
        const auto& notify = *reinterpret_cast<const AFX_NOTIFY*>(extra);
        return Run(target, static_cast<UINT>(id), notify.pNMHDR, notify.pResult);
    }

    // ---- messages of the window ----

    static LRESULT Plain(CCmdTarget& target, WPARAM, LPARAM)
    {
        Run(target);
        return 0;
    }
    static LRESULT Message(CCmdTarget& target, WPARAM wParam, LPARAM lParam) { return Run(target, wParam, lParam); }
    static LRESULT Activate(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, UINT{LOWORD(wParam)}, Window(static_cast<WPARAM>(lParam)), BOOL{HIWORD(wParam)});
        return 0;
    }
    static LRESULT ContextMenu(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, Window(wParam), Point(lParam));
        return 0;
    }
    static LRESULT Creation(CCmdTarget& target, WPARAM, LPARAM lParam)
    {
        return Run(target, reinterpret_cast<CREATESTRUCTW*>(lParam));
    }
    static LRESULT Flag(CCmdTarget& target, WPARAM wParam, LPARAM)
    {
        Run(target, static_cast<BOOL>(wParam));
        return 0;
    }
    static LRESULT Focus(CCmdTarget& target, WPARAM wParam, LPARAM)
    {
        Run(target, Window(wParam));
        return 0;
    }
    static LRESULT HelpInfo(CCmdTarget& target, WPARAM, LPARAM lParam)
    {
        return Run(target, reinterpret_cast<HELPINFO*>(lParam));
    }
    static LRESULT Key(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, static_cast<UINT>(wParam), UINT{LOWORD(lParam)}, UINT{HIWORD(lParam)});
        return 0;
    }
    static LRESULT Limits(CCmdTarget& target, WPARAM, LPARAM lParam)
    {
        Run(target, reinterpret_cast<MINMAXINFO*>(lParam));
        return 0;
    }
    static LRESULT Mouse(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, static_cast<UINT>(wParam), Point(lParam));
        return 0;
    }
    static LRESULT Move(CCmdTarget& target, WPARAM, LPARAM lParam)
    {
        const CPoint position = Point(lParam);
        Run(target, int{position.x}, int{position.y});
        return 0;
    }
    static LRESULT SetCursor(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        return Run(target, Window(wParam), UINT{LOWORD(lParam)}, UINT{HIWORD(lParam)});
    }
    static LRESULT ShowWindow(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, static_cast<BOOL>(wParam), static_cast<UINT>(lParam));
        return 0;
    }
    static LRESULT Size(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, static_cast<UINT>(wParam), int{LOWORD(lParam)}, int{HIWORD(lParam)});
        return 0;
    }
    static LRESULT SysCommand(CCmdTarget& target, WPARAM wParam, LPARAM lParam)
    {
        Run(target, static_cast<UINT>(wParam), lParam);
        return 0;
    }
    static LRESULT Timer(CCmdTarget& target, WPARAM wParam, LPARAM)
    {
        Run(target, UINT_PTR{wParam});
        return 0;
    }

private:
    static auto Window(WPARAM handle) { return Class::FromHandle(reinterpret_cast<HWND>(handle)); }
    static CPoint Point(LPARAM lParam)
    {
        return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    }
};

template <class Required, class Thunk> using AfxThunkOf = Thunk;

/// The cast refuses a handler of any other result or arguments than the entry's, those that would convert included.
#define AFX_THUNK(type, memberFxn)                                                                                     \
    AfxThunkOf<decltype(static_cast<type>(memberFxn)), AfxThunk<decltype(memberFxn), memberFxn>>

#define afx_msg ///< marks a handler in a class

// ---- commands and control notifications ----

#define ON_CONTROL(code, id, memberFxn) {WM_COMMAND, code, id, id, &AFX_THUNK(AFX_PMSG, memberFxn)::Command},
/// void (UINT id) of each control from `id` to `lastId`.
#define ON_CONTROL_RANGE(code, id, lastId, memberFxn)                                                                  \
    {WM_COMMAND, code, id, lastId, &AFX_THUNK(void(CCmdTarget::*)(UINT), memberFxn)::CommandOfRange},
#define ON_COMMAND(id, memberFxn) ON_CONTROL(CN_COMMAND, id, memberFxn)
#define ON_COMMAND_RANGE(id, lastId, memberFxn) ON_CONTROL_RANGE(CN_COMMAND, id, lastId, memberFxn)
/// BOOL (UINT id); FALSE lets the command go on to the next receiver.
#define ON_COMMAND_EX(id, memberFxn)                                                                                   \
    {WM_COMMAND, CN_COMMAND, id, id, &AFX_THUNK(BOOL(CCmdTarget::*)(UINT), memberFxn)::CommandOrOn},

#define AFX_ON_NOTIFY(code, id, lastId, type, memberFxn, crack)                                                        \
    {WM_NOTIFY, static_cast<WORD>(code), id, lastId, &AFX_THUNK(type, memberFxn)::crack},
/// void (NMHDR* header, LRESULT* result): a common control's notification.
#define ON_NOTIFY(code, id, memberFxn)                                                                                 \
    AFX_ON_NOTIFY(code, id, id, void (CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn, Notify)
/// void (UINT id, NMHDR* header, LRESULT* result)
#define ON_NOTIFY_RANGE(code, id, lastId, memberFxn)                                                                   \
    AFX_ON_NOTIFY(code, id, lastId, void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn, NotifyOfRange)
/// BOOL (UINT id, NMHDR* header, LRESULT* result); FALSE lets the notification go on to the next receiver.
#define ON_NOTIFY_EX(code, id, memberFxn) ON_NOTIFY_EX_RANGE(code, id, id, memberFxn)
#define ON_NOTIFY_EX_RANGE(code, id, lastId, memberFxn)                                                                \
    AFX_ON_NOTIFY(code, id, lastId, BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn, NotifyOrOn)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)

// ---- messages of the window ----

#define AFX_ON_MESSAGE(message, type, memberFxn, crack) {message, 0, 0, 0, &AFX_THUNK(type, memberFxn)::crack},
#define ON_MESSAGE(message, memberFxn) AFX_ON_MESSAGE(message, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn, Message)

#define ON_WM_ACTIVATE()                                                                                               \
    AFX_ON_MESSAGE(WM_ACTIVATE, void (CWnd::*)(UINT, CWnd*, BOOL), &ThisClass::OnActivate, Activate)
#define ON_WM_CHAR() AFX_ON_MESSAGE(WM_CHAR, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnChar, Key)
#define ON_WM_CLOSE() AFX_ON_MESSAGE(WM_CLOSE, void (CWnd::*)(), &ThisClass::OnClose, Plain)
#define ON_WM_CONTEXTMENU()                                                                                            \
    AFX_ON_MESSAGE(WM_CONTEXTMENU, void (CWnd::*)(CWnd*, CPoint), &ThisClass::OnContextMenu, ContextMenu)
#define ON_WM_CREATE() AFX_ON_MESSAGE(WM_CREATE, int (CWnd::*)(LPCREATESTRUCT), &ThisClass::OnCreate, Creation)
#define ON_WM_DESTROY() AFX_ON_MESSAGE(WM_DESTROY, void (CWnd::*)(), &ThisClass::OnDestroy, Plain)
#define ON_WM_ENABLE() AFX_ON_MESSAGE(WM_ENABLE, void (CWnd::*)(BOOL), &ThisClass::OnEnable, Flag)
#define ON_WM_GETMINMAXINFO()                                                                                          \
    AFX_ON_MESSAGE(WM_GETMINMAXINFO, void (CWnd::*)(MINMAXINFO*), &ThisClass::OnGetMinMaxInfo, Limits)
#define ON_WM_HELPINFO() AFX_ON_MESSAGE(WM_HELP, BOOL (CWnd::*)(HELPINFO*), &ThisClass::OnHelpInfo, HelpInfo)
#define ON_WM_KEYDOWN() AFX_ON_MESSAGE(WM_KEYDOWN, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyDown, Key)
#define ON_WM_KILLFOCUS() AFX_ON_MESSAGE(WM_KILLFOCUS, void (CWnd::*)(CWnd*), &ThisClass::OnKillFocus, Focus)
#define ON_WM_LBUTTONDBLCLK()                                                                                          \
    AFX_ON_MESSAGE(WM_LBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDblClk, Mouse)
#define ON_WM_LBUTTONDOWN()                                                                                            \
    AFX_ON_MESSAGE(WM_LBUTTONDOWN, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDown, Mouse)
#define ON_WM_LBUTTONUP() AFX_ON_MESSAGE(WM_LBUTTONUP, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonUp, Mouse)
#define ON_WM_MOUSEMOVE() AFX_ON_MESSAGE(WM_MOUSEMOVE, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMouseMove, Mouse)
#define ON_WM_MOVE() AFX_ON_MESSAGE(WM_MOVE, void (CWnd::*)(int, int), &ThisClass::OnMove, Move)
#define ON_WM_NCCREATE() AFX_ON_MESSAGE(WM_NCCREATE, BOOL (CWnd::*)(LPCREATESTRUCT), &ThisClass::OnNcCreate, Creation)
#define ON_WM_NCDESTROY() AFX_ON_MESSAGE(WM_NCDESTROY, void (CWnd::*)(), &ThisClass::OnNcDestroy, Plain)
#define ON_WM_PAINT() AFX_ON_MESSAGE(WM_PAINT, void (CWnd::*)(), &ThisClass::OnPaint, Plain)
#define ON_WM_RBUTTONDOWN()                                                                                            \
    AFX_ON_MESSAGE(WM_RBUTTONDOWN, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonDown, Mouse)
#define ON_WM_RBUTTONUP() AFX_ON_MESSAGE(WM_RBUTTONUP, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonUp, Mouse)
#define ON_WM_SETCURSOR()                                                                                              \
    AFX_ON_MESSAGE(WM_SETCURSOR, BOOL (CWnd::*)(CWnd*, UINT, UINT), &ThisClass::OnSetCursor, SetCursor)
#define ON_WM_SETFOCUS() AFX_ON_MESSAGE(WM_SETFOCUS, void (CWnd::*)(CWnd*), &ThisClass::OnSetFocus, Focus)
#define ON_WM_SHOWWINDOW()                                                                                             \
    AFX_ON_MESSAGE(WM_SHOWWINDOW, void (CWnd::*)(BOOL, UINT), &ThisClass::OnShowWindow, ShowWindow)
#define ON_WM_SIZE() AFX_ON_MESSAGE(WM_SIZE, void (CWnd::*)(UINT, int, int), &ThisClass::OnSize, Size)
#define ON_WM_SYSCOMMAND()                                                                                             \
    AFX_ON_MESSAGE(WM_SYSCOMMAND, void (CWnd::*)(UINT, LPARAM), &ThisClass::OnSysCommand, SysCommand)
#define ON_WM_TIMER() AFX_ON_MESSAGE(WM_TIMER, void (CWnd::*)(UINT_PTR), &ThisClass::OnTimer, Timer)
