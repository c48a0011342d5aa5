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

std::string Narrow(UINT codePage, const CString& text, DWORD flags = 0, BOOL* hasOthers = nullptr)
{
    const int length = text.GetLength();
    const int size = WideCharToMultiByte(codePage, flags, text, length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, flags, text, length, narrow.data(), size, nullptr, hasOthers);
    return narrow;
}

std::string TextOfString(unsigned id)
{
    return Utf8Text(LoadText(id));
}

std::string TextOfFile(std::string_view bytes)
{
    return Utf8Text(Wide(CP_ACP, bytes));
}

bool ToFile(std::string_view text, std::string& bytes)
{
    if (GetACP() == CP_UTF8) {
        bytes = text; // there every letter has its place
        return true;
    }
    BOOL hasOthers = FALSE;
    bytes = Narrow(CP_ACP, WideText(text), WC_NO_BEST_FIT_CHARS, &hasOthers);
    return !hasOthers;
}

} // namespace

const review::Words kLibraryWords{.ofString = TextOfString, .ofFile = TextOfFile, .toFile = ToFile};

CString WideText(std::string_view utf8)
{
    return Wide(CP_UTF8, utf8);
}

std::string Utf8Text(const CString& text)
{
    return Narrow(CP_UTF8, text);
}

} // namespace pelmar
