#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "pages/record_checks.h"

namespace {

using Record = CSSheetOptionsInfo;

// ---- the record ----

const RecordOperations<Record> kOperations = {
    "[OptionsSSheet]\r\n"
    "Units=0\r\n"
    "SetupStyle=1\r\n"
    "UniqueTools=0\r\n"
    "ToolingSetup=1\r\n"
    "ToolingGraphics=1\r\n"
    "OperationsSetup=1\r\n"
    "OperationsGraphics=0\r\n"
    "ToolChangeTime=0.000000\r\n"
    "RapidRate=400.000000\r\n",
    &Record::vOptions_Defaults,
    &Record::vOptions_Save,
    &Record::vOptions_Restore,
    &Record::vOptions_CheckUnits,
};

/// Leaves the live record and the current units as they were at load.
class SetupSheet : public testing::Test {
protected:
    ~SetupSheet() override
    {
        *GetLastSSheetOptions() = Record();
        ui::UiThread::Get().Call([] { CDefsSetupsheet().GetData(0); });
    }

    HostFolder host;
    Record options;
};

void ExpectSame(const Record& expected, const Record& actual)
{
    EXPECT_EQ(expected.Units, actual.Units);
    EXPECT_EQ(expected.SetupStyle, actual.SetupStyle);
    EXPECT_EQ(expected.ToolChangeTime, actual.ToolChangeTime);
    EXPECT_EQ(expected.RapidRate, actual.RapidRate);
    EXPECT_EQ(expected.UniqueTools, actual.UniqueTools);
    EXPECT_EQ(expected.ToolingSetup, actual.ToolingSetup);
    EXPECT_EQ(expected.OperationsSetup, actual.OperationsSetup);
    EXPECT_EQ(expected.ToolingGraphics, actual.ToolingGraphics);
    EXPECT_EQ(expected.OperationsGraphics, actual.OperationsGraphics);
}

/// No two fields alike, and none as it is built in.
Record AllChanged()
{
    Record record;
    record.Units = 1;
    record.SetupStyle = 2;
    record.ToolChangeTime = 3.5;
    record.RapidRate = 4.5;
    record.UniqueTools = 5;
    record.ToolingSetup = 6;
    record.OperationsSetup = 7;
    record.ToolingGraphics = 8;
    record.OperationsGraphics = 9;
    return record;
}

TEST_F(SetupSheet, ARecordHasItsBuiltInValues)
{
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(1, options.SetupStyle);
    EXPECT_EQ(0.0, options.ToolChangeTime);
    EXPECT_EQ(400.0, options.RapidRate);
    EXPECT_EQ(0, options.UniqueTools);
    EXPECT_EQ(1, options.ToolingSetup);
    EXPECT_EQ(1, options.OperationsSetup);
    EXPECT_EQ(1, options.ToolingGraphics);
    EXPECT_EQ(0, options.OperationsGraphics);
}

TEST_F(SetupSheet, AFreshRecordSavesEveryKeyInOrder)
{
    options.vOptions_Save();
    EXPECT_EQ(kOperations.fresh, host.ReadSettings());
}

TEST_F(SetupSheet, EveryKeyIsRestoredToItsOwnField)
{
    host.WriteSettings("[OptionsSSheet]\r\nUnits=1\r\nSetupStyle=2\r\nUniqueTools=5\r\nToolingSetup=6\r\n"
                       "ToolingGraphics=8\r\nOperationsSetup=7\r\nOperationsGraphics=9\r\nToolChangeTime=3.5\r\n"
                       "RapidRate=4.5\r\n");
    options.vOptions_Restore();
    ExpectSame(AllChanged(), options);
    CheckRestoresEveryKey(host, kOperations, EveryKeyChanged(kOperations.fresh));
}

TEST_F(SetupSheet, KeysAreTakenOneByOneAndTheOthersStay)
{
    CheckTakesKeysOneByOne(host, kOperations, EveryKeyChanged(kOperations.fresh));
}

TEST_F(SetupSheet, AnAbsentKeyStaysAsItWas)
{
    options = AllChanged();
    options.vOptions_Restore();
    ExpectSame(AllChanged(), options);
}

TEST_F(SetupSheet, RestoringAMetricFileScalesNothing)
{
    host.WriteSettings("[OptionsSSheet]\r\nUnits=1\r\n");
    options.vOptions_Restore();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(400.0, options.RapidRate);
}

TEST_F(SetupSheet, TheRapidRateIsScaledThereAndBackExactlyAndTheToolChangeTimeNever)
{
    CheckConversion<Record>(kOperations, {{&Record::RapidRate}}, {&Record::ToolChangeTime});
    options.Units = 1;
    options.RapidRate = 10000.0;
    options.ToolChangeTime = 2.5;
    options.vOptions_CheckUnits(0);
    EXPECT_EQ(400.0, options.RapidRate);
    EXPECT_EQ(2.5, options.ToolChangeTime);
    EXPECT_EQ(0, options.Units);
}

TEST_F(SetupSheet, DefaultsTakeEveryKeyOfTheirFile)
{
    CheckDefaults(host, kOperations, EveryKeyChanged(kOperations.fresh));
}

TEST_F(SetupSheet, DefaultsWithoutAStyleAreTheCurrentOneWhateverItWas)
{
    host.WriteDefaults("[OptionsSSheet]\r\nUniqueTools=1\r\n");
    for (const int style : {0, 2, 7}) {
        options.SetupStyle = style;
        options.vOptions_Defaults();
        EXPECT_EQ(1, options.SetupStyle);
        EXPECT_EQ(1, options.UniqueTools);
    }
}

TEST_F(SetupSheet, DefaultsOfAMetricFileStartFromTenThousand)
{
    host.WriteDefaults("[OptionsSSheet]\r\nUnits=1\r\n");
    ui::UiThread::Get().Call([] { CDefsSetupsheet().GetData(1); });
    options.vOptions_Defaults();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(10000.0, options.RapidRate);
    host.WriteDefaults("[OptionsSSheet]\r\nUnits=1\r\nRapidRate=5000\r\nToolChangeTime=2.5\r\n");
    ui::UiThread::Get().Call([] { CDefsSetupsheet().GetData(0); });
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(200.0, options.RapidRate);
    EXPECT_EQ(2.5, options.ToolChangeTime);
}

TEST_F(SetupSheet, DefaultsOfAnUnknownUnitCountAsMillimetre)
{
    host.WriteDefaults("[OptionsSSheet]\r\nUnits=7\r\nRapidRate=5000\r\n");
    options.vOptions_Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(200.0, options.RapidRate);
}

TEST_F(SetupSheet, DefaultsComeFromTheDefaultsFileAlone)
{
    host.WriteSettings(EveryKeyChanged(kOperations.fresh));
    options.vOptions_Defaults();
    ExpectSame(Record(), options);
}

TEST_F(SetupSheet, TheFreeFunctionsReadAndWriteTheLiveRecord)
{
    const std::string file = EveryKeyChanged(kOperations.fresh);
    host.WriteSettings(file);
    vSSheetOptions_Restore();
    EXPECT_EQ(3, GetLastSSheetOptions()->SetupStyle);
    host.WriteSettings("");
    vSSheetOptions_Save();
    EXPECT_EQ(file, host.ReadSettings());
    EXPECT_EQ(GetLastSSheetOptions(), GetLastSSheetOptions());
}

TEST_F(SetupSheet, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kOperations.fresh, &Record::vOptions_Restore, &Record::vOptions_Save);
    CheckHostileReals(host, kOperations.fresh, &Record::vOptions_Defaults, &Record::vOptions_Save);
}

TEST_F(SetupSheet, WholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kOperations.fresh, &Record::vOptions_Restore, &Record::vOptions_Save);
}

// ---- the dialog ----

constexpr int kRapidRate = 4593;
constexpr int kToolChangeTime = 4594;
constexpr int kTooling = 4595;
constexpr int kToolingGraphics = 4596;
constexpr int kOperationsBox = 4597;
constexpr int kStyle = 4598;
constexpr int kUniqueTools = 4599;

const std::vector<int> kOutputs = {kTooling, kToolingGraphics, kOperationsBox};

constexpr wchar_t kShownLowest[] = L"0.0010";
constexpr wchar_t kShownZero[] = L"0.0000";
constexpr wchar_t kShownHighest[] = L"1000000.0000";

class SetupSheetDialog : public SetupSheet {
protected:
    /// The dialog as a host shows it: created, then handed the units.
    class Shown {
    public:
        explicit Shown(int units = 0) : Shown(Record(), units) {}
        Shown(const Record& record, int units) : open((*GetLastSSheetOptions() = record, dialog), CDefsSetupsheet::IDD)
        {
            ui::UiThread::Get().Call([&] { dialog.GetData(units); });
        }
        operator HWND() const { return open.window; }
        bool TakeControls()
        {
            return ui::On([&] { return dialog.UpdateData(TRUE) != FALSE; });
        }
        /// The live record after the dialog's copy has been put back.
        Record Stored()
        {
            ui::UiThread::Get().Call([&] { dialog.SetData(); });
            return *GetLastSSheetOptions();
        }
        /// Whether the outputs that belong to the current style can be chosen.
        void ExpectOutputs(bool enabled) const
        {
            for (const int output : kOutputs)
                EXPECT_EQ(enabled, ui::IsEnabled(open.window, output)) << output;
        }

        CDefsSetupsheet dialog;

    private:
        OpenInside open;
    };
};

TEST_F(SetupSheetDialog, ShowsTheLiveRecord)
{
    Record record;
    record.SetupStyle = 2;
    record.RapidRate = 250.0;
    record.ToolChangeTime = 2.5;
    record.UniqueTools = 1;
    record.ToolingSetup = 0;
    const Shown shown(record, 0);
    EXPECT_EQ(2, ui::Selection(shown, kStyle));
    EXPECT_EQ(L"250.0000", ui::TextOf(shown, kRapidRate));
    EXPECT_EQ(L"2.5000", ui::TextOf(shown, kToolChangeTime));
    EXPECT_TRUE(ui::IsChecked(shown, kUniqueTools));
    EXPECT_FALSE(ui::IsChecked(shown, kTooling));
    EXPECT_TRUE(ui::IsChecked(shown, kToolingGraphics));
    EXPECT_TRUE(ui::IsChecked(shown, kOperationsBox));
}

TEST_F(SetupSheetDialog, TheStylesAreListedWithTheValuesThatAreStored)
{
    const Shown shown;
    EXPECT_EQ((std::vector<std::wstring>{L"Текущий - HTML", L"Стандарт - HTML", L"Стандарт"}),
              ui::Items(shown, kStyle));
    const int stored[] = {1, 0, 2};
    for (size_t index = 0; index < std::size(stored); ++index)
        EXPECT_EQ(stored[index], SendMessage(ui::Control(shown, kStyle), CB_GETITEMDATA, index, 0)) << index;
}

TEST_F(SetupSheetDialog, EachStyleIsSelectedAndStoredByItsValue)
{
    const int styles[] = {1, 0, 2};
    for (int index = 0; index < 3; ++index) {
        Record record;
        record.SetupStyle = styles[index];
        {
            const Shown shown(record, 0);
            EXPECT_EQ(index, ui::Selection(shown, kStyle));
        }
        record.SetupStyle = styles[(index + 1) % 3];
        Shown shown(record, 0);
        ui::Choose(shown, kStyle, index);
        EXPECT_EQ(styles[index], shown.Stored().SetupStyle);
    }
}

TEST_F(SetupSheetDialog, AnUnknownStyleShowsTheFirstOneAndIsKeptUntilOneIsChosen)
{
    for (const int style : {7, -1, 3}) {
        Record record;
        record.SetupStyle = style;
        Shown shown(record, 0);
        EXPECT_EQ(0, ui::Selection(shown, kStyle));
        shown.ExpectOutputs(false);
        ui::Choose(shown, kStyle, -1);
        EXPECT_EQ(style, shown.Stored().SetupStyle) << "nothing is selected";
        ui::Choose(shown, kStyle, 0);
        EXPECT_EQ(1, shown.Stored().SetupStyle);
        shown.ExpectOutputs(true);
    }
}

TEST_F(SetupSheetDialog, OnlyTheCurrentStyleEnablesTheOutputs)
{
    for (const int style : {0, 1, 2}) {
        Record record;
        record.SetupStyle = style;
        const Shown shown(record, 0);
        shown.ExpectOutputs(style == 1);
        EXPECT_TRUE(ui::IsEnabled(shown, kUniqueTools));
    }
    const Shown shown;
    for (const int index : {1, 0, 2, 0}) {
        ui::Choose(shown, kStyle, index);
        shown.ExpectOutputs(index == 0);
    }
}

TEST_F(SetupSheetDialog, TheToolPicturesFollowTheToolsBoxWhenItIsClicked)
{
    Shown shown;
    ui::Click(shown, kTooling);
    EXPECT_FALSE(ui::IsEnabled(shown, kToolingGraphics));
    EXPECT_EQ(0, shown.Stored().ToolingSetup);
    ui::Click(shown, kTooling);
    EXPECT_TRUE(ui::IsEnabled(shown, kToolingGraphics));
    EXPECT_EQ(1, shown.Stored().ToolingSetup);
}

TEST_F(SetupSheetDialog, TheToolPicturesFollowWhicheverRuleRanLast)
{
    Record record;
    record.ToolingSetup = 0;
    Shown shown(record, 0);
    EXPECT_TRUE(ui::IsEnabled(shown, kToolingGraphics)) << "the style's rule, at opening";
    ui::Click(shown, kTooling);
    ui::Click(shown, kTooling);
    EXPECT_FALSE(ui::IsEnabled(shown, kToolingGraphics)) << "the box's rule";
    ui::Choose(shown, kStyle, 1);
    ui::Choose(shown, kStyle, 0);
    EXPECT_FALSE(ui::IsChecked(shown, kTooling));
    EXPECT_TRUE(ui::IsEnabled(shown, kToolingGraphics)) << "the style's rule again";
}

TEST_F(SetupSheetDialog, EachBoxBelongsToOneField)
{
    const std::pair<int, int Record::*> boxes[] = {
        {kTooling, &Record::ToolingSetup},
        {kToolingGraphics, &Record::ToolingGraphics},
        {kOperationsBox, &Record::OperationsSetup},
        {kUniqueTools, &Record::UniqueTools},
    };
    for (const auto& [box, field] : boxes) {
        Shown shown;
        ui::Click(shown, box);
        EXPECT_TRUE(shown.TakeControls());
        Record expected;
        expected.*field = 1 - expected.*field;
        ExpectSame(expected, shown.Stored());
    }
}

TEST_F(SetupSheetDialog, TheOperationPicturesAreKeptAsTheyAre)
{
    Record record;
    record.OperationsGraphics = 1;
    Shown shown(record, 0);
    EXPECT_TRUE(shown.TakeControls());
    ExpectSame(record, shown.Stored());
}

TEST_F(SetupSheetDialog, TheHostsUnitsConvertTheLiveRecordAndOnlyOneIsMillimetre)
{
    {
        const Shown shown(1);
        EXPECT_EQ(L"10000.0000", ui::TextOf(shown, kRapidRate));
        EXPECT_EQ(1, GetLastSSheetOptions()->Units);
        EXPECT_EQ(10000.0, GetLastSSheetOptions()->RapidRate);
    }
    const Record metric = *GetLastSSheetOptions();
    for (const int units : {0, 2, -1}) {
        const Shown shown(metric, units);
        EXPECT_EQ(L"400.0000", ui::TextOf(shown, kRapidRate));
        EXPECT_EQ(0, GetLastSSheetOptions()->Units);
        EXPECT_EQ(400.0, GetLastSSheetOptions()->RapidRate);
    }
}

TEST_F(SetupSheetDialog, LeavingAnEditShowsTheValueOfItsExpression)
{
    Shown shown;
    ui::Type(shown, kRapidRate, L"100*3");
    ui::FocusOn(shown, kToolChangeTime);
    EXPECT_EQ(L"300.0000", ui::TextOf(shown, kRapidRate));
    ui::Type(shown, kToolChangeTime, L"1/8+0.02");
    ui::FocusOn(shown, kStyle);
    EXPECT_EQ(L"0.1450", ui::TextOf(shown, kToolChangeTime));
    EXPECT_EQ(300.0, shown.Stored().RapidRate);
    EXPECT_EQ(0.145, shown.Stored().ToolChangeTime);
}

TEST_F(SetupSheetDialog, TypingEqualsShowsTheValueAtOnce)
{
    const Shown shown;
    for (const int edit : {kRapidRate, kToolChangeTime}) {
        ui::Type(shown, edit, L"2*0.25=");
        EXPECT_EQ(L"0.5000", ui::TextOf(shown, edit));
    }
}

TEST_F(SetupSheetDialog, WhatIsTooSmallToBeShownBecomesZeroWhenItsEditIsLeft)
{
    Shown shown;
    ui::Type(shown, kToolChangeTime, L"0.000000001");
    ui::FocusOn(shown, kStyle);
    EXPECT_EQ(kShownZero, ui::TextOf(shown, kToolChangeTime));
    EXPECT_EQ(0.0, shown.Stored().ToolChangeTime);
}

TEST_F(SetupSheetDialog, ValuesOutOfRangeAreRefusedAndTheBoundsAccepted)
{
    struct Refused {
        int edit;
        const wchar_t* text;
        const wchar_t* low;
    };
    for (const Refused& row :
         {Refused{kRapidRate, L"0", kShownLowest}, Refused{kRapidRate, L"0.0009", kShownLowest},
          Refused{kRapidRate, L"0-1", kShownLowest}, Refused{kRapidRate, L"1000001", kShownLowest},
          Refused{kToolChangeTime, L"0-0.001", kShownZero}, Refused{kToolChangeTime, L"1000000.1", kShownZero}}) {
        Shown shown;
        ui::Type(shown, row.edit, row.text);
        ui::FocusOn(shown, kStyle);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(std::wstring(L"Please enter a number between ") + row.low + L" and " + kShownHighest + L".",
                  box.text);
        EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
        ui::Answer(box, IDOK);
        EXPECT_EQ(ui::Control(shown, row.edit), ui::Focus(shown)) << row.text;
        EXPECT_EQ(row.text, ui::TextOf(shown, row.edit));
        ExpectSame(Record(), shown.Stored());
        ui::Type(shown, row.edit, L"1");
    }
    const std::pair<int, const wchar_t*> accepted[] = {
        {kRapidRate, L"0.001"}, {kRapidRate, L"1000000"}, {kToolChangeTime, L"0"}, {kToolChangeTime, L"1000000"}};
    for (const auto& [edit, text] : accepted) {
        Shown shown;
        ui::Type(shown, edit, text);
        EXPECT_TRUE(shown.TakeControls()) << text;
    }
}

TEST_F(SetupSheetDialog, TextsThatAreNoNumbersAreRefused)
{
    for (const wchar_t* text : {L"", L"abc", L"1/0", L"1.0e309", L"("})
        for (const int edit : {kRapidRate, kToolChangeTime}) {
            Shown shown;
            ui::Type(shown, edit, text);
            ui::FocusOn(shown, kStyle);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(kEnterNumber, box.text) << text;
            ui::Answer(box, IDOK);
            EXPECT_EQ(ui::Control(shown, edit), ui::Focus(shown));
            ExpectSame(Record(), shown.Stored());
            ui::Type(shown, edit, L"1");
        }
}

TEST_F(SetupSheetDialog, WhileAnEditIsRefusedNeitherTheStyleNorTheToolsBoxChangesAnything)
{
    Record record;
    record.RapidRate = -1.0;
    record.ToolingSetup = 0;
    {
        Shown shown(record, 0);
        ui::Click(shown, kTooling);
        ui::Answer(ui::WaitForBox(), IDOK);
        shown.ExpectOutputs(true);
        ExpectSame(record, shown.Stored());
        ui::Type(shown, kRapidRate, L"1");
    }
    Shown shown(record, 0);
    ui::Choose(shown, kStyle, 1);
    ui::Answer(ui::WaitForBox(), IDOK);
    shown.ExpectOutputs(true);
    ExpectSame(record, shown.Stored());
    ui::Type(shown, kRapidRate, L"1");
}

TEST_F(SetupSheetDialog, ChoosingAStyleTakesTheControls)
{
    Shown shown;
    ui::Click(shown, kUniqueTools);
    ui::Type(shown, kRapidRate, L"2*3");
    ui::Choose(shown, kStyle, 2);
    EXPECT_EQ(L"6.0000", ui::TextOf(shown, kRapidRate));
    EXPECT_EQ(6.0, shown.Stored().RapidRate);
    EXPECT_EQ(1, shown.Stored().UniqueTools);
}

TEST_F(SetupSheetDialog, PuttingTheCopyBackNeitherReadsTheControlsNorWritesAFile)
{
    Shown shown;
    ui::Type(shown, kRapidRate, L"3");
    ui::Click(shown, kUniqueTools);
    EXPECT_EQ(0, GetLastSSheetOptions()->UniqueTools);
    Record expected;
    expected.RapidRate = 3.0; // its edit has been left
    ExpectSame(expected, shown.Stored());
    EXPECT_EQ("", host.ReadSettings());
    EXPECT_TRUE(shown.TakeControls());
    EXPECT_EQ(0, GetLastSSheetOptions()->UniqueTools);
    EXPECT_EQ(1, shown.Stored().UniqueTools);
    vSSheetOptions_Save();
    EXPECT_EQ("1", Value(host.settings, "OptionsSSheet", "UniqueTools"));
}

TEST_F(SetupSheetDialog, DefaultsGoToTheCopyAndTheControlsKeepWhatTheyShow)
{
    host.WriteDefaults("[OptionsSSheet]\r\nSetupStyle=2\r\nRapidRate=250\r\nToolingSetup=0\r\nToolChangeTime=1.5\r\n");
    Shown shown(1);
    ui::Type(shown, kToolChangeTime, L"7");
    EXPECT_EQ(0, SendHostMessage(shown, kSetDefaultsMessage));
    EXPECT_EQ(0, ui::Selection(shown, kStyle));
    EXPECT_EQ(L"10000.0000", ui::TextOf(shown, kRapidRate));
    EXPECT_EQ(L"7", ui::TextOf(shown, kToolChangeTime));
    EXPECT_TRUE(ui::IsChecked(shown, kTooling));
    shown.ExpectOutputs(true);
    EXPECT_EQ(10000.0, GetLastSSheetOptions()->RapidRate) << "the live record is as it was";
    Record expected;
    expected.Units = 1;
    expected.SetupStyle = 2;
    expected.RapidRate = 6250.0;
    expected.ToolingSetup = 0;
    expected.ToolChangeTime = 1.5;
    ExpectSame(expected, shown.Stored());
    EXPECT_EQ(0, SendMessage(shown, 3072, 5, 6));
}

TEST_F(SetupSheetDialog, OpensWithWhateverTheFileHolds)
{
    for (const std::string& text : {std::string("-1"), std::string("2147483648"), std::string(), std::string("   "),
                                    std::string(10000, 'x'), std::string(10000, '7'), std::string("nan"),
                                    std::string("1e400"), std::string("-inf"), std::string("\x80\xff\xd0")}) {
        std::string file = "[OptionsSSheet]\r\n";
        for (const std::string& key : KeysOf(kOperations.fresh))
            file += key + "=" + text + "\r\n";
        host.WriteSettings(file);
        Record record;
        record.vOptions_Restore();
        for (const int units : {0, 1}) {
            const Shown shown(record, units);
            const int style = record.SetupStyle;
            EXPECT_EQ(style == 0 ? 1 : style == 2 ? 2 : 0, ui::Selection(shown, kStyle)) << text.substr(0, 20);
            shown.ExpectOutputs(style == 1);
            const std::string rate = FormatForDisplay(GetLastSSheetOptions()->RapidRate);
            EXPECT_EQ(CString(rate.c_str()).GetString(), ui::TextOf(shown, kRapidRate)) << text.substr(0, 20);
            const std::string time = FormatForDisplay(record.ToolChangeTime);
            EXPECT_EQ(CString(time.c_str()).GetString(), ui::TextOf(shown, kToolChangeTime)) << text.substr(0, 20);
        }
    }
}

TEST_F(SetupSheetDialog, StoredValuesOutOfRangeAreRefusedUntilTheyAreCorrected)
{
    Record record;
    record.RapidRate = -1.0;
    record.ToolChangeTime = -1.0;
    Shown shown(record, 0);
    ui::FocusOn(shown, kUniqueTools);
    EXPECT_FALSE(ui::IsBoxOpen());
    for (const int edit : {kRapidRate, kToolChangeTime}) {
        ui::UiThread::Get().Start([&] { shown.dialog.UpdateData(TRUE); });
        ui::Answer(ui::WaitForBox(), IDOK);
        ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
        EXPECT_EQ(ui::Control(shown, edit), ui::Focus(shown));
        ui::Type(shown, edit, L"1");
    }
    EXPECT_TRUE(shown.TakeControls());
    EXPECT_EQ(1.0, shown.Stored().RapidRate);
    EXPECT_EQ(1.0, shown.Stored().ToolChangeTime);
}

TEST_F(SetupSheetDialog, ShowsEveryTextOfItsControls)
{
    const Shown shown;
    EXPECT_EQ(L"Создание отчета", ui::TextOf(shown));
    const std::pair<int, const wchar_t*> boxes[] = {
        {kTooling, L"Вывод информации по инструменту"},
        {kToolingGraphics, L"Вывод граф. изображения инструмента"},
        {kOperationsBox, L"Вывод информации по операциям"},
        {kUniqueTools, L"Для операций со спец. инструментом"},
    };
    for (const auto& [box, text] : boxes)
        EXPECT_EQ(text, ui::TextOf(shown, box));
    const std::pair<int, const wchar_t*> labels[] = {
        {kStyle, L"Стиль:"},
        {kRapidRate, L"Скорость быстр. перем.:"},
        {kToolChangeTime, L"Время смены инструмента:"},
    };
    for (const auto& [control, text] : labels)
        EXPECT_EQ(text, ui::TextOf(GetWindow(ui::Control(shown, control), GW_HWNDPREV)));
}

TEST_F(SetupSheetDialog, EveryTopicOfItsTableIsShown)
{
    const std::pair<int, const char*> topics[] = {
        {0, "tvaux-_toolsoptions_setup_sheet_tools_options.htm"},
        {kRapidRate, "tvaux-_toolsoptionspopups_rapid_velocity.htm"},
        {kToolChangeTime, "tvaux-_toolsoptionspopups_tool_change_time.htm"},
        {kTooling, "tvaux-_toolsoptionspopups_output_tooling_setup.htm"},
        {kToolingGraphics, "tvaux-_toolsoptionspopups_output_tooling_graphics.htm"},
        {kOperationsBox, "tvaux-_toolsoptionspopups_output_opterations_setup.htm"},
        {kStyle, "tvaux-_toolsoptionspopups_style_1.htm"},
        {kUniqueTools, "tvaux-_toolsoptionspopups_show_operations_with_unique_tools.htm"},
    };
    const Shown shown;
    for (const auto& [control, topic] : topics) {
        EXPECT_EQ(topic, TopicShownFor(shown, control)) << control;
        EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode != FALSE; })) << control;
    }
}

TEST_F(SetupSheetDialog, AControlWithoutATopicOfItsOwnShowsTheGeneralOne)
{
    const Shown shown;
    ui::UiThread::Get().Call([&] {
        CreateWindow(L"Button", L"", WS_CHILD | WS_VISIBLE, 0, 0, 6, 6, shown, reinterpret_cast<HMENU>(INT_PTR{1234}),
                     nullptr, nullptr);
    });
    TopicShownFor(shown, kStyle);
    EXPECT_EQ("tvaux-_toolsoptions_setup_sheet_tools_options.htm", TopicShownFor(shown, 1234));
}

TEST_F(SetupSheetDialog, ItsLayoutClipsAndOverlapsNothing)
{
    const Shown shown;
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(shown));
}

TEST_F(SetupSheetDialog, TheTabKeyGoesThroughTheControlsAsOneReads)
{
    const Shown shown;
    std::vector<int> order;
    HWND control = ui::Control(shown, kStyle);
    do {
        order.push_back(GetDlgCtrlID(control));
        control = GetNextDlgTabItem(shown, control, FALSE);
    } while (control != ui::Control(shown, kStyle));
    EXPECT_EQ((std::vector<int>{kStyle, kRapidRate, kToolChangeTime, kTooling, kToolingGraphics, kOperationsBox,
                                kUniqueTools}),
              order);
}

TEST_F(SetupSheetDialog, OneObjectCanBeShownAgain)
{
    CDefsSetupsheet dialog;
    for (int time = 0; time < 2; ++time) {
        const OpenInside open(dialog, CDefsSetupsheet::IDD);
        ui::UiThread::Get().Call([&] { dialog.GetData(0); });
        EXPECT_EQ(3u, ui::Items(open.window, kStyle).size());
        EXPECT_EQ(0, ui::Selection(open.window, kStyle));
        ui::Type(open.window, kRapidRate, L"2*3=");
        EXPECT_EQ(L"6.0000", ui::TextOf(open.window, kRapidRate));
    }
}

TEST_F(SetupSheetDialog, ControlsThatAreMissingAreSkipped)
{
    struct Bare : CDefsSetupsheet {
        BOOL OnInitDialog() override
        {
            for (const HWND control : ui::Children(m_hWnd))
                ::DestroyWindow(control);
            return CDefsSetupsheet::OnInitDialog();
        }
    };
    *GetLastSSheetOptions() = AllChanged();
    Bare bare;
    const OpenInside open(bare, CDefsSetupsheet::IDD);
    EXPECT_TRUE(ui::Children(open.window).empty());
    ui::UiThread::Get().Call([&] { bare.GetData(1); });
    const LPARAM somebody = reinterpret_cast<LPARAM>(open.frame);
    SendMessage(open.window, WM_COMMAND, MAKEWPARAM(kRapidRate, EN_KILLFOCUS), somebody);
    SendMessage(open.window, WM_COMMAND, MAKEWPARAM(kToolChangeTime, EN_KILLFOCUS), somebody);
    SendMessage(open.window, WM_COMMAND, MAKEWPARAM(kTooling, BN_CLICKED), somebody);
    SendMessage(open.window, WM_COMMAND, MAKEWPARAM(kStyle, CBN_SELCHANGE), somebody);
    ui::UiThread::Get().Call([&] { bare.SetData(); });
    ExpectSame(AllChanged(), *GetLastSSheetOptions());
    EXPECT_EQ(0, SendHostMessage(open.window, kSetDefaultsMessage));
}

TEST_F(SetupSheetDialog, CanBeCreatedDynamically)
{
    EXPECT_EQ(1910, int{CDefsSetupsheet::IDD});
    EXPECT_EQ(CDialog::GetThisClass(), CDefsSetupsheet::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CDefsSetupsheet::GetThisClass()->CreateObject(); });
}

} // namespace
