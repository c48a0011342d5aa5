#include "pages/page_controls.h"

#include <cwchar>
#include <cwctype>
#include <utility>

#include "expr/refusals.h"
#include "frame/help_viewer.h"
#include "frame/module.h"

namespace pelmar {
namespace {

void ExchangeChecked(CDataExchange* exchange, const void* record, const Control& control, double& value)
{
    const Option& checked = control.checkedInstead ? *control.checkedInstead : *control.option;
    const Range range = control.range.value_or(checked.range);
    DDX_Expression(exchange, control.id, value);
    DDV_ExpressionRange(exchange, control.checkedInstead ? checked.Real(record) : value, range.low, range.high);
}

/// Exchanges a real. The field keeps its value until the new one has passed its check.
void ExchangeReal(CDataExchange* exchange, void* record, const Control& control)
{
    double value = control.option->Real(record);
    ExchangeChecked(exchange, record, control, value);
    control.option->real(record) = value;
}

bool IsRefused(CWnd& page, const void* record, const Control& control)
{
    const SilentRefusals silent;
    CDataExchange taking(&page, TRUE);
    double value = control.option->Real(record);
    try {
        ExchangeChecked(&taking, record, control, value);
        return false;
    } catch (CUserException* refusal) {
        refusal->Delete();
        return true;
    }
}

bool IsWholeNumber(const wchar_t* text)
{
    wchar_t* end = nullptr;
    const long long value = std::wcstoll(text, &end, 10);
    if (end == text || !std::in_range<int>(value))
        return false;
    while (std::iswspace(*end))
        ++end;
    return !*end;
}

/// The framework's exchange always says what it refuses.
void ExchangeWhole(CDataExchange* exchange, int& value, int id)
{
    if (exchange->m_bSaveAndValidate && SilentRefusals::AreOn()) {
        if (!IsWholeNumber(TextOf(*exchange->m_pDlgWnd->GetDlgItem(id))))
            AfxThrowUserException();
    }
    const SilentRefusals meanwhile; // a prompt is one: what comes in below it asks nothing
    DDX_Text(exchange, id, value);
}

void ExchangeSwitch(CDataExchange* exchange, int& value, const Control& control)
{
    const SwitchValues& values = control.option->switchValues;
    if (control.isExchangedAsItStands || (values.on == 1 && values.off == 0))
        DDX_Check(exchange, control.id, value);
    else if (exchange->m_bSaveAndValidate)
        value = IsChecked(*exchange->m_pDlgWnd, control.id) ? values.on : values.off;
    else
        ShowCheck(*exchange->m_pDlgWnd, control.id, control.option->IsOn(value));
}

void ExchangeControl(CDataExchange* exchange, void* record, const Control& control)
{
    if (control.option->real) {
        ExchangeReal(exchange, record, control);
        return;
    }
    int& value = control.option->whole(record);
    if (control.kind == ControlKind::List)
        DDX_CBIndex(exchange, control.id, value);
    else if (control.kind == ControlKind::Check)
        ExchangeSwitch(exchange, value, control);
    else
        ExchangeWhole(exchange, value, control.id);
}

} // namespace

CString TextOfChoice(const ChoiceText& text)
{
    return text.literal ? CString(text.literal) : LoadText(text.id);
}

CString TextOf(const CWnd& control)
{
    CString text;
    control.GetWindowText(text);
    return text;
}

void EnableControl(const CWnd& page, int id, bool enable)
{
    if (const HWND control = ControlOf(page, id))
        EnableWindow(control, enable);
}

void HideControl(const CWnd& page, int id)
{
    if (const HWND control = ControlOf(page, id))
        ShowWindow(control, SW_HIDE);
}

void FillList(const CWnd& page, int id, ChoiceTexts texts)
{
    const HWND list = ControlOf(page, id);
    if (!list || SendMessage(list, CB_GETCOUNT, 0, 0) > 0)
        return;
    for (const ChoiceText& text : texts)
        SendMessage(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(TextOfChoice(text).GetString()));
}

void SelectIndex(const CWnd& page, int id, int index)
{
    const HWND list = ControlOf(page, id);
    if (!list)
        return;
    // Not every system lets go of the old selection by itself where there is no such item.
    if (SendMessage(list, CB_SETCURSEL, static_cast<WPARAM>(static_cast<INT_PTR>(index)), 0) == CB_ERR)
        SendMessage(list, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
}

std::optional<int> SelectedIndex(const CWnd& page, int id)
{
    const HWND list = ControlOf(page, id);
    const LRESULT index = list ? SendMessage(list, CB_GETCURSEL, 0, 0) : CB_ERR;
    if (index < 0)
        return std::nullopt;
    return static_cast<int>(index);
}

bool StoreSelection(const CWnd& page, int id, int& value)
{
    const std::optional<int> index = SelectedIndex(page, id);
    value = index.value_or(value);
    return index.has_value();
}

void ShowCheck(const CWnd& page, int id, bool checked)
{
    if (const HWND box = ControlOf(page, id))
        SendMessage(box, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool IsChecked(const CWnd& page, int id)
{
    const HWND box = ControlOf(page, id);
    return box && SendMessage(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void ExchangeControls(CDataExchange* exchange, void* record, std::span<const Control> controls)
{
    for (const Control& control : controls)
        if (control.isExchanged && ControlOf(*exchange->m_pDlgWnd, control.id))
            ExchangeControl(exchange, record, control);
}

void ShowInPlaceOfRefused(CWnd& page, const void* record, std::span<const Control> controls)
{
    for (const Control& control : controls) {
        const bool isReal = control.isExchanged && control.option->real;
        if (!isReal || !ControlOf(page, control.id) || !IsRefused(page, record, control))
            continue;
        CDataExchange showing(&page, FALSE);
        double value = control.option->Real(record);
        DDX_Expression(&showing, control.id, value);
    }
}

ExpressionEdits AttachExpressionEdits(CWnd& page, std::span<const Control> controls)
{
    ExpressionEdits edits;
    for (const Control& control : controls) {
        if (control.attached == Attached::None)
            continue;
        if (control.attached == Attached::Real)
            edits.push_back(std::make_unique<CExpEqEdit>());
        else
            edits.push_back(std::make_unique<CExpEqEditInt>());
        edits.back()->SubclassDlgItem(static_cast<unsigned>(control.id), &page);
    }
    return edits;
}

void FillLists(const CWnd& page, std::span<const Control> controls)
{
    for (const Control& control : controls)
        if (control.kind == ControlKind::List)
            FillList(page, control.id, control.choices);
}

void ShowKept(const CWnd& page, const void* record, std::span<const Control> controls)
{
    for (const Control& control : controls) {
        if (!control.isKept)
            continue;
        const int value = control.option->Whole(record);
        const int first = control.option->firstChoice;
        if (control.kind == ControlKind::List)
            SelectIndex(page, control.id, value < first ? -1 : value - first);
        else
            ShowCheck(page, control.id, control.option->IsOn(value));
    }
}

void ShowHelp(const CWnd& window, CPoint position, const char* general, std::span<const Control> controls)
{
    const char* topic = general;
    if (const std::optional<INT_PTR> pointedAt = EndHelpMode(window, position))
        for (const Control& control : controls)
            if (control.id == *pointedAt && control.topic)
                topic = control.topic;
    ShowTopic(window, topic);
}

} // namespace pelmar
