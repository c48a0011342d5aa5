#include "frame/tool_library.h"

#include <array>

namespace pelmar {
namespace {
constexpr std::array kNames = {
    "ToolLib_nGetMillTool",
    "ToolLib_nLoadMillTool",
    "ToolLib_nGetSRMTool",
    "ToolLib_nGetSRMTrueMillTool",
    "ToolLib_nLoadSRMTool",
    "ToolLib_nGetDrillTool",
    "ToolLib_nLoadDrillTool",
    "ToolLib_nGetLatheTool",
    "ToolLib_nLoadLatheTool",
    "ToolLib_nGetLDrillTool",
    "ToolLib_nLoadLDrillTool",
    "ToolLib_nGetDgtzTool",
    "ToolLib_nLoadDgtzTool",
    "ToolLib_nGetEdmTool",
    "ToolLib_nLoadEdmTool",
    "ToolLib_nGetThreadMillTool",
    "ToolLib_nLoadThreadMillTool",
    "ToolLib_nGetPlungeRoughTool",
    "ToolLib_nLoadPlungeRoughTool",
    "ToolLib_nGetTool",
    "ToolLib_nLoadTool",
    "ToolLib_nGetMaterial",
    "ToolLib_nLoadMaterial",
    "ToolLib_nGetSRMMaterial",
    "ToolLib_nLoadSRMMaterial",
    "ToolLib_nGetSpeedFeedInfo",
    "ToolLib_nSetSpeedFeedInfo",
    "ToolLib_nGetToolMaterialName",
    "ToolLib_nGetToolUnits",
    "ToolLib_nSetToolUnits",
    "ToolLib_vCloseRecordSets",
};
static_assert(kNames.size() == static_cast<size_t>(ToolEntryPoint::CloseRecordSets) + 1);

HMODULE g_library = nullptr;
bool g_materialLibrary = false;
std::array<FARPROC, kNames.size()> g_entryPoints{};

bool ResolveEntryPoints()
{
    // Addresses of a library that is gone must not serve for the entry points that the new one lacks.
    g_entryPoints = {};
    for (size_t index = 0; index < kNames.size(); ++index) {
        const FARPROC address = GetProcAddress(g_library, kNames[index]);
        if (!address)
            return false;
        g_entryPoints[index] = address;
    }
    return true;
}
} // namespace

bool LoadToolLibrary(const char* name)
{
    const HMODULE library = LoadLibraryA(name);
    if (!library)
        return false;
    const HMODULE before = g_library;
    if (before && before != library)
        UnloadToolLibrary();
    else if (before)
        FreeLibrary(before);
    g_library = library;
    return ResolveEntryPoints();
}

void UnloadToolLibrary()
{
    if (!g_library)
        return;
    if (const auto closeRecordSets = ToolLibraryFunction<void()>(ToolEntryPoint::CloseRecordSets))
        closeRecordSets();
    FreeLibrary(g_library);
    g_library = nullptr;
    g_entryPoints = {};
}

FARPROC ToolLibraryAddress(ToolEntryPoint entryPoint)
{
    return g_entryPoints[static_cast<size_t>(entryPoint)];
}

bool& MaterialLibrarySwitch()
{
    return g_materialLibrary;
}

} // namespace pelmar
