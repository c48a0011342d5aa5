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
