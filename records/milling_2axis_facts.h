// The options of 2-axis milling.
#pragma once

#include "PelmarDlgs/records/milling_2axis.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<C2AxisOptionsInfo> {
    using R = C2AxisOptionsInfo;

    static constexpr ChoiceText islandDepths[] = {IDS_CONSTANT, IDS_ISLAND_DEPTHS_VARYING, IDS_ISLAND_DEPTHS_ROUGH_3D};
    static constexpr ChoiceText gougeChecks[] = {IDS_GOUGE_CHECK_SINGLE, IDS_GOUGE_CHECK_FULL,
                                                 IDS_GOUGE_CHECK_TOOLPATH};
    static constexpr ChoiceText finishCuts[] = {IDS_FINISH_ALL_DEPTHS, IDS_FINISH_LAST_DEPTH};
    static constexpr ChoiceText nestings[] = {IDS_NESTING_ALL, IDS_NESTING_CHOSEN};
    static constexpr ChoiceText sorts[] = {IDS_SORT_NONE, IDS_SORT_AUTOMATIC, IDS_SORT_NESTED};

    static constexpr Option options[] = {
        Units<R>(),
        Length<&R::MaxFeedBetween, &R::FeedBetweenType>("MaxFeedBetween", "Порог для отвода"),
        LengthType<&R::FeedBetweenType>("FeedBetweenType", "Порог для отвода"),
        Angle<&R::CornerAngle>("CornerAngle", "Обход угла контура (30-150)").Within(kCornerAngles),
        Choice<&R::CornerAngleType>("CornerAngleType", "Обход угла контура (30-150)", kCornerTypes),
        Length<&R::CornerClearance, &R::CornerClearanceType>("CornerClearance", "Зазор в углах"),
        LengthType<&R::CornerClearanceType>("CornerClearanceType", "Зазор в углах"),
        Length<&R::SideClearance, &R::SideClearanceType>("SideClearance", "Припуск на сторону"),
        LengthType<&R::SideClearanceType>("SideClearanceType", "Припуск на сторону"),
        Length<&R::SideRoughStep, &R::SideRoughStepType>("SideRoughStep", "Черновой шаг на сторону"),
        LengthType<&R::SideRoughStepType>("SideRoughStepType", "Черновой шаг на сторону"),
        Length<&R::SideFinishStep, &R::SideFinishStepType>("SideFinishStep", "Чистовой шаг на сторону"),
        LengthType<&R::SideFinishStepType>("SideFinishStepType", "Чистовой шаг на сторону"),
        Length<&R::DepthRoughStep, &R::DepthRoughStepType>("DepthRoughStep", "Черновой шаг по глубине"),
        LengthType<&R::DepthRoughStepType>("DepthRoughStepType", "Черновой шаг по глубине"),
        Length<&R::DepthFinishStep, &R::DepthFinishStepType>("DepthFinishStep", "Чистовой шаг по глубине"),
        LengthType<&R::DepthFinishStepType>("DepthFinishStepType", "Чистовой шаг по глубине"),
        Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности"),
        Length<&R::RapidPlunge>("RapidPlunge", "Высота врезания").Within(kNotNegative),
        Choice<&R::PathIslandDepths>("PathIslandDepths", "Глубина островков", islandDepths),
        Choice<&R::GougeCheck>("GougeCheck", "Контроль пересечений", gougeChecks),
        Switch<&R::CutterCompTop>(kInMemoryOnly, "Компенсатор по верху"),
        Choice<&R::FeedBetweenRate>("FeedBetweenRate", "Подача между проходами", kFeedsBetween),
        Choice<&R::ThreadMillFeedBetween>("ThreadMillFeedBetween", "Подача между нарез. резьбы", kFeedsBetween),
        Switch<&R::DepthFirst>("DepthFirst", "Сначала в глубину"),
        Choice<&R::FinishCutOn>("FinishCutOn", "Чистовой проход", finishCuts),
        Choice<&R::PocketNestingType>("PocketNestingType", "Вложенные карманы", nestings),
        Count<&R::PocketNestingDepth>("PocketNestingDepth", "Глубина вложения"),
        Choice<&R::SortType>("SortType", "Тип сортировки", sorts),
        Count<&R::SelectMaterial>("SelectMaterial", "Выбор материала"),
        Switch<&R::DispPlungeChanges>("DispPlungeChanges", "Сообщ. о смене врезания"),
        Switch<&R::IslandPlunges>("IslandPlunges", "Пересчет врезания"),
        Angle<&R::LeadAngleTol>("LeadAngleTol", "Допуск угла подвода"),
        Switch<&R::AlignPlunges>("AlignPlunges", "Врезание в самой глубокой точке"),
    };
    static constexpr RecordTable table{"Options2x", "2-осевая", options};
    static RecordKind<R>& Kind();

    /// Restoring the defaults reports plunge changes, as a fresh record does not.
    static R FactoryStart()
    {
        R record;
        record.DispPlungeChanges = 1;
        return record;
    }
};

} // namespace pelmar
