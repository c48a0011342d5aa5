// What nobody has touched stays as the files have it: with values of six decimals, OK changes no byte of a value.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "option_pages.h"
#include "pages/page_driver.h"
#include "resources/resource.h"
#include "settings_text.h"
#include "ui/bytes.h"

namespace {

/// A value near the usual one that is shown shorter than it is, on the side that every range has room on.
std::string WithSixDecimals(const std::string& text)
{
    const double usual = std::atof(text.c_str());
    const double longer = usual == 0 ? 0.00004 : usual < 1 ? usual + 0.000012 : usual - 0.012345;
    char written[64];
    std::snprintf(written, sizeof written, "%.6f", longer);
    return written;
}

bool IsReal(const std::string& text)
{
    return text.find('.') != std::string::npos && text.find_first_not_of("-0123456789.") == std::string::npos;
}

/// Puts the focus on each edit that can have it, as a user does who only looks.
void LookAtEveryEdit(HWND dialog)
{
    for (const HWND control : ui::Children(dialog))
        if (ui::ClassOf(control) == L"Edit" && IsWindowVisible(control) && IsWindowEnabled(control))
            ui::FocusOn(dialog, GetDlgCtrlID(control));
}

class UntouchedPage : public testing::TestWithParam<size_t> {
protected:
    ~UntouchedPage() override
    {
        row.defaults();
        ui::UiThread::Get().Call([this] { row.make(kInch); });
    }

    std::string Saved()
    {
        row.save();
        std::string file = host.ReadSettings();
        // Every exchange of Z roughing turns its recalculation of plunges round.
        if (file.starts_with("[OptionsZRough]"))
            file.erase(file.find("IslandPlunges="), std::strlen("IslandPlunges=0\r\n"));
        return file;
    }

    /// The record's file with every real given six decimals, as the library itself writes it.
    std::string FileWithSixDecimals()
    {
        ui::UiThread::Get().Call([this] { row.make(kInch); });
        row.defaults();
        std::vector<Entry> entries = EntriesOf(Saved());
        for (Entry& entry : entries)
            if (IsReal(entry.text))
                entry.text = WithSixDecimals(entry.text);
        host.WriteSettings(FileOf(entries));
        row.restore();
        return Saved();
    }

    /// Shows the page and presses OK.
    template <class Look> void Accept(int units, Look look)
    {
        const auto page = ui::On([&] { return row.make(units); });
        OpenSheet sheet({page.get()});
        look(sheet.Page());
        sheet.Ok();
    }

    const HostFolder host;
    const OptionPage& row = OptionPages()[GetParam()];
};

TEST_P(UntouchedPage, KeepsEveryByteOfItsValues)
{
    const std::string file = FileWithSixDecimals();
    ASSERT_NE(std::string::npos, file.find('.'));
    Accept(kInch, [](HWND) {});
    EXPECT_EQ(file, Saved());
    Accept(kInch, LookAtEveryEdit);
    EXPECT_EQ(file, Saved());
}

std::set<int> ListsThatShowNothing(HWND page)
{
    std::set<int> lists;
    for (const HWND control : ui::Children(page))
        if (ui::ClassOf(control) == L"ComboBox" && ui::Selection(page, GetDlgCtrlID(control)) < 0)
            lists.insert(GetDlgCtrlID(control));
    return lists;
}

TEST_P(UntouchedPage, ShowsNothingInAListThatHoldsNoItemForTheValueWheneverItComesToTheFront)
{
    ui::UiThread::Get().Call([this] { row.make(kInch); });
    row.defaults();
    std::vector<Entry> entries = EntriesOf(Saved());
    for (Entry& entry : entries)
        if (!IsReal(entry.text) && entry.key != "Units")
            entry.text = "99";
    const auto page = ui::On([&] { return row.make(kInch); });
    SiblingSpy other;
    OpenSheet sheet({page.get(), &other});
    host.WriteDefaults(FileOf(entries));
    SendHostMessage(sheet.Page(), kSetDefaultsMessage);
    sheet.Switch(1);
    sheet.Switch(0);
    const std::set<int> empty = ListsThatShowNothing(sheet.Page());
    // The holes' only list offers something for every value.
    EXPECT_EQ(GetDlgItem(sheet.Page(), IDC_HOLE_SORT_TYPE) != nullptr, empty.empty());
    sheet.Switch(1);
    sheet.Switch(0);
    EXPECT_EQ(empty, ListsThatShowNothing(sheet.Page()));
}

INSTANTIATE_TEST_SUITE_P(AllPages, UntouchedPage, testing::Range(size_t{0}, OptionPages().size()));

// ---- the dialogs ----

constexpr double kLong = 0.0123456789;
constexpr double kTooSmallToShow = 3e-9;

TEST(UntouchedRotaryDialog, KeepsTheAxisInFull)
{
    const HostFolder host;
    const double given[2][3] = {{kLong, kTooSmallToShow, -kLong}, {1 + kLong, 1.0 / 3, 1e6 + kLong}};
    double axis[2][3];
    std::memcpy(axis, given, sizeof axis);
    CDefs5xPage page;
    ui::UiThread::Get().Call([&] { page.GetData(kInch, axis); });
    OpenSheet sheet({&page});
    ui::Click(sheet.Page(), IDC_MX_ROTARY_OPTIONS);
    const HWND dialog = ui::WaitForWindow(L"Параметры осей поворота");
    LookAtEveryEdit(dialog);
    ui::Click(dialog, IDOK);
    ASSERT_TRUE(ui::WaitForClose(dialog));
    sheet.Ok();
    page.SetData(axis);
    EXPECT_EQ(ui::BytesOf(given), ui::BytesOf(axis));
}

TEST(UntouchedLatheAxes, KeepTheDirectionsInFull)
{
    const HostFolder host;
    LatheAxisLabels labels[kLatheAxisModes] = {};
    const int active[kLatheAxisModes] = {};
    LatheAxisDirections directions[kLatheAxisModes] = {};
    for (auto& mode : directions)
        for (int component = 0; component < 3; ++component)
            for (int axis = 0; axis < 3; ++axis)
                mode[component][axis] = component == axis ? 1 - kLong : axis ? kLong : kTooSmallToShow;
    CDefsLathePage page;
    ui::UiThread::Get().Call([&] { page.GetData(kInch, labels, active, directions); });
    OpenSheet sheet({&page});
    for (const int button : {IDC_LATHE_RADIUS_AXES, IDC_LATHE_DIAMETER_AXES}) {
        ui::Click(sheet.Page(), button);
        const HWND axes = ui::WaitForWindow(button == IDC_LATHE_RADIUS_AXES ? L"Режим токарных осей - радиус"
                                                                            : L"Режим токарных осей - диаметр");
        for (const int shown : {1, 0}) {
            PostMessage(axes, PSM_SETCURSEL, static_cast<WPARAM>(shown), 0);
            ui::Settle(axes);
            LookAtEveryEdit(reinterpret_cast<HWND>(SendMessage(axes, PSM_GETCURRENTPAGEHWND, 0, 0)));
        }
        ui::Click(axes, IDOK);
        ASSERT_TRUE(ui::WaitForClose(axes));
    }
    sheet.Ok();
    int activeNow[kLatheAxisModes];
    LatheAxisDirections now[kLatheAxisModes] = {};
    page.SetData(labels, activeNow, now);
    for (int mode = 0; mode < kLatheAxisModes; ++mode)
        EXPECT_EQ(ui::BytesOf(directions[mode]), ui::BytesOf(now[mode])) << mode;
}

TEST(UntouchedSetupSheet, KeepsEveryByteOfItsValues)
{
    const HostFolder host;
    host.WriteSettings("[OptionsSSheet]\r\nRapidRate=399.987640\r\nToolChangeTime=0.000040\r\n");
    vSSheetOptions_Restore();
    vSSheetOptions_Save();
    const std::string file = host.ReadSettings();
    CDefsSetupsheet dialog;
    const OpenInside inside(dialog, CDefsSetupsheet::IDD);
    ui::UiThread::Get().Call([&] { dialog.GetData(kInch); });
    for (int round = 0; round < 2; ++round) {
        if (round == 1)
            LookAtEveryEdit(dialog.m_hWnd);
        ui::UiThread::Get().Call([&] {
            EXPECT_TRUE(dialog.UpdateData(TRUE));
            dialog.SetData();
            vSSheetOptions_Save();
        });
        EXPECT_EQ(file, host.ReadSettings());
    }
    *GetLastSSheetOptions() = CSSheetOptionsInfo();
}

TEST(UntouchedNcDefaults, KeepTheTolerancesInFull)
{
    const HostFolder host;
    OptNCDefData data;
    data.filterSpans = 1;
    data.filterMaxSpan = kLong;
    data.filterArcTolerance = 0.00004;
    CDefsNCDefaultsDlg dialog;
    OpenModal open(dialog, L"Параметры ЧПУ");
    ui::UiThread::Get().Call([&] {
        dialog.GetData(&data);
        dialog.UpdateData(FALSE);
    });
    LookAtEveryEdit(open.window);
    open.End(IDOK);
    OptNCDefData taken;
    ui::UiThread::Get().Call([&] { dialog.SetData(&taken); });
    EXPECT_EQ(kLong, +taken.filterMaxSpan); // the plus copies a field: the packed ones cannot be referred to
    EXPECT_EQ(0.00004, +taken.filterArcTolerance);
    EXPECT_EQ("0.012346", Value(host.settings, "DefaultNCParameter", "FilterMaxSpan"));
    EXPECT_EQ("0.000040", Value(host.settings, "DefaultNCParameter", "FilterArcTol"));
}

// ---- single values ----

class UntouchedValue : public testing::Test {
protected:
    UntouchedValue() { *GetLast2xOptions() = C2AxisOptionsInfo(); }
    ~UntouchedValue() override { *GetLast2xOptions() = C2AxisOptionsInfo(); }

    /// The rapid plane after a text has been typed over it, or put back as it was shown.
    double AfterTyping(double before, const wchar_t* text)
    {
        GetLast2xOptions()->RapidPlane = before;
        CDefs2xPage page;
        ui::UiThread::Get().Call([&] { page.GetData(kInch); });
        OpenSheet sheet({&page});
        ui::Type(sheet.Page(), kRapidPlane, text);
        sheet.Ok();
        return GetLast2xOptions()->RapidPlane;
    }

    static constexpr int kRapidPlane = 3909;
    const HostFolder host;
};

TEST_F(UntouchedValue, IsOneThatIsTypedAsItWasShown)
{
    EXPECT_EQ(kLong, AfterTyping(kLong, L"0.0123"));
    EXPECT_EQ(kTooSmallToShow, AfterTyping(kTooSmallToShow, L"0.0000"));
}

TEST_F(UntouchedValue, IsNoneThatIsTypedInAnotherWay)
{
    EXPECT_EQ(0.0124, AfterTyping(kLong, L"0.0124"));
    EXPECT_EQ(0.0123, AfterTyping(kLong, L"0.01230"));
    EXPECT_EQ(0.0, AfterTyping(kTooSmallToShow, L"0"));
    EXPECT_EQ(0.0, AfterTyping(1, L"0.000000003")) << "too small to be shown";
}

TEST_F(UntouchedValue, IsCheckedAgainstItsRange)
{
    GetLast2xOptions()->CornerAngle = 29.99999; // shown as 30.0000, its lower bound
    CDefs2xPage page;
    ui::UiThread::Get().Call([&] { page.GetData(kInch); });
    OpenSheet sheet({&page});
    sheet.Press(IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(sheet.IsOpen());
}

} // namespace
