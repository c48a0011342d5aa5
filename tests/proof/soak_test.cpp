// Every page and dialog is opened, used and closed many times, and must leave nothing behind.
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <memory>

#include <gtest/gtest.h>

#include <ControlLib.h>
#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "option_pages.h"
#include "pages/tip_driver.h"
#include "resources/resource.h"
#include "ui/holdings.h"
#include "ui/person.h"

namespace {

constexpr UINT kUse = WM_APP + 10;
constexpr UINT kCloseOpened = WM_APP + 11;

/// PELMAR_SOAK_ROUNDS, or a number that costs little.
size_t Rounds()
{
    const char* const rounds = std::getenv("PELMAR_SOAK_ROUNDS");
    return rounds ? std::strtoul(rounds, nullptr, 10) : 20;
}

/// Types into the first field, chooses from the first list and clicks the first box of a page or dialog.
void Use(HWND dialog)
{
    bool typed = false, chosen = false, clicked = false;
    for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        if (!IsWindowEnabled(control) || !IsWindowVisible(control))
            continue;
        const std::wstring name = ui::ClassOf(control);
        const bool isBox = name == L"Button" && (GetWindowLong(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX;
        if (name == L"Edit" && !typed) {
            typed = true;
            const std::wstring before = ui::TextOf(control);
            SetFocus(control);
            SendMessage(control, EM_SETSEL, 0, -1);
            for (const wchar_t character : before)
                SendMessage(control, WM_CHAR, character, 1);
        } else if (name == L"ComboBox" && !chosen) {
            chosen = true;
            SendMessage(control, CB_SETCURSEL, 0, 0);
            SendMessage(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), CBN_SELCHANGE),
                        reinterpret_cast<LPARAM>(control));
        } else if (isBox && !clicked) {
            clicked = true;
            SendMessage(control, BM_CLICK, 0, 0);
        }
    }
}

/// Lets the windows of this thread go on until something has come about, as their own loop would.
bool GoOnUntil(const std::function<bool()>& condition)
{
    const ULONGLONG end = GetTickCount64() + ui::kLimitMilliseconds;
    while (!condition() && GetTickCount64() < end) {
        MSG message;
        while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (CWnd::WalkPreTranslateTree(nullptr, &message))
                continue;
            TranslateMessage(&message);
            DispatchMessage(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return condition();
}

/// Rests the pointer on controls until their tips come, and leaves them.
void RestOnAll(HWND dialog, std::initializer_list<int> ids)
{
    const HWND root = GetAncestor(dialog, GA_ROOT);
    for (const int id : ids) {
        const HWND control = GetDlgItem(dialog, id);
        const auto comes = [&] {
            SetActiveWindow(root);
            PostMessage(dialog, WM_MOUSEMOVE, 0, 0);
            RECT area;
            GetWindowRect(control, &area);
            POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
            ScreenToClient(dialog, &middle);
            PostMessage(dialog, WM_MOUSEMOVE, 0, MAKELPARAM(middle.x, middle.y));
            const ULONGLONG end = GetTickCount64() + 1000;
            return GoOnUntil([&] { return OpenTip() || GetTickCount64() > end; }) && OpenTip();
        };
        EXPECT_TRUE(ui::WaitUntil(comes)) << id;
        PostMessage(dialog, WM_MOUSEMOVE, 0, 0);
        EXPECT_TRUE(GoOnUntil([] { return !OpenTip(); })) << id;
    }
}

/// Rests on the first field, list and box that can have a tip.
void RestOnFirst(HWND page)
{
    for (const wchar_t* const kind : {L"Edit", L"ComboBox"})
        for (const HWND control : ui::Children(page))
            if (ui::ClassOf(control) == kind && IsWindowVisible(control)) {
                RestOnAll(page, {GetDlgCtrlID(control)});
                break;
            }
}

/// The buttons of pages that open a dialog or a sheet of the library's.
constexpr int kOpeners[] = {IDC_MX_ROTARY_OPTIONS, IDC_LATHE_DIAMETER_AXES};

/// A sheet that uses its page, what the page opens, and presses OK by itself.
class CUsedSheet : public CPropertySheetTVEx {
public:
    CUsedSheet() : CPropertySheetTVEx(L"Лист") {}
    BOOL OnInitDialog() override
    {
        PostMessage(kUse);
        return CPropertySheetTVEx::OnInitDialog();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == kCloseOpened)
            CloseOpened();
        else if (message == kUse)
            UsePage();
        else
            return CPropertySheetTVEx::WindowProc(message, wParam, lParam);
        return 0;
    }

private:
    void UsePage()
    {
        const auto page = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
        Use(page);
        RestOnFirst(page);
        ::SendMessage(page, kSetDefaultsMessage, 0, 0);
        for (const int opener : kOpeners)
            if (const HWND button = ::GetDlgItem(page, opener)) {
                PostMessage(kCloseOpened);
                ::SendMessage(button, BM_CLICK, 0, 0);
            }
        PostMessage(PSM_PRESSBUTTON, PSBTN_OK);
    }

    /// Runs inside the loop of what a button has opened.
    void CloseOpened()
    {
        const HWND opened = ::GetLastActivePopup(m_hWnd);
        EXPECT_NE(m_hWnd, opened);
        ::PostMessage(opened, WM_COMMAND, IDOK, 0);
    }
};

class SoakOfPage : public testing::TestWithParam<size_t> {};

TEST_P(SoakOfPage, LeavesNothing)
{
    const HostFolder host;
    const ShortRests shortRests;
    const OptionPage& row = OptionPages()[GetParam()];
    ui::ExpectNothingLeft(
        Rounds(),
        [&row] {
            const std::unique_ptr<CPropertyPage> page = row.make(kInch);
            CUsedSheet sheet;
            sheet.AddPage(page.get());
            EXPECT_EQ(IDOK, sheet.DoModal());
        },
        10);
}

INSTANTIATE_TEST_SUITE_P(AllPages, SoakOfPage, testing::Range(size_t{0}, OptionPages().size()));

/// Shows a dialog inside a host's window, fills it, uses it and lets it go.
template <class Dialog, class Fill> void Soak(Fill fill, std::initializer_list<int> rests = {})
{
    const HostFolder host;
    const ShortRests shortRests;
    ui::ExpectNothingLeft(
        Rounds(),
        [&] {
            Dialog dialog;
            ASSERT_TRUE(dialog.Create(Dialog::IDD));
            fill(dialog);
            Use(dialog.m_hWnd);
            dialog.ShowWindow(SW_SHOW);
            RestOnAll(dialog.m_hWnd, rests);
            dialog.SendMessage(kSetDefaultsMessage);
            dialog.UpdateData(TRUE);
            dialog.DestroyWindow();
        },
        10);
}

TEST(SoakOfDialogs, NcDefaultsLeaveNothing)
{
    OptNCDefData data;
    Soak<CDefsNCDefaultsDlg>(
        [&](CDefsNCDefaultsDlg& dialog) {
            dialog.GetData(&data);
            dialog.UpdateData(FALSE);
            dialog.SetData(&data);
        },
        {IDC_NCDEF_LAST_TOOL, IDC_NCDEF_MAX_SPAN});
}

TEST(SoakOfDialogs, DefaultToolsLeaveNothing)
{
    OptNCDefToolsData data;
    Soak<CDefsNCToolsDlg>([&](CDefsNCToolsDlg& dialog) {
        dialog.GetData(&data);
        dialog.SetData(&data);
    });
}

/// A child dialog needs a window around it.
template <class Dialog, class Fill> void SoakInside(Fill fill, std::initializer_list<int> rests = {})
{
    const HostFolder host;
    const ShortRests shortRests;
    std::unique_ptr<CWnd> owner;
    ui::UiThread::Get().Call([&] {
        owner = std::make_unique<CWnd>();
        ASSERT_TRUE(
            owner->CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 800, 600), nullptr, 0));
        owner->ShowWindow(SW_SHOW);
    });
    ui::ExpectNothingLeft(
        Rounds(),
        [&] {
            Dialog dialog;
            ASSERT_TRUE(dialog.Create(Dialog::IDD, owner.get()));
            fill(dialog);
            dialog.ShowWindow(SW_SHOW);
            Use(dialog.m_hWnd);
            RestOnAll(dialog.m_hWnd, rests);
            dialog.UpdateData(TRUE);
            dialog.DestroyWindow();
        },
        10);
    ui::UiThread::Get().Call([&] { owner->DestroyWindow(); });
}

TEST(SoakOfDialogs, TheDefaultsFileLeavesNothing)
{
    SoakInside<CNCDefaultPath>([](CNCDefaultPath&) {});
}

TEST(SoakOfDialogs, ToolpathTemplatesLeaveNothing)
{
    const HMODULE kept = LoadLibraryA("PELMAR.dll"); // as a host does
    SoakInside<CTemplateOptions>([](CTemplateOptions& dialog) { dialog.SendMessage(kSetDefaultsMessage); });
    FreeLibrary(kept);
}

TEST(SoakOfDialogs, TheReviewOfTheSettingsLeavesNothing)
{
    Soak<CSettingsReviewDlg>([](CSettingsReviewDlg& dialog) {
        dialog.SetDlgItemText(IDC_REVIEW_SEARCH, L"Options2x.CornerAngle");
        ListView_SetItemState(::GetDlgItem(dialog.m_hWnd, IDC_REVIEW_LIST), 0, LVIS_SELECTED | LVIS_FOCUSED,
                              LVIS_SELECTED | LVIS_FOCUSED);
        dialog.SendMessage(WM_COMMAND, IDC_REVIEW_EDIT);
        dialog.SendMessage(WM_COMMAND, IDC_REVIEW_COPY);
        dialog.SendMessage(WM_COMMAND, IDC_REVIEW_TAKE);
        dialog.SetData();
    });
}

TEST(SoakOfDialogs, TheSetupSheetLeavesNothing)
{
    SoakInside<CDefsSetupsheet>(
        [](CDefsSetupsheet& dialog) {
            dialog.GetData(kMillimetre);
            dialog.SendMessage(kSetDefaultsMessage);
            dialog.SetData();
        },
        {IDC_SHEET_RAPID_RATE, IDC_SHEET_STYLE});
}

} // namespace
