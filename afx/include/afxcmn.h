// The common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

/// The small window with a text that comes up where the pointer rests. Its owner passes the mouse messages of the tools
/// on (RelayEvent), best in PreTranslateMessage. A tool is a window, or an area of one with an id.
class AFX_CLASS CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    virtual BOOL Create(CWnd* parent, DWORD style = 0);

    /// Without a text of its own a tool asks its window, or a window that is a tool its parent, with TTN_NEEDTEXT.
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACK, const RECT* area = nullptr, UINT_PTR toolId = 0);
    BOOL AddTool(CWnd* window, UINT textId, const RECT* area = nullptr, UINT_PTR toolId = 0);
    void DelTool(CWnd* window, UINT_PTR toolId = 0);
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR toolId = 0);
    void GetText(CString& text, CWnd* window, UINT_PTR toolId = 0) const;
    int GetToolCount() const;
    void SetToolRect(CWnd* window, UINT_PTR toolId, const RECT* area);

    void RelayEvent(MSG* message);
    void Activate(BOOL activate);
    void Pop(); ///< takes the text away
    void SetDelayTime(UINT milliseconds);
    void SetDelayTime(DWORD which, int milliseconds); ///< TTDT_AUTOPOP, TTDT_INITIAL or TTDT_RESHOW
    int SetMaxTipWidth(int width); ///< in pixels; longer texts are broken into lines. The width before
    int GetMaxTipWidth() const;
};

/// The head of a list's columns.
class AFX_CLASS CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    int GetItemCount() const;
    BOOL GetItem(int index, HDITEMW* item) const;
    BOOL SetItem(int index, HDITEMW* item);
    BOOL GetItemRect(int index, RECT* rect) const;
};

/// A list view.
///
/// Rows and columns count from 0; column 0 is the row's own text. Of a list made with LVS_OWNERDATA, SetItemCountEx
/// tells how many rows there are, and the parent gives their texts when LVN_GETDISPINFO asks for them.
class AFX_CLASS CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // ---- columns ----

    /// The index of the new column, -1 on failure.
    int InsertColumn(int index, const LVCOLUMNW* column);
    int InsertColumn(int index, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int index);
    BOOL GetColumn(int index, LVCOLUMNW* column) const;
    BOOL SetColumn(int index, const LVCOLUMNW* column);
    int GetColumnWidth(int index) const;
    /// Besides pixels: LVSCW_AUTOSIZE, as wide as the texts; LVSCW_AUTOSIZE_USEHEADER, as the heading too.
    BOOL SetColumnWidth(int index, int width);
    BOOL GetColumnOrderArray(int* order, int count = -1) const; ///< -1: of all columns
    BOOL SetColumnOrderArray(int count, int* order);
    CHeaderCtrl* GetHeaderCtrl() const; ///< null where the list has none

    // ---- rows ----

    int GetItemCount() const;
    void SetItemCount(int count);
    BOOL SetItemCountEx(int count, DWORD flags = LVSICF_NOINVALIDATEALL);
    /// The index of the new row, which a sorted list chooses; -1 on failure.
    int InsertItem(const LVITEMW* item);
    int InsertItem(int index, LPCTSTR text);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();
    BOOL GetItem(LVITEMW* item) const;
    BOOL SetItem(const LVITEMW* item);
    CString GetItemText(int index, int subItem) const;
    int GetItemText(int index, int subItem, LPTSTR text, int capacity) const; ///< cut off where it does not fit
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data);
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data);
    int FindItem(LVFINDINFOW* info, int start = -1) const;

    // ---- states ----

    UINT GetItemState(int index, UINT mask) const;
    BOOL SetItemState(int index, UINT state, UINT mask); ///< of all rows where `index` is -1
    BOOL SetItemState(int index, LVITEMW* item);
    BOOL GetCheck(int index) const;
    BOOL SetCheck(int index, BOOL check = TRUE);
    /// The next row after `index` (-1: from the start) that has what the LVNI_ flags say; -1 where there is none.
    int GetNextItem(int index, int flags) const;
    POSITION GetFirstSelectedItemPosition() const;     ///< null where nothing is selected
    int GetNextSelectedItem(POSITION& position) const; ///< the row at the position, which goes on to the next
    UINT GetSelectedCount() const;
    int GetSelectionMark();
    int SetSelectionMark(int index);

    // ---- what is seen ----

    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD style); ///< the styles before
    BOOL EnsureVisible(int index, BOOL partiallyOk);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL RedrawItems(int first, int last);
    BOOL Update(int index);
    BOOL GetItemRect(int index, RECT* rect, UINT part) const; ///< one of LVIR_BOUNDS, LVIR_ICON, LVIR_LABEL
    BOOL GetSubItemRect(int index, int subItem, int part, CRect& rect);
    int HitTest(LVHITTESTINFO* info) const;
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* info);
    /// Starts editing the row's own text; null where the list has no LVS_EDITLABELS.
    CEdit* EditLabel(int index);
    CEdit* GetEditControl() const; ///< null while no text is being edited
    CToolTipCtrl* GetToolTips() const;

private:
    // They lend the handles of what belongs to the list.
    mutable CHeaderCtrl m_header;
    mutable CEdit m_edit;
    mutable CToolTipCtrl m_toolTips;
};

/// A tab control.
class AFX_CLASS CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    int GetItemCount() const;
    int GetCurSel() const;
    BOOL GetItem(int index, TCITEMW* item) const;
    BOOL SetItem(int index, const TCITEMW* item);
};

/// The pair of arrows that counts the number in another control, its buddy, up and down.
class AFX_CLASS CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// The position, taken from the buddy's text where it shows it (UDS_SETBUDDYINT). Its high word is not 0 where that
    /// text is no number within the range.
    int GetPos() const;
    int GetPos32(BOOL* failed = nullptr) const;
    int SetPos(int position); ///< the position before
    int SetPos32(int position);
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
    int SetBase(int base); ///< 10 or 16; the base before, 0 for any other number
    UINT GetBase() const;
    /// How far it goes each time once an arrow has been held for how many seconds.
    BOOL SetAccel(int count, UDACCEL* steps);
    UINT GetAccel(int count, UDACCEL* steps) const;
    CWnd* SetBuddy(CWnd* buddy); ///< the buddy before
    CWnd* GetBuddy() const;
};

/// A status bar.
class AFX_CLASS CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// `rightEdges`: of each pane, in pixels; -1 for the bar's own.
    BOOL SetParts(int count, int* rightEdges);
    int GetParts(int count, int* rightEdges) const; ///< how many parts there are
    /// `type`: 0, or SBT_NOBORDERS, SBT_POPOUT and the like.
    BOOL SetText(LPCTSTR text, int pane, int type);
    CString GetText(int pane, int* type = nullptr) const;
    int GetTextLength(int pane, int* type = nullptr) const;
    BOOL GetRect(int pane, RECT* rect) const;
    BOOL SetSimple(BOOL simple = TRUE); ///< one text over all panes, that of the pane 255
    void SetMinHeight(int height);
};
