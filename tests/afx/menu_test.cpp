#include <afxwin.h>

#include "modal.h"
#include "resource.h"

namespace {

constexpr UINT kPlus = 0x8001;
constexpr UINT kMinus = 0x8002;

TEST(Menu, HoldsItsItems)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_FALSE(menu.CreatePopupMenu()) << "it is one already";
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, kMinus, L"Меньше"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, kPlus, L"Больше"));
    EXPECT_EQ(3U, menu.GetMenuItemCount());
    EXPECT_EQ(kPlus, menu.GetMenuItemID(0));
    CString text;
    EXPECT_EQ(6, menu.GetMenuString(1, text, MF_BYPOSITION));
    EXPECT_STREQ(L"Меньше", text);
    EXPECT_EQ(UINT{MF_ENABLED}, menu.EnableMenuItem(kPlus, MF_GRAYED));
    EXPECT_TRUE(menu.GetMenuState(kPlus, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(DWORD{MF_UNCHECKED}, menu.CheckMenuItem(kMinus, MF_CHECKED));
    EXPECT_TRUE(menu.GetMenuState(kMinus, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.CheckMenuRadioItem(0, 1, 0, MF_BYPOSITION));
    EXPECT_FALSE(menu.GetMenuState(kMinus, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.SetDefaultItem(kPlus));
    EXPECT_EQ(kPlus, GetMenuDefaultItem(menu, FALSE, GMDI_USEDISABLED));
    EXPECT_TRUE(menu.ModifyMenu(kPlus, MF_BYCOMMAND | MF_STRING, kPlus, L"Ещё больше"));
    EXPECT_EQ(10, menu.GetMenuString(kPlus, text, MF_BYCOMMAND));
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYPOSITION));
    EXPECT_TRUE(menu.RemoveMenu(kMinus, MF_BYCOMMAND));
    EXPECT_EQ(1U, menu.GetMenuItemCount());
}

TEST(Menu, GoesWithItsObject)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        handle = menu;
        EXPECT_EQ(&menu, CMenu::FromHandle(handle));
        EXPECT_EQ(handle, menu.GetSafeHmenu());
    }
    EXPECT_FALSE(IsMenu(handle));
    CMenu kept;
    ASSERT_TRUE(kept.CreateMenu());
    handle = kept.Detach();
    EXPECT_TRUE(IsMenu(handle));
    EXPECT_TRUE(kept.Attach(handle));
    EXPECT_TRUE(kept.DestroyMenu());
    EXPECT_FALSE(kept.DestroyMenu());
    EXPECT_FALSE(IsMenu(handle));
}

TEST(Menu, LendsTheMenusThatOpenInIt)
{
    OnUi([] {
        CMenu menu;
        CMenu inner;
        ASSERT_TRUE(menu.CreatePopupMenu());
        ASSERT_TRUE(inner.CreatePopupMenu());
        const HMENU handle = inner.Detach();
        EXPECT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(handle), L"Ещё"));
        CMenu* const lent = menu.GetSubMenu(0);
        ASSERT_NE(nullptr, lent);
        EXPECT_EQ(handle, lent->m_hMenu);
        EXPECT_EQ(nullptr, menu.GetSubMenu(1));
    });
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

TEST(Menu, IsLoadedThroughTheResourceChain)
{
    CMenu menu;
    EXPECT_FALSE(menu.LoadMenu(IDD_NOWHERE));
    EXPECT_TRUE(menu.LoadMenu(IDR_MENU));
    EXPECT_EQ(1U, menu.GetMenuItemCount());
}

class CMenuWindow : public CWnd {
public:
    int chosen = 0;

protected:
    void OnPlus() { ++chosen; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMenuWindow, CWnd)
    ON_COMMAND(kPlus, &CMenuWindow::OnPlus)
END_MESSAGE_MAP()

TEST(Menu, IsOfItsWindow)
{
    OnUi([] {
        CMenuWindow window;
        ASSERT_TRUE(
            window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(9, 9, 200, 200), nullptr, 0));
        EXPECT_EQ(nullptr, window.GetMenu());
        CMenu menu;
        ASSERT_TRUE(menu.LoadMenu(IDR_MENU));
        EXPECT_TRUE(window.SetMenu(&menu));
        window.DrawMenuBar();
        EXPECT_EQ(&menu, window.GetMenu());
        EXPECT_NE(nullptr, window.GetSystemMenu(FALSE));
        EXPECT_TRUE(window.SetMenu(nullptr));
        EXPECT_EQ(nullptr, window.GetMenu());
    });
}

TEST(Menu, OpensWhereItIsTold)
{
    CMenuWindow window;
    CMenu menu;
    OnUi([&] {
        ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(9, 9, 60, 60), nullptr, 0));
        window.ShowWindow(SW_SHOW);
        ASSERT_TRUE(menu.CreatePopupMenu());
        menu.AppendMenu(MF_STRING, kPlus, L"Больше");
    });
    ui::UiThread::Get().Start([&] { EXPECT_TRUE(menu.TrackPopupMenu(TPM_LEFTALIGN, 20, 20, &window)); });
    EXPECT_TRUE(ui::WaitUntil([] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(ui::UiThread::Get().Id(), &info);
        return (info.flags & GUI_INMENUMODE) != 0;
    }));
    PostMessage(window.m_hWnd, WM_KEYDOWN, VK_DOWN, 1);
    PostMessage(window.m_hWnd, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
    ui::Settle(window.m_hWnd);
    EXPECT_EQ(1, window.chosen);
    OnUi([&] { window.DestroyWindow(); });
}

} // namespace
