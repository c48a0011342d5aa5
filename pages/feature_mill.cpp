#include "pages/feature_mill.h"

#include "pages/feature_mill_options.h"
#include "resources/resource.h"

namespace {
constexpr char kPageTopic[] = "pelmar-_options_hidd_2axis_cut_opt.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_RESTORE_DEFAULTS, "pelmar-_ncdlgs_defaults_button.htm"},
    {IDC_FEATURE_GAUGE_LENGTH, "pelmar-_optionspopups_toollib_gauge_length.htm"}, // on the pages that have the button
};
} // namespace

// ---- all of them ----

BEGIN_MESSAGE_MAP(CFeatureMillPage, CExpRegenPropertyPage)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CFeatureMillPage::OnDefButton)
    ON_COMMAND(ID_HELP, &CFeatureMillPage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CFeatureMillPage::SetDefaults)
END_MESSAGE_MAP()

CFeatureMillPage::CFeatureMillPage(int templateId, std::unique_ptr<FeatureMillOptions> options)
    : CExpRegenPropertyPage(templateId), m_options(std::move(options))
{
}

CFeatureMillPage::~CFeatureMillPage() = default;

void CFeatureMillPage::GetData(int units)
{
    m_options->TakeLive(units);
}

void CFeatureMillPage::DoDataExchange(CDataExchange* exchange)
{
    CExpRegenPropertyPage::DoDataExchange(exchange);
    m_options->Exchange(exchange);
}

void CFeatureMillPage::AttachEdits()
{
    m_edits = m_options->AttachEdits(*this);
}

BOOL CFeatureMillPage::OnSetActive()
{
    if (!m_edits)
        AttachEdits();
    m_options->FillLists(*this);
    m_options->ShowLists(*this);
    return CExpRegenPropertyPage::OnSetActive();
}

void CFeatureMillPage::LeaveEdit(int id)
{
    m_options->LeaveEdit(*this, id);
}

void CFeatureMillPage::StoreChoice(int id)
{
    m_options->StoreChoice(*this, id);
}

void CFeatureMillPage::OnDefButton()
{
    m_options->TakeDefaults();
    m_options->ShowLists(*this);
    UpdateData(FALSE);
}

LRESULT CFeatureMillPage::SetDefaults(WPARAM, LPARAM)
{
    OnDefButton();
    return 0;
}

void CFeatureMillPage::OnOK()
{
    CExpRegenPropertyPage::OnOK();
    m_options->PutBack();
    SetModified(FALSE);
}

void CFeatureMillPage::OnHelp()
{
    ShowHelp(kPageTopic, kTopics);
}

// ---- those with rough and finish passes ----

BEGIN_MESSAGE_MAP(CRoughFinishMillPage, CFeatureMillPage)
    ON_CBN_SELCHANGE(IDC_FEATURE_CUTTING_DIRECTION, &CRoughFinishMillPage::OnSelchangeDefCuttingDir)
    ON_CBN_SELCHANGE(IDC_FEATURE_ROUGH_DEPTH_TYPE, &CRoughFinishMillPage::OnSelchangeDefRdocType)
    ON_CBN_SELCHANGE(IDC_FEATURE_FINISH_DEPTH_TYPE, &CRoughFinishMillPage::OnSelchangeDefFdocType)
    ON_EN_KILLFOCUS(IDC_FEATURE_STOCK, &CRoughFinishMillPage::OnKillfocusDefStockLeave)
    ON_EN_KILLFOCUS(IDC_FEATURE_ROUGH_DEPTH, &CRoughFinishMillPage::OnKillfocusDefMaxRoughDoc)
    ON_EN_KILLFOCUS(IDC_FEATURE_FINISH_DEPTH, &CRoughFinishMillPage::OnKillfocusDefFinishDoc)
    ON_EN_KILLFOCUS(IDC_FEATURE_RAPID_PLANE, &CRoughFinishMillPage::OnKillfocusDefRapidPlane)
END_MESSAGE_MAP()

CRoughFinishMillPage::CRoughFinishMillPage(int templateId, std::unique_ptr<FeatureMillOptions> options)
    : CFeatureMillPage(templateId, std::move(options))
{
}

void CRoughFinishMillPage::OnSelchangeDefCuttingDir()
{
    StoreChoice(IDC_FEATURE_CUTTING_DIRECTION);
}

void CRoughFinishMillPage::OnSelchangeDefRdocType()
{
    StoreChoice(IDC_FEATURE_ROUGH_DEPTH_TYPE);
}

void CRoughFinishMillPage::OnSelchangeDefFdocType()
{
    StoreChoice(IDC_FEATURE_FINISH_DEPTH_TYPE);
}

void CRoughFinishMillPage::OnKillfocusDefStockLeave()
{
    LeaveEdit(IDC_FEATURE_STOCK);
}

void CRoughFinishMillPage::OnKillfocusDefMaxRoughDoc()
{
    LeaveEdit(IDC_FEATURE_ROUGH_DEPTH);
}

void CRoughFinishMillPage::OnKillfocusDefFinishDoc()
{
    LeaveEdit(IDC_FEATURE_FINISH_DEPTH);
}

void CRoughFinishMillPage::OnKillfocusDefRapidPlane()
{
    LeaveEdit(IDC_FEATURE_RAPID_PLANE);
}
