// Round milling: fillets.
#pragma once

#include "PelmarDlgs/pages/feature_mill.h"
#include "PelmarDlgs/records/round_mill.h"

/// The page of the round-milling defaults. A choice in its list of side clearance types is shown but not taken.
class PELMAR_API CDefsRMPage : public pelmar::CRoughFinishMillPage {
    DECLARE_DYNCREATE(CDefsRMPage)
public:
    enum { IDD = 4146 };

    CDefsRMPage();

protected:
    void OnKillFSideClearance();
    void OnSelSideClearType();
    DECLARE_MESSAGE_MAP()
};
