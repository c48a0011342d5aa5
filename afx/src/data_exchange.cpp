// The data exchange between a dialog's controls and its object.
#include <afxwin.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cwctype>
#include <limits>
#include <optional>
#include <string>

#include "state.h"

namespace {
bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// A whole number with an optional sign and blanks around it; nothing where the text is none or the type cannot hold
/// it.
template <class Number> std::optional<Number> ParseWhole(const wchar_t* at)
{
    using Limits = std::numeric_limits<Number>;
    while (iswspace(*at))
        ++at;
    const bool negative = *at == L'-';
    if (*at == L'-' || *at == L'+')
        ++at;
    if (!IsDigit(*at))
        return std::nullopt;
    // The largest amount that the type holds, of its own sign.
    const uint64_t most = negative ? (Limits::is_signed ? static_cast<uint64_t>(Limits::max()) + 1 : 0) : Limits::max();
    uint64_t amount = 0;
    for (; IsDigit(*at); ++at) {
        const auto digit = static_cast<uint64_t>(*at - L'0');
        if (amount > (most - digit) / 10 || digit > most)
            return std::nullopt;
        amount = amount * 10 + digit;
    }
    while (iswspace(*at))
        ++at;
    if (*at)
        return std::nullopt;
    return static_cast<Number>(negative ? ~amount + 1 : amount);
}

/// A number with an optional sign, decimals, an exponent, and blanks around it, whatever the language; nothing where
/// the text is none or the type cannot hold it.
template <class Number> std::optional<Number> ParseReal(const wchar_t* at)
{
    while (iswspace(*at))
        ++at;
    std::string text;
    const bool isPlus = *at == L'+';
    at += isPlus ? 1 : 0;
    for (; *at && !iswspace(*at); ++at)
        text += *at < 128 ? static_cast<char>(*at) : '?';
    while (iswspace(*at))
        ++at;
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    const bool isNumber = error == std::errc{} && stop == end && std::isfinite(value);
    if (!isNumber || *at || (isPlus && text.front() == '-'))
        return std::nullopt;
    return value;
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

namespace {
[[noreturn]] void Refuse(CDataExchange& exchange, UINT promptId)
{
    AfxMessageBox(promptId);
    exchange.Fail();
}

template <class Number> void ExchangeWhole(CDataExchange& exchange, int id, Number& value, UINT promptId)
{
    const HWND control = exchange.PrepareEditCtrl(id);
    if (!exchange.m_bSaveAndValidate) {
        ShowText(control, std::to_wstring(value).c_str());
        return;
    }
    const std::optional<Number> typed = ParseWhole<Number>(TextOf(control));
    if (!typed)
        Refuse(exchange, promptId);
    value = *typed;
}

template <class Number> void ExchangeReal(CDataExchange& exchange, int id, Number& value)
{
    const HWND control = exchange.PrepareEditCtrl(id);
    if (!exchange.m_bSaveAndValidate) {
        CString text;
        text.Format(L"%.*g", std::numeric_limits<Number>::digits10, double{value});
        ShowText(control, text);
        return;
    }
    const std::optional<Number> typed = ParseReal<Number>(TextOf(control));
    if (!typed)
        Refuse(exchange, AFX_IDP_PARSE_REAL);
    value = *typed;
}
} // namespace

void DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_BYTE);
}

void DDX_Text(CDataExchange* exchange, int id, short& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, long& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value)
{
    ExchangeWhole(*exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    ExchangeReal(*exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, double& value)
{
    ExchangeReal(*exchange, id, value);
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

namespace {
/// The messages of a list, which are those of another kind of list under other numbers.
struct ListMessages {
    UINT getSelection;
    UINT setSelection;
    UINT select; ///< the first item that begins with a text
    UINT findExact;
};
constexpr ListMessages kComboBox{CB_GETCURSEL, CB_SETCURSEL, CB_SELECTSTRING, CB_FINDSTRINGEXACT};
constexpr ListMessages kListBox{LB_GETCURSEL, LB_SETCURSEL, LB_SELECTSTRING, LB_FINDSTRINGEXACT};

LRESULT Select(HWND list, const ListMessages& messages, LRESULT index)
{
    return ::SendMessage(list, messages.setSelection, static_cast<WPARAM>(index), 0);
}

void ExchangeIndex(CDataExchange& exchange, int id, int& index, const ListMessages& messages)
{
    const HWND list = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(list, messages.getSelection, 0, 0));
    else if (Select(list, messages, index) == CB_ERR)
        Select(list, messages, -1); // not every system does it by itself
}

bool SelectText(HWND list, const ListMessages& messages, const CString& text, bool isExact)
{
    const UINT message = isExact ? messages.findExact : messages.select;
    const LRESULT found =
        ::SendMessage(list, message, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.GetString()));
    if (isExact || found == CB_ERR)
        Select(list, messages, found);
    return found != CB_ERR;
}

void ExchangeListText(CDataExchange& exchange, int id, CString& value, bool isExact)
{
    const HWND list = exchange.PrepareCtrl(id);
    if (!exchange.m_bSaveAndValidate) {
        SelectText(list, kListBox, value, isExact);
        return;
    }
    const auto index = static_cast<WPARAM>(::SendMessage(list, LB_GETCURSEL, 0, 0));
    const LRESULT length = ::SendMessage(list, LB_GETTEXTLEN, index, 0);
    value.Empty();
    if (length > 0) {
        ::SendMessage(list, LB_GETTEXT, index, reinterpret_cast<LPARAM>(value.GetBuffer(static_cast<int>(length) + 1)));
        value.ReleaseBuffer(static_cast<int>(length));
    }
}

void ExchangeComboText(CDataExchange& exchange, int id, CString& value, bool isExact)
{
    const HWND combo = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate)
        value = TextOf(combo);
    else if (!SelectText(combo, kComboBox, value, isExact))
        SetWindowText(combo, value); // a list without an edit takes none
}
} // namespace

void DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    ExchangeIndex(*exchange, id, index, kComboBox);
}

void DDX_LBIndex(CDataExchange* exchange, int id, int& index)
{
    ExchangeIndex(*exchange, id, index, kListBox);
}

void DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeListText(*exchange, id, value, false);
}

void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeListText(*exchange, id, value, true);
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeComboText(*exchange, id, value, false);
}

void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeComboText(*exchange, id, value, true);
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd)
        return;
    const HWND window = exchange->PrepareCtrl(id);
    if (!control.SubclassWindow(window))
        AfxThrowNotSupportedException();
}

namespace {
/// Refuses a value out of bounds; it is in no bounds where it is no number.
template <class Number>
void CheckRange(CDataExchange& exchange, Number value, Number low, Number high, UINT promptId, LPCTSTR format)
{
    if (!exchange.m_bSaveAndValidate || (low <= value && value <= high))
        return;
    CString least;
    CString most;
    least.Format(format, low);
    most.Format(format, high);
    CString prompt;
    AfxFormatString2(prompt, promptId, least, most);
    AfxMessageBox(prompt, MB_ICONEXCLAMATION, promptId);
    exchange.Fail();
}

void CheckWhole(CDataExchange& exchange, LONGLONG value, LONGLONG low, LONGLONG high)
{
    CheckRange(exchange, value, low, high, AFX_IDP_PARSE_INT_RANGE, L"%I64d");
}

void CheckUnsigned(CDataExchange& exchange, ULONGLONG value, ULONGLONG low, ULONGLONG high)
{
    CheckRange(exchange, value, low, high, AFX_IDP_PARSE_INT_RANGE, L"%I64u");
}
} // namespace

void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE low, BYTE high)
{
    CheckUnsigned(*exchange, value, low, high);
}

void DDV_MinMaxShort(CDataExchange* exchange, short value, short low, short high)
{
    CheckWhole(*exchange, value, low, high);
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int low, int high)
{
    CheckWhole(*exchange, value, low, high);
}

void DDV_MinMaxLong(CDataExchange* exchange, long value, long low, long high)
{
    CheckWhole(*exchange, value, low, high);
}

void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT low, UINT high)
{
    CheckUnsigned(*exchange, value, low, high);
}

void DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD low, DWORD high)
{
    CheckUnsigned(*exchange, value, low, high);
}

void DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG low, LONGLONG high)
{
    CheckWhole(*exchange, value, low, high);
}

void DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG low, ULONGLONG high)
{
    CheckUnsigned(*exchange, value, low, high);
}

void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float low, float high)
{
    constexpr UINT promptId = AFX_IDP_PARSE_REAL_RANGE;
    CheckRange<double>(*exchange, value, low, high, promptId, L"%.6g");
}

void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double low, double high)
{
    CheckRange(*exchange, value, low, high, AFX_IDP_PARSE_REAL_RANGE, L"%.15g");
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count)
{
    if (!exchange->m_bSaveAndValidate) {
        if (exchange->m_hWndLastControl && exchange->m_bEditLastControl)
            ::SendMessage(exchange->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(count), 0);
        return;
    }
    if (value.GetLength() <= count)
        return;
    CString prompt;
    AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, std::to_wstring(count).c_str());
    AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
    exchange->Fail();
}
