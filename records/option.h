// What an option is: one row of its record's table. Rows know no window and no file: they serve the records, the pages,
// the documents and every tool. Texts are UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace pelmar {

/// Mistakes in a table. Nothing of it exists: a table that comes to one of these while it is compiled does not build,
/// and the compiler names it.
namespace mistake {
void FirstRowIsNotTheUnits();
void RowNamesAFieldOfAnotherRecord();
void KeyStandsTwice();
void FieldHasNoOptionRow();
void NothingToChooseFrom();
void OptionIsNoSwitch();
void ExchangeKnowsPositionsOnly();
void TableLacksTheControl();
} // namespace mistake

/// Bounds of a value, both allowed. A side without a bound reaches to the largest single-precision value.
struct Range {
    double low;
    double high;

    friend constexpr bool operator==(const Range&, const Range&) = default;
};

constexpr double kUnbounded = std::numeric_limits<float>::max();
constexpr Range kAnyReal{-kUnbounded, kUnbounded};
constexpr Range kNotNegative{0.0, kUnbounded};

/// A text that a list offers: of the string table, or as it stands.
struct ChoiceText {
    constexpr ChoiceText(unsigned stringId) : id(stringId) {}
    constexpr ChoiceText(const char* text) : literal(text) {}

    unsigned id = 0;
    const char* literal = nullptr;
};

/// A list's texts, in its order.
using ChoiceTexts = std::span<const ChoiceText>;

enum class OptionKind {
    Units,
    Length,
    Feed,  ///< a length per minute
    Angle, ///< degrees
    Percent,
    Number, ///< a real that is none of these
    Count,  ///< a whole number
    Choice, ///< one of several texts
    Switch, ///< on or off
};

/// What units do to a length.
enum class Scaling {
    Never,
    Always,
    WhileConstant, ///< while the type beside it is 0; any other type makes it a multiple of the tool radius
};

/// Numbers that a switch is stored as.
struct SwitchValues {
    int on = 1;
    int off = 0;
    bool onlyOnIsOn = false; ///< another number than the two is off; else it is on
};

/// Finds a field in a record whose type is no longer known. The caller answers for the record being the right one.
template <class Value> using FieldOf = Value& (*)(void* record);

namespace detail {
template <class Member> struct MemberParts;
template <class Owner, class Field> struct MemberParts<Field Owner::*> {
    using Record = Owner;
    using Value = Field;
};
template <class Operation> struct OperationParts;
template <class Owner> struct OperationParts<void (Owner::*)()> {
    using Record = Owner;
};
} // namespace detail

/// The record of a member, and the type of its value.
template <auto Member> using RecordOf = typename detail::MemberParts<decltype(Member)>::Record;
template <auto Member> using ValueOf = typename detail::MemberParts<decltype(Member)>::Value;

/// The record of an operation.
template <auto Operation> using OwnerOf = typename detail::OperationParts<decltype(Operation)>::Record;

/// The field that a pointer to a member names.
template <auto Member> ValueOf<Member>& FieldAt(void* record)
{
    return static_cast<RecordOf<Member>*>(record)->*Member;
}

struct Option {
    const char* key;   ///< in the settings files; null for what lives in memory only
    const char* label; ///< as the page words it, without its access key and colon
    OptionKind kind;
    const char* record = nullptr; ///< stands for the record that the row is of
    std::uint64_t field = 0;      ///< stands for its field
    FieldOf<int> whole = nullptr; ///< one of the two is there
    FieldOf<double> real = nullptr;
    Scaling scaling = Scaling::Never;
    FieldOf<int> lengthType = nullptr; ///< while the scaling asks for it
    Range range = kAnyReal;            ///< of a real
    ChoiceTexts choices{};
    int firstChoice = 0; ///< stored value of the first text
    SwitchValues switchValues{};
    const char* readSection = nullptr;         ///< where it is read, if not in the record's own section
    int (*sanitize)(int) = nullptr;            ///< puts a whole number in bounds when it is read
    void (*afterRead)(void* record) = nullptr; ///< runs as soon as it has been read, before the next one is
    bool inDefaults = true;                    ///< false: the built-in value stays, whatever the defaults file holds

    // ---- deviations from the common shape ----

    constexpr Option Within(double low, double high) const
    {
        Option option = *this;
        option.range = {low, high};
        return option;
    }
    constexpr Option Within(Range bounds) const { return Within(bounds.low, bounds.high); }
    constexpr Option ReadFrom(const char* section) const
    {
        Option option = *this;
        option.readSection = section;
        return option;
    }
    constexpr Option Sanitized(int (*sanitizer)(int)) const
    {
        Option option = *this;
        option.sanitize = sanitizer;
        return option;
    }
    template <auto Operation> constexpr Option ThenRun() const
    {
        Option option = *this;
        option.afterRead = [](void* of) { (static_cast<OwnerOf<Operation>*>(of)->*Operation)(); };
        return option;
    }
    constexpr Option AbsentFromDefaults() const
    {
        Option option = *this;
        option.inDefaults = false;
        return option;
    }

    bool IsScaled(const void* of) const
    {
        return scaling == Scaling::Always || (scaling == Scaling::WhileConstant && In(lengthType, of) == 0);
    }
    double Value(const void* of) const { return whole ? In(whole, of) : In(real, of); }
    int Whole(const void* of) const { return In(whole, of); }
    double Real(const void* of) const { return In(real, of); }
    /// Whether a switch that holds this number is on.
    constexpr bool IsOn(int value) const
    {
        return switchValues.onlyOnIsOn ? value == switchValues.on : value != switchValues.off;
    }

private:
    template <class Value> static const Value& In(FieldOf<Value> field, const void* of)
    {
        return field(const_cast<void*>(of)); // it is only read
    }
};

// ---- the rows of a table ----

/// Stands for the record whose field a row names: a table holds the rows of one record only.
template <class Record> inline constexpr char kRecordMark = 0;

/// Stands for a field: a number from its name. Addresses of what stands for different fields cannot be compared while
/// compiling where the build looks for null pointers.
template <auto Member> consteval std::uint64_t FieldMark()
{
#ifdef _MSC_VER
    constexpr std::string_view kName = __FUNCSIG__;
#else
    constexpr std::string_view kName = __PRETTY_FUNCTION__;
#endif
    std::uint64_t mark = 14695981039346656037U; // FNV-1a
    for (const char letter : kName)
        mark = (mark ^ static_cast<unsigned char>(letter)) * 1099511628211U;
    return mark;
}

namespace detail {
template <auto Member> constexpr Option Row(const char* key, const char* label, OptionKind kind)
{
    Option option{.key = key,
                  .label = label,
                  .kind = kind,
                  .record = &kRecordMark<RecordOf<Member>>,
                  .field = FieldMark<Member>()};
    if constexpr (std::is_same_v<ValueOf<Member>, int>)
        option.whole = &FieldAt<Member>;
    else
        option.real = &FieldAt<Member>;
    return option;
}
} // namespace detail

/// In place of a key.
constexpr const char* kInMemoryOnly = nullptr;

/// The first row of every record.
template <class Record> constexpr Option Units()
{
    return detail::Row<&Record::Units>("Units", "Единицы", OptionKind::Units);
}

/// A length, always scaled with the units.
template <auto Member> constexpr Option Length(const char* key, const char* label)
{
    Option option = detail::Row<Member>(key, label, OptionKind::Length);
    option.scaling = Scaling::Always;
    return option;
}

/// A length while its type is 0; else a multiple of the tool radius, which units do not touch.
template <auto Member, auto TypeMember> constexpr Option Length(const char* key, const char* label)
{
    static_assert(std::is_same_v<RecordOf<Member>, RecordOf<TypeMember>>);
    Option option = detail::Row<Member>(key, label, OptionKind::Length);
    option.scaling = Scaling::WhileConstant;
    option.lengthType = &FieldAt<TypeMember>;
    return option;
}

/// A length that keeps its number in other units.
template <auto Member> constexpr Option UnscaledLength(const char* key, const char* label)
{
    return detail::Row<Member>(key, label, OptionKind::Length);
}

/// A speed, in lengths per minute; always scaled with the units.
template <auto Member> constexpr Option Feed(const char* key, const char* label)
{
    Option option = detail::Row<Member>(key, label, OptionKind::Feed);
    option.scaling = Scaling::Always;
    return option;
}

/// In degrees; a whole number where its field is one.
template <auto Member> constexpr Option Angle(const char* key, const char* label)
{
    return detail::Row<Member>(key, label, OptionKind::Angle);
}

template <auto Member> constexpr Option Percent(const char* key, const char* label)
{
    return detail::Row<Member>(key, label, OptionKind::Percent);
}

template <auto Member> constexpr Option Number(const char* key, const char* label)
{
    return detail::Row<Member>(key, label, OptionKind::Number);
}

template <auto Member> constexpr Option Count(const char* key, const char* label)
{
    return detail::Row<Member>(key, label, OptionKind::Count);
}

/// One of several texts; the stored value is the position among them plus `first`.
template <auto Member> constexpr Option Choice(const char* key, const char* label, ChoiceTexts texts, int first = 0)
{
    Option option = detail::Row<Member>(key, label, OptionKind::Choice);
    option.choices = texts;
    option.firstChoice = first;
    return option;
}

template <auto Member> constexpr Option Switch(const char* key, const char* label, SwitchValues values = {})
{
    Option option = detail::Row<Member>(key, label, OptionKind::Switch);
    option.switchValues = values;
    return option;
}

/// Rows that several tables share, put together in their order.
template <class Row, std::size_t... Counts> constexpr auto Joined(const std::array<Row, Counts>&... parts)
{
    return [&]<std::size_t... Indexes>(std::index_sequence<Indexes...>)
    {
        const Row* const starts[] = {parts.data()...};
        constexpr std::size_t counts[] = {Counts...};
        const auto at = [&](std::size_t index) {
            std::size_t part = 0;
            while (index >= counts[part])
                index -= counts[part++];
            return starts[part][index];
        };
        return std::array<Row, sizeof...(Indexes)>{at(Indexes)...};
    }
    (std::make_index_sequence<(Counts + ...)>());
}

template <class Record> class RecordKind;

/// What is known of a record, by its class: `options`, its rows in the order of the settings file; `table`, which adds
/// the section; and Kind(), its one live instance. A specialisation for each record.
template <class Record> struct RecordFacts;

} // namespace pelmar
