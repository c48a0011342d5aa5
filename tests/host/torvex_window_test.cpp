// The reference host's windows: where they come up, what their captions and its status line say, what its Help menu
// opens, and displays of other resolutions.
#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "torvex_host.h"

namespace {

constexpr wchar_t kAxes[] = L"Параметры осей поворота";
constexpr wchar_t kAbout[] = L"О программе TORVEX";

RECT AreaOf(HWND window)
{
    RECT area{};
    GetWindowRect(window, &area);
    return area;
}

class TorvexWindow : public Torvex {
protected:
    std::wstring Status() { return ui::TextOf(m_main, IDC_STATUS_LINE); }
    bool ComesToSay(const std::wstring& text)
    {
        return ui::WaitUntil([&] { return Status() == text; });
    }
    /// Closes the sheet on a page, and opens it again.
    void LeaveAndReturn(int templateId, int button)
    {
        ShowPage(templateId);
        CloseOptions(button);
        OpenOptions();
    }
    /// Whether the page in front is made from the template, as far as a control tells that no other page has.
    bool IsInFront(int control) { return GetDlgItem(m_page, control) != nullptr; }
};

// ---- the sheet ----

TEST_F(TorvexWindow, TheSheetsTitleTellsTheUnits)
{
    Start();
    for (const auto& [units, title] : {std::pair{ID_UNITS_MILLIMETRE, kMillimetreSheet}, {ID_UNITS_INCH, kInchSheet}}) {
        Command(static_cast<UINT>(units));
        for (const UINT command : {ID_NC_OPTIONS, ID_NC_OPTIONS_READ_ONLY}) {
            OpenOptions(title, command);
            CloseOptions(IDCANCEL);
        }
    }
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, TheSheetOpensOnThePageLastUsedAfterOkAndCancelAndOverRuns)
{
    Start();
    OpenOptions();
    EXPECT_TRUE(IsInFront(IDC_2X_SIDE_ROUGH_STEP));
    LeaveAndReturn(IDD_4X, IDCANCEL);
    EXPECT_TRUE(IsInFront(IDC_MX_ROTARY_OPTIONS)) << "after Cancel";
    LeaveAndReturn(IDD_LATHE, IDOK);
    EXPECT_TRUE(IsInFront(IDC_LATHE_RADIUS_AXES)) << "after OK";
    CloseOptions(IDCANCEL);
    OpenOptions(kInchSheet, ID_NC_OPTIONS_READ_ONLY);
    EXPECT_TRUE(IsInFront(IDC_LATHE_RADIUS_AXES)) << "where it may only be looked at";
    CloseOptions(IDCANCEL);
    StartAgain();
    OpenOptions();
    EXPECT_TRUE(IsInFront(IDC_LATHE_RADIUS_AXES)) << "in the next run";
    LeaveAndReturn(IDD_2X, IDCANCEL);
    EXPECT_TRUE(IsInFront(IDC_2X_SIDE_ROUGH_STEP)) << "the first page again";
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

/// Another program may do both, and the sheet's own loop comes to no message between.
TEST_F(TorvexWindow, ThePageIsKeptWhereCancelFollowsTheTurnAtOnce)
{
    Start();
    OpenOptions();
    SendNotifyMessage(m_sheet, PSM_SETCURSELID, 0, IDD_4X);
    SendNotifyMessage(m_sheet, WM_COMMAND, IDCANCEL, 0);
    ASSERT_TRUE(ui::WaitForClose(m_sheet));
    OpenOptions();
    EXPECT_TRUE(IsInFront(IDC_MX_ROTARY_OPTIONS));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, WhoNeverTurnsAPageLeavesNoneBehind)
{
    Start();
    OpenOptions();
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
    EXPECT_EQ(std::string::npos, HostText().find("OptionsPage"));
}

TEST_F(TorvexWindow, AKeptPageThatIsNoneIsIgnored)
{
    for (const std::string value : {"", "abc", "-1", "0", "3947", "99999999999999999999"}) {
        std::ofstream(m_folder / L"TORVEXCore.INI") << "[Settings]\r\nOptionsPage=" << value << "\r\n";
        Start();
        OpenOptions();
        EXPECT_TRUE(IsInFront(IDC_2X_SIDE_ROUGH_STEP)) << value;
        CloseOptions(IDCANCEL);
        EXPECT_EQ(0u, Close()) << value;
        End();
    }
}

TEST_F(TorvexWindow, ThePageIsKeptWhereTheOptionsCouldNotBeSaved)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    Start();
    OpenOptions();
    ShowPage(IDD_4X);
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Click(m_sheet, IDOK);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDCANCEL);
        ui::Settle(m_sheet);
        CloseOptions(IDCANCEL);
    }
    OpenOptions();
    EXPECT_TRUE(IsInFront(IDC_MX_ROTARY_OPTIONS));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

/// Presses keys together at the keyboard, whoever has it.
void PressTogether(std::initializer_list<BYTE> keys)
{
    for (const BYTE key : keys)
        keybd_event(key, 0, 0, 0);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        keybd_event(*key, 0, KEYEVENTF_KEYUP, 0);
}

TEST_F(TorvexWindow, ControlWithTabOrPageKeysTurnsThePages)
{
    Start();
    OpenOptions();
    ASSERT_TRUE(ui::WaitUntil([&] { return GetForegroundWindow() == m_sheet; }));
    const auto tab = reinterpret_cast<HWND>(SendMessage(m_sheet, PSM_GETTABCONTROL, 0, 0));
    const auto comesTo = [&](int page) {
        return ui::WaitUntil([&] { return SendMessage(tab, TCM_GETCURSEL, 0, 0) == page; });
    };
    const int last = static_cast<int>(SendMessage(tab, TCM_GETITEMCOUNT, 0, 0)) - 1;
    PressTogether({VK_CONTROL, VK_TAB});
    EXPECT_TRUE(comesTo(1));
    PressTogether({VK_CONTROL, VK_TAB});
    EXPECT_TRUE(comesTo(2));
    PressTogether({VK_CONTROL, VK_SHIFT, VK_TAB});
    EXPECT_TRUE(comesTo(1));
    PressTogether({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(comesTo(2));
    PressTogether({VK_CONTROL, VK_PRIOR});
    EXPECT_TRUE(comesTo(1));
    PressTogether({VK_CONTROL, VK_PRIOR});
    EXPECT_TRUE(comesTo(0));
    PressTogether({VK_CONTROL, VK_SHIFT, VK_TAB});
    EXPECT_TRUE(comesTo(last)) << "round the end";
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, ATextThatIsRefusedKeepsItsPageWhenTheKeysAreToTurnIt)
{
    Start();
    OpenOptions();
    ASSERT_TRUE(ui::WaitUntil([&] { return GetForegroundWindow() == m_sheet; }));
    Type(IDC_2X_CORNER_ANGLE, L"29");
    PressTogether({VK_CONTROL, VK_TAB});
    ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDOK);
    FindPage();
    EXPECT_TRUE(IsInFront(IDC_2X_CORNER_ANGLE));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

// ---- where windows come up ----

/// The middle of `window` is that of its owner, as far as the display has room there.
void ExpectInTheMiddle(HWND window, const wchar_t* name)
{
    const RECT own = AreaOf(window);
    const RECT around = AreaOf(GetWindow(window, GW_OWNER));
    RECT area{};
    SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const LONG left = std::max(area.left, std::min((around.left + around.right - width) / 2, area.right - width));
    const LONG top = std::max(area.top, std::min((around.top + around.bottom - height) / 2, area.bottom - height));
    EXPECT_NEAR(left, own.left, 1) << name;
    EXPECT_NEAR(top, own.top, 1) << name;
}

TEST_F(TorvexWindow, WhatItOpensComesUpInTheMiddleOfItsOwner)
{
    struct Case {
        UINT command;
        const wchar_t* title;
    };
    constexpr Case kCases[] = {
        {ID_NC_DEFAULTS, kNcDefaults},
        {ID_NC_DEFAULT_TOOLS, kDefaultTools},
        {ID_NC_DEFAULTS_FILE, L"Файл параметров ЧПУ"},
        {ID_NC_TEMPLATES, L"Шаблоны траекторий"},
        {ID_NC_SETUP_SHEET, L"Создание отчета"},
    };
    Start();
    SetWindowPos(m_main, nullptr, 300, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const Case& one : kCases) {
        const HWND dialog = OpenDialog(one.command, one.title);
        ExpectInTheMiddle(dialog, one.title);
        if (one.command == ID_NC_DEFAULT_TOOLS) {
            const HWND list = OpenToolList(dialog, IDC_TOOLS_MILL, L"Выбор инструмента - фрезы (дюймы)");
            ExpectInTheMiddle(list, L"the tool list");
            Cancel(list);
        }
        Cancel(dialog);
    }
    const HWND about = OpenDialog(ID_HELP_ABOUT, kAbout);
    ExpectInTheMiddle(about, kAbout);
    Accept(about);
    OpenOptions();
    ExpectInTheMiddle(m_sheet, kInchSheet);
    ShowPage(IDD_4X);
    const HWND axes = OpenRotaryDialog();
    ExpectInTheMiddle(axes, kAxes);
    Cancel(axes);
    ShowPage(IDD_LATHE);
    ui::Click(m_page, IDC_LATHE_RADIUS_AXES);
    const HWND latheAxes = ui::WaitForWindow(L"Режим токарных осей - радиус", m_process.dwProcessId);
    ExpectInTheMiddle(latheAxes, L"the lathe's axes");
    Cancel(latheAxes);
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

// ---- the status line ----

TEST_F(TorvexWindow, TheStatusLineSaysWhatWasSavedAndWhere)
{
    const std::wstring nc = L". Файл: " + NcFile().wstring();
    Start();
    EXPECT_EQ(L"", Status());
    OpenOptions();
    CloseOptions(IDCANCEL);
    ui::Settle(m_main);
    EXPECT_EQ(L"", Status()) << "nothing was saved";
    Command(ID_UNITS_MILLIMETRE);
    EXPECT_TRUE(ComesToSay(L"Сохранено: Единицы измерения. Файл: " + (m_folder / L"TORVEXCore.INI").wstring()));
    OpenOptions(kMillimetreSheet);
    ui::Choose(m_page, IDC_2X_SIDE_ROUGH_STEP_TYPE, 0);
    ASSERT_TRUE(ui::WaitUntil([&] { return ui::IsEnabled(m_sheet, kApplyButton); }));
    ui::Click(m_sheet, kApplyButton);
    EXPECT_TRUE(ComesToSay(L"Сохранено: Параметры ЧПУ" + nc)) << "while the sheet is open";
    CloseOptions(IDCANCEL);
    Accept(OpenNcDefaults());
    EXPECT_TRUE(ComesToSay(L"Сохранено: Общие параметры" + nc));
    Accept(OpenDefaultTools());
    EXPECT_TRUE(ComesToSay(L"Сохранено: Инструмент по умолчанию" + nc));
    Accept(OpenDialog(ID_NC_SETUP_SHEET, L"Создание отчета"));
    EXPECT_TRUE(ComesToSay(L"Сохранено: Создание отчета" + nc));
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, TheStatusLineStaysWhereNothingWasSaved)
{
    Start();
    Command(ID_UNITS_MILLIMETRE);
    ASSERT_TRUE(ui::WaitUntil([&] { return !Status().empty(); }));
    const std::wstring before = Status();
    WriteNcFile(L"Mill5.ini", "");
    const HWND dialog = OpenDialog(ID_NC_DEFAULTS_FILE, L"Файл параметров ЧПУ");
    ui::Choose(FindWindowEx(dialog, nullptr, L"#32770", nullptr), IDC_CHOOSER_FILES, 0);
    Accept(dialog, IDNO);
    EXPECT_EQ(before, Status()) << "the answer was No";
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    OpenOptions(kMillimetreSheet);
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Click(m_sheet, IDOK);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDCANCEL);
        ui::Settle(m_sheet);
        CloseOptions(IDCANCEL);
    }
    EXPECT_EQ(before, Status()) << "it could not be saved";
    EXPECT_EQ(0u, Close());
}

// ---- the Help menu ----

/// Puts the stand-in in the place of the system's help viewer.
class StandInViewer {
public:
    explicit StandInViewer(const fs::path& log)
    {
        wchar_t before[MAX_PATH] = {};
        LONG size = sizeof before;
        if (RegQueryValue(HKEY_CLASSES_ROOT, kKey, before, &size) == ERROR_SUCCESS)
            m_before = before;
        wchar_t self[MAX_PATH];
        GetModuleFileName(nullptr, self, MAX_PATH);
        Register(fs::path(self).replace_filename(L"HelpStandIn.dll").wstring());
        SetEnvironmentVariable(L"PELMAR_TEST_HELP_LOG", log.c_str());
    }
    ~StandInViewer()
    {
        SetEnvironmentVariable(L"PELMAR_TEST_HELP_LOG", nullptr);
        Register(m_before);
    }
    StandInViewer(const StandInViewer&) = delete;
    StandInViewer& operator=(const StandInViewer&) = delete;

private:
    static constexpr wchar_t kKey[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

    static void Register(const std::wstring& path)
    {
        const auto size = static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t));
        EXPECT_EQ(ERROR_SUCCESS, RegSetValue(HKEY_CLASSES_ROOT, kKey, REG_SZ, path.c_str(), size));
    }

    std::wstring m_before;
};

std::string TextOfFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string{std::istreambuf_iterator<char>(file), {}};
}

TEST_F(TorvexWindow, TheHelpMenusContentsOpenTheHelpFileAtItsIntroduction)
{
    const fs::path log = m_folder / L"help.log";
    const fs::path file = m_folder / L"Help" / L"TORVEX.chm";
    fs::create_directory(file.parent_path());
    std::ofstream(file) << "topics";
    const StandInViewer viewer(log);
    Start();
    Command(ID_HELP_CONTENTS);
    ASSERT_TRUE(ui::WaitUntil([&] { return TextOfFile(log).ends_with("\nintroduction.htm\n"); }));
    const std::string text = TextOfFile(log);
    EXPECT_TRUE(fs::equivalent(file, text.substr(0, text.find('\n')))) << text;
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, TheHelpMenusContentsTellWhereTheFileIsMissing)
{
    Start();
    Command(ID_HELP_CONTENTS);
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_NE(std::wstring::npos, box.text.find(L"\\Help\\TORVEX.chm"));
    ui::Answer(box, IDOK);
    EXPECT_EQ(0u, Close());
}

/// Gives a file another version in its resource, as a later build would.
void PatchVersion(const fs::path& file, WORD major, WORD minor, WORD patch)
{
    std::string bytes = TextOfFile(file);
    const DWORD signature = VS_FFI_SIGNATURE;
    const size_t at = bytes.find(std::string(reinterpret_cast<const char*>(&signature), sizeof signature));
    ASSERT_NE(std::string::npos, at);
    const DWORD numbers[] = {DWORD(MAKELONG(minor, major)), DWORD(MAKELONG(0, patch))};
    bytes.replace(at + offsetof(VS_FIXEDFILEINFO, dwFileVersionMS), sizeof numbers,
                  reinterpret_cast<const char*>(numbers), sizeof numbers);
    std::ofstream(file, std::ios::binary) << bytes;
}

TEST_F(TorvexWindow, TheAboutBoxShowsTheVersionsThatTheFilesThemselvesTell)
{
    PatchVersion(m_folder / L"TORVEX.EXE", 2, 3, 4);
    PatchVersion(m_folder / L"PelmarDlgs.dll", 10, 0, 7);
    PatchVersion(m_folder / L"ToolLib.dll", 4, 5, 65535);
    PatchVersion(m_folder / L"PELMAR.dll", 6, 0, 0);
    Start();
    const HWND box = OpenDialog(ID_HELP_ABOUT, kAbout);
    EXPECT_EQ(L"TORVEX\nPelmarDlgs\nToolLib\nPELMAR\n", ui::TextOf(box, IDC_ABOUT_MODULES));
    EXPECT_EQ(L"2.3.4\n10.0.7\n4.5.65535\n6.0.0\n", ui::TextOf(box, IDC_ABOUT_VERSIONS));
    Accept(box);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexWindow, TheAboutBoxSaysWhichLibrariesAreNotThere)
{
    fs::remove(m_folder / L"ToolLib.dll");
    fs::remove(m_folder / L"PELMAR.dll");
    Launch();
    ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDOK);
    m_main = ui::WaitForWindow(L"TORVEX", m_process.dwProcessId);
    const HWND box = OpenDialog(ID_HELP_ABOUT, kAbout);
    const std::wstring versions = ui::TextOf(box, IDC_ABOUT_VERSIONS);
    EXPECT_NE(std::wstring::npos, versions.find(L"\nне загружена\nне загружена\n"));
    Accept(box);
    EXPECT_EQ(0u, Close());
}

// ---- displays ----

/// The height of a line in the system's font for messages.
LONG MessageLine()
{
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = CreateFontIndirect(&metrics.lfMessageFont);
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    TEXTMETRIC text{};
    GetTextMetrics(screen, &text);
    DeleteObject(SelectObject(screen, before));
    ReleaseDC(nullptr, screen);
    return text.tmHeight;
}

class TorvexDisplay : public TorvexWindow {
protected:
    /// Tells the main window that its display has another resolution.
    void ChangeResolution(WORD dpi, const RECT& suggested)
    {
        void* const memory = VirtualAllocEx(m_process.hProcess, nullptr, sizeof suggested, MEM_COMMIT, PAGE_READWRITE);
        ASSERT_TRUE(WriteProcessMemory(m_process.hProcess, memory, &suggested, sizeof suggested, nullptr));
        SendMessage(m_main, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(memory));
        VirtualFreeEx(m_process.hProcess, memory, 0, MEM_RELEASE);
    }
    LONG HeightOf(int id)
    {
        const RECT area = AreaOf(ui::Control(m_main, id));
        return area.bottom - area.top;
    }
};

TEST_F(TorvexDisplay, TheProgramTellsItsDisplaysApart)
{
    Start();
    using ContextOf = HANDLE WINAPI(HWND);
    using AreEqual = BOOL WINAPI(HANDLE, HANDLE);
    const HMODULE user = GetModuleHandle(L"user32.dll");
    auto* const contextOf =
        reinterpret_cast<ContextOf*>(reinterpret_cast<void*>(GetProcAddress(user, "GetWindowDpiAwarenessContext")));
    auto* const areEqual =
        reinterpret_cast<AreEqual*>(reinterpret_cast<void*>(GetProcAddress(user, "AreDpiAwarenessContextsEqual")));
    ASSERT_TRUE(contextOf && areEqual);
    const auto perMonitor = reinterpret_cast<HANDLE>(LONG_PTR{-3});
    const auto perMonitorV2 = reinterpret_cast<HANDLE>(LONG_PTR{-4});
    const HANDLE context = contextOf(m_main);
    EXPECT_TRUE(areEqual(context, perMonitor) || areEqual(context, perMonitorV2));
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexDisplay, TheMainWindowFollowsTheResolutionOfItsDisplay)
{
    const HDC screen = GetDC(nullptr);
    const auto dpi = static_cast<WORD>(GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    Start();
    const LONG path = HeightOf(IDC_SETTINGS_PATH);
    const LONG status = HeightOf(IDC_STATUS_LINE);
    const RECT suggested{10, 20, 1210, 920};
    ChangeResolution(static_cast<WORD>(2 * dpi), suggested);
    const RECT place = AreaOf(m_main);
    EXPECT_TRUE(EqualRect(&suggested, &place)) << "the place that the system says";
    EXPECT_NEAR(2 * path, HeightOf(IDC_SETTINGS_PATH), 2);
    EXPECT_GE(HeightOf(IDC_STATUS_LINE), HeightOf(IDC_SETTINGS_PATH));
    const RECT text = AreaOf(ui::Control(m_main, IDC_SETTINGS_TEXT));
    EXPECT_LE(AreaOf(ui::Control(m_main, IDC_SETTINGS_PATH)).bottom, text.top);
    EXPECT_LE(text.bottom, AreaOf(ui::Control(m_main, IDC_STATUS_LINE)).top);

    ChangeResolution(dpi, {10, 20, 610, 470});
    EXPECT_EQ(path, HeightOf(IDC_SETTINGS_PATH));
    EXPECT_EQ(status, HeightOf(IDC_STATUS_LINE));
    EXPECT_EQ(0u, Close());
}

/// At whatever resolution the tests run.
TEST_F(TorvexDisplay, TheMainWindowHasRoomForItsLinesAndStaysOnTheDisplay)
{
    Start();
    const RECT main = AreaOf(m_main);
    RECT area{};
    SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_LE(main.right, area.right);
    EXPECT_LE(main.bottom, area.bottom);
    Command(ID_UNITS_MILLIMETRE);
    ASSERT_TRUE(ui::WaitUntil([&] { return !Status().empty(); }));
    for (const int id : {IDC_SETTINGS_PATH, IDC_STATUS_LINE})
        EXPECT_LE(MessageLine(), HeightOf(id)) << id;
    EXPECT_EQ(0u, Close());
}

} // namespace
