#include "PelmarDlgs/pages/z_finish.h"

#include "pages/page_binding.h"
#include "pages/z_finish_controls.h"

using namespace pelmar;

static_assert(int{CDefsZFinishPage::IDD} == IDD_ZF);

IMPLEMENT_DYNCREATE(CDefsZFinishPage, CExpRegenPropertyPage)

// Of the edits only the step marks the page modified, and leaving one takes nothing: the values of the others are taken
// when the page is left.
BEGIN_MESSAGE_MAP(CDefsZFinishPage, pelmar::CRecordPage)
    ON_EN_CHANGE(IDC_ZF_DEPTH_FINISH_STEP, &CDefsZFinishPage::OnChangeOptionInfo)
    ON_CBN_SELCHANGE(IDC_ZF_DEPTH_FINISH_STEP_TYPE, &CDefsZFinishPage::OnSelDepthStepSize)
    ON_CBN_SELCHANGE(IDC_ZF_SIDE_CLEARANCE_TYPE, &CDefsZFinishPage::OnSelSideClearType)
    ON_BN_CLICKED(IDC_ZF_GOUGE_CHECK, &CDefsZFinishPage::OnSelGougeCheck)
    ON_CBN_SELCHANGE(IDC_ZF_PLUNGE_POINT, &CDefsZFinishPage::OnSelPlungeSelType)
    ON_BN_CLICKED(IDC_ZF_PLUNGE_WARNINGS, &CDefsZFinishPage::OnSelPlungeWarnings)
END_MESSAGE_MAP()

CDefsZFinishPage::CDefsZFinishPage() : CRecordPage(IDD, new BindingOf<CZFinishOptionsInfo>(kZFinishPage)) {}

void CDefsZFinishPage::OnChangeOptionInfo()
{
    SetModified();
}

void CDefsZFinishPage::OnKillFDepthFinishStep()
{
    Handle(At<ZFinishTable>(IDC_ZF_DEPTH_FINISH_STEP));
}

void CDefsZFinishPage::OnKillFSideClearance()
{
    Handle(At<ZFinishTable>(IDC_ZF_SIDE_CLEARANCE));
}

void CDefsZFinishPage::OnSelDepthStepSize()
{
    Handle(At<ZFinishTable>(IDC_ZF_DEPTH_FINISH_STEP_TYPE));
}

void CDefsZFinishPage::OnSelSideClearType()
{
    Handle(At<ZFinishTable>(IDC_ZF_SIDE_CLEARANCE_TYPE));
}

void CDefsZFinishPage::OnSelGougeCheck()
{
    Handle(At<ZFinishTable>(IDC_ZF_GOUGE_CHECK));
}

void CDefsZFinishPage::OnSelPlungeSelType()
{
    Handle(At<ZFinishTable>(IDC_ZF_PLUNGE_POINT));
}

void CDefsZFinishPage::OnSelPlungeWarnings()
{
    Handle(At<ZFinishTable>(IDC_ZF_PLUNGE_WARNINGS));
}
