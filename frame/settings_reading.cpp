#include "PelmarDlgs/settings_reading.h"

#include <optional>

#include "PelmarDlgs/settings_locations.h"
#include "frame/held_file.h"

namespace pelmar {
namespace {

int g_readings = 0;
std::optional<HeldFile> g_file; ///< while there are readings

} // namespace

SettingsReading::SettingsReading()
{
    if (g_readings++ == 0)
        g_file.emplace(GetSettingsLocations().settingsFile.c_str());
}

SettingsReading::~SettingsReading()
{
    if (--g_readings == 0)
        g_file.reset();
}

} // namespace pelmar
