#include "module_version.h"

#include <vector>

CString VersionOf(HMODULE module)
{
    wchar_t path[MAX_PATH];
    const DWORD length = module ? GetModuleFileName(module, path, MAX_PATH) : 0;
    if (length == 0 || length == MAX_PATH)
        return {};
    std::vector<char> resource(GetFileVersionInfoSize(path, nullptr));
    void* data = nullptr;
    UINT size = 0;
    if (resource.empty() || !GetFileVersionInfo(path, 0, static_cast<DWORD>(resource.size()), resource.data()) ||
        !VerQueryValue(resource.data(), L"\\", &data, &size) || size < sizeof(VS_FIXEDFILEINFO))
        return {};
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(data);
    CString text;
    text.Format(L"%u.%u.%u", HIWORD(version.dwFileVersionMS), LOWORD(version.dwFileVersionMS),
                HIWORD(version.dwFileVersionLS));
    return text;
}
