// The options of the setup sheet.
#pragma once

#include "PelmarDlgs/records/setup_sheet.h"
#include "records/choices.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CSSheetOptionsInfo> {
    using R = CSSheetOptionsInfo;

    static constexpr ChoiceText styles[] = {IDS_SETUP_SHEET_STANDARD_HTML, IDS_SETUP_SHEET_CURRENT_HTML,
                                            IDS_SETUP_SHEET_STANDARD};

    static constexpr Option options[] = {
        Units<R>(),
        Choice<&R::SetupStyle>("SetupStyle", "Стиль", styles),
        Switch<&R::UniqueTools>("UniqueTools", "Для операций со спец. инструментом"),
        Switch<&R::ToolingSetup>("ToolingSetup", "Вывод информации по инструменту"),
        Switch<&R::ToolingGraphics>("ToolingGraphics", "Вывод граф. изображения инструмента"),
        Switch<&R::OperationsSetup>("OperationsSetup", "Вывод информации по операциям"),
        Switch<&R::OperationsGraphics>("OperationsGraphics", "Вывод граф. изображения операций"),
        Number<&R::ToolChangeTime>("ToolChangeTime", "Время смены инструмента").Within(0.0, 1000000.0),
        Feed<&R::RapidRate>("RapidRate", "Скорость быстр. перем.").Within(0.001, 1000000.0),
    };
    static constexpr RecordTable table{"OptionsSSheet", "Отчет", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
