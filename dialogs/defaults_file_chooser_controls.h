// The dialog that chooses the defaults file.
#pragma once

#include "pages/control.h"

namespace pelmar {

struct ChooserTable {
    static constexpr char folderTopic[] = "tvaux-_toolsoptionspopups_nc_defaults.htm";

    static constexpr Control controls[] = {
        PageEdit(IDC_CHOOSER_FOLDER).Help(folderTopic),
        Button(IDC_CHOOSER_BROWSE).Help(folderTopic),
    };
};

inline constexpr PageFacts kChooserPage{IDD_CHOOSER, ChooserTable::controls,
                                        "tvaux-_toolsoptions_tools_options_nc_defaults_paths.htm"};

} // namespace pelmar
