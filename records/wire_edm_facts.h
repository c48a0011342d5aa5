// The options of wire EDM.
#pragma once

#include "PelmarDlgs/records/wire_edm.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CEDMOptionsInfo> {
    using R = CEDMOptionsInfo;

    static constexpr ChoiceText gougeChecks[] = {IDS_GOUGE_CHECK_SINGLE, IDS_GOUGE_CHECK_FULL};

    // The files out there know no other spelling of the limit's key.
    static constexpr Option options[] = {
        Units<R>(),
        Length<&R::MaxFeedBetween, &R::FeedBetweenType>(kInMemoryOnly, "Порог для отвода"),
        LengthType<&R::FeedBetweenType>(kInMemoryOnly, "Порог для отвода"),
        Angle<&R::CornerAngle>(kInMemoryOnly, "Обход угла контура (30-150)").Within(kCornerAngles),
        Choice<&R::CornerAngleType>(kInMemoryOnly, "Обход угла контура (30-150)", kCornerTypes),
        Length<&R::CornerClearance, &R::CornerClearanceType>(kInMemoryOnly, "Зазор в углах"),
        LengthType<&R::CornerClearanceType>(kInMemoryOnly, "Зазор в углах"),
        Length<&R::SideClearance, &R::SideClearanceType>(kInMemoryOnly, "Подход к контуру"),
        LengthType<&R::SideClearanceType>(kInMemoryOnly, "Подход к контуру"),
        Length<&R::SideFinishStep, &R::SideFinishStepType>(kInMemoryOnly, "Чистовой шаг на сторону"),
        LengthType<&R::SideFinishStepType>(kInMemoryOnly, "Чистовой шаг на сторону"),
        Choice<&R::GougeCheck>("GougeCheck", "Контроль пересечений", gougeChecks),
        Choice<&R::SortType>("SortType", "Тип сортировки", kPlainSorts),
        Choice<&R::ToolLengthGauge>(kInMemoryOnly, "Учет длины инструмента", kNoYes),
        Switch<&R::DispPlungeChanges>(kInMemoryOnly, "Сообщение о смене врезания"),
        Angle<&R::SharpCorneAngleLimit>("SharpCorneAngleLimit", "Предельное значение угла").Within(5.0, 160.0),
        Length<&R::CurveTolerance>("CurveTolerance", "Точность"),
    };
    static constexpr RecordTable table{"OptionsEDM", "Электроэрозия", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
