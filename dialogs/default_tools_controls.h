// The dialog of the default tools.
#pragma once

#include "dialogs/dialog_buttons.h"

namespace pelmar {

inline constexpr PageFacts kDefaultToolsPage{IDD_TOOLS, kDialogButtons,
                                             "tvaux-_toolsoptions_options_nc_defaults_tools.htm"};

} // namespace pelmar
