// refused: invalid 'static_cast' from type 'LRESULT (CPanel::*)(UINT, LPARAM)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    LRESULT OnTold(UINT wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_MESSAGE(WM_APP, &CPanel::OnTold)
END_MESSAGE_MAP()
