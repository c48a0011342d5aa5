// The host's own settings, and the text of the NC settings file.
#pragma once

#include <afxwin.h>

/// The units in which the user works: 0 inch, 1 millimetre.
int LoadUnits();
void SaveUnits(int units);

/// Makes the folder of the NC settings file where it is missing: nothing could be saved without it.
void MakeNcFolder();

/// The file in which the NC options are saved, and what it holds; the text is empty while there is no file.
CString NcSettingsPath();
CString NcSettingsText();
