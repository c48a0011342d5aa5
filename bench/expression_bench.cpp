// How fast a field's text is evaluated.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <random>
#include <span>
#include <string>
#include <vector>

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

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

using Texts = std::span<const char* const>;

/// The typed texts with other digits, so often that nothing can be foreseen of them, in any order.
std::vector<std::string> WithRandomDigits(int copies)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> digit('0', '9');
    std::uniform_int_distribution<int> nonzero('1', '9');
    std::vector<std::string> texts;
    for (int copy = 0; copy < copies; ++copy) {
        for (std::string text : kTyped) {
            char before = ' ';
            for (char& c : text) {
                if (IsDigit(c))
                    c = static_cast<char>(IsDigit(before) || before == '.' ? digit(random) : nonzero(random));
                before = c;
            }
            texts.push_back(text);
        }
    }
    std::shuffle(texts.begin(), texts.end(), random);
    return texts;
}

void Evaluate(Texts texts)
{
    for (const char* text : texts) {
        double value = 0;
        EvalFieldReal(text, &value);
        g_sink = value;
    }
}

bool StartsNumber(char c)
{
    return IsDigit(c) || c == '.';
}

/// What any evaluator has to do at the least: read the numbers.
void ScanNumbers(Texts texts)
{
    for (const char* text : texts) {
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

bool SameResults(mu::Parser& parser, Texts texts)
{
    bool same = true;
    for (const char* text : texts) {
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
    const std::vector<std::string> random = WithRandomDigits(200);
    std::vector<const char*> inAnyOrder;
    inAnyOrder.reserve(random.size());
    for (const std::string& text : random)
        inAnyOrder.push_back(text.c_str());

    mu::Parser parser;
    if (!SameResults(parser, kTyped) || !SameResults(parser, inAnyOrder))
        return 1;
    const auto muParser = [&parser] {
        for (const char* text : kTyped) {
            parser.SetExpr(text);
            g_sink = parser.Eval();
        }
    };
    constexpr int kRounds = 40;
    const auto [ours, theirs, scan] = bench::BestTimes(
        kRounds, 200, [] { Evaluate(kTyped); }, muParser, [] { ScanNumbers(kTyped); });
    const auto [oursRandom, scanRandom] = bench::BestTimes(
        kRounds, 2, [&] { Evaluate(inAnyOrder); }, [&] { ScanNumbers(inAnyOrder); });
    bench::PrintRatio("expression: muParser's time / ours", theirs / ours, "at least 50");
    bench::PrintRatio("expression: our time / scanning the numbers alone", ours / scan, "at most 1.25");
    bench::PrintRatio("expression: the same, 6,000 texts of random digits in random order", oursRandom / scanRandom,
                      "at most 1.15");
    std::printf("  nanoseconds for one text: %.1f, and %.1f in random order\n", ours / std::size(kTyped) * 1e9,
                oursRandom / static_cast<double>(inAnyOrder.size()) * 1e9);
}
