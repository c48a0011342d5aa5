#include "frame/number_text.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace {

template <class Real> std::optional<Real> Parsed(const std::string& text)
{
    Real value = Real{12.5};
    if (number_text::Parse(text, value))
        return value;
    EXPECT_EQ(Real{12.5}, value) << text;
    return std::nullopt;
}

std::optional<double> Stored(const std::string& text)
{
    double value = 12.75;
    if (number_text::ParseStored(text, value))
        return value;
    EXPECT_EQ(12.75, value) << text;
    return std::nullopt;
}

std::string Printed(double value, int decimals)
{
    number_text::FixedBuffer buffer;
    buffer.fill('#');
    const std::string_view text = number_text::Print(buffer, value, decimals);
    EXPECT_EQ('\0', buffer[text.size()]);
    return std::string(text);
}

TEST(ParseNumber, ReadsTheNumberThatATextStartsWith)
{
    EXPECT_EQ(0.145, Parsed<double>("0.145"));
    EXPECT_EQ(-12.5, Parsed<double>("-12.5"));
    EXPECT_EQ(0.5, Parsed<double>(".5"));
    EXPECT_EQ(1.0, Parsed<double>("1."));
    EXPECT_EQ(150.0, Parsed<double>("1.5e2"));
    EXPECT_EQ(0.015, Parsed<double>("1.5E-2"));
    EXPECT_EQ(1.5, Parsed<double>("1.5e"));
    EXPECT_EQ(1.5, Parsed<double>("1.5 mm"));
    EXPECT_EQ(1.0, Parsed<double>("1,5"));
    EXPECT_EQ(0.0, Parsed<double>("0x1F"));
}

TEST(ParseNumber, LeavesTheValueWhereThereIsNoNumber)
{
    for (const char* text :
         {"", "-", ".", "-.", "e5", ".e5", " 1", "+1", "--1", "x", "nan", "-nan", "inf", "-inf", "infinity", "\xEC"}) {
        EXPECT_EQ(std::nullopt, Parsed<double>(text)) << text;
        EXPECT_EQ(std::nullopt, Parsed<float>(text)) << text;
    }
}

TEST(ParseNumber, RefusesWhatIsTooLargeForTheType)
{
    EXPECT_EQ(1.7976931348623157e308, Parsed<double>("1.7976931348623157e308"));
    EXPECT_EQ(std::nullopt, Parsed<double>("1.7976931348623159e308"));
    EXPECT_EQ(std::nullopt, Parsed<double>("1e999"));
    EXPECT_EQ(std::nullopt, Parsed<double>("-1e+999"));
    EXPECT_EQ(std::nullopt, Parsed<double>("1e99999999999999999999"));

    EXPECT_EQ(3.4028234663852886e38F, Parsed<float>("3.4028234663852886e38"));
    EXPECT_EQ(std::nullopt, Parsed<float>("3.41e38"));
    EXPECT_EQ(std::nullopt, Parsed<float>("-1e39"));
    EXPECT_EQ(std::nullopt, Parsed<float>("1e999"));
    EXPECT_EQ(std::nullopt, Parsed<float>(std::string(250, '9')));
}

TEST(ParseNumber, TakesWhatIsTooSmallForTheTypeAsZero)
{
    EXPECT_EQ(0.0, Parsed<double>("1e-999"));
    EXPECT_EQ(0.0, Parsed<double>("-1e-999"));
    EXPECT_EQ(0.0, Parsed<double>("0.0e-999"));
    EXPECT_EQ(0.0, Parsed<double>("1e-99999999999999999999"));
    EXPECT_EQ(0.0, Parsed<double>("0." + std::string(240, '0') + "1e-100"));

    EXPECT_EQ(0.0F, Parsed<float>("1e-60"));
    EXPECT_EQ(0.0F, Parsed<float>("1e-999"));
    EXPECT_EQ(0.0F, Parsed<float>("0." + std::string(240, '0') + "1"));
}

TEST(ParseNumber, TakesAZeroWithAnyExponentAsZero)
{
    EXPECT_EQ(0.0, Parsed<double>("0e999"));
    EXPECT_EQ(0.0, Parsed<double>("0.0e99999999999999999999"));
    EXPECT_EQ(0.0F, Parsed<float>("0.000000e999"));
}

TEST(ParseNumber, KeepsTheSmallestNumbersOfTheType)
{
    EXPECT_EQ(5e-324, Parsed<double>("4.9406564584124654e-324"));
    EXPECT_EQ(2.2250738585072014e-308, Parsed<double>("2.2250738585072014e-308"));
    EXPECT_EQ(std::numeric_limits<float>::denorm_min(), Parsed<float>("1.401298464324817e-45"));
    EXPECT_EQ(std::numeric_limits<float>::min(), Parsed<float>("1.1754943508222875e-38"));
}

TEST(ParseNumber, RoundsToTheNearestOfTheType)
{
    EXPECT_EQ(0.07999999821186066, double{*Parsed<float>("0.080000")});
    EXPECT_EQ(0.10000000149011612, double{*Parsed<float>("0.100000")});
    EXPECT_EQ(16777216.0F, Parsed<float>("16777217"));
    EXPECT_EQ(9007199254740992.0, Parsed<double>("9007199254740993"));
}

TEST(ParseStoredNumber, SkipsBlanksAndTakesOneSign)
{
    EXPECT_EQ(0.07999999821186066, Stored("0.080000"));
    EXPECT_EQ(-12.5, Stored(" \t -12.5"));
    EXPECT_EQ(12.5, Stored(" +12.5"));
    EXPECT_EQ(0.5, Stored("+.5"));
}

TEST(ParseStoredNumber, LeavesTheValueWhereThereIsNoNumberOrItIsTooLarge)
{
    for (const char* text :
         {"", " \t", "+", "-", "+-1", "-+1", "++1", "--1", "- 1", "+ 1", "\n1", "nan", "1e39", "-1e400"})
        EXPECT_EQ(std::nullopt, Stored(text)) << text;
}

TEST(PrintNumber, WritesFixedNotation)
{
    EXPECT_EQ("0.080000", Printed(0.08, 6));
    EXPECT_EQ("135.000000", Printed(135.0, 6));
    EXPECT_EQ("10000000.000000", Printed(1e7, 6));
    EXPECT_EQ("-12.5000", Printed(-12.5, 4));
    EXPECT_EQ("0", Printed(0.0, 0));
}

TEST(PrintNumber, RoundsTheExactValue)
{
    EXPECT_EQ("0.1250", Printed(0.125, 4));
    EXPECT_EQ("0.12", Printed(0.125, 2)) << "a tie goes to the even digit";
    EXPECT_EQ("2", Printed(2.5, 0));
    EXPECT_EQ("4", Printed(3.5, 0));
    EXPECT_EQ("1.00", Printed(0.999, 2));
    EXPECT_EQ("0.0000", Printed(0.00004, 4));
    EXPECT_EQ("-0.0000", Printed(-0.00004, 4));
    EXPECT_EQ("0.1000000000000000055511151231257827021181583404541", Printed(0.1, 49));
}

TEST(PrintNumber, HoldsEveryDoubleAtEveryPrecision)
{
    const std::string whole = Printed(1.7976931348623157e308, 0);
    EXPECT_EQ(309U, whole.size());
    EXPECT_EQ("17976931348623157", whole.substr(0, 17));
    EXPECT_EQ(std::string::npos, whole.find('.'));
    EXPECT_EQ(whole + "." + std::string(50, '0'), Printed(1.7976931348623157e308, number_text::kMaxDecimals));
    EXPECT_EQ("-" + whole + "." + std::string(50, '0'), Printed(-1.7976931348623157e308, number_text::kMaxDecimals));
    EXPECT_EQ("0." + std::string(50, '0'), Printed(5e-324, number_text::kMaxDecimals));
}

} // namespace
