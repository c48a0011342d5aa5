// refused: invalid 'static_cast' from type 'int (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    int OnDestroy();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
