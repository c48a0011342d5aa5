#include "records/milling_5axis_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(C5AxisOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, v5xOptionsCheckUnits,
                 GetLast5xOptions)
IMPLEMENT_RECORD_DEFAULTS(C5AxisOptionsInfo, vOptions_Defaults)
