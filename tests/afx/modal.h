// What the tests of the framework share: modal windows that a test acts at, and an application that notes its boxes.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

/// A dialog or sheet that is open on the user-interface thread while the test acts at its window.
class Modal {
public:
    template <class Window> Modal(Window& shown, const std::wstring& title)
    {
        ui::UiThread::Get().Start([this, &shown] { m_result = shown.DoModal(); });
        window = ui::WaitForWindow(title);
    }
    /// Ends what a failed test has left open.
    ~Modal()
    {
        if (IsWindow(window))
            ui::UiThread::Get().Call([this] {
                for (const HWND open : ui::TopLevelWindows())
                    if (auto* const dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(open)))
                        dialog->EndDialog(IDCANCEL);
                    else
                        EndDialog(open, IDCANCEL);
                SendMessage(window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
            });
        ui::UiThread::Get().WaitForStarted();
    }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;

    /// Clicks a button that closes the window; what DoModal returned.
    INT_PTR CloseBy(int button)
    {
        ui::Click(window, button);
        return Result();
    }
    /// What DoModal returned, once the window has closed by itself.
    INT_PTR Result()
    {
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
        return m_result;
    }

    HWND window = nullptr;

private:
    INT_PTR m_result = 0;
};

/// An application that notes its message boxes and answers them itself. It is the application while it exists.
class CQuietApp : public CWinApp {
public:
    CQuietApp() : CWinApp(L"Проверка") {}
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override
    {
        boxes.push_back({prompt, type, promptId});
        return answer;
    }

    struct Box {
        std::wstring text;
        UINT type;
        UINT helpId;
    };
    std::vector<Box> boxes;
    int answer = IDOK;
};

/// Runs the rest of a test's body on the user-interface thread.
template <class Work> void OnUi(Work work)
{
    ui::UiThread::Get().Call(work);
}
