#include "settings_folder.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <windows.h>

namespace fs = std::filesystem;

namespace saving {
namespace {

std::string ProgramFolder()
{
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), MAX_PATH);
    return std::string(path.data(), std::string_view(path.data()).rfind('\\') + 1);
}

void AddNames(const std::string& folder, std::set<std::string>& names)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
}

} // namespace

std::string ReadBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

SettingsFolder::SettingsFolder()
{
    static int made = 0;
    const std::string name = ProgramFolder() + "saving" + std::to_string(made++);
    folder = name + "\\";
    file = folder + "CURRENT.INI";
    passing = name + "passing\\";
    fs::create_directories(folder);
    fs::create_directories(passing);
    SetEnvironmentVariableA("TMP", passing.c_str());
}

SettingsFolder::~SettingsFolder()
{
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    fs::remove_all(passing, ignored);
}

std::set<std::string> SettingsFolder::Names() const
{
    std::set<std::string> names;
    AddNames(folder, names);
    AddNames(passing, names);
    return names;
}

Bare::Bare(const SettingsFolder& folder, const std::string& bytes) : m_file(folder.passing + "bare.ini")
{
    WriteBytes(m_file, bytes);
}

Bare& Bare::Put(const char* section, const char* key, const char* text)
{
    WritePrivateProfileStringA(section, key, text, m_file.c_str());
    return *this;
}

std::string Bare::Bytes()
{
    std::string bytes = ReadBytes(m_file);
    DeleteFileA(m_file.c_str());
    return bytes;
}

} // namespace saving
