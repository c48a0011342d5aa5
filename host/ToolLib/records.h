// From the tables' rows to the records of the interface.
#pragma once

#include "materials.h"
#include "tools.h"

namespace toollib {

void Fill(ToolLibTool& record, const Tool& tool);
void Fill(ToolLibMaterial& record, const Material& material);

} // namespace toollib
