#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "ui/ui_thread.h"

namespace {

using pelmar::SaveFailure;

class Saving : public testing::Test {
protected:
    ~Saving() override { SetFileAttributesA(host.settings.c_str(), FILE_ATTRIBUTE_NORMAL); }

    /// The files of the NC folder.
    std::string Names() const
    {
        std::string names;
        WIN32_FIND_DATAA found{};
        const HANDLE search = FindFirstFileA((host.folder + "\\NC\\*").c_str(), &found);
        do
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                names += std::string(found.cFileName) + " ";
        while (FindNextFileA(search, &found));
        FindClose(search);
        return names;
    }

    HostFolder host;
};

TEST_F(Saving, OfSeveralValuesIsOneStep)
{
    host.WriteSettings("[S]\r\nFirst=1\r\n");
    {
        pelmar::SaveStep step;
        EXPECT_TRUE(pelmar::WriteWhole("S", "First", 10));
        EXPECT_TRUE(pelmar::WriteReal("S", "Second", 0.5));
        EXPECT_EQ("[S]\r\nFirst=1\r\n", host.ReadSettings());
        EXPECT_EQ(10, pelmar::ReadWhole("S", "First", 0));
        EXPECT_TRUE(step.Commit());
        EXPECT_TRUE(step.Commit()) << "nothing more";
    }
    EXPECT_EQ("[S]\r\nFirst=10\r\nSecond=0.500000\r\n", host.ReadSettings());
    EXPECT_EQ("CURRENT.INI ", Names());
}

TEST_F(Saving, IsDroppedWithAStepThatIsNotCommitted)
{
    {
        const pelmar::SaveStep step;
        pelmar::WriteWhole("S", "First", 10);
    }
    EXPECT_EQ("", Names());
    pelmar::BeginSave();
    pelmar::WriteWhole("S", "First", 10);
    pelmar::DropSave();
    EXPECT_EQ("", Names());
    EXPECT_TRUE(pelmar::CommitSave());
}

TEST_F(Saving, IsDroppedWhenTheLibraryEnds)
{
    pelmar::BeginSave();
    pelmar::WriteWhole("S", "First", 10);
    ui::UiThread::Get().Call([] { FinalizePelmarDlgsDLL(); });
    EXPECT_TRUE(pelmar::CommitSave());
    EXPECT_EQ("", Names());
    EXPECT_TRUE(pelmar::WriteWhole("S", "Second", 20));
    EXPECT_EQ("[S]\r\nSecond=20\r\n", host.ReadSettings());
}

TEST_F(Saving, TellsWhatItFailedAt)
{
    host.WriteSettings("[S]\r\nFirst=1\r\n");
    SetFileAttributesA(host.settings.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(pelmar::WriteWhole("S", "First", 10));
    const pelmar::SaveOutcome& outcome = pelmar::LastSave();
    EXPECT_EQ(SaveFailure::ReadOnly, outcome.failure);
    EXPECT_EQ(DWORD{ERROR_ACCESS_DENIED}, outcome.systemError);
    EXPECT_EQ(host.settings, outcome.file);
    EXPECT_STREQ("", outcome.keptAside);
    EXPECT_EQ("[S]\r\nFirst=1\r\n", host.ReadSettings());

    pelmar::SaveStep step;
    pelmar::WriteWhole("S", "First", 11);
    EXPECT_FALSE(step.Commit());
    SetFileAttributesA(host.settings.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(step.Commit()) << "tried again";
    EXPECT_EQ(SaveFailure::None, pelmar::LastSave().failure);
    EXPECT_EQ("[S]\r\nFirst=11\r\n", host.ReadSettings());
}

TEST_F(Saving, TellsWhereItKeptADamagedFile)
{
    host.WriteSettings("[S]\r\nFirst=1\r\nSec");
    EXPECT_TRUE(pelmar::WriteWhole("S", "First", 10));
    EXPECT_EQ("[S]\r\nFirst=1\r\nSec", ReadWholeFile(pelmar::LastSave().keptAside));
    EXPECT_EQ("[S]\r\nFirst=10\r\nSec\r\n", host.ReadSettings());
}

TEST_F(Saving, OfAHostsOwnValuesIsTheSame)
{
    const std::string own = host.folder + "\\OWN.INI";
    pelmar::SaveStep step;
    EXPECT_TRUE(pelmar::SaveText(own.c_str(), "Window", "Left", "10"));
    pelmar::WriteWhole("S", "First", 1);
    EXPECT_EQ("", ReadWholeFile(own));
    EXPECT_TRUE(step.Commit());
    EXPECT_EQ("[Window]\r\nLeft=10\r\n", ReadWholeFile(own));
    EXPECT_TRUE(pelmar::SaveText(own.c_str(), "Window", "Left", nullptr));
    EXPECT_EQ("[Window]\r\n", ReadWholeFile(own));
    EXPECT_FALSE(pelmar::SaveText((host.folder + "\\Gone\\OWN.INI").c_str(), "Window", "Left", "10"));
    EXPECT_EQ(SaveFailure::FolderMissing, pelmar::LastSave().failure);
}

TEST_F(Saving, TheMachineSimulationsStartIsSavedInOneStepToo)
{
    const std::string core = ReadWholeFile(host.coreFile);
    SetFileAttributesA(host.coreFile.c_str(), FILE_ATTRIBUTE_READONLY);
    ui::UiThread::Get().Call([] { PelmarUI_SetMachineSimPath("E:\\MS"); });
    EXPECT_EQ(SaveFailure::ReadOnly, pelmar::LastSave().failure);
    EXPECT_EQ(host.coreFile, pelmar::LastSave().file);
    EXPECT_EQ(core, ReadWholeFile(host.coreFile));
    SetFileAttributesA(host.coreFile.c_str(), FILE_ATTRIBUTE_NORMAL);
    ui::UiThread::Get().Call([] { PelmarUI_SetMachineSimPath("E:\\MS"); });
    EXPECT_EQ(SaveFailure::None, pelmar::LastSave().failure);
    EXPECT_TRUE(Value(host.coreFile, "startup", "mdfilename").starts_with("E:\\MS\\"));
}

// ---- reading ----

/// Whether another program can save the settings file in one step.
bool MayBeReplaced(const HostFolder& host)
{
    const std::string copy = host.folder + "\\copy";
    WriteWholeFile(copy, "[S]\r\nFirst=2\r\n");
    return MoveFileExA(copy.c_str(), host.settings.c_str(), MOVEFILE_REPLACE_EXISTING);
}

TEST_F(Saving, OfOthersWaitsForAReadingAndItsParts)
{
    host.WriteSettings("[S]\r\nFirst=1\r\n");
    {
        const pelmar::SettingsReading reading;
        GetLast2xOptions()->vOptions_Restore();
        {
            const pelmar::SettingsReading part;
        }
        EXPECT_FALSE(MayBeReplaced(host));
        EXPECT_EQ(1, pelmar::ReadWhole("S", "First", 0));
    }
    EXPECT_TRUE(MayBeReplaced(host));
    EXPECT_EQ(2, pelmar::ReadWhole("S", "First", 0));
    const pelmar::SettingsReading reading;
    EXPECT_TRUE(pelmar::WriteWhole("S", "First", 3)) << "one's own does not";
    EXPECT_EQ("[S]\r\nFirst=3\r\n", host.ReadSettings());
}

} // namespace
