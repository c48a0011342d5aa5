// The dialog of the NC defaults.
#pragma once

#include <limits>

#include "dialogs/dialog_buttons.h"
#include "records/choices.h"

namespace pelmar {

/// What the user edits in the dialog. Whole numbers but the material are 0 or 1.
struct NCDefaults {
    int displayMode = 0; ///< of the NC commands: 0 toolbar, 1 drop-down menu; from the host's defaults, any number
    int menuIcons = 0;
    int defToLastMaterial = 0;
    int defToLastTool = 0;
    int defToLastCutControl = 0;
    int calculateMinimumZ = 0;
    int alphanumericProgramName = 0;
    int classic3Axis = 0;
    int filterSpans = 0;
    double filterMaxSpan = 0.001;
    double filterArcTolerance = 0.001;
    int material = 0;
};

template <> struct RecordFacts<NCDefaults> {
    using R = NCDefaults;

    static constexpr Range tolerances{0.0, std::numeric_limits<double>::max()};

    // The dialog keeps them in files of its own; the display mode and the material are not among its boxes and edits.
    static constexpr Option options[] = {
        Switch<&R::menuIcons>(kInMemoryOnly, "Иконки в меню"),
        Switch<&R::defToLastMaterial>(kInMemoryOnly, "Использовать последний материал по умолчанию"),
        Switch<&R::defToLastTool>(kInMemoryOnly, "Использовать последний инструмент по умолчанию"),
        Switch<&R::defToLastCutControl>(kInMemoryOnly, "Сохранять параметры операции при выходе"),
        Switch<&R::calculateMinimumZ>(kInMemoryOnly, "Вычислять нижний предел по оси Z"),
        Switch<&R::alphanumericProgramName>(kInMemoryOnly, "Алфавитно-цифровой номер программы"),
        Switch<&R::classic3Axis>(kInMemoryOnly, "Использовать классическое 3-осевое фрезерование"),
        Switch<&R::filterSpans>(kInMemoryOnly, "Разбивать прямые и дуги на отрезки"),
        UnscaledLength<&R::filterMaxSpan>(kInMemoryOnly, "Максимальное значение отрезка для прямой").Within(tolerances),
        UnscaledLength<&R::filterArcTolerance>(kInMemoryOnly, "Допуск для сегмента дуги").Within(tolerances),
    };
};

struct NCDefaultsTable {
    using R = NCDefaults;

    static constexpr char displayModeTopic[] = "tvaux-_toolsoptionspopups_display_toolbar_dispaly_menu_options.htm";

    // The display mode comes before these. The span filter comes before its tolerances: a click on it counts even while
    // a tolerance is refused, so that the edits can be enabled and corrected.
    static constexpr std::array others = {
        Check<&R::menuIcons>(IDC_NCDEF_MENU_ICONS).ByExchangeOnly().Help("tvaux-_toolsoptionspopups_menu_icons.htm"),
        Check<&R::defToLastMaterial>(IDC_NCDEF_LAST_MATERIAL)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_use_last_selected_materials_as_default_at_start_up.htm"),
        Check<&R::defToLastTool>(IDC_NCDEF_LAST_TOOL)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_use_last_selected_tools_as_default_at_start_up.htm"),
        Check<&R::defToLastCutControl>(IDC_NCDEF_LAST_CUT_CONTROL)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_save_cut_control_information_at_torvex_exit.htm"),
        Check<&R::calculateMinimumZ>(IDC_NCDEF_MINIMUM_Z)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_calculate_initial_value_for_minimum_z.htm"),
        Check<&R::alphanumericProgramName>(IDC_NCDEF_PROGRAM_NAME)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_program_number_is_alphanumeric_name.htm"),
        Check<&R::classic3Axis>(IDC_NCDEF_CLASSIC_3_AXIS).ByExchangeOnly(),
        Check<&R::filterSpans>(IDC_NCDEF_FILTER_SPANS).ByExchangeOnly(),
        Edit<&R::filterMaxSpan>(IDC_NCDEF_MAX_SPAN),
        Edit<&R::filterArcTolerance>(IDC_NCDEF_ARC_TOLERANCE),
        Button(IDC_NCDEF_TOOLBAR).Help(displayModeTopic),
        Button(IDC_NCDEF_MENU).Help(displayModeTopic),
        Button(IDC_NCDEF_MATERIAL)
            .Help("tvaux-_toolsoptionspopups_choose_material_button_options_nc_defaults_dialog.htm"),
    };
    static constexpr auto controls = Joined(others, kDialogButtons);
};

inline constexpr PageFacts kNCDefaultsPage{IDD_NC_DEFAULTS, NCDefaultsTable::controls,
                                           "tvaux-_toolsoptions_nc_defaults_tools_options.htm"};

} // namespace pelmar
