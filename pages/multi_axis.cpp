#include "pages/multi_axis.h"

#include <cstring>

#include "pages/milling_4axis.h"
#include "pages/milling_5axis.h"
#include "pages/multi_axis_tables.h"
#include "pages/rotary_dialog.h"

namespace {
std::array<HelpTopic, 17> TopicsWith(const char* rotaryTopic)
{
    return {{
        {IDC_MX_ROTARY, rotaryTopic},
        {IDC_MX_FEED_BETWEEN_CLEARANCE, "pelmar-_optionspopups_hidc_3axisopts_feed_between.htm"},
        {IDC_MX_MAX_FEED_BETWEEN, "pelmar-_optionspopups_hidc_4axisopts_maxfeed.htm"},
        {IDC_MX_RAPID_PLANE, "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm"},
        {IDC_MX_RAPID_PLUNGE, "pelmar-_optionspopups_plunge_clearance_options_tab.htm"},
        {IDC_MX_ROTARY_OPTIONS, "pelmar-_optionspopups_rotary_options_4_axis_options.htm"},
        {IDC_MX_FEED_BETWEEN_RATE, "pelmar-_optionspopups_hidc_leadmove_feedrate.htm"},
        {IDC_MX_FEED_BETWEEN_TYPE, "pelmar-_cutctrlpopups_constant_cutter_radius_step_size.htm"},
        {IDC_MX_CHANGE_TOOL_AXIS, "pelmar-_optionspopups_hidc_4axisopts_tool_axisv.htm"},
        {IDC_MX_RAPID_FREQUENCY, "pelmar-_optionspopups_hidc_3axisopts_rapid_freq.htm"},
        {IDC_MX_SIDE_STEP_MODE, "pelmar-_optionspopups_hidc_4axisopts_side_step_mode.htm"},
        {IDC_MX_SORT_TYPE, "pelmar-_optionspopups_hidc_2axisopts_sort_type.htm"},
        {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
        {IDC_MX_LEAD_ON_FEED, "pelmar-_optionspopups_hidc_3axisopts_lead_on_feed.htm"},
        {IDC_MX_VERTICAL_FOR_RAPID, "pelmar-_optionspopups_hidc_4axisopts_vertical_rapid.htm"},
        {IDC_MX_WRITE_NORMAL, "pelmar-_optionspopups_hidc_4axisopts_write_normal.htm"},
        {IDC_MX_GAUGE_LENGTH, "pelmar-_optionspopups_toollib_gauge_length.htm"}, // on the pages that have the button
    }};
}
} // namespace

BEGIN_TEMPLATE_MESSAGE_MAP(CMultiAxisPage, Record, CExpRegenPropertyPage)
ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CMultiAxisPage::OnRestoreDefaults)
ON_CBN_SELCHANGE(IDC_MX_ROTARY, &CMultiAxisPage::OnSelRotaryMotionType)
ON_CBN_SELCHANGE(IDC_MX_FEED_BETWEEN_TYPE, &CMultiAxisPage::OnSelFeedBetweenType)
ON_CBN_SELCHANGE(IDC_MX_FEED_BETWEEN_RATE, &CMultiAxisPage::OnSelFeedBetweenRate)
ON_BN_CLICKED(IDC_MX_LEAD_ON_FEED, &CMultiAxisPage::OnSelLeadOnFeed)
ON_CBN_SELCHANGE(IDC_MX_CHANGE_TOOL_AXIS, &CMultiAxisPage::OnSelChangeToolAxis)
ON_BN_CLICKED(IDC_MX_VERTICAL_FOR_RAPID, &CMultiAxisPage::OnSelToolVertical)
ON_CBN_SELCHANGE(IDC_MX_RAPID_FREQUENCY, &CMultiAxisPage::OnSelRapidFrequency)
ON_CBN_SELCHANGE(IDC_MX_SIDE_STEP_MODE, &CMultiAxisPage::OnSelSideStepMode)
ON_BN_CLICKED(IDC_MX_WRITE_NORMAL, &CMultiAxisPage::OnSelWriteNormal)
ON_CBN_SELCHANGE(IDC_MX_SORT_TYPE, &CMultiAxisPage::OnSelSortType)
ON_EN_CHANGE(IDC_MX_FEED_BETWEEN_CLEARANCE, &CMultiAxisPage::OnChangeOptionInfo)
ON_EN_KILLFOCUS(IDC_MX_FEED_BETWEEN_CLEARANCE, &CMultiAxisPage::OnKillFFeedBetweenClearance)
ON_EN_KILLFOCUS(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnKillFMaxFeedBetween)
ON_EN_KILLFOCUS(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnKillFRapidPlane)
ON_EN_KILLFOCUS(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnKillFRapidPlunge)
ON_COMMAND(ID_HELP, &CMultiAxisPage::OnHelp)
ON_EN_CHANGE(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnChangeOptionInfo)
ON_EN_CHANGE(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnChangeOptionInfo)
ON_EN_CHANGE(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnChangeOptionInfo)
ON_BN_CLICKED(IDC_MX_ROTARY_OPTIONS, &CMultiAxisPage::OnRotaryOptions)
ON_MESSAGE(kSetDefaultsMessage, &CMultiAxisPage::SetDefaults)
END_MESSAGE_MAP
()

    template <class Record>
    CMultiAxisPage<Record>::CMultiAxisPage(const MultiAxisOperation<Record>& operation)
    : CExpRegenPropertyPage(operation.templateId), m_options(*operation.kind.Live()), m_operation(operation)
{
}

template <class Record> void CMultiAxisPage<Record>::GetData(int units)
{
    m_options = m_operation.kind.LiveInUnitsOf(units);
    m_hideRotaryOptions = 1;
}

template <class Record> void CMultiAxisPage<Record>::GetData(int units, double axis[2][3])
{
    m_options = m_operation.kind.LiveInUnitsOf(units);
    AxisPoints points;
    std::memcpy(points.data(), axis, sizeof points);
    SetAxis(points);
}

template <class Record> void CMultiAxisPage<Record>::SetData(double axis[2][3])
{
    const AxisPoints points = Axis();
    std::memcpy(axis, points.data(), sizeof points);
}

template <class Record> void CMultiAxisPage<Record>::DoDataExchange(CDataExchange* exchange)
{
    CExpRegenPropertyPage::DoDataExchange(exchange);
    ExchangeControls<Record>(exchange, m_options, kMultiAxisExchange<Record>);
}

template <class Record> BOOL CMultiAxisPage<Record>::OnSetActive()
{
    if (!m_edits)
        m_edits = AttachExpressionEdits<Record>(*this, kMultiAxisExchange<Record>);
    FillRotaryList();
    FillChoices<Record>(*this, kMultiAxisChoices<Record>);
    ShowLists();
    if (m_options.LeadOnFeed == 1)
        EnableControl(*this, IDC_MX_SIDE_STEP_MODE, false);
    if (m_hideRotaryOptions)
        HideControl(*this, IDC_MX_ROTARY_OPTIONS);
    return CExpRegenPropertyPage::OnSetActive();
}

template <class Record> void CMultiAxisPage<Record>::ShowLists()
{
    SelectIndex(*this, IDC_MX_ROTARY, m_options.*m_operation.rotary);
    ShowChoices<Record>(*this, m_options, kMultiAxisChoices<Record>);
    ShowChecks<Record>(*this, m_options, kMultiAxisChecks<Record>);
}

template <class Record> void CMultiAxisPage<Record>::LeaveEdit(int id)
{
    ::LeaveEdit<Record>(*this, m_options, kMultiAxisExchange<Record>, id);
}

template <class Record> void CMultiAxisPage<Record>::TakeChoice(int id)
{
    ::TakeChoice<Record>(*this, m_options, kMultiAxisChoices<Record>, id);
}

template <class Record> void CMultiAxisPage<Record>::TakeCheck(int id)
{
    ::TakeCheck<Record>(*this, m_options, kMultiAxisChecks<Record>, id);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFFeedBetweenClearance()
{
    LeaveEdit(IDC_MX_FEED_BETWEEN_CLEARANCE);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFMaxFeedBetween()
{
    LeaveEdit(IDC_MX_MAX_FEED_BETWEEN);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFRapidPlane()
{
    LeaveEdit(IDC_MX_RAPID_PLANE);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFRapidPlunge()
{
    LeaveEdit(IDC_MX_RAPID_PLUNGE);
}

template <class Record> void CMultiAxisPage<Record>::OnChangeOptionInfo()
{
    SetModified();
}

template <class Record> void CMultiAxisPage<Record>::OnSelRotaryMotionType()
{
    StoreSelection(*this, IDC_MX_ROTARY, m_options.*m_operation.rotary);
    SetModified();
}

template <class Record> void CMultiAxisPage<Record>::OnSelFeedBetweenType()
{
    TakeChoice(IDC_MX_FEED_BETWEEN_TYPE);
}

template <class Record> void CMultiAxisPage<Record>::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_MX_FEED_BETWEEN_RATE);
}

/// A lead-in between passes leaves no choice of the side step.
template <class Record> void CMultiAxisPage<Record>::OnSelLeadOnFeed()
{
    TakeCheck(IDC_MX_LEAD_ON_FEED);
    EnableControl(*this, IDC_MX_SIDE_STEP_MODE, m_options.LeadOnFeed == 0);
}

template <class Record> void CMultiAxisPage<Record>::OnSelChangeToolAxis()
{
    TakeChoice(IDC_MX_CHANGE_TOOL_AXIS);
}

template <class Record> void CMultiAxisPage<Record>::OnSelToolVertical()
{
    TakeCheck(IDC_MX_VERTICAL_FOR_RAPID);
}

template <class Record> void CMultiAxisPage<Record>::OnSelRapidFrequency()
{
    TakeChoice(IDC_MX_RAPID_FREQUENCY);
}

template <class Record> void CMultiAxisPage<Record>::OnSelSideStepMode()
{
    TakeChoice(IDC_MX_SIDE_STEP_MODE);
}

template <class Record> void CMultiAxisPage<Record>::OnSelWriteNormal()
{
    TakeCheck(IDC_MX_WRITE_NORMAL);
}

template <class Record> void CMultiAxisPage<Record>::OnSelSortType()
{
    TakeChoice(IDC_MX_SORT_TYPE);
}

template <class Record> void CMultiAxisPage<Record>::OnRotaryOptions()
{
    CDefsRotaryMillDlg dialog(this);
    dialog.m_axis = Axis();
    const INT_PTR result = dialog.DoModal();
    TakeAxisOfDialog(result, dialog.m_axis);
}

/// The side step stays as it can be chosen or not: only a click of the lead-in's box changes that.
template <class Record> void CMultiAxisPage<Record>::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    UpdateData(FALSE);
}

template <class Record> LRESULT CMultiAxisPage<Record>::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template <class Record> void CMultiAxisPage<Record>::OnOK()
{
    CExpRegenPropertyPage::OnOK();
    *m_operation.kind.Live() = m_options;
    SetModified(FALSE);
}

template <class Record> void CMultiAxisPage<Record>::OnHelp()
{
    ShowHelp(m_operation.pageTopic, TopicsWith(m_operation.rotaryTopic));
}

template class CMultiAxisPage<C4AxisOptionsInfo>;
template class CMultiAxisPage<C5AxisOptionsInfo>;
