// Turning.
#pragma once

#include "PelmarDlgs/pages/lathe_axes.h"
#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/lathe.h"

namespace pelmar {

/// The four axis modes of the lathe as the host hands them over, in this order: input by radius, display by radius,
/// input by diameter, display by diameter.
constexpr int kLatheAxisModes = 4;
using LatheAxisLabels = int[3];           ///< of one mode: index of "-", "X", "Y", "Z", "D", "R" for each axis
using LatheAxisDirections = double[4][3]; ///< of one mode: rows X, Y, Z, a column for each axis; the last row is unused

} // namespace pelmar

/// The page of the lathe defaults. It edits a copy of the live record, which OK puts back, and the host's four axis
/// modes. It writes no file but on kWriteToIniMessage: the axis modes, to the host settings file.
class PELMAR_API CDefsLathePage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(CDefsLathePage)
public:
    enum { IDD = 3937 };

    CDefsLathePage();

    /// Hands the page the host's units (1 millimetre, else inch) and fills it from the live record. From then on the
    /// buttons of the axis modes are hidden.
    void GetData(int units) override;
    /// The same with the axis modes, kLatheAxisModes of each array, and without hiding the buttons.
    void GetData(int units, const pelmar::LatheAxisLabels* labels, const int* active,
                 const pelmar::LatheAxisDirections* directions);
    /// Copies the axis modes out, kLatheAxisModes of each array. The unused row of the directions stays as it is.
    void SetData(pelmar::LatheAxisLabels* labels, int* active, pelmar::LatheAxisDirections* directions) const;

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
    LRESULT WriteToIni(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
