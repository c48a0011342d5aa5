// The shape that all option records share. A record is a plain class of whole numbers and reals with its built-in
// defaults as member initialisers; one table tells how its fields are kept and converted, in the order of the settings
// file, and the operations below do the rest.
#pragma once

#include <span>
#include <variant>

#include "frame/settings_values.h"

enum class Scaling {
    Never,
    Always,
};

/// How one field of a record is kept. Without a key it lives in memory only.
template <class Record> struct Field {
    using Whole = int Record::*;
    using Real = double Record::*;

    /// A count, a choice, a yes or no, or a unit code.
    constexpr Field(const char* name, Whole whole) : key(name), member(whole) {}
    /// An angle or a percentage (never scaled), or a length (always scaled with the units).
    constexpr Field(const char* name, Real real, Scaling scale = Scaling::Never)
        : key(name), member(real), scaling(scale)
    {
    }
    /// A length while its type is 0; else a multiple of the tool radius, which units do not touch.
    constexpr Field(const char* name, Real real, Whole type) : key(name), member(real), lengthType(type) {}

    /// Read from another section than it is written to.
    constexpr Field ReadFrom(const char* section) const
    {
        Field field = *this;
        field.readSection = section;
        return field;
    }
    /// A whole number that is put in bounds when it is read.
    constexpr Field Sanitized(int (*sanitizer)(int)) const
    {
        Field field = *this;
        field.sanitize = sanitizer;
        return field;
    }
    /// An operation of the record that runs as soon as the field has been read, before the next one is.
    constexpr Field ThenRun(void (Record::*operation)()) const
    {
        Field field = *this;
        field.afterRead = operation;
        return field;
    }
    /// Not taken from the defaults file: the built-in value stays.
    constexpr Field AbsentFromDefaults() const
    {
        Field field = *this;
        field.inDefaults = false;
        return field;
    }

    bool IsScaled(const Record& record) const
    {
        return lengthType ? record.*lengthType == 0 : scaling == Scaling::Always;
    }

    const char* key;
    std::variant<Whole, Real> member;
    Scaling scaling = Scaling::Never;
    Whole lengthType = nullptr;
    const char* readSection = nullptr;
    int (*sanitize)(int) = nullptr;
    void (Record::*afterRead)() = nullptr;
    bool inDefaults = true;
};

/// One kind of record: its table, its one live instance and the units that its page was last given.
/// The first field of the table is "Units".
template <class Record> class RecordKind {
public:
    RecordKind(const char* section, std::span<const Field<Record>> fields) : m_section(section), m_fields(fields) {}

    Record* Live() { return &m_live; }
    const char* Section() const { return m_section; }
    std::span<const Field<Record>> Fields() const { return m_fields; }

    /// Writes every key to the settings file, in the table's order.
    void Save(const Record& record) const
    {
        for (const Field<Record>& field : m_fields)
            if (field.key)
                Write(record, field);
    }

    /// Reads every key from the settings file; what is absent stays as it is. Nothing is converted.
    void Restore(Record& record) const
    {
        for (const Field<Record>& field : m_fields)
            if (field.key)
                Read(record, field, ReadWhole, ReadReal);
    }

    /// The units that the defaults file is in.
    int UnitsOfDefaults(int fallback = kInch) const
    {
        return ReadDefaultWhole(m_section, m_fields.front().key, fallback);
    }

    /// The built-in values, converted to the units of the defaults file and overlaid by what that file holds; all of it
    /// then converted to the kind's current units.
    void Defaults(Record& record, const Record& builtIn = Record()) const
    {
        Defaults(record, builtIn, UnitsOfDefaults());
    }

    /// The same where the record has its own way of telling the units of the defaults file.
    void Defaults(Record& record, const Record& builtIn, int unitsOfDefaults) const
    {
        record = builtIn;
        Convert(record, unitsOfDefaults);
        for (const Field<Record>& field : m_fields.subspan(1))
            if (field.key && field.inDefaults)
                Read(record, field, ReadDefaultWhole, ReadDefaultReal);
        Convert(record, m_currentUnits);
    }

    /// Scales the lengths to other units. Only 0 is inch, for the factor: from anything else it is the one back to
    /// inch.
    void Convert(Record& record, long units) const
    {
        if (record.Units == units)
            return;
        const double factor = record.Units != kInch ? kMillimetreToInch : kInchToMillimetre;
        for (const Field<Record>& field : m_fields)
            if (field.IsScaled(record))
                record.*std::get<typename Field<Record>::Real>(field.member) *= factor;
        record.Units = static_cast<int>(units);
    }

    /// Makes the host's units the kind's current ones and converts the live instance to them.
    const Record& LiveInUnitsOf(int hostUnits)
    {
        m_currentUnits = UnitsOfHost(hostUnits);
        Convert(m_live, m_currentUnits);
        return m_live;
    }

private:
    void Write(const Record& record, const Field<Record>& field) const
    {
        if (const auto* whole = std::get_if<typename Field<Record>::Whole>(&field.member))
            WriteWhole(m_section, field.key, record.**whole);
        else
            WriteReal(m_section, field.key, record.*std::get<typename Field<Record>::Real>(field.member));
    }

    template <class WholeReader, class RealReader>
    void Read(Record& record, const Field<Record>& field, WholeReader readWhole, RealReader readReal) const
    {
        const char* const section = field.readSection ? field.readSection : m_section;
        if (const auto* whole = std::get_if<typename Field<Record>::Whole>(&field.member)) {
            const int value = readWhole(section, field.key, record.**whole);
            record.** whole = field.sanitize ? field.sanitize(value) : value;
        } else {
            double& real = record.*std::get<typename Field<Record>::Real>(field.member);
            real = readReal(section, field.key, real);
        }
        if (field.afterRead)
            (record.*field.afterRead)();
    }

    const char* m_section;
    std::span<const Field<Record>> m_fields;
    Record m_live;
    int m_currentUnits = kInch;
};
