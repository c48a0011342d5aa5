#include <filesystem>

#include "pages/page_checks.h"
#include "resources/resource.h"

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

constexpr char kFreshFile[] = "[HoleProcessLocation]\r\n"
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
                              "SortBiasToVector=0\r\n";

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
    EXPECT_EQ(options.StartupTemplate, SystemTemplate::Text());
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
    EXPECT_EQ(longPath.substr(0, 255), Restored("StartupTemplate=" + longPath + "\r\n").StartupTemplate);
    EXPECT_EQ("C:\\a b.tvhpt", Restored("StartupTemplate=\"C:\\a b.tvhpt\"\r\n").StartupTemplate);
    EXPECT_EQ("C:\\a\"b.tvhpt", Restored("StartupTemplate=C:\\a\"b.tvhpt\r\n").StartupTemplate);
    EXPECT_EQ("", Restored("StartupTemplate=   \r\n").StartupTemplate);
}

TEST_F(HoleRecord, ATemplateOfAnyLengthIsSaved)
{
    options.StartupTemplate = "C:\\" + std::string(10000, 'x') + ".tvhpt";
    options.HoleProcessDefs_Save();
    EXPECT_EQ(options.StartupTemplate, SystemTemplate::Text());
    EXPECT_EQ(kFreshFile, host.ReadSettings());
}

TEST_F(HoleRecord, RestoresEveryKey)
{
    const std::string file = "[HoleProcessLocation]\r\n"
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
    host.WriteSettings(file);
    options.HoleProcessDefs_Restore();
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(0, options.RecalcAuto);
    EXPECT_EQ(1, options.SortType);
    EXPECT_EQ(3, options.MajorDir);
    EXPECT_EQ(1, options.StepDir);
    EXPECT_EQ(0, options.Bidirectional);
    EXPECT_EQ(0, options.UseBandWidth);
    EXPECT_EQ(2.5, options.BandWidth);
    EXPECT_EQ(1, options.AccurateMode);
    EXPECT_EQ(3, options.AccurateDir);
    EXPECT_EQ(3.5, options.AccurateDist);
    EXPECT_EQ(4.5, options.AccurateFeedRate);
    EXPECT_EQ(1, options.SortReverse);
    EXPECT_EQ(1, options.SortBiasToVector);
    host.WriteSettings("");
    options.HoleProcessDefs_Save();
    EXPECT_EQ(file, host.ReadSettings());
}

TEST_F(HoleRecord, AnAbsentKeyStaysAsItWas)
{
    host.WriteSettings("[HoleProcessLocation]\r\nBandWidth=0.5\r\n");
    options.SortType = 1;
    options.AccurateDist = 7.25;
    options.HoleProcessDefs_Restore();
    EXPECT_EQ(0.5, options.BandWidth);
    EXPECT_EQ(1, options.SortType);
    EXPECT_EQ(7.25, options.AccurateDist);
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

TEST_F(HoleRecord, ConvertingScalesItsThreeLengthsThereAndBackExactly)
{
    options.HoleProcessDefsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(25.0, options.BandWidth);
    EXPECT_EQ(2.5, options.AccurateDist);
    EXPECT_EQ(250.0, options.AccurateFeedRate);
    options.HoleProcessDefsCheckUnits(0);
    EXPECT_EQ(0, options.Units);
    EXPECT_EQ(1.0, options.BandWidth);
    EXPECT_EQ(0.1, options.AccurateDist);
    EXPECT_EQ(10.0, options.AccurateFeedRate);
}

TEST_F(HoleRecord, ConvertingToItsOwnUnitsChangesNothingAndFromAnOddCodeCountsAsMillimetre)
{
    options.HoleProcessDefsCheckUnits(0);
    EXPECT_EQ(1.0, options.BandWidth);
    options.Units = 7;
    options.HoleProcessDefsCheckUnits(1);
    EXPECT_EQ(1, options.Units);
    EXPECT_EQ(0.04, options.BandWidth);
}

TEST_F(HoleRecord, RestoringAMetricFileScalesNothing)
{
    const Record record = Restored("Units=1\r\nBandWidth=2.5\r\n");
    EXPECT_EQ(1, record.Units);
    EXPECT_EQ(2.5, record.BandWidth);
    EXPECT_EQ(10.0, record.AccurateFeedRate);
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

TEST_F(HoleRecord, RealsThatAreNoNumbersKeepTheirValue)
{
    CheckHostileReals(host, kFreshFile, &Record::HoleProcessDefs_Restore, &Record::HoleProcessDefs_Save);
}

TEST_F(HoleRecord, OtherWholeNumbersAreTakenAsThePlatformReadsThem)
{
    CheckWholeNumbers(host, kFreshFile, &Record::HoleProcessDefs_Restore, &Record::HoleProcessDefs_Save,
                      {"SortType", "MajorDir", "StepDir", "AccurateDir"});
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

TEST_F(HoleRecord, TheLiveInstanceIsAlwaysTheSame)
{
    EXPECT_NE(nullptr, GetLastHoleProcessDefsInfo());
    EXPECT_EQ(GetLastHoleProcessDefsInfo(), GetLastHoleProcessDefsInfo());
}

} // namespace
