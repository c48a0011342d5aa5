// Hole processing: drilling and the order of the holes.
#pragma once

#include <afxstr.h>

#include "PelmarDlgs/export.h"

/// Default parameters of hole processing, section "HoleProcessLocation".
///
/// Directions are 0 right, 1 left, 2 up and 3 down; approaches 0 right and down, 1 left and down, 2 right and up, 3
/// left and up. Lengths are in the record's own units. The operations never fail: what is absent from a file stays as
/// it is, and what cannot be written is lost without a message.
class PELMAR_API HoleProcessDefsInfo {
public:
    int Units = 0;                  ///< 0 inch, otherwise millimetre
    CStringA StartupTemplate;       ///< path of the template loaded at start-up, in the system's ANSI code page
    int RecalcAuto = 1;             ///< recalculate by itself
    int SortType = 2;               ///< 0 manual, 1 by distance, 2 orthogonal
    int MajorDir = 0;               ///< direction of travel
    int StepDir = 2;                ///< direction of the step between bands, across the major one
    int Bidirectional = 1;          ///< alternate the sense of travel from band to band
    int AccurateMode = 0;           ///< approach every hole from one side
    int AccurateDir = 2;            ///< approach in accurate mode
    double AccurateDist = 0.1;      ///< length of the accurate approach, 0 or more
    double AccurateFeedRate = 10.0; ///< feed of the accurate approach, length per time, 0 or more
    int UseBandWidth = 1;           ///< gather the holes into bands
    double BandWidth = 1.0;         ///< a length, 0 or more
    int SortReverse = 0;
    int SortBiasToVector = 0;

    /// Built-in values, overlaid by the defaults file and converted to the units that the page was last given. The
    /// template stays, and the recalculation is the built-in one, whatever the file holds.
    void Defaults();
    /// Writes the record to the settings file, the template to the system-wide profile.
    void HoleProcessDefs_Save();
    /// Reads the record from the settings file, units and template (at most 255 characters) included; nothing is
    /// converted. A sort type or direction out of range becomes 0. A file without a template clears it.
    void HoleProcessDefs_Restore();
    /// Converts the lengths to other units.
    void HoleProcessDefsCheckUnits(long units);
    /// Turns the step across the major direction where it lies along it: up for right and left, right for up and down.
    void Sync();
};

/// The live record, which the host reads when it orders holes. Never null; the library keeps it.
PELMAR_API HoleProcessDefsInfo* GetLastHoleProcessDefsInfo();
