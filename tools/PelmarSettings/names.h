// What users call settings and operations.
#pragma once

#include <string_view>
#include <vector>

#include "review/setting.h"

namespace pelmar::tool {

/// All settings that a key, a full name or a label means. Throws NotDone, with the nearest name, where there is none.
std::vector<const review::Setting*> SettingsMeant(std::string_view name);
/// The one that it means. Throws NotDone where there is none or more than one.
const review::Setting& SettingMeant(std::string_view name);
/// The settings of an operation or section. Throws NotDone where there is none.
std::vector<const review::Setting*> OperationMeant(std::string_view name);
/// The settings of an operation or section, or else the one that the name means.
std::vector<const review::Setting*> OperationOrSettingMeant(std::string_view name);

} // namespace pelmar::tool
