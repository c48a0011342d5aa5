// The tool library: the host's tools and stock materials, and the dialogs in which the user chooses among them.
//
// A plain DLL interface, resolved by name or linked. All functions are for the user-interface thread. Unless they
// say otherwise they return 1 on success and 0 on failure; a null buffer, an unknown id or an unknown kind is a
// failure, and a failure leaves the buffer as it was.
//
// Tool ids are unique within a kind and a unit system: the same id may name an inch and a millimetre tool. A lookup
// by id prefers the tool of the library's current units.
#pragma once

#include <cstdint>

#ifdef TOOLLIB_IMPLEMENTATION
#define TOOLLIB_API extern "C" __declspec(dllexport)
#else
#define TOOLLIB_API extern "C" __declspec(dllimport)
#endif

enum ToolLibKind : std::int32_t {
    TOOLLIB_MILL = 1,        ///< end, ball, bull-nose, face, chamfer and corner-rounding mills
    TOOLLIB_DRILL = 2,       ///< axial tools of milling machines
    TOOLLIB_LATHE = 3,       ///< turning and threading tools
    TOOLLIB_LATHE_DRILL = 4, ///< axial tools of lathes
    TOOLLIB_PROBE = 5,
    TOOLLIB_EDM = 6, ///< wires
    TOOLLIB_THREAD_MILL = 7,
    TOOLLIB_PLUNGE_MILL = 8, ///< mills for plunge roughing
};

/// A tool. Lengths are in the tool's own units; those that a kind does not have are 0.
struct ToolLibTool {
    std::int32_t kind; ///< a ToolLibKind
    std::int32_t id;
    /// Terminated text in the ANSI code page: the Russian description, or the tool's Latin designation where the
    /// code page has no Cyrillic letters.
    char description[256];
    std::int32_t units; ///< 0 inch, 1 millimetre
    std::int32_t teeth;
    double diameter;
    double cornerRadius; ///< of a mill's corner, or of a lathe tool's nose
    double gaugeLength;
    char reserved[1288]; ///< zero
};
static_assert(sizeof(ToolLibTool) == 1584);

/// A stock material.
struct ToolLibMaterial {
    std::int32_t id;
    std::int32_t group; ///< 1 steel, 2 cast iron, 3 non-ferrous metal, 4 plastic
    char name[256];     ///< as a tool's description
};

/// What the user last set for a tool.
struct ToolLibSpeedFeed {
    double spindleSpeed; ///< revolutions per minute
    double feed;         ///< length per minute, in the tool's units
    double plungeFeed;   ///< length per minute, in the tool's units
};

// ---- choosing: a modal list of the tools of the library's current units, with `currentId` selected. 1 when the user
// chose a tool, which is then in `tool`; 0 when the user cancelled. `reserved` is ignored; pass 0.
//
// Where the host has loaded PelmarDlgs.dll, tools are listed in the order that PelmarUI_nGetToolListSortBy tells, and a
// list with ball mills has a box that shows these only. The box shows PelmarUI_nGetEnableOnlyBallTool and tells every
// click to PelmarUI_nSetEnableOnlyBallTool. Without it tools are listed by diameter, and there is no box. ----

TOOLLIB_API int ToolLib_nGetMillTool(int currentId, ToolLibTool* tool, int reserved);
TOOLLIB_API int ToolLib_nGetDrillTool(int currentId, ToolLibTool* tool, int reserved);
TOOLLIB_API int ToolLib_nGetLatheTool(int currentId, ToolLibTool* tool, int reserved);
TOOLLIB_API int ToolLib_nGetLDrillTool(int currentId, ToolLibTool* tool, int reserved);
TOOLLIB_API int ToolLib_nGetDgtzTool(int currentId, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nGetEdmTool(int currentId, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nGetThreadMillTool(int currentId, ToolLibTool* tool, int reserved);
TOOLLIB_API int ToolLib_nGetPlungeRoughTool(int currentId, ToolLibTool* tool, int reserved);
/// Surface milling: the mills with a flat, ball or bull-nose end.
TOOLLIB_API int ToolLib_nGetSRMTool(int currentId, ToolLibTool* tool, int reserved);
/// Surface roughing with the side of the tool: the mills with a flat or bull-nose end.
TOOLLIB_API int ToolLib_nGetSRMTrueMillTool(int currentId, ToolLibTool* tool, int reserved);
/// Any one kind.
TOOLLIB_API int ToolLib_nGetTool(int kind, int currentId, ToolLibTool* tool);

// ---- describing a tool by its id ----

TOOLLIB_API int ToolLib_nLoadMillTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadDrillTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadLatheTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadLDrillTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadDgtzTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadEdmTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadThreadMillTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadPlungeRoughTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadSRMTool(int id, ToolLibTool* tool);
TOOLLIB_API int ToolLib_nLoadTool(int kind, int id, ToolLibTool* tool);
/// Code of what the tool is made of ("HSS", "HC"), cut off where it does not fit `size` characters, always
/// terminated.
TOOLLIB_API int ToolLib_nGetToolMaterialName(int kind, int id, char* name, int size);

// ---- stock materials; `group` 0 lists all ----

TOOLLIB_API int ToolLib_nGetMaterial(int group, int currentId, ToolLibMaterial* material);
TOOLLIB_API int ToolLib_nLoadMaterial(int id, ToolLibMaterial* material);
/// Surface milling takes its materials from the same list.
TOOLLIB_API int ToolLib_nGetSRMMaterial(int group, int currentId, ToolLibMaterial* material);
TOOLLIB_API int ToolLib_nLoadSRMMaterial(int id, ToolLibMaterial* material);

// ---- speeds and feeds, kept per tool until the record sets are closed ----

/// 0 as well while nothing has been set for the tool.
TOOLLIB_API int ToolLib_nGetSpeedFeedInfo(int kind, int id, ToolLibSpeedFeed* info);
/// Refuses values that are negative or no numbers.
TOOLLIB_API int ToolLib_nSetSpeedFeedInfo(int kind, int id, const ToolLibSpeedFeed* info);

// ---- state ----

/// 0 inch (at first), 1 millimetre.
TOOLLIB_API int ToolLib_nGetToolUnits();
/// Sets the units of the lists shown from now on.
TOOLLIB_API int ToolLib_nSetToolUnits(int units);
/// Forgets the speeds and feeds that were set. The library can be used on afterwards.
TOOLLIB_API void ToolLib_vCloseRecordSets();
