// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnDoubleClicked();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_LBN_DBLCLK(1, &CPanel::OnDoubleClicked)
END_MESSAGE_MAP()
