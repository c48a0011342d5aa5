#include "records/memory_settings.h"

#include <cstdio>
#include <cstdlib>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_reading.h"
#include "PelmarDlgs/settings_values.h"
#include "frame/settings_texts.h"

void MemoryFile::Put(const std::string& section, const std::string& key, const std::string& text)
{
    for (auto& line : lines)
        if (line[0] == section && line[1] == key) {
            line[2] = text;
            return;
        }
    lines.push_back({section, key, text});
}

const std::string* MemoryFile::Find(const std::string& section, const std::string& key) const
{
    for (const auto& line : lines)
        if (line[0] == section && line[1] == key)
            return &line[2];
    return nullptr;
}

MemorySettings& Settings()
{
    static MemorySettings settings;
    return settings;
}

namespace {

std::string Printed(double value)
{
    char text[400];
    std::snprintf(text, sizeof text, "%f", value);
    return text;
}

int WholeIn(const MemoryFile& file, const char* section, const char* key, int fallback)
{
    const std::string* const text = file.Find(section, key);
    return text ? std::atoi(text->c_str()) : fallback;
}

/// Through text and single precision, the fallback too.
double RealIn(const MemoryFile& file, const char* section, const char* key, double fallback)
{
    const std::string* const text = file.Find(section, key);
    return std::strtof(text ? text->c_str() : Printed(fallback).c_str(), nullptr);
}

} // namespace

namespace pelmar {

// In memory every step is one.
void BeginSave() {}
bool CommitSave()
{
    return true;
}
void DropSave() {}

SettingsReading::SettingsReading() = default;
SettingsReading::~SettingsReading() {} // not defaulted: the library's own does something

bool WriteWhole(const char* section, const char* key, int value)
{
    Settings().settings.Put(section, key, std::to_string(value));
    return true;
}

bool WriteReal(const char* section, const char* key, double value)
{
    Settings().settings.Put(section, key, Printed(value));
    return true;
}

int ReadWhole(const char* section, const char* key, int fallback)
{
    return WholeIn(Settings().settings, section, key, fallback);
}

double ReadReal(const char* section, const char* key, double fallback)
{
    return RealIn(Settings().settings, section, key, fallback);
}

int ReadDefaultWhole(const char* section, const char* key, int fallback)
{
    return WholeIn(Settings().defaults, section, key, fallback);
}

double ReadDefaultReal(const char* section, const char* key, double fallback)
{
    return RealIn(Settings().defaults, section, key, fallback);
}

std::string ReadText(const char* section, const char* key)
{
    const std::string* const text = Settings().settings.Find(section, key);
    return text ? text->substr(0, 255) : std::string();
}

void WriteSystemText(const char* section, const char* key, const char* text)
{
    Settings().system.Put(section, key, text);
}

} // namespace pelmar
