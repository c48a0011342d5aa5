// Compares the times of several ways to do one thing, in one run: they take turns, and the best round of each counts,
// so that what else the machine does falls on all of them or drops out.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <limits>

namespace bench {

/// The best time of each piece of work, in seconds for one call. Before each round of a piece `prepare` sets up what it
/// works on, and is not counted.
template <class Prepare, class... Works>
std::array<double, sizeof...(Works)> BestTimesOnPrepared(int rounds, int calls, Prepare prepare, Works... works)
{
    std::array<double, sizeof...(Works)> best;
    best.fill(std::numeric_limits<double>::infinity());
    const auto timeOf = [&](auto& work) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        for (int call = 0; call < calls; ++call)
            work();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        return time.count() / calls;
    };
    for (int round = 0; round < rounds; ++round) {
        size_t index = 0;
        ((best[index] = std::min(best[index], timeOf(works)), ++index), ...);
    }
    return best;
}

/// The same for work that needs no preparation.
template <class... Works> std::array<double, sizeof...(Works)> BestTimes(int rounds, int calls, Works... works)
{
    return BestTimesOnPrepared(
        rounds, calls, [] {}, works...);
}

/// One line of the table: what is compared, the ratio, and the bound that is aimed at.
inline void PrintRatio(const char* what, double ratio, const char* aim)
{
    std::printf("%-72s %8.2f   %s\n", what, ratio, aim);
}

} // namespace bench
