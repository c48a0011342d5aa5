// Start and stop of the library, and what is common to all of it: its instance and its texts.
#pragma once

#include <afxwin.h>

#include "frame/export.h"

class CDynLinkLibrary;

extern "C" {

/// Joins the library's resources to the host's resource chain. Call it once, after loading the library and before any
/// page or dialog is shown. Null where memory runs out; the library keeps what it returns.
PELMAR_API CDynLinkLibrary* InitPelmarDlgsDLL();

/// Computes the locations of all settings files, brings the machine-simulation start-up entry up to date and loads the
/// tool library. 1 when the tool library and all its entry points were found, else 0; the locations hold either way.
/// A host that changes its settings files calls it again.
PELMAR_API int InitializePelmarDlgsDLL();

/// Closes and frees the tool library, where one is loaded. Call it before unloading the library.
PELMAR_API void FinalizePelmarDlgsDLL();

/// Points the machine-simulation start-up file at `folder`: its last piece, a file name, moves into a folder of that
/// name below. May be called at any time. Null counts as the empty text.
PELMAR_API void PelmarUI_SetMachineSimPath(const char* folder);
}

/// The library's own instance.
HINSTANCE ModuleInstance();

/// A text of the library's string table, whatever other modules of the process bear the same id. Empty where unknown.
CString LoadText(UINT id);

/// Puts the library's own resources before everybody else's while it lives.
class ModuleResources {
public:
    ModuleResources() : m_before(AfxGetResourceHandle()) { AfxSetResourceHandle(ModuleInstance()); }
    ~ModuleResources() { AfxSetResourceHandle(m_before); }
    ModuleResources(const ModuleResources&) = delete;
    ModuleResources& operator=(const ModuleResources&) = delete;

private:
    HINSTANCE m_before;
};
