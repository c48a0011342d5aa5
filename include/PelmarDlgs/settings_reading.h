// Reading several values of the settings file as of one moment.
#pragma once

#include "PelmarDlgs/export.h"

namespace pelmar {

/// While it lives the settings file stays the version that it is, so that what is read belongs together. Each restore
/// of a record is one such reading; a host makes one of several restores:
///
///     const pelmar::SettingsReading reading;
///     GetLast2xOptions()->vOptions_Restore();
///     GetLast3xOptions()->vOptions_Restore();
///
/// Others that save the file wait meanwhile: keep it short. One within another is a part of it. A save of one's own
/// ends it. Where the file is missing, or another program does not let go of it within a tenth of a second, the values
/// are read as they come.
class SettingsReading {
public:
    PELMAR_API SettingsReading();
    PELMAR_API ~SettingsReading();
    SettingsReading(const SettingsReading&) = delete;
    SettingsReading& operator=(const SettingsReading&) = delete;
};

} // namespace pelmar
