#include <memory>

#include "modal.h"
#include "resource.h"

namespace {

class CPlainWindow : public CWnd {
public:
    bool Open(CWnd* parent = nullptr)
    {
        return CreateEx(0, AfxRegisterWndClass(0), L"Окно", parent ? WS_CHILD : WS_POPUP, CRect(10, 20, 110, 70),
                        parent, parent ? 5 : 0);
    }
    int endings = 0;

protected:
    void PostNcDestroy() override { ++endings; }
};

/// A window of the system's own kind, without an object.
HWND MakeBareWindow()
{
    return CreateWindow(L"EDIT", L"текст", WS_POPUP | ES_AUTOHSCROLL, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
}

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtr(window, GWLP_WNDPROC));
}

// ---- objects and windows ----

TEST(Window, IsItsObjectsAsLongAsBothLive)
{
    OnUi([] {
        CPlainWindow window;
        EXPECT_EQ(nullptr, window.m_hWnd);
        ASSERT_TRUE(window.Open());
        EXPECT_EQ(&window, CWnd::FromHandlePermanent(window.m_hWnd));
        EXPECT_EQ(&window, CWnd::FromHandle(window.m_hWnd));
        const HWND handle = window;
        EXPECT_EQ(window.m_hWnd, handle);
        window.DestroyWindow();
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
    });
}

TEST(Window, CanGoBeforeItsObject)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        const HWND handle = window;
        ::DestroyWindow(handle);
        EXPECT_EQ(nullptr, window.m_hWnd);
        EXPECT_EQ(1, window.endings);
        EXPECT_FALSE(window.DestroyWindow());
        EXPECT_TRUE(window.Open());
        EXPECT_TRUE(window.DestroyWindow());
        EXPECT_EQ(2, window.endings);
    });
}

TEST(Window, GoesWithItsObject)
{
    OnUi([] {
        auto window = std::make_unique<CPlainWindow>();
        ASSERT_TRUE(window->Open());
        const HWND handle = *window;
        window.reset();
        EXPECT_FALSE(IsWindow(handle));
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
    });
}

TEST(Window, GoesWithItsObjectEvenWhereItWasTheSystemsOwn)
{
    OnUi([] {
        const HWND handle = MakeBareWindow();
        {
            CEdit edit;
            ASSERT_TRUE(edit.SubclassWindow(handle));
        }
        EXPECT_FALSE(IsWindow(handle));
    });
}

TEST(Window, EndsTheObjectsOfItsChildren)
{
    OnUi([] {
        CPlainWindow parent;
        CPlainWindow child;
        ASSERT_TRUE(parent.Open());
        ASSERT_TRUE(child.Open(&parent));
        EXPECT_EQ(&parent, child.GetParent());
        EXPECT_EQ(5, child.GetDlgCtrlID());
        EXPECT_EQ(&child, parent.GetDlgItem(5));
        parent.DestroyWindow();
        EXPECT_EQ(nullptr, child.m_hWnd);
        EXPECT_EQ(1, child.endings);
    });
}

TEST(Window, IsNotCreatedTwiceForOneObject)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        const HWND handle = window;
        EXPECT_FALSE(window.Open());
        EXPECT_EQ(handle, window.m_hWnd);
    });
}

TEST(Window, IsNotCreatedForAnUnknownClass)
{
    OnUi([] {
        CWnd window;
        EXPECT_FALSE(window.CreateEx(0, L"NoSuchWindowClass", L"", WS_POPUP, CRect(), nullptr, 0));
        EXPECT_EQ(nullptr, window.m_hWnd);
        const HWND next = MakeBareWindow(); // nothing waits for a window any more
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(next));
        EXPECT_EQ(nullptr, window.m_hWnd);
        ::DestroyWindow(next);
    });
}

TEST(Window, KeepsItsOwnConductUnderAnObject)
{
    OnUi([] {
        const HWND handle = MakeBareWindow();
        const WNDPROC own = ProcedureOf(handle);
        CEdit edit;
        ASSERT_TRUE(edit.SubclassWindow(handle));
        EXPECT_NE(own, ProcedureOf(handle));
        SendMessage(handle, WM_CHAR, L'x', 1);
        EXPECT_EQ(L"xтекст", ui::TextOf(handle));
        EXPECT_EQ(handle, edit.Detach());
        EXPECT_EQ(own, ProcedureOf(handle));
        SendMessage(handle, WM_CHAR, L'y', 1);
        EXPECT_EQ(L"xyтекст", ui::TextOf(handle));
        ::DestroyWindow(handle);
    });
}

TEST(Window, TakesOneObjectOnly)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        CWnd second;
        EXPECT_FALSE(second.Attach(window));
        EXPECT_FALSE(second.SubclassWindow(window));
        EXPECT_EQ(nullptr, second.m_hWnd);
        EXPECT_EQ(&window, CWnd::FromHandlePermanent(window));
        window.SetWindowText(L"ещё живо");
        EXPECT_EQ(L"ещё живо", ui::TextOf(window));
    });
}

TEST(Window, CanBeAttachedWithoutTakingItsMessages)
{
    OnUi([] {
        const HWND handle = MakeBareWindow();
        const WNDPROC own = ProcedureOf(handle);
        CWnd window;
        EXPECT_FALSE(window.Attach(nullptr));
        EXPECT_TRUE(window.Attach(handle));
        EXPECT_FALSE(window.Attach(handle));
        EXPECT_EQ(own, ProcedureOf(handle));
        EXPECT_EQ(handle, window.Detach());
        EXPECT_EQ(nullptr, window.Detach());
        EXPECT_TRUE(IsWindow(handle));
        ::DestroyWindow(handle);
    });
}

TEST(Window, IsSubclassedByIdWithinItsParent)
{
    OnUi([] {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        CEdit edit;
        CEdit other;
        EXPECT_FALSE(edit.SubclassDlgItem(IDC_MISSING, &dialog));
        EXPECT_FALSE(edit.SubclassDlgItem(IDC_NUMBER, nullptr));
        EXPECT_TRUE(edit.SubclassDlgItem(IDC_NUMBER, &dialog));
        EXPECT_FALSE(other.SubclassDlgItem(IDC_NUMBER, &dialog));
        dialog.DestroyWindow();
    });
}

// ---- temporary objects ----

TEST(TemporaryObject, StandsForAWindowWithoutOne)
{
    OnUi([] {
        const HWND handle = MakeBareWindow();
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
        CWnd* const object = CWnd::FromHandle(handle);
        ASSERT_NE(nullptr, object);
        EXPECT_EQ(handle, object->m_hWnd);
        EXPECT_EQ(object, CWnd::FromHandle(handle));
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
        ::DestroyWindow(handle);
    });
}

TEST(TemporaryObject, IsNullForNull)
{
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));
}

TEST(TemporaryObject, OutlivesTheMessagesThatItIsUsedFor)
{
    OnUi([] {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        CWnd* const edit = dialog.GetDlgItem(IDC_NUMBER);
        edit->SetWindowText(L"12"); // the dialog is told of the change
        dialog.SendMessage(WM_NULL);
        CString text;
        edit->GetWindowText(text);
        EXPECT_STREQ(L"12", text);
        EXPECT_EQ(edit, dialog.GetDlgItem(IDC_NUMBER));
        dialog.DestroyWindow();
    });
}

/// Notes the temporary object that it got for a window while it handled a message.
class CAskingWindow : public CPlainWindow {
public:
    HWND asked = nullptr;
    HWND seen = nullptr;
    bool sameAfterNested = false;

protected:
    LRESULT OnAsk(WPARAM nested, LPARAM)
    {
        const CWnd* const object = FromHandle(asked);
        if (!nested) {
            SendMessage(WM_APP, TRUE);
            sameAfterNested = FromHandle(asked) == object && object->m_hWnd == asked;
            seen = object->m_hWnd;
        }
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAskingWindow, CPlainWindow)
    ON_MESSAGE(WM_APP, &CAskingWindow::OnAsk)
END_MESSAGE_MAP()

TEST(TemporaryObject, LastsForTheWholeOuterMessage)
{
    OnUi([] {
        CAskingWindow window;
        ASSERT_TRUE(window.Open());
        window.asked = MakeBareWindow();
        window.SendMessage(WM_APP);
        EXPECT_TRUE(window.sameAfterNested);
        EXPECT_EQ(window.asked, window.seen);
        ::DestroyWindow(window.asked);
    });
}

// ---- the plain calls ----

TEST(WindowCalls, LeaveAMissingControlNull)
{
    OnUi([] {
        CDialog dialog;
        EXPECT_EQ(nullptr, dialog.GetDlgItem(IDC_NUMBER));
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        EXPECT_EQ(nullptr, dialog.GetDlgItem(IDC_MISSING));
        EXPECT_NE(nullptr, dialog.GetDlgItem(IDC_NUMBER));
        dialog.SetDlgItemText(IDC_MISSING, L"x");
        EXPECT_EQ(0U, dialog.IsDlgButtonChecked(IDC_MISSING));
        EXPECT_EQ(0, dialog.SendDlgItemMessage(IDC_MISSING, WM_NULL));
        dialog.DestroyWindow();
    });
}

TEST(WindowCalls, ShowHideEnableAndDisable)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        EXPECT_FALSE(window.IsWindowVisible());
        EXPECT_FALSE(window.ShowWindow(SW_SHOWNOACTIVATE));
        EXPECT_TRUE(window.IsWindowVisible());
        EXPECT_TRUE(window.ShowWindow(SW_HIDE));
        EXPECT_TRUE(window.IsWindowEnabled());
        EXPECT_FALSE(window.EnableWindow(FALSE));
        EXPECT_FALSE(window.IsWindowEnabled());
        EXPECT_TRUE(window.EnableWindow());
    });
}

TEST(WindowCalls, SetAndTellTheText)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        window.SetWindowText(L"Параметры");
        EXPECT_EQ(9, window.GetWindowTextLength());
        CString text(L"a much longer text before");
        window.GetWindowText(text);
        EXPECT_STREQ(L"Параметры", text);
        window.SetWindowText(L"");
        window.GetWindowText(text);
        EXPECT_STREQ(L"", text);
    });
}

TEST(WindowCalls, MoveAndMeasure)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        CRect rect;
        window.GetWindowRect(rect);
        EXPECT_EQ(100, rect.Width());
        EXPECT_EQ(50, rect.Height());
        window.MoveWindow(30, 40, 200, 80);
        window.GetWindowRect(rect);
        EXPECT_EQ(30, rect.left);
        EXPECT_EQ(40, rect.top);
        window.GetClientRect(rect);
        EXPECT_EQ(200, rect.right);
        EXPECT_EQ(80, rect.bottom);
        CPoint point(35, 50);
        window.ScreenToClient(&point);
        EXPECT_EQ(5, point.x);
        EXPECT_EQ(10, point.y);
        window.ClientToScreen(&point);
        EXPECT_EQ(35, point.x);
        EXPECT_EQ(50, point.y);
    });
}

TEST(WindowCalls, ChangeTheExtendedStyle)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_CONTEXTHELP));
        EXPECT_TRUE(GetWindowLong(window, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
        EXPECT_FALSE(window.ModifyStyleEx(0, WS_EX_CONTEXTHELP));
        EXPECT_TRUE(window.ModifyStyleEx(WS_EX_CONTEXTHELP, 0));
        EXPECT_FALSE(GetWindowLong(window, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
    });
}

TEST(WindowCalls, WalkThroughTheControls)
{
    OnUi([] {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        std::vector<int> ids;
        for (CWnd* child = dialog.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
            ids.push_back(child->GetDlgCtrlID());
        EXPECT_EQ((std::vector<int>{IDC_STATIC, IDC_NUMBER, IDOK, IDCANCEL}), ids);
        dialog.DestroyWindow();
    });
}

TEST(WindowCalls, CheckButtonsById)
{
    OnUi([] {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_EXCHANGE));
        dialog.CheckDlgButton(IDC_CHECK, BST_INDETERMINATE);
        EXPECT_EQ(UINT{BST_INDETERMINATE}, dialog.IsDlgButtonChecked(IDC_CHECK));
        dialog.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
        EXPECT_EQ(UINT{BST_UNCHECKED}, dialog.IsDlgButtonChecked(IDC_CHECK));
        dialog.DestroyWindow();
    });
}

TEST(WindowCalls, AskForRepainting)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        window.ShowWindow(SW_SHOWNOACTIVATE);
        window.UpdateWindow();
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
        window.Invalidate();
        EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
        window.UpdateWindow();
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    });
}

TEST(WindowCalls, PassTheFocusOn)
{
    OnUi([] {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        dialog.ShowWindow(SW_SHOW);
        dialog.GetDlgItem(IDOK)->SetFocus();
        CWnd* const before = dialog.GetDlgItem(IDC_NUMBER)->SetFocus();
        EXPECT_EQ(dialog.GetDlgItem(IDOK), before);
        EXPECT_EQ(GetDlgItem(dialog, IDC_NUMBER), GetFocus());
        dialog.DestroyWindow();
    });
}

TEST(WindowClass, IsOneForTheSameParts)
{
    OnUi([] {
        const CString plain = AfxRegisterWndClass(0);
        const CString drawn = AfxRegisterWndClass(CS_HREDRAW);
        EXPECT_FALSE(plain == drawn);
        EXPECT_TRUE(plain == CString(AfxRegisterWndClass(0)));
        WNDCLASS windowClass{};
        EXPECT_TRUE(GetClassInfo(AfxGetInstanceHandle(), drawn, &windowClass));
        EXPECT_EQ(UINT{CS_HREDRAW}, windowClass.style);
    });
}

// ---- what lies at a point ----

class ToolHitTest : public testing::Test {
protected:
    ToolHitTest()
    {
        OnUi([this] {
            EXPECT_TRUE(dialog.Create(IDD_POINTS));
            dialog.ShowWindow(SW_SHOWNOACTIVATE);
        });
    }
    ~ToolHitTest() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    /// The middle of a control, or of the dialog's own label for IDC_STATIC, in the dialog's client area.
    CPoint MiddleOf(int id)
    {
        CRect rect;
        GetWindowRect(GetDlgItem(dialog.m_hWnd, id), rect);
        CPoint middle = rect.CenterPoint();
        ScreenToClient(dialog.m_hWnd, &middle);
        return middle;
    }
    INT_PTR At(CPoint point)
    {
        return ui::On([&] { return dialog.OnToolHitTest(point, nullptr); });
    }
    CDialog dialog;
};

TEST_F(ToolHitTest, FindsTheControlAtAPoint)
{
    EXPECT_EQ(IDC_IN_FRAME, At(MiddleOf(IDC_IN_FRAME)));
}

TEST_F(ToolHitTest, FindsADisabledControl)
{
    EXPECT_EQ(IDC_DISABLED, At(MiddleOf(IDC_DISABLED)));
}

TEST_F(ToolHitTest, FindsTheGroupBoxWhereNoOtherControlLies)
{
    CPoint point = MiddleOf(IDC_IN_FRAME);
    point.x = MiddleOf(IDC_FRAME).x + 40;
    EXPECT_EQ(IDC_FRAME, At(point));
}

TEST_F(ToolHitTest, SeesThroughWhatIsHidden)
{
    EXPECT_EQ(IDC_FRAME, At(MiddleOf(IDC_HIDDEN)));
}

TEST_F(ToolHitTest, FindsNothingOnALabelNorBesideTheControls)
{
    EXPECT_EQ(-1, At(MiddleOf(IDC_STATIC)));
    EXPECT_EQ(-1, At(CPoint(1, 1)));
    EXPECT_EQ(-1, At(CPoint(-50, 5000)));
}

TEST_F(ToolHitTest, FindsNothingWithoutAWindow)
{
    EXPECT_EQ(-1, CWnd().OnToolHitTest(CPoint(), nullptr));
}

TEST(Rectangle, TellsItsSizeMiddleAndPoints)
{
    const CRect rect(10, 20, 40, 60);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_EQ(25, rect.CenterPoint().x);
    EXPECT_EQ(40, rect.CenterPoint().y);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 30)));
}

} // namespace
