// The options of groove milling.
#pragma once

#include "PelmarDlgs/records/groove_mill.h"
#include "records/choices.h"
#include "records/groove_slot_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CGrooveMillDefsInfo> {
    using R = CGrooveMillDefsInfo;

    // The depth is scaled whatever its type is.
    static constexpr std::array depth = {
        Units<R>(),
        Length<&R::DefGrooveDepth>("DefGrooveDepth", "Глубина паза").Within(kNotNegative),
        LengthType<&R::DefGrooveDepthType>("DefGrooveDepthType", "Глубина паза"),
        Choice<&R::DefGrooveGeomType>("DefGrooveGeomType", "Геометрия", kGrooveSlotGeometries),
    };
    static constexpr auto options = Joined(depth, kGrooveSlotCuts<R>);
    static constexpr RecordTable table{"GrooveMill", "Канавка", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
