#include "PelmarDlgs/dialogs/setup_sheet.h"

#include "dialogs/setup_sheet_controls.h"
#include "frame/module.h"
#include "pages/field_leaving.h"
#include "pages/page_controls.h"
#include "pages/tips.h"
#include "records/record_kind.h"

using namespace pelmar;

namespace {
using Record = CSSheetOptionsInfo;

constexpr int kCurrentStyle = 1;

/// The styles in the list's order: a position there is not the value that is stored.
constexpr int kStyleOrder[] = {kCurrentStyle, 0, 2};

/// What only the current style puts out.
constexpr int kOutputs[] = {IDC_SHEET_TOOLING, IDC_SHEET_TOOLING_GRAPHICS, IDC_SHEET_OPERATIONS};

} // namespace

static_assert(int{CDefsSetupsheet::IDD} == IDD_SETUP_SHEET);

/// What the dialog edits.
class pelmar::SetupSheetState final : public TipSource {
public:
    explicit SetupSheetState(CDefsSetupsheet& dialog) : m_dialog(dialog) {}

    /// A style that the list does not hold shows as the first one.
    void SelectStyle()
    {
        styles.SetCurSel(0);
        for (int index = 0; index < styles.GetCount(); ++index)
            if (static_cast<int>(styles.GetItemData(index)) == options.SetupStyle)
                styles.SetCurSel(index);
    }

    void EnableOutputs() const
    {
        for (const int output : kOutputs)
            EnableControl(m_dialog, output, options.SetupStyle == kCurrentStyle);
    }

    void LeaveEdit(int id, double& value)
    {
        if (leaving.TakeData(m_dialog))
            ShowExpression(&m_dialog, id, &value);
    }

    /// What the exchange does not show.
    void ShowStyle()
    {
        SelectStyle();
        EnableOutputs();
        hasNewStyle = false;
    }

    const PageFacts& Facts() const override { return kSetupSheetPage; }
    TipData DataForTips() override
    {
        const auto factory = std::make_shared<Record>(options);
        factory->vOptions_Defaults();
        return {&options, factory, options.Units};
    }

    ExpressionEdits edits;
    FieldLeaving leaving;
    Tips tips{*this};
    CComboBox styles;
    Record options;
    bool hasNewStyle = false; ///< the defaults brought it; the controls do not show it yet

private:
    CDefsSetupsheet& m_dialog;
};

IMPLEMENT_DYNCREATE(CDefsSetupsheet, CDialog)

BEGIN_MESSAGE_MAP(CDefsSetupsheet, pelmar::CNCDialog)
    ON_EN_KILLFOCUS(IDC_SHEET_RAPID_RATE, &CDefsSetupsheet::OnEnKillfocusEditRapidrate)
    ON_EN_KILLFOCUS(IDC_SHEET_TOOL_CHANGE_TIME, &CDefsSetupsheet::OnEnKillfocusEditToolchange)
    ON_BN_CLICKED(IDC_SHEET_TOOLING, &CDefsSetupsheet::OnBnClickedChkTooling)
    ON_CBN_SELCHANGE(IDC_SHEET_STYLE, &CDefsSetupsheet::OnCbnSelchangeCbStyle)
    ON_MESSAGE(kSetDefaultsMessage, &CDefsSetupsheet::SetDefaults)
    ON_COMMAND(ID_HELP, &CDefsSetupsheet::OnHelp)
END_MESSAGE_MAP()

CDefsSetupsheet::CDefsSetupsheet(CWnd* parent) : CNCDialog(IDD, parent), m_state(new SetupSheetState(*this)) {}

CDefsSetupsheet::~CDefsSetupsheet()
{
    delete m_state;
}

BOOL CDefsSetupsheet::OnInitDialog()
{
    m_state->hasNewStyle = false;
    CNCDialog::OnInitDialog();
    m_state->styles.SubclassDlgItem(IDC_SHEET_STYLE, this);
    for (const int style : kStyleOrder)
        m_state->styles.SetItemData(m_state->styles.AddString(LoadText(RecordFacts<Record>::styles[style].id)),
                                    static_cast<DWORD_PTR>(style));
    m_state->edits = AttachExpressionEdits(*this, kSetupSheetPage.controls);
    m_state->leaving.Begin();
    return TRUE;
}

void CDefsSetupsheet::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    ExchangeControls(exchange, &m_state->options, kSetupSheetPage.controls);
    if (!exchange->m_bSaveAndValidate && m_state->hasNewStyle)
        m_state->ShowStyle();
}

BOOL CDefsSetupsheet::PreTranslateMessage(MSG* message)
{
    m_state->tips.Watch(*this, *message);
    return CNCDialog::PreTranslateMessage(message);
}

void CDefsSetupsheet::OnCancel()
{
    m_state->leaving.GiveUp();
    CNCDialog::OnCancel();
}

void CDefsSetupsheet::GetData(int units)
{
    m_state->options = RecordFacts<Record>::Kind().LiveInUnitsOf(units);
    m_state->ShowStyle();
    UpdateData(FALSE);
}

void CDefsSetupsheet::SetData()
{
    *RecordFacts<Record>::Kind().Live() = m_state->options;
}

void CDefsSetupsheet::OnEnKillfocusEditRapidrate()
{
    m_state->LeaveEdit(IDC_SHEET_RAPID_RATE, m_state->options.RapidRate);
}

void CDefsSetupsheet::OnEnKillfocusEditToolchange()
{
    m_state->LeaveEdit(IDC_SHEET_TOOL_CHANGE_TIME, m_state->options.ToolChangeTime);
}

void CDefsSetupsheet::OnBnClickedChkTooling()
{
    if (UpdateData(TRUE))
        EnableControl(*this, IDC_SHEET_TOOLING_GRAPHICS, m_state->options.ToolingSetup != 0);
}

void CDefsSetupsheet::OnCbnSelchangeCbStyle()
{
    if (!UpdateData(TRUE))
        return;
    if (const std::optional<int> selected = SelectedIndex(*this, IDC_SHEET_STYLE))
        m_state->options.SetupStyle = static_cast<int>(m_state->styles.GetItemData(*selected));
    m_state->EnableOutputs();
    UpdateData(FALSE);
}

LRESULT CDefsSetupsheet::SetDefaults(WPARAM, LPARAM)
{
    m_state->options.vOptions_Defaults();
    m_state->hasNewStyle = true;
    return 0;
}

void CDefsSetupsheet::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kSetupSheetPage.topic, kSetupSheetPage.controls);
}
