#include "pages/lathe.h"

#include <string>

#include "frame/module.h"
#include "frame/number_text.h"
#include "frame/profile.h"
#include "frame/settings_locations.h"
#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = CLatheOptionsInfo;

// ---- the record ----

// Nothing is scaled, the corner clearance neither: hosts count on its number staying the same in other units.
constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"CornerAngle", &Record::CornerAngle},
    {"CornerAngleType", &Record::CornerAngleType},
    {"CornerClearance", &Record::CornerClearance},
    {"GrooveSideStep", &Record::GrooveSideStep},
    {"LeadInSpeed", &Record::LeadInSpeed},
    {"LeadOutSpeed", &Record::LeadOutSpeed},
    {"Follow", &Record::Follow},
};

RecordKind<Record> g_kind("OptionsLathe", kFields);

// ---- the page's controls ----

constexpr Range kGrooveSideSteps{5.0, 95.0};

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_LATHE_CORNER_ANGLE, &Record::CornerAngle, kCornerAngles},
    {IDC_LATHE_CORNER_CLEARANCE, &Record::CornerClearance, kAnyReal},
    {IDC_LATHE_GROOVE_SIDE_STEP, &Record::GrooveSideStep, kGrooveSideSteps},
};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_LATHE_CORNER_ANGLE_TYPE, &Record::CornerAngleType, kCornerTypes},
    {IDC_LATHE_LEAD_IN_SPEED, &Record::LeadInSpeed, kFeedsBetween},
    {IDC_LATHE_LEAD_OUT_SPEED, &Record::LeadOutSpeed, kFeedsBetween},
};

constexpr CheckRow<Record> kChecks[] = {
    {IDC_LATHE_FOLLOW, &Record::Follow},
};

const DescribedPage<Record> g_description(IDD_LATHE, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_lathe_cut_opt.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_LATHE_CORNER_ANGLE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
    {IDC_LATHE_CORNER_CLEARANCE, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
    {IDC_LATHE_GROOVE_SIDE_STEP, "pelmar-_optionspopups_hidc_latheopts_groove_sidestep.htm"},
    {IDC_LATHE_CORNER_ANGLE_TYPE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
    {IDC_LATHE_LEAD_OUT_SPEED, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_LATHE_LEAD_IN_SPEED, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_LATHE_FOLLOW, "pelmar-_optionspopups_hidc_latheopts_follow.htm"},
    {IDC_LATHE_TOOL_GAUGE, "pelmar-_optionspopups_hidc_latheopts_tl_gauge.htm"}, // the template has no such control
    {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};

// ---- the axis modes in the host settings file ----

constexpr char kAxisModeSection[] = "DefaultNCParameter";
constexpr const char* kAxisModeKeys[kLatheAxisModes] = {"LatheInput", "LatheView", "LatheInputDia", "LatheViewDia"};

/// The labels, the active flag and the directions axis by axis, with a blank between them.
std::string AxisModeLine(const LatheAxisMode& mode)
{
    constexpr int kDecimals = 6;
    std::string line;
    for (const int label : mode.labels)
        line += std::to_string(label) + ' ';
    line += std::to_string(mode.active);
    number_text::FixedBuffer number;
    for (const auto& axis : mode.directions)
        for (const double component : axis)
            line.append(" ").append(number_text::Print(number, component, kDecimals));
    return line;
}
} // namespace

// ---- the record's operations ----

void CLatheOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void CLatheOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CLatheOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CLatheOptionsInfo::vLatheOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CLatheOptionsInfo* GetLastLatheOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsLathePage::IDD} == IDD_LATHE);

IMPLEMENT_DYNCREATE(CDefsLathePage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsLathePage, CExpRegenPropertyPage)
    ON_EN_CHANGE(IDC_LATHE_CORNER_ANGLE, &CDefsLathePage::OnChangeEdit)
    ON_EN_CHANGE(IDC_LATHE_CORNER_CLEARANCE, &CDefsLathePage::OnChangeEdit)
    ON_EN_CHANGE(IDC_LATHE_GROOVE_SIDE_STEP, &CDefsLathePage::OnChangeEdit)
    ON_EN_KILLFOCUS(IDC_LATHE_CORNER_ANGLE, &CDefsLathePage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_LATHE_CORNER_CLEARANCE, &CDefsLathePage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_LATHE_GROOVE_SIDE_STEP, &CDefsLathePage::OnKillFGrooveSideStep)
    ON_CBN_SELCHANGE(IDC_LATHE_CORNER_ANGLE_TYPE, &CDefsLathePage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_LATHE_LEAD_IN_SPEED, &CDefsLathePage::OnSelLeadInType)
    ON_CBN_SELCHANGE(IDC_LATHE_LEAD_OUT_SPEED, &CDefsLathePage::OnSelLeadOutType)
    ON_BN_CLICKED(IDC_LATHE_FOLLOW, &CDefsLathePage::OnSelFollow)
    ON_BN_CLICKED(IDC_LATHE_RADIUS_AXES, &CDefsLathePage::OnRadialInputDisplay)
    ON_BN_CLICKED(IDC_LATHE_DIAMETER_AXES, &CDefsLathePage::OnDiameterInputDisplay)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefsLathePage::OnRestoreDefaults)
    ON_COMMAND(ID_HELP, &CDefsLathePage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsLathePage::SetDefaults)
    ON_MESSAGE(kWriteToIniMessage, &CDefsLathePage::WriteToIni)
END_MESSAGE_MAP()

CDefsLathePage::CDefsLathePage() : CRecordPage(IDD, kTables) {}

void CDefsLathePage::GetData(int units)
{
    CRecordPage::GetData(units);
    m_hideAxisModes = 1;
}

void CDefsLathePage::GetData(int units, const LatheAxisLabels* labels, const int* active,
                             const LatheAxisDirections* directions)
{
    CRecordPage::GetData(units);
    for (int mode = 0; mode < kLatheAxisModes; ++mode) {
        m_axisModes[mode].active = active[mode];
        for (int axis = 0; axis < 3; ++axis) {
            m_axisModes[mode].labels[axis] = labels[mode][axis];
            for (int component = 0; component < 3; ++component)
                m_axisModes[mode].directions[axis][component] = directions[mode][component][axis];
        }
    }
}

void CDefsLathePage::SetData(LatheAxisLabels* labels, int* active, LatheAxisDirections* directions) const
{
    for (int mode = 0; mode < kLatheAxisModes; ++mode) {
        active[mode] = m_axisModes[mode].active;
        for (int axis = 0; axis < 3; ++axis) {
            labels[mode][axis] = m_axisModes[mode].labels[axis];
            for (int component = 0; component < 3; ++component)
                directions[mode][component][axis] = m_axisModes[mode].directions[axis][component];
        }
    }
}

BOOL CDefsLathePage::OnSetActive()
{
    ShowControls();
    if (m_hideAxisModes) {
        HideControl(*this, IDC_LATHE_RADIUS_AXES);
        HideControl(*this, IDC_LATHE_DIAMETER_AXES);
    }
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefsLathePage::OnChangeEdit()
{
    SetModified();
}

void CDefsLathePage::OnKillFCornerAngle()
{
    LeaveEdit(IDC_LATHE_CORNER_ANGLE);
}

void CDefsLathePage::OnKillFCornerClearance()
{
    LeaveEdit(IDC_LATHE_CORNER_CLEARANCE);
}

void CDefsLathePage::OnKillFGrooveSideStep()
{
    LeaveEdit(IDC_LATHE_GROOVE_SIDE_STEP);
}

void CDefsLathePage::OnSelCornerAngleType()
{
    TakeChoice(IDC_LATHE_CORNER_ANGLE_TYPE);
}

/// Unlike the other lists, this one stores that nothing is selected.
void CDefsLathePage::OnSelLeadInType()
{
    m_options.LeadInSpeed = SelectedIndex(*this, IDC_LATHE_LEAD_IN_SPEED).value_or(-1);
    SetModified();
}

void CDefsLathePage::OnSelLeadOutType()
{
    TakeChoice(IDC_LATHE_LEAD_OUT_SPEED);
}

void CDefsLathePage::OnSelFollow()
{
    TakeCheck(IDC_LATHE_FOLLOW);
}

/// Shows the sheet of one measure. Its modes change only by OK; that those of the other measure give way applies
/// however the sheet was closed.
void CDefsLathePage::EditAxisModes(UINT caption, Measure edited, Measure other)
{
    CLatheInputDisplayPS sheet(LoadText(caption), this);
    CLatheInputDisplayPage* const pages[] = {&sheet.m_input, &sheet.m_display};
    for (int use = 0; use < 2; ++use) {
        pages[use]->m_mode = m_axisModes[edited + use];
        pages[use]->m_otherIsActive = m_axisModes[other + use].active != 0;
    }
    sheet.DoModal();
    for (int use = 0; use < 2; ++use) {
        if (pages[use]->OverridesOther())
            m_axisModes[other + use].active = 0;
        m_axisModes[edited + use] = pages[use]->m_mode;
    }
}

void CDefsLathePage::OnRadialInputDisplay()
{
    EditAxisModes(IDS_LATHE_AXES_RADIUS, kByRadius, kByDiameter);
}

void CDefsLathePage::OnDiameterInputDisplay()
{
    EditAxisModes(IDS_LATHE_AXES_DIAMETER, kByDiameter, kByRadius);
}

void CDefsLathePage::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    UpdateData(FALSE);
}

LRESULT CDefsLathePage::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

LRESULT CDefsLathePage::WriteToIni(WPARAM, LPARAM)
{
    const char* const file = GetSettingsLocations().hostSettingsFile.c_str();
    for (int mode = 0; mode < kLatheAxisModes; ++mode)
        profile::WriteText(kAxisModeSection, kAxisModeKeys[mode], AxisModeLine(m_axisModes[mode]).c_str(), file);
    return 0;
}

template class CRecordPage<CLatheOptionsInfo>;
