#include "PelmarDlgs/pages/groove_slot.h"

#include "pages/groove_mill_controls.h"

namespace pelmar {

namespace {
/// Either page's: what is handled here, both hold.
using GrooveSlotTable = GrooveMillTable;
} // namespace

BEGIN_MESSAGE_MAP(CGrooveSlotPage, CFeatureMillPage)
    ON_CBN_SELCHANGE(IDC_GROOVE_SLOT_DEPTH_TYPE, &CGrooveSlotPage::OnSelchangeDefGrooveDepthTypeCombo)
    ON_CBN_SELCHANGE(IDC_GROOVE_SLOT_GEOMETRY, &CGrooveSlotPage::OnSelchangeDefGrooveGeomTypeCombo)
    ON_CBN_SELCHANGE(IDC_FEATURE_CUTTING_DIRECTION, &CGrooveSlotPage::OnSelchangeDefCuttingDirCombo)
    ON_CBN_SELCHANGE(IDC_FEATURE_ROUGH_DEPTH_TYPE, &CGrooveSlotPage::OnSelchangeDefRdocTypeCombo)
    ON_EN_KILLFOCUS(IDC_FEATURE_RAPID_PLANE, &CGrooveSlotPage::OnKillfocusDefRapidPlaneEdit)
    ON_EN_KILLFOCUS(IDC_GROOVE_SLOT_PLUNGE_CLEARANCE, &CGrooveSlotPage::OnKillfocusDefPlungeClearEdit)
    ON_EN_KILLFOCUS(IDC_FEATURE_STOCK, &CGrooveSlotPage::OnKillfocusDefStockLeaveEdit)
    ON_EN_KILLFOCUS(IDC_FEATURE_ROUGH_DEPTH, &CGrooveSlotPage::OnKillfocusDefMaxRoughDocEdit)
    ON_EN_KILLFOCUS(IDC_GROOVE_SLOT_RAMP_ANGLE, &CGrooveSlotPage::OnKillfocusDefRampAngleEdit)
END_MESSAGE_MAP()

void CGrooveSlotPage::OnSelchangeDefGrooveDepthTypeCombo()
{
    Handle(At<GrooveSlotTable>(IDC_GROOVE_SLOT_DEPTH_TYPE));
}

void CGrooveSlotPage::OnSelchangeDefGrooveGeomTypeCombo()
{
    Handle(At<GrooveSlotTable>(IDC_GROOVE_SLOT_GEOMETRY));
}

void CGrooveSlotPage::OnSelchangeDefCuttingDirCombo()
{
    Handle(At<GrooveSlotTable>(IDC_FEATURE_CUTTING_DIRECTION));
}

void CGrooveSlotPage::OnSelchangeDefRdocTypeCombo()
{
    Handle(At<GrooveSlotTable>(IDC_FEATURE_ROUGH_DEPTH_TYPE));
}

void CGrooveSlotPage::OnKillfocusDefRapidPlaneEdit()
{
    Handle(At<GrooveSlotTable>(IDC_FEATURE_RAPID_PLANE));
}

void CGrooveSlotPage::OnKillfocusDefPlungeClearEdit()
{
    Handle(At<GrooveSlotTable>(IDC_GROOVE_SLOT_PLUNGE_CLEARANCE));
}

void CGrooveSlotPage::OnKillfocusDefStockLeaveEdit()
{
    Handle(At<GrooveSlotTable>(IDC_FEATURE_STOCK));
}

void CGrooveSlotPage::OnKillfocusDefMaxRoughDocEdit()
{
    Handle(At<GrooveSlotTable>(IDC_FEATURE_ROUGH_DEPTH));
}

void CGrooveSlotPage::OnKillfocusDefRampAngleEdit()
{
    Handle(At<GrooveSlotTable>(IDC_GROOVE_SLOT_RAMP_ANGLE));
}

} // namespace pelmar
