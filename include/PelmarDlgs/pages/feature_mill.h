// What the pages of face, chamfer, round, groove and slot milling share.
#pragma once

#include "PelmarDlgs/pages/record_page.h"

namespace pelmar {

/// A page of the defaults of one kind of feature milling. Choosing from its lists does not mark it modified.
class PELMAR_API CFeatureMillPage : public CRecordPage {
protected:
    using CRecordPage::CRecordPage;

    void OnDefButton();
    DECLARE_MESSAGE_MAP()
};

/// A page of an operation that cuts its depth in rough and finish passes: face, chamfer and round milling.
class PELMAR_API CRoughFinishMillPage : public CFeatureMillPage {
protected:
    using CFeatureMillPage::CFeatureMillPage;

    void OnSelchangeDefCuttingDir();
    void OnSelchangeDefRdocType();
    void OnSelchangeDefFdocType();
    void OnKillfocusDefStockLeave();
    void OnKillfocusDefMaxRoughDoc();
    void OnKillfocusDefFinishDoc();
    void OnKillfocusDefRapidPlane();
    DECLARE_MESSAGE_MAP()
};

} // namespace pelmar
