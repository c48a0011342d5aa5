// The page of groove milling.
#pragma once

#include "pages/groove_slot_controls.h"
#include "records/groove_mill_facts.h"

namespace pelmar {

struct GrooveMillTable {
    using R = CGrooveMillDefsInfo;

    static constexpr auto controls =
        Joined(kGrooveSlotDepth<&R::DefGrooveDepth, &R::DefGrooveDepthType, &R::DefGrooveGeomType>,
               kGrooveSlotControls<R>, kFeatureMillButtons);
};

inline constexpr PageFacts kGrooveMillPage{IDD_GROOVE_MILL, GrooveMillTable::controls, k2AxisTopic};

} // namespace pelmar
