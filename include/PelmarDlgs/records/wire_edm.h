// Wire EDM: contouring.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of wire EDM contouring, section "OptionsEDM". The file holds units, gouge check, sort type, sharp
/// corner limit and tolerance; everything else belongs to hidden controls of the page and lives in memory only.
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API CEDMOptionsInfo {
public:
    int Units = 0;               ///< 0 inch, 1 millimetre
    double MaxFeedBetween = 4.0; ///< longest move that stays down between passes
    int FeedBetweenType = 1;
    double CornerAngle = 135.0; ///< degrees, 30 to 150
    int CornerAngleType = 0;    ///< 0 arc, 1 line
    double CornerClearance = 0.0;
    int CornerClearanceType = 0;
    double SideClearance = 1.5; ///< approach to the contour
    int SideClearanceType = 1;
    double SideFinishStep = 0.8; ///< step-over
    int SideFinishStepType = 1;
    int GougeCheck = 1;      ///< 0 single, 1 full
    int SortType = 1;        ///< 0 none, 1 automatic
    int ToolLengthGauge = 0; ///< 1 takes the tool's gauge length into account
    int DispPlungeChanges = 0;
    double SharpCorneAngleLimit = 89.0; ///< degrees, 5 to 160; spelled as its key
    double CurveTolerance = 0.0;        ///< a length

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void vEDMOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CEDMOptionsInfo* GetLastEDMOptions();
