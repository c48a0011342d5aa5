// How fast a field's text is evaluated.
#include <charconv>
#include <cstdio>
#include <cstring>

#include <muParser.h>

#include "PelmarDlgs/evaluator.h"
#include "bench/stopwatch.h"

namespace {

constexpr const char* kTyped[] = {
    "0",         "1",        "5",          "0.5",          "0.08",       "135",
    "135.0",     "0.8000",   "12.7",       "25.4",         ".5",         "-3",
    "-0.25",     "100.0000", "0.0625",     "1/8",          "3/16",       "1/8+0.02",
    "2*0.25",    "0.5/2",    "(1+3)*25",   "12.7/2",       "100-2*3.5",  "25.4*1.5",
    "3.175+0.4", "-(2+0.5)", "(10-0.2)/4", "2*(3.5+1.25)", "0.1 + 0.05", "1.5 * (20 - 0.4) / 2",
};
static_assert(std::size(kTyped) == 30);

/// Takes results, so that no work for them can be left out.
volatile double g_sink;

void Evaluate()
{
    for (const char* text : kTyped) {
        double value = 0;
        EvalFieldReal(text, &value);
        g_sink = value;
    }
}

bool StartsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '.';
}

/// What any evaluator has to do at the least: read the numbers.
void ScanNumbers()
{
    for (const char* text : kTyped) {
        const char* const end = text + std::strlen(text);
        double sum = 0;
        for (const char* at = text; at != end;) {
            if (!StartsNumber(*at)) {
                ++at;
                continue;
            }
            double value = 0;
            at = std::from_chars(at, end, value).ptr;
            sum += value;
        }
        g_sink = sum;
    }
}

bool SameResults(mu::Parser& parser)
{
    bool same = true;
    for (const char* text : kTyped) {
        double value = 0;
        parser.SetExpr(text);
        if (EvalFieldReal(text, &value) && value == parser.Eval())
            continue;
        std::printf("differs from muParser: %s\n", text);
        same = false;
    }
    return same;
}

} // namespace

int main()
{
    mu::Parser parser;
    if (!SameResults(parser))
        return 1;
    const auto muParser = [&parser] {
        for (const char* text : kTyped) {
            parser.SetExpr(text);
            g_sink = parser.Eval();
        }
    };
    constexpr int kRounds = 40;
    constexpr int kCalls = 200;
    const auto [ours, theirs, scan] = bench::BestTimes(kRounds, kCalls, Evaluate, muParser, ScanNumbers);
    bench::PrintRatio("expression: muParser's time / ours", theirs / ours, "at least 50");
    bench::PrintRatio("expression: our time / scanning the numbers alone", ours / scan, "at most 2.5");
    std::printf("%-72s %8.1f\n", "  nanoseconds for one text", ours / std::size(kTyped) * 1e9);
}
