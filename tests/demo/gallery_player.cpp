// Shows every page of the host: as it opens, where it only may be looked at, and with the prompt that refuses a bad
// entry; the dialogs behind the pages' buttons; and the dialogs of the NC settings.
#include "demo/host_process.h"

#include <optional>

#include <commctrl.h>
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

constexpr wchar_t kInchSheet[] = L"Параметры ЧПУ (дюймы)";
constexpr wchar_t kMillimetreSheet[] = L"Параметры ЧПУ (миллиметры)";

HWND OpenSheet(const Host& host, HWND main, UINT command, const wchar_t* title = kInchSheet)
{
    PostMessage(main, WM_COMMAND, command, 0);
    const HWND sheet = host.WaitForWindow(title);
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

/// A picture of a window together with the one that has come up over it.
void PictureOfBoth(HWND window, HWND above, const std::string& name)
{
    const RECT windowArea = AreaOf(window);
    const RECT areaAbove = AreaOf(above);
    RECT both;
    UnionRect(&both, &windowArea, &areaAbove);
    TakeShot(above, name, &both);
}

/// The open tip of any program; there is one host only.
HWND OpenTip()
{
    const HWND tip = FindWindowW(L"PelmarDlgs.Tip", nullptr);
    return tip && IsWindowVisible(tip) ? tip : nullptr;
}

void MoveTo(HWND window, LONG x, LONG y)
{
    POINT place{x, y};
    ScreenToClient(window, &place);
    PostMessage(window, WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y));
    ui::Settle(window);
}

/// Rests the pointer on a control and takes a picture of the tip that comes; where a control is disabled, its page has
/// the pointer.
void PictureOfTip(HWND sheet, HWND page, int id, const std::string& name)
{
    const HWND control = ui::Control(page, id);
    const RECT area = AreaOf(control);
    MoveTo(IsWindowEnabled(control) ? control : page, (area.left + area.right) / 2, (area.top + area.bottom) / 2);
    ExpectSoon("the tip comes", [] { return OpenTip() != nullptr; });
    PictureOfBoth(sheet, OpenTip(), name);
    MoveTo(page, AreaOf(page).left, AreaOf(page).top);
    ExpectSoon("the tip goes", [] { return OpenTip() == nullptr; });
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
    PictureOfBoth(window, box.window, name);
    ui::Answer(box, IDOK);
    ui::Type(page, *field, before);
    // The host reads what is typed in its own time: the page is not to be turned before it has.
    ExpectSoon("the field shows its text again", [&] { return ui::TextOf(page, *field) == before; });
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

/// The options that a tip is shown of, with a drawing and without.
struct TipRow {
    const char* page;
    int control;
};
constexpr TipRow kTips[] = {
    {"2-axis", IDC_2X_SIDE_ROUGH_STEP},
    {"3-axis", IDC_3X_SCALLOP_SAMPLE},
    {"z-rough", IDC_ZR_SIDE_CLEARANCE_TYPE},
    {"holes", IDC_HOLE_STEP_UP},
};

void PicturesOfTips(HWND sheet, HWND page, const std::string& name, const std::string& state)
{
    for (const TipRow& tip : kTips)
        if (tip.page == name)
            PictureOfTip(sheet, page, tip.control, name + state);
}

void PlayPages(const Host& host, HWND main)
{
    HWND sheet = OpenSheet(host, main, ID_NC_OPTIONS);
    for (size_t index = 0; index < std::size(kPages); ++index) {
        const HWND page = TurnTo(sheet, index);
        Picture(sheet, kPages[index]);
        PicturesOfTips(sheet, page, kPages[index], "-tip");
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
    sheet = OpenSheet(host, main, ID_NC_OPTIONS, kMillimetreSheet);
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
    PictureOfBoth(dialog, box.window, "defaults-file-question");
    ui::Answer(box, IDNO);
    ExpectSoon("the dialog is closed", [&] { return !IsWindow(dialog); });
}

/// A settings file as it is after years of care: values of the shop's own, and slips.
void SpoilSettings(const Host& host, HWND main)
{
    constexpr const char* kSpoilt[][3] = {
        {"Options2x", "SideRoughStep", "0.65"},    {"Options2x", "SideRoughtStep", "0.5"},
        {"Options2x", "CornerAngle", "20"},        {"Options2x", "SortType", "9"},
        {"Options2x", "MaxFeedBetween", "half"},   {"Options2x", "RapidPlane", "40"},
        {"OptionsSSheet", "ToolChangeTime", "12"}, {"OptionSSheet", "ToolChangeTime", "12"},
    };
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    for (const auto& [section, key, text] : kSpoilt) {
        const auto wide = [](const char* narrow) { return std::wstring(narrow, narrow + strlen(narrow)); };
        WritePrivateProfileStringW(wide(section).c_str(), wide(key).c_str(), wide(text).c_str(),
                                   (std::wstring(folder) + L"\\NCDEFAULT\\CURRENT.INI").c_str());
    }
    PostMessage(main, WM_COMMAND, ID_FILE_RESTART, 0);
    ui::Answer(ui::WaitForBox(host.Id()), IDOK);
}

/// The review as it opens, with what differs only, with a value being edited, and as small as it gets.
void PlayReview(const Host& host, HWND main)
{
    PostMessage(main, WM_COMMAND, ID_NC_REVIEW, 0);
    const HWND dialog = host.WaitForWindow(L"Проверка параметров");
    const HWND list = ui::Control(dialog, IDC_REVIEW_LIST);
    const int all = ListView_GetItemCount(list);
    Picture(dialog, "settings-review");
    ui::Choose(dialog, IDC_REVIEW_FILTER, 2);
    ExpectSoon("only what is wrong is listed", [&] { return ListView_GetItemCount(list) < all; });
    ui::FocusOn(dialog, IDC_REVIEW_LIST);
    ui::Press(list, VK_DOWN);
    Picture(dialog, "settings-review-faulty");
    ui::Choose(dialog, IDC_REVIEW_FILTER, 1);
    ExpectSoon("only what differs is listed", [&] { return ListView_GetItemCount(list) < all; });
    Picture(dialog, "settings-review-different");
    ui::Choose(dialog, IDC_REVIEW_FILTER, 0);
    ui::Type(dialog, IDC_REVIEW_SEARCH, L"Options2x.CornerAngle");
    ExpectSoon("two options are found", [&] { return ListView_GetItemCount(list) == 2; });
    ui::Press(ui::Control(dialog, IDC_REVIEW_SEARCH), VK_RETURN);
    ExpectSoon("the list has the focus", [&] { return ui::Focus(dialog) == list; });
    ui::Press(list, VK_F2);
    ExpectSoon("the value is being edited", [&] { return GetDlgItem(list, IDC_REVIEW_CELL) != nullptr; });
    const HWND cell = ui::Control(list, IDC_REVIEW_CELL);
    SendMessage(cell, EM_SETSEL, 0, -1);
    ui::TypeAt(cell, L"25");
    ExpectSoon("the text is typed", [&] { return ui::TextOf(cell) == L"25"; });
    Picture(dialog, "settings-review-edited");
    ui::Press(cell, VK_RETURN);
    const ui::MessageBoxSeen box = ui::WaitForBox(host.Id());
    PictureOfBoth(dialog, box.window, "settings-review-refused");
    ui::Answer(box, IDOK);
    ui::Press(cell, VK_ESCAPE);
    ExpectSoon("the edit is left", [&] { return !IsWindow(cell); });
    ui::Type(dialog, IDC_REVIEW_SEARCH, L"");
    ExpectSoon("all is listed again", [&] { return ListView_GetItemCount(list) == all; });
    SetWindowPos(dialog, nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    Picture(dialog, "settings-review-small");
    Close(dialog);
}

/// The main window when something has been saved, and the box that tells the versions.
void PictureOfProgram(const Host& host, HWND main)
{
    PostMessage(main, WM_COMMAND, ID_UNITS_MILLIMETRE, 0);
    PostMessage(main, WM_COMMAND, ID_UNITS_INCH, 0);
    Picture(main, "main-window");
    PostMessage(main, WM_COMMAND, ID_HELP_ABOUT, 0);
    const HWND box = host.WaitForWindow(L"О программе TORVEX");
    Picture(box, "about");
    PostMessage(box, WM_COMMAND, IDOK, 0);
    ExpectSoon("the box is closed", [&] { return !IsWindow(box); });
}

void Play()
{
    const Host host;
    const HWND main = host.WaitForWindow(L"TORVEX");
    PictureOfProgram(host, main);
    PlayDialogs(host, main);
    PictureOfQuestion(host, main);
    PlayPages(host, main);
    SpoilSettings(host, main);
    PlayReview(host, main);
    PostMessage(main, WM_CLOSE, 0, 0);
    Expect(host.WaitForEnd() == 0, "the program ended well");
}

} // namespace

int main()
{
    return Run(Play);
}
