// 3-axis milling: surface toolpaths.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/milling_3axis.h"

/// The page of the 3-axis defaults. It edits a copy of the live record, which OK puts back; it writes no file.
class PELMAR_API CDefs3xPage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(CDefs3xPage)
public:
    enum { IDD = 3933 };

    /// Filled from the live record as it is.
    CDefs3xPage();

protected:
    void OnKillFFeedBetweenClearance();
    void OnKillFMaxFeedBetween();
    void OnKillFScallopSample();
    void OnKillFScallopAngle();
    void OnKillFRapidPlane();
    void OnKillFRapidPlunge();
    void OnSelFeedBetweenType();
    void OnSelFeedBetweenRate();
    void OnSelLeadOnFeed();
    void OnSelRapidFrequency();
    void OnSelSideStepMode();
    void OnSelWriteNormal();
    void OnSelVerticalCheck();
    void OnSelSaveZSlices();
    void OnSelScallopSampleType();
    void OnSelLeadChanges();
    void OnSelSortType();
    void OnChangeOptionInfo();
    void OnRestoreDefaults();
    DECLARE_MESSAGE_MAP()
};
