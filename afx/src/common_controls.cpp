// The common controls: each call is one message, or the few that make up what it says.
#include <afxcmn.h>

#include "ask.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {
BOOL CreateControl(CWnd& control, LPCTSTR className, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return control.CreateEx(0, className, nullptr, style, rect, parent, id);
}
} // namespace

// ---- headers ----

int CHeaderCtrl::GetItemCount() const
{
    return Ask(*this, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int index, HDITEMW* item) const
{
    return Ask(*this, HDM_GETITEMW, Index(index), Address(item));
}

BOOL CHeaderCtrl::SetItem(int index, HDITEMW* item)
{
    return Ask(*this, HDM_SETITEMW, Index(index), Address(item));
}

BOOL CHeaderCtrl::GetItemRect(int index, RECT* rect) const
{
    return Ask(*this, HDM_GETITEMRECT, Index(index), Address(rect));
}

// ---- lists: columns ----

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateControl(*this, WC_LISTVIEWW, style, rect, parent, id);
}

int CListCtrl::InsertColumn(int index, const LVCOLUMNW* column)
{
    return Ask(*this, LVM_INSERTCOLUMNW, Index(index), Address(column));
}

int CListCtrl::InsertColumn(int index, LPCTSTR heading, int format, int width, int subItem)
{
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(heading);
    column.fmt = format;
    if (width != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = width;
    }
    if (subItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = subItem;
    }
    return InsertColumn(index, &column);
}

BOOL CListCtrl::DeleteColumn(int index)
{
    return Ask(*this, LVM_DELETECOLUMN, Index(index));
}

BOOL CListCtrl::GetColumn(int index, LVCOLUMNW* column) const
{
    return Ask(*this, LVM_GETCOLUMNW, Index(index), Address(column));
}

BOOL CListCtrl::SetColumn(int index, const LVCOLUMNW* column)
{
    return Ask(*this, LVM_SETCOLUMNW, Index(index), Address(column));
}

int CListCtrl::GetColumnWidth(int index) const
{
    return Ask(*this, LVM_GETCOLUMNWIDTH, Index(index));
}

BOOL CListCtrl::SetColumnWidth(int index, int width)
{
    return Ask(*this, LVM_SETCOLUMNWIDTH, Index(index), MAKELPARAM(width, 0));
}

BOOL CListCtrl::GetColumnOrderArray(int* order, int count) const
{
    const CHeaderCtrl* const header = count == -1 ? GetHeaderCtrl() : nullptr;
    return Ask(*this, LVM_GETCOLUMNORDERARRAY, Index(header ? header->GetItemCount() : count), Address(order));
}

BOOL CListCtrl::SetColumnOrderArray(int count, int* order)
{
    return Ask(*this, LVM_SETCOLUMNORDERARRAY, Index(count), Address(order));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return ObjectOf(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER)), m_header);
}

// ---- lists: rows ----

int CListCtrl::GetItemCount() const
{
    return Ask(*this, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int count)
{
    Ask(*this, LVM_SETITEMCOUNT, Index(count));
}

BOOL CListCtrl::SetItemCountEx(int count, DWORD flags)
{
    return Ask(*this, LVM_SETITEMCOUNT, Index(count), static_cast<LPARAM>(flags));
}

int CListCtrl::InsertItem(const LVITEMW* item)
{
    return Ask(*this, LVM_INSERTITEMW, 0, Address(item));
}

int CListCtrl::InsertItem(int index, LPCTSTR text)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = index;
    item.pszText = const_cast<LPTSTR>(text);
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int index)
{
    return Ask(*this, LVM_DELETEITEM, Index(index));
}

BOOL CListCtrl::DeleteAllItems()
{
    return Ask(*this, LVM_DELETEALLITEMS);
}

BOOL CListCtrl::GetItem(LVITEMW* item) const
{
    return Ask(*this, LVM_GETITEMW, 0, Address(item));
}

BOOL CListCtrl::SetItem(const LVITEMW* item)
{
    return Ask(*this, LVM_SETITEMW, 0, Address(item));
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    // The list does not tell how long a text is: it is whole once it leaves room.
    CString text;
    for (int capacity = 128;; capacity *= 2) {
        const int length = GetItemText(index, subItem, text.GetBuffer(capacity), capacity);
        text.ReleaseBuffer(length);
        if (length < capacity - 1)
            return text;
    }
}

int CListCtrl::GetItemText(int index, int subItem, LPTSTR text, int capacity) const
{
    LVITEMW item{};
    item.iSubItem = subItem;
    item.pszText = text;
    item.cchTextMax = capacity;
    return Ask(*this, LVM_GETITEMTEXTW, Index(index), Address(&item));
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text)
{
    LVITEMW item{};
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    return Ask(*this, LVM_SETITEMTEXTW, Index(index), Address(&item));
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    item.lParam = static_cast<LPARAM>(data);
    return SetItem(&item);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return Ask(*this, LVM_SORTITEMS, data, reinterpret_cast<LPARAM>(compare));
}

int CListCtrl::FindItem(LVFINDINFOW* info, int start) const
{
    return Ask(*this, LVM_FINDITEMW, Index(start), Address(info));
}

// ---- lists: states ----

UINT CListCtrl::GetItemState(int index, UINT mask) const
{
    return static_cast<UINT>(Ask(*this, LVM_GETITEMSTATE, Index(index), static_cast<LPARAM>(mask)));
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(index, &item);
}

BOOL CListCtrl::SetItemState(int index, LVITEMW* item)
{
    return Ask(*this, LVM_SETITEMSTATE, Index(index), Address(item));
}

// The box of a row is its state image: the first unchecked, the second checked.

BOOL CListCtrl::GetCheck(int index) const
{
    return GetItemState(index, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
}

BOOL CListCtrl::SetCheck(int index, BOOL check)
{
    return SetItemState(index, INDEXTOSTATEIMAGEMASK(check ? 2U : 1U), LVIS_STATEIMAGEMASK);
}

int CListCtrl::GetNextItem(int index, int flags) const
{
    return Ask(*this, LVM_GETNEXTITEM, Index(index), MAKELPARAM(flags, 0));
}

namespace {
/// A position is the row's index and one, so that null stands for the end.
POSITION PositionOf(int index)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(index) + 1);
}
} // namespace

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
    position = PositionOf(GetNextItem(index, LVNI_SELECTED));
    return index;
}

UINT CListCtrl::GetSelectedCount() const
{
    return static_cast<UINT>(Ask(*this, LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetSelectionMark()
{
    return Ask(*this, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int index)
{
    return Ask(*this, LVM_SETSELECTIONMARK, 0, index);
}

// ---- lists: what is seen ----

DWORD CListCtrl::GetExtendedStyle()
{
    return static_cast<DWORD>(Ask(*this, LVM_GETEXTENDEDLISTVIEWSTYLE));
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(Ask(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

BOOL CListCtrl::EnsureVisible(int index, BOOL partiallyOk)
{
    return Ask(*this, LVM_ENSUREVISIBLE, Index(index), MAKELPARAM(partiallyOk, 0));
}

int CListCtrl::GetTopIndex() const
{
    return Ask(*this, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return Ask(*this, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::RedrawItems(int first, int last)
{
    return Ask(*this, LVM_REDRAWITEMS, Index(first), last);
}

BOOL CListCtrl::Update(int index)
{
    return Ask(*this, LVM_UPDATE, Index(index));
}

BOOL CListCtrl::GetItemRect(int index, RECT* rect, UINT part) const
{
    rect->left = static_cast<LONG>(part);
    return Ask(*this, LVM_GETITEMRECT, Index(index), Address(rect));
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int part, CRect& rect)
{
    rect.top = subItem;
    rect.left = part;
    return Ask(*this, LVM_GETSUBITEMRECT, Index(index), Address<RECT>(&rect));
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const
{
    return Ask(*this, LVM_HITTEST, 0, Address(info));
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info{};
    info.pt = point;
    const int index = HitTest(&info);
    if (flags)
        *flags = info.flags;
    return index;
}

int CListCtrl::SubItemHitTest(LVHITTESTINFO* info)
{
    return Ask(*this, LVM_SUBITEMHITTEST, 0, Address(info));
}

CEdit* CListCtrl::EditLabel(int index)
{
    return ObjectOf(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, Index(index))), m_edit);
}

CEdit* CListCtrl::GetEditControl() const
{
    return ObjectOf(reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL)), m_edit);
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return ObjectOf(reinterpret_cast<HWND>(SendMessage(LVM_GETTOOLTIPS)), m_toolTips);
}

// ---- tabs ----

int CTabCtrl::GetItemCount() const
{
    return Ask(*this, TCM_GETITEMCOUNT);
}

int CTabCtrl::GetCurSel() const
{
    return Ask(*this, TCM_GETCURSEL);
}

BOOL CTabCtrl::GetItem(int index, TCITEMW* item) const
{
    return Ask(*this, TCM_GETITEMW, Index(index), Address(item));
}

BOOL CTabCtrl::SetItem(int index, const TCITEMW* item)
{
    return Ask(*this, TCM_SETITEMW, Index(index), Address(item));
}

// ---- tool tips ----

namespace {
/// What names a tool: a window by itself, or an area of one by its id.
TOOLINFOW ToolOf(const CWnd* window, UINT_PTR toolId)
{
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    if (toolId) {
        tool.hwnd = window->m_hWnd;
        tool.uId = toolId;
    } else {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = GetParent(window->m_hWnd);
        tool.uId = reinterpret_cast<UINT_PTR>(window->m_hWnd);
    }
    return tool;
}
} // namespace

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    const CRect anywhere(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);
    return CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | style, anywhere, parent, 0);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, LPCTSTR text, const RECT* area, UINT_PTR toolId)
{
    TOOLINFOW tool = ToolOf(window, toolId);
    tool.lpszText = const_cast<LPTSTR>(text);
    if (area)
        tool.rect = *area;
    return Ask(*this, TTM_ADDTOOLW, 0, Address(&tool));
}

BOOL CToolTipCtrl::AddTool(CWnd* window, UINT textId, const RECT* area, UINT_PTR toolId)
{
    CString text;
    text.LoadString(textId);
    return AddTool(window, text, area, toolId);
}

void CToolTipCtrl::DelTool(CWnd* window, UINT_PTR toolId)
{
    TOOLINFOW tool = ToolOf(window, toolId);
    Ask(*this, TTM_DELTOOLW, 0, Address(&tool));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR toolId)
{
    TOOLINFOW tool = ToolOf(window, toolId);
    tool.lpszText = const_cast<LPTSTR>(text);
    Ask(*this, TTM_UPDATETIPTEXTW, 0, Address(&tool));
}

void CToolTipCtrl::GetText(CString& text, CWnd* window, UINT_PTR toolId) const
{
    // The control does not tell how long its text is, and takes the capacity in wParam only from its sixth version on.
    constexpr int kCapacity = 1024;
    TOOLINFOW tool = ToolOf(window, toolId);
    tool.lpszText = text.GetBuffer(kCapacity);
    *tool.lpszText = L'\0';
    Ask(*this, TTM_GETTEXTW, kCapacity, Address(&tool));
    text.ReleaseBuffer();
}

int CToolTipCtrl::GetToolCount() const
{
    return Ask(*this, TTM_GETTOOLCOUNT);
}

void CToolTipCtrl::SetToolRect(CWnd* window, UINT_PTR toolId, const RECT* area)
{
    TOOLINFOW tool = ToolOf(window, toolId);
    tool.rect = *area;
    Ask(*this, TTM_NEWTOOLRECTW, 0, Address(&tool));
}

void CToolTipCtrl::RelayEvent(MSG* message)
{
    Ask(*this, TTM_RELAYEVENT, 0, Address(message));
}

void CToolTipCtrl::Activate(BOOL activate)
{
    Ask(*this, TTM_ACTIVATE, static_cast<WPARAM>(activate));
}

void CToolTipCtrl::Pop()
{
    Ask(*this, TTM_POP);
}

void CToolTipCtrl::SetDelayTime(UINT milliseconds)
{
    SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(milliseconds));
}

void CToolTipCtrl::SetDelayTime(DWORD which, int milliseconds)
{
    Ask(*this, TTM_SETDELAYTIME, which, MAKELPARAM(milliseconds, 0));
}

int CToolTipCtrl::SetMaxTipWidth(int width)
{
    return Ask(*this, TTM_SETMAXTIPWIDTH, 0, width);
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return Ask(*this, TTM_GETMAXTIPWIDTH);
}

// ---- status bars ----

BOOL CStatusBarCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateControl(*this, STATUSCLASSNAMEW, style, rect, parent, id);
}

BOOL CStatusBarCtrl::SetParts(int count, int* rightEdges)
{
    return Ask(*this, SB_SETPARTS, Index(count), Address(rightEdges));
}

int CStatusBarCtrl::GetParts(int count, int* rightEdges) const
{
    return Ask(*this, SB_GETPARTS, Index(count), Address(rightEdges));
}

BOOL CStatusBarCtrl::SetText(LPCTSTR text, int pane, int type)
{
    return Ask(*this, SB_SETTEXTW, Index(pane | type), Text(text));
}

CString CStatusBarCtrl::GetText(int pane, int* type) const
{
    const int length = GetTextLength(pane, type);
    CString text;
    Ask(*this, SB_GETTEXTW, Index(pane), Text(text.GetBuffer(length + 1)));
    text.ReleaseBuffer(length);
    return text;
}

int CStatusBarCtrl::GetTextLength(int pane, int* type) const
{
    const auto answer = static_cast<DWORD>(Ask(*this, SB_GETTEXTLENGTHW, Index(pane)));
    if (type)
        *type = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::GetRect(int pane, RECT* rect) const
{
    return Ask(*this, SB_GETRECT, Index(pane), Address(rect));
}

BOOL CStatusBarCtrl::SetSimple(BOOL simple)
{
    return Ask(*this, SB_SIMPLE, static_cast<WPARAM>(simple));
}

void CStatusBarCtrl::SetMinHeight(int height)
{
    Ask(*this, SB_SETMINHEIGHT, Index(height));
}

// ---- spin buttons ----

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateControl(*this, UPDOWN_CLASSW, style, rect, parent, id);
}

int CSpinButtonCtrl::GetPos() const
{
    return Ask(*this, UDM_GETPOS);
}

int CSpinButtonCtrl::GetPos32(BOOL* failed) const
{
    return Ask(*this, UDM_GETPOS32, 0, Address(failed));
}

int CSpinButtonCtrl::SetPos(int position)
{
    return static_cast<short>(Ask(*this, UDM_SETPOS, 0, MAKELPARAM(position, 0)));
}

int CSpinButtonCtrl::SetPos32(int position)
{
    return Ask(*this, UDM_SETPOS32, 0, position);
}

void CSpinButtonCtrl::SetRange(short lower, short upper)
{
    Ask(*this, UDM_SETRANGE, 0, MAKELPARAM(upper, lower));
}

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    Ask(*this, UDM_SETRANGE32, Index(lower), upper);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const auto range = static_cast<DWORD>(Ask(*this, UDM_GETRANGE));
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), Address(&upper));
}

int CSpinButtonCtrl::SetBase(int base)
{
    return Ask(*this, UDM_SETBASE, Index(base));
}

UINT CSpinButtonCtrl::GetBase() const
{
    return static_cast<UINT>(Ask(*this, UDM_GETBASE));
}

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* steps)
{
    return Ask(*this, UDM_SETACCEL, Index(count), Address(steps));
}

UINT CSpinButtonCtrl::GetAccel(int count, UDACCEL* steps) const
{
    return static_cast<UINT>(Ask(*this, UDM_GETACCEL, Index(count), Address(steps)));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy->m_hWnd))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY)));
}
