#include "PelmarDlgs/pages/groove_mill.h"

#include "pages/groove_mill_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

static_assert(int{CDefsGMPage::IDD} == IDD_GROOVE_MILL);

IMPLEMENT_DYNCREATE(CDefsGMPage, CExpRegenPropertyPage)

CDefsGMPage::CDefsGMPage() : CGrooveSlotPage(IDD, new BindingOf<CGrooveMillDefsInfo>(kGrooveMillPage)) {}
