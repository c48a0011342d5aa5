#include "PelmarDlgs/pages/milling_3axis.h"

#include "pages/milling_3axis_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

namespace {

class Binding3x : public BindingOf<C3AxisOptionsInfo> {
public:
    Binding3x() : BindingOf(kMilling3AxisPage) {}

private:
    /// Only a click of the lead-in's box gives the side step back: neither a later activation nor restored defaults do.
    void ApplyRules(CWnd& page, const Occasion& occasion) override
    {
        if (occasion.Is(Occasion::Activation) && record.LeadOnFeed == 1)
            EnableControl(page, IDC_3X_SIDE_STEP_MODE, false);
        if (occasion.IsChoiceOf(IDC_3X_LEAD_ON_FEED))
            EnableControl(page, IDC_3X_SIDE_STEP_MODE, record.LeadOnFeed == 0);
    }
};
} // namespace

static_assert(int{CDefs3xPage::IDD} == IDD_3X);

IMPLEMENT_DYNCREATE(CDefs3xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs3xPage, pelmar::CRecordPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefs3xPage::OnRestoreDefaults)
    ON_CBN_SELCHANGE(IDC_3X_FEED_BETWEEN_TYPE, &CDefs3xPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_3X_FEED_BETWEEN_RATE, &CDefs3xPage::OnSelFeedBetweenRate)
    ON_BN_CLICKED(IDC_3X_LEAD_ON_FEED, &CDefs3xPage::OnSelLeadOnFeed)
    ON_CBN_SELCHANGE(IDC_3X_RAPID_FREQUENCY, &CDefs3xPage::OnSelRapidFrequency)
    ON_CBN_SELCHANGE(IDC_3X_SIDE_STEP_MODE, &CDefs3xPage::OnSelSideStepMode)
    ON_BN_CLICKED(IDC_3X_WRITE_NORMAL, &CDefs3xPage::OnSelWriteNormal)
    ON_BN_CLICKED(IDC_3X_VERTICAL_CHECK, &CDefs3xPage::OnSelVerticalCheck)
    ON_BN_CLICKED(IDC_3X_SAVE_Z_SLICES, &CDefs3xPage::OnSelSaveZSlices)
    ON_CBN_SELCHANGE(IDC_3X_SCALLOP_SAMPLE_TYPE, &CDefs3xPage::OnSelScallopSampleType)
    ON_BN_CLICKED(IDC_3X_DISPLAY_LEAD_CHANGES, &CDefs3xPage::OnSelLeadChanges)
    ON_CBN_SELCHANGE(IDC_3X_SORT_TYPE, &CDefs3xPage::OnSelSortType)
    ON_EN_CHANGE(IDC_3X_FEED_BETWEEN_CLEARANCE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_KILLFOCUS(IDC_3X_FEED_BETWEEN_CLEARANCE, &CDefs3xPage::OnKillFFeedBetweenClearance)
    ON_EN_KILLFOCUS(IDC_3X_MAX_FEED_BETWEEN, &CDefs3xPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_3X_SCALLOP_SAMPLE, &CDefs3xPage::OnKillFScallopSample)
    ON_EN_KILLFOCUS(IDC_3X_SCALLOP_ANGLE, &CDefs3xPage::OnKillFScallopAngle)
    ON_EN_KILLFOCUS(IDC_3X_RAPID_PLANE, &CDefs3xPage::OnKillFRapidPlane)
    ON_EN_KILLFOCUS(IDC_3X_RAPID_PLUNGE, &CDefs3xPage::OnKillFRapidPlunge)
    ON_EN_CHANGE(IDC_3X_MAX_FEED_BETWEEN, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_SCALLOP_SAMPLE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_SCALLOP_ANGLE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_RAPID_PLANE, &CDefs3xPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_3X_RAPID_PLUNGE, &CDefs3xPage::OnChangeOptionInfo)
END_MESSAGE_MAP()

CDefs3xPage::CDefs3xPage() : CRecordPage(IDD, new Binding3x) {}

void CDefs3xPage::OnKillFFeedBetweenClearance()
{
    Handle(At<Milling3AxisTable>(IDC_3X_FEED_BETWEEN_CLEARANCE));
}

void CDefs3xPage::OnKillFMaxFeedBetween()
{
    Handle(At<Milling3AxisTable>(IDC_3X_MAX_FEED_BETWEEN));
}

void CDefs3xPage::OnKillFScallopSample()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SCALLOP_SAMPLE));
}

void CDefs3xPage::OnKillFScallopAngle()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SCALLOP_ANGLE));
}

void CDefs3xPage::OnKillFRapidPlane()
{
    Handle(At<Milling3AxisTable>(IDC_3X_RAPID_PLANE));
}

void CDefs3xPage::OnKillFRapidPlunge()
{
    Handle(At<Milling3AxisTable>(IDC_3X_RAPID_PLUNGE));
}

void CDefs3xPage::OnSelFeedBetweenType()
{
    Handle(At<Milling3AxisTable>(IDC_3X_FEED_BETWEEN_TYPE));
}

void CDefs3xPage::OnSelFeedBetweenRate()
{
    Handle(At<Milling3AxisTable>(IDC_3X_FEED_BETWEEN_RATE));
}

void CDefs3xPage::OnSelLeadOnFeed()
{
    Handle(At<Milling3AxisTable>(IDC_3X_LEAD_ON_FEED));
}

void CDefs3xPage::OnSelRapidFrequency()
{
    Handle(At<Milling3AxisTable>(IDC_3X_RAPID_FREQUENCY));
}

void CDefs3xPage::OnSelSideStepMode()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SIDE_STEP_MODE));
}

void CDefs3xPage::OnSelWriteNormal()
{
    Handle(At<Milling3AxisTable>(IDC_3X_WRITE_NORMAL));
}

void CDefs3xPage::OnSelVerticalCheck()
{
    Handle(At<Milling3AxisTable>(IDC_3X_VERTICAL_CHECK));
}

void CDefs3xPage::OnSelSaveZSlices()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SAVE_Z_SLICES));
}

void CDefs3xPage::OnSelScallopSampleType()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SCALLOP_SAMPLE_TYPE));
}

void CDefs3xPage::OnSelLeadChanges()
{
    Handle(At<Milling3AxisTable>(IDC_3X_DISPLAY_LEAD_CHANGES));
}

void CDefs3xPage::OnSelSortType()
{
    Handle(At<Milling3AxisTable>(IDC_3X_SORT_TYPE));
}

void CDefs3xPage::OnChangeOptionInfo()
{
    SetModified();
}

void CDefs3xPage::OnRestoreDefaults()
{
    RestoreDefaults();
}
