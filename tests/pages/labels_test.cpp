// The labels of options, which documents and tools take from the tables, beside what the pages show.
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "description/description.h"
#include "pages/page_driver.h"

namespace {

std::string Utf8(const std::wstring& text)
{
    std::string utf8(3 * text.size(), '\0');
    const int written = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()), utf8.data(),
                                            static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<size_t>(written));
    return utf8;
}

INT_PTR CALLBACK NoCode(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// The controls of a page's template without its code, hidden.
class Template {
public:
    explicit Template(int id)
        : m_parent(CreateWindow(L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr)),
          window(CreateDialogParam(GetModuleHandle(L"PelmarDlgs.dll"), MAKEINTRESOURCE(id), m_parent, NoCode, 0))
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

/// The control's own text where it is a button, else the nearest static text before it.
std::string LabelOf(HWND dialog, int id)
{
    HWND control = ui::Control(dialog, id);
    std::wstring label = ui::ClassOf(control) == L"Button" ? ui::TextOf(control) : L"";
    while (label.empty() && (control = GetWindow(control, GW_HWNDPREV)) != nullptr)
        if (ui::ClassOf(control) == L"Static")
            label = ui::TextOf(control);
    std::erase(label, L'&');
    while (label.ends_with(L' '))
        label.pop_back();
    if (label.ends_with(L':'))
        label.pop_back();
    return Utf8(label);
}

/// A record, and the keys of its options that no control of the page's template is bound to.
struct Unbound {
    std::string section;
    std::vector<std::string> keys;

    friend void PrintTo(const Unbound& row, std::ostream* out) { *out << row.section; }
};

const Unbound kRecords[] = {
    {"ChamferMill2x", {"Units"}},
    {"FaceMill2x", {"Units"}},
    {"GrooveMill", {"Units", "PlungeClearType"}},
    {"HoleProcessLocation", {"Units"}},
    {"Options2x", {"Units", "SelectMaterial"}},
    {"Options3x", {"Units"}},
    {"Options4x", {"Units", "StartPX", "StartPY", "StartPZ", "EndPX", "EndPY", "EndPZ"}}, // in a dialog of their own
    {"Options5x", {"Units"}},
    {"OptionsEDM", {"Units"}},
    {"OptionsFlatSurface", {"Units", "DepthFirst", "PlungeWarnings", "IslandPlunges", "AlignPlunges"}},
    {"OptionsLathe", {"Units"}},
    {"OptionsSSheet", {"Units", "OperationsGraphics"}},
    {"OptionsZFinish", {"Units"}},
    {"OptionsZRough", {"Units"}},
    {"RoundMill", {"Units"}},
    {"SlotMill", {"Units", "PlungeClearType"}},
};

class OptionLabels : public testing::TestWithParam<Unbound> {
protected:
    static const RecordDescription& Described()
    {
        for (const RecordDescription& record : DescribeRecords())
            if (record.table.Section() == GetParam().section)
                return record;
        throw std::runtime_error("no record " + GetParam().section);
    }
};

TEST_P(OptionLabels, AreWhatThePageShowsBesideTheirControls)
{
    const RecordDescription& record = Described();
    std::vector<std::string> unbound;
    ui::UiThread::Get().Call([&] {
        const Template page(record.templateId);
        for (const Option& option : record.table.Options()) {
            const Control* const control = record.ControlOf(option);
            if (!control || !GetDlgItem(page.window, control->id)) {
                unbound.emplace_back(option.key ? option.key : option.label);
                continue;
            }
            EXPECT_EQ(LabelOf(page.window, control->id), option.label) << control->id;
        }
    });
    EXPECT_EQ(GetParam().keys, unbound);
}

INSTANTIATE_TEST_SUITE_P(EveryRecord, OptionLabels, testing::ValuesIn(kRecords),
                         [](const auto& record) { return record.param.section; });

TEST(OptionLabelsOfAll, AreCheckedForEveryRecord)
{
    EXPECT_EQ(DescribeRecords().size(), std::size(kRecords));
}

} // namespace
