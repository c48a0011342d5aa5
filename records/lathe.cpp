#include "records/lathe_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CLatheOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, vLatheOptionsCheckUnits,
                 GetLastLatheOptions)
IMPLEMENT_RECORD_DEFAULTS(CLatheOptionsInfo, vOptions_Defaults)
