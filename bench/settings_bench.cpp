// What a record adds to the profile calls that save and restore it.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <windows.h>

#include "bench/stopwatch.h"
#include "module/host_folder.h"

namespace {

constexpr char kSection[] = "Options2x";

struct Entry {
    std::string key;
    std::string text;
    bool isReal;
    int whole;
};

/// What the record has saved, in its order.
std::vector<Entry> SavedEntries(const char* file)
{
    char section[8192];
    GetPrivateProfileSectionA(kSection, section, sizeof section, file);
    std::vector<Entry> entries;
    for (const char* line = section; *line; line += std::strlen(line) + 1) {
        const std::string entry = line;
        const size_t equals = entry.find('=');
        const std::string text = entry.substr(equals + 1);
        const bool isReal = text.find('.') != std::string::npos;
        entries.push_back({entry.substr(0, equals), text, isReal, isReal ? 0 : std::stoi(text)});
    }
    return entries;
}

void SaveBare(const std::vector<Entry>& entries, const char* file)
{
    for (const Entry& entry : entries)
        WritePrivateProfileStringA(kSection, entry.key.c_str(), entry.text.c_str(), file);
}

void RestoreBare(const std::vector<Entry>& entries, const char* file)
{
    char text[256];
    for (const Entry& entry : entries) {
        if (entry.isReal)
            GetPrivateProfileStringA(kSection, entry.key.c_str(), entry.text.c_str(), text, sizeof text, file);
        else
            GetPrivateProfileIntA(kSection, entry.key.c_str(), entry.whole, file);
    }
}

} // namespace

int main()
{
    const HostFolder host;
    const char* const file = host.settings.c_str();
    C2AxisOptionsInfo record;
    record.vOptions_Save();
    const std::vector<Entry> entries = SavedEntries(file);
    if (entries.empty()) {
        std::printf("settings: nothing was saved\n");
        return 1;
    }

    constexpr int kRounds = 1000;
    const auto [save, bareSave] = bench::BestTimes(
        kRounds, 1, [&] { record.vOptions_Save(); }, [&] { SaveBare(entries, file); });
    const auto [restore, bareRestore] = bench::BestTimes(
        kRounds, 1, [&] { record.vOptions_Restore(); }, [&] { RestoreBare(entries, file); });
    bench::PrintRatio("settings: saving / the same profile calls made bare", save / bareSave, "at most 1.05");
    bench::PrintRatio("settings: restoring / the same profile calls made bare", restore / bareRestore, "at most 1.05");
    std::printf("%-60s %8.1f\n", "  microseconds for a bare save of all keys", bareSave * 1e6);
    std::printf("%-60s %8.1f\n", "  microseconds for a bare restore of all keys", bareRestore * 1e6);
}
