#include "dialogs/defaults_file_chooser.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "dialogs/folder_browser.h"
#include "frame/fixed_text.h"
#include "frame/module.h"
#include "frame/settings_locations.h"
#include "pages/option_page.h"
#include "resources/resource.h"

namespace {
constexpr char kFolderSection[] = "DefaultPath";
constexpr char kFolderKey[] = "NCDefaultPath";
constexpr char kStartupSection[] = "DefaultNCParameter";
constexpr char kStartupKey[] = "NCDefaultStartup";
constexpr char kFilesSection[] = "NCDefaultFile";

constexpr size_t kFolderCapacity = 256;
constexpr size_t kSectionCapacity = 32765;
constexpr size_t kLongestPart = 511;

constexpr char kGeneralTopic[] = "tvaux-_toolsoptions_tools_options_nc_defaults_paths.htm";
constexpr char kFolderTopic[] = "tvaux-_toolsoptionspopups_nc_defaults.htm";
constexpr HelpTopic kTopics[] = {{IDC_CHOOSER_FOLDER, kFolderTopic}, {IDC_CHOOSER_BROWSE, kFolderTopic}};

using SettingsText = FixedText<kSettingsTextCapacity>;

/// The two parts of a line "key=file name". The second ends at another "=". Nothing where one of them is empty, or the
/// first too long.
std::optional<std::pair<std::string, std::string>> Split(std::string_view line)
{
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos || equals == 0 || equals > kLongestPart)
        return {};
    const std::string_view rest = line.substr(equals + 1);
    const std::string_view name = rest.substr(0, rest.find('=')).substr(0, kLongestPart);
    if (name.empty())
        return {};
    return {{std::string(line.substr(0, equals)), std::string(name)}};
}
} // namespace

static_assert(int{CNCDefaultPath::IDD} == IDD_CHOOSER);

IMPLEMENT_DYNCREATE(CNCDefaultPath, CDialog)

BEGIN_MESSAGE_MAP(CNCDefaultPath, CNCDialog)
    ON_BN_CLICKED(IDC_CHOOSER_BROWSE, &CNCDefaultPath::OnDirBtn)
    ON_EN_CHANGE(IDC_CHOOSER_FOLDER, &CNCDefaultPath::OnChangeDirEdit)
    ON_MESSAGE(kCheckSaveDataMessage, &CNCDefaultPath::CheckSaveData)
    ON_MESSAGE(kSetDefaultsMessage, &CNCDefaultPath::SetDefaults)
    ON_CBN_SELCHANGE(IDC_CHOOSER_FILES, &CNCDefaultPath::OnSelchangeComboInifile)
    ON_COMMAND(ID_HELP, &CNCDefaultPath::OnHelp)
END_MESSAGE_MAP()

CNCDefaultPath::CNCDefaultPath(CWnd* parent) : CNCDialog(IDD, parent) {}

BOOL CNCDefaultPath::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    ReadFromIni(GetSettingsLocations().hostSettingsFile.c_str());
    m_folderAtOpening = m_folder;
    m_fileAtOpening = m_file;
    return TRUE;
}

void CNCDefaultPath::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CHOOSER_FILES, m_files);
    if (!exchange->m_bSaveAndValidate)
        return;
    CString folder;
    DDX_Text(exchange, IDC_CHOOSER_FOLDER, folder);
    m_folder = CStringA(folder).GetString();
}

/// The folder is shown outside the exchange, in which the edit's notification would be lost: a folder that the dialog
/// itself puts into the edit counts as a change like any other.
void CNCDefaultPath::ShowValues()
{
    UpdateData(FALSE);
    const CString folder(m_folder.c_str());
    CString shown;
    GetDlgItem(IDC_CHOOSER_FOLDER)->GetWindowText(shown);
    if (shown != folder)
        SetDlgItemText(IDC_CHOOSER_FOLDER, folder);
}

void CNCDefaultPath::ReadFromIni(const char* file)
{
    m_folder = FixedText<kFolderCapacity>::FromProfile(kFolderSection, kFolderKey, "", file).c_str();
    m_startupKey = SettingsText::FromProfile(kStartupSection, kStartupKey, "NCCurrentFileName", file).c_str();
    m_file = SettingsText::FromProfile(kFilesSection, m_startupKey.c_str(), "CURRENT.INI", file).c_str();
    ReadFileNames(file);
    UpdateNCIniFileCB();
}

void CNCDefaultPath::ReadFileNames(const char* file)
{
    std::vector<char> lines(kSectionCapacity);
    profile::ReadSection(kFilesSection, lines, file);
    for (const char* line = lines.data(); *line; line += std::strlen(line) + 1)
        if (auto entry = Split(line))
            m_fileNames[std::move(entry->first)] = std::move(entry->second);
}

void CNCDefaultPath::UpdateNCIniFileCB()
{
    m_files.ResetContent();
    m_files.Dir(DDL_READWRITE | DDL_READONLY, CString((m_folder + "\\*.ini").c_str()));
    const int found = m_files.FindStringExact(-1, CString(m_file.c_str()));
    m_files.SetCurSel(found >= 0 ? found : 0);
    ShowValues();
}

void CNCDefaultPath::OnSelchangeComboInifile()
{
    CString name;
    m_files.GetLBText(m_files.GetCurSel(), name);
    m_file = CStringA(name).GetString();
    m_isChanged = true;
}

void CNCDefaultPath::OnDirBtn()
{
    if (!UpdateData(TRUE))
        return;
    const std::optional<std::string> folder = BrowseForFolder(m_hWnd, IDS_CHOOSE_NC_FOLDER, m_folder.c_str());
    if (!folder)
        return;
    m_folder = *folder;
    UpdateNCIniFileCB();
    m_isChanged = true;
}

void CNCDefaultPath::OnChangeDirEdit()
{
    if (m_folder.empty()) {
        AfxMessageBox(LoadText(IDS_NAME_EXISTING_FOLDER));
        m_folder = m_folderAtOpening;
    }
    UpdateNCIniFileCB();
    m_isChanged = true;
}

LRESULT CNCDefaultPath::SetDefaults(WPARAM, LPARAM)
{
    ReadFromIni(GetSettingsLocations().hostDefaultsFile.c_str());
    m_isChanged = true;
    return 0;
}

LRESULT CNCDefaultPath::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_isChanged)
        return 0;
    if (m_folder.empty())
        m_folder = m_folderAtOpening;
    if (m_file.empty())
        m_file = m_fileAtOpening;
    ShowValues();
    if (AskToStoreUntilRestart()) {
        Store();
    } else {
        m_folder = m_folderAtOpening;
        m_file = m_fileAtOpening;
        UpdateNCIniFileCB();
    }
    m_isChanged = false;
    return 0;
}

void CNCDefaultPath::Store()
{
    const char* const file = GetSettingsLocations().hostSettingsFile.c_str();
    m_startupKey = KeyOfFile();
    profile::WriteText(kFolderSection, kFolderKey, m_folder.c_str(), file);
    profile::WriteText(kStartupSection, kStartupKey, m_startupKey.c_str(), file);
    profile::WriteText(kFilesSection, m_startupKey.c_str(), m_file.c_str(), file);
}

/// The key that names the start-up file, the last one where several do. A file that no key names gets one from its
/// name.
std::string CNCDefaultPath::KeyOfFile() const
{
    std::string key;
    for (const auto& [known, name] : m_fileNames)
        if (name == m_file)
            key = known;
    if (!key.empty())
        return key;
    const size_t dot = m_file.find('.');
    return dot == 0 ? m_file : m_file.substr(0, dot);
}

void CNCDefaultPath::OnHelp()
{
    ShowHelp(kGeneralTopic, kTopics);
}
