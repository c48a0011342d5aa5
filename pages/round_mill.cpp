#include "PelmarDlgs/pages/round_mill.h"

#include "pages/page_binding.h"
#include "pages/round_mill_controls.h"

using namespace pelmar;

static_assert(int{CDefsRMPage::IDD} == IDD_ROUND_MILL);

IMPLEMENT_DYNCREATE(CDefsRMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsRMPage, pelmar::CRoughFinishMillPage)
    ON_EN_KILLFOCUS(IDC_RM_SIDE_CLEARANCE, &CDefsRMPage::OnKillFSideClearance)
    // The list's id on the 2-axis page. Here it has another one, so that nothing that is chosen in it arrives.
    ON_CBN_SELCHANGE(IDC_2X_SIDE_CLEARANCE_TYPE, &CDefsRMPage::OnSelSideClearType)
END_MESSAGE_MAP()

CDefsRMPage::CDefsRMPage() : CRoughFinishMillPage(IDD, new BindingOf<CRoundMillDefsInfo>(kRoundMillPage)) {}

void CDefsRMPage::OnKillFSideClearance()
{
    Handle(At<RoundMillTable>(IDC_RM_SIDE_CLEARANCE));
}

void CDefsRMPage::OnSelSideClearType()
{
    Handle(At<RoundMillTable>(IDC_RM_SIDE_CLEARANCE_TYPE));
}
