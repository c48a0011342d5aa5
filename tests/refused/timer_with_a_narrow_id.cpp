// refused: invalid 'static_cast' from type 'void (CPanel::*)(UINT)
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnTimer(UINT id);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_TIMER()
END_MESSAGE_MAP()
