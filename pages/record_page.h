// What the pages have in common that edit one record and share no more than this.
#pragma once

#include <memory>

#include "expr/expression_edits.h"
#include "frame/export.h"
#include "pages/option_page.h"

template <class Record> struct PageTables;

/// A page that edits a copy of the live record, which OK puts back. It writes no file.
template <class Record> class PELMAR_API CRecordPage : public CExpRegenPropertyPage {
public:
    /// Hands the page the host's units (1 millimetre, else inch) and fills it from the live record.
    void GetData(int units);

    void OnOK() override;

protected:
    /// A page that holds `options` until it is handed data. It keeps the reference to the tables.
    CRecordPage(int templateId, const PageTables<Record>& tables, const Record& options = Record());

    void DoDataExchange(CDataExchange* exchange) override;

    /// What a page's OnSetActive begins with: edits that take expressions, lists with their items, and ShowLists. True
    /// the first time.
    bool ShowControls();
    /// Shows the fields of lists and boxes. The exchange shows the others.
    void ShowLists();

    // What the user has done with a control. Leaving an edit is false when the page's data were refused; the others
    // mark the page modified.
    bool LeaveEdit(int id);
    void TakeChoice(int id);
    void TakeCheck(int id);
    void OnHelp();

    Record m_options; ///< the page's copy

private:
    const PageTables<Record>& m_tables;
    std::unique_ptr<CExpEqEdit[]> m_edits;
};
