#include "records/flat_surface_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CFlatSurfaceOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore,
                 vFlatSurfaceOptionsCheckUnits, GetLastFlatSurfaceOptions)
IMPLEMENT_RECORD_DEFAULTS(CFlatSurfaceOptionsInfo, vOptions_Defaults)
