// What settings files hold beside the records of the operations: one row for each key.
#pragma once

#include "records/hole_process_facts.h"
#include "records/option.h"
#include "resources/resource.h"

namespace pelmar {

namespace global_section {
constexpr char kSettings[] = "Settings";
constexpr char kParameters[] = "DefaultNCParameter";
constexpr char kStartUp[] = "ALLTIPI";
} // namespace global_section

namespace global_key {
constexpr char kDecimals[] = "Decimals";
constexpr char kMillGaugeLength[] = "MillGaugeLength";
constexpr char kLatheGaugeLength[] = "LatheGaugeLength";
constexpr char kToolSortBy[] = "ToolSortBy";
constexpr char kProgramName[] = "ProgramName";
constexpr char kDialogBits[] = "UsePLXDialogs";
constexpr char kFilterSpans[] = "FilterSpans";
constexpr char kArcTolerance[] = "FilterArcTol";
// The longest span has another name where it is stored until the restart; it is read under the first only.
constexpr char kMaxSpan[] = "FilterMaxSpan";
constexpr char kMaxSpanUntilRestart[] = "FilterLineTol";
constexpr char kLastMaterial[] = "DefToLastMaterial;"; // the semicolon is part of the key
constexpr char kLastTool[] = "DefToLastTool";
constexpr char kLastCutControl[] = "DefToLastCutCtrl";
constexpr char kInchTool[] = "ToolDefUS";
constexpr char kMillimetreTool[] = "ToolDefMM";
} // namespace global_key

constexpr ChoiceText kToolSortTypes[] = {IDS_SORT_BY_DIAMETER, IDS_SORT_BY_TOOL_NUMBER, IDS_SORT_BY_DATABASE_NUMBER};

/// A kind of tool: its section, what it is called, and the ids that are built in.
struct ToolSection {
    const char* section;
    const char* label;
    int inchTool;
    int millimetreTool;
};

constexpr ToolSection kMillTools{"MILLTIPI", "Фреза", 44, 2139};
constexpr ToolSection kDrillTools{"DRILLTIPI", "Осевой инструмент (фрезерный)", 3, 2203};
constexpr ToolSection kLatheTools{"LATHETIPI", "Токарный резец", 1, 1};
constexpr ToolSection kLatheDrillTools{"LDRILLTIPI", "Осевой инструмент (токарный)", 74, 142};
constexpr ToolSection kProbeTools{"DGTZTIPI", "Измерительный щуп", 1, 1};
constexpr ToolSection kEdmTools{"EDMTIPI", "Электроэрозионный инструмент", 10, 38};
constexpr ToolSection kThreadTools{"THREADTIPI", "Резьбовой резец", 113, 113};
constexpr ToolSection kFaceMillTools{"FACEMILLTIPI", "Фреза торцевая", 1007, 2167};
constexpr ToolSection kRoundMillTools{"ROUNDMILLTIPI", "Фреза для скруглений", 335, 2345};
constexpr ToolSection kChamferMillTools{"CHAMFERMILLTIPI", "Фреза для фасок", 1100, 2161};
constexpr ToolSection kThreadMillTools{"THREADMILLTIPI", "Резьбовой инструмент (фрезерный)", 1, 1};

/// What is known of a key that belongs to no record.
struct GlobalSetting {
    const char* group; ///< for people, as a record's operation is
    const char* section;
    Option option; ///< without a field
    double builtIn = 0.0;
    bool isText = false;
    bool isOfHost = false; ///< of the host's own settings files
};

/// In place of a key: the section's keys are names that the user gives.
constexpr const char* kAnyKey = nullptr;

namespace detail {

constexpr char kToolsGroup[] = "Инструменты";
constexpr char kDefaultsGroup[] = "Параметры ЧПУ";

constexpr GlobalSetting Global(const char* group, const char* section, const char* key, const char* label,
                               OptionKind kind, double builtIn = 0.0)
{
    return {
        .group = group, .section = section, .option = {.key = key, .label = label, .kind = kind}, .builtIn = builtIn};
}

constexpr GlobalSetting OfDefaults(const char* section, const char* key, const char* label)
{
    return Global(kDefaultsGroup, section, key, label, OptionKind::Switch);
}

constexpr GlobalSetting Tolerance(const char* key, const char* label)
{
    GlobalSetting setting = Global(kDefaultsGroup, global_section::kParameters, key, label, OptionKind::Length, 0.001);
    setting.option.range = kNotNegative;
    return setting;
}

constexpr GlobalSetting OfTools(const char* key, const char* label)
{
    return Global(kToolsGroup, global_section::kSettings, key, label, OptionKind::Switch);
}

constexpr GlobalSetting ToolSort()
{
    GlobalSetting setting = OfTools(global_key::kToolSortBy, "Тип сортировки");
    setting.option.kind = OptionKind::Choice;
    setting.option.choices = kToolSortTypes;
    return setting;
}

constexpr GlobalSetting HoleTemplate()
{
    using Facts = RecordFacts<HoleProcessDefsInfo>;
    GlobalSetting setting = Global(Facts::table.Operation(), Facts::table.Section(), Facts::templateKey,
                                   "Шаблон при запуске", OptionKind::Count);
    setting.isText = true;
    return setting;
}

constexpr GlobalSetting OfHost(const char* section, const char* key, const char* label, bool isText = false)
{
    GlobalSetting setting = Global("TORVEX", section, key, label, OptionKind::Count);
    setting.isText = isText;
    setting.isOfHost = true;
    return setting;
}

constexpr GlobalSetting HoleFactoryUnits()
{
    using Facts = RecordFacts<HoleProcessDefsInfo>;
    return Global(Facts::table.Operation(), Facts::unitsOfDefaultsSection, "Units", "Единицы заводских значений",
                  OptionKind::Units);
}

constexpr GlobalSetting InchTool(const ToolSection& tool)
{
    return Global("Инструменты, дюймы", tool.section, global_key::kInchTool, tool.label, OptionKind::Count,
                  tool.inchTool);
}

constexpr GlobalSetting MillimetreTool(const ToolSection& tool)
{
    return Global("Инструменты, мм", tool.section, global_key::kMillimetreTool, tool.label, OptionKind::Count,
                  tool.millimetreTool);
}

} // namespace detail

inline constexpr GlobalSetting kGlobalSettings[] = {
    detail::Global("Общие", global_section::kSettings, global_key::kDecimals, "Знаков после запятой", OptionKind::Count,
                   4),
    detail::OfTools(global_key::kMillGaugeLength, "Выводить вылет инструмента для всех фрезерных операций"),
    detail::OfTools(global_key::kLatheGaugeLength, "Выводить вылет инструмента для всех токарных операций"),
    detail::ToolSort(),
    detail::OfDefaults(global_section::kSettings, global_key::kProgramName, "Алфавитно-цифровой номер программы"),
    detail::Global(detail::kDefaultsGroup, global_section::kSettings, global_key::kDialogBits,
                   "Вычислять нижний предел по оси Z (бит 4)", OptionKind::Count),
    detail::OfDefaults(global_section::kParameters, global_key::kFilterSpans, "Разбивать прямые и дуги на отрезки"),
    detail::Tolerance(global_key::kMaxSpan, "Максимальное значение отрезка для прямой"),
    detail::Tolerance(global_key::kMaxSpanUntilRestart, "Максимальное значение отрезка для прямой (до перезапуска)"),
    detail::Tolerance(global_key::kArcTolerance, "Допуск для сегмента дуги"),
    detail::OfDefaults(global_section::kStartUp, global_key::kLastMaterial,
                       "Использовать последний материал по умолчанию"),
    detail::OfDefaults(global_section::kStartUp, global_key::kLastTool,
                       "Использовать последний инструмент по умолчанию"),
    detail::OfDefaults(global_section::kStartUp, global_key::kLastCutControl,
                       "Сохранять параметры операции при выходе"),
    detail::InchTool(kMillTools),
    detail::MillimetreTool(kMillTools),
    detail::InchTool(kDrillTools),
    detail::MillimetreTool(kDrillTools),
    detail::InchTool(kLatheTools),
    detail::MillimetreTool(kLatheTools),
    detail::InchTool(kLatheDrillTools),
    detail::MillimetreTool(kLatheDrillTools),
    detail::InchTool(kProbeTools),
    detail::MillimetreTool(kProbeTools),
    detail::InchTool(kEdmTools),
    detail::MillimetreTool(kEdmTools),
    detail::InchTool(kThreadTools),
    detail::MillimetreTool(kThreadTools),
    detail::InchTool(kFaceMillTools),
    detail::MillimetreTool(kFaceMillTools),
    detail::InchTool(kRoundMillTools),
    detail::MillimetreTool(kRoundMillTools),
    detail::InchTool(kChamferMillTools),
    detail::MillimetreTool(kChamferMillTools),
    detail::InchTool(kThreadMillTools),
    detail::MillimetreTool(kThreadMillTools),
    detail::HoleTemplate(),
    detail::HoleFactoryUnits(),
    detail::OfHost("DefaultPath", "TorvexIniPath", "Папка настроек TORVEX", true),
    detail::OfHost("DefaultPath", "NCDefaultPath", "Папка параметров ЧПУ", true),
    detail::OfHost("DefaultPath", "MachSimPath", "Папка симулятора станка", true),
    detail::OfHost("DefaultPath", "ToolpathTemplatesPath", "Папка шаблонов", true),
    detail::OfHost("DefaultSystemFile", "ToolLib", "Библиотека инструмента", true),
    detail::OfHost("NCDefaultFile", kAnyKey, "Файл параметров ЧПУ", true),
    detail::OfHost(global_section::kParameters, "NCDefaultStartup", "Файл параметров при запуске", true),
    detail::OfHost(global_section::kParameters, "StockMaterial", "Материал заготовки"),
    detail::OfHost(global_section::kParameters, "OnlyBallTools", "Только сферический инструмент"),
    detail::OfHost(global_section::kParameters, "Classic3Axis", "Использовать классическое 3-осевое фрезерование"),
    detail::OfHost("DefaultDisplayParameter", "NcDisplayMode", "Отображение команд ЧПУ"),
    detail::OfHost("DefaultDisplayParameter", "NcMenuIcons", "Иконки в меню"),
    detail::OfHost(global_section::kSettings, "Units", "Единицы TORVEX"),
    detail::OfHost("SettingsReview", kAnyKey, "Окно проверки параметров", true),
};

} // namespace pelmar
