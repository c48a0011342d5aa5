#include "PelmarDlgs/pages/face_mill.h"

#include "pages/face_mill_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

static_assert(int{CDefsFMPage::IDD} == IDD_FACE_MILL);

IMPLEMENT_DYNCREATE(CDefsFMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsFMPage, pelmar::CRoughFinishMillPage)
    ON_CBN_SELCHANGE(IDC_FM_FACING_METHOD, &CDefsFMPage::OnSelchangeDefFacingMethod)
    ON_CBN_SELCHANGE(IDC_FM_SIDE_STEP_TYPE, &CDefsFMPage::OnSelchangeDefStepoverType)
    ON_CBN_SELCHANGE(IDC_FM_SIDE_CLEARANCE_TYPE, &CDefsFMPage::OnSelchangeDefSideclearType)
    ON_CBN_SELCHANGE(IDC_FM_FEED_BETWEEN_TYPE, &CDefsFMPage::OnSelchangeDefFbType)
    ON_EN_KILLFOCUS(IDC_FM_CUTTING_ANGLE, &CDefsFMPage::OnKillfocusDefCutAngle)
    ON_EN_KILLFOCUS(IDC_FM_REMOVE_Z, &CDefsFMPage::OnKillfocusDefAmountRemove)
    ON_EN_KILLFOCUS(IDC_FM_SIDE_STEP, &CDefsFMPage::OnKillfocusDefMaxSideStep)
    ON_EN_KILLFOCUS(IDC_FM_SIDE_CLEARANCE, &CDefsFMPage::OnKillfocusDefSideClear)
    ON_EN_KILLFOCUS(IDC_FM_MAX_FEED_BETWEEN, &CDefsFMPage::OnKillfocusDefFb)
    ON_EN_KILLFOCUS(IDC_FEATURE_FINISH_PASSES, &CDefsFMPage::OnKillfocusDefNoFinishPass)
END_MESSAGE_MAP()

CDefsFMPage::CDefsFMPage() : CRoughFinishMillPage(IDD, new BindingOf<CFaceMillDefsInfo>(kFaceMillPage)) {}

void CDefsFMPage::OnSelchangeDefFacingMethod()
{
    Handle(At<FaceMillTable>(IDC_FM_FACING_METHOD));
}

void CDefsFMPage::OnSelchangeDefStepoverType()
{
    Handle(At<FaceMillTable>(IDC_FM_SIDE_STEP_TYPE));
}

void CDefsFMPage::OnSelchangeDefSideclearType()
{
    Handle(At<FaceMillTable>(IDC_FM_SIDE_CLEARANCE_TYPE));
}

void CDefsFMPage::OnSelchangeDefFbType()
{
    Handle(At<FaceMillTable>(IDC_FM_FEED_BETWEEN_TYPE));
}

void CDefsFMPage::OnKillfocusDefCutAngle()
{
    Handle(At<FaceMillTable>(IDC_FM_CUTTING_ANGLE));
}

void CDefsFMPage::OnKillfocusDefAmountRemove()
{
    Handle(At<FaceMillTable>(IDC_FM_REMOVE_Z));
}

void CDefsFMPage::OnKillfocusDefMaxSideStep()
{
    Handle(At<FaceMillTable>(IDC_FM_SIDE_STEP));
}

void CDefsFMPage::OnKillfocusDefSideClear()
{
    Handle(At<FaceMillTable>(IDC_FM_SIDE_CLEARANCE));
}

void CDefsFMPage::OnKillfocusDefFb()
{
    Handle(At<FaceMillTable>(IDC_FM_MAX_FEED_BETWEEN));
}

void CDefsFMPage::OnKillfocusDefNoFinishPass()
{
    Handle(At<FaceMillTable>(IDC_FEATURE_FINISH_PASSES));
}
