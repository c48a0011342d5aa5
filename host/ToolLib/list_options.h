// How the user wants tool lists: what the library of the NC options holds of it, where the host has loaded that one.
#pragma once

namespace toollib {

/// The orders, by the numbers that the NC options have for them.
enum class SortBy : int { Diameter, ToolNumber, DatabaseNumber };

/// The order that the user has chosen; by diameter where nobody says, or says what is none.
SortBy SortOrder();

/// Whether there is a "ball tools only" switch. Without the NC options there is none.
bool HasBallToolSwitch();
/// Off where there is none.
bool OnlyBallTools();
void SetOnlyBallTools(bool only);

} // namespace toollib
