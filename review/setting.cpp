#include "review/setting.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

#include "review/settings_text.h"

namespace pelmar::review {
namespace {

std::vector<Setting> MakeSettings()
{
    std::vector<Setting> settings;
    const auto add = [&settings](Setting setting) {
        setting.index = settings.size();
        settings.push_back(setting);
    };
    for (const RecordDescription& record : DescribeRecords())
        for (const Option& option : record.table.Options())
            if (option.key)
                add({.record = &record, .option = &option});
    for (const GlobalSetting& global : kGlobalSettings)
        if (global.option.key)
            add({.global = &global, .option = &global.option});
    return settings;
}

/// How many letters must be put in, left out, replaced, or changed with their neighbour.
std::size_t DistanceOf(std::string_view one, std::string_view other)
{
    std::vector<std::size_t> before(other.size() + 1);
    std::vector<std::size_t> last(other.size() + 1);
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= one.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (one[i - 1] == other[j - 1] ? 0 : 1)});
            const bool isSwapped = i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1];
            if (isSwapped)
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        std::swap(before, last);
        std::swap(last, row);
    }
    return last.back();
}

/// Finds the name that is nearest to one that nobody knows.
class Nearest {
public:
    explicit Nearest(std::string_view name)
        : m_name(Lowered(name.substr(0, kLongest))), m_distance(std::max<std::size_t>(2, m_name.size() / 4) + 1)
    {
    }

    void Consider(std::string_view candidate, const std::string& found)
    {
        const std::size_t longer = std::max(candidate.size(), m_name.size());
        if (longer - std::min(candidate.size(), m_name.size()) >= m_distance)
            return;
        const std::size_t distance = DistanceOf(m_name, Lowered(candidate));
        if (distance >= m_distance || distance >= candidate.size())
            return;
        m_distance = distance;
        m_found = found;
    }
    const std::string& Found() const { return m_found; }

private:
    static constexpr std::size_t kLongest = 200; // no name is as long

    std::string m_name;
    std::size_t m_distance;
    std::string m_found;
};

} // namespace

ChoiceTexts Setting::Choices() const
{
    const Control* const control = EditedBy();
    return control && !control->choices.empty() ? control->choices : option->choices;
}

std::span<const Setting> AllSettings()
{
    static const std::vector<Setting> settings = MakeSettings();
    return settings;
}

const Setting* FindSetting(std::string_view section, std::string_view key)
{
    static const auto byName = [] {
        std::unordered_map<EntryName, const Setting*, EntryNameHash> settings;
        for (const Setting& setting : AllSettings())
            settings.emplace(EntryName{setting.Section(), setting.Key()}, &setting);
        return settings;
    }();
    const auto found = byName.find({section, key});
    return found == byName.end() ? nullptr : found->second;
}

bool IsKnownKey(std::string_view section, std::string_view key)
{
    const auto isOfAnyKey = [&](const GlobalSetting& global) {
        return global.option.key == kAnyKey && IsSameName(global.section, section);
    };
    return std::ranges::any_of(kGlobalSettings, isOfAnyKey) || FindSetting(section, key);
}

bool IsKnownSection(std::string_view section)
{
    return std::ranges::any_of(DescribeRecords(),
                               [&](const auto& record) { return IsSameName(record.table.Section(), section); }) ||
           std::ranges::any_of(kGlobalSettings,
                               [&](const auto& global) { return IsSameName(global.section, section); });
}

const Setting* SettingOf(const Option& option)
{
    const auto found = std::ranges::find(AllSettings(), &option, &Setting::option);
    return found == AllSettings().end() ? nullptr : &*found;
}

std::vector<const Setting*> SettingsOfOperation(std::string_view name)
{
    std::vector<const Setting*> found;
    for (const Setting& setting : AllSettings())
        if (setting.Operation() == name || IsSameName(setting.Section(), name))
            found.push_back(&setting);
    return found;
}

std::vector<const Setting*> SettingsNamed(std::string_view name)
{
    std::vector<const Setting*> found;
    for (const Setting& setting : AllSettings())
        if (IsSameName(setting.Name(), name) || IsSameName(setting.Key(), name) || setting.Label() == name)
            found.push_back(&setting);
    return found;
}

std::string NearestKey(std::string_view section, std::string_view key)
{
    Nearest nearest(key);
    for (const Setting& setting : AllSettings())
        if (IsSameName(setting.Section(), section))
            nearest.Consider(setting.Key(), setting.Key());
    if (!nearest.Found().empty())
        return nearest.Found();
    for (const Setting& setting : AllSettings())
        nearest.Consider(setting.Key(), setting.Name());
    return nearest.Found();
}

std::string NearestSection(std::string_view section)
{
    Nearest nearest(section);
    for (const Setting& setting : AllSettings())
        nearest.Consider(setting.Section(), setting.Section());
    return nearest.Found();
}

std::string NearestName(std::string_view name)
{
    Nearest nearest(name);
    for (const Setting& setting : AllSettings())
        for (const std::string& candidate : {std::string(setting.Key()), setting.Name(), std::string(setting.Label()),
                                             std::string(setting.Operation())})
            nearest.Consider(candidate, candidate);
    return nearest.Found();
}

} // namespace pelmar::review
