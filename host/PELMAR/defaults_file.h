// The file that the template defaults are kept in: PELMAR.INI beside the library, a section per operation. Texts stand
// in quotes, so that blanks around them and quotes within survive.
#pragma once

#include "PelmarDlgs/template_defaults.h"

namespace pelmar {

/// Fills all but id and name; what the file does not hold is as in a fresh record.
void ReadDefaults(TemplateDefaults& record);

/// Writes all but the name. False, and nothing is written, where a text cannot be kept; false as well where the file
/// cannot be written.
bool WriteDefaults(const TemplateDefaults& record);

} // namespace pelmar
