#include "pages/z_rough.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = CZRoughOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"CornerAngle", &Record::CornerAngle},
    {"CornerAngleType", &Record::CornerAngleType},
    {"CornerClearance", &Record::CornerClearance, Scaling::Always},
    {"CornerClearanceType", &Record::CornerClearanceType},
    {"SideRoughStep", &Record::SideRoughStep, &Record::SideRoughStepType},
    {"SideRoughStepType", &Record::SideRoughStepType},
    {"DepthRoughStep", &Record::DepthRoughStep, &Record::DepthRoughStepType},
    {"DepthRoughStepType", &Record::DepthRoughStepType},
    {"CutterCompTop", &Record::CutterCompTop},
    {"FeedBetweenRate", &Record::FeedBetweenRate},
    {"DepthFirst", &Record::DepthFirst},
    Field<Record>("MaterialCutMode", &Record::MaterialCutMode).Sanitized(KnownMaterialCutMode),
    {"PocketCutMode", &Record::PocketCutMode},
    {"PlungeWarnings", &Record::PlungeWarnings},
    {"SideClearance", &Record::SideClearance, &Record::SideClearanceType},
    {"SideClearanceType", &Record::SideClearanceType},
    {"IslandPlunges", &Record::IslandPlunges},
    {"LeadAngleTol", &Record::LeadAngleTol},
    {"GougeCheck", &Record::GougeCheck},
    {"AlignPlunges", &Record::AlignPlunges},
};

RecordKind<Record> g_kind("OptionsZRough", kFields);

// Plunging on islands is the one option that is on at 0.
constexpr int kPlungeOnIslands = 0;
constexpr int kNoPlungeOnIslands = 1;

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_ZR_CORNER_ANGLE, &Record::CornerAngle, kCornerAngles},
    {IDC_ZR_CORNER_CLEARANCE, &Record::CornerClearance, kAnyReal},
    {IDC_ZR_SIDE_ROUGH_STEP, &Record::SideRoughStep, kAnyReal},
    {IDC_ZR_DEPTH_ROUGH_STEP, &Record::DepthRoughStep, kAnyReal},
    ExchangeRow<Record>(IDC_ZR_SIDE_CLEARANCE, &Record::SideClearance, kAnyReal).PlainEdit(),
    {IDC_ZR_LEAD_ANGLE_TOLERANCE, &Record::LeadAngleTol},
    {IDC_ZR_CORNER_ANGLE_TYPE, &Record::CornerAngleType, Binding::Index},
    {IDC_ZR_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, Binding::Index},
    {IDC_ZR_SIDE_ROUGH_STEP_TYPE, &Record::SideRoughStepType, Binding::Index},
    {IDC_ZR_DEPTH_ROUGH_STEP_TYPE, &Record::DepthRoughStepType, Binding::Index},
    {IDC_ZR_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, Binding::Index},
    {IDC_ZR_MATERIAL_CUT_MODE, &Record::MaterialCutMode, Binding::Index},
    {IDC_ZR_POCKET_CUT_MODE, &Record::PocketCutMode, Binding::Index},
    {IDC_ZR_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, Binding::Index},
    {IDC_ZR_CUTTER_COMP_TOP, &Record::CutterCompTop, Binding::Check},
    {IDC_ZR_DEPTH_FIRST, &Record::DepthFirst, Binding::Check},
    {IDC_ZR_PLUNGE_WARNINGS, &Record::PlungeWarnings, Binding::Check},
    // The exchange takes the box as it is, the activation and a click take it the other way round.
    {IDC_ZR_ISLAND_PLUNGES, &Record::IslandPlunges, Binding::Check},
    {IDC_ZR_GOUGE_CHECK, &Record::GougeCheck, Binding::OnOff},
    {IDC_ZR_ALIGN_PLUNGES, &Record::AlignPlunges, Binding::Check},
};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_ZR_CORNER_ANGLE_TYPE, &Record::CornerAngleType, kCornerTypes},
    {IDC_ZR_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, kLengthTypes},
    {IDC_ZR_SIDE_ROUGH_STEP_TYPE, &Record::SideRoughStepType, kLengthTypes},
    {IDC_ZR_DEPTH_ROUGH_STEP_TYPE, &Record::DepthRoughStepType, kLengthTypes},
    {IDC_ZR_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, kFeedsBetween},
    {IDC_ZR_MATERIAL_CUT_MODE, &Record::MaterialCutMode, kMaterialCutModes},
    {IDC_ZR_POCKET_CUT_MODE, &Record::PocketCutMode, kPocketCutModes},
    {IDC_ZR_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, kLengthTypes},
};

// Plunges on islands and the gouge check are not here: their boxes do not stand for 1 and 0.
constexpr CheckRow<Record> kChecks[] = {
    {IDC_ZR_CUTTER_COMP_TOP, &Record::CutterCompTop},
    {IDC_ZR_DEPTH_FIRST, &Record::DepthFirst},
    {IDC_ZR_PLUNGE_WARNINGS, &Record::PlungeWarnings},
    {IDC_ZR_ALIGN_PLUNGES, &Record::AlignPlunges},
};

const DescribedPage<Record> g_description(IDD_ZR, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_zrough_pocket_opt.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_ZR_CORNER_ANGLE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
    {IDC_ZR_CORNER_ANGLE_TYPE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
    {IDC_ZR_CORNER_CLEARANCE, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
    {IDC_ZR_SIDE_ROUGH_STEP, "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"},
    {IDC_ZR_DEPTH_ROUGH_STEP, "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm"},
    {IDC_ZR_SIDE_CLEARANCE, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
    {IDC_ZR_LEAD_ANGLE_TOLERANCE, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
    {IDC_ZR_SIDE_ROUGH_STEP_TYPE, kStepSizeTopic},
    {IDC_ZR_CORNER_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_ZR_DEPTH_ROUGH_STEP_TYPE, kStepSizeTopic},
    {IDC_ZR_SIDE_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_ZR_FEED_BETWEEN_RATE, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_ZR_POCKET_CUT_MODE, "pelmar-_optionspopups_hidc_zropts_pocket_cut_mode.htm"},
    {IDC_ZR_CUTTER_COMP_TOP, "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm"},
    {IDC_ZR_DEPTH_FIRST, "pelmar-_optionspopups_hidc_zropts_depth_first.htm"},
    {IDC_ZR_PLUNGE_WARNINGS, "pelmar-_optionspopups_hidc_zropts_dsp_changes.htm"},
    {IDC_ZR_ISLAND_PLUNGES, "pelmar-_options_hidc_zropts_of_island_plunges.htm"},
    {IDC_ZR_GOUGE_CHECK, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
    {IDC_ZR_ALIGN_PLUNGES, "pelmar-_optionspopups_align_to_deepest_plunge.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};

// What the page tells its siblings.
constexpr WPARAM kSideRoughStepChanged = 0x8025;
constexpr WPARAM kSideRoughStepTypeChosen = 0x8026;
constexpr WPARAM kDepthRoughStepChanged = 0x8027;
constexpr WPARAM kDepthRoughStepTypeChosen = 0x8028;
constexpr WPARAM kSideClearanceChanged = 0x8029;
constexpr WPARAM kSideClearanceTypeChosen = 0x802A;
} // namespace

// ---- the record's operations ----

void CZRoughOptionsInfo::vOptions_Default()
{
    g_kind.Defaults(*this);
}

void CZRoughOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CZRoughOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CZRoughOptionsInfo::vZRoughOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CZRoughOptionsInfo* GetLastZRoughOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsZRoughPage::IDD} == IDD_ZR);

IMPLEMENT_DYNCREATE(CDefsZRoughPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsZRoughPage, CExpRegenPropertyPage)
    ON_COMMAND(ID_HELP, &CDefsZRoughPage::OnHelp)
    ON_CBN_SELCHANGE(IDC_ZR_CORNER_ANGLE_TYPE, &CDefsZRoughPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_ZR_CORNER_CLEARANCE_TYPE, &CDefsZRoughPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_ZR_SIDE_ROUGH_STEP_TYPE, &CDefsZRoughPage::OnSelSideStepSize)
    ON_CBN_SELCHANGE(IDC_ZR_DEPTH_ROUGH_STEP_TYPE, &CDefsZRoughPage::OnSelDepthStepSize)
    ON_BN_CLICKED(IDC_ZR_CUTTER_COMP_TOP, &CDefsZRoughPage::OnSelCutterCompTop)
    ON_CBN_SELCHANGE(IDC_ZR_FEED_BETWEEN_RATE, &CDefsZRoughPage::OnSelFeedBetweenRate)
    ON_BN_CLICKED(IDC_ZR_DEPTH_FIRST, &CDefsZRoughPage::OnSelDepthFirst)
    ON_CBN_SELCHANGE(IDC_ZR_MATERIAL_CUT_MODE, &CDefsZRoughPage::OnSelMaterialCutMode)
    ON_CBN_SELCHANGE(IDC_ZR_POCKET_CUT_MODE, &CDefsZRoughPage::OnSelPocketCutMode)
    ON_BN_CLICKED(IDC_ZR_PLUNGE_WARNINGS, &CDefsZRoughPage::OnSelPlungeWarnings)
    ON_CBN_SELCHANGE(IDC_ZR_SIDE_CLEARANCE_TYPE, &CDefsZRoughPage::OnSelSideClearType)
    ON_BN_CLICKED(IDC_ZR_ISLAND_PLUNGES, &CDefsZRoughPage::OnSelIslandPlunges)
    ON_BN_CLICKED(IDC_ZR_GOUGE_CHECK, &CDefsZRoughPage::OnSelGougeCheck)
    ON_BN_CLICKED(IDC_ZR_ALIGN_PLUNGES, &CDefsZRoughPage::OnSelAlignPlunges)
    ON_EN_CHANGE(IDC_ZR_CORNER_ANGLE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_CORNER_CLEARANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_SIDE_ROUGH_STEP, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_DEPTH_ROUGH_STEP, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_SIDE_CLEARANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_LEAD_ANGLE_TOLERANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_KILLFOCUS(IDC_ZR_CORNER_ANGLE, &CDefsZRoughPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_ZR_CORNER_CLEARANCE, &CDefsZRoughPage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_ZR_SIDE_ROUGH_STEP, &CDefsZRoughPage::OnKillFSideRoughStep)
    ON_EN_KILLFOCUS(IDC_ZR_DEPTH_ROUGH_STEP, &CDefsZRoughPage::OnKillFDepthRoughStep)
    ON_EN_KILLFOCUS(IDC_ZR_SIDE_CLEARANCE, &CDefsZRoughPage::OnKillFSideClearance)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsZRoughPage::SetDefaults)
END_MESSAGE_MAP()

CDefsZRoughPage::CDefsZRoughPage() : CRecordPage(IDD, kTables, *g_kind.Live()) {}

BOOL CDefsZRoughPage::OnSetActive()
{
    ShowControls();
    ShowCheck(*this, IDC_ZR_ISLAND_PLUNGES, m_options.IslandPlunges == kPlungeOnIslands);
    ShowCheck(*this, IDC_ZR_GOUGE_CHECK, m_options.GougeCheck != kGougeCheckOff);
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefsZRoughPage::OnChangeZROptions()
{
    SetModified();
}

void CDefsZRoughPage::OnKillFCornerAngle()
{
    LeaveEdit(IDC_ZR_CORNER_ANGLE);
}

void CDefsZRoughPage::OnKillFCornerClearance()
{
    LeaveEdit(IDC_ZR_CORNER_CLEARANCE);
}

void CDefsZRoughPage::OnKillFSideRoughStep()
{
    if (LeaveEdit(IDC_ZR_SIDE_ROUGH_STEP))
        NotifySiblings(*this, kSideRoughStepChanged, m_options.SideRoughStep);
}

void CDefsZRoughPage::OnKillFDepthRoughStep()
{
    if (LeaveEdit(IDC_ZR_DEPTH_ROUGH_STEP))
        NotifySiblings(*this, kDepthRoughStepChanged, m_options.DepthRoughStep);
}

void CDefsZRoughPage::OnKillFSideClearance()
{
    if (LeaveEdit(IDC_ZR_SIDE_CLEARANCE))
        NotifySiblings(*this, kSideClearanceChanged, m_options.SideClearance);
}

void CDefsZRoughPage::OnSelCornerAngleType()
{
    TakeChoice(IDC_ZR_CORNER_ANGLE_TYPE);
}

void CDefsZRoughPage::OnSelCornerClearType()
{
    TakeChoice(IDC_ZR_CORNER_CLEARANCE_TYPE);
}

void CDefsZRoughPage::OnSelSideStepSize()
{
    ShareNewSelection(*this, IDC_ZR_SIDE_ROUGH_STEP_TYPE, m_options.SideRoughStepType, kSideRoughStepTypeChosen);
}

void CDefsZRoughPage::OnSelDepthStepSize()
{
    ShareNewSelection(*this, IDC_ZR_DEPTH_ROUGH_STEP_TYPE, m_options.DepthRoughStepType, kDepthRoughStepTypeChosen);
}

void CDefsZRoughPage::OnSelCutterCompTop()
{
    TakeCheck(IDC_ZR_CUTTER_COMP_TOP);
}

void CDefsZRoughPage::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_ZR_FEED_BETWEEN_RATE);
}

void CDefsZRoughPage::OnSelDepthFirst()
{
    TakeCheck(IDC_ZR_DEPTH_FIRST);
}

void CDefsZRoughPage::OnSelMaterialCutMode()
{
    ShareSelection(*this, IDC_ZR_MATERIAL_CUT_MODE, m_options.MaterialCutMode, kCutModeChosen);
}

void CDefsZRoughPage::OnSelPocketCutMode()
{
    ShareSelection(*this, IDC_ZR_POCKET_CUT_MODE, m_options.PocketCutMode, kCutModeChosen);
}

void CDefsZRoughPage::OnSelPlungeWarnings()
{
    TakeCheck(IDC_ZR_PLUNGE_WARNINGS);
}

void CDefsZRoughPage::OnSelSideClearType()
{
    ShareNewSelection(*this, IDC_ZR_SIDE_CLEARANCE_TYPE, m_options.SideClearanceType, kSideClearanceTypeChosen);
}

void CDefsZRoughPage::OnSelIslandPlunges()
{
    StoreCheck(*this, IDC_ZR_ISLAND_PLUNGES, m_options.IslandPlunges, kNoPlungeOnIslands, kPlungeOnIslands);
    SetModified();
}

void CDefsZRoughPage::OnSelGougeCheck()
{
    StoreCheck(*this, IDC_ZR_GOUGE_CHECK, m_options.GougeCheck, kGougeCheckOff);
    SetModified();
}

void CDefsZRoughPage::OnSelAlignPlunges()
{
    TakeCheck(IDC_ZR_ALIGN_PLUNGES);
}

LRESULT CDefsZRoughPage::SetDefaults(WPARAM, LPARAM)
{
    m_options.vOptions_Default();
    UpdateData(FALSE);
    return 0;
}

template class CRecordPage<CZRoughOptionsInfo>;
