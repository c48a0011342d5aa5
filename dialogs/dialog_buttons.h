// The buttons of a dialog's own that lead to topics of the help file.
#pragma once

#include <array>

#include "pages/control.h"

namespace pelmar {

/// The system's and the framework's ids, by number: this table is read where neither is.
enum DialogButton : int {
    kOkButton = 1,
    kCancelButton = 2,
    kHelpButton = 0xE146,
};

// Not `std::array kDialogButtons = {…}`: in some sources GCC puts that among what can be written, in others not, and
// then they do not link.
inline constexpr auto kDialogButtons = std::to_array({
    Button(kOkButton).Help("tvaux-_popupsj_r_hidc_ok_button.htm"),
    Button(kCancelButton).Help("tvaux-_popupsa_i_hidc_cancel_button.htm"),
    Button(kHelpButton).Help("tvaux-_popupsa_i_hidc_help_button.htm"),
});

} // namespace pelmar
