// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)(void*)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnHelpInfo(void* info);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()
