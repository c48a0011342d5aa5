// refused: invalid 'static_cast' from type 'BOOL (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    BOOL OnChanged();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_EN_CHANGE(1, &CPanel::OnChanged)
END_MESSAGE_MAP()
