// The dialog in which the user chooses where the NC module's settings are.
#pragma once

#include "PelmarDlgs/dialogs/nc_dialog.h"

namespace pelmar {
class ChooserState;
}

/// Chooses the folder of the NC settings files and the one of them that is loaded at start-up. Both are kept in the
/// host's settings file and take effect when the host starts again.
///
/// Shown inside a window of the host's, which sends it the messages of messages.h.
class PELMAR_API CNCDefaultPath : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CNCDefaultPath)
public:
    enum { IDD = 105 };

    explicit CNCDefaultPath(CWnd* parent = nullptr);
    ~CNCDefaultPath() override;

    /// Takes folder and start-up file from a host's settings file and shows them. The start-up files that it names are
    /// added to those of files read before.
    void ReadFromIni(const char* file);
    /// Lists the settings files of the folder. The start-up file is selected, or the first one where it is not there.
    void UpdateNCIniFileCB();

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    void OnDirBtn();
    /// The folder is not for typing: what was typed is undone.
    void OnChangeDirEdit();
    /// Answers kCheckSaveDataMessage: where something has changed, asks and stores it or takes it back.
    LRESULT CheckSaveData(WPARAM wParam, LPARAM lParam);
    /// Answers kSetDefaultsMessage: folder and start-up file of the host's defaults file.
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    void OnSelchangeComboInifile();
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    pelmar::ChooserState* m_state;
};
