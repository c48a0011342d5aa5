// Ids of the tool library's resources.
#pragma once

#define IDC_STATIC (-1)

#define IDD_CHOOSE 100
#define IDC_CHOOSE_LIST 101
#define IDC_CHOOSE_FILTER 102

#define IDS_TITLE_FORMAT 200 // %1 list, %2 units
#define IDS_INCH 201
#define IDS_MILLIMETRE 202
#define IDS_COLUMN_ID 203
#define IDS_COLUMN_DESCRIPTION 204
#define IDS_COLUMN_DIAMETER 205
#define IDS_COLUMN_MATERIAL 206
#define IDS_MATERIALS_TITLE 207
#define IDS_COLUMN_GROUP 208
#define IDS_COLUMN_DATABASE_NUMBER 209
#define IDS_COLUMN_TOOL_NUMBER 210
#define IDS_ONLY_BALL_TOOLS 211

// Kinds of tools: base + ToolLibKind
#define IDS_KIND_BASE 220
// Lists for surface milling
#define IDS_SURFACE_MILLS 240
#define IDS_SURFACE_ROUGH_MILLS 241
// Groups of materials: base + group
#define IDS_GROUP_BASE 250
