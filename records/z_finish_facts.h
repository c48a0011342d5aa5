// The options of Z finishing.
#pragma once

#include "PelmarDlgs/records/z_finish.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CZFinishOptionsInfo> {
    using R = CZFinishOptionsInfo;

    static constexpr ChoiceText plungePoints[] = {IDS_PLUNGE_POINT_AUTOMATIC, IDS_PLUNGE_POINT_CHOSEN};

    static constexpr Option options[] = {
        Units<R>(),
        Length<&R::DepthFinishStep, &R::DepthFinishStepType>("DepthFinishStep", "Чистовой шаг по глубине"),
        LengthType<&R::DepthFinishStepType>("DepthFinishStepType", "Чистовой шаг по глубине"),
        Length<&R::SideClearance, &R::SideClearanceType>("SideClearance", "Подход к контуру"),
        LengthType<&R::SideClearanceType>("SideClearanceType", "Подход к контуру"),
        Angle<&R::LeadAngleTol>("LeadAngleTol", "Допуск угла подвода"),
        Switch<&R::GougeCheck>("GougeCheck", "Контроль пересечений для подвода", kOnOrTwo),
        Choice<&R::PlungeSelType>("PlungeSelType", "Задание точки врезания", plungePoints),
        Switch<&R::PlungeWarnings>("PlungeWarnings", "Сообщение о смене врезания"),
    };
    static constexpr RecordTable table{"OptionsZFinish", "Чистовая по Z", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
