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

const char* HostFile()
{
    return GetSettingsLocations().hostSettingsFile.c_str();
}

const char* NcFile()
{
    return GetSettingsLocations().settingsFile.c_str();
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

bool HostSetting(const char* section, const char* key)
{
    return GetPrivateProfileIntA(section, key, 0, HostFile()) != 0;
}

int LoadUnits()
{
    return GetPrivateProfileIntA(kSection, kUnitsKey, 0, HostFile()) == 1 ? 1 : 0;
}

void SaveUnits(int units)
{
    WritePrivateProfileStringA(kSection, kUnitsKey, std::to_string(units).c_str(), HostFile());
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
