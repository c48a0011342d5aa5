#include "PelmarDlgs/pages/record_page.h"

#include "pages/page_binding.h"

namespace pelmar {

BEGIN_MESSAGE_MAP(CRecordPage, CExpRegenPropertyPage)
    ON_COMMAND(ID_HELP, &CRecordPage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &CRecordPage::SetDefaults)
END_MESSAGE_MAP()

CRecordPage::CRecordPage(int templateId, PageBinding* binding) : CExpRegenPropertyPage(templateId), m_binding(binding)
{
}

CRecordPage::~CRecordPage()
{
    delete m_binding;
}

void CRecordPage::GetData(int units)
{
    m_binding->TakeLive(units);
}

void CRecordPage::DoDataExchange(CDataExchange* exchange)
{
    CExpRegenPropertyPage::DoDataExchange(exchange);
    m_binding->Exchange(*this, exchange);
}

BOOL CRecordPage::OnInitDialog()
{
    m_binding->Initialise(*this);
    return CExpRegenPropertyPage::OnInitDialog();
}

BOOL CRecordPage::OnSetActive()
{
    m_binding->Activate(*this);
    return CExpRegenPropertyPage::OnSetActive();
}

void CRecordPage::OnOK()
{
    CExpRegenPropertyPage::OnOK();
    m_binding->PutBack();
    SetModified(FALSE);
}

void CRecordPage::OnReset()
{
    m_binding->GiveUp();
    CExpRegenPropertyPage::OnReset();
}

BOOL CRecordPage::PreTranslateMessage(MSG* message)
{
    m_binding->WatchForTips(*this, *message);
    return CExpRegenPropertyPage::PreTranslateMessage(message);
}

void CRecordPage::Handle(ControlRow row)
{
    m_binding->Handle(*this, row.Id());
}

void CRecordPage::RestoreDefaults()
{
    m_binding->TakeDefaults();
    m_binding->ShowDefaults(*this);
}

LRESULT CRecordPage::SetDefaults(WPARAM, LPARAM)
{
    RestoreDefaults();
    return 0;
}

void CRecordPage::OnHelp()
{
    m_binding->ShowHelp(*this, GetCurrentMessage()->pt);
}

} // namespace pelmar
