// Records in the library's own files.
#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "records/record_table.h"

namespace pelmar {
namespace {

/// One of the library's files, by the functions that read it.
template <auto readWhole, auto readReal> class LibraryFile final : public ValueSource {
public:
    int Whole(const char* section, const char* key, int fallback) const override
    {
        return readWhole(section, key, fallback);
    }
    double Real(const char* section, const char* key, double fallback) const override
    {
        return readReal(section, key, fallback);
    }
};

using SettingsFile = LibraryFile<ReadWhole, ReadReal>;
using DefaultsFile = LibraryFile<ReadDefaultWhole, ReadDefaultReal>;

} // namespace

void RecordTable::Save(const void* record) const
{
    SaveStep step;
    for (const Option& option : m_options) {
        if (!option.key)
            continue;
        if (option.whole)
            WriteWhole(m_section, option.key, option.Whole(record));
        else
            WriteReal(m_section, option.key, option.Real(record));
    }
    step.Commit();
}

void RecordTable::Restore(void* record) const
{
    const SettingsReading reading;
    Restore(record, SettingsFile());
}

void RecordTable::ReadDefaults(void* record) const
{
    ReadDefaults(record, DefaultsFile());
}

int RecordTable::UnitsOfDefaults(int fallback) const
{
    return DefaultsFile().Whole(m_section, m_options.front().key, fallback);
}

} // namespace pelmar
