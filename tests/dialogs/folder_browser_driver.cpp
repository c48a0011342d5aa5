#include "dialogs/folder_browser_driver.h"

#include <stdexcept>

#include <commctrl.h>
#include <shlobj.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {
// The browser as the system numbers its controls.
constexpr int kTree = 0x3741;
constexpr int kTitle = 0x3742;

std::wstring SelectedIn(HWND tree)
{
    TVITEMW item{};
    wchar_t text[MAX_PATH] = {};
    item.mask = TVIF_TEXT;
    item.hItem = TreeView_GetSelection(tree);
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    if (item.hItem)
        SendMessage(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}
} // namespace

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

std::wstring FolderBrowser::Selected() const
{
    return SelectedIn(ui::Control(window, kTree));
}

void FolderBrowser::Choose(const std::wstring& folder) const
{
    SendMessage(window, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
    const std::wstring name = folder.substr(folder.rfind(L'\\') + 1);
    if (!ui::WaitUntil([&] { return Selected() == name; }))
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
