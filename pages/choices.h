// Lists of choices that several pages offer, in the order of the stored values.
#pragma once

#include <algorithm>
#include <iterator>

#include <windows.h>

#include "resources/resource.h"

constexpr UINT kLengthTypes[] = {IDS_CONSTANT, IDS_TOOL_RADIUS};
constexpr UINT kCornerTypes[] = {IDS_ARC, IDS_LINE};
constexpr UINT kFeedsBetween[] = {IDS_FEED_DIRECT, IDS_FEED_CUTTING, IDS_FEED_RAPID};
constexpr UINT kCuttingDirections[] = {IDS_CONVENTIONAL, IDS_CLIMB};
/// Stored value of the first one.
constexpr int kFirstCuttingDirection = 1;
constexpr UINT kPlainSorts[] = {IDS_SORT_NONE, IDS_SORT_AUTOMATIC};
constexpr UINT kSideStepModes[] = {IDS_SIDE_STEP_STRAIGHT, IDS_SIDE_STEP_ALONG_EDGE};
constexpr UINT kRapidFrequencies[] = {IDS_PER_PASS, IDS_PER_LEVEL};
constexpr UINT kMaterialCutModes[] = {IDS_PATTERN_SPIRAL, IDS_PATTERN_ZIGZAG, IDS_PATTERN_ALONG_CONTOUR};
constexpr UINT kPocketCutModes[] = {IDS_PATTERN_SPIRAL, IDS_PATTERN_ZIGZAG};

/// A cut mode that a file holds: one above the last counts as the last.
inline int KnownMaterialCutMode(int mode)
{
    return std::min(mode, static_cast<int>(std::size(kMaterialCutModes)) - 1);
}

/// Every page with cut modes tells its siblings a choice of either under this one code, with the index.
constexpr WPARAM kCutModeChosen = 0x800E;
