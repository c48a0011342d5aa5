#include <algorithm>

#include "commands.h"
#include "json.h"
#include "report.h"
#include "review/findings.h"
#include "settings_file.h"
#include "texts.h"

namespace pelmar::tool {
namespace {

using review::Finding;

struct Checked {
    std::string file;
    std::vector<Finding> findings{};
    std::string reason{}; ///< why it is not checked

    ExitStatus Status() const
    {
        if (!reason.empty())
            return kNotDone;
        return findings.empty() ? kClean : kFindings;
    }
};

Checked CheckFile(const std::string& name)
try {
    return {.file = name, .findings = review::Check(SettingsFile::Read(name).text, LibraryWords())};
} catch (const NotDone& notDone) {
    return {.file = name, .reason = notDone.what()};
}

void Tell(const Checked& checked, const Speech& speech)
{
    Output& out = speech.out;
    if (!checked.reason.empty()) {
        speech.error.Line(speech.error.Painted(Style::Bad, checked.reason));
        return;
    }
    const std::string file = out.Painted(Style::Strong, checked.file) + ": ";
    if (checked.findings.empty()) {
        out.Line(file + out.Painted(Style::Good, "замечаний нет."));
        return;
    }
    out.Line(file + out.Painted(Style::Bad, "замечаний: " + std::to_string(checked.findings.size()) + "."));
    WriteFindings(out, checked.findings);
}

Json JsonOf(const Checked& checked)
{
    if (!checked.reason.empty())
        return {{"file", checked.file}, {"error", checked.reason}};
    Json findings = Json::array();
    for (const Finding& finding : checked.findings)
        findings.push_back(tool::JsonOf(finding));
    return {{"file", checked.file}, {"findings", std::move(findings)}};
}

} // namespace

ExitStatus RunCheck(const Arguments& arguments, const Speech& speech)
{
    ExitStatus worst = kClean;
    Json files = Json::array();
    for (const std::string& file : arguments.files) {
        const Checked checked = CheckFile(file);
        worst = std::max(worst, checked.Status());
        if (speech.isJson)
            files.push_back(JsonOf(checked));
        else
            Tell(checked, speech);
    }
    if (speech.isJson)
        PrintJson(speech.out, {{"files", std::move(files)}});
    return worst;
}

} // namespace pelmar::tool
