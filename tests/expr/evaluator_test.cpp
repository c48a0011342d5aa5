#include "PelmarDlgs/evaluator.h"

#include <charconv>
#include <cmath>
#include <cstdint>
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

// The C libraries fail here and there; the DLL's fails elsewhere than this machine's.
TEST_F(Evaluator, RoundsAPowerToTheNearestDouble)
{
    struct Row {
        const char* text;
        double nearest; ///< by exact arithmetic
    };
    const Row rows[] = {
        // whole exponents
        {"10^-3", 0x1.0624dd2f1a9fcp-10},
        {"10^-1", 0x1.999999999999ap-4},
        {"10^22", 0x1.0f0cf064dd592p+73},
        {"10^23", 0x1.52d02c7e14af6p+76},
        {"10^-22", 0x1.e392010175ee6p-74},
        {"10^-23", 0x1.82db34012b251p-77},
        {"10^126", 0x1.7a2ecc414a03fp+418},
        {"10^210", 0x1.8557f31326bbbp+697},
        {"10^-152", 0x1.0c27fa028b0efp-505},
        {"10^-283", 0x1.dbd86cd6238d9p-941},
        {"10^-307", 0x1.1fa182c40c60dp-1020},
        {"1.1^10", 0x1.4bffc0c03023ep+1},
        {"0.1^3", 0x1.0624dd2f1a9fdp-10},
        {"25.4^-2", 0x1.9652f27e2ec26p-10},
        {"1.5^30", 0x1.76838794f172p+17},
        {"-3^33", -0x1.3bfefa65abb83p+52},
        {"-20^23", -0x1.52d02c7e14af6p+99},
        {"205^7", 0x1.b070fcd6ba952p+53},
        {"-46^-21", -0x1.00ec97c1492abp-116},
        {"761^37", 0x1.1d01808547a5bp+354},
        {"-569^-20", 0x1.f009676a8cdfdp-184},
        {"745^-25", 0x1.63394de084ffdp-239},
        {"908^-51", 0x1.cc2bd94646eabp-502},
        {"-304^-57", -0x1.d346b4c0d01f6p-471},
        {"47.27^5", 0x1.c2269f6bac5edp+27},
        {"-55.495^-26", 0x1.45f6ac53031d2p-151},
        {"16.097^-139", 0x1.ba0219213b502p-558},
        {"-20.944^-220", 0x1.739e576e683cfp-966},
        {"-36.066^161", -0x1.b89d217f49dbdp+832},
        {"13.724^-260", 0x1.787abc8a315e9p-983},
        // halfway between two doubles, to the even one
        {"3^34", 0x1.d9fe779881944p+53},
        {"5^23", 0x1.52d02c7e14af6p+53},
        {"7^19", 0x1.43f9e0d2d93ecp+53},
        {"94906267^2", 0x1.0000007c84becp+53},
        {"-208065^3", -0x1.00011add69b2p+53},
        {"43291044225^1.5", 0x1.00011add69b2p+53},
        // fractional exponents
        {"2^0.5", 0x1.6a09e667f3bcdp+0},
        {"2^-0.5", 0x1.6a09e667f3bcdp-1},
        {"10^0.1", 0x1.4248ef8fc2604p+0},
        {"0.001^0.3333333333333333", 0x1.999999999999bp-4},
        {"27^0.3333333333333333", 0x1.8p+1},
        {"5.1^-2.6", 0x1.d9fcf6e482feep-7},
        {"79.86^-0.9", 0x1.3dec9743297a9p-6},
        {"85.9692^-4.12", 0x1.7099ff5eff0dbp-27},
        {"53.5^3.462", 0x1.d624d924f67e3p+19},
        {"94^4.43", 0x1.069e843a0dbf3p+29},
        {"84^0.75", 0x1.bbf1fe2792414p+4},
        {"651^-1.5", 0x1.f9080c9c5d4a2p-15},
        {"384^0.25", 0x1.1b4f819c2ff81p+2},
        {"112^1.5", 0x1.2852fb49899cdp+10},
        // near one: halfway but for the square of the difference, and with large exponents
        {"0.99999999999992^-1", 0x1.0000000000169p+0},
        {"1.0000000000000184^1.5", 0x1.000000000007dp+0},
        {"0.9999999999999999^0.5", 0x1.fffffffffffffp-1},
        {"0.9999999999999999^-1", 0x1.0000000000001p+0},
        {"0.9999999999999999^-217", 0x1.000000000006dp+0},
        {"1.000001^123456789", 0x1.145c50da9b0bp+178},
        {"0.999999^-123456789", 0x1.14650d3c82aaep+178},
        {"1.0000000000000002^3.0e18", 0x1.0502174a9bef1p+961},
        {"0.9999999999999999^6.0e18", 0x1.f62d04dd3d7e1p-962},
        {"-1.0000000000000002^9007199254740991", -0x1.d8e64b8d4ddaap+2},
        {"1.5^1.0e-17", 0x1p+0},
        {"0.5^1.0e-300", 0x1p+0},
        // the largest and the smallest
        {"2^1023", 0x1p+1023},
        {"2^1023.9999999999999", 0x1.ffffffffffd3ap+1023},
        {"1.7976931348623157e308^1", 0x1.fffffffffffffp+1023},
        {"10^308", 0x1.1ccf385ebc8ap+1023},
        {"2^-1022", 0x1p-1022},
        {"2^-1022.0000000000001", 0x1.ffffffffffd3ap-1023},
        {"2^-1073.5", 0x1p-1074},
        {"2^-1074", 0x1p-1074},
        {"10^-310", 0x1.2688b70e62bp-1030},
        {"24^-223", 0x0.bbd719e7ad98dp-1022},
        {"56^-176", 0x0.efc63deac255bp-1022},
        {"105^-153", 0x0.0697395752f21p-1022},
        {"10^-317.3", 0x1.ef51cp-1055},
        {"10^-323", 0x1p-1073},
        {"0.3^619", 0.0},
        {"-7^-383", -0.0},
        {"4.9406564584124654e-324^1", 0x1p-1074},
        {"4.9406564584124654e-324^0.5", 0x1p-537},
        {"2^-1074.9", 0x1p-1074},
        {"2^-1075", 0.0},
        {"2^-1080", 0.0},
        {"10^-324", 0.0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.nearest, Real(row.text)) << row.text;
}

TEST_F(Evaluator, RaisesTenToWhatAnExponentStandsFor)
{
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const std::string text = std::to_string(exponent);
        EXPECT_EQ(Real(("1.0e" + text).c_str()), Real(("10^" + text).c_str())) << text;
    }
}

TEST_F(Evaluator, RaisesToWhatProductsQuotientsAndRootsAre)
{
    std::mt19937 random;
    for (int round = 0; round < 5000; ++round) {
        const std::string number = std::to_string(random()) + "." + std::to_string(random());
        const double value = Real(number.c_str()).value();
        ASSERT_EQ(value, Real((number + "^1").c_str())) << number;
        ASSERT_EQ(value * value, Real((number + "^2").c_str())) << number;
        ASSERT_EQ(1 / value, Real((number + "^-1").c_str())) << number;
        const uint64_t root = random() % 67108864;
        ASSERT_EQ(static_cast<double>(root), Real((std::to_string(root * root) + "^0.5").c_str())) << root;
    }
}

TEST_F(Evaluator, RaisesZeroAndOneAndWhatIsNotFinite)
{
    EXPECT_EQ(1.0, Real("0^0"));
    EXPECT_EQ(0.0, Real("0^0.001"));
    EXPECT_EQ(0.0, Real("0^1.0e308"));
    EXPECT_EQ(1.0, Real("1^1.0e308"));
    EXPECT_EQ(1.0, Real("-1^1.0e308"));
    EXPECT_EQ(-1.0, Real("-1^9007199254740991"));
    EXPECT_EQ(1.0, Real("1.0e308^0"));
    EXPECT_EQ(1.0, Real("1.0e308^5.0e-324"));
    EXPECT_EQ(1.0, Real("(1.0e308*10)^0"));
    EXPECT_EQ(0.0, Real("(1.0e308*10)^-1"));
    EXPECT_EQ(1.0, Real("1^(1.0e308*10)"));
    EXPECT_EQ(0.0, Real("2^-1.0e308"));
    for (const char* text :
         {"0^-1", "0^-0.001", "-8^0.3333333333333333", "2^1024", "1.7976931348623157e308^1.0000000001", "2^1.0e308",
          "(1.0e308*10)^0.5", "(1.0e308*10-1.0e308*10)^2"})
        EXPECT_EQ(std::nullopt, Real(text)) << text;
}

TEST_F(Evaluator, RaisesRealsInIntegerModeAsInRealMode)
{
    EXPECT_EQ(14142, Whole("2^0.5*10000"));
    EXPECT_EQ(1000, Whole("10^-3.0*1000000"));
    EXPECT_EQ(124, Whole("0.2^-3")) << "0.2 is a little more than a fifth";
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
    ExpectBothFail("7/(1/0)");
    ExpectBothFail("7.0/(1.0/0)");
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
