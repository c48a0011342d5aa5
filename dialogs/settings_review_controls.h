// The dialog that reviews the settings.
#pragma once

#include "dialogs/dialog_buttons.h"

namespace pelmar {

inline constexpr PageFacts kSettingsReviewPage{IDD_SETTINGS_REVIEW, kDialogButtons,
                                               "pelmar-_dialogs_settings_review.htm"};

} // namespace pelmar
