// The live records by their descriptions.
#pragma once

#include "description/description.h"

namespace pelmar {

/// The live record of a description; never null.
void* LiveRecord(const RecordDescription& record);

} // namespace pelmar
