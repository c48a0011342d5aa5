#include "dialogs/dialog_driver.h"

#include <stdexcept>

OpenModal::OpenModal(CDialog& dialog, const std::wstring& title)
{
    ui::UiThread::Get().Start([this, &dialog] { result = dialog.DoModal(); });
    window = ui::WaitForWindow(title);
}

OpenModal::~OpenModal()
{
    if (!IsOpen())
        return;
    ui::DismissBoxes();
    PostMessage(window, WM_COMMAND, IDCANCEL, 0);
    ui::WaitForCloseWithBoxes(window);
    ui::UiThread::Get().WaitForStarted();
}

void OpenModal::Press(int button)
{
    PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button), reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
    ui::Settle(window);
}

void OpenModal::End(int button)
{
    Press(button);
    if (!ui::WaitForClose(window) || !ui::UiThread::Get().WaitForStarted())
        throw std::runtime_error("the dialog did not close");
}

OpenInside::OpenInside(CDialog& dialog, UINT templateId)
{
    ui::UiThread::Get().Call([&] {
        auto* const host = new CFrameWnd; // deletes itself with its window
        if (!host->Create(AfxRegisterWndClass(0), L"Окно программы", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                          CRect(0, 0, 900, 700)))
            throw std::runtime_error("the host's window was not created");
        frame = host->m_hWnd;
        if (!dialog.Create(templateId, host))
            throw std::runtime_error("the dialog was not created");
        window = dialog.m_hWnd;
        dialog.ShowWindow(SW_SHOW);
    });
    ui::Settle(window);
}

OpenInside::~OpenInside()
{
    ui::DismissBoxes();
    ui::UiThread::Get().Start([this] { DestroyWindow(frame); });
    ui::WaitForCloseWithBoxes(frame);
    ui::UiThread::Get().WaitForStarted();
}

void PostHostMessage(HWND dialog, UINT message)
{
    PostMessage(dialog, message, 0, 0);
    ui::Settle(dialog);
}

LRESULT SendHostMessage(HWND dialog, UINT message)
{
    const LRESULT answer = SendMessage(dialog, message, 0, 0);
    ui::Settle(dialog);
    return answer;
}
