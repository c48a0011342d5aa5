#include "records/record_table.h"

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"

namespace pelmar {
namespace {

template <class WholeReader, class RealReader>
void Read(void* record, const Option& option, const char* section, WholeReader readWhole, RealReader readReal)
{
    if (option.readSection)
        section = option.readSection;
    if (option.whole) {
        int& whole = option.whole(record);
        const int value = readWhole(section, option.key, whole);
        whole = option.sanitize ? option.sanitize(value) : value;
    } else {
        double& real = option.real(record);
        real = readReal(section, option.key, real);
    }
    if (option.afterRead)
        option.afterRead(record);
}

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
    for (const Option& option : m_options)
        if (option.key)
            Read(record, option, m_section, ReadWhole, ReadReal);
}

void RecordTable::ReadDefaults(void* record) const
{
    for (const Option& option : m_options.subspan(1))
        if (option.key && option.inDefaults)
            Read(record, option, m_section, ReadDefaultWhole, ReadDefaultReal);
}

int RecordTable::UnitsOfDefaults(int fallback) const
{
    return ReadDefaultWhole(m_section, m_options.front().key, fallback);
}

void RecordTable::Convert(void* record, long units) const
{
    int& current = m_options.front().whole(record);
    if (current == units)
        return;
    const double factor = current != kInch ? kMillimetreToInch : kInchToMillimetre;
    for (const Option& option : m_options)
        if (option.IsScaled(record))
            option.real(record) *= factor;
    current = static_cast<int>(units);
}

} // namespace pelmar
