// Turning.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of lathe operations, section "OptionsLathe".
///
/// Changing units converts nothing, the corner clearance included. The operations never fail: what is absent from a
/// file stays as it is, and what cannot be written is lost without a message.
class PELMAR_API CLatheOptionsInfo {
public:
    int Units = 0;                ///< 0 inch, else millimetre
    double CornerAngle = 90.0;    ///< degrees, 30 to 150: sharper corners are rounded or extended
    int CornerAngleType = 0;      ///< 0 arc, 1 line
    double CornerClearance = 0.0; ///< a length
    double GrooveSideStep = 95.0; ///< percent of the tool's width, 5 to 95
    int LeadInSpeed = 1;          ///< 0 direct, 1 cutting feed, 2 rapid; -1 when the page's list had no selection
    int LeadOutSpeed = 1;         ///< 0 direct, 1 cutting feed, 2 rapid
    int Follow = 1;               ///< roughing with follow-up: 0 or 1

    /// Built-in values, overlaid by the defaults file, in the units that the page was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included.
    void vOptions_Restore();
    /// Sets the units; no value is converted.
    void vLatheOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CLatheOptionsInfo* GetLastLatheOptions();
