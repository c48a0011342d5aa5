// Every key of every record with values that no sane file holds: the stated fallback or clamp holds, and no other key
// is touched.
#include <cmath>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "option_pages.h"
#include "pages/description.h"
#include "pages/page_driver.h"

namespace {

namespace fs = std::filesystem;

struct Entry {
    std::string section;
    std::string key;
    std::string text;
};

/// What a settings file holds, line by line.
std::vector<Entry> EntriesOf(const std::string& file)
{
    std::vector<Entry> entries;
    std::string section;
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        const size_t equals = line.find('=');
        if (line.starts_with('['))
            section = line.substr(1, line.size() - 2);
        else if (equals != std::string::npos)
            entries.push_back({section, line.substr(0, equals), line.substr(equals + 1)});
    }
    return entries;
}

std::string FileOf(const std::vector<Entry>& entries)
{
    std::string file;
    std::string section;
    for (const Entry& entry : entries) {
        if (entry.section != section)
            file += "[" + (section = entry.section) + "]\r\n";
        file += entry.key + "=" + entry.text + "\r\n";
    }
    return file;
}

std::string HighBytes()
{
    std::string text;
    for (int byte = 128; byte < 256; ++byte)
        text += static_cast<char>(byte);
    return text;
}

const std::string kHostileTexts[] = {
    "",           "   ",     std::string(10000, 'x'), std::string(10000, '9'), HighBytes(), "nan", "inf", "1e400", "-1",
    "2147483648", "-1e-400",
};

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

/// Whether the record puts a value in bounds or reads it elsewhere. What it makes of one is tested with its page.
bool HasRuleOfItsOwn(const Entry& entry)
{
    for (const RecordDescription& record : DescribeRecords())
        for (const FieldDescription& field : record.fields)
            if (record.section == entry.section && field.key == entry.key &&
                (field.isClamped || !field.readSection.empty()))
                return true;
    return false;
}

class HostileSettings : public testing::TestWithParam<size_t> {
protected:
    HostileSettings()
    {
        host.WriteSettings("");
        page.save();
        entries = EntriesOf(host.ReadSettings());
    }
    ~HostileSettings() override { Restore(FileOf(entries)); }

    void Restore(const std::string& file) const
    {
        host.WriteSettings(file);
        page.restore();
    }
    /// What the record holds now, as it saves it.
    std::vector<Entry> Saved() const
    {
        host.WriteSettings("");
        page.save();
        return EntriesOf(host.ReadSettings());
    }

    HostFolder host;
    const OptionPage& page = OptionPages()[GetParam()];
    std::vector<Entry> entries;
};

TEST_P(HostileSettings, EachValueYieldsItsFallbackAndTouchesNoOther)
{
    ASSERT_FALSE(entries.empty());
    for (size_t index = 0; index < entries.size(); ++index) {
        if (HasRuleOfItsOwn(entries[index]))
            continue;
        for (const std::string& hostile : kHostileTexts) {
            Restore(FileOf(entries));
            std::vector<Entry> changed = entries;
            changed[index].text = hostile;
            Restore(FileOf(changed));
            std::vector<Entry> expected = entries;
            expected[index].text = Expected(entries[index], hostile, host.settings);
            EXPECT_EQ(FileOf(expected), FileOf(Saved())) << entries[index].key << "=" << hostile.substr(0, 20);
        }
    }
}

TEST_P(HostileSettings, ReadingChangesNothingInTheFile)
{
    for (const std::string& hostile : kHostileTexts) {
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
    page.save();
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
    page.restore();
    page.save();
    EXPECT_TRUE(fs::is_directory(host.settings));
    fs::remove(host.settings);
    EXPECT_EQ(FileOf(entries), FileOf(Saved()));
}

/// The page shows whatever the record holds, and leaves it alone until it is stored.
TEST_P(HostileSettings, ThePageShowsWhateverTheRecordHolds)
{
    for (const char* const hostile : {"2147483647", "-2147483648", "-1"}) {
        std::vector<Entry> changed = entries;
        for (Entry& entry : changed)
            if (entry.key != "Units")
                entry.text = IsReal(entry) ? "-3.4e38" : hostile;
        Restore(FileOf(changed));
        const std::vector<Entry> before = Saved();
        std::unique_ptr<CPropertyPage> shown;
        ui::UiThread::Get().Call([&] { shown = page.make(kInch); });
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

INSTANTIATE_TEST_SUITE_P(AllRecords, HostileSettings, testing::Range(size_t{0}, OptionPages().size()));

} // namespace
