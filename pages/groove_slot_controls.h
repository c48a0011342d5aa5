// What the pages of groove and slot milling share: all but the depth and the geometry.
#pragma once

#include "pages/feature_mill_controls.h"

namespace pelmar {

template <class R> inline constexpr std::array kGrooveSlotControls = {
    Edit<&R::RapidPlane>(IDC_FEATURE_RAPID_PLANE),
    // It is the rapid plane that is checked again here, so any plunge clearance passes.
    ChecksInstead<&R::RapidPlane>(Edit<&R::PlungeClear>(IDC_GROOVE_SLOT_PLUNGE_CLEARANCE)),
    Edit<&R::DefLeaveStockZ>(IDC_FEATURE_STOCK),
    Edit<&R::DefMaxRoughDOC>(IDC_FEATURE_ROUGH_DEPTH),
    Edit<&R::DefRampAngle>(IDC_GROOVE_SLOT_RAMP_ANGLE).PlainEdit(),
    List<&R::DefCutingDir>(IDC_FEATURE_CUTTING_DIRECTION).Unmarked(),
    List<&R::DefMaxRoughDOCType>(IDC_FEATURE_ROUGH_DEPTH_TYPE).Unmarked(),
};

/// The record names these in its own way. The edit class of the depth sits on the list beside it; the depth itself does
/// not know "=".
template <auto Depth, auto DepthType, auto Geometry> inline constexpr std::array kGrooveSlotDepth = {
    Edit<Depth>(IDC_GROOVE_SLOT_DEPTH).PlainEdit(),
    List<DepthType>(IDC_GROOVE_SLOT_DEPTH_TYPE).As(Attached::Real).Unmarked(),
    List<Geometry>(IDC_GROOVE_SLOT_GEOMETRY).Unmarked(),
};

} // namespace pelmar
