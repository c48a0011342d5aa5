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
    void OnAnyOf(UINT id);
    BOOL OnOneOrOn(UINT id);
    void OnNotice(NMHDR* header, LRESULT* result);
    void OnAnyNotice(UINT id, NMHDR* header, LRESULT* result);
    BOOL OnNoticeOrOn(UINT id, NMHDR* header, LRESULT* result);
    void OnTimer(UINT_PTR id);
    void OnGetMinMaxInfo(MINMAXINFO* limits);
    void OnContextMenu(CWnd* window, CPoint point);
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
    ON_COMMAND_RANGE(1, 2, &CPanel::OnAnyOf)
    ON_CONTROL_RANGE(EN_CHANGE, 1, 2, &CPanel::OnAnyOf)
    ON_COMMAND_EX(1, &CPanel::OnOneOrOn)
    ON_NOTIFY(NM_CLICK, 1, &CPanel::OnNotice)
    ON_NOTIFY_RANGE(NM_CLICK, 1, 2, &CPanel::OnAnyNotice)
    ON_NOTIFY_EX(NM_CLICK, 1, &CPanel::OnNoticeOrOn)
    ON_NOTIFY_EX_RANGE(NM_CLICK, 1, 2, &CPanel::OnNoticeOrOn)
    ON_WM_TIMER()
    ON_WM_GETMINMAXINFO()
    ON_WM_CONTEXTMENU()
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
