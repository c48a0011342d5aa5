#include "PelmarDlgs/dialogs/default_tools.h"

#include <iterator>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "dialogs/default_tools_controls.h"
#include "frame/tool_library.h"
#include "pages/page_controls.h"
#include "records/global_settings.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {

struct ToolKindRow {
    int button;
    int text;
    ToolEntryPoint choose;
    ToolEntryPoint describe;
    const ToolSection& kept;
};

// Threading tools are lathe tools, and face, corner-rounding and chamfer mills are mills to the tool library.
constexpr ToolKindRow kKinds[] = {
    {IDC_TOOLS_MILL, IDC_TOOLS_MILL_TEXT, ToolEntryPoint::GetMillTool, ToolEntryPoint::LoadMillTool, kMillTools},
    {IDC_TOOLS_DRILL, IDC_TOOLS_DRILL_TEXT, ToolEntryPoint::GetDrillTool, ToolEntryPoint::LoadDrillTool, kDrillTools},
    {IDC_TOOLS_LATHE, IDC_TOOLS_LATHE_TEXT, ToolEntryPoint::GetLatheTool, ToolEntryPoint::LoadLatheTool, kLatheTools},
    {IDC_TOOLS_LATHE_DRILL, IDC_TOOLS_LATHE_DRILL_TEXT, ToolEntryPoint::GetLDrillTool, ToolEntryPoint::LoadLDrillTool,
     kLatheDrillTools},
    {IDC_TOOLS_PROBE, IDC_TOOLS_PROBE_TEXT, ToolEntryPoint::GetDgtzTool, ToolEntryPoint::LoadDgtzTool, kProbeTools},
    {IDC_TOOLS_EDM, IDC_TOOLS_EDM_TEXT, ToolEntryPoint::GetEdmTool, ToolEntryPoint::LoadEdmTool, kEdmTools},
    {IDC_TOOLS_THREAD, IDC_TOOLS_THREAD_TEXT, ToolEntryPoint::GetLatheTool, ToolEntryPoint::LoadLatheTool,
     kThreadTools},
    {IDC_TOOLS_FACE_MILL, IDC_TOOLS_FACE_MILL_TEXT, ToolEntryPoint::GetMillTool, ToolEntryPoint::LoadMillTool,
     kFaceMillTools},
    {IDC_TOOLS_ROUND_MILL, IDC_TOOLS_ROUND_MILL_TEXT, ToolEntryPoint::GetMillTool, ToolEntryPoint::LoadMillTool,
     kRoundMillTools},
    {IDC_TOOLS_CHAMFER_MILL, IDC_TOOLS_CHAMFER_MILL_TEXT, ToolEntryPoint::GetMillTool, ToolEntryPoint::LoadMillTool,
     kChamferMillTools},
    {IDC_TOOLS_THREAD_MILL, IDC_TOOLS_THREAD_MILL_TEXT, ToolEntryPoint::GetThreadMillTool,
     ToolEntryPoint::LoadThreadMillTool, kThreadMillTools},
};
static_assert(std::size(kKinds) == kToolKinds);

using Settings = CDefsNCToolsInfo;
struct SettingsRow {
    const char* key;
    int Settings::*value;
};
constexpr SettingsRow kSettings[] = {
    {global_key::kMillGaugeLength, &Settings::MillGaugeLength},
    {global_key::kLatheGaugeLength, &Settings::LatheGaugeLength},
    {global_key::kToolSortBy, &Settings::ToolSortBy},
};

void ReadFactoryTools(const ToolSection& tools, std::int32_t (&ids)[2])
{
    ids[0] = ReadDefaultWhole(tools.section, global_key::kInchTool, tools.inchTool);
    ids[1] = ReadDefaultWhole(tools.section, global_key::kMillimetreTool, tools.millimetreTool);
}

// ---- the tool library ----

/// A tool as the library fills it in. What else it holds of a tool is not used here.
struct ToolRecord {
    std::int32_t kind = 0;
    std::int32_t id = 0;
    char description[1576] = {};

    /// The library's text, ended within the record whatever the library has done.
    CString Description()
    {
        description[std::size(description) - 1] = '\0';
        return CString(description);
    }
};
static_assert(sizeof(ToolRecord) == 1584);

/// Has the user choose a tool. False where nothing was chosen, or nobody can be asked.
bool ChooseTool(ToolEntryPoint entryPoint, int currentId, ToolRecord& tool)
{
    if (entryPoint == ToolEntryPoint::GetDgtzTool || entryPoint == ToolEntryPoint::GetEdmTool) {
        auto* const choose = ToolLibraryFunction<int(int, ToolRecord*)>(entryPoint);
        return choose && choose(currentId, &tool) != 0;
    }
    auto* const choose = ToolLibraryFunction<int(int, ToolRecord*, int)>(entryPoint);
    return choose && choose(currentId, &tool, 0) != 0;
}

bool DescribeTool(ToolEntryPoint entryPoint, int id, ToolRecord& tool)
{
    auto* const describe = ToolLibraryFunction<int(int, ToolRecord*)>(entryPoint);
    return describe && describe(id, &tool) != 0;
}

int ToolUnits()
{
    auto* const units = ToolLibraryFunction<int()>(ToolEntryPoint::GetToolUnits);
    return units ? UnitsOfHost(units()) : kInch;
}

void SetToolUnits(int units)
{
    if (auto* const set = ToolLibraryFunction<int(int)>(ToolEntryPoint::SetToolUnits))
        set(units);
}

/// The text from its first character that is no blank on.
void RemoveSpace(CString& text)
{
    int blanks = 0;
    while (text.GetAt(blanks) == L' ')
        ++blanks;
    text = text.Mid(blanks);
}

Settings g_live;
bool g_onlyBallTools = false;
} // namespace

// ---- the settings ----

void CDefsNCToolsInfo::Defaults()
{
    *this = {};
}

void CDefsNCToolsInfo::Save()
{
    SaveStep step;
    for (const SettingsRow& row : kSettings)
        WriteWhole(global_section::kSettings, row.key, this->*row.value);
    step.Commit();
}

void CDefsNCToolsInfo::Restore()
{
    const SettingsReading oneVersion;
    for (const SettingsRow& row : kSettings)
        this->*row.value = ReadWhole(global_section::kSettings, row.key, this->*row.value);
}

CDefsNCToolsInfo* GetLastDefsNCToolsInfo()
{
    return &g_live;
}

int PelmarUI_nGetToolListSortBy()
{
    return g_live.ToolSortBy;
}

bool PelmarUI_nGetEnableOnlyBallTool()
{
    return g_onlyBallTools;
}

void PelmarUI_nSetEnableOnlyBallTool(bool enable)
{
    g_onlyBallTools = enable;
}

// ---- the dialog ----

static_assert(int{CDefsNCToolsDlg::IDD} == IDD_TOOLS);

/// What the dialog edits.
class pelmar::DefaultToolsState {
public:
    explicit DefaultToolsState(CDefsNCToolsDlg& dialog) : units(ToolUnits()), unitsAtOpening(units), m_dialog(dialog) {}

    /// Describes the tools of the units at opening.
    void UpdateToolDesc()
    {
        for (int kind = 0; kind < kToolKinds; ++kind)
            Describe(kind, unitsAtOpening);
    }

    /// Switches the dialog and the tool library to these units; nothing where it has them.
    void SetNewUnits(long newUnits)
    {
        if (newUnits == units)
            return;
        units = newUnits;
        SetToolUnits(units);
        for (int kind = 0; kind < kToolKinds; ++kind)
            Describe(kind, units);
        m_dialog.UpdateData(FALSE);
    }

    void Choose(ToolKind kind)
    {
        std::int32_t& id = tools.toolIds[kind][UnitsOfHost(units)];
        ToolRecord tool;
        if (!ChooseTool(kKinds[kind].choose, id, tool))
            return;
        id = tool.id;
        descriptions[kind] = tool.Description();
        m_dialog.UpdateData(FALSE);
    }

    CDefsNCToolsInfo settings;
    int units;          ///< index of the tool ids: 0 inch, 1 millimetre
    int unitsAtOpening; ///< those of the tool library
    OptNCDefToolsData tools;
    CString descriptions[kToolKinds];

private:
    /// Takes over what the tool library says of a kind's tool. Where it does not know the tool the old text stays.
    void Describe(int kind, int ofUnits)
    {
        ToolRecord tool;
        if (DescribeTool(kKinds[kind].describe, tools.toolIds[kind][ofUnits], tool))
            descriptions[kind] = tool.Description();
    }

    CDefsNCToolsDlg& m_dialog;
};

IMPLEMENT_DYNCREATE(CDefsNCToolsDlg, CDialog)

BEGIN_MESSAGE_MAP(CDefsNCToolsDlg, pelmar::CNCDialog)
    ON_WM_NCCREATE()
    ON_COMMAND(ID_HELP, &CDefsNCToolsDlg::OnHelp)
    ON_COMMAND(IDC_TOOLS_INCH, &CDefsNCToolsDlg::OnChooseUSTool)
    ON_COMMAND(IDC_TOOLS_MILLIMETRE, &CDefsNCToolsDlg::OnChooseMetricTool)
    ON_COMMAND(IDC_TOOLS_MILL, &CDefsNCToolsDlg::OnChooseMillTool)
    ON_COMMAND(IDC_TOOLS_DRILL, &CDefsNCToolsDlg::OnChooseDrillTool)
    ON_COMMAND(IDC_TOOLS_LATHE, &CDefsNCToolsDlg::OnChooseLatheTool)
    ON_COMMAND(IDC_TOOLS_LATHE_DRILL, &CDefsNCToolsDlg::OnChooseLDrillTool)
    ON_COMMAND(IDC_TOOLS_PROBE, &CDefsNCToolsDlg::OnChooseDgtzTool)
    ON_COMMAND(IDC_TOOLS_EDM, &CDefsNCToolsDlg::OnChooseEDMTool)
    ON_COMMAND(IDC_TOOLS_THREAD, &CDefsNCToolsDlg::OnChooseThreadTool)
    ON_COMMAND(IDC_TOOLS_FACE_MILL, &CDefsNCToolsDlg::OnChooseFaceMillTool)
    ON_COMMAND(IDC_TOOLS_ROUND_MILL, &CDefsNCToolsDlg::OnChooseCornerRoundTool)
    ON_COMMAND(IDC_TOOLS_CHAMFER_MILL, &CDefsNCToolsDlg::OnChooseChamferMillTool)
    ON_COMMAND(IDC_TOOLS_THREAD_MILL, &CDefsNCToolsDlg::OnChooseThreadMillTool)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsNCToolsDlg::SetDefaults)
    ON_MESSAGE(kWriteToIniMessage, &CDefsNCToolsDlg::WriteToIni)
END_MESSAGE_MAP()

CDefsNCToolsDlg::CDefsNCToolsDlg(CWnd* parent) : CNCDialog(IDD, parent), m_state(new DefaultToolsState(*this)) {}

CDefsNCToolsDlg::~CDefsNCToolsDlg()
{
    delete m_state;
}

BOOL CDefsNCToolsDlg::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    FillList(*this, IDC_TOOLS_SORT_TYPE, kToolSortTypes);
    return TRUE;
}

void CDefsNCToolsDlg::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Radio(exchange, IDC_TOOLS_INCH, m_state->units);
    for (size_t kind = 0; kind < std::size(kKinds); ++kind) {
        RemoveSpace(m_state->descriptions[kind]);
        DDX_Text(exchange, kKinds[kind].text, m_state->descriptions[kind]);
    }
    DDX_Check(exchange, IDC_TOOLS_MILL_GAUGE_LENGTH, m_state->settings.MillGaugeLength);
    DDX_Check(exchange, IDC_TOOLS_LATHE_GAUGE_LENGTH, m_state->settings.LatheGaugeLength);
    DDX_CBIndex(exchange, IDC_TOOLS_SORT_TYPE, m_state->settings.ToolSortBy);
}

void CDefsNCToolsDlg::GetData(const OptNCDefToolsData* data)
{
    if (!data)
        return;
    m_state->tools = *data;
    m_state->UpdateToolDesc();
    m_state->settings = g_live;
    UpdateData(FALSE);
}

void CDefsNCToolsDlg::SetData(OptNCDefToolsData* data)
{
    if (!data)
        return;
    UpdateData(TRUE);
    *data = m_state->tools;
    g_live = m_state->settings;
}

LRESULT CDefsNCToolsDlg::SetDefaults(WPARAM, LPARAM)
{
    for (size_t kind = 0; kind < std::size(kKinds); ++kind)
        ReadFactoryTools(kKinds[kind].kept, m_state->tools.toolIds[kind]);
    for (const SettingsRow& row : kSettings)
        m_state->settings.*row.value = ReadDefaultWhole(global_section::kSettings, row.key, 0);
    m_state->UpdateToolDesc();
    return 0;
}

LRESULT CDefsNCToolsDlg::WriteToIni(WPARAM, LPARAM)
{
    m_state->settings.Save();
    return 0;
}

void CDefsNCToolsDlg::OnCancel()
{
    SetToolUnits(m_state->unitsAtOpening);
    CNCDialog::OnCancel();
}

/// Hosts know it under this name.
LRESULT CDefsNCToolsDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CNCDialog::WindowProc(message, wParam, lParam);
}

void CDefsNCToolsDlg::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kDefaultToolsPage.topic, kDefaultToolsPage.controls);
}

// ---- the buttons ----

void CDefsNCToolsDlg::OnChooseUSTool()
{
    m_state->SetNewUnits(kInch);
}

void CDefsNCToolsDlg::OnChooseMetricTool()
{
    m_state->SetNewUnits(kMillimetre);
}

void CDefsNCToolsDlg::OnChooseMillTool()
{
    m_state->Choose(kMillTool);
}

void CDefsNCToolsDlg::OnChooseDrillTool()
{
    m_state->Choose(kDrillTool);
}

void CDefsNCToolsDlg::OnChooseLatheTool()
{
    m_state->Choose(kLatheTool);
}

void CDefsNCToolsDlg::OnChooseLDrillTool()
{
    m_state->Choose(kLatheDrillTool);
}

void CDefsNCToolsDlg::OnChooseDgtzTool()
{
    m_state->Choose(kProbeTool);
}

void CDefsNCToolsDlg::OnChooseEDMTool()
{
    m_state->Choose(kEdmTool);
}

void CDefsNCToolsDlg::OnChooseThreadTool()
{
    m_state->Choose(kThreadTool);
}

void CDefsNCToolsDlg::OnChooseFaceMillTool()
{
    m_state->Choose(kFaceMillTool);
}

void CDefsNCToolsDlg::OnChooseCornerRoundTool()
{
    m_state->Choose(kRoundMillTool);
}

void CDefsNCToolsDlg::OnChooseChamferMillTool()
{
    m_state->Choose(kChamferMillTool);
}

void CDefsNCToolsDlg::OnChooseThreadMillTool()
{
    m_state->Choose(kThreadMillTool);
}
