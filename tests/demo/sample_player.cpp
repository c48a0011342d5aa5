// Plays the SDK's sample: types an expression into a step field and presses OK.
#include "demo/host_process.h"

#include "resources/resource.h"

using namespace player;

namespace {

void Play()
{
    const Host host(L"sample.exe");
    const HWND sheet = host.WaitForWindow(L"PelmarDlgs sample");
    const HWND page = PageOf(sheet);
    ui::Type(page, IDC_2X_SIDE_ROUGH_STEP, L"1/8+0.02");
    ExpectSoon("the field holds 1/8+0.02", [&] { return ui::TextOf(page, IDC_2X_SIDE_ROUGH_STEP) == L"1/8+0.02"; });
    ui::Click(sheet, IDOK);
    Expect(host.WaitForEnd() == 0, "the program ended well");
}

} // namespace

int main()
{
    return Run(Play);
}
