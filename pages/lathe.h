// Turning.
#pragma once

#include "frame/export.h"
#include "pages/lathe_axes.h"
#include "pages/record_page.h"

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

/// The four axis modes of the lathe as the host hands them over, in this order: input by radius, display by radius,
/// input by diameter, display by diameter.
constexpr int kLatheAxisModes = 4;
using LatheAxisLabels = int[3];           ///< of one mode: index of "-", "X", "Y", "Z", "D", "R" for each axis
using LatheAxisDirections = double[4][3]; ///< of one mode: rows X, Y, Z, a column for each axis; the last row is unused

extern template class CRecordPage<CLatheOptionsInfo>;

/// The page of the lathe defaults. It edits a copy of the live record, which OK puts back, and the host's four axis
/// modes. It writes no file but on kWriteToIniMessage: the axis modes, to the host settings file.
class PELMAR_API CDefsLathePage : public CRecordPage<CLatheOptionsInfo> {
    DECLARE_DYNCREATE(CDefsLathePage)
public:
    enum { IDD = 3937 };

    CDefsLathePage();

    /// Hands the page the host's units (1 millimetre, else inch) and fills it from the live record. From then on the
    /// buttons of the axis modes are hidden.
    void GetData(int units);
    /// The same with the axis modes, kLatheAxisModes of each array, and without hiding the buttons.
    void GetData(int units, const LatheAxisLabels* labels, const int* active, const LatheAxisDirections* directions);
    /// Copies the axis modes out, kLatheAxisModes of each array. The unused row of the directions stays as it is.
    void SetData(LatheAxisLabels* labels, int* active, LatheAxisDirections* directions) const;

    BOOL OnSetActive() override;

protected:
    void OnChangeEdit();
    void OnKillFCornerAngle();
    void OnKillFCornerClearance();
    void OnKillFGrooveSideStep();
    void OnSelCornerAngleType();
    void OnSelLeadInType();
    void OnSelLeadOutType();
    void OnSelFollow();
    void OnRadialInputDisplay();
    void OnDiameterInputDisplay();
    void OnRestoreDefaults();
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    LRESULT WriteToIni(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    /// Where the two axis modes of a measure, input and display, are among all of them.
    enum Measure { kByRadius = 0, kByDiameter = 2 };

    void EditAxisModes(UINT caption, Measure edited, Measure other);

    LatheAxisMode m_axisModes[kLatheAxisModes];
    int m_hideAxisModes = 0;
};
