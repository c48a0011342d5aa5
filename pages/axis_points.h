// The axis of rotation of 4-axis and 5-axis milling.
#pragma once

#include <array>

namespace pelmar {

/// Two points on the axis: X, Y and Z of the start point, then of the end point.
using AxisPoints = std::array<double, 6>;

} // namespace pelmar
