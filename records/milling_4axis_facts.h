// The options of 4-axis milling.
#pragma once

#include "PelmarDlgs/records/milling_4axis.h"
#include "records/choices.h"
#include "records/multi_axis_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<C4AxisOptionsInfo> {
    using R = C4AxisOptionsInfo;

    static constexpr ChoiceText motions[] = {IDS_MOTION_3_AXIS, IDS_MOTION_4_AXIS};

    static constexpr std::array motion = {
        Units<R>(),
        Choice<&R::RotaryMotionType>("RotaryMotionType", "Одновременное перемещение", motions),
    };
    static constexpr std::array vertical = {
        Switch<&R::VerticalForRapid>("VerticalForRapid", "Вертикально для быстрого хода"),
    };
    // The points on the axis of rotation keep their numbers in other units.
    static constexpr std::array axis = {
        Number<&R::StartPX>("StartPX", "Нач. точка X"), Number<&R::StartPY>("StartPY", "Нач. точка Y"),
        Number<&R::StartPZ>("StartPZ", "Нач. точка Z"), Number<&R::EndPX>("EndPX", "Кон. точка X"),
        Number<&R::EndPY>("EndPY", "Кон. точка Y"),     Number<&R::EndPZ>("EndPZ", "Кон. точка Z"),
    };
    static constexpr auto options = Joined(motion, kMultiAxisMoves<R>, vertical, kMultiAxisOutput<R>, axis);
    static constexpr RecordTable table{"Options4x", "4-осевая", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
