// The reference host as a program of its own, for what plays it by itself.
//
// A player runs in the host's folder. It says on its output what it does; a line "shot NAME", or "shot NAME LEFT TOP
// WIDTH HEIGHT" for a part of it, asks whoever started the player to take a picture of the screen, and it goes on when
// a line comes back.
#pragma once

#include <iostream>
#include <stdexcept>
#include <string>

#include <windows.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace player {

class Host {
public:
    /// `program`: of the current folder.
    explicit Host(const std::wstring& program = L"TORVEX.EXE")
    {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        std::wstring command = L".\\" + program;
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &m_process))
            throw std::runtime_error("the program did not start");
        CloseHandle(m_process.hThread);
    }
    /// A host that is still there when the play has failed is ended.
    ~Host()
    {
        TerminateProcess(m_process.hProcess, 1);
        CloseHandle(m_process.hProcess);
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    HWND WaitForWindow(const wchar_t* title) const { return ui::WaitForWindow(title, m_process.dwProcessId); }

    DWORD Id() const { return m_process.dwProcessId; }
    DWORD WaitForEnd() const
    {
        DWORD code = STILL_ACTIVE;
        if (WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds) == WAIT_OBJECT_0)
            GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION m_process{};
};

inline void Say(const std::string& text)
{
    std::cout << text << std::endl;
}

/// Asks for a picture of `area`, or of the whole screen.
inline void TakeShot(HWND window, const std::string& name, const RECT* area = nullptr)
{
    ui::Settle(window);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    std::string request = "shot " + name;
    if (area)
        for (const LONG number : {area->left, area->top, area->right - area->left, area->bottom - area->top})
            request += " " + std::to_string(number);
    Say(request);
    std::string answer;
    if (!std::getline(std::cin, answer))
        throw std::runtime_error("nobody took the picture");
}

inline void Expect(bool holds, const std::string& what)
{
    if (!holds)
        throw std::runtime_error("not so: " + what);
    Say("seen: " + what);
}

template <class Condition> void ExpectSoon(const std::string& what, Condition condition)
{
    Expect(ui::WaitUntil(condition), what);
}

/// The page in front of a property sheet: the dialog in it.
inline HWND PageOf(HWND sheet)
{
    for (const HWND child : ui::Children(sheet))
        if (ui::ClassOf(child) == L"#32770" && IsWindowVisible(child))
            return child;
    throw std::runtime_error("the sheet shows no page");
}

/// The exit code of a play: 0 when all went as it should.
template <class Playing> int Run(Playing play)
{
    SetProcessDPIAware(); // the places on a scaled display are asked for as they are
    try {
        play();
        return 0;
    } catch (const std::exception& failure) {
        Say(std::string("FAILED: ") + failure.what());
        return 1;
    }
}

} // namespace player
