#include "PelmarDlgs/pages/pocket_page.h"

#include "pages/flat_surface_controls.h"

namespace pelmar {

namespace {
/// Either page's: what is handled here, both hold.
using PocketTable = FlatSurfaceTable;
} // namespace

BEGIN_MESSAGE_MAP(CPocketPage, CRecordPage)
    ON_EN_KILLFOCUS(IDC_POCKET_CORNER_ANGLE, &CPocketPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_POCKET_CORNER_CLEARANCE, &CPocketPage::OnKillFCornerClearance)
    ON_CBN_SELCHANGE(IDC_POCKET_CORNER_ANGLE_TYPE, &CPocketPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_POCKET_CORNER_CLEARANCE_TYPE, &CPocketPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_POCKET_SIDE_STEP_TYPE, &CPocketPage::OnSelSideStepSize)
    ON_CBN_SELCHANGE(IDC_POCKET_FEED_BETWEEN_RATE, &CPocketPage::OnSelFeedBetweenRate)
    ON_CBN_SELCHANGE(IDC_POCKET_MATERIAL_CUT_MODE, &CPocketPage::OnSelMaterialCutMode)
    ON_CBN_SELCHANGE(IDC_POCKET_POCKET_CUT_MODE, &CPocketPage::OnSelPocketCutMode)
END_MESSAGE_MAP()

void CPocketPage::OnKillFCornerAngle()
{
    Handle(At<PocketTable>(IDC_POCKET_CORNER_ANGLE));
}

void CPocketPage::OnKillFCornerClearance()
{
    Handle(At<PocketTable>(IDC_POCKET_CORNER_CLEARANCE));
}

void CPocketPage::OnSelCornerAngleType()
{
    Handle(At<PocketTable>(IDC_POCKET_CORNER_ANGLE_TYPE));
}

void CPocketPage::OnSelCornerClearType()
{
    Handle(At<PocketTable>(IDC_POCKET_CORNER_CLEARANCE_TYPE));
}

void CPocketPage::OnSelSideStepSize()
{
    Handle(At<PocketTable>(IDC_POCKET_SIDE_STEP_TYPE));
}

void CPocketPage::OnSelFeedBetweenRate()
{
    Handle(At<PocketTable>(IDC_POCKET_FEED_BETWEEN_RATE));
}

void CPocketPage::OnSelMaterialCutMode()
{
    Handle(At<PocketTable>(IDC_POCKET_MATERIAL_CUT_MODE));
}

void CPocketPage::OnSelPocketCutMode()
{
    Handle(At<PocketTable>(IDC_POCKET_POCKET_CUT_MODE));
}

} // namespace pelmar
