#include "PelmarDlgs/settings_reading.h"

#include "PelmarDlgs/settings_locations.h"
#include "frame/held_file.h"

namespace pelmar {

SettingsReading::SettingsReading() : m_file(new HeldFile(GetSettingsLocations().settingsFile.c_str())) {}

SettingsReading::~SettingsReading()
{
    delete m_file;
}

} // namespace pelmar
