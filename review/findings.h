// What is wrong in a settings file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "review/setting.h"
#include "review/settings_text.h"
#include "review/values.h"
#include "review/words.h"

namespace pelmar::review {

enum class FindingKind {
    // of the file as a whole
    FileIsEmpty,
    FileIsUtf16,
    FileIsUtf8Marked,
    FileHasZeros,
    FileIsTooLarge,
    // of a line
    UnknownSection,
    RepeatedSection,
    NoSection, ///< an entry before the first section
    NoEntry,   ///< a line without "="
    UnknownKey,
    RepeatedKey,
    NotANumber,
    OutOfRange,
    NoSuchItem, ///< the number of no item of a list, or neither on nor off
    OtherUnits, ///< the record is not in the units of most records of the file
    // of a section
    MissingKey,
};

/// A name for programs: "unknown-key".
std::string_view NameOf(FindingKind kind);

/// One thing that is wrong. Texts of the file are as it holds them.
struct Finding {
    FindingKind kind;
    int line = 0; ///< from 1; 0 where no line is meant
    std::string section{};
    std::string key{};
    const Setting* setting = nullptr; ///< null where the key is none of a setting
    std::string standing{};           ///< what stands there
    std::string used{};               ///< what the library uses instead, for people; empty where it is of no use
    std::string nearest{};            ///< what was most likely meant; empty where nothing is near
};

/// All findings, in the order of the lines, those without a line last.
std::vector<Finding> Check(const SettingsText& text, const Words& words);

/// What is wrong and what the library does about it, in a sentence or two for people.
std::string Explanation(const Finding& finding, const Words& words);

/// Whether a text is a number and nothing else, as the library itself would write one.
bool IsWhole(std::string_view text);
bool IsReal(std::string_view text);

/// Whether a setting may have the number: its range, its items, its switch. `None` does not occur.
enum class Fault { None, OutOfRange, NoSuchItem };
Fault FaultOf(const Setting& setting, double number);

} // namespace pelmar::review
