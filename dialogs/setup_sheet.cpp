#include "dialogs/setup_sheet.h"

#include "frame/module.h"
#include "pages/description.h"
#include "pages/option_page.h"
#include "pages/page_controls.h"
#include "pages/record.h"
#include "resources/resource.h"

namespace {
using Record = CSSheetOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"SetupStyle", &Record::SetupStyle},
    {"UniqueTools", &Record::UniqueTools},
    {"ToolingSetup", &Record::ToolingSetup},
    {"ToolingGraphics", &Record::ToolingGraphics},
    {"OperationsSetup", &Record::OperationsSetup},
    {"OperationsGraphics", &Record::OperationsGraphics},
    {"ToolChangeTime", &Record::ToolChangeTime},
    {"RapidRate", &Record::RapidRate, Scaling::Always},
};

RecordKind<Record> g_kind("OptionsSSheet", kFields);

// ---- the controls ----

constexpr Range kRapidRates{0.001, 1000000.0};
constexpr Range kToolChangeTimes{0.0, 1000000.0};

// The style is not here: its list takes part in no exchange.
constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_SHEET_RAPID_RATE, &Record::RapidRate, kRapidRates},
    {IDC_SHEET_TOOL_CHANGE_TIME, &Record::ToolChangeTime, kToolChangeTimes},
    {IDC_SHEET_TOOLING, &Record::ToolingSetup, Binding::Check},
    {IDC_SHEET_TOOLING_GRAPHICS, &Record::ToolingGraphics, Binding::Check},
    {IDC_SHEET_OPERATIONS, &Record::OperationsSetup, Binding::Check},
    {IDC_SHEET_UNIQUE_TOOLS, &Record::UniqueTools, Binding::Check},
};

const DescribedPage<Record> g_description(IDD_SETUP_SHEET, g_kind, kExchange);

constexpr int kCurrentStyle = 1;

/// A style as the list offers it: its position there is not the value that is stored.
struct Style {
    UINT text;
    int style;
};

constexpr Style kStyles[] = {
    {IDS_SETUP_SHEET_CURRENT_HTML, kCurrentStyle},
    {IDS_SETUP_SHEET_STANDARD_HTML, 0},
    {IDS_SETUP_SHEET_STANDARD, 2},
};

/// What only the current style puts out.
constexpr int kOutputs[] = {IDC_SHEET_TOOLING, IDC_SHEET_TOOLING_GRAPHICS, IDC_SHEET_OPERATIONS};

constexpr char kTopic[] = "tvaux-_toolsoptions_setup_sheet_tools_options.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_SHEET_RAPID_RATE, "tvaux-_toolsoptionspopups_rapid_velocity.htm"},
    {IDC_SHEET_TOOL_CHANGE_TIME, "tvaux-_toolsoptionspopups_tool_change_time.htm"},
    {IDC_SHEET_TOOLING, "tvaux-_toolsoptionspopups_output_tooling_setup.htm"},
    {IDC_SHEET_TOOLING_GRAPHICS, "tvaux-_toolsoptionspopups_output_tooling_graphics.htm"},
    {IDC_SHEET_OPERATIONS, "tvaux-_toolsoptionspopups_output_opterations_setup.htm"},
    {IDC_SHEET_STYLE, "tvaux-_toolsoptionspopups_style_1.htm"},
    {IDC_SHEET_UNIQUE_TOOLS, "tvaux-_toolsoptionspopups_show_operations_with_unique_tools.htm"},
};
} // namespace

// ---- the record's operations ----

void CSSheetOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void CSSheetOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CSSheetOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CSSheetOptionsInfo::vOptions_CheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CSSheetOptionsInfo* GetLastSSheetOptions()
{
    return g_kind.Live();
}

void vSSheetOptions_Restore()
{
    g_kind.Restore(*g_kind.Live());
}

void vSSheetOptions_Save()
{
    g_kind.Save(*g_kind.Live());
}

// ---- the dialog ----

static_assert(int{CDefsSetupsheet::IDD} == IDD_SETUP_SHEET);

IMPLEMENT_DYNCREATE(CDefsSetupsheet, CNCDialog)

BEGIN_MESSAGE_MAP(CDefsSetupsheet, CNCDialog)
    ON_EN_KILLFOCUS(IDC_SHEET_RAPID_RATE, &CDefsSetupsheet::OnEnKillfocusEditRapidrate)
    ON_EN_KILLFOCUS(IDC_SHEET_TOOL_CHANGE_TIME, &CDefsSetupsheet::OnEnKillfocusEditToolchange)
    ON_BN_CLICKED(IDC_SHEET_TOOLING, &CDefsSetupsheet::OnBnClickedChkTooling)
    ON_CBN_SELCHANGE(IDC_SHEET_STYLE, &CDefsSetupsheet::OnCbnSelchangeCbStyle)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsSetupsheet::SetDefaults)
    ON_COMMAND(ID_HELP, &CDefsSetupsheet::OnHelp)
END_MESSAGE_MAP()

CDefsSetupsheet::CDefsSetupsheet(CWnd* parent) : CNCDialog(IDD, parent) {}

BOOL CDefsSetupsheet::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    m_styles.SubclassDlgItem(IDC_SHEET_STYLE, this);
    for (const Style& style : kStyles)
        m_styles.SetItemData(m_styles.AddString(LoadText(style.text)), static_cast<DWORD_PTR>(style.style));
    m_edits = AttachExpressionEdits<Record>(*this, kExchange);
    return TRUE;
}

void CDefsSetupsheet::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    ExchangeControls<Record>(exchange, m_options, kExchange);
}

void CDefsSetupsheet::GetData(int units)
{
    m_options = g_kind.LiveInUnitsOf(units);
    SelectStyle();
    EnableOutputs();
    UpdateData(FALSE);
}

void CDefsSetupsheet::SetData()
{
    *g_kind.Live() = m_options;
}

/// A style that the list does not hold shows as the first one.
void CDefsSetupsheet::SelectStyle()
{
    m_styles.SetCurSel(0);
    for (int index = 0; index < m_styles.GetCount(); ++index)
        if (static_cast<int>(m_styles.GetItemData(index)) == m_options.SetupStyle)
            m_styles.SetCurSel(index);
}

void CDefsSetupsheet::EnableOutputs()
{
    for (const int output : kOutputs)
        EnableControl(*this, output, m_options.SetupStyle == kCurrentStyle);
}

void CDefsSetupsheet::LeaveEdit(int id)
{
    ::LeaveEdit<Record>(*this, m_options, kExchange, id);
}

void CDefsSetupsheet::OnEnKillfocusEditRapidrate()
{
    LeaveEdit(IDC_SHEET_RAPID_RATE);
}

void CDefsSetupsheet::OnEnKillfocusEditToolchange()
{
    LeaveEdit(IDC_SHEET_TOOL_CHANGE_TIME);
}

void CDefsSetupsheet::OnBnClickedChkTooling()
{
    if (UpdateData(TRUE))
        EnableControl(*this, IDC_SHEET_TOOLING_GRAPHICS, m_options.ToolingSetup != 0);
}

void CDefsSetupsheet::OnCbnSelchangeCbStyle()
{
    if (!UpdateData(TRUE))
        return;
    if (const std::optional<int> selected = SelectedIndex(*this, IDC_SHEET_STYLE))
        m_options.SetupStyle = static_cast<int>(m_styles.GetItemData(*selected));
    EnableOutputs();
    UpdateData(FALSE);
}

LRESULT CDefsSetupsheet::SetDefaults(WPARAM, LPARAM)
{
    m_options.vOptions_Defaults();
    return 0;
}

void CDefsSetupsheet::OnHelp()
{
    ShowHelp(kTopic, kTopics);
}
