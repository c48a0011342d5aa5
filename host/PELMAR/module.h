// The library's own instance and texts.
#pragma once

#include <string>

#include <windows.h>

namespace pelmar {

HINSTANCE Module();

/// A string resource of this library; empty where there is none.
std::wstring LoadText(UINT id);

} // namespace pelmar
