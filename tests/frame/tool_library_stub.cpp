// Tool libraries for the loader's tests: one that is complete, and some that lack an entry point. Closing is counted in
// the environment, which outlives the library.
#include <windows.h>

#define ENTRY_POINT(name)                                                                                              \
    extern "C" __declspec(dllexport) int name()                                                                        \
    {                                                                                                                  \
        return 0;                                                                                                      \
    }

ENTRY_POINT(ToolLib_nGetMillTool)
ENTRY_POINT(ToolLib_nLoadMillTool)
ENTRY_POINT(ToolLib_nGetSRMTool)
ENTRY_POINT(ToolLib_nGetSRMTrueMillTool)
ENTRY_POINT(ToolLib_nLoadSRMTool)
ENTRY_POINT(ToolLib_nGetDrillTool)
ENTRY_POINT(ToolLib_nLoadDrillTool)
ENTRY_POINT(ToolLib_nGetLatheTool)
ENTRY_POINT(ToolLib_nLoadLatheTool)
ENTRY_POINT(ToolLib_nGetLDrillTool)
ENTRY_POINT(ToolLib_nLoadLDrillTool)
ENTRY_POINT(ToolLib_nGetDgtzTool)
ENTRY_POINT(ToolLib_nLoadDgtzTool)
ENTRY_POINT(ToolLib_nGetEdmTool)
ENTRY_POINT(ToolLib_nLoadEdmTool)
ENTRY_POINT(ToolLib_nGetThreadMillTool)
ENTRY_POINT(ToolLib_nLoadThreadMillTool)
ENTRY_POINT(ToolLib_nGetPlungeRoughTool)
ENTRY_POINT(ToolLib_nLoadPlungeRoughTool)
ENTRY_POINT(ToolLib_nGetTool)
ENTRY_POINT(ToolLib_nLoadTool)
#ifndef LACKS_MATERIAL
ENTRY_POINT(ToolLib_nGetMaterial)
#endif
ENTRY_POINT(ToolLib_nLoadMaterial)
ENTRY_POINT(ToolLib_nGetSRMMaterial)
ENTRY_POINT(ToolLib_nLoadSRMMaterial)
ENTRY_POINT(ToolLib_nGetSpeedFeedInfo)
ENTRY_POINT(ToolLib_nSetSpeedFeedInfo)
ENTRY_POINT(ToolLib_nGetToolMaterialName)
ENTRY_POINT(ToolLib_nGetToolUnits)
#ifndef LACKS_SET_UNITS
ENTRY_POINT(ToolLib_nSetToolUnits)
#endif

extern "C" __declspec(dllexport) void ToolLib_vCloseRecordSets()
{
    char closed[64] = {};
    GetEnvironmentVariableA("PELMAR_TEST_CLOSED", closed, sizeof closed - 1);
    lstrcatA(closed, "x");
    SetEnvironmentVariableA("PELMAR_TEST_CLOSED", closed);
}
