#include "pages/multi_axis.h"

#include <cstring>

#include "pages/milling_4axis.h"
#include "pages/milling_5axis.h"
#include "pages/multi_axis_tables.h"
#include "pages/rotary_dialog.h"

BEGIN_TEMPLATE_MESSAGE_MAP(CMultiAxisPage, Record, CExpRegenPropertyPage)
ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CMultiAxisPage::OnRestoreDefaults)
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
ON_EN_KILLFOCUS(IDC_MX_FEED_BETWEEN_CLEARANCE, &CMultiAxisPage::OnKillFFeedBetweenClearance)
ON_EN_KILLFOCUS(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnKillFMaxFeedBetween)
ON_EN_KILLFOCUS(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnKillFRapidPlane)
ON_EN_KILLFOCUS(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnKillFRapidPlunge)
ON_COMMAND(ID_HELP, &CMultiAxisPage::OnHelp)
ON_EN_CHANGE(IDC_MX_MAX_FEED_BETWEEN, &CMultiAxisPage::OnChangeOptionInfo)
ON_EN_CHANGE(IDC_MX_RAPID_PLANE, &CMultiAxisPage::OnChangeOptionInfo)
ON_EN_CHANGE(IDC_MX_RAPID_PLUNGE, &CMultiAxisPage::OnChangeOptionInfo)
ON_BN_CLICKED(IDC_MX_ROTARY_OPTIONS, &CMultiAxisPage::OnRotaryOptions)
ON_MESSAGE(kSetDefaultsMessage, &CMultiAxisPage::SetDefaults)
END_MESSAGE_MAP
()

    template <class Record>
    CMultiAxisPage<Record>::CMultiAxisPage(const MultiAxisOperation<Record>& operation)
    : Base(operation.templateId, operation.tables, *operation.tables.kind.Live()), m_operation(operation)
{
}

template <class Record> void CMultiAxisPage<Record>::GetData(int units)
{
    Base::GetData(units);
    m_hideRotaryOptions = 1;
}

template <class Record> void CMultiAxisPage<Record>::GetData(int units, double axis[2][3])
{
    Base::GetData(units);
    AxisPoints points;
    std::memcpy(points.data(), axis, sizeof points);
    SetAxis(points);
}

template <class Record> void CMultiAxisPage<Record>::SetData(double axis[2][3])
{
    const AxisPoints points = Axis();
    std::memcpy(axis, points.data(), sizeof points);
}

template <class Record> BOOL CMultiAxisPage<Record>::OnSetActive()
{
    this->ShowControls();
    FillRotaryList();
    ShowLists();
    if (m_options.LeadOnFeed == 1)
        EnableControl(*this, IDC_MX_SIDE_STEP_MODE, false);
    if (m_hideRotaryOptions)
        HideControl(*this, IDC_MX_ROTARY_OPTIONS);
    return CExpRegenPropertyPage::OnSetActive();
}

template <class Record> void CMultiAxisPage<Record>::ShowLists()
{
    SelectIndex(*this, IDC_MX_ROTARY, m_options.*m_operation.rotary);
    Base::ShowLists();
}

template <class Record> void CMultiAxisPage<Record>::OnKillFFeedBetweenClearance()
{
    LeaveEdit(IDC_MX_FEED_BETWEEN_CLEARANCE);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFMaxFeedBetween()
{
    LeaveEdit(IDC_MX_MAX_FEED_BETWEEN);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFRapidPlane()
{
    LeaveEdit(IDC_MX_RAPID_PLANE);
}

template <class Record> void CMultiAxisPage<Record>::OnKillFRapidPlunge()
{
    LeaveEdit(IDC_MX_RAPID_PLUNGE);
}

template <class Record> void CMultiAxisPage<Record>::OnChangeOptionInfo()
{
    this->SetModified();
}

template <class Record> void CMultiAxisPage<Record>::OnSelRotaryMotionType()
{
    StoreSelection(*this, IDC_MX_ROTARY, m_options.*m_operation.rotary);
    this->SetModified();
}

template <class Record> void CMultiAxisPage<Record>::OnSelFeedBetweenType()
{
    TakeChoice(IDC_MX_FEED_BETWEEN_TYPE);
}

template <class Record> void CMultiAxisPage<Record>::OnSelFeedBetweenRate()
{
    TakeChoice(IDC_MX_FEED_BETWEEN_RATE);
}

/// A lead-in between passes leaves no choice of the side step.
template <class Record> void CMultiAxisPage<Record>::OnSelLeadOnFeed()
{
    TakeCheck(IDC_MX_LEAD_ON_FEED);
    EnableControl(*this, IDC_MX_SIDE_STEP_MODE, m_options.LeadOnFeed == 0);
}

template <class Record> void CMultiAxisPage<Record>::OnSelChangeToolAxis()
{
    TakeChoice(IDC_MX_CHANGE_TOOL_AXIS);
}

template <class Record> void CMultiAxisPage<Record>::OnSelToolVertical()
{
    TakeCheck(IDC_MX_VERTICAL_FOR_RAPID);
}

template <class Record> void CMultiAxisPage<Record>::OnSelRapidFrequency()
{
    TakeChoice(IDC_MX_RAPID_FREQUENCY);
}

template <class Record> void CMultiAxisPage<Record>::OnSelSideStepMode()
{
    TakeChoice(IDC_MX_SIDE_STEP_MODE);
}

template <class Record> void CMultiAxisPage<Record>::OnSelWriteNormal()
{
    TakeCheck(IDC_MX_WRITE_NORMAL);
}

template <class Record> void CMultiAxisPage<Record>::OnSelSortType()
{
    TakeChoice(IDC_MX_SORT_TYPE);
}

template <class Record> void CMultiAxisPage<Record>::OnRotaryOptions()
{
    CDefsRotaryMillDlg dialog(this);
    dialog.m_axis = Axis();
    const INT_PTR result = dialog.DoModal();
    TakeAxisOfDialog(result, dialog.m_axis);
}

/// The side step stays as it can be chosen or not: only a click of the lead-in's box changes that.
template <class Record> void CMultiAxisPage<Record>::OnRestoreDefaults()
{
    m_options.vOptions_Defaults();
    ShowLists();
    this->UpdateData(FALSE);
}

template <class Record> LRESULT CMultiAxisPage<Record>::SetDefaults(WPARAM, LPARAM)
{
    OnRestoreDefaults();
    return 0;
}

template class CRecordPage<C4AxisOptionsInfo>;
template class CRecordPage<C5AxisOptionsInfo>;
template class CMultiAxisPage<C4AxisOptionsInfo>;
template class CMultiAxisPage<C5AxisOptionsInfo>;
