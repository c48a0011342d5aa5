#include "module/host_folder.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "frame/fixed_text.h"
#include "ui/ui_thread.h"

namespace fs = std::filesystem;

std::string ProgramFolder()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::string(FolderOf(path));
}

std::string ReadWholeFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void WriteWholeFile(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
    // The profile functions keep the file that they read last; a write without a section lets go of it.
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

std::string Value(const std::string& file, const char* section, const char* key)
{
    char text[4096];
    GetPrivateProfileStringA(section, key, "<absent>", text, sizeof text, file.c_str());
    return text;
}

HostFolder::HostFolder()
{
    static int made = 0;
    folder = ProgramFolder() + "host" + std::to_string(made++);
    coreFile = ProgramFolder() + "TORVEXCore.INI";
    hostSettings = folder + "\\TORVEX.ini";
    settings = folder + "\\NC\\CURRENT.INI";
    defaults = folder + "\\NC\\DEFAULT.INI";
    fs::create_directories(folder + "\\NC");
    WriteWholeFile(coreFile, "[DefaultPath]\r\nTorvexIniPath=" + folder + "\r\n");
    WriteWholeFile(hostSettings, "[DefaultPath]\r\nNCDefaultPath=" + folder + "\\NC\r\n");
    Initialize();
}

HostFolder::~HostFolder()
{
    ui::UiThread::Get().Call([] { FinalizePelmarDlgsDLL(); });
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    fs::remove(coreFile, ignored);
}

int HostFolder::Initialize() const
{
    return ui::On([] { return InitializePelmarDlgsDLL(); });
}

void HostFolder::WriteSettings(const std::string& text) const
{
    WriteWholeFile(settings, text);
}

void HostFolder::WriteDefaults(const std::string& text) const
{
    WriteWholeFile(defaults, text);
}

std::string HostFolder::ReadSettings() const
{
    return ReadWholeFile(settings);
}
