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

CRect PlaceOf(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(place);
    return place;
}

/// Of the screen.
CRect WorkingArea()
{
    CRect area;
    SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

CRect Middle(const CRect& area, int width, int height)
{
    const int left = (area.left + area.right - width) / 2;
    const int top = (area.top + area.bottom - height) / 2;
    return {left, top, left + width, top + height};
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

// ---- finding its place ----

TEST(Window, IsCentredOnItsOwner)
{
    OnUi([] {
        CPlainWindow owner;
        ASSERT_TRUE(owner.Open());
        owner.MoveWindow(CRect(100, 100, 500, 400));
        owner.ShowWindow(SW_SHOWNOACTIVATE);
        CWnd popup;
        ASSERT_TRUE(popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 60, 40), &owner, 0));
        popup.CenterWindow();
        EXPECT_TRUE(PlaceOf(popup) == CRect(270, 230, 330, 270));
        owner.ShowWindow(SW_HIDE);
        popup.CenterWindow();
        EXPECT_TRUE(PlaceOf(popup) == Middle(WorkingArea(), 60, 40)) << "an owner that nobody sees";
    });
}

TEST(Window, IsCentredOnTheScreenWithoutAnOwner)
{
    OnUi([] {
        CPlainWindow popup;
        ASSERT_TRUE(popup.Open());
        popup.CenterWindow();
        EXPECT_TRUE(PlaceOf(popup) == Middle(WorkingArea(), 100, 50));
    });
}

TEST(Window, IsCentredOnAnotherOneIfTold)
{
    OnUi([] {
        CPlainWindow other;
        ASSERT_TRUE(other.Open());
        other.MoveWindow(CRect(100, 100, 500, 400));
        CPlainWindow popup;
        ASSERT_TRUE(popup.Open());
        popup.CenterWindow(&other);
        EXPECT_TRUE(PlaceOf(popup) == CRect(250, 225, 350, 275));
        popup.CenterWindow(CWnd::GetDesktopWindow());
        EXPECT_TRUE(PlaceOf(popup) == Middle(WorkingArea(), 100, 50));
    });
}

TEST(Window, StaysOnTheScreenWhereItsOwnerIsAtTheEdge)
{
    OnUi([] {
        CPlainWindow owner;
        ASSERT_TRUE(owner.Open());
        owner.MoveWindow(CRect(-80, -30, 20, 20));
        owner.ShowWindow(SW_SHOWNOACTIVATE);
        CWnd popup;
        ASSERT_TRUE(popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 60, 40), &owner, 0));
        popup.CenterWindow();
        EXPECT_EQ(WorkingArea().left, PlaceOf(popup).left);
        EXPECT_EQ(WorkingArea().top, PlaceOf(popup).top);
    });
}

TEST(Window, IsCentredOnItsParentAsAChild)
{
    OnUi([] {
        CPlainWindow parent;
        ASSERT_TRUE(parent.Open());
        parent.MoveWindow(CRect(100, 100, 500, 400));
        CWnd child;
        ASSERT_TRUE(child.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 60, 40), &parent, 0));
        child.CenterWindow();
        EXPECT_TRUE(PlaceOf(child) == CRect(270, 230, 330, 270));
    });
}

TEST(Window, IsPutWhereAndBehindWhatItIsTold)
{
    OnUi([] {
        CPlainWindow parent;
        ASSERT_TRUE(parent.Open());
        CWnd first;
        CWnd second;
        ASSERT_TRUE(first.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
        ASSERT_TRUE(second.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 9, 9), &parent, 2));
        EXPECT_EQ(&first, parent.GetWindow(GW_CHILD));
        EXPECT_TRUE(first.SetWindowPos(&second, 3, 4, 20, 30, 0));
        EXPECT_EQ(&second, parent.GetWindow(GW_CHILD));
        CRect place = PlaceOf(first);
        parent.ScreenToClient(place);
        EXPECT_EQ(20, place.Width());
        EXPECT_EQ(3, place.left);
        EXPECT_EQ(4, place.top);
        EXPECT_TRUE(first.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
        EXPECT_EQ(&first, parent.GetWindow(GW_CHILD));
        EXPECT_TRUE(first.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
        EXPECT_EQ(&second, parent.GetWindow(GW_CHILD));
        EXPECT_TRUE(parent.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
        EXPECT_TRUE(parent.GetExStyle() & WS_EX_TOPMOST);
        EXPECT_TRUE(parent.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
        EXPECT_FALSE(parent.GetExStyle() & WS_EX_TOPMOST);
        EXPECT_TRUE(first.SetWindowPos(nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER));
    });
}

TEST(Rectangle, KnowsItsParts)
{
    CRect rect(CPoint(10, 20), CSize(30, 40));
    EXPECT_TRUE(rect == CRect(10, 20, 40, 60));
    EXPECT_FALSE(rect == CRect(10, 20, 40, 61));
    EXPECT_TRUE(rect.Size() == CSize(30, 40));
    EXPECT_TRUE(rect.TopLeft() == CPoint(10, 20));
    EXPECT_TRUE(rect.BottomRight() == CPoint(40, 60));
    EXPECT_FALSE(rect.BottomRight() == CPoint(40, 61));
    EXPECT_TRUE(rect.CenterPoint() == CPoint(25, 40));
    rect.InflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(9, 18, 41, 62));
    rect.DeflateRect(1, 2);
    rect.OffsetRect(5, -5);
    EXPECT_TRUE(rect == CRect(15, 15, 45, 55));
    EXPECT_FALSE(rect.IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
}

TEST(Window, TellsPlacesOnTheScreenAndInItself)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open()); // at 10, 20
        CRect rect(1, 2, 3, 4);
        window.ClientToScreen(rect);
        EXPECT_TRUE(rect == CRect(11, 22, 13, 24));
        window.ScreenToClient(rect);
        EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    });
}

// ---- controls by their ids ----

class ControlsById : public testing::Test {
protected:
    ControlsById()
    {
        OnUi([this] { EXPECT_TRUE(dialog.Create(IDD_EXCHANGE)); });
    }
    ~ControlsById() override
    {
        OnUi([this] { dialog.DestroyWindow(); });
    }
    CDialog dialog;
};

TEST_F(ControlsById, HoldWholeNumbers)
{
    OnUi([this] {
        dialog.SetDlgItemInt(IDC_NUMBER, static_cast<UINT>(-42));
        EXPECT_EQ(L"-42", ui::TextOf(dialog, IDC_NUMBER));
        BOOL translated = FALSE;
        EXPECT_EQ(-42, static_cast<int>(dialog.GetDlgItemInt(IDC_NUMBER, &translated)));
        EXPECT_TRUE(translated);
        dialog.SetDlgItemInt(IDC_NUMBER, 4000000000U, FALSE);
        EXPECT_EQ(0U, dialog.GetDlgItemInt(IDC_NUMBER, &translated));
        EXPECT_FALSE(translated) << "too large for a number with a sign";
        EXPECT_EQ(L"4000000000", ui::TextOf(dialog, IDC_NUMBER));
        EXPECT_EQ(4000000000U, dialog.GetDlgItemInt(IDC_NUMBER, nullptr, FALSE));
        dialog.SetDlgItemText(IDC_NUMBER, L"x");
        EXPECT_EQ(0U, dialog.GetDlgItemInt(IDC_NUMBER, &translated));
        EXPECT_FALSE(translated);
    });
}

TEST_F(ControlsById, TellTheirTexts)
{
    OnUi([this] {
        dialog.SetDlgItemText(IDC_TEXT, L"Подача");
        CString text;
        EXPECT_EQ(6, dialog.GetDlgItemText(IDC_TEXT, text));
        EXPECT_STREQ(L"Подача", text);
        wchar_t room[4] = L"";
        EXPECT_EQ(3, dialog.GetDlgItemText(IDC_TEXT, room, 4));
        EXPECT_STREQ(L"Под", room);
        EXPECT_EQ(3, dialog.GetDlgItem(IDC_TEXT)->GetWindowText(room, 4));
        EXPECT_EQ(0, dialog.GetDlgItemText(IDC_MISSING, text));
        EXPECT_STREQ(L"", text);
    });
}

TEST_F(ControlsById, AreOneRadioButtonOnOfARange)
{
    OnUi([this] {
        EXPECT_EQ(0, dialog.GetCheckedRadioButton(IDC_FIRST_RADIO, IDC_THIRD_RADIO));
        dialog.CheckDlgButton(IDC_THIRD_RADIO, BST_CHECKED);
        dialog.CheckRadioButton(IDC_FIRST_RADIO, IDC_THIRD_RADIO, IDC_SECOND_RADIO);
        EXPECT_EQ(IDC_SECOND_RADIO, dialog.GetCheckedRadioButton(IDC_FIRST_RADIO, IDC_THIRD_RADIO));
        EXPECT_FALSE(dialog.IsDlgButtonChecked(IDC_THIRD_RADIO));
    });
}

TEST_F(ControlsById, AreOfTheirDialog)
{
    OnUi([this] {
        CWnd* const edit = dialog.GetDlgItem(IDC_NUMBER);
        EXPECT_TRUE(dialog.IsChild(edit));
        EXPECT_FALSE(edit->IsChild(&dialog));
        EXPECT_FALSE(dialog.IsChild(nullptr));
        EXPECT_EQ(&dialog, edit->GetTopLevelParent());
        EXPECT_EQ(&dialog, dialog.GetTopLevelParent());
        CDialog owned;
        ASSERT_TRUE(owned.Create(IDD_NUMBER, &dialog));
        EXPECT_EQ(&dialog, owned.GetTopLevelParent());
        dialog.ShowWindow(SW_SHOW);
        edit->SetFocus();
        EXPECT_EQ(edit->m_hWnd, CWnd::GetFocus()->m_hWnd);
    });
}

// ---- styles and handles ----

TEST(Window, ChangesItsStyleAndDrawsItsFrameAnew)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        EXPECT_FALSE(window.GetStyle() & WS_BORDER);
        EXPECT_TRUE(window.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
        EXPECT_TRUE(window.GetStyle() & WS_BORDER);
        CRect client;
        window.GetClientRect(client);
        EXPECT_EQ(98, client.Width());
        EXPECT_FALSE(window.ModifyStyle(0, WS_BORDER));
        EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_TOOLWINDOW));
        EXPECT_TRUE(window.GetExStyle() & WS_EX_TOOLWINDOW);
        EXPECT_FALSE(window.IsIconic());
    });
}

TEST(Window, HoldsItsPaintingBack)
{
    OnUi([] {
        CPlainWindow window;
        ASSERT_TRUE(window.Open());
        window.ShowWindow(SW_SHOWNOACTIVATE);
        window.UpdateWindow();
        window.SetRedraw(FALSE);
        window.Invalidate();
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
        window.SetRedraw();
        const CRect corner(0, 0, 5, 5);
        window.InvalidateRect(&corner);
        EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
    });
}

/// No check of pointers here, as the framework documents the call for a null one.
#ifdef __GNUC__
__attribute__((no_sanitize("undefined")))
#endif
HWND SafeHandleOf(const CWnd* window)
{
    return window->GetSafeHwnd();
}

TEST(Window, HasAHandleThatIsSafeToAskFor)
{
    OnUi([] {
        CPlainWindow window;
        EXPECT_EQ(nullptr, SafeHandleOf(&window));
        ASSERT_TRUE(window.Open());
        EXPECT_EQ(window.m_hWnd, SafeHandleOf(&window));
        EXPECT_EQ(nullptr, SafeHandleOf(nullptr));
    });
}

} // namespace
