// The system's headers, which the framework brings to its users, and how the framework's classes and those of extension
// DLLs are exported.
#pragma once

// The definitions above which <windows.h> is read would else depend on who came first.
#ifdef _WINDOWS_
#error WINDOWS.H already included.  MFC apps must not #include <windows.h>
#endif

#include <windows.h>

#include <tchar.h>

#ifdef AFX_IMPLEMENTATION
#define AFX_CLASS __declspec(dllexport)
#else
#define AFX_CLASS __declspec(dllimport)
#endif

// For the public classes of an extension DLL.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
