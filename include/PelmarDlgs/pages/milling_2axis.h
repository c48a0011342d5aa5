// 2-axis milling: pocketing and contouring.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/milling_2axis.h"

/// The page of the 2-axis defaults. It edits a copy of the live record, which OK puts back; it writes no file.
class PELMAR_API CDefs2xPage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(CDefs2xPage)
public:
    enum { IDD = 3926 };

    CDefs2xPage();

    int m_contextFlag = 0;   ///< non-zero keeps island depths constant
    int m_operationCode = 0; ///< 6, 35 and 38 change what can be set; 0 outside of an operation
    int m_contextBits = 0;   ///< bit 0 allows island depths that are not constant

    /// Hands the page the host's units (1 millimetre, else inch) and fills it from the live record. The cutter
    /// compensation lists are hidden then.
    void GetData(int units) override;
    /// The same with the two list indexes of the cutter compensation, which are shown.
    void GetData(int units, int lookAhead, int showToolpath);
    void SetData(int& lookAhead, int& showToolpath);

protected:
    void OnKillFMaxFeedBetween();
    void OnKillFCornerAngle();
    void OnKillFCornerClearance();
    void OnKillFSideClearance();
    void OnKillFSideRoughStep();
    void OnKillFSideFinishStep();
    void OnKillFDepthRoughStep();
    void OnKillFDepthFinishStep();
    void OnKillFRapidPlane();
    void OnKillFRapidPlunge();
    void OnSelFeedBetweenType();
    void OnSelCornerAngleType();
    void OnSelCornerClearType();
    void OnSelSideClearType();
    void OnSelSideRoughStepType();
    void OnSelSideFinishStepType();
    void OnSelDepthRoughStepType();
    void OnSelDepthFinishStepType();
    void OnSelPathIslandDepthType();
    void OnSelGougeCheckType();
    void OnSelCutterCompTop();
    void OnSelFeedBetweenRate();
    void OnSelThreadMillFeedBetween();
    void OnSelDepthFirst();
    void OnSelFinishCutOn();
    void OnSelPocketNestingType();
    void OnSelSortType();
    void OnSelDispPlungeChanges();
    void OnSelIslandPlunges();
    void OnSelAlignPlunges();
    void OnSelLookAhead();
    void OnSelPEShowToolpath();
    void OnRestoreDefaults();
    DECLARE_MESSAGE_MAP()
};
