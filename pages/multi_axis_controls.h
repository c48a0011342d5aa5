// What the pages of 4-axis and 5-axis milling share: all but the list at the top.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"

namespace pelmar {

template <class R> inline constexpr std::array kMultiAxisControls = {
    Edit<&R::FeedBetweenClearance>(IDC_MX_FEED_BETWEEN_CLEARANCE).Help(kFeedBetweenClearanceTopic),
    Edit<&R::MaxFeedBetween>(IDC_MX_MAX_FEED_BETWEEN).Help(kSurfaceMaxFeedTopic),
    Edit<&R::RapidPlane>(IDC_MX_RAPID_PLANE).Help(kRapidPlaneTopic),
    Edit<&R::RapidPlunge>(IDC_MX_RAPID_PLUNGE).Help(kRapidPlungeTopic),
    List<&R::FeedBetweenType>(IDC_MX_FEED_BETWEEN_TYPE).Help(kStepSizeTopic),
    List<&R::FeedBetweenRate>(IDC_MX_FEED_BETWEEN_RATE).Help(kFeedBetweenTopic),
    Check<&R::LeadOnFeed>(IDC_MX_LEAD_ON_FEED).Help(kLeadOnFeedTopic),
    List<&R::ChangeToolAxis>(IDC_MX_CHANGE_TOOL_AXIS).Help("pelmar-_optionspopups_hidc_4axisopts_tool_axisv.htm"),
    Check<&R::VerticalForRapid>(IDC_MX_VERTICAL_FOR_RAPID)
        .Help("pelmar-_optionspopups_hidc_4axisopts_vertical_rapid.htm"),
    List<&R::RapidFrequency>(IDC_MX_RAPID_FREQUENCY).Help(kRapidFrequencyTopic),
    List<&R::SideStepMode>(IDC_MX_SIDE_STEP_MODE).Help(kSideStepModeTopic),
    Check<&R::WriteNormal>(IDC_MX_WRITE_NORMAL).Help(kWriteNormalTopic),
    List<&R::SortType>(IDC_MX_SORT_TYPE).Help(kSortTypeTopic),
    Button(IDC_MX_ROTARY_OPTIONS).Help(kRotaryOptionsTopic),
    Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
    Absent(IDC_MX_GAUGE_LENGTH).Help(kGaugeLengthTopic),
};

} // namespace pelmar
