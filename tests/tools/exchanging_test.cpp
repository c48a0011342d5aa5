// export and import.
#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "program.h"

namespace {

using nlohmann::json;
using tool_testing::Answer;
using tool_testing::Folder;
using tool_testing::ValuesIn;

TEST(Exchange, ExportAndImportGiveTheSameValuesByteByByte)
{
    const Folder folder;
    std::string file = tool_testing::FactoryFile(1);
    file += "[Settings]\r\nDecimals=5\r\n[DefaultNCParameter]\r\nFilterMaxSpan=0.08493824\r\n";
    folder.Write("A.INI", file);
    EXPECT_EQ(0u, folder.Run({"export", "A.INI", "--output", "a.json"}).status);
    EXPECT_EQ(json::parse(folder.Run({"export", "A.INI"}).out), json::parse(folder.Read("a.json")));
    const Answer same = folder.Run({"import", "A.INI", "a.json"});
    EXPECT_EQ("A.INI: всё уже так, писать нечего.\n", same.out) << same.error;
    EXPECT_EQ(file, folder.Read("A.INI"));
    folder.Write("B.INI", "");
    EXPECT_EQ(0u, folder.Run({"import", "B.INI", "a.json"}).status);
    EXPECT_EQ(ValuesIn(file), ValuesIn(folder.Read("B.INI")));
    EXPECT_EQ(0u, folder.Run({"check", "B.INI"}).status);
}

TEST(Exchange, ImportKeepsTheUnitsOfTheFile)
{
    const Folder folder;
    folder.Write("A.INI", "[Options2x]\r\nUnits=1\r\nRapidPlane=10.000000\r\n");
    folder.Write("a.json", R"({"format": "PelmarSettings", "version": 1,
                              "settings": {"Options2x": {"Units": 0, "RapidPlane": 2}}})");
    EXPECT_EQ(0u, folder.Run({"import", "A.INI", "a.json"}).status);
    EXPECT_EQ("[Options2x]\r\nUnits=1\r\nRapidPlane=50.000000\r\n", folder.Read("A.INI"));
}

TEST(Exchange, ExportLeavesOutWhatIsWrongAndSaysSo)
{
    const Folder folder;
    folder.Write("A.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=abc\r\nSortType=1\r\nWhatever=1\r\n");
    const Answer answer = folder.Run({"export", "A.INI"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_EQ(json({{"Units", 0}, {"SortType", 1}}), answer.Json()["settings"]["Options2x"]);
    EXPECT_NE(std::string::npos, answer.error.find("«abc» — не число."));
}

TEST(Exchange, WrongJsonIsRefusedWithThePlaceAndNothingIsWritten)
{
    const std::string start = R"({"format": "PelmarSettings", "version": 1, "settings": )";
    const std::pair<std::string, std::string> texts[] = {
        {"", "это не JSON: строка 1, знак 1."},
        {"[Options2x]\nUnits=0\n", "это не JSON: строка 1, знак 2."},
        {"{\n  \"format\": ,\n}", "это не JSON: строка 2, знак 13."},
        {"\xff\xfe{\0", "файл записан в UTF-16, а нужен UTF-8. В PowerShell вместо «>» пользуйтесь export --output."},
        {"[1, 2]", "/settings: нужен объект с разделами, какой пишет export."},
        {std::string(100'000, '['), "JSON вложен слишком глубоко."},
        {R"({"settings": {}, "more": 1})", "/more: такого ключа здесь нет."},
        {R"({"format": "Other", "version": 2, "settings": {}})",
         "/version: нужно 1: другой формат эта программа не знает."},
        {start + R"({"Option2x": {}}})", "/settings/Option2x: неизвестный раздел. Похоже на «Options2x»."},
        {start + R"({"Options2x": 5}})", "/settings/Options2x: нужен объект с ключами раздела."},
        {start + R"({"Options2x": {"Units": 0, "SideRoughtStep": 1}}})",
         "/settings/Options2x/SideRoughtStep: неизвестный ключ. Похоже на «SideRoughStep»."},
        {start + R"({"Options2x": {"Units": 0, "RapidPlane": "1"}}})",
         "/settings/Options2x/RapidPlane: нужно число без кавычек."},
        {start + R"({"Options2x": {"RapidPlane": 1}}})",
         "/settings/Options2x: нет «Units»: неизвестно, в каких единицах длины (0 — дюймы, 1 — мм)."},
        {start + R"({"Options2x": {"Units": 7}}})", "/settings/Options2x/Units: Нет варианта «7». Есть: ."},
        {start + R"({"Options2x": {"SortType": 1.5}}})", "/settings/Options2x/SortType: Нужно целое число."},
        {start + R"({"Options2x": {"SortType": 9}}})", "/settings/Options2x/SortType: Нет варианта «9»."},
        {start + R"({"Options2x": {"CornerAngle": 20}}})",
         "/settings/Options2x/CornerAngle: «20.000000» вне допустимых границ: от 30 до 150."},
        {start + R"({"Options2x": {"CornerAngle": 1e999}}})", "в JSON стоит число, которого не может быть."},
        {start + R"({"Options2x": {"SortType": 1, "SortType": 2}}})", "ключ «SortType» стоит дважды в одном месте."},
        {start + R"({"Options2x": {"SortType": 1, "sorttype": 2}}})",
         "/settings/Options2x/sorttype: этот ключ уже был, другими буквами."},
        {start + R"({"HoleProcessLocation": {"StartupTemplate": 1}}})",
         "/settings/HoleProcessLocation/StartupTemplate: нужен текст в кавычках."},
        {start + R"({"HoleProcessLocation": {"StartupTemplate": "a\nb"}}})",
         "/settings/HoleProcessLocation/StartupTemplate: Текст должен стоять в одной строке."},
        {start + R"({"Settings": {"Decimals": true}}})", "/settings/Settings/Decimals: нужно число без кавычек."},
    };
    const Folder folder;
    const std::string before = "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n";
    folder.Write("A.INI", before);
    for (const auto& [text, reason] : texts) {
        folder.Write("a.json", text);
        const Answer answer = folder.Run({"import", "A.INI", "a.json"});
        EXPECT_EQ(2u, answer.status) << text.substr(0, 100);
        EXPECT_NE(std::string::npos, answer.error.find(reason)) << answer.error;
        EXPECT_EQ(before, folder.Read("A.INI"));
    }
}

TEST(Exchange, ALargeJsonIsRefusedWithItsSize)
{
    const Folder folder;
    folder.Write("A.INI", "[Options2x]\r\nUnits=0\r\n");
    folder.Write("a.json", std::string(5'000'000, ' '));
    const Answer answer = folder.Run({"import", "A.INI", "a.json"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_EQ("a.json: файл слишком велик: 5 000 000 байт, а допустимо не больше 4 194 304.\n", answer.error);
}

} // namespace
