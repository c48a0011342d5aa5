// The settings of a host, made for one test and gone with it.
#pragma once

#include <string>

#include <PelmarDlgs.h>

using namespace pelmar;

/// A folder of its own below the test program's, with the host's settings file, an NC folder, and a core file beside
/// the program that leads to them. The library is initialised against it.
class HostFolder {
public:
    HostFolder();
    ~HostFolder();
    HostFolder(const HostFolder&) = delete;
    HostFolder& operator=(const HostFolder&) = delete;

    std::string folder;       ///< ends without a separator
    std::string coreFile;     ///< TORVEXCore.INI beside the test program
    std::string hostSettings; ///< folder\TORVEX.ini
    std::string settings;     ///< folder\NC\CURRENT.INI
    std::string defaults;     ///< folder\NC\DEFAULT.INI

    /// Runs InitializePelmarDlgsDLL on the user-interface thread.
    int Initialize() const;
    void WriteSettings(const std::string& text) const;
    void WriteDefaults(const std::string& text) const;
    std::string ReadSettings() const;
};

/// The folder of the test program, ending in "\".
std::string ProgramFolder();
std::string ReadWholeFile(const std::string& path);
void WriteWholeFile(const std::string& path, const std::string& text);
/// One value of a settings file; "<absent>" where there is none.
std::string Value(const std::string& file, const char* section, const char* key);
