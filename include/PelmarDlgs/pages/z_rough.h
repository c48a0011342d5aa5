// Z-level roughing: pockets by depth levels.
#pragma once

#include "PelmarDlgs/pages/pocket_page.h"
#include "PelmarDlgs/records/z_rough.h"

/// The page of the Z roughing defaults. It edits a copy of the live record, which OK puts back; it writes no file. It
/// tells its siblings of steps, the side clearance and cut modes.
class PELMAR_API CDefsZRoughPage : public pelmar::CPocketPage {
    DECLARE_DYNCREATE(CDefsZRoughPage)
public:
    enum { IDD = 3946 };

    CDefsZRoughPage();

protected:
    void OnChangeZROptions();
    void OnKillFSideRoughStep();
    void OnKillFDepthRoughStep();
    void OnKillFSideClearance();
    void OnSelDepthStepSize();
    void OnSelCutterCompTop();
    void OnSelDepthFirst();
    void OnSelPlungeWarnings();
    void OnSelSideClearType();
    void OnSelIslandPlunges();
    void OnSelGougeCheck();
    void OnSelAlignPlunges();
    DECLARE_MESSAGE_MAP()
};
