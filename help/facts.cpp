// Prints what the tables say of every page and dialog as JSON, in UTF-8: what the help file says of options besides its
// texts. Texts of the string table stand as their ids.
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

#include "PelmarDlgs/settings_values.h"
#include "description/description.h"

using namespace pelmar;

namespace {

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\')
            quoted += '\\';
        quoted += letter;
    }
    return quoted + '"';
}

std::string TextOrNull(const char* text)
{
    return text ? Quoted(text) : "null";
}

std::string NumberText(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

/// A side of a range; null where there is no bound.
std::string Bound(double value)
{
    return std::abs(value) >= kUnbounded ? "null" : NumberText(value);
}

const char* NameOf(OptionKind kind)
{
    switch (kind) {
    case OptionKind::Units:
        return "units";
    case OptionKind::Length:
        return "length";
    case OptionKind::Feed:
        return "feed";
    case OptionKind::Angle:
        return "angle";
    case OptionKind::Percent:
        return "percent";
    case OptionKind::Number:
        return "number";
    case OptionKind::Count:
        return "count";
    case OptionKind::Choice:
        return "choice";
    case OptionKind::Switch:
        break;
    }
    return "switch";
}

const char* NameOf(Scaling scaling)
{
    switch (scaling) {
    case Scaling::Always:
        return "always";
    case Scaling::WhileConstant:
        return "while_constant";
    case Scaling::Never:
        break;
    }
    return "never";
}

std::string Items(ChoiceTexts texts)
{
    std::string items;
    for (const ChoiceText& text : texts)
        items += (items.empty() ? "" : ", ") + (text.literal ? Quoted(text.literal) : std::to_string(text.id));
    return "[" + items + "]";
}

std::string OptionText(const WindowDescription& window, const Option& option)
{
    const double inch = window.valueAtStart(option, kInch);
    const double millimetre = window.valueAtStart(option, kMillimetre);
    const bool isSwitch = option.kind == OptionKind::Switch;
    return "{\"key\": " + TextOrNull(option.key) + ", \"label\": " + Quoted(option.label) + ", \"kind\": \"" +
           NameOf(option.kind) + "\", \"whole\": " + (option.whole ? "true" : "false") + ", \"scaling\": \"" +
           NameOf(option.scaling) + "\", \"low\": " + Bound(option.range.low) +
           ", \"high\": " + Bound(option.range.high) + ", \"items\": " + Items(option.choices) +
           ", \"first\": " + std::to_string(option.firstChoice) + ", \"inch\": " + NumberText(inch) +
           ", \"millimetre\": " + NumberText(millimetre) +
           ", \"on\": " + (isSwitch && option.IsOn(static_cast<int>(inch)) ? "true" : "false") + "}";
}

std::string ControlText(const WindowDescription& window, const Control& control)
{
    return "{\"id\": " + std::to_string(control.id) +
           ", \"absent\": " + (control.kind == ControlKind::Absent ? "true" : "false") +
           ", \"topic\": " + TextOrNull(control.topic) + ", \"items\": " + Items(control.choices) +
           ", \"option\": " + (control.option ? OptionText(window, *control.option) : "null") + "}";
}

std::string WindowText(const WindowDescription& window)
{
    std::string controls;
    for (const Control& control : window.page.controls)
        controls += (controls.empty() ? "\n    " : ",\n    ") + ControlText(window, control);
    return "{\"template\": " + std::to_string(window.page.templateId) + ", \"topic\": " + Quoted(window.page.topic) +
           ", \"section\": " + TextOrNull(window.record ? window.record->Section() : nullptr) +
           ", \"operation\": " + TextOrNull(window.record ? window.record->Operation() : nullptr) +
           ", \"controls\": [" + controls + "]}";
}

} // namespace

int main()
{
    std::string windows;
    for (const WindowDescription& window : DescribeWindows())
        windows += (windows.empty() ? "\n" : ",\n") + WindowText(window);
    std::printf("{\"inch_to_millimetre\": %s, \"windows\": [%s\n]}\n", NumberText(kInchToMillimetre).c_str(),
                windows.c_str());
    return 0;
}
