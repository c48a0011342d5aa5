// Wire EDM: contouring.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/wire_edm.h"

/// The page of the wire EDM defaults. It edits a copy of the live record, which OK puts back; it writes no file.
class PELMAR_API CDefsEDMPage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(CDefsEDMPage)
public:
    enum { IDD = 3934 };

    CDefsEDMPage();

    // While either is not 0, gouge check and sort type cannot be chosen; looked at whenever the page is activated.
    unsigned char m_lockedByOperation = 0;
    unsigned char m_lockedByHost = 0;

protected:
    void OnKillFMaxFeedBetween();
    void OnKillFCornerAngle();
    void OnKillFCornerClearance();
    void OnKillFSideClearance();
    void OnKillFSideFinishStep();
    void OnKillFSharpCornerAngle();
    void OnKillFCurveTol();
    void OnSelFeedBetweenType();
    void OnSelCornerAngleType();
    void OnSelCornerClearType();
    void OnSelSideClearType();
    void OnSelSideFinishStepType();
    void OnSelGougeCheckType();
    void OnSelSortType();
    void OnSelTLGauge();
    void OnSelDispPlungeChanges();
    void OnRestoreDefaults();
    /// Answers a sibling that asks for the tool length gauge.
    LRESULT OnToolLibGauge(WPARAM code, LPARAM parameter);
    DECLARE_MESSAGE_MAP()
};
