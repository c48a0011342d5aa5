#include "PelmarDlgs/pages/wire_edm.h"

#include "PelmarDlgs/library.h"
#include "pages/page_binding.h"
#include "pages/wire_edm_controls.h"

using namespace pelmar;

namespace {

class EdmBinding : public BindingOf<CEDMOptionsInfo> {
public:
    explicit EdmBinding(const CDefsEDMPage& page) : BindingOf(kWireEdmPage, StartsWith::BuiltInValues), m_page(page) {}

private:
    void ShowMore(CPropertyPage& page) override { page.UpdateData(FALSE); }

    void ApplyRules(CWnd& page, const Occasion& occasion) override
    {
        if (!occasion.Is(Occasion::Activation))
            return;
        const bool locked = m_page.m_lockedByOperation || m_page.m_lockedByHost;
        EnableControl(page, IDC_EDM_GOUGE_CHECK, !locked);
        EnableControl(page, IDC_EDM_SORT_TYPE, !locked);
        EnableControl(page, IDC_EDM_TOOL_LENGTH_GAUGE, MaterialLibrarySwitch());
    }

    const CDefsEDMPage& m_page;
};

CEDMOptionsInfo& EdmOf(PageBinding& binding)
{
    return static_cast<EdmBinding&>(binding).record;
}
} // namespace

static_assert(int{CDefsEDMPage::IDD} == IDD_EDM);

IMPLEMENT_DYNCREATE(CDefsEDMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsEDMPage, pelmar::CRecordPage)
    ON_EN_KILLFOCUS(IDC_EDM_MAX_FEED_BETWEEN, &CDefsEDMPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_EDM_CORNER_ANGLE, &CDefsEDMPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_EDM_CORNER_CLEARANCE, &CDefsEDMPage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_EDM_SIDE_CLEARANCE, &CDefsEDMPage::OnKillFSideClearance)
    ON_EN_KILLFOCUS(IDC_EDM_SIDE_FINISH_STEP, &CDefsEDMPage::OnKillFSideFinishStep)
    ON_EN_KILLFOCUS(IDC_EDM_SHARP_CORNER_ANGLE, &CDefsEDMPage::OnKillFSharpCornerAngle)
    ON_EN_KILLFOCUS(IDC_EDM_CURVE_TOLERANCE, &CDefsEDMPage::OnKillFCurveTol)
    ON_CBN_SELCHANGE(IDC_EDM_FEED_BETWEEN_TYPE, &CDefsEDMPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_EDM_CORNER_ANGLE_TYPE, &CDefsEDMPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_EDM_CORNER_CLEARANCE_TYPE, &CDefsEDMPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_EDM_SIDE_CLEARANCE_TYPE, &CDefsEDMPage::OnSelSideClearType)
    ON_CBN_SELCHANGE(IDC_EDM_SIDE_FINISH_STEP_TYPE, &CDefsEDMPage::OnSelSideFinishStepType)
    ON_CBN_SELCHANGE(IDC_EDM_GOUGE_CHECK, &CDefsEDMPage::OnSelGougeCheckType)
    ON_CBN_SELCHANGE(IDC_EDM_SORT_TYPE, &CDefsEDMPage::OnSelSortType)
    ON_CBN_SELCHANGE(IDC_EDM_TOOL_LENGTH_GAUGE, &CDefsEDMPage::OnSelTLGauge)
    ON_BN_CLICKED(IDC_EDM_DISPLAY_PLUNGE_CHANGES, &CDefsEDMPage::OnSelDispPlungeChanges)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefsEDMPage::OnRestoreDefaults)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CDefsEDMPage::OnToolLibGauge)
END_MESSAGE_MAP()

CDefsEDMPage::CDefsEDMPage() : CRecordPage(IDD, new EdmBinding(*this)) {}

void CDefsEDMPage::OnKillFMaxFeedBetween()
{
    Handle(At<WireEdmTable>(IDC_EDM_MAX_FEED_BETWEEN));
}

void CDefsEDMPage::OnKillFCornerAngle()
{
    Handle(At<WireEdmTable>(IDC_EDM_CORNER_ANGLE));
}

void CDefsEDMPage::OnKillFCornerClearance()
{
    Handle(At<WireEdmTable>(IDC_EDM_CORNER_CLEARANCE));
}

void CDefsEDMPage::OnKillFSideClearance()
{
    Handle(At<WireEdmTable>(IDC_EDM_SIDE_CLEARANCE));
}

void CDefsEDMPage::OnKillFSideFinishStep()
{
    Handle(At<WireEdmTable>(IDC_EDM_SIDE_FINISH_STEP));
}

void CDefsEDMPage::OnKillFSharpCornerAngle()
{
    Handle(At<WireEdmTable>(IDC_EDM_SHARP_CORNER_ANGLE));
}

void CDefsEDMPage::OnKillFCurveTol()
{
    // The tolerance shows in the hidden retract threshold, not in its own field: the next exchange stores it there too.
    if (!Binding().TakeLeftData(*this))
        return;
    double shown = EdmOf(Binding()).CurveTolerance;
    ShowExpression(this, IDC_EDM_MAX_FEED_BETWEEN, &shown);
}

void CDefsEDMPage::OnSelFeedBetweenType()
{
    Handle(At<WireEdmTable>(IDC_EDM_FEED_BETWEEN_TYPE));
}

void CDefsEDMPage::OnSelCornerAngleType()
{
    Handle(At<WireEdmTable>(IDC_EDM_CORNER_ANGLE_TYPE));
}

void CDefsEDMPage::OnSelCornerClearType()
{
    Handle(At<WireEdmTable>(IDC_EDM_CORNER_CLEARANCE_TYPE));
}

void CDefsEDMPage::OnSelSideClearType()
{
    Handle(At<WireEdmTable>(IDC_EDM_SIDE_CLEARANCE_TYPE));
}

void CDefsEDMPage::OnSelSideFinishStepType()
{
    Handle(At<WireEdmTable>(IDC_EDM_SIDE_FINISH_STEP_TYPE));
}

void CDefsEDMPage::OnSelGougeCheckType()
{
    Handle(At<WireEdmTable>(IDC_EDM_GOUGE_CHECK));
}

void CDefsEDMPage::OnSelSortType()
{
    Handle(At<WireEdmTable>(IDC_EDM_SORT_TYPE));
}

void CDefsEDMPage::OnSelTLGauge()
{
    Handle(At<WireEdmTable>(IDC_EDM_TOOL_LENGTH_GAUGE));
}

void CDefsEDMPage::OnSelDispPlungeChanges()
{
    Handle(At<WireEdmTable>(IDC_EDM_DISPLAY_PLUNGE_CHANGES));
}

LRESULT CDefsEDMPage::OnToolLibGauge(WPARAM code, LPARAM parameter)
{
    return code == kToolLengthGauge && parameter == kAsksForToolLengthGauge ? EdmOf(Binding()).ToolLengthGauge : 0;
}

void CDefsEDMPage::OnRestoreDefaults()
{
    RestoreDefaults();
}
