#include <filesystem>

#include "pages/page_suite.h"
#include "pages/record_suite.h"

namespace fs = std::filesystem;

namespace {

using Record = HoleProcessDefsInfo;

constexpr char kSection[] = "HoleProcessLocation";

/// The template in the system-wide profile; what was there before comes back at the end.
class SystemTemplate {
public:
    SystemTemplate() : m_before(Text()) { Set(nullptr); }
    ~SystemTemplate() { Set(m_before == kAbsent ? nullptr : m_before.c_str()); }
    SystemTemplate(const SystemTemplate&) = delete;
    SystemTemplate& operator=(const SystemTemplate&) = delete;

    static constexpr char kAbsent[] = "<absent>";

    static std::string Text()
    {
        char text[20000];
        GetProfileStringA(kSection, "StartupTemplate", kAbsent, text, sizeof text);
        return text;
    }
    static void Set(const char* text) { WriteProfileStringA(kSection, "StartupTemplate", text); }

private:
    std::string m_before;
};

constexpr char kGeneralTopic[] = "HM_Tools_defaults_hole_processing.htm";
constexpr char kOptionsTopic[] = "pelmar-_options_hole_processing_options.htm";

constexpr int kTemplate = 4606;
constexpr int kChooseTemplate = 4607;
constexpr int kRecalcAuto = 4608;
constexpr int kSortType = 4605;
constexpr int kBidirectional = 4277;
constexpr int kUseBandWidth = 4371;
constexpr int kBandWidth = 4373;
constexpr int kSortReverse = 4713;
constexpr int kSortBias = 4714;
constexpr int kAccurateMode = 4359;
constexpr int kAccurateDistance = 4363;
constexpr int kAccurateFeedRate = 4365;

// In the order of the directions.
constexpr int kMajor[] = {4280, 4281, 4282, 4283};
constexpr int kStep[] = {4286, 4287, 4284, 4285};
constexpr int kAccurate[] = {4289, 4332, 4333, 4334};
constexpr int kAxisIcons[] = {4210, 4211, 4213, 4214};
constexpr int kAxisIconsChosen[] = {4219, 4220, 4221, 4222};
constexpr int kApproachIcons[] = {4218, 4216, 4217, 4215};
constexpr int kApproachIconsChosen[] = {4227, 4224, 4226, 4223};

Record Manual()
{
    Record record;
    record.SortType = 0;
    return record;
}

Record Accurate()
{
    Record record;
    record.AccurateMode = 1;
    return record;
}

std::vector<Topic> WithTopicsOfDirections(std::vector<Topic> topics)
{
    for (const int button : kMajor)
        topics.push_back({button, "pelmar-_holeprocessing_hidc_hp_major_dir.htm"});
    for (const int button : kStep)
        topics.push_back({button, "pelmar-_holeprocessing_hidc_hp_step_dir.htm"});
    for (const int button : kAccurate)
        topics.push_back({button, "pelmar-_holeprocessing_hidc_hp_accurate_dir.htm"});
    return topics;
}

struct HoleProcess : OperationOf<HoleProcessDefsInfo, DefsHoleProcessPage> {
    using R = Record;
    static constexpr auto Live = GetLastHoleProcessDefsInfo;
    static inline const Operations operations = {"[HoleProcessLocation]\r\n"
                                                 "Units=0\r\n"
                                                 "RecalcAuto=1\r\n"
                                                 "SortType=2\r\n"
                                                 "MajorDir=0\r\n"
                                                 "StepDir=2\r\n"
                                                 "Bidirectional=1\r\n"
                                                 "UseBandWidth=1\r\n"
                                                 "BandWidth=1.000000\r\n"
                                                 "AccurateMode=0\r\n"
                                                 "AccurateDir=2\r\n"
                                                 "AccurateDist=0.100000\r\n"
                                                 "AccurateFeedRate=10.000000\r\n"
                                                 "SortReverse=0\r\n"
                                                 "SortBiasToVector=0\r\n",
                                                 &R::Defaults, &R::HoleProcessDefs_Save, &R::HoleProcessDefs_Restore,
                                                 &R::HoleProcessDefsCheckUnits};
    static inline const std::string changed = "[HoleProcessLocation]\r\n"
                                              "Units=1\r\n"
                                              "RecalcAuto=0\r\n"
                                              "SortType=1\r\n"
                                              "MajorDir=3\r\n"
                                              "StepDir=1\r\n"
                                              "Bidirectional=0\r\n"
                                              "UseBandWidth=0\r\n"
                                              "BandWidth=2.500000\r\n"
                                              "AccurateMode=1\r\n"
                                              "AccurateDir=3\r\n"
                                              "AccurateDist=3.500000\r\n"
                                              "AccurateFeedRate=4.500000\r\n"
                                              "SortReverse=1\r\n"
                                              "SortBiasToVector=1\r\n";
    static inline const FileRules rules{.ownRules = {"SortType", "MajorDir", "StepDir", "AccurateDir"},
                                        .notInDefaults = {"RecalcAuto"},
                                        .unitsSection = "HoleProcess"};
    static inline const Fields fields = {{"RecalcAuto", &R::RecalcAuto},
                                         {"SortType", &R::SortType},
                                         {"MajorDir", &R::MajorDir},
                                         {"StepDir", &R::StepDir},
                                         {"Bidirectional", &R::Bidirectional},
                                         {"UseBandWidth", &R::UseBandWidth},
                                         {"BandWidth", &R::BandWidth},
                                         {"AccurateMode", &R::AccurateMode},
                                         {"AccurateDir", &R::AccurateDir},
                                         {"AccurateDist", &R::AccurateDist},
                                         {"AccurateFeedRate", &R::AccurateFeedRate},
                                         {"SortReverse", &R::SortReverse},
                                         {"SortBiasToVector", &R::SortBiasToVector}};
    static inline const Lengths lengths = {{&R::BandWidth}, {&R::AccurateDist}, {&R::AccurateFeedRate}};

    using Surroundings = SystemTemplate;
    static constexpr int templateId = 4159;
    static constexpr wchar_t title[] = L"По умолчанию";
    static constexpr int other = kSortType;
    static R AllEditsEnabled() { return Accurate(); }
    static inline const Sample<R> sample = {kBandWidth, "BandWidth", &R::BandWidth, L"1/8+0.02",
                                            0.145,      L"0.1450",   "0.145000"};
    static inline const Reals otherReals = {{kBandWidth, &R::BandWidth, L"1.0000"},
                                            {kAccurateDistance, &R::AccurateDist, L"0.1000"},
                                            {kAccurateFeedRate, &R::AccurateFeedRate, L"10.0000"}};
    static inline const Lists lists = {{kSortType, &R::SortType, {L"Ручная", L"Расстояние", L"Ортогональная"}}};
    /// None is manual.
    static int LeftWithoutSelection(int) { return 0; }
    static inline const std::vector<std::pair<std::string, std::string>> whereMissing = {{"SortType", "0"}};
    static inline const Boxes boxes = {{kAccurateMode, &R::AccurateMode},
                                       {kUseBandWidth, &R::UseBandWidth},
                                       {kBidirectional, &R::Bidirectional, 1, 0, Marking::Nothing},
                                       {kSortReverse, &R::SortReverse, 1, 0, Marking::Nothing},
                                       {kSortBias, &R::SortBiasToVector, 1, 0, Marking::Nothing},
                                       {kRecalcAuto, &R::RecalcAuto, 1, 0, Marking::Nothing}};
    static inline const std::vector<Bound> bounds = {
        {kBandWidth, L"-0.0001", L"0", L"0.0000", kShownUnbounded},
        {kBandWidth, L"4.0e38", L"3.4028234663852886e38", L"0.0000", kShownUnbounded},
        {kAccurateDistance, L"-1", L"0", L"0.0000", kShownUnbounded},
        {kAccurateFeedRate, L"-0.0001", L"0", L"0.0000", kShownUnbounded}};
    static inline const std::vector<Refusal> refusals = {{kBandWidth, L"wide", kEnterNumber}};
    static inline const std::vector<Topic> topics = WithTopicsOfDirections({
        {0, kGeneralTopic},
        {kSortType, kOptionsTopic},
        {kTemplate, kOptionsTopic},
        {kRecalcAuto, kOptionsTopic},
        {kSortReverse, kOptionsTopic},
        {kSortBias, kOptionsTopic},
        {kBidirectional, "pelmar-_holeprocessing_hidc_hp_bidirectional.htm"},
        {kAccurateFeedRate, "pelmar-_holeprocessing_hidc_hp_accurate_feedrate.htm"},
        {kBandWidth, "pelmar-_holeprocessing_hidc_hp_bandwidth.htm"},
        {kAccurateDistance, kGeneralTopic},
        {kAccurateMode, kGeneralTopic},
        {kUseBandWidth, kGeneralTopic},
        {kChooseTemplate, kGeneralTopic},
    });
};

INSTANTIATE_TYPED_TEST_SUITE_P(HoleProcess, EveryRecord, HoleProcess);
INSTANTIATE_TYPED_TEST_SUITE_P(HoleProcess, RecordOfLengths, HoleProcess);
INSTANTIATE_TYPED_TEST_SUITE_P(HoleProcess, EveryPage, HoleProcess);
INSTANTIATE_TYPED_TEST_SUITE_P(HoleProcess, PageWithBoxes, HoleProcess);
INSTANTIATE_TYPED_TEST_SUITE_P(HoleProcess, PageWithRefusals, HoleProcess);

// ---- the record ----

class HoleRecord : public testing::Test {
protected:
    Record Restored(const std::string& lines)
    {
        host.WriteSettings("[HoleProcessLocation]\r\n" + lines);
        Record record;
        record.HoleProcessDefs_Restore();
        return record;
    }

    Record options;
    HostFolder host;
    SystemTemplate systemTemplate;
};

const std::string& kFreshFile = HoleProcess::operations.fresh;

TEST_F(HoleRecord, AFreshOneSavesItsBuiltInValuesInOrderAndNoTemplate)
{
    EXPECT_EQ("", options.StartupTemplate);
    options.HoleProcessDefs_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
    EXPECT_EQ("", SystemTemplate::Text());
}

TEST_F(HoleRecord, TheTemplateIsSavedToTheSystemWideProfileAndRestoredFromTheSettingsFile)
{
    options.StartupTemplate = "C:\\Шаблоны 1\\a.tvhpt";
    options.HoleProcessDefs_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
    EXPECT_EQ(options.StartupTemplate.GetString(), SystemTemplate::Text());
    EXPECT_EQ("", Restored("").StartupTemplate);
    EXPECT_EQ("D:\\b.tvhpt", Restored("StartupTemplate=D:\\b.tvhpt\r\n").StartupTemplate);
}

TEST_F(HoleRecord, AFileWithoutATemplateClearsIt)
{
    host.WriteSettings("[HoleProcessLocation]\r\nSortType=1\r\n");
    options.StartupTemplate = "C:\\a.tvhpt";
    options.HoleProcessDefs_Restore();
    EXPECT_EQ("", options.StartupTemplate);
    EXPECT_EQ(1, options.SortType);
}

TEST_F(HoleRecord, ATemplateIsCutOffAtTheEndOfItsBufferAndLosesTheQuotesAroundIt)
{
    const std::string longPath = "C:\\" + std::string(10000, 'x') + ".tvhpt";
    EXPECT_EQ(longPath.substr(0, 255), Restored("StartupTemplate=" + longPath + "\r\n").StartupTemplate.GetString());
    EXPECT_EQ("C:\\a b.tvhpt", Restored("StartupTemplate=\"C:\\a b.tvhpt\"\r\n").StartupTemplate);
    EXPECT_EQ("C:\\a\"b.tvhpt", Restored("StartupTemplate=C:\\a\"b.tvhpt\r\n").StartupTemplate);
    EXPECT_EQ("", Restored("StartupTemplate=   \r\n").StartupTemplate);
}

TEST_F(HoleRecord, ATemplateOfAnyLengthIsSaved)
{
    options.StartupTemplate = ("C:\\" + std::string(10000, 'x') + ".tvhpt").c_str();
    options.HoleProcessDefs_Save();
    EXPECT_EQ(options.StartupTemplate.GetString(), SystemTemplate::Text());
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(HoleRecord, ACurrentValueOutOfRangeIsSanitizedLikeAStoredOne)
{
    host.WriteSettings("[HoleProcessLocation]\r\nBandWidth=0.5\r\n");
    options.SortType = 9;
    options.MajorDir = -4;
    options.StepDir = 77;
    options.AccurateDir = 4;
    options.HoleProcessDefs_Restore();
    EXPECT_EQ(0, options.SortType);
    EXPECT_EQ(0, options.MajorDir);
    EXPECT_EQ(2, options.StepDir); // 0, and then across the major direction
    EXPECT_EQ(0, options.AccurateDir);
}

TEST_F(HoleRecord, SortTypeAndDirectionsAreSanitizedWhenRead)
{
    struct Read {
        const char* text;
        int sortType, direction;
    };
    for (const Read& read : {Read{"0", 0, 0}, Read{"1", 1, 1}, Read{"2", 2, 2}, Read{"3", 0, 3}, Read{"4", 0, 0},
                             Read{"7", 0, 0}, Read{"-1", 0, 0}, Read{"2147483648", 0, 0}, Read{"x", 0, 0}}) {
        const std::string text = std::string(read.text) + "\r\n";
        const Record record = Restored("SortType=" + text + "MajorDir=" + text + "AccurateDir=" + text);
        EXPECT_EQ(read.sortType, record.SortType) << read.text;
        EXPECT_EQ(read.direction, record.MajorDir) << read.text;
        EXPECT_EQ(read.direction, record.AccurateDir) << read.text;
        // Beside a major direction that leaves the step as it is.
        const std::string major = read.direction < 2 ? "MajorDir=2\r\n" : "MajorDir=0\r\n";
        EXPECT_EQ(read.direction, Restored(major + "StepDir=" + text).StepDir) << read.text;
    }
}

struct Directions {
    int major, step, expectedStep;
};

constexpr Directions kDirections[] = {
    {0, 0, 2}, {0, 1, 2}, {0, 2, 2}, {0, 3, 3}, {1, 0, 2}, {1, 1, 2}, {1, 2, 2}, {1, 3, 3},
    {2, 0, 0}, {2, 1, 1}, {2, 2, 0}, {2, 3, 0}, {3, 0, 0}, {3, 1, 1}, {3, 2, 0}, {3, 3, 0},
};

TEST_F(HoleRecord, TheStepIsTurnedAcrossTheMajorDirection)
{
    for (const Directions& row : kDirections) {
        options.MajorDir = row.major;
        options.StepDir = row.step;
        options.Sync();
        EXPECT_EQ(row.major, options.MajorDir);
        EXPECT_EQ(row.expectedStep, options.StepDir) << row.major << " " << row.step;
        const Record restored =
            Restored("MajorDir=" + std::to_string(row.major) + "\r\nStepDir=" + std::to_string(row.step) + "\r\n");
        EXPECT_EQ(row.expectedStep, restored.StepDir) << row.major << " " << row.step;
    }
}

TEST_F(HoleRecord, WhatIsNoDirectionTurnsNothing)
{
    for (const Directions& row : {Directions{-1, 0, 0}, Directions{4, 3, 3}, Directions{0, 4, 4}, Directions{2, -1, -1},
                                  Directions{2147483647, 1, 1}}) {
        options.MajorDir = row.major;
        options.StepDir = row.step;
        options.Sync();
        EXPECT_EQ(row.expectedStep, options.StepDir) << row.major << " " << row.step;
    }
}

TEST_F(HoleRecord, DefaultsWithoutAFileAreTheBuiltInValuesButKeepTheTemplate)
{
    options = Restored("RecalcAuto=0\r\nSortType=1\r\nMajorDir=3\r\nStepDir=1\r\nBidirectional=0\r\nUseBandWidth=0\r\n"
                       "BandWidth=9\r\nAccurateMode=1\r\nAccurateDir=3\r\nAccurateDist=9\r\nAccurateFeedRate=9\r\n"
                       "SortReverse=1\r\nSortBiasToVector=1\r\nStartupTemplate=C:\\a.tvhpt\r\n");
    options.Defaults();
    EXPECT_EQ("C:\\a.tvhpt", options.StartupTemplate);
    host.WriteSettings("");
    options.HoleProcessDefs_Save();
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(HoleRecord, DefaultsTakeEveryKeyOfTheDefaultsFileButRecalculationAndTemplate)
{
    host.WriteDefaults("[HoleProcessLocation]\r\nRecalcAuto=0\r\nStartupTemplate=D:\\b.tvhpt\r\nSortType=1\r\n"
                       "MajorDir=3\r\nStepDir=1\r\nBidirectional=0\r\nUseBandWidth=0\r\nBandWidth=2.5\r\n"
                       "AccurateMode=1\r\nAccurateDir=3\r\nAccurateDist=3.5\r\nAccurateFeedRate=4.5\r\n"
                       "SortReverse=1\r\nSortBiasToVector=1\r\n");
    options.StartupTemplate = "C:\\a.tvhpt";
    options.RecalcAuto = 0;
    options.Defaults();
    EXPECT_EQ("C:\\a.tvhpt", options.StartupTemplate);
    options.HoleProcessDefs_Save();
    EXPECT_EQ("[HoleProcessLocation]\r\n"
              "Units=0\r\n"
              "RecalcAuto=1\r\n"
              "SortType=1\r\n"
              "MajorDir=3\r\n"
              "StepDir=1\r\n"
              "Bidirectional=0\r\n"
              "UseBandWidth=0\r\n"
              "BandWidth=2.500000\r\n"
              "AccurateMode=1\r\n"
              "AccurateDir=3\r\n"
              "AccurateDist=3.500000\r\n"
              "AccurateFeedRate=4.500000\r\n"
              "SortReverse=1\r\n"
              "SortBiasToVector=1\r\n",
              host.ReadSettings());
}

TEST_F(HoleRecord, DefaultsAreSanitizedAndTurnedAsRestoredOnesAre)
{
    host.WriteDefaults("[HoleProcessLocation]\r\nSortType=7\r\nMajorDir=2\r\nStepDir=3\r\nAccurateDir=-1\r\n");
    options.Defaults();
    EXPECT_EQ(0, options.SortType);
    EXPECT_EQ(2, options.MajorDir);
    EXPECT_EQ(0, options.StepDir);
    EXPECT_EQ(0, options.AccurateDir);
    host.WriteDefaults("[HoleProcessLocation]\r\nMajorDir=2\r\n");
    options.Defaults();
    EXPECT_EQ(0, options.StepDir);
}

TEST_F(HoleRecord, TheUnitsOfTheDefaultsFileStandInASectionOfTheirOwn)
{
    // Lengths that the file lacks are the built-in ones in its units, and come back to inch with the others.
    host.WriteDefaults("[HoleProcess]\r\nUnits=1\r\nBandWidth=99\r\n[HoleProcessLocation]\r\nAccurateDist=50\r\n");
    options.Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(2.0, options.AccurateDist);
    EXPECT_EQ(1.0, options.BandWidth);
    EXPECT_EQ(10.0, options.AccurateFeedRate);

    host.WriteDefaults("[HoleProcessLocation]\r\nUnits=1\r\nAccurateDist=50\r\n");
    options.Defaults();
    EXPECT_EQ(50.0, options.AccurateDist);
}

TEST_F(HoleRecord, ADefaultsFileWithoutUnitsIsInThoseThatTheRecordHad)
{
    host.WriteDefaults("[HoleProcessLocation]\r\nAccurateDist=50\r\n");
    options.Units = 1;
    options.Defaults();
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(2.0, options.AccurateDist);
    EXPECT_EQ(1.0, options.BandWidth);
}

TEST_F(HoleRecord, ACopyHoldsEveryFieldTheTemplateIncluded)
{
    options = Restored("Units=1\r\nSortBiasToVector=1\r\nBandWidth=2.5\r\nStartupTemplate=C:\\a.tvhpt\r\n");
    const Record copy(options);
    Record assigned;
    assigned = options;
    for (const Record& same : {copy, assigned}) {
        EXPECT_EQ(1, same.Units);
        EXPECT_EQ(1, same.SortBiasToVector);
        EXPECT_EQ(2.5, same.BandWidth);
        EXPECT_EQ("C:\\a.tvhpt", same.StartupTemplate);
    }
}

// ---- the page ----

/// The number of the library's icon that a button shows; 0 for none of them.
int IconOf(HWND page, int button)
{
    const auto shown = reinterpret_cast<HANDLE>(SendMessage(ui::Control(page, button), BM_GETIMAGE, IMAGE_ICON, 0));
    for (int id = 4210; shown && id <= 4227; ++id)
        if (shown == LoadImage(GetModuleHandle(L"PelmarDlgs.dll"), MAKEINTRESOURCE(id), IMAGE_ICON, 0, 0,
                               LR_DEFAULTSIZE | LR_SHARED))
            return id;
    return 0;
}

class HolePage : public EveryPage<HoleProcess> {
protected:
    /// `chosen` is highlighted and nothing else of the row; no direction at all where it is out of range.
    static void ExpectRow(HWND shown, const int (&buttons)[4], const int (&icons)[4], const int (&chosenIcons)[4],
                          int chosen)
    {
        for (int direction = 0; direction < 4; ++direction)
            EXPECT_EQ(direction == chosen ? chosenIcons[direction] : icons[direction],
                      IconOf(shown, buttons[direction]))
                << buttons[direction];
    }
    static void ExpectMajor(HWND shown, int chosen) { ExpectRow(shown, kMajor, kAxisIcons, kAxisIconsChosen, chosen); }
    static void ExpectStep(HWND shown, int chosen) { ExpectRow(shown, kStep, kAxisIcons, kAxisIconsChosen, chosen); }
    static void ExpectAccurate(HWND shown, int chosen)
    {
        ExpectRow(shown, kAccurate, kApproachIcons, kApproachIconsChosen, chosen);
    }

    static std::vector<int> Enabled(HWND shown, const std::vector<int>& ids)
    {
        std::vector<int> enabled;
        for (const int id : ids)
            if (ui::IsEnabled(shown, id))
                enabled.push_back(id);
        return enabled;
    }
    static std::vector<int> EnabledSteps(HWND shown) { return Enabled(shown, {4286, 4287, 4284, 4285}); }
};

TEST_F(HolePage, ValuesTypedAndClickedBecomeTheLiveRecordOnOkAndReachNoFile)
{
    page = Fresh(Accurate());
    OpenSheet sheet({page.get()});
    EXPECT_EQ(L"", ui::TextOf(sheet.Page(), kTemplate));
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet.Page(), kBandWidth));
    EXPECT_EQ(L"0.1000", ui::TextOf(sheet.Page(), kAccurateDistance));
    EXPECT_EQ(L"10.0000", ui::TextOf(sheet.Page(), kAccurateFeedRate));
    ui::Type(sheet.Page(), kTemplate, L"C:\\Templates\\a b.tvhpt");
    ui::Type(sheet.Page(), kBandWidth, L"1/8+0.02");
    ui::TypeAt(ui::Control(sheet.Page(), kBandWidth), L"=");
    EXPECT_EQ(L"0.1450", ui::TextOf(sheet.Page(), kBandWidth));
    ui::Type(sheet.Page(), kAccurateDistance, L"2*0.25");
    ui::Type(sheet.Page(), kAccurateFeedRate, L"3+4");
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_EQ(1.0, GetLastHoleProcessDefsInfo()->BandWidth);
    sheet.Ok();
    EXPECT_EQ("C:\\Templates\\a b.tvhpt", GetLastHoleProcessDefsInfo()->StartupTemplate);
    EXPECT_EQ(0.145, GetLastHoleProcessDefsInfo()->BandWidth);
    EXPECT_EQ(0.5, GetLastHoleProcessDefsInfo()->AccurateDist);
    EXPECT_EQ(7.0, GetLastHoleProcessDefsInfo()->AccurateFeedRate);
    EXPECT_EQ("", host.ReadSettings());
    EXPECT_EQ(SystemTemplate::kAbsent, SystemTemplate::Text());
    GetLastHoleProcessDefsInfo()->HoleProcessDefs_Save();
    EXPECT_EQ("0.145000", Value(host.settings, kSection, "BandWidth"));
    EXPECT_EQ("C:\\Templates\\a b.tvhpt", SystemTemplate::Text());
}

TEST_F(HolePage, APageThatIsNotFilledShowsTheLiveRecordOfItsConstruction)
{
    GetLastHoleProcessDefsInfo()->BandWidth = 4.0;
    GetLastHoleProcessDefsInfo()->StartupTemplate = "C:\\a.tvhpt";
    DefsHoleProcessPage fresh;
    GetLastHoleProcessDefsInfo()->BandWidth = 5.0;
    OpenSheet sheet({&fresh});
    EXPECT_EQ(L"4.0000", ui::TextOf(sheet.Page(), kBandWidth));
    EXPECT_EQ(L"C:\\a.tvhpt", ui::TextOf(sheet.Page(), kTemplate));
}

TEST_F(HolePage, EveryItemOfTheSortListIsItsSortTypeAndNoneIsManual)
{
    for (const int item : {0, 1, 2, -1}) {
        page = Fresh();
        OpenSheet sheet({page.get()});
        ui::Choose(sheet.Page(), kSortType, item);
        EXPECT_TRUE(sheet.IsModified()) << item;
        sheet.Ok();
        EXPECT_EQ(item == -1 ? 0 : item, GetLastHoleProcessDefsInfo()->SortType) << item;
    }
}

// ---- directions ----

TEST_F(HolePage, EveryDirectionIsHighlightedOnItsOwnButton)
{
    for (int direction = 0; direction < 4; ++direction) {
        Record record;
        record.MajorDir = direction;
        record.StepDir = direction;
        record.AccurateDir = direction;
        page = Fresh(record);
        OpenSheet sheet({page.get()});
        ExpectMajor(sheet.Page(), direction);
        ExpectStep(sheet.Page(), direction);
        ExpectAccurate(sheet.Page(), direction);
    }
}

TEST_F(HolePage, ValuesOutOfRangeHighlightNothingAndCanBeReplaced)
{
    for (const int odd : {-1, 4, 99, 2147483647}) {
        Record record = Accurate();
        record.MajorDir = record.StepDir = record.AccurateDir = record.SortType = odd;
        page = Fresh(record);
        OpenSheet sheet({page.get()});
        EXPECT_EQ(-1, ui::Selection(sheet.Page(), kSortType));
        ExpectMajor(sheet.Page(), -1);
        ExpectStep(sheet.Page(), -1);
        ExpectAccurate(sheet.Page(), -1);
        EXPECT_EQ(4u, EnabledSteps(sheet.Page()).size());
        EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kBidirectional));
        ui::Click(sheet.Page(), kStep[1]);
        ui::Click(sheet.Page(), kAccurate[3]);
        ui::Click(sheet.Page(), kMajor[0]);
        ExpectMajor(sheet.Page(), 0);
        ExpectStep(sheet.Page(), 2); // it would have lain along the major direction
        ExpectAccurate(sheet.Page(), 3);
        sheet.Ok();
        EXPECT_EQ(odd, GetLastHoleProcessDefsInfo()->SortType);
    }
}

TEST_F(HolePage, AButtonStoresItsDirectionMovesTheHighlightAndMarksThePageModified)
{
    for (int direction = 0; direction < 4; ++direction) {
        Record record = Accurate();
        record.MajorDir = direction ^ 1;
        record.StepDir = direction ^ 1;
        record.AccurateDir = direction ^ 1;
        for (const int button : {kMajor[direction], kStep[direction], kAccurate[direction]}) {
            page = Fresh(record);
            OpenSheet sheet({page.get()});
            EXPECT_FALSE(sheet.IsModified());
            ui::Click(sheet.Page(), button);
            EXPECT_TRUE(sheet.IsModified()) << button;
            ExpectMajor(sheet.Page(), button == kMajor[direction] ? direction : direction ^ 1);
            ExpectStep(sheet.Page(), button == kStep[direction] ? direction : direction ^ 1);
            ExpectAccurate(sheet.Page(), button == kAccurate[direction] ? direction : direction ^ 1);
            sheet.Ok();
            const Record& live = *GetLastHoleProcessDefsInfo();
            EXPECT_EQ(button == kMajor[direction] ? direction : direction ^ 1, live.MajorDir) << button;
            EXPECT_EQ(button == kStep[direction] ? direction : direction ^ 1, live.StepDir) << button;
            EXPECT_EQ(button == kAccurate[direction] ? direction : direction ^ 1, live.AccurateDir) << button;
        }
    }
}

TEST_F(HolePage, ThePressedButtonCanBePressedAgain)
{
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kMajor[0]);
    ExpectMajor(sheet.Page(), 0);
    ExpectStep(sheet.Page(), 2);
    EXPECT_TRUE(sheet.IsModified());
}

TEST_F(HolePage, AMajorDirectionWithinTheAxisLeavesTheStepAndAcrossTurnsIt)
{
    OpenSheet sheet({page.get()});
    EXPECT_EQ((std::vector<int>{4284, 4285}), EnabledSteps(sheet.Page()));
    ui::Click(sheet.Page(), kStep[3]);
    ui::Click(sheet.Page(), kMajor[1]);
    ExpectStep(sheet.Page(), 3);
    EXPECT_EQ((std::vector<int>{4284, 4285}), EnabledSteps(sheet.Page()));
    ui::Click(sheet.Page(), kMajor[2]);
    ExpectMajor(sheet.Page(), 2);
    ExpectStep(sheet.Page(), 0);
    EXPECT_EQ((std::vector<int>{4286, 4287}), EnabledSteps(sheet.Page()));
    ui::Click(sheet.Page(), kStep[1]);
    ui::Click(sheet.Page(), kMajor[3]);
    ExpectStep(sheet.Page(), 1);
    ui::Click(sheet.Page(), kMajor[0]);
    ExpectStep(sheet.Page(), 2);
    EXPECT_EQ((std::vector<int>{4284, 4285}), EnabledSteps(sheet.Page()));
    sheet.Ok();
    EXPECT_EQ(0, GetLastHoleProcessDefsInfo()->MajorDir);
    EXPECT_EQ(2, GetLastHoleProcessDefsInfo()->StepDir);
}

TEST_F(HolePage, AStepThatAlreadyLiesAcrossTheNewMajorDirectionStays)
{
    Record record;
    record.StepDir = 1;
    page = Fresh(record);
    OpenSheet sheet({page.get()});
    ui::Click(sheet.Page(), kMajor[2]);
    ExpectStep(sheet.Page(), 1);
}

// ---- what can be set ----

TEST_F(HolePage, TheSortTypeDecidesWhatCanBeSet)
{
    const std::vector<int> directions = {4280, 4281, 4282, 4283, 4286, 4287, 4284, 4285};
    struct Sort {
        int type;
        bool zigzag;
        std::vector<int> directions;
        bool bands;
    };
    const std::vector<int> acrossRight = {4280, 4281, 4282, 4283, 4284, 4285};
    for (const Sort& sort : {Sort{0, false, {}, false}, Sort{1, false, acrossRight, false},
                             Sort{2, true, acrossRight, true}, Sort{9, true, acrossRight, true}}) {
        Record record;
        record.SortType = sort.type;
        page = Fresh(record);
        OpenSheet sheet({page.get()});
        EXPECT_EQ(sort.zigzag, ui::IsEnabled(sheet.Page(), kBidirectional)) << sort.type;
        EXPECT_EQ(sort.directions, Enabled(sheet.Page(), directions)) << sort.type;
        EXPECT_EQ(sort.bands, ui::IsEnabled(sheet.Page(), kUseBandWidth)) << sort.type;
        EXPECT_EQ(sort.bands, ui::IsEnabled(sheet.Page(), kBandWidth)) << sort.type;
        EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSortReverse)) << sort.type;
        EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kSortBias)) << sort.type;
    }
}

TEST_F(HolePage, AChosenSortTypeDisablesNothingBeforeTheNextActivation)
{
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    const std::vector<int> followers = {kBidirectional, kUseBandWidth, kBandWidth, 4280, 4281, 4282, 4283, 4284, 4285};
    ui::Choose(sheet.Page(), kSortType, 0);
    EXPECT_EQ(followers, Enabled(sheet.Page(), followers));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(std::vector<int>{}, Enabled(sheet.Page(), followers));
    EXPECT_EQ(0, ui::Selection(sheet.Page(), kSortType));
    ui::Choose(sheet.Page(), kSortType, 2);
    EXPECT_EQ(std::vector<int>{}, Enabled(sheet.Page(), followers));
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(followers, Enabled(sheet.Page(), followers));
}

TEST_F(HolePage, ReverseThatTheHostDisabledIsEnabledByTheOrthogonalSortOnly)
{
    SiblingSpy other;
    page = Fresh(Manual());
    OpenSheet sheet({page.get(), &other});
    ui::UiThread::Get().Call([&] { EnableWindow(ui::Control(sheet.Page(), kSortReverse), FALSE); });
    for (const int sort : {0, 1, 2}) {
        ui::Choose(sheet.Page(), kSortType, sort);
        sheet.Switch(1);
        sheet.Switch(0);
        EXPECT_EQ(sort == 2, ui::IsEnabled(sheet.Page(), kSortReverse)) << sort;
    }
}

TEST_F(HolePage, TheAccurateModeDecidesWhetherItsApproachCanBeSet)
{
    const std::vector<int> approach = {kAccurateDistance, kAccurateFeedRate, 4289, 4332, 4333, 4334};
    OpenSheet sheet({page.get()});
    EXPECT_EQ(std::vector<int>{}, Enabled(sheet.Page(), approach));
    ui::Click(sheet.Page(), kAccurateMode);
    EXPECT_EQ(approach, Enabled(sheet.Page(), approach));
    ui::Click(sheet.Page(), kAccurateMode);
    EXPECT_EQ(std::vector<int>{}, Enabled(sheet.Page(), approach));
}

TEST_F(HolePage, TheBandWidthCanBeSetOnlyWhereItIsUsed)
{
    OpenSheet sheet({page.get()});
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kBandWidth));
    ui::Click(sheet.Page(), kUseBandWidth);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kUseBandWidth));
    EXPECT_FALSE(ui::IsEnabled(sheet.Page(), kBandWidth));
    ui::Click(sheet.Page(), kUseBandWidth);
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kBandWidth));
}

TEST_F(HolePage, FlagsThatAreNeitherYesNorNoEnableAndDisableNothing)
{
    Record record = Accurate();
    record.AccurateMode = 7;
    record.UseBandWidth = -3;
    page = Fresh(record);
    OpenSheet sheet({page.get()});
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kAccurateDistance));
    EXPECT_TRUE(ui::IsEnabled(sheet.Page(), kBandWidth));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kAccurateMode));
    EXPECT_FALSE(ui::IsChecked(sheet.Page(), kUseBandWidth));
}

// ---- units, defaults, siblings ----

TEST_F(HolePage, TheHostsDefaultsMessageResetsTheDataButShowsNothing)
{
    Record record;
    record.SortType = 1;
    record.MajorDir = 3;
    record.StepDir = 1;
    record.BandWidth = 5.0;
    page = Fresh(record);
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    EXPECT_EQ(0, SendMessage(sheet.Page(), 3072, 5, 6));
    EXPECT_EQ(1, ui::Selection(sheet.Page(), kSortType));
    ExpectMajor(sheet.Page(), 3);
    EXPECT_EQ(L"5.0000", ui::TextOf(sheet.Page(), kBandWidth));
    EXPECT_FALSE(sheet.IsModified());
    EXPECT_TRUE(spy.notices.empty());
    EXPECT_EQ(1, GetLastHoleProcessDefsInfo()->SortType);

    // The host that wants them seen activates the page again.
    ui::UiThread::Get().Call([this] { page->OnSetActive(); });
    EXPECT_EQ(2, ui::Selection(sheet.Page(), kSortType));
    ExpectMajor(sheet.Page(), 0);
    ExpectStep(sheet.Page(), 2);
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet.Page(), kBandWidth));
    EXPECT_EQ((std::vector<int>{4284, 4285}), EnabledSteps(sheet.Page()));
    sheet.Ok();
    EXPECT_EQ(2, GetLastHoleProcessDefsInfo()->SortType);
    EXPECT_EQ(1.0, GetLastHoleProcessDefsInfo()->BandWidth);
}

TEST_F(HolePage, WhatTheControlsShowWinsOverDefaultsThatWereNeverShown)
{
    Record record;
    record.SortType = 1;
    record.BandWidth = 5.0;
    page = Fresh(record);
    OpenSheet sheet({page.get()});
    SendMessage(sheet.Page(), 3072, 0, 0);
    sheet.Ok();
    EXPECT_EQ(2, GetLastHoleProcessDefsInfo()->SortType);
    EXPECT_EQ(5.0, GetLastHoleProcessDefsInfo()->BandWidth);
}

TEST_F(HolePage, ItTellsTheOtherPagesNothing)
{
    SiblingSpy spy;
    OpenSheet sheet({page.get(), &spy});
    for (const int button : {kAccurateMode, kUseBandWidth, kMajor[2], kStep[1], kAccurate[0], kBidirectional})
        ui::Click(sheet.Page(), button);
    ui::Choose(sheet.Page(), kSortType, 1);
    ui::Type(sheet.Page(), kAccurateDistance, L"4");
    ui::FocusOn(sheet.Page(), kSortType);
    EXPECT_TRUE(spy.notices.empty());
}

TEST_F(HolePage, WhereControlsAreMissingTheOthersWork)
{
    OpenSheet sheet({page.get()});
    ui::UiThread::Get().Call([&] {
        for (const int id : {kTemplate, kSortType, kBandWidth, kUseBandWidth, kMajor[0], kStep[0], kAccurate[2]})
            DestroyWindow(ui::Control(sheet.Page(), id));
    });
    ui::Click(sheet.Page(), kMajor[2]);
    ui::Click(sheet.Page(), kAccurateMode);
    ui::Click(sheet.Page(), kAccurate[1]);
    SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(kUseBandWidth, BN_CLICKED), 0);
    SendMessage(sheet.Page(), 3072, 0, 0);
    sheet.Ok();
    EXPECT_EQ(1, GetLastHoleProcessDefsInfo()->UseBandWidth);
    EXPECT_EQ(1.0, GetLastHoleProcessDefsInfo()->BandWidth);
}

// ---- choosing a template ----

// The system's file dialog, as it numbers its controls.
constexpr int kFileNames = 0x47C;
constexpr int kFileFilter = 0x470;
constexpr int kOpenReadOnly = 0x410;

/// Two folders: templates that the host's settings name, and another one. The dialog opens from the page.
class HoleTemplate : public HolePage {
protected:
    HoleTemplate()
    {
        templates = host.folder + "\\Templates";
        elsewhere = host.folder + "\\Elsewhere";
        for (const std::string& folder : {templates, elsewhere}) {
            fs::create_directories(folder);
            WriteWholeFile(folder + "\\one.tvhpt", "1");
            WriteWholeFile(folder + "\\two.tvhpt", "2");
            WriteWholeFile(folder + "\\notes.txt", "3");
        }
        WritePrivateProfileStringA("DefaultPath", "HoleProcessTemplates", templates.c_str(), host.hostSettings.c_str());
    }

    /// A page with this template, shown.
    void Show(const std::string& startupTemplate)
    {
        Record record;
        record.StartupTemplate = startupTemplate.c_str();
        sheet.reset(); // the page of an earlier one lives as long as it
        page = Fresh(record);
        sheet = std::make_unique<OpenSheet>(std::vector<CPropertyPage*>{page.get()});
    }

    HWND OpenDialog()
    {
        ui::Click(sheet->Page(), kChooseTemplate);
        HWND dialog = nullptr;
        ui::WaitUntil([&] {
            for (const HWND window : ui::TopLevelWindows())
                if (GetDlgItem(window, kFileNames) && GetDlgItem(window, kFileFilter))
                    dialog = window;
            return dialog != nullptr;
        });
        if (!dialog)
            throw std::runtime_error("no file dialog came");
        ui::Settle(dialog);
        return dialog;
    }

    /// The edit in the list of file names.
    static HWND NameEdit(HWND dialog)
    {
        const HWND list = FindWindowEx(ui::Control(dialog, kFileNames), nullptr, L"ComboBox", nullptr);
        return FindWindowEx(list, nullptr, L"Edit", nullptr);
    }

    /// Names the file and presses the dialog's Open button.
    static void Name(HWND dialog, const std::wstring& name)
    {
        SendMessage(NameEdit(dialog), EM_SETSEL, 0, -1);
        ui::TypeAt(NameEdit(dialog), name);
        PostMessage(ui::Control(dialog, IDOK), BM_CLICK, 0, 0);
        ui::Settle(dialog);
    }
    void Choose(HWND dialog, const std::wstring& name)
    {
        Name(dialog, name);
        ASSERT_TRUE(ui::WaitForClose(dialog));
        ui::Settle(sheet->window);
    }
    void Cancel(HWND dialog)
    {
        PostMessage(ui::Control(dialog, IDCANCEL), BM_CLICK, 0, 0);
        ASSERT_TRUE(ui::WaitForClose(dialog));
        ui::Settle(sheet->window);
    }

    std::wstring ShownTemplate() { return ui::TextOf(sheet->Page(), kTemplate); }
    static std::wstring Wide(const std::string& text) { return CString(text.c_str()).GetString(); }

    std::string templates;
    std::string elsewhere;
    std::unique_ptr<OpenSheet> sheet;
};

TEST_F(HoleTemplate, TheChosenFileBecomesTheTemplateWithItsFullPath)
{
    Show("");
    const HWND dialog = OpenDialog();
    EXPECT_EQ(L"", ui::TextOf(NameEdit(dialog)));
    EXPECT_EQ((std::vector<std::wstring>{L"Hole Process Template Files (*.tvhpt)", L"All (*.*)"}),
              ui::Items(dialog, kFileFilter));
    EXPECT_FALSE(ui::IsShown(dialog, kOpenReadOnly));
    EXPECT_EQ(sheet->window, GetWindow(dialog, GW_OWNER));
    Choose(dialog, L"two.tvhpt");
    EXPECT_EQ(Wide(templates + "\\two.tvhpt"), ShownTemplate());
    EXPECT_TRUE(sheet->IsModified());
    EXPECT_EQ("", GetLastHoleProcessDefsInfo()->StartupTemplate);
    sheet->Ok();
    EXPECT_EQ(templates + "\\two.tvhpt", GetLastHoleProcessDefsInfo()->StartupTemplate.GetString());
}

TEST_F(HoleTemplate, ItStartsFromTheCurrentTemplate)
{
    Show(elsewhere + "\\one.tvhpt");
    const HWND dialog = OpenDialog();
    EXPECT_EQ(L"one.tvhpt", ui::TextOf(NameEdit(dialog)));
    Choose(dialog, L"two.tvhpt");
    EXPECT_EQ(Wide(elsewhere + "\\two.tvhpt"), ShownTemplate());
}

TEST_F(HoleTemplate, CancelChangesNothing)
{
    Show(elsewhere + "\\one.tvhpt");
    Cancel(OpenDialog());
    EXPECT_EQ(Wide(elsewhere + "\\one.tvhpt"), ShownTemplate());
    EXPECT_FALSE(sheet->IsModified());
}

TEST_F(HoleTemplate, AFileThatDoesNotExistIsRefused)
{
    Show("");
    const HWND dialog = OpenDialog();
    Name(dialog, L"three.tvhpt");
    const ui::MessageBoxSeen box = ui::WaitForBox();
    PostMessage(ui::Control(box.window, box.buttons.front()), BM_CLICK, 0, 0);
    ASSERT_TRUE(ui::WaitForClose(box.window));
    ASSERT_TRUE(IsWindow(dialog));
    Cancel(dialog);
    EXPECT_EQ(L"", ShownTemplate());
}

TEST_F(HoleTemplate, WhatWasTypedAndNotYetTakenIsShownAsItWasAfterAChoice)
{
    Show("");
    ui::Type(sheet->Page(), kBandWidth, L"7");
    ui::Click(sheet->Page(), kBidirectional);
    Choose(OpenDialog(), L"two.tvhpt");
    EXPECT_EQ(L"1.0000", ui::TextOf(sheet->Page(), kBandWidth));
    EXPECT_TRUE(ui::IsChecked(sheet->Page(), kBidirectional));
}

TEST_F(HoleTemplate, TheCurrentFolderStaysThatRelativeSettingsPathsKeepTheirMeaning)
{
    const fs::path before = fs::current_path();
    Show("");
    Choose(OpenDialog(), Wide(elsewhere + "\\one.tvhpt"));
    EXPECT_EQ(before, fs::current_path());
    Cancel(OpenDialog());
    EXPECT_EQ(before, fs::current_path());
}

TEST_F(HoleTemplate, ATemplateThatIsNoPathDoesNotKeepTheDialogFromOpening)
{
    for (const std::string& odd :
         {"\"" + elsewhere + "\\one.tvhpt\"", std::string("C:\\a\"b.tvhpt"), std::string("?*<>|"),
          "C:\\" + std::string(400, 'x') + ".tvhpt", std::string(10000, 'x'), std::string(40000, 'x'),
          std::string("C:\\no such folder\\one.tvhpt"), std::string("C:\\"), std::string("\x01\x02")}) {
        Show(odd);
        const HWND dialog = OpenDialog();
        Choose(dialog, Wide(templates + "\\two.tvhpt"));
        EXPECT_EQ(Wide(templates + "\\two.tvhpt"), ShownTemplate()) << odd.substr(0, 40);
    }
}

TEST_F(HoleTemplate, AFolderThatIsNoneDoesNotKeepTheDialogFromOpening)
{
    for (const std::string& odd :
         {std::string(), std::string(10000, 'x'), std::string("?*<>|"), std::string("C:\\no such folder")}) {
        WritePrivateProfileStringA("DefaultPath", "HoleProcessTemplates", odd.c_str(), host.hostSettings.c_str());
        Show("");
        Choose(OpenDialog(), Wide(templates + "\\two.tvhpt"));
        EXPECT_EQ(Wide(templates + "\\two.tvhpt"), ShownTemplate()) << odd.substr(0, 40);
    }
}

} // namespace
