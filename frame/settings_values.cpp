#include "PelmarDlgs/settings_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include <afx.h>

#include "PelmarDlgs/settings_locations.h"
#include "frame/number_text.h"
#include "frame/profile.h"
#include "frame/settings_texts.h"

namespace pelmar {
namespace {
constexpr size_t kRealCapacity = 256;
constexpr size_t kTextCapacity = 256;

double ReadRealFrom(const char* file, const char* section, const char* key, double fallback)
{
    number_text::FixedBuffer fallbackText;
    number_text::Print(fallbackText, fallback, number_text::kStoredDecimals);
    char text[kRealCapacity];
    profile::ReadText(section, key, fallbackText.data(), text, file);
    double value = fallback;
    if (!number_text::ParseStored(text, value))
        number_text::ParseStored(fallbackText.data(), value);
    return value;
}

const char* SettingsFile()
{
    return GetSettingsLocations().settingsFile.c_str();
}

const char* DefaultsFile()
{
    return GetSettingsLocations().defaultsFile.c_str();
}
} // namespace

bool WriteWhole(const char* section, const char* key, int value)
{
    char text[16];
    *std::to_chars(text, text + sizeof text - 1, value).ptr = '\0';
    return profile::WriteText(section, key, text, SettingsFile());
}

bool WriteReal(const char* section, const char* key, double value)
{
    number_text::FixedBuffer text;
    number_text::Print(text, value, number_text::kStoredDecimals);
    return profile::WriteText(section, key, text.data(), SettingsFile());
}

int ReadWhole(const char* section, const char* key, int fallback)
{
    return profile::ReadWhole(section, key, fallback, SettingsFile());
}

double ReadReal(const char* section, const char* key, double fallback)
{
    return ReadRealFrom(SettingsFile(), section, key, fallback);
}

int ReadDefaultWhole(const char* section, const char* key, int fallback)
{
    return profile::ReadWhole(section, key, fallback, DefaultsFile());
}

double ReadDefaultReal(const char* section, const char* key, double fallback)
{
    return ReadRealFrom(DefaultsFile(), section, key, fallback);
}

std::string ReadText(const char* section, const char* key)
{
    char text[kTextCapacity];
    profile::ReadText(section, key, "", text, SettingsFile());
    return text;
}

void WriteSystemText(const char* section, const char* key, const char* text)
{
    WriteProfileStringA(section, key, text);
}

int DisplayDecimals()
{
    constexpr int kUsual = 4;
    const int decimals = ReadWhole("Settings", "Decimals", kUsual);
    return decimals < 0 ? kUsual : std::min(decimals, number_text::kMaxDecimals);
}

double WithoutNoise(double value)
{
    return std::abs(value) < 1e-8 ? 0.0 : value;
}

std::string FormatForDisplay(double value)
{
    number_text::FixedBuffer text;
    return std::string(number_text::Print(text, WithoutNoise(value), DisplayDecimals()));
}

} // namespace pelmar
