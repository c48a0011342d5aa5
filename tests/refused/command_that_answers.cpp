// refused: invalid 'static_cast' from type 'int (CPanel::*)()'
#include <afxdlgs.h>

class CPanel : public CDialog {
    int OnCommand();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_COMMAND(1, &CPanel::OnCommand)
END_MESSAGE_MAP()
