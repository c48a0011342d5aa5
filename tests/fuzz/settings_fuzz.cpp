// Restores a record from any bytes: it must be finite and in bounds, and what is saved of it must restore to the same.
// The first byte chooses the record, the rest is the settings file.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "description/description.h"
#include "frame/number_text.h"
#include "records/shown_value.h"
#include "review/settings_text.h"

using namespace pelmar;
using namespace pelmar::review;

namespace {

constexpr int kStoredDecimals = 6;

[[noreturn]] void Report(const char* what, const Option& option, double value)
{
    std::fprintf(stderr, "%s: %s is %.17g\n", option.key, what, value);
    std::abort();
}

AnyRecord Restored(const RecordDescription& record, const ValueSource& from)
{
    AnyRecord restored = record.copyOf(nullptr);
    record.table.Restore(restored.get(), from);
    return restored;
}

/// As the record's own save writes the value.
std::string_view Printed(number_text::FixedBuffer& buffer, const Option& option, const void* values)
{
    if (!option.whole)
        return number_text::Print(buffer, option.Real(values), kStoredDecimals);
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), option.Whole(values));
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

/// What a record that has been saved is restored from, without a file: a restore asks for every key in the table's
/// order. A key that is read from another section is not what this one saves of it.
class SavedValues final : public ValueSource {
public:
    SavedValues(const RecordDescription& record, const void* values)
        : m_next(record.table.Options().begin()), m_values(values)
    {
    }

    int Whole(const char*, const char* key, int fallback) const override { return StoredWhole(TextOf(key), fallback); }
    double Real(const char*, const char* key, double fallback) const override
    {
        return StoredReal(TextOf(key), fallback);
    }

private:
    std::string_view TextOf(const char* key) const
    {
        while (m_next->key != key)
            ++m_next;
        return m_next->readSection ? std::string_view() : Printed(m_text, *m_next, m_values);
    }

    mutable std::span<const Option>::iterator m_next;
    const void* m_values;
    mutable number_text::FixedBuffer m_text;
};

/// The same as a file's text.
std::string Saved(const RecordDescription& record, const void* values)
{
    std::string saved = std::string("[") + record.table.Section() + "]\n";
    for (const Option& option : record.table.Options()) {
        if (!option.key)
            continue;
        number_text::FixedBuffer buffer;
        saved.append(option.key).append("=").append(Printed(buffer, option, values)).append("\n");
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

void CheckSame(const RecordDescription& record, const void* values, const void* again)
{
    for (const Option& option : record.table.Options()) {
        if (!option.key || option.readSection)
            continue;
        const double before = option.Value(values);
        const double after = option.Value(again);
        const bool isSame = option.whole ? before == after : IsSameNumber(before, after);
        if (!isSame)
            Report("restored as another", option, after);
    }
}

/// A whole file takes as long as all else. Each byte has a say: were it one, the search would prefer texts with that.
bool IsChosenForFile(std::string_view bytes)
{
    return std::hash<std::string_view>()(bytes) % 16 == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::span<const RecordDescription> records = DescribeRecords();
    const RecordDescription& record = records[data[0] % records.size()];
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const SettingsText text{std::string(bytes)};
    const AnyRecord restored = Restored(record, TextValues(text));
    const void* const values = restored.get();
    CheckBounds(record, values);
    CheckSame(record, values, Restored(record, SavedValues(record, values)).get());
    if (IsChosenForFile(bytes)) {
        const SettingsText saved(Saved(record, values));
        CheckSame(record, values, Restored(record, TextValues(saved)).get());
    }
    return 0;
}
