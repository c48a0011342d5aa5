#include "records/record_table.h"

#include "PelmarDlgs/settings_values.h"

namespace pelmar {
namespace {

void Read(void* record, const Option& option, const char* section, const ValueSource& from)
{
    if (option.readSection)
        section = option.readSection;
    if (option.whole) {
        int& whole = option.whole(record);
        const int value = from.Whole(section, option.key, whole);
        whole = option.sanitize ? option.sanitize(value) : value;
    } else {
        double& real = option.real(record);
        real = from.Real(section, option.key, real);
    }
    if (option.afterRead)
        option.afterRead(record);
}

} // namespace

void RecordTable::Restore(void* record, const ValueSource& from) const
{
    for (const Option& option : m_options)
        if (option.key)
            Read(record, option, m_section, from);
}

void RecordTable::ReadDefaults(void* record, const ValueSource& from) const
{
    for (const Option& option : m_options.subspan(1))
        if (option.key && option.inDefaults)
            Read(record, option, m_section, from);
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
