// accepted
// The handlers whose likes are refused, as they must be, those of a base and of a class template included.
#include <afxdlgs.h>

class CPanel : public CDialog {
protected:
    void OnAny();
    LRESULT OnTold(WPARAM wParam, LPARAM lParam);
    void OnChar(UINT character, UINT repeatCount, UINT flags);
    void OnClose();
    void OnDestroy();
    void OnSize(UINT type, int width, int height);
    BOOL OnNcCreate(CREATESTRUCT* create);
    BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CDialog)
    ON_COMMAND(1, &CPanel::OnAny)
    ON_CONTROL(EN_VSCROLL, 1, &CPanel::OnAny)
    ON_BN_CLICKED(1, &CPanel::OnAny)
    ON_CBN_SELCHANGE(1, &CPanel::OnAny)
    ON_EN_CHANGE(1, &CPanel::OnAny)
    ON_EN_KILLFOCUS(1, &CPanel::OnAny)
    ON_LBN_DBLCLK(1, &CPanel::OnAny)
    ON_MESSAGE(WM_APP, &CPanel::OnTold)
    ON_WM_CHAR()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_NCCREATE()
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

class CDerivedPanel : public CPanel {
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedPanel, CPanel)
    ON_COMMAND(2, &CDerivedPanel::OnAny)
    ON_MESSAGE(WM_APP + 1, &CDerivedPanel::OnTold)
END_MESSAGE_MAP()

template <class Base> class CNotingPanel : public Base {
    void OnNoted();
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(CNotingPanel, Base, Base)
    ON_COMMAND(3, &CNotingPanel::OnNoted)
END_MESSAGE_MAP()

template class CNotingPanel<CPanel>;
