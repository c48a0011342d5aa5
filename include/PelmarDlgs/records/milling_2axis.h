// 2-axis milling: pocketing and contouring.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of 2-axis milling operations, section "Options2x".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API C2AxisOptionsInfo {
public:
    int Units = 0;               ///< 0 inch, 1 millimetre
    double MaxFeedBetween = 4.0; ///< longest move that stays down between passes
    int FeedBetweenType = 1;
    double CornerAngle = 135.0; ///< degrees, 30 to 150
    int CornerAngleType = 0;    ///< 0 arc, 1 line
    double CornerClearance = 0.0;
    int CornerClearanceType = 0;
    double SideClearance = 0.1;
    int SideClearanceType = 1;
    double SideRoughStep = 0.8; ///< step-over
    int SideRoughStepType = 1;
    double SideFinishStep = 0.08;
    int SideFinishStepType = 1;
    double DepthRoughStep = 0.8; ///< step-down
    int DepthRoughStepType = 1;
    double DepthFinishStep = 0.08;
    int DepthFinishStepType = 1;
    double RapidPlane = 1.0;  ///< clearance plane, a length
    double RapidPlunge = 0.1; ///< plunge height, a length, 0 or more
    int PathIslandDepths = 0; ///< 0 constant, 1 varying, 2 rough 3D
    int GougeCheck = 1;       ///< 0 single, 1 full, 2 toolpath
    int CutterCompTop = 0;    ///< in memory only: no file holds it
    int FeedBetweenRate = 1;  ///< 0 direct, 1 cutting feed, 2 rapid
    int ThreadMillFeedBetween = 1;
    int DepthFirst = 1;
    int FinishCutOn = 1;       ///< 0 all depths, 1 last depth
    int PocketNestingType = 0; ///< 0 all, 1 to the given depth
    int PocketNestingDepth = 1;
    int SortType = 1; ///< 0 none, 1 automatic, 2 nested
    int SelectMaterial = 0;
    int DispPlungeChanges = 0;
    int IslandPlunges = 0;
    int LeadAngleTol = 5; ///< whole degrees
    int AlignPlunges = 0;

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void v2xOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API C2AxisOptionsInfo* GetLast2xOptions();
