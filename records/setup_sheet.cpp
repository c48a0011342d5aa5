#include "records/setup_sheet_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CSSheetOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, vOptions_CheckUnits,
                 GetLastSSheetOptions)
IMPLEMENT_RECORD_DEFAULTS(CSSheetOptionsInfo, vOptions_Defaults)

void vSSheetOptions_Restore()
{
    GetLastSSheetOptions()->vOptions_Restore();
}

void vSSheetOptions_Save()
{
    GetLastSSheetOptions()->vOptions_Save();
}
