// What frame/number_text.h promises, by the C library's means: the number is found by hand, one character class after
// the other, and strtod, strtof and printf in the C locale say what it is worth and how it is written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace number_model {

/// The number that the text starts with. Nothing where there is none or it is too large for the type.
std::optional<double> AsDouble(std::string_view text);
std::optional<float> AsFloat(std::string_view text);

/// The same of a stored text: blanks, tabs and one sign may stand first.
std::optional<float> Stored(std::string_view text);

std::string Printed(double value, int decimals);

} // namespace number_model
