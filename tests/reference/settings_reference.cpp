// Prints the reference of all settings as Markdown, in UTF-8. All of it comes from the tables of the records and pages
// and from the templates of the library that it runs with.
#include <cstdio>
#include <stdexcept>
#include <string>

#include <fcntl.h>
#include <io.h>

#include <PelmarDlgs.h>

#include "pages/description.h"

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

std::string ListText(UINT id)
{
    wchar_t text[256] = {};
    LoadStringW(Library(), id, text, 256);
    return Utf8(text);
}

std::wstring TextOf(HWND window)
{
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    return text;
}

bool IsLabel(HWND control)
{
    wchar_t name[32] = {};
    GetClassNameW(control, name, 32);
    return lstrcmpiW(name, L"Static") == 0 && !TextOf(control).empty();
}

/// The label of a control as the page shows it: a button's own text, else the static text before it.
std::string LabelOf(HWND dialog, int id)
{
    HWND control = GetDlgItem(dialog, id);
    wchar_t name[32] = {};
    GetClassNameW(control, name, 32);
    std::wstring label = lstrcmpiW(name, L"Button") == 0 ? TextOf(control) : L"";
    while (label.empty() && (control = GetWindow(control, GW_HWNDPREV)) != nullptr)
        if (IsLabel(control))
            label = TextOf(control);
    std::erase(label, L'&');
    if (label.ends_with(L':'))
        label.pop_back();
    return Utf8(label);
}

INT_PTR CALLBACK NoCode(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// A page's template without its code, hidden.
class Template {
public:
    explicit Template(int id)
        : m_parent(CreateWindowW(L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr)),
          window(CreateDialogParamW(Library(), MAKEINTRESOURCEW(id), m_parent, NoCode, 0))
    {
        if (!window)
            throw std::runtime_error("no template " + std::to_string(id));
    }
    ~Template() { DestroyWindow(m_parent); }
    Template(const Template&) = delete;
    Template& operator=(const Template&) = delete;

private:
    HWND m_parent;

public:
    const HWND window;
};

std::string Number(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::string Conversion(const FieldDescription& field)
{
    switch (field.conversion) {
    case FieldDescription::Conversion::Always:
        return "always";
    case FieldDescription::Conversion::WhileConstant:
        return "while `" + field.typeKey + "` is 0";
    case FieldDescription::Conversion::Never:
        break;
    }
    return "";
}

std::string AtStart(const FieldDescription& field)
{
    const auto& [inch, millimetre] = field.atStart;
    return inch == millimetre || field.key == "Units" ? Number(inch) : Number(inch) + " / " + Number(millimetre);
}

std::string Values(const FieldDescription& field)
{
    std::string values;
    if (field.range) {
        const auto bound = [](double value) { return std::abs(value) == kUnbounded ? "any" : Number(value); };
        values = bound(field.range->low) + " to " + bound(field.range->high);
        if (field.range->low == -kUnbounded && field.range->high == kUnbounded)
            values = "any";
        else if (field.range->high == kUnbounded)
            values = Number(field.range->low) + " or more";
    }
    if (field.isCheckBox)
        values = "off, on";
    int value = field.firstValue;
    for (const UINT text : field.texts)
        values += (values.empty() ? "" : ", ") + std::to_string(value++) + " " + ListText(text);
    return values;
}

std::string Control(const FieldDescription& field, HWND dialog)
{
    if (field.controls.empty())
        return "";
    const int id = field.controls.front();
    return LabelOf(dialog, id) + " (" + std::to_string(id) + ")";
}

std::string Remarks(const FieldDescription& field)
{
    std::string remarks;
    const auto add = [&remarks](const std::string& remark) { remarks += (remarks.empty() ? "" : "; ") + remark; };
    if (field.isClamped)
        add("put in bounds when read");
    if (!field.isInDefaultsFile)
        add("not read from the defaults file");
    if (!field.readSection.empty())
        add("read from section `" + field.readSection + "`");
    return remarks;
}

void PrintRecord(const RecordDescription& record)
{
    const Template page(record.templateId);
    std::printf("\n## %s\n\n", record.section.c_str());
    std::printf("Page: \"%s\", template %d.\n\n", Utf8(TextOf(page.window)).c_str(), record.templateId);
    std::printf("| key | type | scales | at start, inch / mm | edited by | values | remarks |\n");
    std::printf("|---|---|---|---|---|---|---|\n");
    for (const FieldDescription& field : record.fields)
        std::printf("| `%s` | %s | %s | %s | %s | %s | %s |\n", field.key.c_str(), field.isReal ? "real" : "whole",
                    Conversion(field).c_str(), AtStart(field).c_str(), Control(field, page.window).c_str(),
                    Values(field).c_str(), Remarks(field).c_str());
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
