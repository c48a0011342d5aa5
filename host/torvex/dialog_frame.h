// A window of the host's around a dialog that has no buttons of its own.
#pragma once

#include <functional>

#include <afxwin.h>

#include "pending_save.h"
#include "resource.h"

/// What the frame shows, and when it does what with it. The dialog outlives the frame.
struct FramedDialog {
    CDialog& dialog;
    UINT templateId;
    UINT title;                     ///< string id
    std::function<void()> fill;     ///< once the dialog's window exists
    std::function<void()> store;    ///< on OK, after the dialog has stored its changes
    std::function<void()> defaults; ///< after the dialog has taken its defaults
};

/// Shows a dialog over the buttons that a settings window has, and passes it the host's messages: the defaults on the
/// user's wish, the question about changes on OK.
class CDialogFrame : public CDialog {
public:
    CDialogFrame(CWnd* parent, FramedDialog framed);

    BOOL OnInitDialog() override;

protected:
    void OnOK() override;
    void OnDefaults();
    void OnHelp();
    BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()

private:
    void Arrange();

    FramedDialog m_framed;
    PendingSave m_save;
};
