#include "dialogs/review_words.h"

#include "frame/module.h"

namespace pelmar {
namespace {

CString Wide(UINT codePage, std::string_view text)
{
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    CString wide;
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.GetBuffer(length), length);
    wide.ReleaseBuffer(length);
    return wide;
}

std::string TextOfString(unsigned id)
{
    return Utf8Text(LoadText(id));
}

std::string TextOfFile(std::string_view bytes)
{
    return Utf8Text(Wide(CP_ACP, bytes));
}

} // namespace

const review::Words kLibraryWords{.ofString = TextOfString, .ofFile = TextOfFile};

CString WideText(std::string_view utf8)
{
    return Wide(CP_UTF8, utf8);
}

std::string Utf8Text(const CString& text)
{
    const int length = text.GetLength();
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

} // namespace pelmar
