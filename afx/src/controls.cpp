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
