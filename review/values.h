// What the library holds: the value of every setting, as one state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/shown_value.h"
#include "review/setting.h"
#include "review/settings_text.h"
#include "review/words.h"

namespace pelmar::review {

/// A value of every setting. Lengths are in the units of their record.
class Values {
public:
    /// Built-in values.
    Values();
    Values(const Values& other);
    Values& operator=(const Values& other);
    Values(Values&&) noexcept = default;
    Values& operator=(Values&&) noexcept = default;
    ~Values() = default;

    /// What a program holds that has started and restored every record from these texts. What belongs to no record is
    /// looked for in the defaults where the settings lack it, as hosts do.
    static Values AtStart(const SettingsText& settings, const SettingsText& defaults);
    /// The factory's values, in the units that each record has in `other`.
    static Values Factory(const SettingsText& defaults, const Values& other);

    double Number(const Setting& setting) const;
    /// Of a setting that is a text.
    const std::string& Text(const Setting& setting) const { return m_texts[setting.index]; }
    void SetNumber(const Setting& setting, double number);
    void SetText(const Setting& setting, std::string text) { m_texts[setting.index] = std::move(text); }

    int Units(const RecordDescription& record) const;
    void Convert(const RecordDescription& record, int units);
    /// Brings every record to the units that it has in `other`.
    void ConvertAsIn(const Values& other);
    /// Whether the number is a length that units change now.
    bool IsScaled(const Setting& setting) const;

    void* Record(const RecordDescription& record) { return m_records[IndexOf(record)].get(); }
    const void* Record(const RecordDescription& record) const { return m_records[IndexOf(record)].get(); }

private:
    static std::size_t IndexOf(const RecordDescription& record);

    std::vector<AnyRecord> m_records;
    std::vector<double> m_numbers; ///< by setting; of those that belong to no record
    std::vector<std::string> m_texts;
};

using pelmar::IsSameNumber;
bool IsSameValue(const Setting& setting, const Values& one, const Values& other);

/// A value as people read it: an item's text, yes or no, a number without needless digits.
std::string ShownValue(const Setting& setting, const Values& values, const Words& words);
std::string ShownNumber(const Setting& setting, double number, const Words& words);
/// What the number counts: "дюйм", "мм", "× R", "°", "%"; empty where it has no unit.
std::string ShownUnit(const Setting& setting, const Values& values);
/// The two together: "0.5 мм", "135°".
std::string WithUnit(const std::string& value, const std::string& unit);
/// The range of a number, for people; empty where any number will do.
std::string ShownRange(const Setting& setting);

/// A value where it differs.
struct Difference {
    const Setting* setting;
    std::string value;
    std::string compared; ///< in the same units
    std::string unit{};   ///< what the value counts
    std::string comparedUnit{};
};

/// All differences, in the order of the settings. Units themselves are none: values are compared in those of `values`.
std::vector<Difference> Differences(const Values& values, const Values& compared, const Words& words);

} // namespace pelmar::review
