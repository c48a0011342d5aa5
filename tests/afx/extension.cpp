// A small extension DLL, as the tests load it: it joins the resource chain when asked to, and leaves with its unload.
#include <afxdllx.h>

namespace {
AFX_EXTENSION_MODULE g_module;
}

extern "C" {
__declspec(dllexport) CDynLinkLibrary* Join();
__declspec(dllexport) AFX_EXTENSION_MODULE* ModuleState();
BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*);
}

CDynLinkLibrary* Join()
{
    return new CDynLinkLibrary(g_module);
}

AFX_EXTENSION_MODULE* ModuleState()
{
    return &g_module;
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        return AfxInitExtensionModule(g_module, instance);
    if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(g_module);
    return TRUE;
}
