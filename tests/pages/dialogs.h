// Dialogs of the tests themselves.
#pragma once

#define IDD_SPY 900

/// A dialog of the program's own under the number of one of the library's.
#define IDD_SAME_NUMBER_AS_ROTARY 4157
