// What the pages of groove and slot milling share: all but the record and the template.
#pragma once

#include "PelmarDlgs/pages/feature_mill.h"

namespace pelmar {

/// A page of the defaults of groove or slot milling. The type of the plunge clearance has no control on it.
class PELMAR_API CGrooveSlotPage : public CFeatureMillPage {
protected:
    using CFeatureMillPage::CFeatureMillPage;

    void OnSelchangeDefGrooveDepthTypeCombo();
    void OnSelchangeDefGrooveGeomTypeCombo();
    void OnSelchangeDefCuttingDirCombo();
    void OnSelchangeDefRdocTypeCombo();
    void OnKillfocusDefRapidPlaneEdit();
    void OnKillfocusDefPlungeClearEdit();
    void OnKillfocusDefStockLeaveEdit();
    void OnKillfocusDefMaxRoughDocEdit();
    void OnKillfocusDefRampAngleEdit();
    DECLARE_MESSAGE_MAP()
};

} // namespace pelmar
