// Restores a record from any bytes: it must be finite and in bounds, and what is saved of it must restore to the same.
// The first byte chooses the record, the rest is the settings file. With one first byte of all what is wrong with the
// file is looked for as well, and a conversion there and back.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "frame/number_text.h"
#include "review/changes.h"

using namespace pelmar;
using namespace pelmar::review;

namespace {

const Words kWords{.ofString = [](unsigned id) { return std::to_string(id); },
                   .ofFile = [](std::string_view bytes) { return std::string(bytes); },
                   .toFile =
                       [](std::string_view text, std::string& bytes) {
                           bytes = text;
                           return true;
                       }};

[[noreturn]] void Report(const char* what, const Option& option, double value)
{
    std::fprintf(stderr, "%s: %s is %.17g\n", option.key, what, value);
    std::abort();
}

AnyRecord Restored(const RecordDescription& record, const SettingsText& text)
{
    AnyRecord restored = record.copyOf(nullptr);
    record.table.Restore(restored.get(), TextValues(text));
    return restored;
}

/// As the record's own save writes it.
std::string Saved(const RecordDescription& record, const void* values)
{
    std::string saved = std::string("[") + record.table.Section() + "]\n";
    for (const Option& option : record.table.Options()) {
        if (!option.key)
            continue;
        saved += option.key;
        saved += '=';
        number_text::FixedBuffer buffer;
        saved += option.whole ? std::to_string(option.Whole(values))
                              : std::string(number_text::Print(buffer, option.Real(values), 6));
        saved += '\n';
    }
    return saved;
}

void CheckBounds(const RecordDescription& record, const void* values)
{
    for (const Option& option : record.table.Options()) {
        if (!option.key)
            continue;
        const double value = option.Value(values);
        if (!std::isfinite(value) || std::abs(value) > kUnbounded)
            Report("out of bounds", option, value);
        if (option.sanitize && option.sanitize(option.Whole(values)) != option.Whole(values))
            Report("not corrected", option, value);
    }
}

/// A key that is read from another section is not what this one saves of it.
void CheckSaving(const RecordDescription& record, const void* values)
{
    const std::string saved = Saved(record, values);
    const AnyRecord again = Restored(record, SettingsText(saved));
    for (const Option& option : record.table.Options()) {
        if (!option.key || option.readSection)
            continue;
        const double before = option.Value(values);
        const double after = option.Value(again.get());
        const bool isSame = option.whole ? before == after : IsSameNumber(before, after);
        if (!isSame)
            Report("restored as another", option, after);
    }
}

void CheckReview(const SettingsText& text)
{
    for (const Finding& finding : Check(text, kWords))
        if (Explanation(finding, kWords).empty() || finding.line < 0)
            std::abort();
    const Conversion there = ConversionTo(text, 1, kWords);
    if (there.obstacles.empty())
        ConversionTo(WithChanges(text, there.changes), 0, kWords);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::span<const RecordDescription> records = DescribeRecords();
    const RecordDescription& record = records[data[0] % records.size()];
    const SettingsText text(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
    const AnyRecord restored = Restored(record, text);
    CheckBounds(record, restored.get());
    CheckSaving(record, restored.get());
    if (data[0] == 0xFF) // it takes as long as a hundred restores
        CheckReview(text);
    return 0;
}
