// 3-axis milling: surface toolpaths.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of 3-axis surface toolpaths, section "Options3x".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot
/// be written is lost without a message.
class PELMAR_API C3AxisOptionsInfo {
public:
    int Units = 0;                     ///< 0 inch, 1 millimetre
    double FeedBetweenClearance = 0.0; ///< lift between passes, a length
    double MaxFeedBetween = 4.0;       ///< longest move that stays down between passes
    int FeedBetweenType = 1;
    int FeedBetweenRate = 1; ///< 0 direct, 1 cutting feed, 2 rapid
    int LeadOnFeed = 0;      ///< 1 leads in between passes
    int RapidFrequency = 1;  ///< 0 lifts at each pass, 1 at each level
    int SideStepMode = 1;    ///< step-over: 0 straight, 1 along the edge
    int WriteNormal = 0;     ///< 1 puts out surface normals
    int VerticalCheck = 1;   ///< 1 checks vertical walls
    int SaveZSlices = 0;
    double ScallopSample = 0.8; ///< reference of the scallop height
    int ScallopSampleType = 1;
    double ScallopAngle = 89.0; ///< degrees, the largest angle that scallops are computed for
    double RapidPlane = 1.0;    ///< clearance plane, a length
    double RapidPlunge = 0.1;   ///< plunge height, a length, 0 or more
    int DisplayLeadChanges = 0; ///< 1 reports plunge changes
    int SortType = 1;           ///< 0 none, 1 automatic

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void v3xOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API C3AxisOptionsInfo* GetLast3xOptions();
