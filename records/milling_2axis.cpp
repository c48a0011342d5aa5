#include "records/milling_2axis_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(C2AxisOptionsInfo, vOptions_Defaults, vOptions_Save, vOptions_Restore, v2xOptionsCheckUnits,
                 GetLast2xOptions)

void C2AxisOptionsInfo::vOptions_Defaults()
{
    using Facts = pelmar::RecordFacts<C2AxisOptionsInfo>;
    Facts::Kind().Defaults(*this, Facts::FactoryStart());
}
