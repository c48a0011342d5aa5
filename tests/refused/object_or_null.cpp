// refused: no matching function for call to 'CDynLinkLibrary::operator new
#include <afxdlgs.h>

#include <new>

#include <afxdllx.h>

CDynLinkLibrary* Join(AFX_EXTENSION_MODULE& state)
{
    return new (std::nothrow) CDynLinkLibrary(state);
}
