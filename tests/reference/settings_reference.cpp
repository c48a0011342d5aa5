// Prints the reference of all settings as Markdown, in UTF-8. All of it comes from the tables of the records and pages
// and from the texts of the library that it runs with.
#include <cstdio>
#include <stdexcept>
#include <string>

#include <fcntl.h>
#include <io.h>

#include <PelmarDlgs.h>

#include "description/description.h"

using namespace pelmar;

namespace {

CWinApp g_application(L"TORVEX");

std::string Utf8(const std::wstring& text)
{
    const auto length = static_cast<int>(text.size());
    std::string utf8(3 * text.size(), '\0');
    const int written = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, utf8.data(),
                                            static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<size_t>(written));
    return utf8;
}

HMODULE Library()
{
    return GetModuleHandleW(L"PelmarDlgs.dll");
}

std::string ListText(const ChoiceText& choice)
{
    if (choice.literal)
        return choice.literal;
    wchar_t text[256] = {};
    LoadStringW(Library(), choice.id, text, 256);
    return Utf8(text);
}

/// The caption of a dialog template: the text after menu and class.
std::string CaptionOf(int id)
{
    const HRSRC found = FindResourceW(Library(), MAKEINTRESOURCEW(id), RT_DIALOG);
    const auto* word = static_cast<const WORD*>(LockResource(found ? LoadResource(Library(), found) : nullptr));
    if (!word || word[1] != 0xFFFF)
        throw std::runtime_error("no extended template " + std::to_string(id));
    word += 13; // signature, help, styles, count and place
    for (int field = 0; field < 2; ++field)
        word += *word == 0xFFFF ? 2 : lstrlenW(reinterpret_cast<const wchar_t*>(word)) + 1;
    return Utf8(reinterpret_cast<const wchar_t*>(word));
}

std::string Number(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::string Conversion(const RecordDescription& record, const Option& option)
{
    switch (option.scaling) {
    case Scaling::Always:
        return "always";
    case Scaling::WhileConstant:
        return std::string("while `") + record.TypeOf(option)->key + "` is 0";
    case Scaling::Never:
        break;
    }
    return "";
}

std::string AtStart(const RecordDescription& record, const Option& option)
{
    const double inch = record.valueAtStart(option, kInch);
    const double millimetre = record.valueAtStart(option, kMillimetre);
    const bool isUnits = option.kind == OptionKind::Units;
    return inch == millimetre || isUnits ? Number(inch) : Number(inch) + " / " + Number(millimetre);
}

std::string Bounds(const Range& range)
{
    if (range == kAnyReal)
        return "any";
    return range.high == kUnbounded ? Number(range.low) + " or more" : Number(range.low) + " to " + Number(range.high);
}

std::string Values(const Option& option, const Control* control)
{
    if (option.kind == OptionKind::Switch)
        return "off, on";
    if (option.real)
        return control ? Bounds(option.range) : "";
    std::string values;
    int value = option.firstChoice;
    for (const ChoiceText& text : option.choices)
        values += (values.empty() ? "" : ", ") + std::to_string(value++) + " " + ListText(text);
    return values;
}

std::string Remarks(const Option& option)
{
    std::string remarks;
    const auto add = [&remarks](const std::string& remark) { remarks += (remarks.empty() ? "" : "; ") + remark; };
    if (option.switchValues.off == 2)
        add("1 on, 2 off");
    if (option.switchValues.on == 0)
        add("0 on, 1 off");
    if (option.sanitize)
        add("put in bounds when read");
    if (!option.inDefaults)
        add("not read from the defaults file");
    if (option.readSection)
        add(std::string("read from section `") + option.readSection + "`");
    return remarks;
}

void PrintRecord(const RecordDescription& record)
{
    std::printf("\n## %s\n\n", record.table.Section());
    std::printf("Page: \"%s\", template %d.\n\n", CaptionOf(record.templateId).c_str(), record.templateId);
    std::printf("| key | option | type | scales | at start, inch / mm | control | values | remarks |\n");
    std::printf("|---|---|---|---|---|---|---|---|\n");
    for (const Option& option : record.table.Options()) {
        if (!option.key)
            continue;
        const Control* const control = record.ControlOf(option);
        std::printf("| `%s` | %s | %s | %s | %s | %s | %s | %s |\n", option.key, option.label,
                    option.real ? "real" : "whole", Conversion(record, option).c_str(), AtStart(record, option).c_str(),
                    control ? std::to_string(control->id).c_str() : "", Values(option, control).c_str(),
                    Remarks(option).c_str());
    }
}

} // namespace

int main()
{
    _setmode(_fileno(stdout), _O_BINARY);
    std::printf("# Settings reference\n\n"
                "Made by `scripts/settings-reference` from the tables of the records and pages; do not edit.\n\n"
                "One section of the settings file for each record, its keys in the order in which they are saved. A "
                "real is written with six\ndecimals. Lengths that scale are multiplied by 25 from inch to millimetre "
                "and by 0.04 back. \"At start\" is what the library holds\nbefore anything is read, and what the "
                "defaults file is laid over. Keys without a control are kept by the page in code of its\nown, or not "
                "edited at all.\n");
    for (const RecordDescription& record : DescribeRecords())
        PrintRecord(record);
    return 0;
}
