// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnLeft();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_EN_KILLFOCUS(1, &CPanel::OnLeft)
END_MESSAGE_MAP()
