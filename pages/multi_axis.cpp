#include "PelmarDlgs/pages/multi_axis.h"

#include <cstring>

#include "pages/milling_4axis_controls.h"
#include "pages/multi_axis_binding.h"
#include "pages/rotary_dialog.h"

namespace pelmar {

namespace {
/// Either page's: what is handled here, both hold.
using MultiAxisTable = Milling4AxisTable;

AxisHolder& AxisOf(PageBinding& binding)
{
    return dynamic_cast<AxisHolder&>(binding);
}
} // namespace

BEGIN_MESSAGE_MAP(CMultiAxisPage, CRecordPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CMultiAxisPage::OnRestoreDefaults)
    ON_EN_KILLFOCUS(IDC_MX_FEED_BETWEEN_CLEARANCE, &CMultiAxisPage::OnKillFFeedBetweenClearance)
    ON_EN_KILLFOCUS(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnKillFRapidPlane)
    ON_EN_KILLFOCUS(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnKillFRapidPlunge)
    ON_CBN_SELCHANGE(IDC_MX_ROTARY, &CMultiAxisPage::OnSelRotaryMotionType)
    ON_CBN_SELCHANGE(IDC_MX_FEED_BETWEEN_TYPE, &CMultiAxisPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_MX_FEED_BETWEEN_RATE, &CMultiAxisPage::OnSelFeedBetweenRate)
    ON_BN_CLICKED(IDC_MX_LEAD_ON_FEED, &CMultiAxisPage::OnSelLeadOnFeed)
    ON_CBN_SELCHANGE(IDC_MX_CHANGE_TOOL_AXIS, &CMultiAxisPage::OnSelChangeToolAxis)
    ON_BN_CLICKED(IDC_MX_VERTICAL_FOR_RAPID, &CMultiAxisPage::OnSelToolVertical)
    ON_CBN_SELCHANGE(IDC_MX_RAPID_FREQUENCY, &CMultiAxisPage::OnSelRapidFrequency)
    ON_CBN_SELCHANGE(IDC_MX_SIDE_STEP_MODE, &CMultiAxisPage::OnSelSideStepMode)
    ON_BN_CLICKED(IDC_MX_WRITE_NORMAL, &CMultiAxisPage::OnSelWriteNormal)
    ON_CBN_SELCHANGE(IDC_MX_SORT_TYPE, &CMultiAxisPage::OnSelSortType)
    ON_EN_CHANGE(IDC_MX_FEED_BETWEEN_CLEARANCE, &CMultiAxisPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnChangeOptionInfo)
    ON_EN_CHANGE(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnChangeOptionInfo)
    ON_BN_CLICKED(IDC_MX_ROTARY_OPTIONS, &CMultiAxisPage::OnRotaryOptions)
END_MESSAGE_MAP()

void CMultiAxisPage::GetData(int units)
{
    CRecordPage::GetData(units);
    AxisOf(Binding()).hidesRotaryOptions = true;
}

void CMultiAxisPage::GetData(int units, double axis[2][3])
{
    CRecordPage::GetData(units);
    AxisPoints points;
    std::memcpy(points.data(), axis, sizeof points);
    AxisOf(Binding()).SetAxis(points);
}

void CMultiAxisPage::SetData(double axis[2][3])
{
    const AxisPoints points = AxisOf(Binding()).Axis();
    std::memcpy(axis, points.data(), sizeof points);
}

void CMultiAxisPage::OnChangeOptionInfo()
{
    SetModified();
}

void CMultiAxisPage::OnKillFFeedBetweenClearance()
{
    Handle(At<MultiAxisTable>(IDC_MX_FEED_BETWEEN_CLEARANCE));
}

void CMultiAxisPage::OnKillFMaxFeedBetween()
{
    Handle(At<MultiAxisTable>(IDC_MX_MAX_FEED_BETWEEN));
}

void CMultiAxisPage::OnKillFRapidPlane()
{
    Handle(At<MultiAxisTable>(IDC_MX_RAPID_PLANE));
}

void CMultiAxisPage::OnKillFRapidPlunge()
{
    Handle(At<MultiAxisTable>(IDC_MX_RAPID_PLUNGE));
}

void CMultiAxisPage::OnSelRotaryMotionType()
{
    Handle(At<MultiAxisTable>(IDC_MX_ROTARY));
}

void CMultiAxisPage::OnSelFeedBetweenType()
{
    Handle(At<MultiAxisTable>(IDC_MX_FEED_BETWEEN_TYPE));
}

void CMultiAxisPage::OnSelFeedBetweenRate()
{
    Handle(At<MultiAxisTable>(IDC_MX_FEED_BETWEEN_RATE));
}

void CMultiAxisPage::OnSelLeadOnFeed()
{
    Handle(At<MultiAxisTable>(IDC_MX_LEAD_ON_FEED));
}

void CMultiAxisPage::OnSelChangeToolAxis()
{
    Handle(At<MultiAxisTable>(IDC_MX_CHANGE_TOOL_AXIS));
}

void CMultiAxisPage::OnSelToolVertical()
{
    Handle(At<MultiAxisTable>(IDC_MX_VERTICAL_FOR_RAPID));
}

void CMultiAxisPage::OnSelRapidFrequency()
{
    Handle(At<MultiAxisTable>(IDC_MX_RAPID_FREQUENCY));
}

void CMultiAxisPage::OnSelSideStepMode()
{
    Handle(At<MultiAxisTable>(IDC_MX_SIDE_STEP_MODE));
}

void CMultiAxisPage::OnSelWriteNormal()
{
    Handle(At<MultiAxisTable>(IDC_MX_WRITE_NORMAL));
}

void CMultiAxisPage::OnSelSortType()
{
    Handle(At<MultiAxisTable>(IDC_MX_SORT_TYPE));
}

void CMultiAxisPage::OnRotaryOptions()
{
    AxisHolder& holder = AxisOf(Binding());
    CDefsRotaryMillDlg dialog(this);
    dialog.m_axis = holder.Axis();
    dialog.m_recordWithFactoryAxis = [&holder] { return holder.RecordWithFactoryAxis(); };
    const INT_PTR result = dialog.DoModal();
    holder.TakeAxisOfDialog(result, dialog.m_axis);
}

void CMultiAxisPage::OnRestoreDefaults()
{
    RestoreDefaults();
}

} // namespace pelmar
