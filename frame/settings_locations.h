// Where the settings files are. Computed when the library starts; nothing else computes a path.
#pragma once

#include "frame/export.h"
#include "frame/fixed_text.h"

constexpr size_t kSettingsTextCapacity = 1284;
constexpr size_t kHelpFileCapacity = 255;

struct SettingsLocations {
    FixedText<kHelpFileCapacity> helpFile;
    FixedText<kSettingsTextCapacity> hostFolder; ///< of the host's executable, ends in "\"
    FixedText<kSettingsTextCapacity> hostSettingsFile;
    FixedText<kSettingsTextCapacity> hostDefaultsFile;
    FixedText<kSettingsTextCapacity> settingsFile; ///< records save and restore here
    FixedText<kSettingsTextCapacity> defaultsFile; ///< records take their defaults from here
    FixedText<kSettingsTextCapacity> toolLibraryName;
};

/// The locations as last computed; all but the help file are empty until the library has been initialised.
PELMAR_API const SettingsLocations& GetSettingsLocations();

/// Computes the help file's path from the executable's.
void LocateHelpFile();

/// Computes all other locations from the host's settings, and brings the machine-simulation entry up to date.
void LocateSettings();
