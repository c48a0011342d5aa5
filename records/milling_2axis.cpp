#include "records/milling_2axis_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(C2AxisOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, v2xOptionsCheckUnits,
                 GetLast2xOptions)

void C2AxisOptionsInfo::vOptions_Defaults()
{
    // Restoring the defaults reports plunge changes, as a fresh record does not.
    C2AxisOptionsInfo builtIn;
    builtIn.DispPlungeChanges = 1;
    pelmar::RecordFacts<C2AxisOptionsInfo>::Kind().Defaults(*this, builtIn);
}
