// refused: invalid 'static_cast' from type 'LRESULT (CPanel::*)(WPARAM, LPARAM)'
#include <afxdlgs.h>

class CPanel : public CWinApp {
    LRESULT OnTold(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CWinApp)
    ON_MESSAGE(WM_APP, &CPanel::OnTold)
END_MESSAGE_MAP()
