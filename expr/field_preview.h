// What a field's text would be taken for, without taking it.
#pragma once

#include <optional>

namespace pelmar {

/// The value that EvalFieldReal would give for a text; nothing where it would fail. Who evaluates next is not affected:
/// the mode stays as it is.
std::optional<double> PreviewFieldReal(const char* text);

} // namespace pelmar
