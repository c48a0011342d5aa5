// Base of the dialogs of the NC module's global settings.
//
// A host shows them as windows of their own (DoModal) or inside one of its own windows (Create), and sends them the
// messages of messages.h. Values travel between the host and a dialog while the dialog's window exists.
#pragma once

#include <afxwin.h>

#include "PelmarDlgs/export.h"
#include "PelmarDlgs/messages.h"

namespace pelmar {

/// A dialog that finds its template in the library, whatever the host numbers its own, and knows the help file.
class PELMAR_API CNCDialog : public CDialog {
public:
    INT_PTR DoModal() override;
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    CNCDialog(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

    /// Gives the caption its "?" button.
    BOOL OnNcCreate(CREATESTRUCTW* create);
    /// Switches the application's context-help mode on where the message is a click on the "?" button. The dialog does
    /// so itself, and sees to it that the mode ends.
    static void WatchForContextHelp(UINT message, WPARAM wParam);
    /// Has the dialog handle its Help command (ID_HELP) where help is asked for with the keyboard or with the "?"
    /// button: F1 asks about the dialog, Shift+F1 and the "?" pointer about the control under the pointer.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace pelmar
