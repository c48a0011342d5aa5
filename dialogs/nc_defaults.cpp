#include "dialogs/nc_defaults.h"

#include <limits>
#include <string>

#include "frame/profile.h"
#include "frame/settings_locations.h"
#include "frame/settings_values.h"
#include "frame/tool_library.h"
#include "pages/option_page.h"
#include "pages/page_controls.h"
#include "resources/resource.h"

namespace {

// ---- the settings ----

constexpr char kDisplaySection[] = "DefaultDisplayParameter";
constexpr char kDisplayMode[] = "NcDisplayMode";
constexpr char kMenuIcons[] = "NcMenuIcons";

constexpr char kParameterSection[] = "DefaultNCParameter";
constexpr char kClassic3Axis[] = "Classic3Axis";
constexpr char kFilterSpans[] = "FilterSpans";
constexpr char kArcTolerance[] = "FilterArcTol";
// The longest span has another name where it is stored until the restart; it is read under the first only.
constexpr char kMaxSpan[] = "FilterMaxSpan";
constexpr char kMaxSpanUntilRestart[] = "FilterLineTol";

constexpr char kStartUpSection[] = "ALLTIPI";
constexpr char kLastMaterial[] = "DefToLastMaterial;"; // the semicolon is part of the key
constexpr char kLastTool[] = "DefToLastTool";
constexpr char kLastCutControl[] = "DefToLastCutCtrl";

constexpr char kSettingsSection[] = "Settings";
constexpr char kProgramName[] = "ProgramName";
constexpr char kDialogBits[] = "UsePLXDialogs";
constexpr int kMinimumZBit = 4; // the other bits are other dialogs'

constexpr int Normalised(int flag)
{
    return flag != 0 ? 1 : 0;
}

constexpr int IsOne(int value)
{
    return value == 1 ? 1 : 0;
}

int ReadHostWhole(const char* section, const char* key, int fallback)
{
    return profile::ReadWhole(section, key, fallback, GetSettingsLocations().hostSettingsFile.c_str());
}

void WriteHostWhole(const char* section, const char* key, int value)
{
    profile::WriteText(section, key, std::to_string(value).c_str(), GetSettingsLocations().hostSettingsFile.c_str());
}

int ReadHostDefault(const char* key)
{
    return profile::ReadWhole(kDisplaySection, key, 1, GetSettingsLocations().hostDefaultsFile.c_str());
}

void ReadTolerances(NCDefaults& values)
{
    values.filterMaxSpan = ReadDefaultReal(kParameterSection, kMaxSpan, values.filterMaxSpan);
    values.filterArcTolerance = ReadDefaultReal(kParameterSection, kArcTolerance, values.filterArcTolerance);
}

void WriteSpanFilter(const NCDefaults& values, const char* maxSpanKey)
{
    WriteWhole(kParameterSection, kFilterSpans, values.filterSpans);
    WriteReal(kParameterSection, maxSpanKey, values.filterMaxSpan);
    WriteReal(kParameterSection, kArcTolerance, values.filterArcTolerance);
}

// ---- the tool library ----

/// What the tool library tells of a material. Only the id is used; the rest is room for whatever comes with it.
struct MaterialRecord {
    int id;
    char rest[4092];
};
using GetMaterial = int(int group, int currentId, MaterialRecord* chosen);
constexpr int kEveryGroup = 0;

// ---- the controls ----

constexpr Range kTolerances{0.0, std::numeric_limits<double>::max()};

// The display mode comes before these. The span filter comes before its tolerances: a click on it counts even while a
// tolerance is refused, so that the edits can be enabled and corrected.
constexpr ExchangeRow<NCDefaults> kExchange[] = {
    {IDC_NCDEF_MENU_ICONS, &NCDefaults::menuIcons, Binding::Check},
    {IDC_NCDEF_LAST_MATERIAL, &NCDefaults::defToLastMaterial, Binding::Check},
    {IDC_NCDEF_LAST_TOOL, &NCDefaults::defToLastTool, Binding::Check},
    {IDC_NCDEF_LAST_CUT_CONTROL, &NCDefaults::defToLastCutControl, Binding::Check},
    {IDC_NCDEF_MINIMUM_Z, &NCDefaults::calculateMinimumZ, Binding::Check},
    {IDC_NCDEF_PROGRAM_NAME, &NCDefaults::alphanumericProgramName, Binding::Check},
    {IDC_NCDEF_CLASSIC_3_AXIS, &NCDefaults::classic3Axis, Binding::Check},
    {IDC_NCDEF_FILTER_SPANS, &NCDefaults::filterSpans, Binding::Check},
    {IDC_NCDEF_MAX_SPAN, &NCDefaults::filterMaxSpan, kTolerances},
    {IDC_NCDEF_ARC_TOLERANCE, &NCDefaults::filterArcTolerance, kTolerances},
};

constexpr char kTopic[] = "tvaux-_toolsoptions_nc_defaults_tools_options.htm";
constexpr char kDisplayModeTopic[] = "tvaux-_toolsoptionspopups_display_toolbar_dispaly_menu_options.htm";

constexpr HelpTopic kTopics[] = {
    {IDOK, "tvaux-_popupsj_r_hidc_ok_button.htm"},
    {IDCANCEL, "tvaux-_popupsa_i_hidc_cancel_button.htm"},
    {ID_HELP, "tvaux-_popupsa_i_hidc_help_button.htm"},
    {IDC_NCDEF_TOOLBAR, kDisplayModeTopic},
    {IDC_NCDEF_MENU, kDisplayModeTopic},
    {IDC_NCDEF_MENU_ICONS, "tvaux-_toolsoptionspopups_menu_icons.htm"},
    {IDC_NCDEF_PROGRAM_NAME, "tvaux-_toolsoptionspopups_program_number_is_alphanumeric_name.htm"},
    {IDC_NCDEF_MINIMUM_Z, "tvaux-_toolsoptionspopups_calculate_initial_value_for_minimum_z.htm"},
    {IDC_NCDEF_LAST_MATERIAL, "tvaux-_toolsoptionspopups_use_last_selected_materials_as_default_at_start_up.htm"},
    {IDC_NCDEF_LAST_TOOL, "tvaux-_toolsoptionspopups_use_last_selected_tools_as_default_at_start_up.htm"},
    {IDC_NCDEF_LAST_CUT_CONTROL, "tvaux-_toolsoptionspopups_save_cut_control_information_at_torvex_exit.htm"},
    {IDC_NCDEF_MATERIAL, "tvaux-_toolsoptionspopups_choose_material_button_options_nc_defaults_dialog.htm"},
};
} // namespace

static_assert(int{CDefsNCDefaultsDlg::IDD} == IDD_NC_DEFAULTS);

IMPLEMENT_DYNCREATE(CDefsNCDefaultsDlg, CNCDialog)

BEGIN_MESSAGE_MAP(CDefsNCDefaultsDlg, CNCDialog)
    ON_WM_NCCREATE()
    ON_COMMAND(ID_HELP, &CDefsNCDefaultsDlg::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsNCDefaultsDlg::SetDefaults)
    ON_MESSAGE(kCheckSaveDataMessage, &CDefsNCDefaultsDlg::CheckSaveData)
    ON_BN_CLICKED(IDC_NCDEF_TOOLBAR, &CDefsNCDefaultsDlg::OnBnClickedDisplayModeToolbar)
    ON_BN_CLICKED(IDC_NCDEF_MENU, &CDefsNCDefaultsDlg::OnBnClickedDisplayModeMenu)
    ON_BN_CLICKED(IDC_NCDEF_MENU_ICONS, &CDefsNCDefaultsDlg::OnBnClickedChkIcons)
    ON_BN_CLICKED(IDC_NCDEF_MATERIAL, &CDefsNCDefaultsDlg::OnBnClickedBtnMaterial)
    ON_BN_CLICKED(IDC_NCDEF_FILTER_SPANS, &CDefsNCDefaultsDlg::OnBnClickedCheckFilterSpans)
END_MESSAGE_MAP()

CDefsNCDefaultsDlg::CDefsNCDefaultsDlg(CWnd* parent) : CNCDialog(IDD, parent) {}

void CDefsNCDefaultsDlg::GetData(const OptNCDefData* data)
{
    if (!data)
        return;
    m_values.material = data->material;
    m_values.defToLastMaterial = data->defToLastMaterial;
    m_values.defToLastTool = data->defToLastTool;
    m_values.defToLastCutControl = data->defToLastCutControl;
    m_values.calculateMinimumZ = data->calculateMinimumZ;
    m_values.alphanumericProgramName = data->alphanumericProgramName;
    m_values.filterSpans = Normalised(data->filterSpans);
    m_values.filterMaxSpan = data->filterMaxSpan;
    m_values.filterArcTolerance = data->filterArcTolerance;
    EnableTolerances();
}

void CDefsNCDefaultsDlg::SetData(OptNCDefData* data)
{
    if (!data)
        return;
    data->material = m_values.material;
    data->defToLastMaterial = m_values.defToLastMaterial;
    data->defToLastTool = m_values.defToLastTool;
    data->defToLastCutControl = m_values.defToLastCutControl;
    data->calculateMinimumZ = m_values.calculateMinimumZ;
    data->alphanumericProgramName = m_values.alphanumericProgramName;
    data->filterSpans = static_cast<std::uint8_t>(IsOne(m_values.filterSpans));
    data->filterMaxSpan = m_values.filterMaxSpan;
    data->filterArcTolerance = m_values.filterArcTolerance;

    WriteHostWhole(kParameterSection, kClassic3Axis, m_values.classic3Axis);
    WriteSpanFilter(m_values, kMaxSpan);
}

BOOL CDefsNCDefaultsDlg::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    m_values.displayMode = Normalised(ReadHostWhole(kDisplaySection, kDisplayMode, m_values.displayMode));
    m_values.menuIcons = Normalised(ReadHostWhole(kDisplaySection, kMenuIcons, m_values.menuIcons));
    EnableControl(*this, IDC_NCDEF_MENU_ICONS, m_values.displayMode == 1);
    m_values.classic3Axis = Normalised(ReadHostWhole(kParameterSection, kClassic3Axis, m_values.classic3Axis));
    m_displayModeAtOpening = m_values.displayMode;
    m_menuIconsAtOpening = m_values.menuIcons;
    m_classic3AxisAtOpening = m_values.classic3Axis;
    m_needsRestart = false;

    m_values.filterSpans = Normalised(ReadHostWhole(kParameterSection, kFilterSpans, m_values.filterSpans));
    ReadTolerances(m_values);
    m_edits = AttachExpressionEdits<NCDefaults>(*this, kExchange);
    EnableTolerances();
    UpdateData(FALSE);
    return TRUE;
}

void CDefsNCDefaultsDlg::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Radio(exchange, IDC_NCDEF_TOOLBAR, m_values.displayMode);
    ExchangeControls<NCDefaults>(exchange, m_values, kExchange);
}

LRESULT CDefsNCDefaultsDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    WatchForContextHelp(message, wParam);
    return CNCDialog::WindowProc(message, wParam, lParam);
}

void CDefsNCDefaultsDlg::EnableTolerances()
{
    EnableControl(*this, IDC_NCDEF_MAX_SPAN, m_values.filterSpans != 0);
    EnableControl(*this, IDC_NCDEF_ARC_TOLERANCE, m_values.filterSpans != 0);
}

LRESULT CDefsNCDefaultsDlg::SetDefaults(WPARAM, LPARAM)
{
    m_values.displayMode = ReadHostDefault(kDisplayMode);
    m_values.menuIcons = IsOne(ReadHostDefault(kMenuIcons));
    m_values.defToLastMaterial = IsOne(ReadDefaultWhole(kStartUpSection, kLastMaterial, 0));
    m_values.defToLastTool = IsOne(ReadDefaultWhole(kStartUpSection, kLastTool, 0));
    m_values.defToLastCutControl = IsOne(ReadDefaultWhole(kStartUpSection, kLastCutControl, 0));
    m_values.alphanumericProgramName = IsOne(ReadDefaultWhole(kSettingsSection, kProgramName, 0));
    m_values.calculateMinimumZ = Normalised(ReadDefaultWhole(kSettingsSection, kDialogBits, 0) & kMinimumZBit);
    m_values.classic3Axis = IsOne(ReadHostWhole(kParameterSection, kClassic3Axis, 0));
    m_values.filterSpans = Normalised(ReadDefaultWhole(kParameterSection, kFilterSpans, m_values.filterSpans));
    ReadTolerances(m_values);
    EnableTolerances();
    UpdateData(FALSE);
    m_needsRestart = true;
    return 0;
}

LRESULT CDefsNCDefaultsDlg::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_needsRestart)
        return 0;
    if (AskToStoreUntilRestart())
        StoreUntilRestart();
    else
        TakeBack();
    m_needsRestart = false;
    return 0;
}

void CDefsNCDefaultsDlg::StoreUntilRestart() const
{
    WriteHostWhole(kDisplaySection, kDisplayMode, m_values.displayMode);
    WriteHostWhole(kDisplaySection, kMenuIcons, m_values.menuIcons);
    WriteHostWhole(kParameterSection, kClassic3Axis, m_values.classic3Axis);
    WriteSpanFilter(m_values, kMaxSpanUntilRestart);
}

/// What needs a restart is again as it was at opening; the span filter is as it is built in.
void CDefsNCDefaultsDlg::TakeBack()
{
    constexpr NCDefaults kBuiltIn;
    m_values.displayMode = m_displayModeAtOpening;
    m_values.menuIcons = m_menuIconsAtOpening;
    m_values.classic3Axis = m_classic3AxisAtOpening;
    m_values.filterSpans = kBuiltIn.filterSpans;
    m_values.filterMaxSpan = kBuiltIn.filterMaxSpan;
    m_values.filterArcTolerance = kBuiltIn.filterArcTolerance;
    EnableTolerances();
    UpdateData(FALSE);
}

void CDefsNCDefaultsDlg::OnBnClickedDisplayModeToolbar()
{
    ChangeDisplayMode(0);
}

void CDefsNCDefaultsDlg::OnBnClickedDisplayModeMenu()
{
    ChangeDisplayMode(1);
}

void CDefsNCDefaultsDlg::ChangeDisplayMode(int mode)
{
    if (m_values.displayMode == mode)
        return;
    m_values.displayMode = mode;
    EnableControl(*this, IDC_NCDEF_MENU_ICONS, mode == 1);
    m_needsRestart = true;
}

void CDefsNCDefaultsDlg::OnBnClickedChkIcons()
{
    m_needsRestart = true;
}

void CDefsNCDefaultsDlg::OnBnClickedBtnMaterial()
{
    if (!MaterialLibrarySwitch())
        return;
    auto* const getMaterial = ToolLibraryFunction<GetMaterial>(ToolEntryPoint::GetMaterial);
    MaterialRecord chosen{};
    if (getMaterial && getMaterial(kEveryGroup, m_values.material, &chosen) != 0)
        m_values.material = chosen.id;
}

void CDefsNCDefaultsDlg::OnBnClickedCheckFilterSpans()
{
    UpdateData(TRUE);
    EnableTolerances();
}

void CDefsNCDefaultsDlg::OnHelp()
{
    ShowHelp(kTopic, kTopics);
}
