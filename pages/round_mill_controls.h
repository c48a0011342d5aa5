// The page of round milling.
#pragma once

#include "PelmarDlgs/messages.h"
#include "pages/feature_mill_controls.h"
#include "records/round_mill_facts.h"

namespace pelmar {

struct RoundMillTable {
    using R = CRoundMillDefsInfo;

    static constexpr std::array approach = {
        Edit<&R::SideClearance>(IDC_RM_SIDE_CLEARANCE).PlainEdit(),
        List<&R::SideClearanceType>(IDC_RM_SIDE_CLEARANCE_TYPE).TellsChanges(kRoundSideClearanceTypeChosen),
    };
    static constexpr auto controls = Joined(kDepthPassEdits<R>, kDepthPassLists<R>, approach, kFeatureMillButtons);
};

inline constexpr PageFacts kRoundMillPage{IDD_ROUND_MILL, RoundMillTable::controls, k2AxisTopic};

} // namespace pelmar
