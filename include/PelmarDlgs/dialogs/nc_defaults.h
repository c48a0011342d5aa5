// The dialog of the NC module's global defaults.
#pragma once

#include <cstddef>
#include <cstdint>

#include "PelmarDlgs/dialogs/nc_dialog.h"

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

namespace pelmar {
class NCDefaultsState;
}

/// Edits the global defaults, modally. What the host does with it, while its window exists: GetData, then UpdateData to
/// show the values; kSetDefaultsMessage when the user asks for the defaults; on OK kCheckSaveDataMessage, then SetData.
///
/// The span filter is shown as the host's settings and the defaults file say and is stored in the settings file: the
/// dialog never shows by itself what it stored, the host's record brings it back.
class PELMAR_API CDefsNCDefaultsDlg : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CDefsNCDefaultsDlg)
public:
    enum { IDD = 3947 };

    explicit CDefsNCDefaultsDlg(CWnd* parent = nullptr);
    ~CDefsNCDefaultsDlg() override;

    /// Takes the host's record over. The controls show it after the next UpdateData. Null is ignored.
    void GetData(const OptNCDefData* data);
    /// Fills the host's record with the values that the controls last handed over. Stores the classic 3-axis mode in
    /// the host's settings and the span filter in the settings file, without a question. Null is ignored.
    void SetData(OptNCDefData* data);

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

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
    pelmar::NCDefaultsState* m_state;
};
