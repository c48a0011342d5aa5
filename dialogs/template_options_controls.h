// The dialog of the toolpath templates: one topic for all of it.
#pragma once

#include "pages/control.h"

namespace pelmar {

inline constexpr PageFacts kTemplatesPage{IDD_TEMPLATES, {}, "pelmar-_defaults_toolpath_templates.htm"};

} // namespace pelmar
