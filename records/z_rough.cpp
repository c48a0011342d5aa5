#include "records/z_rough_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CZRoughOptionsInfo, vOptions_Default, vOptions_Save, vOptions_Restore, vZRoughOptionsCheckUnits,
                 GetLastZRoughOptions)
IMPLEMENT_RECORD_DEFAULTS(CZRoughOptionsInfo, vOptions_Default)
