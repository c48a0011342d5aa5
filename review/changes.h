// Changes to settings: values that are entered, checked as on the pages, and what has to be written for them.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "review/findings.h"
#include "review/setting.h"
#include "review/settings_text.h"
#include "review/values.h"

namespace pelmar::review {

/// What a user's text means for a setting: a number or text, or why it is refused.
struct Entered {
    double number = 0.0;
    std::string text{};    ///< of a setting that is a text
    std::string refusal{}; ///< for people; empty where the text is good

    bool IsGood() const { return refusal.empty(); }
};

/// Reads what a user enters (UTF-8): an expression, an item by its text or its stored number, "да" or "нет", checked
/// against range and items as the page checks it.
Entered Enter(const Setting& setting, std::string_view text, const Words& words);
/// Checks a number that is no user's text in the same way.
Entered EnterNumber(const Setting& setting, double number, const Words& words);

/// One write to a settings file; without a text the key is removed.
struct Change {
    const Setting* setting;
    std::optional<std::string> text;

    friend bool operator==(const Change&, const Change&) = default;
};

/// How a number stands in the files: a real with six decimals, more where it needs up to ten.
std::string StoredText(const Setting& setting, double number);

/// The units that a file's section of a record has; where the file lacks the section, those that it is to be made in:
/// of most of the file's other records, or `otherwise` where it holds none.
int UnitsOfSection(const SettingsText& file, const RecordDescription& record, int otherwise);

/// What to write so that the file holds the wanted value of every chosen setting; nothing for what it holds already.
/// Lengths are converted to the units that the file's section has. A section that the file lacks is made with its
/// units: those of the file's other records, or those of the wanted values where it holds none. Units themselves are
/// never changed.
std::vector<Change> ChangesTo(const SettingsText& file, const Values& wanted, std::span<const Setting* const> chosen);

/// What to write so that the file is in other units (0 inch, 1 millimetre): every length that the file holds, so that
/// converting back gives the same bytes. Obstacles are findings that would make it a guess; nothing is to be written
/// then.
struct Conversion {
    std::vector<Change> changes;
    std::vector<Finding> obstacles;
};
Conversion ConversionTo(const SettingsText& file, int units, const Words& words);

/// The text with the changes made, as the platform makes them, for looking at it before it is written.
SettingsText WithChanges(const SettingsText& file, std::span<const Change> changes);

/// The chosen settings that a program would not hold as wanted if it started from this text: those that are read from
/// elsewhere or corrected on reading.
std::vector<const Setting*> NotAsWanted(const SettingsText& file, const Values& wanted,
                                        std::span<const Setting* const> chosen);

/// The settings that a text holds soundly: known, there, without a finding. Units are not among them.
std::vector<const Setting*> SoundSettings(const SettingsText& text, const Words& words);

} // namespace pelmar::review
