#include "list_options.h"

#include <windows.h>

namespace toollib {
namespace {

/// A function of the NC options' library, looked up for each use: the host may load and free that library at any time.
template <class Function> Function* NcOptionsFunction(const char* name)
{
    const HMODULE library = GetModuleHandleW(L"PelmarDlgs.dll");
    if (!library)
        return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

using GetSwitch = bool();
using SetSwitch = void(bool);

GetSwitch* BallToolSwitch()
{
    return NcOptionsFunction<GetSwitch>("PelmarUI_nGetEnableOnlyBallTool");
}

SetSwitch* BallToolSwitchSetter()
{
    return NcOptionsFunction<SetSwitch>("PelmarUI_nSetEnableOnlyBallTool");
}

} // namespace

SortBy SortOrder()
{
    auto* const sortBy = NcOptionsFunction<int()>("PelmarUI_nGetToolListSortBy");
    const int order = sortBy ? sortBy() : 0;
    const bool known = order >= static_cast<int>(SortBy::Diameter) && order <= static_cast<int>(SortBy::DatabaseNumber);
    return known ? static_cast<SortBy>(order) : SortBy::Diameter;
}

bool HasBallToolSwitch()
{
    return BallToolSwitch() && BallToolSwitchSetter();
}

bool OnlyBallTools()
{
    return HasBallToolSwitch() && BallToolSwitch()();
}

void SetOnlyBallTools(bool only)
{
    if (auto* const set = BallToolSwitchSetter())
        set(only);
}

} // namespace toollib
