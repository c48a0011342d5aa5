// The options of slot milling.
#pragma once

#include "PelmarDlgs/records/slot_mill.h"
#include "records/choices.h"
#include "records/groove_slot_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CSlotMillDefsInfo> {
    using R = CSlotMillDefsInfo;

    // The depth is scaled whatever its type is.
    static constexpr std::array depth = {
        Units<R>(),
        Length<&R::DefSlotDepth>("DefSlotDepth", "Глубина уровня").Within(kNotNegative),
        LengthType<&R::DefSlotDepthType>("DefSlotDepthType", "Глубина уровня"),
        Choice<&R::DefSlotGeomType>("DefSlotGeomType", "Геометрия", kGrooveSlotGeometries),
    };
    static constexpr auto options = Joined(depth, kGrooveSlotCuts<R>);
    static constexpr RecordTable table{"SlotMill", "Паз", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
