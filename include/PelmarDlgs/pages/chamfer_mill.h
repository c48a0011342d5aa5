// Chamfer milling.
#pragma once

#include "PelmarDlgs/pages/feature_mill.h"
#include "PelmarDlgs/records/chamfer_mill.h"

/// The page of the chamfer-milling defaults.
class PELMAR_API CDefsCMPage : public pelmar::CRoughFinishMillPage {
    DECLARE_DYNCREATE(CDefsCMPage)
public:
    enum { IDD = 4156 };

    CDefsCMPage();

protected:
    void OnKillfocusDefChamferLength();
    DECLARE_MESSAGE_MAP()
};
