#include "records/shown_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "PelmarDlgs/settings_values.h"

namespace pelmar {
namespace {

/// Whatever a record holds: what is too large for single precision is shown as the largest.
std::string Printed(double number)
{
    const auto single = static_cast<float>(std::clamp(number, -kUnbounded, kUnbounded));
    std::array<char, 64> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), single, std::chars_format::fixed);
    return {text.data(), end};
}

} // namespace

std::string ShownReal(double number)
{
    return Printed(std::abs(number) < 5e-10 ? 0.0 : number);
}

std::string ShownRange(const Range& range)
{
    const bool isBoundBelow = range.low > -kUnbounded;
    const bool isBoundAbove = range.high < kUnbounded;
    if (isBoundBelow && isBoundAbove)
        return "от " + Printed(range.low) + " до " + Printed(range.high);
    if (isBoundBelow)
        return "не меньше " + Printed(range.low);
    return isBoundAbove ? "не больше " + Printed(range.high) : "";
}

std::string ShownUnit(const Option& option, int units, bool isScaled)
{
    switch (option.kind) {
    case OptionKind::Angle:
        return "°";
    case OptionKind::Percent:
        return "%";
    case OptionKind::Length:
    case OptionKind::Feed:
        break;
    default:
        return "";
    }
    if (option.scaling == Scaling::WhileConstant && !isScaled)
        return "× R";
    const std::string length = units == kInch ? "дюйм" : "мм";
    return option.kind == OptionKind::Feed ? length + "/мин" : length;
}

bool IsSameNumber(double one, double other)
{
    constexpr double kStoredStep = 5.1e-7; // half of the sixth decimal
    constexpr double kSingleStep = 5e-7;   // of the value, some steps of single precision
    return std::abs(one - other) <= std::max(kStoredStep, kSingleStep * std::max(std::abs(one), std::abs(other)));
}

} // namespace pelmar
