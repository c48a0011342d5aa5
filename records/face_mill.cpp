#include "records/face_mill_facts.h"

#include "records/record_kind.h"

IMPLEMENT_RECORD(CFaceMillDefsInfo, Defaults, vFaceMillDefs_Save, vFaceMillDefs_Restore, FaceMillDefsCheckUnits,
                 GetLastFaceMillDefsInfo)

void CFaceMillDefsInfo::Defaults()
{
    // A defaults file that does not tell its units is in those of the record.
    const auto& kind = pelmar::RecordFacts<CFaceMillDefsInfo>::Kind();
    kind.Defaults(*this, CFaceMillDefsInfo(), kind.Table().UnitsOfDefaults(Units));
}
