// The operator "^" of real numbers.
#pragma once

/// `base` to the power of `exponent`, rounded to the nearest double, the same on every platform. What is not finite,
/// and powers of zero, are as std::pow has them; a negative base with a fractional exponent yields no number.
double PowerOf(double base, double exponent);
