// What every record does with its files and units, and what single ones do otherwise.
#include <gtest/gtest.h>

#include "description/description.h"
#include "records/memory_settings.h"

#include "PelmarDlgs/records/chamfer_mill.h"
#include "PelmarDlgs/records/face_mill.h"
#include "PelmarDlgs/records/flat_surface.h"
#include "PelmarDlgs/records/groove_mill.h"
#include "PelmarDlgs/records/hole_process.h"
#include "PelmarDlgs/records/lathe.h"
#include "PelmarDlgs/records/milling_2axis.h"
#include "PelmarDlgs/records/milling_3axis.h"
#include "PelmarDlgs/records/milling_4axis.h"
#include "PelmarDlgs/records/milling_5axis.h"
#include "PelmarDlgs/records/round_mill.h"
#include "PelmarDlgs/records/setup_sheet.h"
#include "PelmarDlgs/records/slot_mill.h"
#include "PelmarDlgs/records/wire_edm.h"
#include "PelmarDlgs/records/z_finish.h"
#include "PelmarDlgs/records/z_rough.h"
#include "PelmarDlgs/settings_values.h"

using namespace pelmar;

namespace {

/// A record through the names that hosts call.
template <class R, void (R::*TakeDefaults)(), void (R::*SaveIt)(), void (R::*RestoreIt)(), void (R::*ConvertIt)(long)>
struct Operations {
    using Record = R;
    static void Defaults(R& record) { (record.*TakeDefaults)(); }
    static void Save(R& record) { (record.*SaveIt)(); }
    static void Restore(R& record) { (record.*RestoreIt)(); }
    static void Convert(R& record, long units) { (record.*ConvertIt)(units); }
};

#define USUAL(Record, Convert)                                                                                         \
    Operations<Record, &Record::vOptions_Defaults, &Record::vOptions_Save, &Record::vOptions_Restore, &Record::Convert>
#define MILL(Record, Name)                                                                                             \
    Operations<Record, &Record::Defaults, &Record::v##Name##_Save, &Record::v##Name##_Restore,                         \
               &Record::Name##CheckUnits>

using AllRecords = testing::Types<
    USUAL(C2AxisOptionsInfo, v2xOptionsCheckUnits), USUAL(C3AxisOptionsInfo, v3xOptionsCheckUnits),
    USUAL(C4AxisOptionsInfo, v4xOptionsCheckUnits), USUAL(C5AxisOptionsInfo, v5xOptionsCheckUnits),
    USUAL(CEDMOptionsInfo, vEDMOptionsCheckUnits), USUAL(CFlatSurfaceOptionsInfo, vFlatSurfaceOptionsCheckUnits),
    USUAL(CLatheOptionsInfo, vLatheOptionsCheckUnits), USUAL(CSSheetOptionsInfo, vOptions_CheckUnits),
    Operations<CZRoughOptionsInfo, &CZRoughOptionsInfo::vOptions_Default, &CZRoughOptionsInfo::vOptions_Save,
               &CZRoughOptionsInfo::vOptions_Restore, &CZRoughOptionsInfo::vZRoughOptionsCheckUnits>,
    Operations<CZFinishOptionsInfo, &CZFinishOptionsInfo::Defaults, &CZFinishOptionsInfo::vOptions_Save,
               &CZFinishOptionsInfo::vOptions_Restore, &CZFinishOptionsInfo::vZFinishOptionsCheckUnits>,
    MILL(CFaceMillDefsInfo, FaceMillDefs), MILL(CChamferMillDefsInfo, ChamferMillDefs),
    MILL(CRoundMillDefsInfo, RoundMillDefs), MILL(CGrooveMillDefsInfo, GrooveMillDefs),
    MILL(CSlotMillDefsInfo, SlotMillDefs),
    Operations<HoleProcessDefsInfo, &HoleProcessDefsInfo::Defaults, &HoleProcessDefsInfo::HoleProcessDefs_Save,
               &HoleProcessDefsInfo::HoleProcessDefs_Restore, &HoleProcessDefsInfo::HoleProcessDefsCheckUnits>>;

template <class Operations> class EveryRecord : public testing::Test {
protected:
    using Record = typename Operations::Record;

    EveryRecord() { Settings() = {}; }

    /// What the tables say of the record, by its rows' mark.
    static const RecordDescription& Description()
    {
        for (const RecordDescription& record : DescribeRecords())
            if (record.table.Options().front().record == &kRecordMark<Record>)
                return record;
        throw std::logic_error("no such record");
    }

    static std::vector<std::array<std::string, 3>> Saved(Record record)
    {
        Settings().settings = {};
        Operations::Save(record);
        return Settings().settings.lines;
    }
};
TYPED_TEST_SUITE(EveryRecord, AllRecords);

TYPED_TEST(EveryRecord, SavesItsKeysInTheOrderOfItsRows)
{
    std::vector<std::string> keys;
    for (const Option& option : this->Description().table.Options())
        if (option.key)
            keys.push_back(option.key);
    std::vector<std::string> saved;
    for (const auto& [section, key, text] : this->Saved({})) {
        EXPECT_EQ(this->Description().table.Section(), section);
        saved.push_back(key);
    }
    EXPECT_EQ(keys, saved);
}

TYPED_TEST(EveryRecord, RestoresWhatItHasSaved)
{
    // Numbers that every rule of a record lets pass, and that single precision holds.
    typename TestFixture::Record changed;
    for (const Option& option : this->Description().table.Options()) {
        if (option.real)
            option.real(&changed) = 40.25;
        else
            option.whole(&changed) = 1;
    }
    this->Saved(changed);
    // Round milling reads its side clearance where 2-axis milling keeps one.
    Settings().settings.Put("Options2x", "SideClearance", "40.25");
    Settings().settings.Put("Options2x", "SideClearanceType", "1");
    typename TestFixture::Record restored;
    TypeParam::Restore(restored);
    for (const Option& option : this->Description().table.Options())
        if (option.key && std::string_view(option.key) != "StepDir") {
            EXPECT_EQ(option.Value(&changed), option.Value(&restored)) << option.key;
        }
}

TYPED_TEST(EveryRecord, KeepsWhatIsAbsent)
{
    typename TestFixture::Record record;
    const auto before = this->Saved(record);
    Settings().settings = {};
    TypeParam::Restore(record);
    EXPECT_EQ(before, this->Saved(record));
}

TYPED_TEST(EveryRecord, TakesItsBuiltInValuesWhereTheDefaultsFileIsEmpty)
{
    typename TestFixture::Record record;
    const auto fresh = this->Saved(record);
    TypeParam::Defaults(record);
    auto expected = fresh;
    for (auto& [section, key, text] : expected)
        if (section == "Options2x" && key == "DispPlungeChanges")
            text = "1"; // restored defaults report plunge changes
    EXPECT_EQ(expected, this->Saved(record));
}

TYPED_TEST(EveryRecord, ConvertsThereAndBackToTheSameNumbers)
{
    typename TestFixture::Record record;
    for (const Option& option : this->Description().table.Options())
        if (option.scaling == Scaling::WhileConstant)
            option.lengthType(&record) = 0;
    const typename TestFixture::Record before = record;
    TypeParam::Convert(record, kMillimetre);
    for (const Option& option : this->Description().table.Options())
        if (option.real) {
            EXPECT_EQ(option.Real(&before) * (option.scaling == Scaling::Never ? 1.0 : 25.0), option.Real(&record))
                << option.label;
        }
    TypeParam::Convert(record, kInch);
    for (const Option& option : this->Description().table.Options())
        EXPECT_EQ(option.Value(&before), option.Value(&record)) << option.label;
}

TYPED_TEST(EveryRecord, LeavesMultiplesOfTheToolRadiusAlone)
{
    typename TestFixture::Record record;
    for (const Option& option : this->Description().table.Options())
        if (option.scaling == Scaling::WhileConstant) {
            option.lengthType(&record) = 1;
            option.real(&record) = 0.8;
        }
    TypeParam::Convert(record, kMillimetre);
    for (const Option& option : this->Description().table.Options())
        if (option.scaling == Scaling::WhileConstant) {
            EXPECT_EQ(0.8, option.Real(&record)) << option.label;
        }
}

// ---- single ones ----

TEST(HoleRecord, TurnsTheStepAcrossTheMajorDirection)
{
    const int expected[4][4] = {{2, 2, 2, 3}, {2, 2, 2, 3}, {0, 1, 0, 0}, {0, 1, 0, 0}};
    for (int major = 0; major < 4; ++major)
        for (int step = 0; step < 4; ++step) {
            HoleProcessDefsInfo record;
            record.MajorDir = major;
            record.StepDir = step;
            record.Sync();
            EXPECT_EQ(expected[major][step], record.StepDir) << major << ' ' << step;
        }
}

TEST(HoleRecord, LeavesTheStepOfADirectionThatIsNone)
{
    for (const int major : {-1, 4}) {
        HoleProcessDefsInfo record;
        record.MajorDir = major;
        record.StepDir = 1;
        record.Sync();
        EXPECT_EQ(1, record.StepDir);
    }
}

TEST(HoleRecord, SavesItsTemplateInTheSystemWideProfileAndReadsTheOneOfTheSettings)
{
    Settings() = {};
    HoleProcessDefsInfo record;
    record.StartupTemplate = "C:\\a.tvhpt";
    record.HoleProcessDefs_Save();
    EXPECT_EQ(nullptr, Settings().settings.Find("HoleProcessLocation", "StartupTemplate"));
    EXPECT_EQ("C:\\a.tvhpt", *Settings().system.Find("HoleProcessLocation", "StartupTemplate"));
    Settings().settings.Put("HoleProcessLocation", "StartupTemplate", std::string(300, 'x'));
    record.HoleProcessDefs_Restore();
    EXPECT_EQ(std::string(255, 'x'), record.StartupTemplate.GetString());
}

TEST(FaceMillRecord, TakesTheUnitsOfTheRecordForADefaultsFileWithoutAny)
{
    Settings() = {};
    Settings().defaults.Put("FaceMill2x", "DefRemoveZ", "5");
    CFaceMillDefsInfo record;
    record.Units = kMillimetre;
    record.Defaults();
    EXPECT_EQ(kInch, record.Units);
    EXPECT_EQ(0.2, record.DefRemoveZ);
}

TEST(PocketRecords, TakeACutModeAboveTheLastForTheLast)
{
    for (const auto& [stored, taken] : {std::pair{"7", 2}, {"3", 2}, {"2", 2}, {"-1", -1}}) {
        Settings() = {};
        Settings().settings.Put("OptionsZRough", "MaterialCutMode", stored);
        Settings().settings.Put("OptionsFlatSurface", "MaterialCutMode", stored);
        CZRoughOptionsInfo rough;
        rough.vOptions_Restore();
        EXPECT_EQ(taken, rough.MaterialCutMode);
        CFlatSurfaceOptionsInfo flat;
        flat.vOptions_Restore();
        EXPECT_EQ(taken, flat.MaterialCutMode);
    }
}

} // namespace
