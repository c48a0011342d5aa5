// Texts of the host's string table.
#pragma once

#include <afxwin.h>

inline CString Text(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}
