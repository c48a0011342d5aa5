#include "pages/milling_2axis.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = C2AxisOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"MaxFeedBetween", &Record::MaxFeedBetween, &Record::FeedBetweenType},
    {"FeedBetweenType", &Record::FeedBetweenType},
    {"CornerAngle", &Record::CornerAngle},
    {"CornerAngleType", &Record::CornerAngleType},
    {"CornerClearance", &Record::CornerClearance, &Record::CornerClearanceType},
    {"CornerClearanceType", &Record::CornerClearanceType},
    {"SideClearance", &Record::SideClearance, &Record::SideClearanceType},
    {"SideClearanceType", &Record::SideClearanceType},
    {"SideRoughStep", &Record::SideRoughStep, &Record::SideRoughStepType},
    {"SideRoughStepType", &Record::SideRoughStepType},
    {"SideFinishStep", &Record::SideFinishStep, &Record::SideFinishStepType},
    {"SideFinishStepType", &Record::SideFinishStepType},
    {"DepthRoughStep", &Record::DepthRoughStep, &Record::DepthRoughStepType},
    {"DepthRoughStepType", &Record::DepthRoughStepType},
    {"DepthFinishStep", &Record::DepthFinishStep, &Record::DepthFinishStepType},
    {"DepthFinishStepType", &Record::DepthFinishStepType},
    {"RapidPlane", &Record::RapidPlane, Scaling::Always},
    {"RapidPlunge", &Record::RapidPlunge, Scaling::Always},
    {"PathIslandDepths", &Record::PathIslandDepths},
    {"GougeCheck", &Record::GougeCheck},
    {"FeedBetweenRate", &Record::FeedBetweenRate},
    {"ThreadMillFeedBetween", &Record::ThreadMillFeedBetween},
    {"DepthFirst", &Record::DepthFirst},
    {"FinishCutOn", &Record::FinishCutOn},
    {"PocketNestingType", &Record::PocketNestingType},
    {"PocketNestingDepth", &Record::PocketNestingDepth},
    {"SortType", &Record::SortType},
    {"SelectMaterial", &Record::SelectMaterial},
    {"DispPlungeChanges", &Record::DispPlungeChanges},
    {"IslandPlunges", &Record::IslandPlunges},
    {"LeadAngleTol", &Record::LeadAngleTol},
    {"AlignPlunges", &Record::AlignPlunges},
};

RecordKind<Record> g_kind("Options2x", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_2X_MAX_FEED_BETWEEN, &Record::MaxFeedBetween, kAnyReal},
    {IDC_2X_CORNER_ANGLE, &Record::CornerAngle, kCornerAngles},
    {IDC_2X_CORNER_CLEARANCE, &Record::CornerClearance, kAnyReal},
    {IDC_2X_SIDE_CLEARANCE, &Record::SideClearance, kAnyReal},
    {IDC_2X_SIDE_ROUGH_STEP, &Record::SideRoughStep, kAnyReal},
    {IDC_2X_SIDE_FINISH_STEP, &Record::SideFinishStep, kAnyReal},
    {IDC_2X_DEPTH_ROUGH_STEP, &Record::DepthRoughStep, kAnyReal},
    {IDC_2X_DEPTH_FINISH_STEP, &Record::DepthFinishStep, kAnyReal},
    {IDC_2X_RAPID_PLANE, &Record::RapidPlane, kAnyReal},
    {IDC_2X_RAPID_PLUNGE, &Record::RapidPlunge, kNotNegative},
    {IDC_2X_POCKET_NESTING_DEPTH, &Record::PocketNestingDepth},
    {IDC_2X_LEAD_ANGLE_TOLERANCE, &Record::LeadAngleTol},
};

constexpr UINT kIslandDepths[] = {IDS_CONSTANT, IDS_ISLAND_DEPTHS_VARYING, IDS_ISLAND_DEPTHS_ROUGH_3D};
constexpr UINT kGougeChecks[] = {IDS_GOUGE_CHECK_SINGLE, IDS_GOUGE_CHECK_FULL, IDS_GOUGE_CHECK_TOOLPATH};
constexpr UINT kFinishCuts[] = {IDS_FINISH_ALL_DEPTHS, IDS_FINISH_LAST_DEPTH};
constexpr UINT kNestings[] = {IDS_NESTING_ALL, IDS_NESTING_CHOSEN};
constexpr UINT kSorts[] = {IDS_SORT_NONE, IDS_SORT_AUTOMATIC, IDS_SORT_NESTED};
constexpr UINT kLookAheads[] = {IDS_LOOK_AHEAD_ONE_ELEMENT, IDS_LOOK_AHEAD_WHOLE_CONTOUR};
constexpr UINT kToolpathDisplays[] = {IDS_SHOW_PROGRAMMED_CONTOUR, IDS_SHOW_COMPENSATED_PATH};

// Island depths are not here: their items depend on the operation.
constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_2X_FEED_BETWEEN_TYPE, &Record::FeedBetweenType, kLengthTypes},
    {IDC_2X_CORNER_ANGLE_TYPE, &Record::CornerAngleType, kCornerTypes},
    {IDC_2X_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, kLengthTypes},
    {IDC_2X_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, kLengthTypes},
    {IDC_2X_SIDE_ROUGH_STEP_TYPE, &Record::SideRoughStepType, kLengthTypes},
    {IDC_2X_SIDE_FINISH_STEP_TYPE, &Record::SideFinishStepType, kLengthTypes},
    {IDC_2X_DEPTH_ROUGH_STEP_TYPE, &Record::DepthRoughStepType, kLengthTypes},
    {IDC_2X_DEPTH_FINISH_STEP_TYPE, &Record::DepthFinishStepType, kLengthTypes},
    {IDC_2X_GOUGE_CHECK, &Record::GougeCheck, kGougeChecks},
    {IDC_2X_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, kFeedsBetween},
    {IDC_2X_THREAD_MILL_FEED_BETWEEN, &Record::ThreadMillFeedBetween, kFeedsBetween},
    {IDC_2X_FINISH_CUT_ON, &Record::FinishCutOn, kFinishCuts},
    {IDC_2X_POCKET_NESTING_TYPE, &Record::PocketNestingType, kNestings},
    {IDC_2X_SORT_TYPE, &Record::SortType, kSorts},
};

constexpr CheckRow<Record> kChecks[] = {
    {IDC_2X_CUTTER_COMP_TOP, &Record::CutterCompTop},
    {IDC_2X_DEPTH_FIRST, &Record::DepthFirst},
    {IDC_2X_DISPLAY_PLUNGE_CHANGES, &Record::DispPlungeChanges},
    {IDC_2X_ISLAND_PLUNGES, &Record::IslandPlunges},
    {IDC_2X_ALIGN_PLUNGES, &Record::AlignPlunges},
};

const DescribedPage<Record> g_description(IDD_2X, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_2axis_cut_opt.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_2X_MAX_FEED_BETWEEN, "pelmar-_optionspopups_hidc_2axisopts_maxfeed.htm"},
    {IDC_2X_CORNER_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_2X_SIDE_ROUGH_STEP_TYPE, kStepSizeTopic},
    {IDC_2X_SIDE_FINISH_STEP_TYPE, kStepSizeTopic},
    {IDC_2X_DEPTH_ROUGH_STEP_TYPE, kStepSizeTopic},
    {IDC_2X_DEPTH_FINISH_STEP_TYPE, kStepSizeTopic},
    {IDC_2X_FEED_BETWEEN_TYPE, kStepSizeTopic},
    {IDC_2X_SIDE_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_2X_CORNER_ANGLE_TYPE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
    {IDC_2X_PATH_ISLAND_DEPTHS, "pelmar-_optionspopups_hidc_2axisopts_path_depths.htm"},
    {IDC_2X_GOUGE_CHECK, "pelmar-_optionspopups_hidc_2axisopts_gouge_check.htm"},
    {IDC_2X_FEED_BETWEEN_RATE, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_2X_FINISH_CUT_ON, "pelmar-_optionspopups_hidc_2axisopts_finish_cut_on.htm"},
    {IDC_2X_POCKET_NESTING_TYPE, "pelmar-_optionspopups_hidc_2axisopts_nesting_depth_type.htm"},
    {IDC_2X_SORT_TYPE, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
    {IDC_2X_LOOK_AHEAD, "pelmar-_optionspopups_cutter_compensation_look_ahead_.htm"},
    {IDC_2X_SHOW_TOOLPATH, "pelmar-_optionspopups_show_backplot_toolpath_using.htm"},
    {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
    {IDC_2X_CORNER_ANGLE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
    {IDC_2X_CORNER_CLEARANCE, "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm"},
    {IDC_2X_SIDE_ROUGH_STEP, "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"},
    {IDC_2X_SIDE_FINISH_STEP, "pelmar-_optionspopups_hidc_2axisopts_side_finish_step.htm"},
    {IDC_2X_DEPTH_ROUGH_STEP, "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm"},
    {IDC_2X_DEPTH_FINISH_STEP, "pelmar-_optionspopups_hidc_2axisopts_depth_finish_step.htm"},
    {IDC_2X_RAPID_PLANE, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
    {IDC_2X_RAPID_PLUNGE, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
    {IDC_2X_POCKET_NESTING_DEPTH, "pelmar-_optionspopups_hidc_2axisopts_nesting_depth.htm"},
    {IDC_2X_SIDE_CLEARANCE, "pelmar-_optionspopups_side_clearance_options_tab.htm"},
    {IDC_2X_LEAD_ANGLE_TOLERANCE, "pelmar-_optionspopups_hidc_zfopts_lead_angle_tol.htm"},
    {IDC_2X_CUTTER_COMP_TOP, "pelmar-_optionspopups_hidc_2axisopts_cutter_comp.htm"},
    {IDC_2X_DEPTH_FIRST, "pelmar-_optionspopups_hidc_zropts_depth_first.htm"},
    {IDC_2X_DISPLAY_PLUNGE_CHANGES, "pelmar-_optionspopups_hidc_2axisopts_dsp_changes.htm"},
    {IDC_2X_GAUGE_LENGTH, "pelmar-_optionspopups_toollib_gauge_length.htm"}, // on the pages that have the button
    {IDC_2X_ISLAND_PLUNGES, "pelmar-_optionspopups_hidc_2axisopts_island_plunges.htm"},
    {IDC_2X_ALIGN_PLUNGES, "pelmar-_optionspopups_align_to_deepest_plunge.htm"},
    {IDC_2X_THREAD_MILL_FEED_BETWEEN, "pelmar-_cutctrlpopups_threadmill_feed_between.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};

// What the page tells its siblings.
constexpr WPARAM kIslandDepthsChosen = 32772;
constexpr WPARAM kSideClearanceChanged = 32791;

// Operations that change the page.
constexpr int kAlignsPlunges = 6;
constexpr int kConstantIslandDepths = 35;
constexpr int kThreadMilling = 38;
} // namespace

// ---- the record's operations ----

void C2AxisOptionsInfo::vOptions_Defaults()
{
    // Restoring the defaults reports plunge changes, as a fresh record does not.
    Record builtIn;
    builtIn.DispPlungeChanges = 1;
    g_kind.Defaults(*this, builtIn);
}

void C2AxisOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void C2AxisOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void C2AxisOptionsInfo::v2xOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

C2AxisOptionsInfo* GetLast2xOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefs2xPage::IDD} == IDD_2X);

IMPLEMENT_DYNCREATE(CDefs2xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs2xPage, CExpRegenPropertyPage)
    ON_EN_KILLFOCUS(IDC_2X_MAX_FEED_BETWEEN, &CDefs2xPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_2X_CORNER_ANGLE, &CDefs2xPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_2X_CORNER_CLEARANCE, &CDefs2xPage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_CLEARANCE, &CDefs2xPage::OnKillFSideClearance)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_ROUGH_STEP, &CDefs2xPage::OnKillFSideRoughStep)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_FINISH_STEP, &CDefs2xPage::OnKillFSideFinishStep)
    ON_EN_KILLFOCUS(IDC_2X_DEPTH_ROUGH_STEP, &CDefs2xPage::OnKillFDepthRoughStep)
    ON_EN_KILLFOCUS(IDC_2X_DEPTH_FINISH_STEP, &CDefs2xPage::OnKillFDepthFinishStep)
    ON_EN_KILLFOCUS(IDC_2X_RAPID_PLANE, &CDefs2xPage::OnKillFRapidPlane)
    ON_EN_KILLFOCUS(IDC_2X_RAPID_PLUNGE, &CDefs2xPage::OnKillFRapidPlunge)
    ON_CBN_SELCHANGE(IDC_2X_FEED_BETWEEN_TYPE, &CDefs2xPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_2X_CORNER_ANGLE_TYPE, &CDefs2xPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_2X_CORNER_CLEARANCE_TYPE, &CDefs2xPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_CLEARANCE_TYPE, &CDefs2xPage::OnSelSideClearType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_ROUGH_STEP_TYPE, &CDefs2xPage::OnSelSideRoughStepType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_FINISH_STEP_TYPE, &CDefs2xPage::OnSelSideFinishStepType)
    ON_CBN_SELCHANGE(IDC_2X_DEPTH_ROUGH_STEP_TYPE, &CDefs2xPage::OnSelDepthRoughStepType)
    ON_CBN_SELCHANGE(IDC_2X_DEPTH_FINISH_STEP_TYPE, &CDefs2xPage::OnSelDepthFinishStepType)
    ON_CBN_SELCHANGE(IDC_2X_PATH_ISLAND_DEPTHS, &CDefs2xPage::OnSelPathIslandDepthType)
    ON_CBN_SELCHANGE(IDC_2X_GOUGE_CHECK, &CDefs2xPage::OnSelGougeCheckType)
    ON_BN_CLICKED(IDC_2X_CUTTER_COMP_TOP, &CDefs2xPage::OnSelCutterCompTop)
    ON_CBN_SELCHANGE(IDC_2X_FEED_BETWEEN_RATE, &CDefs2xPage::OnSelFeedBetweenRate)
    ON_CBN_SELCHANGE(IDC_2X_THREAD_MILL_FEED_BETWEEN, &CDefs2xPage::OnSelThreadMillFeedBetween)
    ON_BN_CLICKED(IDC_2X_DEPTH_FIRST, &CDefs2xPage::OnSelDepthFirst)
    ON_CBN_SELCHANGE(IDC_2X_FINISH_CUT_ON, &CDefs2xPage::OnSelFinishCutOn)
    ON_CBN_SELCHANGE(IDC_2X_POCKET_NESTING_TYPE, &CDefs2xPage::OnSelPocketNestingType)
    ON_CBN_SELCHANGE(IDC_2X_SORT_TYPE, &CDefs2xPage::OnSelSortType)
    ON_BN_CLICKED(IDC_2X_DISPLAY_PLUNGE_CHANGES, &CDefs2xPage::OnSelDispPlungeChanges)
    ON_BN_CLICKED(IDC_2X_ISLAND_PLUNGES, &CDefs2xPage::OnSelIslandPlunges)
    ON_BN_CLICKED(IDC_2X_ALIGN_PLUNGES, &CDefs2xPage::OnSelAlignPlunges)
    ON_CBN_SELCHANGE(IDC_2X_LOOK_AHEAD, &CDefs2xPage::OnSelLookAhead)
    ON_CBN_SELCHANGE(IDC_2X_SHOW_TOOLPATH, &CDefs2xPage::OnSelPEShowToolpath)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefs2xPage::OnRestoreDefaults)
    ON_COMMAND(ID_HELP, &CDefs2xPage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CDefs2xPage::SetDefaults)
END_MESSAGE_MAP()

CDefs2xPage::CDefs2xPage() : CRecordPage(IDD, kTables) {}

void CDefs2xPage::GetData(int units)
{
    CRecordPage::GetData(units);
    m_hideCompensation = 1;
}

void CDefs2xPage::GetData(int units, int lookAhead, int showToolpath)
{
    CRecordPage::GetData(units);
    m_lookAhead = lookAhead;
    m_showToolpath = showToolpath;
    SelectIndex(*this, IDC_2X_LOOK_AHEAD, m_lookAhead);
    SelectIndex(*this, IDC_2X_SHOW_TOOLPATH, m_showToolpath);
}

void CDefs2xPage::SetData(int& lookAhead, int& showToolpath)
{
    lookAhead = m_lookAhead;
    showToolpath = m_showToolpath;
}

BOOL CDefs2xPage::OnSetActive()
{
    ShowControls();
    EnableNestingDepth();
    ShowIslandDepths();
    ShowOptionsOfOperation();
    ShowCompensation();
    UpdateData(FALSE);
    return CExpRegenPropertyPage::OnSetActive();
}

/// Depths that are not constant are for operations on islands alone.
void CDefs2xPage::ShowIslandDepths()
{
    const bool allowed = (m_contextBits & 1) && !m_contextFlag && m_operationCode != kConstantIslandDepths;
    FillList(*this, IDC_2X_PATH_ISLAND_DEPTHS, std::span(kIslandDepths).first(allowed ? std::size(kIslandDepths) : 1));
    if (!allowed) {
        m_options.PathIslandDepths = 0;
        EnableControl(*this, IDC_2X_PATH_ISLAND_DEPTHS, false);
    }
    SelectIndex(*this, IDC_2X_PATH_ISLAND_DEPTHS, m_options.PathIslandDepths);
}

void CDefs2xPage::ShowOptionsOfOperation()
{
    const bool feeds = m_operationCode != kThreadMilling;
    EnableControl(*this, IDC_2X_FEED_BETWEEN_RATE, feeds);
    EnableControl(*this, IDC_2X_FEED_BETWEEN_RATE_LABEL, feeds);
    const bool threadMillFeeds = m_operationCode == kThreadMilling || m_operationCode == 0;
    EnableControl(*this, IDC_2X_THREAD_MILL_FEED_BETWEEN, threadMillFeeds);
    EnableControl(*this, IDC_2X_THREAD_MILL_FEED_BETWEEN_LABEL, threadMillFeeds);
    if (m_operationCode == kAlignsPlunges)
        return;
    m_options.AlignPlunges = 0;
    ShowCheck(*this, IDC_2X_ALIGN_PLUNGES, false);
    EnableControl(*this, IDC_2X_ALIGN_PLUNGES, false);
}

void CDefs2xPage::ShowCompensation()
{
    FillList(*this, IDC_2X_LOOK_AHEAD, kLookAheads);
    SelectIndex(*this, IDC_2X_LOOK_AHEAD, m_lookAhead);
    FillList(*this, IDC_2X_SHOW_TOOLPATH, kToolpathDisplays);
    SelectIndex(*this, IDC_2X_SHOW_TOOLPATH, m_showToolpath);
    if (!m_hideCompensation)
        return;
    for (const int id : {IDC_2X_LOOK_AHEAD, IDC_2X_LOOK_AHEAD_LABEL, IDC_2X_SHOW_TOOLPATH, IDC_2X_SHOW_TOOLPATH_LABEL})
        HideControl(*this, id);
}

void CDefs2xPage::EnableNestingDepth()
{
    EnableControl(*this, IDC_2X_POCKET_NESTING_DEPTH, m_options.PocketNestingType == 1);
}

void CDefs2xPage::OnKillFMaxFeedBetween()
{
    LeaveEdit(IDC_2X_MAX_FEED_BETWEEN);
}

void CDefs2xPage::OnKillFCornerAngle()
{
    LeaveEdit(IDC_2X_CORNER_ANGLE);
}

void CDefs2xPage::OnKillFCornerClearance()
{
    LeaveEdit(IDC_2X_CORNER_CLEARANCE);
}

void CDefs2xPage::OnKillFSideClearance()
{
    if (LeaveEdit(IDC_2X_SIDE_CLEARANCE))
        NotifySiblings(*this, kSideClearanceChanged, m_options.SideClearance);
}

void CDefs2xPage::OnKillFSideRoughStep()
{
    LeaveEdit(IDC_2X_SIDE_ROUGH_STEP);
}

void CDefs2xPage::OnKillFSideFinishStep()
{
    LeaveEdit(IDC_2X_SIDE_FINISH_STEP);
}

void CDefs2xPage::OnKillFDepthRoughStep()
{
    LeaveEdit(IDC_2X_DEPTH_ROUGH_STEP);
}

void CDefs2xPage::OnKillFDepthFinishStep()
{
    LeaveEdit(IDC_2X_DEPTH_FINISH_STEP);
}

void CDefs2xPage::OnKillFRapidPlane()
{
    LeaveEdit(IDC_2X_RAPID_PLANE);
}

void CDefs2xPage::OnKillFRapidPlunge()
{
    LeaveEdit(IDC_2X_RAPID_PLUNGE);
}

void CDefs2xPage::OnSelFeedBetweenType()
{
    TakeChoice(IDC_2X_FEED_BETWEEN_TYPE);
}

void CDefs2xPage::OnSelCornerAngleType()
{
    TakeChoice(IDC_2X_CORNER_ANGLE_TYPE);
}

void CDefs2xPage::OnSelCornerClearType()
{
    TakeChoice(IDC_2X_CORNER_CLEARANCE_TYPE);
}

void CDefs2xPage::OnSelSideClearType()
{
    TakeChoice(IDC_2X_SIDE_CLEARANCE_TYPE);
}

void CDefs2xPage::OnSelSideRoughStepType()
{
    TakeChoice(IDC_2X_SIDE_ROUGH_STEP_TYPE);
}

void CDefs2xPage::OnSelSideFinishStepType()
{
    TakeChoice(IDC_2X_SIDE_FINISH_STEP_TYPE);
}

void CDefs2xPage::OnSelDepthRoughStepType()
{
    TakeChoice(IDC_2X_DEPTH_ROUGH_STEP_TYPE);
}

void CDefs2xPage::OnSelDepthFinishStepType()
{
    TakeChoice(IDC_2X_DEPTH_FINISH_STEP_TYPE);
}

void CDefs2xPage::OnSelPathIslandDepthType()
{
    ShareSelection(*this, IDC_2X_PATH_ISLAND_DEPTHS, m_options.PathIslandDepths, kIslandDepthsChosen);
}

void CDefs2xPage::OnSelGougeCheckType()
{
    TakeChoice(IDC_2X_GOUGE_CHECK);
}

void CDefs2xPage::OnSelCutterCompTop()
{
    TakeCheck(IDC_2X_CUTTER_COMP_TOP);
}

void CDefs2xPage::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_2X_FEED_BETWEEN_RATE);
}

void CDefs2xPage::OnSelThreadMillFeedBetween()
{
    TakeChoice(IDC_2X_THREAD_MILL_FEED_BETWEEN);
}

void CDefs2xPage::OnSelDepthFirst()
{
    TakeCheck(IDC_2X_DEPTH_FIRST);
}

void CDefs2xPage::OnSelFinishCutOn()
{
    TakeChoice(IDC_2X_FINISH_CUT_ON);
}

void CDefs2xPage::OnSelPocketNestingType()
{
    TakeChoice(IDC_2X_POCKET_NESTING_TYPE);
    EnableNestingDepth();
}

void CDefs2xPage::OnSelSortType()
{
    TakeChoice(IDC_2X_SORT_TYPE);
}

void CDefs2xPage::OnSelDispPlungeChanges()
{
    TakeCheck(IDC_2X_DISPLAY_PLUNGE_CHANGES);
}

void CDefs2xPage::OnSelIslandPlunges()
{
    TakeCheck(IDC_2X_ISLAND_PLUNGES);
}

void CDefs2xPage::OnSelAlignPlunges()
{
    TakeCheck(IDC_2X_ALIGN_PLUNGES);
}

void CDefs2xPage::OnSelLookAhead()
{
    StoreSelection(*this, IDC_2X_LOOK_AHEAD, m_lookAhead);
    SetModified();
}

void CDefs2xPage::OnSelPEShowToolpath()
{
    StoreSelection(*this, IDC_2X_SHOW_TOOLPATH, m_showToolpath);
    SetModified();
}

void CDefs2xPage::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    EnableNestingDepth();
    SelectIndex(*this, IDC_2X_PATH_ISLAND_DEPTHS, m_options.PathIslandDepths);
    NotifySiblings(*this, kIslandDepthsChosen, m_options.PathIslandDepths);
    UpdateData(FALSE);
}

LRESULT CDefs2xPage::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template class CRecordPage<C2AxisOptionsInfo>;
