// Z-level finishing.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "PelmarDlgs/records/z_finish.h"

/// The page of the Z finishing defaults. It edits a copy of the live record, which OK puts back; it writes no file and
/// tells its siblings nothing.
class PELMAR_API CDefsZFinishPage : public pelmar::CRecordPage {
    DECLARE_DYNCREATE(CDefsZFinishPage)
public:
    enum { IDD = 3944 };

    CDefsZFinishPage();

protected:
    void OnChangeOptionInfo();
    /// Leaving the edits. The message map routes neither: a derived page may.
    void OnKillFDepthFinishStep();
    void OnKillFSideClearance();
    void OnSelDepthStepSize();
    void OnSelSideClearType();
    void OnSelGougeCheck();
    void OnSelPlungeSelType();
    void OnSelPlungeWarnings();
    DECLARE_MESSAGE_MAP()
};
