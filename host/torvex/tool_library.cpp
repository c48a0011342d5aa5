#include "tool_library.h"

#include <PelmarDlgs.h>

using namespace pelmar;

void SetToolLibraryUnits(int units)
{
    // The NC module has loaded it, and frees it.
    const HMODULE library = GetModuleHandleA(GetSettingsLocations().toolLibraryName.c_str());
    if (!library)
        return;
    using SetUnits = int(int);
    void* const address = reinterpret_cast<void*>(GetProcAddress(library, "ToolLib_nSetToolUnits"));
    if (auto* const set = reinterpret_cast<SetUnits*>(address))
        set(units);
}
