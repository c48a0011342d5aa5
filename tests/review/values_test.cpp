#include "review/values.h"

#include <ostream>

#include <gtest/gtest.h>

#include "PelmarDlgs/settings_values.h"
#include "review/test_settings.h"
#include "review/test_words.h"

using namespace pelmar;
using namespace pelmar::review;

namespace {

std::string Shown(const Values& values, const char* section, const char* key)
{
    return ShownValue(At(section, key), values, kWords);
}

TEST(Values, AtStartIsWhatTheLibraryRestores)
{
    const Values values = Of("[Options2x]\nSideRoughStep=0.145000\nSortType=2\n");
    EXPECT_EQ(Shown(values, "Options2x", "SideRoughStep"), "0.145");
    EXPECT_EQ(values.Number(At("Options2x", "SideRoughStep")), double{0.145F});
    EXPECT_EQ(values.Number(At("Options2x", "SortType")), 2);
    EXPECT_EQ(Shown(values, "Options2x", "RapidPlane"), "1");
}

TEST(Values, AnOptionThatIsReadElsewhereHasTheValueFromThere)
{
    const Values values = Of("[Options2x]\nSideClearance=0.5\n[RoundMill]\nSideClearance=0.7\n");
    EXPECT_EQ(Shown(values, "RoundMill", "SideClearance"), "0.5");
}

TEST(Values, TheFactoryIsBuiltInOverlaidByTheDefaultsFileInTheOthersUnits)
{
    const SettingsText defaults(std::string("[Options2x]\nUnits=0\nRapidPlane=2.0\n"));
    const Values factory = Values::Factory(defaults, Of("[Options2x]\nUnits=1\n"));
    EXPECT_EQ(Shown(factory, "Options2x", "RapidPlane"), "50");
    EXPECT_EQ(Shown(factory, "Options2x", "RapidPlunge"), "2.5");
    EXPECT_EQ(Shown(factory, "Options2x", "SideRoughStep"), "0.8"); // of the tool radius
}

TEST(Values, TheFactoryOf2AxisMillingReportsPlungeChanges)
{
    const Values factory = Values::Factory(SettingsText(), Values());
    EXPECT_EQ(Shown(factory, "Options2x", "DispPlungeChanges"), "Да");
    EXPECT_EQ(Shown(Values(), "Options2x", "DispPlungeChanges"), "Нет");
}

TEST(Values, TheUnitsOfTheFactorysHolesStandInASectionOfTheirOwn)
{
    const SettingsText defaults(std::string("[HoleProcess]\nUnits=1\n[HoleProcessLocation]\nUnits=0\nBandWidth=50\n"));
    EXPECT_EQ(Shown(Values::Factory(defaults, Values()), "HoleProcessLocation", "BandWidth"), "2");
}

TEST(Values, WhatBelongsToNoRecordComesFromTheDefaultsWhereTheSettingsLackIt)
{
    const SettingsText settings(std::string("[MILLTIPI]\nToolDefUS=7\n"));
    const SettingsText defaults(std::string("[MILLTIPI]\nToolDefUS=8\nToolDefMM=9\n"));
    const Values values = Values::AtStart(settings, defaults);
    EXPECT_EQ(values.Number(At("MILLTIPI", "ToolDefUS")), 7);
    EXPECT_EQ(values.Number(At("MILLTIPI", "ToolDefMM")), 9);
    EXPECT_EQ(values.Number(At("DRILLTIPI", "ToolDefMM")), 2203);
}

TEST(Values, ListsAreShownByTheirItemsAndSwitchesAsYesAndNo)
{
    const Values values = Of("[Options2x]\nSideRoughStepType=0\nDepthFirst=0\n[OptionsZRough]\nIslandPlunges=0\n");
    EXPECT_EQ(Shown(values, "Options2x", "SideRoughStepType"), "Константа");
    EXPECT_EQ(Shown(values, "Options2x", "DepthFirst"), "Нет");
    EXPECT_EQ(Shown(values, "OptionsZRough", "IslandPlunges"), "Да");
    EXPECT_EQ(Shown(Of("[Options2x]\nSideRoughStepType=9\n"), "Options2x", "SideRoughStepType"), "9");
}

TEST(Values, UnitsAreThoseThatTheNumberCounts)
{
    const Values inch = Of("[Options2x]\nSideRoughStepType=0\n");
    EXPECT_EQ(ShownUnit(At("Options2x", "SideRoughStep"), inch), "дюйм");
    EXPECT_EQ(ShownUnit(At("Options2x", "DepthRoughStep"), inch), "× R");
    EXPECT_EQ(ShownUnit(At("Options2x", "CornerAngle"), inch), "°");
    EXPECT_EQ(ShownUnit(At("Options2x", "SortType"), inch), "");
    EXPECT_EQ(ShownUnit(At("Options2x", "RapidPlane"), Of("[Options2x]\nUnits=1\n")), "мм");
    EXPECT_EQ(ShownUnit(At("OptionsLathe", "GrooveSideStep"), inch), "%");
    EXPECT_EQ(ShownUnit(At("HoleProcessLocation", "AccurateFeedRate"), inch), "дюйм/мин");
}

TEST(Differences, AFileDoesNotDifferFromItself)
{
    const Values values = Of("[Options2x]\nUnits=1\nSideRoughStep=0.123456\nMaxFeedBetween=1e30\n");
    EXPECT_TRUE(Differences(values, values, kWords).empty());
}

TEST(Differences, OnlyWhatDiffersIsToldInOneUnit)
{
    const Values inch = Of("[Options2x]\nUnits=0\nRapidPlane=1\nRapidPlunge=0.1\nSortType=1\n");
    const Values millimetre = Of("[Options2x]\nUnits=1\nRapidPlane=50\nRapidPlunge=2.5\nSortType=0\n");
    const std::vector<Difference> differences = Differences(inch, millimetre, kWords);
    ASSERT_EQ(differences.size(), 2U);
    EXPECT_STREQ(differences[0].setting->Key(), "RapidPlane");
    EXPECT_EQ(differences[0].value, "1");
    EXPECT_EQ(differences[0].compared, "2");
    EXPECT_STREQ(differences[1].setting->Key(), "SortType");
}

TEST(Differences, StepsOfSinglePrecisionAreNone)
{
    EXPECT_TRUE(IsSameNumber(double{1000.1F}, 1000.1));
    EXPECT_TRUE(IsSameNumber(0.1 * 25.0, 2.5));
    EXPECT_FALSE(IsSameNumber(0.123456, 0.123458));
    EXPECT_FALSE(IsSameNumber(0.0, 0.000001));
    EXPECT_FALSE(IsSameNumber(1000.1, 1000.11));
}

TEST(Settings, EveryOneIsFoundByItsNameAndByNoOther)
{
    for (const Setting& setting : AllSettings()) {
        const std::vector<const Setting*> named = SettingsNamed(setting.Name());
        ASSERT_EQ(named.size(), 1U) << setting.Name();
        EXPECT_EQ(named.front(), &setting);
        EXPECT_EQ(FindSetting(setting.Section(), setting.Key()), &setting);
        EXPECT_EQ(&AllSettings()[setting.index], &setting);
        if (setting.record) {
            EXPECT_EQ(SettingOf(*setting.option), &setting);
        }
    }
}

struct NameAndValue {
    std::string name;
    double builtIn;

    friend bool operator==(const NameAndValue&, const NameAndValue&) = default;
    friend void PrintTo(const NameAndValue& setting, std::ostream* out)
    {
        *out << setting.name << "=" << setting.builtIn;
    }
};

/// What dialogs and host keep in the files, as it stands there.
const std::vector<NameAndValue> kOfNoRecord = {
    {"Settings.Decimals", 4},
    {"Settings.MillGaugeLength", 0},
    {"Settings.LatheGaugeLength", 0},
    {"Settings.ToolSortBy", 0},
    {"Settings.ProgramName", 0},
    {"Settings.UsePLXDialogs", 0},
    {"DefaultNCParameter.FilterSpans", 0},
    {"DefaultNCParameter.FilterMaxSpan", 0.001},
    {"DefaultNCParameter.FilterLineTol", 0.001},
    {"DefaultNCParameter.FilterArcTol", 0.001},
    {"ALLTIPI.DefToLastMaterial;", 0},
    {"ALLTIPI.DefToLastTool", 0},
    {"ALLTIPI.DefToLastCutCtrl", 0},
    {"MILLTIPI.ToolDefUS", 44},
    {"MILLTIPI.ToolDefMM", 2139},
    {"DRILLTIPI.ToolDefUS", 3},
    {"DRILLTIPI.ToolDefMM", 2203},
    {"LATHETIPI.ToolDefUS", 1},
    {"LATHETIPI.ToolDefMM", 1},
    {"LDRILLTIPI.ToolDefUS", 74},
    {"LDRILLTIPI.ToolDefMM", 142},
    {"DGTZTIPI.ToolDefUS", 1},
    {"DGTZTIPI.ToolDefMM", 1},
    {"EDMTIPI.ToolDefUS", 10},
    {"EDMTIPI.ToolDefMM", 38},
    {"THREADTIPI.ToolDefUS", 113},
    {"THREADTIPI.ToolDefMM", 113},
    {"FACEMILLTIPI.ToolDefUS", 1007},
    {"FACEMILLTIPI.ToolDefMM", 2167},
    {"ROUNDMILLTIPI.ToolDefUS", 335},
    {"ROUNDMILLTIPI.ToolDefMM", 2345},
    {"CHAMFERMILLTIPI.ToolDefUS", 1100},
    {"CHAMFERMILLTIPI.ToolDefMM", 2161},
    {"THREADMILLTIPI.ToolDefUS", 1},
    {"THREADMILLTIPI.ToolDefMM", 1},
    {"HoleProcessLocation.StartupTemplate", 0},
    {"HoleProcess.Units", 0},
    {"DefaultPath.TorvexIniPath", 0},
    {"DefaultPath.NCDefaultPath", 0},
    {"DefaultPath.MachSimPath", 0},
    {"DefaultPath.ToolpathTemplatesPath", 0},
    {"DefaultSystemFile.ToolLib", 0},
    {"DefaultNCParameter.NCDefaultStartup", 0},
    {"DefaultNCParameter.StockMaterial", 0},
    {"DefaultNCParameter.OnlyBallTools", 0},
    {"DefaultNCParameter.Classic3Axis", 0},
    {"DefaultDisplayParameter.NcDisplayMode", 0},
    {"DefaultDisplayParameter.NcMenuIcons", 0},
    {"Settings.Units", 0},
};

TEST(Settings, OfNoRecordAreThoseThatDialogsAndHostKeep)
{
    std::vector<NameAndValue> found;
    const Values builtIn;
    for (const Setting& setting : AllSettings())
        if (setting.global)
            found.push_back({setting.Name(), builtIn.Number(setting)});
    EXPECT_EQ(found, kOfNoRecord);
}

TEST(Settings, AnOperationIsFoundByItsNameAndBySection)
{
    EXPECT_EQ(SettingsOfOperation("Токарная").size(), 8U);
    EXPECT_EQ(SettingsOfOperation("optionslathe").size(), 8U);
    EXPECT_TRUE(SettingsOfOperation("nothing").empty());
}

TEST(Settings, BuiltInValuesHaveNoFault)
{
    for (const Setting& setting : AllSettings()) {
        if (!setting.IsText()) {
            EXPECT_FALSE(ShownValue(setting, Values(), kWords).empty()) << setting.Name();
        }
    }
}

} // namespace
