// The page of chamfer milling.
#pragma once

#include "pages/feature_mill_controls.h"
#include "records/chamfer_mill_facts.h"

namespace pelmar {

struct ChamferMillTable {
    using R = CChamferMillDefsInfo;

    static constexpr std::array chamfer = {
        Edit<&R::DefChamferLen>(IDC_CM_CHAMFER_LENGTH),
    };
    static constexpr auto controls = Joined(kDepthPassEdits<R>, kDepthPassLists<R>, chamfer, kFeatureMillButtons);
};

inline constexpr PageFacts kChamferMillPage{IDD_CHAMFER_MILL, ChamferMillTable::controls, k2AxisTopic};

} // namespace pelmar
