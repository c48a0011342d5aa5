// Standard command, control and string ids, as resource scripts and code share them.
#pragma once

#define IDC_STATIC (-1)

// The Help command. A page receives it for the Help button of its sheet.
#define ID_HELP 0xE146

// Standard prompts of the data exchange. An application may bring its own wording of them.
#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117
