#include "PelmarDlgs/pages/z_rough.h"

#include "pages/page_binding.h"
#include "pages/z_rough_controls.h"

using namespace pelmar;

static_assert(int{CDefsZRoughPage::IDD} == IDD_ZR);

IMPLEMENT_DYNCREATE(CDefsZRoughPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsZRoughPage, pelmar::CPocketPage)
    ON_CBN_SELCHANGE(IDC_ZR_DEPTH_ROUGH_STEP_TYPE, &CDefsZRoughPage::OnSelDepthStepSize)
    ON_BN_CLICKED(IDC_ZR_CUTTER_COMP_TOP, &CDefsZRoughPage::OnSelCutterCompTop)
    ON_BN_CLICKED(IDC_ZR_DEPTH_FIRST, &CDefsZRoughPage::OnSelDepthFirst)
    ON_BN_CLICKED(IDC_ZR_PLUNGE_WARNINGS, &CDefsZRoughPage::OnSelPlungeWarnings)
    ON_CBN_SELCHANGE(IDC_ZR_SIDE_CLEARANCE_TYPE, &CDefsZRoughPage::OnSelSideClearType)
    ON_BN_CLICKED(IDC_ZR_ISLAND_PLUNGES, &CDefsZRoughPage::OnSelIslandPlunges)
    ON_BN_CLICKED(IDC_ZR_GOUGE_CHECK, &CDefsZRoughPage::OnSelGougeCheck)
    ON_BN_CLICKED(IDC_ZR_ALIGN_PLUNGES, &CDefsZRoughPage::OnSelAlignPlunges)
    ON_EN_CHANGE(IDC_POCKET_CORNER_ANGLE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_POCKET_CORNER_CLEARANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_POCKET_SIDE_STEP, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_DEPTH_ROUGH_STEP, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_ZR_SIDE_CLEARANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_CHANGE(IDC_POCKET_LEAD_ANGLE_TOLERANCE, &CDefsZRoughPage::OnChangeZROptions)
    ON_EN_KILLFOCUS(IDC_POCKET_SIDE_STEP, &CDefsZRoughPage::OnKillFSideRoughStep)
    ON_EN_KILLFOCUS(IDC_ZR_DEPTH_ROUGH_STEP, &CDefsZRoughPage::OnKillFDepthRoughStep)
    ON_EN_KILLFOCUS(IDC_ZR_SIDE_CLEARANCE, &CDefsZRoughPage::OnKillFSideClearance)
END_MESSAGE_MAP()

CDefsZRoughPage::CDefsZRoughPage() : CPocketPage(IDD, new BindingOf<CZRoughOptionsInfo>(kZRoughPage)) {}

void CDefsZRoughPage::OnChangeZROptions()
{
    SetModified();
}

void CDefsZRoughPage::OnKillFSideRoughStep()
{
    Handle(At<ZRoughTable>(IDC_POCKET_SIDE_STEP));
}

void CDefsZRoughPage::OnKillFDepthRoughStep()
{
    Handle(At<ZRoughTable>(IDC_ZR_DEPTH_ROUGH_STEP));
}

void CDefsZRoughPage::OnKillFSideClearance()
{
    Handle(At<ZRoughTable>(IDC_ZR_SIDE_CLEARANCE));
}

void CDefsZRoughPage::OnSelDepthStepSize()
{
    Handle(At<ZRoughTable>(IDC_ZR_DEPTH_ROUGH_STEP_TYPE));
}

void CDefsZRoughPage::OnSelCutterCompTop()
{
    Handle(At<ZRoughTable>(IDC_ZR_CUTTER_COMP_TOP));
}

void CDefsZRoughPage::OnSelDepthFirst()
{
    Handle(At<ZRoughTable>(IDC_ZR_DEPTH_FIRST));
}

void CDefsZRoughPage::OnSelPlungeWarnings()
{
    Handle(At<ZRoughTable>(IDC_ZR_PLUNGE_WARNINGS));
}

void CDefsZRoughPage::OnSelSideClearType()
{
    Handle(At<ZRoughTable>(IDC_ZR_SIDE_CLEARANCE_TYPE));
}

void CDefsZRoughPage::OnSelIslandPlunges()
{
    Handle(At<ZRoughTable>(IDC_ZR_ISLAND_PLUNGES));
}

void CDefsZRoughPage::OnSelGougeCheck()
{
    Handle(At<ZRoughTable>(IDC_ZR_GOUGE_CHECK));
}

void CDefsZRoughPage::OnSelAlignPlunges()
{
    Handle(At<ZRoughTable>(IDC_ZR_ALIGN_PLUNGES));
}
