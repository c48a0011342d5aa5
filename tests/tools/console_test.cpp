// What the program shows on a console.
#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "program.h"
#include "ui/process.h"

namespace {

using tool_testing::Folder;

/// A screen of the console that this process has, or gets.
class Screen {
public:
    Screen()
    {
        FreeConsole();
        EXPECT_TRUE(AllocConsole()) << GetLastError();
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        m_handle = CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                             &inherited, CONSOLE_TEXTMODE_BUFFER, nullptr);
        EXPECT_NE(INVALID_HANDLE_VALUE, m_handle) << GetLastError();
        SetConsoleScreenBufferSize(m_handle, {100, 50});
    }
    ~Screen()
    {
        CloseHandle(m_handle);
        FreeConsole();
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    HANDLE Handle() const { return m_handle; }
    std::wstring Line(SHORT number) const
    {
        wchar_t text[100] = L"";
        DWORD read = 0;
        ReadConsoleOutputCharacterW(m_handle, text, 100, {0, number}, &read);
        const std::wstring line(text, read);
        return line.substr(0, line.find_last_not_of(L" \0") + 1);
    }

private:
    HANDLE m_handle;
};

TEST(Console, ShowsRussianWhateverTheCodePage)
{
    const Folder folder;
    folder.Write("GOOD.INI", "[Settings]\nDecimals=4\n");
    const Screen screen;
    ASSERT_NE(INVALID_HANDLE_VALUE, screen.Handle());
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = screen.Handle();
    const std::wstring command = tool_testing::CommandLineOf({"check", folder.Path("GOOD.INI"), "--color", "never"});
    const PROCESS_INFORMATION process = ui::StartProcess(command, nullptr, ui::Inherits::Handles, startup);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    const std::wstring shown = screen.Line(0) + screen.Line(1) + screen.Line(2);
    EXPECT_NE(std::wstring::npos, shown.find(L"GOOD.INI: замечаний нет."));
}

} // namespace
