#include <algorithm>

#include "PelmarDlgs/settings_values.h"
#include "commands.h"
#include "factory.h"
#include "names.h"
#include "report.h"
#include "texts.h"
#include "writing.h"

namespace pelmar::tool {
namespace {

using review::Change;
using review::Entered;
using review::Setting;
using review::SettingsText;
using review::Values;

std::string ConvertInstead()
{
    return "единицы меняются вместе с длинами: PelmarSettings convert ФАЙЛ --units mm|inch.";
}

/// Takes "KEY=EXPRESSION" into the values. Throws NotDone.
const Setting& Assign(const std::string& assignment, const ChosenSettings& before, Values& wanted)
{
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos)
        throw NotDone("«" + assignment + "»: нужно КЛЮЧ=ВЫРАЖЕНИЕ.");
    const Setting& setting = SettingMeant(assignment.substr(0, equals));
    if (setting.IsUnits())
        throw NotDone(setting.Name() + ": " + ConvertInstead());
    if (std::ranges::find(before, &setting) != before.end())
        throw NotDone(setting.Name() + ": указан дважды.");
    const Entered entered = review::Enter(setting, std::string_view(assignment).substr(equals + 1), LibraryWords());
    if (!entered.IsGood())
        throw NotDone(setting.Name() + ": " + entered.refusal);
    if (setting.IsText())
        wanted.SetText(setting, entered.text);
    else
        wanted.SetNumber(setting, entered.number);
    return setting;
}

/// What the file holds, in the units that it has or would have.
Values HeldIn(const SettingsText& text)
{
    Values held = Values::AtStart(text, SettingsText());
    for (const RecordDescription& record : DescribeRecords())
        held.Convert(record, review::UnitsOfSection(text, record, kInch));
    return held;
}

void MustHaveFactoryValues(const ChosenSettings& chosen)
{
    for (const Setting* const setting : chosen)
        if (setting->IsOfHost())
            throw NotDone(setting->Name() + ": это параметр самого TORVEX, заводского значения у него нет.");
}

/// What is to be reset: all options of the operations, or what is named.
ChosenSettings ToReset(const std::vector<std::string>& names)
{
    ChosenSettings chosen;
    for (const std::string& name : names)
        for (const Setting* const setting : OperationOrSettingMeant(name)) {
            if (setting->IsUnits() && review::SettingsOfOperation(name).empty())
                throw NotDone(setting->Name() + ": " + ConvertInstead());
            if (!setting->IsUnits() && std::ranges::find(chosen, setting) == chosen.end())
                chosen.push_back(setting);
        }
    if (names.empty())
        for (const Setting& setting : review::AllSettings())
            if (setting.record && !setting.IsUnits())
                chosen.push_back(&setting);
    MustHaveFactoryValues(chosen);
    TakeTypesAlong(chosen);
    return chosen;
}

/// What belongs to no operation comes from the defaults file wherever the file itself lacks it.
std::vector<Change> Removals(const SettingsText& text, const ChosenSettings& chosen)
{
    std::vector<Change> removals;
    for (const Setting* const setting : chosen)
        if (setting->global && text.Find(setting->Section(), setting->Key()))
            removals.push_back({setting, std::nullopt});
    return removals;
}

/// What the sections of a file would hold otherwise, in whatever units.
std::vector<review::Difference> DifferencesInSections(const Plan& plan)
{
    auto differences = review::Differences(HeldIn(plan.after), HeldIn(plan.file.text), LibraryWords());
    std::erase_if(differences, [&](const review::Difference& difference) {
        const Setting& setting = *difference.setting;
        return !setting.record || setting.option->readSection || !plan.file.text.HasSection(setting.Section());
    });
    return differences;
}

std::string Listed(const std::vector<review::Difference>& differences)
{
    std::string names;
    for (const review::Difference& difference : differences)
        names += "\n  " + difference.setting->Name() + ": " + difference.compared + ", а стало бы " + difference.value;
    return names;
}

} // namespace

ExitStatus RunSet(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    Values wanted = HeldIn(file.text);
    ChosenSettings chosen;
    std::string refusals;
    for (const std::string& assignment : arguments.names) {
        try {
            chosen.push_back(&Assign(assignment, chosen, wanted));
        } catch (const NotDone& refusal) {
            refusals += std::string("\n") + refusal.what();
        }
    }
    if (!refusals.empty())
        throw NotDone(file.path.shown + ": ничего не записано." + refusals);
    const Plan plan(file, review::ChangesTo(file.text, wanted, chosen));
    MustHold(plan, wanted, chosen);
    return WriteAndTell(plan, speech);
}

ExitStatus RunReset(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    const ChosenSettings chosen = ToReset(arguments.names);
    const Factory source = Factory::For(arguments.defaults, &file.path);
    const Values factory = source.ValuesLike(HeldIn(file.text));
    ChosenSettings ofRecords;
    std::ranges::copy_if(chosen, std::back_inserter(ofRecords), [](const Setting* setting) { return setting->record; });
    std::vector<Change> changes = review::ChangesTo(file.text, factory, ofRecords);
    std::ranges::copy(Removals(file.text, chosen), std::back_inserter(changes));
    const Plan plan(file, std::move(changes));
    MustHold(plan, factory, ofRecords);
    if (!speech.isJson)
        speech.out.Line("Заводские значения: " + source.Name() + ".");
    return WriteAndTell(plan, speech);
}

ExitStatus RunConvert(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    const int units = arguments.units == "mm" ? kMillimetre : kInch;
    review::Conversion conversion = review::ConversionTo(file.text, units, LibraryWords());
    if (!conversion.obstacles.empty()) {
        WriteFindings(speech.error, conversion.obstacles);
        throw NotDone(file.path.shown + ": не переведено: значения выше пришлось бы угадывать. Исправьте их, например "
                                        "командой set.");
    }
    const Plan plan(file, std::move(conversion.changes));
    const auto differences = DifferencesInSections(plan);
    if (!differences.empty())
        throw NotDone(file.path.shown + ": не переведено: длины вышли бы другими:" + Listed(differences));
    return WriteAndTell(plan, speech);
}

} // namespace pelmar::tool
