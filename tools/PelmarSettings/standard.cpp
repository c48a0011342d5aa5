#include <algorithm>

#include "commands.h"
#include "json.h"
#include "names.h"
#include "report.h"
#include "review/changes.h"
#include "texts.h"
#include "writing.h"

namespace pelmar::tool {
namespace {

using review::Finding;
using review::Setting;
using review::Values;

bool Contains(const ChosenSettings& settings, const Setting* setting)
{
    return std::ranges::find(settings, setting) != settings.end();
}

void AddOnce(ChosenSettings& settings, const Setting* setting)
{
    if (!Contains(settings, setting))
        settings.push_back(setting);
}

/// A shop's standard: the values that are to be everywhere.
struct Standard {
    SettingsFile file;
    Values values;
    std::vector<Finding> faults;
    ChosenSettings chosen{};
    std::vector<std::string> remarks{};

    explicit Standard(const std::string& name)
        : file(SettingsFile::Read(name).MustBeSound()), values(Values::AtStart(file.text, review::SettingsText())),
          faults(Faults(file.text))
    {
    }

    void Choose(const std::vector<std::string>& only)
    {
        const ChosenSettings sound = review::SoundSettings(file.text, LibraryWords());
        if (only.empty())
            std::ranges::copy_if(sound, std::back_inserter(chosen), [](const auto* setting) {
                return !setting->IsOfHost(); // paths of one machine
            });
        for (const std::string& name : only)
            ChooseNamed(name, sound);
        LeaveOutLengthsOfFaultyTypes();
        TakeTypesAlong(chosen);
        LeaveOutWhatIsReadElsewhere();
        if (chosen.empty())
            throw NotDone(file.path.shown + ": в образце нет значений, которые можно взять.");
    }

private:
    void ChooseNamed(const std::string& name, const ChosenSettings& sound)
    {
        bool isFound = false;
        for (const Setting* const setting : OperationOrSettingMeant(name))
            if (Contains(sound, setting)) {
                AddOnce(chosen, setting);
                isFound = true;
            }
        if (!isFound)
            throw NotDone(file.path.shown + ": в образце нет значения для «" + name + "», или оно ошибочно.");
    }

    /// A length means what the type beside it says.
    void LeaveOutLengthsOfFaultyTypes()
    {
        std::erase_if(chosen, [this](const Setting* length) {
            const Setting* const type = TypeOf(*length);
            return type && std::ranges::any_of(faults, [type](const Finding& fault) {
                       return fault.setting == type && fault.kind != review::FindingKind::RepeatedKey;
                   });
        });
    }

    void LeaveOutWhatIsReadElsewhere()
    {
        for (const Setting* const setting : ReadElsewhere(chosen)) {
            std::erase(chosen, setting);
            remarks.push_back("Не взято: " + WhereItIsRead(*setting));
        }
    }
};

enum class State { Written, Same, Differs, NotDone };

struct Outcome {
    std::string file;
    State state = State::NotDone;
    std::size_t count = 0; ///< of values
    std::string reason{};
    Json changes = Json::array();
};

const char* NameOf(State state)
{
    switch (state) {
    case State::Written:
        return "written";
    case State::Same:
        return "same";
    case State::Differs:
        return "differs";
    case State::NotDone:
        break;
    }
    return "not-done";
}

/// Brings the standard to the files, one after the other.
class Applying {
public:
    Applying(const Standard& standard, const Arguments& arguments, const Speech& speech)
        : m_standard(standard), m_isDryRun(arguments.isDryRun), m_speech(speech)
    {
    }

    Outcome Apply(const std::string& name)
    try {
        const SettingsFile file = SettingsFile::Read(name).MustBeSound();
        const Plan plan(file, review::ChangesTo(file.text, m_standard.values, m_standard.chosen));
        MustHold(plan, m_standard.values, m_standard.chosen);
        Outcome outcome{.file = name, .state = State::Same, .count = plan.changes.size()};
        if (plan.changes.empty())
            return outcome;
        outcome.state = m_isDryRun ? State::Differs : State::Written;
        if (!m_isDryRun)
            outcome.reason = Write(plan);
        if (m_speech.isJson)
            outcome.changes = JsonOfChanges(plan.file.text, plan.after, plan.changes);
        else
            Tell(outcome, plan);
        return outcome;
    } catch (const NotDone& notDone) {
        return {.file = name, .reason = notDone.what()};
    }

private:
    void Tell(const Outcome& outcome, const Plan& plan) const
    {
        Output& out = m_speech.out;
        const std::string count = std::to_string(outcome.count) + ".";
        out.Line(out.Painted(Style::Strong, outcome.file) + ": " +
                 out.Painted(Style::Good, (m_isDryRun ? "будет записано значений: " : "записано значений: ") + count));
        if (!outcome.reason.empty())
            m_speech.error.Line(outcome.reason);
        if (m_isDryRun)
            WriteChanges(out, plan.file.text, plan.after, plan.changes);
    }

    const Standard& m_standard;
    bool m_isDryRun;
    const Speech& m_speech;
};

void TellRest(const Outcome& outcome, const Speech& speech)
{
    Output& out = speech.out;
    if (outcome.state == State::Same)
        out.Line(out.Painted(Style::Strong, outcome.file) + ": уже как в образце.");
    if (outcome.state == State::NotDone)
        speech.error.Line(speech.error.Painted(Style::Bad, "не сделано: " + outcome.reason));
}

/// Which of many files is at its turn: for somebody who waits.
class Progress {
public:
    Progress(Output& error, std::size_t count) : m_error(error), m_count(count) {}
    ~Progress() { Clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Next(const std::string& name)
    {
        Clear();
        if (!m_error.IsConsole() || m_count < 3)
            return;
        const std::string line = "[" + std::to_string(++m_done) + "/" + std::to_string(m_count) + "] " + name;
        m_length = LengthOf(line);
        m_error.Write("\r" + line);
    }
    void Clear()
    {
        if (m_length > 0)
            m_error.Write("\r" + std::string(m_length, ' ') + "\r");
        m_length = 0;
    }

private:
    Output& m_error;
    std::size_t m_count;
    std::size_t m_done = 0;
    std::size_t m_length = 0;
};

void TellOf(const Standard& standard, const Speech& speech)
{
    Output& error = speech.error;
    if (!standard.faults.empty()) {
        error.Line(standard.file.path.shown + ": в образце есть ошибки, эти значения не берутся:");
        WriteFindings(error, standard.faults);
    }
    for (const std::string& remark : standard.remarks)
        error.Line(remark);
}

Json JsonOf(const Outcome& outcome)
{
    Json json = {{"file", outcome.file}, {"state", NameOf(outcome.state)}, {"changes", outcome.changes}};
    if (!outcome.reason.empty())
        json["reason"] = outcome.reason;
    return json;
}

Json JsonOf(const Standard& standard, const std::vector<Outcome>& outcomes)
{
    Json findings = Json::array();
    for (const Finding& fault : standard.faults)
        findings.push_back(tool::JsonOf(fault));
    Json files = Json::array();
    for (const Outcome& outcome : outcomes)
        files.push_back(JsonOf(outcome));
    return {{"standard", standard.file.path.shown}, {"findings", std::move(findings)}, {"files", std::move(files)}};
}

ExitStatus StatusOf(const Standard& standard, const std::vector<Outcome>& outcomes)
{
    const auto isAny = [&](State state) {
        return std::ranges::find(outcomes, state, &Outcome::state) != outcomes.end();
    };
    if (isAny(State::NotDone))
        return kNotDone;
    return isAny(State::Differs) || !standard.faults.empty() ? kFindings : kClean;
}

} // namespace

ExitStatus RunApply(const Arguments& arguments, const Speech& speech)
{
    Standard standard(arguments.files.front());
    standard.Choose(arguments.only);
    TellOf(standard, speech);
    Applying applying(standard, arguments, speech);
    std::vector<Outcome> outcomes;
    Progress progress(speech.error, arguments.files.size() - 1);
    for (auto file = arguments.files.begin() + 1; file != arguments.files.end(); ++file) {
        progress.Next(*file);
        outcomes.push_back(applying.Apply(*file));
        if (!speech.isJson) {
            progress.Clear();
            TellRest(outcomes.back(), speech);
        }
    }
    if (speech.isJson)
        PrintJson(speech.out, JsonOf(standard, outcomes));
    return StatusOf(standard, outcomes);
}

} // namespace pelmar::tool
