// The options of turning.
#pragma once

#include "PelmarDlgs/records/lathe.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CLatheOptionsInfo> {
    using R = CLatheOptionsInfo;

    // Nothing is scaled, the corner clearance neither: hosts count on its number staying the same in other units.
    static constexpr Option options[] = {
        Units<R>(),
        Angle<&R::CornerAngle>("CornerAngle", "Обход угла контура (30-150)").Within(kCornerAngles),
        Choice<&R::CornerAngleType>("CornerAngleType", "Обход угла контура (30-150)", kCornerTypes),
        UnscaledLength<&R::CornerClearance>("CornerClearance", "Зазор в углах"),
        Percent<&R::GrooveSideStep>("GrooveSideStep", "Шаг для канавок (5-95 %)").Within(5.0, 95.0),
        Choice<&R::LeadInSpeed>("LeadInSpeed", "Подача подвода", kFeedsBetween),
        Choice<&R::LeadOutSpeed>("LeadOutSpeed", "Подача отвода", kFeedsBetween),
        Switch<&R::Follow>("Follow", "Черновая с подборкой"),
    };
    static constexpr RecordTable table{"OptionsLathe", "Токарная", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
