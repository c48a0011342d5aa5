// refused: invalid 'static_cast' from type 'void (CPanel::*)(UINT)'
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnCommand(UINT id);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_COMMAND(1, &CPanel::OnCommand)
END_MESSAGE_MAP()
