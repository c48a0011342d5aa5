#include "PelmarDlgs/pages/slot_mill.h"

#include "pages/page_binding.h"
#include "pages/slot_mill_controls.h"

using namespace pelmar;

static_assert(int{CDefsSlotMillPage::IDD} == IDD_SLOT_MILL);

IMPLEMENT_DYNCREATE(CDefsSlotMillPage, CExpRegenPropertyPage)

CDefsSlotMillPage::CDefsSlotMillPage() : CGrooveSlotPage(IDD, new BindingOf<CSlotMillDefsInfo>(kSlotMillPage)) {}
