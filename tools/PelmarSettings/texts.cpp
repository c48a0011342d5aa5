#include "texts.h"

#include <algorithm>

#include <windows.h>

namespace pelmar::tool {
namespace {

std::wstring WideOf(UINT codePage, std::string_view text)
{
    const auto length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int written =
        MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(written));
    return wide;
}

std::string NarrowOf(UINT codePage, std::wstring_view text)
{
    constexpr std::size_t kMostBytes = 4; // of a letter, in any code page
    std::string narrow(kMostBytes * text.size(), '\0');
    const int written = WideCharToMultiByte(codePage, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                                            static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(written));
    return narrow;
}

std::string OfString(unsigned id)
{
    const HMODULE library = GetModuleHandleW(L"PelmarDlgs.dll");
    const wchar_t* text = nullptr;
    const int length = LoadStringW(library, id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? Utf8({text, static_cast<std::size_t>(length)}) : std::string();
}

std::string SystemText(DWORD error, LANGID language)
{
    wchar_t text[1024] = L"";
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, language,
                                  text, 1024, nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return Utf8({text, length});
}

} // namespace

std::string Utf8(std::wstring_view text)
{
    return NarrowOf(CP_UTF8, text);
}

std::wstring Wide(std::string_view utf8)
{
    return WideOf(CP_UTF8, utf8);
}

bool ToNarrow(std::wstring_view text, std::string& narrow)
{
    narrow = NarrowOf(CP_ACP, text);
    return WideOf(CP_ACP, narrow) == text; // a letter that is only like the one meant does not come back
}

std::string Utf8OfNarrow(std::string_view narrow)
{
    return Utf8(WideOf(CP_ACP, narrow));
}

const review::Words& LibraryWords()
{
    static const review::Words words{
        .ofString = OfString, .ofFile = Utf8OfNarrow, .toFile = [](std::string_view text, std::string& bytes) {
            return ToNarrow(Wide(text), bytes);
        }};
    return words;
}

std::string SystemReason(unsigned long error)
{
    std::string text = SystemText(error, MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT));
    if (text.empty())
        text = SystemText(error, 0); // in the language that the system has
    const std::string code = "код " + std::to_string(error);
    return text.empty() ? code : text + " (" + code + ")";
}

std::string Grouped(unsigned long long number)
{
    std::string text = std::to_string(number);
    for (std::size_t end = text.size(); end > 3; end -= 3)
        text.insert(end - 3, 1, ' ');
    return text;
}

std::size_t LengthOf(std::string_view utf8)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

} // namespace pelmar::tool
