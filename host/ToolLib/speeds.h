// Speeds and feeds that the user has set, in memory.
#pragma once

#include "tools.h"

namespace toollib {

/// What was set for the tool; null where nothing was.
const ToolLibSpeedFeed* SpeedFeedOf(const Tool& tool);
void SetSpeedFeedOf(const Tool& tool, const ToolLibSpeedFeed& info);
void ForgetSpeedFeeds();

} // namespace toollib
