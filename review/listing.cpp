#include "review/listing.h"

#include <algorithm>
#include <iterator>

namespace pelmar::review {
namespace {

constexpr std::size_t kMostFindingRows = 2000; // a file that has more is no settings file
constexpr std::size_t kLongestShown = 300;     // bytes of a text that a file holds

/// Small letters, Latin and Russian; "ё" counts as "е".
std::string Folded(std::string_view text)
{
    std::string folded = Lowered(text);
    for (std::size_t at = 0; at + 1 < folded.size(); ++at) {
        const auto first = static_cast<unsigned char>(folded[at]);
        const auto second = static_cast<unsigned char>(folded[at + 1]);
        const auto put = [&](unsigned char one, unsigned char other) {
            folded[at] = static_cast<char>(one);
            folded[at + 1] = static_cast<char>(other);
        };
        if (first == 0xD0 && second >= 0x90 && second <= 0x9F)
            put(0xD0, second + 0x20);
        else if (first == 0xD0 && second >= 0xA0 && second <= 0xAF)
            put(0xD1, second - 0x20);
        else if ((first == 0xD0 && second == 0x81) || (first == 0xD1 && second == 0x91))
            put(0xD0, 0xB5);
    }
    return folded;
}

std::vector<std::string> WordsOf(std::string_view text)
{
    std::vector<std::string> words;
    std::string word;
    for (const char letter : Folded(text) + " ") {
        if (letter != ' ' && letter != '\t') {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::move(word));
            word.clear();
        }
    }
    return words;
}

/// Of a file, as it may stand in one line of a list: bounded, and without what would end the line or the column.
std::string Presentable(std::string text)
{
    for (char& letter : text)
        if (static_cast<unsigned char>(letter) < ' ')
            letter = ' ';
    return Shortened(text, kLongestShown);
}

/// What the file holds of a value is no longer of interest once the value is another one.
bool IsOfTheValue(FindingKind kind)
{
    return kind == FindingKind::NotANumber || kind == FindingKind::OutOfRange || kind == FindingKind::NoSuchItem ||
           kind == FindingKind::MissingKey;
}

bool IsANumber(const Setting& setting)
{
    return !setting.IsText() && !setting.IsUnits() && setting.Choices().empty() &&
           setting.option->kind != OptionKind::Switch;
}

void Append(std::string& text, const std::string& sentence)
{
    if (!sentence.empty())
        text += (text.empty() ? "" : " ") + sentence;
}

/// For people, of a finding that is of no row's setting.
std::string OperationOf(const Finding& finding, const Words& words)
{
    for (const Setting& setting : AllSettings())
        if (IsSameName(setting.Section(), finding.section))
            return setting.Operation();
    return finding.section.empty() ? "Файл" : Presentable("[" + words.ofFile(finding.section) + "]");
}

std::string OptionOf(const Finding& finding, const Words& words)
{
    return finding.setting ? finding.setting->Label() : Presentable(words.ofFile(finding.key));
}

} // namespace

Place ListingRow::WhereEdited() const
{
    if (!setting || !setting->record)
        return {};
    const Control* const control = setting->EditedBy();
    return {.templateId = setting->record->templateId, .controlId = control ? control->id : 0};
}

Listing::Listing(Values held, Values compared, const Words& words)
    : m_words(words), m_atStart(held), m_values(std::move(held)), m_compared(std::move(compared))
{
    m_compared.ConvertAsIn(m_values);
    for (const Setting& setting : AllSettings())
        if (!setting.IsOfHost())
            m_rows.push_back({.setting = &setting});
    m_settings = m_rows.size();
    RefreshAll();
}

void Listing::SetFile(const SettingsText* file, const std::string& trouble)
{
    m_rows.resize(m_settings);
    for (ListingRow& row : m_rows)
        row.findings.clear();
    if (!trouble.empty())
        m_rows.push_back({.note = trouble});
    std::size_t left = kMostFindingRows;
    for (Finding& finding : file ? Check(*file, m_words) : std::vector<Finding>()) {
        const std::span<ListingRow> settings(m_rows.data(), m_settings);
        const auto row = std::ranges::find(settings, finding.setting, &ListingRow::setting);
        if (row != settings.end())
            row->findings.push_back(std::move(finding));
        else if (left > 0 && --left > 0)
            m_rows.push_back({.findings = {std::move(finding)}});
        else if (m_rows.back().note.empty())
            m_rows.push_back({.note = "Найдено ещё больше: это не файл параметров."});
    }
    RefreshAll();
}

void Listing::CompareWith(Values compared)
{
    m_compared = std::move(compared);
    m_compared.ConvertAsIn(m_values);
    RefreshAll();
}

void Listing::Search(std::string_view text)
{
    m_search = WordsOf(text);
    Arrange();
}

void Listing::Show(Shown shown)
{
    m_what = shown;
    Arrange();
}

void Listing::SortBy(Order order)
{
    m_order = order;
    Arrange();
}

std::size_t Listing::CountOf(bool ListingRow::*what) const
{
    return static_cast<std::size_t>(std::ranges::count(m_rows, true, what));
}

std::string Listing::EditedText(std::size_t number) const
{
    const Setting* const setting = m_rows[number].setting;
    return setting ? ShownValue(*setting, m_values, m_words) : "";
}

std::string Listing::Edit(std::size_t number, std::string_view text)
{
    const ListingRow& row = m_rows[number];
    if (!row.IsEditable())
        return "Это значение здесь не изменяется.";
    // A number is shown shorter than it is held; as it is shown it stays what it is.
    if (text == EditedText(number))
        return {};
    const Entered entered = Enter(*row.setting, text, m_words);
    if (!entered.IsGood())
        return entered.refusal;
    m_values.SetNumber(*row.setting, entered.number);
    RefreshAll();
    return {};
}

Taken Listing::Take(std::span<const std::size_t> numbers)
{
    Taken taken;
    for (const std::size_t number : numbers)
        if (const ListingRow& row = m_rows[number]; row.IsEditable() && IsDifferent(*row.setting))
            TakeOne(*row.setting, taken);
    RefreshAll();
    return taken;
}

void Listing::TakeOne(const Setting& setting, Taken& taken)
{
    const Option* const type = setting.record->TypeOf(*setting.option);
    const Setting* const typeSetting = type ? SettingOf(*type) : nullptr;
    std::vector<const Setting*> together = {&setting};
    if (typeSetting && !IsSameValue(*typeSetting, m_values, m_compared))
        together.push_back(typeSetting);
    for (const Setting* const one : together) {
        const Entered entered = EnterNumber(*one, m_compared.Number(*one), m_words);
        if (!entered.IsGood()) {
            taken.refusals.push_back(std::string(one->Operation()) + ", " + one->Label() + ": " + entered.refusal);
            return;
        }
    }
    for (const Setting* const one : together)
        m_values.SetNumber(*one, m_compared.Number(*one));
    ++taken.count;
}

void Listing::Keep(const Values& values, std::span<const Setting* const> edited)
{
    for (const Setting* const setting : edited)
        m_values.SetNumber(*setting, values.Number(*setting));
    RefreshAll();
}

std::string Listing::Copied(std::span<const std::size_t> numbers) const
{
    std::string copied;
    for (const std::size_t number : numbers) {
        const auto& texts = m_rows[number].texts;
        for (std::size_t column = 0; column < kColumns; ++column)
            copied += (column ? "\t" : "") + texts[column];
        copied += "\r\n";
    }
    return copied;
}

std::vector<const Setting*> Listing::Edited() const
{
    std::vector<const Setting*> edited;
    for (const ListingRow& row : m_rows)
        if (row.isEdited)
            edited.push_back(row.setting);
    return edited;
}

bool Listing::IsEdited(const Setting& setting) const
{
    return setting.record && m_values.Number(setting) != m_atStart.Number(setting);
}

/// A number of another unit is another value, whatever its digits.
bool Listing::IsDifferent(const Setting& setting) const
{
    return !setting.IsUnits() && (!IsSameValue(setting, m_values, m_compared) ||
                                  ShownUnit(setting, m_values) != ShownUnit(setting, m_compared));
}

std::string Listing::ValueWithUnit(const Setting& setting, const Values& values) const
{
    return WithUnit(ShownValue(setting, values, m_words), ShownUnit(setting, values));
}

std::string Listing::FindingText(ListingRow& row) const
{
    std::string text = row.note;
    bool isValueTold = false;
    for (const Finding& finding : row.findings) {
        if (row.isEdited && IsOfTheValue(finding.kind))
            continue;
        isValueTold = isValueTold || IsOfTheValue(finding.kind);
        if (finding.line > 0)
            Append(text, "Строка " + std::to_string(finding.line) + ".");
        Append(text, Presentable(Explanation(finding, m_words)));
    }
    const bool isChecked = row.setting && !row.setting->IsText() && !isValueTold;
    if (isChecked && FaultOf(*row.setting, m_values.Number(*row.setting)) != Fault::None)
        Append(text, EnterNumber(*row.setting, m_values.Number(*row.setting), m_words).refusal);
    row.isFaulty = !text.empty();
    if (row.isEdited)
        Append(text, "Изменено, было: " + ValueWithUnit(*row.setting, m_atStart) + ".");
    if (row.setting && row.setting->option->readSection)
        Append(text, std::string("Читается из раздела ") + row.setting->option->readSection + ".");
    return text;
}

void Listing::Refresh(ListingRow& row) const
{
    auto& [operation, option, value, compared, finding] = row.texts;
    if (row.setting) {
        row.isEdited = IsEdited(*row.setting);
        row.isDifferent = IsDifferent(*row.setting);
        operation = row.setting->Operation();
        option = row.setting->Label();
        value = Presentable(ValueWithUnit(*row.setting, m_values));
        compared = Presentable(ValueWithUnit(*row.setting, m_compared));
    } else if (!row.findings.empty()) {
        const Finding& first = row.findings.front();
        operation = OperationOf(first, m_words);
        option = OptionOf(first, m_words);
        value = Presentable(m_words.ofFile(first.standing));
    } else {
        operation = OperationOf(Finding{.kind = FindingKind::FileIsEmpty}, m_words);
    }
    finding = FindingText(row);
    row.searched = Folded(operation + "\n" + option + "\n" + (row.setting ? row.setting->Name() : finding));
}

void Listing::RefreshAll()
{
    for (ListingRow& row : m_rows)
        Refresh(row);
    Arrange();
}

void Listing::Arrange()
{
    m_listed.clear();
    for (std::size_t number = 0; number < m_rows.size(); ++number)
        if (IsListed(m_rows[number]))
            m_listed.push_back(number);
    if (!m_order.by)
        return;
    std::ranges::stable_sort(m_listed, [this](std::size_t one, std::size_t other) { return IsBefore(one, other); });
}

bool Listing::IsListed(const ListingRow& row) const
{
    if ((m_what == Shown::Different && !row.isDifferent) || (m_what == Shown::Faulty && !row.isFaulty))
        return false;
    return std::ranges::all_of(
        m_search, [&row](const std::string& word) { return row.searched.find(word) != std::string::npos; });
}

/// Rows that have nothing to say come last, whatever the order.
bool Listing::IsBefore(std::size_t one, std::size_t other) const
{
    const auto isEmpty = [this](std::size_t row) {
        return m_rows[row].texts[static_cast<std::size_t>(*m_order.by)].empty();
    };
    if (isEmpty(one) != isEmpty(other))
        return isEmpty(other);
    return m_order.isDescending ? IsLess(other, one) : IsLess(one, other);
}

/// Numbers by their size and before texts.
bool Listing::IsLess(std::size_t one, std::size_t other) const
{
    const Column column = *m_order.by;
    if (column == Column::Value || column == Column::Compared) {
        const Values& values = column == Column::Value ? m_values : m_compared;
        const Setting* const first = m_rows[one].setting;
        const Setting* const second = m_rows[other].setting;
        const bool isFirst = first && IsANumber(*first);
        const bool isSecond = second && IsANumber(*second);
        if (isFirst && isSecond)
            return values.Number(*first) < values.Number(*second);
        if (isFirst != isSecond)
            return isFirst;
    }
    const auto text = [&](std::size_t row) { return Folded(m_rows[row].texts[static_cast<std::size_t>(column)]); };
    return text(one) < text(other);
}

} // namespace pelmar::review
