#include "frame/settings_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include <windows.h>

#include "frame/number_text.h"
#include "frame/profile.h"
#include "frame/settings_locations.h"

namespace {
constexpr int kStoredDecimals = 6;
constexpr size_t kRealCapacity = 256;

/// Reads the number that a stored text starts with, after blanks and a sign, in single precision.
bool ScanReal(std::string_view text, double& value)
{
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return false;
    text.remove_prefix(first);
    if (text.front() == '+' && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    float single = 0;
    if (!number_text::Parse(text, single))
        return false;
    value = double{single};
    return true;
}

double ReadRealFrom(const char* file, const char* section, const char* key, double fallback)
{
    number_text::FixedBuffer fallbackText;
    number_text::Print(fallbackText, fallback, kStoredDecimals);
    char text[kRealCapacity];
    profile::ReadText(section, key, fallbackText.data(), text, file);
    double value = fallback;
    if (!ScanReal(text, value))
        ScanReal(fallbackText.data(), value);
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
    number_text::Print(text, value, kStoredDecimals);
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
