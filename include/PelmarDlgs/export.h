// Marks what the DLL offers to its host.
#pragma once

#if !defined(_WIN32)
#define PELMAR_API // the pure C++ parts also build outside the DLL
#elif defined(PELMAR_IMPLEMENTATION)
#define PELMAR_API __declspec(dllexport)
#else
#define PELMAR_API __declspec(dllimport)
#endif
