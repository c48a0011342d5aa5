#include "PelmarDlgs/pages/feature_mill.h"

#include "pages/chamfer_mill_controls.h"

namespace pelmar {

namespace {
/// Any such page's: what is handled here, all of them hold.
using FeatureMillTable = ChamferMillTable;
} // namespace

// ---- all of them ----

BEGIN_MESSAGE_MAP(CFeatureMillPage, CRecordPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CFeatureMillPage::OnDefButton)
END_MESSAGE_MAP()

void CFeatureMillPage::OnDefButton()
{
    RestoreDefaults();
}

// ---- those with rough and finish passes ----

BEGIN_MESSAGE_MAP(CRoughFinishMillPage, CFeatureMillPage)
    ON_CBN_SELCHANGE(IDC_FEATURE_CUTTING_DIRECTION, &CRoughFinishMillPage::OnSelchangeDefCuttingDir)
    ON_CBN_SELCHANGE(IDC_FEATURE_ROUGH_DEPTH_TYPE, &CRoughFinishMillPage::OnSelchangeDefRdocType)
    ON_CBN_SELCHANGE(IDC_FEATURE_FINISH_DEPTH_TYPE, &CRoughFinishMillPage::OnSelchangeDefFdocType)
    ON_EN_KILLFOCUS(IDC_FEATURE_STOCK, &CRoughFinishMillPage::OnKillfocusDefStockLeave)
    ON_EN_KILLFOCUS(IDC_FEATURE_ROUGH_DEPTH, &CRoughFinishMillPage::OnKillfocusDefMaxRoughDoc)
    ON_EN_KILLFOCUS(IDC_FEATURE_FINISH_DEPTH, &CRoughFinishMillPage::OnKillfocusDefFinishDoc)
    ON_EN_KILLFOCUS(IDC_FEATURE_RAPID_PLANE, &CRoughFinishMillPage::OnKillfocusDefRapidPlane)
END_MESSAGE_MAP()

void CRoughFinishMillPage::OnSelchangeDefCuttingDir()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_CUTTING_DIRECTION));
}

void CRoughFinishMillPage::OnSelchangeDefRdocType()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_ROUGH_DEPTH_TYPE));
}

void CRoughFinishMillPage::OnSelchangeDefFdocType()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_FINISH_DEPTH_TYPE));
}

void CRoughFinishMillPage::OnKillfocusDefStockLeave()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_STOCK));
}

void CRoughFinishMillPage::OnKillfocusDefMaxRoughDoc()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_ROUGH_DEPTH));
}

void CRoughFinishMillPage::OnKillfocusDefFinishDoc()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_FINISH_DEPTH));
}

void CRoughFinishMillPage::OnKillfocusDefRapidPlane()
{
    Handle(At<FeatureMillTable>(IDC_FEATURE_RAPID_PLANE));
}

} // namespace pelmar
