// accepted
#include <afxdlgs.h>

#include <afxdllx.h>

CDynLinkLibrary* Join(AFX_EXTENSION_MODULE& state, void* place)
{
    return place ? new (place) CDynLinkLibrary(state) : new CDynLinkLibrary(state);
}
