// The shell's folder browser, used as a person does.
#pragma once

#include <string>

#include <windows.h>

/// Listens, while it lives, to where a folder browser is told to start. What the browser then selects is no measure of
/// it: now and then the system's first look at the folders does not reach the one it is told.
class StartFolderWatch {
public:
    StartFolderWatch();
    ~StartFolderWatch();
    StartFolderWatch(const StartFolderWatch&) = delete;
    StartFolderWatch& operator=(const StartFolderWatch&) = delete;

    std::string Folder() const; ///< as the last browser was told; empty where none was

private:
    HHOOK m_hook;
};

/// The folder browser that has just been asked for. Throws where none comes.
class FolderBrowser {
public:
    FolderBrowser();

    HWND window = nullptr;

    std::wstring Title() const; ///< the text above the tree

    /// Opens the tree down to a folder, selects it and presses OK. Throws where the tree does not hold it.
    void Choose(const std::wstring& folder) const;
    void Cancel() const;

private:
    void End(int button) const;
};
