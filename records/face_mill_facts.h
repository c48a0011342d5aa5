// The options of face milling.
#pragma once

#include "PelmarDlgs/records/face_mill.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CFaceMillDefsInfo> {
    using R = CFaceMillDefsInfo;

    static constexpr ChoiceText facingMethods[] = {IDS_PATTERN_ONE_WAY, IDS_PATTERN_ZIGZAG, IDS_PATTERN_SPIRAL};
    static constexpr Range kMoreThanNothing{0.0001, kUnbounded};

    static constexpr Option options[] = {
        Units<R>(),
        Choice<&R::DefFacingMethod>("DefFacingMethod", "Схема обработки", facingMethods),
        Choice<&R::DefCutingDir>("DefCutingDir", "Метод фрезерования", kCuttingDirections, kFirstCuttingDirection),
        Angle<&R::FacingAngle>("Facing Angle", "Угол рабочего хода"),
        Switch<&R::DefClearEvery>("DefClearEvery", "Зачищать на каждом проходе"),
        Switch<&R::DefKeepToolDown>("DefKeepToolDown", "Всегда на одном слое по Z"),
        Switch<&R::DefEnableHSM>("DefEnableHSM", "Высокоскоростная обработка"),
        LengthType<&R::DefMaxSideStepType>("DefMaxSideStepType", "Максимальный боковой шаг"),
        Length<&R::DefMaxSideStep, &R::DefMaxSideStepType>("DefMaxSideStep", "Максимальный боковой шаг")
            .Within(kMoreThanNothing),
        Length<&R::DefRemoveZ>("DefRemoveZ", "Снимаемый слой по Z").Within(kNotNegative),
        Length<&R::DefLeaveStockZ>("DefLeaveStockZ", "Припуск"),
        LengthType<&R::DefSideClearanceType>("DefSideClearanceType", "Подход к контуру"),
        Length<&R::DefSideClearance, &R::DefSideClearanceType>("DefSideClearance", "Подход к контуру")
            .Within(kMoreThanNothing),
        LengthType<&R::DefMaxRoughDOCType>("DefMaxRoughDOCType", "Макс. черновой шаг по глубине"),
        Length<&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType>("DefMaxRoughDOC", "Макс. черновой шаг по глубине")
            .Within(kNotNegative),
        LengthType<&R::DefFinishDOCType>("DefFinishDOCType", "Чистовой шаг по глубине"),
        Length<&R::DefFinishDOC, &R::DefFinishDOCType>("DefFinishDOC", "Чистовой шаг по глубине").Within(kNotNegative),
        Count<&R::FinishPassZ>("FinishPassZ", "Чистовых проходов"),
        Length<&R::MaxFeedBetween, &R::FeedBetweenType>("MaxFeedBetween", "Порог для отвода"),
        LengthType<&R::FeedBetweenType>("FeedBetweenType", "Порог для отвода"),
        Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности"),
    };
    static constexpr RecordTable table{"FaceMill2x", "Торец", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
