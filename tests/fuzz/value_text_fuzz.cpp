// Compares the reading and writing of numbers with its model. The input is a text as a settings file may hold it; its
// first bytes are also taken as the number of decimals and as the bits of a number to be written.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/number_text.h"
#include "number_model.h"

namespace {
constexpr size_t kLongestText = 255; // as the settings files' texts are read
constexpr int kStoredDecimals = 6;

[[noreturn]] void Report(const char* what, std::string_view text, double actual, double expected)
{
    std::fprintf(stderr, "%s of \"%.*s\": %.17g instead of %.17g\n", what, static_cast<int>(text.size()), text.data(),
                 actual, expected);
    std::abort();
}

/// The sign of a zero says nothing: what is too small for the type is 0, with its own sign or without.
template <class Real> bool AreSame(Real left, Real right)
{
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): bit for bit
    return (left == 0 && right == 0) || std::memcmp(&left, &right, sizeof left) == 0;
}

/// Where there is no number, the value has to stay.
template <class Real> void Compare(const char* what, std::string_view text, bool isNumber, Real value,
                                   std::optional<Real> expected, Real before)
{
    if (isNumber != expected.has_value() || !AreSame(value, expected.value_or(before)))
        Report(what, text, double{value}, double{expected.value_or(before)});
}

void CheckParsing(std::string_view text)
{
    const std::vector<char> copy(text.begin(), text.end()); // ends where its memory does
    const std::string_view exact(copy.data(), copy.size());
    double wide = 12.5;
    const bool isWide = number_text::Parse(exact, wide);
    Compare("double", text, isWide, wide, number_model::AsDouble(text), 12.5);
    float single = 12.5F;
    const bool isSingle = number_text::Parse(exact, single);
    Compare("float", text, isSingle, single, number_model::AsFloat(text), 12.5F);
    double stored = 12.5;
    const bool isStored = number_text::ParseStored(exact, stored);
    const std::optional<float> expected = number_model::Stored(text);
    Compare("stored", text, isStored, stored, expected ? std::optional<double>(*expected) : std::nullopt, 12.5);
}

std::string Printed(double value, int decimals)
{
    number_text::FixedBuffer buffer;
    buffer.fill('#');
    const std::string_view text = number_text::Print(buffer, value, decimals);
    if (text.data() != buffer.data() || text.size() >= buffer.size() || buffer[text.size()] != '\0')
        Report("end", text, value, value);
    return std::string(text);
}

void CheckPrinting(double value, int decimals)
{
    const std::string text = Printed(value, decimals);
    const std::string expected = number_model::Printed(value, decimals);
    if (text != expected) {
        std::fprintf(stderr, "%.17g written as \"%s\" instead of \"%s\"\n", value, text.c_str(), expected.c_str());
        std::abort();
    }
    const size_t point = text.find('.');
    const size_t written = point == std::string::npos ? 0 : text.size() - point - 1;
    if (std::isfinite(value) && written != static_cast<size_t>(decimals))
        Report("decimals", text, static_cast<double>(written), decimals);
}

/// What is saved and restored is near the value, and is itself again when it is saved and restored once more.
void CheckSaving(double value)
{
    const double largest = double{std::numeric_limits<float>::max()};
    if (!(std::abs(value) <= largest))
        return;
    double restored = 0;
    const std::string text = Printed(value, kStoredDecimals);
    if (!number_text::ParseStored(text, restored))
        Report("restored", text, restored, value);
    constexpr double kHalfLastDecimal = 0.5e-6;
    constexpr double kHalfSinglePrecision = 0x1p-24;
    const double tolerance = kHalfLastDecimal + kHalfSinglePrecision * std::abs(value);
    if (std::abs(restored - value) > tolerance * (1 + 1e-6))
        Report("restored", text, restored, value);
    double again = 0;
    if (!number_text::ParseStored(Printed(restored, kStoredDecimals), again) || !AreSame(again, restored))
        Report("restored again", text, again, restored);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(data, data + size);
    CheckParsing(std::string_view(text).substr(0, kLongestText));

    uint8_t bytes[1 + sizeof(double)] = {};
    std::copy_n(data, std::min(size, sizeof bytes), bytes);
    double value = 0;
    std::memcpy(&value, bytes + 1, sizeof value);
    CheckPrinting(value, bytes[0] % (number_text::kMaxDecimals + 1));
    CheckSaving(value);
    double parsed = 0;
    if (number_text::Parse(std::string_view(text).substr(0, kLongestText), parsed)) {
        CheckPrinting(parsed, bytes[0] % (number_text::kMaxDecimals + 1));
        CheckSaving(parsed);
    }
    return 0;
}
