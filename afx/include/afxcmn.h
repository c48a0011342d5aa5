// The common controls in use.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

/// A tab control.
class AFX_CLASS CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    int GetItemCount() const;
    int GetCurSel() const;
    BOOL GetItem(int index, TCITEMW* item) const;
    BOOL SetItem(int index, const TCITEMW* item);
};
