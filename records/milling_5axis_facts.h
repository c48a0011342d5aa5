// The options of 5-axis milling.
#pragma once

#include "PelmarDlgs/records/milling_5axis.h"
#include "records/choices.h"
#include "records/multi_axis_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<C5AxisOptionsInfo> {
    using R = C5AxisOptionsInfo;

    static constexpr ChoiceText axisCounts[] = {"0", "1"};

    static constexpr std::array axes = {
        Units<R>(),
        Choice<&R::RotaryAxis>("RotaryAxis", "Число осей поворота", axisCounts),
    };
    static constexpr std::array vertical = {
        Switch<&R::VerticalForRapid>("VerticalForRapid", "Вертикально для быстр. хода"),
    };
    static constexpr auto options = Joined(axes, kMultiAxisMoves<R>, vertical, kMultiAxisOutput<R>);
    static constexpr RecordTable table{"Options5x", "5-осевая", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
