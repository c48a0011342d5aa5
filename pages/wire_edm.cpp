#include "pages/wire_edm.h"

#include "frame/tool_library.h"
#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = CEDMOptionsInfo;

// ---- the record ----

// Of what no file holds, the lengths alone are here: they are converted.
constexpr const char* kInMemoryOnly = nullptr;

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {kInMemoryOnly, &Record::MaxFeedBetween, &Record::FeedBetweenType},
    {kInMemoryOnly, &Record::CornerClearance, &Record::CornerClearanceType},
    {kInMemoryOnly, &Record::SideClearance, &Record::SideClearanceType},
    {kInMemoryOnly, &Record::SideFinishStep, &Record::SideFinishStepType},
    {"GougeCheck", &Record::GougeCheck},
    {"SortType", &Record::SortType},
    {"SharpCorneAngleLimit", &Record::SharpCorneAngleLimit}, // the files out there know no other spelling
    {"CurveTolerance", &Record::CurveTolerance, Scaling::Always},
};

RecordKind<Record> g_kind("OptionsEDM", kFields);

// ---- the page's controls ----

constexpr Range kSharpCornerAngles{5.0, 160.0};

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_EDM_MAX_FEED_BETWEEN, &Record::MaxFeedBetween, kAnyReal},
    {IDC_EDM_CORNER_ANGLE, &Record::CornerAngle, kCornerAngles},
    {IDC_EDM_CORNER_CLEARANCE, &Record::CornerClearance, kAnyReal},
    {IDC_EDM_SIDE_CLEARANCE, &Record::SideClearance, kAnyReal},
    {IDC_EDM_SIDE_FINISH_STEP, &Record::SideFinishStep, kAnyReal},
    {IDC_EDM_SHARP_CORNER_ANGLE, &Record::SharpCorneAngleLimit, kSharpCornerAngles},
    {IDC_EDM_CURVE_TOLERANCE, &Record::CurveTolerance, kAnyReal},
};

constexpr UINT kGougeChecks[] = {IDS_GOUGE_CHECK_SINGLE, IDS_GOUGE_CHECK_FULL};
constexpr UINT kNoYes[] = {IDS_NO, IDS_YES};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_EDM_FEED_BETWEEN_TYPE, &Record::FeedBetweenType, kLengthTypes},
    {IDC_EDM_CORNER_ANGLE_TYPE, &Record::CornerAngleType, kCornerTypes},
    {IDC_EDM_CORNER_CLEARANCE_TYPE, &Record::CornerClearanceType, kLengthTypes},
    {IDC_EDM_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, kLengthTypes},
    {IDC_EDM_SIDE_FINISH_STEP_TYPE, &Record::SideFinishStepType, kLengthTypes},
    {IDC_EDM_GOUGE_CHECK, &Record::GougeCheck, kGougeChecks},
    {IDC_EDM_SORT_TYPE, &Record::SortType, kPlainSorts},
    {IDC_EDM_TOOL_LENGTH_GAUGE, &Record::ToolLengthGauge, kNoYes},
};

constexpr CheckRow<Record> kChecks[] = {
    {IDC_EDM_DISPLAY_PLUNGE_CHANGES, &Record::DispPlungeChanges},
};

const DescribedPage<Record> g_description(IDD_EDM, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_edm_cut_opt.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_EDM_MAX_FEED_BETWEEN, "pelmar-_optionspopups_hidc_edmopts_maxfeed.htm"},
    {IDC_EDM_CORNER_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_EDM_SIDE_CLEARANCE_TYPE, kStepSizeTopic},
    {IDC_EDM_SIDE_FINISH_STEP_TYPE, kStepSizeTopic},
    {IDC_EDM_FEED_BETWEEN_TYPE, kStepSizeTopic},
    {IDC_EDM_CORNER_ANGLE_TYPE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm"},
    {IDC_EDM_GOUGE_CHECK, "pelmar-_optionspopups_hidc_edmopts_gouge_check.htm"},
    {IDC_EDM_SORT_TYPE, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
    {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
    {IDC_EDM_DISPLAY_PLUNGE_CHANGES, "pelmar-_optionspopups_hidc_edmopts_dsp_changes.htm"},
    {IDC_EDM_CORNER_ANGLE, "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm"},
    {IDC_EDM_CORNER_CLEARANCE, "pelmar-_optionspopups_hidc_edmopts_corner_clear.htm"},
    {IDC_EDM_SIDE_CLEARANCE, "pelmar-_optionspopups_side_clearance_options_tab_zrf.htm"},
    {IDC_EDM_SIDE_FINISH_STEP, "pelmar-_optionspopups_hidc_edmopts_side_fstep.htm"},
    {IDC_EDM_CURVE_TOLERANCE, "pelmar-_cutctrlpopups_curve_tolerance.htm"},
    {IDC_EDM_SHARP_CORNER_ANGLE, "pelmar-_optionspopups_hidc_edm_sharpcorner_angtol.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};

// What the page tells its siblings, and what they ask it.
constexpr WPARAM kToolLengthGauge = 32770; ///< with the chosen index
constexpr WPARAM kSideClearanceChanged = 32797;
constexpr WPARAM kSideFinishStepChanged = 32799;
constexpr LPARAM kAsksForGauge = 2; ///< in place of an index
} // namespace

// ---- the record's operations ----

void CEDMOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void CEDMOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void CEDMOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void CEDMOptionsInfo::vEDMOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CEDMOptionsInfo* GetLastEDMOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsEDMPage::IDD} == IDD_EDM);

IMPLEMENT_DYNCREATE(CDefsEDMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsEDMPage, CExpRegenPropertyPage)
    ON_EN_KILLFOCUS(IDC_EDM_MAX_FEED_BETWEEN, &CDefsEDMPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_EDM_CORNER_ANGLE, &CDefsEDMPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_EDM_CORNER_CLEARANCE, &CDefsEDMPage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_EDM_SIDE_CLEARANCE, &CDefsEDMPage::OnKillFSideClearance)
    ON_EN_KILLFOCUS(IDC_EDM_SIDE_FINISH_STEP, &CDefsEDMPage::OnKillFSideFinishStep)
    ON_EN_KILLFOCUS(IDC_EDM_SHARP_CORNER_ANGLE, &CDefsEDMPage::OnKillFSharpCornerAngle)
    ON_EN_KILLFOCUS(IDC_EDM_CURVE_TOLERANCE, &CDefsEDMPage::OnKillFCurveTol)
    ON_CBN_SELCHANGE(IDC_EDM_FEED_BETWEEN_TYPE, &CDefsEDMPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_EDM_CORNER_ANGLE_TYPE, &CDefsEDMPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_EDM_CORNER_CLEARANCE_TYPE, &CDefsEDMPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_EDM_SIDE_CLEARANCE_TYPE, &CDefsEDMPage::OnSelSideClearType)
    ON_CBN_SELCHANGE(IDC_EDM_SIDE_FINISH_STEP_TYPE, &CDefsEDMPage::OnSelSideFinishStepType)
    ON_CBN_SELCHANGE(IDC_EDM_GOUGE_CHECK, &CDefsEDMPage::OnSelGougeCheckType)
    ON_CBN_SELCHANGE(IDC_EDM_SORT_TYPE, &CDefsEDMPage::OnSelSortType)
    ON_CBN_SELCHANGE(IDC_EDM_TOOL_LENGTH_GAUGE, &CDefsEDMPage::OnSelTLGauge)
    ON_BN_CLICKED(IDC_EDM_DISPLAY_PLUNGE_CHANGES, &CDefsEDMPage::OnSelDispPlungeChanges)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefsEDMPage::OnRestoreDefaults)
    ON_COMMAND(ID_HELP, &CDefsEDMPage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsEDMPage::SetDefaults)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CDefsEDMPage::OnToolLibGauge)
END_MESSAGE_MAP()

CDefsEDMPage::CDefsEDMPage() : CRecordPage(IDD, kTables) {}

BOOL CDefsEDMPage::OnSetActive()
{
    ShowControls();
    EnableLists();
    UpdateData(FALSE);
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefsEDMPage::EnableLists()
{
    const bool locked = m_lockedByOperation || m_lockedByHost;
    EnableControl(*this, IDC_EDM_GOUGE_CHECK, !locked);
    EnableControl(*this, IDC_EDM_SORT_TYPE, !locked);
    EnableControl(*this, IDC_EDM_TOOL_LENGTH_GAUGE, MaterialLibrarySwitch());
}

void CDefsEDMPage::OnKillFMaxFeedBetween()
{
    LeaveEdit(IDC_EDM_MAX_FEED_BETWEEN);
}

void CDefsEDMPage::OnKillFCornerAngle()
{
    LeaveEdit(IDC_EDM_CORNER_ANGLE);
}

void CDefsEDMPage::OnKillFCornerClearance()
{
    LeaveEdit(IDC_EDM_CORNER_CLEARANCE);
}

void CDefsEDMPage::OnKillFSideClearance()
{
    if (LeaveEdit(IDC_EDM_SIDE_CLEARANCE))
        NotifySiblings(*this, kSideClearanceChanged, m_options.SideClearance);
}

void CDefsEDMPage::OnKillFSideFinishStep()
{
    if (LeaveEdit(IDC_EDM_SIDE_FINISH_STEP))
        NotifySiblings(*this, kSideFinishStepChanged, m_options.SideFinishStep);
}

void CDefsEDMPage::OnKillFSharpCornerAngle()
{
    LeaveEdit(IDC_EDM_SHARP_CORNER_ANGLE);
}

void CDefsEDMPage::OnKillFCurveTol()
{
    // The tolerance shows in the hidden retract threshold, not in its own field: the next exchange stores it there too.
    if (UpdateData(TRUE))
        ShowExpression(this, IDC_EDM_MAX_FEED_BETWEEN, &m_options.CurveTolerance);
}

void CDefsEDMPage::OnSelFeedBetweenType()
{
    TakeChoice(IDC_EDM_FEED_BETWEEN_TYPE);
}

void CDefsEDMPage::OnSelCornerAngleType()
{
    TakeChoice(IDC_EDM_CORNER_ANGLE_TYPE);
}

void CDefsEDMPage::OnSelCornerClearType()
{
    TakeChoice(IDC_EDM_CORNER_CLEARANCE_TYPE);
}

void CDefsEDMPage::OnSelSideClearType()
{
    TakeChoice(IDC_EDM_SIDE_CLEARANCE_TYPE);
}

void CDefsEDMPage::OnSelSideFinishStepType()
{
    TakeChoice(IDC_EDM_SIDE_FINISH_STEP_TYPE);
}

void CDefsEDMPage::OnSelGougeCheckType()
{
    TakeChoice(IDC_EDM_GOUGE_CHECK);
}

void CDefsEDMPage::OnSelSortType()
{
    TakeChoice(IDC_EDM_SORT_TYPE);
}

void CDefsEDMPage::OnSelTLGauge()
{
    if (StoreSelection(*this, IDC_EDM_TOOL_LENGTH_GAUGE, m_options.ToolLengthGauge))
        NotifySiblings(*this, kToolLengthGauge, m_options.ToolLengthGauge);
    SetModified();
}

void CDefsEDMPage::OnSelDispPlungeChanges()
{
    TakeCheck(IDC_EDM_DISPLAY_PLUNGE_CHANGES);
}

LRESULT CDefsEDMPage::OnToolLibGauge(WPARAM code, LPARAM parameter)
{
    return code == kToolLengthGauge && parameter == kAsksForGauge ? m_options.ToolLengthGauge : 0;
}

void CDefsEDMPage::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    UpdateData(FALSE);
}

LRESULT CDefsEDMPage::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template class CRecordPage<CEDMOptionsInfo>;
