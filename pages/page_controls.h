// Tables of a page's controls and what a page does with them. A handler of a page is then a line or two.
//
// All of it takes a control that the page's template does not hold for nothing, and goes on.
#pragma once

#include <cstdlib>
#include <limits>
#include <span>
#include <variant>

#include <afxdlgs.h>

#include "expr/expression_edits.h"

/// Bounds of a field, both allowed. A side without a bound reaches to the largest single-precision value.
struct Range {
    double low;
    double high;
};

constexpr double kUnbounded = std::numeric_limits<float>::max();
constexpr Range kAnyReal{-kUnbounded, kUnbounded};
constexpr Range kNotNegative{0.0, kUnbounded};

/// An edit: a real is an expression edit, checked against its range; a whole number is a plain edit.
template <class Record> struct EditRow {
    constexpr EditRow(int control, double Record::*real, Range bounds) : id(control), field(real), range(bounds) {}
    constexpr EditRow(int control, int Record::*whole) : id(control), field(whole) {}

    bool IsReal() const { return std::holds_alternative<double Record::*>(field); }
    double& RealOf(Record& record) const { return record.*std::get<double Record::*>(field); }
    int& WholeOf(Record& record) const { return record.*std::get<int Record::*>(field); }

    int id;
    std::variant<int Record::*, double Record::*> field;
    Range range = kAnyReal;
};

/// A list whose position is the stored value.
template <class Record> struct ChoiceRow {
    int id;
    int Record::*field;
    std::span<const UINT> texts; ///< of the string table, in the list's order
};

/// A check box: 1 when checked, else 0.
template <class Record> struct CheckRow {
    int id;
    int Record::*field;
};

/// The control's row. A page asks for its own controls only; there is no row to go on with for any other.
template <class Row> const Row& RowOf(std::span<const Row> rows, int id)
{
    for (const Row& row : rows)
        if (row.id == id)
            return row;
    std::abort();
}

// ---- single controls ----

inline HWND ControlOf(const CWnd& page, int id)
{
    return ::GetDlgItem(page.m_hWnd, id);
}

void EnableControl(const CWnd& page, int id, bool enable);
void HideControl(const CWnd& page, int id);
/// Fills an empty list; a filled one keeps its items.
void FillList(const CWnd& page, int id, std::span<const UINT> texts);
void SelectIndex(const CWnd& page, int id, int index);
/// Puts the list's selection into `value`; with nothing selected the value stays.
void StoreSelection(const CWnd& page, int id, int& value);
void ShowCheck(const CWnd& page, int id, int value);
void StoreCheck(const CWnd& page, int id, int& value);

/// Tells the other pages of the sheet of a change: the new index, or the address of the changed real.
void NotifySiblings(CPropertyPage& page, WPARAM code, int index);
void NotifySiblings(CPropertyPage& page, WPARAM code, const double& value);

// ---- tables ----

/// Exchanges the edits in the table's order, checking ranges.
template <class Record>
void ExchangeEdits(CDataExchange* exchange, Record& record, std::span<const EditRow<Record>> rows)
{
    for (const EditRow<Record>& row : rows) {
        if (!ControlOf(*exchange->m_pDlgWnd, row.id))
            continue;
        if (!row.IsReal()) {
            DDX_Text(exchange, row.id, row.WholeOf(record));
            continue;
        }
        double value = row.RealOf(record);
        DDX_Expression(exchange, row.id, value);
        DDV_ExpressionRange(exchange, value, row.range.low, row.range.high);
        row.RealOf(record) = value;
    }
}

/// Makes the table's reals expression edits, one object each.
template <class Record>
void AttachExpressionEdits(CWnd& page, std::span<const EditRow<Record>> rows, std::span<CExpEqEdit> edits)
{
    size_t next = 0;
    for (const EditRow<Record>& row : rows)
        if (row.IsReal() && next < edits.size())
            edits[next++].SubclassDlgItem(static_cast<unsigned>(row.id), &page);
}

template <class Record> void FillChoices(const CWnd& page, std::span<const ChoiceRow<Record>> rows)
{
    for (const ChoiceRow<Record>& row : rows)
        FillList(page, row.id, row.texts);
}

template <class Record>
void ShowChoices(const CWnd& page, const Record& record, std::span<const ChoiceRow<Record>> rows)
{
    for (const ChoiceRow<Record>& row : rows)
        SelectIndex(page, row.id, record.*row.field);
}

template <class Record> void ShowChecks(const CWnd& page, const Record& record, std::span<const CheckRow<Record>> rows)
{
    for (const CheckRow<Record>& row : rows)
        ShowCheck(page, row.id, record.*row.field);
}

// ---- handlers ----

/// The user has chosen from a list: keeps the choice and marks the page modified.
template <class Record>
void TakeChoice(CPropertyPage& page, Record& record, std::span<const ChoiceRow<Record>> rows, int id)
{
    StoreSelection(page, id, record.*RowOf(rows, id).field);
    page.SetModified();
}

/// The user has clicked a check box: keeps its state and marks the page modified.
template <class Record>
void TakeCheck(CPropertyPage& page, Record& record, std::span<const CheckRow<Record>> rows, int id)
{
    StoreCheck(page, id, record.*RowOf(rows, id).field);
    page.SetModified();
}

/// The user leaves an edit: takes the page's data and shows the field again. False when the data were refused.
template <class Record>
bool LeaveEdit(CPropertyPage& page, Record& record, std::span<const EditRow<Record>> rows, int id)
{
    if (!page.UpdateData(TRUE))
        return false;
    ShowExpression(&page, id, &RowOf(rows, id).RealOf(record));
    return true;
}
