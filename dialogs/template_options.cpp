#include "PelmarDlgs/dialogs/template_options.h"

#include <algorithm>
#include <list>
#include <optional>
#include <vector>

#include <util.h>

#include "PelmarDlgs/settings_locations.h"
#include "PelmarDlgs/template_defaults.h"
#include "dialogs/folder_browser.h"
#include "dialogs/restart_question.h"
#include "dialogs/template_options_controls.h"
#include "frame/fixed_text.h"
#include "frame/module.h"
#include "frame/profile.h"
#include "pages/page_controls.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {
constexpr char kTemplatesSection[] = "DefaultPath";
constexpr char kTemplatesKey[] = "ToolpathTemplatesPath";
constexpr char kUsualFolder[] = "C:\\TORVEX\\Template";
constexpr size_t kUsualFolderCapacity = 1001;

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

FixedText<SettingsText::kCapacity> StoredDatabaseFolder()
{
    return FixedText<SettingsText::kCapacity>::FromProfile(kTemplatesSection, kTemplatesKey, "",
                                                           GetSettingsLocations().hostSettingsFile.c_str());
}
} // namespace

static_assert(int{CTemplateOptions::IDD} == IDD_TEMPLATES);

/// What the dialog edits, in the controls that the exchange attaches.
class pelmar::TemplateOptionsState {
public:
    void GetOperationList()
    {
        if (operations.empty())
            operations = Fetch<GetOperationListFunction, std::int32_t>(PostProcessor(), "Pelmar_GetOperationList");
    }

    void FetchSortingStrings()
    {
        const PostProcessor library;
        for (const char* text : Fetch<GetSortingOptionStringsFunction, const char*>(library, "GetSortingOptionStrings"))
            if (sortingStrings.size() < kSortOptions)
                sortingStrings.emplace_back(text);
    }

    CString GetSortingString(int index) const
    {
        const bool exists = index >= 0 && index < static_cast<int>(sortingStrings.size());
        return exists ? sortingStrings[static_cast<size_t>(index)] : CString();
    }

    int GetSortingType(const CString& text) const
    {
        const auto found = std::ranges::find(sortingStrings, text);
        return found == sortingStrings.end() ? 0 : static_cast<int>(found - sortingStrings.begin());
    }

    void ReadRecords()
    {
        const PostProcessor library;
        auto* const get = library.Find<TemplateDefaultsFunction>("GetTemplateDefaults");
        if (!get)
            return;
        for (const std::int32_t operation : operations) {
            TemplateDefaults record;
            record.operationId = operation;
            Guarded([&] { get(&record); });
            if (operation != kHiddenOperation && !record.operationName.empty()) {
                operationList.AddString(CString(record.operationName.c_str()));
                operationList.SetCurSel(0);
            }
            if (record.hasDefaults != 0)
                records.push_back(record);
        }
    }

    void ShowFirstRecord()
    {
        if (records.empty())
            return;
        const TemplateDefaults& first = records.front();
        defaultTemplate.SetWindowText(CString(first.templateFile.c_str()));
        if (first.firstSortKey == 1)
            return;
        const auto show = [](CComboBox& list, std::int32_t sortKey) {
            if (const std::optional<int> position = ShownPosition(sortKey))
                Select(list, *position);
        };
        show(firstSort, first.firstSortKey);
        show(secondSort, first.secondSortKey);
        show(thirdSort, first.thirdSortKey);
    }

    // Position 0 stands for no sorting and is no choice that the next lists have to leave out. While the first list
    // shows it, all options are appended to what the lists hold; the first list is never emptied.
    void UpdateSortingOptions(SortOptionType type)
    {
        const int first = firstSort.GetCurSel();
        int second = secondSort.GetCurSel();
        int third = thirdSort.GetCurSel();
        if (type == kSecondSortChanged && second >= 1)
            thirdSort.ResetContent();
        if (type == kFirstSortChanged && first >= 0) {
            secondSort.ResetContent();
            thirdSort.ResetContent();
            second = 0;
            third = 0;
        }

        if (first < 1) {
            Append(firstSort, sortingStrings);
            Append(secondSort, sortingStrings);
            Append(thirdSort, sortingStrings);
        } else {
            std::vector<CString> others = sortingStrings;
            RemoveAt(others, first);
            if (type == kFirstSortChanged)
                Append(secondSort, others);
            if (second > 0)
                RemoveAt(others, second);
            Append(thirdSort, others);
        }

        Select(firstSort, std::max(first, 0));
        Select(secondSort, std::max(second, 0));
        Select(thirdSort, std::max(third, 0));
    }

    /// The operation at the list's selection, by position among all operations: those that the list leaves out shift
    /// it.
    std::optional<std::int32_t> ChosenOperation() const
    {
        const int selection = operationList.GetCurSel();
        if (selection < 0 || selection >= static_cast<int>(operations.size()))
            return {};
        return operations[static_cast<size_t>(selection)];
    }

    TemplateDefaults* RecordOf(std::int32_t operation)
    {
        const auto found = std::ranges::find(records, operation, &TemplateDefaults::operationId);
        return found == records.end() ? nullptr : &*found;
    }

    std::int32_t SortKeyOf(const CComboBox& list) const { return kSortKeys[GetSortingType(TextOf(list))]; }

    void TakeSortKeys(TemplateDefaults& record) const
    {
        record.firstSortKey = SortKeyOf(firstSort);
        record.secondSortKey = SortKeyOf(secondSort);
        record.thirdSortKey = SortKeyOf(thirdSort);
    }

    /// Without a path the operation has no template from now on.
    void TakeTemplateFile(std::int32_t operation, const char* path)
    {
        defaultTemplate.SetWindowText(*path ? CString(path) : GetSortingString(0));
        if (TemplateDefaults* const known = RecordOf(operation)) {
            known->templateFile = path;
        } else {
            TemplateDefaults record;
            record.operationId = operation;
            record.templateFile = path;
            TakeSortKeys(record);
            records.push_back(record);
        }
        isChanged = true;
    }

    void StoreRecords()
    {
        const PostProcessor library;
        auto* const set = library.Find<TemplateDefaultsFunction>("SetTemplateDefaults");
        if (!set)
            return;
        const std::optional<std::int32_t> chosen = ChosenOperation();
        for (TemplateDefaults& record : records) {
            record.hasDefaults = 1;
            if (record.operationId == chosen)
                TakeSortKeys(record);
            Guarded([&] { set(&record); });
        }
    }

    void StoreDatabaseFolder() const
    {
        const CStringA folder(TextOf(databaseFolder));
        if (StoredDatabaseFolder().view() != folder.GetString())
            profile::WriteText(kTemplatesSection, kTemplatesKey, folder,
                               GetSettingsLocations().hostSettingsFile.c_str());
    }

    std::list<TemplateDefaults> records;
    CComboBox operationList;
    CEdit defaultTemplate;
    CComboBox firstSort;
    CComboBox secondSort;
    CComboBox thirdSort;
    CEdit databaseFolder;
    std::vector<std::int32_t> operations;
    std::vector<CString> sortingStrings;
    bool isChanged = false;
};

IMPLEMENT_DYNCREATE(CTemplateOptions, CDialog)

BEGIN_MESSAGE_MAP(CTemplateOptions, pelmar::CNCDialog)
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

CTemplateOptions::CTemplateOptions(CWnd* parent) : CNCDialog(IDD, parent), m_state(new TemplateOptionsState)
{
    GetOperationList();
    m_state->FetchSortingStrings();
}

CTemplateOptions::~CTemplateOptions()
{
    delete m_state;
}

void CTemplateOptions::GetOperationList()
{
    m_state->GetOperationList();
}

CString CTemplateOptions::GetSortingString(int index) const
{
    return m_state->GetSortingString(index);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts link to this name.
int CTemplateOptions::GetSortingType(CString text) const
{
    return m_state->GetSortingType(text);
}

void CTemplateOptions::UpdateSortingOptions(SortOptionType type)
{
    m_state->UpdateSortingOptions(type);
}

// ---- showing ----

BOOL CTemplateOptions::OnInitDialog()
{
    CNCDialog::OnInitDialog();
    GetDefaults();
    UpdateSortingOptions(kSortsAtStart);
    if (m_state->defaultTemplate.GetWindowTextLength() == 0)
        m_state->defaultTemplate.SetWindowText(GetSortingString(0));
    const auto folder = FixedText<kUsualFolderCapacity>::FromProfile(kTemplatesSection, kTemplatesKey, kUsualFolder,
                                                                     util::IAppUI::GetInstance()->GetSettingsPath());
    m_state->databaseFolder.SetWindowText(CString(folder.c_str()));
    return TRUE;
}

void CTemplateOptions::DoDataExchange(CDataExchange* exchange)
{
    CNCDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TEMPLATES_OPERATION, m_state->operationList);
    DDX_Control(exchange, IDC_TEMPLATES_DEFAULT, m_state->defaultTemplate);
    DDX_Control(exchange, IDC_TEMPLATES_FIRST_SORT, m_state->firstSort);
    DDX_Control(exchange, IDC_TEMPLATES_SECOND_SORT, m_state->secondSort);
    DDX_Control(exchange, IDC_TEMPLATES_THIRD_SORT, m_state->thirdSort);
    DDX_Control(exchange, IDC_TEMPLATES_DATABASE, m_state->databaseFolder);
}

void CTemplateOptions::GetDefaults()
{
    m_state->records.clear();
    m_state->ReadRecords();
    m_state->ShowFirstRecord();
    m_state->databaseFolder.SetWindowText(CString(StoredDatabaseFolder().c_str()));
}

void CTemplateOptions::OnCbnSelchangeCombo1stSort()
{
    UpdateSortingOptions(kFirstSortChanged);
    m_state->isChanged = true;
}

void CTemplateOptions::OnCbnSelchangeCombo2ndSort()
{
    UpdateSortingOptions(kSecondSortChanged);
    m_state->isChanged = true;
}

void CTemplateOptions::OnCbnSelchangeComboToolpathOperation()
{
    const std::optional<std::int32_t> operation = m_state->ChosenOperation();
    const TemplateDefaults* const record = operation ? m_state->RecordOf(*operation) : nullptr;
    m_state->defaultTemplate.SetWindowText(record ? CString(record->templateFile.c_str()) : GetSortingString(0));
}

void CTemplateOptions::OnTemplateDBPathChange()
{
    m_state->isChanged = true;
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
        if (const std::optional<std::int32_t> operation = m_state->ChosenOperation()) {
            std::vector<char> path(kTemplatePathCapacity);
            if (select(*operation, path.data()) == 0)
                path.front() = '\0';
            path.back() = '\0';
            m_state->TakeTemplateFile(*operation, path.data());
        }
    } catch (...) {
        throw new CTemplateManagerException;
    }
}

void CTemplateOptions::OnBnClickedTemplateDbPathDirBtn()
{
    const CStringA initial(TextOf(m_state->databaseFolder));
    const std::optional<std::string> folder = BrowseForFolder(m_hWnd, IDS_CHOOSE_TEMPLATE_DATABASE, initial);
    if (!folder)
        return;
    m_state->databaseFolder.SetWindowText(CString(folder->c_str()));
    m_state->isChanged = true;
}

// ---- messages of the host ----

LRESULT CTemplateOptions::SetDefaults(WPARAM, LPARAM)
{
    GetDefaults();
    UpdateData(FALSE);
    m_state->isChanged = true;
    return 0;
}

LRESULT CTemplateOptions::CheckSaveData(WPARAM, LPARAM)
{
    if (!m_state->isChanged)
        return 0;
    if (AskToStoreUntilRestart()) {
        m_state->StoreRecords();
        m_state->StoreDatabaseFolder();
    }
    m_state->isChanged = false;
    return 0;
}

// ---- help ----

const char* CTemplateOptions::GetHelpInfo(UINT) const
{
    return kTemplatesPage.topic;
}

void CTemplateOptions::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, GetHelpInfo(0), {});
}

/// Hosts know it under this name.
LRESULT CTemplateOptions::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CNCDialog::WindowProc(message, wParam, lParam);
}
