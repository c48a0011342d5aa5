// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnClose();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_CLOSE()
END_MESSAGE_MAP()
