// The controls that the pages of 4-axis and 5-axis milling share.
#pragma once

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/multi_axis_operation.h"
#include "resources/resource.h"

template <class Record> inline constexpr ExchangeRow<Record> kMultiAxisExchange[] = {
    {IDC_MX_FEED_BETWEEN_CLEARANCE, &Record::FeedBetweenClearance, kAnyReal},
    {IDC_MX_MAX_FEED_BETWEEN, &Record::MaxFeedBetween, kAnyReal},
    {IDC_MX_RAPID_PLANE, &Record::RapidPlane, kAnyReal},
    {IDC_MX_RAPID_PLUNGE, &Record::RapidPlunge, kNotNegative},
};

constexpr UINT kToolVectors[] = {IDS_TOOL_VECTOR_AT_XY_MOVE, IDS_TOOL_VECTOR_AT_TOP, IDS_TOOL_VECTOR_AT_Z_MOVE,
                                 IDS_TOOL_VECTOR_AT_BOTTOM};

// The rotary list is not here: its field and its items are the operation's.
template <class Record> inline constexpr ChoiceRow<Record> kMultiAxisChoices[] = {
    {IDC_MX_FEED_BETWEEN_TYPE, &Record::FeedBetweenType, kLengthTypes},
    {IDC_MX_FEED_BETWEEN_RATE, &Record::FeedBetweenRate, kFeedsBetween},
    {IDC_MX_CHANGE_TOOL_AXIS, &Record::ChangeToolAxis, kToolVectors},
    {IDC_MX_RAPID_FREQUENCY, &Record::RapidFrequency, kRapidFrequencies},
    {IDC_MX_SIDE_STEP_MODE, &Record::SideStepMode, kSideStepModes},
    {IDC_MX_SORT_TYPE, &Record::SortType, kPlainSorts},
};

template <class Record> inline constexpr CheckRow<Record> kMultiAxisChecks[] = {
    {IDC_MX_LEAD_ON_FEED, &Record::LeadOnFeed},
    {IDC_MX_VERTICAL_FOR_RAPID, &Record::VerticalForRapid},
    {IDC_MX_WRITE_NORMAL, &Record::WriteNormal},
};

/// The topics of the controls, with the operation's own one for the list at the top.
constexpr std::array<HelpTopic, 17> MultiAxisTopics(const char* rotaryTopic)
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

/// The tables of an operation's page. It keeps the reference to the topics.
template <class Record> constexpr PageTables<Record> MultiAxisTables(RecordKind<Record>& kind, const char* pageTopic,
                                                                     std::span<const HelpTopic> topics)
{
    return {kind, kMultiAxisExchange<Record>, kMultiAxisChoices<Record>, kMultiAxisChecks<Record>, pageTopic, topics};
}

/// Has an operation's record described with these tables.
template <class Record> DescribedPage<Record> DescribedMultiAxisPage(const MultiAxisOperation<Record>& operation)
{
    const PageTables<Record>& tables = operation.tables;
    return {operation.templateId, tables.kind, tables.exchange, tables.choices, tables.checks};
}
