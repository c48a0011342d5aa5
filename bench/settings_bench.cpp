// What the records add to the profile calls that save and restore them. A save is measured on a file in which every
// value is another, one is, or none: the platform writes the file anew for each value that is, and for no other. The
// file looks old, as settings files are when they are saved: the platform then keeps what it has read.
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include <afxwin.h>

#include "bench/profile_calls.h"
#include "bench/stopwatch.h"
#include "module/host_folder.h"
#include "option_pages.h"

using bench::EntriesOf;
using bench::Entry;
using bench::RestoreBare;

namespace {

void SaveBare(const std::vector<Entry>& entries, const char* file)
{
    for (const Entry& entry : entries)
        WritePrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), entry.text.c_str(), file);
}

/// Lines of a section that no record has.
std::string OtherLines(int count)
{
    std::string text = count > 0 ? "[OfTheHost]\r\n" : "";
    for (int line = 0; line < count; ++line)
        text += "Key" + std::to_string(line) + "=" + std::to_string(line) + "\r\n";
    return text;
}

/// A file of entries, in their order.
std::string FileOf(const std::vector<Entry>& entries)
{
    std::string text;
    std::string section;
    for (const Entry& entry : entries) {
        if (entry.section != section)
            text += "[" + entry.section + "]\r\n";
        section = entry.section;
        text += entry.key + "=" + entry.text + "\r\n";
    }
    return text;
}

Entry WithAnotherValue(Entry entry)
{
    entry.text = entry.text.starts_with('7') ? "8" : "7";
    return entry;
}

void WriteOldFile(const std::string& path, const std::string& text)
{
    WriteWholeFile(path, text);
    const HANDLE file = CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const FILETIME old{0, 30'000'000}; // in the year 2009
    SetFileTime(file, nullptr, nullptr, &old);
    CloseHandle(file);
}

/// What is compared, and how far its own time may exceed that of the bare calls.
struct Aim {
    std::string what;
    double saving;
    double restoring;
};

void Print(const std::string& what, double own, double bare, double bound)
{
    char aim[32];
    std::snprintf(aim, sizeof aim, "at most %.2g", bound);
    bench::PrintRatio(("settings: " + what).c_str(), own / bare, aim);
}

/// Compares the records' own saving and restoring with the bare calls for all that they save. False where they save
/// nothing.
template <class Save, class Restore>
bool Compare(const Aim& aim, const HostFolder& host, int rounds, Save save, Restore restore, int otherLines = 0)
{
    const char* const file = host.settings.c_str();
    host.WriteSettings("");
    save();
    const std::vector<Entry> entries = EntriesOf(file);
    if (entries.empty())
        return false;
    std::vector<Entry> oneOther = entries;
    oneOther[entries.size() / 2] = WithAnotherValue(entries[entries.size() / 2]);
    std::vector<Entry> allOther;
    allOther.reserve(entries.size());
    for (const Entry& entry : entries)
        allOther.push_back(WithAnotherValue(entry));

    const std::string before = OtherLines(otherLines);
    const std::vector<std::pair<const char*, const std::vector<Entry>*>> changes = {
        {"every value new", &allOther}, {"one value new", &oneOther}, {"nothing new", &entries}};
    for (const auto& [change, old] : changes) {
        const std::string text = before + FileOf(*old);
        const auto [own, bare] = bench::BestTimesOnPrepared(
            rounds, 1, [&] { WriteOldFile(host.settings, text); }, save, [&] { SaveBare(entries, file); });
        Print(aim.what + ", saving with " + change, own, bare, aim.saving);
        std::printf("  %.0f against %.0f microseconds\n", own * 1e6, bare * 1e6);
    }
    const std::string text = before + FileOf(entries);
    WriteOldFile(host.settings, text);
    const auto [own, bare] = bench::BestTimes(10 * rounds, 1, restore, [&] { RestoreBare(entries, file); });
    Print(aim.what + ", restoring", own, bare, aim.restoring);
    std::printf("  %zu keys, %.0f against %.0f microseconds\n", entries.size(), own * 1e6, bare * 1e6);
    return true;
}

} // namespace

int main()
{
    const HostFolder host;
    C2AxisOptionsInfo& record = *GetLast2xOptions();
    const auto saveAll = [] {
        pelmar::SaveStep step;
        for (const OptionPage& page : OptionPages())
            page.save();
        step.Commit();
    };
    const auto restoreAll = [] {
        const pelmar::SettingsReading reading;
        for (const OptionPage& page : OptionPages())
            page.restore();
    };
    const auto save = [&] { record.vOptions_Save(); };
    const auto restore = [&] { record.vOptions_Restore(); };
    bool compared = Compare({"2-axis record", 1.5, 1.1}, host, 300, save, restore) &&
                    Compare({"all records", 1.1, 1.1}, host, 50, saveAll, restoreAll);
    for (const int lines : {10, 1000, 10000}) {
        const std::string what = "2-axis record among " + std::to_string(lines) + " lines";
        compared = compared && Compare({what, 1.5, 1.1}, host, lines > 1000 ? 5 : 50, save, restore, lines);
    }
    compared = compared && Compare({"all records among 10000 lines", 1.1, 1.1}, host, 4, saveAll, restoreAll, 10000);
    if (!compared) {
        std::printf("settings: nothing was saved\n");
        return 1;
    }
}
