// The library as the framework sees it: an extension DLL. It has no resources of its own and stays out of their chain.
#include <afxdllx.h>

namespace {
AFX_EXTENSION_MODULE g_module;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        return AfxInitExtensionModule(g_module, instance);
    if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(g_module);
    return TRUE;
}
