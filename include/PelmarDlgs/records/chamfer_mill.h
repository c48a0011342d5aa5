// Chamfer milling.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of chamfer milling, section "ChamferMill2x".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API CChamferMillDefsInfo {
public:
    double DefChamferLen = 0.01; ///< length of the chamfer, 0 or more
    int Units = 0;               ///< 0 inch, 1 millimetre
    int DefCutingDir = 2;        ///< 1 conventional, 2 climb
    double DefLeaveStockZ = 0.0; ///< stock to leave, a length, 0 or more
    int DefMaxRoughDOCType = 0;
    double DefMaxRoughDOC = 0.025; ///< rough depth of cut, 0 or more
    int DefFinishDOCType = 0;
    double DefFinishDOC = 0.0025; ///< finish depth of cut, 0 or more
    int FinishPassZ = 1;          ///< number of finish passes
    double RapidPlane = 1.0;      ///< clearance plane, a length, 0 or more

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void Defaults();
    /// Writes the record to the settings file.
    void vChamferMillDefs_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vChamferMillDefs_Restore();
    /// Converts the lengths to other units.
    void ChamferMillDefsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CChamferMillDefsInfo* GetLastChamferMillDefsInfo();
