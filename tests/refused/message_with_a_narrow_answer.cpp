// refused: invalid 'static_cast' from type 'int (CPanel::*)(WPARAM, LPARAM)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    int OnTold(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_MESSAGE(WM_APP, &CPanel::OnTold)
END_MESSAGE_MAP()
