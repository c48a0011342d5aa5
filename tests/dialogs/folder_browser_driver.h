// The shell's folder browser, used as a person does.
#pragma once

#include <string>

#include <windows.h>

/// The folder browser that has just been asked for. Throws where none comes.
class FolderBrowser {
public:
    FolderBrowser();

    HWND window = nullptr;

    std::wstring Title() const;    ///< the text above the tree
    std::wstring Selected() const; ///< the folder that is selected in the tree, its own name only

    /// Selects a folder and presses OK.
    void Choose(const std::wstring& folder) const;
    void Cancel() const;

private:
    void End(int button) const;
};
