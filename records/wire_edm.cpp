#include "records/wire_edm_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CEDMOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, vEDMOptionsCheckUnits,
                 GetLastEDMOptions)
IMPLEMENT_RECORD_DEFAULTS(CEDMOptionsInfo, vOptions_Defaults)
