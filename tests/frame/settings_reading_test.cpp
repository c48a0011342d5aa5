#include "frame/settings_reading.h"

#include <optional>

#include <gtest/gtest.h>

#include "file_calls.h"
#include "frame/profile.h"
#include "settings_folder.h"

namespace saving {
namespace {

using pelmar::SettingsReading;

class SettingsReadingTest : public testing::Test {
protected:
    SettingsReadingTest() { folder.Write("[A]\r\nFirst=1\r\n"); }

    int Read() const { return profile::ReadWhole("A", "First", -1, folder.file.c_str()); }
    /// Another program saves the file in one step.
    bool Replace() const
    {
        const std::string copy = folder.folder + "other";
        WriteBytes(copy, "[A]\r\nFirst=2\r\n");
        return MoveFileExA(copy.c_str(), folder.file.c_str(), MOVEFILE_REPLACE_EXISTING);
    }
    HANDLE OpenToWrite() const
    {
        return CreateFileA(folder.file.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    }

    SettingsFolder folder;
    FileCalls calls;
};

TEST_F(SettingsReadingTest, HoldsTheVersionThatItReads)
{
    {
        const SettingsReading reading(folder.file.c_str());
        EXPECT_FALSE(Replace());
        EXPECT_EQ(INVALID_HANDLE_VALUE, OpenToWrite());
        EXPECT_EQ(1, Read());
        const SettingsReading another(folder.file.c_str()); // as another host's
        EXPECT_EQ(1, Read());
    }
    EXPECT_TRUE(Replace());
    EXPECT_EQ(2, Read());
}

TEST_F(SettingsReadingTest, WaitsShortlyForAWriterAndThenReadsWithoutHolding)
{
    std::optional<SettingsReading> reading;
    HANDLE writer = OpenToWrite();
    int slept = 0;
    calls.whileSleeping = [&] { ++slept; };
    reading.emplace(folder.file.c_str());
    EXPECT_EQ(1, slept) << "a tenth of a second";
    CloseHandle(writer);
    EXPECT_TRUE(Replace()) << "nothing is held";

    writer = OpenToWrite();
    calls.whileSleeping = [&] { CloseHandle(writer); };
    reading.emplace(folder.file.c_str());
    EXPECT_FALSE(Replace());
}

TEST_F(SettingsReadingTest, OfAFileThatIsNotThereHoldsNothingAndWaitsForNothing)
{
    calls.whileSleeping = [] { ADD_FAILURE(); };
    const SettingsReading missing((folder.folder + "GONE.INI").c_str());
    const SettingsReading nowhere("");
    const SettingsReading longName(std::string(5000, 'x').c_str());
    const SettingsReading itsFolder(folder.folder.c_str());
    EXPECT_EQ(1, Read());
    EXPECT_TRUE(Replace());
}

} // namespace
} // namespace saving
