#include "pages/page_binding.h"

#include <algorithm>

namespace pelmar {

void PageBinding::Initialise(const CExpRegenPropertyPage& page)
{
    m_edits.clear(); // those of an earlier showing have lost their windows
    m_leaving.Begin();
    m_isReadOnly = page.m_readOnly != 0;
}

void PageBinding::Activate(CExpRegenPropertyPage& page)
{
    if (m_edits.empty())
        m_edits = AttachExpressionEdits(page, m_facts.controls);
    FillLists(page, m_facts.controls);
    ShowLists(page);
    ShowMore(page);
    m_isReadOnly = page.m_readOnly != 0;
    GoOver(page, {Occasion::Activation});
}

void PageBinding::Exchange(CWnd&, CDataExchange* exchange)
{
    ExchangeControls(exchange, Record(), m_facts.controls);
}

void PageBinding::GoOver(CExpRegenPropertyPage& page, const Occasion& occasion)
{
    ApplyRules(page, occasion);
    if (m_isReadOnly)
        page.DisableNonEditParameters();
}

void PageBinding::ShowDefaults(CExpRegenPropertyPage& page)
{
    ShowLists(page);
    page.UpdateData(FALSE);
    GoOver(page, {Occasion::Defaults});
}

void PageBinding::Handle(CExpRegenPropertyPage& page, int id)
{
    const auto control = std::ranges::find(m_facts.controls, id, &Control::id);
    if (control->kind == ControlKind::Edit) {
        LeaveEdit(page, *control);
        return;
    }
    if (control->kind == ControlKind::List)
        TakeChoice(page, *control);
    else
        TakeCheck(page, *control);
    if (control->marks)
        page.SetModified();
    GoOver(page, {Occasion::Choice, id});
}

void PageBinding::LeaveEdit(CExpRegenPropertyPage& page, const Control& control)
{
    if (!TakeLeftData(page) || !control.option->real)
        return;
    double& value = control.option->real(Record());
    ShowExpression(&page, control.id, &value);
    if (control.telling != Telling::Never)
        page.QuerySiblings(control.notice, reinterpret_cast<LPARAM>(&value));
}

void PageBinding::TakeChoice(CPropertyPage& page, const Control& control)
{
    const std::optional<int> index = SelectedIndex(page, control.id);
    if (!index)
        return;
    int& value = control.option->whole(Record());
    const int before = value;
    value = *index + control.option->firstChoice;
    if (control.telling == Telling::Always || (control.telling == Telling::Changes && value != before))
        page.QuerySiblings(control.notice, *index);
}

void PageBinding::TakeCheck(CPropertyPage& page, const Control& control)
{
    if (!ControlOf(page, control.id))
        return;
    const SwitchValues& values = control.option->switchValues;
    control.option->whole(Record()) = IsChecked(page, control.id) ? values.on : values.off;
}

} // namespace pelmar
