// Dialogs of the tests themselves.
#pragma once

#define IDD_SPY 900
#define IDD_FRAME 901
#define IDC_FRAME_DEFAULTS 902

/// Dialogs of the program's own under the numbers of two of the library's.
#define IDD_SAME_NUMBER_AS_ROTARY 4157
#define IDD_OF_A_HOST 113
