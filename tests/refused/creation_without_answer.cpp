// refused: invalid 'static_cast' from type 'void (CPanel::*)(CREATESTRUCT*)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnNcCreate(CREATESTRUCT* create);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_WM_NCCREATE()
END_MESSAGE_MAP()
