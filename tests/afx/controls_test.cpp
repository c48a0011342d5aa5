#include <afxcmn.h>

#include "modal.h"
#include "resource.h"

namespace {

/// A dialog that stands unseen; the controls are its own, each with an object.
class Controls : public testing::Test {
protected:
    Controls()
    {
        OnUi([this] {
            EXPECT_TRUE(dialog.Create(IDD_EXCHANGE));
            EXPECT_TRUE(combo.SubclassDlgItem(IDC_CHOICE, &dialog));
            EXPECT_TRUE(list.SubclassDlgItem(IDC_LIST, &dialog));
            EXPECT_TRUE(button.SubclassDlgItem(IDC_CHECK, &dialog));
            EXPECT_TRUE(edit.SubclassDlgItem(IDC_TEXT, &dialog));
        });
    }
    ~Controls() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    CDialog dialog;
    CComboBox combo;
    CListBox list;
    CButton button;
    CEdit edit;
};

TEST_F(Controls, ComboBoxHoldsItemsInOrderWithTheirData)
{
    OnUi([this] {
        EXPECT_EQ(0, combo.GetCount());
        EXPECT_EQ(0, combo.AddString(L"Дуга"));
        EXPECT_EQ(1, combo.AddString(L"Прямая"));
        EXPECT_EQ(2, combo.GetCount());
        EXPECT_EQ(-1, combo.GetCurSel());
        EXPECT_EQ(1, combo.SetCurSel(1));
        EXPECT_EQ(1, combo.GetCurSel());
        EXPECT_EQ(-1, combo.SetCurSel(-1));
        EXPECT_EQ(-1, combo.GetCurSel());
        EXPECT_EQ(CB_ERR, combo.SetCurSel(2));
        combo.SetItemData(1, 0x123456789ULL);
        EXPECT_EQ(0x123456789ULL, combo.GetItemData(1));
        EXPECT_EQ(1, combo.FindStringExact(-1, L"прямая"));
        EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, L"Прям"));
        combo.ResetContent();
        EXPECT_EQ(0, combo.GetCount());
    });
}

TEST_F(Controls, ComboBoxTellsTheTextOfAnItem)
{
    OnUi([this] {
        combo.AddString(L"Дуга");
        combo.AddString(L"");
        CString text(L"old");
        combo.GetLBText(0, text);
        EXPECT_STREQ(L"Дуга", text);
        combo.GetLBText(1, text);
        EXPECT_STREQ(L"", text);
        text = L"old";
        combo.GetLBText(2, text);
        EXPECT_STREQ(L"", text);
        text = L"old";
        combo.GetLBText(-1, text);
        EXPECT_STREQ(L"", text);
    });
}

TEST_F(Controls, ComboBoxListsTheFilesOfAFolder)
{
    OnUi([this] {
        EXPECT_LE(0, combo.Dir(DDL_ARCHIVE | DDL_READWRITE, L"*.dll"));
        EXPECT_NE(CB_ERR, combo.FindStringExact(-1, L"afx.dll"));
        combo.ResetContent();
        combo.Dir(DDL_ARCHIVE | DDL_READWRITE, L"*.nothing");
        EXPECT_EQ(0, combo.GetCount());
    });
}

TEST_F(Controls, ComboBoxPutsItemsInAndTakesThemOut)
{
    OnUi([this] {
        combo.AddString(L"Дуга");
        EXPECT_EQ(0, combo.InsertString(0, L"Прямая"));
        EXPECT_EQ(2, combo.InsertString(-1, L"Петля"));
        EXPECT_EQ(6, combo.GetLBTextLen(0));
        wchar_t text[16] = L"";
        EXPECT_EQ(4, combo.GetLBText(1, text));
        EXPECT_STREQ(L"Дуга", text);
        EXPECT_EQ(2, combo.FindString(-1, L"Пет"));
        EXPECT_EQ(0, combo.FindString(2, L"П"));
        EXPECT_EQ(2, combo.SelectString(-1, L"Петл"));
        EXPECT_EQ(2, combo.GetCurSel());
        EXPECT_EQ(2, combo.DeleteString(0));
        EXPECT_EQ(CB_ERR, combo.DeleteString(9));
        int pointed = 0;
        combo.SetItemDataPtr(0, &pointed);
        EXPECT_EQ(&pointed, combo.GetItemDataPtr(0));
        EXPECT_LE(0, combo.InitStorage(100, 1000));
    });
}

TEST_F(Controls, ComboBoxHasAnEdit)
{
    OnUi([this] {
        CComboBox free;
        ASSERT_TRUE(free.Create(WS_CHILD | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(0, 0, 90, 90), &dialog, 1));
        free.LimitText(5);
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ASSERT_TRUE(free.GetComboBoxInfo(&info));
        EXPECT_EQ(L"Edit", ui::ClassOf(info.hwndItem));
        for (const wchar_t key : {L'а', L'б', L'в', L'г', L'д', L'е'})
            ::SendMessage(info.hwndItem, WM_CHAR, key, 1);
        EXPECT_EQ(L"абвгд", ui::TextOf(free));
        EXPECT_TRUE(free.SetEditSel(1, 3));
        EXPECT_EQ(DWORD{MAKELONG(1, 3)}, free.GetEditSel());
        free.Clear();
        EXPECT_EQ(L"агд", ui::TextOf(free));
        free.SetEditSel(0, 1);
        free.Copy();
        free.SetEditSel(3, 3);
        free.Paste();
        EXPECT_EQ(L"агда", ui::TextOf(free));
        free.SetEditSel(0, 2);
        free.Cut();
        EXPECT_EQ(L"да", ui::TextOf(free));
    });
}

TEST_F(Controls, ComboBoxDropsItsList)
{
    OnUi([this] {
        dialog.ShowWindow(SW_SHOW);
        for (int item = 0; item < 400; ++item)
            combo.AddString(L"Дуга");
        EXPECT_FALSE(combo.GetDroppedState());
        combo.ShowDropDown();
        EXPECT_TRUE(combo.GetDroppedState());
        CRect dropped;
        combo.GetDroppedControlRect(dropped);
        CRect box;
        combo.GetWindowRect(box);
        EXPECT_LT(box.Height(), dropped.Height());
        combo.ShowDropDown(FALSE);
        EXPECT_FALSE(combo.GetDroppedState());
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ASSERT_TRUE(combo.GetComboBoxInfo(&info));
        ::SendMessage(info.hwndList, LB_SETTOPINDEX, 12, 0);
        EXPECT_EQ(12, combo.GetTopIndex());
        EXPECT_EQ(300, combo.SetDroppedWidth(300));
        EXPECT_EQ(300, combo.GetDroppedWidth());
        combo.SetHorizontalExtent(250);
        EXPECT_EQ(250U, combo.GetHorizontalExtent());
        EXPECT_LT(0, combo.GetItemHeight(0));
        EXPECT_NE(CB_ERR, combo.SetItemHeight(-1, 25));
        EXPECT_LE(25, combo.GetItemHeight(-1));
        EXPECT_FALSE(combo.GetExtendedUI());
        EXPECT_EQ(CB_OKAY, combo.SetExtendedUI());
        EXPECT_TRUE(combo.GetExtendedUI());
        const LCID russian = MAKELCID(MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT), SORT_DEFAULT);
        combo.SetLocale(russian);
        EXPECT_EQ(russian, combo.GetLocale());
    });
}

/// Not every system's combo box heeds it, so what is asked of it is looked at.
class CAskedComboBox : public CComboBox {
public:
    int asked = -1;

protected:
    LRESULT OnSetTopIndex(WPARAM index, LPARAM)
    {
        asked = static_cast<int>(index);
        return CB_ERR;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAskedComboBox, CComboBox)
    ON_MESSAGE(CB_SETTOPINDEX, &CAskedComboBox::OnSetTopIndex)
END_MESSAGE_MAP()

TEST_F(Controls, ComboBoxIsAskedToScrollItsList)
{
    OnUi([this] {
        CAskedComboBox asked;
        ASSERT_TRUE(asked.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 90, 90), &dialog, IDC_MISSING));
        EXPECT_EQ(CB_ERR, asked.SetTopIndex(7));
        EXPECT_EQ(7, asked.asked);
    });
}

TEST_F(Controls, ListBoxTellsItsTextsAndTakesThemOut)
{
    OnUi([this] {
        list.AddString(L"Фреза");
        EXPECT_EQ(0, list.InsertString(0, L"Сверло"));
        CString text(L"old");
        list.GetText(1, text);
        EXPECT_STREQ(L"Фреза", text);
        list.GetText(2, text);
        EXPECT_STREQ(L"", text);
        EXPECT_EQ(1, list.FindStringExact(-1, L"фреза"));
        EXPECT_EQ(1, list.DeleteString(0));
        list.ResetContent();
        EXPECT_EQ(0, list.GetCount());
    });
}

TEST_F(Controls, EditTellsAndReplacesItsSelection)
{
    OnUi([this] {
        edit.SetWindowText(L"абвгд");
        edit.SetSel(1, 3);
        int start = 0;
        int end = 0;
        edit.GetSel(start, end);
        EXPECT_EQ(1, start);
        EXPECT_EQ(3, end);
        EXPECT_FALSE(edit.GetModify());
        edit.ReplaceSel(L"-");
        EXPECT_EQ(L"а-гд", ui::TextOf(edit));
        edit.SetModify();
        EXPECT_TRUE(edit.GetModify());
        EXPECT_TRUE(edit.SetReadOnly());
        EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
    });
}

TEST_F(Controls, ListBoxHoldsItemsInOrderWithTheirData)
{
    OnUi([this] {
        EXPECT_EQ(0, list.GetCount());
        EXPECT_EQ(0, list.AddString(L"Фреза"));
        EXPECT_EQ(1, list.AddString(L"Сверло"));
        EXPECT_EQ(2, list.GetCount());
        EXPECT_EQ(-1, list.GetCurSel());
        list.SetCurSel(1);
        EXPECT_EQ(1, list.GetCurSel());
        list.SetItemData(0, 42);
        EXPECT_EQ(42U, list.GetItemData(0));
    });
}

TEST_F(Controls, ButtonHoldsItsCheckAndItsIcon)
{
    const HICON icon = LoadIcon(nullptr, IDI_QUESTION);
    OnUi([&] {
        EXPECT_EQ(BST_UNCHECKED, button.GetCheck());
        button.SetCheck(BST_INDETERMINATE);
        EXPECT_EQ(BST_INDETERMINATE, button.GetCheck());
        CButton picture;
        ASSERT_TRUE(picture.CreateEx(0, L"BUTTON", L"", WS_CHILD | BS_ICON, CRect(0, 0, 40, 40), &dialog, 1));
        EXPECT_EQ(nullptr, picture.GetIcon());
        EXPECT_EQ(nullptr, picture.SetIcon(icon));
        EXPECT_EQ(icon, picture.GetIcon());
        EXPECT_EQ(icon, picture.SetIcon(nullptr));
    });
}

TEST_F(Controls, EditLimitsWhatIsTypedAndSelects)
{
    OnUi([this] {
        edit.LimitText(3);
        for (const wchar_t key : {L'а', L'б', L'в', L'г'})
            edit.SendMessage(WM_CHAR, key, 1);
        CString text;
        edit.GetWindowText(text);
        EXPECT_STREQ(L"абв", text);
        edit.SetSel(1, 2);
        EXPECT_EQ(static_cast<LRESULT>(MAKELONG(1, 2)), edit.SendMessage(EM_GETSEL));
        edit.SetSel(0, -1, TRUE);
        EXPECT_EQ(static_cast<LRESULT>(MAKELONG(0, 3)), edit.SendMessage(EM_GETSEL));
    });
}

TEST_F(Controls, TabControlTellsAndChangesItsItems)
{
    OnUi([this] {
        CTabCtrl tab;
        ASSERT_TRUE(tab.CreateEx(0, WC_TABCONTROL, L"", WS_CHILD, CRect(0, 0, 100, 50), &dialog, 1));
        EXPECT_EQ(0, tab.GetItemCount());
        wchar_t title[32] = L"Задание";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title;
        item.cchTextMax = 32;
        tab.SendMessage(TCM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(1, tab.GetItemCount());
        EXPECT_EQ(0, tab.GetCurSel());
        lstrcpyW(title, L"Отображение");
        EXPECT_TRUE(tab.SetItem(0, &item));
        lstrcpyW(title, L"");
        EXPECT_TRUE(tab.GetItem(0, &item));
        EXPECT_STREQ(L"Отображение", item.pszText);
        EXPECT_FALSE(tab.GetItem(1, &item));
        EXPECT_FALSE(tab.SetItem(1, &item));
    });
}

} // namespace
