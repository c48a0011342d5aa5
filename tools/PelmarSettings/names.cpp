#include "names.h"

#include <string>

#include "settings_file.h"

namespace pelmar::tool {
namespace {

using review::Setting;

std::string MeantPerhaps(std::string_view name)
{
    const std::string nearest = review::NearestName(name);
    return nearest.empty() ? "" : " Похоже на «" + nearest + "».";
}

std::string Quoted(std::string_view name)
{
    return "«" + std::string(name) + "»";
}

} // namespace

std::vector<const Setting*> SettingsMeant(std::string_view name)
{
    std::vector<const Setting*> found = review::SettingsNamed(name);
    if (found.empty())
        throw NotDone("Нет такого ключа или параметра: " + Quoted(name) + "." + MeantPerhaps(name) +
                      " Все ключи операции показывает list.");
    return found;
}

const Setting& SettingMeant(std::string_view name)
{
    const std::vector<const Setting*> found = SettingsMeant(name);
    if (found.size() == 1)
        return *found.front();
    std::string names;
    for (const Setting* const setting : found)
        names += "\n  " + setting->Name() + "  " + setting->Operation() + ": " + setting->Label();
    throw NotDone("«" + std::string(name) + "» — не один параметр. Укажите его полным именем:" + names);
}

std::vector<const Setting*> OperationMeant(std::string_view name)
{
    std::vector<const Setting*> found = review::SettingsOfOperation(name);
    if (found.empty())
        throw NotDone("Нет такой операции или раздела: " + Quoted(name) + "." + MeantPerhaps(name) +
                      " Все операции показывает list.");
    return found;
}

std::vector<const Setting*> OperationOrSettingMeant(std::string_view name)
{
    std::vector<const Setting*> found = review::SettingsOfOperation(name);
    return found.empty() ? std::vector<const Setting*>{&SettingMeant(name)} : found;
}

} // namespace pelmar::tool
