#include "frame/damaged_settings.h"

#include <cstring>

namespace pelmar {
namespace {

constexpr std::string_view kWideMark = "\xFF\xFE"; // before UTF-16, in which every other byte is a zero by right

/// A last line that was cut off before its "=": neither empty, nor a remark, nor a section. An old end-of-file mark
/// counts as a blank.
template <class Character> bool EndsInAKey(std::basic_string_view<Character> text)
{
    constexpr Character kBlanks[] = {' ', '\t', '\r', 0x1A, 0};
    const std::basic_string_view<Character> line = text.substr(text.rfind(Character{'\n'}) + 1);
    const size_t first = line.find_first_not_of(kBlanks);
    if (first == line.npos || line[first] == ';')
        return false;
    return line.find(line[first] == '[' ? Character{']'} : Character{'='}) == line.npos;
}

template <class Character> bool IsDamagedText(std::basic_string_view<Character> text)
{
    return text.find(Character{0}) != text.npos || EndsInAKey(text);
}

template <class Character> std::basic_string<Character> MendedText(std::basic_string<Character> text)
{
    std::erase(text, Character{0});
    if (EndsInAKey(std::basic_string_view<Character>(text)))
        text += {'\r', '\n'};
    return text;
}

bool IsWide(std::string_view bytes)
{
    return bytes.starts_with(kWideMark);
}

/// The characters of a wide file, without the mark; half a character at the end is left out.
std::u16string WideText(std::string_view bytes)
{
    bytes.remove_prefix(kWideMark.size());
    std::u16string text(bytes.size() / 2, u'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * 2);
    return text;
}

} // namespace

bool IsDamaged(std::string_view bytes)
{
    return IsWide(bytes) ? IsDamagedText<char16_t>(WideText(bytes)) : IsDamagedText(bytes);
}

std::string Mended(std::string_view bytes)
{
    if (!IsWide(bytes))
        return MendedText(std::string(bytes));
    const std::u16string text = MendedText(WideText(bytes));
    std::string mended(kWideMark);
    mended.resize(kWideMark.size() + text.size() * 2);
    std::memcpy(mended.data() + kWideMark.size(), text.data(), text.size() * 2);
    return mended;
}

} // namespace pelmar
