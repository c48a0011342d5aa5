#include "pages/groove_slot.h"

#include "pages/feature_mill_options.h"
#include "resources/resource.h"

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

CGrooveSlotPage::CGrooveSlotPage(int templateId, std::unique_ptr<FeatureMillOptions> options)
    : CFeatureMillPage(templateId, std::move(options))
{
}

void CGrooveSlotPage::AttachEdits()
{
    CFeatureMillPage::AttachEdits();
    // The edit class of the depth sits on the list beside it; the depth itself does not know "=".
    m_depthEdit.SubclassDlgItem(IDC_GROOVE_SLOT_DEPTH_TYPE, this);
}

void CGrooveSlotPage::OnSelchangeDefGrooveDepthTypeCombo()
{
    StoreChoice(IDC_GROOVE_SLOT_DEPTH_TYPE);
}

void CGrooveSlotPage::OnSelchangeDefGrooveGeomTypeCombo()
{
    StoreChoice(IDC_GROOVE_SLOT_GEOMETRY);
}

void CGrooveSlotPage::OnSelchangeDefCuttingDirCombo()
{
    StoreChoice(IDC_FEATURE_CUTTING_DIRECTION);
}

void CGrooveSlotPage::OnSelchangeDefRdocTypeCombo()
{
    StoreChoice(IDC_FEATURE_ROUGH_DEPTH_TYPE);
}

void CGrooveSlotPage::OnKillfocusDefRapidPlaneEdit()
{
    LeaveEdit(IDC_FEATURE_RAPID_PLANE);
}

void CGrooveSlotPage::OnKillfocusDefPlungeClearEdit()
{
    LeaveEdit(IDC_GROOVE_SLOT_PLUNGE_CLEARANCE);
}

void CGrooveSlotPage::OnKillfocusDefStockLeaveEdit()
{
    LeaveEdit(IDC_FEATURE_STOCK);
}

void CGrooveSlotPage::OnKillfocusDefMaxRoughDocEdit()
{
    LeaveEdit(IDC_FEATURE_ROUGH_DEPTH);
}

void CGrooveSlotPage::OnKillfocusDefRampAngleEdit()
{
    LeaveEdit(IDC_GROOVE_SLOT_RAMP_ANGLE);
}
