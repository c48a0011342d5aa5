#include "records/round_mill_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CRoundMillDefsInfo, Defaults, vRoundMillDefs_Save, vRoundMillDefs_Restore, RoundMillDefsCheckUnits,
                 GetLastRoundMillDefsInfo)
IMPLEMENT_RECORD_DEFAULTS(CRoundMillDefsInfo, Defaults)
