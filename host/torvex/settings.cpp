#include "settings.h"

#include <fstream>
#include <iterator>
#include <string>

#include <PelmarDlgs.h>
#include <util.h>

#include "resource.h"

using namespace pelmar;

namespace {

constexpr char kSection[] = "Settings";
constexpr char kUnitsKey[] = "Units";
constexpr char kPageKey[] = "OptionsPage";

const char* HostFile()
{
    return GetSettingsLocations().hostSettingsFile.c_str();
}

const char* NcFile()
{
    return GetSettingsLocations().settingsFile.c_str();
}

/// The system's functions copy the path into a buffer of MAX_PATH characters.
bool HostFileCanExist()
{
    return GetSettingsLocations().hostSettingsFile.view().size() < MAX_PATH;
}

/// Makes the folder of the NC settings file where it is missing: nothing could be saved without it.
void MakeNcFolder()
{
    const std::string file = NcFile();
    CreateDirectoryA(file.substr(0, file.rfind('\\')).c_str(), nullptr);
}

} // namespace

void StartNcModule()
{
    if (!InitializePelmarDlgsDLL())
        AfxMessageBox(IDS_NO_TOOL_LIBRARY);
    util::IAppUI::GetInstance()->SetSettingsPath(HostFile());
    MakeNcFolder();
}

int ReadHostWhole(const char* section, const char* key, int fallback)
{
    return HostFileCanExist() ? static_cast<int>(GetPrivateProfileIntA(section, key, fallback, HostFile())) : fallback;
}

bool WriteHostWhole(const char* section, const char* key, int value)
{
    return SaveText(HostFile(), section, key, std::to_string(value).c_str());
}

bool HostSetting(const char* section, const char* key)
{
    return ReadHostWhole(section, key, 0) != 0;
}

int LoadUnits()
{
    return ReadHostWhole(kSection, kUnitsKey, 0) == 1 ? 1 : 0;
}

void SaveUnits(int units)
{
    WriteHostWhole(kSection, kUnitsKey, units);
}

int LoadOptionsPage()
{
    return ReadHostWhole(kSection, kPageKey, 0);
}

void SaveOptionsPage(int templateId)
{
    WriteHostWhole(kSection, kPageKey, templateId);
}

CString NcSettingsPath()
{
    wchar_t path[1284];
    const DWORD length = GetFullPathName(CString(NcFile()), 1284, path, nullptr);
    return length > 0 && length < 1284 ? CString(path) : CString(NcFile());
}

CString NcSettingsText()
{
    std::ifstream file(NcFile(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return CString(text.c_str());
}
