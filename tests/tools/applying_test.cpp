// apply: a shop's standard into many files.
#include <algorithm>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "program.h"

namespace {

using nlohmann::json;
using tool_testing::Answer;
using tool_testing::Folder;
using tool_testing::ValuesIn;

constexpr char kStandard[] = "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\nSideRoughStep=0.500000\r\n"
                             "SideRoughStepType=0\r\nSortType=2\r\n";

TEST(Apply, BringsTheStandardIntoEachFileInItsOwnUnits)
{
    const Folder folder;
    folder.Write("SHOP.INI", kStandard);
    folder.Write("INCH.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=1.000000\r\nRapidPlunge=0.300000\r\n");
    folder.Write("MM.INI", "[Options2x]\r\nUnits=1\r\nSortType=0\r\n");
    folder.Write("NEW.INI", "");
    const Answer answer = folder.Run({"apply", "SHOP.INI", "INCH.INI", "MM.INI", "NEW.INI"});
    EXPECT_EQ(0u, answer.status) << answer.error;
    EXPECT_EQ("INCH.INI: записано значений: 4.\nMM.INI: записано значений: 4.\nNEW.INI: записано значений: 5.\n",
              answer.out);
    EXPECT_EQ("0.300000", ValuesIn(folder.Read("INCH.INI")).at("Options2x.RapidPlunge"));
    EXPECT_EQ("50.000000", ValuesIn(folder.Read("MM.INI")).at("Options2x.RapidPlane"));
    EXPECT_EQ("12.500000", ValuesIn(folder.Read("MM.INI")).at("Options2x.SideRoughStep"));
    EXPECT_EQ(ValuesIn(kStandard), ValuesIn(folder.Read("NEW.INI")));
    const Answer again = folder.Run({"apply", "SHOP.INI", "INCH.INI", "MM.INI", "NEW.INI"});
    EXPECT_EQ("INCH.INI: уже как в образце.\nMM.INI: уже как в образце.\nNEW.INI: уже как в образце.\n", again.out);
}

TEST(Apply, TakesOnlyWhatIsNamedAndTheTypeOfALengthWithIt)
{
    const Folder folder;
    folder.Write("SHOP.INI", kStandard);
    folder.Write("A.INI", "[Options2x]\r\nUnits=0\r\nSortType=0\r\n");
    EXPECT_EQ(0u, folder.Run({"apply", "SHOP.INI", "A.INI", "--only", "Options2x.SideRoughStep"}).status);
    const auto values = ValuesIn(folder.Read("A.INI"));
    EXPECT_EQ("0.500000", values.at("Options2x.SideRoughStep"));
    EXPECT_EQ("0", values.at("Options2x.SideRoughStepType"));
    EXPECT_EQ("0", values.at("Options2x.SortType"));
    EXPECT_FALSE(values.contains("Options2x.RapidPlane"));
    EXPECT_EQ(
        0u, folder.Run({"apply", "SHOP.INI", "A.INI", "--only", "Options2x.SortType", "--only", "Options2x.RapidPlane"})
                .status);
    EXPECT_EQ("2", ValuesIn(folder.Read("A.INI")).at("Options2x.SortType"));
    const Answer missing = folder.Run({"apply", "SHOP.INI", "A.INI", "--only", "Токарная"});
    EXPECT_EQ(2u, missing.status);
    EXPECT_EQ("SHOP.INI: в образце нет значения для «Токарная», или оно ошибочно.\n", missing.error);
}

TEST(Apply, WritesNothingWhenItIsOnlyToTell)
{
    const Folder folder;
    folder.Write("SHOP.INI", kStandard);
    folder.Write("A.INI", "[Options2x]\r\nUnits=0\r\nSortType=0\r\n");
    const Answer answer = folder.Run({"apply", "SHOP.INI", "A.INI", "--dry-run", "--only", "Options2x.SortType"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_EQ("A.INI: будет записано значений: 1.\n"
              "  Options2x.SortType  Тип сортировки  Нет  →  Вложенные\n",
              answer.out);
    EXPECT_EQ("[Options2x]\r\nUnits=0\r\nSortType=0\r\n", folder.Read("A.INI"));
}

TEST(Apply, TakesNothingThatIsWrongInTheStandard)
{
    const Folder folder;
    folder.Write("SHOP.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=abc\r\nSortType=2\r\nSideRoughStep=0.5\r\n"
                             "SideRoughStepType=7\r\n[DefaultPath]\r\nNCDefaultPath=C:\\NC\r\n");
    folder.Write("A.INI", "[Options2x]\r\nUnits=0\r\nSortType=0\r\n");
    const Answer answer = folder.Run({"apply", "SHOP.INI", "A.INI"});
    EXPECT_EQ(1u, answer.status);
    EXPECT_NE(std::string::npos, answer.error.find("SHOP.INI: в образце есть ошибки, эти значения не берутся:"));
    EXPECT_EQ("[Options2x]\r\nUnits=0\r\nSortType=2\r\n", folder.Read("A.INI")) << "no path of another machine either";
}

TEST(Apply, GoesOnAfterAFileThatCannotBeDone)
{
    const Folder folder;
    folder.Write("SHOP.INI", kStandard);
    folder.Write("A.INI", std::string("[Options2x]\0\0", 13));
    folder.Write("B.INI", "");
    folder.Write("C.INI", "");
    SetFileAttributesA(folder.Path("C.INI").c_str(), FILE_ATTRIBUTE_READONLY);
    const Answer answer = folder.Run({"apply", "SHOP.INI", "A.INI", "B.INI", "C.INI", "--json"});
    EXPECT_EQ(2u, answer.status);
    const json files = answer.Json()["files"];
    EXPECT_EQ("not-done", files[0]["state"]);
    EXPECT_EQ("written", files[1]["state"]);
    EXPECT_EQ("not-done", files[2]["state"]);
    SetFileAttributesA(folder.Path("C.INI").c_str(), FILE_ATTRIBUTE_NORMAL);
}

std::string NameOf(int number)
{
    return "M" + std::to_string(number) + ".INI";
}

/// Killed at random moments of it, from its beginning to its end.
TEST(Apply, ThatIsKilledLeavesEveryFileWholeAndIsToldByTheNextWhichAreDone)
{
    constexpr int kFiles = 200;
    const Folder folder;
    const std::string before = tool_testing::FactoryFile();
    folder.Write("SHOP.INI", kStandard);
    folder.Write("AFTER.INI", before);
    ASSERT_EQ(0u, folder.Run({"apply", "SHOP.INI", "AFTER.INI"}).status);
    const std::string after = folder.Read("AFTER.INI");
    ASSERT_NE(before, after);
    std::vector<std::string> words = {"apply", "SHOP.INI"};
    for (int number = 0; number < kFiles; ++number)
        words.push_back(NameOf(number));
    words.emplace_back("--json");

    std::mt19937 random(std::random_device{}());
    for (const int reached : {3, 150}) {
        for (int number = 0; number < kFiles; ++number)
            folder.Write(NameOf(number), before);
        const PROCESS_INFORMATION process = folder.Start(words);
        while (folder.Read(NameOf(reached)) == before && WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT) {
        }
        for (unsigned moment = random() % 20'000; moment > 0; --moment)
            YieldProcessor();
        TerminateProcess(process.hProcess, 1);
        WaitForSingleObject(process.hProcess, INFINITE);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);

        int done = 0;
        for (int number = 0; number < kFiles; ++number) {
            const std::string left = folder.Read(NameOf(number));
            EXPECT_TRUE(left == before || left == after) << NameOf(number);
            done += left == after;
        }
        EXPECT_GE(done, reached);
        EXPECT_LT(done, kFiles) << "the kill came too late";
        const Answer next = folder.Run(words);
        EXPECT_EQ(0u, next.status) << next.error;
        const json files = next.Json()["files"];
        ASSERT_EQ(std::size_t{kFiles}, files.size());
        const auto isSame = [](const json& file) { return file["state"] == "same"; };
        EXPECT_EQ(done, std::ranges::count_if(files, isSame));
        for (int number = 0; number < kFiles; ++number)
            EXPECT_EQ(after, folder.Read(NameOf(number)));
        EXPECT_EQ(std::size_t{kFiles} + 2, folder.Count()) << "nothing is left beside the files";
        std::cout << "killed with " << done << " of " << kFiles << " files done\n";
    }
}

} // namespace
