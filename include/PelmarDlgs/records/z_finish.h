// Z-level finishing.
#pragma once

#include "PelmarDlgs/export.h"

/// Default parameters of Z-level finishing, section "OptionsZFinish".
///
/// Lengths are in the record's own units. A field with a type beside it is a length while that type is 0 and a multiple
/// of the tool radius otherwise. Nothing that a file holds is checked. The operations never fail: what is absent from a
/// file stays as it is, and what cannot be written is lost without a message.
class PELMAR_API CZFinishOptionsInfo {
public:
    int Units = 0;                 ///< 0 inch, 1 millimetre
    double DepthFinishStep = 0.08; ///< step-down
    int DepthFinishStepType = 1;
    double SideClearance = 0.1; ///< distance of the approach to the contour
    int SideClearanceType = 1;
    int LeadAngleTol = 5;   ///< whole degrees
    int GougeCheck = 1;     ///< of the lead-in: 1 on, 2 off
    int PlungeSelType = 0;  ///< plunge point: 0 automatic, 1 chosen by the user
    int PlungeWarnings = 0; ///< 1 reports plunge changes

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given.
    void Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the lengths to other units.
    void vZFinishOptionsCheckUnits(long units);
};

/// The live record, which the host reads when it makes a toolpath. Never null; the library keeps it.
PELMAR_API CZFinishOptionsInfo* GetLastZFinishOptions();
