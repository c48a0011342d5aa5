// Tables of a page's controls and what a page does with them. A handler of a page is then a line or two.
//
// All of it takes a control that the page's template does not hold for nothing, and goes on.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
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
constexpr Range kCornerAngles{30.0, 150.0};

/// What of a control a whole-number field is exchanged with.
enum class Binding {
    Text,
    Check, ///< 1 when checked, else 0
    OnOff, ///< 1 when checked, else 2; whatever is not 2 shows as checked
    Index, ///< of a list's selection
};

/// A control that takes part in the page's data exchange.
template <class Record> struct ExchangeRow {
    /// An expression edit of a real.
    constexpr ExchangeRow(int control, double Record::*real, Range bounds)
        : id(control), field(real), range(bounds), isExpressionEdit(true)
    {
    }
    constexpr ExchangeRow(int control, int Record::*whole, Binding how = Binding::Text)
        : id(control), field(whole), binding(how)
    {
    }
    /// An edit that takes expressions when the page's data are exchanged, but does not know "=".
    constexpr ExchangeRow PlainEdit() const { return With(false); }
    /// A whole number in an edit that knows "=".
    constexpr ExchangeRow ExpressionEdit() const { return With(true); }
    /// The range is that of another field, which is checked in place of this one.
    constexpr ExchangeRow ChecksInstead(double Record::*other) const
    {
        ExchangeRow row = *this;
        row.checked = other;
        return row;
    }

    bool IsReal() const { return std::holds_alternative<double Record::*>(field); }
    double& RealOf(Record& record) const { return record.*std::get<double Record::*>(field); }
    int& WholeOf(Record& record) const { return record.*std::get<int Record::*>(field); }

    int id;
    std::variant<int Record::*, double Record::*> field;
    std::optional<Range> range;        ///< of a real
    double Record::*checked = nullptr; ///< in place of the own field
    Binding binding = Binding::Text;
    bool isExpressionEdit = false;

private:
    constexpr ExchangeRow With(bool expressionEdit) const
    {
        ExchangeRow row = *this;
        row.isExpressionEdit = expressionEdit;
        return row;
    }
};

/// A list; the stored value is the position in it plus the first value.
template <class Record> struct ChoiceRow {
    int id;
    int Record::*field;
    std::span<const UINT> texts; ///< of the string table, in the list's order
    int firstValue = 0;
};

/// A check box that its handlers keep: 1 when checked, else 0.
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
void FillList(const CWnd& page, int id, std::span<const wchar_t* const> texts);
void SelectIndex(const CWnd& page, int id, int index);
/// The list's selection; nothing where there is none.
std::optional<int> SelectedIndex(const CWnd& page, int id);
/// Puts the list's selection into `value`. False, and the value stays, where nothing is selected.
bool StoreSelection(const CWnd& page, int id, int& value);
/// The same, and true only when the selection is another value than before.
bool StoreNewSelection(const CWnd& page, int id, int& value);
void ShowCheck(const CWnd& page, int id, bool checked);
/// Puts `checked` into `value` when the box is checked, else `unchecked`.
void StoreCheck(const CWnd& page, int id, int& value, int unchecked = 0, int checked = 1);

/// Gouge check of a check box: 1 is on, 2 is off, and whatever a file holds that is not 2 shows as on.
constexpr int kGougeCheckOff = 2;
void ExchangeOnOff(CDataExchange* exchange, int id, int& value);

/// Tells the other pages of the sheet of a change: the new index, or the address of the changed real.
void NotifySiblings(CPropertyPage& page, WPARAM code, int index);
void NotifySiblings(CPropertyPage& page, WPARAM code, const double& value);

/// The user has chosen from a list that other pages follow: keeps the choice, if there is one, tells them the index and
/// marks the page modified.
void ShareSelection(CPropertyPage& page, int id, int& value, WPARAM code);
/// The same, but a choice that is the old one is not told.
void ShareNewSelection(CPropertyPage& page, int id, int& value, WPARAM code);

// ---- tables ----

template <class Record> void ExchangeControl(CDataExchange* exchange, Record& record, const ExchangeRow<Record>& row)
{
    if (row.IsReal()) {
        // The field keeps its value until the new one has passed its check.
        double value = row.RealOf(record);
        DDX_Expression(exchange, row.id, value);
        DDV_ExpressionRange(exchange, row.checked ? record.*row.checked : value, row.range->low, row.range->high);
        row.RealOf(record) = value;
        return;
    }
    switch (row.binding) {
    case Binding::Text:
        DDX_Text(exchange, row.id, row.WholeOf(record));
        break;
    case Binding::Check:
        DDX_Check(exchange, row.id, row.WholeOf(record));
        break;
    case Binding::OnOff:
        ExchangeOnOff(exchange, row.id, row.WholeOf(record));
        break;
    case Binding::Index:
        DDX_CBIndex(exchange, row.id, row.WholeOf(record));
        break;
    }
}

/// Exchanges the controls in the table's order, checking ranges.
template <class Record>
void ExchangeControls(CDataExchange* exchange, Record& record, std::span<const ExchangeRow<Record>> rows)
{
    for (const ExchangeRow<Record>& row : rows)
        if (ControlOf(*exchange->m_pDlgWnd, row.id))
            ExchangeControl(exchange, record, row);
}

/// Makes the table's expression edits such. They are so as long as the page keeps what is returned, one object each.
template <class Record>
std::unique_ptr<CExpEqEdit[]> AttachExpressionEdits(CWnd& page, std::span<const ExchangeRow<Record>> rows)
{
    const auto count = std::ranges::count_if(rows, &ExchangeRow<Record>::isExpressionEdit);
    auto edits = std::make_unique<CExpEqEdit[]>(static_cast<size_t>(count));
    size_t next = 0;
    for (const ExchangeRow<Record>& row : rows)
        if (row.isExpressionEdit)
            edits[next++].SubclassDlgItem(static_cast<unsigned>(row.id), &page);
    return edits;
}

template <class Record> void FillChoices(const CWnd& page, std::span<const ChoiceRow<Record>> rows)
{
    for (const ChoiceRow<Record>& row : rows)
        FillList(page, row.id, row.texts);
}

template <class Record>
void ShowChoices(const CWnd& page, const Record& record, std::span<const ChoiceRow<Record>> rows)
{
    for (const ChoiceRow<Record>& row : rows) {
        const int value = record.*row.field;
        SelectIndex(page, row.id, value < row.firstValue ? -1 : value - row.firstValue);
    }
}

template <class Record> void ShowChecks(const CWnd& page, const Record& record, std::span<const CheckRow<Record>> rows)
{
    for (const CheckRow<Record>& row : rows)
        ShowCheck(page, row.id, record.*row.field != 0);
}

// ---- handlers ----

/// The user has chosen from a list: keeps the choice, if there is one.
template <class Record>
void StoreChoice(const CWnd& page, Record& record, std::span<const ChoiceRow<Record>> rows, int id)
{
    const ChoiceRow<Record>& row = RowOf(rows, id);
    if (const std::optional<int> index = SelectedIndex(page, id))
        record.*row.field = *index + row.firstValue;
}

/// The same, and marks the page modified.
template <class Record>
void TakeChoice(CPropertyPage& page, Record& record, std::span<const ChoiceRow<Record>> rows, int id)
{
    StoreChoice(page, record, rows, id);
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
template <class Record> bool LeaveEdit(CWnd& page, Record& record, std::span<const ExchangeRow<Record>> rows, int id)
{
    if (!page.UpdateData(TRUE))
        return false;
    ShowExpression(&page, id, &RowOf(rows, id).RealOf(record));
    return true;
}
