// The system's dialog for choosing a template file.
#pragma once

#include <optional>
#include <string>

namespace pelmar {

/// Shows the dialog with `initial` in front, where there is such a file. The chosen path in the code page; nothing
/// where the user cancelled. A path that the code page or `capacity` cannot hold is refused with a message.
std::optional<std::string> ChooseTemplateFile(const std::wstring& operation, const std::string& initial,
                                              size_t capacity);

} // namespace pelmar
