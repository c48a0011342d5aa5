#include "records/chamfer_mill_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CChamferMillDefsInfo, Defaults, vChamferMillDefs_Save, vChamferMillDefs_Restore,
                 ChamferMillDefsCheckUnits, GetLastChamferMillDefsInfo)
IMPLEMENT_RECORD_DEFAULTS(CChamferMillDefsInfo, Defaults)
