#include "review/findings.h"

#include <gtest/gtest.h>

#include "review/test_words.h"
#include "review/words.h"

using namespace pelmar::review;

namespace {

std::vector<Finding> Found(std::string text)
{
    return Check(SettingsText(std::move(text)), kWords);
}

/// The findings but for keys that are missing: a test's text holds only what it is about.
std::vector<Finding> FoundBesidesMissing(std::string text)
{
    std::vector<Finding> findings = Found(std::move(text));
    std::erase_if(findings, [](const Finding& finding) { return finding.kind == FindingKind::MissingKey; });
    return findings;
}

Finding TheOne(std::string text)
{
    const std::vector<Finding> findings = FoundBesidesMissing(std::move(text));
    EXPECT_EQ(findings.size(), 1U);
    return findings.empty() ? Finding{} : findings.front();
}

std::string Explained(const Finding& finding)
{
    return Explanation(finding, kWords);
}

TEST(Findings, AKeyWithASlipTellsTheNearest)
{
    const Finding finding = TheOne("[Options2x]\nUnits=0\nSideRoughtStep=0.500000\n");
    EXPECT_EQ(finding.kind, FindingKind::UnknownKey);
    EXPECT_EQ(finding.line, 3);
    EXPECT_EQ(finding.section, "Options2x");
    EXPECT_EQ(finding.key, "SideRoughtStep");
    EXPECT_EQ(finding.standing, "0.500000");
    EXPECT_EQ(finding.nearest, "SideRoughStep");
    EXPECT_EQ(Explained(finding), "Неизвестный ключ. Он не читается. Похоже на «SideRoughStep».");
}

TEST(Findings, AKeyOfAnotherSectionIsNamedWithIt)
{
    EXPECT_EQ(TheOne("[Options2x]\nDefEnableHSM=1\n").nearest, "FaceMill2x.DefEnableHSM");
}

TEST(Findings, AnUnknownKeyThatResemblesNothingHasNoNearest)
{
    EXPECT_EQ(TheOne("[Options2x]\nqwertyuiop=1\n").nearest, "");
}

TEST(Findings, AShortKeyResemblesWhatIsTwoLettersAwayAndNotThree)
{
    EXPECT_EQ(TheOne("[Options2x]\nSotTpe=1\n").nearest, "SortType");
    EXPECT_EQ(TheOne("[Options2x]\nSotTp=1\n").nearest, "");
}

TEST(Findings, AFileOfSlipsOnlyIsLookedThroughWithoutGuessingAtEachOfThem)
{
    std::string text = "[Options2x]\n";
    for (int line = 0; line < 100; ++line)
        text += "SideRoughtStep" + std::to_string(line) + "=1\n";
    const std::vector<Finding> findings = FoundBesidesMissing(text);
    ASSERT_EQ(findings.size(), 100U);
    EXPECT_EQ(findings[49].nearest, "SideRoughStep");
    EXPECT_EQ(findings[50].nearest, "");
}

TEST(Findings, AnUnknownSectionIsToldOnceAndItsKeysAreNot)
{
    const Finding finding = TheOne("[Option2x]\nSideRoughStep=abc\nWhatever=1\n");
    EXPECT_EQ(finding.kind, FindingKind::UnknownSection);
    EXPECT_EQ(finding.line, 1);
    EXPECT_EQ(finding.nearest, "Options2x");
}

TEST(Findings, ASecondSectionOfANameIsNotRead)
{
    const Finding finding = TheOne("[Settings]\nDecimals=4\n[settings]\nDecimals=abc\n");
    EXPECT_EQ(finding.kind, FindingKind::RepeatedSection);
    EXPECT_EQ(finding.line, 3);
}

TEST(Findings, AKeyTwiceTellsWhichOneCounts)
{
    const Finding finding = TheOne("[Settings]\nDecimals=4\ndecimals=6\n");
    EXPECT_EQ(finding.kind, FindingKind::RepeatedKey);
    EXPECT_EQ(finding.line, 3);
    EXPECT_EQ(Explained(finding), "Ключ уже был, «6» не читается. Используется: 4.");
}

TEST(Findings, ATextInPlaceOfANumberTellsWhatIsUsed)
{
    const Finding finding = TheOne("[Options2x]\nSideRoughStep=half\n");
    EXPECT_EQ(finding.kind, FindingKind::NotANumber);
    ASSERT_NE(finding.setting, nullptr);
    EXPECT_STREQ(finding.setting->Label(), "Черновой шаг на сторону");
    EXPECT_STREQ(finding.setting->Operation(), "2-осевая");
    EXPECT_EQ(Explained(finding), "«half» — не число. Используется: 0.8.");
}

TEST(Findings, ANumberWithSomethingBehindItIsNone)
{
    EXPECT_EQ(TheOne("[Options2x]\nSideRoughStep=0.5 mm\n").used, "0.5");
    EXPECT_EQ(TheOne("[Options2x]\nSideRoughStep=0,5\n").used, "0");
    EXPECT_EQ(TheOne("[Options2x]\nLeadAngleTol=5.5\n").used, "5");
    EXPECT_EQ(TheOne("[Options2x]\nLeadAngleTol=0x10\n").used, "16");
    EXPECT_EQ(TheOne("[Options2x]\nLeadAngleTol=\n").used, "5");
}

TEST(Findings, AValueOutOfRangeTellsTheRange)
{
    EXPECT_EQ(Explained(TheOne("[Options2x]\nCornerAngle=29.999\n")),
              "«29.999» вне допустимых границ (от 30 до 150). Используется: 29.999.");
    EXPECT_EQ(TheOne("[Options2x]\nRapidPlunge=-0.1\n").kind, FindingKind::OutOfRange);
    EXPECT_TRUE(FoundBesidesMissing("[Options2x]\nCornerAngle=30\nRapidPlunge=0\n").empty());
    EXPECT_TRUE(FoundBesidesMissing("[Options2x]\nCornerAngle=150.000000\n").empty());
}

TEST(Findings, TheBoundsOfARangeAreWithinIt)
{
    int ranges = 0;
    for (const Setting& setting : AllSettings()) {
        const pelmar::Option& option = *setting.option;
        const bool isNumber = option.kind != pelmar::OptionKind::Units && option.kind != pelmar::OptionKind::Switch &&
                              option.kind != pelmar::OptionKind::Choice && !setting.IsText();
        if (!isNumber)
            continue;
        ++ranges;
        EXPECT_EQ(FaultOf(setting, option.range.low), Fault::None) << setting.Name();
        EXPECT_EQ(FaultOf(setting, option.range.high), Fault::None) << setting.Name();
    }
    EXPECT_GT(ranges, 100);
}

TEST(Findings, NoToleranceMayBeBelowZero)
{
    for (const char* const key : {"FilterMaxSpan", "FilterLineTol", "FilterArcTol"}) {
        const std::string tolerance = "[DefaultNCParameter]\n" + std::string(key);
        EXPECT_EQ(TheOne(tolerance + "=-0.1\n").kind, FindingKind::OutOfRange) << key;
        EXPECT_TRUE(FoundBesidesMissing(tolerance + "=0\n").empty()) << key;
    }
}

TEST(Findings, ANumberThatNoTypeHoldsIsOutOfRange)
{
    EXPECT_EQ(TheOne("[Options2x]\nSideRoughStep=1e39\n").kind, FindingKind::OutOfRange);
    EXPECT_EQ(TheOne("[Options2x]\nSideRoughStep=1e999\n").kind, FindingKind::OutOfRange);
    EXPECT_EQ(TheOne("[Options2x]\nLeadAngleTol=4294967297\n").kind, FindingKind::OutOfRange);
    EXPECT_EQ(TheOne("[Options2x]\nLeadAngleTol=99999999999999999999\n").kind, FindingKind::OutOfRange);
}

TEST(Findings, AnIndexWithoutAnItemIsFoundOnBothSides)
{
    EXPECT_EQ(TheOne("[Options2x]\nSortType=3\n").kind, FindingKind::NoSuchItem);
    EXPECT_EQ(TheOne("[Options2x]\nSortType=-1\n").kind, FindingKind::NoSuchItem);
    EXPECT_EQ(TheOne("[FaceMill2x]\nDefCutingDir=0\n").kind, FindingKind::NoSuchItem);
    EXPECT_EQ(TheOne("[FaceMill2x]\nDefCutingDir=3\n").kind, FindingKind::NoSuchItem);
    EXPECT_TRUE(FoundBesidesMissing("[Options2x]\nSortType=2\n[FaceMill2x]\nDefCutingDir=1\n").empty());
}

TEST(Findings, WhatIsCorrectedOnReadingIsToldAsUsed)
{
    EXPECT_EQ(TheOne("[HoleProcessLocation]\nSortType=9\n").used, "#" + std::to_string(IDS_HOLE_SORT_MANUAL));
}

TEST(Findings, ASwitchThatIsNeitherOnNorOff)
{
    EXPECT_EQ(TheOne("[Options2x]\nDepthFirst=2\n").kind, FindingKind::NoSuchItem);
    EXPECT_TRUE(FoundBesidesMissing("[OptionsZRough]\nGougeCheck=2\n").empty());
    EXPECT_EQ(TheOne("[OptionsZRough]\nGougeCheck=0\n").kind, FindingKind::NoSuchItem);
}

TEST(Findings, UnitsAreInchOrMillimetre)
{
    EXPECT_EQ(TheOne("[Options2x]\nUnits=2\n").kind, FindingKind::NoSuchItem);
}

TEST(Findings, ARecordInOtherUnitsThanMostIsTold)
{
    const Finding finding = TheOne("[Options2x]\nUnits=0\n[Options3x]\nUnits=0\n[OptionsSSheet]\nUnits=1\n");
    EXPECT_EQ(finding.kind, FindingKind::OtherUnits);
    EXPECT_EQ(finding.line, 6);
    EXPECT_EQ(Explained(finding), "Единицы раздела (мм) не те, что у большинства разделов файла.");
}

TEST(Findings, WhereAsManyRecordsAreInInchAsInMillimetresThoseInMillimetresAreTold)
{
    EXPECT_EQ(TheOne("[Options2x]\nUnits=1\n[Options3x]\nUnits=0\n").line, 2);
    EXPECT_EQ(TheOne("[Options2x]\nUnits=0\n[Options3x]\nUnits=1\n").line, 4);
}

TEST(Findings, KeysThatASectionLacksAreTold)
{
    const std::vector<Finding> findings = Found("[OptionsLathe]\nUnits=0\nCornerAngle=135\nCornerAngleType=0\n"
                                                "CornerClearance=0\nGrooveSideStep=50\nLeadInSpeed=1\nFollow=0\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().kind, FindingKind::MissingKey);
    EXPECT_EQ(findings.front().key, "LeadOutSpeed");
    EXPECT_EQ(findings.front().line, 0);
}

TEST(Findings, ASectionThatIsMissingIsNoFinding)
{
    EXPECT_TRUE(Found("[Settings]\nDecimals=4\n").empty());
}

TEST(Findings, LinesThatAreReadByNobodyAreTold)
{
    EXPECT_EQ(TheOne("Decimals=4\n").kind, FindingKind::NoSection);
    EXPECT_EQ(TheOne("[Settings]\nDecimals\n").kind, FindingKind::NoEntry);
    EXPECT_EQ(TheOne("[Settings\n").kind, FindingKind::NoEntry);
    EXPECT_TRUE(Found("; remark\n\n[Settings]\n; another\nDecimals=4\n").empty());
}

TEST(Findings, WhatALineWithoutAnEqualsSignHidesIsRepeated)
{
    const std::vector<Finding> findings = FoundBesidesMissing("[Settings]\nDecimals\nDecimals=4\n");
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings.back().kind, FindingKind::RepeatedKey);
    EXPECT_EQ(Explained(findings.back()), "Ключ уже был, «4» не читается.");
}

TEST(Findings, AFileAsAWholeIsToldBeforeAnythingInIt)
{
    EXPECT_EQ(TheOne("").kind, FindingKind::FileIsEmpty);
    EXPECT_EQ(TheOne("\xff\xfe[").kind, FindingKind::FileIsUtf16);
    EXPECT_EQ(TheOne("\xef\xbb\xbf[Nothing]\n").kind, FindingKind::FileIsUtf8Marked);
    EXPECT_EQ(TheOne(std::string("[A]\0", 4)).kind, FindingKind::FileHasZeros);
    EXPECT_EQ(TheOne(std::string(SettingsText::kLargest + 1, ' ')).kind, FindingKind::FileIsTooLarge);
}

TEST(Findings, NamesThatTheUserGivesAreKnown)
{
    EXPECT_TRUE(Found("[NCDefaultFile]\nShop=SHOP.INI\n").empty());
}

TEST(Findings, TheSemicolonOfAKeyBelongsToIt)
{
    EXPECT_TRUE(Found("[ALLTIPI]\nDefToLastMaterial;=1\n").empty());
}

TEST(Findings, EachKindHasANameOfItsOwn)
{
    EXPECT_EQ(NameOf(FindingKind::FileIsEmpty), "empty-file");
    EXPECT_EQ(NameOf(FindingKind::UnknownSection), "unknown-section");
    EXPECT_EQ(NameOf(FindingKind::NotANumber), "no-number");
    EXPECT_EQ(NameOf(FindingKind::OtherUnits), "other-units");
    EXPECT_EQ(NameOf(FindingKind::MissingKey), "missing-key");
}

} // namespace
