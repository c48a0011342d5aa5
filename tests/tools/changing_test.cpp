// set, reset, convert: what is written checks clean, and the library restores it to the values shown.
#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "program.h"
#include "review/setting.h"
#include "review/values.h"

namespace {

using tool_testing::Answer;
using tool_testing::Folder;
using tool_testing::ValuesIn;

/// The library's texts do not matter for the comparison.
const pelmar::review::Words kWords{.ofString = [](unsigned id) { return std::to_string(id); },
                                   .ofFile = [](std::string_view bytes) { return std::string(bytes); },
                                   .toFile = [](std::string_view, std::string&) { return false; }};

pelmar::review::Values Held(const std::string& bytes)
{
    return pelmar::review::Values::AtStart(pelmar::review::SettingsText(bytes), pelmar::review::SettingsText());
}

/// The library holds, after restoring every record, what the file says.
void ExpectRestores(const std::string& bytes)
{
    const auto differences =
        pelmar::review::Differences(Held(tool_testing::RestoredAndSaved(bytes)), Held(bytes), kWords);
    for (const auto& difference : differences)
        if (difference.setting->record)
            ADD_FAILURE() << difference.setting->Name() << ": " << difference.value << ", not " << difference.compared;
}

class Changing : public testing::Test {
protected:
    void ExpectClean() const
    {
        const Answer answer = folder.Run({"check", "CURRENT.INI"});
        EXPECT_EQ(0u, answer.status) << answer.out;
        ExpectRestores(folder.Read("CURRENT.INI"));
    }
    /// Nothing is written, and the reason is told.
    void ExpectRefused(const std::vector<std::string>& words, const std::string& reason) const
    {
        const std::string before = folder.Read("CURRENT.INI");
        const Answer answer = folder.Run(words);
        EXPECT_EQ(2u, answer.status) << answer.out;
        EXPECT_EQ(reason, answer.error);
        EXPECT_EQ(before, folder.Read("CURRENT.INI"));
    }

    Folder folder;
};

TEST_F(Changing, SetWritesExpressionsItemsAndSwitches)
{
    folder.Write("CURRENT.INI", tool_testing::FactoryFile());
    const Answer answer =
        folder.Run({"set", "CURRENT.INI", "Options2x.SideRoughStep=1/8+0.02", "Options2x.SideRoughStepType=Константа",
                    "OptionsZRough.IslandPlunges=нет", "Options2x.SortType=2", "OptionsLathe.CornerAngle=60"});
    EXPECT_EQ(0u, answer.status) << answer.error;
    EXPECT_TRUE(answer.out.starts_with("CURRENT.INI: записано значений: 5.\n  Options2x.SideRoughStep  "))
        << answer.out;
    EXPECT_NE(std::string::npos, answer.out.find(" 0.8 × R             →  0.145 дюйм\n")) << answer.out;
    const auto values = ValuesIn(folder.Read("CURRENT.INI"));
    EXPECT_EQ("0.145000", values.at("Options2x.SideRoughStep"));
    EXPECT_EQ("0", values.at("Options2x.SideRoughStepType"));
    EXPECT_EQ("1", values.at("OptionsZRough.IslandPlunges")); // off is 1 there
    EXPECT_EQ("2", values.at("Options2x.SortType"));
    ExpectClean();
    const HostFolder host;
    host.WriteSettings(folder.Read("CURRENT.INI"));
    GetLast2xOptions()->vOptions_Restore();
    EXPECT_EQ(double{0.145F}, GetLast2xOptions()->SideRoughStep);
    EXPECT_EQ(0, GetLast2xOptions()->SideRoughStepType);
}

TEST_F(Changing, SetWritesOnlyWhatIsNotSoAlready)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n");
    const Answer answer = folder.Run({"set", "CURRENT.INI", "Options2x.RapidPlane=1+1"});
    EXPECT_EQ(0u, answer.status);
    EXPECT_EQ("CURRENT.INI: всё уже так, писать нечего.\n", answer.out);
    EXPECT_EQ("[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n", folder.Read("CURRENT.INI"));
}

TEST_F(Changing, SetMakesASectionInTheUnitsOfTheFile)
{
    folder.Write("CURRENT.INI", "[Options3x]\r\nUnits=1\r\n");
    EXPECT_EQ(0u, folder.Run({"set", "CURRENT.INI", "Options2x.RapidPlane=30"}).status);
    const auto values = ValuesIn(folder.Read("CURRENT.INI"));
    EXPECT_EQ("1", values.at("Options2x.Units"));
    EXPECT_EQ("30.000000", values.at("Options2x.RapidPlane"));
}

TEST_F(Changing, SetWritesAllOrNothing)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n");
    ExpectRefused({"set", "CURRENT.INI", "Options2x.RapidPlane=3", "Options2x.CornerAngle=20",
                   "Options2x.SideRoughStep=1/0", "Options2x.SortType=7", "Options2x.Units=1", "Nothing=1",
                   "Options2x.RapidPlane=4", "Decimals"},
                  "CURRENT.INI: ничего не записано.\n"
                  "Options2x.CornerAngle: «20» вне допустимых границ: от 30 до 150.\n"
                  "Options2x.SideRoughStep: «1/0» не вычисляется.\n"
                  "Options2x.SortType: Нет варианта «7». Есть: 0 Нет, 1 Авто, 2 Вложенные.\n"
                  "Options2x.Units: единицы меняются вместе с длинами: PelmarSettings convert ФАЙЛ --units mm|inch.\n"
                  "Нет такого ключа или параметра: «Nothing». Все ключи операции показывает list.\n"
                  "Options2x.RapidPlane: указан дважды.\n"
                  "«Decimals»: нужно КЛЮЧ=ВЫРАЖЕНИЕ.\n");
}

TEST_F(Changing, SetAsksForTheFullNameOfAKeyThatSeveralOperationsHave)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\n");
    ExpectRefused({"set", "CURRENT.INI", "SideRoughStep=1"},
                  "CURRENT.INI: ничего не записано.\n"
                  "«SideRoughStep» — не один параметр. Укажите его полным именем:\n"
                  "  Options2x.SideRoughStep  2-осевая: Черновой шаг на сторону\n"
                  "  OptionsZRough.SideRoughStep  Черновая по Z: Черновой шаг на сторону\n");
}

TEST_F(Changing, SetRefusesWhatTheLibraryReadsElsewhere)
{
    folder.Write("CURRENT.INI", tool_testing::FactoryFile());
    ExpectRefused({"set", "CURRENT.INI", "RoundMill.SideClearance=0.7"},
                  "CURRENT.INI: ничего не записано. Библиотека не прочла бы этих значений:\n"
                  "  RoundMill.SideClearance читается из раздела [Options2x]: укажите Options2x.SideClearance.\n");
}

TEST_F(Changing, AFileThatMayOnlyBeReadStaysAndTheReasonIsTold)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n");
    SetFileAttributesA(folder.Path("CURRENT.INI").c_str(), FILE_ATTRIBUTE_READONLY);
    const std::string before = folder.Read("CURRENT.INI");
    const Answer answer = folder.Run({"set", "CURRENT.INI", "Options2x.RapidPlane=3"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_EQ(0u, answer.error.find("CURRENT.INI: не записано: файл помечен «только для чтения». Система: "))
        << answer.error;
    EXPECT_EQ(before, folder.Read("CURRENT.INI"));
    SetFileAttributesA(folder.Path("CURRENT.INI").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Changing, ResetBringsEveryRecordToTheFactorysValues)
{
    for (const char* const units : {"0", "1"}) {
        folder.Write("CURRENT.INI", std::string("[Options2x]\r\nUnits=") + units +
                                        "\r\nSideRoughStep=abc\r\nRapidPlane=7\r\n[Settings]\r\nDecimals=6\r\n");
        folder.Write("DEFAULT.INI", "[Options2x]\r\nUnits=1\r\nRapidPlane=50\r\n");
        EXPECT_EQ(0u, folder.Run({"reset", "CURRENT.INI"}).status);
        const Answer answer = folder.Run({"diff", "CURRENT.INI"});
        EXPECT_EQ(1u, answer.status) << answer.out;
        EXPECT_NE(std::string::npos, answer.out.find("отличий: 1.")) << "the number of decimals is of no operation";
        EXPECT_EQ(units == std::string("0") ? "2.000000" : "50.000000",
                  ValuesIn(folder.Read("CURRENT.INI")).at("Options2x.RapidPlane"));
        ExpectClean();
    }
}

TEST_F(Changing, ResetTakesOperationsAndKeysAndRemovesWhatBelongsToNoOperation)
{
    std::string file = tool_testing::FactoryFile();
    file += "[Settings]\r\nDecimals=6\r\nMillGaugeLength=1\r\n";
    folder.Write("CURRENT.INI", file);
    EXPECT_EQ(0u, folder
                      .Run({"set", "CURRENT.INI", "Options2x.RapidPlane=7", "Options2x.RapidPlunge=7",
                            "OptionsLathe.CornerAngle=60"})
                      .status);
    EXPECT_EQ(0u, folder.Run({"reset", "CURRENT.INI", "Токарная", "Options2x.RapidPlane", "Decimals"}).status);
    const auto values = ValuesIn(folder.Read("CURRENT.INI"));
    EXPECT_EQ("1.000000", values.at("Options2x.RapidPlane"));
    EXPECT_EQ("7.000000", values.at("Options2x.RapidPlunge"));
    EXPECT_FALSE(values.contains("Settings.Decimals"));
    EXPECT_EQ("1", values.at("Settings.MillGaugeLength"));
    ExpectClean();
    ExpectRefused({"reset", "CURRENT.INI", "Options2x.Units"},
                  "Options2x.Units: единицы меняются вместе с длинами: PelmarSettings convert ФАЙЛ --units mm|inch.\n");
    ExpectRefused({"reset", "CURRENT.INI", "DefaultPath.NCDefaultPath"},
                  "DefaultPath.NCDefaultPath: это параметр самого TORVEX, заводского значения у него нет.\n");
}

TEST_F(Changing, ResetOfALengthTakesItsTypeAlong)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nSideRoughStep=0.145000\r\nSideRoughStepType=0\r\n");
    EXPECT_EQ(0u, folder.Run({"reset", "CURRENT.INI", "Options2x.SideRoughStep"}).status);
    EXPECT_EQ("[Options2x]\r\nUnits=0\r\nSideRoughStep=0.800000\r\nSideRoughStepType=1\r\n",
              folder.Read("CURRENT.INI"));
}

TEST_F(Changing, ConvertThereAndBackGivesTheSameBytes)
{
    const std::string before = tool_testing::FactoryFile();
    folder.Write("CURRENT.INI", before);
    EXPECT_EQ(0u, folder.Run({"convert", "CURRENT.INI", "--units", "mm"}).status);
    EXPECT_EQ("25.000000", ValuesIn(folder.Read("CURRENT.INI")).at("Options2x.RapidPlane"));
    ExpectClean();
    const Answer again = folder.Run({"convert", "CURRENT.INI", "--units", "mm"});
    EXPECT_EQ("CURRENT.INI: всё уже так, писать нечего.\n", again.out);
    EXPECT_EQ(0u, folder.Run({"convert", "CURRENT.INI", "--units", "inch"}).status);
    EXPECT_EQ(before, folder.Read("CURRENT.INI"));
}

TEST_F(Changing, ConvertGuessesNothing)
{
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=one\r\nRapidPlunge=0.1\r\n");
    const std::string before = folder.Read("CURRENT.INI");
    const Answer answer = folder.Run({"convert", "CURRENT.INI", "--units", "mm"});
    EXPECT_EQ(2u, answer.status);
    EXPECT_NE(std::string::npos, answer.error.find("«one» — не число."));
    EXPECT_NE(std::string::npos, answer.error.find("не переведено"));
    EXPECT_EQ(before, folder.Read("CURRENT.INI"));
    folder.Write("CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=1e38\r\n");
    EXPECT_EQ(2u, folder.Run({"convert", "CURRENT.INI", "--units", "mm"}).status) << "no number would hold it";
}

TEST_F(Changing, ConvertKeepsTheUnitsOfTheHolesTogether)
{
    folder.Write("CURRENT.INI",
                 "[HoleProcess]\r\nUnits=0\r\n[HoleProcessLocation]\r\nUnits=0\r\nBandWidth=1.000000\r\n");
    EXPECT_EQ(0u, folder.Run({"convert", "CURRENT.INI", "--units", "mm"}).status);
    EXPECT_EQ("1", ValuesIn(folder.Read("CURRENT.INI")).at("HoleProcess.Units"));
    EXPECT_EQ("25.000000", ValuesIn(folder.Read("CURRENT.INI")).at("HoleProcessLocation.BandWidth"));
    folder.Write("CURRENT.INI", "[HoleProcess]\r\nUnits=1\r\n[HoleProcessLocation]\r\nUnits=0\r\nBandWidth=1\r\n");
    EXPECT_EQ(2u, folder.Run({"convert", "CURRENT.INI", "--units", "mm"}).status);
}

TEST_F(Changing, EveryKeyOfARecordTakesItsFactoryValueAsAnExpression)
{
    folder.Write("CURRENT.INI", tool_testing::FactoryFile());
    std::vector<std::string> words = {"set", "CURRENT.INI", "--json"};
    for (const auto& [name, value] : ValuesIn(folder.Read("CURRENT.INI")))
        if (!name.ends_with(".Units"))
            words.push_back(name + "=" + value + "+0");
    const Answer answer = folder.Run(words);
    EXPECT_EQ(0u, answer.status) << answer.error;
    EXPECT_EQ(nlohmann::json::array(), answer.Json()["written"]);
}

} // namespace
