// refused: invalid 'static_cast' from type 'void (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnTold();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_MESSAGE(WM_APP, &CPanel::OnTold)
END_MESSAGE_MAP()
