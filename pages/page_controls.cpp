#include "pages/page_controls.h"

#include "frame/module.h"

namespace {
/// Adds the texts to the list where it is still empty.
template <class Text, class Load> void FillWith(const CWnd& page, int id, std::span<const Text> texts, Load load)
{
    const HWND list = ControlOf(page, id);
    if (!list || SendMessage(list, CB_GETCOUNT, 0, 0) > 0)
        return;
    for (const Text text : texts)
        SendMessage(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(load(text).GetString()));
}
} // namespace

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

void FillList(const CWnd& page, int id, std::span<const UINT> texts)
{
    FillWith(page, id, texts, LoadText);
}

void FillList(const CWnd& page, int id, std::span<const wchar_t* const> texts)
{
    FillWith(page, id, texts, [](const wchar_t* text) { return CString(text); });
}

void SelectIndex(const CWnd& page, int id, int index)
{
    if (const HWND list = ControlOf(page, id))
        SendMessage(list, CB_SETCURSEL, static_cast<WPARAM>(static_cast<INT_PTR>(index)), 0);
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

bool StoreNewSelection(const CWnd& page, int id, int& value)
{
    const int before = value;
    return StoreSelection(page, id, value) && value != before;
}

void ShowCheck(const CWnd& page, int id, bool checked)
{
    if (const HWND box = ControlOf(page, id))
        SendMessage(box, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void StoreCheck(const CWnd& page, int id, int& value, int unchecked, int checked)
{
    if (const HWND box = ControlOf(page, id))
        value = SendMessage(box, BM_GETCHECK, 0, 0) == BST_CHECKED ? checked : unchecked;
}

void ExchangeOnOff(CDataExchange* exchange, int id, int& value)
{
    if (exchange->m_bSaveAndValidate)
        StoreCheck(*exchange->m_pDlgWnd, id, value, kGougeCheckOff);
    else
        ShowCheck(*exchange->m_pDlgWnd, id, value != kGougeCheckOff);
}

void NotifySiblings(CPropertyPage& page, WPARAM code, int index)
{
    page.QuerySiblings(code, index);
}

void NotifySiblings(CPropertyPage& page, WPARAM code, const double& value)
{
    page.QuerySiblings(code, reinterpret_cast<LPARAM>(&value));
}

void ShareSelection(CPropertyPage& page, int id, int& value, WPARAM code)
{
    if (StoreSelection(page, id, value))
        NotifySiblings(page, code, value);
    page.SetModified();
}

void ShareNewSelection(CPropertyPage& page, int id, int& value, WPARAM code)
{
    if (StoreNewSelection(page, id, value))
        NotifySiblings(page, code, value);
    page.SetModified();
}
