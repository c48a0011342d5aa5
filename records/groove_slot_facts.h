// Rows that the records of groove and slot milling share: all but the units, the depth and the geometry.
#pragma once

#include "records/choices.h"

namespace pelmar {

constexpr ChoiceText kGrooveSlotGeometries[] = {IDS_GEOMETRY_CENTER_TOP,     IDS_GEOMETRY_INSIDE_TOP,
                                                IDS_GEOMETRY_INSIDE_BOTTOM,  IDS_GEOMETRY_CENTER_BOTTOM,
                                                IDS_GEOMETRY_OUTSIDE_BOTTOM, IDS_GEOMETRY_OUTSIDE_TOP};

template <class R> inline constexpr std::array kGrooveSlotCuts = {
    Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности").Within(kNotNegative),
    // Scaled whatever its type is, which no page shows.
    Length<&R::PlungeClear>("PlungeClear", "Высота врезания"),
    LengthType<&R::PlungeClearType>("PlungeClearType", "Высота врезания"),
    Choice<&R::DefCutingDir>("DefCutingDir", "Метод фрезерования", kCuttingDirections, kFirstCuttingDirection),
    Length<&R::DefLeaveStockZ>("DefLeaveStockZ", "Припуск").Within(kNotNegative),
    LengthType<&R::DefMaxRoughDOCType>("DefMaxRoughDOCType", "Макс. черновой шаг по глубине"),
    Length<&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType>("DefMaxRoughDOC", "Макс. черновой шаг по глубине")
        .Within(kNotNegative),
    Angle<&R::DefRampAngle>("DefRampAngle", "Угол уклона").Within(0.0, 90.0),
};

} // namespace pelmar
