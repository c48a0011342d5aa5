#include "PelmarDlgs/dialogs/settings_review.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <afxdlgs.h>

#include "PelmarDlgs/settings_locations.h"
#include "dialogs/anchors.h"
#include "dialogs/key_controls.h"
#include "dialogs/live_records.h"
#include "dialogs/review_file.h"
#include "dialogs/review_memory.h"
#include "dialogs/review_words.h"
#include "dialogs/settings_review_controls.h"
#include "frame/display.h"
#include "frame/module.h"
#include "pages/page_controls.h"
#include "resources/resource.h"
#include "review/listing.h"

using namespace pelmar;

static_assert(int{CSettingsReviewDlg::IDD} == IDD_SETTINGS_REVIEW);

namespace {

using review::Column;
using review::Listing;
using review::ListingRow;

constexpr UINT kCellLeft = WM_APP + 1; ///< the edit in the list has lost the focus
constexpr int kLongestEntered = 1000;
constexpr std::size_t kMostRefusalsTold = 5;

struct ColumnHead {
    UINT text;
    int width; ///< at first, in pixels of 96 to the inch
};
constexpr ColumnHead kHeads[] = {
    {IDS_REVIEW_OPERATION, 150}, {IDS_REVIEW_OPTION, 210},  {IDS_REVIEW_VALUE, 120},
    {IDS_REVIEW_COMPARED, 120},  {IDS_REVIEW_FINDING, 290},
};
static_assert(std::size(kHeads) == review::kColumns);

constexpr UINT kFilters[] = {IDS_REVIEW_ALL, IDS_REVIEW_DIFFERENT, IDS_REVIEW_FAULTY};
static_assert(std::size(kFilters) == review::kShownKinds);

constexpr Anchor kAnchors[] = {
    {.id = IDC_REVIEW_SEARCH, .right = true},
    {.id = IDC_REVIEW_FILTER_LABEL, .left = false, .right = true},
    {.id = IDC_REVIEW_FILTER, .left = false, .right = true},
    {.id = IDC_REVIEW_COMPARED, .right = true},
    {.id = IDC_REVIEW_PICK_FILE, .left = false, .right = true},
    {.id = IDC_REVIEW_FACTORY, .left = false, .right = true},
    {.id = IDC_REVIEW_LIST, .right = true, .bottom = true},
    {.id = IDC_REVIEW_DETAIL, .top = false, .right = true, .bottom = true},
    {.id = IDC_REVIEW_STATUS, .top = false, .right = true, .bottom = true},
    {.id = IDC_REVIEW_GO_TO, .top = false, .bottom = true},
    {.id = IDC_REVIEW_EDIT, .top = false, .bottom = true},
    {.id = IDC_REVIEW_TAKE, .top = false, .bottom = true},
    {.id = IDC_REVIEW_COPY, .top = false, .bottom = true},
    {.id = IDOK, .left = false, .top = false, .right = true, .bottom = true},
    {.id = IDCANCEL, .left = false, .top = false, .right = true, .bottom = true},
    {.id = ID_HELP, .left = false, .top = false, .right = true, .bottom = true},
};

/// The window is at first wider than its least size, where the screen has room.
CSize SizeAtFirst(CSize least)
{
    return {least.cx * 3 / 2, least.cy * 5 / 4};
}

CSize Within(CSize wanted, CSize least, const CRect& area)
{
    const auto bounded = [](int size, int low, int high) { return std::max(low, std::min(size, high)); };
    return {bounded(wanted.cx, least.cx, area.Width()), bounded(wanted.cy, least.cy, area.Height())};
}

CRect WorkingArea(HWND window)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfo(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

review::SettingsText TextOrNone(const ReadSettings& settings)
{
    return settings.text.value_or(review::SettingsText());
}

/// The values of the live records; what belongs to none as the settings file has it.
review::Values LiveValues(const review::SettingsText& settings, const review::SettingsText& defaults)
{
    review::Values values = review::Values::AtStart(settings, defaults);
    for (const RecordDescription& record : DescribeRecords())
        record.assign(values.Record(record), LiveRecord(record));
    return values;
}

bool PutOnClipboard(HWND owner, const CString& text)
{
    if (!OpenClipboard(owner))
        return false;
    const std::size_t size = (static_cast<std::size_t>(text.GetLength()) + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory) {
        std::memcpy(GlobalLock(memory), text.GetString(), size);
        GlobalUnlock(memory);
        EmptyClipboard();
        if (!SetClipboardData(CF_UNICODETEXT, memory))
            memory = GlobalFree(memory);
    }
    CloseClipboard();
    return memory != nullptr;
}

bool IsControlDown()
{
    return GetKeyState(VK_CONTROL) < 0;
}

CString NumberText(std::size_t number)
{
    return CString(std::to_string(number).c_str());
}

} // namespace

/// What the dialog shows and edits.
class pelmar::SettingsReviewState {
public:
    explicit SettingsReviewState(CSettingsReviewDlg& dialog) : m_dialog(dialog) {}

    // ---- the window ----

    void Begin()
    {
        destination = {};
        isAccepted = false;
        m_cellRow.reset();
        m_selected.clear();
        m_focused.reset();
        m_comparedFile.Empty();
        anchors.Begin(m_dialog, kAnchors);
        m_list.SubclassDlgItem(IDC_REVIEW_LIST, &m_dialog);
        m_search.SubclassDlgItem(IDC_REVIEW_SEARCH, &m_dialog);
        ListenToKeys();
        MakeColumns();
        for (const UINT filter : kFilters)
            m_dialog.SendDlgItemMessage(IDC_REVIEW_FILTER, CB_ADDSTRING, 0,
                                        reinterpret_cast<LPARAM>(LoadText(filter).GetString()));
        Read();
        Remember();
        ShowCompared();
        ShowRows();
    }

    void End()
    {
        ReviewMemory memory{.order = m_listing->InOrder(), .shown = m_listing->WhatIsShown()};
        CRect rect;
        m_dialog.GetWindowRect(rect);
        memory.size = CSize(rect.Width(), rect.Height());
        for (int column = 0; column < static_cast<int>(memory.columns.size()); ++column)
            memory.columns[static_cast<std::size_t>(column)] = m_list.GetColumnWidth(column);
        memory.Save();
        m_listing.reset();
    }

    void PlaceCell()
    {
        if (!IsEditing())
            return;
        const CRect rect = CellRect(Listed(*m_cellRow).value_or(0));
        m_cell.MoveWindow(rect.left, rect.top, rect.Width(), rect.Height());
    }

    // ---- the files ----

    /// Reads the files anew. What has been changed in the list stays.
    void Reread()
    {
        const auto edited = m_listing->Edited();
        const review::Values before = m_listing->Held();
        const auto order = m_listing->InOrder();
        const auto shown = m_listing->WhatIsShown();
        m_selected.clear(); // what was found may be something else now
        m_focused.reset();
        Read();
        if (!m_comparedFile.IsEmpty() && !CompareWithFile(m_comparedFile)) {
            m_comparedFile.Empty();
            ShowCompared();
        }
        m_listing->Keep(before, edited);
        m_listing->SortBy(order);
        m_listing->Show(shown);
        Search();
    }

    void PickFile()
    {
        const CString types = LoadText(IDS_REVIEW_FILE_TYPES);
        const CString settings(GetSettingsLocations().settingsFile.c_str());
        const CString folder = FolderOf(m_comparedFile.IsEmpty() ? settings : m_comparedFile);
        CFileDialog chooser(TRUE, L"ini", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR, types,
                            &m_dialog);
        chooser.m_ofn.lpstrInitialDir = folder;
        if (chooser.DoModal() == IDOK && CompareWithFile(chooser.GetPathName()))
            ShowRows();
    }

    void CompareWithFactory()
    {
        m_comparedFile.Empty();
        m_listing->CompareWith(review::Values::Factory(m_defaults, m_listing->Held()));
        ShowCompared();
        ShowRows();
    }

    // ---- what is listed ----

    void Search()
    {
        m_listing->Search(Utf8Text(TextOf(m_search)));
        ShowRows();
    }

    void Filter()
    {
        if (const std::optional<int> chosen = SelectedIndex(m_dialog, IDC_REVIEW_FILTER))
            m_listing->Show(static_cast<review::Shown>(*chosen));
        ShowRows();
    }

    /// A click on a column's head: up first, the next one down, and then as the files have it.
    void Sort(int column)
    {
        const review::Order order = m_listing->InOrder();
        const auto chosen = static_cast<Column>(column);
        if (order.by != chosen)
            m_listing->SortBy({.by = chosen});
        else if (!order.isDescending)
            m_listing->SortBy({.by = chosen, .isDescending = true});
        else
            m_listing->SortBy({});
        ShowRows();
    }

    void WriteText(LVITEMW& item) const
    {
        if (!(item.mask & LVIF_TEXT) || item.cchTextMax < 1)
            return;
        const std::span<const std::size_t> listed = m_listing->Listed();
        const bool isThere = item.iItem >= 0 && static_cast<std::size_t>(item.iItem) < listed.size() &&
                             item.iSubItem >= 0 && static_cast<std::size_t>(item.iSubItem) < review::kColumns;
        const CString text = isThere ? CellText(item.iItem, static_cast<Column>(item.iSubItem)) : CString();
        lstrcpyn(item.pszText, text, item.cchTextMax);
    }

    /// The next row whose operation begins with what the user types; -1 where there is none.
    int Find(const NMLVFINDITEM& wanted) const
    {
        const int count = static_cast<int>(m_listing->Listed().size());
        if (!(wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !wanted.lvfi.psz)
            return -1;
        const CString typed(wanted.lvfi.psz);
        for (int step = 0; step < count; ++step) {
            const int row = (std::max(wanted.iStart, 0) + step) % count;
            const CString text = CellText(row, Column::Operation);
            if (CompareString(LOCALE_USER_DEFAULT, NORM_IGNORECASE, text, std::min(text.GetLength(), typed.GetLength()),
                              typed, typed.GetLength()) == CSTR_EQUAL)
                return row;
        }
        return -1;
    }

    /// Notes which rows the user has selected: their places change with what is listed.
    void NoteSelection()
    {
        if (m_isArranging || !m_listing)
            return;
        m_selected.clear();
        for (POSITION place = m_list.GetFirstSelectedItemPosition(); place;)
            m_selected.push_back(RowAt(m_list.GetNextSelectedItem(place)));
        const int focused = m_list.GetNextItem(-1, LVNI_FOCUSED);
        m_focused.reset();
        if (focused >= 0)
            m_focused = RowAt(focused);
        UpdateButtons();
        ShowDetail();
    }

    // ---- the edit in the list ----

    bool IsEditing() const { return m_cellRow.has_value(); }

    void Edit()
    {
        const std::optional<std::size_t> row = m_focused;
        if (!row)
            return;
        if (!m_listing->Row(*row).IsEditable()) {
            AfxMessageBox(LoadText(IDS_REVIEW_NOT_EDITED), MB_OK | MB_ICONINFORMATION);
            m_list.SetFocus();
            return;
        }
        const int index = Listed(*row).value_or(0);
        m_list.EnsureVisible(index, FALSE);
        ShowValueColumn(index);
        const CRect rect = CellRect(index);
        m_cell.CreateEx(0, L"EDIT", WideText(m_listing->EditedText(*row)),
                        WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, rect, &m_list, IDC_REVIEW_CELL);
        m_cell.SendMessage(WM_SETFONT, static_cast<WPARAM>(m_list.SendMessage(WM_GETFONT)), TRUE);
        m_cell.LimitText(kLongestEntered);
        m_cellRow = row;
        m_cell.SetFocus();
        m_cell.SetSel(0, -1);
    }

    /// Takes over what stands in the edit. False where it is refused: the user has been told, and goes on editing.
    bool TakeCell()
    {
        if (!IsEditing() || m_isTelling)
            return !m_isTelling;
        const std::string refusal = m_listing->Edit(*m_cellRow, Utf8Text(TextOf(m_cell)));
        if (refusal.empty()) {
            CloseCell();
            ShowRows();
            return true;
        }
        m_isTelling = true;
        AfxMessageBox(WideText(refusal));
        m_isTelling = false;
        m_cell.SetFocus();
        m_cell.SetSel(0, -1);
        return false;
    }

    /// The edit goes, and what stands in it with it.
    void CloseCell()
    {
        if (!IsEditing())
            return;
        m_cellRow.reset();
        const bool hadFocus = ::GetFocus() == m_cell.m_hWnd;
        m_cell.DestroyWindow();
        if (hadFocus)
            m_list.SetFocus();
    }

    /// The focus has gone elsewhere. To another window: the user comes back to it. To the way out: nothing is taken.
    void LeaveCell()
    {
        const HWND focus = ::GetFocus();
        if (!IsEditing() || m_isTelling || focus == m_cell.m_hWnd || !::IsChild(m_dialog.m_hWnd, focus))
            return;
        if (::GetDlgCtrlID(focus) == IDCANCEL)
            CloseCell();
        else
            TakeCell();
    }

    // ---- the commands ----

    void Take()
    {
        const review::Taken taken = m_listing->Take(m_selected);
        ShowRows();
        if (!taken.refusals.empty())
            TellNotTaken(taken.refusals);
    }

    void Copy() const
    {
        if (m_selected.empty())
            return;
        if (!PutOnClipboard(m_dialog.m_hWnd, WideText(m_listing->Copied(m_selected))))
            AfxMessageBox(LoadText(IDS_REVIEW_NOT_COPIED));
    }

    void SelectAll() { m_list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED); }

    /// A key in the list. True where it was one of the dialog's.
    bool TakeKey(UINT key)
    {
        switch (key) {
        case VK_F2:
            Edit();
            return true;
        case VK_F5:
            Reread();
            return true;
        case 'A':
            if (IsControlDown())
                SelectAll();
            return IsControlDown();
        case 'C':
        case VK_INSERT:
            if (IsControlDown())
                Copy();
            return IsControlDown();
        default:
            return false;
        }
    }

    /// Where the row with the focus leads to.
    SettingPlace PlaceOfFocus() const
    {
        if (!m_focused)
            return {};
        const review::Place place = m_listing->Row(*m_focused).WhereEdited();
        return {.templateId = place.templateId, .controlId = place.controlId};
    }

    bool HasEdits() const { return m_listing && !m_listing->Edited().empty(); }

    void PutIntoLiveRecords() const
    {
        if (!m_listing)
            return;
        for (const review::Setting* const setting : m_listing->Edited()) {
            void* const live = LiveRecord(*setting->record);
            const double number = m_listing->Held().Number(*setting);
            if (setting->option->whole)
                setting->option->whole(live) = static_cast<int>(number);
            else
                setting->option->real(live) = number;
        }
    }

    Anchors anchors;
    SettingPlace destination;
    bool isAccepted = false;

private:
    static CString FolderOf(const CString& file)
    {
        const CString full = FullPath(file);
        int end = full.GetLength();
        while (end > 0 && full.GetAt(end - 1) != L'\\')
            --end;
        return CString(full, end);
    }

    static CString FullPath(const CString& file)
    {
        wchar_t path[MAX_PATH] = L"";
        const DWORD length = GetFullPathName(file, MAX_PATH, path, nullptr);
        return length > 0 && length < MAX_PATH ? CString(path) : file;
    }

    void ListenToKeys()
    {
        m_list.wantsKey = [](UINT key) { return key == VK_RETURN; };
        m_search.wantsKey = [](UINT key) { return key == VK_RETURN; };
        m_search.onKey = [this](UINT key) {
            if (key != VK_RETURN && key != VK_DOWN)
                return false;
            EnterList();
            return true;
        };
        m_cell.wantsKey = [](UINT key) { return key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB; };
        m_cell.onKey = [this](UINT key) {
            if (key == VK_ESCAPE)
                CloseCell();
            else if (key == VK_RETURN || key == VK_TAB)
                TakeCell();
            return key == VK_ESCAPE || key == VK_RETURN || key == VK_TAB;
        };
        m_cell.onLeft = [this] {
            if (IsEditing())
                m_dialog.PostMessage(kCellLeft);
        };
    }

    /// From the search to what it has found.
    void EnterList()
    {
        m_list.SetFocus();
        if (m_list.GetSelectedCount() == 0 && m_list.GetItemCount() > 0)
            m_list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }

    void MakeColumns()
    {
        m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER);
        int index = 0;
        for (const ColumnHead& head : kHeads)
            m_list.InsertColumn(index++, LoadText(head.text), LVCFMT_LEFT, OnThisDisplay(head.width));
    }

    /// The window as it was when it was last closed.
    void Remember()
    {
        const ReviewMemory memory = ReviewMemory::Load();
        for (std::size_t column = 0; column < memory.columns.size(); ++column)
            if (memory.columns[column] > 0)
                m_list.SetColumnWidth(static_cast<int>(column), memory.columns[column]);
        m_listing->SortBy(memory.order);
        m_listing->Show(memory.shown);
        SelectIndex(m_dialog, IDC_REVIEW_FILTER, static_cast<int>(memory.shown));
        const CSize least = anchors.SizeAtStart();
        CSize wanted = SizeAtFirst(least);
        if (memory.size.cx > 0 && memory.size.cy > 0)
            wanted = memory.size;
        const CSize size = Within(wanted, least, WorkingArea(m_dialog.m_hWnd));
        ::SetWindowPos(m_dialog.m_hWnd, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        if (memory.columns.back() == 0)
            FillWithFindings();
    }

    /// What is left beside the other columns is for the findings.
    void FillWithFindings()
    {
        CRect client;
        m_list.GetClientRect(client);
        constexpr int kLast = static_cast<int>(review::kColumns) - 1;
        int left = client.Width() - GetSystemMetrics(SM_CXVSCROLL);
        for (int column = 0; column < kLast; ++column)
            left -= m_list.GetColumnWidth(column);
        m_list.SetColumnWidth(kLast, std::max(left, OnThisDisplay(kHeads[kLast].width)));
    }

    /// Reads both files, and compares with the factory's values.
    void Read()
    {
        const ReadSettings settings = ReadSettingsFile(CString(GetSettingsLocations().settingsFile.c_str()));
        m_defaults = TextOrNone(ReadSettingsFile(CString(GetSettingsLocations().defaultsFile.c_str())));
        review::Values live = LiveValues(TextOrNone(settings), m_defaults);
        review::Values factory = review::Values::Factory(m_defaults, live);
        m_listing.emplace(std::move(live), std::move(factory), kLibraryWords);
        m_listing->SetFile(settings.text ? &*settings.text : nullptr, Utf8Text(settings.trouble));
    }

    /// False where the file cannot be used; the user has been told why.
    bool CompareWithFile(const CString& path)
    {
        const ReadSettings settings = ReadSettingsFile(path);
        if (const CString why = WhyNotComparable(settings); !why.IsEmpty()) {
            AfxMessageBox(path + L"\n\n" + why);
            return false;
        }
        m_comparedFile = path;
        m_listing->CompareWith(review::Values::AtStart(*settings.text, m_defaults));
        ShowCompared();
        return true;
    }

    void ShowCompared()
    {
        m_dialog.SetDlgItemText(IDC_REVIEW_COMPARED,
                                m_comparedFile.IsEmpty() ? LoadText(IDS_REVIEW_FACTORY_VALUES) : m_comparedFile);
        Enable(IDC_REVIEW_FACTORY, !m_comparedFile.IsEmpty());
    }

    /// Shows what the listing lists. Rows that were selected and still are listed stay selected.
    void ShowRows()
    {
        CloseCell();
        m_isArranging = true;
        m_list.SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
        m_list.SetItemCountEx(static_cast<int>(m_listing->Listed().size()), 0);
        for (const std::size_t row : m_selected)
            if (const std::optional<int> index = Listed(row))
                m_list.SetItemState(*index, LVIS_SELECTED, LVIS_SELECTED);
        if (const std::optional<int> index = m_focused ? Listed(*m_focused) : std::nullopt) {
            m_list.SetItemState(*index, LVIS_FOCUSED, LVIS_FOCUSED);
            m_list.EnsureVisible(*index, FALSE);
        }
        m_isArranging = false;
        NoteSelection();
        m_list.Invalidate();
        ShowOrder();
        ShowCounts();
    }

    void UpdateButtons()
    {
        Enable(IDC_REVIEW_GO_TO, m_focused && m_listing->Row(*m_focused).WhereEdited().templateId != 0);
        Enable(IDC_REVIEW_EDIT, m_focused && m_listing->Row(*m_focused).IsEditable());
        Enable(IDC_REVIEW_TAKE, std::ranges::any_of(m_selected, [this](std::size_t number) {
                   return m_listing->Row(number).IsEditable() && m_listing->Row(number).isDifferent;
               }));
        Enable(IDC_REVIEW_COPY, !m_selected.empty());
    }

    /// The finding of the row with the focus, which its column may be too narrow for.
    void ShowDetail()
    {
        const auto finding = static_cast<std::size_t>(Column::Finding);
        const CString text = m_focused ? WideText(m_listing->Row(*m_focused).texts[finding]) : CString();
        if (text != TextOf(*m_dialog.GetDlgItem(IDC_REVIEW_DETAIL)))
            m_dialog.SetDlgItemText(IDC_REVIEW_DETAIL, text);
    }

    void ShowOrder()
    {
        CHeaderCtrl* const header = m_list.GetHeaderCtrl();
        const review::Order order = m_listing->InOrder();
        for (int column = 0; column < static_cast<int>(review::kColumns); ++column) {
            HDITEMW item{};
            item.mask = HDI_FORMAT;
            header->GetItem(column, &item);
            item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
            if (order.by == static_cast<Column>(column))
                item.fmt |= order.isDescending ? HDF_SORTDOWN : HDF_SORTUP;
            header->SetItem(column, &item);
        }
    }

    void ShowCounts()
    {
        CString text = LoadText(IDS_REVIEW_COUNT_LISTED) + L" " + NumberText(m_listing->Listed().size());
        const auto add = [&](UINT what, bool ListingRow::*counted) {
            text += L"   " + LoadText(what) + L" " + NumberText(m_listing->CountOf(counted));
        };
        add(IDS_REVIEW_COUNT_DIFFERENT, &ListingRow::isDifferent);
        add(IDS_REVIEW_COUNT_FAULTY, &ListingRow::isFaulty);
        add(IDS_REVIEW_COUNT_EDITED, &ListingRow::isEdited);
        m_dialog.SetDlgItemText(IDC_REVIEW_STATUS, text);
    }

    CString CellText(int index, Column column) const
    {
        const ListingRow& row = m_listing->Row(RowAt(index));
        return WideText(row.texts[static_cast<std::size_t>(column)]);
    }

    /// The row that is listed at a place.
    std::size_t RowAt(int index) const { return m_listing->Listed()[static_cast<std::size_t>(index)]; }

    std::optional<int> Listed(std::size_t row) const
    {
        const std::span<const std::size_t> listed = m_listing->Listed();
        const auto found = std::ranges::find(listed, row);
        if (found == listed.end())
            return std::nullopt;
        return static_cast<int>(found - listed.begin());
    }

    /// Scrolls the list sideways until the values are in sight.
    void ShowValueColumn(int index)
    {
        const CRect cell = CellRect(index);
        CRect client;
        m_list.GetClientRect(client);
        const int hidden = cell.left < 0 ? cell.left : std::max(0, static_cast<int>(cell.right - client.right));
        if (hidden != 0)
            m_list.SendMessage(LVM_SCROLL, static_cast<WPARAM>(hidden), 0);
    }

    CRect CellRect(int index)
    {
        CRect rect;
        m_list.GetSubItemRect(index, static_cast<int>(Column::Value), LVIR_BOUNDS, rect);
        return rect;
    }

    void TellNotTaken(const std::vector<std::string>& refusals) const
    {
        CString text = LoadText(IDS_REVIEW_NOT_TAKEN) + L"\n";
        for (std::size_t index = 0; index < std::min(refusals.size(), kMostRefusalsTold); ++index)
            text += L"\n" + WideText(refusals[index]);
        if (refusals.size() > kMostRefusalsTold)
            text += L"\n…";
        AfxMessageBox(text);
    }

    /// A control that is no longer of use must not keep the focus.
    void Enable(int id, bool enable)
    {
        if (!enable && ::GetFocus() == ControlOf(m_dialog, id))
            m_dialog.PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_list.m_hWnd), TRUE);
        EnableControl(m_dialog, id, enable);
    }

    CSettingsReviewDlg& m_dialog;
    CWithKeys<CListCtrl> m_list;
    CWithKeys<CEdit> m_search;
    CWithKeys<CEdit> m_cell; ///< over the value that is being edited
    std::optional<std::size_t> m_cellRow;
    bool m_isTelling = false;            ///< why the edit's text is refused
    bool m_isArranging = false;          ///< the list's selection is not the user's
    std::vector<std::size_t> m_selected; ///< rows of the listing
    std::optional<std::size_t> m_focused;
    std::optional<Listing> m_listing;
    review::SettingsText m_defaults;
    CString m_comparedFile; ///< empty: the factory's values
};

IMPLEMENT_DYNCREATE(CSettingsReviewDlg, CDialog)

BEGIN_MESSAGE_MAP(CSettingsReviewDlg, pelmar::CNCDialog)
    ON_WM_NCCREATE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_DESTROY()
    ON_EN_CHANGE(IDC_REVIEW_SEARCH, &CSettingsReviewDlg::OnSearch)
    ON_CBN_SELCHANGE(IDC_REVIEW_FILTER, &CSettingsReviewDlg::OnFilter)
    ON_BN_CLICKED(IDC_REVIEW_PICK_FILE, &CSettingsReviewDlg::OnPickFile)
    ON_BN_CLICKED(IDC_REVIEW_FACTORY, &CSettingsReviewDlg::OnFactory)
    ON_BN_CLICKED(IDC_REVIEW_GO_TO, &CSettingsReviewDlg::OnGoTo)
    ON_BN_CLICKED(IDC_REVIEW_EDIT, &CSettingsReviewDlg::OnEdit)
    ON_BN_CLICKED(IDC_REVIEW_TAKE, &CSettingsReviewDlg::OnTake)
    ON_BN_CLICKED(IDC_REVIEW_COPY, &CSettingsReviewDlg::OnCopy)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnTextWanted)
    ON_NOTIFY(LVN_ODFINDITEM, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnFindWanted)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnColumn)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnSelection)
    ON_NOTIFY(LVN_ODSTATECHANGED, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnSelection)
    ON_NOTIFY(LVN_ENDSCROLL, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnScrolled)
    ON_NOTIFY(LVN_KEYDOWN, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnListKey)
    ON_NOTIFY(NM_DBLCLK, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnRowDoubleClicked)
    ON_NOTIFY(NM_RETURN, IDC_REVIEW_LIST, &CSettingsReviewDlg::OnRowEntered)
    ON_MESSAGE(kCellLeft, &CSettingsReviewDlg::OnCellLeft)
    ON_COMMAND(ID_HELP, &CSettingsReviewDlg::OnHelp)
END_MESSAGE_MAP()

CSettingsReviewDlg::CSettingsReviewDlg(CWnd* parent) : CNCDialog(IDD, parent), m_state(new SettingsReviewState(*this))
{
}

CSettingsReviewDlg::~CSettingsReviewDlg()
{
    delete m_state;
}

BOOL CSettingsReviewDlg::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    m_state->Begin();
    return TRUE;
}

void CSettingsReviewDlg::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    if (exchange->m_bSaveAndValidate && !m_state->TakeCell())
        exchange->Fail();
}

void CSettingsReviewDlg::SetData()
{
    m_state->PutIntoLiveRecords();
}

SettingPlace CSettingsReviewDlg::Destination() const
{
    return m_state->destination;
}

void CSettingsReviewDlg::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    SetData();
    m_state->isAccepted = true;
    CNCDialog::OnOK();
}

void CSettingsReviewDlg::OnCancel()
{
    m_state->CloseCell();
    CNCDialog::OnCancel();
}

void CSettingsReviewDlg::OnSize(UINT type, int width, int height)
{
    CNCDialog::OnSize(type, width, height);
    m_state->anchors.Arrange();
    m_state->PlaceCell();
}

void CSettingsReviewDlg::OnGetMinMaxInfo(MINMAXINFO* limits)
{
    CNCDialog::OnGetMinMaxInfo(limits);
    const CSize least = m_state->anchors.SizeAtStart();
    limits->ptMinTrackSize = {least.cx, least.cy};
}

void CSettingsReviewDlg::OnDestroy()
{
    m_state->End();
    CNCDialog::OnDestroy();
}

void CSettingsReviewDlg::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kSettingsReviewPage.topic, kSettingsReviewPage.controls);
}

// ---- the list ----

void CSettingsReviewDlg::OnTextWanted(NMHDR* header, LRESULT*)
{
    m_state->WriteText(reinterpret_cast<NMLVDISPINFO*>(header)->item);
}

void CSettingsReviewDlg::OnFindWanted(NMHDR* header, LRESULT* result)
{
    *result = m_state->Find(*reinterpret_cast<NMLVFINDITEM*>(header));
}

void CSettingsReviewDlg::OnColumn(NMHDR* header, LRESULT*)
{
    if (m_state->TakeCell())
        m_state->Sort(reinterpret_cast<NMLISTVIEW*>(header)->iSubItem);
}

void CSettingsReviewDlg::OnSelection(NMHDR*, LRESULT*)
{
    m_state->NoteSelection();
}

void CSettingsReviewDlg::OnScrolled(NMHDR*, LRESULT*)
{
    m_state->PlaceCell();
}

void CSettingsReviewDlg::OnListKey(NMHDR* header, LRESULT*)
{
    m_state->TakeKey(reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey);
}

void CSettingsReviewDlg::OnRowDoubleClicked(NMHDR* header, LRESULT*)
{
    if (reinterpret_cast<NMITEMACTIVATE*>(header)->iItem >= 0)
        OnGoTo();
}

void CSettingsReviewDlg::OnRowEntered(NMHDR*, LRESULT*)
{
    OnGoTo();
}

LRESULT CSettingsReviewDlg::OnCellLeft(WPARAM, LPARAM)
{
    m_state->LeaveCell();
    return 0;
}

// ---- what is around it ----

void CSettingsReviewDlg::OnSearch()
{
    m_state->Search();
}

void CSettingsReviewDlg::OnFilter()
{
    m_state->Filter();
}

void CSettingsReviewDlg::OnPickFile()
{
    if (UpdateData(TRUE))
        m_state->PickFile();
}

void CSettingsReviewDlg::OnFactory()
{
    if (UpdateData(TRUE))
        m_state->CompareWithFactory();
}

void CSettingsReviewDlg::OnEdit()
{
    if (UpdateData(TRUE))
        m_state->Edit();
}

void CSettingsReviewDlg::OnTake()
{
    if (UpdateData(TRUE))
        m_state->Take();
}

void CSettingsReviewDlg::OnCopy()
{
    if (UpdateData(TRUE))
        m_state->Copy();
}

void CSettingsReviewDlg::OnGoTo()
{
    const SettingPlace place = m_state->PlaceOfFocus();
    if (!place.templateId || !UpdateData(TRUE))
        return;
    const int answer = m_state->HasEdits() ? AfxMessageBox(LoadText(IDS_REVIEW_KEEP_QUESTION), MB_YESNOCANCEL) : IDNO;
    if (answer == IDCANCEL)
        return;
    m_state->destination = place;
    if (answer == IDNO) {
        OnCancel();
        return;
    }
    OnOK();
    // A host that could not save keeps the dialog open.
    if (!m_state->isAccepted)
        m_state->destination = {};
}
