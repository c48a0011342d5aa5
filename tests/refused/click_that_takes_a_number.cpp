// refused: invalid 'static_cast' from type 'void (CPanel::*)(int)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnClicked(int count);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_BN_CLICKED(1, &CPanel::OnClicked)
END_MESSAGE_MAP()
