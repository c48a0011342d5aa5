// What the host keeps for the dialogs of the NC module's global settings, over its runs.
//
// What the defaults file has a factory value for is kept in the settings file, under the same key: the start-up flags,
// the program name, the bit of the lower Z limit, the span filter and the default tools. Where the settings file does
// not hold it, the defaults file tells, and at last what is built in. The stock material and the "ball tools only"
// switch have no such key: they are in the host's own settings.
#pragma once

#include <PelmarDlgs.h>

/// Reads everything, the ball-tool switch into the library. To be called once the library has been started.
void LoadNcData();

/// What the dialogs are filled from and hand back. Until the first load as built in.
OptNCDefData& NcDefaults();
OptNCDefToolsData& DefaultTools();

/// Writes what the dialog does not write by itself: all but the span filter.
void SaveNcDefaults();
/// Writes the tools. What else the dialog edits the library keeps.
void SaveDefaultTools();
/// Writes the library's ball-tool switch, where it is another than the file's.
void SaveBallToolSwitch();
