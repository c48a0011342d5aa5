// The reference host, started as a program of its own in a folder of its own and used from outside.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <windows.h>

#include <prsht.h>

#include <gtest/gtest.h>

#include "host/torvex/resource.h"
#include "resources/resource.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

namespace fs = std::filesystem;

namespace {

constexpr int kApplyButton = 0x3021;

/// A folder with the host and its libraries, and the program running there.
class Torvex : public testing::Test {
protected:
    void SetUp() override
    {
        static int number = 0;
        const std::string name = std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number);
        m_folder = fs::temp_directory_path() / ("torvex-test-" + name);
        fs::remove_all(m_folder);
        fs::create_directory(m_folder);
        wchar_t self[MAX_PATH];
        GetModuleFileName(nullptr, self, MAX_PATH);
        for (const fs::directory_entry& file : fs::directory_iterator(fs::path(self).parent_path()))
            if (file.path().extension() == L".dll" || file.path().filename() == L"TORVEX.EXE")
                fs::copy_file(file.path(), m_folder / file.path().filename());
    }
    void TearDown() override
    {
        End();
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    /// Starts the program from another current directory than its own.
    void Launch()
    {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        std::wstring command = (m_folder / L"TORVEX.EXE").wstring();
        ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, L"C:\\", &startup,
                                   &m_process));
        CloseHandle(m_process.hThread);
    }
    void Start()
    {
        Launch();
        m_main = ui::WaitForWindow(L"TORVEX", m_process.dwProcessId);
    }
    /// Closes the program as a user does; 0 when it ended well.
    DWORD Close()
    {
        PostMessage(m_main, WM_CLOSE, 0, 0);
        DWORD code = STILL_ACTIVE;
        if (WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds) == WAIT_OBJECT_0)
            GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }
    void End()
    {
        if (!m_process.hProcess)
            return;
        TerminateProcess(m_process.hProcess, 1);
        WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds);
        CloseHandle(m_process.hProcess);
        m_process = {};
    }

    void Command(UINT id) { PostMessage(m_main, WM_COMMAND, id, 0); }
    void OpenOptions()
    {
        Command(ID_NC_OPTIONS);
        m_sheet = ui::WaitForWindow(L"Параметры ЧПУ", m_process.dwProcessId);
        FindPage();
    }
    /// Turns to the page that is made from a template.
    void ShowPage(int templateId)
    {
        SendMessage(m_sheet, PSM_SETCURSELID, 0, templateId);
        FindPage();
    }
    /// Opens one of the dialogs of the NC settings from the menu.
    HWND OpenDialog(UINT command, const wchar_t* title)
    {
        Command(command);
        return ui::WaitForWindow(title, m_process.dwProcessId);
    }
    /// Presses OK; with an answer, the question about a restart comes first.
    void Accept(HWND dialog, int answer = 0)
    {
        ui::Click(dialog, IDOK);
        if (answer)
            ui::Answer(ui::WaitForBox(m_process.dwProcessId), answer);
        ASSERT_TRUE(ui::WaitForClose(dialog));
    }
    /// What the program says after its restart.
    std::wstring Restart()
    {
        Command(ID_FILE_RESTART);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        ui::Answer(box, IDOK);
        return box.text;
    }
    std::string HostText() const
    {
        std::ifstream file(m_folder / L"TORVEXCore.INI", std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }

    void FindPage()
    {
        m_page = nullptr;
        for (const HWND child : ui::Children(m_sheet))
            if (ui::ClassOf(child) == L"#32770" && IsWindowVisible(child))
                m_page = child;
        ASSERT_NE(nullptr, m_page);
    }
    HWND OpenRotaryDialog()
    {
        ui::Click(m_page, IDC_MX_ROTARY_OPTIONS);
        return ui::WaitForWindow(L"Параметры осей поворота", m_process.dwProcessId);
    }
    void CloseOptions(int button)
    {
        ui::Click(m_sheet, button);
        ASSERT_TRUE(ui::WaitForClose(m_sheet));
    }
    void Type(int id, const std::wstring& text)
    {
        ui::Type(m_page, id, text);
        ASSERT_TRUE(ui::WaitUntil([&] { return ui::TextOf(m_page, id) == text; }));
    }
    bool ComesToHold(int id, const std::wstring& text)
    {
        return ui::WaitUntil([&] { return ui::TextOf(m_page, id) == text; });
    }

    fs::path NcFile() const { return m_folder / L"NCDEFAULT" / L"CURRENT.INI"; }
    std::string NcText() const
    {
        std::ifstream file(NcFile(), std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }
    bool ComesToWrite(const std::string& line)
    {
        return ui::WaitUntil([&] { return NcText().find("\r\n" + line + "\r\n") != std::string::npos; });
    }

    fs::path m_folder;
    PROCESS_INFORMATION m_process{};
    HWND m_main = nullptr;
    HWND m_sheet = nullptr;
    HWND m_page = nullptr;
};

TEST_F(Torvex, SavesOnOkAndRestoresAtTheNextStart)
{
    Start();
    OpenOptions();
    EXPECT_EQ(L"0.8000", ui::TextOf(m_page, IDC_2X_SIDE_ROUGH_STEP));
    Type(IDC_2X_SIDE_ROUGH_STEP, L"1/8+0.02");
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.145000"));
    EXPECT_TRUE(ui::WaitUntil(
        [&] { return ui::TextOf(m_main, IDC_SETTINGS_TEXT).find(L"SideRoughStep=0.145000") != std::wstring::npos; }));
    EXPECT_EQ(0u, Close());
    End();

    Start();
    OpenOptions();
    EXPECT_EQ(L"0.1450", ui::TextOf(m_page, IDC_2X_SIDE_ROUGH_STEP));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, MakesTheMissingNcFolderAndShowsWhereTheFileWillBe)
{
    Start();
    EXPECT_TRUE(fs::is_directory(NcFile().parent_path()));
    EXPECT_NE(std::wstring::npos, ui::TextOf(m_main, IDC_SETTINGS_PATH).find(NcFile().wstring()));
    EXPECT_EQ(L"Файла ещё нет: он появится, когда параметры будут сохранены.", ui::TextOf(m_main, IDC_SETTINGS_TEXT));
}

TEST_F(Torvex, CancelWritesNothing)
{
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    CloseOptions(IDCANCEL);
    OpenOptions();
    EXPECT_EQ(L"0.8000", ui::TextOf(m_page, IDC_2X_SIDE_ROUGH_STEP));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
    EXPECT_FALSE(fs::exists(NcFile()));
}

TEST_F(Torvex, ApplySavesEvenWhenCancelFollows)
{
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    ui::Choose(m_page, IDC_2X_SIDE_ROUGH_STEP_TYPE, 0);
    ASSERT_TRUE(ui::WaitUntil([&] { return ui::IsEnabled(m_sheet, kApplyButton); }));
    ui::Click(m_sheet, kApplyButton);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.500000"));
    EXPECT_TRUE(ComesToWrite("SideRoughStepType=0"));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, RefusedApplyWritesNothing)
{
    Start();
    OpenOptions();
    Type(IDC_2X_CORNER_ANGLE, L"29");
    ui::Choose(m_page, IDC_2X_SIDE_ROUGH_STEP_TYPE, 0);
    ASSERT_TRUE(ui::WaitUntil([&] { return ui::IsEnabled(m_sheet, kApplyButton); }));
    // With its access key: the focus stays in the field.
    PostMessage(m_sheet, WM_COMMAND, kApplyButton, reinterpret_cast<LPARAM>(ui::Control(m_sheet, kApplyButton)));
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_EQ(L"Введите число от 30.0000 до 150.0000.", box.text);
    EXPECT_EQ(L"TORVEX", box.caption);
    ui::Answer(box, IDOK);
    Type(IDC_2X_CORNER_ANGLE, L"135"); // leaving the field would ask again
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
    EXPECT_FALSE(fs::exists(NcFile()));
}

TEST_F(Torvex, AsksForANumberInRussian)
{
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"x");
    ui::Press(ui::Control(m_page, IDC_2X_SIDE_ROUGH_STEP), VK_RETURN);
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_EQ(L"Введите число.", box.text);
    ui::Answer(box, IDOK);
}

TEST_F(Torvex, ShowsAndSavesInTheUnitsOfTheMenuAndKeepsThem)
{
    Start();
    Command(ID_UNITS_MILLIMETRE);
    OpenOptions();
    EXPECT_EQ(L"25.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("RapidPlane=25.000000"));
    EXPECT_EQ(0u, Close());
    End();

    Start();
    OpenOptions();
    EXPECT_EQ(L"25.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDCANCEL);
    Command(ID_UNITS_INCH);
    OpenOptions();
    EXPECT_EQ(L"1.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDCANCEL);
}

TEST_F(Torvex, DefaultsButtonOfTheSheetRestoresThePageInFront)
{
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    ui::Click(m_sheet, IDC_PAGE_DEFAULTS);
    EXPECT_TRUE(ComesToHold(IDC_2X_SIDE_ROUGH_STEP, L"0.8000"));
    CloseOptions(IDCANCEL);
}

TEST_F(Torvex, LetsTheUserGiveTheAxisOfRotationOnBothMultiAxisPages)
{
    Start();
    OpenOptions();
    for (const int page : {IDD_4X, IDD_5X}) {
        ShowPage(page);
        const HWND dialog = OpenRotaryDialog();
        ui::Type(dialog, IDC_ROTARY_START_Y, L"x");
        ui::Press(ui::Control(dialog, IDC_ROTARY_START_Y), VK_RETURN);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        EXPECT_EQ(L"Введите число.", box.text);
        ui::Answer(box, IDOK);
        ui::Type(dialog, IDC_ROTARY_START_Y, L"2.5");
        ui::Press(ui::Control(dialog, IDC_ROTARY_START_Y), VK_RETURN);
        EXPECT_TRUE(ui::WaitForClose(dialog));
    }
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("StartPY=2.500000"));

    OpenOptions();
    for (const int page : {IDD_4X, IDD_5X}) {
        ShowPage(page);
        const HWND dialog = OpenRotaryDialog();
        EXPECT_EQ(L"2.5000", ui::TextOf(dialog, IDC_ROTARY_START_Y)) << page;
        EXPECT_EQ(L"1.0000", ui::TextOf(dialog, IDC_ROTARY_END_X)) << page;
        ui::Press(ui::Control(dialog, IDC_ROTARY_START_X), VK_ESCAPE);
        EXPECT_TRUE(ui::WaitForClose(dialog));
    }
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, GoesOnWithoutTheToolLibraryAfterSayingSoOnce)
{
    fs::remove(m_folder / L"ToolLib.dll");
    Launch();
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_EQ(L"Библиотека инструмента не найдена или неполна. Выбор инструмента недоступен, остальные параметры "
              L"ЧПУ работают.",
              box.text);
    ui::Answer(box, IDOK);
    m_main = ui::WaitForWindow(L"TORVEX", m_process.dwProcessId);
    EXPECT_FALSE(ui::IsBoxOpen(m_process.dwProcessId));
    OpenOptions();
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.800000"));
    EXPECT_EQ(0u, Close());
}

// ---- the dialogs of the NC settings ----

TEST_F(Torvex, StoresTheDisplayModeAfterTheQuestionAndShowsItAfterARestart)
{
    Start();
    EXPECT_NE(std::wstring::npos, Restart().find(L"команды ЧПУ на панели инструментов"));
    HWND dialog = OpenDialog(ID_NC_DEFAULTS, L"Параметры ЧПУ");
    ui::Click(dialog, IDC_NCDEF_MENU);
    Accept(dialog, IDNO);
    EXPECT_EQ(std::string::npos, HostText().find("NcDisplayMode"));
    dialog = OpenDialog(ID_NC_DEFAULTS, L"Параметры ЧПУ");
    ui::Click(dialog, IDC_NCDEF_MENU);
    ui::Click(dialog, IDC_NCDEF_CLASSIC_3_AXIS);
    Accept(dialog, IDYES);
    EXPECT_NE(std::string::npos, HostText().find("NcDisplayMode=1\r\n"));
    const std::wstring inEffect = Restart();
    EXPECT_NE(std::wstring::npos, inEffect.find(L"команды ЧПУ в выпадающем меню"));
    EXPECT_NE(std::wstring::npos, inEffect.find(L"классическое 3-осевое фрезерование"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, KeepsTheNcDefaultsBetweenUses)
{
    Start();
    HWND dialog = OpenDialog(ID_NC_DEFAULTS, L"Параметры ЧПУ");
    ui::Click(dialog, IDC_NCDEF_LAST_TOOL);
    ui::Click(dialog, IDC_NCDEF_FILTER_SPANS);
    ui::Type(dialog, IDC_NCDEF_MAX_SPAN, L"1/4");
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("FilterMaxSpan=0.250000"));
    dialog = OpenDialog(ID_NC_DEFAULTS, L"Параметры ЧПУ");
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_NCDEF_LAST_TOOL));
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_NCDEF_FILTER_SPANS));
    EXPECT_EQ(L"0.2500", ui::TextOf(dialog, IDC_NCDEF_MAX_SPAN));
    ui::Click(dialog, IDCANCEL);
    ASSERT_TRUE(ui::WaitForClose(dialog));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, DefaultsOfTheToolsAreShownAndKept)
{
    Start();
    HWND dialog = OpenDialog(ID_NC_DEFAULT_TOOLS, L"Параметры ЧПУ > Сервис");
    EXPECT_EQ(L"", ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT));
    ui::Click(dialog, IDC_PAGE_DEFAULTS);
    std::wstring tool;
    EXPECT_TRUE(ui::WaitUntil([&] { return !(tool = ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT)).empty(); }));
    ui::Choose(dialog, IDC_TOOLS_SORT_TYPE, 2);
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("ToolSortBy=2"));
    dialog = OpenDialog(ID_NC_DEFAULT_TOOLS, L"Параметры ЧПУ > Сервис");
    EXPECT_EQ(tool, ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT));
    EXPECT_EQ(2, ui::Selection(dialog, IDC_TOOLS_SORT_TYPE));
    ui::Click(dialog, IDCANCEL);
    ASSERT_TRUE(ui::WaitForClose(dialog));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, AnotherDefaultsFileIsInUseAfterARestart)
{
    std::ofstream(m_folder / L"TORVEXCore.INI") << "[DefaultPath]\r\nNCDefaultPath=.\\NCDEFAULT\r\n";
    Start();
    std::ofstream(m_folder / L"NCDEFAULT" / L"Mill5.ini") << "[Options2x]\r\nRapidPlane=7\r\n";
    const HWND dialog = OpenDialog(ID_NC_DEFAULTS_FILE, L"Файл параметров ЧПУ");
    const HWND chooser = FindWindowEx(dialog, nullptr, L"#32770", nullptr);
    ASSERT_NE(nullptr, chooser);
    EXPECT_EQ((std::vector<std::wstring>{L"Mill5.ini"}), ui::Items(chooser, IDC_CHOOSER_FILES));
    ui::Choose(chooser, IDC_CHOOSER_FILES, 0);
    Accept(dialog, IDYES);
    EXPECT_NE(std::wstring::npos, Restart().find(L"Mill5.ini"));
    OpenOptions();
    EXPECT_EQ(L"7.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, KeepsTheTemplateOfAnOperationInThePostProcessorLibrary)
{
    Start();
    const HWND dialog = OpenDialog(ID_NC_TEMPLATES, L"Шаблоны траекторий");
    const HWND templates = FindWindowEx(dialog, nullptr, L"#32770", nullptr);
    ASSERT_NE(nullptr, templates);
    EXPECT_LT(3u, ui::Items(templates, IDC_TEMPLATES_OPERATION).size());
    EXPECT_EQ(7u, ui::Items(templates, IDC_TEMPLATES_FIRST_SORT).size());
    // What the dialog itself has shown counts as a change: OK asks.
    Accept(dialog, IDNO);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, SavesTheSetupSheetsOptions)
{
    Start();
    HWND dialog = OpenDialog(ID_NC_SETUP_SHEET, L"Создание отчета");
    HWND sheet = FindWindowEx(dialog, nullptr, L"#32770", nullptr);
    ASSERT_NE(nullptr, sheet);
    ui::Type(sheet, IDC_SHEET_RAPID_RATE, L"0");
    ui::Press(ui::Control(sheet, IDC_SHEET_RAPID_RATE), VK_RETURN);
    ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDOK);
    EXPECT_TRUE(IsWindow(dialog));
    ui::Type(sheet, IDC_SHEET_RAPID_RATE, L"500+1/2");
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("RapidRate=500.500000"));
    EXPECT_EQ(0u, Close());
}

} // namespace
