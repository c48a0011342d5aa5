// The C libraries' own powers are off by a unit in the last place or by many, each in other cases. `long double` is no
// way out: it is as precise as the compiler, the library and the host's setting of the processor let it be. So the
// power is calculated here, in twice the precision of a double, and with nothing but doubles.
#include "expr/power.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace {
/// The sum of two doubles, of which the second is at most half a unit in the last place of the first.
struct Wide {
    constexpr Wide(double value = 0, double rest = 0) : high(value), low(rest) {}

    double high;
    double low;
};

/// Nothing is rounded off.
constexpr Wide ExactSum(double left, double right)
{
    const double sum = left + right;
    const double added = sum - left;
    return {sum, (left - (sum - added)) + (right - added)};
}

/// The number without its lower 27 bits.
constexpr double UpperHalf(double value)
{
    return std::bit_cast<double>(std::bit_cast<uint64_t>(value) & ~uint64_t{0x7FFFFFF});
}

constexpr Wide ExactProduct(double left, double right)
{
    const double upperLeft = UpperHalf(left);
    const double upperRight = UpperHalf(right);
    const double lowerLeft = left - upperLeft;
    const double lowerRight = right - upperRight;
    const Wide first = ExactSum(upperLeft * upperRight, upperLeft * lowerRight);
    const Wide second = ExactSum(first.high, lowerLeft * upperRight);
    return {second.high, first.low + second.low + lowerLeft * lowerRight};
}

constexpr Wide operator+(Wide left, Wide right)
{
    const Wide sum = ExactSum(left.high, right.high);
    return ExactSum(sum.high, sum.low + (left.low + right.low));
}

constexpr Wide operator*(Wide left, Wide right)
{
    const Wide product = ExactProduct(left.high, right.high);
    return ExactSum(product.high, product.low + (left.high * right.low + left.low * right.high));
}

constexpr Wide operator/(Wide left, Wide right)
{
    const double quotient = left.high / right.high;
    const Wide rest = left + right * -quotient;
    return ExactSum(quotient, rest.high / right.high);
}

constexpr Wide kLogOf2{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

/// At n, 1/n.
constexpr std::array<Wide, 44> kReciprocals = [] {
    std::array<Wide, 44> reciprocals;
    for (size_t n = 1; n < reciprocals.size(); ++n)
        reciprocals[n] = Wide(1) / static_cast<double>(n);
    return reciprocals;
}();

/// The natural logarithm of a positive, finite number.
Wide Log(double value)
{
    constexpr double kRootOfHalf = 0x1.6a09e667f3bcdp-1;
    int exponent = 0;
    double fraction = std::frexp(value, &exponent);
    if (fraction < kRootOfHalf) {
        fraction *= 2;
        --exponent;
    }
    // log(x) = 2 s (1 + s^2/3 + s^4/5 + ...), s = (x - 1)/(x + 1). Here s is at most 0.172 and its 44th power nothing.
    const Wide s = Wide(fraction - 1) / ExactSum(fraction, 1);
    const Wide square = s * s;
    Wide sum = 0;
    for (size_t n = 43; n > 1; n -= 2)
        sum = sum * square + kReciprocals[n];
    return kLogOf2 * exponent + s * (sum * square + 1) * 2;
}

/// (1 + `tail`) times two to the power of `exponent`, rounded once. What is as near as `hair` to halfway between two
/// doubles is taken to be there, because exact powers are, and goes to the even one.
double Rounded(Wide tail, int exponent, double hair)
{
    const double leastOfFullPrecision = std::ldexp(std::numeric_limits<double>::min(), -exponent);
    const double shift = 1 + tail.high < leastOfFullPrecision ? leastOfFullPrecision : 0; // moves what is lost out
    const Wide start = ExactSum(1, shift);
    const Wide sum = ExactSum(start.high, tail.high);
    const Wide rest = Wide(start.low) + sum.low + tail.low;
    const double next = std::nextafter(sum.high, rest.high < 0 ? 0 : std::numeric_limits<double>::infinity());
    const double half = (next - sum.high) / 2;
    const double beyondHalf = (rest + -half).high;
    double nearest = (beyondHalf > 0) == (half > 0) ? next : sum.high;
    if (std::abs(beyondHalf) <= hair)
        nearest = sum.high + half;
    return std::ldexp(nearest - shift, exponent);
}

/// e to the power of `value`, which is at most 1000 in size.
double Exp(Wide value)
{
    const double exponent = std::round(value.high / kLogOf2.high);
    const Wide rest = value + kLogOf2 * -exponent;
    // exp(x) = 1 + x (1 + x/2 (1 + x/3 (1 + ...))). Here x is at most 0.347 in size.
    Wide sum = 1;
    for (size_t n = 24; n > 1; --n)
        sum = sum * (rest * kReciprocals[n]) + 1;
    const double hair = std::abs(value.high) * 0x1p-98; // the errors stay below a thirtieth of it
    return Rounded(rest * sum, static_cast<int>(exponent), hair);
}
} // namespace

double PowerOf(double base, double exponent)
{
    constexpr double kBeyondDoubles = 800; // in size, as a logarithm
    const double roughly = std::pow(base, exponent);
    const double size = std::abs(base);
    const double logarithm = exponent * std::log(size);
    const bool isNumber = logarithm != 0 && std::abs(logarithm) < kBeyondDoubles;
    if (!isNumber || std::isnan(roughly))
        return roughly;
    return std::copysign(Exp(Log(size) * exponent), roughly);
}
