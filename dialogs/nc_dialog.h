// Base of the dialogs of the NC module's global settings.
//
// A host shows them as windows of their own (DoModal) or inside one of its own windows (Create), and sends them the
// messages of option_page.h. Values travel between the host and a dialog while the dialog's window exists.
#pragma once

#include <span>

#include <afxwin.h>

#include "frame/export.h"
#include "frame/help_viewer.h"

/// A dialog that finds its template in the library, whatever the host numbers its own, and knows the help file.
class PELMAR_API CNCDialog : public CDialog {
public:
    INT_PTR DoModal() override;
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;

protected:
    CNCDialog(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

    /// Gives the caption its "?" button.
    BOOL OnNcCreate(CREATESTRUCTW* create);
    /// Switches the application's context-help mode on where the message is a click on the "?" button.
    static void WatchForContextHelp(UINT message, WPARAM wParam);
    /// Answers the Help command: the topic of the control under the pointer in context-help mode, else the general one.
    void ShowHelp(const char* general, std::span<const HelpTopic> topics);
};

/// Tells the user that the changes need a restart of the host, and asks whether to store them.
bool AskToStoreUntilRestart();
