#include "PelmarDlgs/settings_locations.h"

#include <string>

#include "PelmarDlgs/library.h"
#include "frame/fixed_text.h"
#include "frame/held_file.h"
#include "frame/locate.h"
#include "frame/profile.h"

namespace pelmar {
namespace {
using PathText = FixedText<SettingsText::kCapacity>;
using HelpFileText = FixedText<255>;
using CoreText = FixedText<512>;

constexpr char kDefaultMachine[] = "\\3AxGeneric\\3AxGeneric.xml";

SettingsLocations g_locations;

/// What the host's own files say of where everything else is.
struct HostFiles {
    PathText folder;
    PathText core;
    PathText settings;
};

template <class... Pieces> PathText Joined(const Pieces&... pieces)
{
    PathText text;
    text.Assign(pieces...);
    return text;
}

HostFiles LocateHostFiles()
{
    HostFiles files;
    files.folder.Assign(FolderOf(PathText::OfExecutable()));
    files.core.Assign(files.folder, "TORVEXCore.INI");
    const CoreText folder =
        CoreText::FromProfile("DefaultPath", "TorvexIniPath", files.core.c_str(), files.core.c_str());
    if (folder.view() == files.core.view())
        files.settings = files.core;
    else
        files.settings.Assign(folder, "\\", "TORVEX.ini");
    return files;
}

/// The new start-up machine: the old one's file name, in a folder named like it. The simulation expects the doubled
/// separators.
std::string MachineBelow(std::string_view folder, std::string_view machine)
{
    std::string moved(folder);
    const size_t separator = machine.rfind('\\');
    if (separator == std::string_view::npos || separator == 0)
        return moved += kDefaultMachine;
    constexpr size_t kExtension = 4;
    const std::string_view tail = machine.substr(separator);
    const std::string_view stem = tail.substr(0, tail.size() > kExtension ? tail.size() - kExtension : 0);
    moved += '\\';
    moved += stem;
    moved += '\\';
    return moved += tail;
}

void MoveMachine(const HostFiles& host, const char* folder)
{
    const PathText file =
        PathText::FromProfile("DefaultPath", "MachSimIniPath", host.core.c_str(), host.settings.c_str());
    const PathText machine = PathText::FromProfile("startup", "mdfilename", "", file.c_str());
    profile::WriteText("startup", "mdfilename", MachineBelow(folder, machine).c_str(), file.c_str());
}
} // namespace

const SettingsLocations& GetSettingsLocations()
{
    return g_locations;
}

void LocateHelpFile()
{
    constexpr std::string_view kExecutable = "\\TORVEX.EXE";
    PathText path = PathText::OfExecutable();
    path.MakeUpper();
    // Under another name the host has no help folder of its own: the topic file is then looked for on the current
    // drive.
    const size_t found = path.view().find(kExecutable);
    const std::string_view folder = found == std::string_view::npos ? "" : path.view().substr(0, found);
    HelpFileText file;
    file.Assign(folder, "\\Help\\TORVEX.chm");
    // Threads come and go while others read it: what is the same is not written again.
    if (file.view() != g_locations.helpFile.view())
        g_locations.helpFile = file;
}

void LocateSettings()
{
    const HostFiles host = LocateHostFiles();
    const char* const settings = host.settings.c_str();
    const HeldFile held(settings);
    g_locations.hostFolder = host.folder;
    g_locations.hostSettingsFile = host.settings;
    // The separator stands twice; the host compares this path as text.
    g_locations.hostDefaultsFile = Joined(host.folder, "\\", "Def\\TORVEX.INI");

    const PathText folder = PathText::FromProfile("DefaultPath", "NCDefaultPath", ".\\NCDEFAULT", settings);
    const PathText startup =
        PathText::FromProfile("DefaultNCParameter", "NCDefaultStartup", "NCCurrentFileName", settings);
    const PathText current = PathText::FromProfile("NCDefaultFile", startup.c_str(), "CURRENT.INI", settings);
    const PathText defaults = PathText::FromProfile("NCDefaultFile", "NCDefaultFileName", "DEFAULT.INI", settings);
    g_locations.settingsFile = Joined(folder, "\\", current);
    g_locations.defaultsFile = Joined(folder, "\\", defaults);

    PathText librarySettings;
    librarySettings.Assign(FolderOf(host.settings), "TORVEXCore.ini");
    g_locations.toolLibraryName =
        PathText::FromProfile("DefaultSystemFile", "ToolLib", "ToolLib.DLL", librarySettings.c_str());

    MoveMachine(host, PathText::FromProfile("DefaultPath", "MachSimPath", kDefaultMachine, settings).c_str());
}

} // namespace pelmar

void PelmarUI_SetMachineSimPath(const char* folder)
{
    pelmar::MoveMachine(pelmar::LocateHostFiles(), folder ? folder : "");
}
