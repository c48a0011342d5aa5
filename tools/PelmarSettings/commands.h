// What the program does. Each command returns its exit status, and throws NotDone where it has done nothing.
#pragma once

#include "arguments.h"
#include "output.h"

namespace pelmar::tool {

enum ExitStatus { kClean = 0, kFindings = 1, kNotDone = 2 };

/// Where a command speaks to.
struct Speech {
    Output& out;
    Output& error; ///< progress, and what is not the answer itself
    bool isJson = false;
};

ExitStatus RunCheck(const Arguments& arguments, const Speech& speech);
ExitStatus RunDiff(const Arguments& arguments, const Speech& speech);
ExitStatus RunList(const Arguments& arguments, const Speech& speech);
ExitStatus RunExplain(const Arguments& arguments, const Speech& speech);
ExitStatus RunSet(const Arguments& arguments, const Speech& speech);
ExitStatus RunReset(const Arguments& arguments, const Speech& speech);
ExitStatus RunConvert(const Arguments& arguments, const Speech& speech);
ExitStatus RunApply(const Arguments& arguments, const Speech& speech);
ExitStatus RunExport(const Arguments& arguments, const Speech& speech);
ExitStatus RunImport(const Arguments& arguments, const Speech& speech);

} // namespace pelmar::tool
