#include "PELMAR.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>
#include <vector>

#include <windows.h>

#include <gtest/gtest.h>

#include "ui/file_dialog.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

using pelmar::TemplateDefaults;

namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kNamed = 1;
constexpr std::int32_t kUnknown = 12345;

// The record crosses between the library and its callers as it lies in memory.
static_assert(offsetof(TemplateDefaults, operationId) == 0);
static_assert(offsetof(TemplateDefaults, operationName) == sizeof(void*));
static_assert(offsetof(TemplateDefaults, templateFile) ==
              offsetof(TemplateDefaults, operationName) + sizeof(std::string));
static_assert(offsetof(TemplateDefaults, thirdSortKey) == offsetof(TemplateDefaults, firstSortKey) + 8);

/// The library as its users have it: loaded by name, its functions found by name. Its file is gone before and after.
class PelmarLibrary : public testing::Test {
protected:
    PelmarLibrary()
    {
        wchar_t program[MAX_PATH];
        GetModuleFileName(nullptr, program, MAX_PATH);
        folder = fs::path(program).parent_path();
        file = folder / "PELMAR.INI";
        fs::remove(file);
    }
    ~PelmarLibrary() override
    {
        FreeLibrary(m_module);
        std::error_code ignored;
        fs::remove(file, ignored);
    }
    void SetUp() override
    {
        m_module = LoadLibraryA("PELMAR.dll");
        ASSERT_NE(nullptr, m_module);
    }

    /// Ends the library and starts it anew.
    void Restart()
    {
        ASSERT_TRUE(FreeLibrary(m_module));
        ASSERT_EQ(nullptr, GetModuleHandleA("PELMAR.dll"));
        SetUp();
    }

    template <class Function> Function* Get(Function*, const char* name)
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

    TemplateDefaults Defaults(std::int32_t id);
    std::string FileText() const
    {
        std::ifstream stream(file, std::ios::binary);
        std::ostringstream text;
        text << stream.rdbuf();
        return text.str();
    }

    fs::path folder;
    fs::path file;
    HMODULE m_module = nullptr;
};

#define PELMAR_FUNCTION(name) Get(static_cast<decltype(&name)>(nullptr), #name)

TemplateDefaults PelmarLibrary::Defaults(std::int32_t id)
{
    TemplateDefaults record;
    record.operationId = id;
    EXPECT_EQ(1, PELMAR_FUNCTION(GetTemplateDefaults)(&record));
    return record;
}

/// A record in which every field is told from every other.
TemplateDefaults Full(std::int32_t id)
{
    TemplateDefaults record;
    record.operationId = id;
    record.templateFile = "C:\\Templates\\pocket.tpt";
    record.ownText1 = "one";
    record.ownText2 = "two";
    record.ownNumber1 = 11;
    record.ownText3 = "three";
    record.ownNumber2 = -12;
    record.ownNumber3 = 13;
    record.ownText4 = "four";
    record.hasDefaults = 1;
    record.ownText5 = "five";
    record.firstSortKey = 4;
    record.secondSortKey = 32;
    record.thirdSortKey = 64;
    return record;
}

bool IsCyrillic()
{
    return GetACP() == 1251;
}

TEST_F(PelmarLibrary, ExportsAllEntryPointsByPlainName)
{
    for (const char* name : {"Pelmar_GetOperationList", "GetSortingOptionStrings", "GetTemplateDefaults",
                             "SetTemplateDefaults", "SelectTemplateFile"})
        EXPECT_NE(nullptr, GetProcAddress(m_module, name)) << name;
}

// ---- lists ----

TEST_F(PelmarLibrary, ListsItsOperationsThoseNotOfferedLast)
{
    std::int32_t count = 0;
    const std::int32_t* ids = nullptr;
    ASSERT_EQ(1, PELMAR_FUNCTION(Pelmar_GetOperationList)(&count, &ids));
    ASSERT_EQ(17, count);
    for (std::int32_t index = 0; index < count; ++index) {
        const bool isOffered = index < count - 2;
        EXPECT_EQ(isOffered, ids[index] != 36 && !Defaults(ids[index]).operationName.empty()) << ids[index];
    }
    EXPECT_EQ(36, ids[count - 2]);
    EXPECT_EQ("", Defaults(ids[count - 1]).operationName);
}

TEST_F(PelmarLibrary, NamesOperationsInTheCodePage)
{
    EXPECT_EQ(IsCyrillic() ? "2-\xEE\xF1\xE5\xE2\xE0\xFF \xEE\xE1\xF0\xE0\xE1\xEE\xF2\xEA\xE0" : "2-axis milling",
              Defaults(kNamed).operationName);
}

TEST_F(PelmarLibrary, OffersSevenSortOptionsTheFirstOfWhichIsNone)
{
    std::int32_t count = 0;
    const char* const* texts = nullptr;
    ASSERT_EQ(1, PELMAR_FUNCTION(GetSortingOptionStrings)(&count, &texts));
    ASSERT_EQ(7, count);
    EXPECT_STREQ(IsCyrillic() ? "\xCD\xE5\xF2" : "None", texts[0]);
    for (std::int32_t first = 0; first < count; ++first)
        for (std::int32_t second = 0; second < first; ++second)
            EXPECT_STRNE(texts[second], texts[first]);
}

TEST_F(PelmarLibrary, RefusesNullPointers)
{
    std::int32_t count = -7;
    const std::int32_t* ids = nullptr;
    const char* const* texts = nullptr;
    EXPECT_EQ(0, PELMAR_FUNCTION(Pelmar_GetOperationList)(&count, nullptr));
    EXPECT_EQ(0, PELMAR_FUNCTION(Pelmar_GetOperationList)(nullptr, &ids));
    EXPECT_EQ(0, PELMAR_FUNCTION(GetSortingOptionStrings)(&count, nullptr));
    EXPECT_EQ(0, PELMAR_FUNCTION(GetSortingOptionStrings)(nullptr, &texts));
    EXPECT_EQ(-7, count);
    EXPECT_EQ(nullptr, ids);
    EXPECT_EQ(nullptr, texts);
    EXPECT_EQ(0, PELMAR_FUNCTION(GetTemplateDefaults)(nullptr));
    EXPECT_EQ(0, PELMAR_FUNCTION(SetTemplateDefaults)(nullptr));
    EXPECT_EQ(0, PELMAR_FUNCTION(SelectTemplateFile)(kNamed, nullptr));
}

// ---- defaults ----

TEST_F(PelmarLibrary, AnOperationWithoutDefaultsIsAsFreshButForItsName)
{
    TemplateDefaults record = Full(kNamed);
    ASSERT_EQ(1, PELMAR_FUNCTION(GetTemplateDefaults)(&record));
    EXPECT_NE("", record.operationName);
    EXPECT_EQ("", record.templateFile);
    EXPECT_EQ("", record.ownText1 + record.ownText2 + record.ownText3 + record.ownText4 + record.ownText5);
    EXPECT_EQ(0, record.ownNumber1);
    EXPECT_EQ(0, record.ownNumber2);
    EXPECT_EQ(0, record.ownNumber3);
    EXPECT_EQ(0, record.hasDefaults);
    EXPECT_EQ(1, record.firstSortKey);
    EXPECT_EQ(1, record.secondSortKey);
    EXPECT_EQ(1, record.thirdSortKey);
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(PelmarLibrary, KeepsEveryFieldAcrossARestart)
{
    const TemplateDefaults full = Full(kNamed);
    ASSERT_EQ(1, PELMAR_FUNCTION(SetTemplateDefaults)(&full));
    Restart();
    const TemplateDefaults kept = Defaults(kNamed);
    EXPECT_EQ(kNamed, kept.operationId);
    EXPECT_NE("", kept.operationName);
    EXPECT_EQ("C:\\Templates\\pocket.tpt", kept.templateFile);
    EXPECT_EQ("one", kept.ownText1);
    EXPECT_EQ("two", kept.ownText2);
    EXPECT_EQ(11, kept.ownNumber1);
    EXPECT_EQ("three", kept.ownText3);
    EXPECT_EQ(-12, kept.ownNumber2);
    EXPECT_EQ(13, kept.ownNumber3);
    EXPECT_EQ("four", kept.ownText4);
    EXPECT_EQ(1, kept.hasDefaults);
    EXPECT_EQ("five", kept.ownText5);
    EXPECT_EQ(4, kept.firstSortKey);
    EXPECT_EQ(32, kept.secondSortKey);
    EXPECT_EQ(64, kept.thirdSortKey);
    EXPECT_EQ(0, Defaults(2).hasDefaults);
}

TEST_F(PelmarLibrary, WritesASectionPerOperation)
{
    const TemplateDefaults full = Full(kNamed);
    ASSERT_EQ(1, PELMAR_FUNCTION(SetTemplateDefaults)(&full));
    EXPECT_EQ("[Operation1]\r\n"
              "TemplateFile=\"C:\\Templates\\pocket.tpt\"\r\n"
              "OwnText1=\"one\"\r\n"
              "OwnText2=\"two\"\r\n"
              "OwnText3=\"three\"\r\n"
              "OwnText4=\"four\"\r\n"
              "OwnText5=\"five\"\r\n"
              "OwnNumber1=11\r\n"
              "OwnNumber2=-12\r\n"
              "OwnNumber3=13\r\n"
              "HasDefaults=1\r\n"
              "FirstSortKey=4\r\n"
              "SecondSortKey=32\r\n"
              "ThirdSortKey=64\r\n",
              FileText());
}

TEST_F(PelmarLibrary, KeepsBlanksQuotesAndNumbersAtTheirLimits)
{
    TemplateDefaults odd = Full(36);
    odd.templateFile = "  \"D:\\a;b=c\\[x].tpt\" ";
    odd.ownText1 = "\"";
    odd.ownText2 = std::string(1023, 'x');
    odd.ownNumber1 = std::numeric_limits<std::int32_t>::min();
    odd.ownNumber2 = std::numeric_limits<std::int32_t>::max();
    ASSERT_EQ(1, PELMAR_FUNCTION(SetTemplateDefaults)(&odd));
    Restart();
    const TemplateDefaults kept = Defaults(36);
    EXPECT_EQ(odd.templateFile, kept.templateFile);
    EXPECT_EQ(odd.ownText1, kept.ownText1);
    EXPECT_EQ(odd.ownText2, kept.ownText2);
    EXPECT_EQ(odd.ownNumber1, kept.ownNumber1);
    EXPECT_EQ(odd.ownNumber2, kept.ownNumber2);
}

TEST_F(PelmarLibrary, RefusesTextsThatItsFileCannotHoldAndStoresNothing)
{
    for (const std::string& text :
         {std::string(1024, 'x'), std::string("a\r\nFirstSortKey=9"), std::string("a\0b", 3)}) {
        TemplateDefaults record = Full(kNamed);
        record.ownText5 = text;
        EXPECT_EQ(0, PELMAR_FUNCTION(SetTemplateDefaults)(&record));
        EXPECT_FALSE(fs::exists(file));
    }
}

TEST_F(PelmarLibrary, FailsWhereItsFileCannotBeWritten)
{
    fs::create_directory(file);
    const TemplateDefaults full = Full(kNamed);
    EXPECT_EQ(0, PELMAR_FUNCTION(SetTemplateDefaults)(&full));
    EXPECT_EQ(0, Defaults(kNamed).hasDefaults);
}

TEST_F(PelmarLibrary, RefusesUnknownOperationsAndLeavesTheRecord)
{
    TemplateDefaults record = Full(kUnknown);
    EXPECT_EQ(0, PELMAR_FUNCTION(GetTemplateDefaults)(&record));
    EXPECT_EQ("one", record.ownText1);
    EXPECT_EQ(0, PELMAR_FUNCTION(SetTemplateDefaults)(&record));
    EXPECT_FALSE(fs::exists(file));
    char path[kPelmarPathCapacity] = "as it was";
    EXPECT_EQ(0, PELMAR_FUNCTION(SelectTemplateFile)(kUnknown, path));
    EXPECT_STREQ("as it was", path);
}

// ---- choosing a file ----

class TemplateFile : public PelmarLibrary {
protected:
    TemplateFile()
    {
        templates = folder / "templates";
        fs::create_directories(templates);
        for (const wchar_t* name : {L"pocket.tpt", L"face.tpt", L"notes.txt", L"\u4e2d.tpt"})
            std::ofstream(templates / name) << "x";
        before = fs::current_path();
    }
    ~TemplateFile() override
    {
        fs::current_path(before);
        fs::remove_all(templates);
    }

    HWND Open(std::int32_t id)
    {
        ui::UiThread::Get().Start([this, id] { result = PELMAR_FUNCTION(SelectTemplateFile)(id, path); });
        return ui::WaitForFileDialog();
    }
    int Result()
    {
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
        return result;
    }

    fs::path templates;
    fs::path before;
    char path[kPelmarPathCapacity] = "as it was";
    int result = -1;
};

TEST_F(TemplateFile, IsNamedByItsFullPathAndTheCurrentFolderStays)
{
    const HWND dialog = Open(kNamed);
    EXPECT_EQ(L"Выбор шаблона - 2-осевая обработка", ui::TextOf(dialog));
    EXPECT_EQ((std::vector<std::wstring>{L"Шаблоны обработки (*.tpt)", L"Все файлы (*.*)"}), ui::FileTypes(dialog));
    ui::ChooseFile(dialog, (templates / "pocket.tpt").wstring());
    EXPECT_EQ(1, Result());
    EXPECT_EQ((templates / "pocket.tpt").string(), path);
    EXPECT_EQ(before, fs::current_path());
}

TEST_F(TemplateFile, IsTheOneSetBeforeWhenTheDialogOpens)
{
    TemplateDefaults record = Full(kNamed);
    record.templateFile = (templates / "face.tpt").string();
    ASSERT_EQ(1, PELMAR_FUNCTION(SetTemplateDefaults)(&record));
    const HWND dialog = Open(kNamed);
    EXPECT_EQ(L"face.tpt", ui::TextOf(ui::FileNameEdit(dialog)));
    ui::CancelFileDialog(dialog);
    EXPECT_EQ(0, Result());
    EXPECT_STREQ("as it was", path);
}

TEST_F(TemplateFile, TheDialogOpensWhateverWasSetBefore)
{
    TemplateDefaults record = Full(kNamed);
    record.templateFile = "<no>|\"path\"?*";
    ASSERT_EQ(1, PELMAR_FUNCTION(SetTemplateDefaults)(&record));
    const HWND dialog = Open(kNamed);
    EXPECT_EQ(L"", ui::TextOf(ui::FileNameEdit(dialog)));
    ui::CancelFileDialog(dialog);
    EXPECT_EQ(0, Result());
}

TEST_F(TemplateFile, MustExist)
{
    const HWND dialog = Open(kNamed);
    ui::NameFile(dialog, (templates / "missing.tpt").wstring());
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(IsWindow(dialog));
    ui::CancelFileDialog(dialog);
    EXPECT_EQ(0, Result());
}

TEST_F(TemplateFile, OutsideTheCodePageIsRefusedWithAMessage)
{
    const HWND dialog = Open(kNamed);
    ui::ChooseFile(dialog, (templates / L"\u4e2d.tpt").wstring());
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Путь к файлу слишком длинный или содержит буквы, которых нет в кодовой странице системы.", box.text);
    EXPECT_EQ(L"Выбор шаблона - 2-осевая обработка", box.caption);
    ui::Answer(box, IDOK);
    EXPECT_EQ(0, Result());
    EXPECT_STREQ("as it was", path);
}

} // namespace
