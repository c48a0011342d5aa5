// What the user asks for on the command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "output.h"

namespace pelmar::tool {

enum class Command { Check, Diff, List, Explain, Set, Reset, Convert, Apply, Export, Import };

struct Arguments {
    Command command = Command::Check;
    std::vector<std::string> files{};
    std::vector<std::string> names{}; ///< of operations, keys, labels; assignments of `set`
    std::vector<std::string> only{};
    std::optional<std::string> defaults{};
    std::string units{};
    std::string output{}; ///< the file that `export` writes; empty: the standard output
    bool isDryRun = false;
    bool isJson = false;
    ColorMode color = ColorMode::Auto;
};

} // namespace pelmar::tool
