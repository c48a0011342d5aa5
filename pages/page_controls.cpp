#include "pages/page_controls.h"

#include "frame/module.h"

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
    const HWND list = ControlOf(page, id);
    if (!list || SendMessage(list, CB_GETCOUNT, 0, 0) > 0)
        return;
    for (const UINT text : texts)
        SendMessage(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(LoadText(text).GetString()));
}

void SelectIndex(const CWnd& page, int id, int index)
{
    if (const HWND list = ControlOf(page, id))
        SendMessage(list, CB_SETCURSEL, static_cast<WPARAM>(static_cast<INT_PTR>(index)), 0);
}

void StoreSelection(const CWnd& page, int id, int& value)
{
    const HWND list = ControlOf(page, id);
    const int index = list ? static_cast<int>(SendMessage(list, CB_GETCURSEL, 0, 0)) : CB_ERR;
    if (index >= 0)
        value = index;
}

void ShowCheck(const CWnd& page, int id, int value)
{
    if (const HWND box = ControlOf(page, id))
        SendMessage(box, BM_SETCHECK, value ? BST_CHECKED : BST_UNCHECKED, 0);
}

void StoreCheck(const CWnd& page, int id, int& value)
{
    if (const HWND box = ControlOf(page, id))
        value = SendMessage(box, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
}

void NotifySiblings(CPropertyPage& page, WPARAM code, int index)
{
    page.QuerySiblings(code, index);
}

void NotifySiblings(CPropertyPage& page, WPARAM code, const double& value)
{
    page.QuerySiblings(code, reinterpret_cast<LPARAM>(&value));
}
