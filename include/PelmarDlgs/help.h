// Help: the help file and its viewer, and the tips of the pages and dialogs.
#pragma once

#include "PelmarDlgs/export.h"

class CWnd;

namespace pelmar {

/// What is there of the help. The texts are in the system's ANSI code page and stay valid until the next question.
struct HelpState {
    bool hasViewer; ///< the system's help viewer was found; looked for once, when help or this is first asked for
    bool hasFile;   ///< the help file is there now

    const char* viewerFile; ///< that was looked for, as the system's registration has it
    const char* helpFile;   ///< that was looked for: the same as in GetSettingsLocations

    bool CanOpen() const { return hasViewer && hasFile; }
};

/// Whether help can open, and what was looked for. Loads the viewer where it has not been loaded yet.
PELMAR_API HelpState GetHelpState();

/// Tells the host that the user has asked for help which cannot open.
using HelpMissing = void(const HelpState& state);

/// Has the host told whenever the user has asked for help and it cannot open; null, as at first, for nobody. The
/// library itself says nothing. Without anybody to tell, a viewer that is there is asked for a file that is missing
/// too, and says of that what it likes.
PELMAR_API void TellOfMissingHelp(HelpMissing* tell);

/// Opens the help file at its introduction, for a host's Help menu. `caller`: the window that asks. Where help cannot
/// open it is as with every topic: the host is told if it wants to, and nothing else happens.
PELMAR_API void ShowHelpContents(const CWnd& caller);

/// Whether a tip comes up while the pointer rests on a control of a page, of the dialog of the rotary axes, of the NC
/// defaults or of the setup sheet: what the option does, its unit, its range, its factory value, and whether it is at
/// that. On at first; off, an open tip goes as well. Tips need a message loop that lets windows see their messages
/// first (PreTranslateMessage), as the framework's does.
PELMAR_API void ShowTips(bool show);
PELMAR_API bool AreTipsShown();

} // namespace pelmar
