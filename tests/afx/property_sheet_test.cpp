#include <algorithm>

#include "sheet.h"

namespace {

class Sheet : public SheetTest {};

class CNotingSheet : public CPropertySheet {
public:
    CNotingSheet(LPCTSTR caption, CWnd* parent = nullptr, UINT firstPage = 0)
        : CPropertySheet(caption, parent, firstPage)
    {
    }
    BOOL OnInitDialog() override
    {
        pageAtInit = GetActivePage();
        tabsAtInit = GetTabControl()->GetItemCount();
        return CPropertySheet::OnInitDialog();
    }
    const CPropertyPage* pageAtInit = nullptr;
    int tabsAtInit = 0;
};

TEST_F(Sheet, TellsHowItWasClosed)
{
    AddPages();
    {
        Modal open(sheet, L"Параметры");
        EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    }
    {
        Modal open(sheet, L"Параметры");
        EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
    }
    {
        Modal open(sheet, L"Параметры");
        PostMessage(open.window, WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_EQ(IDCANCEL, open.Result());
    }
}

TEST_F(Sheet, IsCancelledAfterAnApplyToo)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"8");
    ui::Click(open.window, kApplyNow);
    EXPECT_EQ(IDCANCEL, open.CloseBy(IDCANCEL));
    EXPECT_EQ(8, one.number);
}

TEST_F(Sheet, IsOkAfterAnApplyToo)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    ui::Type(one.m_hWnd, IDC_NUMBER, L"8");
    ui::Click(open.window, kApplyNow);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(Sheet, KnowsItsPages)
{
    AddPages();
    sheet.AddPage(&two);
    EXPECT_EQ(3, sheet.GetPageCount());
    EXPECT_EQ(&two, sheet.GetPage(1));
    EXPECT_EQ(nullptr, sheet.GetPage(3));
    EXPECT_EQ(nullptr, sheet.GetPage(-1));
    EXPECT_EQ(1, sheet.GetPageIndex(&two));
    const CNotingPage other("other", log);
    EXPECT_EQ(-1, sheet.GetPageIndex(&other));
}

TEST_F(Sheet, StartsWithThePageThatWasChosenBefore)
{
    EXPECT_EQ(nullptr, sheet.GetActivePage());
    AddPages();
    EXPECT_EQ(&one, sheet.GetActivePage());
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(&two, sheet.GetActivePage());
    EXPECT_EQ(1, sheet.GetActiveIndex());
    EXPECT_FALSE(sheet.SetActivePage(3));
    EXPECT_FALSE(sheet.SetActivePage(-1));
    EXPECT_TRUE(sheet.SetActivePage(&three));
    Modal open(sheet, L"Параметры");
    OnUi([this] {
        EXPECT_EQ(&three, sheet.GetActivePage());
        EXPECT_EQ(2, sheet.GetActiveIndex());
        EXPECT_TRUE(sheet.SetActivePage(&one));
        EXPECT_EQ(&one, sheet.GetActivePage());
        EXPECT_EQ(0, sheet.GetActiveIndex());
    });
    EXPECT_EQ(nullptr, two.m_hWnd);
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, TakesAPageMoreWhileItIsShown)
{
    sheet.AddPage(&one);
    Modal open(sheet, L"Параметры");
    CNotingPage broken("broken", log, IDD_NOWHERE);
    OnUi([&] {
        sheet.AddPage(&two);
        sheet.AddPage(&two);
        sheet.AddPage(&broken);
    });
    EXPECT_EQ(2, sheet.GetPageCount());
    EXPECT_EQ(2, ui::On([this] { return sheet.GetTabControl()->GetItemCount(); }));
    EXPECT_EQ(L"Свой заголовок", TabText(sheet, 1));
    Turn(open.window, 1);
    EXPECT_EQ(&two, ui::On([this] { return sheet.GetActivePage(); }));
    ui::Type(two.m_hWnd, IDC_NUMBER, L"8");
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
    EXPECT_EQ(8, two.number);
}

TEST_F(Sheet, LosesAPageWhileItIsShown)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    OnUi([this] {
        sheet.RemovePage(&two);
        sheet.RemovePage(7);
    });
    EXPECT_EQ(2, sheet.GetPageCount());
    EXPECT_EQ(nullptr, two.m_hWnd);
    EXPECT_EQ(2, ui::On([this] { return sheet.GetTabControl()->GetItemCount(); }));
    EXPECT_EQ(L"Заголовок", TabText(sheet, 1));
    OnUi([this] { two.SetModified(); }); // of no sheet any more
    EXPECT_FALSE(ui::IsEnabled(open.window, kApplyNow));
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(Sheet, LosesAPageBeforeItIsShown)
{
    AddPages();
    sheet.RemovePage(0);
    EXPECT_EQ(&two, sheet.GetPage(0));
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(2, ui::On([this] { return sheet.GetTabControl()->GetItemCount(); }));
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, StandsReadyWhenItsStartIsHandled)
{
    CNotingSheet noting(L"Параметры");
    noting.AddPage(&one);
    noting.AddPage(&two);
    Modal open(noting, L"Параметры");
    EXPECT_EQ(&one, noting.pageAtInit);
    EXPECT_EQ(2, noting.tabsAtInit);
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, StartsWithTheGivenPage)
{
    CNotingSheet noting(L"Параметры", nullptr, 1);
    noting.AddPage(&one);
    noting.AddPage(&two);
    Modal open(noting, L"Параметры");
    EXPECT_EQ(&two, noting.pageAtInit);
    EXPECT_EQ(nullptr, one.m_hWnd);
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, TurnsToAPageWhenTold)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    OnUi([this] {
        EXPECT_EQ(&one, sheet.GetActivePage());
        EXPECT_TRUE(sheet.SetActivePage(2));
        EXPECT_EQ(&three, sheet.GetActivePage());
        EXPECT_EQ(2, sheet.GetTabControl()->GetCurSel());
    });
    EXPECT_EQ(nullptr, two.m_hWnd);
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, PressesItsButtonsWhenTold)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    OnUi([this] { sheet.PressButton(PSBTN_APPLYNOW); });
    EXPECT_EQ(1, std::count(log.begin(), log.end(), "one apply"));
    OnUi([this] { sheet.PressButton(PSBTN_CANCEL); });
    EXPECT_EQ(IDCANCEL, open.Result());
}

TEST_F(Sheet, LetsItsTabsBeRenamed)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    OnUi([this] {
        wchar_t text[] = L"Задание";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        EXPECT_TRUE(sheet.GetTabControl()->SetItem(1, &item));
    });
    EXPECT_EQ(L"Задание", TabText(sheet, 1));
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, CanDoWithoutAnApplyButton)
{
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    AddPages();
    Modal open(sheet, L"Параметры");
    const HWND apply = GetDlgItem(open.window, kApplyNow);
    EXPECT_TRUE(!apply || !IsWindowVisible(apply));
    open.CloseBy(IDCANCEL);
}

TEST_F(Sheet, ShowsTheSamePagesAgain)
{
    AddPages();
    for (int round = 0; round < 2; ++round) {
        one.number = 20 + round;
        Modal open(sheet, L"Параметры");
        EXPECT_EQ((Log{"one load", "one init", "one activate"}), TakeLog());
        EXPECT_EQ(std::to_wstring(20 + round), ui::TextOf(one.m_hWnd, IDC_NUMBER));
        Turn(open.window, 1);
        TakeLog();
        Turn(open.window, 0);
        EXPECT_EQ((Log{"two deactivate", "two save", "one activate", "one load"}), TakeLog());
        EXPECT_EQ(IDOK, open.CloseBy(IDOK));
        EXPECT_EQ(nullptr, sheet.m_hWnd);
        TakeLog();
    }
}

TEST_F(Sheet, ShowsPagesThatAnotherSheetHasShown)
{
    AddPages();
    {
        Modal open(sheet, L"Параметры");
        open.CloseBy(IDOK);
    }
    CPropertySheet second(L"Другие");
    second.AddPage(&two);
    second.AddPage(&one);
    Modal open(second, L"Другие");
    Turn(open.window, 1);
    one.siblingAnswer = 6;
    EXPECT_EQ(6, ui::On([this] { return two.QuerySiblings(1, 2); }));
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(Sheet, KeepsItsParentFromInputMeanwhile)
{
    CDialog parent(IDD_NUMBER);
    Modal openBelow(parent, L"Проба");
    CPropertySheet owned(L"Параметры", &parent);
    owned.AddPage(&one);
    Modal open(owned, L"Параметры");
    EXPECT_EQ(openBelow.window, GetWindow(open.window, GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(openBelow.window));
    ui::Click(open.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(open.window));
    EXPECT_TRUE(IsWindowEnabled(openBelow.window));
    openBelow.CloseBy(IDOK);
}

TEST_F(Sheet, CanOpenASheetOfItsOwnPages)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    CPropertySheet inner(L"Оси", &one);
    CNotingPage page("inner", log);
    inner.AddPage(&page);
    Modal openInside(inner, L"Оси");
    EXPECT_EQ(open.window, GetWindow(openInside.window, GW_OWNER));
    ui::Type(page.m_hWnd, IDC_NUMBER, L"31");
    ui::Click(openInside.window, IDOK);
    EXPECT_TRUE(ui::WaitForClose(openInside.window));
    EXPECT_EQ(31, page.number);
    Turn(open.window, 1);
    EXPECT_NE(nullptr, two.m_hWnd);
    open.CloseBy(IDOK);
}

// ---- what cannot be shown ----

TEST_F(Sheet, IsNotShownWithoutPages)
{
    EXPECT_EQ(-1, ui::On([this] { return sheet.DoModal(); }));
    EXPECT_EQ(nullptr, sheet.m_hWnd);
}

TEST_F(Sheet, IsNotShownWhereAPageLacksItsTemplate)
{
    CNotingPage missing("missing", log, IDD_NOWHERE);
    sheet.AddPage(&one);
    sheet.AddPage(&missing);
    EXPECT_EQ(-1, ui::On([this] { return sheet.DoModal(); }));
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(nullptr, one.m_hWnd);
}

TEST_F(Sheet, IsNotShownTwiceAtATime)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    EXPECT_EQ(-1, ui::On([this] { return sheet.DoModal(); }));
    EXPECT_EQ(open.window, sheet.m_hWnd);
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(Sheet, IsNotShownWithAPageThatAnotherSheetShows)
{
    AddPages();
    Modal open(sheet, L"Параметры");
    CPropertySheet second(L"Другие");
    second.AddPage(&one);
    EXPECT_EQ(-1, ui::On([&] { return second.DoModal(); }));
    OnUi([this] { one.SetModified(); }); // still of the first sheet
    EXPECT_TRUE(ui::IsEnabled(open.window, kApplyNow));
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

/// Opens a window of its own when it ends, and looks whose that is.
class CLastWindowPage : public CNotingPage {
public:
    using CNotingPage::CNotingPage;
    const CWnd* owner = nullptr;
    int windows = 0;

protected:
    void OnDestroy()
    {
        for (const DWORD style : {DWORD{WS_POPUP}, DWORD{WS_CHILD}}) {
            const HWND last = CreateWindow(L"STATIC", L"", style, 0, 0, 9, 9, m_hWnd, nullptr, nullptr, nullptr);
            windows += last ? 1 : 0;
            owner = owner ? owner : FromHandlePermanent(last);
            ::DestroyWindow(last);
        }
        CNotingPage::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CLastWindowPage, CNotingPage)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class BrokenPage : public SheetTest, public testing::WithParamInterface<UINT> {};

/// Where a page cannot be created, some systems close the sheet.
TEST_P(BrokenPage, GetsNoOtherWindow)
{
    CLastWindowPage first("first", log);
    CNotingPage broken("broken", log, GetParam());
    sheet.AddPage(&first);
    sheet.AddPage(&broken);
    Modal open(sheet, L"Параметры");
    Turn(open.window, 1);
    EXPECT_EQ(nullptr, broken.m_hWnd);
    if (IsWindow(open.window))
        ui::Click(open.window, IDCANCEL);
    EXPECT_EQ(IDCANCEL, open.Result());
    EXPECT_EQ(2, first.windows);
    EXPECT_EQ(nullptr, first.owner);
    EXPECT_EQ(0, std::count(log.begin(), log.end(), "broken init"));
}

TEST_P(BrokenPage, DoesNotEndInOkAsTheFirstOfItsSheet)
{
    CNotingPage broken("broken", log, GetParam());
    sheet.AddPage(&broken);
    EXPECT_NE(IDOK, ui::On([this] { return sheet.DoModal(); }));
    EXPECT_EQ(nullptr, broken.m_hWnd);
    EXPECT_EQ(nullptr, sheet.m_hWnd);
}

INSTANTIATE_TEST_SUITE_P(Sheet, BrokenPage, testing::Values(UINT{IDD_BROKEN}, UINT{IDD_UNKNOWN_CLASS}));

} // namespace
