#include "review/changes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "PelmarDlgs/evaluator.h"
#include "PelmarDlgs/settings_values.h"
#include "frame/number_text.h"

namespace pelmar::review {
namespace {

constexpr std::size_t kStoredDecimals = number_text::kStoredDecimals;
constexpr std::size_t kMoreDecimals = 10;
constexpr std::size_t kLongestText = 255; // what the library reads of one

std::string_view WithoutBlanks(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

Entered Refused(std::string reason)
{
    return {.refusal = std::move(reason)};
}

std::string Quoted(std::string_view text)
{
    constexpr std::size_t kLongestQuoted = 80;
    return "«" + Shortened(text, kLongestQuoted) + "»";
}

std::string Items(const Setting& setting, const Words& words)
{
    std::string items;
    int number = setting.option->firstChoice;
    for (std::size_t item = 0; item < setting.Choices().size(); ++item, ++number)
        items += (item ? ", " : "") + std::to_string(number) + " " + ShownNumber(setting, number, words);
    return items;
}

std::string WhyNot(const Setting& setting, std::string_view standing, Fault fault, const Words& words)
{
    if (fault == Fault::OutOfRange) {
        const std::string range = ShownRange(setting);
        return Quoted(standing) + " вне допустимых границ" + (range.empty() ? "." : ": " + range + ".");
    }
    if (setting.option->kind == OptionKind::Switch)
        return Quoted(standing) + " — ни «да», ни «нет».";
    return "Нет варианта " + Quoted(standing) + ". Есть: " + Items(setting, words) + ".";
}

Entered Checked(const Setting& setting, double number, std::string_view standing, const Words& words)
{
    const Fault fault = FaultOf(setting, number);
    return fault == Fault::None ? Entered{.number = number} : Refused(WhyNot(setting, standing, fault, words));
}

/// The stored number of what a list or switch is called.
std::optional<double> NumberOfWord(const Setting& setting, std::string_view text, const Words& words)
{
    const Option& option = *setting.option;
    if (option.kind == OptionKind::Switch) {
        for (const int number : {option.switchValues.on, option.switchValues.off})
            if (text == ShownNumber(setting, number, words))
                return number;
        if (text == "да" || text == "вкл")
            return option.switchValues.on;
        if (text == "нет" || text == "выкл")
            return option.switchValues.off;
        return std::nullopt;
    }
    int number = option.firstChoice;
    for (std::size_t item = 0; item < setting.Choices().size(); ++item, ++number)
        if (text == ShownNumber(setting, number, words))
            return number;
    return std::nullopt;
}

Entered EnteredText(std::string_view text, const Words& words)
{
    Entered entered;
    if (text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos)
        return Refused("Текст должен стоять в одной строке.");
    if (!words.toFile(text, entered.text))
        return Refused(Quoted(text) + ": в кодовой странице Windows нет такой буквы.");
    return entered.text.size() <= kLongestText ? entered : Refused("Текст длиннее 255 знаков.");
}

/// The number of decimals that a text has.
std::size_t DecimalsOf(std::string_view text)
{
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos)
        return 0;
    const std::string_view decimals = text.substr(point + 1);
    return std::min(decimals.find_first_not_of("0123456789"), decimals.size());
}

/// With as many decimals as are needed, six at least.
std::string PrintedWith(double number, std::size_t decimals)
{
    number_text::FixedBuffer buffer;
    std::string text(number_text::Print(buffer, number, static_cast<int>(std::max(decimals, kStoredDecimals))));
    const std::size_t least = text.find('.') + 1 + kStoredDecimals;
    while (text.size() > least && text.back() == '0')
        text.pop_back();
    return text;
}

/// The shortest text that is this number and no other of its type.
template <class Real> std::string Shortest(Real number)
{
    std::array<char, 400> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return {text.data(), end};
}

/// With six decimals at least.
std::string Filled(std::string text)
{
    const std::size_t decimals = DecimalsOf(text);
    if (decimals == 0)
        text += '.';
    if (decimals < kStoredDecimals)
        text.append(kStoredDecimals - decimals, '0');
    return text;
}

bool HoldsAlready(const SettingsText& file, const Setting& setting, const Values& wanted)
{
    const TextLine* const line = file.Find(setting.Section(), setting.Key());
    if (!line)
        return false;
    const std::string_view value = Unquoted(line->value);
    if (setting.IsText())
        return value == wanted.Text(setting);
    const TextValues values(file);
    if (setting.IsReal())
        return IsReal(value) &&
               IsSameNumber(values.Real(setting.Section(), setting.Key(), 0.0), wanted.Number(setting));
    return IsWhole(value) && values.Whole(setting.Section(), setting.Key(), 0) == wanted.Number(setting);
}

/// The units of the file's sections, and of those that it lacks.
class SectionUnits {
public:
    explicit SectionUnits(const SettingsText& file) : m_file(file), m_held(Values::AtStart(file, SettingsText()))
    {
        for (const RecordDescription& record : DescribeRecords())
            if (file.HasSection(record.table.Section()))
                ++(m_held.Units(record) == kInch ? m_inches : m_millimetres);
    }

    int Of(const RecordDescription& record, int otherwise) const
    {
        if (m_file.HasSection(record.table.Section()))
            return m_held.Units(record);
        if (m_inches == 0 && m_millimetres == 0)
            return otherwise;
        return m_millimetres > m_inches ? kMillimetre : kInch;
    }

private:
    const SettingsText& m_file;
    Values m_held;
    int m_inches = 0;
    int m_millimetres = 0;
};

const Setting& UnitsSetting(const RecordDescription& record)
{
    return *SettingOf(record.table.Options().front());
}

/// Whether the number under a length's own key is a length: by the type that its own section holds.
bool IsLengthIn(const SettingsText& file, const Setting& setting)
{
    if (setting.option->scaling != Scaling::WhileConstant)
        return setting.option->scaling == Scaling::Always;
    const Option& type = *setting.record->TypeOf(*setting.option);
    const int builtIn = static_cast<int>(setting.record->valueAtStart(type, kInch));
    return TextValues(file).Whole(setting.Section(), type.key, builtIn) == 0;
}

bool StandsInTheWay(const Finding& finding)
{
    if (!finding.setting || !finding.setting->record)
        return false;
    const bool isNoValue = finding.kind == FindingKind::NotANumber || finding.kind == FindingKind::NoSuchItem ||
                           finding.kind == FindingKind::OutOfRange;
    const Option& option = *finding.setting->option;
    return isNoValue &&
           (option.scaling != Scaling::Never || option.kind == OptionKind::Units || option.kind == OptionKind::Choice);
}

/// The units of the holes' factory values stand in a section of their own. The two must not come apart.
void ConvertUnitsOfHoles(const SettingsText& file, const Values& held, int units, Conversion& conversion)
{
    using Facts = RecordFacts<HoleProcessDefsInfo>;
    const Setting& ofFactory = *FindSetting(Facts::unitsOfDefaultsSection, "Units");
    const Setting& own = *FindSetting(Facts::table.Section(), "Units");
    const TextLine* const line = file.Find(ofFactory.Section(), ofFactory.Key());
    if (!line)
        return;
    const int factoryUnits = TextValues(file).Whole(ofFactory.Section(), ofFactory.Key(), kInch);
    const bool isApart = file.HasSection(own.Section()) && factoryUnits != held.Units(*own.record);
    if (isApart)
        conversion = {.changes = {},
                      .obstacles = {{.kind = FindingKind::OtherUnits,
                                     .line = line->number,
                                     .section = ofFactory.Section(),
                                     .key = ofFactory.Key(),
                                     .setting = &ofFactory,
                                     .standing = std::string(line->value),
                                     .used = factoryUnits == kInch ? "дюймы" : "мм"}}};
    else if (factoryUnits != units)
        conversion.changes.push_back({&ofFactory, std::to_string(units)});
}

std::string Converted(const SettingsText& file, const Setting& setting, int units)
{
    const TextLine* const line = file.Find(setting.Section(), setting.Key());
    const std::string standing = line ? std::string(Unquoted(line->value))
                                      : StoredText(setting, setting.record->valueAtStart(*setting.option, kInch));
    double number = 0.0;
    const std::size_t first = standing.starts_with('+') ? 1 : 0;
    std::from_chars(standing.data() + first, standing.data() + standing.size(), number);
    constexpr std::size_t kMostDecimals = 12;
    // A division by 25 needs two decimals more.
    return units == kMillimetre
               ? PrintedWith(number * kInchToMillimetre, std::min(DecimalsOf(standing), kMostDecimals))
               : PrintedWith(number * kMillimetreToInch, std::min(DecimalsOf(standing) + 2, kMostDecimals));
}

int LastLineOf(const SettingsText& file, std::string_view section)
{
    int last = 0;
    bool isWithin = false;
    for (const TextLine& line : file.Lines()) {
        if (line.kind == TextLine::Kind::Section && last > 0)
            break;
        isWithin = isWithin || (line.kind == TextLine::Kind::Section && IsSameName(line.section, section));
        if (isWithin)
            last = line.number;
    }
    return last;
}

} // namespace

Entered EnterNumber(const Setting& setting, double number, const Words& words)
{
    const bool isWhole = std::isfinite(number) && number == std::floor(number) && std::abs(number) <= 2147483647.0;
    if (!setting.IsReal() && !isWhole)
        return Refused("Нужно целое число.");
    if (!std::isfinite(number))
        return Refused("Нужно число.");
    return Checked(setting, number,
                   setting.IsReal() ? PrintedWith(number, 0) : std::to_string(static_cast<int>(number)), words);
}

Entered Enter(const Setting& setting, std::string_view text, const Words& words)
{
    if (setting.IsText())
        return EnteredText(text, words);
    text = WithoutBlanks(text);
    if (text.empty())
        return Refused("Введите значение.");
    if (const auto number = NumberOfWord(setting, text, words))
        return {.number = *number};
    double number = 0.0;
    if (text.find('\0') != std::string_view::npos || !EvalFieldReal(std::string(text).c_str(), &number))
        return Refused(setting.Choices().empty() && setting.option->kind != OptionKind::Switch
                           ? Quoted(text) + " не вычисляется."
                           : WhyNot(setting, text, Fault::NoSuchItem, words));
    if (!setting.IsReal() && (number != std::floor(number) || std::abs(number) > 2147483647.0))
        return Refused(Quoted(text) + ": нужно целое число.");
    return Checked(setting, number, text, words);
}

std::string StoredText(const Setting& setting, double number)
{
    if (!setting.IsReal())
        return std::to_string(static_cast<int>(number));
    const auto single = static_cast<float>(std::clamp(number, -kUnbounded, kUnbounded));
    std::string shortest = Shortest(number);
    if (DecimalsOf(shortest) > kMoreDecimals && static_cast<double>(single) == number)
        shortest = Shortest(single); // it has been read from a file
    return DecimalsOf(shortest) <= kMoreDecimals ? Filled(shortest) : PrintedWith(number, kStoredDecimals);
}

int UnitsOfSection(const SettingsText& file, const RecordDescription& record, int otherwise)
{
    return SectionUnits(file).Of(record, otherwise);
}

std::vector<Change> ChangesTo(const SettingsText& file, const Values& wanted, std::span<const Setting* const> chosen)
{
    const SectionUnits units(file);
    Values target = wanted;
    for (const RecordDescription& record : DescribeRecords())
        target.Convert(record, units.Of(record, wanted.Units(record)));

    std::vector<Change> changes;
    const RecordDescription* made = nullptr;
    for (const Setting* const setting : chosen) {
        if (setting->IsUnits() || HoldsAlready(file, *setting, target))
            continue;
        if (setting->record && setting->record != made && !file.HasSection(setting->Section())) {
            made = setting->record;
            changes.push_back({&UnitsSetting(*made), std::to_string(target.Units(*made))});
        }
        changes.push_back(
            {setting, setting->IsText() ? target.Text(*setting) : StoredText(*setting, target.Number(*setting))});
    }
    return changes;
}

Conversion ConversionTo(const SettingsText& file, int units, const Words& words)
{
    Conversion conversion;
    std::ranges::copy_if(Check(file, words), std::back_inserter(conversion.obstacles), StandsInTheWay);
    if (!conversion.obstacles.empty())
        return conversion;
    const Values held = Values::AtStart(file, SettingsText());
    for (const Setting& setting : AllSettings()) {
        if (!setting.record || !file.HasSection(setting.Section()) || held.Units(*setting.record) == units)
            continue;
        if (setting.IsUnits())
            conversion.changes.push_back({&setting, std::to_string(units)});
        else if (IsLengthIn(file, setting))
            conversion.changes.push_back({&setting, Converted(file, setting, units)});
    }
    ConvertUnitsOfHoles(file, held, units, conversion);
    return conversion;
}

SettingsText WithChanges(const SettingsText& file, std::span<const Change> changes)
{
    LineEdits edits;
    for (const Change& change : changes) {
        const std::string section = change.setting->Section();
        const TextLine* const line = file.FindNamed(section, change.setting->Key());
        if (!line && !change.text)
            continue;
        const std::string entry = change.text ? change.setting->Key() + ("=" + *change.text) : "";
        if (line)
            edits.replaced[line->number] = entry;
        else if (file.HasSection(section))
            edits.inserted[LastLineOf(file, section)].push_back(entry);
        else if (edits.appended.empty() || edits.sectionOfLast != section)
            edits.AppendSection(section, entry);
        else
            edits.appended.push_back(entry);
    }
    return file.Edited(edits);
}

std::vector<const Setting*> NotAsWanted(const SettingsText& file, const Values& wanted,
                                        std::span<const Setting* const> chosen)
{
    const Values held = Values::AtStart(file, SettingsText());
    Values target = wanted;
    target.ConvertAsIn(held);
    std::vector<const Setting*> others;
    std::ranges::copy_if(chosen, std::back_inserter(others), [&](const Setting* setting) {
        return !setting->IsUnits() && !IsSameValue(*setting, held, target);
    });
    return others;
}

std::vector<const Setting*> SoundSettings(const SettingsText& text, const Words& words)
{
    const std::vector<Finding> findings = Check(text, words);
    std::vector<const Setting*> sound;
    for (const Setting& setting : AllSettings()) {
        const bool isFaulty = std::ranges::any_of(findings, [&](const Finding& finding) {
            return finding.setting == &setting && finding.kind != FindingKind::OtherUnits &&
                   finding.kind != FindingKind::RepeatedKey;
        });
        if (!isFaulty && !setting.IsUnits() && text.Find(setting.Section(), setting.Key()))
            sound.push_back(&setting);
    }
    return sound;
}

} // namespace pelmar::review
