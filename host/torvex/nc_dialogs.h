// The dialogs of the NC module's global settings as the host shows them.
#pragma once

#include <afxwin.h>

void ShowNcDefaults(CWnd* parent);
/// `units`: those in which the user works, 0 inch, 1 millimetre.
void ShowDefaultTools(CWnd* parent, int units);
void ShowDefaultsFileChooser(CWnd* parent);
void ShowTemplateOptions(CWnd* parent);
/// `units`: 0 inch, 1 millimetre.
void ShowSetupSheetOptions(CWnd* parent, int units);
