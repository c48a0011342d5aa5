// Real numbers as text, the same whatever the process's locale.
#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

namespace number_text {

/// How many decimals of a real a settings file gets.
constexpr int kStoredDecimals = 6;

/// Whether a number that is out of the type's range is so because it is too small: its exponent says it. (Texts of up
/// to 255 characters hold too few digits to leave the range of a double without an exponent.)
inline bool HasNegativeExponent(std::string_view number)
{
    const size_t exponent = number.find_first_of("eE");
    return exponent != std::string_view::npos && exponent + 1 < number.size() && number[exponent + 1] == '-';
}

/// Reads the decimal number that `text` starts with: digits with an optional sign "-", fraction and exponent. False
/// where there is none or it is too large for the type; what is too small is 0. At most 255 characters are meant.
template <class Real> bool Parse(std::string_view text, Real& value)
{
    const size_t first = !text.empty() && text.front() == '-' ? 1 : 0;
    const bool isNumber = first < text.size() && (text[first] == '.' || (text[first] >= '0' && text[first] <= '9'));
    if (!isNumber)
        return false;
    Real parsed{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error == std::errc{}) {
        value = parsed;
        return std::isfinite(parsed);
    }
    if (error != std::errc::result_out_of_range)
        return false;
    if constexpr (!std::is_same_v<Real, double>) {
        double wide = 0;
        if (!Parse(text, wide) || std::abs(wide) > double{std::numeric_limits<Real>::max()})
            return false;
        value = static_cast<Real>(wide);
        return true;
    }
    if (!HasNegativeExponent(text.substr(0, static_cast<size_t>(end - text.data()))))
        return false;
    value = Real{0};
    return true;
}

/// Reads the real that a stored text starts with, after blanks, tabs and one sign, in single precision. False, and the
/// value as it was, where there is none or it is too large.
inline bool ParseStored(std::string_view text, double& value)
{
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return false;
    text.remove_prefix(first);
    if (text.front() == '+' && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    float single = 0;
    if (!Parse(text, single))
        return false;
    value = double{single};
    return true;
}

constexpr int kMaxDecimals = 50;

/// Room for every double in fixed notation: a sign, 309 digits, the point, the decimals and a terminator.
using FixedBuffer = std::array<char, 1 + 309 + 1 + kMaxDecimals + 1>;

/// Writes `value` as "%.*f" does in the C locale and ends it with a terminator. `decimals`: 0 to kMaxDecimals.
inline std::string_view Print(FixedBuffer& buffer, double value, int decimals)
{
    char* const last = buffer.data() + buffer.size() - 1;
    const auto [end, error] = std::to_chars(buffer.data(), last, value, std::chars_format::fixed, decimals);
    *end = '\0';
    return {buffer.data(), static_cast<size_t>(end - buffer.data())};
}

} // namespace number_text
