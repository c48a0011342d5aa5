// What a page keeps behind its class: its copy of the record, bound to the live record and to the page's controls.
#pragma once

#include "PelmarDlgs/pages/record_page.h"
#include "pages/field_leaving.h"
#include "pages/page_controls.h"
#include "pages/tips.h"
#include "records/record_kind.h"

namespace pelmar {

/// Why a page goes over what may be used.
struct Occasion {
    enum Kind { Activation, Choice, Defaults } kind;
    int control = 0; ///< the one that was chosen from or clicked

    bool Is(Kind other) const { return kind == other; }
    bool IsChoiceOf(int id) const { return kind == Choice && control == id; }
};

class PageBinding : public TipSource {
public:
    explicit PageBinding(const PageFacts& facts) : m_facts(facts), m_tips(*this) {}
    virtual ~PageBinding() = default;
    PageBinding(const PageBinding&) = delete;
    PageBinding& operator=(const PageBinding&) = delete;

    // ---- the record ----

    virtual void TakeLive(int hostUnits) = 0;
    virtual void PutBack() const = 0;
    virtual void TakeDefaults() = 0;

    // ---- what the page does ----

    /// The page's window has been made, for the first time or once more.
    void Initialise(const CExpRegenPropertyPage& page);
    void Activate(CExpRegenPropertyPage& page);
    virtual void Exchange(CWnd& page, CDataExchange* exchange);
    void Handle(CExpRegenPropertyPage& page, int id);
    /// For the handler of an edit that the user leaves. False where the data are not taken.
    bool TakeLeftData(CExpRegenPropertyPage& page) { return m_leaving.TakeData(page); }
    /// The user leaves the page without OK.
    void GiveUp() { m_leaving.GiveUp(); }
    /// Shows the defaults that the copy has taken, where the page does so at once.
    virtual void ShowDefaults(CExpRegenPropertyPage& page);
    /// For the messages of the page and its controls, before they are dispatched.
    void WatchForTips(const CWnd& page, const MSG& message) { m_tips.Watch(page, message); }
    const PageFacts& Facts() const override { return m_facts; }
    void ShowHelp(const CWnd& page, CPoint position) const
    {
        pelmar::ShowHelp(page, position, m_facts.topic, m_facts.controls);
    }

protected:
    virtual void* Record() = 0;

    // ---- what is a page's own ----

    /// Shows what the table does not tell, at each activation.
    virtual void ShowMore(CPropertyPage&) {}
    /// Enables what may be used now, disables what may not. A read-only page is disabled after it.
    virtual void ApplyRules(CWnd&, const Occasion&) {}

    /// Goes over what may be used; the last word is the read-only flag's, as the page was last shown with it.
    void GoOver(CExpRegenPropertyPage& page, const Occasion& occasion);
    void ShowLists(const CWnd& page) { ShowKept(page, Record(), m_facts.controls); }
    void ShowInPlaceOfRefused(CWnd& page) { pelmar::ShowInPlaceOfRefused(page, Record(), m_facts.controls); }

private:
    void LeaveEdit(CExpRegenPropertyPage& page, const Control& control);
    void TakeChoice(CPropertyPage& page, const Control& control);
    void TakeCheck(CPropertyPage& page, const Control& control);

    const PageFacts& m_facts;
    ExpressionEdits m_edits;
    FieldLeaving m_leaving;
    Tips m_tips;
    bool m_isReadOnly = false;
};

/// What a page holds until it is handed data.
enum class StartsWith {
    BuiltInValues,
    LiveRecord,
};

template <class R> class BindingOf : public PageBinding {
public:
    explicit BindingOf(const PageFacts& facts, StartsWith start = StartsWith::LiveRecord) : PageBinding(facts)
    {
        if (start == StartsWith::LiveRecord)
            record = *Kind().Live();
    }

    void TakeLive(int hostUnits) override { record = Kind().LiveInUnitsOf(hostUnits); }
    void PutBack() const override { *Kind().Live() = record; }
    void TakeDefaults() override { Kind().TakeDefaults(record); }
    TipData DataForTips() override
    {
        const auto factory = std::make_shared<R>(record);
        Kind().TakeDefaults(*factory);
        return {&record, factory, record.Units};
    }

    R record;

protected:
    void* Record() override { return &record; }
    static RecordKind<R>& Kind() { return RecordFacts<R>::Kind(); }
};

} // namespace pelmar
