#include "file_chooser.h"

#include <filesystem>
#include <vector>

#include <windows.h>

#include <commdlg.h>

#include "module.h"
#include "resource.h"

namespace pelmar {
namespace {

constexpr size_t kPathCapacity = 32768;

std::wstring Title(const std::wstring& operation)
{
    std::wstring title = LoadText(IDS_CHOOSE_TEMPLATE);
    return title.replace(title.find(L"%1"), 2, operation);
}

/// As the system wants it: each part ended by a terminator, and one more after the last.
std::wstring Filter()
{
    const std::wstring end(1, L'\0');
    return LoadText(IDS_TEMPLATE_FILES) + end + L"*.tpt" + end + LoadText(IDS_ALL_FILES) + end + L"*.*" + end;
}

/// The path that the user chose; empty where the user cancelled.
std::wstring Ask(const std::wstring& operation, const std::string& initial)
{
    std::vector<wchar_t> path(kPathCapacity);
    // A text that is no path at all would keep the dialog from opening.
    if (GetFileAttributesA(initial.c_str()) != INVALID_FILE_ATTRIBUTES)
        MultiByteToWideChar(CP_ACP, 0, initial.c_str(), -1, path.data(), static_cast<int>(path.size()));
    const std::wstring title = Title(operation);
    const std::wstring filter = Filter();
    OPENFILENAMEW choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = GetActiveWindow();
    choice.lpstrFilter = filter.c_str();
    choice.lpstrFile = path.data();
    choice.nMaxFile = static_cast<DWORD>(path.size());
    choice.lpstrTitle = title.c_str();
    choice.lpstrDefExt = L"tpt";
    choice.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
    // The dialog moves the process's current folder, which relative settings paths start from.
    std::error_code ignored;
    const auto current = std::filesystem::current_path(ignored);
    const bool chosen = GetOpenFileNameW(&choice);
    std::filesystem::current_path(current, ignored);
    return chosen ? path.data() : L"";
}

std::optional<std::string> InCodePage(const std::wstring& path, size_t capacity)
{
    BOOL lost = FALSE;
    std::string narrow(capacity, '\0');
    const int length = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path.c_str(), -1, narrow.data(),
                                           static_cast<int>(narrow.size()), nullptr, &lost);
    if (length <= 0 || lost)
        return {};
    narrow.resize(static_cast<size_t>(length) - 1);
    return narrow;
}

} // namespace

std::optional<std::string> ChooseTemplateFile(const std::wstring& operation, const std::string& initial,
                                              size_t capacity)
{
    const std::wstring path = Ask(operation, initial);
    if (path.empty())
        return {};
    std::optional<std::string> narrow = InCodePage(path, capacity);
    if (!narrow)
        MessageBoxW(GetActiveWindow(), LoadText(IDS_PATH_NOT_EXPRESSIBLE).c_str(), Title(operation).c_str(),
                    MB_OK | MB_ICONEXCLAMATION);
    return narrow;
}

} // namespace pelmar
