// Plays the host as an NC programmer would: opens the NC options, types an expression into a step field, asks for its
// value, presses OK and ends the program.
//
// Run it in the host's folder. It says on its output what it does; a line "shot NAME" asks whoever started it to take
// a picture of the screen, and it goes on when a line comes back. Exit code 0 when all went as it should.
#include <iostream>
#include <stdexcept>
#include <string>

#include <windows.h>

#include "host/torvex/resource.h"
#include "resources/resource.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

class Host {
public:
    Host()
    {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        wchar_t command[] = L".\\TORVEX.EXE";
        if (!CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &m_process))
            throw std::runtime_error("TORVEX.EXE did not start");
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

void Say(const std::string& text)
{
    std::cout << text << std::endl;
}

void TakeShot(HWND window, const std::string& name)
{
    ui::Settle(window);
    Say("shot " + name);
    std::string answer;
    if (!std::getline(std::cin, answer))
        throw std::runtime_error("nobody took the picture");
}

void Expect(bool holds, const std::string& what)
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
HWND PageOf(HWND sheet)
{
    for (const HWND child : ui::Children(sheet))
        if (ui::ClassOf(child) == L"#32770" && IsWindowVisible(child))
            return child;
    throw std::runtime_error("the sheet shows no page");
}

void Play()
{
    const Host host;
    const HWND main = host.WaitForWindow(L"TORVEX");
    TakeShot(main, "1-start");

    Say("open the NC options");
    PostMessage(main, WM_COMMAND, ID_NC_OPTIONS, 0);
    const HWND sheet = host.WaitForWindow(L"Параметры ЧПУ");
    const HWND page = PageOf(sheet);
    const HWND step = ui::Control(page, IDC_2X_SIDE_ROUGH_STEP);
    Expect(ui::TextOf(GetWindow(step, GW_HWNDPREV)) == L"Черновой шаг на сторону:",
           "the 2-axis page, its labels in Russian");
    TakeShot(sheet, "2-options");

    Say("type 1/8+0.02 into the side rough step");
    ui::Type(page, IDC_2X_SIDE_ROUGH_STEP, L"1/8+0.02");
    ExpectSoon("the field holds 1/8+0.02", [&] { return ui::TextOf(step) == L"1/8+0.02"; });
    TakeShot(sheet, "3-expression");

    Say("press =");
    ui::TypeAt(step, L"=");
    ExpectSoon("the field shows 0.1450", [&] { return ui::TextOf(step) == L"0.1450"; });
    TakeShot(sheet, "4-value");

    Say("press OK");
    ui::Click(sheet, IDOK);
    ExpectSoon("the options are closed", [&] { return !IsWindow(sheet); });
    const HWND text = ui::Control(main, IDC_SETTINGS_TEXT);
    ExpectSoon("the main window shows the saved SideRoughStep=0.145000",
               [&] { return ui::TextOf(text).find(L"\r\nSideRoughStep=0.145000\r\n") != std::wstring::npos; });
    TakeShot(main, "5-saved");

    Say("close the program");
    PostMessage(main, WM_CLOSE, 0, 0);
    Expect(host.WaitForEnd() == 0, "the program ended well");
}

} // namespace

int main()
{
    try {
        Play();
        return 0;
    } catch (const std::exception& failure) {
        Say(std::string("FAILED: ") + failure.what());
        return 1;
    }
}
