#include "PelmarDlgs/dialogs/defaults_file_chooser.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "PelmarDlgs/saving.h"
#include "PelmarDlgs/settings_locations.h"
#include "dialogs/defaults_file_chooser_controls.h"
#include "dialogs/folder_browser.h"
#include "dialogs/restart_question.h"
#include "frame/fixed_text.h"
#include "frame/held_file.h"
#include "frame/module.h"
#include "frame/profile.h"
#include "pages/page_controls.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {
constexpr char kFolderSection[] = "DefaultPath";
constexpr char kFolderKey[] = "NCDefaultPath";
constexpr char kStartupSection[] = "DefaultNCParameter";
constexpr char kStartupKey[] = "NCDefaultStartup";
constexpr char kFilesSection[] = "NCDefaultFile";

constexpr size_t kFolderCapacity = 256;
constexpr size_t kSectionCapacity = 32765;
constexpr size_t kLongestPart = 511;

using NameText = FixedText<SettingsText::kCapacity>;

/// The two parts of a line "key=file name". The second ends at another "=". Nothing where one of them is empty, or the
/// first too long.
std::optional<std::pair<std::string, std::string>> Split(std::string_view line)
{
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos || equals == 0 || equals > kLongestPart)
        return {};
    const std::string key(line.substr(0, equals));
    line.remove_prefix(equals + 1);
    const std::string_view name = line.substr(0, std::min(line.find('='), kLongestPart));
    if (name.empty())
        return {};
    return {{key, std::string(name)}};
}
} // namespace

static_assert(int{CNCDefaultPath::IDD} == IDD_CHOOSER);

/// What the dialog edits.
class pelmar::ChooserState {
public:
    void ReadFileNames(const char* from)
    {
        std::vector<char> lines(kSectionCapacity);
        profile::ReadSection(kFilesSection, lines, from);
        for (const char* line = lines.data(); *line; line += std::strlen(line) + 1)
            if (auto entry = Split(line))
                fileNames[std::move(entry->first)] = std::move(entry->second);
    }

    /// The folder is shown outside the exchange, in which the edit's notification would be lost: a folder that the
    /// dialog itself puts into the edit counts as a change like any other.
    void Show(CNCDefaultPath& dialog) const
    {
        dialog.UpdateData(FALSE);
        const CString text(folder.c_str());
        CString shown;
        dialog.GetDlgItem(IDC_CHOOSER_FOLDER)->GetWindowText(shown);
        if (shown != text)
            dialog.SetDlgItemText(IDC_CHOOSER_FOLDER, text);
    }

    void Store()
    {
        const char* const host = GetSettingsLocations().hostSettingsFile.c_str();
        startupKey = KeyOfFile();
        SaveStep step;
        profile::WriteText(kFolderSection, kFolderKey, folder.c_str(), host);
        profile::WriteText(kStartupSection, kStartupKey, startupKey.c_str(), host);
        profile::WriteText(kFilesSection, startupKey.c_str(), file.c_str(), host);
        step.Commit();
    }

    CComboBox files;
    std::string folder;
    bool isChanged = false;
    std::string file; ///< the start-up file
    std::string startupKey;
    std::string folderAtOpening;
    std::string fileAtOpening;

private:
    /// The key that names the start-up file, the last one where several do. A file that no key names gets one from its
    /// name.
    std::string KeyOfFile() const
    {
        std::string key;
        for (const auto& [known, name] : fileNames)
            if (name == file)
                key = known;
        if (!key.empty())
            return key;
        const size_t dot = file.find('.');
        return dot == 0 ? file : file.substr(0, dot);
    }

    std::map<std::string, std::string> fileNames; ///< by their keys in the host's settings
};

IMPLEMENT_DYNCREATE(CNCDefaultPath, CDialog)

BEGIN_MESSAGE_MAP(CNCDefaultPath, pelmar::CNCDialog)
    ON_BN_CLICKED(IDC_CHOOSER_BROWSE, &CNCDefaultPath::OnDirBtn)
    ON_EN_CHANGE(IDC_CHOOSER_FOLDER, &CNCDefaultPath::OnChangeDirEdit)
    ON_MESSAGE(kCheckSaveDataMessage, &CNCDefaultPath::CheckSaveData)
    ON_MESSAGE(kSetDefaultsMessage, &CNCDefaultPath::SetDefaults)
    ON_CBN_SELCHANGE(IDC_CHOOSER_FILES, &CNCDefaultPath::OnSelchangeComboInifile)
    ON_COMMAND(ID_HELP, &CNCDefaultPath::OnHelp)
END_MESSAGE_MAP()

CNCDefaultPath::CNCDefaultPath(CWnd* parent) : CNCDialog(IDD, parent), m_state(new ChooserState) {}

CNCDefaultPath::~CNCDefaultPath()
{
    delete m_state;
}

BOOL CNCDefaultPath::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    ReadFromIni(GetSettingsLocations().hostSettingsFile.c_str());
    m_state->folderAtOpening = m_state->folder;
    m_state->fileAtOpening = m_state->file;
    return TRUE;
}

void CNCDefaultPath::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CHOOSER_FILES, m_state->files);
    if (!exchange->m_bSaveAndValidate)
        return;
    CString folder;
    DDX_Text(exchange, IDC_CHOOSER_FOLDER, folder);
    m_state->folder = CStringA(folder).GetString();
}

void CNCDefaultPath::ReadFromIni(const char* file)
{
    const HeldFile oneVersion(file);
    m_state->folder = FixedText<kFolderCapacity>::FromProfile(kFolderSection, kFolderKey, "", file).c_str();
    m_state->startupKey = NameText::FromProfile(kStartupSection, kStartupKey, "NCCurrentFileName", file).c_str();
    m_state->file = NameText::FromProfile(kFilesSection, m_state->startupKey.c_str(), "CURRENT.INI", file).c_str();
    m_state->ReadFileNames(file);
    UpdateNCIniFileCB();
}

void CNCDefaultPath::UpdateNCIniFileCB()
{
    m_state->files.ResetContent();
    m_state->files.Dir(DDL_READWRITE | DDL_READONLY, CString((m_state->folder + "\\*.ini").c_str()));
    const int found = m_state->files.FindStringExact(-1, CString(m_state->file.c_str()));
    m_state->files.SetCurSel(found >= 0 ? found : 0);
    m_state->Show(*this);
}

void CNCDefaultPath::OnSelchangeComboInifile()
{
    CString name;
    m_state->files.GetLBText(m_state->files.GetCurSel(), name);
    m_state->file = CStringA(name).GetString();
    m_state->isChanged = true;
}

void CNCDefaultPath::OnDirBtn()
{
    if (!UpdateData(TRUE))
        return;
    const std::optional<std::string> folder = BrowseForFolder(m_hWnd, IDS_CHOOSE_NC_FOLDER, m_state->folder.c_str());
    if (!folder)
        return;
    m_state->folder = *folder;
    UpdateNCIniFileCB();
    m_state->isChanged = true;
}

void CNCDefaultPath::OnChangeDirEdit()
{
    if (m_state->folder.empty()) {
        AfxMessageBox(LoadText(IDS_NAME_EXISTING_FOLDER));
        m_state->folder = m_state->folderAtOpening;
    }
    UpdateNCIniFileCB();
    m_state->isChanged = true;
}

LRESULT CNCDefaultPath::SetDefaults(WPARAM, LPARAM)
{
    ReadFromIni(GetSettingsLocations().hostDefaultsFile.c_str());
    m_state->isChanged = true;
    return 0;
}

LRESULT CNCDefaultPath::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_state->isChanged)
        return 0;
    if (m_state->folder.empty())
        m_state->folder = m_state->folderAtOpening;
    if (m_state->file.empty())
        m_state->file = m_state->fileAtOpening;
    m_state->Show(*this);
    if (AskToStoreUntilRestart()) {
        m_state->Store();
    } else {
        m_state->folder = m_state->folderAtOpening;
        m_state->file = m_state->fileAtOpening;
        UpdateNCIniFileCB();
    }
    m_state->isChanged = false;
    return 0;
}

void CNCDefaultPath::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kChooserPage.topic, kChooserPage.controls);
}
