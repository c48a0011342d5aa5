#include "pages/milling_3axis.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"

namespace {
using Record = C3AxisOptionsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"FeedBetweenClearance", &Record::FeedBetweenClearance, Scaling::Always},
    {"MaxFeedBetween", &Record::MaxFeedBetween, &Record::FeedBetweenType},
    {"FeedBetweenType", &Record::FeedBetweenType},
    {"FeedBetweenRate", &Record::FeedBetweenRate},
    {"LeadOnFeed", &Record::LeadOnFeed},
    {"RapidFrequency", &Record::RapidFrequency},
    {"SideStepMode", &Record::SideStepMode},
    {"WriteNormal", &Record::WriteNormal},
    {"VerticalCheck", &Record::VerticalCheck},
    {"SaveZSlices", &Record::SaveZSlices},
    {"ScallopSample", &Record::ScallopSample, &Record::ScallopSampleType},
    {"ScallopSampleType", &Record::ScallopSampleType},
    {"ScallopAngle", &Record::ScallopAngle},
    {"RapidPlane", &Record::RapidPlane, Scaling::Always},
    {"RapidPlunge", &Record::RapidPlunge, Scaling::Always},
    {"DisplayLeadChanges", &Record::DisplayLeadChanges},
    {"SortType", &Record::SortType},
};

RecordKind<Record> g_kind("Options3x", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_3X_FEED_BETWEEN_CLEARANCE, &Record::FeedBetweenClearance, kAnyReal},
    {IDC_3X_MAX_FEED_BETWEEN, &Record::MaxFeedBetween, kAnyReal},
    {IDC_3X_SCALLOP_SAMPLE, &Record::ScallopSample, kAnyReal},
    {IDC_3X_SCALLOP_ANGLE, &Record::ScallopAngle, kAnyReal},
    {IDC_3X_RAPID_PLANE, &Record::RapidPlane, kAnyReal},
    {IDC_3X_RAPID_PLUNGE, &Record::RapidPlunge, kNotNegative},
};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_3X_FEED_BETWEEN_TYPE, &Record::FeedBetweenType, kLengthTypes},
    {IDC_3X_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, kFeedsBetween},
    {IDC_3X_RAPID_FREQUENCY, &Record::RapidFrequency, kRapidFrequencies},
    {IDC_3X_SIDE_STEP_MODE, &Record::SideStepMode, kSideStepModes},
    {IDC_3X_SCALLOP_SAMPLE_TYPE, &Record::ScallopSampleType, kLengthTypes},
    {IDC_3X_SORT_TYPE, &Record::SortType, kPlainSorts},
};

constexpr CheckRow<Record> kChecks[] = {
    {IDC_3X_LEAD_ON_FEED, &Record::LeadOnFeed},
    {IDC_3X_WRITE_NORMAL, &Record::WriteNormal},
    {IDC_3X_VERTICAL_CHECK, &Record::VerticalCheck},
    {IDC_3X_SAVE_Z_SLICES, &Record::SaveZSlices},
    {IDC_3X_DISPLAY_LEAD_CHANGES, &Record::DisplayLeadChanges},
};

const DescribedPage<Record> g_description(IDD_3X, g_kind, kExchange, kChoices, kChecks);

constexpr char kPageTopic[] = "pelmar-_options_hidd_3axis_cut_opt.htm";
constexpr char kStepSizeTopic[] = "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_3X_FEED_BETWEEN_CLEARANCE, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
    {IDC_3X_MAX_FEED_BETWEEN, "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm"},
    {IDC_3X_FEED_BETWEEN_TYPE, kStepSizeTopic},
    {IDC_3X_SCALLOP_SAMPLE_TYPE, kStepSizeTopic},
    {IDC_3X_FEED_BETWEEN_RATE, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
    {IDC_3X_RAPID_FREQUENCY, "pelmar-_optionspopups_hidc_3axisopts_rapid_freq.htm"},
    {IDC_3X_SIDE_STEP_MODE, "pelmar-_optionspopups_hidc_4axisopts_side_step_mode.htm"},
    {IDC_3X_SORT_TYPE, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
    {IDC_3X_SCALLOP_SAMPLE, "pelmar-_optionspopups_hidc_3axisopts_scallop_dist.htm"},
    {IDC_3X_SCALLOP_ANGLE, "pelmar-_optionspopups_hidc_3axisopts_scallop_limit.htm"},
    {IDC_3X_RAPID_PLANE, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
    {IDC_3X_RAPID_PLUNGE, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
    {IDC_3X_LEAD_ON_FEED, "pelmar-_optionspopups_hidc_3axisopts_lead_on_feed.htm"},
    {IDC_3X_WRITE_NORMAL, "pelmar-_optionspopups_hidc_4axisopts_write_normal.htm"},
    {IDC_3X_VERTICAL_CHECK, "pelmar-_optionspopups_hidc_3axisopts_vertical_srf.htm"},
    {IDC_3X_SAVE_Z_SLICES, "pelmar-_optionspopups_hidc_3axisopts_save_zslices.htm"},
    {IDC_3X_GAUGE_LENGTH, "pelmar-_optionspopups_toollib_gauge_length.htm"}, // on the pages that have the button
    {IDC_3X_DISPLAY_LEAD_CHANGES, "pelmar-_optionspopups_hidc_3axisopts_dsp_changes.htm"},
    {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, kChoices, kChecks, kPageTopic, kTopics};
} // namespace

// ---- the record's operations ----

void C3AxisOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void C3AxisOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void C3AxisOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void C3AxisOptionsInfo::v3xOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

C3AxisOptionsInfo* GetLast3xOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefs3xPage::IDD} == IDD_3X);

IMPLEMENT_DYNCREATE(CDefs3xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs3xPage, CExpRegenPropertyPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefs3xPage::OnRestoreDefaults)
    ON_CBN_SELCHANGE(IDC_3X_FEED_BETWEEN_TYPE, &CDefs3xPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_3X_FEED_BETWEEN_RATE, &CDefs3xPage::OnSelFeedBetweenRate)
    ON_BN_CLICKED(IDC_3X_LEAD_ON_FEED, &CDefs3xPage::OnSelLeadOnFeed)
    ON_CBN_SELCHANGE(IDC_3X_RAPID_FREQUENCY, &CDefs3xPage::OnSelRapidFrequency)
    ON_CBN_SELCHANGE(IDC_3X_SIDE_STEP_MODE, &CDefs3xPage::OnSelSideStepMode)
    ON_BN_CLICKED(IDC_3X_WRITE_NORMAL, &CDefs3xPage::OnSelWriteNormal)
    ON_BN_CLICKED(IDC_3X_VERTICAL_CHECK, &CDefs3xPage::OnSelVerticalCheck)
    ON_BN_CLICKED(IDC_3X_SAVE_Z_SLICES, &CDefs3xPage::OnSelSaveZSlices)
    ON_CBN_SELCHANGE(IDC_3X_SCALLOP_SAMPLE_TYPE, &CDefs3xPage::OnSelScallopSampleType)
    ON_BN_CLICKED(IDC_3X_DISPLAY_LEAD_CHANGES, &CDefs3xPage::OnSelLeadChanges)
    ON_CBN_SELCHANGE(IDC_3X_SORT_TYPE, &CDefs3xPage::OnSelSortType)
    ON_EN_CHANGE(IDC_3X_FEED_BETWEEN_CLEARANCE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_KILLFOCUS(IDC_3X_FEED_BETWEEN_CLEARANCE, &CDefs3xPage::OnKillFFeedBetweenClearance)
    ON_EN_KILLFOCUS(IDC_3X_MAX_FEED_BETWEEN, &CDefs3xPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_3X_SCALLOP_SAMPLE, &CDefs3xPage::OnKillFScallopSample)
    ON_EN_KILLFOCUS(IDC_3X_SCALLOP_ANGLE, &CDefs3xPage::OnKillFScallopAngle)
    ON_EN_KILLFOCUS(IDC_3X_RAPID_PLANE, &CDefs3xPage::OnKillFRapidPlane)
    ON_EN_KILLFOCUS(IDC_3X_RAPID_PLUNGE, &CDefs3xPage::OnKillFRapidPlunge)
    ON_COMMAND(ID_HELP, &CDefs3xPage::OnHelp)
    ON_EN_CHANGE(IDC_3X_MAX_FEED_BETWEEN, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_SCALLOP_SAMPLE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_SCALLOP_ANGLE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_RAPID_PLANE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_RAPID_PLUNGE, &CDefs3xPage::OnChangeOptionInfo)
    ON_MESSAGE(kSetDefaultsMessage, &CDefs3xPage::SetDefaults)
END_MESSAGE_MAP()

CDefs3xPage::CDefs3xPage() : CRecordPage(IDD, kTables, *g_kind.Live()) {}

BOOL CDefs3xPage::OnSetActive()
{
    ShowControls();
    // Only a click of the box gives the list back: neither a later activation nor restored defaults do.
    if (m_options.LeadOnFeed == 1)
        EnableControl(*this, IDC_3X_SIDE_STEP_MODE, false);
    return CExpRegenPropertyPage::OnSetActive();
}

void CDefs3xPage::OnKillFFeedBetweenClearance()
{
    LeaveEdit(IDC_3X_FEED_BETWEEN_CLEARANCE);
}

void CDefs3xPage::OnKillFMaxFeedBetween()
{
    LeaveEdit(IDC_3X_MAX_FEED_BETWEEN);
}

void CDefs3xPage::OnKillFScallopSample()
{
    LeaveEdit(IDC_3X_SCALLOP_SAMPLE);
}

void CDefs3xPage::OnKillFScallopAngle()
{
    LeaveEdit(IDC_3X_SCALLOP_ANGLE);
}

void CDefs3xPage::OnKillFRapidPlane()
{
    LeaveEdit(IDC_3X_RAPID_PLANE);
}

void CDefs3xPage::OnKillFRapidPlunge()
{
    LeaveEdit(IDC_3X_RAPID_PLUNGE);
}

void CDefs3xPage::OnSelFeedBetweenType()
{
    TakeChoice(IDC_3X_FEED_BETWEEN_TYPE);
}

void CDefs3xPage::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_3X_FEED_BETWEEN_RATE);
}

void CDefs3xPage::OnSelLeadOnFeed()
{
    TakeCheck(IDC_3X_LEAD_ON_FEED);
    EnableControl(*this, IDC_3X_SIDE_STEP_MODE, m_options.LeadOnFeed == 0);
}

void CDefs3xPage::OnSelRapidFrequency()
{
    TakeChoice(IDC_3X_RAPID_FREQUENCY);
}

void CDefs3xPage::OnSelSideStepMode()
{
    TakeChoice(IDC_3X_SIDE_STEP_MODE);
}

void CDefs3xPage::OnSelWriteNormal()
{
    TakeCheck(IDC_3X_WRITE_NORMAL);
}

void CDefs3xPage::OnSelVerticalCheck()
{
    TakeCheck(IDC_3X_VERTICAL_CHECK);
}

void CDefs3xPage::OnSelSaveZSlices()
{
    TakeCheck(IDC_3X_SAVE_Z_SLICES);
}

void CDefs3xPage::OnSelScallopSampleType()
{
    TakeChoice(IDC_3X_SCALLOP_SAMPLE_TYPE);
}

void CDefs3xPage::OnSelLeadChanges()
{
    TakeCheck(IDC_3X_DISPLAY_LEAD_CHANGES);
}

void CDefs3xPage::OnSelSortType()
{
    TakeChoice(IDC_3X_SORT_TYPE);
}

void CDefs3xPage::OnChangeOptionInfo()
{
    SetModified();
}

void CDefs3xPage::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    UpdateData(FALSE);
}

LRESULT CDefs3xPage::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template class CRecordPage<C3AxisOptionsInfo>;
