// Slot milling.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of slot milling, section "SlotMill".
///
/// Lengths are in the record's own units. The rough depth of cut is a length while its type is 0 and a multiple of the
/// tool radius otherwise. The operations never fail: what is absent from a file stays as it is, and what cannot be
/// written is lost without a message.
class PELMAR_API CSlotMillDefsInfo {
public:
    int Units = 0;              ///< 0 inch, 1 millimetre
    double DefSlotDepth = 1.25; ///< 0 or more, scaled with the units whatever its type is
    /// 0 top centre, 1 top inside, 2 bottom inside, 3 bottom centre, 4 bottom outside, 5 top outside
    int DefSlotGeomType = 0;
    int DefSlotDepthType = 1;    ///< 0 constant, 1 tool radius
    double RapidPlane = 1.0;     ///< clearance plane, a length, 0 or more
    double PlungeClear = 0.1;    ///< plunge height, scaled with the units whatever its type is
    int PlungeClearType = 0;     ///< kept for the host; no page shows it
    int DefCutingDir = 2;        ///< 1 conventional, 2 climb
    double DefLeaveStockZ = 0.0; ///< stock to leave, a length, 0 or more
    int DefMaxRoughDOCType = 1;
    double DefMaxRoughDOC = 0.8; ///< rough depth of cut, 0 or more
    double DefRampAngle = 7.0;   ///< degrees, 0 to 90

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void Defaults();
    /// Writes the record to the settings file.
    void vSlotMillDefs_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vSlotMillDefs_Restore();
    /// Converts the lengths to other units.
    void SlotMillDefsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CSlotMillDefsInfo* GetLastSlotMillDefsInfo();
