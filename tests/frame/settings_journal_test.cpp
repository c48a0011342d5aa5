#include "frame/settings_journal.h"

#include <optional>

#include <gtest/gtest.h>

#include "file_calls.h"
#include "frame/profile.h"
#include "settings_folder.h"

using namespace saving;

namespace {

using pelmar::SaveFailure;

class JournalTest : public testing::Test {
protected:
    ~JournalTest() override { journal.DropAll(); }

    bool Write(const char* key, const char* text) { return Write(key, text, folder.file); }
    bool Write(const char* key, const char* text, const std::string& file)
    {
        return profile::WriteText("A", key, text, file.c_str());
    }
    int Read(const char* key) const { return profile::ReadWhole("A", key, -1, folder.file.c_str()); }
    std::string ReadText(const char* key) const
    {
        char text[100];
        profile::ReadText("A", key, "none", text, folder.file.c_str());
        return text;
    }
    std::string Other() const { return folder.folder + "OTHER.INI"; }

    SettingsFolder folder;
    FileCalls calls;
    pelmar::SettingsJournal& journal = pelmar::Journal();
};

/// Lets nobody replace a file while it lives.
class Reader {
public:
    explicit Reader(const std::string& path)
        : m_handle(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(INVALID_HANDLE_VALUE, m_handle);
    }
    ~Reader() { CloseHandle(m_handle); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

private:
    HANDLE m_handle;
};

TEST_F(JournalTest, AValueOutsideAStepIsSavedAtOnce)
{
    EXPECT_TRUE(Write("First", "1"));
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
    EXPECT_EQ(SaveFailure::None, journal.Last().failure);
    EXPECT_EQ(folder.file, journal.Last().file);
}

TEST_F(JournalTest, AValueThatCannotBeSavedIsRefusedAndForgotten)
{
    const std::string file = folder.folder + "Gone\\CURRENT.INI";
    EXPECT_FALSE(Write("First", "1", file));
    EXPECT_EQ(SaveFailure::FolderMissing, journal.Last().failure);
    EXPECT_EQ(file, journal.Last().file);
    EXPECT_FALSE(Write("First", "1", std::string(5000, 'x')));
    EXPECT_EQ(SaveFailure::NotAFile, journal.Last().failure);
    EXPECT_TRUE(Write("Second", "2"));
    EXPECT_EQ(SaveFailure::None, journal.Last().failure);
    EXPECT_EQ("[A]\r\nSecond=2\r\n", folder.Read());
}

TEST_F(JournalTest, AStepIsOnTheDiskWhenItIsCommittedAndNotBefore)
{
    folder.Write("[A]\r\nFirst=1\r\n");
    journal.Begin();
    EXPECT_TRUE(Write("First", "10"));
    EXPECT_TRUE(Write("Second", "20"));
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names()) << "nobody is locked out meanwhile";
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ("[A]\r\nFirst=10\r\nSecond=20\r\n", folder.Read());
}

TEST_F(JournalTest, AStepReplacesEachFileOnce)
{
    int moves = 0;
    calls.before = [&](const Call& call) { moves += call.name == "MoveFile"; };
    journal.Begin();
    for (const char* const key : {"First", "Second", "Third"}) {
        Write(key, "1");
        Write(key, "2", Other());
    }
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ(2, moves);
    EXPECT_EQ("[A]\r\nFirst=1\r\nSecond=1\r\nThird=1\r\n", folder.Read());
    EXPECT_EQ("[A]\r\nFirst=2\r\nSecond=2\r\nThird=2\r\n", ReadBytes(Other()));
}

TEST_F(JournalTest, OneFileUnderTwoSpellingsIsOneFile)
{
    int moves = 0;
    calls.before = [&](const Call& call) { moves += call.name == "MoveFile"; };
    journal.Begin();
    Write("First", "1");
    Write("Second", "2", folder.folder + ".\\current.ini");
    EXPECT_EQ(2, Read("SECOND"));
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ(1, moves);
    EXPECT_EQ("[A]\r\nFirst=1\r\nSecond=2\r\n", folder.Read());
}

TEST_F(JournalTest, ADroppedStepLeavesTheFile)
{
    folder.Write("[A]\r\nFirst=1\r\n");
    journal.Begin();
    Write("First", "10");
    EXPECT_EQ(10, Read("First"));
    journal.Drop();
    EXPECT_EQ(1, Read("First"));
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
}

TEST_F(JournalTest, ThePartsOfAStepAreSavedWithIt)
{
    journal.Begin();
    Write("First", "1");
    journal.Begin();
    Write("Second", "2");
    journal.Begin();
    Write("Third", "3");
    EXPECT_TRUE(journal.Commit());
    journal.Drop(); // with what it held
    EXPECT_EQ(1, Read("First"));
    EXPECT_EQ(-1, Read("Second"));
    EXPECT_EQ(-1, Read("Third"));
    EXPECT_TRUE(folder.Names().size() <= 1) << "nothing but a preview";
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
}

TEST_F(JournalTest, EndsWithoutABeginningDoNothing)
{
    EXPECT_TRUE(journal.Commit());
    journal.Drop();
    journal.DropAll();
    EXPECT_TRUE(Write("First", "1"));
    journal.Begin();
    EXPECT_TRUE(journal.Commit()) << "nothing to save";
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
}

TEST_F(JournalTest, WhatIsReadWithinAStepIncludesWhatItWrites)
{
    folder.Write("[A]\r\nFirst=1\r\nSecond=2\r\n[B]\r\nOther=3\r\n");
    journal.Begin();
    Write("First", " \"quoted\" ");
    EXPECT_EQ("quoted", ReadText("First")) << "as the platform reads what it writes";
    EXPECT_EQ("2", ReadText("Second"));
    Write("Second", "20");
    EXPECT_EQ(20, Read("second"));
    Write("First", nullptr);
    EXPECT_EQ("none", ReadText("First"));
    char lines[100];
    profile::ReadSection("a", lines, folder.file.c_str());
    EXPECT_STREQ("Second=20", lines);
    profile::WriteText("A", nullptr, nullptr, folder.file.c_str());
    EXPECT_EQ(-1, Read("Second"));
    EXPECT_EQ("[A]\r\nFirst=1\r\nSecond=2\r\n[B]\r\nOther=3\r\n", folder.Read());
    EXPECT_EQ(3, profile::ReadWhole("B", "Other", -1, folder.file.c_str()));
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names()) << "no preview is left";
    EXPECT_EQ(-1, Read("Second"));
}

TEST_F(JournalTest, OfWhatIsNotWrittenTheFileItselfIsRead)
{
    journal.Begin();
    Write("First", "1");
    calls.before = [](const Call& call) { ADD_FAILURE() << call.name; };
    EXPECT_EQ(-1, Read("Second"));
    EXPECT_EQ(-1, profile::ReadWhole("B", "First", -1, folder.file.c_str()));
    EXPECT_EQ(-1, profile::ReadWhole("A", "First", -1, Other().c_str()));
}

TEST_F(JournalTest, WithoutRoomForAPreviewTheFileItselfIsRead)
{
    folder.Write("[A]\r\nFirst=1\r\n");
    journal.Begin();
    Write("First", "10");
    calls.fails = [](const Call& call) { return call.name == "WriteFile" ? DWORD{ERROR_DISK_FULL} : 0; };
    EXPECT_EQ(1, Read("First"));
    calls.fails = nullptr;
    EXPECT_EQ(10, Read("First"));
}

TEST_F(JournalTest, WhatCouldNotBeSavedStaysGatheredForAnotherTry)
{
    folder.Write("[A]\r\nFirst=1\r\n");
    journal.Begin();
    Write("First", "10");
    Write("First", "20", Other());
    {
        const Reader reader(folder.file);
        EXPECT_FALSE(journal.Commit());
        EXPECT_EQ(SaveFailure::Replacing, journal.Last().failure);
        EXPECT_EQ(folder.file, journal.Last().file) << "the first that failed";
        EXPECT_EQ("[A]\r\nFirst=20\r\n", ReadBytes(Other())) << "another file does not suffer";
        EXPECT_FALSE(journal.Commit());
        EXPECT_EQ(10, Read("First"));
        Write("Second", "11");
    }
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ(SaveFailure::None, journal.Last().failure);
    EXPECT_EQ("[A]\r\nFirst=10\r\nSecond=11\r\n", folder.Read());
}

TEST_F(JournalTest, WhatCouldNotBeSavedMayBeDropped)
{
    folder.Write("[A]\r\nFirst=1\r\n");
    journal.Begin();
    Write("First", "10");
    {
        const Reader reader(folder.file);
        EXPECT_FALSE(journal.Commit());
    }
    journal.Drop();
    EXPECT_TRUE(Write("Second", "2"));
    EXPECT_EQ("[A]\r\nFirst=1\r\nSecond=2\r\n", folder.Read());
}

TEST_F(JournalTest, TellsWhereTheFirstDamagedFileOfAStepWasKept)
{
    folder.Write("[A]\r\nFirst=1\r\nSec");
    journal.Begin();
    Write("First", "20", Other());
    Write("First", "10");
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ("[A]\r\nFirst=1\r\nSec", ReadBytes(journal.Last().keptAside));
    Write("First", "11");
    EXPECT_STREQ("", journal.Last().keptAside);
}

TEST_F(JournalTest, AWholeFileThatIsSavedAfterADamagedOneLeavesItsTrace)
{
    folder.Write("[A]\r\nFirst=1\r\nSec");
    journal.Begin();
    Write("First", "10");
    Write("First", "20", Other());
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ("[A]\r\nFirst=1\r\nSec", ReadBytes(journal.Last().keptAside));
}

TEST_F(JournalTest, AStepWaitsFiveSecondsForAllItsFiles)
{
    folder.Write("");
    WriteBytes(Other(), "");
    const Reader reader(folder.file);
    const Reader other(Other());
    journal.Begin();
    Write("First", "1");
    Write("First", "1", Other());
    const std::uint64_t start = calls.Now();
    EXPECT_FALSE(journal.Commit());
    EXPECT_NEAR(5000.0, static_cast<double>(calls.Now() - start), 200.0);
}

TEST_F(JournalTest, AfterWaitingInVainTheNextSavesWaitShortly)
{
    folder.Write("");
    std::optional<Reader> reader(folder.file);
    const auto timeOf = [&](const std::string& file) {
        const std::uint64_t start = calls.Now();
        Write("First", "1", file);
        return static_cast<double>(calls.Now() - start);
    };
    EXPECT_NEAR(5000.0, timeOf(folder.file), 100.0);
    EXPECT_NEAR(200.0, timeOf(folder.file), 100.0);
    EXPECT_NEAR(200.0, timeOf(folder.file), 100.0);
    WriteBytes(Other(), "");
    const Reader other(Other());
    EXPECT_NEAR(5000.0, timeOf(Other()), 100.0);
    calls.Sleep(6000);
    EXPECT_NEAR(5000.0, timeOf(folder.file), 100.0);
    reader.reset();
    EXPECT_EQ(0.0, timeOf(folder.file));
}

TEST_F(JournalTest, AFileWithoutAFolderIsTheSystemFoldersAsThePlatformHasIt)
{
    const std::string name = "PelmarDlgsTest" + std::to_string(GetCurrentProcessId()) + ".ini";
    char windows[MAX_PATH];
    GetWindowsDirectoryA(windows, MAX_PATH);
    EXPECT_TRUE(Write("First", "1", name));
    EXPECT_EQ("[A]\r\nFirst=1\r\n", ReadBytes(std::string(windows) + "\\" + name));
    EXPECT_EQ(1, profile::ReadWhole("A", "First", -1, name.c_str()));
    DeleteFileA((std::string(windows) + "\\" + name).c_str());
}

TEST_F(JournalTest, AFolderIsTheCurrentOnesWhenTheValueIsWritten)
{
    char before[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, before);
    SetCurrentDirectoryA(folder.folder.c_str());
    journal.Begin();
    Write("First", "1", ".\\CURRENT.INI");
    SetCurrentDirectoryA(before);
    EXPECT_TRUE(journal.Commit());
    EXPECT_EQ("[A]\r\nFirst=1\r\n", folder.Read());
}

// ---- sections ----

class SectionTest : public JournalTest, public testing::WithParamInterface<size_t> {};

/// Lines of `size` characters in all, terminators included.
std::string LinesOfSize(size_t size)
{
    std::string lines;
    while (lines.size() < size) {
        const size_t rest = size - lines.size();
        const size_t length = rest > 200 ? 100 : rest;
        lines += "k" + std::to_string(lines.size()) + "=";
        lines.resize(size - rest + length - 1, 'v');
        lines += '\0';
    }
    return lines;
}

TEST_P(SectionTest, FillsTheBufferAsThePlatformDoesAndNoMore)
{
    constexpr size_t kCapacity = 32765;
    const std::string lines = LinesOfSize(GetParam());
    std::string file = "[S]\r\n";
    for (const char character : lines)
        file += character ? std::string(1, character) : "\r\n";
    folder.Write(file);
    std::string buffer(kCapacity + 10, '#');
    profile::ReadSection("S", std::span(buffer).first(kCapacity), folder.file.c_str());
    std::string expected = lines.substr(0, kCapacity - 2);
    expected.resize(kCapacity, '\0');
    EXPECT_EQ(expected + std::string(10, '#'), buffer);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SectionTest, testing::Values(10, 1000, 32761, 32762, 32763, 32764, 32765, 40000));

TEST_F(JournalTest, ASectionOfAFileThatCannotBeIsEmpty)
{
    char lines[4] = "###";
    profile::ReadSection("S", lines, std::string(5000, 'x').c_str());
    EXPECT_EQ(std::string(4, '\0'), std::string(lines, 4));
}

} // namespace
