// refused: invalid 'static_cast' from type 'void (CPanel::*)(NMHDR*)
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnNotice(NMHDR* header);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_NOTIFY(NM_CLICK, 1, &CPanel::OnNotice)
END_MESSAGE_MAP()
