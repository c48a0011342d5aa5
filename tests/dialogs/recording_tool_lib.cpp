#include "recording_tool_lib.h"

#include <cstring>

#include <windows.h>

namespace {
ToolLibRecord g_record;

constexpr size_t kToolSize = 1584;
constexpr size_t kIdOffset = 4;
constexpr size_t kTextOffset = 8;

int Answer(const char* function, int id, char* tool, int answeredId)
{
    g_record.calls.push_back(std::string(function) + " " + std::to_string(id));
    // What a failing library leaves in the buffer must not be used.
    std::memcpy(tool + kIdOffset, &answeredId, sizeof answeredId);
    if (g_record.fillsWholeRecord)
        std::memset(tool + kTextOffset, 'x', kToolSize - kTextOffset);
    else
        strcpy(tool + kTextOffset, ("   " + std::string(function) + "  " + std::to_string(answeredId) + " ").c_str());
    return g_record.fails ? 0 : 7;
}
} // namespace

#define EXPORTED extern "C" __declspec(dllexport)

#define CHOOSE(name)                                                                                                   \
    EXPORTED int ToolLib_nGet##name(int id, char* tool, int reserved)                                                  \
    {                                                                                                                  \
        return Answer("choose " #name, id + reserved, tool, id + 1000);                                                \
    }
#define CHOOSE_WITH_TWO(name)                                                                                          \
    EXPORTED int ToolLib_nGet##name(int id, char* tool)                                                                \
    {                                                                                                                  \
        return Answer("choose " #name, id, tool, id + 1000);                                                           \
    }
#define DESCRIBE(name)                                                                                                 \
    EXPORTED int ToolLib_nLoad##name(int id, char* tool)                                                               \
    {                                                                                                                  \
        return Answer("describe " #name, id, tool, id);                                                                \
    }
#define UNUSED(name)                                                                                                   \
    EXPORTED int ToolLib_##name()                                                                                      \
    {                                                                                                                  \
        g_record.calls.push_back(#name);                                                                               \
        return 0;                                                                                                      \
    }

CHOOSE(MillTool)
CHOOSE(DrillTool)
CHOOSE(LatheTool)
CHOOSE(LDrillTool)
CHOOSE(ThreadMillTool)
CHOOSE_WITH_TWO(DgtzTool)
CHOOSE_WITH_TWO(EdmTool)
DESCRIBE(MillTool)
DESCRIBE(DrillTool)
DESCRIBE(LatheTool)
DESCRIBE(LDrillTool)
DESCRIBE(ThreadMillTool)
DESCRIBE(DgtzTool)
DESCRIBE(EdmTool)
UNUSED(nGetSRMTool)
UNUSED(nGetSRMTrueMillTool)
UNUSED(nLoadSRMTool)
UNUSED(nGetPlungeRoughTool)
UNUSED(nLoadPlungeRoughTool)
UNUSED(nGetTool)
UNUSED(nLoadTool)
UNUSED(nGetMaterial)
UNUSED(nLoadMaterial)
UNUSED(nGetSRMMaterial)
UNUSED(nLoadSRMMaterial)
UNUSED(nGetSpeedFeedInfo)
UNUSED(nSetSpeedFeedInfo)
UNUSED(nGetToolMaterialName)

EXPORTED int ToolLib_nGetToolUnits()
{
    return g_record.units;
}

EXPORTED void ToolLib_nSetToolUnits(int units)
{
    g_record.units = units;
    g_record.calls.push_back("units " + std::to_string(units));
}

EXPORTED void ToolLib_vCloseRecordSets() {}

EXPORTED ToolLibRecord* RecordingToolLib_Record()
{
    return &g_record;
}
