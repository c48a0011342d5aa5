// The box that says what the program is made of.
#pragma once

#include <afxwin.h>

/// Shows the versions of the program and of the libraries that it has loaded.
void ShowAboutBox(CWnd* parent);
