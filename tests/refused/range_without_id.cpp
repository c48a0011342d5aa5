// refused: invalid 'static_cast' from type 'void (CPanel::*)()
#include <afxdlgs.h>

class CPanel : public CDialog {
    void OnAny();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_CONTROL_RANGE(EN_CHANGE, 1, 2, &CPanel::OnAny)
END_MESSAGE_MAP()
