// Commands that write nothing: check, diff, list, explain, and the command line itself.
#include <algorithm>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "program.h"
#include "records/option.h"
#include "review/setting.h"

namespace {

using nlohmann::json;
using tool_testing::Answer;
using tool_testing::Folder;

bool Contains(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

json FindingOfKind(const json& file, const std::string& kind)
{
    for (const json& finding : file["findings"])
        if (finding["kind"] == kind)
            return finding;
    return nullptr;
}

TEST(Check, TellsEveryKindOfFinding)
{
    const std::pair<const char*, std::string> files[] = {
        {"empty-file", ""},
        {"utf-16-file", std::string("\xff\xfe[\0A\0]\0", 8)},
        {"utf-8-file", "\xef\xbb\xbf[Options2x]\n"},
        {"zero-bytes", std::string("[Options2x]\0\0\0\0", 15)},
        {"unknown-section", "[Option2x]\nUnits=0\n"},
        {"repeated-section", "[Settings]\nDecimals=4\n[Settings]\nDecimals=5\n"},
        {"no-section", "Decimals=4\n"},
        {"no-entry", "[Settings]\nDecimals\n"},
        {"unknown-key", "[Options2x]\nSideRoughtStep=0.5\n"},
        {"repeated-key", "[Settings]\nDecimals=4\nDecimals=5\n"},
        {"no-number", "[Options2x]\nSideRoughStep=half\n"},
        {"out-of-range", "[Options2x]\nCornerAngle=20\n"},
        {"no-such-item", "[Options2x]\nSortType=9\n"},
        {"other-units", "[Options2x]\nUnits=1\n[Options3x]\nUnits=0\n[Options4x]\nUnits=0\n"},
        {"missing-key", "[OptionsEDM]\nUnits=0\n"},
    };
    const Folder folder;
    std::vector<std::string> words = {"check", "--json"};
    for (const auto& [kind, bytes] : files) {
        folder.Write(kind, bytes);
        words.emplace_back(kind);
    }
    const Answer answer = folder.Run(words);
    EXPECT_EQ(1u, answer.status);
    EXPECT_EQ("", answer.error);
    const json told = answer.Json();
    ASSERT_TRUE(told.is_object()) << answer.out;
    ASSERT_EQ(std::size(files), told["files"].size());
    for (std::size_t file = 0; file < std::size(files); ++file) {
        const json finding = FindingOfKind(told["files"][file], files[file].first);
        ASSERT_FALSE(finding.is_null()) << files[file].first << ": " << told["files"][file].dump();
        EXPECT_FALSE(finding["message"].get<std::string>().empty());
    }
    const json slip = FindingOfKind(told["files"][8], "unknown-key");
    EXPECT_EQ(2, slip["line"]);
    EXPECT_EQ("Options2x", slip["section"]);
    EXPECT_EQ("SideRoughtStep", slip["key"]);
    EXPECT_EQ("SideRoughStep", slip["nearest"]);
    const json text = FindingOfKind(told["files"][10], "no-number");
    EXPECT_EQ("2-осевая", text["operation"]);
    EXPECT_EQ("Черновой шаг на сторону", text["label"]);
    EXPECT_EQ("half", text["standing"]);
    EXPECT_EQ("0.8", text["used"]);
}

TEST(Check, TellsPeopleLineKeyLabelAndWhatIsUsed)
{
    const Folder folder;
    folder.Write("CURRENT.INI", "[Settings]\nDecimals=4\nDecimal=5\n");
    const Answer answer = folder.Run({"check", "CURRENT.INI"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_EQ("CURRENT.INI: замечаний: 1.\n"
              "  строка 3  Settings.Decimal  Неизвестный ключ. Он не читается. Похоже на «Decimals».\n",
              answer.out);
}

TEST(Check, FindsTheShippedFilesAndAFreshFactoryFileClean)
{
    const Folder folder;
    folder.Write("CURRENT.INI", tool_testing::SourceFile("host/torvex/files/NCDEFAULT/CURRENT.INI"));
    folder.Write("DEFAULT.INI", tool_testing::SourceFile("host/torvex/files/NCDEFAULT/DEFAULT.INI"));
    folder.Write("TORVEX.INI", tool_testing::SourceFile("host/torvex/files/Def/TORVEX.INI"));
    folder.Write("TORVEXCore.INI", tool_testing::SourceFile("host/torvex/files/TORVEXCore.INI"));
    folder.Write("FACTORY.INI", tool_testing::FactoryFile());
    const Answer answer =
        folder.Run({"check", "CURRENT.INI", "DEFAULT.INI", "TORVEX.INI", "TORVEXCore.INI", "FACTORY.INI"});
    EXPECT_EQ(0u, answer.status) << answer.out << answer.error;
    EXPECT_TRUE(Contains(answer.out, "FACTORY.INI: замечаний нет.")) << answer.out;
}

TEST(Check, GoesOnAfterAFileThatCannotBeRead)
{
    const Folder folder;
    folder.Write("GOOD.INI", "[Settings]\nDecimals=4\n");
    const Answer answer = folder.Run({"check", "NONE.INI", "GOOD.INI"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_EQ("NONE.INI: такого файла нет.\n", answer.error);
    EXPECT_EQ("GOOD.INI: замечаний нет.\n", answer.out);
}

TEST(Check, ColoursOnlyWhereItIsAskedFor)
{
    const Folder folder;
    folder.Write("GOOD.INI", "[Settings]\nDecimals=4\n");
    EXPECT_FALSE(Contains(folder.Run({"check", "GOOD.INI"}).out, "\x1b["));
    EXPECT_TRUE(Contains(folder.Run({"check", "GOOD.INI", "--color", "always"}).out, "\x1b[32m"));
}

TEST(Check, TakesNoOrdersToTheConsoleFromAFile)
{
    const Folder folder;
    folder.Write("EVIL.INI", "[Settings]\nDeci\x1b[2Jmals=4\n[Options2x]\nSideRoughStep=\x1b[31m\n");
    const Answer answer = folder.Run({"check", "EVIL.INI"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_FALSE(Contains(answer.out, "\x1b"));
}

TEST(Diff, OfAFileWithItselfIsEmpty)
{
    const Folder folder;
    folder.Write("A.INI", tool_testing::FactoryFile());
    const Answer answer = folder.Run({"diff", "A.INI", "A.INI"});
    EXPECT_EQ(0u, answer.status);
    EXPECT_EQ("A.INI и A.INI: отличий нет.\n", answer.out);
}

TEST(Diff, ComparesWithTheDefaultsFileBesideAndSaysSo)
{
    const Folder folder;
    folder.Write("CURRENT.INI", "[Options2x]\nUnits=1\nRapidPlane=50\nRapidPlunge=2.5\n");
    folder.Write("DEFAULT.INI", "[Options2x]\nUnits=0\nRapidPlane=2.5\nDispPlungeChanges=0\n");
    const Answer answer = folder.Run({"diff", "CURRENT.INI"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_TRUE(Contains(answer.out, "CURRENT.INI и заводские значения (DEFAULT.INI): отличий: 1.")) << answer.out;
    EXPECT_TRUE(Contains(answer.out, "Options2x.RapidPlane  Плоскость безопасности  50 мм  62.5 мм")) << answer.out;
}

TEST(Diff, SaysWhichFactoryIsMeant)
{
    const Folder folder;
    folder.Write("CURRENT.INI", "[Options2x]\nUnits=0\nRapidPlane=3\nDispPlungeChanges=1\n");
    folder.Write("SHOP.INI", "[Options2x]\nUnits=0\nRapidPlane=3\n");
    const json builtIn = folder.Run({"diff", "--json", "CURRENT.INI"}).Json();
    EXPECT_EQ("built-in", builtIn["comparedWith"]["kind"]);
    ASSERT_EQ(1u, builtIn["differences"].size());
    EXPECT_EQ("Options2x.RapidPlane", builtIn["differences"][0]["setting"]);
    EXPECT_EQ(3.0, builtIn["differences"][0]["stored"]);
    EXPECT_EQ(1.0, builtIn["differences"][0]["comparedStored"]);
    const Answer answer = folder.Run({"diff", "CURRENT.INI", "--defaults", "SHOP.INI"});
    EXPECT_EQ(0u, answer.status);
    EXPECT_EQ("CURRENT.INI и заводские значения (SHOP.INI): отличий нет.\n", answer.out);
}

TEST(Diff, OfTheDefaultsFileItselfIsWithTheBuiltInValues)
{
    const Folder folder;
    folder.Write("default.ini", "[Options2x]\nUnits=0\nRapidPlane=3\n");
    EXPECT_EQ("built-in", folder.Run({"diff", "--json", "default.ini"}).Json()["comparedWith"]["kind"]);
}

TEST(Diff, RefusesAFileThatIsNoSettingsText)
{
    const Folder folder;
    folder.Write("A.INI", std::string("\xff\xfe[\0", 4));
    folder.Write("B.INI", "[Settings]\nDecimals=4\n");
    for (const std::vector<std::string>& files :
         {std::vector<std::string>{"A.INI", "B.INI"}, std::vector<std::string>{"B.INI", "A.INI"}}) {
        const Answer answer = folder.Run({"diff", files[0], files[1]});
        EXPECT_EQ(2u, answer.status);
        EXPECT_EQ("A.INI: Файл записан в UTF-16. Сохраните его в кодовой странице Windows (ANSI).\n", answer.error);
    }
}

TEST(List, NamesEveryOperationAndEveryKeyOfOne)
{
    const Folder folder;
    const json all = folder.Run({"list", "--json"}).Json();
    std::size_t count = 0;
    for (const json& operation : all["operations"])
        count += operation["settings"].get<std::size_t>();
    EXPECT_EQ(pelmar::review::AllSettings().size(), count);
    const json turning = folder.Run({"list", "Токарная", "--json"}).Json();
    EXPECT_EQ(8u, turning["settings"].size());
    const Answer wrong = folder.Run({"list", "Токарня"});
    EXPECT_EQ(2u, wrong.status);
    EXPECT_EQ("Нет такой операции или раздела: «Токарня». Похоже на «Токарная». Все операции показывает list.\n",
              wrong.error);
}

TEST(Explain, TellsAllThatIsKnownOfASetting)
{
    const Folder folder;
    const json known = folder.Run({"explain", "Черновой шаг на сторону", "--json"}).Json();
    ASSERT_EQ(4u, known["settings"].size()) << "the steps of two operations, and the types beside them";
    const json& step = known["settings"][0];
    EXPECT_EQ("Options2x.SideRoughStep", step["setting"]);
    EXPECT_EQ(0.8, step["factory"]["inch"]);
    const json type = folder.Run({"explain", "Options2x.SideRoughStepType", "--json"}).Json()["settings"][0];
    EXPECT_EQ("Константа", type["items"][0]["text"]);
    EXPECT_EQ(1, type["items"][1]["number"]);
    const json plane = folder.Run({"explain", "Options2x.RapidPlane", "--json"}).Json()["settings"][0];
    EXPECT_EQ(1.0, plane["factory"]["inch"]);
    EXPECT_EQ(25.0, plane["factory"]["millimetre"]);
    const Answer people = folder.Run({"explain", "RoundMill.SideClearance"});
    EXPECT_TRUE(Contains(people.out, "Читается из раздела [Options2x], а не из своего.")) << people.out;
}

TEST(Explain, NamesTheNearestWhereNothingIsMeant)
{
    const Answer answer = Folder().Run({"explain", "SideRoughtStep"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_EQ("Нет такого ключа или параметра: «SideRoughtStep». Похоже на «SideRoughStep». Все ключи операции "
              "показывает list.\n",
              answer.error);
}

TEST(CommandLine, HelpsInRussianOnly)
{
    const Folder folder;
    for (const char* const command :
         {"", "check", "diff", "list", "explain", "set", "reset", "convert", "apply", "export", "import"}) {
        std::vector<std::string> words = {command, "--help"};
        if (!*command)
            words.erase(words.begin());
        const Answer answer = folder.Run(words);
        EXPECT_EQ(0u, answer.status) << command;
        EXPECT_TRUE(Contains(answer.out, "Примеры:")) << command;
        for (const char* const english : {"Usage", "Options:", "Positionals", "Subcommand", "REQUIRED", "TEXT", "..."})
            EXPECT_FALSE(Contains(answer.out, english)) << answer.out;
    }
    EXPECT_EQ("PelmarSettings 1.0.0\n", folder.Run({"--version"}).out);
}

TEST(CommandLine, SaysWhatIsWrongWithIt)
{
    const Folder folder;
    const std::pair<std::vector<std::string>, std::string> lines[] = {
        {{}, "Не указана команда. Справка: PelmarSettings --help\n"},
        {{"chekc", "A.INI"}, "Нет такой команды: «chekc». Справка: PelmarSettings --help\n"},
        {{"check"}, "Не указан файл. Справка: PelmarSettings check --help\n"},
        {{"check", "A.INI", "--fast"}, "Лишнее: --fast. Справка: PelmarSettings check --help\n"},
        {{"diff", "A", "B", "C"}, "Файлов слишком много. Справка: PelmarSettings diff --help\n"},
        {{"set", "A.INI"}, "Не указано, что записать: КЛЮЧ=ВЫРАЖЕНИЕ. Справка: PelmarSettings set --help\n"},
        {{"convert", "A.INI"},
         "Укажите единицы: --units mm или --units inch. Справка: PelmarSettings convert --help\n"},
        {{"convert", "A.INI", "--units"},
         "У параметра --units нет значения, или их больше одного. Справка: PelmarSettings convert --help\n"},
        {{"list", "a", "b"}, "Лишнее: b. Справка: PelmarSettings list --help\n"},
        {{"check", "A.INI", "--color", "pink"},
         "Такого режима цвета нет: «pink». Справка: PelmarSettings check --help\n"},
    };
    for (const auto& [words, message] : lines) {
        const Answer answer = folder.Run(words);
        EXPECT_EQ(2u, answer.status) << message;
        EXPECT_EQ(message, answer.error);
        EXPECT_EQ("", answer.out);
    }
}

} // namespace
