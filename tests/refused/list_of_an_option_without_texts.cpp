// refused: mistake::NothingToChooseFrom()
#include <afxdlgs.h>

#include "pages/control.h"
#include "records/z_finish_facts.h"

using namespace pelmar;

constexpr Control kControls[] = {List<&CZFinishOptionsInfo::LeadAngleTol>(1000)};
