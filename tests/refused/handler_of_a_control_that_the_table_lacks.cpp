// refused: mistake::TableLacksTheControl()
#include <afxdlgs.h>

#include "pages/z_finish_controls.h"

using namespace pelmar;

constexpr ControlRow kRow = At<ZFinishTable>(IDC_2X_SORT_TYPE);
