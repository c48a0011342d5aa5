#include "review/listing.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "PelmarDlgs/settings_values.h"
#include "review/test_settings.h"
#include "review/test_words.h"

using namespace pelmar;
using namespace pelmar::review;

namespace {

/// A listing of a settings text against the built-in values.
class Review : public testing::Test {
protected:
    Review() : listing(Values(), Values(), kWords) {}

    void Open(const std::string& file)
    {
        const SettingsText text(file);
        listing = Listing(Values::AtStart(text, SettingsText()), Values(), kWords);
        listing.SetFile(&text, "");
    }
    std::size_t RowOf(const char* section, const char* key) const
    {
        return FindSetting(section, key)->index; // no setting of the host stands before one of a record
    }
    std::string Text(std::size_t row, Column column) const
    {
        return listing.Row(row).texts[static_cast<std::size_t>(column)];
    }
    std::string Text(const char* section, const char* key, Column column) const
    {
        return Text(RowOf(section, key), column);
    }
    std::vector<std::string> Listed(Column column) const
    {
        std::vector<std::string> texts;
        for (const std::size_t row : listing.Listed())
            texts.push_back(Text(row, column));
        return texts;
    }

    Listing listing;
};

TEST_F(Review, EverySettingIsARowButThoseOfTheHost)
{
    std::vector<const Setting*> settings;
    for (const std::size_t row : listing.Listed())
        settings.push_back(listing.Row(row).setting);
    for (const Setting& setting : AllSettings())
        EXPECT_EQ(std::ranges::count(settings, &setting), setting.IsOfHost() ? 0 : 1) << setting.Name();
}

TEST_F(Review, BuiltInValuesDifferFromThemselvesInNothingAndHaveNoFault)
{
    EXPECT_EQ(listing.CountOf(&ListingRow::isDifferent), 0U);
    EXPECT_EQ(listing.CountOf(&ListingRow::isFaulty), 0U);
    EXPECT_EQ(listing.CountOf(&ListingRow::isEdited), 0U);
}

TEST_F(Review, ValuesStandWithTheirUnitsInThoseOfTheRecord)
{
    Open("[Options2x]\nUnits=1\nRapidPlane=50\nCornerAngle=90\nSideRoughStepType=0\n");
    EXPECT_EQ(Text("Options2x", "RapidPlane", Column::Value), "50 мм");
    EXPECT_EQ(Text("Options2x", "RapidPlane", Column::Compared), "25 мм");
    EXPECT_EQ(Text("Options2x", "CornerAngle", Column::Value), "90°");
    EXPECT_EQ(Text("Options2x", "SideRoughStep", Column::Value), "0.8 мм");
    EXPECT_EQ(Text("Options2x", "SideRoughStep", Column::Compared), "0.8 × R");
    EXPECT_EQ(Text("Options2x", "SideRoughStepType", Column::Value), "Константа");
    EXPECT_EQ(Text("Options2x", "RapidPlane", Column::Operation), "2-осевая");
}

TEST_F(Review, ALengthOfAnotherMeaningDiffersWhateverItsDigits)
{
    Open("[Options2x]\nUnits=0\nSideRoughStepType=0\n");
    listing.Show(Shown::Different);
    EXPECT_EQ(
        Listed(Column::Option),
        (std::vector<std::string>{"Черновой шаг на сторону", FindSetting("Options2x", "SideRoughStepType")->Label()}));
}

TEST_F(Review, TheSearchFindsEveryWordInLabelOperationOrKeyWhateverItsCase)
{
    const std::size_t all = listing.Listed().size();
    listing.Search("ЧЕРНОВОЙ 2-осевая");
    EXPECT_FALSE(listing.Listed().empty());
    for (const std::size_t row : listing.Listed()) {
        EXPECT_EQ(Text(row, Column::Operation), "2-осевая");
        EXPECT_NE(Text(row, Column::Option).find("ерново"), std::string::npos);
    }
    listing.Search("  options2x.siderough  ");
    EXPECT_EQ(listing.Listed().size(), 2U);
    listing.Search("нет такого");
    EXPECT_TRUE(listing.Listed().empty());
    listing.Search("");
    EXPECT_EQ(listing.Listed().size(), all);
}

TEST_F(Review, NumbersAreSortedByTheirSizeBeforeTextsBothWays)
{
    listing.Search("options2x.");
    listing.SortBy({Column::Value, false});
    std::vector<double> numbers;
    bool isPastNumbers = false;
    for (const std::size_t row : listing.Listed()) {
        const Setting& setting = *listing.Row(row).setting;
        const bool isNumber =
            setting.Choices().empty() && setting.option->kind != OptionKind::Switch && !setting.IsUnits();
        EXPECT_FALSE(isNumber && isPastNumbers);
        isPastNumbers = !isNumber;
        if (isNumber)
            numbers.push_back(listing.Held().Number(setting));
    }
    EXPECT_GT(numbers.size(), 5U);
    EXPECT_TRUE(std::ranges::is_sorted(numbers));
    const std::string smallest = Listed(Column::Value).front();
    listing.SortBy({Column::Value, true});
    EXPECT_NE(Listed(Column::Value).front(), smallest);
    const std::size_t last = listing.Listed().back();
    EXPECT_EQ(listing.Held().Number(*listing.Row(last).setting), numbers.front());
}

TEST_F(Review, WhatWasFoundComesBeforeRowsWithoutAFinding)
{
    Open("[Options2x]\nUnits=0\nSortType=9\n");
    listing.SortBy({Column::Finding, false});
    EXPECT_NE(Listed(Column::Finding).front(), "");
    EXPECT_EQ(Listed(Column::Finding).back(), "");
}

TEST_F(Review, AFindingStandsInTheRowOfItsSettingWithItsLine)
{
    Open("[Options2x]\nUnits=0\nSortType=9\n");
    EXPECT_EQ(Text("Options2x", "SortType", Column::Finding), "Строка 3. Нет варианта с номером «9». Используется: 9.");
    listing.Show(Shown::Faulty);
    for (const std::size_t row : listing.Listed())
        EXPECT_NE(Text(row, Column::Finding), "");
}

TEST_F(Review, AFindingOfNoSettingIsARowOfItsOwn)
{
    Open("[Options2x]\nSideRoughtStep=0.5\n[Nowhere]\n");
    listing.Search("похоже");
    ASSERT_EQ(listing.Listed().size(), 1U);
    const std::size_t row = listing.Listed().front();
    EXPECT_EQ(Text(row, Column::Operation), "2-осевая");
    EXPECT_EQ(Text(row, Column::Option), "SideRoughtStep");
    EXPECT_EQ(Text(row, Column::Value), "0.5");
    EXPECT_EQ(Text(row, Column::Finding), "Строка 2. Неизвестный ключ. Он не читается. Похоже на «SideRoughStep».");
    EXPECT_EQ(listing.Row(row).WhereEdited().templateId, 0);
    listing.Search("nowhere");
    EXPECT_EQ(Listed(Column::Operation), std::vector<std::string>{"[Nowhere]"});
}

TEST_F(Review, WhyAFileCouldNotBeReadIsARow)
{
    listing.SetFile(nullptr, "Это папка.");
    listing.Show(Shown::Faulty);
    EXPECT_EQ(Listed(Column::Finding), std::vector<std::string>{"Это папка."});
    EXPECT_EQ(Listed(Column::Operation), std::vector<std::string>{"Файл"});
    listing.SetFile(nullptr, "");
    EXPECT_TRUE(listing.Listed().empty());
}

TEST_F(Review, AFileOfUnknownNamesOnlyIsListedInPart)
{
    std::string file = "[Options2x]\n";
    for (int line = 0; line < 100000; ++line)
        file += "k" + std::to_string(line) + "=1\n";
    Open(file);
    EXPECT_LT(listing.Listed().size(), 3000U);
    listing.Search("найдено еще");
    EXPECT_EQ(listing.Listed().size(), 1U);
}

TEST_F(Review, WhatAFileHoldsIsBoundedAndStandsInOneLine)
{
    Open("[Options2x]\na\tb=" + std::string(100000, 'x') + "\n");
    listing.Search("неизвестный ключ");
    ASSERT_EQ(listing.Listed().size(), 1U);
    EXPECT_LT(Text(listing.Listed().front(), Column::Value).size(), 400U);
}

TEST_F(Review, AValueThatIsCutOffEndsWithAWholeLetter)
{
    const std::string dots = "…";
    for (const std::string letter : {"ж", "я", "€"})
        for (std::size_t before = 0; before < letter.size(); ++before) {
            std::string value(before, 'x');
            for (int count = 0; count < 300; ++count)
                value += letter;
            Open("[Options2x]\nOdd=" + value + "\n");
            listing.Search("неизвестный ключ");
            ASSERT_EQ(listing.Listed().size(), 1U);
            const std::string shown = Text(listing.Listed().front(), Column::Value);
            ASSERT_TRUE(shown.ends_with(dots));
            const std::size_t kept = shown.size() - dots.size();
            EXPECT_EQ(shown.substr(0, kept), value.substr(0, kept));
            EXPECT_EQ((kept - before) % letter.size(), 0U) << letter << before;
        }
}

TEST_F(Review, AnEditIsCheckedAsOnThePage)
{
    const std::size_t angle = RowOf("Options2x", "CornerAngle");
    EXPECT_EQ(listing.Edit(angle, "60+15"), "");
    EXPECT_EQ(Text(angle, Column::Value), "75°");
    EXPECT_NE(Text(angle, Column::Finding).find("Изменено, было: "), std::string::npos);
    EXPECT_EQ(listing.Edit(angle, "20"), "«20» вне допустимых границ: от 30 до 150.");
    EXPECT_EQ(Text(angle, Column::Value), "75°");
    EXPECT_EQ(listing.Edit(RowOf("Options2x", "SideRoughStepType"), "Константа"), "");
    ASSERT_EQ(listing.Edited().size(), 2U);
    EXPECT_STREQ(listing.Edited().front()->Key(), "CornerAngle");
}

TEST_F(Review, ATextThatStaysAsItIsShownKeepsTheValue)
{
    Values held;
    const Setting& step = *FindSetting("Options2x", "SideRoughStep");
    held.SetNumber(step, 1.0 / 3.0);
    listing = Listing(held, Values(), kWords);
    EXPECT_EQ(listing.Edit(step.index, listing.EditedText(step.index)), "");
    EXPECT_EQ(listing.Held().Number(step), 1.0 / 3.0);
    EXPECT_TRUE(listing.Edited().empty());
}

TEST_F(Review, AValueThatIsPutBackIsNoEditAnyMore)
{
    const std::size_t angle = RowOf("Options2x", "CornerAngle");
    const std::string before = listing.EditedText(angle);
    listing.Edit(angle, "75");
    listing.Edit(angle, before);
    EXPECT_TRUE(listing.Edited().empty());
}

TEST_F(Review, UnitsAndWhatBelongsToNoRecordAreNotEdited)
{
    EXPECT_NE(listing.Edit(RowOf("Options2x", "Units"), "1"), "");
    EXPECT_NE(listing.Edit(RowOf("Settings", "Decimals"), "5"), "");
    EXPECT_TRUE(listing.Edited().empty());
}

TEST_F(Review, WhatTheFileHoldsOfAValueIsNotToldOnceItIsEdited)
{
    Open("[Options2x]\nUnits=0\nSortType=9\nSortType=1\n");
    const std::size_t sort = RowOf("Options2x", "SortType");
    EXPECT_EQ(listing.Edit(sort, "1"), "");
    const std::string finding = Text(sort, Column::Finding);
    EXPECT_EQ(finding.find("Нет варианта"), std::string::npos);
    EXPECT_NE(finding.find("Ключ уже был"), std::string::npos);
}

TEST_F(Review, AValueInMemoryThatThePageWouldRefuseIsAFault)
{
    Values held;
    held.SetNumber(*FindSetting("Options2x", "CornerAngle"), 20);
    listing = Listing(held, Values(), kWords);
    EXPECT_EQ(Text("Options2x", "CornerAngle", Column::Finding), "«20.000000» вне допустимых границ: от 30 до 150.");
    EXPECT_EQ(listing.CountOf(&ListingRow::isFaulty), 1U);
}

TEST_F(Review, TakingALengthTakesItsMeaningToo)
{
    Open("[Options2x]\nUnits=1\nSideRoughStep=5\nSideRoughStepType=0\nRapidPlane=50\n");
    const std::size_t rows[] = {RowOf("Options2x", "SideRoughStep"), RowOf("Options2x", "RapidPlane")};
    const Taken taken = listing.Take(rows);
    EXPECT_EQ(taken.count, 2U);
    EXPECT_TRUE(taken.refusals.empty());
    EXPECT_EQ(Text("Options2x", "SideRoughStep", Column::Value), "0.8 × R");
    EXPECT_EQ(Text("Options2x", "SideRoughStepType", Column::Value), "Радиус инструмента");
    EXPECT_EQ(Text("Options2x", "RapidPlane", Column::Value), "25 мм");
    for (const std::size_t row : rows)
        EXPECT_FALSE(listing.Row(row).isDifferent);
    EXPECT_FALSE(listing.Row(RowOf("Options2x", "SideRoughStepType")).isDifferent);
}

TEST_F(Review, AComparedValueThatThePageWouldRefuseIsNotTaken)
{
    listing.CompareWith(Of("[Options2x]\nCornerAngle=20\n"));
    const std::size_t rows[] = {RowOf("Options2x", "CornerAngle")};
    const Taken taken = listing.Take(rows);
    EXPECT_EQ(taken.count, 0U);
    ASSERT_EQ(taken.refusals.size(), 1U);
    EXPECT_NE(taken.refusals.front().find("вне допустимых границ"), std::string::npos);
    EXPECT_TRUE(listing.Edited().empty());
}

TEST_F(Review, CopiedRowsAreLinesWithTabs)
{
    const std::size_t rows[] = {RowOf("Options2x", "RapidPlane"), RowOf("Options2x", "SideRoughStepType")};
    const std::string label = FindSetting("Options2x", "RapidPlane")->Label();
    const std::string typeLabel = FindSetting("Options2x", "SideRoughStepType")->Label();
    EXPECT_EQ(listing.Copied(rows), "2-осевая\t" + label + "\t1 дюйм\t1 дюйм\t\r\n2-осевая\t" + typeLabel +
                                        "\tРадиус инструмента\tРадиус инструмента\t\r\n");
}

TEST_F(Review, WhatIsReadFromAnotherSectionSaysSo)
{
    EXPECT_EQ(Text("RoundMill", "SideClearance", Column::Finding), "Читается из раздела Options2x.");
    EXPECT_FALSE(listing.Row(RowOf("RoundMill", "SideClearance")).isFaulty);
}

TEST_F(Review, ARowLeadsToItsPageAndControl)
{
    const Place place = listing.Row(RowOf("Options2x", "SideRoughStep")).WhereEdited();
    EXPECT_EQ(place.templateId, IDD_2X);
    EXPECT_EQ(place.controlId, IDC_2X_SIDE_ROUGH_STEP);
    const Place page = listing.Row(RowOf("Options2x", "Units")).WhereEdited();
    EXPECT_EQ(page.templateId, IDD_2X);
    EXPECT_EQ(page.controlId, 0);
}

} // namespace
