#include "records/groove_mill_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CGrooveMillDefsInfo, Defaults, vGrooveMillDefs_Save, vGrooveMillDefs_Restore, GrooveMillDefsCheckUnits,
                 GetLastGrooveMillDefsInfo)
IMPLEMENT_RECORD_DEFAULTS(CGrooveMillDefsInfo, Defaults)
