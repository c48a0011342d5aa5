#include <algorithm>

#include <afxcmn.h>

#include "modal.h"
#include "resource.h"

namespace {

constexpr int kList = 1;

/// A dialog with a report list, which asks it for the texts of rows that the list does not keep itself.
class CListDialog : public CDialog {
public:
    CListCtrl list;
    int asked = 0;
    std::vector<int> chosen;
    std::wstring typed;

protected:
    void OnDisplayInfo(NMHDR* header, LRESULT*)
    {
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        ++asked;
        if (item.mask & LVIF_TEXT)
            swprintf(item.pszText, static_cast<size_t>(item.cchTextMax), L"%d/%d", item.iItem, item.iSubItem);
    }
    void OnItemChanged(NMHDR* header, LRESULT*)
    {
        const auto& change = *reinterpret_cast<const NMLISTVIEW*>(header);
        if ((change.uNewState & LVIS_SELECTED) && !(change.uOldState & LVIS_SELECTED))
            chosen.push_back(change.iItem);
    }
    void OnLabelTyped(NMHDR* header, LRESULT* result)
    {
        const wchar_t* const text = reinterpret_cast<const NMLVDISPINFOW*>(header)->item.pszText;
        typed = text ? text : L"(cancelled)";
        *result = TRUE; // the list takes the text
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CListDialog, CDialog)
    ON_NOTIFY(LVN_GETDISPINFOW, kList, &CListDialog::OnDisplayInfo)
    ON_NOTIFY(LVN_ITEMCHANGED, kList, &CListDialog::OnItemChanged)
    ON_NOTIFY(LVN_ENDLABELEDITW, kList, &CListDialog::OnLabelTyped)
END_MESSAGE_MAP()

class ListControl : public testing::Test {
protected:
    ListControl()
    {
        OnUi([this] { EXPECT_TRUE(dialog.Create(IDD_NUMBER)); });
    }
    ~ListControl() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    /// Two columns and so many rows.
    void Fill(int rows, DWORD style = 0)
    {
        ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | style, CRect(0, 0, 200, 100), &dialog, kList));
        EXPECT_EQ(0, list.InsertColumn(0, L"Параметр", LVCFMT_LEFT, 100));
        EXPECT_EQ(1, list.InsertColumn(1, L"Значение", LVCFMT_RIGHT, 60, 1));
        for (int row = 0; row < rows; ++row) {
            const CString name(static_cast<wchar_t>(L'а' + row));
            EXPECT_EQ(row, list.InsertItem(row, name));
            EXPECT_TRUE(list.SetItemText(row, 1, CString(L'7', row + 1)));
        }
    }
    CListDialog dialog;
    CListCtrl& list = dialog.list;
};

TEST_F(ListControl, HoldsTextsByRowAndColumn)
{
    OnUi([this] {
        Fill(3);
        EXPECT_EQ(3, list.GetItemCount());
        EXPECT_STREQ(L"б", list.GetItemText(1, 0));
        EXPECT_STREQ(L"77", list.GetItemText(1, 1));
        EXPECT_STREQ(L"", list.GetItemText(9, 1));
        const CString text(L'ш', 1000);
        EXPECT_TRUE(list.SetItemText(2, 1, text));
        EXPECT_STREQ(text, list.GetItemText(2, 1));
        wchar_t room[4] = L"";
        EXPECT_EQ(3, list.GetItemText(2, 1, room, 4));
        EXPECT_STREQ(L"шшш", room);
        EXPECT_TRUE(list.DeleteItem(0));
        EXPECT_STREQ(L"б", list.GetItemText(0, 0));
        EXPECT_TRUE(list.DeleteAllItems());
        EXPECT_EQ(0, list.GetItemCount());
    });
}

TEST_F(ListControl, HoldsWhatAWholeItemSays)
{
    OnUi([this] {
        Fill(1);
        wchar_t text[] = L"Подача";
        LVITEMW item{};
        item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
        item.iItem = 1;
        item.pszText = text;
        item.lParam = 42;
        item.state = item.stateMask = LVIS_SELECTED;
        EXPECT_EQ(1, list.InsertItem(&item));
        EXPECT_EQ(42U, list.GetItemData(1));
        EXPECT_EQ(0U, list.GetItemData(0));
        EXPECT_EQ(UINT{LVIS_SELECTED}, list.GetItemState(1, LVIS_SELECTED | LVIS_FOCUSED));
        wchar_t read[32];
        LVITEMW seen{};
        seen.mask = LVIF_TEXT | LVIF_PARAM;
        seen.iItem = 1;
        seen.pszText = read;
        seen.cchTextMax = 32;
        EXPECT_TRUE(list.GetItem(&seen));
        EXPECT_STREQ(L"Подача", seen.pszText);
        EXPECT_EQ(42, seen.lParam);
        EXPECT_TRUE(list.SetItemData(1, 43));
        EXPECT_EQ(43U, list.GetItemData(1));
        item.mask = LVIF_TEXT;
        wcscpy(text, L"Ход");
        EXPECT_TRUE(list.SetItem(&item));
        EXPECT_STREQ(L"Ход", list.GetItemText(1, 0));
    });
}

TEST_F(ListControl, HasColumnsOfTheGivenWidthAndFormat)
{
    OnUi([this] {
        Fill(1);
        EXPECT_EQ(100, list.GetColumnWidth(0));
        EXPECT_EQ(60, list.GetColumnWidth(1));
        EXPECT_TRUE(list.SetColumnWidth(1, 75));
        EXPECT_EQ(75, list.GetColumnWidth(1));
        wchar_t heading[32];
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
        column.pszText = heading;
        column.cchTextMax = 32;
        EXPECT_TRUE(list.GetColumn(1, &column));
        EXPECT_STREQ(L"Значение", heading);
        EXPECT_EQ(LVCFMT_RIGHT, column.fmt & LVCFMT_JUSTIFYMASK);
        EXPECT_EQ(1, column.iSubItem);
        column.mask = LVCF_TEXT;
        wcscpy(heading, L"Мин.");
        EXPECT_TRUE(list.SetColumn(1, &column));
        EXPECT_TRUE(list.DeleteColumn(0));
        EXPECT_EQ(75, list.GetColumnWidth(0));
        EXPECT_FALSE(list.DeleteColumn(5));
    });
}

TEST_F(ListControl, FitsAColumnToItsTexts)
{
    OnUi([this] {
        Fill(2);
        EXPECT_TRUE(list.SetColumnWidth(1, LVSCW_AUTOSIZE));
        const int fitted = list.GetColumnWidth(1);
        EXPECT_TRUE(list.SetItemText(1, 1, CString(L'Ш', 40)));
        EXPECT_TRUE(list.SetColumnWidth(1, LVSCW_AUTOSIZE));
        EXPECT_LT(fitted, list.GetColumnWidth(1));
    });
}

TEST_F(ListControl, TellsTheOrderOfItsColumns)
{
    OnUi([this] {
        Fill(0);
        int order[2] = {1, 0};
        EXPECT_TRUE(list.SetColumnOrderArray(2, order));
        int seen[2] = {};
        EXPECT_TRUE(list.GetColumnOrderArray(seen));
        EXPECT_EQ(1, seen[0]);
        EXPECT_EQ(0, seen[1]);
    });
}

TEST_F(ListControl, HasAHeaderThatIsAControlOfItsOwn)
{
    OnUi([this] {
        Fill(0);
        CHeaderCtrl* const header = list.GetHeaderCtrl();
        ASSERT_NE(nullptr, header);
        EXPECT_EQ(L"SysHeader32", ui::ClassOf(header->m_hWnd));
        EXPECT_EQ(2, header->GetItemCount());
        HDITEMW item{};
        item.mask = HDI_WIDTH;
        EXPECT_TRUE(header->GetItem(1, &item));
        EXPECT_EQ(60, item.cxy);
        item.cxy = 80;
        EXPECT_TRUE(header->SetItem(1, &item));
        EXPECT_EQ(80, list.GetColumnWidth(1));
        CRect rect;
        EXPECT_TRUE(header->GetItemRect(1, rect));
        EXPECT_EQ(80, rect.Width());
        CHeaderCtrl own;
        ASSERT_TRUE(own.SubclassWindow(header->m_hWnd));
        EXPECT_EQ(&own, list.GetHeaderCtrl());
        own.Detach();
    });
}

TEST_F(ListControl, SelectsAndFindsWhatIsSelected)
{
    OnUi([this] {
        Fill(4);
        EXPECT_EQ(nullptr, list.GetFirstSelectedItemPosition());
        EXPECT_EQ(-1, list.GetNextItem(-1, LVNI_SELECTED));
        for (const int row : {1, 3})
            EXPECT_TRUE(list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED));
        EXPECT_EQ((std::vector<int>{1, 3}), dialog.chosen);
        EXPECT_EQ(2U, list.GetSelectedCount());
        EXPECT_EQ(1, list.GetNextItem(-1, LVNI_SELECTED));
        EXPECT_EQ(3, list.GetNextItem(1, LVNI_SELECTED));
        EXPECT_EQ(-1, list.GetNextItem(3, LVNI_SELECTED));
        std::vector<int> selected;
        for (POSITION position = list.GetFirstSelectedItemPosition(); position;)
            selected.push_back(list.GetNextSelectedItem(position));
        EXPECT_EQ((std::vector<int>{1, 3}), selected);
        EXPECT_TRUE(list.SetItemState(-1, 0, LVIS_SELECTED));
        EXPECT_EQ(0U, list.GetSelectedCount());
        list.SetSelectionMark(2);
        EXPECT_EQ(2, list.GetSelectionMark());
    });
}

TEST_F(ListControl, ChecksItsBoxes)
{
    OnUi([this] {
        Fill(2);
        EXPECT_EQ(0U, list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
        EXPECT_EQ(DWORD{LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT}, list.GetExtendedStyle());
        EXPECT_FALSE(list.GetCheck(1));
        EXPECT_TRUE(list.SetCheck(1));
        EXPECT_TRUE(list.GetCheck(1));
        EXPECT_FALSE(list.GetCheck(0));
        EXPECT_TRUE(list.SetCheck(1, FALSE));
        EXPECT_FALSE(list.GetCheck(1));
    });
}

int CALLBACK Falling(LPARAM a, LPARAM b, LPARAM factor)
{
    return static_cast<int>((b - a) * factor);
}

TEST_F(ListControl, SortsAndFindsByItsRowsData)
{
    OnUi([this] {
        Fill(3);
        for (int row = 0; row < 3; ++row)
            list.SetItemData(row, static_cast<DWORD_PTR>(row));
        EXPECT_TRUE(list.SortItems(Falling, 1));
        EXPECT_STREQ(L"в", list.GetItemText(0, 0));
        EXPECT_STREQ(L"а", list.GetItemText(2, 0));
        LVFINDINFOW info{};
        info.flags = LVFI_PARAM;
        info.lParam = 1;
        EXPECT_EQ(1, list.FindItem(&info));
        info.lParam = 9;
        EXPECT_EQ(-1, list.FindItem(&info));
    });
}

TEST_F(ListControl, ScrollsToARow)
{
    OnUi([this] {
        Fill(30);
        EXPECT_EQ(0, list.GetTopIndex());
        EXPECT_TRUE(list.EnsureVisible(25, FALSE));
        EXPECT_LT(0, list.GetTopIndex());
        EXPECT_LE(list.GetTopIndex(), 25);
        EXPECT_GT(list.GetTopIndex() + list.GetCountPerPage(), 25);
    });
}

TEST_F(ListControl, TellsWhereItsRowsAre)
{
    OnUi([this] {
        Fill(3);
        CRect row;
        ASSERT_TRUE(list.GetItemRect(1, row, LVIR_BOUNDS));
        EXPECT_EQ(160, row.Width());
        CRect cell;
        ASSERT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
        EXPECT_EQ(row.top, cell.top);
        EXPECT_EQ(60, cell.Width());
        CRect label;
        ASSERT_TRUE(list.GetItemRect(1, label, LVIR_LABEL));
        UINT flags = 0;
        EXPECT_EQ(1, list.HitTest(CPoint(label.left + 4, label.CenterPoint().y), &flags));
        EXPECT_TRUE(flags & LVHT_ONITEM);
        LVHITTESTINFO hit{};
        hit.pt = cell.CenterPoint();
        EXPECT_EQ(1, list.SubItemHitTest(&hit));
        EXPECT_EQ(1, hit.iSubItem);
        EXPECT_EQ(-1, list.HitTest(CPoint(5, 95)));
    });
}

TEST_F(ListControl, LetsAPersonEditTheTextOfARow)
{
    OnUi([this] {
        Fill(2, LVS_EDITLABELS);
        dialog.ShowWindow(SW_SHOW);
        list.SetFocus();
        EXPECT_EQ(nullptr, list.GetEditControl());
        CEdit* const edit = list.EditLabel(1);
        ASSERT_NE(nullptr, edit);
        EXPECT_EQ(edit->m_hWnd, list.GetEditControl()->m_hWnd);
        EXPECT_EQ(L"б", ui::TextOf(edit->m_hWnd));
        edit->SetWindowText(L"Шаг");
        edit->SendMessage(WM_KEYDOWN, VK_RETURN);
        EXPECT_EQ(L"Шаг", dialog.typed);
        EXPECT_STREQ(L"Шаг", list.GetItemText(1, 0));
    });
}

TEST_F(ListControl, EditsNoTextWithoutTheStyleForIt)
{
    OnUi([this] {
        Fill(1);
        EXPECT_EQ(nullptr, list.EditLabel(0));
    });
}

TEST_F(ListControl, AsksItsParentForTheTextsOfRowsThatItDoesNotKeep)
{
    OnUi([this] {
        Fill(0, LVS_OWNERDATA);
        EXPECT_TRUE(list.SetItemCountEx(100000, LVSICF_NOSCROLL));
        EXPECT_EQ(100000, list.GetItemCount());
        EXPECT_STREQ(L"99999/1", list.GetItemText(99999, 1));
        EXPECT_LT(0, dialog.asked);
        EXPECT_TRUE(list.RedrawItems(0, 5));
        EXPECT_TRUE(list.Update(0));
    });
}

TEST_F(ListControl, ShowsItsNotesInAToolTip)
{
    OnUi([this] {
        Fill(0);
        EXPECT_TRUE(list.SetExtendedStyle(LVS_EX_INFOTIP) == 0);
        CToolTipCtrl* const tips = list.GetToolTips();
        ASSERT_NE(nullptr, tips);
        EXPECT_EQ(L"tooltips_class32", ui::ClassOf(tips->m_hWnd));
    });
}

} // namespace
