// Where dialogs and sheets come up.
#include <functional>

#include <afxdlgs.h>

#include "modal.h"
#include "resource.h"

namespace {

CRect PlaceOf(HWND window)
{
    CRect place;
    GetWindowRect(window, place);
    return place;
}

class CPlacedDialog : public CDialog {
public:
    explicit CPlacedDialog(CWnd* owner) : CDialog(IDD_NUMBER, owner) {}
    std::function<void()> onInit = [] {};

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        onInit();
        return TRUE;
    }
};

/// A shown owner in the middle of which there is room for what is tested.
class FirstPlace : public testing::Test {
protected:
    void SetUp() override
    {
        OnUi([this] {
            ASSERT_TRUE(m_owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE,
                                         CRect(CPoint(200, 150), CSize(700, 600)), nullptr, 0));
        });
    }
    void TearDown() override
    {
        OnUi([this] { m_owner.DestroyWindow(); });
    }

    void ExpectInTheMiddle(HWND window) const
    {
        const CPoint expected = PlaceOf(m_owner.m_hWnd).CenterPoint();
        const CPoint middle = PlaceOf(window).CenterPoint();
        EXPECT_NEAR(expected.x, middle.x, 1);
        EXPECT_NEAR(expected.y, middle.y, 1);
    }

    CWnd m_owner;
};

TEST_F(FirstPlace, OfADialogIsTheMiddleOfItsOwner)
{
    CPlacedDialog dialog(&m_owner);
    Modal open(dialog, L"Проба");
    ExpectInTheMiddle(open.window);
}

TEST_F(FirstPlace, OfADialogThatTakesAnotherSizeAtItsStartIsTheMiddleToo)
{
    CPlacedDialog dialog(&m_owner);
    dialog.onInit = [&] { dialog.SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER); };
    Modal open(dialog, L"Проба");
    EXPECT_EQ(500, PlaceOf(open.window).Width());
    ExpectInTheMiddle(open.window);
}

TEST_F(FirstPlace, OfADialogThatIsMovedAtItsStartIsWhereItWasMoved)
{
    CPlacedDialog dialog(&m_owner);
    dialog.onInit = [&] { dialog.SetWindowPos(nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER); };
    Modal open(dialog, L"Проба");
    EXPECT_TRUE(PlaceOf(open.window).TopLeft() == CPoint(33, 44));
}

TEST_F(FirstPlace, OfADialogThatStaysBesideItsOwnerIsTheMiddleToo)
{
    CPlacedDialog dialog(nullptr);
    OnUi([&] {
        ASSERT_TRUE(dialog.Create(IDD_NUMBER, &m_owner));
        ExpectInTheMiddle(dialog.m_hWnd);
        dialog.DestroyWindow();
    });
}

TEST_F(FirstPlace, OfASheetIsTheMiddleOfItsOwner)
{
    CPropertyPage page(IDD_PAGE);
    CPropertySheet sheet(L"Параметры", &m_owner);
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    ExpectInTheMiddle(open.window);
    open.CloseBy(IDCANCEL);
}

} // namespace
