// Every setting that a settings file can hold, with what is known of it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "description/description.h"
#include "records/global_settings.h"

namespace pelmar::review {

/// One key of the settings files: an option of a record, or a setting that belongs to none.
struct Setting {
    const RecordDescription* record = nullptr; ///< null: of no record
    const GlobalSetting* global = nullptr;     ///< null: of a record
    const Option* option = nullptr;            ///< never null; of a record, or the global setting's own
    std::size_t index = 0;                     ///< among the settings

    /// Where it is written, and read unless the option says otherwise.
    const char* Section() const { return record ? record->table.Section() : global->section; }
    const char* Key() const { return option->key; }
    const char* Label() const { return option->label; }
    /// The operation or the group, for people.
    const char* Operation() const { return record ? record->table.Operation() : global->group; }
    /// "Section.Key": its one name.
    std::string Name() const { return std::string(Section()) + "." + Key(); }

    bool IsText() const { return global && global->isText; }
    bool IsOfHost() const { return global && global->isOfHost; }
    bool IsUnits() const { return option->kind == OptionKind::Units; }
    bool IsReal() const { return record ? option->real != nullptr : option->kind == OptionKind::Length; }
    /// The control that edits it on its page; null where none does.
    const Control* EditedBy() const { return record ? record->ControlOf(*option) : nullptr; }
    /// What its list offers; empty where it is no list.
    ChoiceTexts Choices() const;
};

/// All of them but those without a key of their own, the records' first, in the order of the files.
std::span<const Setting> AllSettings();

/// Null where the library knows no such key. Latin letters count alike, small or capital.
const Setting* FindSetting(std::string_view section, std::string_view key);
/// Whether a key may stand in a section, a name that the user gives included.
bool IsKnownKey(std::string_view section, std::string_view key);
bool IsKnownSection(std::string_view section);
/// The setting of a field of a record.
const Setting* SettingOf(const Option& option);
/// The settings of an operation or group, by its name or its section. Empty where there is none.
std::vector<const Setting*> SettingsOfOperation(std::string_view name);
/// The settings that a name means: "Section.Key", a key, or a label.
std::vector<const Setting*> SettingsNamed(std::string_view name);

/// The known name that a wrong one most likely was to be: a key of the section first, then of any; empty where none is
/// near.
std::string NearestKey(std::string_view section, std::string_view key);
std::string NearestSection(std::string_view section);
/// The nearest of all keys, labels and operations.
std::string NearestName(std::string_view name);

} // namespace pelmar::review
