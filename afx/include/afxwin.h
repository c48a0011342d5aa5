// Windows, dialogs, controls, data exchange, message maps and the application object.
//
// All of it is for one thread of a process, the user-interface thread: handle maps, the current message and the
// window that is exchanging data are state of the process.
#pragma once

#include <afx.h>
#include <afxres.h>
#include <commctrl.h>

class CCmdTarget;
class CDataExchange;
class CMenu;
class CWnd;

// Bases that are made by name: what braces alone put into them the analyzer of clang-tidy takes for garbage.
struct CSize : SIZE {
    CSize(int width = 0, int height = 0) : SIZE(SIZE{width, height}) {}
    CSize(SIZE size) : SIZE(size) {}
    BOOL operator==(SIZE other) const { return cx == other.cx && cy == other.cy; }
};

struct CPoint : POINT {
    CPoint(int px = 0, int py = 0) : POINT(POINT{px, py}) {}
    CPoint(POINT point) : POINT(point) {}
    BOOL operator==(POINT other) const { return x == other.x && y == other.y; }
};

struct CRect : RECT {
    CRect(int l = 0, int t = 0, int r = 0, int b = 0) : RECT(RECT{l, t, r, b}) {}
    CRect(const RECT& rect) : RECT(rect) {}
    CRect(POINT topLeft, SIZE size) : RECT(RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy}) {}
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return {Width(), Height()}; }
    CPoint TopLeft() const { return {left, top}; }
    CPoint BottomRight() const { return {right, bottom}; }
    CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    BOOL operator==(const RECT& other) const { return ::EqualRect(this, &other); }
    operator RECT*() { return this; }
    operator const RECT*() const { return this; }
};

// ---- message maps ------------------------------------------------------------------------------------------

using AFX_HANDLER = LRESULT (*)(CCmdTarget& target, WPARAM wParam, LPARAM lParam);

/// One row of a message map: a message, or a command or control notification by its code and a range of ids.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    AFX_HANDLER pfn; ///< null ends the map
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

constexpr UINT CN_COMMAND = 0; ///< code of menu commands, accelerators and button clicks

/// What goes with a notification of a common control.
struct AFX_NOTIFY {
    LRESULT* pResult; ///< what the control is answered
    NMHDR* pNMHDR;
};

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass) AFX_BEGIN_MAP(, theClass, baseClass)
/// The map of a class template with one type parameter.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    AFX_BEGIN_MAP(template <class type_name>, theClass<type_name>, baseClass)

#define AFX_BEGIN_MAP(header, theClass, baseClass)                                                                     \
    header const AFX_MSGMAP* theClass::GetMessageMap() const                                                           \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    header const AFX_MSGMAP* theClass::GetThisMessageMap()                                                             \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

// It closes what the other macro has opened, which clang-format does not see.
// clang-format off
#define END_MESSAGE_MAP()                                                                                              \
            {0, 0, 0, 0, nullptr}                                                                                        \
        };                                                                                                             \
        static const AFX_MSGMAP map{&TheBaseClass::GetThisMessageMap, entries};                                        \
        return &map;                                                                                                   \
    }
// clang-format on

#include <afxmsg_.h>

/// Base of whatever receives commands.
class AFX_CLASS CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Runs the handler of a command or control notification: the maps from the most derived class upward, each
    /// in declared order, the first match. FALSE where none matches, or where the handler lets it go on. A
    /// common control's notification has WM_NOTIFY in the high word of `code`, and an AFX_NOTIFY in `extra`.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, void* handlerInfo);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    const AFX_MSGMAP_ENTRY* FindEntry(UINT message, UINT code, UINT id) const;
};

/// A menu. The object destroys it, unless it is a temporary one for a menu that belongs to another.
class AFX_CLASS CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr;
    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    /// The object that stands for a menu: its own where it has one, else a temporary one, which lives as long as
    /// those of CWnd::FromHandle. Null for null.
    static CMenu* FromHandle(HMENU menu);
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(UINT id); ///< through the resource chain
    BOOL LoadMenu(LPCTSTR name);
    BOOL DestroyMenu();

    /// `id`: with MF_POPUP the handle of the menu that opens there.
    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCTSTR text = nullptr);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR text = nullptr);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR text = nullptr);
    BOOL RemoveMenu(UINT position, UINT flags); ///< a menu that opens there stays for who has its handle
    BOOL DeleteMenu(UINT position, UINT flags);
    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int position) const;
    UINT GetMenuState(UINT id, UINT flags) const;
    int GetMenuString(UINT id, CString& text, UINT flags) const;
    CMenu* GetSubMenu(int position) const;
    UINT EnableMenuItem(UINT id, UINT flags);
    DWORD CheckMenuItem(UINT id, UINT flags);
    BOOL CheckMenuRadioItem(UINT firstId, UINT lastId, UINT id, UINT flags);
    BOOL SetDefaultItem(UINT id, BOOL byPosition = FALSE);
    /// Opens the menu there; `window` receives the command. The command itself where `flags` holds TPM_RETURNCMD.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* window, const RECT* rect = nullptr);

private:
    bool m_isTemporary = false;
};

// ---- windows -----------------------------------------------------------------------------------------------

/// A window. The C++ object and the window have lives of their own: an object can exist before its window does and
/// after it is gone (m_hWnd is then null).
class AFX_CLASS CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    /// Destroys the window, if there still is one.
    ~CWnd() override;

    HWND m_hWnd = nullptr;
    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const; ///< null for a null pointer too

    /// The object that stands for a window: its own where it has one, else a temporary one that lives until the
    /// outermost message being processed is done; made outside of any message, until the application's message loop
    /// goes on or the window is gone. Null for null.
    static CWnd* FromHandle(HWND window);
    static CWnd* FromHandlePermanent(HWND window); ///< null where the window has no object of its own
    /// Makes this the window's own object. FALSE where either has its counterpart already.
    BOOL Attach(HWND window);
    /// Parts object and window; the window goes on as the one that it was without the object.
    HWND Detach();
    /// Attaches, and puts the object's handlers before the window's own procedure.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);

    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, void* parameter = nullptr);
    virtual BOOL DestroyWindow();

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    CWnd* GetDlgItem(int id) const; ///< null where the window holds no such control
    int GetDlgCtrlID() const;
    CWnd* GetParent() const;
    CWnd* GetWindow(UINT relation) const;
    CWnd* GetTopLevelParent() const; ///< the outermost of the parents and owners, the window itself without any
    static CWnd* GetFocus();
    CMenu* GetMenu() const; ///< null where the window has none
    BOOL SetMenu(CMenu* menu);
    CMenu* GetSystemMenu(BOOL revert) const;
    void DrawMenuBar();
    static CWnd* GetDesktopWindow();
    BOOL IsChild(const CWnd* window) const;
    void CheckDlgButton(int id, UINT check) const;
    UINT IsDlgButtonChecked(int id) const;
    /// Turns one radio button of a range of ids on and the others off.
    void CheckRadioButton(int firstId, int lastId, int checkedId);
    int GetCheckedRadioButton(int firstId, int lastId) const; ///< 0 where none is on
    void SetDlgItemText(int id, LPCTSTR text) const;
    /// The length of the text: 0 and the empty text where there is no such control.
    int GetDlgItemText(int id, CString& text) const;
    int GetDlgItemText(int id, LPTSTR text, int capacity) const; ///< cut off where it does not fit
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE);
    /// The whole number in a control; 0, and `translated` FALSE, where its text is none.
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const;

    void SetWindowText(LPCTSTR text);
    void GetWindowText(CString& text) const;
    int GetWindowText(LPTSTR text, int capacity) const; ///< cut off where it does not fit; the length copied
    int GetWindowTextLength() const;

    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;
    CWnd* SetFocus();
    void UpdateWindow();
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(const RECT* rect, BOOL erase = TRUE);
    void SetRedraw(BOOL redraw = TRUE); ///< FALSE holds the painting of a control back
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// FALSE where the style is as wanted already. With `flags` for SetWindowPos the frame is drawn anew.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
    BOOL IsIconic() const;
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
    BOOL KillTimer(UINT_PTR id);
    void GetClientRect(RECT* rect) const;
    void GetWindowRect(RECT* rect) const;
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(const RECT* rect, BOOL repaint = TRUE);
    /// `after`: a window, or one of the four below.
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    /// Centres a child on its parent, a pop-up on its owner (on the screen where it has none, or one that is hidden
    /// or minimised), either on `other` where that is given. A pop-up stays within the working area of the screen.
    void CenterWindow(CWnd* other = nullptr);
    void ScreenToClient(POINT* point) const;
    void ScreenToClient(RECT* rect) const;
    void ClientToScreen(POINT* point) const;
    void ClientToScreen(RECT* rect) const;
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK);

    /// The id of the shown child at a point of the client area, -1 where there is none. A group box counts where no
    /// other control lies; a control without an id of its own (IDC_STATIC) counts nowhere.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFOW* info) const;

    /// Moves data from the controls to the object (TRUE) or back (FALSE) with DoDataExchange. FALSE when a control
    /// refused; the user has then been told and the focus is back in it. Control notifications to this window are
    /// ignored meanwhile.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    /// Sees the messages of the window and of its children before they are dispatched, in modal loops as in the
    /// application's. TRUE says that nothing more is to be done with this one.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Offers a message to its window and to each of the parents and owners of that, up to `stop`.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);

    /// Takes and dispatches messages until EndModalLoop, or until the window is gone; the result given there, else -1.
    /// MLF_SHOWONIDLE shows the window once nothing is waiting, MLF_NOIDLEMSG does not tell its parent of that.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal(); ///< whether the loop goes on; asked after each message
    virtual void EndModalLoop(int result);

protected:
    bool m_continuesModal = false;
    int m_nModalResult = -1;

    virtual void DoDataExchange(CDataExchange* exchange);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void PostNcDestroy();

    /// The message being processed, with its time and the pointer's position. Only for use in a handler.
    static const MSG* GetCurrentMessage();
    LRESULT Default(); ///< default processing of the current message

    // The handlers of the ON_WM_ entries, with the default processing.
    void OnActivate(UINT state, CWnd* other, BOOL minimized);
    void OnChar(UINT character, UINT repeatCount, UINT flags);
    void OnClose();
    void OnContextMenu(CWnd* window, CPoint position); ///< in screen coordinates, (-1, -1) where asked for by key
    int OnCreate(CREATESTRUCTW* create);               ///< -1 refuses the window
    void OnDestroy();
    void OnEnable(BOOL enabled);
    void OnGetMinMaxInfo(MINMAXINFO* limits);
    BOOL OnHelpInfo(HELPINFO* info);
    void OnKeyDown(UINT key, UINT repeatCount, UINT flags);
    void OnKillFocus(CWnd* next);
    void OnLButtonDblClk(UINT flags, CPoint point);
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    void OnMove(int x, int y);
    BOOL OnNcCreate(CREATESTRUCTW* create);
    void OnNcDestroy();
    void OnPaint();
    void OnRButtonDown(UINT flags, CPoint point);
    void OnRButtonUp(UINT flags, CPoint point);
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    void OnSetFocus(CWnd* previous);
    void OnShowWindow(BOOL shown, UINT status);
    void OnSize(UINT type, int width, int height);
    void OnSysCommand(UINT id, LPARAM lParam);
    void OnTimer(UINT_PTR id);

private:
    explicit CWnd(HWND place); ///< of no window, but a place among windows
    static LRESULT CALLBACK WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    WNDPROC m_super = nullptr; ///< the window procedure that was there before this object's
};

// How RunModalLoop goes about it.
constexpr DWORD MLF_NOIDLEMSG = 0x0001;
constexpr DWORD MLF_SHOWONIDLE = 0x0004;

/// A window class of the application with the given parts; its name stays valid until the next call.
AFX_CLASS LPCTSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                                      HICON icon = nullptr);

class AFX_CLASS CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

class AFX_CLASS CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    int GetCheck() const;
    void SetCheck(int check);
    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
};

class AFX_CLASS CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    void LimitText(int characters = 0);
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void GetSel(int& start, int& end) const;
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);
};

class AFX_CLASS CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // ---- its items: indexes count from 0; CB_ERR (-1) stands for none ----

    int GetCount() const;
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text); ///< at the end for -1; never sorted in
    int DeleteString(int index);               ///< how many are left
    void ResetContent();
    int Dir(UINT attributes, LPCTSTR pattern);
    void GetLBText(int index, CString& text) const; ///< the empty text where there is no such item
    int GetLBText(int index, LPTSTR text) const;    ///< into room for GetLBTextLen characters and the terminator
    int GetLBTextLen(int index) const;
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
    void* GetItemDataPtr(int index) const;
    int SetItemDataPtr(int index, void* data);
    /// The first item after `start`, and around the end, that begins with the text.
    int FindString(int start, LPCTSTR text) const;
    int FindStringExact(int start, LPCTSTR text) const;
    int InitStorage(int items, UINT bytes);

    // ---- what is chosen ----

    int GetCurSel() const; ///< -1 when nothing is selected
    int SetCurSel(int index);
    int SelectString(int start, LPCTSTR text);

    // ---- its edit ----

    BOOL LimitText(int characters);
    DWORD GetEditSel() const; ///< the start in the low word, the end in the high one
    BOOL SetEditSel(int start, int end);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    // ---- its list ----

    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;
    void GetDroppedControlRect(RECT* rect) const;
    int GetDroppedWidth() const;
    int SetDroppedWidth(UINT width);    ///< at least so wide; the width that it has then
    int GetItemHeight(int index) const; ///< of the edit for -1
    int SetItemHeight(int index, UINT height);
    int GetTopIndex() const;
    int SetTopIndex(int index);
    UINT GetHorizontalExtent() const;
    void SetHorizontalExtent(UINT width);
    BOOL GetExtendedUI() const;
    int SetExtendedUI(BOOL extended = TRUE); ///< the list drops by the down key
    BOOL GetComboBoxInfo(COMBOBOXINFO* info) const;
    LCID GetLocale() const;
    LCID SetLocale(LCID locale); ///< the one by which texts are sorted; the locale before
};

class AFX_CLASS CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int index);
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text);
    int DeleteString(UINT index);
    void ResetContent();
    void GetText(int index, CString& text) const; ///< the empty text where there is no such item
    int FindStringExact(int start, LPCTSTR text) const;
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
};

// ---- dialogs -----------------------------------------------------------------------------------------------

/// A dialog from a template, found through the resource chain.
class AFX_CLASS CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);

    /// Shows the dialog until EndDialog; its result, or -1 where it could not be created or is shown already.
    virtual INT_PTR DoModal();
    /// Creates it modelessly; it shows itself where the template says WS_VISIBLE.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    void EndDialog(int result);

    /// Loads the data into the controls. TRUE leaves the first focus to the system.
    virtual BOOL OnInitDialog();
    /// Moves the focus by keys, presses the default button, and the like.
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* handlerInfo) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    UINT m_templateId = 0;
    CWnd* m_parent = nullptr;

private:
    INT_PTR RunModal(const DLGTEMPLATE& dialogTemplate, HWND owner);
};

/// A main window. It deletes itself when its window is destroyed.
class AFX_CLASS CFrameWnd : public CWnd {
    DECLARE_DYNAMIC(CFrameWnd)
public:
    static const CRect rectDefault; ///< wherever the system puts a window
    /// `className` null stands for a window with the arrow cursor and the background of windows. FALSE where the window
    /// cannot be created or the menu is not found in the resource chain.
    BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCTSTR menuName = nullptr, DWORD exStyle = 0);

protected:
    void PostNcDestroy() override;
    void OnDestroy();
    DECLARE_MESSAGE_MAP()
};

// ---- data exchange -----------------------------------------------------------------------------------------

/// One pass of a dialog's data exchange.
class AFX_CLASS CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: from the controls to the object
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;

    /// Names the control being exchanged. Throws CNotSupportedException where the dialog does not hold it.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    /// Ends the pass as failed: focus to the control last prepared, an edit's text selected; throws CUserException.
    [[noreturn]] void Fail();
};

// Numbers as texts. Saving, a text that is none, or one that the type cannot hold, is refused with the prompt of the
// type: AFX_IDP_PARSE_INT, AFX_IDP_PARSE_UINT for the types without a sign, AFX_IDP_PARSE_BYTE, AFX_IDP_PARSE_REAL.
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, BYTE& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, short& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, int& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, UINT& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, long& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, DWORD& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value);
/// Shown with as many digits as the type is sure of: 6 and 15.
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, float& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, double& value);
AFX_CLASS void DDX_Text(CDataExchange* exchange, int id, CString& value);
/// A value that is no check state shows as off.
AFX_CLASS void DDX_Check(CDataExchange* exchange, int id, int& value);
/// `id`: the first button of the group, which ends before the next control with WS_GROUP. The value counts the
/// group's radio buttons from 0; -1 stands for no button on.
AFX_CLASS void DDX_Radio(CDataExchange* exchange, int id, int& value);
/// Nothing is selected for an index that the list does not have.
AFX_CLASS void DDX_CBIndex(CDataExchange* exchange, int id, int& index);
AFX_CLASS void DDX_LBIndex(CDataExchange* exchange, int id, int& index);
/// The selected item's text, empty without one; loading selects the first item that begins with the text.
AFX_CLASS void DDX_LBString(CDataExchange* exchange, int id, CString& value);
AFX_CLASS void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value); ///< the item of just that text
/// The text of a combo box's edit or selection; where no item begins with it, it is put into the edit.
AFX_CLASS void DDX_CBString(CDataExchange* exchange, int id, CString& value);
AFX_CLASS void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);
/// Makes `control` the object of the dialog's control, unless it has a window already.
AFX_CLASS void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// Checks of the value that has just been exchanged. Saving, one out of bounds (both allowed) is refused with
// AFX_IDP_PARSE_INT_RANGE or AFX_IDP_PARSE_REAL_RANGE.
AFX_CLASS void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE low, BYTE high);
AFX_CLASS void DDV_MinMaxShort(CDataExchange* exchange, short value, short low, short high);
AFX_CLASS void DDV_MinMaxInt(CDataExchange* exchange, int value, int low, int high);
AFX_CLASS void DDV_MinMaxLong(CDataExchange* exchange, long value, long low, long high);
AFX_CLASS void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT low, UINT high);
AFX_CLASS void DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD low, DWORD high);
AFX_CLASS void DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG low, LONGLONG high);
AFX_CLASS void DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG low, ULONGLONG high);
AFX_CLASS void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float low, float high);
AFX_CLASS void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double low, double high);
/// Loading limits what can be typed into the edit; saving, a longer text is refused with AFX_IDP_PARSE_STRING_SIZE.
AFX_CLASS void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count);

// ---- the application ---------------------------------------------------------------------------------------

/// The application: one static object of the executable.
class AFX_CLASS CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR name = nullptr);
    ~CWinApp() override;

    LPCTSTR m_pszAppName; ///< caption of the application's message boxes
    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine = nullptr;   ///< as AfxWinMain was given it
    int m_nCmdShow = SW_SHOWNORMAL; ///< the same: how the main window is to be shown at first
    CWnd* m_pMainWnd = nullptr;
    BOOL m_bHelpMode = FALSE; ///< context-help mode: the next Help asks for the control under the pointer

    /// Sees each message first. It offers it to the windows, from the one that it is for upward, and to the main
    /// window. TRUE says that nothing more is to be done with it.
    virtual BOOL PreTranslateMessage(MSG* message);
    virtual BOOL InitInstance(); ///< FALSE ends the program at once
    virtual int Run();           ///< the message loop
    virtual int ExitInstance();
    /// Shows the application's message boxes; `promptId` is the help context.
    virtual int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId);
};

AFX_CLASS CWinApp* AfxGetApp(); ///< null in a process without an application object
AFX_CLASS CWnd* AfxGetMainWnd();
/// Runs the application object: InitInstance, Run, ExitInstance. Takes what the system gave WinMain; an application
/// with a WinMain of its own gives GetCommandLine() for the command line, which is wide.
AFX_CLASS int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show);

/// Message boxes. Without an icon in `type` they bear the exclamation mark, or the question mark for Yes/No.
AFX_CLASS int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
AFX_CLASS int AfxMessageBox(UINT promptId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));
/// Replaces %1, or %1 and %2, of a string resource.
AFX_CLASS void AfxFormatString1(CString& result, UINT id, LPCTSTR first);
AFX_CLASS void AfxFormatString2(CString& result, UINT id, LPCTSTR first, LPCTSTR second);

// ---- resources ---------------------------------------------------------------------------------------------

/// The module whose resources come first; the application's unless set otherwise.
AFX_CLASS HINSTANCE AfxGetResourceHandle();
AFX_CLASS void AfxSetResourceHandle(HINSTANCE module);
AFX_CLASS HINSTANCE AfxGetInstanceHandle();
/// The first module of the chain that holds the resource: the current one, the application, the extension DLLs
/// (the last started first), the framework itself. Where none holds it, the current module.
AFX_CLASS HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);
