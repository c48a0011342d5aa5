// What the pages of Z roughing and flat surfaces share.
#pragma once

#include "PelmarDlgs/pages/record_page.h"

namespace pelmar {

/// A page of the defaults of pocketing.
class PELMAR_API CPocketPage : public CRecordPage {
protected:
    using CRecordPage::CRecordPage;

    void OnKillFCornerAngle();
    void OnKillFCornerClearance();
    void OnSelCornerAngleType();
    void OnSelCornerClearType();
    void OnSelSideStepSize();
    void OnSelFeedBetweenRate();
    void OnSelMaterialCutMode();
    void OnSelPocketCutMode();
    DECLARE_MESSAGE_MAP()
};

} // namespace pelmar
