// Files that are none, and hostile ones.
#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "description/description.h"
#include "program.h"

namespace {

using tool_testing::Answer;
using tool_testing::Folder;

void MakeLarge(const std::string& path, LONG bytes)
{
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    SetFilePointer(file, bytes, nullptr, FILE_BEGIN);
    SetEndOfFile(file);
    CloseHandle(file);
}

TEST(UnreadableFile, IsToldWithTheReasonByEveryCommandThatReadsOne)
{
    const Folder folder;
    MakeLarge(folder.Path("LARGE.INI"), 100'000'000);
    CreateDirectoryA(folder.Path("FOLDER.INI").c_str(), nullptr);
    folder.Write("GOOD.INI", "[Options2x]\nUnits=0\nRapidPlane=2\n");
    folder.Write("BUSY.INI", "[Options2x]\nUnits=0\n");
    const HANDLE busy =
        CreateFileA(folder.Path("BUSY.INI").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const std::string longName = std::string(270, 'a') + ".INI";
    const std::pair<std::string, std::string> names[] = {
        {"LARGE.INI", "файл слишком велик: 100 000 000 байт, а допустимо не больше 4 194 304."},
        {"FOLDER.INI", "это папка, а нужен файл."},
        {"NONE.INI", "такого файла нет."},
        {"NONE\\A.INI", "нет такой папки."},
        {"Q:\\A.INI", "диска Q: нет. Проверьте, подключён ли он."},
        {"CON", "это устройство, а нужен файл."},
        {"NUL", "это устройство, а нужен файл."},
        {"\\\\.\\C:", "это устройство, а нужен файл."},
        {"BUSY.INI", "файл занят другой программой. Повторите, когда она закроет его."},
        {"設定.INI", "в пути есть буквы, которых нет в кодовой странице Windows. Переименуйте файл или папку."},
        {longName, "путь длиннее 259 знаков, Windows не примет его. Положите файл ближе к корню диска."},
    };
    std::vector<std::string> check = {"check"};
    std::vector<std::string> apply = {"apply", "GOOD.INI"};
    std::string reasons;
    std::string notDone;
    for (const auto& [name, reason] : names) {
        check.push_back(name);
        apply.push_back(name);
        reasons += name + ": " + reason + "\n";
        notDone += "не сделано: " + name + ": " + reason + "\n";
    }
    const Answer checked = folder.Run(check);
    EXPECT_EQ(2u, checked.status);
    EXPECT_EQ(reasons, checked.error);
    const Answer applied = folder.Run(apply);
    EXPECT_EQ(2u, applied.status);
    EXPECT_EQ(notDone, applied.error);
    const std::string message = "FOLDER.INI: это папка, а нужен файл.\n";
    for (const std::vector<std::string>& words : {std::vector<std::string>{"diff", "FOLDER.INI"},
                                                  {"diff", "GOOD.INI", "FOLDER.INI"},
                                                  {"diff", "GOOD.INI", "--defaults", "FOLDER.INI"},
                                                  {"set", "FOLDER.INI", "Decimals=4"},
                                                  {"reset", "FOLDER.INI"},
                                                  {"convert", "FOLDER.INI", "--units", "mm"},
                                                  {"apply", "FOLDER.INI", "GOOD.INI"},
                                                  {"export", "FOLDER.INI"},
                                                  {"import", "GOOD.INI", "FOLDER.INI"}}) {
        const Answer answer = folder.Run(words);
        EXPECT_EQ(2u, answer.status) << words.front();
        EXPECT_EQ(message, answer.error) << words.front();
    }
    CloseHandle(busy);
}

TEST(UnreadableFile, WithAnEmptyNameIsToldAsSuch)
{
    EXPECT_EQ("Имя файла пустое.\n", Folder().Run({"check", ""}).error);
}

TEST(UnreadableFile, IsAnErrorInJsonToo)
{
    const Answer answer = Folder().Run({"diff", "NONE.INI", "--json"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_EQ("NONE.INI: такого файла нет.", answer.Json()["error"]);
}

/// Every key of every record with a value that no sane file holds: whatever is asked for is answered, and files that
/// are written to stay whole.
TEST(HostileFile, IsAnsweredByEveryCommand)
{
    const std::string values[] = {
        "",        "   ",        std::string(10000, '9'), "\xff\xfe\x80", "text", "1e999", "-1",
        "-1e-400", "2147483648", std::string(300, '"'),   "nan",          "=[]="};
    const Folder folder;
    folder.Write("GOOD.INI", tool_testing::FactoryFile());
    std::vector<std::string> check = {"check"};
    for (std::size_t index = 0; index < std::size(values); ++index) {
        std::string file;
        for (const pelmar::RecordDescription& record : pelmar::DescribeRecords()) {
            file += std::string("[") + record.table.Section() + "]\r\n";
            for (const pelmar::Option& option : record.table.Options())
                if (option.key)
                    file += option.key + ("=" + values[index]) + "\r\n";
        }
        const std::string name = "HOSTILE" + std::to_string(index) + ".INI";
        folder.Write(name, file);
        check.push_back(name);
        EXPECT_LE(folder.Run({"diff", name}).status, 2u) << index;
        EXPECT_LE(folder.Run({"export", name}).status, 2u) << index;
        EXPECT_LE(folder.Run({"convert", name, "--units", "mm"}).status, 2u) << index;
        EXPECT_EQ(0u, folder.Run({"reset", name}).status) << index;
        const Answer repaired = folder.Run({"diff", name});
        EXPECT_EQ(0u, repaired.status) << index << repaired.out;
    }
    check[0] = "check";
    EXPECT_LE(folder.Run(check).status, 1u);
}

} // namespace
