// The command line: what the program understands, and its help.
#pragma once

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "arguments.h"

namespace pelmar::tool {

/// A command line that cannot be understood: why, for people.
class WrongUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What to do, or a text to print instead: help or the version. Throws WrongUsage.
std::variant<Arguments, std::string> ReadCommandLine(std::vector<std::string> words);

} // namespace pelmar::tool
