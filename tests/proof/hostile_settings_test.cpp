// Every key of every record with values that no sane file holds: the stated fallback or clamp holds, and no other key
// is touched.
#include <algorithm>
#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "description/description.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "pages/page_driver.h"
#include "settings_text.h"

namespace {

namespace fs = std::filesystem;

/// A record that is kept in the settings files.
struct KeptRecord {
    std::function<void()> defaults;
    std::function<void()> restore;
    std::function<void()> save;
};

/// The records of all pages, and that of the setup sheet.
std::vector<KeptRecord> KeptRecords()
{
    std::vector<KeptRecord> records;
    for (const OptionPage& page : OptionPages())
        records.push_back({page.defaults, page.restore, page.save});
    records.push_back(
        {[] { GetLastSSheetOptions()->vOptions_Defaults(); }, vSSheetOptions_Restore, vSSheetOptions_Save});
    return records;
}

bool IsReal(const Entry& entry)
{
    return entry.text.find('.') != std::string::npos;
}

/// What the record must hold after it has read the text: an obvious model of the two value rules.
std::string Expected(const Entry& before, const std::string& hostile, const std::string& file)
{
    if (!IsReal(before))
        return std::to_string(static_cast<int>(GetPrivateProfileIntA(before.section.c_str(), before.key.c_str(),
                                                                     std::atoi(before.text.c_str()), file.c_str())));
    if (hostile == "-1" || hostile == "2147483648")
        return hostile + ".000000";
    return hostile == "-1e-400" ? "0.000000" : before.text; // a number, only too small
}

/// Null for the template of the holes, which is a text.
const Option* OptionOf(const Entry& entry)
{
    for (const RecordDescription& record : DescribeRecords())
        for (const Option& option : record.table.Options())
            if (record.table.Section() == entry.section && option.key && option.key == entry.key)
                return &option;
    return nullptr;
}

/// Whether the record puts the value in bounds, which may bring another one in bounds with it, or reads it elsewhere.
/// What it makes of which value is tested with its page.
bool HasRuleOfItsOwn(const Entry& entry)
{
    const Option* const option = OptionOf(entry);
    return option && (option->sanitize || option->readSection);
}

std::vector<Entry> WithoutRules(const std::vector<Entry>& entries)
{
    std::vector<Entry> plain;
    std::ranges::remove_copy_if(entries, std::back_inserter(plain), HasRuleOfItsOwn);
    return plain;
}

class HostileSettings : public testing::TestWithParam<size_t> {
protected:
    HostileSettings()
    {
        host.WriteSettings("");
        host.WriteDefaults("");
        record.defaults();
        entries = Saved();
    }
    ~HostileSettings() override { Restore(FileOf(entries)); }

    void Restore(const std::string& file) const
    {
        host.WriteSettings(file);
        record.restore();
    }
    /// What the record holds now, as it saves it.
    std::vector<Entry> Saved() const
    {
        host.WriteSettings("");
        record.save();
        return EntriesOf(host.ReadSettings());
    }
    std::string FileWith(const std::vector<size_t>& places, const std::string& text) const
    {
        std::vector<Entry> changed = entries;
        for (const size_t place : places)
            changed[place].text = text;
        return FileOf(changed);
    }
    /// Which entries get a hostile value at the same time: every other, so that each stands between sound ones, and the
    /// units, which all lengths depend on, alone.
    std::vector<std::vector<size_t>> PlacesOfHostileValues() const
    {
        constexpr size_t kApart = 2;
        std::vector<std::vector<size_t>> all(kApart);
        for (size_t place = 0; place < entries.size(); ++place) {
            if (entries[place].key == "Units")
                all.push_back({place});
            else if (!HasRuleOfItsOwn(entries[place]))
                all[place % kApart].push_back(place);
        }
        std::erase_if(all, [](const std::vector<size_t>& places) { return places.empty(); });
        return all;
    }

    HostFolder host;
    const KeptRecord record = KeptRecords()[GetParam()];
    std::vector<Entry> entries;
};

TEST_P(HostileSettings, EachValueYieldsItsFallbackAndTouchesNoOther)
{
    ASSERT_FALSE(entries.empty());
    for (const std::vector<size_t>& places : PlacesOfHostileValues()) {
        for (const std::string& hostile : HostileTexts()) {
            Restore(FileOf(entries));
            Restore(FileWith(places, hostile));
            std::vector<Entry> expected = entries;
            for (const size_t place : places)
                expected[place].text = Expected(entries[place], hostile, host.settings);
            EXPECT_EQ(FileOf(expected), FileOf(Saved())) << entries[places.front()].key << "=" << hostile.substr(0, 20);
        }
    }
}

TEST_P(HostileSettings, EachDefaultYieldsItsFallbackAndTouchesNoOther)
{
    for (const std::vector<size_t>& places : PlacesOfHostileValues()) {
        // Units of no sense scale all lengths there and back.
        if (entries[places.front()].key == "Units")
            continue;
        for (const std::string& hostile : HostileTexts()) {
            host.WriteDefaults(FileWith(places, hostile));
            record.defaults();
            std::vector<Entry> expected = entries;
            for (const size_t place : places)
                if (const Option* const option = OptionOf(entries[place]); !option || option->inDefaults)
                    expected[place].text = Expected(entries[place], hostile, host.defaults);
            EXPECT_EQ(FileOf(expected), FileOf(Saved())) << entries[places.front()].key << "=" << hostile.substr(0, 20);
            EXPECT_EQ(FileWith(places, hostile), ReadWholeFile(host.defaults));
        }
    }
}

TEST_P(HostileSettings, AValueInBoundsStaysAndTouchesNoneThatHasNoBounds)
{
    for (size_t index = 0; index < entries.size(); ++index) {
        if (!HasRuleOfItsOwn(entries[index]))
            continue;
        for (const std::string& hostile : HostileTexts()) {
            Restore(FileWith({index}, hostile));
            const std::vector<Entry> first = Saved();
            EXPECT_EQ(FileOf(WithoutRules(entries)), FileOf(WithoutRules(first)));
            Restore(FileOf(first));
            EXPECT_EQ(FileOf(first), FileOf(Saved())) << entries[index].key << "=" << hostile.substr(0, 20);
        }
    }
}

TEST_P(HostileSettings, ReadingChangesNothingInTheFile)
{
    for (const std::string& hostile : HostileTexts()) {
        std::vector<Entry> changed = entries;
        for (Entry& entry : changed)
            entry.text = hostile;
        Restore(FileOf(changed));
        EXPECT_EQ(FileOf(changed), host.ReadSettings());
    }
}

TEST_P(HostileSettings, ASavedKeyLeavesTheOtherLinesOfTheFileAsTheyAre)
{
    const std::string others = "; remark\r\n[Other]\r\nKey=Value\r\n" + HighBytes() + "=" + HighBytes() + "\r\n";
    host.WriteSettings(others);
    record.save();
    EXPECT_TRUE(host.ReadSettings().starts_with(others));
}

TEST_P(HostileSettings, FilesThatAreNoneKeepTheRecordAsItIs)
{
    const std::string file = FileOf(entries);
    std::string wide = "\xFF\xFE";
    for (const char character : file)
        wide += {character, '\0'};
    std::string endless;
    for (const char character : file)
        if (character != '\r' && character != '\n')
            endless += character;
    for (const std::string& odd :
         {wide, endless, std::string("["), std::string(100000, '['), std::string(1000, '\0')}) {
        Restore(odd);
        EXPECT_EQ(file, FileOf(Saved())) << odd.substr(0, 20);
    }
}

TEST_P(HostileSettings, AFolderInTheFilesPlaceKeepsTheRecordAndSavingDoesNoHarm)
{
    fs::remove(host.settings);
    fs::create_directory(host.settings);
    record.restore();
    record.save();
    EXPECT_TRUE(fs::is_directory(host.settings));
    fs::remove(host.settings);
    EXPECT_EQ(FileOf(entries), FileOf(Saved()));
}

TEST_P(HostileSettings, AFileThatMayOnlyBeReadIsReadAndStaysAsItIs)
{
    const auto units = std::ranges::find(entries, "Units", &Entry::key);
    const std::string metric = FileWith({static_cast<size_t>(units - entries.begin())}, "1");
    host.WriteSettings(metric);
    SetFileAttributesA(host.settings.c_str(), FILE_ATTRIBUTE_READONLY);
    record.restore();
    record.defaults();
    record.save();
    EXPECT_EQ(pelmar::SaveFailure::ReadOnly, pelmar::LastSave().failure);
    EXPECT_EQ(metric, host.ReadSettings());
    SetFileAttributesA(host.settings.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(FileOf(entries), FileOf(Saved()));
}

INSTANTIATE_TEST_SUITE_P(AllRecords, HostileSettings, testing::Range(size_t{0}, KeptRecords().size()));

TEST(FileInUse, StaysAsItIsAndItsSaveMayBeTriedAgain)
{
    const HostFolder host;
    for (const KeptRecord& record : KeptRecords())
        record.defaults();
    host.WriteSettings("[Other]\r\nKey=1\r\n");
    const HANDLE reader = CreateFileA(host.settings.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    pelmar::SaveStep step;
    for (const KeptRecord& record : KeptRecords())
        record.save();
    const ULONGLONG start = GetTickCount64();
    EXPECT_FALSE(step.Commit());
    EXPECT_GE(GetTickCount64() - start, 4900u) << "others are waited for";
    EXPECT_EQ(pelmar::SaveFailure::Replacing, pelmar::LastSave().failure);
    EXPECT_EQ(host.settings, pelmar::LastSave().file);
    EXPECT_EQ("[Other]\r\nKey=1\r\n", host.ReadSettings());
    CloseHandle(reader);
    EXPECT_TRUE(step.Commit());
    EXPECT_LT(KeptRecords().size() * 5, EntriesOf(host.ReadSettings()).size());
}

/// The pages alone.
class HostileRecordOnPage : public HostileSettings {};

/// The page shows whatever the record holds, and leaves it alone until it is stored.
TEST_P(HostileRecordOnPage, IsShownAndLeftAlone)
{
    for (const char* const hostile : {"2147483647", "-2147483648", "-1"}) {
        std::vector<Entry> changed = entries;
        for (Entry& entry : changed)
            if (entry.key != "Units")
                entry.text = IsReal(entry) ? "-3.4e38" : hostile;
        Restore(FileOf(changed));
        const std::vector<Entry> before = Saved();
        std::unique_ptr<CPropertyPage> shown;
        ui::UiThread::Get().Call([&] { shown = OptionPages()[GetParam()].make(kInch); });
        {
            OpenSheet sheet({shown.get()});
            EXPECT_TRUE(sheet.IsOpen());
            sheet.Press(IDCANCEL);
            EXPECT_TRUE(ui::WaitForCloseWithBoxes(sheet.window));
        }
        EXPECT_EQ(FileOf(before), FileOf(Saved()));
        ui::UiThread::Get().Call([&] { shown.reset(); });
    }
}

INSTANTIATE_TEST_SUITE_P(AllPages, HostileRecordOnPage, testing::Range(size_t{0}, OptionPages().size()));

} // namespace
