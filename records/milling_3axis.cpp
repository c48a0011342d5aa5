#include "records/milling_3axis_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(C3AxisOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, v3xOptionsCheckUnits,
                 GetLast3xOptions)
IMPLEMENT_RECORD_DEFAULTS(C3AxisOptionsInfo, vOptions_Defaults)
