// Values as people read them, wherever one stands in a sentence. UTF-8.
#pragma once

#include <string>

#include "records/option.h"

namespace pelmar {

/// A real without needless digits, as precise as files are.
std::string ShownReal(double number);
/// The range of a number; empty where any will do.
std::string ShownRange(const Range& range);
/// What an option's number counts: "дюйм", "мм/мин", "× R", "°", "%"; empty where it has no unit. `units`: 0 inch, else
/// millimetre; `isScaled`: whether the number is a length that units change now.
std::string ShownUnit(const Option& option, int units, bool isScaled);

/// Whether two numbers are the same as far as files can tell: six decimals, single precision, a conversion there and
/// back.
bool IsSameNumber(double one, double other);

} // namespace pelmar
