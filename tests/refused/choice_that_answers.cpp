// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnChosen();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_CBN_SELCHANGE(1, &CPanel::OnChosen)
END_MESSAGE_MAP()
