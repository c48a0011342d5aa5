// Reading several values of a settings file as of one moment.
#pragma once

namespace pelmar {

/// While it lives the file stays the version that it is, so that what is read belongs together. Others that save it
/// wait meanwhile: keep it short, and save nothing to the file yourself. Where the file is missing, or another program
/// does not let go of it within a tenth of a second, nothing is held, and the values are read as they come.
class SettingsReading {
public:
    explicit SettingsReading(const char* file);
    ~SettingsReading();
    SettingsReading(const SettingsReading&) = delete;
    SettingsReading& operator=(const SettingsReading&) = delete;

private:
    void* m_file;
};

} // namespace pelmar
