#include <algorithm>

#include "PelmarDlgs/settings_values.h"
#include "commands.h"
#include "factory.h"
#include "json.h"
#include "names.h"
#include "review/setting.h"
#include "review/values.h"
#include "texts.h"
#include "writing.h"

namespace pelmar::tool {
namespace {

using review::Setting;
using review::Values;

/// A group of settings as people and files name it.
struct Group {
    const char* operation;
    std::vector<std::string> sections{};
    int count = 0;
};

std::vector<Group> Groups()
{
    std::vector<Group> groups;
    for (const Setting& setting : review::AllSettings()) {
        auto group = std::ranges::find_if(
            groups, [&](const Group& known) { return std::string_view(known.operation) == setting.Operation(); });
        if (group == groups.end())
            group = groups.insert(groups.end(), {setting.Operation()});
        if (std::ranges::find(group->sections, setting.Section()) == group->sections.end())
            group->sections.emplace_back(setting.Section());
        ++group->count;
    }
    return groups;
}

std::string SectionsOf(const Group& group)
{
    const std::size_t others = group.sections.size() - 1;
    return group.sections.front() + (others > 0 ? " и ещё " + std::to_string(others) : "");
}

/// The factory's values in inch and in millimetre.
struct FactoryValues {
    explicit FactoryValues(const Factory& factory)
        : inch(factory.ValuesLike(InUnits(kInch))), millimetre(factory.ValuesLike(InUnits(kMillimetre)))
    {
    }

    std::string Shown(const Setting& setting) const
    {
        const std::string one = Shown(setting, inch);
        const std::string other = Shown(setting, millimetre);
        return one == other || setting.IsUnits() ? one : one + " / " + other;
    }

    Values inch;
    Values millimetre;

private:
    static Values InUnits(int units)
    {
        Values values;
        for (const RecordDescription& record : DescribeRecords())
            values.Convert(record, units);
        return values;
    }
    static std::string Shown(const Setting& setting, const Values& values)
    {
        if (setting.IsUnits())
            return "какие в файле";
        return review::WithUnit(review::ShownValue(setting, values, LibraryWords()),
                                review::ShownUnit(setting, values));
    }
};

void ListGroups(const Speech& speech)
{
    const std::vector<Group> groups = Groups();
    if (speech.isJson) {
        Json json = Json::array();
        for (const Group& group : groups)
            json.push_back({{"operation", group.operation}, {"sections", group.sections}, {"settings", group.count}});
        PrintJson(speech.out, {{"operations", std::move(json)}});
        return;
    }
    Table table;
    table.Add({{"Операция", Style::Dim}, {"Раздел", Style::Dim}, {"Параметров", Style::Dim}});
    for (const Group& group : groups)
        table.Add({{group.operation, Style::Strong}, {SectionsOf(group)}, {std::to_string(group.count)}});
    table.Write(speech.out);
}

/// Of the value that the units do or do not change.
std::string UnitRule(const Setting& setting)
{
    if (setting.IsUnits())
        return "единицы раздела; меняются командой convert вместе с длинами";
    if (const Setting* const type = TypeOf(setting))
        return std::string("длина, пока ") + type->Key() + " = 0 (" + review::ShownNumber(*type, 0, LibraryWords()) +
               "); иначе доля радиуса инструмента (× R)";
    switch (setting.option->kind) {
    case OptionKind::Length:
        return setting.option->scaling == Scaling::Always ? "длина, в единицах раздела"
                                                          : "длина; при смене единиц не пересчитывается";
    case OptionKind::Feed:
        return "подача, в единицах раздела за минуту";
    case OptionKind::Angle:
        return "градусы";
    case OptionKind::Percent:
        return "проценты";
    case OptionKind::Switch:
        return "да или нет";
    case OptionKind::Choice:
        return "вариант из списка";
    default:
        return setting.IsText() ? "текст" : setting.IsReal() ? "число" : "целое число";
    }
}

struct Item {
    int number;
    std::string text;
};

std::vector<Item> ItemsOf(const Setting& setting)
{
    std::vector<Item> items;
    const auto add = [&](int number) {
        items.push_back({number, review::ShownNumber(setting, number, LibraryWords())});
    };
    if (setting.option->kind == OptionKind::Switch) {
        add(setting.option->switchValues.off);
        add(setting.option->switchValues.on);
    } else if (setting.IsUnits()) {
        add(kInch);
        add(kMillimetre);
    }
    for (std::size_t item = 0; item < setting.Choices().size(); ++item)
        add(setting.option->firstChoice + static_cast<int>(item));
    return items;
}

std::vector<std::string> RemarksOn(const Setting& setting)
{
    std::vector<std::string> remarks;
    const Option& option = *setting.option;
    if (option.readSection)
        remarks.push_back("Читается из раздела [" + std::string(option.readSection) + "], а не из своего.");
    if (option.sanitize || option.afterRead)
        remarks.push_back("При чтении приводится к допустимым значениям.");
    if (!option.inDefaults)
        remarks.push_back("Из файла заводских значений не читается.");
    if (setting.IsOfHost())
        remarks.push_back("Параметр самого TORVEX, не модуля ЧПУ.");
    return remarks;
}

/// The sides of a range that are bounds; null for the others.
Json JsonOfRange(const Setting& setting)
{
    const Range& range = setting.option->range;
    Json json = {{"low", nullptr}, {"high", nullptr}};
    if (range.low > -kUnbounded)
        json["low"] = range.low;
    if (range.high < kUnbounded)
        json["high"] = range.high;
    return json;
}

Json JsonOfAll(const Setting& setting, const FactoryValues& factory)
{
    Json json = tool::JsonOf(setting);
    json["meaning"] = UnitRule(setting);
    json["range"] = JsonOfRange(setting);
    Json items = Json::array();
    for (const Item& item : ItemsOf(setting))
        items.push_back({{"number", item.number}, {"text", item.text}});
    json["items"] = std::move(items);
    json["factory"] = nullptr;
    if (!setting.IsUnits() && !setting.IsOfHost())
        json["factory"] = {{"inch", StoredValue(setting, factory.inch)},
                           {"millimetre", StoredValue(setting, factory.millimetre)}};
    json["readFrom"] = setting.option->readSection ? setting.option->readSection : setting.Section();
    json["remarks"] = RemarksOn(setting);
    return json;
}

void PrintSettings(const std::vector<const Setting*>& settings, const FactoryValues& factory, const Speech& speech)
{
    Json rows = Json::array();
    for (const Setting* const setting : settings)
        rows.push_back(JsonOfAll(*setting, factory));
    PrintJson(speech.out, {{"settings", std::move(rows)}});
}

void ListSettings(const std::vector<const Setting*>& settings, const FactoryValues& factory, Output& out)
{
    Table table;
    table.Add({{"Ключ", Style::Dim}, {"Параметр", Style::Dim}, {"Заводское", Style::Dim}});
    std::string_view section;
    for (const Setting* const setting : settings) {
        if (section != setting->Section())
            table.Add({{"[" + std::string(setting->Section()) + "]", Style::Strong}});
        section = setting->Section();
        table.Add({{setting->Key()}, {setting->Label()}, {setting->IsOfHost() ? "" : factory.Shown(*setting)}});
    }
    table.Write(out);
}

void Explain(const Setting& setting, const FactoryValues& factory, const Factory& source, Output& out)
{
    out.Line(out.Painted(Style::Strong, setting.Name()));
    Table table;
    const auto add = [&table](const char* what, const std::string& text) {
        if (!text.empty())
            table.Add({{what, Style::Dim}, {text}});
    };
    add("Параметр", setting.Label());
    add("Операция", setting.Operation());
    add("Раздел", "[" + std::string(setting.Section()) + "]");
    add("Что это", UnitRule(setting));
    if (setting.IsReal() || ItemsOf(setting).empty())
        add("Границы", review::ShownRange(setting));
    const char* what = "Значения";
    for (const Item& item : ItemsOf(setting)) {
        table.Add({{what, Style::Dim}, {std::to_string(item.number) + "  " + item.text}});
        what = "";
    }
    if (!setting.IsUnits() && !setting.IsOfHost() && !setting.IsText())
        add("Заводское", factory.Shown(setting) + "  (" + source.Name() + ")");
    for (const std::string& remark : RemarksOn(setting))
        add("Замечание", remark);
    table.Write(out);
}

} // namespace

ExitStatus RunList(const Arguments& arguments, const Speech& speech)
{
    if (arguments.names.empty()) {
        ListGroups(speech);
        return kClean;
    }
    const std::vector<const Setting*> settings = OperationMeant(arguments.names.front());
    const FactoryValues factory(Factory::For(arguments.defaults, nullptr));
    if (speech.isJson)
        PrintSettings(settings, factory, speech);
    else
        ListSettings(settings, factory, speech.out);
    return kClean;
}

ExitStatus RunExplain(const Arguments& arguments, const Speech& speech)
{
    const std::vector<const Setting*> settings = SettingsMeant(arguments.names.front());
    const Factory source = Factory::For(arguments.defaults, nullptr);
    const FactoryValues factory(source);
    if (speech.isJson) {
        PrintSettings(settings, factory, speech);
        return kClean;
    }
    for (const Setting* const setting : settings) {
        if (setting != settings.front())
            speech.out.Line("");
        Explain(*setting, factory, source, speech.out);
    }
    return kClean;
}

} // namespace pelmar::tool
