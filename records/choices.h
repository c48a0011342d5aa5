// Choices that several records offer, in the order of the stored values.
#pragma once

#include <algorithm>
#include <iterator>

#include "records/option.h"
#include "resources/resource.h"

namespace pelmar {

constexpr Range kCornerAngles{30.0, 150.0};

constexpr ChoiceText kLengthTypes[] = {IDS_CONSTANT, IDS_TOOL_RADIUS};
constexpr ChoiceText kCornerTypes[] = {IDS_ARC, IDS_LINE};
constexpr ChoiceText kFeedsBetween[] = {IDS_FEED_DIRECT, IDS_FEED_CUTTING, IDS_FEED_RAPID};
constexpr ChoiceText kCuttingDirections[] = {IDS_CONVENTIONAL, IDS_CLIMB};
/// Stored value of the first one.
constexpr int kFirstCuttingDirection = 1;
constexpr ChoiceText kNoYes[] = {IDS_NO, IDS_YES};
constexpr ChoiceText kPlainSorts[] = {IDS_SORT_NONE, IDS_SORT_AUTOMATIC};
constexpr ChoiceText kSideStepModes[] = {IDS_SIDE_STEP_STRAIGHT, IDS_SIDE_STEP_ALONG_EDGE};
constexpr ChoiceText kRapidFrequencies[] = {IDS_PER_PASS, IDS_PER_LEVEL};
constexpr ChoiceText kMaterialCutModes[] = {IDS_PATTERN_SPIRAL, IDS_PATTERN_ZIGZAG, IDS_PATTERN_ALONG_CONTOUR};
constexpr ChoiceText kPocketCutModes[] = {IDS_PATTERN_SPIRAL, IDS_PATTERN_ZIGZAG};

/// Of the gouge check of a lead-in. Whatever a file holds that is not 2 is on.
constexpr SwitchValues kOnOrTwo{.on = 1, .off = 2};
/// Plunging on islands is the one option that is on at 0.
constexpr SwitchValues kOnAtZero{.on = 0, .off = 1, .onlyOnIsOn = true};

/// A cut mode that a file holds: one above the last counts as the last.
inline int KnownMaterialCutMode(int mode)
{
    return std::min(mode, static_cast<int>(std::size(kMaterialCutModes)) - 1);
}

/// The type beside a length: 0 a constant length, 1 a multiple of the tool radius. It is labelled with the length.
template <auto Member> constexpr Option LengthType(const char* key, const char* label)
{
    return Choice<Member>(key, label, kLengthTypes);
}

} // namespace pelmar
