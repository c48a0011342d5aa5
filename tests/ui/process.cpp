#include "process.h"

#include <gtest/gtest.h>

#include "ui_thread.h"

namespace ui {

PROCESS_INFORMATION StartProcess(const std::wstring& command, const wchar_t* folder, Inherits inherits,
                                 STARTUPINFOW startup)
{
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const auto start = [&] {
        std::wstring words = command; // the system writes into it
        return CreateProcessW(nullptr, words.data(), nullptr, nullptr, inherits == Inherits::Handles, 0, nullptr,
                              folder, &startup, &process) != FALSE;
    };
    // Among hundreds of processes that come and go, once in a while one does not start at first.
    constexpr DWORD kPatience = 5000;
    if (!WaitUntil(start, kPatience))
        ADD_FAILURE() << "the program does not start: " << GetLastError();
    return process;
}

} // namespace ui
