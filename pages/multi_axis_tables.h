// The controls that the pages of 4-axis and 5-axis milling share.
#pragma once

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/multi_axis_operation.h"
#include "pages/page_controls.h"
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

/// Has an operation's record described with these tables.
template <class Record> DescribedPage<Record> DescribedMultiAxisPage(const MultiAxisOperation<Record>& operation)
{
    return {operation.templateId, operation.kind, kMultiAxisExchange<Record>, kMultiAxisChoices<Record>,
            kMultiAxisChecks<Record>};
}
