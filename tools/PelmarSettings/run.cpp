#include "run.h"

#include <exception>

#include "command_line.h"
#include "commands.h"
#include "json.h"
#include "settings_file.h"

namespace pelmar::tool {
namespace {

ExitStatus Execute(const Arguments& arguments, const Speech& speech)
{
    switch (arguments.command) {
    case Command::Check:
        return RunCheck(arguments, speech);
    case Command::Diff:
        return RunDiff(arguments, speech);
    case Command::List:
        return RunList(arguments, speech);
    case Command::Explain:
        return RunExplain(arguments, speech);
    case Command::Set:
        return RunSet(arguments, speech);
    case Command::Reset:
        return RunReset(arguments, speech);
    case Command::Convert:
        return RunConvert(arguments, speech);
    case Command::Apply:
        return RunApply(arguments, speech);
    case Command::Export:
        return RunExport(arguments, speech);
    case Command::Import:
        return RunImport(arguments, speech);
    }
    return kNotDone;
}

ExitStatus Refuse(const Speech& speech, std::string_view reason)
{
    if (speech.isJson)
        PrintJson(speech.out, {{"error", reason}});
    speech.error.Line(speech.error.Painted(Style::Bad, reason));
    return kNotDone;
}

ExitStatus ExecuteOrRefuse(const Arguments& arguments, const Speech& speech)
try {
    return Execute(arguments, speech);
} catch (const NotDone& notDone) {
    return Refuse(speech, notDone.what());
} catch (const std::bad_alloc&) {
    return Refuse(speech, "Не хватает памяти.");
}

} // namespace

int Run(std::vector<std::string> words)
{
    Output out(Output::Channel::Standard);
    Output error(Output::Channel::Error);
    try {
        const auto understood = ReadCommandLine(std::move(words));
        if (const auto* const text = std::get_if<std::string>(&understood)) {
            out.Write(*text);
            return out.IsWhole() ? kClean : kNotDone;
        }
        const Arguments& arguments = std::get<Arguments>(understood);
        out.SetColor(arguments.color);
        error.SetColor(arguments.color);
        const ExitStatus status = ExecuteOrRefuse(arguments, {out, error, arguments.isJson});
        if (out.IsWhole())
            return status;
        error.Line("Вывод записан не весь: нет места или его никто не читает.");
    } catch (const WrongUsage& wrong) {
        error.Line(wrong.what());
    }
    return kNotDone;
}

} // namespace pelmar::tool
