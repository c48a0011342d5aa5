// What the pages of Z roughing and flat surfaces share, in runs as they are exchanged.
#pragma once

#include "PelmarDlgs/messages.h"
#include "pages/control.h"
#include "pages/topics.h"

namespace pelmar {

template <class R> inline constexpr std::array kPocketCornerEdits = {
    Edit<&R::CornerAngle>(IDC_POCKET_CORNER_ANGLE).Help(kCornerAngleTopic),
    Edit<&R::CornerClearance>(IDC_POCKET_CORNER_CLEARANCE).Help(kCornerClearanceTopic),
};

template <class R> inline constexpr std::array kPocketCornerLists = {
    Edit<&R::LeadAngleTol>(IDC_POCKET_LEAD_ANGLE_TOLERANCE).Help(kLeadAngleTopic),
    List<&R::CornerAngleType>(IDC_POCKET_CORNER_ANGLE_TYPE).InExchange().Help(kCornerAngleTypeTopic),
    List<&R::CornerClearanceType>(IDC_POCKET_CORNER_CLEARANCE_TYPE).InExchange().Help(kStepSizeTopic),
};

/// The two pages lead to different topics on the cut modes.
template <class R> constexpr auto PocketPatterns(const char* materialTopic, const char* pocketTopic)
{
    return std::array{
        List<&R::FeedBetweenRate>(IDC_POCKET_FEED_BETWEEN_RATE).InExchange().Help(kFeedBetweenTopic),
        List<&R::MaterialCutMode>(IDC_POCKET_MATERIAL_CUT_MODE).InExchange().Tells(kCutModeChosen).Help(materialTopic),
        List<&R::PocketCutMode>(IDC_POCKET_POCKET_CUT_MODE).InExchange().Tells(kCutModeChosen).Help(pocketTopic),
    };
}

} // namespace pelmar
