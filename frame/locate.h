// Where the library computes the locations of its files.
#pragma once

namespace pelmar {

/// Computes the help file's path from the executable's.
void LocateHelpFile();

/// Computes all other locations from the host's settings, and brings the machine-simulation entry up to date.
void LocateSettings();

} // namespace pelmar
