// A tool library that does what a test tells it and records how it was called.
#pragma once

#include <string>
#include <vector>

struct ToolLibRecord {
    int units = 0;
    bool fails = false;
    bool fillsWholeRecord = false; ///< the description reaches to the record's end, without a terminator
    std::vector<std::string> calls;
};

/// The state of the library, exported by it as "RecordingToolLib_Record".
using RecordFunction = ToolLibRecord*();
