// What tools put out and how tool lists are shown.
#pragma once

#include "PelmarDlgs/export.h"

/// What tools put out and how their lists are sorted, section "Settings".
///
/// The operations never fail: what is absent from the file stays as it is, and what cannot be written is lost without a
/// message.
class PELMAR_API CDefsNCToolsInfo {
public:
    int MillGaugeLength = 0;  ///< 1 puts out the gauge length for all milling operations
    int LatheGaugeLength = 0; ///< the same for turning
    int ToolSortBy = 0;       ///< 0 diameter, 1 tool number, 2 database number

    /// All 0. Reads no file.
    void Defaults();
    /// Writes the record to the settings file.
    void Save();
    /// Reads the record from the settings file.
    void Restore();
};

/// The live record. Never null; the library keeps it.
PELMAR_API CDefsNCToolsInfo* GetLastDefsNCToolsInfo();
