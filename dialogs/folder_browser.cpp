#include "dialogs/folder_browser.h"

#include <shlobj.h>

#include "frame/module.h"

namespace pelmar {

namespace {
int CALLBACK SelectInitial(HWND browser, UINT message, LPARAM, LPARAM initial)
{
    if (message == BFFM_INITIALIZED)
        SendMessage(browser, BFFM_SETSELECTIONA, TRUE, initial);
    return 0;
}

void FreeItem(ITEMIDLIST* item)
{
    IMalloc* allocator = nullptr;
    if (FAILED(SHGetMalloc(&allocator)))
        return;
    allocator->Free(item);
    allocator->Release();
}
} // namespace

std::optional<std::string> BrowseForFolder(HWND owner, UINT title, const char* initial)
{
    const CString titleText = LoadText(title);
    // Wide for the title's sake: its letters may not be those of the ANSI code page. Paths are narrow as everywhere.
    BROWSEINFOW browse{};
    browse.hwndOwner = owner;
    browse.lpszTitle = titleText;
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    browse.lpfn = SelectInitial;
    browse.lParam = reinterpret_cast<LPARAM>(initial);
    ITEMIDLIST* const item = SHBrowseForFolderW(&browse);
    if (!item)
        return {};
    char path[MAX_PATH] = {};
    const bool isFolder = SHGetPathFromIDListA(item, path);
    FreeItem(item);
    if (!isFolder)
        return {};
    return path;
}

} // namespace pelmar
