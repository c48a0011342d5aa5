// The dialog of the setup sheet.
#pragma once

#include "pages/control.h"
#include "records/setup_sheet_facts.h"

namespace pelmar {

struct SetupSheetTable {
    using R = CSSheetOptionsInfo;

    static constexpr Control controls[] = {
        Edit<&R::RapidRate>(IDC_SHEET_RAPID_RATE).Help("tvaux-_toolsoptionspopups_rapid_velocity.htm"),
        Edit<&R::ToolChangeTime>(IDC_SHEET_TOOL_CHANGE_TIME).Help("tvaux-_toolsoptionspopups_tool_change_time.htm"),
        Check<&R::ToolingSetup>(IDC_SHEET_TOOLING)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_output_tooling_setup.htm"),
        Check<&R::ToolingGraphics>(IDC_SHEET_TOOLING_GRAPHICS)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_output_tooling_graphics.htm"),
        Check<&R::OperationsSetup>(IDC_SHEET_OPERATIONS)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_output_opterations_setup.htm"),
        Check<&R::UniqueTools>(IDC_SHEET_UNIQUE_TOOLS)
            .ByExchangeOnly()
            .Help("tvaux-_toolsoptionspopups_show_operations_with_unique_tools.htm"),
        // Its items stand in another order than their values.
        PageList<&R::SetupStyle>(IDC_SHEET_STYLE).Help("tvaux-_toolsoptionspopups_style_1.htm"),
    };
};

inline constexpr PageFacts kSetupSheetPage{IDD_SETUP_SHEET, SetupSheetTable::controls,
                                           "tvaux-_toolsoptions_setup_sheet_tools_options.htm"};

} // namespace pelmar
