#include "frame/file_step.h"

#include <algorithm>
#include <array>
#include <optional>
#include <regex>
#include <vector>

#include <gtest/gtest.h>

#include "file_calls.h"
#include "frame/file_system.h"
#include "settings_folder.h"

using namespace saving;

namespace {

using namespace std::string_literals;
using pelmar::SaveFailure;
using pelmar::SaveOutcome;

constexpr std::uint64_t kPatience = 5000;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A file of two records, and a save that changes one of them, adds to it, and adds another.
const std::string kOld = "; remark\r\n[A]\r\nFirst=1\r\nSecond=2\r\n[B]\r\nOther=3\r\n";
const std::string kNew =
    "; remark\r\n[A]\r\nFirst=10\r\nSecond=2\r\nThird=30\r\n[B]\r\nOther=3\r\n[C]\r\nFourth=40\r\n";
const std::vector<pelmar::ProfileEntry> kEntries = {
    {"A", "First", "10"}, {"A", "Second", "2"}, {"A", "Third", "30"}, {"C", "Fourth", "40"}};

class FileStep : public testing::Test {
protected:
    SaveOutcome Save(const std::string& file, const std::vector<pelmar::ProfileEntry>& entries = kEntries)
    {
        return pelmar::SaveInOneStep(file, entries, calls.Now() + kPatience);
    }
    SaveOutcome Save() { return Save(folder.file); }

    /// The file is as it was, nothing stands beside it, and the outcome tells why.
    void ExpectRefused(const SaveOutcome& outcome, SaveFailure failure, DWORD error)
    {
        EXPECT_EQ(failure, outcome.failure);
        EXPECT_EQ(error, outcome.systemError);
        EXPECT_EQ(folder.file, outcome.file);
        EXPECT_STREQ("", outcome.keptAside);
        EXPECT_EQ(kOld, folder.Read());
        EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
    }
    void ExpectSaved(const SaveOutcome& outcome)
    {
        EXPECT_EQ(SaveFailure::None, outcome.failure);
        EXPECT_EQ(0u, outcome.systemError);
        EXPECT_EQ(folder.file, outcome.file);
        EXPECT_EQ(kNew, folder.Read());
        EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
    }

    SettingsFolder folder;
    FileCalls calls;
};

class Handle {
public:
    Handle(const std::string& path, DWORD access, DWORD share)
        : m_handle(CreateFileA(path.c_str(), access, share, nullptr, OPEN_ALWAYS, 0, nullptr))
    {
        EXPECT_NE(INVALID_HANDLE_VALUE, m_handle);
    }
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    void Close()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
            CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
    }
    BY_HANDLE_FILE_INFORMATION Information() const
    {
        BY_HANDLE_FILE_INFORMATION information{};
        GetFileInformationByHandle(m_handle, &information);
        return information;
    }

private:
    HANDLE m_handle;
};

DWORD IndexOf(const std::string& path)
{
    return Handle(path, GENERIC_READ, kShareAll).Information().nFileIndexLow;
}

// ---- what is saved ----

TEST_F(FileStep, SavesWhatThePlatformWrites)
{
    folder.Write(kOld);
    ExpectSaved(Save());
}

TEST_F(FileStep, MakesAFileThatIsNotThere)
{
    EXPECT_EQ(SaveFailure::None, Save().failure);
    EXPECT_EQ("[A]\r\nFirst=10\r\nSecond=2\r\nThird=30\r\n[C]\r\nFourth=40\r\n", folder.Read());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
}

TEST_F(FileStep, GivesTheBytesOfTheBareCallsWhateverTheFileHolds)
{
    std::string wide = "\xFF\xFE";
    for (const char character : kOld)
        wide += {character, '\0'};
    std::string high;
    for (int code = 128; code < 256; ++code)
        high += static_cast<char>(code);
    for (const std::string& old :
         {kOld, std::string(), "[A]\nFirst=10\n"s, "[a]\r\nFIRST=1\r\n"s,
          "  [A] junk\r\n first = 1 \r\n\r\n\r\n;x\r\n"s,
          "First=1\r\n[A]\r\nFirst=\"10\"\r\nFirst=5\r\n[A]\r\nThird=30\r\n"s, "[C]\r\nFourth=40"s, wide,
          "[A]\r\n" + high + "=" + high + "\r\n", "\xEF\xBB\xBF[A]\r\nFirst=1\r\n"s, "no settings at all\r\n"s,
          std::string(100'000, '[') + "\r\n"}) {
        folder.Write(old);
        EXPECT_EQ(SaveFailure::None, Save().failure);
        Bare bare(folder, old);
        for (const pelmar::ProfileEntry& entry : kEntries)
            bare.Put(entry.section.c_str(), entry.key->c_str(), entry.text->c_str());
        EXPECT_EQ(bare.Bytes(), folder.Read()) << old.substr(0, 40);
    }
}

TEST_F(FileStep, WritesInTheirOrderAndTheLastOneCounts)
{
    folder.Write("[A]\r\nFirst=10\r\n");
    Save(folder.file, {{"A", "First", "1"}, {"A", "Second", "2"}, {"a", "FIRST", "10"}, {"A", "Second", "3"}});
    EXPECT_EQ("[A]\r\nFirst=10\r\nSecond=3\r\n", folder.Read());
}

TEST_F(FileStep, DeletesKeysAndSections)
{
    folder.Write(kOld);
    Save(folder.file, {{"A", std::nullopt, std::nullopt}, {"A", "Second", "2"}, {"B", "Other", std::nullopt}});
    EXPECT_EQ(Bare(folder, kOld).Put("A", nullptr, nullptr).Put("A", "Second", "2").Put("B", "Other", nullptr).Bytes(),
              folder.Read());
    EXPECT_EQ(std::string::npos, folder.Read().find("First"));
}

TEST_F(FileStep, LeavesAFileAloneInWhichNothingChanges)
{
    folder.Write(kNew);
    const DWORD before = IndexOf(folder.file);
    calls.before = [](const Call& call) { EXPECT_FALSE(call.IsOn(".new")) << "no copy is made"; };
    ExpectSaved(Save());
    EXPECT_EQ(before, IndexOf(folder.file));
    calls.before = nullptr;
    folder.Write(kOld);
    const DWORD other = IndexOf(folder.file);
    ExpectSaved(Save());
    EXPECT_NE(other, IndexOf(folder.file)) << "what is changed is another file";
}

TEST_F(FileStep, LeavesALineAloneThatThePlatformWritesAsItStands)
{
    folder.Write("[A]\r\nFirst=\"10\"\r\n"); // read without the quotes, but not written so
    const std::string longText(20'000, 'v');
    Save(folder.file, {{"A", "First", "\"10\""}});
    EXPECT_EQ("[A]\r\nFirst=\"10\"\r\n", folder.Read());
    Save(folder.file, {{"A", "First", "10"}, {"A", "Long", longText}});
    Save(folder.file, {{"A", "Last", "1"}, {"A", "Long", longText}});
    EXPECT_EQ("[A]\r\nFirst=10\r\nLong=" + longText + "\r\nLast=1\r\n", folder.Read());
}

TEST_F(FileStep, TakesNoOtherLineForTheOneThatItWrites)
{
    folder.Write("[A]\r\nFirst=abc\r\nSecond=1\r\n");
    Save(folder.file, {{"A", "First", "ABC"}, {"A", "Second", std::nullopt}, {"A", "Second", "1"}});
    EXPECT_EQ("[A]\r\nFirst=ABC\r\nSecond=1\r\n", folder.Read());
}

TEST_F(FileStep, TakesALineThatIsCutOffAtTheEndOfALongSectionForNoOther)
{
    // The platform tells as much of a section as there is room for, a million bytes here, each line with a zero.
    constexpr std::size_t kRoom = 1 << 20;
    constexpr std::size_t kLine = 1000;
    for (std::size_t zeros = 0; zeros < 4; ++zeros) {
        const std::size_t before = kRoom - zeros - std::string("Key=1").size();
        std::string text =
            "[A]\r\nL=" + std::string(before % kLine + kLine - std::string("L=").size() - 1, 'x') + "\r\n";
        for (std::size_t line = 1; line < before / kLine; ++line)
            text += "L=" + std::string(kLine - std::string("L=").size() - 1, 'x') + "\r\n";
        folder.Write(text + "Key=10\r\n");
        Save(folder.file, {{"A", "Key", "1"}});
        EXPECT_TRUE(folder.Read().ends_with("\r\nKey=1\r\n")) << zeros;
    }
}

// ---- names, attributes, rights ----

TEST_F(FileStep, ShowsNoOtherSettingsFileWhileItWorks)
{
    folder.Write(kOld);
    std::set<std::string> seen;
    size_t beside = 0;
    bool isLocked = true;
    calls.before = [&](const Call& call) {
        if (call.name == "WritePrivateProfileString") {
            const HANDLE lock = CreateFileA((folder.file + ".lock").c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                            OPEN_EXISTING, 0, nullptr);
            isLocked = isLocked && lock == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
        }
        WIN32_FIND_DATAA found{};
        const HANDLE search = FindFirstFileA((folder.folder + "*.INI").c_str(), &found);
        do
            seen.insert(found.cFileName);
        while (FindNextFileA(search, &found));
        FindClose(search);
        beside = std::max(beside, folder.Names().size());
    };
    ExpectSaved(Save());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, seen);
    EXPECT_EQ(3u, beside) << "the file, its lock and its copy";
    EXPECT_TRUE(isLocked);
}

TEST_F(FileStep, ClearsTheCopiesOfKilledProcessesAndNothingElse)
{
    folder.Write(kOld);
    const std::set<std::string> others = {"CURRENT.INI.new",           "CURRENT.INI.1234567.new",
                                          "OTHER.INI.12345678.new",    "CURRENT.INI.12345678.old",
                                          "CURRENT.INI.1234567g.new",  "CURRENT.INI",
                                          "XCURRENT.INI.12345678.new", "CURRENT.INI.123456789.new"};
    for (const std::string& name : others)
        WriteBytes(folder.folder + name, kOld);
    for (const char* const copy : {"CURRENT.INI.12345678.new", "CURRENT.INI.deadbeef.new"})
        WriteBytes(folder.folder + copy, "[A]\r\n");
    Save();
    EXPECT_EQ(kNew, folder.Read());
    EXPECT_EQ(others, folder.Names());
}

TEST_F(FileStep, ALockFileThatNobodyHoldsIsTakenOver)
{
    folder.Write(kOld);
    WriteBytes(folder.file + ".lock", "left behind");
    ExpectSaved(Save());
}

TEST_F(FileStep, KeepsAReadOnlyFileAsItIs)
{
    folder.Write(kOld);
    SetFileAttributesA(folder.file.c_str(), FILE_ATTRIBUTE_READONLY);
    ExpectRefused(Save(), SaveFailure::ReadOnly, ERROR_ACCESS_DENIED);
    EXPECT_NE(0u, GetFileAttributesA(folder.file.c_str()) & FILE_ATTRIBUTE_READONLY);
    SetFileAttributesA(folder.file.c_str(), FILE_ATTRIBUTE_NORMAL);
    ExpectSaved(Save());
}

DWORD g_attributesOfCopy = 0;

/// Not every file system behind Wine keeps such attributes.
TEST_F(FileStep, CarriesTheAttributesOver)
{
    folder.Write(kOld);
    pelmar::Files().fileAttributes = [](const char* path) -> DWORD {
        return GetFileAttributesA(path) | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    };
    pelmar::Files().setFileAttributes = [](const char* path, DWORD attributes) -> BOOL {
        g_attributesOfCopy = Call{"", path}.IsOn(".new") ? attributes : 0;
        return TRUE;
    };
    ExpectSaved(Save());
    EXPECT_EQ(DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE}, g_attributesOfCopy);
}

std::vector<char> g_longList;
std::vector<char> g_listOfCopy;

/// A descriptor of more bytes than a save expects at first.
std::vector<char> LongList()
{
    std::vector<DWORD> memory(500);
    auto* const list = reinterpret_cast<ACL*>(memory.data());
    EXPECT_TRUE(InitializeAcl(list, 2000, ACL_REVISION));
    SECURITY_DESCRIPTOR descriptor{};
    EXPECT_TRUE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
    EXPECT_TRUE(SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE));
    std::vector<char> bytes(3000);
    auto size = static_cast<DWORD>(bytes.size());
    EXPECT_TRUE(MakeSelfRelativeSD(&descriptor, bytes.data(), &size));
    bytes.resize(GetSecurityDescriptorLength(bytes.data()));
    return bytes;
}

TEST_F(FileStep, CarriesALongAccessListOver)
{
    folder.Write(kOld);
    g_longList = LongList();
    g_listOfCopy.clear();
    pelmar::Files().fileSecurity = [](const char* path, SECURITY_INFORMATION what, void* list, DWORD size,
                                      DWORD* needed) -> BOOL {
        if (Call{"", path}.IsOn(".new"))
            return GetFileSecurityA(path, what, list, size, needed);
        *needed = static_cast<DWORD>(g_longList.size());
        if (size < g_longList.size()) {
            SetLastError(ERROR_INSUFFICIENT_BUFFER);
            return FALSE;
        }
        std::ranges::copy(g_longList, static_cast<char*>(list));
        return TRUE;
    };
    pelmar::Files().setFileSecurity = [](const char*, SECURITY_INFORMATION, void* list) -> BOOL {
        const auto* const bytes = static_cast<const char*>(list);
        g_listOfCopy.assign(bytes, bytes + GetSecurityDescriptorLength(list));
        return TRUE;
    };
    ExpectSaved(Save());
    EXPECT_EQ(g_longList, g_listOfCopy);
}

/// The access list as bytes.
std::vector<char> RightsOf(const std::string& path)
{
    std::vector<char> rights(1000);
    DWORD size = 0;
    EXPECT_TRUE(GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), 1000, &size));
    rights.resize(size);
    return rights;
}

/// A file that the world may read, to be made one that only its owner may.
void KeepFromTheWorld(const std::string& path)
{
    std::array<char, 1000> buffer{};
    DWORD size = 0;
    ASSERT_TRUE(GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, buffer.data(), 1000, &size));
    BOOL hasList = FALSE;
    BOOL isDefault = FALSE;
    ACL* list = nullptr;
    ASSERT_TRUE(GetSecurityDescriptorDacl(buffer.data(), &hasList, &list, &isDefault));
    ASSERT_TRUE(hasList && list && list->AceCount == 3) << "the system's, the owner's and the world's";
    ASSERT_TRUE(DeleteAce(list, list->AceCount - 1u)); // the world's comes last
    ASSERT_TRUE(SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, buffer.data()));
}

TEST_F(FileStep, CarriesTheAccessListOver)
{
    folder.Write(kOld);
    const std::vector<char> usual = RightsOf(folder.file);
    KeepFromTheWorld(folder.file);
    const std::vector<char> rights = RightsOf(folder.file);
    ASSERT_NE(usual, rights);
    ExpectSaved(Save());
    EXPECT_EQ(rights, RightsOf(folder.file));
}

TEST_F(FileStep, WritesInPlaceWhereTheCopyMayNotHaveTheAccessList)
{
    folder.Write(kOld);
    KeepFromTheWorld(folder.file);
    const std::vector<char> rights = RightsOf(folder.file);
    const DWORD before = IndexOf(folder.file);
    calls.fails = [](const Call& call) { return call.name == "SetFileSecurity" ? ERROR_INVALID_OWNER : 0; };
    ExpectSaved(Save());
    EXPECT_EQ(before, IndexOf(folder.file));
    EXPECT_EQ(rights, RightsOf(folder.file));
}

TEST_F(FileStep, DoesWithoutAccessListsWhereThereAreNone)
{
    folder.Write(kOld);
    calls.fails = [](const Call& call) { return call.name == "GetFileSecurity" ? ERROR_NOT_SUPPORTED : 0; };
    ExpectSaved(Save());
}

/// The clock of the file system goes in steps.
TEST_F(FileStep, ALaterVersionHasALaterTimeHoweverSoonItComes)
{
    folder.Write(kOld);
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    ULARGE_INTEGER soon{{now.dwLowDateTime, now.dwHighDateTime}};
    soon.QuadPart += 5'000'000;
    FILETIME last{soon.LowPart, soon.HighPart};
    {
        const HANDLE file =
            CreateFileA(folder.file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &last));
        CloseHandle(file);
    }
    for (int round = 0; round < 5; ++round) {
        Save(folder.file, {{"A", "First", std::to_string(round)}});
        const FILETIME time = Handle(folder.file, GENERIC_READ, kShareAll).Information().ftLastWriteTime;
        EXPECT_EQ(1, CompareFileTime(&time, &last));
        last = time;
    }
}

// ---- places that are none ----

TEST_F(FileStep, TellsOfAPathThatNoFileCanHave)
{
    for (const std::string& path : {std::string(), std::string(MAX_PATH, 'x'), folder.folder + std::string(300, 'x')}) {
        const SaveOutcome outcome = Save(path);
        EXPECT_EQ(SaveFailure::NotAFile, outcome.failure);
        EXPECT_EQ(DWORD{ERROR_FILENAME_EXCED_RANGE}, outcome.systemError);
        EXPECT_EQ(path.substr(0, SaveOutcome::kPathCapacity - 1), outcome.file);
    }
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(FileStep, TellsOfAFolderInTheFilesPlace)
{
    CreateDirectoryA(folder.file.c_str(), nullptr);
    const SaveOutcome outcome = Save();
    EXPECT_EQ(SaveFailure::NotAFile, outcome.failure);
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
}

TEST_F(FileStep, TellsOfAMissingFolder)
{
    const std::string file = folder.folder + "Gone\\CURRENT.INI";
    const SaveOutcome outcome = Save(file);
    EXPECT_EQ(SaveFailure::FolderMissing, outcome.failure);
    EXPECT_EQ(DWORD{ERROR_PATH_NOT_FOUND}, outcome.systemError);
    EXPECT_EQ(file, outcome.file);
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(FileStep, TellsOfAFileThatIsTooLarge)
{
    folder.Write(kOld);
    pelmar::Files().fileInformation = [](HANDLE file, BY_HANDLE_FILE_INFORMATION* information) -> BOOL {
        const BOOL isTold = GetFileInformationByHandle(file, information);
        information->nFileSizeHigh = 1;
        return isTold;
    };
    ExpectRefused(Save(), SaveFailure::Reading, ERROR_FILE_TOO_LARGE);
}

/// As the platform may do on a full disk.
BOOL WINAPI CutOffWithoutAWord(const char* section, const char* key, const char* text, const char* path)
{
    const BOOL isWritten = WritePrivateProfileStringA(section, key, text, path);
    const std::string bytes = ReadBytes(path);
    WriteBytes(path, bytes.substr(0, bytes.size() / 2));
    return isWritten;
}

TEST_F(FileStep, ACopyThatTheFullDiskCutOffWithoutAWordTakesNobodysPlace)
{
    folder.Write(kOld);
    pelmar::Files().writeProfile = CutOffWithoutAWord;
    int written = 0;
    calls.fails = [&](const Call& call) {
        return call.name == "WriteFile" && ++written > 1 ? DWORD{ERROR_DISK_FULL} : 0;
    };
    ExpectRefused(Save(), SaveFailure::Writing, ERROR_DISK_FULL);
}

TEST_F(FileStep, TellsOfAFolderThatGoesWhileItWorks)
{
    folder.Write(kOld);
    calls.fails = [](const Call& call) { return call.name == "CreateFile" ? ERROR_PATH_NOT_FOUND : 0; };
    ExpectRefused(Save(), SaveFailure::FolderMissing, ERROR_PATH_NOT_FOUND);
}

TEST_F(FileStep, ALongNameThatLeavesNoRoomForACopysIsWrittenInPlace)
{
    const std::string file = folder.folder + std::string(MAX_PATH - 1 - folder.folder.size() - 4, 'n') + ".INI";
    ASSERT_EQ(MAX_PATH - 1u, file.size());
    EXPECT_EQ(SaveFailure::None, Save(file, {{"A", "First", "1"}}).failure);
    EXPECT_EQ(SaveFailure::None, Save(file, {{"A", "Second", "2"}}).failure);
    EXPECT_EQ("[A]\r\nFirst=1\r\nSecond=2\r\n", ReadBytes(file));
    EXPECT_EQ(1u, folder.Names().size());
}

// ---- others that use the file ----

TEST_F(FileStep, WaitsForAnotherSaveToEnd)
{
    folder.Write(kOld);
    Handle lock(folder.file + ".lock", GENERIC_WRITE, 0);
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept == 30) {
            lock.Close();
            DeleteFileA((folder.file + ".lock").c_str());
        }
    };
    ExpectSaved(Save());
    EXPECT_EQ(30, slept);
}

TEST_F(FileStep, GivesUpOnASaveThatDoesNotEndAfterFiveSeconds)
{
    folder.Write(kOld);
    const std::string lock = folder.file + ".lock";
    {
        const Handle held(lock, GENERIC_WRITE, 0);
        const std::uint64_t start = calls.Now();
        const SaveOutcome outcome = Save();
        EXPECT_NEAR(5000.0, static_cast<double>(calls.Now() - start), 100.0);
        EXPECT_EQ(SaveFailure::Waiting, outcome.failure);
        EXPECT_EQ(DWORD{ERROR_SHARING_VIOLATION}, outcome.systemError);
        EXPECT_EQ(kOld, folder.Read());
    }
    DeleteFileA(lock.c_str());
    ExpectSaved(Save());
}

TEST_F(FileStep, WaitsForReadersToLetGo)
{
    folder.Write(kOld);
    Handle reader(folder.file, GENERIC_READ, kShareAll);
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept == 30)
            reader.Close();
    };
    ExpectSaved(Save());
}

TEST_F(FileStep, GivesUpOnAReaderThatDoesNotLetGo)
{
    folder.Write(kOld);
    const Handle reader(folder.file, GENERIC_READ, kShareAll);
    const std::uint64_t start = calls.Now();
    ExpectRefused(Save(), SaveFailure::Replacing, ERROR_ACCESS_DENIED);
    EXPECT_NEAR(5000.0, static_cast<double>(calls.Now() - start), 100.0);
}

TEST_F(FileStep, GivesUpOnAProgramThatWritesToTheFile)
{
    folder.Write(kOld);
    const Handle writer(folder.file, GENERIC_READ | GENERIC_WRITE, kShareAll);
    ExpectRefused(Save(), SaveFailure::Reading, ERROR_SHARING_VIOLATION);
}

TEST_F(FileStep, LosesNothingThatSomebodyWritesWhileItTriesAgain)
{
    folder.Write(kOld);
    int moves = 0;
    calls.fails = [&](const Call& call) {
        return call.name == "MoveFile" && ++moves == 1 ? DWORD{ERROR_ACCESS_DENIED} : 0;
    };
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept == 1)
            WritePrivateProfileStringA("B", "Other", "written meanwhile", folder.file.c_str());
    };
    EXPECT_EQ(SaveFailure::None, Save().failure);
    Bare bare(folder, kOld);
    bare.Put("B", "Other", "written meanwhile");
    for (const pelmar::ProfileEntry& entry : kEntries)
        bare.Put(entry.section.c_str(), entry.key->c_str(), entry.text->c_str());
    EXPECT_EQ(bare.Bytes(), folder.Read());
    EXPECT_EQ(2, moves);
}

TEST_F(FileStep, DoesNotReplaceWhatIsBeingWritten)
{
    folder.Write(kOld);
    std::optional<Handle> writer;
    int slept = 0;
    int moves = 0;
    calls.fails = [&](const Call& call) {
        return call.name == "MoveFile" && ++moves == 1 ? DWORD{ERROR_ACCESS_DENIED} : 0;
    };
    calls.whileSleeping = [&] {
        if (++slept == 1)
            writer.emplace(folder.file, GENERIC_WRITE, 0);
        if (slept == 10)
            writer.reset();
    };
    ExpectSaved(Save());
    EXPECT_EQ(2, moves) << "while the other wrote it was not tried";
}

TEST_F(FileStep, AScannerThatLooksAtTheCopyIsWaitedFor)
{
    folder.Write(kOld);
    std::optional<Handle> scanner;
    calls.before = [&](const Call& call) {
        if (call.name == "WritePrivateProfileString" && !scanner)
            scanner.emplace(call.path, GENERIC_READ, FILE_SHARE_READ);
    };
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept % 5 == 0)
            scanner->Close();
    };
    ExpectSaved(Save());
    EXPECT_EQ(5, slept);
}

// ---- folders in which nobody may make a file ----

class ClosedFolder : public FileStep {
protected:
    ClosedFolder()
    {
        folder.Write(kOld);
        calls.fails = [](const Call& call) {
            const bool isNew = call.IsOn("CURRENT.INI.") && call.name == "CreateFile";
            return isNew ? DWORD{ERROR_ACCESS_DENIED} : 0;
        };
    }
};

TEST_F(ClosedFolder, TheFileIsWrittenInPlaceAtOnce)
{
    const DWORD before = IndexOf(folder.file);
    const std::uint64_t start = calls.Now();
    ExpectSaved(Save());
    EXPECT_EQ(before, IndexOf(folder.file));
    EXPECT_EQ(start, calls.Now());
}

TEST_F(ClosedFolder, AFileInWhichNothingChangesIsNotWritten)
{
    folder.Write(kNew);
    int written = 0;
    calls.before = [&](const Call& call) { written += call.name == "WriteFile"; };
    ExpectSaved(Save());
    EXPECT_EQ(2, written) << "the copy elsewhere and its reserve";
}

TEST_F(ClosedFolder, AShorterFileIsCutOff)
{
    Save(folder.file, {{"A", std::nullopt, std::nullopt}});
    EXPECT_EQ(Bare(folder, kOld).Put("A", nullptr, nullptr).Bytes(), folder.Read());
}

TEST_F(ClosedFolder, NobodyElseGetsAtTheFileMeanwhile)
{
    bool isHeld = false;
    calls.before = [&](const Call& call) {
        if (call.name != "WritePrivateProfileString")
            return;
        const HANDLE other =
            CreateFileA(folder.file.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
        isHeld = other == INVALID_HANDLE_VALUE;
        CloseHandle(other);
    };
    ExpectSaved(Save());
    EXPECT_TRUE(isHeld);
}

TEST_F(ClosedFolder, AFileThatMayNotBeWrittenEitherIsToldOf)
{
    const auto closed = calls.fails;
    calls.fails = [&](const Call& call) {
        return call.name == "CreateFile" && call.path == folder.file ? DWORD{ERROR_ACCESS_DENIED} : closed(call);
    };
    ExpectRefused(Save(), SaveFailure::Copying, ERROR_ACCESS_DENIED);
}

TEST_F(ClosedFolder, AFileInUseIsWaitedForAndToldOf)
{
    Handle reader(folder.file, GENERIC_READ, FILE_SHARE_READ);
    ExpectRefused(Save(), SaveFailure::Reading, ERROR_SHARING_VIOLATION);
    int slept = 0;
    calls.whileSleeping = [&] {
        if (++slept == 10)
            reader.Close();
    };
    ExpectSaved(Save());
}

int g_written = 0;

/// The third piece is the file itself: the copy and its reserve come before it.
BOOL WINAPI WriteHalfOfTheThird(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped)
{
    return WriteFile(file, bytes, ++g_written == 3 ? size / 2 : size, written, overlapped);
}

TEST_F(ClosedFolder, AFullDiskLeavesTheOldFile)
{
    g_written = 0;
    pelmar::Files().writeFile = WriteHalfOfTheThird;
    ExpectRefused(Save(), SaveFailure::Writing, ERROR_DISK_FULL);
    EXPECT_EQ(4, g_written) << "the old bytes once more";
}

TEST_F(ClosedFolder, ADamagedFileThatCannotBeKeptAsideIsNotBuried)
{
    folder.Write("[A]\r\nFirst=1\r\nSec");
    const SaveOutcome outcome = Save();
    EXPECT_EQ(SaveFailure::KeepingAside, outcome.failure);
    EXPECT_EQ(DWORD{ERROR_ACCESS_DENIED}, outcome.systemError);
    EXPECT_EQ("[A]\r\nFirst=1\r\nSec", folder.Read());
}

TEST_F(FileStep, AFileThatMayBeWrittenButNotReplacedIsWrittenInPlaceSoon)
{
    folder.Write(kOld);
    const DWORD before = IndexOf(folder.file);
    const std::uint64_t start = calls.Now();
    calls.fails = [](const Call& call) { return call.name == "MoveFile" ? DWORD{ERROR_ACCESS_DENIED} : 0; };
    ExpectSaved(Save());
    EXPECT_EQ(before, IndexOf(folder.file));
    EXPECT_LT(calls.Now() - start, 1000u);
}

TEST_F(FileStep, ALinkIsWrittenThrough)
{
    folder.Write(kOld);
    const DWORD before = IndexOf(folder.file);
    pelmar::Files().fileAttributes = [](const char* path) -> DWORD {
        return GetFileAttributesA(path) | FILE_ATTRIBUTE_REPARSE_POINT;
    };
    ExpectSaved(Save());
    EXPECT_EQ(before, IndexOf(folder.file));
    folder.Write(kOld + "Sec");
    EXPECT_EQ(kOld + "Sec", ReadBytes(Save().keptAside));
}

// ---- damaged files ----

const std::regex kKeptName("CURRENT\\.INI\\.[0-9]{4}-[0-9]{2}-[0-9]{2}(-[0-9]+)?\\.damaged");

class DamagedFileStep : public FileStep, public testing::WithParamInterface<std::string> {};

TEST_P(DamagedFileStep, IsKeptAsideByTheFirstSaveAndByNoOther)
{
    folder.Write(GetParam());
    const SaveOutcome outcome = Save();
    EXPECT_EQ(SaveFailure::None, outcome.failure);
    const std::string kept = outcome.keptAside;
    ASSERT_EQ(folder.folder, kept.substr(0, folder.folder.size()));
    EXPECT_TRUE(std::regex_match(kept.substr(folder.folder.size()), kKeptName)) << kept;
    EXPECT_EQ(GetParam(), ReadBytes(kept));
    EXPECT_EQ(2u, folder.Names().size());
    EXPECT_EQ(40, static_cast<int>(GetPrivateProfileIntA("C", "Fourth", 0, folder.file.c_str())));

    EXPECT_STREQ("", Save(folder.file, {{"C", "Fourth", "41"}}).keptAside);
    EXPECT_EQ(2u, folder.Names().size());
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedFileStep,
                         testing::Values(std::string(512, '\0'), kOld + std::string(100, '\0'), kOld + "[C]\r\nFou",
                                         kNew + "[D", kNew + "\0\0"s));

TEST_F(FileStep, KeepsTheLinesOfADamagedFile)
{
    folder.Write("[A]\r\nFirst=1\r\n\0\0\0\0[B]\r\nOther=3\r\nNext"s);
    Save();
    EXPECT_EQ("[A]\r\nFirst=10\r\nSecond=2\r\nThird=30\r\n[B]\r\nOther=3\r\nNext\r\n[C]\r\nFourth=40\r\n",
              folder.Read());
    folder.Write("[A]\r\nFirst=10\0\0\0000\r\n"s); // the platform stops at the zeros
    Save(folder.file, {{"A", "First", "10"}});
    EXPECT_EQ("[A]\r\nFirst=10\r\n", folder.Read());
}

TEST_F(FileStep, KeepsADamagedFileAsideOnceWhateverIsWrittenMeanwhile)
{
    folder.Write(kOld + "Sec");
    int moves = 0;
    calls.fails = [&](const Call& call) {
        return call.name == "MoveFile" && ++moves == 1 ? DWORD{ERROR_ACCESS_DENIED} : 0;
    };
    calls.whileSleeping = [&] { folder.Write(kOld + "Third"); };
    EXPECT_EQ(kOld + "Third", ReadBytes(Save().keptAside));
    EXPECT_EQ(2u, folder.Names().size());
}

TEST_F(FileStep, KeepsADamagedFileAsideUnderANameOfItsOwn)
{
    std::set<std::string> names = {"CURRENT.INI"};
    for (int damage = 0; damage < 3; ++damage) {
        const std::string bytes = "[A]\r\nFirst=" + std::to_string(damage) + "\r\nSec";
        folder.Write(bytes);
        const std::string kept = Save().keptAside;
        EXPECT_EQ(bytes, ReadBytes(kept));
        EXPECT_TRUE(names.insert(kept.substr(folder.folder.size())).second);
    }
    EXPECT_EQ(names, folder.Names());
    for (const std::string& name : names)
        EXPECT_TRUE(name == "CURRENT.INI" || std::regex_match(name, kKeptName)) << name;
}

TEST_F(FileStep, KeepsADamagedFileAsideOnceItIsSaved)
{
    const std::string damaged = kOld + "Sec";
    folder.Write(damaged);
    const Handle reader(folder.file, GENERIC_READ, kShareAll);
    const SaveOutcome outcome = Save();
    EXPECT_EQ(SaveFailure::Replacing, outcome.failure);
    EXPECT_STREQ("", outcome.keptAside);
    EXPECT_EQ(damaged, folder.Read());
    EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
}

// ---- every call ----

constexpr DWORD kErrors[] = {ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_DISK_FULL};

class EveryCall : public FileStep, public testing::WithParamInterface<DWORD> {
protected:
    /// Has the calls fail that `isHit` tells, by the number of the call, and looks at what is left. False where none
    /// was hit.
    template <class IsHit> bool Try(IsHit isHit)
    {
        folder.Write(kOld);
        int made = 0;
        std::string hit;
        calls.fails = [&](const Call& call) {
            if (!isHit(++made, call))
                return DWORD{0};
            hit = call.name;
            return GetParam();
        };
        const SaveOutcome outcome = Save();
        calls.fails = nullptr;
        SCOPED_TRACE(hit + ", call " + std::to_string(made));
        const bool isSaved = outcome.failure == SaveFailure::None;
        EXPECT_EQ(isSaved ? kNew : kOld, folder.Read());
        EXPECT_EQ(isSaved, outcome.systemError == 0);
        EXPECT_EQ(folder.file, outcome.file);
        if (hit != "DeleteFile") {
            EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names());
        }
        if (!isSaved)
            m_refusals.insert(hit);
        ExpectSaved(Save());
        return !hit.empty();
    }

    std::set<std::string> m_refusals;
};

TEST_P(EveryCall, MayFailOnceAndTheFileIsOldOrNewAsTheOutcomeTells)
{
    int number = 1;
    while (Try([&](int made, const Call&) { return made == number; }))
        ++number;
    EXPECT_LT(20, number);
    EXPECT_EQ(GetParam() != ERROR_SHARING_VIOLATION, m_refusals.contains("WritePrivateProfileString"));
    EXPECT_TRUE(m_refusals.contains("FlushFileBuffers"));
}

TEST_P(EveryCall, MayGoOnFailing)
{
    for (int number = 1;; ++number) {
        std::string failing;
        const auto isHit = [&](int made, const Call& call) {
            if (made == number)
                failing = call.name;
            return call.name == failing;
        };
        if (!Try(isHit))
            break;
    }
    EXPECT_TRUE(m_refusals.contains("WritePrivateProfileString"));
    EXPECT_EQ(GetParam() != ERROR_ACCESS_DENIED, m_refusals.contains("MoveFile")) << "or written in place";
}

INSTANTIATE_TEST_SUITE_P(Errors, EveryCall, testing::ValuesIn(kErrors));

TEST(KilledSave, LeavesTheOldFileOrTheNewOneWhereverItIsKilled)
{
    const SettingsFolder folder;
    std::set<std::string> left;
    for (int call = 1;; ++call) {
        folder.Write(kOld);
        bool isDead = false;
        {
            FileCalls calls;
            calls.killedAt = call;
            pelmar::SaveInOneStep(folder.file, kEntries, calls.Now() + kPatience);
            isDead = calls.IsDead();
        }
        left.insert(folder.Read());
        EXPECT_TRUE(folder.Read() == kOld || folder.Read() == kNew) << call;
        EXPECT_FALSE(folder.Names().contains("CURRENT.INI.lock")) << call;
        EXPECT_EQ(SaveFailure::None, pelmar::SaveInOneStep(folder.file, kEntries, 0).failure);
        EXPECT_EQ(kNew, folder.Read()) << call;
        EXPECT_EQ(std::set<std::string>{"CURRENT.INI"}, folder.Names()) << call;
        if (!isDead)
            break;
    }
    EXPECT_EQ((std::set<std::string>{kOld, kNew}), left);
}

} // namespace
