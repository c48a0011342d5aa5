// refused: invalid 'static_cast' from type 'LRESULT (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    LRESULT OnScrolled();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_CONTROL(EN_VSCROLL, 1, &CPanel::OnScrolled)
END_MESSAGE_MAP()
