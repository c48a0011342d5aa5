// Face milling.
#pragma once

#include "PelmarDlgs/pages/feature_mill.h"
#include "PelmarDlgs/records/face_mill.h"

/// The page of the face-milling defaults. High-speed machining and the retract threshold are hidden on it, and kept.
class PELMAR_API CDefsFMPage : public pelmar::CRoughFinishMillPage {
    DECLARE_DYNCREATE(CDefsFMPage)
public:
    enum { IDD = 4139 };

    CDefsFMPage();

protected:
    void OnSelchangeDefFacingMethod();
    void OnSelchangeDefStepoverType();
    void OnSelchangeDefSideclearType();
    void OnSelchangeDefFbType();
    void OnKillfocusDefCutAngle();
    void OnKillfocusDefAmountRemove();
    void OnKillfocusDefMaxSideStep();
    void OnKillfocusDefSideClear();
    void OnKillfocusDefFb();
    void OnKillfocusDefNoFinishPass();
    DECLARE_MESSAGE_MAP()
};
