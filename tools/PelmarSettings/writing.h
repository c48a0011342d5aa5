// Writing into settings files: planned and looked at first, then in one step.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "commands.h"
#include "review/changes.h"
#include "settings_file.h"

namespace pelmar::tool {

using ChosenSettings = std::vector<const review::Setting*>;

/// What is to be written to a file, and what it is then.
struct Plan {
    SettingsFile file;
    std::vector<review::Change> changes;
    review::SettingsText after;

    Plan(SettingsFile of, std::vector<review::Change> planned)
        : file(std::move(of)), changes(std::move(planned)), after(review::WithChanges(file.text, changes))
    {
    }
};

/// Throws NotDone, with the settings and the reasons, where the library would not hold the wanted values of the chosen
/// settings after it.
void MustHold(const Plan& plan, const review::Values& wanted, const ChosenSettings& chosen);

/// What says whether a length is one or a multiple of the tool radius; null where nothing does.
const review::Setting* TypeOf(const review::Setting& length);
/// Adds the types that the chosen lengths stand beside: without its type a length may mean another thing.
void TakeTypesAlong(ChosenSettings& chosen);

/// Those of the chosen settings that the library reads from a key of another section which is not chosen.
ChosenSettings ReadElsewhere(const ChosenSettings& chosen);
/// "RoundMill.SideClearance читается из …".
std::string WhereItIsRead(const review::Setting& setting);

/// Writes it in one step and looks at the file again. Nothing where there is nothing to write. Throws NotDone. Returns
/// what else has to be said; empty as a rule.
std::string Write(const Plan& plan);

/// Writes, and tells what has been written.
ExitStatus WriteAndTell(const Plan& plan, const Speech& speech);

} // namespace pelmar::tool
