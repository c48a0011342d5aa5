#include "records/slot_mill_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CSlotMillDefsInfo, Defaults, vSlotMillDefs_Save, vSlotMillDefs_Restore, SlotMillDefsCheckUnits,
                 GetLastSlotMillDefsInfo)
IMPLEMENT_RECORD_DEFAULTS(CSlotMillDefsInfo, Defaults)
