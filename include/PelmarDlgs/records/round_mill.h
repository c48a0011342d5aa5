// Round milling: fillets.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of round milling, section "RoundMill".
///
/// The side clearance is written there too, but read from the section of the 2-axis record, "Options2x".
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API CRoundMillDefsInfo {
public:
    int Units = 0;               ///< 0 inch, 1 millimetre
    int DefCutingDir = 2;        ///< 1 conventional, 2 climb
    double DefLeaveStockZ = 0.0; ///< stock to leave, a length, 0 or more
    int DefMaxRoughDOCType = 1;
    double DefMaxRoughDOC = 0.8; ///< rough depth of cut, 0 or more
    int DefFinishDOCType = 1;
    double DefFinishDOC = 0.08; ///< finish depth of cut, 0 or more
    int FinishPassZ = 0;        ///< number of finish passes
    double SideClearance = 0.1; ///< approach to the contour
    int SideClearanceType = 1;
    double RapidPlane = 1.0; ///< clearance plane, a length, 0 or more

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void Defaults();
    /// Writes the record to the settings file.
    void vRoundMillDefs_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vRoundMillDefs_Restore();
    /// Converts the lengths to other units.
    void RoundMillDefsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CRoundMillDefsInfo* GetLastRoundMillDefsInfo();
