// What applications include besides afxwin.h. The controls and dialogs that this framework has are in these.
#pragma once

#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxwin.h>
