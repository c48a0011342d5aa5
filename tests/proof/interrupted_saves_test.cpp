// Hosts that are killed while they save, and hosts that save at once: the settings file is always a whole one.
#include <array>
#include <chrono>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "option_pages.h"
#include "settings_text.h"
#include "ui/process.h"
#include "ui/ui_thread.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

int FromEnvironment(const char* name, int usual)
{
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : usual;
}

/// An event that the processes started after it inherit.
class Event {
public:
    Event()
    {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        m_handle = CreateEvent(&inherited, TRUE, FALSE, nullptr);
    }
    ~Event() { CloseHandle(m_handle); }
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    void Set() const { SetEvent(m_handle); }
    bool Wait() const { return WaitForSingleObject(m_handle, ui::kLimitMilliseconds) == WAIT_OBJECT_0; }
    std::string Text() const { return std::to_string(reinterpret_cast<UINT_PTR>(m_handle)); }

private:
    HANDLE m_handle;
};

/// A host that saves, as a process of its own; gone with the object.
class SavingHost {
public:
    SavingHost(const std::string& what, const std::string& rounds)
    {
        const std::string command =
            ProgramFolder() + "saving_host.exe " + what + " " + m_ready.Text() + " " + m_go.Text() + " " + rounds;
        m_process = ui::StartProcess(std::wstring(command.begin(), command.end()), nullptr, ui::Inherits::Handles);
    }
    ~SavingHost()
    {
        Kill();
        CloseHandle(m_process.hThread);
        CloseHandle(m_process.hProcess);
    }
    SavingHost(const SavingHost&) = delete;
    SavingHost& operator=(const SavingHost&) = delete;

    bool WaitUntilReady() const { return m_ready.Wait(); }
    void Go() const { m_go.Set(); }
    void Kill() const
    {
        TerminateProcess(m_process.hProcess, 1);
        WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds);
    }
    bool HasEnded() const { return WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; }
    DWORD ExitCode() const
    {
        DWORD code = STILL_ACTIVE;
        GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    Event m_ready;
    Event m_go;
    PROCESS_INFORMATION m_process{};
};

/// The same with every number another one.
std::string WithOtherValues(const std::string& file)
{
    std::vector<Entry> entries = EntriesOf(file);
    for (Entry& entry : entries)
        if (entry.key != "Units")
            entry.text = entry.text.starts_with('1') ? "2" + entry.text.substr(1) : "1";
    return FileOf(entries);
}

/// To the microsecond: a thread that sleeps wakes up later than that.
void WaitUntil(Clock::time_point end)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    if (left > 2)
        Sleep(static_cast<DWORD>(left - 2));
    while (Clock::now() < end) {
    }
}

/// One way of saving, and how often the host is killed in it unless the environment says otherwise.
struct WayOfSaving {
    std::string what;
    int kills;
};

class KilledHost : public testing::TestWithParam<WayOfSaving> {
protected:
    KilledHost()
    {
        const size_t count = GetParam().what == "all" ? OptionPages().size() : 1;
        records = OptionPages().first(count);
        host.WriteDefaults("");
        before = Saved();
        host.WriteDefaults(WithOtherValues(before));
        const Clock::time_point start = Clock::now();
        after = Saved();
        host.WriteSettings(before);
        saveTime = Clock::now() - start;
    }
    ~KilledHost() override
    {
        host.WriteDefaults("");
        Saved();
    }

    /// What the records save of the defaults.
    std::string Saved() const
    {
        for (const OptionPage& record : records)
            record.defaults();
        host.WriteSettings("");
        SaveAll();
        return host.ReadSettings();
    }
    void SaveAll() const
    {
        pelmar::SaveStep step;
        for (const OptionPage& record : records)
            record.save();
        EXPECT_TRUE(step.Commit());
    }
    /// What stands beside the settings files.
    size_t OthersInFolder() const
    {
        size_t count = 0;
        for (const fs::directory_entry& entry : fs::directory_iterator(host.folder + "\\NC")) {
            const std::string name = entry.path().filename().string();
            count += name != "CURRENT.INI" && name != "DEFAULT.INI";
            EXPECT_FALSE(name.ends_with(".lock")) << "a dead process holds nobody up";
        }
        return count;
    }

    HostFolder host;
    std::span<const OptionPage> records;
    std::string before;
    std::string after;
    Clock::duration saveTime{};
};

TEST_P(KilledHost, LeavesTheSettingsAsTheyWereOrAsItSavesThem)
{
    constexpr size_t kStartedAhead = 3;
    const int kills = FromEnvironment("PELMAR_KILLS", GetParam().kills);
    std::mt19937 random(std::random_device{}());
    std::uniform_real_distribution<> share(0, 1);
    // How long a save takes depends on what else the machine does: half of the kills shall come too late.
    double latest = static_cast<double>(saveTime.count());
    std::deque<SavingHost> hosts;
    int old = 0;
    int saved = 0;
    int broken = 0;
    size_t abandoned = 0;
    ASSERT_NE(before, after);
    for (int kill = 0; kill < kills; ++kill) {
        while (hosts.size() < kStartedAhead)
            hosts.emplace_back("once " + GetParam().what, "");
        ASSERT_TRUE(hosts.front().WaitUntilReady());
        host.WriteSettings(before);
        const Clock::time_point end = Clock::now() + Clock::duration(static_cast<Clock::rep>(latest * share(random)));
        hosts.front().Go();
        WaitUntil(end);
        hosts.front().Kill();
        hosts.pop_front();
        const std::string left = host.ReadSettings();
        latest *= left == before ? 1.15 : 0.87;
        old += left == before;
        saved += left == after;
        broken += left != before && left != after;
        abandoned += OthersInFolder();
        if (kill % 10 == 9) {
            SaveAll();
            EXPECT_EQ(after, host.ReadSettings());
            EXPECT_EQ(0u, OthersInFolder()) << "the next save clears away what dead processes have left";
        }
    }
    std::cout << kills << " kills: " << old << " old files, " << saved << " new ones, " << broken << " others, "
              << abandoned << " copies left\n";
    EXPECT_EQ(0, broken);
    EXPECT_GT(old, 0);
    EXPECT_GT(saved, 0);
    EXPECT_GT(abandoned, 0u) << "no kill came while it saved";
}

INSTANTIATE_TEST_SUITE_P(Saving, KilledHost, testing::Values(WayOfSaving{"record", 130}, WayOfSaving{"all", 70}),
                         [](const auto& way) { return way.param.what; });

/// 200 rounds of two hosts, or as many as the environment says.
TEST(TwoHosts, LoseNothingOfEachOtherAndNobodyReadsHalfASave)
{
    const HostFolder host;
    C2AxisOptionsInfo& first = *GetLast2xOptions();
    C3AxisOptionsInfo& second = *GetLast3xOptions();
    first = {};
    second = {};
    first.MaxFeedBetween = first.RapidPlane = first.AlignPlunges = 0;
    second.FeedBetweenClearance = second.WriteNormal = second.SortType = 0;
    first.vOptions_Save();
    second.vOptions_Save();
    const size_t keys = EntriesOf(host.ReadSettings()).size();

    const int rounds = FromEnvironment("PELMAR_ROUNDS", 200);
    const SavingHost one("rounds first", std::to_string(rounds));
    const SavingHost other("rounds second", std::to_string(rounds));
    ASSERT_TRUE(one.WaitUntilReady() && other.WaitUntilReady());
    one.Go();
    other.Go();
    int read = 0;
    int versions = 0;
    int mixed = 0;
    for (bool isLast = false; !isLast; ++read) {
        isLast = one.HasEnded() && other.HasEnded();
        const double roundBefore = first.MaxFeedBetween;
        first.vOptions_Restore();
        second.vOptions_Restore();
        versions += first.MaxFeedBetween != roundBefore;
        mixed += first.RapidPlane != first.MaxFeedBetween || first.AlignPlunges != first.MaxFeedBetween ||
                 second.WriteNormal != second.FeedBetweenClearance || second.SortType != second.FeedBetweenClearance;
    }
    EXPECT_EQ(0u, one.ExitCode()) << "saves failed";
    EXPECT_EQ(0u, other.ExitCode()) << "saves failed";
    EXPECT_EQ(0, mixed) << "of " << read << " restores";
    EXPECT_GT(versions, 2) << "the reader came too late";
    EXPECT_EQ(rounds, first.MaxFeedBetween);
    EXPECT_EQ(rounds, second.SortType);
    EXPECT_EQ(keys + 2u * static_cast<size_t>(rounds), EntriesOf(host.ReadSettings()).size());
    int lost = 0;
    for (const char* const section : {"first", "second"})
        for (int round = 1; round <= rounds; ++round) {
            const std::string text = std::to_string(round);
            lost += Value(host.settings, section, ("Round" + text).c_str()) != text;
        }
    EXPECT_EQ(0, lost);
    std::cout << rounds << " rounds of two hosts: " << lost << " keys lost; " << mixed << " of " << read
              << " restores mixed, of " << versions << " versions\n";
    first = {};
    second = {};
}

} // namespace
