// The default tools of new operations, and how tool lists are shown.
#pragma once

#include <cstdint>

#include "PelmarDlgs/dialogs/nc_dialog.h"
#include "PelmarDlgs/records/tool_settings.h"

namespace pelmar {

/// Kinds of tools, in the order in which they are held everywhere.
enum ToolKind {
    kMillTool,
    kDrillTool,
    kLatheTool,
    kLatheDrillTool,
    kProbeTool,
    kEdmTool,
    kThreadTool,
    kFaceMillTool,
    kRoundMillTool,
    kChamferMillTool,
    kThreadMillTool,
    kToolKinds,
};

class DefaultToolsState;

} // namespace pelmar

/// The part of the default tools that the host keeps: ids of the tool library, for each kind the inch tool and the
/// millimetre tool. The layout is the host's as well.
struct OptNCDefToolsData {
    std::int32_t toolIds[pelmar::kToolKinds][2] = {};
};
static_assert(sizeof(OptNCDefToolsData) == 22 * sizeof(std::int32_t));

extern "C" {

/// How tool lists are to be sorted: ToolSortBy of the live record.
PELMAR_API int PelmarUI_nGetToolListSortBy();

/// Whether only ball tools may be chosen: a flag for the host, which nothing in the library sets or asks for. Off at
/// first.
PELMAR_API bool PelmarUI_nGetEnableOnlyBallTool();
PELMAR_API void PelmarUI_nSetEnableOnlyBallTool(bool enable);
}

/// Chooses the default tool of each kind, for inch and for millimetre, from the tool library. What the host does with
/// it, while its window exists: GetData; kSetDefaultsMessage when the user asks for the defaults, then UpdateData to
/// show them; on OK SetData, then kWriteToIniMessage for the settings of the live record.
///
/// The tool library follows the units that the user switches to, and keeps them after OK. Without a tool library the
/// dialog starts in inch, shows no descriptions, and its buttons do nothing.
class PELMAR_API CDefsNCToolsDlg : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CDefsNCToolsDlg)
public:
    enum { IDD = 316 };

    explicit CDefsNCToolsDlg(CWnd* parent = nullptr);
    ~CDefsNCToolsDlg() override;

    /// Takes the host's tools and the live record over and shows them, the tools as the units at opening have them.
    /// Null is ignored.
    void GetData(const OptNCDefToolsData* data);
    /// Takes the controls and hands out the tools; the rest goes to the live record. Writes no file. Null is ignored.
    void SetData(OptNCDefToolsData* data);

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCancel() override;

    void OnHelp();
    void OnChooseUSTool();
    void OnChooseMetricTool();
    void OnChooseMillTool();
    void OnChooseDrillTool();
    void OnChooseLatheTool();
    void OnChooseLDrillTool();
    void OnChooseDgtzTool();
    void OnChooseEDMTool();
    void OnChooseThreadTool();
    void OnChooseFaceMillTool();
    void OnChooseCornerRoundTool();
    void OnChooseChamferMillTool();
    void OnChooseThreadMillTool();
    /// Answers kSetDefaultsMessage: tools and settings of the defaults file. The controls do not show them by
    /// themselves.
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    /// Answers kWriteToIniMessage: writes the settings, as the controls last handed them over, to the settings file.
    LRESULT WriteToIni(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    pelmar::DefaultToolsState* m_state;
};
