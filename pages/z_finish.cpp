#include "pages/z_finish.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = CZFinishOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"DepthFinishStep", &Record::DepthFinishStep, &Record::DepthFinishStepType},
    {"DepthFinishStepType", &Record::DepthFinishStepType},
    {"SideClearance", &Record::SideClearance, &Record::SideClearanceType},
    {"SideClearanceType", &Record::SideClearanceType},
    {"LeadAngleTol", &Record::LeadAngleTol},
    {"GougeCheck", &Record::GougeCheck},
    {"PlungeSelType", &Record::PlungeSelType},
    {"PlungeWarnings", &Record::PlungeWarnings},
};

RecordKind<Record> g_kind("OptionsZFinish", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_ZF_DEPTH_FINISH_STEP, &Record::DepthFinishStep, kAnyReal},
    {IDC_ZF_SIDE_CLEARANCE, &Record::SideClearance, kAnyReal},
    {IDC_ZF_LEAD_ANGLE_TOLERANCE, &Record::LeadAngleTol},
    {IDC_ZF_DEPTH_FINISH_STEP_TYPE, &Record::DepthFinishStepType, Binding::Index},
    {IDC_ZF_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, Binding::Index},
    {IDC_ZF_PLUNGE_POINT, &Record::PlungeSelType, Binding::Index},
    {IDC_ZF_GOUGE_CHECK, &Record::GougeCheck, Binding::OnOff},
    {IDC_ZF_PLUNGE_WARNINGS, &Record::PlungeWarnings, Binding::Check},
};

constexpr UINT kPlungePoints[] = {IDS_PLUNGE_POINT_AUTOMATIC, IDS_PLUNGE_POINT_CHOSEN};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_ZF_DEPTH_FINISH_STEP_TYPE, &Record::DepthFinishStepType, kLengthTypes},
    {IDC_ZF_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, kLengthTypes},
    {IDC_ZF_PLUNGE_POINT, &Record::PlungeSelType, kPlungePoints},
};

constexpr CheckRow<Record> kChecks[] = {
    {IDC_ZF_PLUNGE_WARNINGS, &Record::PlungeWarnings},
};

const DescribedPage<Record> g_description(IDD_ZF, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_zfinish_options.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

// The step leads to the general topic of steps, its type to the one of this step.
constexpr HelpTopic kTopics[] = {
    {IDC_ZF_DEPTH_FINISH_STEP, kStepSizeTopic},
    {IDC_ZF_SIDE_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_ZF_DEPTH_FINISH_STEP_TYPE, "pelmar-_optionspopups_hidc_zfopts_depth_step_size.htm"},
    {IDC_ZF_SIDE_CLEARANCE, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
    {IDC_ZF_LEAD_ANGLE_TOLERANCE, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
    {IDC_ZF_PLUNGE_POINT, "pelmar-_optionspopups_hidc_zfopts_plunge_pt_sel.htm"},
    {IDC_ZF_GOUGE_CHECK, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
    {IDC_ZF_PLUNGE_WARNINGS, "pelmar-_optionspopups_hidc_zfopts_plunge_warn.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};
} // namespace

// ---- the record's operations ----

void CZFinishOptionsInfo::Defaults()
{
    g_kind.Defaults(*this);
}

void CZFinishOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CZFinishOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CZFinishOptionsInfo::vZFinishOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CZFinishOptionsInfo* GetLastZFinishOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsZFinishPage::IDD} == IDD_ZF);

IMPLEMENT_DYNCREATE(CDefsZFinishPage, CExpRegenPropertyPage)

// Of the edits only the step marks the page modified, and leaving one takes nothing: the values of the others are taken
// when the page is left.
BEGIN_MESSAGE_MAP(CDefsZFinishPage, CExpRegenPropertyPage)
    ON_COMMAND(ID_HELP, &CDefsZFinishPage::OnHelp)
    ON_EN_CHANGE(IDC_ZF_DEPTH_FINISH_STEP, &CDefsZFinishPage::OnChangeOptionInfo)
    ON_CBN_SELCHANGE(IDC_ZF_DEPTH_FINISH_STEP_TYPE, &CDefsZFinishPage::OnSelDepthStepSize)
    ON_CBN_SELCHANGE(IDC_ZF_SIDE_CLEARANCE_TYPE, &CDefsZFinishPage::OnSelSideClearType)
    ON_BN_CLICKED(IDC_ZF_GOUGE_CHECK, &CDefsZFinishPage::OnSelGougeCheck)
    ON_CBN_SELCHANGE(IDC_ZF_PLUNGE_POINT, &CDefsZFinishPage::OnSelPlungeSelType)
    ON_BN_CLICKED(IDC_ZF_PLUNGE_WARNINGS, &CDefsZFinishPage::OnSelPlungeWarnings)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsZFinishPage::SetDefaults)
END_MESSAGE_MAP()

CDefsZFinishPage::CDefsZFinishPage() : CRecordPage(IDD, kTables, *g_kind.Live()) {}

BOOL CDefsZFinishPage::OnSetActive()
{
    if (ShowControls())
        m_leadAngleEdit.SubclassDlgItem(IDC_ZF_LEAD_ANGLE_TOLERANCE, this);
    ShowCheck(*this, IDC_ZF_GOUGE_CHECK, m_options.GougeCheck != kGougeCheckOff);
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefsZFinishPage::OnChangeOptionInfo()
{
    SetModified();
}

void CDefsZFinishPage::OnKillFDepthFinishStep()
{
    LeaveEdit(IDC_ZF_DEPTH_FINISH_STEP);
}

void CDefsZFinishPage::OnKillFSideClearance()
{
    LeaveEdit(IDC_ZF_SIDE_CLEARANCE);
}

void CDefsZFinishPage::OnSelDepthStepSize()
{
    TakeChoice(IDC_ZF_DEPTH_FINISH_STEP_TYPE);
}

void CDefsZFinishPage::OnSelSideClearType()
{
    TakeChoice(IDC_ZF_SIDE_CLEARANCE_TYPE);
}

void CDefsZFinishPage::OnSelGougeCheck()
{
    StoreCheck(*this, IDC_ZF_GOUGE_CHECK, m_options.GougeCheck, kGougeCheckOff);
    SetModified();
}

void CDefsZFinishPage::OnSelPlungeSelType()
{
    TakeChoice(IDC_ZF_PLUNGE_POINT);
}

void CDefsZFinishPage::OnSelPlungeWarnings()
{
    TakeCheck(IDC_ZF_PLUNGE_WARNINGS);
}

LRESULT CDefsZFinishPage::SetDefaults(WPARAM, LPARAM)
{
    m_options.Defaults();
    UpdateData(FALSE);
    return 0;
}

template class CRecordPage<CZFinishOptionsInfo>;
