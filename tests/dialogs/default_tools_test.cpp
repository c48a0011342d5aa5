#include <memory>

#include <afxcmn.h>
#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "dialogs/recording_tool_lib.h"
#include "pages/page_driver.h"

namespace {

constexpr wchar_t kTitle[] = L"Параметры ЧПУ > Сервис";
constexpr int kInchMode = 1349;
constexpr int kMetricMode = 1350;
constexpr int kSortType = 3964;
constexpr int kMillGauge = 4602;
constexpr int kLatheGauge = 4603;

struct Kind {
    int button;
    int text;
    const wchar_t* caption;
    const char* function; ///< of the tool library, without its prefix
    const char* section;
    int inch;
    int millimetre;
};
constexpr Kind kKinds[] = {
    {1351, 1374, L"Фреза", "MillTool", "MILLTIPI", 44, 2139},
    {1352, 1363, L"Осевой инструмент (фрезерный)", "DrillTool", "DRILLTIPI", 3, 2203},
    {1353, 1364, L"Токарный резец", "LatheTool", "LATHETIPI", 1, 1},
    {1354, 1365, L"Осевой инструмент (токарный)", "LDrillTool", "LDRILLTIPI", 74, 142},
    {1356, 1367, L"Измерительный щуп", "DgtzTool", "DGTZTIPI", 1, 1},
    {1357, 1368, L"Электроэрозионный инструмент", "EdmTool", "EDMTIPI", 10, 38},
    {1355, 1366, L"Резьбовой резец", "LatheTool", "THREADTIPI", 113, 113},
    {1359, 1370, L"Фреза торцевая", "MillTool", "FACEMILLTIPI", 1007, 2167},
    {1360, 1371, L"Фреза для скруглений", "MillTool", "ROUNDMILLTIPI", 335, 2345},
    {1361, 1372, L"Фреза для фасок", "MillTool", "CHAMFERMILLTIPI", 1100, 2161},
    {1358, 1369, L"Резьбовой инструмент (фрезерный)", "ThreadMillTool", "THREADMILLTIPI", 1, 1},
};

/// What opens by way of the host's own class: the data go in once the window is there.
class HostsDialog : public CDefsNCToolsDlg {
public:
    explicit HostsDialog(const OptNCDefToolsData& data) : m_data(data) {}
    BOOL OnInitDialog() override
    {
        CDefsNCToolsDlg::OnInitDialog();
        GetData(&m_data);
        return TRUE;
    }

private:
    const OptNCDefToolsData& m_data;
};

/// A host without a tool library of its own choice; the subclasses bring one.
class DefaultTools : public testing::Test {
protected:
    explicit DefaultTools(const char* library)
    {
        WriteWholeFile(host.folder + "\\TORVEXCore.ini",
                       "[DefaultSystemFile]\r\nToolLib=" + std::string(library) + "\r\n");
        ui::UiThread::Get().Call([] { FinalizePelmarDlgsDLL(); }); // lets go of the library of the host's first start
        started = host.Initialize();
        *GetLastDefsNCToolsInfo() = {};
        // Ids that tell kind and units: 10, 11, 20, 21, ...
        for (int kind = 0; kind < kToolKinds; ++kind)
            for (int units = 0; units < 2; ++units)
                data.toolIds[kind][units] = 10 * (kind + 1) + units;
    }
    ~DefaultTools() override
    {
        open.reset();
        *GetLastDefsNCToolsInfo() = {};
    }

    void Show()
    {
        open.reset();
        ui::UiThread::Get().Call([this] { dialog = std::make_unique<HostsDialog>(data); });
        open = std::make_unique<OpenModal>(*dialog, kTitle);
        ui::Settle(Window());
    }
    HWND Window() const { return open->window; }
    OptNCDefToolsData Taken() const
    {
        OptNCDefToolsData taken;
        ui::UiThread::Get().Call([&] { dialog->SetData(&taken); });
        return taken;
    }

    HostFolder host;
    int started = 0;
    OptNCDefToolsData data;
    std::unique_ptr<CDefsNCToolsDlg> dialog;
    std::unique_ptr<OpenModal> open;
};

class RecordedTools : public DefaultTools {
protected:
    RecordedTools() : DefaultTools("RecordingToolLib.dll")
    {
        const HMODULE library = GetModuleHandleA("RecordingToolLib.dll");
        const FARPROC address = library ? GetProcAddress(library, "RecordingToolLib_Record") : nullptr;
        if (!address)
            throw std::runtime_error("no recording tool library");
        record = reinterpret_cast<RecordFunction*>(reinterpret_cast<void*>(address))();
        *record = {};
    }

    /// The calls since the last time.
    std::vector<std::string> Calls() const { return std::exchange(record->calls, {}); }
    static std::wstring Text(const std::string& function, int id)
    {
        return CString((function + "  " + std::to_string(id) + " ").c_str()).GetString();
    }

    ToolLibRecord* record = nullptr;
};

TEST_F(RecordedTools, OpensWithTheDescriptionsOfTheLibrarysUnitsWithoutTheirLeadingBlanks)
{
    record->units = 1;
    Show();
    EXPECT_EQ(1, started);
    EXPECT_FALSE(ui::IsChecked(Window(), kInchMode));
    EXPECT_TRUE(ui::IsChecked(Window(), kMetricMode));
    std::vector<std::string> expected;
    for (int kind = 0; kind < kToolKinds; ++kind) {
        const int id = 10 * (kind + 1) + 1;
        expected.push_back("describe " + std::string(kKinds[kind].function) + " " + std::to_string(id));
        EXPECT_EQ(Text("describe " + std::string(kKinds[kind].function), id), ui::TextOf(Window(), kKinds[kind].text));
    }
    EXPECT_EQ(expected, Calls());
}

TEST_F(RecordedTools, UnitsThatAreNeitherInchNorMillimetreCountAsInch)
{
    for (const int odd : {-1, 2, 1000000}) {
        record->units = odd;
        Show();
        EXPECT_TRUE(ui::IsChecked(Window(), kInchMode)) << odd;
        ui::Click(Window(), kKinds[0].button);
        EXPECT_EQ(1010, Taken().toolIds[0][0]) << odd;
    }
}

TEST_F(RecordedTools, DataThatAreMissingAreIgnored)
{
    Show();
    ui::Click(Window(), kMillGauge);
    ui::UiThread::Get().Call([this] {
        dialog->GetData(nullptr);
        dialog->SetData(nullptr);
    });
    EXPECT_TRUE(ui::IsChecked(Window(), kMillGauge));
    EXPECT_EQ(0, GetLastDefsNCToolsInfo()->MillGaugeLength);
    EXPECT_EQ(data.toolIds[kMillTool][0], Taken().toolIds[kMillTool][0]);
}

TEST_F(RecordedTools, SwitchingUnitsSwitchesTheLibraryAndDescribesTheOtherTools)
{
    Show();
    Calls();
    ui::Click(Window(), kMetricMode);
    std::vector<std::string> calls = Calls();
    ASSERT_EQ(size_t{kToolKinds} + 1, calls.size());
    EXPECT_EQ("units 1", calls[0]);
    EXPECT_EQ("describe MillTool 11", calls[1]);
    EXPECT_EQ("describe ThreadMillTool 111", calls[kToolKinds]);
    EXPECT_EQ(Text("describe MillTool", 11), ui::TextOf(Window(), kKinds[0].text));
    ui::Click(Window(), kMetricMode);
    EXPECT_EQ(std::vector<std::string>{}, Calls());
    ui::Click(Window(), kInchMode);
    EXPECT_EQ("units 0", Calls().front());
    EXPECT_EQ(Text("describe MillTool", 10), ui::TextOf(Window(), kKinds[0].text));
}

TEST_F(RecordedTools, ADescriptionThatFailsLeavesTheOldOne)
{
    Show();
    record->fails = true;
    ui::Click(Window(), kMetricMode);
    EXPECT_EQ(Text("describe MillTool", 10), ui::TextOf(Window(), kKinds[0].text));
}

TEST_F(RecordedTools, EachButtonChoosesAToolOfItsKindForTheUnitsShown)
{
    Show();
    for (int kind = 0; kind < kToolKinds; ++kind) {
        Calls();
        const std::string choose = "choose " + std::string(kKinds[kind].function);
        EXPECT_EQ(kKinds[kind].caption, ui::TextOf(Window(), kKinds[kind].button));
        ui::Click(Window(), kKinds[kind].button);
        const int id = 10 * (kind + 1);
        EXPECT_EQ((std::vector<std::string>{choose + " " + std::to_string(id)}), Calls());
        EXPECT_EQ(Text(choose, id + 1000), ui::TextOf(Window(), kKinds[kind].text));
        EXPECT_EQ(id + 1000, Taken().toolIds[kind][0]);
        EXPECT_EQ(id + 1, Taken().toolIds[kind][1]);
    }
    ui::Click(Window(), kMetricMode);
    for (int kind = 0; kind < kToolKinds; ++kind) {
        ui::Click(Window(), kKinds[kind].button);
        EXPECT_EQ(10 * (kind + 1) + 1001, Taken().toolIds[kind][1]);
    }
}

TEST_F(RecordedTools, AChoiceThatFailsChangesNothing)
{
    Show();
    record->fails = true;
    for (int kind = 0; kind < kToolKinds; ++kind) {
        ui::Click(Window(), kKinds[kind].button);
        EXPECT_EQ(10 * (kind + 1), Taken().toolIds[kind][0]);
        EXPECT_EQ(Text("describe " + std::string(kKinds[kind].function), 10 * (kind + 1)),
                  ui::TextOf(Window(), kKinds[kind].text));
    }
}

TEST_F(RecordedTools, ADescriptionWithoutATerminatorEndsWithTheRecord)
{
    record->fillsWholeRecord = true;
    Show();
    EXPECT_EQ(std::wstring(1575, L'x'), ui::TextOf(Window(), kKinds[0].text));
    ui::Click(Window(), kKinds[1].button);
    EXPECT_EQ(std::wstring(1575, L'x'), ui::TextOf(Window(), kKinds[1].text));
}

TEST_F(RecordedTools, CancelGivesTheLibraryItsUnitsBackAndOkDoesNot)
{
    Show();
    ui::Click(Window(), kMetricMode);
    open->End(IDCANCEL);
    EXPECT_EQ(0, record->units);
    Show();
    ui::Click(Window(), kMetricMode);
    open->End(IDOK);
    EXPECT_EQ(1, record->units);
}

TEST_F(RecordedTools, DefaultsComeFromTheDefaultsFileAndAreNotShownByThemselves)
{
    Show();
    host.WriteDefaults("[MILLTIPI]\r\nToolDefUS=5\r\nToolDefMM=-6\r\n[THREADTIPI]\r\nToolDefMM=7\r\n"
                       "[Settings]\r\nMillGaugeLength=1\r\nToolSortBy=2\r\n");
    Calls();
    EXPECT_EQ(0, SendHostMessage(Window(), kSetDefaultsMessage));
    EXPECT_EQ("describe MillTool 5", Calls().front());
    EXPECT_EQ(Text("describe MillTool", 10), ui::TextOf(Window(), kKinds[0].text));
    EXPECT_FALSE(ui::IsChecked(Window(), kMillGauge));
    EXPECT_EQ(0, ui::Selection(Window(), kSortType));
    ui::UiThread::Get().Call([this] { dialog->UpdateData(FALSE); });
    EXPECT_EQ(Text("describe MillTool", 5), ui::TextOf(Window(), kKinds[0].text));
    EXPECT_TRUE(ui::IsChecked(Window(), kMillGauge));
    EXPECT_FALSE(ui::IsChecked(Window(), kLatheGauge));
    EXPECT_EQ(2, ui::Selection(Window(), kSortType));
    const OptNCDefToolsData taken = Taken();
    EXPECT_EQ(5, taken.toolIds[kMillTool][0]);
    EXPECT_EQ(-6, taken.toolIds[kMillTool][1]);
    EXPECT_EQ(113, taken.toolIds[kThreadTool][0]);
    EXPECT_EQ(7, taken.toolIds[kThreadTool][1]);
}

TEST_F(RecordedTools, DefaultsOfAnEmptyFileAreTheBuiltInTools)
{
    Show();
    SendHostMessage(Window(), kSetDefaultsMessage);
    const OptNCDefToolsData taken = Taken();
    for (int kind = 0; kind < kToolKinds; ++kind) {
        EXPECT_EQ(kKinds[kind].inch, taken.toolIds[kind][0]) << kind;
        EXPECT_EQ(kKinds[kind].millimetre, taken.toolIds[kind][1]) << kind;
    }
    EXPECT_EQ(1, started);
}

TEST_F(RecordedTools, EachKindHasASectionOfItsOwnForBothUnits)
{
    std::string text;
    for (int kind = 0; kind < kToolKinds; ++kind)
        text += "[" + std::string(kKinds[kind].section) + "]\r\nToolDefUS=" + std::to_string(500 + kind) +
                "\r\nToolDefMM=" + std::to_string(600 + kind) + "\r\n";
    host.WriteDefaults(text);
    Show();
    SendHostMessage(Window(), kSetDefaultsMessage);
    const OptNCDefToolsData taken = Taken();
    for (int kind = 0; kind < kToolKinds; ++kind) {
        EXPECT_EQ(500 + kind, taken.toolIds[kind][0]);
        EXPECT_EQ(600 + kind, taken.toolIds[kind][1]);
    }
}

TEST_F(RecordedTools, DefaultsAfterAUnitSwitchDescribeTheUnitsAtOpening)
{
    Show();
    ui::Click(Window(), kMetricMode);
    Calls();
    SendHostMessage(Window(), kSetDefaultsMessage);
    EXPECT_EQ("describe MillTool 44", Calls().front());
}

TEST_F(RecordedTools, TheSettingsGoToTheFileByMessageAndToTheLiveRecordWithTheTools)
{
    host.WriteSettings("[MILLTIPI]\r\nToolDefUS=1\r\n");
    Show();
    ui::Click(Window(), kMillGauge);
    ui::Choose(Window(), kSortType, 2);
    EXPECT_EQ(0, PelmarUI_nGetToolListSortBy());
    Taken();
    EXPECT_EQ(1, GetLastDefsNCToolsInfo()->MillGaugeLength);
    EXPECT_EQ(0, GetLastDefsNCToolsInfo()->LatheGaugeLength);
    EXPECT_EQ(2, PelmarUI_nGetToolListSortBy());
    EXPECT_EQ("[MILLTIPI]\r\nToolDefUS=1\r\n", host.ReadSettings());
    EXPECT_EQ(0, SendHostMessage(Window(), kWriteToIniMessage));
    EXPECT_EQ("[MILLTIPI]\r\nToolDefUS=1\r\n[Settings]\r\nMillGaugeLength=1\r\nLatheGaugeLength=0\r\nToolSortBy=2\r\n",
              host.ReadSettings());
}

TEST_F(RecordedTools, ItShowsTheLiveRecordAndTheSortTypesInOrder)
{
    *GetLastDefsNCToolsInfo() = {};
    GetLastDefsNCToolsInfo()->LatheGaugeLength = 1;
    GetLastDefsNCToolsInfo()->ToolSortBy = 1;
    Show();
    EXPECT_EQ((std::vector<std::wstring>{L"По диаметру", L"По номеру инструмента", L"По номеру базы данных"}),
              ui::Items(Window(), kSortType));
    EXPECT_EQ(1, ui::Selection(Window(), kSortType));
    EXPECT_FALSE(ui::IsChecked(Window(), kMillGauge));
    EXPECT_TRUE(ui::IsChecked(Window(), kLatheGauge));
}

TEST_F(RecordedTools, HelpShowsTheTopicOfAButtonOrTheGeneralOne)
{
    Show();
    const char* const general = "tvaux-_toolsoptions_options_nc_defaults_tools.htm";
    EXPECT_EQ(general, TopicShownFor(Window(), 0));
    EXPECT_EQ("tvaux-_popupsj_r_hidc_ok_button.htm", TopicShownFor(Window(), IDOK));
    EXPECT_EQ(general, TopicShownFor(Window(), kKinds[0].button));
    EXPECT_EQ("tvaux-_popupsa_i_hidc_cancel_button.htm", TopicShownFor(Window(), IDCANCEL));
    EXPECT_EQ("tvaux-_popupsa_i_hidc_help_button.htm", TopicShownFor(Window(), ID_HELP));
    EXPECT_EQ(general, TopicShownFor(Window(), kSortType));
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
}

TEST_F(RecordedTools, TheCaptionHasAHelpButtonThatSwitchesHelpModeOn)
{
    Show();
    EXPECT_NE(0, GetWindowLong(Window(), GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
    // The low bits of a system command are the system's own.
    ui::UiThread::Get().Call([this] {
        AfxGetApp()->m_bHelpMode = FALSE;
        PostMessage(Window(), WM_SYSCOMMAND, SC_CONTEXTHELP | 3, 0);
    });
    EXPECT_TRUE(ui::WaitUntil([] { return ui::On([] { return AfxGetApp()->m_bHelpMode; }) != FALSE; }));
    EXPECT_EQ(1, SendMessage(Window(), WM_HELP, 0, 0));
    EXPECT_EQ("tvaux-_toolsoptions_options_nc_defaults_tools.htm", LastTopicShown());
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
}

TEST_F(RecordedTools, ItsLayoutClipsAndOverlapsNothing)
{
    Show();
    std::vector<std::string> faults = LayoutFaults(Window());
    std::erase_if(faults, [](const std::string& fault) { return fault.find("describe") != std::string::npos; });
    EXPECT_EQ(std::vector<std::string>{}, faults);
}

// ---- no tool library, or part of one ----

class NoTools : public DefaultTools {
protected:
    NoTools() : DefaultTools("NoSuchLibrary.dll") {}
};

TEST_F(NoTools, TheDialogStartsInInchAndItsButtonsDoNothing)
{
    Show();
    EXPECT_EQ(0, started);
    EXPECT_TRUE(ui::IsChecked(Window(), kInchMode));
    for (const Kind& kind : kKinds) {
        ui::Click(Window(), kind.button);
        EXPECT_EQ(L"", ui::TextOf(Window(), kind.text));
    }
    ui::Click(Window(), kMetricMode);
    SendHostMessage(Window(), kSetDefaultsMessage);
    EXPECT_EQ(44, Taken().toolIds[kMillTool][0]);
    open->End(IDCANCEL);
}

class PartOfTools : public DefaultTools {
protected:
    PartOfTools() : DefaultTools("ToolLibWithoutMaterial.dll") {}
};

TEST_F(PartOfTools, WhatComesAfterTheMissingEntryPointActsAsAFailedCall)
{
    Show();
    EXPECT_EQ(0, started);
    EXPECT_TRUE(ui::IsChecked(Window(), kInchMode)); // the units' entry point is one of the last
    ui::Click(Window(), kMetricMode);
    ui::Click(Window(), kKinds[0].button);
    EXPECT_EQ(11, Taken().toolIds[kMillTool][1]);
    open->End(IDCANCEL);
}

// ---- the host's own tool library ----

class RealTools : public DefaultTools {
protected:
    RealTools() : DefaultTools("ToolLib.DLL")
    {
        for (int kind = 0; kind < kToolKinds; ++kind) {
            data.toolIds[kind][0] = kKinds[kind].inch;
            data.toolIds[kind][1] = kKinds[kind].millimetre;
        }
    }
};

TEST_F(RealTools, KnowsTheBuiltInToolsOfBothUnits)
{
    Show();
    EXPECT_EQ(1, started);
    for (const int mode : {kMetricMode, kInchMode}) {
        ui::Click(Window(), mode);
        for (const Kind& kind : kKinds)
            EXPECT_NE(L"", ui::TextOf(Window(), kind.text)) << kind.section;
    }
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(Window()));
}

TEST_F(RealTools, AToolChosenFromItsListIsTheNewDefault)
{
    Show();
    const std::wstring before = ui::TextOf(Window(), kKinds[0].text);
    ui::Click(Window(), kKinds[0].button);
    HWND list = nullptr;
    ASSERT_TRUE(ui::WaitUntil([&] {
        for (const HWND window : ui::TopLevelWindows())
            if (window != Window() && GetWindow(window, GW_OWNER) == Window())
                list = window;
        return list != nullptr;
    }));
    ui::Settle(list);
    // The list has the focus; the next tool is below the current one.
    ui::Press(GetDlgItem(list, 101), VK_DOWN);
    ui::Click(list, IDOK);
    ASSERT_TRUE(ui::WaitForClose(list));
    ui::Settle(Window());
    EXPECT_NE(before, ui::TextOf(Window(), kKinds[0].text));
    EXPECT_NE(44, Taken().toolIds[kMillTool][0]);
    EXPECT_EQ(2139, Taken().toolIds[kMillTool][1]);
}

// ---- the record and the plain functions ----

TEST(DefaultToolsSettings, AreSavedInOrderAndRestoredOverTheCurrentOnes)
{
    const HostFolder host;
    CDefsNCToolsInfo settings;
    settings.MillGaugeLength = 1;
    settings.LatheGaugeLength = 2;
    settings.ToolSortBy = -3;
    settings.Save();
    EXPECT_EQ("[Settings]\r\nMillGaugeLength=1\r\nLatheGaugeLength=2\r\nToolSortBy=-3\r\n", host.ReadSettings());
    CDefsNCToolsInfo restored;
    restored.Restore();
    EXPECT_EQ(1, restored.MillGaugeLength);
    EXPECT_EQ(2, restored.LatheGaugeLength);
    EXPECT_EQ(-3, restored.ToolSortBy);
    host.WriteSettings("[Settings]\r\nLatheGaugeLength=\r\nToolSortBy=99999999999\r\n");
    settings.Restore();
    EXPECT_EQ(1, settings.MillGaugeLength);
    settings.Defaults();
    EXPECT_EQ(0, settings.MillGaugeLength);
    EXPECT_EQ(0, settings.LatheGaugeLength);
    EXPECT_EQ(0, settings.ToolSortBy);
}

TEST(DefaultToolsSettings, TheSortTypeIsThatOfTheLiveRecord)
{
    const HostFolder host;
    *GetLastDefsNCToolsInfo() = {};
    EXPECT_EQ(0, PelmarUI_nGetToolListSortBy());
    host.WriteSettings("[Settings]\r\nToolSortBy=1\r\n");
    EXPECT_EQ(0, PelmarUI_nGetToolListSortBy());
    GetLastDefsNCToolsInfo()->Restore();
    EXPECT_EQ(1, PelmarUI_nGetToolListSortBy());
    *GetLastDefsNCToolsInfo() = {};
}

TEST(DefaultToolsSettings, TheBallToolFlagIsOffAtFirstAndKeepsWhatItIsSetTo)
{
    EXPECT_FALSE(PelmarUI_nGetEnableOnlyBallTool());
    PelmarUI_nSetEnableOnlyBallTool(true);
    EXPECT_TRUE(PelmarUI_nGetEnableOnlyBallTool());
    PelmarUI_nSetEnableOnlyBallTool(false);
    EXPECT_FALSE(PelmarUI_nGetEnableOnlyBallTool());
}

TEST(DefaultToolsDialog, CanBeCreatedDynamically)
{
    EXPECT_EQ(316, int{CDefsNCToolsDlg::IDD});
    EXPECT_EQ(CDialog::GetThisClass(), CDefsNCToolsDlg::GetThisClass()->m_pfnGetBaseClass());
    EXPECT_EQ(88u, sizeof(OptNCDefToolsData));
    ui::UiThread::Get().Call([] { delete CDefsNCToolsDlg::GetThisClass()->CreateObject(); });
}

} // namespace
