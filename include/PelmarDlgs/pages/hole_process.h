// Hole processing: drilling and the order of the holes.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/hole_process.h"

/// The page of the hole processing defaults. It edits a copy of the live record, which OK puts back; it writes no file.
class PELMAR_API DefsHoleProcessPage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(DefsHoleProcessPage)
public:
    enum { IDD = 4159 };

    /// Takes its copy of the live record at once.
    DefsHoleProcessPage();

protected:
    void OnSelChangeSortBy();
    void OnSelFile();
    void OnSelMajorRight();
    void OnSelMajorLeft();
    void OnSelMajorUp();
    void OnSelMajorDown();
    void OnSelStepRight();
    void OnSelStepLeft();
    void OnSelStepUp();
    void OnSelStepDown();
    void OnSelAccurateRD();
    void OnSelAccurateLD();
    void OnSelAccurateRU();
    void OnSelAccurateLU();
    void OnCheckAccurateMode();
    void OnCheckBandWidth();
    DECLARE_MESSAGE_MAP()
};
