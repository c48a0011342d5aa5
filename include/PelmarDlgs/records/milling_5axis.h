// 5-axis milling.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of 5-axis toolpaths, section "Options5x".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and
/// what cannot be written is lost without a message.
class PELMAR_API C5AxisOptionsInfo {
public:
    int Units = 0;                     ///< 0 inch, 1 millimetre
    int RotaryAxis = 0;                ///< number of rotary axes, 0 or 1
    double FeedBetweenClearance = 0.0; ///< lift between passes, a length
    double MaxFeedBetween = 4.0;       ///< longest move that stays down between passes
    int FeedBetweenType = 1;           ///< 0 a length, 1 a multiple of the tool radius
    int FeedBetweenRate = 1;           ///< 0 direct, 1 cutting feed, 2 rapid
    int LeadOnFeed = 0;                ///< 1 leads in between passes
    int ChangeToolAxis = 0;   ///< tool vector set 0 in the XY move, 1 at the top, 2 in the Z move, 3 at the bottom
    int VerticalForRapid = 0; ///< 1 keeps the tool vertical in rapid moves
    int RapidFrequency = 1;   ///< 0 lifts at each pass, 1 at each level
    int SideStepMode = 1;     ///< step-over: 0 straight, 1 along the edge
    int WriteNormal = 0;      ///< 1 puts out surface normals
    double RapidPlane = 1.0;  ///< clearance plane, a length
    double RapidPlunge = 0.1; ///< plunge height, a length, 0 or more
    int SortType = 1;         ///< 0 none, 1 automatic

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void v5xOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API C5AxisOptionsInfo* GetLast5xOptions();
