// Records in the library's own files.
#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "records/record_table.h"

namespace pelmar {
namespace {

class SettingsFile final : public ValueSource {
public:
    int Whole(const char* section, const char* key, int fallback) const override
    {
        return ReadWhole(section, key, fallback);
    }
    double Real(const char* section, const char* key, double fallback) const override
    {
        return ReadReal(section, key, fallback);
    }
};

class DefaultsFile final : public ValueSource {
public:
    int Whole(const char* section, const char* key, int fallback) const override
    {
        return ReadDefaultWhole(section, key, fallback);
    }
    double Real(const char* section, const char* key, double fallback) const override
    {
        return ReadDefaultReal(section, key, fallback);
    }
};

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
