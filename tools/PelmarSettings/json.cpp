#include "json.h"

#include <charconv>

#include "texts.h"

namespace pelmar::tool {
namespace {

/// The shortest number that people read the same: values have come through single precision.
double ShortNumber(const review::Setting& setting, double number)
{
    const std::string text = review::ShownNumber(setting, number, LibraryWords());
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

Json JsonOf(const review::Setting& setting)
{
    return {{"setting", setting.Name()},
            {"section", setting.Section()},
            {"key", setting.Key()},
            {"operation", setting.Operation()},
            {"label", setting.Label()}};
}

Json JsonOf(const review::Finding& finding)
{
    const review::Setting* const setting = finding.setting;
    return {{"kind", review::NameOf(finding.kind)},
            {"line", finding.line},
            {"section", Utf8OfNarrow(finding.section)},
            {"key", Utf8OfNarrow(finding.key)},
            {"operation", setting ? setting->Operation() : ""},
            {"label", setting ? setting->Label() : ""},
            {"standing", Utf8OfNarrow(finding.standing)},
            {"used", finding.used},
            {"nearest", finding.nearest},
            {"message", review::Explanation(finding, LibraryWords())}};
}

Json StoredValue(const review::Setting& setting, const review::Values& values)
{
    if (setting.IsText())
        return Utf8OfNarrow(values.Text(setting));
    const double number = values.Number(setting);
    if (setting.IsReal())
        return ShortNumber(setting, number);
    return static_cast<int>(number);
}

} // namespace pelmar::tool
