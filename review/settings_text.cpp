#include "review/settings_text.h"

#include <algorithm>
#include <cstdint>

#include "frame/number_text.h"

namespace pelmar::review {
namespace {

constexpr std::size_t kLongestReal = 255; // what is longer is cut off there before it is read
constexpr std::size_t kLongestWhole = 29;

constexpr bool IsBlank(char letter)
{
    return letter == ' ' || (letter >= '\t' && letter <= '\r') || letter == '\x1a'; // that one ended files once
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
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
    const auto isEnd = [](char letter) { return letter == '\r' || letter == '\n'; };
    const auto end = static_cast<std::size_t>(std::ranges::find_if(rest, isEnd) - rest.begin());
    if (end == rest.size())
        return end;
    return rest.substr(end).starts_with("\r\n") ? end + 2 : end + 1;
}

/// Where the name in brackets ends that the line is; none where it is something else.
std::size_t EndOfSectionName(std::string_view line)
{
    return line.front() == '[' ? line.rfind(']') : std::string_view::npos;
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

SettingsText::SettingsText(std::string bytes) : m_content(std::make_shared<const Content>(std::move(bytes))) {}

SettingsText::Content::Content(std::string text) : bytes(std::move(text)), state(StateOf(bytes))
{
    if (state != TextState::Sound)
        return;
    constexpr std::size_t kUsualLine = 20;
    lines.reserve(bytes.size() / kUsualLine + 1);
    std::string_view rest = bytes;
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t length = EndOfLine(rest);
        const std::string_view line = Trimmed(rest.substr(0, length));
        if (!line.empty())
            AddLine(line, number);
        rest.remove_prefix(length);
    }
}

void SettingsText::Content::AddLine(std::string_view line, int number)
{
    TextLine entry{.number = number, .section = section, .key = line, .value = {}};
    if (const std::size_t end = EndOfSectionName(line); end != std::string_view::npos) {
        entry.kind = TextLine::Kind::Section;
        entry.section = section = Trimmed(line.substr(1, end - 1));
        isRepeated = !entries.emplace(SectionName(section), lines.size()).second;
        lines.push_back(entry);
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
    if (!isRepeated)
        entries.emplace(EntryName{section, entry.key}, lines.size());
    lines.push_back(entry);
}

const TextLine* SettingsText::Find(std::string_view section, std::string_view key) const
{
    const TextLine* const line = FindNamed(section, key);
    return line && line->kind == TextLine::Kind::Entry ? line : nullptr;
}

const TextLine* SettingsText::FindNamed(std::string_view section, std::string_view key) const
{
    const auto found = m_content->entries.find({section, key});
    return found == m_content->entries.end() ? nullptr : &m_content->lines[found->second];
}

bool SettingsText::HasSection(std::string_view section) const
{
    return m_content->entries.contains(SectionName(section));
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
    std::string_view rest = Bytes();
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

int StoredWhole(std::string_view value, int fallback)
{
    value = Unquoted(value);
    return value.empty() ? fallback : WholeOf(value.substr(0, kLongestWhole));
}

double StoredReal(std::string_view value, double fallback)
{
    double real = fallback;
    if (number_text::ParseStored(Unquoted(value).substr(0, kLongestReal), real))
        return real;
    number_text::FixedBuffer printed;
    number_text::ParseStored(number_text::Print(printed, fallback, number_text::kStoredDecimals), real);
    return real;
}

int TextValues::Whole(const char* section, const char* key, int fallback) const
{
    return StoredWhole(ValueOf(section, key), fallback);
}

double TextValues::Real(const char* section, const char* key, double fallback) const
{
    return StoredReal(ValueOf(section, key), fallback);
}

std::string_view TextValues::ValueOf(const char* section, const char* key) const
{
    const TextLine* const line = m_text.Find(section, key);
    return line ? line->value : std::string_view();
}

} // namespace pelmar::review
