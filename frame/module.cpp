#include "frame/module.h"

#include <afxdllx.h>

#include "PelmarDlgs/library.h"
#include "PelmarDlgs/settings_locations.h"
#include "frame/locate.h"
#include "frame/settings_journal.h"
#include "frame/tool_library.h"

namespace {
AFX_EXTENSION_MODULE g_module;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_module);
        return TRUE;
    }
    if (reason == DLL_PROCESS_ATTACH && !AfxInitExtensionModule(g_module, instance))
        return FALSE;
    pelmar::LocateHelpFile();
    return TRUE;
}

namespace pelmar {

HINSTANCE ModuleInstance()
{
    return g_module.hModule;
}

CString LoadText(UINT id)
{
    const wchar_t* resource = nullptr;
    const int length = LoadStringW(ModuleInstance(), id, reinterpret_cast<LPWSTR>(&resource), 0);
    return length > 0 ? CString(resource, length) : CString();
}

} // namespace pelmar

CDynLinkLibrary* InitPelmarDlgsDLL()
{
    try {
        return new CDynLinkLibrary(g_module);
    } catch (CMemoryException* outOfMemory) {
        outOfMemory->Delete();
        return nullptr;
    }
}

int InitializePelmarDlgsDLL()
{
    pelmar::LocateSettings();
    return pelmar::LoadToolLibrary(pelmar::GetSettingsLocations().toolLibraryName.c_str()) ? 1 : 0;
}

void FinalizePelmarDlgsDLL()
{
    pelmar::Journal().DropAll();
    pelmar::UnloadToolLibrary();
}
