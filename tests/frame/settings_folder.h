// A settings file in a folder of its own, made for one test and gone with it.
#pragma once

#include <set>
#include <string>

namespace saving {

std::string ReadBytes(const std::string& path);
/// The profile functions let go of what they know of the file.
void WriteBytes(const std::string& path, const std::string& bytes);

/// Below the test program's folder. Files of the system's passing kind go to a folder of the test's own as well.
class SettingsFolder {
public:
    SettingsFolder();
    ~SettingsFolder();
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    std::string folder;  ///< ends in "\"
    std::string file;    ///< folder\CURRENT.INI
    std::string passing; ///< where the system's passing files go; ends in "\"

    std::string Read() const { return ReadBytes(file); }
    void Write(const std::string& bytes) const { WriteBytes(file, bytes); }
    /// The names of the files in the folder and among the passing ones.
    std::set<std::string> Names() const;
};

/// What the platform's own call makes of a file of these bytes.
class Bare {
public:
    explicit Bare(const SettingsFolder& folder, const std::string& bytes);
    Bare& Put(const char* section, const char* key, const char* text);
    /// The file's bytes; the file is gone with that.
    std::string Bytes();

private:
    std::string m_file;
};

} // namespace saving
