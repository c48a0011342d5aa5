// What is common to all of the library: its instance and its texts.
#pragma once

#include <afxwin.h>

namespace pelmar {

/// The library's own instance.
HINSTANCE ModuleInstance();

/// A text of the library's string table, whatever other modules of the process bear the same id. Empty where unknown.
CString LoadText(UINT id);

/// Puts the library's own resources before everybody else's while it lives.
class ModuleResources {
public:
    ModuleResources() : m_before(AfxGetResourceHandle()) { AfxSetResourceHandle(ModuleInstance()); }
    ~ModuleResources() { AfxSetResourceHandle(m_before); }
    ModuleResources(const ModuleResources&) = delete;
    ModuleResources& operator=(const ModuleResources&) = delete;

private:
    HINSTANCE m_before;
};

} // namespace pelmar
