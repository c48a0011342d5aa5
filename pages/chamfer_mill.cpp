#include "PelmarDlgs/pages/chamfer_mill.h"

#include "pages/chamfer_mill_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

static_assert(int{CDefsCMPage::IDD} == IDD_CHAMFER_MILL);

IMPLEMENT_DYNCREATE(CDefsCMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsCMPage, pelmar::CRoughFinishMillPage)
    ON_EN_KILLFOCUS(IDC_CM_CHAMFER_LENGTH, &CDefsCMPage::OnKillfocusDefChamferLength)
END_MESSAGE_MAP()

CDefsCMPage::CDefsCMPage() : CRoughFinishMillPage(IDD, new BindingOf<CChamferMillDefsInfo>(kChamferMillPage)) {}

void CDefsCMPage::OnKillfocusDefChamferLength()
{
    Handle(At<ChamferMillTable>(IDC_CM_CHAMFER_LENGTH));
}
