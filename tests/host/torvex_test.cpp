// The reference host as its user sees it: pages, dialogs, and what it saves.
#include "torvex_host.h"

namespace {

constexpr int kHelpCommand = 0xE146; ///< of the framework

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

TEST_F(Torvex, AMistakeGivesOnePromptWhicheverWayOkIsPressed)
{
    Start();
    OpenOptions();
    for (const bool byMouse : {false, true}) {
        Type(IDC_2X_SIDE_ROUGH_STEP, L"x");
        if (byMouse)
            ui::Click(m_sheet, IDOK);
        else
            ui::Press(ui::Control(m_page, IDC_2X_SIDE_ROUGH_STEP), VK_RETURN);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDOK);
        EXPECT_FALSE(ui::IsBoxOpen(m_process.dwProcessId)) << byMouse;
        EXPECT_TRUE(IsWindow(m_sheet)) << byMouse;
    }
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
    EXPECT_FALSE(fs::exists(NcFile()));
}

TEST_F(Torvex, ShowsAndSavesInTheUnitsOfTheMenuAndKeepsThem)
{
    Start();
    Command(ID_UNITS_MILLIMETRE);
    OpenOptions(kMillimetreSheet);
    EXPECT_EQ(L"25.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("RapidPlane=25.000000"));
    EXPECT_EQ(0u, Close());
    End();

    Start();
    OpenOptions(kMillimetreSheet);
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
    WriteNcFile(L"DEFAULT.INI", "[MILLTIPI]\r\nToolDefUS=36\r\n");
    HWND dialog = OpenDefaultTools();
    const std::wstring before = ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT);
    ui::Click(dialog, IDC_PAGE_DEFAULTS);
    std::wstring tool;
    EXPECT_TRUE(ui::WaitUntil([&] { return (tool = ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT)) != before; }));
    ui::Choose(dialog, IDC_TOOLS_SORT_TYPE, 2);
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("ToolSortBy=2"));
    dialog = OpenDefaultTools();
    EXPECT_EQ(tool, ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT));
    EXPECT_EQ(2, ui::Selection(dialog, IDC_TOOLS_SORT_TYPE));
    Cancel(dialog);
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

// ---- what the host keeps over its runs ----

constexpr int kStartUpBoxes[] = {IDC_NCDEF_LAST_MATERIAL, IDC_NCDEF_LAST_TOOL, IDC_NCDEF_LAST_CUT_CONTROL,
                                 IDC_NCDEF_MINIMUM_Z, IDC_NCDEF_PROGRAM_NAME};

TEST_F(Torvex, KeepsTheNcDefaultsOverItsRuns)
{
    WriteNcFile(L"CURRENT.INI", "[Settings]\r\nUsePLXDialogs=3\r\n");
    Start();
    HWND dialog = OpenNcDefaults();
    for (const int box : kStartUpBoxes)
        ui::Click(dialog, box);
    ui::Click(dialog, IDC_NCDEF_FILTER_SPANS);
    ui::Type(dialog, IDC_NCDEF_MAX_SPAN, L"1/4");
    ui::Type(dialog, IDC_NCDEF_ARC_TOLERANCE, L"0.02");
    Accept(dialog);
    for (const char* line : {"DefToLastMaterial;=1", "DefToLastTool=1", "DefToLastCutCtrl=1", "ProgramName=1",
                             "FilterSpans=1", "FilterMaxSpan=0.250000", "FilterArcTol=0.020000"})
        EXPECT_TRUE(ComesToWrite(line)) << line;
    EXPECT_TRUE(ComesToWrite("UsePLXDialogs=7")) << "the other bits are other dialogs'";

    StartAgain();
    dialog = OpenNcDefaults();
    for (const int box : kStartUpBoxes)
        EXPECT_TRUE(ui::IsChecked(dialog, box)) << box;
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_NCDEF_FILTER_SPANS));
    EXPECT_EQ(L"0.2500", ui::TextOf(dialog, IDC_NCDEF_MAX_SPAN));
    EXPECT_EQ(L"0.0200", ui::TextOf(dialog, IDC_NCDEF_ARC_TOLERANCE));
    const std::string before = NcText();
    Accept(dialog);
    EXPECT_EQ(before, NcText());

    dialog = OpenNcDefaults();
    ui::Click(dialog, IDC_NCDEF_MINIMUM_Z);
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("UsePLXDialogs=3"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, NcDefaultsThatOnlyTheDefaultsFileHoldsAreShownAndKept)
{
    WriteNcFile(L"DEFAULT.INI", "[ALLTIPI]\r\nDefToLastMaterial;=1\r\nDefToLastTool=1\r\nDefToLastCutCtrl=1\r\n"
                                "[Settings]\r\nProgramName=1\r\nUsePLXDialogs=5\r\n[DefaultNCParameter]\r\n"
                                "FilterSpans=1\r\nFilterMaxSpan=0.75\r\nFilterArcTol=0.125\r\n");
    Start();
    const HWND dialog = OpenNcDefaults();
    for (const int box : kStartUpBoxes)
        EXPECT_TRUE(ui::IsChecked(dialog, box)) << box;
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_NCDEF_FILTER_SPANS));
    EXPECT_EQ(L"0.7500", ui::TextOf(dialog, IDC_NCDEF_MAX_SPAN));
    EXPECT_EQ(L"0.1250", ui::TextOf(dialog, IDC_NCDEF_ARC_TOLERANCE));
    Accept(dialog);
    for (const char* line : {"DefToLastMaterial;=1", "DefToLastTool=1", "DefToLastCutCtrl=1", "ProgramName=1",
                             "UsePLXDialogs=5", "FilterSpans=1", "FilterMaxSpan=0.750000", "FilterArcTol=0.125000"})
        EXPECT_TRUE(ComesToWrite(line)) << line;
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, WhatTheUserSwitchedOffIsNotSwitchedOnAgainByTheDefaultsFile)
{
    WriteNcFile(L"DEFAULT.INI", "[ALLTIPI]\r\nDefToLastTool=1\r\n[DefaultNCParameter]\r\nFilterSpans=1\r\n");
    Start();
    HWND dialog = OpenNcDefaults();
    ui::Click(dialog, IDC_NCDEF_LAST_TOOL);
    ui::Click(dialog, IDC_NCDEF_FILTER_SPANS);
    Accept(dialog);
    StartAgain();
    dialog = OpenNcDefaults();
    EXPECT_FALSE(ui::IsChecked(dialog, IDC_NCDEF_LAST_TOOL));
    EXPECT_FALSE(ui::IsChecked(dialog, IDC_NCDEF_FILTER_SPANS));
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, TolerancesThatAreNoneYieldTheNextFile)
{
    WriteNcFile(L"CURRENT.INI", "[DefaultNCParameter]\r\nFilterMaxSpan=-1\r\nFilterArcTol=abc\r\n");
    WriteNcFile(L"DEFAULT.INI", "[DefaultNCParameter]\r\nFilterMaxSpan=0.5\r\nFilterArcTol=-2\r\n");
    Start();
    const HWND dialog = OpenNcDefaults();
    EXPECT_EQ(L"0.5000", ui::TextOf(dialog, IDC_NCDEF_MAX_SPAN));
    EXPECT_EQ(L"0.0010", ui::TextOf(dialog, IDC_NCDEF_ARC_TOLERANCE));
    Accept(dialog);
    EXPECT_TRUE(ComesToWrite("FilterMaxSpan=0.500000"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, KeepsTheStockMaterialInItsOwnSettings)
{
    std::ofstream(m_folder / L"TORVEXCore.INI") << "[DefaultNCParameter]\r\nStockMaterial=5\r\n";
    Start();
    Accept(OpenNcDefaults());
    StartAgain();
    Accept(OpenNcDefaults());
    EXPECT_NE(std::string::npos, HostText().find("StockMaterial=5\r\n"));
    EXPECT_EQ(0u, Close());
}

/// The texts of the default tools, in the order of the kinds.
constexpr int kToolTexts[] = {IDC_TOOLS_MILL_TEXT,         IDC_TOOLS_DRILL_TEXT,      IDC_TOOLS_LATHE_TEXT,
                              IDC_TOOLS_LATHE_DRILL_TEXT,  IDC_TOOLS_PROBE_TEXT,      IDC_TOOLS_EDM_TEXT,
                              IDC_TOOLS_THREAD_TEXT,       IDC_TOOLS_FACE_MILL_TEXT,  IDC_TOOLS_ROUND_MILL_TEXT,
                              IDC_TOOLS_CHAMFER_MILL_TEXT, IDC_TOOLS_THREAD_MILL_TEXT};

std::vector<std::wstring> ToolsShown(HWND dialog)
{
    std::vector<std::wstring> texts;
    for (const int id : kToolTexts)
        texts.push_back(ui::TextOf(dialog, id));
    return texts;
}

TEST_F(Torvex, ShowsTheBuiltInToolsWhereNoFileHoldsAnyAsTheDefaultsButtonDoes)
{
    Start();
    for (const UINT units : {ID_UNITS_INCH, ID_UNITS_MILLIMETRE}) {
        Command(units);
        const HWND dialog = OpenDefaultTools();
        const std::vector<std::wstring> shown = ToolsShown(dialog);
        for (const std::wstring& text : shown)
            EXPECT_NE(L"", text);
        // Another mill, for the button to have something to do.
        const HWND list = OpenToolList(dialog, IDC_TOOLS_MILL,
                                       units == ID_UNITS_INCH ? kInchMills : L"Выбор инструмента - фрезы (мм)");
        ui::Press(ui::Control(list, kToolList), VK_END);
        ui::Click(list, IDOK);
        EXPECT_TRUE(ui::WaitUntil([&] { return ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT) != shown[0]; }));
        ui::Click(dialog, IDC_PAGE_DEFAULTS);
        EXPECT_TRUE(ui::WaitUntil([&] { return ToolsShown(dialog) == shown; }));
        Cancel(dialog);
    }
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, ToolsThatOnlyTheDefaultsFileHoldsAreShownAndKept)
{
    WriteNcFile(L"DEFAULT.INI", "[MILLTIPI]\r\nToolDefUS=36\r\nToolDefMM=2131\r\n[EDMTIPI]\r\nToolDefUS=8\r\n");
    Start();
    const HWND dialog = OpenDefaultTools();
    const std::vector<std::wstring> shown = ToolsShown(dialog);
    ui::Click(dialog, IDC_PAGE_DEFAULTS);
    ui::Settle(dialog);
    EXPECT_TRUE(ui::WaitUntil([&] { return ToolsShown(dialog) == shown; }));
    Accept(dialog);
    const std::string text = NcText();
    for (const char* tools :
         {"[MILLTIPI]\r\nToolDefUS=36\r\nToolDefMM=2131\r\n", "[EDMTIPI]\r\nToolDefUS=8\r\nToolDefMM=38\r\n",
          "[THREADTIPI]\r\nToolDefUS=113\r\nToolDefMM=113\r\n"})
        EXPECT_NE(std::string::npos, text.find(tools)) << tools;
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, KeepsTheDefaultToolsOverItsRuns)
{
    Start();
    HWND dialog = OpenDefaultTools();
    const HWND list = OpenToolList(dialog, IDC_TOOLS_MILL, kInchMills);
    ui::Press(ui::Control(list, kToolList), VK_HOME);
    ui::Click(list, IDOK);
    ASSERT_TRUE(ui::WaitForClose(list));
    ui::Click(dialog, IDC_TOOLS_MILL_GAUGE_LENGTH);
    ui::Choose(dialog, IDC_TOOLS_SORT_TYPE, 2);
    const std::vector<std::wstring> shown = ToolsShown(dialog);
    Accept(dialog);
    EXPECT_NE(std::string::npos, NcText().find("[MILLTIPI]\r\nToolDefUS=36\r\nToolDefMM=2139\r\n"));

    StartAgain();
    dialog = OpenDefaultTools();
    EXPECT_EQ(shown, ToolsShown(dialog));
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_TOOLS_MILL_GAUGE_LENGTH));
    EXPECT_EQ(2, ui::Selection(dialog, IDC_TOOLS_SORT_TYPE));
    const std::string before = NcText();
    Accept(dialog);
    EXPECT_EQ(before, NcText());
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, WithoutTheToolLibraryTheDefaultToolsStayAsTheFilesHaveThem)
{
    fs::remove(m_folder / L"ToolLib.dll");
    WriteNcFile(L"CURRENT.INI", "[MILLTIPI]\r\nToolDefUS=36\r\n[EDMTIPI]\r\nToolDefMM=37\r\n");
    Launch();
    ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDOK);
    m_main = ui::WaitForWindow(L"TORVEX", m_process.dwProcessId);
    Accept(OpenDefaultTools());
    const std::string text = NcText();
    EXPECT_NE(std::string::npos, text.find("[MILLTIPI]\r\nToolDefUS=36\r\nToolDefMM=2139\r\n"));
    EXPECT_NE(std::string::npos, text.find("[EDMTIPI]\r\nToolDefMM=37\r\nToolDefUS=10\r\n"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, ARestartReadsWhatIsKeptFromTheFilesAsTheyThenStand)
{
    Start();
    HWND dialog = OpenDefaultTools();
    const std::wstring builtIn = ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT);
    Cancel(dialog);
    WriteNcFile(L"CURRENT.INI", "[MILLTIPI]\r\nToolDefUS=36\r\n[ALLTIPI]\r\nDefToLastTool=1\r\n");
    Restart();
    dialog = OpenDefaultTools();
    EXPECT_NE(builtIn, ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT));
    Cancel(dialog);
    dialog = OpenNcDefaults();
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_NCDEF_LAST_TOOL));
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, OpensTheDefaultToolsInItsOwnUnits)
{
    Start();
    Command(ID_UNITS_MILLIMETRE);
    HWND dialog = OpenDefaultTools();
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_TOOLS_MILLIMETRE));
    const std::wstring millimetreMill = ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT);
    ui::Click(dialog, IDC_TOOLS_INCH);
    EXPECT_TRUE(ui::WaitUntil([&] { return ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT) != millimetreMill; }));
    Accept(dialog);

    // After OK the tool library keeps the dialog's units. The host's are others.
    dialog = OpenDefaultTools();
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_TOOLS_MILLIMETRE));
    EXPECT_EQ(millimetreMill, ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT));
    Cancel(dialog);
    for (const bool again : {false, true}) {
        again ? StartAgain() : void(Restart());
        dialog = OpenDefaultTools();
        EXPECT_TRUE(ui::IsChecked(dialog, IDC_TOOLS_MILLIMETRE)) << again;
        EXPECT_EQ(millimetreMill, ui::TextOf(dialog, IDC_TOOLS_MILL_TEXT)) << again;
        Cancel(dialog);
    }
    Command(ID_UNITS_INCH);
    dialog = OpenDefaultTools();
    EXPECT_TRUE(ui::IsChecked(dialog, IDC_TOOLS_INCH));
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
}

// ---- tool lists ----

TEST_F(Torvex, ToolListsHaveTheOrderThatTheUserHasChosen)
{
    const std::vector<std::wstring> byDiameter = {L"36",  L"61",   L"40", L"44", L"63",   L"71",
                                                  L"335", L"1100", L"48", L"52", L"1007", L"1011"};
    const std::vector<std::wstring> byToolNumber = {L"44", L"1100", L"1011", L"1007", L"335", L"71",
                                                    L"63", L"61",   L"52",   L"48",   L"40",  L"36"};
    const std::vector<std::wstring> byDatabaseNumber = {L"36", L"40", L"44",  L"48",   L"52",   L"61",
                                                        L"63", L"71", L"335", L"1007", L"1011", L"1100"};
    Start();
    HWND dialog = OpenDefaultTools();
    HWND list = OpenToolList(dialog, IDC_TOOLS_MILL, kInchMills);
    EXPECT_EQ(byDiameter, ToolsIn(list));
    Cancel(list);
    for (const auto& [choice, expected] : {std::pair{1, byToolNumber}, {2, byDatabaseNumber}, {0, byDiameter}}) {
        ui::Choose(dialog, IDC_TOOLS_SORT_TYPE, choice);
        Accept(dialog);
        dialog = OpenDefaultTools();
        list = OpenToolList(dialog, IDC_TOOLS_MILL, kInchMills);
        EXPECT_EQ(expected, ToolsIn(list)) << choice;
        Cancel(list);
    }
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, AnOrderThatIsNoneListsToolsByDiameter)
{
    WriteNcFile(L"CURRENT.INI", "[Settings]\r\nToolSortBy=7\r\n");
    Start();
    const HWND dialog = OpenDefaultTools();
    const HWND list = OpenToolList(dialog, IDC_TOOLS_MILL, kInchMills);
    EXPECT_EQ(L"61", ToolsIn(list)[1]);
    Cancel(list);
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, TheBallToolBoxLeavesBallMillsOnlyInThisListAndTheNextOnes)
{
    const std::vector<std::wstring> ballMills = {L"61", L"63"};
    Start();
    HWND dialog = OpenDefaultTools();
    HWND list = OpenToolList(dialog, IDC_TOOLS_MILL, kInchMills);
    EXPECT_FALSE(ui::IsChecked(list, kOnlyBallTools));
    EXPECT_EQ(12u, ToolsIn(list).size());
    ui::Click(list, kOnlyBallTools);
    EXPECT_TRUE(ui::WaitUntil([&] { return ToolsIn(list) == ballMills; }));
    EXPECT_FALSE(ui::IsEnabled(list, IDOK)) << "the current tool is no ball mill";
    Cancel(list);
    Cancel(dialog);

    StartAgain();
    EXPECT_NE(std::string::npos, HostText().find("OnlyBallTools=1\r\n"));
    dialog = OpenDefaultTools();
    list = OpenToolList(dialog, IDC_TOOLS_FACE_MILL, kInchMills);
    EXPECT_TRUE(ui::IsChecked(list, kOnlyBallTools));
    EXPECT_EQ(ballMills, ToolsIn(list));
    ui::Click(list, kOnlyBallTools);
    EXPECT_TRUE(ui::WaitUntil([&] { return ToolsIn(list).size() == 12; }));
    EXPECT_TRUE(ui::IsEnabled(list, IDOK)) << "the current tool is there again";
    Cancel(list);
    list = OpenToolList(dialog, IDC_TOOLS_DRILL, L"Выбор инструмента - осевой инструмент (фрезерный) (дюймы)");
    EXPECT_FALSE(ui::IsShown(list, kOnlyBallTools));
    Cancel(list);
    Cancel(dialog);
    EXPECT_EQ(0u, Close());
    EXPECT_NE(std::string::npos, HostText().find("OnlyBallTools=0\r\n"));
}

// ---- a save that fails ----

TEST_F(Torvex, HelpWithoutItsFileIsToldOfOnceInARunWithThePlaceOfTheFile)
{
    constexpr int kHelpButton = 9; // the sheet's own
    Start();
    OpenOptions();
    ui::Click(m_sheet, kHelpButton);
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_NE(std::wstring::npos, box.text.find(L"Справка не открывается")) << box.text.size();
    EXPECT_NE(std::wstring::npos, box.text.find(L"\\Help\\TORVEX.chm")) << box.text.size();
    ui::Answer(box, IDOK);
    ui::Click(m_sheet, kHelpButton);
    CloseOptions(IDCANCEL);
    EXPECT_FALSE(ui::IsBoxOpen(m_process.dwProcessId));
    const HWND dialog = OpenNcDefaults();
    ui::Click(dialog, kHelpCommand);
    Cancel(dialog);
    EXPECT_FALSE(ui::IsBoxOpen(m_process.dwProcessId));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, ASheetThatCouldNotBeSavedTellsTheFileAndTheReasonAndStaysOpen)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    const std::string before = NcText();
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    {
        const OccupiedFile held(NcFile());
        ui::Click(m_sheet, IDOK);
        ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        EXPECT_NE(std::wstring::npos, box.text.find(L"Не сохранено: Параметры ЧПУ.")) << "what";
        EXPECT_NE(std::wstring::npos, box.text.find(L"Файл: " + NcFile().wstring() + L"\n")) << "the file";
        EXPECT_NE(std::wstring::npos, box.text.find(L"код\u00a032")) << "the reason";
        EXPECT_EQ((std::vector<int>{IDRETRY, IDCANCEL}), box.buttons);
        ui::Answer(box, IDRETRY);
        box = ui::WaitForBox(m_process.dwProcessId);
        ui::Answer(box, IDCANCEL);
        ui::Settle(m_sheet);
        EXPECT_TRUE(IsWindow(m_sheet));
        EXPECT_EQ(L"0.5000", ui::TextOf(m_page, IDC_2X_SIDE_ROUGH_STEP));
    }
    EXPECT_EQ(before, NcText());
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.500000"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, TryingAgainSavesAsSoonAsTheFolderIsThereAndClosesTheSheet)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    ui::MessageBoxSeen box;
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Press(ui::Control(m_page, IDC_2X_SIDE_ROUGH_STEP), VK_RETURN);
        box = ui::WaitForBox(m_process.dwProcessId);
    }
    ui::Answer(box, IDRETRY);
    EXPECT_TRUE(ui::WaitForClose(m_sheet));
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.500000"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, AnApplyThatCouldNotBeSavedCanBePressedAgain)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    ui::Choose(m_page, IDC_2X_SIDE_ROUGH_STEP_TYPE, 0);
    ASSERT_TRUE(ui::WaitUntil([&] { return ui::IsEnabled(m_sheet, kApplyButton); }));
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Click(m_sheet, kApplyButton);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDCANCEL);
        ASSERT_TRUE(ui::WaitUntil([&] { return ui::IsEnabled(m_sheet, kApplyButton); }));
    }
    ui::Click(m_sheet, kApplyButton);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.500000"));
    EXPECT_TRUE(ui::WaitUntil([&] { return !ui::IsEnabled(m_sheet, kApplyButton); }));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, GivingUpASaveKeepsTheValuesInMemory)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nSideRoughStep=0.3\r\n");
    Start();
    OpenOptions();
    Type(IDC_2X_SIDE_ROUGH_STEP, L"0.5");
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Click(m_sheet, IDOK);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDCANCEL);
        ui::Settle(m_sheet);
        CloseOptions(IDCANCEL);
    }
    OpenOptions();
    EXPECT_EQ(L"0.5000", ui::TextOf(m_page, IDC_2X_SIDE_ROUGH_STEP));
    CloseOptions(IDOK);
    EXPECT_TRUE(ComesToWrite("SideRoughStep=0.500000"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, ADialogThatCouldNotBeSavedStaysOpenUntilItIs)
{
    struct Case {
        UINT command;
        const wchar_t* title;
        const wchar_t* what;
        const char* line;
    };
    constexpr Case kCases[] = {
        {ID_NC_DEFAULTS, kNcDefaults, L"Общие параметры", "FilterSpans=0"},
        {ID_NC_DEFAULT_TOOLS, kDefaultTools, L"Инструмент по умолчанию", "ToolSortBy=0"},
        {ID_NC_SETUP_SHEET, L"Создание отчета", L"Создание отчета", "RapidRate=400.000000"},
    };
    WriteNcFile(L"CURRENT.INI", "[Mine]\r\nKept=1\r\n");
    Start();
    for (const Case& one : kCases) {
        const HWND dialog = OpenDialog(one.command, one.title);
        {
            const AbsentFolder absent(NcFile().parent_path());
            ui::Click(dialog, IDOK);
            const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
            EXPECT_NE(std::wstring::npos, box.text.find(std::wstring(L"Не сохранено: ") + one.what + L"."));
            ui::Answer(box, IDCANCEL);
            ui::Settle(dialog);
            EXPECT_TRUE(IsWindow(dialog));
        }
        Accept(dialog);
        EXPECT_TRUE(ComesToWrite(one.line));
        EXPECT_EQ(0u, NcText().find("[Mine]\r\nKept=1\r\n"));
    }
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, WhatADialogStoredBeforeTheUserGaveUpIsSavedByItsNextOk)
{
    Start();
    HWND dialog = OpenNcDefaults();
    ui::Click(dialog, IDC_NCDEF_MENU);
    {
        const AbsentFolder absent(NcFile().parent_path());
        ui::Click(dialog, IDOK);
        ui::Answer(ui::WaitForBox(m_process.dwProcessId), IDYES);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        EXPECT_NE(std::wstring::npos, box.text.find(L"Не сохранено"));
        ui::Answer(box, IDCANCEL);
        ui::Settle(dialog);
    }
    Accept(dialog);
    EXPECT_NE(std::string::npos, HostText().find("NcDisplayMode=1\r\n"));
    EXPECT_TRUE(ComesToWrite("FilterSpans=0"));
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, UnitsThatCouldNotBeSavedAreToldOfAndInUse)
{
    std::ofstream(m_folder / L"TORVEXCore.INI") << "[Settings]\r\nUnits=0\r\n";
    Start();
    {
        const OccupiedFile held(m_folder / L"TORVEXCore.INI");
        Command(ID_UNITS_MILLIMETRE);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        EXPECT_EQ(0u, box.text.find(L"Не сохранено: Единицы измерения.\n"));
        ui::Answer(box, IDCANCEL);
        ui::Settle(m_main);
    }
    OpenOptions(kMillimetreSheet);
    EXPECT_EQ(L"25.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(Torvex, TellsWhereADamagedFileWasKeptWhenItIsFirstSaved)
{
    const std::string damaged = "[Options2x]\r\nRapidPlane=2.000000\r\nSideRou";
    WriteNcFile(L"CURRENT.INI", damaged);
    Start();
    OpenOptions();
    EXPECT_EQ(L"2.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    ui::Click(m_sheet, IDOK);
    const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
    EXPECT_NE(std::wstring::npos, box.text.find(L"был повреждён"));
    std::wstring kept;
    for (const fs::directory_entry& file : fs::directory_iterator(NcFile().parent_path()))
        if (file.path() != NcFile() && fs::file_size(file) == damaged.size())
            kept = file.path().wstring();
    EXPECT_NE(L"", kept);
    EXPECT_NE(std::wstring::npos, box.text.find(kept)) << "the new name";
    ui::Answer(box, IDOK);
    EXPECT_TRUE(ui::WaitForClose(m_sheet));
    EXPECT_TRUE(ComesToWrite("RapidPlane=2.000000"));
    OpenOptions();
    CloseOptions(IDOK); // and says nothing more
    EXPECT_EQ(0u, Close());
}

// ---- the review of the settings ----

/// The review, used by keyboard from its search box on.
class TorvexReview : public Torvex {
protected:
    void OpenReview()
    {
        m_review = OpenDialog(ID_NC_REVIEW, L"Проверка параметров");
        m_list = ui::Control(m_review, IDC_REVIEW_LIST);
    }
    /// Finds the one setting that a name means, and goes to its row.
    void Find(const std::wstring& name, int expected = 1)
    {
        ui::Type(m_review, IDC_REVIEW_SEARCH, name);
        ASSERT_TRUE(ui::WaitUntil([&] { return ListView_GetItemCount(m_list) == expected; }));
        ui::Press(ui::Control(m_review, IDC_REVIEW_SEARCH), VK_RETURN);
        ASSERT_TRUE(ui::WaitUntil([&] { return ui::Focus(m_review) == m_list; }));
    }
    void EditFound(const std::wstring& text)
    {
        ui::Press(m_list, VK_F2);
        ASSERT_TRUE(ui::WaitUntil([&] { return GetDlgItem(m_list, IDC_REVIEW_CELL) != nullptr; }));
        const HWND edit = ui::Control(m_list, IDC_REVIEW_CELL);
        SendMessage(edit, EM_SETSEL, 0, -1);
        ui::TypeAt(edit, text);
        ASSERT_TRUE(ui::WaitUntil([&] { return ui::TextOf(edit) == text; }));
        ui::Press(edit, VK_RETURN);
        ASSERT_TRUE(ui::WaitUntil([&] { return !IsWindow(edit); }));
    }
    void GoToFound()
    {
        ui::Press(m_list, VK_RETURN);
        ASSERT_TRUE(ui::WaitForClose(m_review));
    }

    HWND m_review = nullptr;
    HWND m_list = nullptr;
};

TEST_F(TorvexReview, OkSavesAllRecordsAndShowsTheFile)
{
    Start();
    OpenReview();
    Find(L"Options2x.RapidPlane");
    EditFound(L"1/8+0.02");
    Find(L"OptionsSSheet.ToolChangeTime");
    EditFound(L"7");
    Accept(m_review);
    EXPECT_TRUE(ComesToWrite("RapidPlane=0.145000"));
    EXPECT_TRUE(ComesToWrite("ToolChangeTime=7.000000"));
    for (const char* const section : {"[Options3x]", "[OptionsLathe]", "[SlotMill]"})
        EXPECT_NE(std::string::npos, NcText().find(section)) << section;
    EXPECT_TRUE(ui::WaitUntil(
        [&] { return ui::TextOf(m_main, IDC_SETTINGS_TEXT).find(L"RapidPlane=0.145000") != std::wstring::npos; }));
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexReview, CancelWritesNothing)
{
    Start();
    OpenReview();
    Find(L"Options2x.RapidPlane");
    EditFound(L"3");
    Cancel(m_review);
    EXPECT_FALSE(fs::exists(NcFile()));
    OpenOptions();
    EXPECT_EQ(L"1.0000", ui::TextOf(m_page, IDC_2X_RAPID_PLANE));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexReview, GoingToASettingOpensItsPageWithTheFocusInItsControl)
{
    Start();
    OpenReview();
    Find(L"OptionsZRough.LeadAngleTol");
    GoToFound();
    m_sheet = ui::WaitForWindow(kInchSheet, m_process.dwProcessId);
    FindPage();
    const HWND control = ui::Control(m_page, IDC_POCKET_LEAD_ANGLE_TOLERANCE);
    EXPECT_TRUE(ui::WaitUntil([&] { return ui::Focus(m_sheet) == control; }));
    EXPECT_NE(nullptr, GetDlgItem(m_page, IDC_ZR_PLUNGE_WARNINGS)); // of this page only
    CloseOptions(IDCANCEL);
    OpenReview();
    Find(L"FaceMill2x.DefCutingDir");
    GoToFound();
    m_sheet = ui::WaitForWindow(kInchSheet, m_process.dwProcessId);
    FindPage();
    const HWND list = ui::Control(m_page, IDC_FEATURE_CUTTING_DIRECTION);
    EXPECT_TRUE(ui::WaitUntil([&] { return ui::Focus(m_sheet) == list; }));
    CloseOptions(IDCANCEL);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexReview, GoingToTheSetupSheetOpensItsDialogWithTheFocusInItsControl)
{
    Start();
    OpenReview();
    Find(L"OptionsSSheet.ToolChangeTime");
    GoToFound();
    const HWND frame = ui::WaitForWindow(L"Создание отчета", m_process.dwProcessId);
    HWND inside = nullptr;
    for (const HWND child : ui::Children(frame))
        if (ui::ClassOf(child) == L"#32770")
            inside = child;
    ASSERT_NE(nullptr, inside);
    EXPECT_TRUE(ui::WaitUntil([&] { return ui::Focus(frame) == ui::Control(inside, IDC_SHEET_TOOL_CHANGE_TIME); }));
    Cancel(frame);
    EXPECT_EQ(0u, Close());
}

TEST_F(TorvexReview, AReviewThatCouldNotBeSavedStaysOpenUntilItIs)
{
    WriteNcFile(L"CURRENT.INI", "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\n");
    Start();
    OpenReview();
    Find(L"Options2x.RapidPlane");
    EditFound(L"3");
    {
        const OccupiedFile held(NcFile());
        ui::Click(m_review, IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        ui::Answer(box, box.buttons.back());
        EXPECT_TRUE(IsWindow(m_review));
    }
    EXPECT_NE(std::string::npos, NcText().find("RapidPlane=2.000000"));
    Accept(m_review);
    EXPECT_TRUE(ComesToWrite("RapidPlane=3.000000"));
    EXPECT_EQ(0u, Close());
}

} // namespace
