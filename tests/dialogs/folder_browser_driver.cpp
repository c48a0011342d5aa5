#include "dialogs/folder_browser_driver.h"

#include <sstream>
#include <stdexcept>

#include <commctrl.h>
#include <shlobj.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {
// The browser as the system numbers its controls.
constexpr int kTree = 0x3741;
constexpr int kTitle = 0x3742;

std::wstring NameOf(HWND tree, HTREEITEM folder)
{
    TVITEMW item{};
    wchar_t text[MAX_PATH] = {};
    item.mask = TVIF_TEXT;
    item.hItem = folder;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessage(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

/// Opens a folder of the tree and gives the first one in it whose name is accepted; null where there is none.
template <class Accepted> HTREEITEM FindIn(HWND tree, HTREEITEM parent, Accepted accepted)
{
    TreeView_Expand(tree, parent, TVE_EXPAND);
    HTREEITEM folder = TreeView_GetChild(tree, parent);
    while (folder && !accepted(folder))
        folder = TreeView_GetNextSibling(tree, folder);
    return folder;
}

/// The folder of a full path, reached from the top one by one: the drives are in one of the topmost folders.
HTREEITEM FindPath(HWND tree, const std::wstring& path)
{
    std::wistringstream parts(path);
    std::wstring part;
    std::getline(parts, part, L'\\');
    HTREEITEM found = nullptr;
    const auto isDrive = [&](HTREEITEM item) { return NameOf(tree, item).find(part) != std::wstring::npos; };
    FindIn(tree, TreeView_GetRoot(tree),
           [&](HTREEITEM item) { return (found = FindIn(tree, item, isDrive)) != nullptr; });
    while (found && std::getline(parts, part, L'\\'))
        found = FindIn(tree, found, [&](HTREEITEM item) { return NameOf(tree, item) == part; });
    return found;
}

std::string g_startFolder;

LRESULT CALLBACK NoteStartFolder(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent.message == BFFM_SETSELECTIONA && sent.wParam && GetDlgItem(sent.hwnd, kTree))
        g_startFolder = reinterpret_cast<const char*>(sent.lParam);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
} // namespace

StartFolderWatch::StartFolderWatch()
{
    g_startFolder.clear();
    m_hook = SetWindowsHookEx(WH_CALLWNDPROC, NoteStartFolder, nullptr, ui::UiThread::Get().Id());
}

StartFolderWatch::~StartFolderWatch()
{
    UnhookWindowsHookEx(m_hook);
}

std::string StartFolderWatch::Folder() const
{
    return ui::On([] { return g_startFolder; });
}

FolderBrowser::FolderBrowser()
{
    ui::WaitUntil([this] {
        for (const HWND candidate : ui::TopLevelWindows())
            if (GetDlgItem(candidate, kTree) && GetDlgItem(candidate, kTitle))
                window = candidate;
        return window != nullptr;
    });
    if (!window)
        throw std::runtime_error("no folder browser came");
    ui::Settle(window);
}

std::wstring FolderBrowser::Title() const
{
    return ui::TextOf(window, kTitle);
}

void FolderBrowser::Choose(const std::wstring& folder) const
{
    const HWND tree = ui::Control(window, kTree);
    const HTREEITEM item = FindPath(tree, folder);
    if (!item || !TreeView_SelectItem(tree, item))
        throw std::runtime_error("the folder browser does not show the folder");
    End(IDOK);
}

void FolderBrowser::Cancel() const
{
    End(IDCANCEL);
}

void FolderBrowser::End(int button) const
{
    PostMessage(window, WM_COMMAND, static_cast<WPARAM>(button), reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
    if (!ui::WaitForClose(window))
        throw std::runtime_error("the folder browser did not close");
    ui::UiThread::Get().Settle();
}
