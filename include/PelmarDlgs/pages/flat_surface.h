// 3-axis pocketing of flat surfaces.
#pragma once

#include "PelmarDlgs/pages/pocket_page.h"
#include "PelmarDlgs/records/flat_surface.h"

/// The page of the flat-surface defaults. It edits a copy of the live record, which OK puts back; it writes no file. It
/// tells its siblings of the side step and cut modes.
///
/// Depth first, plunge warnings and both kinds of plunges have no control in the template and pass through unchanged.
class PELMAR_API CDefsFlatSurfacePage : public pelmar::CPocketPage {
    DECLARE_DYNCREATE(CDefsFlatSurfacePage)
public:
    enum { IDD = 106 };

    CDefsFlatSurfacePage();

protected:
    void OnChangeFSOptions();
    void OnKillFSideStep();
    void OnRestoreDefaults();
    DECLARE_MESSAGE_MAP()
};
