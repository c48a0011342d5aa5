// Rows that the records of chamfer and round milling share: what is cut in rough and finish passes.
#pragma once

#include "records/choices.h"

namespace pelmar {

/// `roughLabel`: the pages word the rough step each in its own way.
template <class R> constexpr auto DepthPasses(const char* roughLabel)
{
    return std::array{
        Choice<&R::DefCutingDir>("DefCutingDir", "Метод фрезерования", kCuttingDirections, kFirstCuttingDirection),
        Length<&R::DefLeaveStockZ>("DefLeaveStockZ", "Припуск").Within(kNotNegative),
        LengthType<&R::DefMaxRoughDOCType>("DefMaxRoughDOCType", roughLabel),
        Length<&R::DefMaxRoughDOC, &R::DefMaxRoughDOCType>("DefMaxRoughDOC", roughLabel).Within(kNotNegative),
        LengthType<&R::DefFinishDOCType>("DefFinishDOCType", "Чистовой шаг по глубине"),
        Length<&R::DefFinishDOC, &R::DefFinishDOCType>("DefFinishDOC", "Чистовой шаг по глубине").Within(kNotNegative),
        Count<&R::FinishPassZ>("FinishPassZ", "Чистовых проходов"),
        Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности").Within(kNotNegative),
    };
}

} // namespace pelmar
