// The dialogs of the NC settings, shown as a host shows them.
#pragma once

#include <string>

#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

/// A dialog shown with DoModal, until it is closed or the test ends. The dialog must outlive it.
class OpenModal {
public:
    OpenModal(CDialog& dialog, const std::wstring& title);
    ~OpenModal();
    OpenModal(const OpenModal&) = delete;
    OpenModal& operator=(const OpenModal&) = delete;

    HWND window = nullptr;
    INT_PTR result = 0; ///< of DoModal, once it is closed

    bool IsOpen() const { return IsWindow(window); }
    /// Presses a button, with no wait for anything to close.
    void Press(int button);
    /// Presses a button and waits for the dialog to close; throws where it stays.
    void End(int button);
};

/// A dialog that stands inside a window of the host's. The dialog must outlive it.
class OpenInside {
public:
    OpenInside(CDialog& dialog, UINT templateId);
    ~OpenInside();
    OpenInside(const OpenInside&) = delete;
    OpenInside& operator=(const OpenInside&) = delete;

    HWND window = nullptr; ///< the dialog's
    HWND frame = nullptr;  ///< the host's window around it
};

/// Sends a dialog one of the host's messages without waiting: the dialog may ask the user something.
void PostHostMessage(HWND dialog, UINT message);
/// Sends one and gives the dialog's answer. Only for messages that ask nothing.
LRESULT SendHostMessage(HWND dialog, UINT message);
