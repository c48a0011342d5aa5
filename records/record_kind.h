// One kind of record: its one live instance, and the units that its page was last given.
#pragma once

#include "PelmarDlgs/settings_values.h"
#include "records/record_table.h"

namespace pelmar {

/// There is one object for each record, which lives as long as the library.
template <class Record> class RecordKind {
public:
    /// `takeDefaults`: the record's own operation.
    explicit RecordKind(void (Record::*takeDefaults)()) : m_takeDefaults(takeDefaults) {}

    static constexpr const RecordTable& Table() { return RecordFacts<Record>::table; }

    Record* Live() { return &m_live; }

    /// The built-in values, converted to the units of the defaults file and overlaid by what that file holds; all of it
    /// then converted to the kind's current units.
    void Defaults(Record& record, const Record& builtIn = Record()) const
    {
        Defaults(record, builtIn, Table().UnitsOfDefaults(kInch));
    }

    /// The same where the record has its own way of telling the units of the defaults file.
    void Defaults(Record& record, const Record& builtIn, int unitsOfDefaults) const
    {
        record = builtIn;
        Table().Convert(&record, unitsOfDefaults);
        Table().ReadDefaults(&record);
        Table().Convert(&record, m_currentUnits);
    }

    void TakeDefaults(Record& record) const { (record.*m_takeDefaults)(); }

    /// Makes the host's units the kind's current ones and converts the live instance to them.
    const Record& LiveInUnitsOf(int hostUnits)
    {
        m_currentUnits = UnitsOfHost(hostUnits);
        Table().Convert(&m_live, m_currentUnits);
        return m_live;
    }

private:
    void (Record::*m_takeDefaults)();
    Record m_live;
    int m_currentUnits = kInch;
};

} // namespace pelmar

/// What every record does by its table alone, under the names that hosts know.
#define IMPLEMENT_RECORD(Class, TakeDefaults, SaveRecord, RestoreRecord, CheckUnits, GetLast)                          \
    pelmar::RecordKind<Class>& pelmar::RecordFacts<Class>::Kind()                                                      \
    {                                                                                                                  \
        static RecordKind<Class> kind(&Class::TakeDefaults);                                                           \
        return kind;                                                                                                   \
    }                                                                                                                  \
    void Class::SaveRecord()                                                                                           \
    {                                                                                                                  \
        pelmar::RecordFacts<Class>::table.Save(this);                                                                  \
    }                                                                                                                  \
    void Class::RestoreRecord()                                                                                        \
    {                                                                                                                  \
        pelmar::RecordFacts<Class>::table.Restore(this);                                                               \
    }                                                                                                                  \
    void Class::CheckUnits(long units)                                                                                 \
    {                                                                                                                  \
        pelmar::RecordFacts<Class>::table.Convert(this, units);                                                        \
    }                                                                                                                  \
    Class* GetLast()                                                                                                   \
    {                                                                                                                  \
        return pelmar::RecordFacts<Class>::Kind().Live();                                                              \
    }

/// The same for the defaults, where nothing about them is a record's own.
#define IMPLEMENT_RECORD_DEFAULTS(Class, TakeDefaults)                                                                 \
    void Class::TakeDefaults()                                                                                         \
    {                                                                                                                  \
        pelmar::RecordFacts<Class>::Kind().Defaults(*this);                                                            \
    }
