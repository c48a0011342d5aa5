// refused: WINDOWS.H already included. MFC apps must not #include <windows.h>
#include <windows.h>

#include <afx.h>
