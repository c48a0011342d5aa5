// Plays the host as an NC programmer would: opens the NC options, types an expression into a step field, asks for its
// value, presses OK and ends the program. Exit code 0 when all went as it should.
#include "demo/host_process.h"

#include "host/torvex/resource.h"
#include "resources/resource.h"

using namespace player;

namespace {

void Play()
{
    const Host host;
    const HWND main = host.WaitForWindow(L"TORVEX");
    TakeShot(main, "1-start");

    Say("open the NC options");
    PostMessage(main, WM_COMMAND, ID_NC_OPTIONS, 0);
    const HWND sheet = host.WaitForWindow(L"Параметры ЧПУ (дюймы)");
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
    return Run(Play);
}
