#include "number_model.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

size_t DigitsAt(const std::string& text, size_t at)
{
    size_t end = at;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9')
        ++end;
    return end - at;
}

bool StandsAt(const std::string& text, size_t at, char character)
{
    return at < text.size() && text[at] == character;
}

/// How long the exponent at `at` is: 0 where there is none or it lacks its digits.
size_t ExponentAt(const std::string& text, size_t at)
{
    if (!StandsAt(text, at, 'e') && !StandsAt(text, at, 'E'))
        return 0;
    const size_t sign = StandsAt(text, at + 1, '+') || StandsAt(text, at + 1, '-') ? 1 : 0;
    const size_t digits = DigitsAt(text, at + 1 + sign);
    return digits == 0 ? 0 : 1 + sign + digits;
}

/// The number that the text starts with; empty where there is none.
std::string NumberOf(std::string_view view)
{
    const std::string text(view);
    const size_t sign = StandsAt(text, 0, '-') ? 1 : 0;
    const size_t digits = DigitsAt(text, sign);
    size_t end = sign + digits;
    size_t decimals = 0;
    if (StandsAt(text, end, '.')) {
        decimals = DigitsAt(text, end + 1);
        end += 1 + decimals;
    }
    if (digits + decimals == 0)
        return "";
    return text.substr(0, end + ExponentAt(text, end));
}

template <class Real> std::optional<Real> IfFinite(Real value)
{
    if (std::isinf(value))
        return std::nullopt;
    return value;
}

} // namespace

std::optional<double> number_model::AsDouble(std::string_view text)
{
    const std::string number = NumberOf(text);
    if (number.empty())
        return std::nullopt;
    return IfFinite(std::strtod(number.c_str(), nullptr));
}

std::optional<float> number_model::AsFloat(std::string_view text)
{
    const std::string number = NumberOf(text);
    if (number.empty())
        return std::nullopt;
    return IfFinite(std::strtof(number.c_str(), nullptr));
}

std::optional<float> number_model::Stored(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    const bool isNegative = !text.empty() && text.front() == '-';
    const bool hasSign = isNegative || (!text.empty() && text.front() == '+');
    if (hasSign)
        text.remove_prefix(1);
    if (!text.empty() && text.front() == '-')
        return std::nullopt; // one sign at the most
    const std::optional<float> magnitude = AsFloat(text);
    return magnitude && isNegative ? -*magnitude : magnitude;
}

std::string number_model::Printed(double value, int decimals)
{
    char text[512];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return {text, static_cast<size_t>(length)};
}
