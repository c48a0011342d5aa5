// Ids of the test dialogs and their controls, shared with dialogs.rc and the scripts of the extension DLLs.
#pragma once

// clang-format off
#define IDR_MENU              900

#define IDD_NUMBER           1000
#define IDD_EXCHANGE         1010
#define IDD_POINTS           1020
#define IDD_PAGE             1030
#define IDD_PAGE_WITH_TITLE  1031
#define IDD_LARGE_PAGE       1032
#define IDD_PLAIN_PAGE       1033
#define IDD_BROKEN           1040
#define IDD_UNKNOWN_CLASS    1041
#define IDD_NOWHERE          1099

#define IDC_NUMBER           1101
#define IDC_TEXT             1102
#define IDC_CHECK            1103
#define IDC_FIRST_RADIO      1104
#define IDC_SECOND_RADIO     1105
#define IDC_THIRD_RADIO      1106
#define IDC_CHOICE           1107
#define IDC_LIST             1108
#define IDC_AFTER_GROUP      1109
#define IDC_UP_DOWN          1110
#define IDC_MISSING          1199

#define IDC_FRAME            1201
#define IDC_IN_FRAME         1202
#define IDC_HIDDEN           1203
#define IDC_DISABLED         1204

// Strings. Those from IDS_IN_ALL on differ from module to module, or are held by some of them only.
#define IDS_TITLE            2001
#define IDS_TWO_PARTS        2002
#define IDS_QUESTION         2003
#define IDS_NOWHERE          2015
#define IDS_IN_ALL           3000
#define IDS_IN_EXTENSIONS    3001
#define IDS_IN_FIRST         3002

// Dialogs of the extension DLLs.
#define IDD_IN_EXTENSIONS    3100
#define IDD_SHADOWED         3101
// clang-format on
