#include "pending_save.h"

#include <PelmarDlgs.h>

#include "save_report.h"
#include "settings.h"

using namespace pelmar;

namespace {

/// Whether what was saved can have got into the file: a file that nobody may write now has not taken it.
SaveResult ResultFor(const char* file)
{
    SaveResult result;
    const HANDLE handle = CreateFileA(file, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
        return result;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND)
        return result;
    result.saved = false;
    result.file = FullPath(file);
    result.reason = SystemReason(error);
    return result;
}

SaveResult ResultOfLastSave()
{
    const SaveResult result = ResultFor(GetSettingsLocations().settingsFile.c_str());
    return result.saved ? ResultFor(GetSettingsLocations().hostSettingsFile.c_str()) : result;
}

} // namespace

bool PendingSave::Save(UINT what, const std::function<void()>& store)
{
    return SaveAndReport(what, [&] {
        store();
        return ResultOfLastSave();
    });
}
