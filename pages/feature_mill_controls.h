// What the pages of feature mills share, in runs as they are exchanged. Their lists do not mark a page modified.
#pragma once

#include "pages/control.h"
#include "pages/topics.h"

namespace pelmar {

/// Of all of them: buttons that lead to topics of their own.
inline constexpr std::array kFeatureMillButtons = {
    Button(IDC_RESTORE_DEFAULTS).Help(kDefaultsButtonTopic),
    Absent(IDC_FEATURE_GAUGE_LENGTH).Help(kGaugeLengthTopic),
};

/// Of face, chamfer and round milling, which cut their depth in rough and finish passes.
template <class R> inline constexpr std::array kDepthPassEdits = {
    Edit<&R::DefMaxRoughDOC>(IDC_FEATURE_ROUGH_DEPTH),
    Edit<&R::FinishPassZ>(IDC_FEATURE_FINISH_PASSES),
    Edit<&R::DefFinishDOC>(IDC_FEATURE_FINISH_DEPTH),
    Edit<&R::DefLeaveStockZ>(IDC_FEATURE_STOCK),
};

template <class R> inline constexpr std::array kDepthPassLists = {
    Edit<&R::RapidPlane>(IDC_FEATURE_RAPID_PLANE),
    List<&R::DefCutingDir>(IDC_FEATURE_CUTTING_DIRECTION).Unmarked(),
    List<&R::DefMaxRoughDOCType>(IDC_FEATURE_ROUGH_DEPTH_TYPE).Unmarked(),
    List<&R::DefFinishDOCType>(IDC_FEATURE_FINISH_DEPTH_TYPE).Unmarked(),
};

} // namespace pelmar
