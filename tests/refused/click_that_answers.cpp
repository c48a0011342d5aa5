// refused: invalid 'static_cast' from type 'int (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    int OnClicked();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_BN_CLICKED(1, &CPanel::OnClicked)
END_MESSAGE_MAP()
