// The setup sheet: the report of an NC job's tools and operations.
#pragma once

#include "PelmarDlgs/export.h"

/// What the setup sheet holds and what machining time is estimated with, section "OptionsSSheet".
///
/// The operations never fail: what is absent from a file stays as it is, and what cannot be written is lost without a
/// message.
class PELMAR_API CSSheetOptionsInfo {
public:
    int Units = 0;               ///< 0 inch, 1 millimetre
    int SetupStyle = 1;          ///< 0 standard as HTML, 1 current as HTML, 2 standard
    double ToolChangeTime = 0.0; ///< of one change; the units of length do not touch it
    double RapidRate = 400.0;    ///< rapid traverse, length per time
    int UniqueTools = 0;         ///< 1 shows the operations with unique tools
    int ToolingSetup = 1;        ///< 1 puts out what there is to say of the tools
    int OperationsSetup = 1;     ///< the same of the operations
    int ToolingGraphics = 1;     ///< 1 puts out pictures of the tools
    int OperationsGraphics = 0;  ///< the same of the operations; no control edits it

    /// Built-in values, overlaid by the defaults file and converted to the units that the dialog was last given.
    void vOptions_Defaults();
    /// Writes the record to the settings file.
    void vOptions_Save();
    /// Reads the record from the settings file, units included; nothing is converted.
    void vOptions_Restore();
    /// Converts the rapid rate to other units.
    void vOptions_CheckUnits(long units);
};

/// The live record, which the host reads when it makes a setup sheet. Never null; the library keeps it.
PELMAR_API CSSheetOptionsInfo* GetLastSSheetOptions();

/// Read and write the live record.
PELMAR_API void vSSheetOptions_Restore();
PELMAR_API void vSSheetOptions_Save();
