#include <afxcmn.h>

#include "modal.h"
#include "resource.h"

namespace {

/// A dialog that stands unseen, for controls of the test's own.
class CommonControls : public testing::Test {
protected:
    CommonControls()
    {
        OnUi([this] { EXPECT_TRUE(dialog.Create(IDD_NUMBER)); });
    }
    ~CommonControls() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    CDialog dialog;
};

// ---- status bars ----

class StatusBar : public CommonControls {};

TEST_F(StatusBar, ShowsATextInEachPane)
{
    OnUi([this] {
        CStatusBarCtrl bar;
        ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM, CRect(), &dialog, 1));
        int edges[] = {80, 120, -1};
        EXPECT_TRUE(bar.SetParts(3, edges));
        int seen[3] = {};
        EXPECT_EQ(3, bar.GetParts(3, seen));
        EXPECT_EQ(80, seen[0]);
        EXPECT_EQ(-1, seen[2]);
        EXPECT_TRUE(bar.SetText(L"15 страниц", 0, 0));
        EXPECT_TRUE(bar.SetText(L"изменено", 2, SBT_NOBORDERS));
        EXPECT_STREQ(L"15 страниц", bar.GetText(0));
        EXPECT_STREQ(L"", bar.GetText(1));
        int type = 0;
        EXPECT_STREQ(L"изменено", bar.GetText(2, &type));
        EXPECT_EQ(SBT_NOBORDERS, type);
        EXPECT_EQ(8, bar.GetTextLength(2));
        CRect pane;
        EXPECT_TRUE(bar.GetRect(1, pane));
        EXPECT_LT(pane.left, 120);
        EXPECT_LE(pane.right, 120);
        EXPECT_FALSE(bar.GetRect(3, pane));
    });
}

TEST_F(StatusBar, LiesAtTheBottomOfItsWindow)
{
    OnUi([this] {
        CStatusBarCtrl bar;
        ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM, CRect(), &dialog, 1));
        const auto bottom = [](const CWnd& window) {
            CRect rect;
            window.GetClientRect(rect);
            window.ClientToScreen(rect);
            return rect.bottom;
        };
        EXPECT_NEAR(bottom(dialog), bottom(bar), 2);
        CRect before;
        bar.GetWindowRect(before);
        bar.SetMinHeight(60);
        bar.SendMessage(WM_SIZE);
        CRect after;
        bar.GetWindowRect(after);
        EXPECT_LT(before.Height(), after.Height());
        EXPECT_NEAR(bottom(dialog), bottom(bar), 2);
    });
}

TEST_F(StatusBar, ShowsOneTextOverAllPanes)
{
    OnUi([this] {
        CStatusBarCtrl bar;
        ASSERT_TRUE(bar.Create(WS_CHILD, CRect(), &dialog, 1));
        EXPECT_TRUE(bar.SetText(L"по частям", 0, 0));
        bar.SetSimple();
        EXPECT_TRUE(bar.SendMessage(SB_ISSIMPLE));
        bar.SetSimple(FALSE);
        EXPECT_FALSE(bar.SendMessage(SB_ISSIMPLE));
        EXPECT_STREQ(L"по частям", bar.GetText(0));
    });
}

// ---- tool tips ----

class ToolTip : public CommonControls {
protected:
    ToolTip()
    {
        OnUi([this] {
            EXPECT_TRUE(tips.Create(&dialog, TTS_ALWAYSTIP));
            tool = dialog.GetDlgItem(IDC_NUMBER)->m_hWnd;
        });
    }
    CString TextOf(CWnd* window, UINT_PTR id = 0)
    {
        CString text(L"old");
        tips.GetText(text, window, id);
        return text;
    }
    CToolTipCtrl tips;
    HWND tool = nullptr;
};

TEST_F(ToolTip, HoldsATextForEachTool)
{
    OnUi([this] {
        CWnd* const edit = CWnd::FromHandle(tool);
        const CRect corner(0, 0, 10, 10);
        EXPECT_TRUE(tips.AddTool(edit, L"Шаг по Z"));
        EXPECT_TRUE(tips.AddTool(dialog.GetDlgItem(IDOK), IDS_TITLE));
        EXPECT_TRUE(tips.AddTool(&dialog, L"Угол", &corner, 7));
        EXPECT_EQ(3, tips.GetToolCount());
        EXPECT_STREQ(L"Шаг по Z", TextOf(edit));
        EXPECT_STREQ(L"Заголовок", TextOf(dialog.GetDlgItem(IDOK)));
        EXPECT_STREQ(L"Угол", TextOf(&dialog, 7));
        EXPECT_STREQ(L"", TextOf(&dialog, 8));
        tips.UpdateTipText(L"Шаг по X", edit);
        EXPECT_STREQ(L"Шаг по X", TextOf(edit));
        tips.DelTool(&dialog, 7);
        EXPECT_EQ(2, tips.GetToolCount());
    });
}

TEST_F(ToolTip, BreaksTextsThatAreWiderThanAllowed)
{
    OnUi([this] {
        EXPECT_EQ(-1, tips.GetMaxTipWidth());
        tips.SetMaxTipWidth(200);
        EXPECT_EQ(200, tips.GetMaxTipWidth());
    });
}

TEST_F(ToolTip, ComesUpWhereThePointerRests)
{
    OnUi([this] {
        dialog.ShowWindow(SW_SHOW);
        tips.AddTool(CWnd::FromHandle(tool), L"Шаг");
        tips.SetDelayTime(TTDT_INITIAL, 1);
        tips.Activate(FALSE);
        tips.Activate(TRUE);
    });
    ui::PointAt(tool);
    MSG moved{tool, WM_MOUSEMOVE, 0, MAKELPARAM(9, 9), 0, {}};
    OnUi([&] { tips.RelayEvent(&moved); });
    EXPECT_TRUE(ui::WaitUntil([this] { return ui::On([this] { return tips.IsWindowVisible() != FALSE; }); }));
    OnUi([this] { tips.Pop(); });
    EXPECT_FALSE(ui::On([this] { return tips.IsWindowVisible(); }));
}

TEST_F(ToolTip, WaitsAsLongAsItIsTold)
{
    OnUi([this] {
        tips.SetDelayTime(300);
        EXPECT_EQ(300, tips.SendMessage(TTM_GETDELAYTIME, TTDT_INITIAL));
        tips.SetDelayTime(TTDT_AUTOPOP, 9000);
        EXPECT_EQ(9000, tips.SendMessage(TTM_GETDELAYTIME, TTDT_AUTOPOP));
    });
}

// ---- spin buttons ----

TEST_F(CommonControls, SpinButtonCountsTheNumberOfItsBuddy)
{
    OnUi([this] {
        CSpinButtonCtrl spin;
        ASSERT_TRUE(
            spin.Create(WS_CHILD | UDS_SETBUDDYINT | UDS_ARROWKEYS | UDS_NOTHOUSANDS, CRect(0, 0, 10, 20), &dialog, 1));
        EXPECT_EQ(nullptr, spin.GetBuddy());
        EXPECT_EQ(nullptr, spin.SetBuddy(dialog.GetDlgItem(IDC_NUMBER)));
        EXPECT_EQ(::GetDlgItem(dialog, IDC_NUMBER), spin.GetBuddy()->m_hWnd);
        spin.SetRange(-5, 20);
        int lower = 0;
        int upper = 0;
        spin.GetRange(lower, upper);
        EXPECT_EQ(-5, lower);
        EXPECT_EQ(20, upper);
        spin.SetPos(7);
        EXPECT_EQ(7, spin.SetPos(-3));
        EXPECT_EQ(L"-3", ui::TextOf(dialog, IDC_NUMBER));
        spin.SendMessage(UDM_SETPOS32, 0, 19);
        dialog.GetDlgItem(IDC_NUMBER)->SendMessage(WM_KEYDOWN, VK_UP);
        EXPECT_EQ(20, spin.GetPos());
        EXPECT_EQ(L"20", ui::TextOf(dialog, IDC_NUMBER));
        dialog.SetDlgItemText(IDC_NUMBER, L"12");
        BOOL failed = TRUE;
        EXPECT_EQ(12, spin.GetPos32(&failed));
        EXPECT_FALSE(failed);
        dialog.SetDlgItemText(IDC_NUMBER, L"x");
        EXPECT_NE(0, HIWORD(spin.GetPos()));
        spin.SetRange32(0, 1000000);
        spin.GetRange32(lower, upper);
        EXPECT_EQ(0, lower);
        EXPECT_EQ(1000000, upper);
        spin.SetPos32(70000);
        EXPECT_EQ(70000, spin.GetPos32());
    });
}

TEST_F(CommonControls, SpinButtonCountsInTheGivenBaseAndSteps)
{
    OnUi([this] {
        CSpinButtonCtrl spin;
        ASSERT_TRUE(spin.Create(WS_CHILD | UDS_SETBUDDYINT, CRect(0, 0, 10, 20), &dialog, 1));
        spin.SetBuddy(dialog.GetDlgItem(IDC_NUMBER));
        EXPECT_EQ(10U, spin.GetBase());
        EXPECT_EQ(10, spin.SetBase(16));
        EXPECT_EQ(16U, spin.GetBase());
        spin.SetRange(0, 500);
        spin.SetPos(255);
        EXPECT_NE(std::wstring::npos, ui::TextOf(dialog, IDC_NUMBER).find(L"FF"));
        UDACCEL step{0, 5};
        EXPECT_TRUE(spin.SetAccel(1, &step));
        UDACCEL seen{};
        EXPECT_EQ(1U, spin.GetAccel(1, &seen));
        EXPECT_EQ(5U, seen.nInc);
    });
}

} // namespace
