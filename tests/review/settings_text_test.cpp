#include "review/settings_text.h"

#include <gtest/gtest.h>

using namespace pelmar::review;

namespace {

std::string ValueIn(const char* text, const char* section, const char* key)
{
    const SettingsText settings{std::string(text)};
    const TextLine* const line = settings.Find(section, key);
    return line ? std::string(line->value) : "absent";
}

TEST(SettingsText, TheFirstKeyOfTheFirstSectionCounts)
{
    EXPECT_EQ(ValueIn("[A]\nKey=1\nkey=2\n", "A", "Key"), "1");
    EXPECT_EQ(ValueIn("[A]\nKey=1\n[B]\n[a]\nKey=2\nOther=3\n", "A", "KEY"), "1");
    EXPECT_EQ(ValueIn("[A]\nKey=1\n[B]\n[a]\nKey=2\nOther=3\n", "A", "Other"), "absent");
}

TEST(SettingsText, BlanksAroundNamesAndValuesDoNotCount)
{
    EXPECT_EQ(ValueIn("[ A ]\nKey=1\n", "A", "Key"), "1");
    EXPECT_EQ(ValueIn("  [A]  \r\n \t Facing Angle \t=  1 2 \r\n", "A", "Facing Angle"), "1 2");
}

TEST(SettingsText, EitherEndOfALineWillDo)
{
    EXPECT_EQ(ValueIn("[A]\rKey=1\rOther=2", "A", "Other"), "2");
    EXPECT_EQ(ValueIn("[A]\nKey=1\r\rOther=2\n", "A", "Key"), "1");
}

TEST(SettingsText, ALineThatIsTheKeyAloneHidesTheKey)
{
    EXPECT_EQ(ValueIn("[A]\nKey\nKey=1\n", "A", "Key"), "absent");
    const SettingsText settings(std::string("[A]\nKey\n"));
    ASSERT_NE(settings.FindNamed("A", "Key"), nullptr);
    EXPECT_EQ(settings.FindNamed("A", "Key")->number, 2);
}

TEST(SettingsText, LinesAreNumberedAsAnEditorNumbersThem)
{
    const SettingsText settings(std::string("; remark\r\n\r\n[A]\r\nKey=1\r\nwithout\r\n"));
    ASSERT_EQ(settings.Lines().size(), 4U);
    EXPECT_EQ(settings.Lines()[0].kind, TextLine::Kind::Comment);
    EXPECT_EQ(settings.Lines()[1].number, 3);
    EXPECT_EQ(settings.Lines()[2].number, 4);
    EXPECT_EQ(settings.Lines()[3].kind, TextLine::Kind::Other);
    EXPECT_EQ(settings.Lines()[3].number, 5);
}

TEST(SettingsText, AFileThatIsNoTextHasNoLines)
{
    const auto state = [](std::string bytes) {
        const SettingsText settings(std::move(bytes));
        EXPECT_TRUE(settings.Lines().empty());
        EXPECT_EQ(settings.Find("A", "Key"), nullptr);
        return settings.State();
    };
    EXPECT_EQ(state(""), TextState::Empty);
    EXPECT_EQ(state(std::string("\xff\xfe[\0A\0]\0", 8)), TextState::Utf16);
    EXPECT_EQ(state(std::string("\xfe\xff\0[", 4)), TextState::Utf16);
    EXPECT_EQ(state("\xef\xbb\xbf[A]\nKey=1\n"), TextState::Utf8Marked);
    EXPECT_EQ(state(std::string("[A]\nKey=\0", 9)), TextState::Zeros);
    EXPECT_EQ(state(std::string(SettingsText::kLargest + 1, 'a')), TextState::TooLarge);
}

TEST(SettingsText, ACopyOutlivesItsOriginal)
{
    SettingsText copy;
    {
        const SettingsText original(std::string("[A]\nKey=1\n"));
        copy = original;
    }
    ASSERT_NE(copy.Find("A", "Key"), nullptr);
    EXPECT_EQ(copy.Find("A", "Key")->value, "1");
}

int Whole(const std::string& value)
{
    const SettingsText settings("[A]\nKey=" + value + "\n");
    return TextValues(settings).Whole("A", "Key", 77);
}

TEST(TextValues, AWholeNumberIsWhatTheTextBeginsWith)
{
    EXPECT_EQ(Whole("5"), 5);
    EXPECT_EQ(Whole("-5"), -5);
    EXPECT_EQ(Whole("+5"), 5);
    EXPECT_EQ(Whole("12abc"), 12);
    EXPECT_EQ(Whole("abc"), 0);
    EXPECT_EQ(Whole(""), 77);
    EXPECT_EQ(Whole("0x1F"), 31);
    EXPECT_EQ(Whole("\"7\""), 7);
    EXPECT_EQ(Whole("4294967297"), 1);
}

double Real(const std::string& value)
{
    const SettingsText settings("[A]\nKey=" + value + "\n");
    return TextValues(settings).Real("A", "Key", 0.1);
}

TEST(TextValues, ARealIsOfSinglePrecisionTheFallbackToo)
{
    EXPECT_EQ(Real("0.08"), double{0.08F});
    EXPECT_EQ(Real("text"), double{0.1F});
    EXPECT_EQ(Real("1e39"), double{0.1F});
    EXPECT_EQ(Real("2.5 mm"), 2.5);
}

TEST(SettingsText, EditsLeaveTheOtherLinesAsTheyStand)
{
    const SettingsText settings(std::string("; remark\n[A]\nKey=1\n  odd\n[B]\nOther=2"));
    LineEdits edits;
    edits.replaced[3] = "Key=5";
    edits.inserted[4] = {"New=6"};
    edits.AppendSection("C", "Last=7");
    EXPECT_EQ(settings.Edited(edits).Bytes(),
              "; remark\n[A]\nKey=5\r\n  odd\nNew=6\r\n[B]\nOther=2\r\n[C]\r\nLast=7\r\n");
}

} // namespace
