// The host's own settings, and the text of the NC settings file.
#pragma once

#include <afxwin.h>

/// Starts the NC module's user interface, or starts it anew with the settings as they now stand, and says so where the
/// tool library is missing.
void StartNcModule();

/// A whole number of the host's settings file. Reading yields the fallback where it is absent; writing is part of the
/// save that is under way, and false where it cannot be saved.
int ReadHostWhole(const char* section, const char* key, int fallback);
bool WriteHostWhole(const char* section, const char* key, int value);

/// Whether a flag of the host's settings file is set. Off where it is absent.
bool HostSetting(const char* section, const char* key);

/// The units in which the user works: 0 inch, 1 millimetre.
int LoadUnits();
void SaveUnits(int units);

/// The page of the options that the user had in front last, by the number of its template; 0, or any other number that
/// no page has, where none is kept. That it could not be saved is no matter to tell anybody of.
int LoadOptionsPage();
void SaveOptionsPage(int templateId);

/// The file in which the NC options are saved, and what it holds; the text is empty while there is no file.
CString NcSettingsPath();
CString NcSettingsText();
