// The setup sheet: the report of an NC job's tools and operations.
#pragma once

#include <memory>

#include "dialogs/nc_dialog.h"
#include "expr/expression_edits.h"

/// What the setup sheet holds and what machining time is estimated with, section "OptionsSSheet".
///
/// The operations never fail: what is absent from a file stays as it is, and what cannot be written is lost without a
/// message.
class PELMAR_API CSSheetOptionsInfo {
public:
    int Units = 0;               ///< 0 inch, 1 millimetre
    int SetupStyle = 1;          ///< 0 standard as HTML, 1 current as HTML, 2 standard
    double ToolChangeTime = 0.0; ///< of one change; the units of length do not touch it
    double RapidRate = 400.0;    ///< rapid traverse, length per time
    int UniqueTools = 0;         ///< 1 shows the operations with unique tools
    int ToolingSetup = 1;        ///< 1 puts out what there is to say of the tools
    int OperationsSetup = 1;     ///< the same of the operations
    int ToolingGraphics = 1;     ///< 1 puts out pictures of the tools
    int OperationsGraphics = 0;  ///< the same of the operations; no control edits it

    /// Built-in values, overlaid by the defaults file and converted to the units that the dialog was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the rapid rate to other units.
    void vOptions_CheckUnits(long units);
};

/// The live record, which the host reads when it makes a setup sheet. Never null; the library keeps it.
PELMAR_API CSSheetOptionsInfo* GetLastSSheetOptions();

/// Read and write the live record.
PELMAR_API void vSSheetOptions_Restore();
PELMAR_API void vSSheetOptions_Save();

/// The dialog that edits a copy of the live record, inside a window of the host's. On acceptance the host has it take
/// its controls (UpdateData), calls SetData and saves the live record; the dialog writes no file.
class PELMAR_API CDefsSetupsheet : public CNCDialog {
    DECLARE_DYNCREATE(CDefsSetupsheet)
public:
    enum { IDD = 1910 };

    explicit CDefsSetupsheet(CWnd* parent = nullptr);

    /// Hands the dialog the host's units (1 millimetre, else inch), converts the live record to them and shows it. Call
    /// it while the dialog's window exists.
    void GetData(int units);
    /// Puts the dialog's copy back into the live record, as the controls last handed it over.
    void SetData();

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    void OnEnKillfocusEditRapidrate();
    void OnEnKillfocusEditToolchange();
    void OnBnClickedChkTooling();
    void OnCbnSelchangeCbStyle();
    /// Answers kSetDefaultsMessage: the copy takes its defaults; the controls do not show them by themselves.
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    void LeaveEdit(int id);
    void SelectStyle();
    void EnableOutputs();

    std::unique_ptr<CExpEqEdit[]> m_edits;
    CComboBox m_styles;
    CSSheetOptionsInfo m_options;
};
