#include "dialogs/template_options.h"

#include <algorithm>

#include <util.h>

#include "dialogs/folder_browser.h"
#include "frame/fixed_text.h"
#include "frame/module.h"
#include "frame/settings_locations.h"
#include "pages/option_page.h"
#include "resources/resource.h"

namespace {
constexpr char kSection[] = "DefaultPath";
constexpr char kFolderKey[] = "ToolpathTemplatesPath";
constexpr char kUsualFolder[] = "C:\\TORVEX\\Template";
constexpr size_t kUsualFolderCapacity = 1001;
constexpr char kTopic[] = "pelmar-_defaults_toolpath_templates.htm";

/// The operation that is never offered.
constexpr std::int32_t kHiddenOperation = 36;

/// What claims to be longer is no list.
constexpr std::int32_t kMaxListLength = 1000;

/// The stored keys by position in the list of sort options.
constexpr std::int32_t kSortKeys[] = {1, 2, 8, 4, 32, 16, 64};
constexpr size_t kSortOptions = std::size(kSortKeys);

/// The library never learns how much room it has.
constexpr size_t kTemplatePathCapacity = 32768;

/// The position that a stored key is shown at. It is not the one that the key was stored for: 4 and 8, and 16 and 32,
/// change places. What is stored by now is read so.
std::optional<int> ShownPosition(std::int32_t sortKey)
{
    for (int position = 1; position < static_cast<int>(kSortOptions); ++position)
        if (sortKey == 1 << position)
            return position;
    return {};
}

/// Selects nothing where the list has no such position. (Not every system does that by itself.)
void Select(CComboBox& list, int position)
{
    if (list.SetCurSel(position) == CB_ERR)
        list.SetCurSel(-1);
}

/// Does nothing where the texts have no such position.
void RemoveAt(std::vector<CString>& texts, int position)
{
    if (position < static_cast<int>(texts.size()))
        texts.erase(texts.begin() + position);
}

void Append(CComboBox& list, const std::vector<CString>& texts)
{
    for (const CString& text : texts)
        list.AddString(text);
}

// ---- the post-processor library ----

using GetOperationListFunction = int(std::int32_t* count, const std::int32_t** ids);
using GetSortingOptionStringsFunction = int(std::int32_t* count, const char* const** texts);
using TemplateDefaultsFunction = int(TemplateDefaults* record);
using SelectTemplateFileFunction = int(std::int32_t operation, char* path);

/// The library, loaded as long as this lives.
class PostProcessor {
public:
    PostProcessor() : m_module(LoadLibraryA("PELMAR.dll")) {}
    ~PostProcessor()
    {
        if (m_module)
            FreeLibrary(m_module);
    }
    PostProcessor(const PostProcessor&) = delete;
    PostProcessor& operator=(const PostProcessor&) = delete;

    explicit operator bool() const { return m_module != nullptr; }

    /// Null where the library or the entry point is missing.
    template <class Function> Function* Find(const char* name) const
    {
        const FARPROC address = m_module ? GetProcAddress(m_module, name) : nullptr;
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
    }

private:
    HMODULE m_module;
};

/// Calls the library. What it throws must not unwind through the host's windows; the call then has had no result.
template <class Call> void Guarded(Call call)
{
    try {
        call();
    } catch (...) {
    }
}

/// What an entry point of the library hands out as a list; empty where it is none.
template <class Function, class Item> std::vector<Item> Fetch(const PostProcessor& library, const char* entryPoint)
{
    auto* const get = library.Find<Function>(entryPoint);
    std::int32_t count = 0;
    Item const* items = nullptr;
    if (get)
        Guarded([&] { get(&count, &items); });
    if (!items || count < 0 || count > kMaxListLength)
        return {};
    return {items, items + count};
}

/// Tells that the library's template dialog has failed.
class CTemplateManagerException : public CException {
public:
    BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT*) const override
    {
        lstrcpyn(text, L"Unable to create Template Manager dialog", static_cast<int>(capacity));
        return TRUE;
    }
};

FixedText<kSettingsTextCapacity> StoredDatabaseFolder()
{
    return FixedText<kSettingsTextCapacity>::FromProfile(kSection, kFolderKey, "",
                                                         GetSettingsLocations().hostSettingsFile.c_str());
}

CString TextOf(const CWnd& control)
{
    CString text;
    control.GetWindowText(text);
    return text;
}
} // namespace

static_assert(int{CTemplateOptions::IDD} == IDD_TEMPLATES);

IMPLEMENT_DYNCREATE(CTemplateOptions, CDialog)

BEGIN_MESSAGE_MAP(CTemplateOptions, CNCDialog)
    ON_COMMAND(ID_HELP, &CTemplateOptions::OnHelp)
    ON_MESSAGE(kCheckSaveDataMessage, &CTemplateOptions::CheckSaveData)
    ON_MESSAGE(kSetDefaultsMessage, &CTemplateOptions::SetDefaults)
    ON_BN_CLICKED(IDC_TEMPLATES_CHOOSE_DEFAULT, &CTemplateOptions::OnBnClickedTemplateFileDirBtn)
    ON_BN_CLICKED(IDC_TEMPLATES_CHOOSE_DATABASE, &CTemplateOptions::OnBnClickedTemplateDbPathDirBtn)
    ON_CBN_SELCHANGE(IDC_TEMPLATES_FIRST_SORT, &CTemplateOptions::OnCbnSelchangeCombo1stSort)
    ON_CBN_SELCHANGE(IDC_TEMPLATES_SECOND_SORT, &CTemplateOptions::OnCbnSelchangeCombo2ndSort)
    ON_CBN_SELCHANGE(IDC_TEMPLATES_OPERATION, &CTemplateOptions::OnCbnSelchangeComboToolpathOperation)
    ON_EN_CHANGE(IDC_TEMPLATES_DATABASE, &CTemplateOptions::OnTemplateDBPathChange)
    ON_EN_CHANGE(IDC_TEMPLATES_DEFAULT, &CTemplateOptions::OnTemplateDBPathChange)
END_MESSAGE_MAP()

CTemplateOptions::CTemplateOptions(CWnd* parent) : CNCDialog(IDD, parent)
{
    GetOperationList();
    FetchSortingStrings();
}

// ---- lists of the library ----

void CTemplateOptions::GetOperationList()
{
    if (m_operations.empty())
        m_operations = Fetch<GetOperationListFunction, std::int32_t>(PostProcessor(), "Pelmar_GetOperationList");
}

void CTemplateOptions::FetchSortingStrings()
{
    const PostProcessor library;
    for (const char* text : Fetch<GetSortingOptionStringsFunction, const char*>(library, "GetSortingOptionStrings"))
        if (m_sortingStrings.size() < kSortOptions)
            m_sortingStrings.emplace_back(text);
}

CString CTemplateOptions::GetSortingString(int index) const
{
    const bool exists = index >= 0 && index < static_cast<int>(m_sortingStrings.size());
    return exists ? m_sortingStrings[static_cast<size_t>(index)] : CString();
}

int CTemplateOptions::GetSortingType(CString text) const
{
    const auto found = std::ranges::find(m_sortingStrings, text);
    return found == m_sortingStrings.end() ? 0 : static_cast<int>(found - m_sortingStrings.begin());
}

// ---- showing ----

BOOL CTemplateOptions::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    GetDefaults();
    UpdateSortingOptions(kSortsAtStart);
    if (m_defaultTemplate.GetWindowTextLength() == 0)
        m_defaultTemplate.SetWindowText(GetSortingString(0));
    const auto folder = FixedText<kUsualFolderCapacity>::FromProfile(kSection, kFolderKey, kUsualFolder,
                                                                     util::IAppUI::GetInstance()->GetSettingsPath());
    m_databaseFolder.SetWindowText(CString(folder.c_str()));
    return TRUE;
}

void CTemplateOptions::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TEMPLATES_OPERATION, m_operationList);
    DDX_Control(exchange, IDC_TEMPLATES_DEFAULT, m_defaultTemplate);
    DDX_Control(exchange, IDC_TEMPLATES_FIRST_SORT, m_firstSort);
    DDX_Control(exchange, IDC_TEMPLATES_SECOND_SORT, m_secondSort);
    DDX_Control(exchange, IDC_TEMPLATES_THIRD_SORT, m_thirdSort);
    DDX_Control(exchange, IDC_TEMPLATES_DATABASE, m_databaseFolder);
}

void CTemplateOptions::GetDefaults()
{
    m_records.clear();
    ReadRecords();
    ShowFirstRecord();
    m_databaseFolder.SetWindowText(CString(StoredDatabaseFolder().c_str()));
}

void CTemplateOptions::ReadRecords()
{
    const PostProcessor library;
    auto* const get = library.Find<TemplateDefaultsFunction>("GetTemplateDefaults");
    if (!get)
        return;
    for (const std::int32_t operation : m_operations) {
        TemplateDefaults record;
        record.operationId = operation;
        Guarded([&] { get(&record); });
        if (operation != kHiddenOperation && !record.operationName.empty()) {
            m_operationList.AddString(CString(record.operationName.c_str()));
            m_operationList.SetCurSel(0);
        }
        if (record.hasDefaults != 0)
            m_records.push_back(record);
    }
}

void CTemplateOptions::ShowFirstRecord()
{
    if (m_records.empty())
        return;
    const TemplateDefaults& first = m_records.front();
    m_defaultTemplate.SetWindowText(CString(first.templateFile.c_str()));
    if (first.firstSortKey == 1)
        return;
    const auto show = [](CComboBox& list, std::int32_t sortKey) {
        if (const std::optional<int> position = ShownPosition(sortKey))
            Select(list, *position);
    };
    show(m_firstSort, first.firstSortKey);
    show(m_secondSort, first.secondSortKey);
    show(m_thirdSort, first.thirdSortKey);
}

// Position 0 stands for no sorting and is no choice that the next lists have to leave out. While the first list shows
// it, all options are appended to what the lists hold; the first list is never emptied.
void CTemplateOptions::UpdateSortingOptions(SortOptionType type)
{
    const int first = m_firstSort.GetCurSel();
    int second = m_secondSort.GetCurSel();
    int third = m_thirdSort.GetCurSel();
    if (type == kSecondSortChanged && second >= 1)
        m_thirdSort.ResetContent();
    if (type == kFirstSortChanged && first >= 0) {
        m_secondSort.ResetContent();
        m_thirdSort.ResetContent();
        second = 0;
        third = 0;
    }

    if (first < 1) {
        Append(m_firstSort, m_sortingStrings);
        Append(m_secondSort, m_sortingStrings);
        Append(m_thirdSort, m_sortingStrings);
    } else {
        std::vector<CString> others = m_sortingStrings;
        RemoveAt(others, first);
        if (type == kFirstSortChanged)
            Append(m_secondSort, others);
        if (second > 0)
            RemoveAt(others, second);
        Append(m_thirdSort, others);
    }

    Select(m_firstSort, std::max(first, 0));
    Select(m_secondSort, std::max(second, 0));
    Select(m_thirdSort, std::max(third, 0));
}

void CTemplateOptions::OnCbnSelchangeCombo1stSort()
{
    UpdateSortingOptions(kFirstSortChanged);
    m_isChanged = true;
}

void CTemplateOptions::OnCbnSelchangeCombo2ndSort()
{
    UpdateSortingOptions(kSecondSortChanged);
    m_isChanged = true;
}

void CTemplateOptions::OnCbnSelchangeComboToolpathOperation()
{
    const std::optional<std::int32_t> operation = ChosenOperation();
    const TemplateDefaults* const record = operation ? RecordOf(*operation) : nullptr;
    m_defaultTemplate.SetWindowText(record ? CString(record->templateFile.c_str()) : GetSortingString(0));
}

void CTemplateOptions::OnTemplateDBPathChange()
{
    m_isChanged = true;
}

// ---- records ----

std::optional<std::int32_t> CTemplateOptions::ChosenOperation() const
{
    const int selection = m_operationList.GetCurSel();
    if (selection < 0 || selection >= static_cast<int>(m_operations.size()))
        return {};
    return m_operations[static_cast<size_t>(selection)];
}

TemplateDefaults* CTemplateOptions::RecordOf(std::int32_t operation)
{
    const auto found = std::ranges::find(m_records, operation, &TemplateDefaults::operationId);
    return found == m_records.end() ? nullptr : &*found;
}

std::int32_t CTemplateOptions::SortKeyOf(const CComboBox& list) const
{
    return kSortKeys[GetSortingType(TextOf(list))];
}

void CTemplateOptions::TakeSortKeys(TemplateDefaults& record) const
{
    record.firstSortKey = SortKeyOf(m_firstSort);
    record.secondSortKey = SortKeyOf(m_secondSort);
    record.thirdSortKey = SortKeyOf(m_thirdSort);
}

// ---- choosing ----

void CTemplateOptions::OnBnClickedTemplateFileDirBtn()
{
    const PostProcessor library;
    if (!library) {
        MessageBox(L"Failed to load the PELMAR library!", L"Error", MB_OK);
        return;
    }
    auto* const select = library.Find<SelectTemplateFileFunction>("SelectTemplateFile");
    if (!select) {
        MessageBox(L"Failed to open dialog to select a template", L"Error", MB_OK);
        return;
    }
    try {
        if (const std::optional<std::int32_t> operation = ChosenOperation()) {
            std::vector<char> path(kTemplatePathCapacity);
            if (select(*operation, path.data()) == 0)
                path.front() = '\0';
            path.back() = '\0';
            TakeTemplateFile(*operation, path.data());
        }
    } catch (...) {
        throw new CTemplateManagerException;
    }
}

/// Without a path the operation has no template from now on.
void CTemplateOptions::TakeTemplateFile(std::int32_t operation, const char* path)
{
    m_defaultTemplate.SetWindowText(*path ? CString(path) : GetSortingString(0));
    if (TemplateDefaults* const known = RecordOf(operation)) {
        known->templateFile = path;
    } else {
        TemplateDefaults record;
        record.operationId = operation;
        record.templateFile = path;
        TakeSortKeys(record);
        m_records.push_back(record);
    }
    m_isChanged = true;
}

void CTemplateOptions::OnBnClickedTemplateDbPathDirBtn()
{
    const CStringA initial(TextOf(m_databaseFolder));
    const std::optional<std::string> folder = BrowseForFolder(m_hWnd, IDS_CHOOSE_TEMPLATE_DATABASE, initial);
    if (!folder)
        return;
    m_databaseFolder.SetWindowText(CString(folder->c_str()));
    m_isChanged = true;
}

// ---- messages of the host ----

LRESULT CTemplateOptions::SetDefaults(WPARAM, LPARAM)
{
    GetDefaults();
    UpdateData(FALSE);
    m_isChanged = true;
    return 0;
}

LRESULT CTemplateOptions::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_isChanged)
        return 0;
    if (AskToStoreUntilRestart()) {
        StoreRecords();
        StoreDatabaseFolder();
    }
    m_isChanged = false;
    return 0;
}

void CTemplateOptions::StoreRecords()
{
    const PostProcessor library;
    auto* const set = library.Find<TemplateDefaultsFunction>("SetTemplateDefaults");
    if (!set)
        return;
    const std::optional<std::int32_t> chosen = ChosenOperation();
    for (TemplateDefaults& record : m_records) {
        record.hasDefaults = 1;
        if (record.operationId == chosen)
            TakeSortKeys(record);
        Guarded([&] { set(&record); });
    }
}

void CTemplateOptions::StoreDatabaseFolder() const
{
    const CStringA folder(TextOf(m_databaseFolder));
    if (StoredDatabaseFolder().view() != folder.GetString())
        profile::WriteText(kSection, kFolderKey, folder, GetSettingsLocations().hostSettingsFile.c_str());
}

// ---- help ----

const char* CTemplateOptions::GetHelpInfo(UINT) const
{
    return kTopic;
}

void CTemplateOptions::OnHelp()
{
    ShowHelp(GetHelpInfo(0), {});
}

LRESULT CTemplateOptions::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    WatchForContextHelp(message, wParam);
    if (message != WM_HELP)
        return CNCDialog::WindowProc(message, wParam, lParam);
    OnHelp();
    return 1;
}
