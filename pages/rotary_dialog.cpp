#include "pages/rotary_dialog.h"

#include "frame/help_viewer.h"
#include "frame/module.h"
#include "pages/rotary_dialog_controls.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {
/// The edits of the axis's coordinates, in its order.
constexpr int kEdits[] = {IDC_ROTARY_START_X, IDC_ROTARY_START_Y, IDC_ROTARY_START_Z,
                          IDC_ROTARY_END_X,   IDC_ROTARY_END_Y,   IDC_ROTARY_END_Z};
static_assert(std::size(kEdits) == std::tuple_size_v<AxisPoints>);
} // namespace

static_assert(int{CDefsRotaryMillDlg::IDD} == IDD_ROTARY);

BEGIN_MESSAGE_MAP(CDefsRotaryMillDlg, CDialog)
    ON_EN_KILLFOCUS(IDC_ROTARY_START_X, &CDefsRotaryMillDlg::OnKillFStartX)
    ON_EN_KILLFOCUS(IDC_ROTARY_START_Y, &CDefsRotaryMillDlg::OnKillFStartY)
    ON_EN_KILLFOCUS(IDC_ROTARY_START_Z, &CDefsRotaryMillDlg::OnKillFStartZ)
    ON_EN_KILLFOCUS(IDC_ROTARY_END_X, &CDefsRotaryMillDlg::OnKillFEndX)
    ON_EN_KILLFOCUS(IDC_ROTARY_END_Y, &CDefsRotaryMillDlg::OnKillFEndY)
    ON_EN_KILLFOCUS(IDC_ROTARY_END_Z, &CDefsRotaryMillDlg::OnKillFEndZ)
    ON_COMMAND(ID_HELP, &CDefsRotaryMillDlg::OnHelp)
END_MESSAGE_MAP()

CDefsRotaryMillDlg::CDefsRotaryMillDlg(CWnd* parent) : CDialog(IDD, parent) {}

INT_PTR CDefsRotaryMillDlg::DoModal()
{
    const ModuleResources resources;
    return CDialog::DoModal();
}

BOOL CDefsRotaryMillDlg::OnInitDialog()
{
    m_leaving.Begin();
    for (size_t coordinate = 0; coordinate < m_edits.size(); ++coordinate)
        m_edits[coordinate].SubclassDlgItem(static_cast<unsigned>(kEdits[coordinate]), this);
    return CDialog::OnInitDialog();
}

void CDefsRotaryMillDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    for (size_t coordinate = 0; coordinate < m_axis.size(); ++coordinate)
        DDX_Expression(exchange, kEdits[coordinate], m_axis[coordinate]);
}

void CDefsRotaryMillDlg::OnCancel()
{
    m_leaving.GiveUp();
    CDialog::OnCancel();
}

void CDefsRotaryMillDlg::LeaveEdit(size_t coordinate)
{
    if (m_leaving.TakeData(*this))
        ShowExpression(this, kEdits[coordinate], &m_axis[coordinate]);
}

void CDefsRotaryMillDlg::OnKillFStartX()
{
    LeaveEdit(0);
}

void CDefsRotaryMillDlg::OnKillFStartY()
{
    LeaveEdit(1);
}

void CDefsRotaryMillDlg::OnKillFStartZ()
{
    LeaveEdit(2);
}

void CDefsRotaryMillDlg::OnKillFEndX()
{
    LeaveEdit(3);
}

void CDefsRotaryMillDlg::OnKillFEndY()
{
    LeaveEdit(4);
}

void CDefsRotaryMillDlg::OnKillFEndZ()
{
    LeaveEdit(5);
}

const PageFacts& CDefsRotaryMillDlg::Facts() const
{
    return kRotaryPage;
}

TipData CDefsRotaryMillDlg::DataForTips()
{
    SetAxisOf(m_record, m_axis);
    return {.record = &m_record, .factory = m_recordWithFactoryAxis ? m_recordWithFactoryAxis() : nullptr};
}

BOOL CDefsRotaryMillDlg::PreTranslateMessage(MSG* message)
{
    m_tips.Watch(*this, *message);
    return CDialog::PreTranslateMessage(message);
}

LRESULT CDefsRotaryMillDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_HELP)
        return CDialog::WindowProc(message, wParam, lParam);
    AskForHelp(*this);
    return TRUE;
}

void CDefsRotaryMillDlg::OnHelp()
{
    EndHelpMode(*this, {});
    ShowTopic(*this, kRotaryPage.topic);
}
