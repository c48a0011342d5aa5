// The tool library, a DLL of the host's that knows its tools and materials.
#pragma once

#include "frame/export.h"

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

/// Whether materials may be chosen from the tool library and gauge lengths taken from it. Off as long as nobody
/// switches it on: the module itself never does.
PELMAR_API bool& MaterialLibrarySwitch();
