// What PelmarSettings adds to the profile calls that read the same keys, and whether bringing a standard to many files
// takes as long for each as for few. The program runs within this one: its start is not measured.
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <PelmarDlgs.h>

#include "bench/profile_calls.h"
#include "bench/stopwatch.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "tools/PelmarSettings/run.h"

namespace {

constexpr int kRounds = 30;

/// A file with all records at the factory's values.
std::string FullFile(const HostFolder& host)
{
    host.WriteSettings("");
    for (const OptionPage& page : OptionPages()) {
        page.defaults();
        page.save();
    }
    return host.ReadSettings();
}

/// The program's output goes nowhere.
void Silence()
{
    const HANDLE nowhere =
        CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    SetStdHandle(STD_OUTPUT_HANDLE, nowhere);
    SetStdHandle(STD_ERROR_HANDLE, nowhere);
}

void Print(const char* what, double own, double other, const char* aim)
{
    bench::PrintRatio((std::string("review: ") + what).c_str(), own / other, aim);
    std::printf("  %.0f against %.0f microseconds\n", own * 1e6, other * 1e6);
}

void CompareReading(const std::string& file, const std::string& changed)
{
    const std::vector<bench::Entry> entries = bench::EntriesOf(file.c_str());
    const auto readBare = [&](const std::string& path) { bench::RestoreBare(entries, path.c_str()); };
    const auto [check, one] = bench::BestTimes(
        kRounds, 1,
        [&] {
            pelmar::tool::Run({"check", file});
        },
        [&] { readBare(file); });
    Print("checking a full file / reading its keys", check, one, "at most 1.3");
    const auto [diff, two] = bench::BestTimes(
        kRounds, 1,
        [&] {
            pelmar::tool::Run({"diff", file, changed});
        },
        [&] {
            readBare(file);
            readBare(changed);
        });
    Print("comparing two full files / reading their keys", diff, two, "at most 1.3");
}

void CompareApplying(const std::string& folder, const std::string& text)
{
    const std::string standard = folder + "\\SHOP.INI";
    WriteWholeFile(standard, "[Options2x]\r\nUnits=0\r\nRapidPlane=2.000000\r\nSortType=2\r\n");
    std::vector<std::string> few = {"apply", standard};
    std::vector<std::string> many = few;
    for (int number = 0; number < 200; ++number) {
        many.push_back(folder + "\\M" + std::to_string(number) + ".INI");
        if (number < 50)
            few.push_back(many.back());
    }
    const auto prepare = [&] {
        for (auto file = many.begin() + 2; file != many.end(); ++file)
            WriteWholeFile(*file, text);
    };
    const auto [all, some] = bench::BestTimesOnPrepared(
        5, 1, prepare, [&] { pelmar::tool::Run(many); }, [&] { pelmar::tool::Run(few); });
    Print("applying a standard to 200 files / to 50, for each", all / 200, some / 50, "at most 1.1");
}

} // namespace

int main()
{
    const HostFolder host;
    const std::string text = FullFile(host);
    std::string changed = text;
    for (std::size_t at = changed.find("=1\r"); at != std::string::npos; at = changed.find("=1\r", at + 1))
        changed[at + 1] = '0';
    const std::string other = host.folder + "\\OTHER.INI";
    WriteWholeFile(other, changed);
    Silence();
    CompareReading(host.settings, other);
    CompareApplying(host.folder, text);
}
