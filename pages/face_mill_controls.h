// The page of face milling.
#pragma once

#include "pages/feature_mill_controls.h"
#include "records/face_mill_facts.h"

namespace pelmar {

struct FaceMillTable {
    using R = CFaceMillDefsInfo;

    static constexpr std::array cuts = {
        Check<&R::DefClearEvery>(IDC_FM_CLEAR_EVERY_PASS).ByExchangeOnly(),
        Check<&R::DefKeepToolDown>(IDC_FM_KEEP_TOOL_DOWN).ByExchangeOnly(),
        Check<&R::DefEnableHSM>(IDC_FM_HIGH_SPEED).ByExchangeOnly(),
        Edit<&R::FacingAngle>(IDC_FM_CUTTING_ANGLE),
        Edit<&R::DefSideClearance>(IDC_FM_SIDE_CLEARANCE),
        Edit<&R::DefRemoveZ>(IDC_FM_REMOVE_Z),
        Edit<&R::DefMaxSideStep>(IDC_FM_SIDE_STEP),
    };
    static constexpr std::array threshold = {
        Edit<&R::MaxFeedBetween>(IDC_FM_MAX_FEED_BETWEEN),
        // The one list of the page that marks it modified.
        List<&R::FeedBetweenType>(IDC_FM_FEED_BETWEEN_TYPE),
    };
    static constexpr std::array lists = {
        List<&R::DefFacingMethod>(IDC_FM_FACING_METHOD).Unmarked(),
        List<&R::DefMaxSideStepType>(IDC_FM_SIDE_STEP_TYPE).Unmarked(),
        List<&R::DefSideClearanceType>(IDC_FM_SIDE_CLEARANCE_TYPE).Unmarked(),
    };
    static constexpr auto controls =
        Joined(cuts, kDepthPassEdits<R>, threshold, kDepthPassLists<R>, lists, kFeatureMillButtons);
};

inline constexpr PageFacts kFaceMillPage{IDD_FACE_MILL, FaceMillTable::controls, k2AxisTopic};

} // namespace pelmar
