// Rows that the records of Z roughing and of flat surfaces share, in runs as the settings files have them.
#pragma once

#include "records/choices.h"

namespace pelmar {

template <class R> inline constexpr std::array kPocketCorners = {
    Units<R>(),
    Angle<&R::CornerAngle>("CornerAngle", "Обход угла контура (30-150)").Within(kCornerAngles),
    Choice<&R::CornerAngleType>("CornerAngleType", "Обход угла контура (30-150)", kCornerTypes),
    // Whatever its type is.
    Length<&R::CornerClearance>("CornerClearance", "Зазор в углах"),
    LengthType<&R::CornerClearanceType>("CornerClearanceType", "Зазор в углах"),
};

template <class R> inline constexpr std::array kPocketPattern = {
    Choice<&R::FeedBetweenRate>("FeedBetweenRate", "Подача между проходами", kFeedsBetween),
    Switch<&R::DepthFirst>("DepthFirst", "Сначала в глубину"),
    Choice<&R::MaterialCutMode>("MaterialCutMode", "Схема обработки", kMaterialCutModes)
        .Sanitized(KnownMaterialCutMode),
    Choice<&R::PocketCutMode>("PocketCutMode", "Схема обработки карманов", kPocketCutModes),
    Switch<&R::PlungeWarnings>("PlungeWarnings", "Сообщение о смене врезания"),
};

template <class R> inline constexpr std::array kPocketPlunges = {
    Switch<&R::IslandPlunges>("IslandPlunges", "Прямое врезание на островках", kOnAtZero),
    Angle<&R::LeadAngleTol>("LeadAngleTol", "Допуск угла подвода"),
    Switch<&R::GougeCheck>("GougeCheck", "Контроль пересечений для подвода", kOnOrTwo),
    Switch<&R::AlignPlunges>("AlignPlunges", "Врезание в самой глубокой точке"),
};

} // namespace pelmar
