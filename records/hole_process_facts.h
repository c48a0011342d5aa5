// The options of hole processing.
#pragma once

#include "PelmarDlgs/records/hole_process.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

constexpr int kHoleDirections = 4;

constexpr bool IsHoleDirection(int direction)
{
    return direction >= 0 && direction < kHoleDirections;
}

constexpr int HoleDirectionInRange(int direction)
{
    return IsHoleDirection(direction) ? direction : 0;
}

constexpr int HoleSortInRange(int sortType)
{
    return sortType == 1 || sortType == 2 ? sortType : 0;
}

template <> struct RecordFacts<HoleProcessDefsInfo> {
    using R = HoleProcessDefsInfo;

    static constexpr ChoiceText sorts[] = {IDS_HOLE_SORT_MANUAL, IDS_HOLE_SORT_DISTANCE, IDS_HOLE_SORT_ORTHOGONAL};
    // The pages show directions as icons.
    static constexpr ChoiceText directions[kHoleDirections] = {"Вправо", "Влево", "Вверх", "Вниз"};
    static constexpr ChoiceText approaches[kHoleDirections] = {"Вправо вниз", "Влево вниз", "Вправо вверх",
                                                               "Влево вверх"};

    // The template is not here: it is a text, and it is read from another place than it is written to.
    static constexpr Option options[] = {
        Units<R>(),
        Switch<&R::RecalcAuto>("RecalcAuto", "Пересчет Скорости/Подачи при выборе нового инструмента")
            .AbsentFromDefaults(),
        Choice<&R::SortType>("SortType", "Сортировка", sorts).Sanitized(HoleSortInRange),
        Choice<&R::MajorDir>("MajorDir", "Главное направление", directions).Sanitized(HoleDirectionInRange),
        Choice<&R::StepDir>("StepDir", "Направление смещения", directions)
            .Sanitized(HoleDirectionInRange)
            .ThenRun<&R::Sync>(),
        Switch<&R::Bidirectional>("Bidirectional", "Зигзаг"),
        Switch<&R::UseBandWidth>("UseBandWidth", "Задать ширину строки"),
        Length<&R::BandWidth>("BandWidth", "Ширина").Within(kNotNegative),
        Switch<&R::AccurateMode>("AccurateMode", "Режим точного позиционирования"),
        Choice<&R::AccurateDir>("AccurateDir", "Вектор подхода", approaches).Sanitized(HoleDirectionInRange),
        Length<&R::AccurateDist>("AccurateDist", "Расстояние").Within(kNotNegative),
        Feed<&R::AccurateFeedRate>("AccurateFeedRate", "Подача").Within(kNotNegative),
        Switch<&R::SortReverse>("SortReverse", "Реверс"),
        Switch<&R::SortBiasToVector>("SortBiasToVector", "Использовать поворот для 4/5 осевого позиционирования"),
    };
    static constexpr RecordTable table{"HoleProcessLocation", "Отверстия", options};
    static RecordKind<R>& Kind();

    /// The units of the defaults file alone stand in a section of their own.
    static constexpr char unitsOfDefaultsSection[] = "HoleProcess";
    /// The template's key, in the record's section.
    static constexpr char templateKey[] = "StartupTemplate";
};

} // namespace pelmar
