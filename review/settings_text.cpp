#include "review/settings_text.h"

#include <algorithm>
#include <cstdint>

#include "frame/number_text.h"

namespace pelmar::review {
namespace {

constexpr std::string_view kBlanks = " \t\v\f\r\n\x1a"; // the last one ended files once
constexpr int kStoredDecimals = 6;
constexpr std::size_t kLongestReal = 255; // what is longer is cut off there before it is read
constexpr std::size_t kLongestWhole = 29;

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

TextState StateOf(std::string_view bytes)
{
    if (bytes.empty())
        return TextState::Empty;
    if (bytes.size() > SettingsText::kLargest)
        return TextState::TooLarge;
    if (bytes.starts_with("\xff\xfe") || bytes.starts_with("\xfe\xff"))
        return TextState::Utf16;
    if (bytes.starts_with("\xef\xbb\xbf"))
        return TextState::Utf8Marked;
    if (bytes.find('\0') != std::string_view::npos)
        return TextState::Zeros;
    return TextState::Sound;
}

/// A carriage return, a line feed or both end a line.
std::size_t EndOfLine(std::string_view rest)
{
    const std::size_t end = rest.find_first_of("\r\n");
    if (end == std::string_view::npos)
        return rest.size();
    return rest.substr(end).starts_with("\r\n") ? end + 2 : end + 1;
}

constexpr char LoweredLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

int DigitOf(char letter)
{
    if (letter >= '0' && letter <= '9')
        return letter - '0';
    if (letter >= 'a' && letter <= 'z')
        return letter - 'a' + 10;
    return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 10 : 99;
}

int BaseOf(std::string_view digits)
{
    if (digits.size() < 2 || digits[0] != '0')
        return 10;
    switch (digits[1]) {
    case 'b':
        return 2;
    case 'o':
        return 8;
    case 'x':
        return 16;
    default:
        return 10;
    }
}

/// The number that a text begins with, as the platform reads it: wraps around at 32 bits, 0 where there is none.
int WholeOf(std::string_view text)
{
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ')
        text.remove_prefix(1);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    const int base = BaseOf(text);
    if (base != 10)
        text.remove_prefix(2);
    std::uint32_t number = 0;
    for (const char letter : text) {
        const int digit = DigitOf(letter);
        if (digit >= base)
            break;
        number = number * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit);
    }
    return static_cast<int>(isNegative ? 0U - number : number);
}

/// Where a section begins is kept under a name that no key has.
EntryName SectionName(std::string_view section)
{
    return {section, "\n"};
}

} // namespace

std::string Lowered(std::string_view name)
{
    std::string lowered(name);
    std::ranges::transform(lowered, lowered.begin(), LoweredLetter);
    return lowered;
}

bool IsSameName(std::string_view one, std::string_view other)
{
    return std::ranges::equal(one, other, {}, LoweredLetter, LoweredLetter);
}

std::size_t EntryNameHash::operator()(const EntryName& name) const
{
    std::uint64_t hash = 14695981039346656037U; // FNV-1a
    const auto add = [&hash](std::string_view text) {
        for (const char letter : text)
            hash = (hash ^ static_cast<unsigned char>(LoweredLetter(letter))) * 1099511628211U;
    };
    add(name.section);
    add("\n");
    add(name.key);
    return static_cast<std::size_t>(hash);
}

std::string_view Unquoted(std::string_view value)
{
    const bool isQuoted =
        value.size() > 1 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

SettingsText::SettingsText(std::string bytes)
    : m_bytes(std::make_shared<const std::string>(std::move(bytes))), m_state(StateOf(*m_bytes))
{
    if (m_state != TextState::Sound)
        return;
    std::string_view rest = *m_bytes;
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t length = EndOfLine(rest);
        const std::string_view line = Trimmed(rest.substr(0, length));
        if (!line.empty())
            AddLine(line, number);
        rest.remove_prefix(length);
    }
}

void SettingsText::AddLine(std::string_view line, int number)
{
    TextLine entry{.number = number, .section = m_section, .key = line, .value = {}};
    if (const std::size_t end = line.rfind(']'); line.front() == '[' && end != std::string_view::npos) {
        entry.kind = TextLine::Kind::Section;
        entry.section = m_section = Trimmed(line.substr(1, end - 1));
        m_isRepeated = !m_entries.emplace(SectionName(m_section), m_lines.size()).second;
        m_lines.push_back(entry);
        return;
    }
    const std::size_t equals = line.find('=');
    if (line.front() == ';') {
        entry.kind = TextLine::Kind::Comment;
    } else if (equals != std::string_view::npos) {
        entry.kind = TextLine::Kind::Entry;
        entry.key = Trimmed(line.substr(0, equals));
        entry.value = Trimmed(line.substr(equals + 1));
    }
    if (!m_isRepeated)
        m_entries.emplace(EntryName{m_section, entry.key}, m_lines.size());
    m_lines.push_back(entry);
}

const TextLine* SettingsText::Find(std::string_view section, std::string_view key) const
{
    const TextLine* const line = FindNamed(section, key);
    return line && line->kind == TextLine::Kind::Entry ? line : nullptr;
}

const TextLine* SettingsText::FindNamed(std::string_view section, std::string_view key) const
{
    const auto found = m_entries.find({section, key});
    return found == m_entries.end() ? nullptr : &m_lines[found->second];
}

bool SettingsText::HasSection(std::string_view section) const
{
    return m_entries.contains(SectionName(section));
}

SettingsText SettingsText::Edited(const LineEdits& edits) const
{
    constexpr std::string_view kEnd = "\r\n";
    std::string edited;
    const auto add = [&](std::string_view line) {
        if (!edited.empty() && edited.back() != '\n' && edited.back() != '\r')
            edited += kEnd;
        edited.append(line);
    };
    std::string_view rest = *m_bytes;
    for (int number = 1; !rest.empty(); ++number) {
        const std::string_view line = rest.substr(0, EndOfLine(rest));
        rest.remove_prefix(line.size());
        const auto replaced = edits.replaced.find(number);
        if (replaced == edits.replaced.end())
            add(line);
        else if (!replaced->second.empty())
            add(replaced->second + std::string(kEnd));
        if (const auto inserted = edits.inserted.find(number); inserted != edits.inserted.end())
            for (const std::string& text : inserted->second)
                add(text + std::string(kEnd));
    }
    for (const std::string& text : edits.appended)
        add(text + std::string(kEnd));
    return SettingsText(std::move(edited));
}

int TextValues::Whole(const char* section, const char* key, int fallback) const
{
    const TextLine* const line = m_text.Find(section, key);
    const std::string_view value = line ? Unquoted(line->value) : std::string_view();
    return value.empty() ? fallback : WholeOf(value.substr(0, kLongestWhole));
}

double TextValues::Real(const char* section, const char* key, double fallback) const
{
    double value = fallback;
    const TextLine* const line = m_text.Find(section, key);
    if (line && number_text::ParseStored(Unquoted(line->value).substr(0, kLongestReal), value))
        return value;
    number_text::FixedBuffer printed;
    number_text::ParseStored(number_text::Print(printed, fallback, kStoredDecimals), value);
    return value;
}

} // namespace pelmar::review
