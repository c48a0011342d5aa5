// The controls: each call is one message.
#include "ask.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)

int CButton::GetCheck() const
{
    return Ask(*this, BM_GETCHECK);
}

void CButton::SetCheck(int check)
{
    Ask(*this, BM_SETCHECK, Index(check));
}

HICON CButton::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

HICON CButton::GetIcon() const
{
    return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON));
}

void CEdit::LimitText(int characters)
{
    Ask(*this, EM_LIMITTEXT, Index(characters));
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    Ask(*this, EM_SETSEL, Index(start), end);
    if (!noScroll)
        Ask(*this, EM_SCROLLCARET);
}

void CEdit::GetSel(int& start, int& end) const
{
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), Address(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo)
{
    Ask(*this, EM_REPLACESEL, static_cast<WPARAM>(canUndo), Text(text));
}

BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return Ask(*this, EM_SETREADONLY, static_cast<WPARAM>(readOnly));
}

BOOL CEdit::GetModify() const
{
    return Ask(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL modified)
{
    Ask(*this, EM_SETMODIFY, static_cast<WPARAM>(modified));
}

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, L"COMBOBOX", nullptr, style, rect, parent, id);
}

int CComboBox::GetCount() const
{
    return Ask(*this, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return Ask(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int index)
{
    return Ask(*this, CB_SETCURSEL, Index(index));
}

int CComboBox::AddString(LPCTSTR text)
{
    return Ask(*this, CB_ADDSTRING, 0, Text(text));
}

void CComboBox::ResetContent()
{
    Ask(*this, CB_RESETCONTENT);
}

void CComboBox::GetLBText(int index, CString& text) const
{
    const int length = Ask(*this, CB_GETLBTEXTLEN, Index(index));
    if (length >= 0)
        Ask(*this, CB_GETLBTEXT, Index(index), Text(text.GetBuffer(length)));
    text.ReleaseBuffer(length < 0 ? 0 : length);
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, Index(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return Ask(*this, CB_SETITEMDATA, Index(index), static_cast<LPARAM>(data));
}

int CComboBox::FindStringExact(int start, LPCTSTR text) const
{
    return Ask(*this, CB_FINDSTRINGEXACT, Index(start), Text(text));
}

int CComboBox::Dir(UINT attributes, LPCTSTR pattern)
{
    return Ask(*this, CB_DIR, attributes, Text(pattern));
}

int CComboBox::InsertString(int index, LPCTSTR text)
{
    return Ask(*this, CB_INSERTSTRING, Index(index), Text(text));
}

int CComboBox::DeleteString(int index)
{
    return Ask(*this, CB_DELETESTRING, Index(index));
}

int CComboBox::GetLBText(int index, LPTSTR text) const
{
    return Ask(*this, CB_GETLBTEXT, Index(index), Text(text));
}

int CComboBox::GetLBTextLen(int index) const
{
    return Ask(*this, CB_GETLBTEXTLEN, Index(index));
}

void* CComboBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(GetItemData(index));
}

int CComboBox::SetItemDataPtr(int index, void* data)
{
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
}

int CComboBox::FindString(int start, LPCTSTR text) const
{
    return Ask(*this, CB_FINDSTRING, Index(start), Text(text));
}

int CComboBox::InitStorage(int items, UINT bytes)
{
    return Ask(*this, CB_INITSTORAGE, Index(items), static_cast<LPARAM>(bytes));
}

int CComboBox::SelectString(int start, LPCTSTR text)
{
    return Ask(*this, CB_SELECTSTRING, Index(start), Text(text));
}

BOOL CComboBox::LimitText(int characters)
{
    return Ask(*this, CB_LIMITTEXT, Index(characters));
}

DWORD CComboBox::GetEditSel() const
{
    return static_cast<DWORD>(Ask(*this, CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int start, int end)
{
    return Ask(*this, CB_SETEDITSEL, 0, MAKELPARAM(start, end));
}

void CComboBox::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CComboBox::Copy()
{
    Ask(*this, WM_COPY);
}

void CComboBox::Cut()
{
    Ask(*this, WM_CUT);
}

void CComboBox::Paste()
{
    Ask(*this, WM_PASTE);
}

void CComboBox::ShowDropDown(BOOL show)
{
    Ask(*this, CB_SHOWDROPDOWN, static_cast<WPARAM>(show));
}

BOOL CComboBox::GetDroppedState() const
{
    return Ask(*this, CB_GETDROPPEDSTATE);
}

void CComboBox::GetDroppedControlRect(RECT* rect) const
{
    Ask(*this, CB_GETDROPPEDCONTROLRECT, 0, Address(rect));
}

int CComboBox::GetDroppedWidth() const
{
    return Ask(*this, CB_GETDROPPEDWIDTH);
}

int CComboBox::SetDroppedWidth(UINT width)
{
    return Ask(*this, CB_SETDROPPEDWIDTH, width);
}

int CComboBox::GetItemHeight(int index) const
{
    return Ask(*this, CB_GETITEMHEIGHT, Index(index));
}

int CComboBox::SetItemHeight(int index, UINT height)
{
    return Ask(*this, CB_SETITEMHEIGHT, Index(index), static_cast<LPARAM>(height));
}

int CComboBox::GetTopIndex() const
{
    return Ask(*this, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int index)
{
    return Ask(*this, CB_SETTOPINDEX, Index(index));
}

UINT CComboBox::GetHorizontalExtent() const
{
    return static_cast<UINT>(Ask(*this, CB_GETHORIZONTALEXTENT));
}

void CComboBox::SetHorizontalExtent(UINT width)
{
    Ask(*this, CB_SETHORIZONTALEXTENT, width);
}

BOOL CComboBox::GetExtendedUI() const
{
    return Ask(*this, CB_GETEXTENDEDUI);
}

int CComboBox::SetExtendedUI(BOOL extended)
{
    return Ask(*this, CB_SETEXTENDEDUI, static_cast<WPARAM>(extended));
}

BOOL CComboBox::GetComboBoxInfo(COMBOBOXINFO* info) const
{
    return ::GetComboBoxInfo(m_hWnd, info);
}

LCID CComboBox::GetLocale() const
{
    return static_cast<LCID>(Ask(*this, CB_GETLOCALE));
}

LCID CComboBox::SetLocale(LCID locale)
{
    return static_cast<LCID>(Ask(*this, CB_SETLOCALE, locale));
}

int CListBox::GetCount() const
{
    return Ask(*this, LB_GETCOUNT);
}

int CListBox::GetCurSel() const
{
    return Ask(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int index)
{
    return Ask(*this, LB_SETCURSEL, Index(index));
}

int CListBox::AddString(LPCTSTR text)
{
    return Ask(*this, LB_ADDSTRING, 0, Text(text));
}

DWORD_PTR CListBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, Index(index)));
}

int CListBox::SetItemData(int index, DWORD_PTR data)
{
    return Ask(*this, LB_SETITEMDATA, Index(index), static_cast<LPARAM>(data));
}

int CListBox::InsertString(int index, LPCTSTR text)
{
    return Ask(*this, LB_INSERTSTRING, Index(index), Text(text));
}

int CListBox::DeleteString(UINT index)
{
    return Ask(*this, LB_DELETESTRING, index);
}

void CListBox::ResetContent()
{
    Ask(*this, LB_RESETCONTENT);
}

int CListBox::FindStringExact(int start, LPCTSTR text) const
{
    return Ask(*this, LB_FINDSTRINGEXACT, Index(start), Text(text));
}

void CListBox::GetText(int index, CString& text) const
{
    const int length = Ask(*this, LB_GETTEXTLEN, Index(index));
    if (length >= 0)
        Ask(*this, LB_GETTEXT, Index(index), Text(text.GetBuffer(length)));
    text.ReleaseBuffer(length < 0 ? 0 : length);
}
