// What the pages of groove and slot milling have in common: all but the record and the template.
#pragma once

#include "pages/feature_mill.h"

/// A page of the defaults of groove or slot milling. The type of the plunge clearance has no control on it.
class PELMAR_API CGrooveSlotPage : public CFeatureMillPage {
protected:
    CGrooveSlotPage(int templateId, std::unique_ptr<FeatureMillOptions> options);

    void AttachEdits() override;

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

private:
    CExpEqEdit m_depthEdit;
};
