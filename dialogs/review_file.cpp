#include "dialogs/review_file.h"

#include <algorithm>

#include "description/description.h"
#include "dialogs/review_words.h"
#include "frame/module.h"
#include "resources/resource.h"
#include "review/findings.h"

namespace pelmar {
namespace {

/// The system's words for its own reason, without the line end.
CString SystemReason(DWORD error)
{
    wchar_t text[512] = L"";
    DWORD length = FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text,
                                 static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && text[length - 1] <= L' ')
        --length;
    return CString(text, static_cast<int>(length));
}

CString Told(UINT format, const CString& detail)
{
    CString text;
    AfxFormatString2(text, format, detail, L"");
    return text;
}

/// Closed at the end of its scope.
class OpenFile {
public:
    explicit OpenFile(const CString& path)
        : m_handle(CreateFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~OpenFile()
    {
        if (IsOpen())
            CloseHandle(m_handle);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool Size(LARGE_INTEGER& size) const { return GetFileSizeEx(m_handle, &size); }
    /// What there is of it, at most as much as the bytes have room for.
    bool Read(std::string& bytes) const
    {
        DWORD read = 0;
        if (!ReadFile(m_handle, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
            return false;
        bytes.resize(read);
        return true;
    }

private:
    HANDLE m_handle;
};

ReadSettings TroubleOf(DWORD error)
{
    return {.trouble = Told(IDS_REVIEW_UNREADABLE, SystemReason(error))};
}

bool IsMissing(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool HoldsAnySetting(const review::SettingsText& text)
{
    return std::ranges::any_of(text.Lines(), [](const review::TextLine& line) {
        return line.kind == review::TextLine::Kind::Section && review::IsKnownSection(line.section);
    });
}

} // namespace

ReadSettings ReadSettingsFile(const CString& path)
{
    if (const DWORD attributes = GetFileAttributes(path);
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return {.trouble = LoadText(IDS_REVIEW_IS_FOLDER)};
    const OpenFile file(path);
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        return IsMissing(error) ? ReadSettings() : TroubleOf(error);
    }
    LARGE_INTEGER size{};
    if (!file.Size(size))
        return TroubleOf(GetLastError());
    if (size.QuadPart > static_cast<LONGLONG>(review::SettingsText::kLargest)) {
        CString megabytes;
        megabytes.Format(L"%.1f", static_cast<double>(size.QuadPart) / (1 << 20));
        return {.trouble = Told(IDS_REVIEW_TOO_LARGE, megabytes)};
    }
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    if (!file.Read(bytes))
        return TroubleOf(GetLastError());
    return {.text = review::SettingsText(std::move(bytes))};
}

CString WhyNotComparable(const ReadSettings& settings)
{
    if (!settings.text)
        return settings.trouble.IsEmpty() ? LoadText(IDS_REVIEW_MISSING) : settings.trouble;
    if (settings.text->State() != review::TextState::Sound)
        return WideText(review::Explanation(review::Check(*settings.text, kLibraryWords).front(), kLibraryWords));
    return HoldsAnySetting(*settings.text) ? CString() : LoadText(IDS_REVIEW_NO_SETTINGS);
}

} // namespace pelmar
