// The dialog of the setup sheet.
#pragma once

#include "PelmarDlgs/dialogs/nc_dialog.h"
#include "PelmarDlgs/records/setup_sheet.h"

namespace pelmar {
class SetupSheetState;
}

/// The dialog that edits a copy of the live record, inside a window of the host's. On acceptance the host has it take
/// its controls (UpdateData), calls SetData and saves the live record; the dialog writes no file.
class PELMAR_API CDefsSetupsheet : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CDefsSetupsheet)
public:
    enum { IDD = 1910 };

    explicit CDefsSetupsheet(CWnd* parent = nullptr);
    ~CDefsSetupsheet() override;

    /// Hands the dialog the host's units (1 millimetre, else inch), converts the live record to them and shows it. Call
    /// it while the dialog's window exists.
    void GetData(int units);
    /// Puts the dialog's copy back into the live record, as the controls last handed it over.
    void SetData();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnCancel() override;

    void OnEnKillfocusEditRapidrate();
    void OnEnKillfocusEditToolchange();
    void OnBnClickedChkTooling();
    void OnCbnSelchangeCbStyle();
    /// Answers kSetDefaultsMessage: the copy takes its defaults; the controls show them at the next UpdateData(FALSE).
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    pelmar::SetupSheetState* m_state;
};
