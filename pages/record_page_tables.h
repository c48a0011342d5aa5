// What a page brings to the shape of record_page.h, and what the shape makes of it. For the source of a page, which
// instantiates the shape for its record.
#pragma once

#include "pages/page_controls.h"
#include "pages/record.h"
#include "pages/record_page.h"

/// A record with the tables of its page. All of it lives as long as the library.
template <class Record> struct PageTables {
    RecordKind<Record>& kind;
    std::span<const ExchangeRow<Record>> exchange;
    std::span<const ChoiceRow<Record>> choices;
    std::span<const CheckRow<Record>> checks;
    const char* topic;
    std::span<const HelpTopic> topics;
};

template <class Record>
CRecordPage<Record>::CRecordPage(int templateId, const PageTables<Record>& tables, const Record& options)
    : CExpRegenPropertyPage(templateId), m_options(options), m_tables(tables)
{
}

template <class Record> void CRecordPage<Record>::GetData(int units)
{
    m_options = m_tables.kind.LiveInUnitsOf(units);
}

template <class Record> void CRecordPage<Record>::DoDataExchange(CDataExchange* exchange)
{
    CExpRegenPropertyPage::DoDataExchange(exchange);
    ExchangeControls(exchange, m_options, m_tables.exchange);
}

template <class Record> bool CRecordPage<Record>::ShowControls()
{
    const bool isFirst = !m_edits;
    if (isFirst)
        m_edits = AttachExpressionEdits(*this, m_tables.exchange);
    FillChoices(*this, m_tables.choices);
    ShowLists();
    return isFirst;
}

template <class Record> void CRecordPage<Record>::ShowLists()
{
    ShowChoices(*this, m_options, m_tables.choices);
    ShowChecks(*this, m_options, m_tables.checks);
}

template <class Record> bool CRecordPage<Record>::LeaveEdit(int id)
{
    return ::LeaveEdit(*this, m_options, m_tables.exchange, id);
}

template <class Record> void CRecordPage<Record>::TakeChoice(int id)
{
    ::TakeChoice(*this, m_options, m_tables.choices, id);
}

template <class Record> void CRecordPage<Record>::TakeCheck(int id)
{
    ::TakeCheck(*this, m_options, m_tables.checks, id);
}

template <class Record> void CRecordPage<Record>::OnOK()
{
    CExpRegenPropertyPage::OnOK();
    *m_tables.kind.Live() = m_options;
    SetModified(FALSE);
}

template <class Record> void CRecordPage<Record>::OnHelp()
{
    ShowHelp(m_tables.topic, m_tables.topics);
}
