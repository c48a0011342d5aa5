// What a feature-milling page does with its record, behind an interface that does not know the record's type.
#pragma once

#include "pages/page_controls.h"
#include "pages/record.h"

/// A page's copy of its record, bound to the live record and to the page's controls.
class FeatureMillOptions {
public:
    virtual ~FeatureMillOptions() = default;

    virtual void TakeLive(int hostUnits) = 0;
    virtual void TakeDefaults() = 0;
    virtual void PutBack() const = 0;

    virtual void Exchange(CDataExchange* exchange) = 0;
    virtual std::unique_ptr<CExpEqEdit[]> AttachEdits(CWnd& page) const = 0;
    virtual void FillLists(const CWnd& page) const = 0;
    virtual void ShowLists(const CWnd& page) const = 0;

    virtual void LeaveEdit(CPropertyPage& page, int id) = 0;
    virtual void StoreChoice(const CWnd& page, int id) = 0;
    /// The field that a list chooses the value of.
    virtual int& ChoiceOf(int list) = 0;
};

template <class Record> class FeatureMillOptionsOf : public FeatureMillOptions {
public:
    FeatureMillOptionsOf(RecordKind<Record>& kind, std::span<const ExchangeRow<Record>> exchange,
                         std::span<const ChoiceRow<Record>> choices)
        : m_kind(kind), m_exchange(exchange), m_choices(choices), m_record(*kind.Live())
    {
    }

    void TakeLive(int hostUnits) override { m_record = m_kind.LiveInUnitsOf(hostUnits); }
    void TakeDefaults() override { m_record.Defaults(); }
    void PutBack() const override { *m_kind.Live() = m_record; }

    void Exchange(CDataExchange* exchange) override { ExchangeControls(exchange, m_record, m_exchange); }
    std::unique_ptr<CExpEqEdit[]> AttachEdits(CWnd& page) const override
    {
        return AttachExpressionEdits(page, m_exchange);
    }
    void FillLists(const CWnd& page) const override { FillChoices(page, m_choices); }
    void ShowLists(const CWnd& page) const override { ShowChoices(page, m_record, m_choices); }

    void LeaveEdit(CPropertyPage& page, int id) override { ::LeaveEdit(page, m_record, m_exchange, id); }
    void StoreChoice(const CWnd& page, int id) override { ::StoreChoice(page, m_record, m_choices, id); }
    int& ChoiceOf(int list) override { return m_record.*RowOf(m_choices, list).field; }

private:
    RecordKind<Record>& m_kind;
    std::span<const ExchangeRow<Record>> m_exchange;
    std::span<const ChoiceRow<Record>> m_choices;
    Record m_record;
};
