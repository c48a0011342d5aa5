#include "frame/help_viewer.h"

#include <string>

#include "PelmarDlgs/settings_locations.h"

namespace pelmar {
namespace {
using HtmlHelpFunction = HWND WINAPI(HWND caller, const char* file, UINT command, DWORD_PTR data);
constexpr UINT kDisplayTopic = 0;
constexpr char kViewerKey[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

/// The viewer's path as its control is registered, environment variables and all; empty where it is not.
std::string RegisteredPath()
{
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CLASSES_ROOT, kViewerKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return {};
    char path[MAX_PATH + 1] = {};
    DWORD size = MAX_PATH;
    DWORD type = 0;
    const LSTATUS read = RegQueryValueExA(key, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(path), &size);
    RegCloseKey(key);
    if (read != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
        return {};
    char expanded[SettingsText::kCapacity] = {};
    const DWORD length = ExpandEnvironmentStringsA(path, expanded, sizeof expanded);
    return length > 0 && length <= sizeof expanded ? expanded : "";
}

HtmlHelpFunction* LoadViewer()
{
    const std::string registered = RegisteredPath();
    const HMODULE viewer = LoadLibraryA(registered.empty() ? "hhctrl.ocx" : registered.c_str());
    const FARPROC entryPoint = viewer ? GetProcAddress(viewer, "HtmlHelpA") : nullptr;
    return reinterpret_cast<HtmlHelpFunction*>(reinterpret_cast<void*>(entryPoint));
}
} // namespace

std::optional<INT_PTR> EndHelpMode(const CWnd& window, CPoint position)
{
    CWinApp* const application = AfxGetApp();
    if (!application || !application->m_bHelpMode)
        return {};
    application->m_bHelpMode = FALSE;
    window.ScreenToClient(&position);
    return window.OnToolHitTest(position, nullptr);
}

void ShowTopic(const CWnd& window, const char* topic)
{
    // Tried once: a viewer that is missing stays missing.
    static HtmlHelpFunction* const htmlHelp = LoadViewer();
    if (htmlHelp)
        htmlHelp(window.m_hWnd, GetSettingsLocations().helpFile.c_str(), kDisplayTopic,
                 reinterpret_cast<DWORD_PTR>(topic));
}

} // namespace pelmar
