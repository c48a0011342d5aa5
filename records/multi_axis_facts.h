// Rows that the records of 4-axis and 5-axis milling share: all but the units and the second one.
#pragma once

#include "records/choices.h"

namespace pelmar {

constexpr ChoiceText kToolVectors[] = {IDS_TOOL_VECTOR_AT_XY_MOVE, IDS_TOOL_VECTOR_AT_TOP, IDS_TOOL_VECTOR_AT_Z_MOVE,
                                       IDS_TOOL_VECTOR_AT_BOTTOM};

template <class R> inline constexpr std::array kMultiAxisMoves = {
    Length<&R::FeedBetweenClearance>("FeedBetweenClearance", "Подъем между проходами"),
    Length<&R::MaxFeedBetween, &R::FeedBetweenType>("MaxFeedBetween", "Порог для отвода"),
    LengthType<&R::FeedBetweenType>("FeedBetweenType", "Порог для отвода"),
    Choice<&R::FeedBetweenRate>("FeedBetweenRate", "Подача между проходами", kFeedsBetween),
    Switch<&R::LeadOnFeed>("LeadOnFeed", "Подвод между проходами"),
    Choice<&R::ChangeToolAxis>("ChangeToolAxis", "Установка вектора инструмента", kToolVectors),
};

template <class R> inline constexpr std::array kMultiAxisOutput = {
    Choice<&R::RapidFrequency>("RapidFrequency", "Периодичность подъемов", kRapidFrequencies),
    Choice<&R::SideStepMode>("SideStepMode", "Режим бокового шага", kSideStepModes),
    Switch<&R::WriteNormal>("WriteNormal", "Выводить нормали"),
    Length<&R::RapidPlane>("RapidPlane", "Плоскость безопасности"),
    Length<&R::RapidPlunge>("RapidPlunge", "Высота врезания").Within(kNotNegative),
    Choice<&R::SortType>("SortType", "Тип сортировки", kPlainSorts),
};

} // namespace pelmar
