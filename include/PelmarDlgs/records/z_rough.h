// Z-level roughing: pockets by depth levels.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of Z-level roughing, section "OptionsZRough".
///
/// Lengths are in the record's own units. A step or the side clearance is a length while the type beside it is 0 and a
/// multiple of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and
/// what cannot be written is lost without a message.
class PELMAR_API CZRoughOptionsInfo {
public:
    int Units = 0;                ///< 0 inch, 1 millimetre
    double CornerAngle = 135.0;   ///< degrees, 30 to 150
    int CornerAngleType = 0;      ///< 0 arc, 1 line
    double CornerClearance = 0.0; ///< a length, whatever its type
    int CornerClearanceType = 0;
    double SideRoughStep = 0.8; ///< step-over
    int SideRoughStepType = 1;
    double DepthRoughStep = 0.8; ///< step-down
    int DepthRoughStepType = 1;
    int CutterCompTop = 0;
    int FeedBetweenRate = 1; ///< 0 direct, 1 cutting feed, 2 rapid
    int DepthFirst = 1;
    int MaterialCutMode = 2;    ///< 0 spiral, 1 zigzag, 2 along the contour; a file's value above 2 counts as 2
    int PocketCutMode = 0;      ///< 0 spiral, 1 zigzag
    int PlungeWarnings = 0;     ///< 1 reports plunge changes
    double SideClearance = 0.1; ///< distance of the approach to the contour
    int SideClearanceType = 1;
    int IslandPlunges = 0; ///< 0 plunges directly on islands, 1 does not
    int LeadAngleTol = 5;  ///< whole degrees
    int GougeCheck = 1;    ///< of the lead-in: 1 on, 2 off
    int AlignPlunges = 0;  ///< 1 plunges at the deepest point

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void vOptions_Default();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void vZRoughOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CZRoughOptionsInfo* GetLastZRoughOptions();
