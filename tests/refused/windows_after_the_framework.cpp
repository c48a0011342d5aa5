// accepted
#include <afxdlgs.h>

#include <windows.h>
