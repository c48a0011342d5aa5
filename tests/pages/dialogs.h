// Dialogs of the tests themselves.
#pragma once

#define IDD_SPY 900
#define IDD_OF_A_HOST 113
