// The versions of the program and of its libraries.
#pragma once

#include <afxwin.h>

/// The version that a loaded module's resource tells, "1.0.0". Empty for null, and where the resource is missing.
CString VersionOf(HMODULE module);
