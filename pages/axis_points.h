// The axis of rotation of 4-axis and 5-axis milling.
#pragma once

#include <array>
#include <cstddef>

#include "PelmarDlgs/records/milling_4axis.h"

namespace pelmar {

/// Two points on the axis: X, Y and Z of the start point, then of the end point.
using AxisPoints = std::array<double, 6>;

/// The coordinates in the record that keeps an axis, in the same order.
constexpr double C4AxisOptionsInfo::*kAxisFields[] = {&C4AxisOptionsInfo::StartPX, &C4AxisOptionsInfo::StartPY,
                                                      &C4AxisOptionsInfo::StartPZ, &C4AxisOptionsInfo::EndPX,
                                                      &C4AxisOptionsInfo::EndPY,   &C4AxisOptionsInfo::EndPZ};

inline void SetAxisOf(C4AxisOptionsInfo& record, const AxisPoints& axis)
{
    for (std::size_t coordinate = 0; coordinate < axis.size(); ++coordinate)
        record.*kAxisFields[coordinate] = axis[coordinate];
}

} // namespace pelmar
