// The data exchange between a dialog's controls and its object.
#include <afxwin.h>

#include <cstdint>
#include <cwctype>
#include <optional>

#include "state.h"

namespace {
/// A whole number with an optional sign and blanks around it; nothing where the text is none or needs over 32 bits.
std::optional<int> ParseWhole(const CString& text)
{
    const wchar_t* at = text;
    while (iswspace(*at))
        ++at;
    const bool negative = *at == L'-';
    if (*at == L'-' || *at == L'+')
        ++at;
    if (*at < L'0' || *at > L'9')
        return std::nullopt;
    int64_t value = 0;
    for (; *at >= L'0' && *at <= L'9'; ++at) {
        value = value * 10 + (*at - L'0');
        if (value > int64_t{INT32_MAX} + 1)
            return std::nullopt;
    }
    while (iswspace(*at))
        ++at;
    value = negative ? -value : value;
    if (*at || value > INT32_MAX)
        return std::nullopt;
    return static_cast<int>(value);
}

CString TextOf(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

/// Leaves a control alone that shows the text already: its caret, its undo and its notifications stay as they are.
void ShowText(HWND control, const CString& text)
{
    if (!(TextOf(control) == text))
        SetWindowText(control, text);
}
} // namespace

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    const Restore<HWND> lockOut(AfxGetState().lockedOut, m_hWnd);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CException* refusal) {
        refusal->Delete();
        return FALSE;
    }
}

void CWnd::DoDataExchange(CDataExchange*) {}

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    if (!control)
        AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    const HWND control = PrepareCtrl(id);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        CString text;
        text.Format(L"%d", value);
        ShowText(control, text);
        return;
    }
    const std::optional<int> typed = ParseWhole(TextOf(control));
    if (!typed) {
        AfxMessageBox(AFX_IDP_PARSE_INT);
        exchange->Fail();
    }
    value = *typed;
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = TextOf(control);
    else
        ShowText(control, value);
}

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
        return;
    }
    const bool isCheckState = value >= BST_UNCHECKED && value <= BST_INDETERMINATE;
    ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(isCheckState ? value : BST_UNCHECKED), 0);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND button = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do {
        if (::SendMessage(button, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!exchange->m_bSaveAndValidate)
                ::SendMessage(button, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
            else if (::SendMessage(button, BM_GETCHECK, 0, 0) != BST_UNCHECKED)
                value = index;
            ++index;
        }
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button && !(GetWindowLong(button, GWL_STYLE) & WS_GROUP));
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, CB_GETCURSEL, 0, 0));
    else if (::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0) == CB_ERR)
        ::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(-1), 0); // not every system does it by itself
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd)
        return;
    const HWND window = exchange->PrepareCtrl(id);
    if (!control.SubclassWindow(window))
        AfxThrowNotSupportedException();
}
