// The options of 3-axis milling.
#pragma once

#include "PelmarDlgs/records/milling_3axis.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<C3AxisOptionsInfo> {
    using R = C3AxisOptionsInfo;

    static constexpr Option options[] = {
        Units<R>(),
        Length<&R::FeedBetweenClearance>("FeedBetweenClearance", "Подъем между проходами"),
        Length<&R::MaxFeedBetween, &R::FeedBetweenType>("MaxFeedBetween", "Порог для отвода"),
        LengthType<&R::FeedBetweenType>("FeedBetweenType", "Порог для отвода"),
        Choice<&R::FeedBetweenRate>("FeedBetweenRate", "Подача между проходами", kFeedsBetween),
        Switch<&R::LeadOnFeed>("LeadOnFeed", "Подвод между проходами"),
        Choice<&R::RapidFrequency>("RapidFrequency", "Периодичность подъемов", kRapidFrequencies),
        Choice<&R::SideStepMode>("SideStepMode", "Режим бокового шага", kSideStepModes),
        Switch<&R::WriteNormal>("WriteNormal", "Выводить нормали"),
        Switch<&R::VerticalCheck>("VerticalCheck", "Контроль вертикалей"),
        Switch<&R::SaveZSlices>("SaveZSlices", "Сохранять слои по Z"),
        Length<&R::ScallopSample, &R::ScallopSampleType>("ScallopSample", "Эталон высоты гребешка"),
        LengthType<&R::ScallopSampleType>("ScallopSampleType", "Эталон высоты гребешка"),
        Angle<&R::ScallopAngle>("ScallopAngle", "Макс. угол расчета гребешка"),
        Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности"),
        Length<&R::RapidPlunge>("RapidPlunge", "Высота врезания").Within(kNotNegative),
        Switch<&R::DisplayLeadChanges>("DisplayLeadChanges", "Сообщение о смене врезания"),
        Choice<&R::SortType>("SortType", "Тип сортировки", kPlainSorts),
    };
    static constexpr RecordTable table{"Options3x", "3-осевая", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
