// The program from its words to its exit status.
#pragma once

#include <string>
#include <vector>

namespace pelmar::tool {

/// `words`: UTF-8, without the program's own name.
int Run(std::vector<std::string> words);

} // namespace pelmar::tool
