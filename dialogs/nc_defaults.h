// The dialog of the NC module's global defaults.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "dialogs/nc_dialog.h"
#include "expr/expression_edits.h"

#pragma pack(push, 2)
/// The part of the defaults that the host keeps. The layout is the host's as well. Whole numbers but the material are
/// 0 or 1.
struct OptNCDefData {
    std::int32_t material = 0;            ///< id of the stock material in the tool library
    std::int32_t defToLastMaterial = 0;   ///< the material last chosen is the default at start-up
    std::int32_t defToLastTool = 0;       ///< the tool last chosen is the default at start-up
    std::int32_t defToLastCutControl = 0; ///< the parameters of the operation are saved when the host exits
    std::int32_t alphanumericProgramName = 0;
    std::int32_t calculateMinimumZ = 0;
    std::uint8_t filterSpans = 0;      ///< lines and arcs are split into short spans
    double filterMaxSpan = 0.001;      ///< longest span of a line, 0 or more
    double filterArcTolerance = 0.001; ///< of a segment of an arc, 0 or more
};
#pragma pack(pop)
static_assert(sizeof(OptNCDefData) == 42);
static_assert(offsetof(OptNCDefData, filterMaxSpan) == 26);
static_assert(offsetof(OptNCDefData, filterArcTolerance) == 34);

/// What the user edits in the dialog. Whole numbers but the material are 0 or 1.
struct NCDefaults {
    int displayMode = 0; ///< of the NC commands: 0 toolbar, 1 drop-down menu; from the host's defaults, any number
    int menuIcons = 0;
    int defToLastMaterial = 0;
    int defToLastTool = 0;
    int defToLastCutControl = 0;
    int calculateMinimumZ = 0;
    int alphanumericProgramName = 0;
    int classic3Axis = 0;
    int filterSpans = 0;
    double filterMaxSpan = 0.001;
    double filterArcTolerance = 0.001;
    int material = 0;
};

/// Edits the global defaults, modally. What the host does with it, while its window exists: GetData, then UpdateData to
/// show the values; kSetDefaultsMessage when the user asks for the defaults; on OK kCheckSaveDataMessage, then SetData.
///
/// The span filter is shown as the host's settings and the defaults file say and is stored in the settings file: the
/// dialog never shows by itself what it stored, the host's record brings it back.
class PELMAR_API CDefsNCDefaultsDlg : public CNCDialog {
    DECLARE_DYNCREATE(CDefsNCDefaultsDlg)
public:
    enum { IDD = 3947 };

    explicit CDefsNCDefaultsDlg(CWnd* parent = nullptr);

    /// Takes the host's record over. The controls show it after the next UpdateData. Null is ignored.
    void GetData(const OptNCDefData* data);
    /// Fills the host's record with the values that the controls last handed over. Stores the classic 3-axis mode in
    /// the host's settings and the span filter in the settings file, without a question. Null is ignored.
    void SetData(OptNCDefData* data);

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Answers kSetDefaultsMessage: the values of the host's defaults file and of the defaults file.
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    /// Answers kCheckSaveDataMessage: where something has changed that needs a restart, asks and stores it or takes it
    /// back.
    LRESULT CheckSaveData(WPARAM wParam, LPARAM lParam);
    void OnBnClickedDisplayModeToolbar();
    void OnBnClickedDisplayModeMenu();
    void OnBnClickedChkIcons();
    void OnBnClickedBtnMaterial();
    void OnBnClickedCheckFilterSpans();
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    void ChangeDisplayMode(int mode);
    void EnableTolerances();
    void StoreUntilRestart() const;
    void TakeBack();

    std::unique_ptr<CExpEqEdit[]> m_edits;
    NCDefaults m_values;
    int m_displayModeAtOpening = 0;
    int m_menuIconsAtOpening = 0;
    int m_classic3AxisAtOpening = 0;
    bool m_needsRestart = false;
};
