// refused: invalid 'static_cast' from type 'void (CPanel::*)(UINT, UINT, UINT)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnSize(UINT type, UINT width, UINT height);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_SIZE()
END_MESSAGE_MAP()
