// The options of chamfer milling.
#pragma once

#include "PelmarDlgs/records/chamfer_mill.h"
#include "records/choices.h"
#include "records/depth_pass_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CChamferMillDefsInfo> {
    using R = CChamferMillDefsInfo;

    static constexpr std::array chamfer = {
        Units<R>(),
        Length<&R::DefChamferLen>("DefChamferLen", "Фаска").Within(kNotNegative),
    };
    static constexpr auto options = Joined(chamfer, DepthPasses<R>("Черновой шаг по глубине"));
    static constexpr RecordTable table{"ChamferMill2x", "Фаска", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
