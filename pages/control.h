// What a control of a page is: one row of the page's table. A table stands in exchange order; who reads it beside the
// window recognises the window. Rows know no window.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "records/option.h"
#include "resources/resource.h"

namespace pelmar {

enum class ControlKind {
    Edit,
    List, ///< filled on activation where it is empty
    Check,
    Button,
    Absent, ///< the template does not hold it
};

/// When a control tells the page's siblings of what it holds.
enum class Telling {
    Never,
    Always,
    Changes, ///< a choice that is the old one is not told
};

/// The expression edit that a control becomes on the first activation.
enum class Attached {
    None,
    Real,
    Whole,
};

struct Control {
    int id;
    ControlKind kind;
    const Option* option = nullptr; ///< what it edits; null where the page itself sees to that
    bool isExchanged = false;       ///< takes part in the page's data exchange
    bool isExchangedAsItStands = false;
    bool isKept = false; ///< shown on activation and stored by its handler
    bool marks = true;   ///< its handler marks the page modified
    Attached attached = Attached::None;
    const char* topic = nullptr; ///< of the help file; the page's own without one
    unsigned notice = 0;         ///< code of what it tells
    Telling telling = Telling::Never;
    std::optional<Range> range{};           ///< where it is not the option's
    const Option* checkedInstead = nullptr; ///< the option whose value and range are checked in place of the own ones
    ChoiceTexts choices{};                  ///< of a list; the option's unless the page says otherwise

    constexpr Control Help(const char* helpTopic) const
    {
        Control control = *this;
        control.topic = helpTopic;
        return control;
    }
    /// Leaving the edit or choosing from the list tells the siblings the new value's address or index.
    constexpr Control Tells(unsigned code) const { return With(code, Telling::Always); }
    constexpr Control TellsChanges(unsigned code) const { return With(code, Telling::Changes); }
    /// A list or box takes part in the exchange, besides what activation and handler do with it.
    constexpr Control InExchange() const
    {
        if (kind == ControlKind::List && option->firstChoice != 0)
            mistake::ExchangeKnowsPositionsOnly();
        Control control = *this;
        control.isExchanged = true;
        return control;
    }
    /// The exchange takes a checked box for 1 and an unchecked one for 0, whatever the switch stands for.
    constexpr Control InExchangeAsItStands() const
    {
        Control control = InExchange();
        control.isExchangedAsItStands = true;
        return control;
    }
    /// A box that the exchange alone shows and takes.
    constexpr Control ByExchangeOnly() const
    {
        Control control = InExchange();
        control.isKept = false;
        return control;
    }
    /// Its handler does not mark the page modified.
    constexpr Control Unmarked() const
    {
        Control control = *this;
        control.marks = false;
        return control;
    }
    /// An edit that takes expressions when the page's data are exchanged, but does not know "=".
    constexpr Control PlainEdit() const { return As(Attached::None); }
    constexpr Control As(Attached edit) const
    {
        Control control = *this;
        control.attached = edit;
        return control;
    }
    constexpr Control Offering(ChoiceTexts texts) const
    {
        Control control = *this;
        control.choices = texts;
        return control;
    }

private:
    constexpr Control With(unsigned code, Telling when) const
    {
        Control control = *this;
        control.notice = code;
        control.telling = when;
        return control;
    }
};

/// The row of a field in its record's table. Does not compile where the table has none.
template <auto Member> consteval const Option* OptionOf()
{
    for (const Option& option : RecordFacts<RecordOf<Member>>::options)
        if (option.field == FieldMark<Member>())
            return &option;
    mistake::FieldHasNoOptionRow();
    return nullptr;
}

// ---- the rows of a table ----

/// An edit: of a real as an expression edit with the option's range, of a whole number as it is.
template <auto Member> consteval Control Edit(int id)
{
    const bool isReal = std::is_same_v<ValueOf<Member>, double>;
    return {.id = id,
            .kind = ControlKind::Edit,
            .option = OptionOf<Member>(),
            .isExchanged = true,
            .attached = isReal ? Attached::Real : Attached::None};
}

/// A list of the page's own texts, or of the option's.
template <auto Member> consteval Control List(int id, ChoiceTexts texts)
{
    if (texts.empty())
        mistake::NothingToChooseFrom();
    return {.id = id, .kind = ControlKind::List, .option = OptionOf<Member>(), .isKept = true, .choices = texts};
}

template <auto Member> consteval Control List(int id)
{
    return List<Member>(id, OptionOf<Member>()->choices);
}

template <auto Member> consteval Control Check(int id)
{
    const Option* const option = OptionOf<Member>();
    if (option->kind != OptionKind::Switch)
        mistake::OptionIsNoSwitch();
    return {.id = id, .kind = ControlKind::Check, .option = option, .isKept = true};
}

/// A list whose selection the page itself sees to.
consteval Control PageList(int id, ChoiceTexts texts)
{
    return {.id = id, .kind = ControlKind::List, .choices = texts};
}

/// The same, of an option.
template <auto Member> consteval Control PageList(int id)
{
    return {.id = id, .kind = ControlKind::List, .option = OptionOf<Member>()};
}

/// An edit that the page itself exchanges.
consteval Control PageEdit(int id)
{
    return {.id = id, .kind = ControlKind::Edit};
}

/// The same, of an option.
template <auto Member> consteval Control PageEdit(int id)
{
    return {.id = id, .kind = ControlKind::Edit, .option = OptionOf<Member>()};
}

consteval Control Button(int id)
{
    return {.id = id, .kind = ControlKind::Button};
}

/// A button that stands for one value of an option; the page itself sees to it.
template <auto Member> consteval Control Button(int id)
{
    return {.id = id, .kind = ControlKind::Button, .option = OptionOf<Member>()};
}

/// A control that the table says something of although the template does not hold it.
consteval Control Absent(int id)
{
    return {.id = id, .kind = ControlKind::Absent};
}

/// The edit's range is checked with another field's value and range in place of its own.
template <auto Member> constexpr Control ChecksInstead(Control control)
{
    control.checkedInstead = OptionOf<Member>();
    return control;
}

/// A control that a page's table holds.
class ControlRow {
public:
    constexpr int Id() const { return m_id; }

private:
    template <class Table> friend consteval ControlRow At(int id);
    constexpr explicit ControlRow(int id) : m_id(id) {}

    int m_id;
};

/// The row of a control. Does not compile where the table lacks it.
template <class Table> consteval ControlRow At(int id)
{
    for (const Control& control : Table::controls)
        if (control.id == id)
            return ControlRow(id);
    mistake::TableLacksTheControl();
    return ControlRow(0);
}

/// A page's table, its template and its topic of the help file.
struct PageFacts {
    int templateId;
    std::span<const Control> controls;
    const char* topic;
};

} // namespace pelmar
