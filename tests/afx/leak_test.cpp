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

size_t BusyBytes()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    EXPECT_LE(count, 64U);
    size_t bytes = 0;
    for (DWORD index = 0; index < count && index < 64; ++index) {
        HeapLock(heaps[index]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[index], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        HeapUnlock(heaps[index]);
    }
    return bytes;
}

/// What the user-interface thread holds. Handle values are given out anew once they are free, so that the values of
/// fresh ones climb only where others stay in use.
struct Holdings {
    static Holdings Now()
    {
        Holdings now;
        now.bytes = BusyBytes();
        EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.windows));
        const HANDLE event = CreateEvent(nullptr, FALSE, FALSE, nullptr);
        now.event = reinterpret_cast<size_t>(event);
        CloseHandle(event);
        const HPEN pen = CreatePen(PS_SOLID, 1, 0);
        now.pen = reinterpret_cast<size_t>(pen) & 0xFFFF; // the rest counts the uses of the place
        DeleteObject(pen);
        return now;
    }
    size_t bytes = 0;
    size_t windows = 0;
    size_t event = 0;
    size_t pen = 0;
};

/// Expects that `cycles` more runs of `work` leave nothing behind. Eight bytes for each would be less than the
/// smallest block that a heap gives out.
void ExpectNothingLeft(int cycles, const std::function<void()>& work)
{
    OnUi([&] {
        for (int warmUp = 0; warmUp < 20; ++warmUp)
            work();
        const Holdings before = Holdings::Now();
        for (int cycle = 0; cycle < cycles; ++cycle)
            work();
        const Holdings after = Holdings::Now();
        EXPECT_LE(after.bytes, before.bytes + static_cast<size_t>(cycles) * 8);
        EXPECT_EQ(before.windows, after.windows);
        EXPECT_LE(after.event, before.event + 64);
        EXPECT_LE(after.pen, before.pen + 16);
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
    ExpectNothingLeft(300, [] {
        CExchangingDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_NUMBER));
    });
}

TEST(Leaks, NoneByRefusedExchanges)
{
    CQuietApp application;
    ExpectNothingLeft(300, [&] {
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
    ExpectNothingLeft(300, [] {
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
    ExpectNothingLeft(100, [] {
        CPropertyPage first(IDD_PAGE);
        CPropertyPage second(IDD_PAGE_WITH_TITLE);
        CBriefSheet sheet;
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        ASSERT_LT(0, sheet.DoModal());
    });
}

} // namespace
