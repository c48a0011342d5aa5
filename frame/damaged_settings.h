// What a power cut makes of settings files. Only the bytes are looked at.
#pragma once

#include <string>
#include <string_view>

namespace pelmar {

/// Whether a settings file's bytes are what a power cut leaves: zeros where text was to be, or a last line that ends
/// before its "=". A file without bytes is not damaged: there is nothing in it to keep.
bool IsDamaged(std::string_view bytes);

/// The bytes without zeros, the last line ended: what is written on them is read again.
std::string Mended(std::string_view bytes);

} // namespace pelmar
