// refused: invalid 'static_cast' from type 'void (CPanel::*)(UINT, UINT)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnChar(UINT character, UINT repeatCount);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_CHAR()
END_MESSAGE_MAP()
