// A host that does nothing but save, for tests that kill it or run two of it at once. It works on the settings files
// that the core file beside it leads to.
//
// usage: saving_host once record|all READY GO      takes the defaults and saves them in one step, then waits for its
// end
//        saving_host rounds first|second READY GO ROUNDS    saves a record of its own and a new value in each round
//
// READY and GO are handles of events that it inherits: it sets the one before it saves and waits for the other. Its
// exit code is the number of rounds whose save failed.
#include <cstdlib>
#include <string>
#include <string_view>

#include <PelmarDlgs.h>

#include "option_pages.h"

namespace {

constexpr DWORD kLimitMilliseconds = 60'000;

HANDLE HandleOf(const char* text)
{
    return reinterpret_cast<HANDLE>(std::strtoull(text, nullptr, 10));
}

void WaitForStart(char** arguments)
{
    SetEvent(HandleOf(arguments[3]));
    WaitForSingleObject(HandleOf(arguments[4]), kLimitMilliseconds);
}

int SaveOnce(char** arguments)
{
    const std::span<const OptionPage> all = OptionPages();
    const auto records = arguments[2] == std::string_view("all") ? all : all.first(1);
    for (const OptionPage& page : records)
        page.defaults();
    WaitForStart(arguments);
    {
        pelmar::SaveStep step;
        for (const OptionPage& page : records)
            page.save();
        step.Commit();
    }
    Sleep(kLimitMilliseconds); // to be killed
    return 0;
}

/// The values of a round stand at the beginning, in the middle and at the end of the record.
void SaveFirst(int round)
{
    C2AxisOptionsInfo& record = *GetLast2xOptions();
    record.MaxFeedBetween = round;
    record.RapidPlane = round;
    record.AlignPlunges = round;
    record.vOptions_Save();
}

void SaveSecond(int round)
{
    C3AxisOptionsInfo& record = *GetLast3xOptions();
    record.FeedBetweenClearance = round;
    record.WriteNormal = round;
    record.SortType = round;
    record.vOptions_Save();
}

int SaveInRounds(char** arguments)
{
    const std::string section = arguments[2];
    const int rounds = std::atoi(arguments[5]);
    int failed = 0;
    WaitForStart(arguments);
    for (int round = 1; round <= rounds; ++round) {
        pelmar::SaveStep step;
        if (section == "first")
            SaveFirst(round);
        else
            SaveSecond(round);
        pelmar::WriteWhole(section.c_str(), ("Round" + std::to_string(round)).c_str(), round);
        failed += !step.Commit();
    }
    return failed;
}

} // namespace

int main(int, char** arguments)
{
    InitializePelmarDlgsDLL();
    return arguments[1] == std::string_view("once") ? SaveOnce(arguments) : SaveInRounds(arguments);
}
