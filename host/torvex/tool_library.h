// The tool library as the host itself uses it.
#pragma once

/// Tells the tool library in which units the user works: 0 inch, 1 millimetre. It starts in inch, and follows the
/// default tools' dialog. Nothing where there is no tool library.
void SetToolLibraryUnits(int units);
