// The dialogs of the NC module's global settings as the host shows them.
#pragma once

#include <afxwin.h>

#include <PelmarDlgs/dialogs/settings_review.h>

void ShowNcDefaults(CWnd* parent);
/// `units`: those in which the user works, 0 inch, 1 millimetre.
void ShowDefaultTools(CWnd* parent, int units);
void ShowDefaultsFileChooser(CWnd* parent);
void ShowTemplateOptions(CWnd* parent);
/// `units`: 0 inch, 1 millimetre. `controlId`: of the control that has the focus at first; 0 for the first one.
void ShowSetupSheetOptions(CWnd* parent, int units, int controlId = 0);
/// Reviews all settings and saves the records on OK. Where the user wants to go from there.
pelmar::SettingPlace ShowSettingsReview(CWnd* parent);
