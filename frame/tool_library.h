// The tool library, a DLL of the host's that knows its tools and materials.
#pragma once

#include <afx.h>

#include "PelmarDlgs/library.h"

namespace pelmar {

/// Its entry points, in the order in which they are looked up.
enum class ToolEntryPoint {
    GetMillTool,
    LoadMillTool,
    GetSRMTool,
    GetSRMTrueMillTool,
    LoadSRMTool,
    GetDrillTool,
    LoadDrillTool,
    GetLatheTool,
    LoadLatheTool,
    GetLDrillTool,
    LoadLDrillTool,
    GetDgtzTool,
    LoadDgtzTool,
    GetEdmTool,
    LoadEdmTool,
    GetThreadMillTool,
    LoadThreadMillTool,
    GetPlungeRoughTool,
    LoadPlungeRoughTool,
    GetTool,
    LoadTool,
    GetMaterial,
    LoadMaterial,
    GetSRMMaterial,
    LoadSRMMaterial,
    GetSpeedFeedInfo,
    SetSpeedFeedInfo,
    GetToolMaterialName,
    GetToolUnits,
    SetToolUnits,
    CloseRecordSets,
};

/// Loads the tool library and looks its entry points up, stopping at the first that is missing. True when all were
/// found. A library that was loaded before is let go once the new one is there.
bool LoadToolLibrary(const char* name);

/// Has the tool library close its files and frees it. Without one it does nothing.
void UnloadToolLibrary();

/// The address of an entry point; null while no tool library is loaded, and where the loaded one lacks it or an earlier
/// one of the list.
FARPROC ToolLibraryAddress(ToolEntryPoint entryPoint);

/// The same as a function of that type.
template <class Function> Function* ToolLibraryFunction(ToolEntryPoint entryPoint)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(ToolLibraryAddress(entryPoint)));
}

} // namespace pelmar
