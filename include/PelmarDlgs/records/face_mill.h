// Face milling.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of face milling, section "FaceMill2x".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API CFaceMillDefsInfo {
public:
    int Units = 0;            ///< 0 inch, 1 millimetre
    int DefFacingMethod = 1;  ///< 0 one-way rows, 1 zigzag, 2 spiral
    int DefCutingDir = 2;     ///< 1 conventional, 2 climb
    double FacingAngle = 0.0; ///< of the cutting passes, degrees; key "Facing Angle"
    int DefClearEvery = 1;    ///< 1 clears on every pass
    int DefKeepToolDown = 1;  ///< 1 stays on one level of Z
    int DefEnableHSM = 0;     ///< 1 for high-speed machining
    int DefMaxSideStepType = 1;
    double DefMaxSideStep = 0.8; ///< step-over, 0.0001 or more
    double DefRemoveZ = 0.0;     ///< layer to remove, a length, 0 or more
    double DefLeaveStockZ = 0.0; ///< stock to leave, a length
    int DefSideClearanceType = 0;
    double DefSideClearance = 0.1; ///< approach to the contour, 0.0001 or more
    int DefMaxRoughDOCType = 1;
    double DefMaxRoughDOC = 0.8; ///< rough depth of cut, 0 or more
    double DefFinishDOC = 0.08;  ///< finish depth of cut, 0 or more
    int FinishPassZ = 0;         ///< number of finish passes
    int DefFinishDOCType = 1;
    double MaxFeedBetween = 4.0; ///< longest move that stays down between passes
    int FeedBetweenType = 1;
    double RapidPlane = 1.0; ///< clearance plane, a length

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given. A
    /// defaults file that does not tell its units is in those of the record.
    void Defaults();
    /// Writes the record to the settings file.
    void vFaceMillDefs_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vFaceMillDefs_Restore();
    /// Converts the lengths to other units.
    void FaceMillDefsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CFaceMillDefsInfo* GetLastFaceMillDefsInfo();
