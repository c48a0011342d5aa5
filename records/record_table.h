// What all option records do with their files and units, told by the rows of one table.
#pragma once

#include <span>
#include <string_view>

#include "records/option.h"
#include "records/value_source.h"

namespace pelmar {

/// The rows of one kind of record and its section of the settings files. A record is handed in without its type; the
/// caller answers for it being the table's.
class RecordTable {
public:
    /// Does not compile where a row is another record's, where the first is not "Units", or where a key stands twice.
    consteval RecordTable(const char* section, const char* operation, std::span<const Option> options)
        : m_section(section), m_operation(operation), m_options(options)
    {
        if (options.empty() || options.front().kind != OptionKind::Units)
            mistake::FirstRowIsNotTheUnits();
        for (const Option& option : options)
            if (option.record != options.front().record)
                mistake::RowNamesAFieldOfAnotherRecord();
        for (std::size_t row = 0; row < options.size(); ++row)
            for (std::size_t other = 0; other < row; ++other)
                if (options[row].key && options[other].key && std::string_view(options[row].key) == options[other].key)
                    mistake::KeyStandsTwice();
    }

    constexpr const char* Section() const { return m_section; }
    /// The kind of machining, for people.
    constexpr const char* Operation() const { return m_operation; }
    constexpr std::span<const Option> Options() const { return m_options; }

    // With the library's own files:

    /// Writes every key to the settings file, in the table's order and in one step. Where that fails, LastSave tells
    /// why.
    void Save(const void* record) const;
    /// Reads every key from one version of the settings file; what is absent stays as it is. Nothing is converted.
    void Restore(void* record) const;
    /// Reads every key but the units from the defaults file; what is absent stays as it is.
    void ReadDefaults(void* record) const;
    /// The units that the defaults file is in.
    int UnitsOfDefaults(int fallback) const;

    /// The same from another source.
    void Restore(void* record, const ValueSource& from) const;
    void ReadDefaults(void* record, const ValueSource& from) const;
    /// Scales the lengths to other units. Only 0 is inch, for the factor: from anything else it is the one back to
    /// inch.
    void Convert(void* record, long units) const;

private:
    const char* m_section;
    const char* m_operation;
    std::span<const Option> m_options;
};

} // namespace pelmar
