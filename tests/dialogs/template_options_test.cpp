#include <filesystem>
#include <limits>
#include <memory>
#include <utility>

#include <gtest/gtest.h>
#include <util.h>

#include "dialogs/dialog_driver.h"
#include "dialogs/folder_browser_driver.h"
#include "dialogs/pelmar_stub.h"
#include "pages/page_driver.h"
#include "ui/file_dialog.h"

namespace {

namespace fs = std::filesystem;

constexpr int kTemplate = 4160;
constexpr int kOperation = 4609;
constexpr int kDefault = 4610;
constexpr int kChooseDefault = 4611;
constexpr int kFirstSort = 4724;
constexpr int kSecondSort = 4725;
constexpr int kThirdSort = 4726;
constexpr int kDatabase = 1327;
constexpr int kChooseDatabase = 1331;

using Texts = std::vector<std::wstring>;

const std::vector<const char*> kSortOptions = {"none", "name", "date", "size", "tool", "machine", "author"};
const Texts kSortTexts = {L"none", L"name", L"date", L"size", L"tool", L"machine", L"author"};

Texts Without(Texts texts, std::initializer_list<const wchar_t*> left)
{
    for (const wchar_t* text : left)
        std::erase(texts, text);
    return texts;
}

Texts Twice(const Texts& texts)
{
    Texts twice = texts;
    twice.insert(twice.end(), texts.begin(), texts.end());
    return twice;
}

/// What stands as PELMAR.dll beside the test program: the host's real one, another one, or none. What was there before
/// comes back at the end.
class PostProcessorFile {
public:
    explicit PostProcessorFile(const char* variant)
    {
        fs::rename(m_path, m_real);
        if (variant)
            fs::copy_file(ProgramFolder() + variant, m_path);
    }
    ~PostProcessorFile()
    {
        if (m_module)
            FreeLibrary(m_module);
        std::error_code ignored;
        fs::remove(m_path, ignored);
        fs::rename(m_real, m_path, ignored);
    }
    PostProcessorFile(const PostProcessorFile&) = delete;
    PostProcessorFile& operator=(const PostProcessorFile&) = delete;

    /// Keeps the library loaded, as a host does, and gives what a scripted one goes by.
    PelmarScript& Script()
    {
        if (!m_module)
            m_module = LoadLibraryA(m_path.c_str());
        const FARPROC address = m_module ? GetProcAddress(m_module, "PelmarStub_Script") : nullptr;
        if (!address)
            throw std::runtime_error("no scripted library is there");
        return *reinterpret_cast<PelmarStubScript*>(reinterpret_cast<void*>(address))();
    }

private:
    std::string m_path = ProgramFolder() + "PELMAR.dll";
    std::string m_real = ProgramFolder() + "PELMAR.real";
    HMODULE m_module = nullptr;
};

/// The dialog inside a window of the host's, made while the library is as it is then.
class TemplateDialog : public testing::Test {
protected:
    ~TemplateDialog() override { util::IAppUI::GetInstance()->SetSettingsPath(nullptr); }

    void Open()
    {
        dialog = std::make_unique<CTemplateOptions>();
        inside = std::make_unique<OpenInside>(*dialog, kTemplate);
        window = inside->window;
    }
    void Close()
    {
        inside.reset();
        dialog.reset();
    }

    /// Whether storing asks the user. It is answered with No, after which nothing is changed any more.
    bool IsChanged()
    {
        PostHostMessage(window, kCheckSaveDataMessage);
        if (!ui::IsBoxOpen())
            return false;
        ui::Answer(ui::WaitForBox(), IDNO);
        return true;
    }
    void Store()
    {
        PostHostMessage(window, kCheckSaveDataMessage);
        ui::Answer(ui::WaitForBox(), IDYES);
    }

    std::wstring Text(int id) { return ui::TextOf(window, id); }
    Texts Items(int id) { return ui::Items(window, id); }
    std::vector<int> SortSelections()
    {
        return {ui::Selection(window, kFirstSort), ui::Selection(window, kSecondSort),
                ui::Selection(window, kThirdSort)};
    }
    void SetStoredFolder(const char* folder)
    {
        WritePrivateProfileStringA("DefaultPath", "ToolpathTemplatesPath", folder, host.hostSettings.c_str());
    }
    std::string StoredFolder() { return Value(host.hostSettings, "DefaultPath", "ToolpathTemplatesPath"); }
    void ExpectEmptyLists()
    {
        for (const int list : {kOperation, kFirstSort, kSecondSort, kThirdSort})
            EXPECT_EQ(Texts{}, Items(list)) << list;
    }

    HostFolder host;
    std::unique_ptr<CTemplateOptions> dialog;
    std::unique_ptr<OpenInside> inside;
    HWND window = nullptr;
};

/// With a library that does as it is told: three operations, the first two of which have a template.
class Templates : public TemplateDialog {
protected:
    explicit Templates(const char* variant = "PelmarStub.dll") : file(variant), script(file.Script())
    {
        script.SetOperations({5, 7, 9});
        script.SetSortOptions(kSortOptions);
        script.AddRecord(5, "Pocket", "C:\\T\\pocket.tpt");
        script.AddRecord(7, "Face", "C:\\T\\face.tpt");
        script.AddRecord(9, "Drill", "");
    }
    ~Templates() override { Close(); }

    static void SetSortKeys(TemplateDefaults& record, std::int32_t first, std::int32_t second, std::int32_t third)
    {
        record.firstSortKey = first;
        record.secondSortKey = second;
        record.thirdSortKey = third;
    }
    std::vector<std::int32_t> StoredSortKeys(size_t index)
    {
        const TemplateDefaults& record = script.stored.at(index);
        return {record.firstSortKey, record.secondSortKey, record.thirdSortKey};
    }

    PostProcessorFile file;
    PelmarScript& script;
};

// ---- opening ----

TEST_F(Templates, CanBeMadeDynamically)
{
    EXPECT_EQ(kTemplate, int{CTemplateOptions::IDD});
    EXPECT_EQ(CDialog::GetThisClass(), CTemplateOptions::GetThisClass()->m_pfnGetBaseClass());
    const std::unique_ptr<CObject> made(CTemplateOptions::CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CTemplateOptions)));
}

TEST_F(Templates, LabelsStandBeforeTheirControlsInReadingOrder)
{
    Open();
    EXPECT_EQ(L"Dialog", ui::TextOf(window));
    Texts labels;
    std::vector<int> ids;
    for (const HWND control : ui::Children(window))
        if (ui::ClassOf(control) == L"Static")
            labels.push_back(ui::TextOf(control));
        else
            ids.push_back(GetDlgCtrlID(control));
    EXPECT_EQ((Texts{L"Операция:", L"Шаблон по умолчанию:", L"1ый параметр сортировки:", L"2ой параметр сортировки:",
                     L"3ий параметр сортировки:", L"Путь к БД шаблонов:"}),
              labels);
    EXPECT_EQ((std::vector<int>{kOperation, kDefault, kChooseDefault, kFirstSort, kSecondSort, kThirdSort, kDatabase,
                                kChooseDatabase}),
              ids);
    EXPECT_EQ(L"...", Text(kChooseDefault));
    EXPECT_EQ(L"...", Text(kChooseDatabase));
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(window));
}

TEST_F(Templates, ListsTheNamedOperationsButOneWithTheFirstInFront)
{
    script.SetOperations({5, 36, 8, 9});
    script.AddRecord(36, "Probe", "C:\\T\\probe.tpt");
    script.AddRecord(8, "", "C:\\T\\nameless.tpt");
    Open();
    EXPECT_EQ((Texts{L"Pocket", L"Drill"}), Items(kOperation));
    EXPECT_EQ(0, ui::Selection(window, kOperation));
}

TEST_F(Templates, TakesTheListsOfTheLibraryOnce)
{
    Open();
    ui::UiThread::Get().Call([&] {
        dialog->GetOperationList();
        dialog->GetDefaults();
    });
    EXPECT_EQ(1, script.operationListCalls);
    EXPECT_EQ(1, script.sortOptionCalls);
}

TEST_F(Templates, AsksAgainForOperationsThatWereNotThere)
{
    script.operationCount = 0;
    Open();
    script.operationCount = 3;
    ui::UiThread::Get().Call([&] { dialog->GetOperationList(); });
    EXPECT_EQ(2, script.operationListCalls);
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ(3u, Items(kOperation).size());
}

TEST_F(Templates, TheFirstRecordsFileIsShownWhicheverOperationIsInFront)
{
    script.records[5].hasDefaults = 0;
    Open();
    EXPECT_EQ(0, ui::Selection(window, kOperation));
    EXPECT_EQ(L"C:\\T\\face.tpt", Text(kDefault));
}

TEST_F(Templates, AHiddenOperationsRecordMayBeTheFirst)
{
    script.SetOperations({36, 5});
    script.AddRecord(36, "Probe", "C:\\T\\probe.tpt");
    Open();
    EXPECT_EQ(L"C:\\T\\probe.tpt", Text(kDefault));
}

TEST_F(Templates, TheFirstSortOptionIsShownWhereThereIsNoFile)
{
    script.records[5].templateFile = "";
    Open();
    EXPECT_EQ(L"none", Text(kDefault));
    Close();
    script.records[5].hasDefaults = 0;
    script.records[7].hasDefaults = 0;
    Open();
    EXPECT_EQ(L"none", Text(kDefault));
}

TEST_F(Templates, SortListsOpenAtTheFirstPositionWhateverIsStored)
{
    SetSortKeys(script.records[5], 4, 8, 64);
    Open();
    for (const int list : {kFirstSort, kSecondSort, kThirdSort})
        EXPECT_EQ(kSortTexts, Items(list)) << list;
    EXPECT_EQ((std::vector<int>{0, 0, 0}), SortSelections());
}

TEST_F(Templates, OpeningCountsAsAChange)
{
    Open();
    EXPECT_TRUE(IsChanged());
    EXPECT_FALSE(IsChanged());
}

TEST_F(Templates, DatabaseFolderIsThatOfTheSettingsThatTheApplicationNames)
{
    SetStoredFolder("C:\\Stored");
    const std::string named = host.folder + "\\named.ini";
    util::IAppUI::GetInstance()->SetSettingsPath(named.c_str());
    Open();
    EXPECT_EQ(L"C:\\TORVEX\\Template", Text(kDatabase));
    Close();
    WriteWholeFile(named, "[DefaultPath]\r\nToolpathTemplatesPath=D:\\Named\r\n");
    Open();
    EXPECT_EQ(L"D:\\Named", Text(kDatabase));
}

TEST_F(Templates, DatabaseFolderIsTheUsualOneWhereTheApplicationNamesNoSettings)
{
    for (const std::string& path : {std::string(), std::string("Z:\\no\\such.ini"), std::string(5000, 'x')}) {
        util::IAppUI::GetInstance()->SetSettingsPath(path.c_str());
        Open();
        EXPECT_EQ(L"C:\\TORVEX\\Template", Text(kDatabase)) << path;
        Close();
    }
}

TEST_F(Templates, DatabaseFolderIsCutAtAThousandCharacters)
{
    const std::string named = host.folder + "\\named.ini";
    WriteWholeFile(named, "[DefaultPath]\r\nToolpathTemplatesPath=" + std::string(1200, 'x') + "\r\n");
    util::IAppUI::GetInstance()->SetSettingsPath(named.c_str());
    Open();
    EXPECT_EQ(std::wstring(1000, L'x'), Text(kDatabase));
}

// ---- operations ----

TEST_F(Templates, AnOperationShowsItsFile)
{
    Open();
    ui::Choose(window, kOperation, 1);
    EXPECT_EQ(L"C:\\T\\face.tpt", Text(kDefault));
    ui::Choose(window, kOperation, 2);
    EXPECT_EQ(L"none", Text(kDefault));
    ui::Choose(window, kOperation, 0);
    EXPECT_EQ(L"C:\\T\\pocket.tpt", Text(kDefault));
}

TEST_F(Templates, AChosenOperationCountsAsAChangeAndLeavesTheSortLists)
{
    SetSortKeys(script.records[7], 4, 8, 16);
    Open();
    IsChanged();
    ui::Choose(window, kOperation, 1);
    EXPECT_EQ((std::vector<int>{0, 0, 0}), SortSelections());
    EXPECT_TRUE(IsChanged());
}

TEST_F(Templates, APositionInTheListMeansThatAmongAllOperations)
{
    script.SetOperations({5, 36, 7, 9});
    script.AddRecord(36, "Probe", "C:\\T\\probe.tpt");
    Open();
    ASSERT_EQ((Texts{L"Pocket", L"Face", L"Drill"}), Items(kOperation));
    ui::Choose(window, kOperation, 1);
    EXPECT_EQ(L"C:\\T\\probe.tpt", Text(kDefault));
    ui::Choose(window, kOperation, 2);
    EXPECT_EQ(L"C:\\T\\face.tpt", Text(kDefault));
    script.chosenFile = "C:\\T\\new.tpt";
    ui::Click(window, kChooseDefault);
    EXPECT_EQ(std::vector<std::int32_t>{7}, script.selectCalls);
}

TEST_F(Templates, NoOperationShowsTheFirstSortOption)
{
    Open();
    ui::Choose(window, kOperation, -1);
    EXPECT_EQ(L"none", Text(kDefault));
}

// ---- sort lists ----

TEST_F(Templates, AFirstSortOptionIsNotOfferedAgain)
{
    Open();
    IsChanged();
    ui::Choose(window, kFirstSort, 3);
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    EXPECT_EQ(Without(kSortTexts, {L"size"}), Items(kSecondSort));
    EXPECT_EQ(Without(kSortTexts, {L"size"}), Items(kThirdSort));
    EXPECT_EQ((std::vector<int>{3, 0, 0}), SortSelections());
    EXPECT_TRUE(IsChanged());
}

TEST_F(Templates, ASecondSortOptionIsNotOfferedAgain)
{
    Open();
    ui::Choose(window, kFirstSort, 3);
    IsChanged();
    ui::Choose(window, kSecondSort, 4);
    EXPECT_EQ(L"machine", Text(kSecondSort));
    EXPECT_EQ(Without(kSortTexts, {L"size"}), Items(kSecondSort));
    EXPECT_EQ(Without(kSortTexts, {L"size", L"machine"}), Items(kThirdSort));
    EXPECT_EQ((std::vector<int>{3, 4, 0}), SortSelections());
    EXPECT_TRUE(IsChanged());
}

TEST_F(Templates, ASecondSortOptionKeepsTheThirdPositionWhereItStillIs)
{
    Open();
    ui::Choose(window, kFirstSort, 3);
    ui::Choose(window, kThirdSort, 4);
    ui::Choose(window, kSecondSort, 1);
    EXPECT_EQ((std::vector<int>{3, 1, 4}), SortSelections());
    ui::Choose(window, kFirstSort, 2);
    ui::Choose(window, kThirdSort, 5);
    ui::Choose(window, kSecondSort, 1);
    EXPECT_EQ((std::vector<int>{2, 1, -1}), SortSelections());
}

TEST_F(Templates, NoSecondSortOptionAppendsTheOthersToTheThirdList)
{
    Open();
    ui::Choose(window, kFirstSort, 3);
    ui::Choose(window, kSecondSort, 0);
    EXPECT_EQ(Without(kSortTexts, {L"size"}), Items(kSecondSort));
    EXPECT_EQ(Twice(Without(kSortTexts, {L"size"})), Items(kThirdSort));
}

TEST_F(Templates, NoFirstSortOptionAppendsAllToTheFirstListToo)
{
    Open();
    ui::Choose(window, kFirstSort, 0);
    EXPECT_EQ(Twice(kSortTexts), Items(kFirstSort));
    EXPECT_EQ(kSortTexts, Items(kSecondSort));
    EXPECT_EQ(kSortTexts, Items(kThirdSort));
    ui::Choose(window, kFirstSort, 0);
    EXPECT_EQ(21u, Items(kFirstSort).size());
    EXPECT_EQ(7u, Items(kSecondSort).size());
    EXPECT_EQ((std::vector<int>{0, 0, 0}), SortSelections());
}

TEST_F(Templates, ASecondSortOptionWithoutAFirstAppendsAllToTheFirstTwoLists)
{
    Open();
    ui::Choose(window, kSecondSort, 2);
    EXPECT_EQ(Twice(kSortTexts), Items(kFirstSort));
    EXPECT_EQ(Twice(kSortTexts), Items(kSecondSort));
    EXPECT_EQ(kSortTexts, Items(kThirdSort));
    EXPECT_EQ((std::vector<int>{0, 2, 0}), SortSelections());
}

TEST_F(Templates, AnOptionOfTheGrownListLeavesNoneOutInTheNext)
{
    Open();
    ui::Choose(window, kFirstSort, 0);
    ui::Choose(window, kFirstSort, 10);
    EXPECT_EQ(L"size", Text(kFirstSort));
    EXPECT_EQ(kSortTexts, Items(kSecondSort));
    EXPECT_EQ(kSortTexts, Items(kThirdSort));
}

TEST_F(Templates, TheListsMayBeFilledAnewAtAnyTime)
{
    Open();
    ui::Choose(window, kFirstSort, 3);
    ui::UiThread::Get().Call([&] { dialog->UpdateSortingOptions(kSortsAtStart); });
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    EXPECT_EQ(Without(kSortTexts, {L"size"}), Items(kSecondSort));
    EXPECT_EQ(Twice(Without(kSortTexts, {L"size"})), Items(kThirdSort));
}

TEST_F(Templates, AThirdSortOptionAloneIsNoChange)
{
    Open();
    IsChanged();
    ui::Choose(window, kThirdSort, 2);
    EXPECT_FALSE(IsChanged());
}

TEST_F(Templates, SortOptionsAreFoundByTheirText)
{
    script.SetSortOptions({"none", "name", "same", "same", "Name"});
    const CTemplateOptions options;
    EXPECT_EQ(1, options.GetSortingType(L"name"));
    EXPECT_EQ(4, options.GetSortingType(L"Name"));
    EXPECT_EQ(2, options.GetSortingType(L"same"));
    EXPECT_EQ(0, options.GetSortingType(L"nam"));
    EXPECT_EQ(0, options.GetSortingType(L""));
    EXPECT_STREQ(L"same", options.GetSortingString(3));
    for (const int outside : {-1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_STREQ(L"", options.GetSortingString(outside)) << outside;
}

// ---- choosing a template file ----

TEST_F(Templates, AChosenFileBecomesTheOperationsTemplate)
{
    SetSortKeys(script.records[7], 64, 2, 4);
    Open();
    IsChanged();
    ui::Choose(window, kOperation, 1);
    script.chosenFile = "D:\\new.tpt";
    ui::Click(window, kChooseDefault);
    EXPECT_EQ(std::vector<std::int32_t>{7}, script.selectCalls);
    EXPECT_EQ(L"D:\\new.tpt", Text(kDefault));
    ui::Choose(window, kOperation, 0);
    Store();
    ASSERT_EQ(2u, script.stored.size());
    EXPECT_EQ("Face", script.stored[1].operationName);
    EXPECT_EQ("D:\\new.tpt", script.stored[1].templateFile);
    EXPECT_EQ((std::vector<std::int32_t>{64, 2, 4}), StoredSortKeys(1));
}

TEST_F(Templates, AChosenFileGivesAnOperationItsFirstRecord)
{
    Open();
    ui::Choose(window, kOperation, 2);
    ui::Choose(window, kFirstSort, 2);
    ui::Choose(window, kSecondSort, 3);
    ui::Choose(window, kThirdSort, 4);
    ASSERT_EQ((Texts{L"date", L"tool", L"author"}), (Texts{Text(kFirstSort), Text(kSecondSort), Text(kThirdSort)}));
    script.chosenFile = "D:\\drill.tpt";
    ui::Click(window, kChooseDefault);
    ui::Choose(window, kOperation, 0);
    Store();
    ASSERT_EQ(3u, script.stored.size());
    EXPECT_EQ(9, script.stored[2].operationId);
    EXPECT_EQ("", script.stored[2].operationName);
    EXPECT_EQ("D:\\drill.tpt", script.stored[2].templateFile);
    EXPECT_EQ(1, script.stored[2].hasDefaults);
    EXPECT_EQ((std::vector<std::int32_t>{8, 32, 64}), StoredSortKeys(2));
}

TEST_F(Templates, AChosenFileCountsAsAChange)
{
    Open();
    IsChanged();
    script.chosenFile = "D:\\new.tpt";
    ui::Click(window, kChooseDefault);
    EXPECT_TRUE(IsChanged());
}

TEST_F(Templates, ACancelledChooserTakesTheTemplateAway)
{
    // What a cancelled chooser leaves in the buffer is no path.
    for (const char* left : {"", "C:\\left.tpt"}) {
        script.chosenFile = left;
        script.chosen = 0;
        script.stored.clear();
        Open();
        IsChanged();
        ui::Click(window, kChooseDefault);
        EXPECT_EQ(L"none", Text(kDefault));
        Store();
        ASSERT_EQ(2u, script.stored.size());
        EXPECT_EQ("", script.stored[0].templateFile);
        Close();
    }
}

TEST_F(Templates, AChooserWithoutAPathTakesTheTemplateAway)
{
    Open();
    script.chosenFile = "";
    ui::Click(window, kChooseDefault);
    EXPECT_EQ(L"none", Text(kDefault));
    Store();
    EXPECT_EQ("", script.stored.at(0).templateFile);
}

TEST_F(Templates, AnyAnswerButZeroIsAChosenFile)
{
    Open();
    script.chosen = -1;
    script.chosenFile = "D:\\new.tpt";
    ui::Click(window, kChooseDefault);
    EXPECT_EQ(L"D:\\new.tpt", Text(kDefault));
}

TEST_F(Templates, APathWithoutATerminatorIsCut)
{
    Open();
    script.chosenFile = std::string(32768, 'x');
    ui::Click(window, kChooseDefault);
    Store();
    EXPECT_EQ(std::string(32767, 'x'), script.stored.at(0).templateFile);
}

TEST_F(Templates, WithoutAnOperationThereIsNothingToChooseFor)
{
    Open();
    ui::Choose(window, kOperation, -1);
    IsChanged();
    ui::Click(window, kChooseDefault);
    EXPECT_TRUE(script.selectCalls.empty());
    EXPECT_FALSE(IsChanged());
}

TEST_F(Templates, AChooserThatThrowsIsReportedAndTakesNothing)
{
    Open();
    IsChanged();
    script.throws = true;
    script.chosenFile = "D:\\new.tpt";
    for (int time = 0; time < 3; ++time) {
        ui::Click(window, kChooseDefault);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Unable to create Template Manager dialog", box.text);
        ui::Answer(box, IDOK);
    }
    EXPECT_EQ(L"C:\\T\\pocket.tpt", Text(kDefault));
    EXPECT_FALSE(IsChanged());
}

// ---- defaults ----

TEST_F(Templates, DefaultsSelectTheStoredSortKeysInTheFilledLists)
{
    SetSortKeys(script.records[5], 4, 8, 64);
    Open();
    IsChanged();
    EXPECT_EQ(0, SendHostMessage(window, kSetDefaultsMessage));
    EXPECT_EQ((std::vector<int>{2, 3, 6}), SortSelections());
    EXPECT_TRUE(IsChanged());
}

TEST_F(Templates, EachStoredSortKeyHasItsPosition)
{
    const std::vector<std::int32_t> keys = {2, 4, 8, 16, 32, 64};
    Open();
    for (size_t index = 0; index < keys.size(); ++index) {
        SetSortKeys(script.records[5], keys[index], keys[index], keys[index]);
        SendHostMessage(window, kSetDefaultsMessage);
        const int position = static_cast<int>(index) + 1;
        EXPECT_EQ((std::vector<int>{position, position, position}), SortSelections()) << keys[index];
    }
}

TEST_F(Templates, AFirstSortKeyOfOneLeavesAllThreeLists)
{
    SetSortKeys(script.records[5], 1, 4, 8);
    Open();
    ui::Choose(window, kFirstSort, 5);
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ((std::vector<int>{5, 0, 0}), SortSelections());
}

TEST_F(Templates, SortKeysThatAreNoneOfTheBitsSelectNothing)
{
    Open();
    ui::Choose(window, kThirdSort, 3);
    for (const std::int32_t odd : {1, 0, 3, 128, -1, -64, std::numeric_limits<std::int32_t>::min()}) {
        SetSortKeys(script.records[5], 2, odd, odd);
        SendHostMessage(window, kSetDefaultsMessage);
        EXPECT_EQ((std::vector<int>{1, 0, 3}), SortSelections()) << odd;
    }
}

TEST_F(Templates, APositionThatTheListLacksSelectsNothingInIt)
{
    SetSortKeys(script.records[5], 2, 64, 64);
    Open();
    ui::Choose(window, kFirstSort, 1);
    ASSERT_EQ(6u, Items(kSecondSort).size());
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ((std::vector<int>{1, -1, -1}), SortSelections());
}

TEST_F(Templates, DefaultsTakeTheRecordsAnewAndShowTheFirst)
{
    Open();
    script.chosenFile = "D:\\new.tpt";
    ui::Click(window, kChooseDefault);
    SetStoredFolder("C:\\Stored");
    ui::Type(window, kDatabase, L"D:\\Typed");
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ(L"C:\\T\\pocket.tpt", Text(kDefault));
    EXPECT_EQ(L"C:\\Stored", Text(kDatabase));
    Store();
    EXPECT_EQ("C:\\T\\pocket.tpt", script.stored.at(0).templateFile);
}

TEST_F(Templates, DefaultsAppendTheOperationsAgain)
{
    Open();
    ui::Choose(window, kOperation, 1);
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ((Texts{L"Pocket", L"Face", L"Drill", L"Pocket", L"Face", L"Drill"}), Items(kOperation));
    EXPECT_EQ(0, ui::Selection(window, kOperation));
}

TEST_F(Templates, APositionBeyondAllOperationsIsNone)
{
    Open();
    SendHostMessage(window, kSetDefaultsMessage);
    ui::Choose(window, kOperation, 4);
    EXPECT_EQ(L"none", Text(kDefault));
    ui::Click(window, kChooseDefault);
    EXPECT_TRUE(script.selectCalls.empty());
    ui::Choose(window, kFirstSort, 1);
    Store();
    ASSERT_EQ(2u, script.stored.size());
    EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(0));
    EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(1));
}

// ---- storing ----

TEST_F(Templates, StoringAsksWhetherARestartMayWait)
{
    Open();
    PostHostMessage(window, kCheckSaveDataMessage);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Вы изменили параметры, требующие перезагрузки программы Torvex.  Нажмите \"ДА\" чтобы изменения "
              L"вступили в силу при следующем запуске Torvex.  Нажмите \"НЕТ\" для отмены.",
              box.text);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.buttons);
    EXPECT_TRUE(script.stored.empty());
    ui::Answer(box, IDYES);
    EXPECT_EQ(2u, script.stored.size());
    EXPECT_FALSE(IsChanged());
    EXPECT_EQ(0, SendHostMessage(window, kCheckSaveDataMessage));
}

TEST_F(Templates, StoringHandsEveryRecordBackWithAllItsFields)
{
    TemplateDefaults& record = script.records[7];
    record.ownText1 = "one";
    record.ownText2 = "two";
    record.ownNumber1 = 11;
    record.ownText3 = "three";
    record.ownNumber2 = -12;
    record.ownNumber3 = 13;
    record.ownText4 = "four";
    record.hasDefaults = -5;
    record.ownText5 = std::string(10000, 'x');
    SetSortKeys(record, 3, 0, 1000);
    Open();
    Store();
    ASSERT_EQ(2u, script.stored.size());
    EXPECT_EQ(5, script.stored[0].operationId);
    const TemplateDefaults& stored = script.stored[1];
    EXPECT_EQ(7, stored.operationId);
    EXPECT_EQ("Face", stored.operationName);
    EXPECT_EQ("C:\\T\\face.tpt", stored.templateFile);
    EXPECT_EQ("one", stored.ownText1);
    EXPECT_EQ("two", stored.ownText2);
    EXPECT_EQ(11, stored.ownNumber1);
    EXPECT_EQ("three", stored.ownText3);
    EXPECT_EQ(-12, stored.ownNumber2);
    EXPECT_EQ(13, stored.ownNumber3);
    EXPECT_EQ("four", stored.ownText4);
    EXPECT_EQ(1, stored.hasDefaults);
    EXPECT_EQ(std::string(10000, 'x'), stored.ownText5);
    EXPECT_EQ((std::vector<std::int32_t>{3, 0, 1000}), StoredSortKeys(1));
}

TEST_F(Templates, EachSortOptionHasItsKey)
{
    const std::vector<std::int32_t> keys = {1, 2, 8, 4, 32, 16, 64};
    Open();
    for (size_t position = 0; position < keys.size(); ++position) {
        ui::Choose(window, kThirdSort, static_cast<int>(position));
        ui::Type(window, kDefault, L"x");
        script.stored.clear();
        Store();
        EXPECT_EQ((std::vector<std::int32_t>{1, 1, keys[position]}), StoredSortKeys(0)) << position;
        EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(1));
    }
}

TEST_F(Templates, TheChosenOperationGetsTheSortKeysByTheTextsOfTheLists)
{
    Open();
    ui::Choose(window, kOperation, 1);
    ui::Choose(window, kFirstSort, 3);
    ui::Choose(window, kSecondSort, 3);
    ui::Choose(window, kThirdSort, 4);
    ASSERT_EQ((Texts{L"size", L"tool", L"author"}), (Texts{Text(kFirstSort), Text(kSecondSort), Text(kThirdSort)}));
    Store();
    EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(0));
    EXPECT_EQ((std::vector<std::int32_t>{4, 32, 64}), StoredSortKeys(1));
}

TEST_F(Templates, AKeyThatIsReadAndStoredUnchangedMayBeAnother)
{
    SetSortKeys(script.records[5], 4, 16, 64);
    Open();
    SendHostMessage(window, kSetDefaultsMessage);
    Store();
    EXPECT_EQ((std::vector<std::int32_t>{8, 32, 64}), StoredSortKeys(0));
}

TEST_F(Templates, AListWithoutASelectionGivesTheFirstKey)
{
    SetSortKeys(script.records[5], 2, 4, 8);
    Open();
    ui::Choose(window, kThirdSort, -1);
    ui::Type(window, kDefault, L"x");
    Store();
    EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(0));
}

TEST_F(Templates, ATypedTemplateIsAChangeButNotTheOperations)
{
    Open();
    IsChanged();
    ui::Type(window, kDefault, L"D:\\typed.tpt");
    Store();
    EXPECT_EQ("C:\\T\\pocket.tpt", script.stored.at(0).templateFile);
}

TEST_F(Templates, NoKeepsWhatTheControlsShowAndStoresNothing)
{
    SetStoredFolder("C:\\Stored");
    Open();
    ui::Choose(window, kOperation, 1);
    ui::Choose(window, kFirstSort, 2);
    ui::Type(window, kDefault, L"D:\\typed.tpt");
    ui::Type(window, kDatabase, L"D:\\Typed");
    EXPECT_TRUE(IsChanged());
    EXPECT_EQ(1, ui::Selection(window, kOperation));
    EXPECT_EQ((std::vector<int>{2, 0, 0}), SortSelections());
    EXPECT_EQ(L"D:\\typed.tpt", Text(kDefault));
    EXPECT_EQ(L"D:\\Typed", Text(kDatabase));
    EXPECT_TRUE(script.stored.empty());
    EXPECT_EQ("C:\\Stored", StoredFolder());
    EXPECT_FALSE(IsChanged());
}

TEST_F(Templates, TheDatabaseFolderIsStoredInTheHostsSettings)
{
    WriteWholeFile(host.hostSettings,
                   "[DefaultPath]\r\nNCDefaultPath=x\r\nToolpathTemplatesPath=C:\\Stored\r\n[Other]\r\nA=1\r\n");
    Open();
    ui::Type(window, kDatabase, L"D:\\Typed folder");
    Store();
    EXPECT_EQ("[DefaultPath]\r\nNCDefaultPath=x\r\nToolpathTemplatesPath=D:\\Typed folder\r\n[Other]\r\nA=1\r\n",
              ReadWholeFile(host.hostSettings));
}

TEST_F(Templates, AnUnchangedDatabaseFolderIsNotWritten)
{
    const std::string before = "[DefaultPath]\r\ntoolpathtemplatespath = C:\\Stored\r\n";
    WriteWholeFile(host.hostSettings, before);
    util::IAppUI::GetInstance()->SetSettingsPath(host.hostSettings.c_str());
    Open();
    EXPECT_EQ(L"C:\\Stored", Text(kDatabase));
    Store();
    EXPECT_EQ(before, ReadWholeFile(host.hostSettings));
}

TEST_F(Templates, AnEmptyDatabaseFolderIsNotWrittenWhereNoneIsStored)
{
    const std::string before = ReadWholeFile(host.hostSettings);
    Open();
    ui::Type(window, kDatabase, L"");
    Store();
    EXPECT_EQ(before, ReadWholeFile(host.hostSettings));
}

TEST_F(Templates, TheUsualDatabaseFolderIsStoredWhenItIsAccepted)
{
    Open();
    Store();
    EXPECT_EQ("C:\\TORVEX\\Template", StoredFolder());
}

TEST_F(Templates, ATypedDatabaseFolderIsAChange)
{
    Open();
    IsChanged();
    ui::Type(window, kDatabase, L"D:\\Typed");
    EXPECT_TRUE(IsChanged());
}

// ---- choosing the database folder ----

class DatabaseFolder : public Templates {
protected:
    DatabaseFolder()
    {
        for (const char* name : {"\\first", "\\second"})
            fs::create_directories(host.folder + name);
    }

    void Browse(const std::string& from)
    {
        Open();
        ui::Type(window, kDatabase, Wide(from));
        IsChanged();
        ui::Click(window, kChooseDatabase);
    }
    static std::wstring Wide(const std::string& text) { return CString(text.c_str()).GetString(); }
};

TEST_F(DatabaseFolder, IsBrowsedForFromWhereItIs)
{
    const StartFolderWatch watch;
    Browse(host.folder + "\\first");
    const FolderBrowser browser;
    EXPECT_EQ(L"Выбор пути к БД шаблонов", browser.Title());
    EXPECT_EQ(inside->frame, GetWindow(browser.window, GW_OWNER));
    EXPECT_EQ(host.folder + "\\first", watch.Folder());
    browser.Cancel();
    EXPECT_EQ(Wide(host.folder + "\\first"), Text(kDatabase));
    EXPECT_FALSE(IsChanged());
}

TEST_F(DatabaseFolder, IsTheChosenOne)
{
    Browse(host.folder + "\\first");
    FolderBrowser().Choose(Wide(host.folder + "\\second"));
    EXPECT_EQ(Wide(host.folder + "\\second"), Text(kDatabase));
    Store();
    EXPECT_EQ(host.folder + "\\second", StoredFolder());
}

TEST_F(DatabaseFolder, ChosenAnewIsAChangeEvenIfItIsTheSame)
{
    Browse(host.folder + "\\first");
    FolderBrowser().Choose(Wide(host.folder + "\\first"));
    EXPECT_TRUE(IsChanged());
}

TEST_F(DatabaseFolder, MayBeBrowsedForFromOneThatDoesNotExist)
{
    for (const std::string& folder : {std::string("Q:\\nowhere"), std::string(), std::string(1000, 'x')}) {
        Browse(folder);
        FolderBrowser().Cancel();
        EXPECT_EQ(Wide(folder), Text(kDatabase));
        EXPECT_FALSE(IsChanged());
        Close();
    }
}

// ---- libraries that are missing or hostile ----

TEST_F(TemplateDialog, WithoutTheLibraryOpensWithEmptyLists)
{
    const PostProcessorFile none(nullptr);
    SetStoredFolder("C:\\Stored");
    Open();
    ExpectEmptyLists();
    EXPECT_EQ(L"", Text(kDefault));
    EXPECT_EQ(L"C:\\TORVEX\\Template", Text(kDatabase));
    EXPECT_FALSE(ui::IsBoxOpen());
    SendHostMessage(window, kSetDefaultsMessage);
    ExpectEmptyLists();
    for (const int list : {kFirstSort, kSecondSort, kOperation})
        ui::Choose(window, list, -1);
    ExpectEmptyLists();
    Store();
    EXPECT_EQ("C:\\Stored", StoredFolder());
}

TEST_F(TemplateDialog, WithoutTheLibraryTheFileButtonSaysSo)
{
    const PostProcessorFile none(nullptr);
    Open();
    IsChanged();
    ui::Click(window, kChooseDefault);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Error", box.caption);
    EXPECT_EQ(L"Failed to load the PELMAR library!", box.text);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    ui::Answer(box, IDOK);
    EXPECT_FALSE(IsChanged());
}

TEST_F(TemplateDialog, ALibraryThatGoesAwayMeanwhileIsMissedWithoutAMessage)
{
    auto file = std::make_unique<PostProcessorFile>("PelmarStub.dll");
    file->Script().SetOperations({5});
    file->Script().SetSortOptions(kSortOptions);
    file->Script().AddRecord(5, "Pocket", "C:\\T\\pocket.tpt");
    Open();
    file.reset();
    const PostProcessorFile none(nullptr);
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    ui::Choose(window, kFirstSort, 2);
    EXPECT_EQ(Without(kSortTexts, {L"date"}), Items(kSecondSort));
    ui::Type(window, kDatabase, L"D:\\Typed");
    Store();
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ("D:\\Typed", StoredFolder());
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ(Texts{L"Pocket"}, Items(kOperation));
}

class WithoutOperationList : public Templates {
protected:
    WithoutOperationList() : Templates("PelmarWithoutOperationList.dll") {}
};

TEST_F(WithoutOperationList, TheOperationListIsEmpty)
{
    Open();
    EXPECT_EQ(Texts{}, Items(kOperation));
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    EXPECT_EQ(L"none", Text(kDefault));
    ui::Click(window, kChooseDefault);
    EXPECT_TRUE(script.selectCalls.empty());
    Store();
    EXPECT_TRUE(script.stored.empty());
}

class WithoutSortOptions : public Templates {
protected:
    WithoutSortOptions() : Templates("PelmarWithoutSortOptions.dll") {}
};

TEST_F(WithoutSortOptions, TheSortListsAreEmptyAndKeysAreTheFirst)
{
    SetSortKeys(script.records[5], 4, 8, 16);
    Open();
    for (const int list : {kFirstSort, kSecondSort, kThirdSort})
        EXPECT_EQ(Texts{}, Items(list));
    ui::Choose(window, kOperation, 2);
    EXPECT_EQ(L"", Text(kDefault));
    ui::Choose(window, kOperation, 0);
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ((std::vector<int>{-1, -1, -1}), SortSelections());
    Store();
    EXPECT_EQ((std::vector<std::int32_t>{1, 1, 1}), StoredSortKeys(0));
}

class WithoutGet : public Templates {
protected:
    WithoutGet() : Templates("PelmarWithoutGet.dll") {}
};

TEST_F(WithoutGet, ThereAreNoRecordsAndNoMessage)
{
    Open();
    EXPECT_EQ(Texts{}, Items(kOperation));
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    Store();
    EXPECT_TRUE(script.stored.empty());
}

class WithoutSet : public Templates {
protected:
    WithoutSet() : Templates("PelmarWithoutSet.dll") {}
};

TEST_F(WithoutSet, NothingIsStoredButTheFolder)
{
    Open();
    ui::Type(window, kDatabase, L"D:\\Typed");
    Store();
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ("D:\\Typed", StoredFolder());
    EXPECT_FALSE(IsChanged());
}

class WithoutSelect : public Templates {
protected:
    WithoutSelect() : Templates("PelmarWithoutSelect.dll") {}
};

TEST_F(WithoutSelect, TheFileButtonSaysSo)
{
    Open();
    IsChanged();
    ui::Click(window, kChooseDefault);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Error", box.caption);
    EXPECT_EQ(L"Failed to open dialog to select a template", box.text);
    EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
    ui::Answer(box, IDOK);
    EXPECT_EQ(L"C:\\T\\pocket.tpt", Text(kDefault));
    EXPECT_FALSE(IsChanged());
}

TEST_F(Templates, FailedCallsLeaveTheirOperationOut)
{
    script.SetOperations({5, 4711, 9});
    Open();
    EXPECT_EQ((Texts{L"Pocket", L"Drill"}), Items(kOperation));
    Store();
    EXPECT_EQ(1u, script.stored.size());
}

TEST_F(Templates, ListsWithoutAnArrayAreEmpty)
{
    script.handsOutOperations = false;
    script.handsOutSortOptions = false;
    Open();
    ExpectEmptyLists();
    EXPECT_EQ(L"", Text(kDefault));
}

TEST_F(Templates, ListsOfImpossibleLengthsAreEmpty)
{
    for (const std::int32_t count :
         {-1, std::numeric_limits<std::int32_t>::min(), 0, 1001, std::numeric_limits<std::int32_t>::max()}) {
        script.operationCount = count;
        script.sortOptionCount = count;
        Open();
        ExpectEmptyLists();
        Close();
    }
}

TEST_F(Templates, SortOptionsThatAreNullAreEmptyTexts)
{
    script.SetSortOptions({nullptr, "name", nullptr});
    Open();
    EXPECT_EQ((Texts{L"", L"name", L""}), Items(kFirstSort));
    ui::Choose(window, kOperation, 2);
    EXPECT_EQ(L"", Text(kDefault));
}

TEST_F(Templates, FewerThanSevenSortOptionsAreAllThereAre)
{
    script.SetSortOptions({"none", "name"});
    SetSortKeys(script.records[5], 64, 2, 4);
    Open();
    EXPECT_EQ((Texts{L"none", L"name"}), Items(kThirdSort));
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ((std::vector<int>{-1, 1, -1}), SortSelections());
    ui::Choose(window, kFirstSort, 1);
    EXPECT_EQ(Texts{L"none"}, Items(kSecondSort));
    Store();
    EXPECT_EQ((std::vector<std::int32_t>{2, 1, 1}), StoredSortKeys(0));
}

TEST_F(Templates, OfMoreThanSevenSortOptionsTheFirstSevenAreUsed)
{
    std::vector<const char*> many = kSortOptions;
    many.push_back("eighth");
    script.SetSortOptions(many);
    Open();
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
}

TEST_F(Templates, WhatTheLibraryThrowsEndsWithTheCall)
{
    script.throws = true;
    Open();
    EXPECT_EQ(kSortTexts, Items(kFirstSort));
    EXPECT_EQ((Texts{L"Pocket", L"Face", L"Drill"}), Items(kOperation));
    Store();
    EXPECT_EQ(2u, script.stored.size());
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(Templates, LongTextsAreShown)
{
    const std::string name(3000, 'n');
    const std::string path(40000, 'p');
    script.AddRecord(5, name.c_str(), path.c_str());
    Open();
    EXPECT_EQ(std::wstring(3000, L'n'), Items(kOperation).at(0));
    Store();
    EXPECT_EQ(path, script.stored.at(0).templateFile);
}

// ---- help ----

TEST_F(Templates, HasOneHelpTopic)
{
    Open();
    for (const int control :
         {0, kOperation, kDefault, kChooseDefault, kFirstSort, kSecondSort, kThirdSort, kDatabase, kChooseDatabase}) {
        ForgetTopic();
        EXPECT_EQ("pelmar-_defaults_toolpath_templates.htm", TopicShownFor(window, control)) << control;
        EXPECT_STREQ("pelmar-_defaults_toolpath_templates.htm", dialog->GetHelpInfo(static_cast<UINT>(control)));
        EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
    }
}

TEST_F(Templates, AnswersTheHelpKey)
{
    Open();
    ForgetTopic();
    EXPECT_EQ(1, SendMessage(window, WM_HELP, 0, 0));
    EXPECT_EQ("pelmar-_defaults_toolpath_templates.htm", LastTopicShown());
}

TEST_F(Templates, TheQuestionMarkOfTheCaptionStartsContextHelp)
{
    Open();
    PostMessage(window, WM_SYSCOMMAND, SC_CONTEXTHELP, 0);
    ui::Settle(window);
    EXPECT_TRUE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
    ui::UiThread::Get().Call([] { AfxGetApp()->m_bHelpMode = FALSE; });
}

TEST_F(Templates, ADialogOfTheHostsOwnStartsContextHelpItself)
{
    class CHostsDialog : public CNCDialog {
    public:
        CHostsDialog() : CNCDialog(0, nullptr) {}
        using CNCDialog::WatchForContextHelp;
    };
    const auto startsWith = [](UINT message, WPARAM wParam) {
        return ui::On([=] {
            AfxGetApp()->m_bHelpMode = FALSE;
            CHostsDialog::WatchForContextHelp(message, wParam);
            return std::exchange(AfxGetApp()->m_bHelpMode, FALSE) != FALSE;
        });
    };
    EXPECT_TRUE(startsWith(WM_SYSCOMMAND, SC_CONTEXTHELP));
    EXPECT_TRUE(startsWith(WM_SYSCOMMAND, SC_CONTEXTHELP | 3)); // the system keeps the low bits for itself
    EXPECT_FALSE(startsWith(WM_SYSCOMMAND, SC_CLOSE));
    EXPECT_FALSE(startsWith(WM_COMMAND, SC_CONTEXTHELP));
}

// ---- the host's own library ----

/// The real library, which nobody keeps loaded.
class RealTemplates : public TemplateDialog {
protected:
    RealTemplates()
    {
        fs::remove(file);
        templates = host.folder + "\\templates";
        fs::create_directories(templates);
        WriteWholeFile(templates + "\\pocket.tpt", "x");
    }
    ~RealTemplates() override
    {
        Close();
        std::error_code ignored;
        fs::remove(file, ignored);
    }

    std::string file = ProgramFolder() + "PELMAR.INI";
    std::string templates;
};

TEST_F(RealTemplates, KeepWhatIsChosenAcrossARestart)
{
    Open();
    ASSERT_EQ(15u, Items(kOperation).size());
    ASSERT_EQ(7u, Items(kFirstSort).size());
    ui::Choose(window, kOperation, 3);
    ui::Choose(window, kFirstSort, 2);
    ui::Click(window, kChooseDefault);
    ui::ChooseFile(ui::WaitForFileDialog(), CString((templates + "\\pocket.tpt").c_str()).GetString());
    EXPECT_STREQ(CString((templates + "\\pocket.tpt").c_str()), Text(kDefault).c_str());
    EXPECT_FALSE(fs::exists(file));
    Store();
    Close();
    EXPECT_EQ(nullptr, GetModuleHandleA("PELMAR.dll"));
    EXPECT_EQ(templates + "\\pocket.tpt", Value(file, "Operation5", "TemplateFile"));
    EXPECT_EQ("8", Value(file, "Operation5", "FirstSortKey"));

    Open();
    EXPECT_STREQ(CString((templates + "\\pocket.tpt").c_str()), Text(kDefault).c_str());
    SendHostMessage(window, kSetDefaultsMessage);
    EXPECT_EQ(3, ui::Selection(window, kFirstSort));
}

TEST_F(RealTemplates, ACancelledFileDialogTakesTheTemplateAway)
{
    Open();
    ui::Click(window, kChooseDefault);
    ui::CancelFileDialog(ui::WaitForFileDialog());
    EXPECT_EQ(Items(kFirstSort).at(0), Text(kDefault));
    Store();
    EXPECT_EQ("", Value(file, "Operation1", "TemplateFile"));
    EXPECT_EQ("1", Value(file, "Operation1", "HasDefaults"));
}

TEST_F(RealTemplates, FitTheirControls)
{
    Open();
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(window));
}

} // namespace
