#include "pages/flat_surface.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = CFlatSurfaceOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"CornerAngle", &Record::CornerAngle},
    {"CornerAngleType", &Record::CornerAngleType},
    {"CornerClearance", &Record::CornerClearance, Scaling::Always},
    {"CornerClearanceType", &Record::CornerClearanceType},
    {"SideStep", &Record::SideStep, &Record::SideStepType},
    {"SideStepType", &Record::SideStepType},
    {"FeedBetweenRate", &Record::FeedBetweenRate},
    {"DepthFirst", &Record::DepthFirst},
    Field<Record>("MaterialCutMode", &Record::MaterialCutMode).Sanitized(KnownMaterialCutMode),
    {"PocketCutMode", &Record::PocketCutMode},
    {"PlungeWarnings", &Record::PlungeWarnings},
    {"IslandPlunges", &Record::IslandPlunges},
    {"LeadAngleTol", &Record::LeadAngleTol},
    {"GougeCheck", &Record::GougeCheck},
    {"AlignPlunges", &Record::AlignPlunges},
};

RecordKind<Record> g_kind("OptionsFlatSurface", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_FS_CORNER_ANGLE, &Record::CornerAngle, kCornerAngles},
    {IDC_FS_CORNER_CLEARANCE, &Record::CornerClearance, kAnyReal},
    {IDC_FS_SIDE_STEP, &Record::SideStep, kAnyReal},
    {IDC_FS_LEAD_ANGLE_TOLERANCE, &Record::LeadAngleTol},
    {IDC_FS_CORNER_ANGLE_TYPE, &Record::CornerAngleType, Binding::Index},
    {IDC_FS_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, Binding::Index},
    {IDC_FS_SIDE_STEP_TYPE, &Record::SideStepType, Binding::Index},
    {IDC_FS_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, Binding::Index},
    {IDC_FS_MATERIAL_CUT_MODE, &Record::MaterialCutMode, Binding::Index},
    {IDC_FS_POCKET_CUT_MODE, &Record::PocketCutMode, Binding::Index},
    {IDC_FS_GOUGE_CHECK, &Record::GougeCheck, Binding::OnOff},
};

constexpr UINT kNoYes[] = {IDS_NO, IDS_YES};
constexpr UINT kYesNo[] = {IDS_YES, IDS_NO};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_FS_CORNER_ANGLE_TYPE, &Record::CornerAngleType, kCornerTypes},
    {IDC_FS_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, kLengthTypes},
    {IDC_FS_SIDE_STEP_TYPE, &Record::SideStepType, kLengthTypes},
    {IDC_FS_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, kFeedsBetween},
    {IDC_FS_MATERIAL_CUT_MODE, &Record::MaterialCutMode, kMaterialCutModes},
    {IDC_FS_POCKET_CUT_MODE, &Record::PocketCutMode, kPocketCutModes},
    // The template holds none of these; where they are missing nothing happens. Plunges on islands are on at 0.
    {IDC_FS_DEPTH_FIRST, &Record::DepthFirst, kNoYes},
    {IDC_FS_PLUNGE_WARNINGS, &Record::PlungeWarnings, kNoYes},
    {IDC_FS_ISLAND_PLUNGES, &Record::IslandPlunges, kYesNo},
    {IDC_FS_ALIGN_PLUNGES, &Record::AlignPlunges, kNoYes},
};

const DescribedPage<Record> g_description(IDD_FS, g_kind, kExchange, kChoices);

constexpr char kPageTopic[] = "pelmar-_options_3_axis_flat_surface_pocket_options.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";
constexpr char kCutModeTopic[] = "pelmar-_optionspopups_material_cut_mode.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_FS_CORNER_ANGLE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
    {IDC_FS_CORNER_ANGLE_TYPE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
    {IDC_FS_CORNER_CLEARANCE, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
    {IDC_FS_SIDE_STEP, "pelmar-_optionspopups_side_step_size.htm"},
    {IDC_FS_LEAD_ANGLE_TOLERANCE, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
    {IDC_FS_SIDE_STEP_TYPE, kStepSizeTopic},
    {IDC_FS_CORNER_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_FS_FEED_BETWEEN_RATE, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_FS_MATERIAL_CUT_MODE, kCutModeTopic},
    {IDC_FS_POCKET_CUT_MODE, kCutModeTopic},
    {IDC_FS_GOUGE_CHECK, "pelmar-_optionspopups_hidc_zfopts_gouge_check.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, {}, kPageTopic, kTopics};

// What the page tells its siblings.
constexpr WPARAM kSideStepChanged = 0x801B;
constexpr WPARAM kSideStepTypeChosen = 0x801C;
} // namespace

// ---- the record's operations ----

void CFlatSurfaceOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void CFlatSurfaceOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CFlatSurfaceOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CFlatSurfaceOptionsInfo::vFlatSurfaceOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CFlatSurfaceOptionsInfo* GetLastFlatSurfaceOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsFlatSurfacePage::IDD} == IDD_FS);

IMPLEMENT_DYNCREATE(CDefsFlatSurfacePage, CExpRegenPropertyPage)

// A click of the gouge check is not here: the exchange alone takes the box.
BEGIN_MESSAGE_MAP(CDefsFlatSurfacePage, CExpRegenPropertyPage)
    ON_COMMAND(ID_HELP, &CDefsFlatSurfacePage::OnHelp)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefsFlatSurfacePage::OnRestoreDefaults)
    ON_CBN_SELCHANGE(IDC_FS_CORNER_ANGLE_TYPE, &CDefsFlatSurfacePage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_FS_CORNER_CLEARANCE_TYPE, &CDefsFlatSurfacePage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_FS_SIDE_STEP_TYPE, &CDefsFlatSurfacePage::OnSelSideStepSize)
    ON_CBN_SELCHANGE(IDC_FS_FEED_BETWEEN_RATE, &CDefsFlatSurfacePage::OnSelFeedBetweenRate)
    ON_CBN_SELCHANGE(IDC_FS_MATERIAL_CUT_MODE, &CDefsFlatSurfacePage::OnSelMaterialCutMode)
    ON_CBN_SELCHANGE(IDC_FS_POCKET_CUT_MODE, &CDefsFlatSurfacePage::OnSelPocketCutMode)
    ON_EN_CHANGE(IDC_FS_CORNER_ANGLE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_FS_CORNER_CLEARANCE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_FS_SIDE_STEP, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_FS_LEAD_ANGLE_TOLERANCE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_KILLFOCUS(IDC_FS_CORNER_ANGLE, &CDefsFlatSurfacePage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_FS_CORNER_CLEARANCE, &CDefsFlatSurfacePage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_FS_SIDE_STEP, &CDefsFlatSurfacePage::OnKillFSideStep)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsFlatSurfacePage::SetDefaults)
END_MESSAGE_MAP()

CDefsFlatSurfacePage::CDefsFlatSurfacePage() : CRecordPage(IDD, kTables, *g_kind.Live()) {}

BOOL CDefsFlatSurfacePage::OnSetActive()
{
    ShowControls();
    ShowCheck(*this, IDC_FS_GOUGE_CHECK, m_options.GougeCheck != kGougeCheckOff);
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefsFlatSurfacePage::OnChangeFSOptions()
{
    SetModified();
}

void CDefsFlatSurfacePage::OnKillFCornerAngle()
{
    LeaveEdit(IDC_FS_CORNER_ANGLE);
}

void CDefsFlatSurfacePage::OnKillFCornerClearance()
{
    LeaveEdit(IDC_FS_CORNER_CLEARANCE);
}

void CDefsFlatSurfacePage::OnKillFSideStep()
{
    if (LeaveEdit(IDC_FS_SIDE_STEP))
        NotifySiblings(*this, kSideStepChanged, m_options.SideStep);
}

void CDefsFlatSurfacePage::OnSelCornerAngleType()
{
    TakeChoice(IDC_FS_CORNER_ANGLE_TYPE);
}

void CDefsFlatSurfacePage::OnSelCornerClearType()
{
    TakeChoice(IDC_FS_CORNER_CLEARANCE_TYPE);
}

void CDefsFlatSurfacePage::OnSelSideStepSize()
{
    ShareNewSelection(*this, IDC_FS_SIDE_STEP_TYPE, m_options.SideStepType, kSideStepTypeChosen);
}

void CDefsFlatSurfacePage::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_FS_FEED_BETWEEN_RATE);
}

void CDefsFlatSurfacePage::OnSelMaterialCutMode()
{
    ShareSelection(*this, IDC_FS_MATERIAL_CUT_MODE, m_options.MaterialCutMode, kCutModeChosen);
}

void CDefsFlatSurfacePage::OnSelPocketCutMode()
{
    ShareSelection(*this, IDC_FS_POCKET_CUT_MODE, m_options.PocketCutMode, kCutModeChosen);
}

void CDefsFlatSurfacePage::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    UpdateData(FALSE);
}

LRESULT CDefsFlatSurfacePage::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template class CRecordPage<CFlatSurfaceOptionsInfo>;
