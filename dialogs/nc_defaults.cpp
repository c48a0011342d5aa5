#include "PelmarDlgs/dialogs/nc_defaults.h"

#include <string>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_locations.h"
#include "PelmarDlgs/settings_values.h"
#include "dialogs/nc_defaults_controls.h"
#include "dialogs/restart_question.h"
#include "frame/held_file.h"
#include "frame/profile.h"
#include "frame/tool_library.h"
#include "pages/page_controls.h"
#include "pages/tips.h"
#include "records/global_settings.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {

// ---- the settings ----

constexpr char kDisplaySection[] = "DefaultDisplayParameter";
constexpr char kDisplayMode[] = "NcDisplayMode";
constexpr char kMenuIcons[] = "NcMenuIcons";

constexpr const char* kParameterSection = global_section::kParameters;
constexpr char kClassic3Axis[] = "Classic3Axis";
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

/// What is read while it lives is of one version of each file.
struct FilesAsOfNow {
    HeldFile hostSettings{GetSettingsLocations().hostSettingsFile.c_str()};
    HeldFile defaults{GetSettingsLocations().defaultsFile.c_str()};
};

int ReadHostDefault(const char* key)
{
    return profile::ReadWhole(kDisplaySection, key, 1, GetSettingsLocations().hostDefaultsFile.c_str());
}

void ReadTolerances(NCDefaults& values)
{
    values.filterMaxSpan = ReadDefaultReal(kParameterSection, global_key::kMaxSpan, values.filterMaxSpan);
    values.filterArcTolerance =
        ReadDefaultReal(kParameterSection, global_key::kArcTolerance, values.filterArcTolerance);
}

/// What Defaults bring, but the classic 3-axis mode, which has none in a file.
void ReadDefaults(NCDefaults& values)
{
    values.displayMode = ReadHostDefault(kDisplayMode);
    values.menuIcons = IsOne(ReadHostDefault(kMenuIcons));
    values.defToLastMaterial = IsOne(ReadDefaultWhole(global_section::kStartUp, global_key::kLastMaterial, 0));
    values.defToLastTool = IsOne(ReadDefaultWhole(global_section::kStartUp, global_key::kLastTool, 0));
    values.defToLastCutControl = IsOne(ReadDefaultWhole(global_section::kStartUp, global_key::kLastCutControl, 0));
    values.alphanumericProgramName = IsOne(ReadDefaultWhole(global_section::kSettings, global_key::kProgramName, 0));
    values.calculateMinimumZ =
        Normalised(ReadDefaultWhole(global_section::kSettings, global_key::kDialogBits, 0) & kMinimumZBit);
    values.filterSpans = Normalised(ReadDefaultWhole(kParameterSection, global_key::kFilterSpans, values.filterSpans));
    ReadTolerances(values);
}

void WriteSpanFilter(const NCDefaults& values, const char* maxSpanKey)
{
    WriteWhole(kParameterSection, global_key::kFilterSpans, values.filterSpans);
    WriteReal(kParameterSection, maxSpanKey, values.filterMaxSpan);
    WriteReal(kParameterSection, global_key::kArcTolerance, values.filterArcTolerance);
}

// ---- the tool library ----

/// What the tool library tells of a material. Only the id is used; the rest is room for whatever comes with it.
struct MaterialRecord {
    int id;
    char rest[4092];
};
using GetMaterial = int(int group, int currentId, MaterialRecord* chosen);
constexpr int kEveryGroup = 0;
} // namespace

static_assert(int{CDefsNCDefaultsDlg::IDD} == IDD_NC_DEFAULTS);

/// What the dialog edits.
class pelmar::NCDefaultsState final : public TipSource {
public:
    explicit NCDefaultsState(CDefsNCDefaultsDlg& dialog) : m_dialog(dialog) {}

    void ChangeDisplayMode(int mode)
    {
        if (values.displayMode == mode)
            return;
        values.displayMode = mode;
        EnableMenuIcons();
        needsRestart = true;
    }

    /// Only the menu has icons.
    void EnableMenuIcons() const { EnableControl(m_dialog, IDC_NCDEF_MENU_ICONS, values.displayMode == 1); }

    void EnableTolerances() const
    {
        EnableControl(m_dialog, IDC_NCDEF_MAX_SPAN, values.filterSpans != 0);
        EnableControl(m_dialog, IDC_NCDEF_ARC_TOLERANCE, values.filterSpans != 0);
    }

    void StoreUntilRestart() const
    {
        SaveStep step;
        WriteHostWhole(kDisplaySection, kDisplayMode, values.displayMode);
        WriteHostWhole(kDisplaySection, kMenuIcons, values.menuIcons);
        WriteHostWhole(kParameterSection, kClassic3Axis, values.classic3Axis);
        WriteSpanFilter(values, global_key::kMaxSpanUntilRestart);
        step.Commit();
    }

    /// What needs a restart is again as it was at opening; the span filter is as it is built in.
    void TakeBack()
    {
        constexpr NCDefaults kBuiltIn;
        values.displayMode = displayModeAtOpening;
        values.menuIcons = menuIconsAtOpening;
        values.classic3Axis = classic3AxisAtOpening;
        values.filterSpans = kBuiltIn.filterSpans;
        values.filterMaxSpan = kBuiltIn.filterMaxSpan;
        values.filterArcTolerance = kBuiltIn.filterArcTolerance;
        EnableTolerances();
        m_dialog.UpdateData(FALSE);
    }

    const PageFacts& Facts() const override { return kNCDefaultsPage; }
    TipData DataForTips() override
    {
        const auto factory = std::make_shared<NCDefaults>();
        ReadDefaults(*factory);
        return {&values, factory};
    }

    ExpressionEdits edits;
    Tips tips{*this};
    NCDefaults values;
    int displayModeAtOpening = 0;
    int menuIconsAtOpening = 0;
    int classic3AxisAtOpening = 0;
    bool needsRestart = false;

private:
    CDefsNCDefaultsDlg& m_dialog;
};

IMPLEMENT_DYNCREATE(CDefsNCDefaultsDlg, CDialog)

BEGIN_MESSAGE_MAP(CDefsNCDefaultsDlg, pelmar::CNCDialog)
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

CDefsNCDefaultsDlg::CDefsNCDefaultsDlg(CWnd* parent) : CNCDialog(IDD, parent), m_state(new NCDefaultsState(*this)) {}

CDefsNCDefaultsDlg::~CDefsNCDefaultsDlg()
{
    delete m_state;
}

void CDefsNCDefaultsDlg::GetData(const OptNCDefData* data)
{
    if (!data)
        return;
    m_state->values.material = data->material;
    m_state->values.defToLastMaterial = data->defToLastMaterial;
    m_state->values.defToLastTool = data->defToLastTool;
    m_state->values.defToLastCutControl = data->defToLastCutControl;
    m_state->values.calculateMinimumZ = data->calculateMinimumZ;
    m_state->values.alphanumericProgramName = data->alphanumericProgramName;
    m_state->values.filterSpans = Normalised(data->filterSpans);
    m_state->values.filterMaxSpan = data->filterMaxSpan;
    m_state->values.filterArcTolerance = data->filterArcTolerance;
    m_state->EnableTolerances();
}

void CDefsNCDefaultsDlg::SetData(OptNCDefData* data)
{
    if (!data)
        return;
    data->material = m_state->values.material;
    data->defToLastMaterial = m_state->values.defToLastMaterial;
    data->defToLastTool = m_state->values.defToLastTool;
    data->defToLastCutControl = m_state->values.defToLastCutControl;
    data->calculateMinimumZ = m_state->values.calculateMinimumZ;
    data->alphanumericProgramName = m_state->values.alphanumericProgramName;
    data->filterSpans = static_cast<std::uint8_t>(IsOne(m_state->values.filterSpans));
    data->filterMaxSpan = m_state->values.filterMaxSpan;
    data->filterArcTolerance = m_state->values.filterArcTolerance;

    SaveStep step;
    WriteHostWhole(kParameterSection, kClassic3Axis, m_state->values.classic3Axis);
    WriteSpanFilter(m_state->values, global_key::kMaxSpan);
    step.Commit();
}

BOOL CDefsNCDefaultsDlg::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    const FilesAsOfNow files;
    m_state->values.displayMode = Normalised(ReadHostWhole(kDisplaySection, kDisplayMode, m_state->values.displayMode));
    m_state->values.menuIcons = Normalised(ReadHostWhole(kDisplaySection, kMenuIcons, m_state->values.menuIcons));
    m_state->EnableMenuIcons();
    m_state->values.classic3Axis =
        Normalised(ReadHostWhole(kParameterSection, kClassic3Axis, m_state->values.classic3Axis));
    m_state->displayModeAtOpening = m_state->values.displayMode;
    m_state->menuIconsAtOpening = m_state->values.menuIcons;
    m_state->classic3AxisAtOpening = m_state->values.classic3Axis;
    m_state->needsRestart = false;

    m_state->values.filterSpans =
        Normalised(ReadHostWhole(kParameterSection, global_key::kFilterSpans, m_state->values.filterSpans));
    ReadTolerances(m_state->values);
    m_state->edits = AttachExpressionEdits(*this, kNCDefaultsPage.controls);
    m_state->EnableTolerances();
    UpdateData(FALSE);
    return TRUE;
}

void CDefsNCDefaultsDlg::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Radio(exchange, IDC_NCDEF_TOOLBAR, m_state->values.displayMode);
    ExchangeControls(exchange, &m_state->values, kNCDefaultsPage.controls);
}

/// Hosts know it under this name.
LRESULT CDefsNCDefaultsDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CNCDialog::WindowProc(message, wParam, lParam);
}

LRESULT CDefsNCDefaultsDlg::SetDefaults(WPARAM, LPARAM)
{
    const FilesAsOfNow files;
    ReadDefaults(m_state->values);
    m_state->values.classic3Axis = IsOne(ReadHostWhole(kParameterSection, kClassic3Axis, 0));
    m_state->EnableMenuIcons();
    m_state->EnableTolerances();
    UpdateData(FALSE);
    m_state->needsRestart = true;
    return 0;
}

LRESULT CDefsNCDefaultsDlg::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_state->needsRestart)
        return 0;
    if (AskToStoreUntilRestart())
        m_state->StoreUntilRestart();
    else
        m_state->TakeBack();
    m_state->needsRestart = false;
    return 0;
}

void CDefsNCDefaultsDlg::OnBnClickedDisplayModeToolbar()
{
    m_state->ChangeDisplayMode(0);
}

void CDefsNCDefaultsDlg::OnBnClickedDisplayModeMenu()
{
    m_state->ChangeDisplayMode(1);
}

void CDefsNCDefaultsDlg::OnBnClickedChkIcons()
{
    m_state->needsRestart = true;
}

void CDefsNCDefaultsDlg::OnBnClickedBtnMaterial()
{
    if (!MaterialLibrarySwitch())
        return;
    auto* const getMaterial = ToolLibraryFunction<GetMaterial>(ToolEntryPoint::GetMaterial);
    MaterialRecord chosen{};
    if (getMaterial && getMaterial(kEveryGroup, m_state->values.material, &chosen) != 0)
        m_state->values.material = chosen.id;
}

void CDefsNCDefaultsDlg::OnBnClickedCheckFilterSpans()
{
    UpdateData(TRUE);
    m_state->EnableTolerances();
}

BOOL CDefsNCDefaultsDlg::PreTranslateMessage(MSG* message)
{
    m_state->tips.Watch(*this, *message);
    return CNCDialog::PreTranslateMessage(message);
}

void CDefsNCDefaultsDlg::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kNCDefaultsPage.topic, kNCDefaultsPage.controls);
}
