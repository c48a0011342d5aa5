#include <algorithm>
#include <functional>
#include <vector>

#include <afxdlgs.h>

#include "modal.h"
#include "resource.h"

namespace {

BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    ++*reinterpret_cast<size_t*>(count);
    if (GetAncestor(window, GA_PARENT) == GetDesktopWindow())
        EnumChildWindows(window, CountWindow, count);
    return TRUE;
}

struct Memory {
    size_t blocks = 0;
    size_t bytes = 0;
};

/// What is in use of the process's heaps.
Memory UsedMemory()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    EXPECT_LE(count, 64U);
    Memory used;
    for (DWORD index = 0; index < std::min<DWORD>(count, 64); ++index) {
        HeapLock(heaps[index]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[index], &entry)) {
            const bool isBusy = (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
            used.blocks += isBusy ? 1 : 0;
            used.bytes += isBusy ? entry.cbData : 0;
        }
        HeapUnlock(heaps[index]);
    }
    return used;
}

/// The highest place in the table of handles once `count` more are taken: as handles are given out anew when they are
/// free, it rises with every one that stays in use.
template <class Make, class Close> size_t HighestPlace(Make make, Close close)
{
    std::vector<size_t> places;
    for (int count = 0; count < 400; ++count)
        places.push_back(reinterpret_cast<size_t>(make()));
    size_t highest = 0;
    for (const size_t place : places) {
        highest = std::max(highest, place & 0xFFFF); // above that, a graphics object's handle counts its place's uses
        close(reinterpret_cast<HANDLE>(place));
    }
    return highest;
}

/// What the user-interface thread holds.
struct Holdings {
    static Holdings Now()
    {
        Holdings now;
        EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.windows));
        now.handles = HighestPlace([] { return CreateEvent(nullptr, FALSE, FALSE, nullptr); }, CloseHandle) / 4;
        now.graphics = HighestPlace([] { return CreatePen(PS_SOLID, 1, 0); }, DeleteObject);
        now.memory = UsedMemory();
        return now;
    }
    Memory memory;
    size_t windows = 0;
    size_t handles = 0;
    size_t graphics = 0;
};

/// Expects that many runs of `work` leave nothing behind, save what the system puts by once in a while.
void ExpectNothingLeft(size_t cycles, const std::function<void()>& work)
{
    OnUi([&] {
        for (int warmUp = 0; warmUp < 20; ++warmUp)
            work();
        const Holdings before = Holdings::Now();
        for (size_t cycle = 0; cycle < cycles; ++cycle)
            work();
        const Holdings after = Holdings::Now();
        EXPECT_GT(before.memory.blocks, 100U); // the heaps can be looked into
        EXPECT_LE(after.memory.blocks, before.memory.blocks + cycles / 4);
        EXPECT_LE(after.memory.bytes, before.memory.bytes + cycles * 16);
        EXPECT_EQ(before.windows, after.windows);
        EXPECT_LE(after.handles, before.handles + cycles / 4);
        EXPECT_LE(after.graphics, before.graphics + cycles / 4);
    });
}

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

class CBriefSheet : public CPropertySheet {
public:
    CBriefSheet() : CPropertySheet(L"Лист") {}
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
        CBriefSheet sheet;
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        ASSERT_LT(0, sheet.DoModal());
    });
}

/// Asks for the object of whatever window a message names.
class CAskingWindow : public CWnd {
protected:
    LRESULT OnAsk(WPARAM window, LPARAM) { return FromHandle(reinterpret_cast<HWND>(window)) != nullptr; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAskingWindow, CWnd)
    ON_MESSAGE(WM_APP, &CAskingWindow::OnAsk)
END_MESSAGE_MAP()

HWND MakeBareWindow()
{
    return CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
}

TEST(Leaks, NoneByTemporaryObjectsOfMessages)
{
    CAskingWindow asking;
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
