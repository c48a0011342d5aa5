// Start and stop of the library.
//
// Order of use: load the library; InitPelmarDlgsDLL; InitializePelmarDlgsDLL; then records, pages and dialogs; at the
// end FinalizePelmarDlgsDLL. Everything is for the host's user-interface thread.
#pragma once

#include "PelmarDlgs/export.h"

class CDynLinkLibrary;

extern "C" {

/// Joins the library's resources to the host's resource chain. Call it once, after loading the library and before any
/// page or dialog is shown. Null where memory runs out; the library keeps what it returns.
PELMAR_API CDynLinkLibrary* InitPelmarDlgsDLL();

/// Computes the locations of all settings files, brings the machine-simulation start-up entry up to date and loads the
/// tool library. 1 when the tool library and all its entry points were found, else 0; the locations hold either way.
/// A host that changes its settings files calls it again.
PELMAR_API int InitializePelmarDlgsDLL();

/// Closes and frees the tool library, where one is loaded, and drops what has been gathered for a save and not been
/// committed. Call it before unloading the library.
PELMAR_API void FinalizePelmarDlgsDLL();

/// Points the machine-simulation start-up file at `folder`: its last piece, a file name, moves into a folder of that
/// name below. May be called at any time. Null counts as the empty text.
PELMAR_API void PelmarUI_SetMachineSimPath(const char* folder);
}

namespace pelmar {

/// Whether materials may be chosen from the tool library and gauge lengths taken from it. Off as long as the host does
/// not switch it on: the library itself never does.
PELMAR_API bool& MaterialLibrarySwitch();

} // namespace pelmar
