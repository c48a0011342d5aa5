// Ids of the dialog that the expression edits are tried in.
#pragma once

#define IDD_EXPRESSIONS 1000
#define IDC_REAL 1001
#define IDC_WHOLE 1002
#define IDC_UNSIGNED 1003
#define IDC_OPTIONAL 1004
#define IDC_RANGED 1005
