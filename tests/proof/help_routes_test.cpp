// Every way to help, on every page and in every dialog: the Help button, F1, Shift+F1 and the caption's "?".
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "description/description.h"
#include "dialogs/dialog_driver.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "pages/page_driver.h"
#include "resources/resource.h"

namespace {

constexpr int kHelpButton = 9; // the sheet's own

bool IsHelpMode()
{
    return ui::On([] { return AfxGetApp()->m_bHelpMode != FALSE; });
}

/// Does what asks for help: the topic that is shown then.
std::string TopicAfter(const std::function<void()>& ask)
{
    ForgetTopic();
    ask();
    EXPECT_FALSE(IsHelpMode());
    return LastTopicShown();
}

/// Asks with the pointer on a control. `ask` says whether the question bore that place: the display reports the
/// pointer's earlier moves late, so that it may jump back for a moment. Asked once more then.
std::string TopicOf(HWND window, int id, const std::function<bool(const RECT& area)>& ask)
{
    const HWND control = ui::Control(window, id);
    RECT area;
    GetWindowRect(control, &area);
    std::string topic;
    const bool stayed = ui::WaitUntil([&] {
        ui::PointAt(control);
        bool isThere = false;
        topic = TopicAfter([&] { isThere = ask(area); });
        return isThere;
    });
    EXPECT_TRUE(stayed);
    return topic;
}

/// A question that is asked within one message, which bears its place.
std::function<bool(const RECT& area)> AtOnce(const std::function<void()>& ask)
{
    return [ask](const RECT& area) {
        return ui::On([&] {
            ask();
            return ui::IsIn(area, GetMessagePos());
        });
    };
}

/// The "?" pointer clicks on a control: the system tells the control so.
void ClickWithQuestionMark(HWND control)
{
    ui::UiThread::Get().Call([control] {
        HELPINFO info{};
        info.cbSize = sizeof info;
        info.iContextType = HELPINFO_WINDOW;
        info.iCtrlId = GetDlgCtrlID(control);
        info.hItemHandle = control;
        GetCursorPos(&info.MousePos);
        SendMessage(control, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    });
}

const PageFacts& FactsOf(int templateId)
{
    for (const WindowDescription& window : DescribeWindows())
        if (window.page.templateId == templateId)
            return window.page;
    throw std::runtime_error("no window has the template " + std::to_string(templateId));
}

const char* TopicIn(const PageFacts& facts, int id)
{
    const char* topic = facts.topic;
    for (const Control& control : facts.controls)
        if (control.id == id && control.topic)
            topic = control.topic;
    return topic;
}

/// The controls of a window that a pointer can come to.
std::vector<int> PointedAt(HWND window)
{
    std::vector<int> ids;
    for (const HWND control : ui::Children(window)) {
        const std::wstring name = ui::ClassOf(control);
        const bool isFrame = name == L"Button" && (GetWindowLong(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
        if (name != L"Static" && name != L"#32770" && !isFrame && IsWindowVisible(control))
            ids.push_back(GetDlgCtrlID(control));
    }
    return ids;
}

/// The routes that are the same everywhere.
void ExpectEveryRoute(HWND window, const PageFacts& facts)
{
    EXPECT_EQ(facts.topic, TopicAfter([&] { SendMessage(window, WM_COMMAND, ID_HELP, 0); }));
    const std::vector<int> ids = PointedAt(window);
    ASSERT_FALSE(ids.empty());
    for (const int id : ids) {
        const HWND control = ui::Control(window, id);
        EXPECT_EQ(facts.topic, TopicAfter([&] { ui::PressF1(control); })) << id;
        EXPECT_EQ(TopicIn(facts, id), TopicOf(window, id, AtOnce([&] { ui::PressF1(control, true); }))) << id;
        EXPECT_EQ(TopicIn(facts, id), TopicOf(window, id, AtOnce([&] { ClickWithQuestionMark(control); }))) << id;
    }
}

// ---- pages ----

class HelpOfPage : public testing::TestWithParam<size_t> {
protected:
    const HostFolder host;
};

TEST_P(HelpOfPage, ComesByEveryRoute)
{
    const std::unique_ptr<CPropertyPage> page = OptionPages()[GetParam()].make(kInch);
    const PageFacts& facts = FactsOf(LOWORD(reinterpret_cast<ULONG_PTR>(page->m_psp.pszTemplate)));
    OpenSheet sheet({page.get()});
    ExpectEveryRoute(sheet.Page(), facts);
    EXPECT_EQ(facts.topic, TopicAfter([&] { ui::Click(sheet.window, kHelpButton); }));
    EXPECT_EQ(facts.topic, TopicAfter([&] { ui::PressF1(ui::Control(sheet.window, IDCANCEL)); }));
}

INSTANTIATE_TEST_SUITE_P(AllPages, HelpOfPage, testing::Range(size_t{0}, OptionPages().size()));

TEST(HelpOfLatheAxes, IsTheLathesOwnOnBothPages)
{
    const HostFolder host;
    CLatheInputDisplayPS sheet(L"Оси");
    ui::UiThread::Get().Start([&] { sheet.DoModal(); });
    const HWND window = ui::WaitForWindow(L"Оси");
    const char* const topic = FactsOf(IDD_LATHE).topic;
    for (const int index : {0, 1}) {
        PostMessage(window, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
        ui::Settle(window);
        const auto page = reinterpret_cast<HWND>(SendMessage(window, PSM_GETCURRENTPAGEHWND, 0, 0));
        const HWND box = ui::Control(page, IDC_LATHE_AXES_ACTIVE);
        EXPECT_EQ(topic, TopicAfter([&] { ui::PressF1(box); }));
        EXPECT_EQ(topic, TopicAfter([&] { ClickWithQuestionMark(box); }));
    }
    ui::Click(window, IDCANCEL);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
}

// ---- dialogs ----

class HelpOfDialog : public testing::Test {
protected:
    /// The caption's "?" where the system has no pointer of its own for it: the next click asks.
    static void ExpectQuestionMark(HWND window, const PageFacts& facts, int id)
    {
        ASSERT_TRUE(GetWindowLong(window, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
        const HWND control = ui::Control(window, id);
        const auto pressCaption = [&] {
            PostMessage(window, WM_SYSCOMMAND, SC_CONTEXTHELP, 0);
            ui::Settle(window);
            EXPECT_TRUE(IsHelpMode());
        };
        EXPECT_EQ(TopicIn(facts, id), TopicOf(window, id, [&](const RECT& area) {
                      pressCaption();
                      PostMessage(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
                      PostMessage(control, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
                      POINT pointer;
                      GetCursorPos(&pointer); // as it is when the messages are posted
                      ui::Settle(window);
                      return PtInRect(&area, pointer) != FALSE;
                  }));
        EXPECT_TRUE(IsWindow(window)); // the click presses nothing
        EXPECT_EQ("none", TopicAfter([&] {
                      pressCaption();
                      ui::Press(control, VK_ESCAPE);
                  }));
        EXPECT_TRUE(IsWindow(window));
        // Another window comes to the front.
        pressCaption();
        SendMessage(window, WM_ACTIVATE, WA_INACTIVE, 0);
        EXPECT_FALSE(IsHelpMode());
        pressCaption();
        PostMessage(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(ui::WaitForClose(window));
        EXPECT_FALSE(IsHelpMode());
    }

    const HostFolder host;
};

TEST_F(HelpOfDialog, OfTheNcDefaultsComesByEveryRoute)
{
    CDefsNCDefaultsDlg dialog;
    OpenModal open(dialog, L"Параметры ЧПУ");
    const PageFacts& facts = FactsOf(CDefsNCDefaultsDlg::IDD);
    ExpectEveryRoute(open.window, facts);
    EXPECT_EQ(facts.topic, TopicAfter([&] { ui::Click(open.window, ID_HELP); }));
    ExpectQuestionMark(open.window, facts, IDC_NCDEF_LAST_TOOL);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
}

TEST_F(HelpOfDialog, OfTheDefaultToolsComesByEveryRoute)
{
    CDefsNCToolsDlg dialog;
    OpenModal open(dialog, L"Параметры ЧПУ > Сервис");
    const PageFacts& facts = FactsOf(CDefsNCToolsDlg::IDD);
    ExpectEveryRoute(open.window, facts);
    EXPECT_EQ(facts.topic, TopicAfter([&] { ui::Click(open.window, ID_HELP); }));
    ExpectQuestionMark(open.window, facts, IDCANCEL);
    EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
}

TEST_F(HelpOfDialog, OfTheSettingsReviewComesByEveryRoute)
{
    CSettingsReviewDlg dialog;
    OpenModal open(dialog, L"Проверка параметров");
    ExpectEveryRoute(open.window, FactsOf(CSettingsReviewDlg::IDD));
    open.End(IDCANCEL);
}

template <class Dialog, class Fill> void ExpectEveryRouteInside(const Fill& fill)
{
    Dialog dialog;
    OpenInside open(dialog, Dialog::IDD);
    ui::UiThread::Get().Call([&] { fill(dialog); });
    ExpectEveryRoute(open.window, FactsOf(Dialog::IDD));
}

TEST_F(HelpOfDialog, OfTheDefaultsFileComesByEveryRoute)
{
    ExpectEveryRouteInside<CNCDefaultPath>([](CNCDefaultPath&) {});
}

TEST_F(HelpOfDialog, OfTheTemplatesComesByEveryRoute)
{
    ExpectEveryRouteInside<CTemplateOptions>([](CTemplateOptions&) {});
}

TEST_F(HelpOfDialog, OfTheSetupSheetComesByEveryRoute)
{
    ExpectEveryRouteInside<CDefsSetupsheet>([](CDefsSetupsheet& dialog) { dialog.GetData(kInch); });
}

TEST_F(HelpOfDialog, OfTheRotaryAxesComesByEveryRoute)
{
    CDefs4xPage page;
    double axis[2][3] = {{0, 0, 0}, {1, 0, 0}};
    ui::UiThread::Get().Call([&] { page.GetData(kInch, axis); });
    OpenSheet sheet({&page});
    PostMessage(ui::Control(sheet.Page(), IDC_MX_ROTARY_OPTIONS), BM_CLICK, 0, 0);
    const HWND dialog = ui::WaitForWindow(L"Параметры осей поворота");
    const PageFacts& facts = FactsOf(IDD_ROTARY);
    ExpectEveryRoute(dialog, facts);
    EXPECT_EQ(facts.topic, TopicAfter([&] { ui::Click(dialog, ID_HELP); }));
    PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(ui::WaitForClose(dialog));
}

} // namespace
