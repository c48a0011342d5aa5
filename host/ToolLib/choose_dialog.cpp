#include "choose_dialog.h"

#include <commctrl.h>

#include "resource.h"

namespace toollib {
namespace {

HINSTANCE g_module = nullptr;

/// The middle column takes what the others leave.
constexpr std::array kColumnPercent{15, 55, 30};

/// One showing of a list.
class ChooseDialog {
public:
    explicit ChooseDialog(const ChooseList& list) : m_list(list) {}

    std::optional<size_t> Show()
    {
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
        AddColumns();
        for (size_t row = 0; row < m_list.rows.size(); ++row)
            AddRow(static_cast<int>(row));
        if (m_list.selected)
            Select(static_cast<int>(*m_list.selected));
        EnableOk();
        SetFocus(List());
        return FALSE; // the focus is set
    }

    void AddColumns()
    {
        RECT client{};
        GetClientRect(List(), &client);
        const int width = static_cast<int>(client.right) - GetSystemMetrics(SM_CXVSCROLL);
        for (size_t column = 0; column < ChooseList::kColumns; ++column) {
            LVCOLUMNW item{};
            item.mask = LVCF_TEXT | LVCF_WIDTH;
            item.cx = width * kColumnPercent[column] / 100;
            item.pszText = const_cast<LPWSTR>(m_list.headings[column].c_str());
            SendMessageW(List(), LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&item));
        }
    }

    void AddRow(int row)
    {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        const ChooseList::Texts& texts = m_list.rows[static_cast<size_t>(row)];
        for (size_t column = 0; column < texts.size(); ++column) {
            item.iSubItem = static_cast<int>(column);
            item.pszText = const_cast<LPWSTR>(texts[column].c_str());
            SendMessageW(List(), column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }

    void Select(int row)
    {
        ListView_SetItemState(List(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(List(), row, FALSE);
    }

    int SelectedRow() const { return ListView_GetNextItem(List(), -1, LVNI_SELECTED); }

    void EnableOk() { EnableWindow(GetDlgItem(m_window, IDOK), SelectedRow() >= 0); }

    BOOL OnCommand(int id)
    {
        if (id == IDOK)
            Accept();
        else if (id == IDCANCEL)
            EndDialog(m_window, IDCANCEL);
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
        if (notice.code == static_cast<UINT>(LVN_ITEMCHANGED))
            EnableOk();
        return FALSE;
    }

    void Accept()
    {
        const int row = SelectedRow();
        if (row < 0)
            return;
        m_chosen = static_cast<size_t>(row);
        EndDialog(m_window, IDOK);
    }

    const ChooseList& m_list;
    HWND m_window = nullptr;
    std::optional<size_t> m_chosen;
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
