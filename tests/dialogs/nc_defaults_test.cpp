#include <cmath>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include <afxcmn.h>
#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "frame/tool_library.h"
#include "pages/page_driver.h"

namespace {

constexpr wchar_t kTitle[] = L"Параметры ЧПУ";

constexpr int kToolbar = 1081;
constexpr int kMenu = 1082;
constexpr int kIcons = 1375;
constexpr int kLastMaterial = 1400;
constexpr int kLastTool = 1401;
constexpr int kLastCutControl = 1402;
constexpr int kMinimumZ = 1399;
constexpr int kProgramName = 1398;
constexpr int kMaterial = 1403;
constexpr int kClassic5Axis = 4612;
constexpr int kClassic3Axis = 4613;
constexpr int kFilterSpans = 4614;
constexpr int kMaxSpan = 4615;
constexpr int kArcTolerance = 4616;
constexpr int kHelp = 57670;

const std::vector<int> kBoxes = {kIcons,    kLastMaterial, kLastTool,     kLastCutControl,
                                 kMinimumZ, kProgramName,  kClassic3Axis, kFilterSpans};

constexpr UINT kSetDefaults = 3072;
constexpr UINT kCheckSaveData = 3074;

constexpr wchar_t kLargest[] = L"17976931348623157081452742373170435679807056752584499659891747680315726078002853876058"
                               L"95586327668781715404589535143824642343213268894641827684675467035375169860499105765512"
                               L"82076245490090389328944075868508455133942304583236903222948165808559332123348274797826"
                               L"204144723168738177180919299881250404026184124858368";

std::wstring Repeat(wchar_t character, size_t count)
{
    return std::wstring(count, character);
}

/// Everything set, and no two reals alike.
OptNCDefData AllSet()
{
    OptNCDefData data;
    data.material = 5;
    data.defToLastMaterial = 1;
    data.defToLastTool = 1;
    data.defToLastCutControl = 1;
    data.alphanumericProgramName = 1;
    data.calculateMinimumZ = 1;
    data.filterSpans = 1;
    data.filterMaxSpan = 0.25;
    data.filterArcTolerance = 0.5;
    return data;
}

// The unary plus copies a field: the packed ones cannot be referred to.
void ExpectSame(const OptNCDefData& expected, const OptNCDefData& actual)
{
    EXPECT_EQ(+expected.material, +actual.material);
    EXPECT_EQ(+expected.defToLastMaterial, +actual.defToLastMaterial);
    EXPECT_EQ(+expected.defToLastTool, +actual.defToLastTool);
    EXPECT_EQ(+expected.defToLastCutControl, +actual.defToLastCutControl);
    EXPECT_EQ(+expected.alphanumericProgramName, +actual.alphanumericProgramName);
    EXPECT_EQ(+expected.calculateMinimumZ, +actual.calculateMinimumZ);
    EXPECT_EQ(+expected.filterSpans, +actual.filterSpans);
    EXPECT_EQ(+expected.filterMaxSpan, +actual.filterMaxSpan);
    EXPECT_EQ(+expected.filterArcTolerance, +actual.filterArcTolerance);
}

TEST(NcDefaultsRecord, HoldsItsFieldsWhereTheHostDoes)
{
    std::vector<unsigned char> bytes(42);
    const std::int32_t whole[] = {5, 1, 2, 3, 4, 6};
    const double reals[] = {0.25, 0.5};
    std::memcpy(bytes.data(), whole, sizeof whole);
    bytes[24] = 7;
    std::memcpy(bytes.data() + 26, reals, sizeof reals);
    OptNCDefData data;
    ASSERT_EQ(bytes.size(), sizeof data);
    std::memcpy(&data, bytes.data(), bytes.size());
    EXPECT_EQ(5, +data.material);
    EXPECT_EQ(1, +data.defToLastMaterial);
    EXPECT_EQ(2, +data.defToLastTool);
    EXPECT_EQ(3, +data.defToLastCutControl);
    EXPECT_EQ(4, +data.alphanumericProgramName);
    EXPECT_EQ(6, +data.calculateMinimumZ);
    EXPECT_EQ(7, +data.filterSpans);
    EXPECT_EQ(0.25, +data.filterMaxSpan);
    EXPECT_EQ(0.5, +data.filterArcTolerance);
}

class NcDefaults : public testing::Test {
protected:
    NcDefaults()
        : hostDefaults(ProgramFolder() + "Def\\TORVEX.INI"), hostSettingsBefore(ReadWholeFile(host.hostSettings))
    {
        std::filesystem::create_directories(ProgramFolder() + "Def");
        WriteWholeFile(hostDefaults, "");
    }
    ~NcDefaults() override
    {
        MaterialLibrarySwitch() = false;
        std::error_code ignored;
        std::filesystem::remove_all(ProgramFolder() + "Def", ignored);
    }

    /// The sections follow those that the file holds already.
    void WriteHostSettings(const std::string& sections) const
    {
        WriteWholeFile(host.hostSettings, hostSettingsBefore + sections);
    }
    /// Hands the dialog a record as a host does.
    void Give(const OptNCDefData& data)
    {
        ui::UiThread::Get().Call([&] {
            dialog.GetData(&data);
            dialog.UpdateData(FALSE);
        });
    }
    OptNCDefData Taken()
    {
        OptNCDefData data;
        ui::UiThread::Get().Call([&] { dialog.SetData(&data); });
        return data;
    }
    bool TakeControls()
    {
        return ui::On([&] { return dialog.UpdateData(TRUE) != FALSE; });
    }
    /// Sends the message that follows the user's OK, and answers the question.
    static void CheckSave(const OpenModal& open, int answer)
    {
        PostHostMessage(open.window, kCheckSaveData);
        ui::Answer(ui::WaitForBox(), answer);
    }
    /// Whether the message that follows the user's OK asks. The answer is No.
    static bool Asks(const OpenModal& open)
    {
        PostHostMessage(open.window, kCheckSaveData);
        if (!ui::IsBoxOpen())
            return false;
        ui::Answer(ui::WaitForBox(), IDNO);
        return true;
    }
    void ExpectNothingWritten() const
    {
        EXPECT_EQ("", ReadWholeFile(hostDefaults));
        EXPECT_EQ(hostSettingsBefore, ReadWholeFile(host.hostSettings));
        EXPECT_EQ("", host.ReadSettings());
        EXPECT_EQ("", ReadWholeFile(host.defaults));
    }

    HostFolder host;
    std::string hostDefaults;
    std::string hostSettingsBefore;
    CDefsNCDefaultsDlg dialog;
};

// ---- opening ----

TEST_F(NcDefaults, OpensWithItsBuiltInValuesWhereNoFileSaysOtherwise)
{
    OpenModal open(dialog, kTitle);
    EXPECT_TRUE(ui::IsChecked(open.window, kToolbar));
    EXPECT_FALSE(ui::IsChecked(open.window, kMenu));
    for (const int box : kBoxes)
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
    for (const int edit : {kMaxSpan, kArcTolerance}) {
        EXPECT_EQ(L"0.0010", ui::TextOf(open.window, edit));
        EXPECT_FALSE(ui::IsEnabled(open.window, edit));
    }
    EXPECT_FALSE(ui::IsEnabled(open.window, kIcons));
    open.End(IDOK);
    EXPECT_EQ(IDOK, open.result);
    ExpectNothingWritten();
    // What no file holds passes through single precision as what one holds.
    OptNCDefData expected;
    expected.filterMaxSpan = double{0.001F};
    expected.filterArcTolerance = double{0.001F};
    ExpectSame(expected, Taken());
}

TEST_F(NcDefaults, ReadsEachValueAtOpeningFromItsOwnFile)
{
    const std::string others = "[DefaultDisplayParameter]\r\nNcDisplayMode=0\r\nNcMenuIcons=0\r\n"
                               "[DefaultNCParameter]\r\nClassic3Axis=0\r\nFilterSpans=0\r\n";
    const std::string wrongReals = "FilterMaxSpan=7\r\nFilterLineTol=8\r\nFilterArcTol=9\r\n";
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\nNcMenuIcons=1\r\n"
                      "[DefaultNCParameter]\r\nClassic3Axis=1\r\nFilterSpans=1\r\n" +
                      wrongReals);
    host.WriteDefaults(others + "FilterMaxSpan=0.25\r\nFilterLineTol=8\r\nFilterArcTol=0.5\r\n");
    host.WriteSettings(others + wrongReals);
    WriteWholeFile(hostDefaults, others + wrongReals);
    OpenModal open(dialog, kTitle);
    EXPECT_TRUE(ui::IsChecked(open.window, kMenu));
    for (const int box : {kIcons, kClassic3Axis, kFilterSpans})
        EXPECT_TRUE(ui::IsChecked(open.window, box)) << box;
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.5000", ui::TextOf(open.window, kArcTolerance));
    for (const int control : {kIcons, kMaxSpan, kArcTolerance})
        EXPECT_TRUE(ui::IsEnabled(open.window, control)) << control;
}

TEST_F(NcDefaults, PathsThatAreTooLongAreFilesThatAreMissing)
{
    const std::string endless(400, 'x');
    WriteWholeFile(host.coreFile, "[DefaultPath]\r\nTorvexIniPath=" + endless + "\r\n");
    host.Initialize();
    ASSERT_GT(GetSettingsLocations().hostSettingsFile.view().size(), size_t{MAX_PATH});
    OpenModal open(dialog, kTitle);
    EXPECT_TRUE(ui::IsChecked(open.window, kToolbar));
    for (const int box : kBoxes)
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
    ui::Click(open.window, kMenu);
    CheckSave(open, IDYES);
    EXPECT_TRUE(open.IsOpen());
}

TEST_F(NcDefaults, ReadsNoStartUpFlagAtOpening)
{
    const std::string flags = "[ALLTIPI]\r\nDefToLastMaterial;=1\r\nDefToLastMaterial=1\r\nDefToLastTool=1\r\n"
                              "DefToLastCutCtrl=1\r\n[Settings]\r\nProgramName=1\r\nUsePLXDialogs=4\r\n";
    WriteHostSettings(flags);
    host.WriteDefaults(flags);
    host.WriteSettings(flags);
    WriteWholeFile(hostDefaults, flags);
    OpenModal open(dialog, kTitle);
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName})
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
}

TEST_F(NcDefaults, WhateverIsNotZeroIsSetAtOpening)
{
    for (const char* value : {"2", "-1", "7"}) {
        const std::string text = value;
        WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=" + text + "\r\nNcMenuIcons=" + text +
                          "\r\n[DefaultNCParameter]\r\nClassic3Axis=" + text + "\r\nFilterSpans=" + text + "\r\n");
        OpenModal open(dialog, kTitle);
        for (const int control : {kMenu, kIcons, kClassic3Axis, kFilterSpans})
            EXPECT_TRUE(ui::IsChecked(open.window, control)) << control;
        open.End(IDCANCEL);
    }
}

TEST_F(NcDefaults, OpenedAgainItKeepsWhatNoFileHolds)
{
    {
        OpenModal open(dialog, kTitle);
        ui::Click(open.window, kMenu);
        for (const int box : {kIcons, kClassic3Axis, kFilterSpans})
            ui::Click(open.window, box);
        ui::Type(open.window, kMaxSpan, L"1/4");
        ui::Type(open.window, kArcTolerance, L"1/2");
        open.End(IDOK);
    }
    OpenModal open(dialog, kTitle);
    for (const int control : {kMenu, kIcons, kClassic3Axis, kFilterSpans})
        EXPECT_TRUE(ui::IsChecked(open.window, control)) << control;
    for (const int control : {kIcons, kMaxSpan, kArcTolerance})
        EXPECT_TRUE(ui::IsEnabled(open.window, control)) << control;
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.5000", ui::TextOf(open.window, kArcTolerance));
    EXPECT_FALSE(Asks(open)) << "opening forgets the changes of the last time";
}

TEST_F(NcDefaults, NeverShowsAtOpeningWhatItStored)
{
    {
        OpenModal open(dialog, kTitle);
        Give(AllSet());
        open.End(IDOK);
        Taken();
    }
    CDefsNCDefaultsDlg next;
    OpenModal open(next, kTitle);
    EXPECT_FALSE(ui::IsChecked(open.window, kFilterSpans));
    EXPECT_EQ(L"0.0010", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.0010", ui::TextOf(open.window, kArcTolerance));
}

TEST_F(NcDefaults, TheTolerancesTakeExpressions)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kFilterSpans);
    for (const int edit : {kMaxSpan, kArcTolerance}) {
        ui::Type(open.window, edit, L"1/8+0.02=");
        EXPECT_EQ(L"0.1450", ui::TextOf(open.window, edit));
    }
    ui::Type(open.window, kArcTolerance, L"2*3");
    open.End(IDOK);
    EXPECT_EQ(0.145, +Taken().filterMaxSpan);
    EXPECT_EQ(6.0, +Taken().filterArcTolerance);
}

// ---- the host's record ----

TEST_F(NcDefaults, ShowsTheHostsRecordWithTheNextTransferAndEnablesAtOnce)
{
    OpenModal open(dialog, kTitle);
    const OptNCDefData data = AllSet();
    ui::UiThread::Get().Call([&] { dialog.GetData(&data); });
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kFilterSpans})
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
    EXPECT_EQ(L"0.0010", ui::TextOf(open.window, kMaxSpan));
    EXPECT_TRUE(ui::IsEnabled(open.window, kMaxSpan));
    EXPECT_TRUE(ui::IsEnabled(open.window, kArcTolerance));
    ui::UiThread::Get().Call([&] { dialog.UpdateData(FALSE); });
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kFilterSpans})
        EXPECT_TRUE(ui::IsChecked(open.window, box)) << box;
    EXPECT_FALSE(ui::IsChecked(open.window, kClassic3Axis));
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.5000", ui::TextOf(open.window, kArcTolerance));
    Give(OptNCDefData());
    EXPECT_FALSE(ui::IsEnabled(open.window, kMaxSpan));
    EXPECT_FALSE(ui::IsEnabled(open.window, kArcTolerance));
    EXPECT_FALSE(Asks(open));
}

TEST_F(NcDefaults, TheRecordComesBackAsItWasGiven)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    open.End(IDOK);
    ExpectSame(AllSet(), Taken());
}

TEST_F(NcDefaults, EachBoxBelongsToOneFieldOfTheRecord)
{
    struct Row {
        int box;
        void (*set)(OptNCDefData& data);
    };
    const Row rows[] = {
        {kLastMaterial, [](OptNCDefData& data) { data.defToLastMaterial = 1; }},
        {kLastTool, [](OptNCDefData& data) { data.defToLastTool = 1; }},
        {kLastCutControl, [](OptNCDefData& data) { data.defToLastCutControl = 1; }},
        {kProgramName, [](OptNCDefData& data) { data.alphanumericProgramName = 1; }},
        {kMinimumZ, [](OptNCDefData& data) { data.calculateMinimumZ = 1; }},
        {kFilterSpans, [](OptNCDefData& data) { data.filterSpans = 1; }},
        {kClassic3Axis, [](OptNCDefData&) {}},
    };
    for (const Row& row : rows) {
        OpenModal open(dialog, kTitle);
        Give(OptNCDefData());
        ui::Click(open.window, row.box);
        open.End(IDOK);
        OptNCDefData expected;
        row.set(expected);
        ExpectSame(expected, Taken());
    }
}

TEST_F(NcDefaults, ASpanFilterOfTwoCountsAsOneAndIsStoredAsOne)
{
    OpenModal open(dialog, kTitle);
    OptNCDefData data;
    data.filterSpans = 2;
    Give(data);
    EXPECT_TRUE(ui::IsChecked(open.window, kFilterSpans));
    EXPECT_EQ(1, +Taken().filterSpans);
    EXPECT_EQ("1", Value(host.settings, "DefaultNCParameter", "FilterSpans"));
}

TEST_F(NcDefaults, StoresTheSpanFilterAndTheClassicModeWithTheRecord)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kClassic3Axis);
    open.End(IDOK);
    Taken();
    EXPECT_EQ("[DefaultNCParameter]\r\nFilterSpans=1\r\nFilterMaxSpan=0.250000\r\nFilterArcTol=0.500000\r\n",
              host.ReadSettings());
    EXPECT_EQ(hostSettingsBefore + "[DefaultNCParameter]\r\nClassic3Axis=1\r\n", ReadWholeFile(host.hostSettings));
    EXPECT_EQ("", ReadWholeFile(host.defaults));
    EXPECT_EQ("", ReadWholeFile(hostDefaults));
}

TEST_F(NcDefaults, TheRecordHoldsWhatTheControlsLastHandedOver)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kLastTool);
    ui::Type(open.window, kMaxSpan, L"3");
    ExpectSame(AllSet(), Taken());
    EXPECT_TRUE(TakeControls());
    EXPECT_EQ(0, +Taken().defToLastTool);
    EXPECT_EQ(3.0, +Taken().filterMaxSpan);
}

TEST_F(NcDefaults, ARecordWithEveryByteSetIsRefusedUntilItsTolerancesAreCorrected)
{
    OptNCDefData data;
    std::memset(static_cast<void*>(&data), 0xFF, sizeof data);
    OpenModal open(dialog, kTitle);
    Give(data);
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName})
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
    EXPECT_TRUE(ui::IsChecked(open.window, kFilterSpans));
    for (const int edit : {kMaxSpan, kArcTolerance}) {
        open.Press(IDOK);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Please enter a number.", box.text);
        ui::Answer(box, IDOK);
        EXPECT_TRUE(open.IsOpen());
        EXPECT_EQ(ui::Control(open.window, edit), ui::Focus(open.window));
        ui::Type(open.window, edit, L"1");
    }
    ExpectNothingWritten();
    open.End(IDOK);
    OptNCDefData expected;
    expected.material = -1;
    expected.filterSpans = 1;
    expected.filterMaxSpan = 1.0;
    expected.filterArcTolerance = 1.0;
    ExpectSame(expected, Taken());
}

TEST_F(NcDefaults, ARecordThatIsMissingIsIgnored)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::UiThread::Get().Call([&] {
        dialog.GetData(nullptr);
        dialog.SetData(nullptr);
    });
    ExpectNothingWritten();
    ExpectSame(AllSet(), Taken());
}

TEST_F(NcDefaults, WithoutAWindowItTakesAndGivesRecordsAllTheSame)
{
    const OptNCDefData data = AllSet();
    ui::UiThread::Get().Call([&] { dialog.GetData(&data); });
    ExpectSame(AllSet(), Taken());
}

// ---- what needs a restart ----

TEST_F(NcDefaults, ChoosingTheDisplayModeThatIsChosenAlreadyAsksNothingAndWritesNothing)
{
    {
        OpenModal open(dialog, kTitle);
        ui::Click(open.window, kToolbar);
        EXPECT_FALSE(Asks(open));
    }
    ExpectNothingWritten();
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\n");
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    EXPECT_FALSE(Asks(open));
    EXPECT_TRUE(ui::IsEnabled(open.window, kIcons));
}

TEST_F(NcDefaults, AnotherDisplayModeAsksEvenAfterItIsChosenBack)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    EXPECT_TRUE(Asks(open));
    ui::Click(open.window, kMenu);
    ui::Click(open.window, kToolbar);
    EXPECT_TRUE(Asks(open));
}

TEST_F(NcDefaults, IconsCanBeChosenWhileTheMenuIs)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    EXPECT_TRUE(ui::IsEnabled(open.window, kIcons));
    ui::Click(open.window, kToolbar);
    EXPECT_FALSE(ui::IsEnabled(open.window, kIcons));
}

TEST_F(NcDefaults, ClickingTheIconsBoxAsksEvenWhenItIsClickedBack)
{
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\n");
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kIcons);
    ui::Click(open.window, kIcons);
    EXPECT_FALSE(ui::IsChecked(open.window, kIcons));
    EXPECT_TRUE(Asks(open));
}

TEST_F(NcDefaults, NothingElseThatTheUserChangesAsks)
{
    OpenModal open(dialog, kTitle);
    for (const int box :
         {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kClassic3Axis, kFilterSpans})
        ui::Click(open.window, box);
    ui::Click(open.window, kMaterial);
    ui::Type(open.window, kMaxSpan, L"3");
    ui::Type(open.window, kArcTolerance, L"3");
    EXPECT_TRUE(TakeControls());
    EXPECT_FALSE(Asks(open));
    ExpectNothingWritten();
}

TEST_F(NcDefaults, EitherAnswerSettlesTheChanges)
{
    for (const int answer : {IDYES, IDNO}) {
        OpenModal open(dialog, kTitle);
        SendHostMessage(open.window, kSetDefaults);
        CheckSave(open, answer);
        EXPECT_FALSE(Asks(open));
        open.End(IDCANCEL);
    }
}

TEST_F(NcDefaults, TheMessageThatFollowsOkIsAnsweredWithZero)
{
    OpenModal open(dialog, kTitle);
    EXPECT_EQ(0, SendMessage(open.window, kCheckSaveData, 5, 6));
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(NcDefaults, AsksWithYesAndNoWhetherToStoreUntilTheRestart)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    PostHostMessage(open.window, kCheckSaveData);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(
        L"Вы изменили параметры, требующие перезагрузки программы Torvex.  Нажмите \"ДА\" чтобы изменения вступили "
        L"в силу при следующем запуске Torvex.  Нажмите \"НЕТ\" для отмены.",
        box.text);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.buttons);
    ui::Answer(box, IDNO);
}

TEST_F(NcDefaults, YesStoresWhatNeedsARestartAndTheSpanFilterInTwoFiles)
{
    host.WriteDefaults("[DefaultNCParameter]\r\nFilterMaxSpan=0.25\r\nFilterArcTol=0.5\r\n");
    const std::string defaultsBefore = ReadWholeFile(host.defaults);
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    for (const int box : {kIcons, kClassic3Axis, kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName})
        ui::Click(open.window, box);
    ui::Click(open.window, kFilterSpans);
    CheckSave(open, IDYES);
    EXPECT_EQ(hostSettingsBefore + "[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\nNcMenuIcons=1\r\n"
                                   "[DefaultNCParameter]\r\nClassic3Axis=1\r\n",
              ReadWholeFile(host.hostSettings));
    EXPECT_EQ("[DefaultNCParameter]\r\nFilterSpans=1\r\nFilterLineTol=0.250000\r\nFilterArcTol=0.500000\r\n",
              host.ReadSettings());
    EXPECT_EQ(defaultsBefore, ReadWholeFile(host.defaults));
    EXPECT_EQ("", ReadWholeFile(hostDefaults));
}

TEST_F(NcDefaults, AfterYesTheRecordAddsTheOtherNameOfTheLongestSpan)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kMenu);
    CheckSave(open, IDYES);
    EXPECT_EQ("<absent>", Value(host.settings, "DefaultNCParameter", "FilterMaxSpan"));
    Taken();
    EXPECT_EQ("[DefaultNCParameter]\r\nFilterSpans=1\r\nFilterLineTol=0.250000\r\nFilterArcTol=0.500000\r\n"
              "FilterMaxSpan=0.250000\r\n",
              host.ReadSettings());
}

TEST_F(NcDefaults, YesStoresWhatTheControlsLastHandedOver)
{
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\n[DefaultNCParameter]\r\nFilterSpans=1\r\n");
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kIcons);
    ui::Click(open.window, kClassic3Axis);
    ui::Type(open.window, kMaxSpan, L"3");
    CheckSave(open, IDYES);
    EXPECT_EQ("0", Value(host.hostSettings, "DefaultDisplayParameter", "NcMenuIcons"));
    EXPECT_EQ("0", Value(host.hostSettings, "DefaultNCParameter", "Classic3Axis"));
    EXPECT_EQ("0.001000", Value(host.settings, "DefaultNCParameter", "FilterLineTol"));
    SendHostMessage(open.window, kSetDefaults);
    CheckSave(open, IDYES);
    EXPECT_EQ("1", Value(host.hostSettings, "DefaultDisplayParameter", "NcMenuIcons"));
}

TEST_F(NcDefaults, NoTakesBackToTheOpeningAndTheSpanFilterToItsBuiltInValues)
{
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\nNcMenuIcons=1\r\n"
                      "[DefaultNCParameter]\r\nClassic3Axis=1\r\nFilterSpans=1\r\n");
    host.WriteDefaults("[DefaultNCParameter]\r\nFilterMaxSpan=0.25\r\nFilterArcTol=0.5\r\n");
    const std::string hostBefore = ReadWholeFile(host.hostSettings);
    OpenModal open(dialog, kTitle);
    for (const int box : {kIcons, kClassic3Axis, kLastTool})
        ui::Click(open.window, box);
    ui::Click(open.window, kToolbar);
    EXPECT_TRUE(TakeControls());
    CheckSave(open, IDNO);
    EXPECT_TRUE(ui::IsChecked(open.window, kMenu));
    EXPECT_FALSE(ui::IsChecked(open.window, kToolbar));
    for (const int box : {kIcons, kClassic3Axis, kLastTool})
        EXPECT_TRUE(ui::IsChecked(open.window, box)) << box;
    EXPECT_FALSE(ui::IsEnabled(open.window, kIcons)) << "only a click on a display mode and the defaults enable it";
    EXPECT_FALSE(ui::IsChecked(open.window, kFilterSpans));
    for (const int edit : {kMaxSpan, kArcTolerance}) {
        EXPECT_EQ(L"0.0010", ui::TextOf(open.window, edit));
        EXPECT_FALSE(ui::IsEnabled(open.window, edit));
    }
    EXPECT_EQ(hostBefore, ReadWholeFile(host.hostSettings));
    EXPECT_EQ("", host.ReadSettings());
    EXPECT_EQ("", ReadWholeFile(hostDefaults));
    Taken();
    EXPECT_EQ(hostBefore, ReadWholeFile(host.hostSettings)) << "the classic mode is as it was";
    EXPECT_EQ("[DefaultNCParameter]\r\nFilterSpans=0\r\nFilterMaxSpan=0.001000\r\nFilterArcTol=0.001000\r\n",
              host.ReadSettings());
}

// ---- the defaults ----

TEST_F(NcDefaults, TheDefaultsComeEachFromItsOwnFile)
{
    const std::string display = "[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\nNcMenuIcons=1\r\n";
    const std::string flags = "[ALLTIPI]\r\nDefToLastMaterial;=1\r\nDefToLastTool=1\r\nDefToLastCutCtrl=1\r\n"
                              "[Settings]\r\nProgramName=1\r\nUsePLXDialogs=4\r\n";
    const std::string wrongFilter =
        "[DefaultNCParameter]\r\nFilterSpans=0\r\nFilterMaxSpan=7\r\nFilterLineTol=8\r\nFilterArcTol=9\r\n";
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);

    // Everything is where it belongs, or set wrong everywhere else.
    WriteWholeFile(hostDefaults, "[DefaultDisplayParameter]\r\nNcDisplayMode=0\r\nNcMenuIcons=1\r\n" + wrongFilter +
                                     "Classic3Axis=0\r\n");
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\nNcMenuIcons=0\r\n" + wrongFilter +
                      "Classic3Axis=1\r\n");
    host.WriteDefaults(display + flags +
                       "[DefaultNCParameter]\r\nClassic3Axis=0\r\nFilterSpans=1\r\nFilterMaxSpan=0.25\r\n"
                       "FilterLineTol=8\r\nFilterArcTol=0.5\r\n");
    host.WriteSettings(display + wrongFilter);
    EXPECT_EQ(0, SendHostMessage(open.window, kSetDefaults));
    EXPECT_TRUE(ui::IsChecked(open.window, kToolbar));
    for (const int box : kBoxes)
        EXPECT_TRUE(ui::IsChecked(open.window, box)) << box;
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.5000", ui::TextOf(open.window, kArcTolerance));
    for (const int edit : {kMaxSpan, kArcTolerance})
        EXPECT_TRUE(ui::IsEnabled(open.window, edit)) << edit;

    // No flag comes from any other file.
    const std::string setElsewhere = flags + "[DefaultNCParameter]\r\nClassic3Axis=1\r\n";
    WriteWholeFile(hostDefaults, setElsewhere);
    WriteHostSettings(flags);
    host.WriteSettings(setElsewhere);
    host.WriteDefaults("[DefaultNCParameter]\r\nClassic3Axis=1\r\n");
    SendHostMessage(open.window, kSetDefaults);
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kClassic3Axis})
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
}

TEST_F(NcDefaults, DefaultsThatNoFileHoldsAreMenuAndIconsAndNoFlagAndTheSpanFilterStays)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kClassic3Axis);
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_TRUE(ui::IsChecked(open.window, kMenu));
    EXPECT_TRUE(ui::IsChecked(open.window, kIcons));
    for (const int box : {kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kClassic3Axis})
        EXPECT_FALSE(ui::IsChecked(open.window, box)) << box;
    EXPECT_TRUE(ui::IsChecked(open.window, kFilterSpans));
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
    EXPECT_EQ(L"0.5000", ui::TextOf(open.window, kArcTolerance));
    ExpectNothingWritten();
    OptNCDefData expected;
    expected.material = 5;
    expected.filterSpans = 1;
    expected.filterMaxSpan = 0.25;
    expected.filterArcTolerance = 0.5;
    ExpectSame(expected, Taken());
}

TEST_F(NcDefaults, DefaultsOfTheSpanFilterFallBackToWhatTheControlsLastHandedOver)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Type(open.window, kMaxSpan, L"3");
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_EQ(L"0.2500", ui::TextOf(open.window, kMaxSpan));
}

TEST_F(NcDefaults, DefaultsAskForTheRestartAlthoughNothingChanges)
{
    WriteWholeFile(hostDefaults, "[DefaultDisplayParameter]\r\nNcDisplayMode=0\r\nNcMenuIcons=0\r\n");
    OpenModal open(dialog, kTitle);
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_TRUE(Asks(open));
}

TEST_F(NcDefaults, TheIconsBoxIsEnabledWhereTheDefaultDisplayModeIsTheMenu)
{
    OpenModal open(dialog, kTitle);
    EXPECT_FALSE(ui::IsEnabled(open.window, kIcons));
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_TRUE(ui::IsChecked(open.window, kMenu));
    EXPECT_TRUE(ui::IsEnabled(open.window, kIcons));
    for (const char* const mode : {"0", "7"}) {
        ui::Click(open.window, kMenu);
        EXPECT_TRUE(ui::IsEnabled(open.window, kIcons)) << mode;
        WriteWholeFile(hostDefaults, std::string("[DefaultDisplayParameter]\r\nNcDisplayMode=") + mode + "\r\n");
        SendHostMessage(open.window, kSetDefaults);
        EXPECT_FALSE(ui::IsEnabled(open.window, kIcons)) << mode;
    }
}

TEST_F(NcDefaults, ADefaultDisplayModeThatIsNoneChoosesNothingAndIsStoredAsItIs)
{
    WriteWholeFile(hostDefaults, "[DefaultDisplayParameter]\r\nNcDisplayMode=7\r\n");
    OpenModal open(dialog, kTitle);
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_FALSE(ui::IsChecked(open.window, kToolbar));
    EXPECT_FALSE(ui::IsChecked(open.window, kMenu));
    CheckSave(open, IDYES);
    EXPECT_EQ("7", Value(host.hostSettings, "DefaultDisplayParameter", "NcDisplayMode"));
    ui::Click(open.window, kToolbar);
    CheckSave(open, IDYES);
    EXPECT_EQ("0", Value(host.hostSettings, "DefaultDisplayParameter", "NcDisplayMode"));
}

TEST_F(NcDefaults, DefaultFlagsAreSetByOneAloneAndTheSpanFilterByWhateverIsNotZero)
{
    for (const char* value : {"2", "-1", "10"}) {
        const std::string text = value;
        OpenModal open(dialog, kTitle);
        WriteWholeFile(hostDefaults, "[DefaultDisplayParameter]\r\nNcMenuIcons=" + text + "\r\n");
        WriteHostSettings("[DefaultNCParameter]\r\nClassic3Axis=" + text + "\r\n");
        host.WriteDefaults("[ALLTIPI]\r\nDefToLastMaterial;=" + text + "\r\nDefToLastTool=" + text +
                           "\r\nDefToLastCutCtrl=" + text + "\r\n[Settings]\r\nProgramName=" + text +
                           "\r\n[DefaultNCParameter]\r\nFilterSpans=" + text + "\r\n");
        SendHostMessage(open.window, kSetDefaults);
        for (const int box : {kIcons, kLastMaterial, kLastTool, kLastCutControl, kProgramName, kClassic3Axis})
            EXPECT_FALSE(ui::IsChecked(open.window, box)) << box << " " << text;
        EXPECT_TRUE(ui::IsChecked(open.window, kFilterSpans)) << text;
        open.End(IDCANCEL);
    }
}

TEST_F(NcDefaults, OneBitOfTheDialogBitsIsTheLowerLimit)
{
    OpenModal open(dialog, kTitle);
    for (const char* set : {"4", "5", "6", "7", "12", "-1"}) {
        host.WriteDefaults(std::string("[Settings]\r\nUsePLXDialogs=") + set + "\r\n");
        SendHostMessage(open.window, kSetDefaults);
        EXPECT_TRUE(ui::IsChecked(open.window, kMinimumZ)) << set;
    }
    for (const char* clear : {"0", "1", "2", "3", "8", "11"}) {
        host.WriteDefaults(std::string("[Settings]\r\nUsePLXDialogs=") + clear + "\r\n");
        SendHostMessage(open.window, kSetDefaults);
        EXPECT_FALSE(ui::IsChecked(open.window, kMinimumZ)) << clear;
    }
}

TEST_F(NcDefaults, TheKeyOfTheLastMaterialEndsInASemicolon)
{
    OpenModal open(dialog, kTitle);
    host.WriteDefaults("[ALLTIPI]\r\nDefToLastMaterial=1\r\n");
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_FALSE(ui::IsChecked(open.window, kLastMaterial));
    host.WriteDefaults("[ALLTIPI]\r\nDefToLastMaterial;=1\r\n");
    SendHostMessage(open.window, kSetDefaults);
    EXPECT_TRUE(ui::IsChecked(open.window, kLastMaterial));
}

TEST_F(NcDefaults, DefaultsEnableTheTolerancesAsTheSpanFilterSays)
{
    OpenModal open(dialog, kTitle);
    for (const bool on : {true, false}) {
        host.WriteDefaults(std::string("[DefaultNCParameter]\r\nFilterSpans=") + (on ? "1" : "0") + "\r\n");
        SendHostMessage(open.window, kSetDefaults);
        for (const int edit : {kMaxSpan, kArcTolerance})
            EXPECT_EQ(on, ui::IsEnabled(open.window, edit)) << edit;
    }
}

// ---- the span filter ----

TEST_F(NcDefaults, TheTolerancesCanBeTypedWhileSpansAreFiltered)
{
    OpenModal open(dialog, kTitle);
    for (const bool on : {true, false, true}) {
        ui::Click(open.window, kFilterSpans);
        for (const int edit : {kMaxSpan, kArcTolerance})
            EXPECT_EQ(on, ui::IsEnabled(open.window, edit)) << edit;
    }
}

TEST_F(NcDefaults, ClickingTheSpanFilterTakesTheControls)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kLastTool);
    EXPECT_EQ(0, +Taken().defToLastTool);
    ui::Click(open.window, kFilterSpans);
    EXPECT_EQ(1, +Taken().defToLastTool);
    EXPECT_EQ(1, +Taken().filterSpans);
}

TEST_F(NcDefaults, AToleranceBelowZeroIsRefusedWithBothBoundsInFull)
{
    struct Precision {
        const char* decimals;
        size_t shown;
    };
    for (const Precision& precision : {Precision{"4", 4}, Precision{"50", 50}, Precision{"999999", 50}}) {
        host.WriteSettings(std::string("[Settings]\r\nDecimals=") + precision.decimals + "\r\n");
        const std::wstring zeros = L"." + Repeat(L'0', precision.shown);
        for (const int edit : {kMaxSpan, kArcTolerance}) {
            OpenModal open(dialog, kTitle);
            Give(AllSet());
            ui::Type(open.window, edit, L"0-0.0001");
            open.Press(IDOK);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(L"Please enter a number between 0" + zeros + L" and " + kLargest + zeros + L".", box.text);
            EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
            EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
            ui::Answer(box, IDOK);
            EXPECT_TRUE(open.IsOpen());
            EXPECT_EQ(ui::Control(open.window, edit), ui::Focus(open.window));
            ExpectSame(AllSet(), Taken());
            ui::Type(open.window, edit, L"0");
            open.End(IDOK);
        }
    }
}

TEST_F(NcDefaults, TheLargestToleranceIsAcceptedAndStoredInFull)
{
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    for (const int edit : {kMaxSpan, kArcTolerance})
        ui::Type(open.window, edit, L"1.7976931348623157e308");
    open.End(IDOK);
    const OptNCDefData data = Taken();
    EXPECT_EQ(std::numeric_limits<double>::max(), +data.filterMaxSpan);
    EXPECT_EQ(std::numeric_limits<double>::max(), +data.filterArcTolerance);
    const std::string stored = std::string(CStringA(CString(kLargest))) + ".000000";
    EXPECT_EQ("[DefaultNCParameter]\r\nFilterSpans=1\r\nFilterMaxSpan=" + stored + "\r\nFilterArcTol=" + stored +
                  "\r\n",
              host.ReadSettings());
}

TEST_F(NcDefaults, AToleranceThatIsNoNumberIsRefused)
{
    for (const wchar_t* text : {L"", L"abc", L"1/0", L"1.0e309", L"(", L"sqrt(0-1)"})
        for (const int edit : {kMaxSpan, kArcTolerance}) {
            OpenModal open(dialog, kTitle);
            Give(AllSet());
            ui::Type(open.window, edit, text);
            open.Press(IDOK);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(L"Please enter a number.", box.text) << text;
            ui::Answer(box, IDOK);
            EXPECT_EQ(ui::Control(open.window, edit), ui::Focus(open.window));
            ExpectSame(AllSet(), Taken());
        }
}

TEST_F(NcDefaults, ARefusedToleranceOfASwitchedOffFilterCanBeReachedByAClick)
{
    host.WriteDefaults("[DefaultNCParameter]\r\nFilterMaxSpan=-5\r\n");
    OpenModal open(dialog, kTitle);
    EXPECT_EQ(L"-5.0000", ui::TextOf(open.window, kMaxSpan));
    open.Press(IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(open.IsOpen());
    ui::Click(open.window, kFilterSpans);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(ui::IsEnabled(open.window, kMaxSpan));
    ui::Type(open.window, kMaxSpan, L"5");
    open.End(IDOK);
    EXPECT_EQ(5.0, +Taken().filterMaxSpan);
}

// ---- hostile settings ----

const std::vector<std::string> kHostileTexts = {
    "",
    "   ",
    std::string(10000, 'x'),
    std::string(10000, '7'),
    "nan",
    "1e400",
    "-inf",
    "\x80\xff\xd0",
    "-1",
    "2147483648",
    "4294967295",
    "\"1\"",
    "=1",
    "0x10",
};

/// What the platform makes of a text where a whole number is expected.
int PlatformReads(const std::string& file, const char* section, const char* key, int fallback)
{
    return static_cast<int>(GetPrivateProfileIntA(section, key, fallback, file.c_str()));
}

TEST_F(NcDefaults, OpensWithWhateverTheFilesHold)
{
    for (const std::string& text : kHostileTexts) {
        WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=" + text + "\r\nNcMenuIcons=" + text +
                          "\r\n[DefaultNCParameter]\r\nClassic3Axis=" + text + "\r\nFilterSpans=" + text + "\r\n");
        host.WriteDefaults("[DefaultNCParameter]\r\nFilterMaxSpan=" + text + "\r\nFilterArcTol=" + text + "\r\n");
        const auto isSet = [&](const char* section, const char* key) {
            return PlatformReads(host.hostSettings, section, key, 0) != 0;
        };
        const double real = ReadDefaultReal("DefaultNCParameter", "FilterMaxSpan", 0.001);
        EXPECT_TRUE(std::isfinite(real));

        CDefsNCDefaultsDlg shown;
        OpenModal open(shown, kTitle);
        const std::string which = text.substr(0, 20);
        EXPECT_EQ(isSet("DefaultDisplayParameter", "NcDisplayMode"), ui::IsChecked(open.window, kMenu)) << which;
        EXPECT_NE(ui::IsChecked(open.window, kToolbar), ui::IsChecked(open.window, kMenu)) << which;
        EXPECT_EQ(isSet("DefaultDisplayParameter", "NcMenuIcons"), ui::IsChecked(open.window, kIcons)) << which;
        EXPECT_EQ(isSet("DefaultNCParameter", "Classic3Axis"), ui::IsChecked(open.window, kClassic3Axis)) << which;
        EXPECT_EQ(isSet("DefaultNCParameter", "FilterSpans"), ui::IsChecked(open.window, kFilterSpans)) << which;
        for (const int edit : {kMaxSpan, kArcTolerance})
            EXPECT_EQ(CString(FormatForDisplay(real).c_str()).GetString(), ui::TextOf(open.window, edit)) << which;
    }
}

TEST_F(NcDefaults, RealsThatAreNoNumbersKeepTheirBuiltInValueAtOpening)
{
    for (const char* text : {"", "   ", "x", "nan", "1e400", "-inf", "\x80\xff\xd0"}) {
        host.WriteDefaults(std::string("[DefaultNCParameter]\r\nFilterMaxSpan=") + text + "\r\nFilterArcTol=" + text +
                           "\r\n");
        CDefsNCDefaultsDlg shown;
        OpenModal open(shown, kTitle);
        EXPECT_EQ(L"0.0010", ui::TextOf(open.window, kMaxSpan)) << text;
        EXPECT_EQ(L"0.0010", ui::TextOf(open.window, kArcTolerance)) << text;
    }
}

TEST_F(NcDefaults, TakesDefaultsFromWhateverTheFilesHold)
{
    OpenModal open(dialog, kTitle);
    for (const std::string& text : kHostileTexts) {
        Give(OptNCDefData());
        WriteWholeFile(hostDefaults,
                       "[DefaultDisplayParameter]\r\nNcDisplayMode=" + text + "\r\nNcMenuIcons=" + text + "\r\n");
        WriteHostSettings("[DefaultNCParameter]\r\nClassic3Axis=" + text + "\r\n");
        host.WriteDefaults("[ALLTIPI]\r\nDefToLastMaterial;=" + text + "\r\nDefToLastTool=" + text +
                           "\r\nDefToLastCutCtrl=" + text + "\r\n[Settings]\r\nProgramName=" + text +
                           "\r\nUsePLXDialogs=" + text + "\r\n[DefaultNCParameter]\r\nFilterSpans=" + text +
                           "\r\nFilterMaxSpan=" + text + "\r\nFilterArcTol=" + text + "\r\n");
        const auto inDefaults = [&](const char* section, const char* key) {
            return PlatformReads(host.defaults, section, key, 0);
        };
        const double real = ReadDefaultReal("DefaultNCParameter", "FilterMaxSpan", 0.001);
        SendHostMessage(open.window, kSetDefaults);

        const std::string which = text.substr(0, 20);
        const int mode = PlatformReads(hostDefaults, "DefaultDisplayParameter", "NcDisplayMode", 1);
        EXPECT_EQ(mode == 0, ui::IsChecked(open.window, kToolbar)) << which;
        EXPECT_EQ(mode == 1, ui::IsChecked(open.window, kMenu)) << which;
        EXPECT_EQ(PlatformReads(hostDefaults, "DefaultDisplayParameter", "NcMenuIcons", 1) == 1,
                  ui::IsChecked(open.window, kIcons))
            << which;
        EXPECT_EQ(inDefaults("ALLTIPI", "DefToLastMaterial;") == 1, ui::IsChecked(open.window, kLastMaterial)) << which;
        EXPECT_EQ(inDefaults("ALLTIPI", "DefToLastTool") == 1, ui::IsChecked(open.window, kLastTool)) << which;
        EXPECT_EQ(inDefaults("ALLTIPI", "DefToLastCutCtrl") == 1, ui::IsChecked(open.window, kLastCutControl)) << which;
        EXPECT_EQ(inDefaults("Settings", "ProgramName") == 1, ui::IsChecked(open.window, kProgramName)) << which;
        EXPECT_EQ((inDefaults("Settings", "UsePLXDialogs") & 4) != 0, ui::IsChecked(open.window, kMinimumZ)) << which;
        EXPECT_EQ(PlatformReads(host.hostSettings, "DefaultNCParameter", "Classic3Axis", 0) == 1,
                  ui::IsChecked(open.window, kClassic3Axis))
            << which;
        EXPECT_EQ(inDefaults("DefaultNCParameter", "FilterSpans") != 0, ui::IsChecked(open.window, kFilterSpans))
            << which;
        for (const int edit : {kMaxSpan, kArcTolerance})
            EXPECT_EQ(CString(FormatForDisplay(real).c_str()).GetString(), ui::TextOf(open.window, edit)) << which;
    }
}

TEST_F(NcDefaults, FilesThatCannotBeWrittenAreNoMatter)
{
    std::filesystem::remove_all(host.folder);
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kMenu);
    CheckSave(open, IDYES);
    ExpectSame(AllSet(), Taken());
    EXPECT_FALSE(ui::IsBoxOpen());
}

// ---- the material ----

class NcDefaultsMaterial : public NcDefaults {
protected:
    static constexpr wchar_t kList[] = L"Выбор материала заготовки";

    /// Clicks the button, chooses the first material of the list and ends the list with `button`.
    static void ChooseFirst(const OpenModal& open, int button)
    {
        ui::Click(open.window, kMaterial);
        const HWND list = ui::WaitForWindow(kList);
        ui::Press(ui::Focus(list), VK_HOME);
        ui::Click(list, button);
        ASSERT_TRUE(ui::WaitForClose(list));
        ui::Settle(open.window);
    }
    static bool IsListOpen()
    {
        for (const HWND window : ui::TopLevelWindows())
            if (ui::TextOf(window) == kList)
                return true;
        return false;
    }
};

TEST_F(NcDefaultsMaterial, TheButtonDoesNothingWhileTheMaterialLibraryIsSwitchedOff)
{
    ASSERT_FALSE(MaterialLibrarySwitch());
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kMaterial);
    EXPECT_FALSE(IsListOpen());
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(5, +Taken().material);
}

TEST_F(NcDefaultsMaterial, ChoosesFromTheToolLibraryWhereItIsSwitchedOn)
{
    MaterialLibrarySwitch() = true;
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ChooseFirst(open, IDCANCEL);
    EXPECT_EQ(5, +Taken().material);
    ChooseFirst(open, IDOK);
    EXPECT_EQ(1, +Taken().material);
    EXPECT_FALSE(Asks(open));
}

TEST_F(NcDefaultsMaterial, TheListStartsAtTheMaterialInUse)
{
    MaterialLibrarySwitch() = true;
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kMaterial);
    const HWND list = ui::WaitForWindow(kList);
    const HWND rows = ui::Focus(list);
    EXPECT_EQ(8, SendMessage(rows, LVM_GETITEMCOUNT, 0, 0)) << "of every group";
    ui::Click(list, IDOK);
    ASSERT_TRUE(ui::WaitForClose(list));
    ui::Settle(open.window);
    EXPECT_EQ(5, +Taken().material);
}

TEST_F(NcDefaultsMaterial, WithoutAToolLibraryTheButtonDoesNothing)
{
    ui::UiThread::Get().Call([] { FinalizePelmarDlgsDLL(); });
    MaterialLibrarySwitch() = true;
    OpenModal open(dialog, kTitle);
    Give(AllSet());
    ui::Click(open.window, kMaterial);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(5, +Taken().material);
}

// ---- the window ----

TEST_F(NcDefaults, ShowsEveryTextOfItsControls)
{
    OpenModal open(dialog, kTitle);
    const std::pair<int, const wchar_t*> texts[] = {
        {kToolbar, L"Панель инструментов"},
        {kMenu, L"Выпадающее меню "},
        {kIcons, L"Иконки в меню"},
        {kLastMaterial, L"Использовать последний материал по умолчанию"},
        {kLastTool, L"Использовать последний инструмент по умолчанию"},
        {kLastCutControl, L"Сохранять параметры операции при выходе"},
        {kMinimumZ, L"Вычислять нижний предел по оси Z"},
        {kProgramName, L"Алфавитно-цифровой номер программы"},
        {kMaterial, L"Материал заготовки..."},
        {kClassic5Axis, L"Использовать классическое 4/5-осевое фрезерование"},
        {kClassic3Axis, L"Использовать классическое 3-осевое фрезерование"},
        {kFilterSpans, L"Разбивать прямые и дуги на отрезки"},
        {IDOK, L"ОК"},
        {IDCANCEL, L"Отмена"},
        {kHelp, L"Справка"},
    };
    for (const auto& [control, text] : texts) {
        EXPECT_EQ(text, ui::TextOf(open.window, control));
        EXPECT_EQ(control != kClassic5Axis, ui::IsShown(open.window, control)) << control;
    }
    const auto label = [&](int edit) { return ui::TextOf(GetWindow(ui::Control(open.window, edit), GW_HWNDPREV)); };
    EXPECT_EQ(L"Максимальное значение отрезка для прямой:", label(kMaxSpan));
    EXPECT_EQ(L"Допуск для сегмента дуги:", label(kArcTolerance));
}

TEST_F(NcDefaults, CancelClosesItWithoutAWord)
{
    OpenModal open(dialog, kTitle);
    ui::Click(open.window, kMenu);
    ui::Click(open.window, kFilterSpans);
    ui::Type(open.window, kMaxSpan, L"(");
    open.End(IDCANCEL);
    EXPECT_EQ(IDCANCEL, open.result);
    ExpectNothingWritten();
}

TEST_F(NcDefaults, ItsCaptionHasTheContextHelpButtonWhichSwitchesHelpModeOn)
{
    OpenModal open(dialog, kTitle);
    EXPECT_TRUE(GetWindowLong(open.window, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
    const auto isHelpMode = [] { return ui::On([] { return AfxGetApp()->m_bHelpMode != FALSE; }); };
    PostMessage(open.window, WM_SYSCOMMAND, SC_KEYMENU | 1, 0);
    PostMessage(open.window, WM_CANCELMODE, 0, 0);
    ui::Settle(open.window);
    EXPECT_FALSE(isHelpMode());
    PostMessage(open.window, WM_SYSCOMMAND, SC_CONTEXTHELP | 3, 0);
    ui::Settle(open.window);
    EXPECT_TRUE(isHelpMode());
    ui::UiThread::Get().Call([] { AfxGetApp()->m_bHelpMode = FALSE; });
}

TEST_F(NcDefaults, EveryTopicOfItsTableIsShown)
{
    constexpr char general[] = "tvaux-_toolsoptions_nc_defaults_tools_options.htm";
    constexpr char displayMode[] = "tvaux-_toolsoptionspopups_display_toolbar_dispaly_menu_options.htm";
    const std::pair<int, const char*> topics[] = {
        {0, general},
        {IDOK, "tvaux-_popupsj_r_hidc_ok_button.htm"},
        {IDCANCEL, "tvaux-_popupsa_i_hidc_cancel_button.htm"},
        {kHelp, "tvaux-_popupsa_i_hidc_help_button.htm"},
        {kToolbar, displayMode},
        {kMenu, displayMode},
        {kIcons, "tvaux-_toolsoptionspopups_menu_icons.htm"},
        {kProgramName, "tvaux-_toolsoptionspopups_program_number_is_alphanumeric_name.htm"},
        {kMinimumZ, "tvaux-_toolsoptionspopups_calculate_initial_value_for_minimum_z.htm"},
        {kLastMaterial, "tvaux-_toolsoptionspopups_use_last_selected_materials_as_default_at_start_up.htm"},
        {kLastTool, "tvaux-_toolsoptionspopups_use_last_selected_tools_as_default_at_start_up.htm"},
        {kLastCutControl, "tvaux-_toolsoptionspopups_save_cut_control_information_at_torvex_exit.htm"},
        {kMaterial, "tvaux-_toolsoptionspopups_choose_material_button_options_nc_defaults_dialog.htm"},
        {kClassic3Axis, general},
        {kFilterSpans, general},
        {kMaxSpan, general},
        {kArcTolerance, general},
    };
    OpenModal open(dialog, kTitle);
    for (const auto& [control, topic] : topics) {
        EXPECT_EQ(topic, TopicShownFor(open.window, control)) << control;
        EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode != FALSE; })) << control;
    }
    TopicShownFor(open.window, kMaterial);
    ui::Click(open.window, kHelp);
    EXPECT_EQ(general, LastTopicShown());
}

TEST_F(NcDefaults, ItsLayoutClipsAndOverlapsNothing)
{
    OpenModal open(dialog, kTitle);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(open.window));
}

TEST_F(NcDefaults, TheTabKeyGoesThroughTheControlsAsOneReads)
{
    WriteHostSettings("[DefaultDisplayParameter]\r\nNcDisplayMode=1\r\n[DefaultNCParameter]\r\nFilterSpans=1\r\n");
    OpenModal open(dialog, kTitle);
    std::vector<int> order;
    HWND control = ui::Control(open.window, kMenu);
    do {
        order.push_back(GetDlgCtrlID(control));
        control = GetNextDlgTabItem(open.window, control, FALSE);
    } while (control != ui::Control(open.window, kMenu));
    EXPECT_EQ(
        (std::vector<int>{kMenu, kIcons, kLastMaterial, kLastTool, kLastCutControl, kMinimumZ, kProgramName, kMaterial,
                          kClassic3Axis, kFilterSpans, kMaxSpan, kArcTolerance, IDOK, IDCANCEL, kHelp}),
        order);
}

TEST_F(NcDefaults, ControlsThatAreMissingAreSkipped)
{
    struct Bare : CDefsNCDefaultsDlg {
        BOOL OnInitDialog() override
        {
            for (const HWND control : ui::Children(m_hWnd))
                ::DestroyWindow(control);
            return CDefsNCDefaultsDlg::OnInitDialog();
        }
    };
    Bare bare;
    OpenModal open(bare, kTitle);
    EXPECT_TRUE(ui::Children(open.window).empty());
    const LPARAM somebody = reinterpret_cast<LPARAM>(open.window);
    for (const int id : {kToolbar, kMenu, kIcons, kMaterial, kFilterSpans})
        SendMessage(open.window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), somebody);
    const OptNCDefData data = AllSet();
    ui::UiThread::Get().Call([&] { bare.GetData(&data); });
    SendHostMessage(open.window, kSetDefaults);
    CheckSave(open, IDNO);
    OptNCDefData taken;
    ui::UiThread::Get().Call([&] { bare.SetData(&taken); });
    EXPECT_EQ(5, +taken.material);
    EXPECT_EQ(0.001, +taken.filterMaxSpan);
}

TEST_F(NcDefaults, CanBeCreatedDynamically)
{
    EXPECT_EQ(3947, int{CDefsNCDefaultsDlg::IDD});
    EXPECT_EQ(CDialog::GetThisClass(), CDefsNCDefaultsDlg::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CDefsNCDefaultsDlg::GetThisClass()->CreateObject(); });
}

} // namespace
