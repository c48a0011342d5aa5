#include "review/findings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>

#include "PelmarDlgs/settings_values.h"

namespace pelmar::review {
namespace {

/// A number's text without the one plus sign that is read.
std::string_view WithoutPlus(std::string_view text)
{
    return text.starts_with('+') && !text.starts_with("+-") ? text.substr(1) : text;
}

template <class Number> bool IsAll(std::string_view text, Number& number)
{
    text = WithoutPlus(text);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return end == text.data() + text.size() && error != std::errc::invalid_argument && !text.empty();
}

/// Goes through the lines of one text.
class Checker {
public:
    Checker(const SettingsText& text, const Words& words)
        : m_text(text), m_words(words), m_values(Values::AtStart(text, SettingsText()))
    {
    }

    std::vector<Finding> Run()
    {
        for (const TextLine& line : m_text.Lines())
            Look(line);
        LookForMissing();
        LookAtUnits();
        std::ranges::stable_sort(m_findings, {}, [](const Finding& finding) {
            return std::pair(finding.kind == FindingKind::MissingKey, finding.line);
        });
        return std::move(m_findings);
    }

private:
    void Look(const TextLine& line)
    {
        switch (line.kind) {
        case TextLine::Kind::Section:
            LookAtSection(line);
            break;
        case TextLine::Kind::Entry:
            LookAtEntry(line);
            break;
        case TextLine::Kind::Other:
            Add(FindingKind::NoEntry, line);
            m_keys.emplace(Lowered(line.key), std::string_view()); // a line of that key after it is not read
            break;
        case TextLine::Kind::Comment:
            break;
        }
    }

    void LookAtSection(const TextLine& line)
    {
        m_isKnownSection = IsKnownSection(line.section);
        m_isRepeatedSection = !m_sections.insert(Lowered(line.section)).second;
        m_keys.clear();
        if (!m_isKnownSection)
            Add(FindingKind::UnknownSection, line).nearest = IsGuessWanted() ? NearestSection(line.section) : "";
        else if (m_isRepeatedSection)
            Add(FindingKind::RepeatedSection, line);
    }

    void LookAtEntry(const TextLine& line)
    {
        if (m_sections.empty()) {
            Add(FindingKind::NoSection, line);
            return;
        }
        // What a section holds that is not read has been said of the section.
        if (!m_isKnownSection || m_isRepeatedSection)
            return;
        const Setting* const setting = FindSetting(line.section, line.key);
        if (!IsKnownKey(line.section, line.key)) {
            Add(FindingKind::UnknownKey, line).nearest = IsGuessWanted() ? NearestKey(line.section, line.key) : "";
            return;
        }
        const auto [first, isFirst] = m_keys.emplace(Lowered(line.key), line.value);
        if (!isFirst) {
            Finding& finding = Add(FindingKind::RepeatedKey, line);
            finding.setting = setting;
            finding.used = m_words.ofFile(first->second);
        } else if (setting && !setting->IsText()) {
            LookAtValue(line, *setting);
        }
    }

    void LookAtValue(const TextLine& line, const Setting& setting)
    {
        const std::string_view value = Unquoted(line.value);
        double number = 0.0;
        std::int64_t whole = 0;
        if (setting.IsReal() ? !IsAll(value, number) : !IsAll(value, whole)) {
            AddOf(FindingKind::NotANumber, line, setting);
            return;
        }
        if (!setting.IsReal())
            number = static_cast<double>(whole);
        const Fault fault = IsTooLarge(setting, value) ? Fault::OutOfRange : FaultOf(setting, number);
        if (fault == Fault::OutOfRange)
            AddOf(FindingKind::OutOfRange, line, setting);
        if (fault == Fault::NoSuchItem)
            AddOf(FindingKind::NoSuchItem, line, setting);
    }

    /// Digits that no number of the type can hold.
    static bool IsTooLarge(const Setting& setting, std::string_view value)
    {
        value = WithoutPlus(value);
        if (setting.IsReal()) {
            double real = 0.0;
            const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), real);
            return error != std::errc() || !std::isfinite(real) || std::abs(real) > kUnbounded;
        }
        int whole = 0;
        return std::from_chars(value.data(), value.data() + value.size(), whole).ec != std::errc();
    }

    void LookForMissing()
    {
        for (const Setting& setting : AllSettings())
            if (setting.record && m_text.HasSection(setting.Section()) &&
                !m_text.Find(setting.Section(), setting.Key())) {
                m_findings.push_back({.kind = FindingKind::MissingKey,
                                      .section = setting.Section(),
                                      .key = setting.Key(),
                                      .setting = &setting,
                                      .used = ShownValue(setting, m_values, m_words)});
            }
    }

    void LookAtUnits()
    {
        std::vector<const RecordDescription*> present;
        for (const RecordDescription& record : DescribeRecords())
            if (m_text.Find(record.table.Section(), record.table.Options().front().key))
                present.push_back(&record);
        const auto isInch = [this](const RecordDescription* record) { return m_values.Units(*record) == kInch; };
        const auto inch = static_cast<std::size_t>(std::ranges::count_if(present, isInch));
        if (inch == 0 || inch == present.size())
            return;
        const bool areMostInch = 2 * inch >= present.size();
        for (const RecordDescription* record : present)
            if (isInch(record) != areMostInch) {
                const Setting& units = *SettingOf(record->table.Options().front());
                AddOf(FindingKind::OtherUnits, *m_text.Find(units.Section(), units.Key()), units);
            }
    }

    /// A file with more slips than this is none: the search for what was meant would take long and help nobody.
    bool IsGuessWanted()
    {
        constexpr int kMostGuesses = 50;
        return ++m_guesses <= kMostGuesses;
    }

    Finding& Add(FindingKind kind, const TextLine& line)
    {
        const bool isEntry = line.kind == TextLine::Kind::Entry;
        m_findings.push_back({.kind = kind,
                              .line = line.number,
                              .section = std::string(line.section),
                              .key = isEntry ? std::string(line.key) : std::string(),
                              .standing = std::string(isEntry ? line.value : line.key)});
        return m_findings.back();
    }

    void AddOf(FindingKind kind, const TextLine& line, const Setting& setting)
    {
        Finding& finding = Add(kind, line);
        finding.setting = &setting;
        finding.used = ShownValue(setting, m_values, m_words);
    }

    const SettingsText& m_text;
    const Words& m_words;
    Values m_values;
    std::vector<Finding> m_findings;
    std::set<std::string> m_sections;
    std::map<std::string, std::string_view> m_keys; ///< of the section that is gone through, with what they hold
    bool m_isKnownSection = false;
    bool m_isRepeatedSection = false;
    int m_guesses = 0;
};

std::vector<Finding> WholeFile(FindingKind kind)
{
    return {Finding{.kind = kind}};
}

constexpr std::array<std::string_view, 16> kNames = {
    "empty-file",       "utf-16-file",  "utf-8-file",  "zero-bytes",  "large-file",   "unknown-section",
    "repeated-section", "no-section",   "no-entry",    "unknown-key", "repeated-key", "no-number",
    "out-of-range",     "no-such-item", "other-units", "missing-key",
};

std::string Meant(const Finding& finding)
{
    return finding.nearest.empty() ? "" : " Похоже на «" + finding.nearest + "».";
}

std::string UsedInstead(const Finding& finding)
{
    return finding.used.empty() ? "" : " Используется: " + finding.used + ".";
}

} // namespace

std::string_view NameOf(FindingKind kind)
{
    return kNames[static_cast<std::size_t>(kind)];
}

bool IsWhole(std::string_view text)
{
    int number = 0;
    return IsAll(text, number);
}

bool IsReal(std::string_view text)
{
    double number = 0.0;
    return IsAll(text, number);
}

Fault FaultOf(const Setting& setting, double number)
{
    const Option& option = *setting.option;
    if (setting.IsReal())
        return number >= option.range.low && number <= option.range.high ? Fault::None : Fault::OutOfRange;
    switch (option.kind) {
    case OptionKind::Units:
        return number == 0.0 || number == 1.0 ? Fault::None : Fault::NoSuchItem;
    case OptionKind::Switch:
        return number == option.switchValues.on || number == option.switchValues.off ? Fault::None : Fault::NoSuchItem;
    case OptionKind::Choice: {
        const double position = number - option.firstChoice;
        const bool isItem = position >= 0 && position < static_cast<double>(setting.Choices().size());
        return isItem || setting.Choices().empty() ? Fault::None : Fault::NoSuchItem;
    }
    default:
        return number >= option.range.low && number <= option.range.high ? Fault::None : Fault::OutOfRange;
    }
}

std::vector<Finding> Check(const SettingsText& text, const Words& words)
{
    switch (text.State()) {
    case TextState::Empty:
        return WholeFile(FindingKind::FileIsEmpty);
    case TextState::Utf16:
        return WholeFile(FindingKind::FileIsUtf16);
    case TextState::Utf8Marked:
        return WholeFile(FindingKind::FileIsUtf8Marked);
    case TextState::Zeros:
        return WholeFile(FindingKind::FileHasZeros);
    case TextState::TooLarge:
        return WholeFile(FindingKind::FileIsTooLarge);
    case TextState::Sound:
        break;
    }
    return Checker(text, words).Run();
}

std::string Explanation(const Finding& finding, const Words& words)
{
    const std::string standing = "«" + words.ofFile(finding.standing) + "»";
    switch (finding.kind) {
    case FindingKind::FileIsEmpty:
        return "Файл пуст. Действуют заводские значения.";
    case FindingKind::FileIsUtf16:
        return "Файл записан в UTF-16. Сохраните его в кодовой странице Windows (ANSI).";
    case FindingKind::FileIsUtf8Marked:
        return "Файл начинается с метки UTF-8. Сохраните его в кодовой странице Windows (ANSI).";
    case FindingKind::FileHasZeros:
        return "В файле нулевые байты, как после сбоя питания. Восстановите его из копии.";
    case FindingKind::FileIsTooLarge:
        return "Файл слишком велик для файла параметров.";
    case FindingKind::UnknownSection:
        return "Неизвестный раздел " + standing + ". Он не читается." + Meant(finding);
    case FindingKind::RepeatedSection:
        return "Раздел " + standing + " уже был. Второй не читается.";
    case FindingKind::NoSection:
        return "Строка стоит до первого раздела. Она не читается.";
    case FindingKind::NoEntry:
        return "В строке " + standing + " нет знака «=». Она не читается.";
    case FindingKind::UnknownKey:
        return "Неизвестный ключ. Он не читается." + Meant(finding);
    case FindingKind::RepeatedKey:
        return "Ключ уже был, " + standing + " не читается." + UsedInstead(finding);
    case FindingKind::NotANumber:
        return standing + " — не число." + UsedInstead(finding);
    case FindingKind::OutOfRange: {
        const std::string range = finding.setting ? ShownRange(*finding.setting) : "";
        return standing + " вне допустимых границ" + (range.empty() ? "" : " (" + range + ")") + "." +
               UsedInstead(finding);
    }
    case FindingKind::NoSuchItem:
        return "Нет варианта с номером " + standing + "." + UsedInstead(finding);
    case FindingKind::OtherUnits:
        return "Единицы раздела (" + finding.used + ") не те, что у большинства разделов файла.";
    case FindingKind::MissingKey:
        return "Ключа нет." + UsedInstead(finding);
    }
    return {};
}

} // namespace pelmar::review
