// What an extension DLL needs to join its host: included by the one file that holds its entry routine.
#pragma once

#include <afxwin.h>

class CDynLinkLibrary;

/// State of one extension DLL, a static object of that DLL.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
};

/// Starts an extension DLL; call it on process attach. FALSE where `module` is no module.
AFX_CLASS BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);

/// Ends an extension DLL; call it on process detach. Deletes the CDynLinkLibrary objects that it made, and takes the
/// DLL's resources out of the chain.
AFX_CLASS void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

/// One extension DLL's place in the resource chain. Made with `new`; AfxTermExtensionModule deletes it.
class AFX_CLASS CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    CDynLinkLibrary* m_pNextDLL; ///< next in the resource chain
};
