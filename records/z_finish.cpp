#include "records/z_finish_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CZFinishOptionsInfo, Defaults, vOptions_Save, vOptions_Restore, vZFinishOptionsCheckUnits,
                 GetLastZFinishOptions)
IMPLEMENT_RECORD_DEFAULTS(CZFinishOptionsInfo, Defaults)
