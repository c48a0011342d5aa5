#include "settings_file.h"

#include <afxwin.h>

#include "frame/file.h"
#include "frame/held_file.h"
#include "frame/profile_entry.h"
#include "review/findings.h"
#include "texts.h"

namespace pelmar::tool {
namespace {

std::string Named(std::string_view name)
{
    return std::string(name) + ": ";
}

[[noreturn]] void Refuse(const FilePath& path, std::string_view reason)
{
    throw NotDone(Named(path.shown) + std::string(reason));
}

bool IsDevice(std::wstring_view path)
{
    return path.starts_with(L"\\\\.\\") || path.starts_with(L"\\\\?\\") || path.starts_with(L"\\??\\");
}

bool IsThereNoDrive(const std::string& path)
{
    return path.size() > 2 && path[1] == ':' && GetDriveTypeA(path.substr(0, 3).c_str()) == DRIVE_NO_ROOT_DIR;
}

std::string WhyNotOpen(const FilePath& path, DWORD error)
{
    const DWORD attributes = GetFileAttributesA(path.narrow.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return "это папка, а нужен файл.";
    if (IsThereNoDrive(path.narrow))
        return "диска " + path.narrow.substr(0, 2) + " нет. Проверьте, подключён ли он.";
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return "такого файла нет.";
    case ERROR_PATH_NOT_FOUND:
        return "нет такой папки.";
    case ERROR_ACCESS_DENIED:
        return "нет права читать этот файл.";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return "файл занят другой программой. Повторите, когда она закроет его.";
    default:
        return "файл не открывается: " + SystemReason(error) + ".";
    }
}

unsigned long long SizeOf(const File& file)
{
    BY_HANDLE_FILE_INFORMATION description{};
    file.Describe(description);
    return static_cast<unsigned long long>(description.nFileSizeHigh) << 32 | description.nFileSizeLow;
}

} // namespace

FilePath FilePath::Of(std::string_view name)
{
    if (name.empty())
        throw NotDone("Имя файла пустое.");
    const std::wstring wide = Wide(name);
    wchar_t full[32768] = L"";
    const DWORD length = GetFullPathNameW(wide.c_str(), 32768, full, nullptr);
    if (wide.find(L'\0') != std::wstring::npos || length == 0 || length >= 32768)
        throw NotDone(Named(name) + "такого имени у файла быть не может.");
    if (IsDevice(wide) || IsDevice(full))
        throw NotDone(Named(name) + "это устройство, а нужен файл.");
    FilePath path{.shown = std::string(name), .narrow = {}};
    if (!ToNarrow(full, path.narrow))
        throw NotDone(Named(name) + "в пути есть буквы, которых нет в кодовой странице Windows. Переименуйте файл или "
                                    "папку.");
    if (path.narrow.size() >= MAX_PATH)
        throw NotDone(Named(name) + "путь длиннее 259 знаков, Windows не примет его. Положите файл ближе к корню "
                                    "диска.");
    return path;
}

FilePath FilePath::Beside(std::string_view name) const
{
    const std::size_t end = shown.find_last_of("\\/:");
    return Of((end == std::string::npos ? "" : shown.substr(0, end + 1)) + std::string(name));
}

bool FilePath::IsSame(const FilePath& other) const
{
    return IsSameName(narrow, other.narrow);
}

bool FilePath::Exists() const
{
    return GetFileAttributesA(narrow.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string ReadWhole(const FilePath& path, std::size_t largest)
{
    const HeldFile held(path.narrow.c_str());
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const File file(path.narrow, GENERIC_READ, kShareAll, OPEN_EXISTING);
    if (!file.IsOpen())
        Refuse(path, WhyNotOpen(path, GetLastError()));
    const unsigned long long size = SizeOf(file);
    if (size > largest)
        Refuse(path, "файл слишком велик: " + Grouped(size) + " байт, а допустимо не больше " + Grouped(largest) + ".");
    std::string bytes;
    if (!file.Read(bytes))
        Refuse(path, "файл не читается: " + SystemReason(GetLastError()) + ".");
    return bytes;
}

SettingsFile SettingsFile::Read(const FilePath& path)
{
    return {path, review::SettingsText(ReadWhole(path, review::SettingsText::kLargest))};
}

const SettingsFile& SettingsFile::MustBeSound() const
{
    if (text.State() != review::TextState::Sound && text.State() != review::TextState::Empty)
        Refuse(path, review::Explanation(review::Check(text, LibraryWords()).front(), LibraryWords()));
    return *this;
}

} // namespace pelmar::tool
