// The page of slot milling.
#pragma once

#include "pages/groove_slot_controls.h"
#include "records/slot_mill_facts.h"

namespace pelmar {

struct SlotMillTable {
    using R = CSlotMillDefsInfo;

    static constexpr auto controls =
        Joined(kGrooveSlotDepth<&R::DefSlotDepth, &R::DefSlotDepthType, &R::DefSlotGeomType>, kGrooveSlotControls<R>,
               kFeatureMillButtons);
};

inline constexpr PageFacts kSlotMillPage{IDD_SLOT_MILL, SlotMillTable::controls, k2AxisTopic};

} // namespace pelmar
