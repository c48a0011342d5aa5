// Dialogs of the tests themselves.
#pragma once

#define IDD_SPY 900
