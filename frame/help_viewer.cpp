#include "frame/help_viewer.h"

#include <string>

#include "PelmarDlgs/help.h"
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

struct Viewer {
    std::string file;
    HtmlHelpFunction* show = nullptr; ///< null where there is none
};

Viewer LoadViewer()
{
    Viewer viewer;
    viewer.file = RegisteredPath();
    if (viewer.file.empty())
        viewer.file = "hhctrl.ocx";
    const HMODULE library = LoadLibraryA(viewer.file.c_str());
    const FARPROC entryPoint = library ? GetProcAddress(library, "HtmlHelpA") : nullptr;
    viewer.show = reinterpret_cast<HtmlHelpFunction*>(reinterpret_cast<void*>(entryPoint));
    return viewer;
}

/// Tried once: a viewer that is missing stays missing.
const Viewer& TheViewer()
{
    static const Viewer viewer = LoadViewer();
    return viewer;
}

bool IsFile(const char* path)
{
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

HelpMissing* g_tellOfMissing = nullptr;

/// The window whose "?" has switched the mode on; only compared.
HWND g_asking = nullptr;

void SetHelpMode(bool on)
{
    if (CWinApp* const application = AfxGetApp())
        application->m_bHelpMode = on;
}

bool IsDown(int key)
{
    return GetKeyState(key) < 0;
}

void EndAskingOf(const CWnd& window)
{
    if (!g_asking || g_asking != window.m_hWnd)
        return;
    g_asking = nullptr;
    SetHelpMode(false);
}

/// The low bits of a system command are the system's own.
constexpr WPARAM kSystemCommandMask = 0xFFF0;
} // namespace

HelpState GetHelpState()
{
    const Viewer& viewer = TheViewer();
    const char* const file = GetSettingsLocations().helpFile.c_str();
    return {viewer.show != nullptr, IsFile(file), viewer.file.c_str(), file};
}

void TellOfMissingHelp(HelpMissing* tell)
{
    g_tellOfMissing = tell;
}

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
    if (g_tellOfMissing) {
        const HelpState state = GetHelpState();
        if (!state.CanOpen()) {
            g_tellOfMissing(state);
            return;
        }
    }
    if (HtmlHelpFunction* const show = TheViewer().show)
        show(window.m_hWnd, GetSettingsLocations().helpFile.c_str(), kDisplayTopic, reinterpret_cast<DWORD_PTR>(topic));
}

void ShowHelpContents(const CWnd& caller)
{
    ShowTopic(caller, kIntroductionTopic);
}

void AskForHelp(CWnd& window)
{
    // The message says nothing of what caused it: without F1 held down it came from the "?" pointer.
    if (!IsDown(VK_F1) || IsDown(VK_SHIFT))
        SetHelpMode(true);
    window.SendMessage(WM_COMMAND, ID_HELP);
    g_asking = nullptr;
    SetHelpMode(false);
}

bool CaptionHelp::IsClickOn(UINT message, WPARAM wParam)
{
    return message == WM_SYSCOMMAND && (wParam & kSystemCommandMask) == SC_CONTEXTHELP;
}

CaptionHelp::CaptionHelp(const CWnd& window, UINT message, WPARAM wParam) : m_begins(IsClickOn(message, wParam))
{
    if (message == WM_DESTROY || (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE))
        EndAskingOf(window);
    if (!m_begins)
        return;
    m_timeBefore = GetMessageTime();
    g_asking = window.m_hWnd;
    SetHelpMode(true);
}

/// Where the system has a loop of its own for the "?" pointer the question is over when the message has been handled:
/// the loop has taken messages then. Where it has none, the next click asks.
CaptionHelp::~CaptionHelp()
{
    if (m_begins && g_asking && GetMessageTime() != m_timeBefore) {
        g_asking = nullptr;
        SetHelpMode(false);
    }
}

bool CaptionHelp::Takes(CWnd& window, const MSG& message)
{
    if (!g_asking || g_asking != window.m_hWnd)
        return false;
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        EndAskingOf(window);
        return true;
    }
    if (message.message != WM_LBUTTONDOWN)
        return false;
    window.SendMessage(WM_COMMAND, ID_HELP);
    EndAskingOf(window);
    return true;
}

} // namespace pelmar
