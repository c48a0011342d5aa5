// What the tests of the review name settings and settings texts by.
#pragma once

#include <string>

#include "review/setting.h"
#include "review/settings_text.h"
#include "review/values.h"

inline const pelmar::review::Setting& At(const char* section, const char* key)
{
    return *pelmar::review::FindSetting(section, key);
}

/// The values at a start with this settings text and without a defaults file.
inline pelmar::review::Values Of(std::string text)
{
    using namespace pelmar::review;
    return Values::AtStart(SettingsText(std::move(text)), SettingsText());
}
