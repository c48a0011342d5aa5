#include "review/values.h"

#include "PelmarDlgs/settings_values.h"
#include "resources/resource.h"

namespace pelmar::review {
namespace {

std::string_view TextIn(const SettingsText& settings, const SettingsText& defaults, const Setting& setting)
{
    const TextLine* line = settings.Find(setting.Section(), setting.Key());
    if (!line)
        line = defaults.Find(setting.Section(), setting.Key());
    return line ? Unquoted(line->value) : std::string_view();
}

double NumberIn(const TextValues& values, const Setting& setting, double fallback)
{
    if (setting.IsReal())
        return values.Real(setting.Section(), setting.Key(), fallback);
    return values.Whole(setting.Section(), setting.Key(), static_cast<int>(fallback));
}

} // namespace

Values::Values() : m_numbers(AllSettings().size()), m_texts(AllSettings().size())
{
    for (const RecordDescription& record : DescribeRecords())
        m_records.push_back(record.copyOf(nullptr));
    for (const Setting& setting : AllSettings())
        if (setting.global)
            m_numbers[setting.index] = setting.global->builtIn;
}

Values::Values(const Values& other) : m_numbers(other.m_numbers), m_texts(other.m_texts)
{
    for (std::size_t index = 0; index < other.m_records.size(); ++index)
        m_records.push_back(DescribeRecords()[index].copyOf(other.m_records[index].get()));
}

Values& Values::operator=(const Values& other)
{
    return *this = Values(other);
}

Values Values::AtStart(const SettingsText& settings, const SettingsText& defaults)
{
    Values values;
    const TextValues inSettings(settings);
    const TextValues inDefaults(defaults);
    for (const RecordDescription& record : DescribeRecords())
        record.table.Restore(values.Record(record), inSettings);
    for (const Setting& setting : AllSettings()) {
        if (setting.IsText())
            values.m_texts[setting.index] = TextIn(settings, defaults, setting);
        else if (setting.global)
            values.m_numbers[setting.index] =
                NumberIn(inSettings, setting, NumberIn(inDefaults, setting, setting.global->builtIn));
    }
    return values;
}

Values Values::Factory(const SettingsText& defaults, const Values& other)
{
    Values factory = AtStart(SettingsText(), defaults);
    for (const RecordDescription& record : DescribeRecords())
        record.takeFactory(factory.Record(record), TextValues(defaults), other.Units(record));
    return factory;
}

double Values::Number(const Setting& setting) const
{
    return setting.record ? setting.option->Value(Record(*setting.record)) : m_numbers[setting.index];
}

void Values::SetNumber(const Setting& setting, double number)
{
    if (!setting.record)
        m_numbers[setting.index] = number;
    else if (setting.option->whole)
        setting.option->whole(Record(*setting.record)) = static_cast<int>(number);
    else
        setting.option->real(Record(*setting.record)) = number;
}

int Values::Units(const RecordDescription& record) const
{
    return record.table.Options().front().Whole(Record(record));
}

void Values::Convert(const RecordDescription& record, int units)
{
    record.table.Convert(Record(record), units);
}

void Values::ConvertAsIn(const Values& other)
{
    for (const RecordDescription& record : DescribeRecords())
        Convert(record, other.Units(record));
}

bool Values::IsScaled(const Setting& setting) const
{
    return setting.record && setting.option->IsScaled(Record(*setting.record));
}

std::size_t Values::IndexOf(const RecordDescription& record)
{
    return static_cast<std::size_t>(&record - DescribeRecords().data());
}

bool IsSameValue(const Setting& setting, const Values& one, const Values& other)
{
    if (setting.IsText())
        return one.Text(setting) == other.Text(setting);
    if (setting.option->kind == OptionKind::Switch)
        return setting.option->IsOn(static_cast<int>(one.Number(setting))) ==
               setting.option->IsOn(static_cast<int>(other.Number(setting)));
    return setting.IsReal() ? IsSameNumber(one.Number(setting), other.Number(setting))
                            : one.Number(setting) == other.Number(setting);
}

std::string ShownNumber(const Setting& setting, double number, const Words& words)
{
    if (setting.IsReal())
        return ShownReal(number);
    const int whole = static_cast<int>(number);
    if (setting.option->kind == OptionKind::Switch)
        return words.ofString(setting.option->IsOn(whole) ? IDS_YES : IDS_NO);
    if (setting.IsUnits())
        return whole == kInch ? "дюймы" : "мм";
    const ChoiceTexts choices = setting.Choices();
    const auto position = static_cast<std::int64_t>(whole) - setting.option->firstChoice;
    if (position < 0 || position >= static_cast<std::int64_t>(choices.size()))
        return std::to_string(whole);
    const ChoiceText& choice = choices[static_cast<std::size_t>(position)];
    return choice.literal ? choice.literal : words.ofString(choice.id);
}

std::string ShownValue(const Setting& setting, const Values& values, const Words& words)
{
    return setting.IsText() ? words.ofFile(values.Text(setting)) : ShownNumber(setting, values.Number(setting), words);
}

std::string ShownUnit(const Setting& setting, const Values& values)
{
    const bool isLength = setting.option->kind == OptionKind::Length || setting.option->kind == OptionKind::Feed;
    if (!setting.record)
        return isLength ? "" : pelmar::ShownUnit(*setting.option, kInch, false);
    return pelmar::ShownUnit(*setting.option, values.Units(*setting.record), values.IsScaled(setting));
}

std::string WithUnit(const std::string& value, const std::string& unit)
{
    if (unit.empty() || unit == "°" || unit == "%")
        return value + unit;
    return value + " " + unit;
}

std::string ShownRange(const Setting& setting)
{
    return pelmar::ShownRange(setting.option->range);
}

std::vector<Difference> Differences(const Values& values, const Values& compared, const Words& words)
{
    Values other = compared;
    other.ConvertAsIn(values);
    std::vector<Difference> differences;
    for (const Setting& setting : AllSettings())
        if (!setting.IsUnits() && !setting.IsOfHost() && !IsSameValue(setting, values, other))
            differences.push_back({&setting, ShownValue(setting, values, words), ShownValue(setting, other, words),
                                   ShownUnit(setting, values), ShownUnit(setting, other)});
    return differences;
}

} // namespace pelmar::review
