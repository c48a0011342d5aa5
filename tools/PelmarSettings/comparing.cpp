#include <string_view>

#include "commands.h"
#include "factory.h"
#include "json.h"
#include "review/values.h"
#include "settings_file.h"
#include "texts.h"

namespace pelmar::tool {
namespace {

using review::Difference;
using review::Values;

/// What a file is compared with.
struct Compared {
    std::string kind; ///< "file", "defaults-file", "built-in"
    std::string name;
    std::string defaults; ///< what the file itself is overlaid on
    bool hasDefaults;
    Values values;
};

Compared ComparedWith(const Arguments& arguments, const Factory& factory, const Values& held)
{
    if (arguments.files.size() > 1) {
        const SettingsFile other = SettingsFile::Read(arguments.files[1]).MustBeSound();
        return {"file", other.path.shown, factory.Name(), factory.file.has_value(),
                Values::AtStart(other.text, factory.text)};
    }
    return {factory.file ? "defaults-file" : "built-in", factory.Name(), factory.Name(), factory.file.has_value(),
            factory.ValuesLike(held)};
}

std::string Shown(const std::string& value, const std::string& unit)
{
    return value.empty() ? "(пусто)" : review::WithUnit(value, unit);
}

void Tell(const std::vector<Difference>& differences, const Compared& compared, const std::string& file,
          const Speech& speech)
{
    Output& out = speech.out;
    const bool isFactory = compared.kind != "file";
    out.Line(out.Painted(Style::Strong, file) + (isFactory ? " и заводские значения (" : " и ") +
             out.Painted(Style::Strong, compared.name) + (isFactory ? "): " : ": ") +
             (differences.empty() ? out.Painted(Style::Good, "отличий нет.")
                                  : out.Painted(Style::Bad, "отличий: " + std::to_string(differences.size()) + ".")));
    if (differences.empty())
        return;
    if (!isFactory && compared.hasDefaults)
        out.Line("Чего в файлах нет, взято из " + compared.defaults + ".");
    Table table;
    table.Add({{"Ключ", Style::Dim},
               {"Параметр", Style::Dim},
               {"Здесь", Style::Dim},
               {isFactory ? "Заводское" : "Там", Style::Dim}});
    std::string_view operation;
    for (const Difference& difference : differences) {
        const review::Setting& setting = *difference.setting;
        if (operation != setting.Operation())
            table.Add({{setting.Operation(), Style::Strong}});
        operation = setting.Operation();
        table.Add({{setting.Name()},
                   {setting.Label()},
                   {Shown(difference.value, difference.unit), Style::Bad},
                   {Shown(difference.compared, difference.comparedUnit), Style::Good}});
    }
    table.Write(out);
}

Json JsonOf(const Difference& difference, const Values& held, const Values& compared)
{
    Json json = tool::JsonOf(*difference.setting);
    json["value"] = difference.value;
    json["unit"] = difference.unit;
    json["stored"] = StoredValue(*difference.setting, held);
    json["compared"] = difference.compared;
    json["comparedUnit"] = difference.comparedUnit;
    json["comparedStored"] = StoredValue(*difference.setting, compared);
    return json;
}

} // namespace

ExitStatus RunDiff(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    const Factory factory = Factory::For(arguments.defaults, &file.path);
    const Values held = Values::AtStart(file.text, factory.text);
    Compared compared = ComparedWith(arguments, factory, held);
    compared.values.ConvertAsIn(held);
    const std::vector<Difference> differences = review::Differences(held, compared.values, LibraryWords());
    if (speech.isJson) {
        Json rows = Json::array();
        for (const Difference& difference : differences)
            rows.push_back(JsonOf(difference, held, compared.values));
        PrintJson(speech.out, {{"file", file.path.shown},
                               {"comparedWith", {{"kind", compared.kind}, {"name", compared.name}}},
                               {"defaults", compared.defaults},
                               {"differences", std::move(rows)}});
    } else {
        Tell(differences, compared, file.path.shown, speech);
    }
    return differences.empty() ? kClean : kFindings;
}

} // namespace pelmar::tool
