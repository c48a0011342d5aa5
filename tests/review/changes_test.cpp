#include "review/changes.h"

#include <gtest/gtest.h>

#include "PelmarDlgs/settings_values.h"
#include "review/test_settings.h"
#include "review/test_words.h"

using namespace pelmar;
using namespace pelmar::review;

namespace {

SettingsText Text(std::string text)
{
    return SettingsText(std::move(text));
}

std::string Written(const std::vector<Change>& changes)
{
    std::string written;
    for (const Change& change : changes)
        written += change.setting->Name() + "=" + change.text.value_or("(removed)") + "\n";
    return written;
}

std::string Refusal(const Setting& setting, std::string_view text)
{
    return Enter(setting, text, kWords).refusal;
}

TEST(Enter, AnExpressionIsWorkedOut)
{
    const Entered entered = Enter(At("Options2x", "SideRoughStep"), " 1/8+0.02 ", kWords);
    EXPECT_TRUE(entered.IsGood());
    EXPECT_DOUBLE_EQ(entered.number, 0.145);
}

TEST(Enter, ALongTextIsQuotedUpToAWholeLetter)
{
    std::string ways = "x";
    for (int count = 0; count < 39; ++count)
        ways += "ж";
    const std::string refusal = Refusal(At("Options2x", "CornerAngleType"), ways + "жжж");
    EXPECT_NE(refusal.find("«" + ways + "…»"), std::string::npos) << refusal;
}

TEST(Shortened, KeepsWhatFitsAndNothingOfALetterThatDoesNot)
{
    EXPECT_EQ(Shortened("abc", 3), "abc");
    EXPECT_EQ(Shortened("abcd", 3), "abc…");
    EXPECT_EQ(Shortened("жж", 3), "ж…");
    EXPECT_EQ(Shortened("ж", 1), "…");
    EXPECT_EQ(Shortened("\x80\x80\x80", 2), "…"); // no letter begins here
    EXPECT_EQ(Shortened("", 0), "");
}

TEST(Enter, WhatFailsIsRefusedWithTheReason)
{
    const Setting& angle = At("Options2x", "CornerAngle");
    EXPECT_EQ(Refusal(angle, ""), "Введите значение.");
    EXPECT_EQ(Refusal(angle, "1/0"), "«1/0» не вычисляется.");
    EXPECT_EQ(Refusal(angle, "20"), "«20» вне допустимых границ: от 30 до 150.");
    EXPECT_EQ(Refusal(angle, "30"), "");
    EXPECT_EQ(Refusal(At("Options2x", "LeadAngleTol"), "2.5"), "«2.5»: нужно целое число.");
    EXPECT_EQ(Refusal(At("Options2x", "LeadAngleTol"), "2*3"), "");
    EXPECT_EQ(Refusal(At("Options2x", "SideRoughStep"), "10^300"), "«10^300» вне допустимых границ.");
    EXPECT_NE(Refusal(angle, std::string_view("30\0", 3)), "");
    EXPECT_NE(Refusal(angle, std::string(100000, '1')), "");
}

TEST(Enter, ItemsAreTakenByTextOrNumber)
{
    const Setting& type = At("Options2x", "SideRoughStepType");
    EXPECT_EQ(Enter(type, "Радиус инструмента", kWords).number, 1);
    EXPECT_EQ(Enter(type, "0", kWords).number, 0);
    EXPECT_EQ(Refusal(type, "2"), "Нет варианта «2». Есть: 0 Константа, 1 Радиус инструмента.");
    EXPECT_EQ(Refusal(type, "радиус"), "Нет варианта «радиус». Есть: 0 Константа, 1 Радиус инструмента.");
}

TEST(Enter, ASwitchIsTakenByWordOrStoredNumber)
{
    const Setting& plunges = At("OptionsZRough", "IslandPlunges"); // on at 0
    EXPECT_EQ(Enter(plunges, "да", kWords).number, 0);
    EXPECT_EQ(Enter(plunges, "Нет", kWords).number, 1);
    EXPECT_EQ(Enter(plunges, "1", kWords).number, 1);
    EXPECT_EQ(Refusal(plunges, "2"), "«2» — ни «да», ни «нет».");
}

TEST(Enter, ATextStandsInOneLine)
{
    const Setting& text = At("HoleProcessLocation", "StartupTemplate");
    EXPECT_EQ(Enter(text, "C:\\Шаблон.tpl", kWords).text, "C:\\Шаблон.tpl");
    EXPECT_EQ(Refusal(text, "a\nb"), "Текст должен стоять в одной строке.");
    EXPECT_EQ(Refusal(text, std::string(256, 'a')), "Текст длиннее 255 знаков.");
}

TEST(StoredText, ARealHasSixDecimalsOrTheMoreThatItNeeds)
{
    const Setting& step = At("Options2x", "SideRoughStep");
    EXPECT_EQ(StoredText(step, 0.8), "0.800000");
    EXPECT_EQ(StoredText(step, double{0.8F}), "0.800000");
    EXPECT_EQ(StoredText(step, double{1000.1F}), "1000.100000");
    EXPECT_EQ(StoredText(step, 1e30), "1000000000000000019884624838656.000000");
    EXPECT_EQ(StoredText(step, 2), "2.000000");
    EXPECT_EQ(StoredText(step, 0.08493824), "0.08493824");
    EXPECT_EQ(StoredText(step, 1.0 / 3.0), "0.333333");
    EXPECT_EQ(StoredText(step, -0.0), "-0.000000");
    EXPECT_EQ(StoredText(At("Options2x", "SortType"), 2), "2");
}

TEST(ChangesTo, WhatStandsThereAlreadyIsNotWritten)
{
    const SettingsText file = Text("[Options2x]\nUnits=0\nRapidPlane=1.000000\nSortType=1\nRapidPlunge=0.1\n");
    Values wanted = Values::AtStart(file, SettingsText());
    wanted.SetNumber(At("Options2x", "SortType"), 2);
    const Setting* const chosen[] = {&At("Options2x", "RapidPlane"), &At("Options2x", "SortType"),
                                     &At("Options2x", "RapidPlunge")};
    EXPECT_EQ(Written(ChangesTo(file, wanted, chosen)), "Options2x.SortType=2\n");
}

TEST(ChangesTo, AFaultyTextIsWrittenAnewEvenWhereItsValueIsTheWantedOne)
{
    const SettingsText file = Text("[Options2x]\nSideRoughStep=abc\n"); // read as the built-in 0.8
    const Setting* const chosen[] = {&At("Options2x", "SideRoughStep")};
    EXPECT_EQ(Written(ChangesTo(file, Values(), chosen)), "Options2x.SideRoughStep=0.800000\n");
}

TEST(ChangesTo, LengthsComeInTheUnitsOfTheFile)
{
    const SettingsText standard = Text("[Options2x]\nUnits=0\nRapidPlane=2\nSideRoughStep=0.5\nSideRoughStepType=1\n");
    const SettingsText file = Text("[Options2x]\nUnits=1\nRapidPlane=25\nSideRoughStep=0.8\n");
    const Setting* const chosen[] = {&At("Options2x", "RapidPlane"), &At("Options2x", "SideRoughStep"),
                                     &At("Options2x", "SideRoughStepType")};
    EXPECT_EQ(Written(ChangesTo(file, Values::AtStart(standard, SettingsText()), chosen)),
              "Options2x.RapidPlane=50.000000\nOptions2x.SideRoughStep=0.500000\nOptions2x.SideRoughStepType=1\n");
}

TEST(ChangesTo, ASectionThatIsMissingIsMadeInTheUnitsOfTheOthers)
{
    const SettingsText file = Text("[Options3x]\nUnits=1\n");
    const Setting* const chosen[] = {&At("Options2x", "RapidPlane")};
    EXPECT_EQ(Written(ChangesTo(file, Values(), chosen)), "Options2x.Units=1\nOptions2x.RapidPlane=25.000000\n");
}

TEST(ChangesTo, AFileWithoutRecordsGetsTheUnitsOfTheWantedValues)
{
    const SettingsText standard = Text("[Options2x]\nUnits=1\nRapidPlane=30\n");
    const Setting* const chosen[] = {&At("Options2x", "RapidPlane")};
    EXPECT_EQ(Written(ChangesTo(SettingsText(), Values::AtStart(standard, SettingsText()), chosen)),
              "Options2x.Units=1\nOptions2x.RapidPlane=30.000000\n");
}

TEST(ChangesTo, UnitsOfASectionAreItsOwnOrThoseOfMost)
{
    const SettingsText file = Text("[Options2x]\nUnits=0\n[Options3x]\nUnits=1\n[Options4x]\nUnits=1\n");
    const auto units = [&](const char* section) { return UnitsOfSection(file, *At(section, "Units").record, kInch); };
    EXPECT_EQ(units("Options2x"), kInch);
    EXPECT_EQ(units("Options3x"), kMillimetre);
    EXPECT_EQ(units("Options5x"), kMillimetre);
    EXPECT_EQ(UnitsOfSection(SettingsText(), *At("Options5x", "Units").record, kMillimetre), kMillimetre);
}

TEST(WithChanges, AKeyWithoutAnEqualsSignGetsItsValueThere)
{
    const SettingsText file = Text("[Options2x]\nRapidPlane\nUnits=0\n");
    const Change change{&At("Options2x", "RapidPlane"), "2.000000"};
    EXPECT_EQ(WithChanges(file, std::span(&change, 1)).Bytes(), "[Options2x]\nRapidPlane=2.000000\r\nUnits=0\n");
}

TEST(WithChanges, SectionsThatAreMissingFollowAtTheEndWithTheirKeys)
{
    const SettingsText file = Text("[Options2x]\nUnits=0\n");
    const Change changes[] = {{&At("Options3x", "Units"), "1"},
                              {&At("Options3x", "RapidPlane"), "25.000000"},
                              {&At("OptionsLathe", "Units"), "0"}};
    EXPECT_EQ(WithChanges(file, changes).Bytes(), "[Options2x]\nUnits=0\n[Options3x]\r\nUnits=1\r\n"
                                                  "RapidPlane=25.000000\r\n[OptionsLathe]\r\nUnits=0\r\n");
}

TEST(Conversion, TheUnitsOfTheHolesStayTogether)
{
    const SettingsText file = Text("[HoleProcess]\nUnits=0\n[HoleProcessLocation]\nUnits=0\nBandWidth=1\n");
    const std::string written = Written(ConversionTo(file, kMillimetre, kWords).changes);
    EXPECT_TRUE(written.starts_with("HoleProcessLocation.Units=1\nHoleProcessLocation.BandWidth=25.000000\n"));
    EXPECT_TRUE(written.ends_with("HoleProcess.Units=1\n"));
    const SettingsText apart = Text("[HoleProcess]\nUnits=1\n[HoleProcessLocation]\nUnits=0\nBandWidth=1\n");
    EXPECT_EQ(ConversionTo(apart, kMillimetre, kWords).obstacles.size(), 1U);
    EXPECT_TRUE(ConversionTo(apart, kMillimetre, kWords).changes.empty());
}

TEST(Conversion, ThereAndBackGivesTheSameBytes)
{
    const std::string bytes = "[Options2x]\nUnits=1\nRapidPlane=2.123456\nRapidPlunge=0.000001\n"
                              "SideRoughStep=0.800000\nSideRoughStepType=1\nDepthRoughStep=123456.654321\n"
                              "DepthRoughStepType=0\n";
    const SettingsText file = Text(bytes);
    const SettingsText inch = WithChanges(file, ConversionTo(file, kInch, kWords).changes);
    EXPECT_EQ(inch.Find("Options2x", "RapidPlane")->value, "0.08493824");
    EXPECT_EQ(inch.Find("Options2x", "SideRoughStep")->value, "0.800000");
    const SettingsText back = WithChanges(inch, ConversionTo(inch, kMillimetre, kWords).changes);
    for (const TextLine& line : file.Lines())
        if (line.kind == TextLine::Kind::Entry) {
            EXPECT_EQ(back.Find(line.section, line.key)->value, line.value) << line.key;
        }
}

TEST(Conversion, AFileInTheseUnitsStaysAsItIs)
{
    EXPECT_TRUE(ConversionTo(Text("[Options2x]\nUnits=1\nRapidPlane=25\n"), kMillimetre, kWords).changes.empty());
}

TEST(Conversion, NoLengthIsGuessed)
{
    const Conversion conversion = ConversionTo(Text("[Options2x]\nUnits=0\nRapidPlane=abc\n"), kMillimetre, kWords);
    EXPECT_TRUE(conversion.changes.empty());
    ASSERT_EQ(conversion.obstacles.size(), 1U);
    EXPECT_EQ(conversion.obstacles.front().key, "RapidPlane");
}

TEST(NotAsWanted, WhatIsReadElsewhereIsTold)
{
    const SettingsText file = Text("[Options2x]\nSideClearance=0.5\n[RoundMill]\nSideClearance=0.5\n");
    Values wanted = Values::AtStart(file, SettingsText());
    const Setting& setting = At("RoundMill", "SideClearance");
    wanted.SetNumber(setting, 0.7);
    const Setting* const chosen[] = {&setting};
    const SettingsText changed = WithChanges(file, ChangesTo(file, wanted, chosen));
    EXPECT_EQ(changed.Find("RoundMill", "SideClearance")->value, "0.700000");
    EXPECT_EQ(NotAsWanted(changed, wanted, chosen).size(), 1U);
}

TEST(SoundSettings, AreThoseThatStandThereWithoutAFault)
{
    const std::vector<const Setting*> sound =
        SoundSettings(Text("[Options2x]\nUnits=0\nRapidPlane=1\nSortType=9\nNothing=1\nRapidPlunge=abc\n"), kWords);
    ASSERT_EQ(sound.size(), 1U);
    EXPECT_STREQ(sound.front()->Key(), "RapidPlane");
}

} // namespace
