#include "frame/held_file.h"

#include <optional>

#include <gtest/gtest.h>

#include "file_calls.h"
#include "frame/profile.h"
#include "frame/settings_journal.h"
#include "settings_folder.h"

using namespace saving;

namespace {

using pelmar::HeldFile;

class HeldFileTest : public testing::Test {
protected:
    HeldFileTest() { folder.Write("[A]\r\nFirst=1\r\n"); }

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

TEST_F(HeldFileTest, StaysTheVersionThatItIsAndMayBeRead)
{
    {
        const HeldFile held(folder.file.c_str());
        EXPECT_FALSE(Replace());
        EXPECT_EQ(INVALID_HANDLE_VALUE, OpenToWrite());
        EXPECT_EQ(1, Read());
        const HeldFile another(folder.file.c_str()); // as another host's
        EXPECT_EQ(1, Read());
    }
    EXPECT_TRUE(Replace());
    EXPECT_EQ(2, Read());
}

TEST_F(HeldFileTest, IsLetGoWhereTheProcessSavesItself)
{
    calls.whileSleeping = [] { ADD_FAILURE() << "waits for itself"; };
    std::optional<HeldFile> first(folder.file.c_str());
    std::optional<HeldFile> second(folder.file.c_str());
    std::optional<HeldFile> third(folder.file.c_str());
    second.reset();
    EXPECT_TRUE(profile::WriteText("A", "First", "3", folder.file.c_str()));
    EXPECT_EQ(3, Read());
    first.reset();
    third.reset();
    const HeldFile again(folder.file.c_str());
    EXPECT_FALSE(Replace());
}

TEST_F(HeldFileTest, IsWaitedForShortlyWhereSomebodyWritesAndThenNotHeld)
{
    std::optional<HeldFile> held;
    HANDLE writer = OpenToWrite();
    int slept = 0;
    calls.whileSleeping = [&] { ++slept; };
    held.emplace(folder.file.c_str());
    EXPECT_EQ(1, slept) << "a tenth of a second";
    CloseHandle(writer);
    EXPECT_TRUE(Replace()) << "nothing is held";

    writer = OpenToWrite();
    calls.whileSleeping = [&] { CloseHandle(writer); };
    held.emplace(folder.file.c_str());
    EXPECT_FALSE(Replace());
}

TEST_F(HeldFileTest, IsHeldOnceWhoeverSavesItIsDoneOrTakesTooLong)
{
    const std::string lock = folder.file + ".lock";
    HANDLE saver =
        CreateFileA(lock.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    int slept = 0;
    calls.whileSleeping = [&] { ++slept; };
    {
        const HeldFile held(folder.file.c_str());
        EXPECT_EQ(1, slept) << "a tenth of a second";
        EXPECT_FALSE(Replace());
    }
    calls.whileSleeping = [&] {
        EXPECT_TRUE(Replace());
        CloseHandle(saver);
    };
    const HeldFile held(folder.file.c_str());
    EXPECT_EQ(2, Read());
    EXPECT_FALSE(Replace());
}

TEST_F(HeldFileTest, IsHeldThoughItsSaverTakesLongAndHasItOpenThen)
{
    const HANDLE saver = CreateFileA((folder.file + ".lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                     FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    const HANDLE writer = OpenToWrite();
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept == 2)
            CloseHandle(writer);
    };
    const HeldFile held(folder.file.c_str());
    EXPECT_EQ(2, slept);
    EXPECT_FALSE(Replace());
    CloseHandle(saver);
}

TEST_F(HeldFileTest, ALockThatNobodyHoldsIsNotWaitedFor)
{
    WriteBytes(folder.file + ".lock", "left behind");
    calls.whileSleeping = [] { ADD_FAILURE(); };
    const HeldFile held(folder.file.c_str());
    EXPECT_FALSE(Replace());
}

TEST_F(HeldFileTest, ThatIsNotThereIsNotWaitedFor)
{
    calls.whileSleeping = [] { ADD_FAILURE(); };
    const HeldFile missing((folder.folder + "GONE.INI").c_str());
    const HeldFile nowhere("");
    const HeldFile longName(std::string(5000, 'x').c_str());
    const HeldFile itsFolder(folder.folder.c_str());
    EXPECT_EQ(1, Read());
    EXPECT_TRUE(Replace());
}

} // namespace
