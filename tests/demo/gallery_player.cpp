// Shows every page of the host: as it opens, where it only may be looked at, and with the prompt that refuses a bad
// entry; the dialogs behind the pages' buttons; and the dialogs of the NC settings.
#include "demo/host_process.h"

#include <optional>

#include <prsht.h>

#include "host/torvex/resource.h"
#include "resources/resource.h"

using namespace player;

namespace {

/// The pages in the order of their tabs, by the names of their pictures.
constexpr const char* kPages[] = {
    "2-axis",    "3-axis",       "z-rough",    "z-finish",    "flat-surface", "4-axis", "5-axis", "wire-edm",
    "face-mill", "chamfer-mill", "round-mill", "groove-mill", "slot-mill",    "holes",  "lathe",
};

RECT AreaOf(HWND window)
{
    RECT area;
    GetWindowRect(window, &area);
    return area;
}

void Picture(HWND window, const std::string& name)
{
    const RECT area = AreaOf(window);
    TakeShot(window, name, &area);
}

HWND OpenSheet(const Host& host, HWND main, UINT command)
{
    PostMessage(main, WM_COMMAND, command, 0);
    const HWND sheet = host.WaitForWindow(L"Параметры ЧПУ");
    ui::Settle(sheet);
    return sheet;
}

void CloseSheet(HWND sheet)
{
    PostMessage(sheet, WM_COMMAND, IDCANCEL, 0);
    ExpectSoon("the sheet is closed", [&] { return !IsWindow(sheet); });
}

HWND TurnTo(HWND sheet, size_t index)
{
    SendMessage(sheet, PSM_SETCURSEL, index, 0);
    ui::Settle(sheet);
    return PageOf(sheet);
}

/// The page's first field that takes numbers and can be typed into.
std::optional<int> FirstField(HWND page)
{
    for (const HWND control : ui::Children(page))
        if (ui::ClassOf(control) == L"Edit" && IsWindowEnabled(control) && IsWindowVisible(control) &&
            !ui::TextOf(control).empty() && iswdigit(ui::TextOf(control).front()))
            return GetDlgCtrlID(control);
    return {};
}

/// A picture of a box together with the window that it has come up over.
void PictureOfBox(HWND window, const ui::MessageBoxSeen& box, const std::string& name)
{
    const RECT windowArea = AreaOf(window);
    const RECT boxArea = AreaOf(box.window);
    RECT both;
    UnionRect(&both, &windowArea, &boxArea);
    TakeShot(box.window, name, &both);
}

/// Types what no field takes, asks for the window's data to be stored, and takes a picture of the prompt. The field is
/// on a page or dialog within the window, or on the window itself.
void PictureOfPrompt(const Host& host, HWND window, HWND page, const std::string& name)
{
    const std::optional<int> field = FirstField(page);
    if (!field)
        return;
    const std::wstring before = ui::TextOf(page, *field);
    ui::Type(page, *field, L"1/8+");
    PostMessage(window, WM_COMMAND, IDOK, 0);
    const ui::MessageBoxSeen box = ui::WaitForBox(host.Id());
    PictureOfBox(window, box, name);
    ui::Answer(box, IDOK);
    ui::Type(page, *field, before);
}

void Close(HWND dialog)
{
    PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    ExpectSoon("the dialog is closed", [&] { return !IsWindow(dialog); });
}

void PictureOfRotaryDialog(const Host& host, HWND page)
{
    ui::Click(page, IDC_MX_ROTARY_OPTIONS);
    const HWND dialog = host.WaitForWindow(L"Параметры осей поворота");
    Picture(dialog, "rotary-axes");
    PictureOfPrompt(host, dialog, dialog, "rotary-axes-refused");
    Close(dialog);
}

/// The sheet of the axes, whose two pages are alike.
void PictureOfLatheAxes(const Host& host, HWND page)
{
    ui::Click(page, IDC_LATHE_RADIUS_AXES);
    const HWND sheet = host.WaitForWindow(L"Режим токарных осей - радиус");
    Picture(sheet, "lathe-axes");
    PictureOfPrompt(host, sheet, PageOf(sheet), "lathe-axes-refused");
    Close(sheet);
}

void PlayPages(const Host& host, HWND main)
{
    HWND sheet = OpenSheet(host, main, ID_NC_OPTIONS);
    for (size_t index = 0; index < std::size(kPages); ++index) {
        const HWND page = TurnTo(sheet, index);
        Picture(sheet, kPages[index]);
        PictureOfPrompt(host, sheet, page, std::string(kPages[index]) + "-refused");
        if (std::string(kPages[index]) == "4-axis")
            PictureOfRotaryDialog(host, page);
        if (std::string(kPages[index]) == "lathe")
            PictureOfLatheAxes(host, page);
    }
    CloseSheet(sheet);
    sheet = OpenSheet(host, main, ID_NC_OPTIONS_READ_ONLY);
    for (size_t index = 0; index < std::size(kPages); ++index) {
        TurnTo(sheet, index);
        Picture(sheet, std::string(kPages[index]) + "-read-only");
    }
    CloseSheet(sheet);
    PostMessage(main, WM_COMMAND, ID_UNITS_MILLIMETRE, 0);
    sheet = OpenSheet(host, main, ID_NC_OPTIONS);
    for (size_t index = 0; index < std::size(kPages); ++index) {
        TurnTo(sheet, index);
        Picture(sheet, std::string(kPages[index]) + "-metric");
    }
    CloseSheet(sheet);
}

struct DialogRow {
    UINT command;
    const wchar_t* title;
    const char* name;
    bool hasNumbers = false;
};
constexpr DialogRow kDialogs[] = {
    {ID_NC_DEFAULTS, L"Параметры ЧПУ", "nc-defaults", true},
    {ID_NC_DEFAULT_TOOLS, L"Параметры ЧПУ > Сервис", "default-tools"},
    {ID_NC_DEFAULTS_FILE, L"Файл параметров ЧПУ", "defaults-file"},
    {ID_NC_TEMPLATES, L"Шаблоны траекторий", "toolpath-templates"},
    {ID_NC_SETUP_SHEET, L"Создание отчета", "setup-sheet", true},
};

/// The dialog inside a window of the host's; the window itself where there is none.
HWND DialogIn(HWND window)
{
    for (const HWND child : ui::Children(window))
        if (ui::ClassOf(child) == L"#32770")
            return child;
    return window;
}

void PlayDialogs(const Host& host, HWND main)
{
    for (const DialogRow& row : kDialogs) {
        PostMessage(main, WM_COMMAND, row.command, 0);
        const HWND dialog = host.WaitForWindow(row.title);
        PostMessage(dialog, WM_COMMAND, IDC_PAGE_DEFAULTS,
                    reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_PAGE_DEFAULTS)));
        ui::Settle(dialog);
        Picture(dialog, row.name);
        const HWND inside = DialogIn(dialog);
        if (row.command == ID_NC_DEFAULTS)
            ui::Click(inside, IDC_NCDEF_FILTER_SPANS);
        if (row.hasNumbers)
            PictureOfPrompt(host, dialog, inside, std::string(row.name) + "-refused");
        Close(dialog);
    }
}

/// The question that comes before what needs a restart is stored. The answer is No.
void PictureOfQuestion(const Host& host, HWND main)
{
    PostMessage(main, WM_COMMAND, ID_NC_DEFAULTS_FILE, 0);
    const HWND dialog = host.WaitForWindow(L"Файл параметров ЧПУ");
    PostMessage(dialog, WM_COMMAND, IDOK, 0);
    const ui::MessageBoxSeen box = ui::WaitForBox(host.Id());
    PictureOfBox(dialog, box, "defaults-file-question");
    ui::Answer(box, IDNO);
    ExpectSoon("the dialog is closed", [&] { return !IsWindow(dialog); });
}

void Play()
{
    const Host host;
    const HWND main = host.WaitForWindow(L"TORVEX");
    PlayDialogs(host, main);
    PictureOfQuestion(host, main);
    PlayPages(host, main);
    PostMessage(main, WM_CLOSE, 0, 0);
    Expect(host.WaitForEnd() == 0, "the program ended well");
}

} // namespace

int main()
{
    return Run(Play);
}
