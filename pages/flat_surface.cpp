#include "PelmarDlgs/pages/flat_surface.h"

#include "pages/flat_surface_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

static_assert(int{CDefsFlatSurfacePage::IDD} == IDD_FS);

IMPLEMENT_DYNCREATE(CDefsFlatSurfacePage, CExpRegenPropertyPage)

// A click of the gouge check is not here: the exchange alone takes the box.
BEGIN_MESSAGE_MAP(CDefsFlatSurfacePage, pelmar::CPocketPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefsFlatSurfacePage::OnRestoreDefaults)
    ON_EN_CHANGE(IDC_POCKET_CORNER_ANGLE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_POCKET_CORNER_CLEARANCE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_POCKET_SIDE_STEP, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_CHANGE(IDC_POCKET_LEAD_ANGLE_TOLERANCE, &CDefsFlatSurfacePage::OnChangeFSOptions)
    ON_EN_KILLFOCUS(IDC_POCKET_SIDE_STEP, &CDefsFlatSurfacePage::OnKillFSideStep)
END_MESSAGE_MAP()

CDefsFlatSurfacePage::CDefsFlatSurfacePage()
    : CPocketPage(IDD, new BindingOf<CFlatSurfaceOptionsInfo>(kFlatSurfacePage))
{
}

void CDefsFlatSurfacePage::OnChangeFSOptions()
{
    SetModified();
}

void CDefsFlatSurfacePage::OnKillFSideStep()
{
    Handle(At<FlatSurfaceTable>(IDC_POCKET_SIDE_STEP));
}

void CDefsFlatSurfacePage::OnRestoreDefaults()
{
    RestoreDefaults();
}
