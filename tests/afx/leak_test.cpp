#include <functional>
#include <vector>

#include <afxdlgs.h>

#include "modal.h"
#include "resource.h"
#include "ui/holdings.h"

using ui::ExpectNothingLeft;
using ui::Memory;
using ui::UsedMemory;

namespace {

class CExchangingDialog : public CDialog {
public:
    using CDialog::CDialog;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Control(exchange, IDC_NUMBER, m_edit);
        DDX_Text(exchange, IDC_NUMBER, m_number);
    }

private:
    CEdit m_edit;
    int m_number = 5;
};

TEST(Leaks, NoneByDialogsThatComeAndGo)
{
    ExpectNothingLeft(1000, [] {
        CExchangingDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        dialog.GetDlgItem(IDC_NUMBER)->SetWindowText(L"7");
        ASSERT_TRUE(dialog.UpdateData(TRUE));
        dialog.DestroyWindow();
    });
}

TEST(Leaks, NoneByObjectsThatGoBeforeTheirDialogs)
{
    ExpectNothingLeft(150, [] {
        CExchangingDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
    });
}

TEST(Leaks, NoneByRefusedExchanges)
{
    CQuietApp application;
    ExpectNothingLeft(150, [&] {
        CExchangingDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
        dialog.SetDlgItemText(IDC_NUMBER, L"x");
        ASSERT_FALSE(dialog.UpdateData(TRUE));
        application.boxes.clear();
        application.boxes.shrink_to_fit();
    });
}

class CBriefDialog : public CExchangingDialog {
public:
    CBriefDialog() : CExchangingDialog(IDD_NUMBER) {}
    BOOL OnInitDialog() override
    {
        CExchangingDialog::OnInitDialog();
        EndDialog(IDOK);
        return TRUE;
    }
};

TEST(Leaks, NoneByModalDialogs)
{
    ExpectNothingLeft(150, [] {
        CBriefDialog dialog;
        ASSERT_EQ(IDOK, dialog.DoModal());
    });
}

class CPassingSheet : public CPropertySheet {
public:
    CPassingSheet() : CPropertySheet(L"Лист") {}
    BOOL OnInitDialog() override
    {
        PostMessage(PSM_SETCURSEL, 1);
        PostMessage(PSM_PRESSBUTTON, PSBTN_OK);
        return CPropertySheet::OnInitDialog();
    }
};

TEST(Leaks, NoneByPropertySheets)
{
    ExpectNothingLeft(60, [] {
        CPropertyPage first(IDD_PAGE);
        CPropertyPage second(IDD_PAGE_WITH_TITLE);
        CPassingSheet sheet;
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        ASSERT_LT(0, sheet.DoModal());
    });
}

/// Asks for the object of whatever window a message names.
class CQuestionedWindow : public CWnd {
protected:
    LRESULT OnAsk(WPARAM window, LPARAM) { return FromHandle(reinterpret_cast<HWND>(window)) != nullptr; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CQuestionedWindow, CWnd)
    ON_MESSAGE(WM_APP, &CQuestionedWindow::OnAsk)
END_MESSAGE_MAP()

HWND MakeBareWindow()
{
    return CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
}

TEST(Leaks, NoneByTemporaryObjectsOfMessages)
{
    CQuestionedWindow asking;
    OnUi(
        [&] { ASSERT_TRUE(asking.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0)); });
    ExpectNothingLeft(150, [&] {
        const HWND window = MakeBareWindow();
        ASSERT_TRUE(asking.SendMessage(WM_APP, reinterpret_cast<WPARAM>(window)));
        ::DestroyWindow(window);
    });
    OnUi([&] { asking.DestroyWindow(); });
}

TEST(Leaks, NoneByTemporaryObjectsOutsideOfMessages)
{
    ExpectNothingLeft(150, [] {
        const HWND window = MakeBareWindow();
        ASSERT_NE(nullptr, CWnd::FromHandle(window));
        ::DestroyWindow(window);
    });
}

TEST(Leaks, NoneByTemporaryObjectsOnceTheMessageLoopGoesOn)
{
    constexpr size_t kWindows = 50;
    OnUi([] {
        CWinApp application(L"Проверка");
        std::vector<HWND> windows;
        for (size_t index = 0; index < kWindows; ++index)
            windows.push_back(MakeBareWindow());
        for (const HWND window : windows)
            ASSERT_NE(nullptr, CWnd::FromHandle(window));
        const Memory before = UsedMemory();
        PostThreadMessage(GetCurrentThreadId(), WM_NULL, 0, 0);
        PostQuitMessage(0);
        application.Run();
        EXPECT_LE(UsedMemory().blocks + kWindows, before.blocks);
        for (const HWND window : windows)
            ::DestroyWindow(window);
    });
}

} // namespace
