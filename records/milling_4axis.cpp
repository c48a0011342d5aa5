#include "records/milling_4axis_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(C4AxisOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, v4xOptionsCheckUnits,
                 GetLast4xOptions)
IMPLEMENT_RECORD_DEFAULTS(C4AxisOptionsInfo, vOptions_Defaults)
