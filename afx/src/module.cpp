// The framework's module, the extension DLLs that joined it, and the resource chain that they form.
#include <afxdllx.h>

#include "state.h"

namespace {
AfxState g_state;
CDynLinkLibrary* g_firstLibrary = nullptr;

bool Holds(HINSTANCE module, LPCTSTR name, LPCTSTR type)
{
    return FindResource(module, name, type) != nullptr;
}

/// String resources live in bundles of sixteen, and a bundle that exists may lack the one asked for.
bool LoadFrom(HINSTANCE module, UINT id, std::wstring& text)
{
    const wchar_t* resource = nullptr;
    const int length = LoadStringW(module, id, reinterpret_cast<LPWSTR>(&resource), 0);
    if (length <= 0)
        return false;
    text.assign(resource, static_cast<size_t>(length));
    return true;
}

/// Walks the resource chain until `visit` says that it is done.
template <class Visit> bool WalkChain(Visit visit)
{
    const HINSTANCE current = AfxGetResourceHandle();
    if (visit(current))
        return true;
    const HINSTANCE application = AfxGetInstanceHandle();
    if (application != current && visit(application))
        return true;
    for (const CDynLinkLibrary* library = g_firstLibrary; library; library = library->m_pNextDLL)
        if (visit(library->m_hModule))
            return true;
    return visit(g_state.self);
}
} // namespace

AfxState& AfxGetState()
{
    return g_state;
}

HINSTANCE AfxGetInstanceHandle()
{
    return GetModuleHandle(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    return g_state.resources ? g_state.resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE module)
{
    g_state.resources = module;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type)
{
    HINSTANCE found = AfxGetResourceHandle();
    WalkChain([&](HINSTANCE module) {
        if (!Holds(module, name, type))
            return false;
        found = module;
        return true;
    });
    return found;
}

bool AfxLoadText(UINT id, std::wstring& text)
{
    text.clear();
    return WalkChain([&](HINSTANCE module) { return LoadFrom(module, id, text); });
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (state.bInitialized)
        return TRUE;
    wchar_t path[MAX_PATH];
    if (!module || !GetModuleFileName(module, path, MAX_PATH))
        return FALSE;
    state.hModule = module;
    state.bInitialized = TRUE;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state)
{
    for (CDynLinkLibrary* library = g_firstLibrary; library;) {
        CDynLinkLibrary* const next = library->m_pNextDLL;
        if (library->m_hModule == state.hModule)
            delete library;
        library = next;
    }
    if (g_state.resources == state.hModule)
        g_state.resources = nullptr;
    state.bInitialized = FALSE;
}

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state) : m_hModule(state.hModule), m_pNextDLL(g_firstLibrary)
{
    g_firstLibrary = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary** link = &g_firstLibrary;
    while (*link && *link != this)
        link = &(*link)->m_pNextDLL;
    if (*link)
        *link = m_pNextDLL;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        g_state.self = instance;
    return TRUE;
}
