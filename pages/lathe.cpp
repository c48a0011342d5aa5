#include "PelmarDlgs/pages/lathe.h"

#include <string>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_locations.h"
#include "frame/module.h"
#include "frame/number_text.h"
#include "frame/profile.h"
#include "pages/lathe_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

namespace {

/// Where the two axis modes of a measure, input and display, are among all of them.
enum Measure { kByRadius = 0, kByDiameter = 2 };

class LatheBinding : public BindingOf<CLatheOptionsInfo> {
public:
    LatheBinding() : BindingOf(kLathePage, StartsWith::BuiltInValues) {}

    LatheAxisMode axisModes[kLatheAxisModes];
    bool hidesAxisModes = false;

private:
    void ShowMore(CPropertyPage& page) override
    {
        if (!hidesAxisModes)
            return;
        HideControl(page, IDC_LATHE_RADIUS_AXES);
        HideControl(page, IDC_LATHE_DIAMETER_AXES);
    }
};

LatheBinding& LatheOf(PageBinding& binding)
{
    return static_cast<LatheBinding&>(binding);
}

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

/// Shows the sheet of one measure. Its modes change only by OK; that those of the other measure give way applies
/// however the sheet was closed.
void EditAxisModes(CWnd& page, LatheBinding& binding, UINT caption, Measure edited, Measure other)
{
    CLatheInputDisplayPS sheet(LoadText(caption), &page);
    CLatheInputDisplayPage* const pages[] = {&sheet.m_input, &sheet.m_display};
    for (int use = 0; use < 2; ++use) {
        pages[use]->m_mode = binding.axisModes[edited + use];
        pages[use]->m_otherIsActive = binding.axisModes[other + use].active != 0;
    }
    sheet.DoModal();
    for (int use = 0; use < 2; ++use) {
        if (pages[use]->OverridesOther())
            binding.axisModes[other + use].active = 0;
        binding.axisModes[edited + use] = pages[use]->m_mode;
    }
}
} // namespace

static_assert(int{CDefsLathePage::IDD} == IDD_LATHE);

IMPLEMENT_DYNCREATE(CDefsLathePage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsLathePage, pelmar::CRecordPage)
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
    ON_MESSAGE(kWriteToIniMessage, &CDefsLathePage::WriteToIni)
END_MESSAGE_MAP()

CDefsLathePage::CDefsLathePage() : CRecordPage(IDD, new LatheBinding) {}

void CDefsLathePage::GetData(int units)
{
    CRecordPage::GetData(units);
    LatheOf(Binding()).hidesAxisModes = true;
}

void CDefsLathePage::GetData(int units, const LatheAxisLabels* labels, const int* active,
                             const LatheAxisDirections* directions)
{
    CRecordPage::GetData(units);
    LatheAxisMode* const modes = LatheOf(Binding()).axisModes;
    for (int mode = 0; mode < kLatheAxisModes; ++mode) {
        modes[mode].active = active[mode];
        for (int axis = 0; axis < 3; ++axis) {
            modes[mode].labels[axis] = labels[mode][axis];
            for (int component = 0; component < 3; ++component)
                modes[mode].directions[axis][component] = directions[mode][component][axis];
        }
    }
}

void CDefsLathePage::SetData(LatheAxisLabels* labels, int* active, LatheAxisDirections* directions) const
{
    const LatheAxisMode* const modes = LatheOf(Binding()).axisModes;
    for (int mode = 0; mode < kLatheAxisModes; ++mode) {
        active[mode] = modes[mode].active;
        for (int axis = 0; axis < 3; ++axis) {
            labels[mode][axis] = modes[mode].labels[axis];
            for (int component = 0; component < 3; ++component)
                directions[mode][component][axis] = modes[mode].directions[axis][component];
        }
    }
}

void CDefsLathePage::OnChangeEdit()
{
    SetModified();
}

void CDefsLathePage::OnKillFCornerAngle()
{
    Handle(At<LatheTable>(IDC_LATHE_CORNER_ANGLE));
}

void CDefsLathePage::OnKillFCornerClearance()
{
    Handle(At<LatheTable>(IDC_LATHE_CORNER_CLEARANCE));
}

void CDefsLathePage::OnKillFGrooveSideStep()
{
    Handle(At<LatheTable>(IDC_LATHE_GROOVE_SIDE_STEP));
}

void CDefsLathePage::OnSelCornerAngleType()
{
    Handle(At<LatheTable>(IDC_LATHE_CORNER_ANGLE_TYPE));
}

/// Unlike the other lists, this one stores that nothing is selected.
void CDefsLathePage::OnSelLeadInType()
{
    LatheOf(Binding()).record.LeadInSpeed = SelectedIndex(*this, IDC_LATHE_LEAD_IN_SPEED).value_or(-1);
    SetModified();
}

void CDefsLathePage::OnSelLeadOutType()
{
    Handle(At<LatheTable>(IDC_LATHE_LEAD_OUT_SPEED));
}

void CDefsLathePage::OnSelFollow()
{
    Handle(At<LatheTable>(IDC_LATHE_FOLLOW));
}

void CDefsLathePage::OnRadialInputDisplay()
{
    EditAxisModes(*this, LatheOf(Binding()), IDS_LATHE_AXES_RADIUS, kByRadius, kByDiameter);
}

void CDefsLathePage::OnDiameterInputDisplay()
{
    EditAxisModes(*this, LatheOf(Binding()), IDS_LATHE_AXES_DIAMETER, kByDiameter, kByRadius);
}

void CDefsLathePage::OnRestoreDefaults()
{
    RestoreDefaults();
}

LRESULT CDefsLathePage::WriteToIni(WPARAM, LPARAM)
{
    const char* const file = GetSettingsLocations().hostSettingsFile.c_str();
    SaveStep step;
    for (int mode = 0; mode < kLatheAxisModes; ++mode)
        profile::WriteText(kAxisModeSection, kAxisModeKeys[mode],
                           AxisModeLine(LatheOf(Binding()).axisModes[mode]).c_str(), file);
    step.Commit();
    return 0;
}
