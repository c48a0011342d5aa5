#include <algorithm>

#include "extension.h"
#include "sheet.h"

BEGIN_MESSAGE_MAP(CNotingPage, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CNotingPage::OnQuerySiblings)
    ON_COMMAND(ID_HELP, &CNotingPage::OnHelp)
    ON_EN_CHANGE(IDC_NUMBER, &CNotingPage::OnChange)
END_MESSAGE_MAP()

namespace {

class Page : public SheetTest {};

// ---- life of a page ----

TEST_F(Page, LoadsAtItsStartAndNotAgainAtItsFirstActivation)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_EQ((Log{"one load", "one init", "one activate"}), TakeLog());
    EXPECT_EQ(L"5", ui::TextOf(one.m_hWnd, IDC_NUMBER));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, LoadsAgainAtEachLaterActivation)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    for (int round = 0; round < 2; ++round) {
        Turn(open.window, 1);
        TakeLog();
        one.number = 10 + round;
        Turn(open.window, 0);
        EXPECT_EQ((Log{"two deactivate", "two save", "one activate", "one load"}), TakeLog());
        EXPECT_EQ(std::to_wstring(10 + round), ui::TextOf(one.m_hWnd, IDC_NUMBER));
    }
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, SavesWhenItIsLeft)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"12");
    TakeLog();
    Turn(open.window, 1);
    EXPECT_EQ((Log{"one deactivate", "one save", "two load", "two init", "two activate"}), TakeLog());
    EXPECT_EQ(12, one.number);
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, IsKeptWhereItsDataAreRefused)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"x");
    TakeLog();
    Turn(open.window, 1);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Please enter an integer.", box.text);
    EXPECT_EQ(open.window, GetWindow(box.window, GW_OWNER));
    ui::Answer(box, IDOK);
    EXPECT_EQ((Log{"one deactivate", "one save"}), TakeLog());
    EXPECT_EQ(&one, ui::On([this] { return sheet.GetActivePage(); }));
    EXPECT_EQ(nullptr, two.m_hWnd);
    EXPECT_EQ(ui::Control(one.m_hWnd, IDC_NUMBER), ui::Focus(open.window));
    EXPECT_EQ(5, one.number);
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, KeepsTheSheetOpenWhereItsDataAreRefusedOnOk)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"x");
    TakeLog();
    ui::Click(open.window, IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_EQ((Log{"one deactivate", "one save"}), TakeLog());
    EXPECT_TRUE(IsWindow(open.window));
    ui::Type(one.m_hWnd, IDC_NUMBER, L"3");
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    EXPECT_EQ(3, one.number);
}

// ---- the sheet's buttons ----

TEST_F(Page, HearsOkAfterItsDataAreTaken)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    ui::Type(two.m_hWnd, IDC_NUMBER, L"8");
    TakeLog();
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    // The third page has never been shown.
    EXPECT_EQ((Log{"two deactivate", "two save", "one apply", "one ok", "two apply", "two ok"}), log);
    EXPECT_EQ(8, two.number);
    EXPECT_EQ(nullptr, one.m_hWnd);
    EXPECT_EQ(nullptr, two.m_hWnd);
}

TEST_F(Page, HearsApplyWithoutTheSheetClosing)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"8");
    TakeLog();
    ui::Click(open.window, kApplyNow);
    EXPECT_EQ((Log{"one deactivate", "one save", "one apply", "one ok", "one activate", "one load"}), TakeLog());
    EXPECT_EQ(8, one.number);
    EXPECT_TRUE(IsWindow(open.window));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, KeepsTheSheetOpenWhereItRefusesToApply)
{
    AddPages();
    one.refusesApply = true;
    Modal open(sheet, L"Параметры");
    TakeLog();
    ui::Click(open.window, IDOK);
    EXPECT_TRUE(IsWindow(open.window));
    const Log refused = TakeLog();
    EXPECT_EQ((Log{"one deactivate", "one save", "one apply"}), Log(refused.begin(), refused.begin() + 3));
    EXPECT_EQ(0, std::count(refused.begin(), refused.end(), "one ok"));
    one.refusesApply = false;
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(Page, HearsCancelWithoutItsDataBeingTaken)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    ui::Type(two.m_hWnd, IDC_NUMBER, L"8");
    TakeLog();
    EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
    EXPECT_EQ((Log{"one reset", "one cancel", "two reset", "two cancel"}), log);
    EXPECT_EQ(5, two.number);
}

TEST_F(Page, HearsTheHelpButtonAsTheHelpCommand)
{
    static_assert(ID_HELP == 57670);
    one.m_psp.dwFlags |= PSP_HASHELP;
    sheet.m_psh.dwFlags |= PSH_HASHELP;
    AddPages();
    Modal open(sheet, L"Параметры");
    TakeLog();
    ui::Click(open.window, IDHELP);
    EXPECT_EQ(Log{"one help"}, TakeLog());
    Turn(open.window, 1);
    EXPECT_FALSE(ui::IsEnabled(open.window, IDHELP)); // this page has none
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, DrivesTheApplyButton)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    OnUi([this] { one.SetModified(); });
    EXPECT_TRUE(ui::IsEnabled(open.window, kApplyNow));
    OnUi([this] { one.SetModified(FALSE); });
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    ui::Type(one.m_hWnd, IDC_NUMBER, L"8");
    EXPECT_TRUE(ui::IsEnabled(open.window, kApplyNow));
    ui::Click(open.window, kApplyNow);
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, StaysModifiedForEachPageThatIs)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    OnUi([this] {
        one.SetModified();
        two.SetModified();
        two.SetModified(FALSE);
    });
    EXPECT_TRUE(ui::IsEnabled(open.window, kApplyNow));
    OnUi([this] { one.SetModified(FALSE); });
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, IsNotModifiedByItsOwnLoading)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    one.number = 99;
    Turn(open.window, 0);
    EXPECT_EQ(L"99", ui::TextOf(one.m_hWnd, IDC_NUMBER));
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    EXPECT_EQ(0, std::count(log.begin(), log.end(), "one change"));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, CannotBeModifiedWithoutASheet)
{
    one.SetModified();
    OnUi([this] {
        ASSERT_TRUE(one.Create(IDD_PAGE_WITH_TITLE, CWnd::FromHandle(GetDesktopWindow())));
        one.SetModified();
        EXPECT_EQ(0, one.QuerySiblings(1, 2));
        EXPECT_EQ((Log{"one load", "one init"}), log);
        one.DestroyWindow();
    });
}

// ---- asking the other pages ----

class SiblingPages : public SheetTest {
protected:
    LRESULT Ask(CNotingPage& asking, WPARAM wParam = 1, LPARAM lParam = 2)
    {
        TakeLog();
        return ui::On([&] { return asking.QuerySiblings(wParam, lParam); });
    }
};

TEST_F(SiblingPages, AreAskedInOrderTheAskerExcepted)
{
    static_assert(PSM_QUERYSIBLINGS == 0x046C);
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    Turn(open.window, 2);
    EXPECT_EQ(0, Ask(two, 0x800E, -7));
    EXPECT_EQ((Log{"one asked", "three asked"}), log);
    EXPECT_EQ(0x800EU, one.siblingWord);
    EXPECT_EQ(-7, one.siblingValue);
    EXPECT_EQ(0x800EU, three.siblingWord);
    open.CloseBy(IDCANCEL);
}

TEST_F(SiblingPages, AreAskedUntilOneAnswers)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    Turn(open.window, 2);
    two.siblingAnswer = -3;
    three.siblingAnswer = 4;
    EXPECT_EQ(-3, Ask(one));
    EXPECT_EQ(Log{"two asked"}, log);
    EXPECT_EQ(4, Ask(two));
    EXPECT_EQ((Log{"one asked", "three asked"}), log);
    open.CloseBy(IDCANCEL);
}

TEST_F(SiblingPages, AreAskedOnlyOnceTheyExist)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    two.siblingAnswer = 9;
    EXPECT_EQ(0, Ask(one));
    EXPECT_TRUE(log.empty());
    Turn(open.window, 1);
    Turn(open.window, 0);
    EXPECT_EQ(9, Ask(one));
    EXPECT_EQ(Log{"two asked"}, log);
    open.CloseBy(IDCANCEL);
    EXPECT_EQ(0, Ask(one));
    EXPECT_TRUE(log.empty());
}

// ---- templates and titles ----

TEST_F(Page, BearsTheTitleOfItsTemplateOrAStringOfItsOwn)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Лист", TabText(sheet, 0));
    EXPECT_EQ(L"Свой заголовок", TabText(sheet, 1));
    EXPECT_EQ(L"Заголовок", TabText(sheet, 2));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, BearsTheTitleThatItsOwnerSets)
{
    one.m_psp.dwFlags |= PSP_USETITLE;
    one.m_psp.pszTitle = L"Иначе";
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Иначе", TabText(sheet, 0));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, BearsTheTitleOfItsTemplateWhereItsStringIsMissing)
{
    CNotingPage page("page", log, IDD_PAGE, IDS_NOWHERE);
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Лист", TabText(sheet, 0));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, TakesItsTemplateFromItsOwnModuleFirst)
{
    LoadedExtension extension(kFirstExtension);
    one.m_psp.hInstance = extension.module;
    two.m_psp.hInstance = extension.module; // which lacks this page's template
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Лист: первый", TabText(sheet, 0));
    EXPECT_EQ(L"Свой заголовок", TabText(sheet, 1));
    open.CloseBy(IDCANCEL);
}

TEST_F(Page, TakesItsTemplateFromTheModuleThatWasSetWhenItWasMade)
{
    LoadedExtension extension(kSecondExtension);
    AfxSetResourceHandle(extension.module);
    CNotingPage page("page", log);
    AfxSetResourceHandle(nullptr);
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Лист: второй", TabText(sheet, 0));
    open.CloseBy(IDCANCEL);
}

/// A template in memory.
const DLGTEMPLATE* TemplateOf(UINT id)
{
    const HRSRC resource = FindResource(nullptr, MAKEINTRESOURCE(id), RT_DIALOG);
    return static_cast<const DLGTEMPLATE*>(LockResource(LoadResource(nullptr, resource)));
}

TEST_F(Page, StandsByATemplateInMemoryToo)
{
    CNotingPage page("page", log, 0);
    page.m_psp.dwFlags |= PSP_DLGINDIRECT;
    page.m_psp.pResource = TemplateOf(IDD_PAGE_WITH_TITLE);
    sheet.AddPage(&page);
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(L"Свой заголовок", TabText(sheet, 0));
    EXPECT_EQ(L"5", ui::TextOf(page.m_hWnd, IDC_NUMBER));
    open.CloseBy(IDOK);
}

/// The face and height of the font that a window shows its text in.
std::pair<std::wstring, LONG> FontOf(HWND window)
{
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessage(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return {font.lfFaceName, font.lfHeight};
}

class PageOfAnotherFont : public SheetTest, public testing::WithParamInterface<UINT> {};

/// The sheet reckons the size of its pages in its own font.
TEST_P(PageOfAnotherFont, TakesThatOfItsSheetSoThatNothingIsCut)
{
    CNotingPage page("page", log, GetParam());
    sheet.AddPage(&one);
    sheet.AddPage(&page);
    for (int round = 0; round < 2; ++round) {
        Modal open(sheet, L"Параметры");
        Turn(open.window, 1);
        const HWND edit = ui::Control(page.m_hWnd, IDC_NUMBER);
        EXPECT_EQ(FontOf(ui::Control(open.window, IDOK)), FontOf(edit));
        EXPECT_EQ(FontOf(ui::Control(one.m_hWnd, IDC_NUMBER)), FontOf(edit));
        RECT last{};
        GetWindowRect(ui::Control(page.m_hWnd, IDC_AFTER_GROUP), &last);
        RECT around{};
        GetWindowRect(page.m_hWnd, &around);
        EXPECT_LE(last.right, around.right);
        EXPECT_LE(last.bottom, around.bottom);
        EXPECT_EQ(L"Крайняя", ui::TextOf(page.m_hWnd, IDC_AFTER_GROUP));
        open.CloseBy(IDOK);
    }
}

INSTANTIATE_TEST_SUITE_P(Page, PageOfAnotherFont, testing::Values(UINT{IDD_LARGE_PAGE}, UINT{IDD_PLAIN_PAGE}));

TEST_F(Page, StandsAsAModelessDialogToo)
{
    OnUi([this] {
        ASSERT_TRUE(one.Create(IDD_NUMBER));
        EXPECT_EQ((Log{"one load", "one init"}), log);
        one.DestroyWindow();
        EXPECT_EQ(nullptr, one.m_hWnd);
        EXPECT_FALSE(one.Create(IDD_NOWHERE));
    });
}

} // namespace
