#include "choose_dialog.h"

#include <commctrl.h>

#include <algorithm>

#include "resource.h"

namespace toollib {
namespace {

HINSTANCE g_module = nullptr;

/// One showing of a list.
class ChooseDialog {
public:
    explicit ChooseDialog(const ChooseList& list) : m_list(list) {}

    std::optional<size_t> Show()
    {
        m_wanted = m_list.selected;
        const INT_PTR result = DialogBoxParamW(g_module, MAKEINTRESOURCEW(IDD_CHOOSE), GetActiveWindow(), Procedure,
                                               reinterpret_cast<LPARAM>(this));
        return result == IDOK ? m_chosen : std::nullopt;
    }

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrW(window, DWLP_USER, lParam);
            auto* const self = reinterpret_cast<ChooseDialog*>(lParam);
            self->m_window = window;
            return self->OnInit();
        }
        auto* const self = reinterpret_cast<ChooseDialog*>(GetWindowLongPtrW(window, DWLP_USER));
        if (self && message == WM_COMMAND)
            return self->OnCommand(LOWORD(wParam));
        if (self && message == WM_NOTIFY)
            return self->OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        return FALSE;
    }

    HWND List() const { return GetDlgItem(m_window, IDC_CHOOSE_LIST); }

    BOOL OnInit()
    {
        SetWindowTextW(m_window, m_list.title.c_str());
        ListView_SetExtendedListViewStyle(List(), LVS_EX_FULLROWSELECT);
        ShowFilter();
        AddColumns();
        Fill();
        CentreOverOwner();
        SetFocus(List());
        return FALSE; // the focus is set
    }

    /// In the middle of its owner, as far as the display has room there.
    void CentreOverOwner() const
    {
        const HWND owner = GetWindow(m_window, GW_OWNER);
        MONITORINFO display{};
        display.cbSize = sizeof display;
        RECT around;
        RECT own;
        if (!owner || !GetWindowRect(owner, &around) || !GetWindowRect(m_window, &own) ||
            !GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &display))
            return;
        const RECT& area = display.rcWork;
        const LONG width = own.right - own.left;
        const LONG height = own.bottom - own.top;
        const LONG left = (around.left + around.right - width) / 2;
        const LONG top = (around.top + around.bottom - height) / 2;
        SetWindowPos(m_window, nullptr, std::max(area.left, std::min(left, area.right - width)),
                     std::max(area.top, std::min(top, area.bottom - height)), 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void ShowFilter()
    {
        if (!m_list.filter)
            return;
        const HWND box = GetDlgItem(m_window, IDC_CHOOSE_FILTER);
        SetWindowTextW(box, m_list.filter->text.c_str());
        CheckDlgButton(m_window, IDC_CHOOSE_FILTER, m_list.filter->isOn ? BST_CHECKED : BST_UNCHECKED);
        ShowWindow(box, SW_SHOW);
    }

    bool IsFilterOn() const { return IsDlgButtonChecked(m_window, IDC_CHOOSE_FILTER) == BST_CHECKED; }

    void AddColumns()
    {
        RECT client{};
        GetClientRect(List(), &client);
        const int width = static_cast<int>(client.right) - GetSystemMetrics(SM_CXVSCROLL);
        for (size_t column = 0; column < m_list.columns.size(); ++column) {
            LVCOLUMNW item{};
            item.mask = LVCF_TEXT | LVCF_WIDTH;
            item.cx = width * m_list.columns[column].percent / 100;
            item.pszText = const_cast<LPWSTR>(m_list.columns[column].heading.c_str());
            SendMessageW(List(), LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&item));
        }
    }

    /// Shows the rows that the filter lets through. What was selected stays so, and is so again when it comes back.
    void Fill()
    {
        m_isFilling = true;
        const bool filtered = IsFilterOn();
        SendMessageW(List(), WM_SETREDRAW, FALSE, 0);
        ListView_DeleteAllItems(List());
        for (size_t row = 0; row < m_list.rows.size(); ++row)
            if (!filtered || m_list.rows[row].passesFilter)
                Append(row);
        SendMessageW(List(), WM_SETREDRAW, TRUE, 0);
        m_isFilling = false;
        EnableOk();
    }

    void Append(size_t row)
    {
        LVITEMW item{};
        item.iItem = ListView_GetItemCount(List());
        const std::vector<std::wstring>& texts = m_list.rows[row].texts;
        for (size_t column = 0; column < texts.size(); ++column) {
            item.mask = column == 0 ? LVIF_TEXT | LVIF_PARAM : LVIF_TEXT;
            item.lParam = static_cast<LPARAM>(row);
            item.iSubItem = static_cast<int>(column);
            item.pszText = const_cast<LPWSTR>(texts[column].c_str());
            SendMessageW(List(), column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        if (row == m_wanted)
            Select(item.iItem);
    }

    void Select(int item)
    {
        ListView_SetItemState(List(), item, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(List(), item, FALSE);
    }

    std::optional<size_t> SelectedRow() const
    {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        item.iItem = ListView_GetNextItem(List(), -1, LVNI_SELECTED);
        if (item.iItem < 0 || !SendMessageW(List(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
            return std::nullopt;
        return static_cast<size_t>(item.lParam);
    }

    void EnableOk() { EnableWindow(GetDlgItem(m_window, IDOK), SelectedRow().has_value()); }

    BOOL OnCommand(int id)
    {
        if (id == IDOK)
            Accept();
        else if (id == IDCANCEL)
            EndDialog(m_window, IDCANCEL);
        else if (id == IDC_CHOOSE_FILTER)
            TurnFilter();
        else
            return FALSE;
        return TRUE;
    }

    BOOL OnNotify(const NMHDR& notice)
    {
        if (notice.idFrom != IDC_CHOOSE_LIST)
            return FALSE;
        if (notice.code == static_cast<UINT>(NM_DBLCLK))
            Accept();
        if (notice.code == static_cast<UINT>(LVN_ITEMCHANGED) && !m_isFilling)
            TakeSelection();
        return FALSE;
    }

    void TakeSelection()
    {
        if (const std::optional<size_t> row = SelectedRow())
            m_wanted = row;
        EnableOk();
    }

    void TurnFilter()
    {
        m_list.filter->onTurn(IsFilterOn());
        Fill();
    }

    void Accept()
    {
        m_chosen = SelectedRow();
        if (m_chosen)
            EndDialog(m_window, IDOK);
    }

    const ChooseList& m_list;
    HWND m_window = nullptr;
    std::optional<size_t> m_wanted; ///< the row to be selected, shown or not
    std::optional<size_t> m_chosen;
    bool m_isFilling = false;
};

} // namespace

std::optional<size_t> Choose(const ChooseList& list)
{
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    return ChooseDialog(list).Show();
}

std::wstring LoadText(UINT id)
{
    const wchar_t* text = nullptr;
    const int length = LoadStringW(g_module, id, reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

} // namespace toollib

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        toollib::g_module = instance;
    return TRUE;
}
