#include "report.h"

#include "texts.h"

namespace pelmar::tool {
namespace {

using review::Change;
using review::Finding;
using review::FindingKind;
using review::Setting;
using review::SettingsText;
using review::Values;

std::string NameOf(const Finding& finding)
{
    const std::string section = Utf8OfNarrow(finding.section);
    std::string key = Utf8OfNarrow(finding.key);
    if (section.empty())
        return key;
    return key.empty() ? "[" + section + "]" : section + "." + key;
}

Cell LabelOf(const Finding& finding)
{
    if (!finding.setting)
        return "";
    return {std::string(finding.setting->Operation()) + ": " + finding.setting->Label(), Style::Dim};
}

/// Values before and after, side by side.
class Comparison {
public:
    Comparison(const SettingsText& before, const SettingsText& after)
        : m_text(before), m_before(Values::AtStart(before, SettingsText())),
          m_after(Values::AtStart(after, SettingsText()))
    {
    }

    /// What stood there; the text itself where it is no number.
    std::string Before(const Setting& setting) const
    {
        const review::TextLine* const line = m_text.Find(setting.Section(), setting.Key());
        if (!line)
            return "(нет)";
        const std::string_view value = review::Unquoted(line->value);
        const bool isNumber = setting.IsReal() ? review::IsReal(value) : review::IsWhole(value);
        return setting.IsText() || isNumber ? Shown(setting, m_before) : "«" + Utf8OfNarrow(value) + "»";
    }
    std::string After(const Change& change) const { return change.text ? Shown(*change.setting, m_after) : "(убрано)"; }

private:
    static std::string Shown(const Setting& setting, const Values& values)
    {
        const std::string value = review::ShownValue(setting, values, LibraryWords());
        return value.empty() ? "(пусто)" : review::WithUnit(value, review::ShownUnit(setting, values));
    }

    const SettingsText& m_text;
    Values m_before;
    Values m_after;
};

} // namespace

void WriteFindings(Output& output, const std::vector<Finding>& findings)
{
    Table table;
    for (const Finding& finding : findings)
        table.Add({finding.line > 0 ? "строка " + std::to_string(finding.line) : "",
                   {NameOf(finding), Style::Strong},
                   LabelOf(finding),
                   review::Explanation(finding, LibraryWords())});
    table.Write(output);
}

std::vector<Finding> Faults(const SettingsText& text)
{
    std::vector<Finding> faults = review::Check(text, LibraryWords());
    std::erase_if(faults, [](const Finding& finding) {
        return finding.kind == FindingKind::MissingKey || finding.kind == FindingKind::OtherUnits;
    });
    return faults;
}

void WriteChanges(Output& output, const SettingsText& before, const SettingsText& after,
                  std::span<const Change> changes)
{
    const Comparison comparison(before, after);
    Table table;
    for (const Change& change : changes)
        table.Add({{change.setting->Name(), Style::Strong},
                   {change.setting->Label(), Style::Dim},
                   {comparison.Before(*change.setting)},
                   {"→"},
                   {comparison.After(change), Style::Good}});
    table.Write(output);
}

Json JsonOfChanges(const SettingsText& before, const SettingsText& after, std::span<const Change> changes)
{
    const Comparison comparison(before, after);
    Json rows = Json::array();
    for (const Change& change : changes) {
        Json row = JsonOf(*change.setting);
        row["before"] = comparison.Before(*change.setting);
        row["after"] = comparison.After(change);
        row["text"] = change.text ? Json(Utf8OfNarrow(*change.text)) : Json();
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace pelmar::tool
