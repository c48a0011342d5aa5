// The entry points.
#include "ToolLib.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <vector>

#include "choose_dialog.h"
#include "list_options.h"
#include "records.h"
#include "resource.h"
#include "speeds.h"

namespace toollib {
namespace {

Units g_units = kInch;

const Tool* Find(int kind, int id)
{
    return IsKind(kind) ? FindTool(static_cast<ToolLibKind>(kind), id, g_units) : nullptr;
}

/// A title or a row text: `format` with its %1 and %2 replaced.
std::wstring Replace(std::wstring format, const std::wstring& first, const std::wstring& second)
{
    format.replace(format.find(L"%1"), 2, first);
    return format.replace(format.find(L"%2"), 2, second);
}

/// Empty for the length that a tool does not have.
std::wstring LengthText(double length)
{
    wchar_t text[32] = L"";
    if (length > 0)
        std::swprintf(text, std::size(text), L"%g", length);
    return text;
}

/// In the order that the user has chosen; tools that are equal in it by their number in the database.
bool ComesBefore(SortBy order, const Tool& first, const Tool& second)
{
    if (order == SortBy::Diameter && first.diameter != second.diameter)
        return first.diameter < second.diameter;
    if (order == SortBy::ToolNumber && first.number != second.number)
        return first.number < second.number;
    return first.id < second.id;
}

bool IsBallMill(const Tool& tool)
{
    return tool.kind == TOOLLIB_MILL && tool.shape == Shape::Ball;
}

ChooseList ListOf(UINT titleId, const std::vector<const Tool*>& tools, int currentId)
{
    ChooseList list;
    const UINT unitsId = g_units == kInch ? IDS_INCH : IDS_MILLIMETRE;
    list.title = Replace(LoadText(IDS_TITLE_FORMAT), LoadText(titleId), LoadText(unitsId));
    list.columns = {{LoadText(IDS_COLUMN_DATABASE_NUMBER), 17},
                    {LoadText(IDS_COLUMN_DESCRIPTION), 49},
                    {LoadText(IDS_COLUMN_DIAMETER), 17},
                    {LoadText(IDS_COLUMN_TOOL_NUMBER), 17}};
    for (const Tool* tool : tools) {
        if (tool->id == currentId)
            list.selected = list.rows.size();
        list.rows.push_back(
            {{std::to_wstring(tool->id), tool->description, LengthText(tool->diameter), std::to_wstring(tool->number)},
             IsBallMill(*tool)});
    }
    // Among drills or turning tools nobody looks for ball tools.
    if (HasBallToolSwitch() && std::ranges::any_of(list.rows, &ChooseList::Row::passesFilter))
        list.filter = {LoadText(IDS_ONLY_BALL_TOOLS), OnlyBallTools(), SetOnlyBallTools};
    return list;
}

/// Lets the user choose among the tools of the current units that `belongs` accepts.
template <class Belongs> int ChooseTool(UINT titleId, int currentId, ToolLibTool* record, Belongs belongs)
{
    if (!record)
        return 0;
    std::vector<const Tool*> tools;
    for (const Tool& tool : Tools())
        if (tool.units == g_units && belongs(tool))
            tools.push_back(&tool);
    std::ranges::sort(tools, [order = SortOrder()](const Tool* first, const Tool* second) {
        return ComesBefore(order, *first, *second);
    });
    const std::optional<size_t> row = Choose(ListOf(titleId, tools, currentId));
    if (!row)
        return 0;
    Fill(*record, *tools[*row]);
    return 1;
}

int ChooseKind(int kind, int currentId, ToolLibTool* record)
{
    if (!IsKind(kind))
        return 0;
    return ChooseTool(IDS_KIND_BASE + static_cast<UINT>(kind), currentId, record,
                      [kind](const Tool& tool) { return tool.kind == kind; });
}

int LoadKind(int kind, int id, ToolLibTool* record)
{
    const Tool* const tool = Find(kind, id);
    if (!tool || !record)
        return 0;
    Fill(*record, *tool);
    return 1;
}

bool CutsWithSide(const Tool& tool)
{
    return tool.kind == TOOLLIB_MILL && (tool.shape == Shape::Flat || tool.shape == Shape::BullNose);
}

bool MillsSurfaces(const Tool& tool)
{
    return CutsWithSide(tool) || (tool.kind == TOOLLIB_MILL && tool.shape == Shape::Ball);
}

int ChooseMaterial(int group, int currentId, ToolLibMaterial* record)
{
    if (!record)
        return 0;
    ChooseList list;
    list.title = LoadText(IDS_MATERIALS_TITLE);
    list.columns = {
        {LoadText(IDS_COLUMN_ID), 15}, {LoadText(IDS_COLUMN_MATERIAL), 55}, {LoadText(IDS_COLUMN_GROUP), 30}};
    std::vector<const Material*> materials;
    for (const Material& material : Materials()) {
        if (group != 0 && material.group != group)
            continue;
        if (material.id == currentId)
            list.selected = list.rows.size();
        const UINT groupId = IDS_GROUP_BASE + static_cast<UINT>(material.group);
        list.rows.push_back({{std::to_wstring(material.id), material.name, LoadText(groupId)}});
        materials.push_back(&material);
    }
    if (materials.empty())
        return 0; // no such group
    const std::optional<size_t> row = Choose(list);
    if (!row)
        return 0;
    Fill(*record, *materials[*row]);
    return 1;
}

int LoadMaterial(int id, ToolLibMaterial* record)
{
    const Material* const material = FindMaterial(id);
    if (!material || !record)
        return 0;
    Fill(*record, *material);
    return 1;
}

bool IsRate(double value)
{
    return std::isfinite(value) && value >= 0;
}

} // namespace
} // namespace toollib

using namespace toollib;

// ---- choosing ----

int ToolLib_nGetMillTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_MILL, currentId, tool);
}

int ToolLib_nGetDrillTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_DRILL, currentId, tool);
}

int ToolLib_nGetLatheTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_LATHE, currentId, tool);
}

int ToolLib_nGetLDrillTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_LATHE_DRILL, currentId, tool);
}

int ToolLib_nGetDgtzTool(int currentId, ToolLibTool* tool)
{
    return ChooseKind(TOOLLIB_PROBE, currentId, tool);
}

int ToolLib_nGetEdmTool(int currentId, ToolLibTool* tool)
{
    return ChooseKind(TOOLLIB_EDM, currentId, tool);
}

int ToolLib_nGetThreadMillTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_THREAD_MILL, currentId, tool);
}

int ToolLib_nGetPlungeRoughTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseKind(TOOLLIB_PLUNGE_MILL, currentId, tool);
}

int ToolLib_nGetSRMTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseTool(IDS_SURFACE_MILLS, currentId, tool, MillsSurfaces);
}

int ToolLib_nGetSRMTrueMillTool(int currentId, ToolLibTool* tool, int)
{
    return ChooseTool(IDS_SURFACE_ROUGH_MILLS, currentId, tool, CutsWithSide);
}

int ToolLib_nGetTool(int kind, int currentId, ToolLibTool* tool)
{
    return ChooseKind(kind, currentId, tool);
}

// ---- describing ----

int ToolLib_nLoadMillTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_MILL, id, tool);
}

int ToolLib_nLoadDrillTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_DRILL, id, tool);
}

int ToolLib_nLoadLatheTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_LATHE, id, tool);
}

int ToolLib_nLoadLDrillTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_LATHE_DRILL, id, tool);
}

int ToolLib_nLoadDgtzTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_PROBE, id, tool);
}

int ToolLib_nLoadEdmTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_EDM, id, tool);
}

int ToolLib_nLoadThreadMillTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_THREAD_MILL, id, tool);
}

int ToolLib_nLoadPlungeRoughTool(int id, ToolLibTool* tool)
{
    return LoadKind(TOOLLIB_PLUNGE_MILL, id, tool);
}

int ToolLib_nLoadSRMTool(int id, ToolLibTool* tool)
{
    const Tool* const found = Find(TOOLLIB_MILL, id);
    return found && MillsSurfaces(*found) ? LoadKind(TOOLLIB_MILL, id, tool) : 0;
}

int ToolLib_nLoadTool(int kind, int id, ToolLibTool* tool)
{
    return LoadKind(kind, id, tool);
}

int ToolLib_nGetToolMaterialName(int kind, int id, char* name, int size)
{
    const Tool* const tool = Find(kind, id);
    if (!tool || !name || size <= 0)
        return 0;
    const size_t length = std::min(std::strlen(tool->material), static_cast<size_t>(size) - 1);
    std::memcpy(name, tool->material, length);
    name[length] = '\0';
    return 1;
}

// ---- stock materials ----

int ToolLib_nGetMaterial(int group, int currentId, ToolLibMaterial* material)
{
    return ChooseMaterial(group, currentId, material);
}

int ToolLib_nLoadMaterial(int id, ToolLibMaterial* material)
{
    return LoadMaterial(id, material);
}

int ToolLib_nGetSRMMaterial(int group, int currentId, ToolLibMaterial* material)
{
    return ChooseMaterial(group, currentId, material);
}

int ToolLib_nLoadSRMMaterial(int id, ToolLibMaterial* material)
{
    return LoadMaterial(id, material);
}

// ---- speeds and feeds ----

int ToolLib_nGetSpeedFeedInfo(int kind, int id, ToolLibSpeedFeed* info)
{
    const Tool* const tool = Find(kind, id);
    const ToolLibSpeedFeed* const set = tool ? SpeedFeedOf(*tool) : nullptr;
    if (!set || !info)
        return 0;
    *info = *set;
    return 1;
}

int ToolLib_nSetSpeedFeedInfo(int kind, int id, const ToolLibSpeedFeed* info)
{
    const Tool* const tool = Find(kind, id);
    if (!tool || !info || !IsRate(info->spindleSpeed) || !IsRate(info->feed) || !IsRate(info->plungeFeed))
        return 0;
    SetSpeedFeedOf(*tool, *info);
    return 1;
}

// ---- state ----

int ToolLib_nGetToolUnits()
{
    return g_units;
}

int ToolLib_nSetToolUnits(int units)
{
    if (units != kInch && units != kMillimetre)
        return 0;
    g_units = static_cast<Units>(units);
    return 1;
}

void ToolLib_vCloseRecordSets()
{
    ForgetSpeedFeeds();
}
