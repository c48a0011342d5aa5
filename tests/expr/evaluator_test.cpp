#include "PelmarDlgs/evaluator.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr double kBefore = 12.5; // what a result holds before a call
constexpr int kWholeBefore = 12;

/// Both modes, through both pairs of functions. A failure must come with its stated result, and does not count as a
/// value then.
class Evaluator : public testing::Test {
protected:
    // An integer mode that was left on is the business of one test only.
    void SetUp() override { Real("0"); }
    void TearDown() override { Real("0"); }

    static std::optional<double> Real(const char* text)
    {
        double result = kBefore;
        const int status = EvalExpressionReal(text, &result);
        if (status == 0)
            return result;
        EXPECT_EQ(-1, status) << text;
        EXPECT_EQ(0.0, result) << text;
        return std::nullopt;
    }

    static std::optional<int> Whole(const char* text)
    {
        int result = kWholeBefore;
        const int status = EvalExpressionInt(text, &result);
        if (status == 0)
            return result;
        EXPECT_EQ(-1, status) << text;
        EXPECT_EQ(0, result) << text;
        return std::nullopt;
    }

    static std::optional<double> RealField(const char* text)
    {
        double result = kBefore;
        const int status = EvalFieldReal(text, &result);
        EXPECT_TRUE(status == 0 || status == 1) << text;
        return status ? std::optional(result) : std::nullopt;
    }

    static std::optional<int> WholeField(const char* text)
    {
        int result = kWholeBefore;
        const int status = EvalFieldInt(text, &result);
        EXPECT_TRUE(status == 0 || status == 1) << text;
        return status ? std::optional(result) : std::nullopt;
    }

    static void ExpectBothFail(const std::string& text)
    {
        EXPECT_EQ(std::nullopt, Real(text.c_str())) << text.substr(0, 80);
        EXPECT_EQ(std::nullopt, Whole(text.c_str())) << text.substr(0, 80);
    }
};

std::string Times(size_t count, const std::string& text)
{
    std::string all;
    for (size_t index = 0; index < count; ++index)
        all += text;
    return all;
}

// ---- numbers ----

TEST_F(Evaluator, ReadsDecimalNumbers)
{
    EXPECT_EQ(0.0, Real("0"));
    EXPECT_EQ(7.0, Real("007"));
    EXPECT_EQ(0.145, Real("0.145"));
    EXPECT_EQ(123456789.0, Real("123456789"));
    EXPECT_EQ(0, Whole("0"));
    EXPECT_EQ(7, Whole("007"));
    EXPECT_EQ(2147483647, Whole("2147483647"));
}

TEST_F(Evaluator, ReadsHexadecimalNumbersInBothModes)
{
    EXPECT_EQ(31.0, Real("0x1F"));
    EXPECT_EQ(31, Whole("0x1F"));
    EXPECT_EQ(43981.0, Real("0XabCD"));
    EXPECT_EQ(43981, Whole("0XabCD"));
    EXPECT_EQ(0.0, Real("0x"));
    EXPECT_EQ(0, Whole("0x"));
    EXPECT_EQ(2.0, Real("1+0x+1"));
}

TEST_F(Evaluator, EndsAHexadecimalNumberAtTheFirstOtherCharacter)
{
    EXPECT_EQ(15.0, Real("0xFG"));
    EXPECT_EQ(15.0, Real("0xfg"));
    EXPECT_EQ(1.0, Real("0x1.5"));
    EXPECT_EQ(0.0, Real("0 x1F"));
    EXPECT_EQ(10.0, Real("10x2"));
}

TEST_F(Evaluator, WrapsWholeNumbersAt32Bits)
{
    EXPECT_EQ(-2147483647 - 1, Whole("2147483648"));
    EXPECT_EQ(0, Whole("4294967296"));
    EXPECT_EQ(5, Whole("4294967301"));
    EXPECT_EQ(-1, Whole("0xFFFFFFFF"));
    EXPECT_EQ(1, Whole("0x100000001"));
}

TEST_F(Evaluator, TakesAHexadecimalNumberAsSigned32BitsInRealModeToo)
{
    EXPECT_EQ(-1.0, Real("0xFFFFFFFF"));
    EXPECT_EQ(-2147483648.0, Real("0x80000000"));
    EXPECT_EQ(1.0, Real("0x100000001"));
    EXPECT_EQ(-559038737.0, Real(("0x" + Times(1000, "deadbeef")).c_str()));
}

TEST_F(Evaluator, DoesNotWrapDecimalNumbersInRealMode)
{
    EXPECT_EQ(2147483648.0, Real("2147483648"));
    EXPECT_EQ(1e20, Real("100000000000000000000"));
}

TEST_F(Evaluator, ReadsFractionsAsRealsInBothModes)
{
    EXPECT_EQ(1.0, Real("1."));
    EXPECT_EQ(0.5, Real(".5"));
    EXPECT_EQ(2.0, Real(".5*4"));
    EXPECT_EQ(2, Whole(".5*4"));
    EXPECT_EQ(3, Whole("7.0/2"));
    EXPECT_EQ(3, Whole("7/2."));
    EXPECT_EQ(0.1 + 0.2, Real("0.1+0.2"));
}

TEST_F(Evaluator, ConvertsFractionsWithTheNearestDouble)
{
    EXPECT_EQ(0.1, Real("0.1"));
    EXPECT_EQ(0.3, Real("0.299999999999999988897769753748434595763683319091796875"));
    EXPECT_EQ(9007199254740993.0, Real("9007199254740993.0"));
    EXPECT_EQ(1.7976931348623157e308, Real("1.7976931348623157e308"));
    EXPECT_EQ(5e-324, Real("4.9406564584124654e-324"));
}

/// Short ones, which most are, are read in another way than long ones.
TEST_F(Evaluator, ConvertsFractionsOfAnyLengthWithTheNearestDouble)
{
    std::mt19937 random;
    const auto oneOf = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (int digits = 1 + oneOf(20); digits > 0; --digits)
            text += static_cast<char>('0' + oneOf(10));
        text.insert(static_cast<size_t>(oneOf(static_cast<int>(text.size()) + 1)), ".");
        double nearest = 0;
        std::from_chars(text.data(), text.data() + text.size(), nearest);
        ASSERT_EQ(nearest, Real(text.c_str())) << text;
    }
}

TEST_F(Evaluator, RoundsAWholeNumberOfManyDigitsDigitByDigit)
{
    EXPECT_EQ(999999999999999.0, Real("999999999999999"));
    EXPECT_EQ(9007199254740992.0, Real("9007199254740993"));
    EXPECT_EQ(0x1.61ee6fb8d154ep+56, Real("99622830388368595"));
    EXPECT_EQ(0x1.b14e0cd5f1ad0p+69, Real("999133036148110045772"));
    EXPECT_EQ(0x1.efbaca6859df7p+81, Real("4682034176848787065247069"));
}

TEST_F(Evaluator, ReadsAnExponentOnlyAfterAFraction)
{
    EXPECT_EQ(150.0, Real("1.5e2"));
    EXPECT_EQ(150, Whole("1.5E+2"));
    EXPECT_EQ(0.015, Real("1.5e-2"));
    EXPECT_EQ(100.0, Real("1.e2"));
    EXPECT_EQ(50.0, Real(".5e2"));
    EXPECT_EQ(1.0, Real("1e3"));
    EXPECT_EQ(1, Whole("1e3"));
}

TEST_F(Evaluator, TakesAnExponentWithoutDigitsAsNone)
{
    EXPECT_EQ(1.5, Real("1.5e"));
    EXPECT_EQ(1.5, Real("1.5e+"));
    EXPECT_EQ(1.5, Real("1.5E-"));
    EXPECT_EQ(3.5, Real("1.5e+ +2"));
    EXPECT_EQ(1, Whole("1.5e"));
}

TEST_F(Evaluator, RefusesAPointWithoutDigits)
{
    ExpectBothFail(".");
    ExpectBothFail(".e5");
    ExpectBothFail("2*.");
    EXPECT_EQ(1.0, Real("1 .")) << "what follows is ignored";
}

TEST_F(Evaluator, RefusesARealThatIsTooLargeAndTakesOneThatIsTooSmallAsZero)
{
    ExpectBothFail("1.0e999");
    ExpectBothFail("1.7976931348623159e308");
    ExpectBothFail("1+1.0e99999999999999999999");
    EXPECT_EQ(0.0, Real("1.0e-999"));
    EXPECT_EQ(0.0, Real("1.0e-99999999999999999999"));
    EXPECT_EQ(0, Whole("1.0e-999"));
    EXPECT_EQ(1.0, Real("1+.0e-999"));
}

TEST_F(Evaluator, TakesNumbersOfUpTo255Characters)
{
    EXPECT_EQ(1.0, Real((Times(254, "0") + "1").c_str()));
    EXPECT_EQ(1, Whole((Times(254, "0") + "1").c_str()));
    EXPECT_EQ(1.0, Real(("1." + Times(253, "0")).c_str()));
    ExpectBothFail(Times(255, "0") + "1");
    ExpectBothFail("1." + Times(254, "0"));
    ExpectBothFail("1.0e" + Times(252, "0"));
    ExpectBothFail(Times(1000, "9"));
    ExpectBothFail("." + Times(1000, "9"));
    ExpectBothFail("1+" + Times(1000, "9"));
}

TEST_F(Evaluator, HoldsTheLargestNumberWithoutFraction)
{
    const std::optional<double> value = Real(Times(255, "9").c_str());
    ASSERT_TRUE(value);
    EXPECT_NEAR(1.0, *value / 1e255, 1e-12);
}

// ---- blanks, identifiers and other characters ----

TEST_F(Evaluator, SkipsBlanksTabsAndLineFeeds)
{
    EXPECT_EQ(8.0, Real(" \t\n5\n +\t3 "));
    EXPECT_EQ(8, Whole(" \t\n5\n +\t3 "));
    EXPECT_EQ(-5.0, Real("- 5"));
    EXPECT_EQ(3.0, Real("3 4"));
}

TEST_F(Evaluator, DoesNotSkipACarriageReturn)
{
    ExpectBothFail("\r5");
    ExpectBothFail("5+\r3");
    EXPECT_EQ(5.0, Real("5\r+3"));
    ExpectBothFail("\v5");
    ExpectBothFail("\f5");
}

TEST_F(Evaluator, RefusesAnIdentifierAsOperand)
{
    ExpectBothFail("a");
    ExpectBothFail("e3");
    ExpectBothFail("2*pi");
    ExpectBothFail("x_1+2");
    ExpectBothFail(Times(1000, "a"));
    ExpectBothFail("_");
}

TEST_F(Evaluator, RefusesEveryOtherCharacterAsOperand)
{
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (character >= '0' && character <= '9')
            continue;
        ExpectBothFail(std::string(1, character));
        ExpectBothFail(std::string("2*") + character);
    }
}

TEST_F(Evaluator, IgnoresEveryOtherCharacterAfterAnExpression)
{
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (std::string("0123456789.+-*/%^").find(character) != std::string::npos)
            continue;
        const std::string text = std::string("5") + character;
        EXPECT_EQ(5.0, Real(text.c_str())) << code;
        EXPECT_EQ(5, Whole(text.c_str())) << code;
    }
}

TEST_F(Evaluator, IgnoresWhateverFollowsACompleteExpression)
{
    EXPECT_EQ(3.0, Real("3 4"));
    EXPECT_EQ(2.0, Real("2)"));
    EXPECT_EQ(1.0, Real("1e3"));
    EXPECT_EQ(5.0, Real("5 mm"));
    EXPECT_EQ(5.0, Real("5mm"));
    EXPECT_EQ(3, Whole("3 4"));
    EXPECT_EQ(2, Whole("2)"));
    EXPECT_EQ(5, Whole("5 mm"));
    EXPECT_EQ(5.0, Real("5 \xEC\xEC")) << "millimetres in Russian";
    EXPECT_EQ(5.0, Real(("5 " + Times(1000, "m")).c_str()));
    EXPECT_EQ(5.0, Real(("5 " + Times(1000, "9")).c_str()));
    EXPECT_EQ(5.0, Real("2+3(4"));
    EXPECT_EQ(5.0, Real("5,7"));
}

// ---- operators ----

TEST_F(Evaluator, CalculatesInRealMode)
{
    EXPECT_EQ(0.145, Real("1/8+0.02"));
    EXPECT_EQ(100.0, Real("(1+3)*25"));
    EXPECT_EQ(0.25, Real("0.5/2"));
    EXPECT_EQ(3.5, Real("7/2"));
    EXPECT_EQ(3.0, Real("10-4-3"));
    EXPECT_EQ(2.0, Real("100/10/5"));
    EXPECT_EQ(14.0, Real("2+3*4"));
    EXPECT_EQ(20.0, Real("(2+3)*4"));
    EXPECT_EQ(std::sqrt(2.0), Real("2^0.5"));
    EXPECT_EQ(0.5, Real("2^-1"));
}

TEST_F(Evaluator, CalculatesWithWholeNumbersInIntegerMode)
{
    EXPECT_EQ(3, Whole("7/2"));
    EXPECT_EQ(-3, Whole("-7/2"));
    EXPECT_EQ(1, Whole("7%3"));
    EXPECT_EQ(-1, Whole("-7%3"));
    EXPECT_EQ(1, Whole("7%-3"));
    EXPECT_EQ(1024, Whole("2^10"));
    EXPECT_EQ(0, Whole("2^-1"));
    EXPECT_EQ(-1, Whole("(-1)^-1"));
    EXPECT_EQ(1, Whole("0^0"));
    EXPECT_EQ(6, Whole("7/2*2"));
    EXPECT_EQ(2, Whole("0x10%7"));
    EXPECT_EQ(100, Whole("(1+3)*25"));
}

TEST_F(Evaluator, TakesBothAsRealsWhereOneIs)
{
    EXPECT_EQ(7, Whole("7.0/2*2"));
    EXPECT_EQ(6, Whole("7/2*2.0"));
    EXPECT_EQ(1, Whole("1/2+0.5+0.5"));
    EXPECT_EQ(4, Whole("16^0.5"));
}

TEST_F(Evaluator, TruncatesARealResultTowardZero)
{
    EXPECT_EQ(3, Whole("3.999"));
    EXPECT_EQ(-3, Whole("-3.999"));
    EXPECT_EQ(0, Whole("-0.5"));
    EXPECT_EQ(3, WholeField("7.9/2"));
}

TEST_F(Evaluator, WrapsWholeNumberArithmetic)
{
    EXPECT_EQ(-2147483647 - 1, Whole("2147483647+1"));
    EXPECT_EQ(2147483647, Whole("-2147483647-2"));
    EXPECT_EQ(0, Whole("65536*65536"));
    EXPECT_EQ(1, Whole("65537*65537-131072"));
    EXPECT_EQ(-2147483647 - 1, Whole("-2147483648"));
    EXPECT_EQ(-2147483647 - 1, Whole("-(-2147483647-1)"));
}

TEST_F(Evaluator, BindsASignTighterThanAPower)
{
    EXPECT_EQ(4.0, Real("-2^2"));
    EXPECT_EQ(4, Whole("-2^2"));
    EXPECT_EQ(-4.0, Real("-(2^2)"));
    EXPECT_EQ(-4.0, Real("0-2^2"));
    EXPECT_EQ(18.0, Real("2*3^2"));
}

TEST_F(Evaluator, EndsTheExpressionAtASecondPower)
{
    EXPECT_EQ(8.0, Real("2^3^2"));
    EXPECT_EQ(8, Whole("2^3^2"));
    EXPECT_EQ(8.0, Real("2^3^2+1"));
    EXPECT_EQ(9.0, Real("1+2^3^2"));
    ExpectBothFail("(2^3^2)");
}

TEST_F(Evaluator, TakesOneSignBeforeAnOperand)
{
    EXPECT_EQ(-6.0, Real("2*-3"));
    EXPECT_EQ(5.0, Real("2--3"));
    EXPECT_EQ(-1.0, Real("2+-3"));
    EXPECT_EQ(5.0, Real("2++3"));
    EXPECT_EQ(2.0, Real("+2"));
    EXPECT_EQ(2.0, Real("-(-2)"));
    EXPECT_EQ(0.25, Real("2^-2"));
    EXPECT_EQ(-6, Whole("2*-3"));
    EXPECT_EQ(5, Whole("2--3"));
    ExpectBothFail("--2");
    ExpectBothFail("+-2");
    ExpectBothFail("2---3");
    ExpectBothFail("2*--3");
    ExpectBothFail("2^--3");
}

TEST_F(Evaluator, RefusesARemainderOfReals)
{
    EXPECT_EQ(std::nullopt, Real("7%3"));
    EXPECT_EQ(std::nullopt, Real("7%0"));
    EXPECT_EQ(std::nullopt, Whole("7%3.0"));
    EXPECT_EQ(std::nullopt, Whole("7.0%3"));
}

TEST_F(Evaluator, RefusesAZeroDivisor)
{
    ExpectBothFail("7/0");
    ExpectBothFail("7/0.0");
    ExpectBothFail("7.0/0");
    ExpectBothFail("0/0");
    ExpectBothFail("7/(3-3)");
    ExpectBothFail("7/-0.0");
    ExpectBothFail("7/1.0e-999");
    ExpectBothFail("7%0");
    ExpectBothFail("7%(3-3)");
}

TEST_F(Evaluator, RefusesTheQuotientThatDoesNotFit)
{
    EXPECT_EQ(std::nullopt, Whole("(-2147483647-1)/-1"));
    EXPECT_EQ(std::nullopt, Whole("0x80000000/-1"));
    EXPECT_EQ(-1073741824, Whole("(-2147483647-1)/2"));
    EXPECT_EQ(0, Whole("(-2147483647-1)%-1"));
    EXPECT_EQ(2147483647, Whole("-2147483647/-1"));
    EXPECT_EQ(2147483648.0, Real("0x80000000/-1"));
}

TEST_F(Evaluator, RefusesAWholeResultOver32Bits)
{
    EXPECT_EQ(2147483647, Whole("2147483647.9"));
    EXPECT_EQ(std::nullopt, Whole("2147483648.0"));
    EXPECT_EQ(-2147483647 - 1, Whole("-2147483648.9"));
    EXPECT_EQ(std::nullopt, Whole("-2147483649.0"));
    EXPECT_EQ(std::nullopt, Whole("1.0e300"));
    EXPECT_EQ(std::nullopt, Whole("2^31"));
    EXPECT_EQ(-2147483647 - 1, Whole("(-2)^31"));
    EXPECT_EQ(std::nullopt, Whole("10^400"));
    EXPECT_EQ(std::nullopt, Whole("0^-1"));
}

TEST_F(Evaluator, RefusesAResultThatIsNotFinite)
{
    EXPECT_EQ(std::nullopt, Real("10^400"));
    EXPECT_EQ(std::nullopt, Real("1.0e308*10"));
    EXPECT_EQ(std::nullopt, Real("-1.0e308*10"));
    EXPECT_EQ(std::nullopt, Real("1.0e308+1.0e308"));
    EXPECT_EQ(std::nullopt, Real("0^-1"));
    ExpectBothFail("(-1)^0.5");
    ExpectBothFail("1.0e308*10-1.0e308*10");
}

// ---- the form of an expression ----

TEST_F(Evaluator, RefusesWhatLacksAnOperand)
{
    for (const char* text : {"2+", "2-", "2*", "2/", "2%",  "2^",   "+",   "-",   "*2",   "/2",  "%2",
                             "^2", "(",  ")",  "()", "2*(", "2+()", "2*)", "(+)", "2+*3", "2 + "})
        ExpectBothFail(text);
}

TEST_F(Evaluator, RefusesAMissingClosingParenthesis)
{
    for (const char* text : {"(2", "((2)", "(2+3", "(2 3)", "2*(3+4", "(2,3)"})
        ExpectBothFail(text);
}

TEST_F(Evaluator, RefusesATextWithoutATokenOrNoTextAtAll)
{
    for (const char* text : {"", " ", "\t", "\n", "   \t\n  "})
        ExpectBothFail(text);
    EXPECT_EQ(std::nullopt, Real(nullptr));
    EXPECT_EQ(std::nullopt, Whole(nullptr));
    EXPECT_EQ(std::nullopt, RealField(nullptr));
    EXPECT_EQ(std::nullopt, WholeField(nullptr));
}

TEST_F(Evaluator, NestsParentheses256Deep)
{
    const auto nested = [](size_t depth) { return Times(depth, "(") + "7" + Times(depth, ")"); };
    EXPECT_EQ(7.0, Real(nested(256).c_str()));
    EXPECT_EQ(7, Whole(nested(256).c_str()));
    ExpectBothFail(nested(257));
    ExpectBothFail(nested(100000));
    ExpectBothFail(Times(100000, "("));
    ExpectBothFail(Times(100000, "-("));
}

TEST_F(Evaluator, CountsNestingNotParentheses)
{
    EXPECT_EQ(1001.0, Real(("1" + Times(1000, "+(1)")).c_str()));
}

TEST_F(Evaluator, EvaluatesTextsOfAnyLength)
{
    EXPECT_EQ(100001.0, Real(("1" + Times(100000, "+1")).c_str()));
    EXPECT_EQ(1, Whole(("1" + Times(100000, "*1")).c_str()));
}

// ---- the mode ----

TEST_F(Evaluator, LeavesIntegerModeOnAfterABlankText)
{
    for (const char* blank : {"", "  ", "\t\n"}) {
        EXPECT_EQ(std::nullopt, Whole(blank));
        EXPECT_EQ(3.0, Real("7/2"));
        EXPECT_EQ(3.5, Real("7/2")) << "the evaluation before has ended integer mode";
    }
}

TEST_F(Evaluator, LeavesIntegerModeOnAfterABlankField)
{
    EXPECT_EQ(std::nullopt, WholeField("  "));
    EXPECT_EQ(1.0, RealField("7%3"));
    EXPECT_EQ(std::nullopt, RealField("7%3"));
}

TEST_F(Evaluator, LeavesIntegerModeOnWhereTheFirstTokenCannotBeRead)
{
    EXPECT_EQ(std::nullopt, Whole("."));
    EXPECT_EQ(3.0, Real("7/2"));
}

TEST_F(Evaluator, KeepsTheModeThroughABlankTextInRealMode)
{
    EXPECT_EQ(std::nullopt, Whole(""));
    EXPECT_EQ(std::nullopt, Real(""));
    EXPECT_EQ(3.0, Real("7/2"));
}

TEST_F(Evaluator, EndsIntegerModeAtAnyEvaluationWithAToken)
{
    EXPECT_EQ(7, Whole("7"));
    EXPECT_EQ(3.5, Real("7/2"));
    EXPECT_EQ(std::nullopt, Whole("(2"));
    EXPECT_EQ(3.5, Real("7/2"));
    EXPECT_EQ(std::nullopt, Whole(""));
    EXPECT_EQ(std::nullopt, Real("(2"));
    EXPECT_EQ(3.5, Real("7/2"));
}

TEST_F(Evaluator, ConvertsAWholeResultToAReal)
{
    EXPECT_EQ(std::nullopt, Whole(""));
    EXPECT_EQ(-2147483648.0, Real("2147483647+1"));
}

// ---- fields ----

TEST_F(Evaluator, EvaluatesFields)
{
    EXPECT_EQ(0.145, RealField("1/8+0.02"));
    EXPECT_EQ(3, WholeField("7/2"));
    EXPECT_EQ(5.0, RealField(" \t 5"));
    EXPECT_EQ(std::nullopt, RealField("x"));
    EXPECT_EQ(std::nullopt, WholeField("x"));
    EXPECT_EQ(std::nullopt, RealField(""));
}

TEST_F(Evaluator, SetsAFieldsResultToZeroWhereItDoesNotEvaluate)
{
    double real = kBefore;
    int whole = kWholeBefore;
    EXPECT_EQ(0, EvalFieldReal("x", &real));
    EXPECT_EQ(0, EvalFieldInt("x", &whole));
    EXPECT_EQ(0.0, real);
    EXPECT_EQ(0, whole);
}

TEST_F(Evaluator, TakesFieldsOfUpTo255Characters)
{
    const std::string longest = "1+" + Times(252, " ") + "2";
    ASSERT_EQ(255U, longest.size());
    EXPECT_EQ(3.0, RealField(longest.c_str()));
    EXPECT_EQ(3, WholeField(longest.c_str()));
    EXPECT_EQ(std::nullopt, RealField((longest + " ").c_str()));
    EXPECT_EQ(std::nullopt, WholeField((longest + " ").c_str()));
    EXPECT_EQ(std::nullopt, RealField(("5" + Times(100000, " ")).c_str()));
}

TEST_F(Evaluator, DoesNotCountAFieldsLeadingBlanksAndTabs)
{
    EXPECT_EQ(5.0, RealField((Times(200, " \t") + "5").c_str()));
    EXPECT_EQ(5, WholeField((Times(200, " \t") + "5").c_str()));
    EXPECT_EQ(std::nullopt, RealField((Times(255, "\n") + "5").c_str()));
}

TEST_F(Evaluator, DoesNotEvaluateAFieldThatIsTooLong)
{
    const std::string tooLong = "1+" + Times(253, " ") + "2";
    double real = kBefore;
    EXPECT_EQ(0, EvalFieldReal(tooLong.c_str(), &real));
    EXPECT_EQ(kBefore, real);
    int whole = kWholeBefore;
    EXPECT_EQ(0, EvalFieldInt(tooLong.c_str(), &whole));
    EXPECT_EQ(kWholeBefore, whole);

    EXPECT_EQ(std::nullopt, Whole(""));
    EXPECT_EQ(std::nullopt, RealField(tooLong.c_str()));
    EXPECT_EQ(3.0, Real("7/2")) << "an evaluation would have ended integer mode";
}

TEST_F(Evaluator, TakesTheDeepestNestingThatAFieldHolds)
{
    EXPECT_EQ(7.0, RealField((Times(127, "(") + "7" + Times(127, ")")).c_str()));
    EXPECT_EQ(std::nullopt, RealField(Times(255, "(").c_str()));
    EXPECT_EQ(std::nullopt, RealField(Times(5000, "(").c_str()));
}

} // namespace
