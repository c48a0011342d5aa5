#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include <commctrl.h>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "pages/page_driver.h"
#include "ui/bytes.h"
#include "ui/file_dialog.h"

namespace {

constexpr wchar_t kTitle[] = L"Проверка параметров";

constexpr int kSearch = 4730;
constexpr int kFilter = 4732;
constexpr int kCompared = 4733;
constexpr int kPickFile = 4734;
constexpr int kFactory = 4735;
constexpr int kList = 4736;
constexpr int kStatus = 4737;
constexpr int kGoTo = 4738;
constexpr int kEdit = 4739;
constexpr int kTake = 4740;
constexpr int kCopy = 4741;
constexpr int kCell = 4742;
constexpr int kDetail = 4743;
constexpr int kHelp = 0xE146;

constexpr int k2AxisPage = 3926;
constexpr int kCornerAngle = 3903;

enum Column { Operation, Option, Value, Compared, Finding };
enum Filter { All, Different, Faulty };

/// Holds the Ctrl key down on the user-interface thread.
class HeldControlKey {
public:
    HeldControlKey() { Hold(0x80); }
    ~HeldControlKey() { Hold(0); }
    HeldControlKey(const HeldControlKey&) = delete;
    HeldControlKey& operator=(const HeldControlKey&) = delete;

private:
    static void Hold(BYTE state)
    {
        ui::UiThread::Get().Call([state] {
            BYTE keys[256];
            GetKeyboardState(keys);
            keys[VK_CONTROL] = state;
            SetKeyboardState(keys);
        });
    }
};

std::wstring Wide(const std::string& path)
{
    return CString(path.c_str()).GetString();
}

/// The review as a user has it before him.
class OpenReview : public OpenModal {
public:
    explicit OpenReview(CSettingsReviewDlg& dialog) : OpenModal(dialog, kTitle), list(ui::Control(window, kList)) {}

    int Count() const { return ListView_GetItemCount(list); }
    std::wstring Cell(int row, int column) const
    {
        wchar_t text[1000] = L"";
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 1000;
        SendMessage(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    std::vector<std::wstring> Cells(int column) const
    {
        std::vector<std::wstring> cells;
        for (int row = 0; row < Count(); ++row)
            cells.push_back(Cell(row, column));
        return cells;
    }
    /// The row of an option; -1 where it is not listed.
    int RowOf(const std::wstring& operation, const std::wstring& option) const
    {
        for (int row = 0; row < Count(); ++row)
            if (Cell(row, Operation) == operation && Cell(row, Option) == option)
                return row;
        return -1;
    }
    std::wstring Shown(const std::wstring& operation, const std::wstring& option, int column = Value) const
    {
        return Cell(RowOf(operation, option), column);
    }
    void Search(const std::wstring& text) { ui::Type(window, kSearch, text); }
    void Show(Filter filter) { ui::Choose(window, kFilter, filter); }

    /// Puts the focus on the list and on a row, which alone is selected then.
    void Select(int row)
    {
        ui::FocusOn(window, kList);
        ListView_SetItemState(list, -1, 0, LVIS_SELECTED | LVIS_FOCUSED);
        Add(row);
    }
    void Select(const std::wstring& operation, const std::wstring& option)
    {
        const int row = RowOf(operation, option);
        ASSERT_GE(row, 0);
        Select(row);
    }
    void Add(int row)
    {
        ListView_SetItemState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ui::Settle(window);
    }
    void ClickHead(int column)
    {
        const HWND header = ListView_GetHeader(list);
        RECT rect;
        Header_GetItemRect(header, column, &rect);
        const LPARAM middle = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        PostMessage(header, WM_LBUTTONDOWN, MK_LBUTTON, middle);
        PostMessage(header, WM_LBUTTONUP, 0, middle);
        ui::Settle(window);
    }
    void DoubleClick(int row)
    {
        ListView_EnsureVisible(list, row, FALSE);
        RECT rect;
        ListView_GetItemRect(list, row, &rect, LVIR_LABEL);
        const LPARAM place = MAKELPARAM(rect.left + 5, (rect.top + rect.bottom) / 2);
        PostMessage(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
        PostMessage(list, WM_LBUTTONUP, 0, place);
        PostMessage(list, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
        PostMessage(list, WM_LBUTTONUP, 0, place);
        ui::Settle(window);
    }
    void Press(WPARAM key) { ui::Press(list, key); }
    void PressButton(int id) { OpenModal::Press(id); }
    /// Chooses a file to compare with; a bare name is in the folder that the chooser comes up in.
    void PickFile(const std::string& path)
    {
        PressButton(kPickFile);
        ui::ChooseFile(ui::WaitForFileDialog(), Wide(path));
    }

    /// The edit over the value; null while nothing is edited.
    HWND EditInList() const { return GetDlgItem(list, kCell); }
    /// F2, and a text over what stands there.
    HWND BeginEdit(const std::wstring& text)
    {
        Press(VK_F2);
        const HWND edit = EditInList();
        if (!edit)
            throw std::runtime_error("nothing is edited");
        SendMessage(edit, EM_SETSEL, 0, -1);
        ui::TypeAt(edit, text);
        return edit;
    }
    void Enter(const std::wstring& text) { ui::Press(BeginEdit(text), VK_RETURN); }

    const HWND list;
};

class SettingsReview : public testing::Test {
protected:
    SettingsReview()
    {
        ui::UiThread::Get().Call([] { ResetLive(); });
    }
    ~SettingsReview() override
    {
        ui::DismissBoxes();
        ResetLive();
    }

    static void ResetLive()
    {
        *GetLast2xOptions() = C2AxisOptionsInfo();
        *GetLast3xOptions() = C3AxisOptionsInfo();
        *GetLastSSheetOptions() = CSSheetOptionsInfo();
        *GetLastRoundMillDefsInfo() = CRoundMillDefsInfo();
    }
    /// The records as a host restores them from a settings file.
    void Restore(const std::string& settings)
    {
        host.WriteSettings(settings);
        ui::UiThread::Get().Call([] { GetLast2xOptions()->vOptions_Restore(); });
    }
    std::string Kept(const char* key) const { return ::Value(host.hostSettings, "SettingsReview", key); }
    void Keep(const char* key, const char* text) const
    {
        WritePrivateProfileStringA("SettingsReview", key, text, host.hostSettings.c_str());
    }

    HostFolder host;
    CSettingsReviewDlg dialog;
};

std::wstring InSmallLetters(std::wstring text)
{
    CharLowerBuff(text.data(), static_cast<DWORD>(text.size()));
    std::ranges::replace(text, L'ё', L'е');
    return text;
}

std::wstring Clipboard()
{
    return ui::On([] {
        std::wstring text;
        if (!OpenClipboard(nullptr))
            return text;
        if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
            text = static_cast<const wchar_t*>(GlobalLock(memory));
            GlobalUnlock(memory);
        }
        CloseClipboard();
        return text;
    });
}

RECT AreaOf(HWND window)
{
    RECT rect;
    GetWindowRect(window, &rect);
    return rect;
}

constexpr wchar_t k2Axis[] = L"2-осевая";
constexpr wchar_t kAngle[] = L"Обход угла контура (30-150)";
constexpr wchar_t kSideStep[] = L"Черновой шаг на сторону";

// ---- what is shown ----

TEST_F(SettingsReview, ShowsTheLiveRecordsAgainstTheFactorysInTheUnitsOfTheRecord)
{
    host.WriteDefaults("[Options2x]\r\nUnits=0\r\nCornerAngle=90\r\nRapidPlane=2\r\n");
    Restore("[Options2x]\r\nUnits=1\r\nCornerAngle=75\r\nRapidPlane=30\r\n");
    const OpenReview review(dialog);
    EXPECT_EQ(L"75°", review.Shown(k2Axis, kAngle));
    EXPECT_EQ(L"90°", review.Shown(k2Axis, kAngle, Compared));
    EXPECT_EQ(L"30 мм", review.Shown(k2Axis, L"Плоскость безопасности"));
    EXPECT_EQ(L"50 мм", review.Shown(k2Axis, L"Плоскость безопасности", Compared));
    EXPECT_EQ(L"Радиус инструмента", review.Cell(review.RowOf(k2Axis, kSideStep) + 1, Value));
    EXPECT_EQ(L"Заводские значения", ui::TextOf(review.window, kCompared));
    EXPECT_FALSE(ui::IsEnabled(review.window, kFactory));
}

TEST_F(SettingsReview, ALiveRecordIsShownWhateverTheFileHolds)
{
    Restore("[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\n");
    GetLast2xOptions()->CornerAngle = 80;
    const OpenReview review(dialog);
    EXPECT_EQ(L"80°", review.Shown(k2Axis, kAngle));
}

TEST_F(SettingsReview, WhatBelongsToNoRecordIsShownButNotEdited)
{
    host.WriteSettings("[Settings]\r\nDecimals=6\r\n");
    OpenReview review(dialog);
    EXPECT_EQ(L"6", review.Shown(L"Общие", L"Знаков после запятой"));
    EXPECT_EQ(L"4", review.Shown(L"Общие", L"Знаков после запятой", Compared));
    review.Select(L"Общие", L"Знаков после запятой");
    EXPECT_FALSE(ui::IsEnabled(review.window, kEdit));
    EXPECT_FALSE(ui::IsEnabled(review.window, kTake));
    EXPECT_FALSE(ui::IsEnabled(review.window, kGoTo));
    review.Press(VK_F2);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Это значение изменяется в своём окне, а не в списке.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(nullptr, review.EditInList());
}

TEST_F(SettingsReview, WhatIsReadFromAnotherSectionSaysSo)
{
    const OpenReview review(dialog);
    std::vector<std::wstring> remarks = review.Cells(Finding);
    EXPECT_EQ(2, std::ranges::count(remarks, L"Читается из раздела Options2x.")); // a length and its type
    EXPECT_NE(std::wstring::npos, ui::TextOf(review.window, kStatus).find(L"Ошибок: 0"));
}

// ---- search, filter, order ----

TEST_F(SettingsReview, TheSearchNarrowsTheListToLabelsKeysAndOperations)
{
    OpenReview review(dialog);
    const int all = review.Count();
    review.Search(L"ЧЕРНОВОЙ ШАГ на сторону 2-ос");
    EXPECT_GE(review.Count(), 1);
    EXPECT_LT(review.Count(), all);
    for (const std::wstring& operation : review.Cells(Operation))
        EXPECT_EQ(k2Axis, operation);
    review.Search(L"cornerangletype");
    EXPECT_GT(review.Count(), 1);
    for (const std::wstring& option : review.Cells(Option))
        EXPECT_EQ(0u, option.find(L"Обход")) << option.size();
    review.Search(L"такого нет");
    EXPECT_EQ(0, review.Count());
    EXPECT_FALSE(ui::IsEnabled(review.window, kCopy));
    review.Search(L"");
    EXPECT_EQ(all, review.Count());
}

TEST_F(SettingsReview, EnterInTheSearchGoesToWhatWasFound)
{
    OpenReview review(dialog);
    review.Search(L"Options2x.CornerAngle");
    ui::Press(ui::Control(review.window, kSearch), VK_RETURN);
    EXPECT_TRUE(review.IsOpen());
    EXPECT_EQ(review.list, ui::Focus(review.window));
    EXPECT_EQ(1u, ListView_GetSelectedCount(review.list));
}

TEST_F(SettingsReview, ALetterTypedInTheListGoesToTheNextOperationThatBeginsWithIt)
{
    OpenReview review(dialog);
    const std::vector<std::wstring> operations = review.Cells(Operation);
    const wchar_t first = operations.at(0).at(0);
    const auto other = std::ranges::find_if(operations, [&](const std::wstring& name) { return name.at(0) != first; });
    ASSERT_NE(operations.end(), other);
    review.Select(0);
    ui::TypeAt(review.list, other->substr(0, 1));
    EXPECT_EQ(other - operations.begin(), ListView_GetNextItem(review.list, -1, LVNI_FOCUSED));
    ui::TypeAt(review.list, L"Q");
    EXPECT_EQ(other - operations.begin(), ListView_GetNextItem(review.list, -1, LVNI_FOCUSED));
}

TEST_F(SettingsReview, TheFilterLeavesWhatDiffersOrWhatIsWrong)
{
    Restore("[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\nSortType=9\r\nUnknown=1\r\n");
    OpenReview review(dialog);
    review.Show(Different);
    EXPECT_GE(review.RowOf(k2Axis, kAngle), 0);
    for (int row = 0; row < review.Count(); ++row)
        EXPECT_NE(review.Cell(row, Value), review.Cell(row, Compared));
    review.Show(Faulty);
    EXPECT_GE(review.RowOf(k2Axis, L"Unknown"), 0);
    for (const std::wstring& finding : review.Cells(Finding))
        EXPECT_NE(L"", finding);
    review.Show(All);
    EXPECT_GT(review.Count(), 250);
}

TEST_F(SettingsReview, AClickOnEachHeadSortsUpThenDownThenAsInTheFiles)
{
    Restore("[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\nSortType=9\r\n");
    OpenReview review(dialog);
    const std::vector<std::wstring> asInTheFiles = review.Cells(Option);
    for (const int column : {Operation, Option, Finding}) {
        review.ClickHead(column);
        std::vector<std::wstring> up = review.Cells(column);
        std::erase(up, L""); // they come last
        EXPECT_NE(L"", review.Cell(0, column));
        EXPECT_TRUE(std::ranges::is_sorted(up, {}, InSmallLetters)) << column;
        EXPECT_NE(up.front(), up.back());
        review.ClickHead(column);
        EXPECT_EQ(InSmallLetters(up.back()), InSmallLetters(review.Cell(0, column))) << column;
        review.ClickHead(column);
        EXPECT_EQ(asInTheFiles, review.Cells(Option)) << column;
    }
    for (const int column : {Value, Compared}) {
        review.ClickHead(column);
        const double smallest = std::stod(review.Cell(0, column));
        EXPECT_LT(smallest, std::stod(review.Cell(70, column)));
        review.ClickHead(column);
        const std::vector<std::wstring> down = review.Cells(column);
        const auto lastNumber =
            std::find_if(down.rbegin(), down.rend(), [](const std::wstring& text) { return !text.empty(); });
        EXPECT_EQ(smallest, std::stod(*lastNumber));
        review.ClickHead(column);
        EXPECT_EQ(asInTheFiles, review.Cells(Option)) << column;
    }
}

TEST_F(SettingsReview, WhatIsSelectedStaysSelectedInAnotherOrder)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.ClickHead(Option);
    ASSERT_EQ(1u, ListView_GetSelectedCount(review.list));
    EXPECT_EQ(kAngle, review.Cell(ListView_GetNextItem(review.list, -1, LVNI_SELECTED), Option));
}

// ---- going to the page ----

TEST_F(SettingsReview, GoingToASettingTellsItsPageAndControlAndStoresNothing)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.End(kGoTo);
    EXPECT_EQ(IDCANCEL, review.result);
    EXPECT_EQ(k2AxisPage, dialog.Destination().templateId);
    EXPECT_EQ(kCornerAngle, dialog.Destination().controlId);
    EXPECT_EQ("", host.ReadSettings());
}

TEST_F(SettingsReview, ADoubleClickGoesToTheSettingUnderIt)
{
    OpenReview review(dialog);
    review.Search(L"Options2x.CornerAngle");
    review.DoubleClick(review.RowOf(k2Axis, kAngle));
    ASSERT_TRUE(ui::WaitForClose(review.window));
    EXPECT_EQ(kCornerAngle, dialog.Destination().controlId);
}

TEST_F(SettingsReview, ADoubleClickBesideTheRowsGoesNowhere)
{
    OpenReview review(dialog);
    review.Search(L"Options2x.CornerAngle");
    review.Select(0);
    RECT client;
    GetClientRect(review.list, &client);
    PostMessage(review.list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, client.bottom - 20));
    PostMessage(review.list, WM_LBUTTONUP, 0, MAKELPARAM(20, client.bottom - 20));
    ui::Settle(review.window);
    EXPECT_TRUE(review.IsOpen());
    review.End(IDCANCEL);
    EXPECT_EQ(0, dialog.Destination().templateId);
}

TEST_F(SettingsReview, EnterInTheListGoesToTheSetting)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.Press(VK_RETURN);
    ASSERT_TRUE(ui::WaitForClose(review.window));
    EXPECT_EQ(kCornerAngle, dialog.Destination().controlId);
}

TEST_F(SettingsReview, ClosingItGoesNowhere)
{
    OpenReview(dialog).End(IDCANCEL);
    EXPECT_EQ(0, dialog.Destination().templateId);
    OpenReview(dialog).End(IDOK);
    EXPECT_EQ(0, dialog.Destination().templateId);
}

TEST_F(SettingsReview, GoingWithChangesAsksWhetherToKeepThem)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.Enter(L"75");
    review.PressButton(kGoTo);
    ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Сохранить изменения, сделанные в списке, перед переходом?", box.text);
    EXPECT_EQ((std::vector<int>{IDYES, IDNO, IDCANCEL}), box.buttons);
    ui::Answer(box, IDCANCEL);
    EXPECT_TRUE(review.IsOpen());
    EXPECT_NE(75, GetLast2xOptions()->CornerAngle);
    review.PressButton(kGoTo);
    box = ui::WaitForBox();
    ui::Answer(box, IDYES);
    ASSERT_TRUE(ui::WaitForClose(review.window));
    ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(IDOK, review.result);
    EXPECT_EQ(75, GetLast2xOptions()->CornerAngle);
    EXPECT_EQ(kCornerAngle, dialog.Destination().controlId);
}

TEST_F(SettingsReview, GoingWithoutTheChangesForgetsThem)
{
    OpenReview review(dialog);
    const double before = GetLast2xOptions()->CornerAngle;
    review.Select(k2Axis, kAngle);
    review.Enter(L"75");
    review.PressButton(kGoTo);
    ui::Answer(ui::WaitForBox(), IDNO);
    ASSERT_TRUE(ui::WaitForClose(review.window));
    ASSERT_TRUE(ui::UiThread::Get().WaitForStarted());
    EXPECT_EQ(IDCANCEL, review.result);
    EXPECT_EQ(before, GetLast2xOptions()->CornerAngle);
    EXPECT_EQ(kCornerAngle, dialog.Destination().controlId);
}

TEST_F(SettingsReview, AHostThatCouldNotSaveKeepsItOpenAndGoesNowhere)
{
    class CRefusingReview : public CSettingsReviewDlg {
        void OnOK() override {}
    };
    CRefusingReview refusing;
    OpenReview review(refusing);
    review.Select(k2Axis, kAngle);
    review.Enter(L"75");
    review.PressButton(kGoTo);
    ui::Answer(ui::WaitForBox(), IDYES);
    ui::Settle(review.window);
    EXPECT_TRUE(review.IsOpen());
    review.End(IDCANCEL);
    EXPECT_EQ(0, refusing.Destination().templateId);
    EXPECT_NE(75, GetLast2xOptions()->CornerAngle);
}

// ---- editing ----

TEST_F(SettingsReview, F2EditsAValueAndOkPutsItIntoTheLiveRecord)
{
    OpenReview review(dialog);
    const double before = GetLast2xOptions()->CornerAngle;
    review.Select(k2Axis, kAngle);
    review.Enter(L"60+15");
    EXPECT_EQ(nullptr, review.EditInList());
    EXPECT_EQ(review.list, ui::Focus(review.window));
    EXPECT_EQ(L"75°", review.Shown(k2Axis, kAngle));
    EXPECT_NE(std::wstring::npos, review.Shown(k2Axis, kAngle, Finding).find(L"Изменено, было:"));
    EXPECT_NE(std::wstring::npos, ui::TextOf(review.window, kStatus).find(L"Изменено: 1"));
    EXPECT_EQ(before, GetLast2xOptions()->CornerAngle);
    review.End(IDOK);
    EXPECT_EQ(IDOK, review.result);
    EXPECT_EQ(75, GetLast2xOptions()->CornerAngle);
    EXPECT_EQ("", host.ReadSettings());
}

TEST_F(SettingsReview, TheEditShowsTheValueWithoutItsUnitAndSelectsIt)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.PressButton(kEdit);
    const HWND edit = review.EditInList();
    ASSERT_NE(nullptr, edit);
    EXPECT_EQ(edit, ui::Focus(review.window));
    EXPECT_EQ(std::to_wstring(static_cast<int>(GetLast2xOptions()->CornerAngle)), ui::TextOf(edit));
    const LRESULT selection = SendMessage(edit, EM_GETSEL, 0, 0);
    EXPECT_EQ(0, LOWORD(selection));
    EXPECT_EQ(ui::TextOf(edit).size(), static_cast<size_t>(HIWORD(selection)));
    RECT rect;
    RECT cell;
    ListView_GetSubItemRect(review.list, review.RowOf(k2Axis, kAngle), Value, LVIR_BOUNDS, &cell);
    rect = AreaOf(edit);
    MapWindowPoints(nullptr, review.list, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_TRUE(EqualRect(&cell, &rect));
}

TEST_F(SettingsReview, TheEditGoesWithTheListThatIsScrolled)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    const HWND edit = review.BeginEdit(L"45");
    const RECT before = AreaOf(edit);
    SendMessage(review.list, WM_VSCROLL, SB_LINEDOWN, 0);
    NMLVSCROLL scrolled{}; // as Windows' list tells it; Wine's tells nothing
    scrolled.hdr = {review.list, kList, LVN_ENDSCROLL};
    SendMessage(review.window, WM_NOTIFY, kList, reinterpret_cast<LPARAM>(&scrolled));
    ui::Settle(review.window);
    RECT cell;
    ListView_GetSubItemRect(review.list, review.RowOf(k2Axis, kAngle), Value, LVIR_BOUNDS, &cell);
    MapWindowPoints(review.list, nullptr, reinterpret_cast<POINT*>(&cell), 2);
    const RECT after = AreaOf(edit);
    EXPECT_TRUE(EqualRect(&cell, &after));
    EXPECT_LT(after.top, before.top);
    EXPECT_EQ(L"45", ui::TextOf(edit));
}

TEST_F(SettingsReview, AListOfWideColumnsIsMovedToTheValueThatIsEdited)
{
    Keep("Columns", "1500,1500,120,120,290");
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    RECT list;
    GetClientRect(review.list, &list);
    RECT cell;
    ListView_GetSubItemRect(review.list, review.RowOf(k2Axis, kAngle), Value, LVIR_BOUNDS, &cell);
    ASSERT_GT(cell.left, list.right);
    RECT edit = AreaOf(review.BeginEdit(L"45"));
    MapWindowPoints(nullptr, review.list, reinterpret_cast<POINT*>(&edit), 2);
    EXPECT_GE(edit.left, 0);
    EXPECT_LE(edit.right, list.right);
    ListView_GetSubItemRect(review.list, review.RowOf(k2Axis, kAngle), Value, LVIR_BOUNDS, &cell);
    EXPECT_TRUE(EqualRect(&cell, &edit));
}

TEST_F(SettingsReview, ARefusedTextIsToldAndEditingGoesOn)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    const HWND edit = review.BeginEdit(L"20");
    ui::Press(edit, VK_RETURN);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"«20» вне допустимых границ: от 30 до 150.", box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(edit, review.EditInList());
    EXPECT_EQ(edit, ui::Focus(review.window));
    EXPECT_EQ(L"20", ui::TextOf(edit));
    ui::TypeAt(edit, L"45"); // in place of what was refused
    ui::Press(edit, VK_RETURN);
    EXPECT_EQ(L"45°", review.Shown(k2Axis, kAngle));
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(SettingsReview, TabLeavesTheSearchAndTheList)
{
    const OpenReview review(dialog);
    for (const int id : {kSearch, kList}) {
        ui::FocusOn(review.window, id);
        const HWND control = ui::Control(review.window, id);
        ui::Press(control, VK_TAB);
        EXPECT_EQ(GetNextDlgTabItem(review.window, control, FALSE), ui::Focus(review.window)) << id;
    }
}

TEST_F(SettingsReview, EscLeavesTheEditAndNotTheDialog)
{
    OpenReview review(dialog);
    const std::wstring before = review.Shown(k2Axis, kAngle);
    review.Select(k2Axis, kAngle);
    ui::Press(review.BeginEdit(L"nonsense"), VK_ESCAPE);
    EXPECT_TRUE(review.IsOpen());
    EXPECT_EQ(nullptr, review.EditInList());
    EXPECT_EQ(before, review.Shown(k2Axis, kAngle));
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(SettingsReview, AnItemIsChosenByItsTextOrItsNumber)
{
    OpenReview review(dialog);
    const int type = review.RowOf(k2Axis, kSideStep) + 1;
    ASSERT_EQ(L"Радиус инструмента", review.Cell(type, Value));
    review.Select(type);
    review.Enter(L"Константа");
    EXPECT_EQ(L"Константа", review.Cell(type, Value));
    EXPECT_EQ(L"0.8 дюйм", review.Cell(type - 1, Value));
    review.Enter(L"1");
    EXPECT_EQ(L"Радиус инструмента", review.Cell(type, Value));
    ui::Press(review.BeginEdit(L"7"), VK_RETURN);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Нет варианта «7». Есть: 0 Константа, 1 Радиус инструмента.", box.text);
    ui::Answer(box, IDOK);
    review.End(IDCANCEL);
}

TEST_F(SettingsReview, LeavingTheEditForAnotherControlTakesItsText)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.BeginEdit(L"75");
    ui::FocusOn(review.window, kSearch);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.EditInList() == nullptr; }));
    EXPECT_EQ(L"75°", review.Shown(k2Axis, kAngle));
    EXPECT_EQ(ui::Control(review.window, kSearch), ui::Focus(review.window));
}

TEST_F(SettingsReview, LeavingTheEditForCancelAsksNothing)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.BeginEdit(L"nonsense");
    ui::FocusOn(review.window, IDCANCEL);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.EditInList() == nullptr; }));
    EXPECT_FALSE(ui::IsBoxOpen());
    review.End(IDCANCEL);
}

TEST_F(SettingsReview, OkWithARefusedTextTellsAndStays)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.BeginEdit(L"20");
    review.PressButton(IDOK);
    ui::Answer(ui::WaitForBox(), IDOK);
    EXPECT_TRUE(review.IsOpen());
    ASSERT_NE(nullptr, review.EditInList());
    SendMessage(review.EditInList(), EM_SETSEL, 0, -1);
    ui::TypeAt(review.EditInList(), L"75");
    review.End(IDOK);
    EXPECT_EQ(75, GetLast2xOptions()->CornerAngle);
}

// ---- taking and copying ----

TEST_F(SettingsReview, TakingGivesTheSelectedRowsTheComparedValuesAndLengthsTheirMeaning)
{
    Restore("[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\nSideRoughStep=0.5\r\nSideRoughStepType=0\r\nRapidPlane=3\r\n");
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.PressButton(kTake);
    EXPECT_EQ(review.Shown(k2Axis, kAngle, Compared), review.Shown(k2Axis, kAngle));
    EXPECT_FALSE(ui::IsEnabled(review.window, kTake));
    EXPECT_EQ(L"3 дюйм", review.Shown(k2Axis, L"Плоскость безопасности"));
    review.Select(k2Axis, kSideStep);
    review.Add(review.RowOf(k2Axis, L"Плоскость безопасности"));
    review.PressButton(kTake);
    EXPECT_EQ(L"0.8 × R", review.Shown(k2Axis, kSideStep));
    EXPECT_EQ(L"1 дюйм", review.Shown(k2Axis, L"Плоскость безопасности"));
    EXPECT_EQ(75, GetLast2xOptions()->CornerAngle);
    review.End(IDOK);
    EXPECT_EQ(1, GetLast2xOptions()->SideRoughStepType);
    C2AxisOptionsInfo factory;
    factory.vOptions_Defaults();
    EXPECT_EQ(factory.SideRoughStep, GetLast2xOptions()->SideRoughStep);
    EXPECT_EQ(1.0, GetLast2xOptions()->RapidPlane);
    EXPECT_EQ(C2AxisOptionsInfo().CornerAngle, GetLast2xOptions()->CornerAngle);
}

TEST_F(SettingsReview, ComparedValuesThatThePageWouldRefuseAreToldAndNotTaken)
{
    const std::string other = host.folder + "\\OTHER.INI";
    WriteWholeFile(other, "[Options2x]\r\nUnits=0\r\nCornerAngle=500\r\nRapidPlane=3\r\n");
    OpenReview review(dialog);
    review.PickFile(other);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == L"500°"; }));
    const std::wstring before = review.Shown(k2Axis, kAngle);
    review.Select(k2Axis, kAngle);
    review.Add(review.RowOf(k2Axis, L"Плоскость безопасности"));
    review.PressButton(kTake);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_NE(std::wstring::npos, box.text.find(kAngle)) << testing::PrintToString(box.text);
    EXPECT_NE(std::wstring::npos, box.text.find(L"500")) << testing::PrintToString(box.text);
    ui::Answer(box, IDOK);
    EXPECT_EQ(before, review.Shown(k2Axis, kAngle));
    EXPECT_EQ(L"3 дюйм", review.Shown(k2Axis, L"Плоскость безопасности"));
}

TEST_F(SettingsReview, OfManyRefusedValuesTheFirstFiveAreTold)
{
    const std::string other = host.folder + "\\OTHER.INI";
    WriteWholeFile(other, "[Options2x]\r\nUnits=0\r\nCornerAngle=500\r\nCornerAngleType=50\r\nSideRoughStepType=50\r\n"
                          "DepthRoughStepType=50\r\nFinishCutOn=50\r\nGougeCheck=50\r\nSortType=50\r\n");
    OpenReview review(dialog);
    review.PickFile(other);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == L"500°"; }));
    ui::FocusOn(review.window, kList);
    ListView_SetItemState(review.list, -1, LVIS_SELECTED, LVIS_SELECTED);
    ui::Settle(review.window);
    review.PressButton(kTake);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_TRUE(box.text.ends_with(L"\n…")) << testing::PrintToString(box.text);
    EXPECT_EQ(7, std::ranges::count(box.text, L'\n')) << testing::PrintToString(box.text);
    ui::Answer(box, IDOK);
}

TEST_F(SettingsReview, CtrlAAndCtrlCCopyTheRowsAsText)
{
    OpenReview review(dialog);
    review.Search(L"Options2x.SideRoughStep");
    ASSERT_EQ(2, review.Count());
    review.Select(0);
    std::wstring expected;
    for (int row = 0; row < 2; ++row)
        expected += review.Cell(row, Operation) + L"\t" + review.Cell(row, Option) + L"\t" + review.Cell(row, Value) +
                    L"\t" + review.Cell(row, Compared) + L"\t" + review.Cell(row, Finding) + L"\r\n";
    {
        const HeldControlKey control;
        review.Press('A');
        EXPECT_EQ(2u, ListView_GetSelectedCount(review.list));
        review.Press('C');
    }
    EXPECT_EQ(expected, Clipboard());
    review.Select(1);
    review.PressButton(kCopy);
    EXPECT_EQ(expected.substr(expected.find(L'\n') + 1), Clipboard());
}

TEST_F(SettingsReview, AClipboardThatAnotherProgramKeepsIsTold)
{
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    ASSERT_TRUE(OpenClipboard(nullptr)); // this thread is another program for the one with the windows
    review.PressButton(kCopy);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    CloseClipboard();
    EXPECT_EQ(L"Буфер обмена занят другой программой. Повторите ещё раз.", box.text);
    ui::Answer(box, IDOK);
    review.PressButton(kCopy);
    EXPECT_NE(std::wstring::npos, Clipboard().find(kAngle));
}

// ---- comparing with a file ----

TEST_F(SettingsReview, AnotherFileIsComparedInTheUnitsOfTheRecord)
{
    const std::string other = host.folder + "\\OTHER.INI";
    WriteWholeFile(other, "[Options2x]\r\nUnits=1\r\nRapidPlane=100\r\nCornerAngle=75\r\n");
    OpenReview review(dialog);
    review.PickFile(other);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == L"75°"; }));
    EXPECT_EQ(L"4 дюйм", review.Shown(k2Axis, L"Плоскость безопасности", Compared));
    EXPECT_NE(std::wstring::npos, ui::TextOf(review.window, kCompared).find(L"OTHER.INI"));
    ui::FocusOn(review.window, kFactory);
    review.PressButton(kFactory);
    EXPECT_EQ(L"Заводские значения", ui::TextOf(review.window, kCompared));
    EXPECT_EQ(L"1 дюйм", review.Shown(k2Axis, L"Плоскость безопасности", Compared));
    EXPECT_EQ(review.list, ui::Focus(review.window)); // the button is of no use any more
}

TEST_F(SettingsReview, AFileToCompareWithIsLookedForBesideTheSettings)
{
    const std::string folder = host.settings.substr(0, host.settings.rfind('\\') + 1);
    WriteWholeFile(folder + "BESIDE.INI", "[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\n");
    OpenReview review(dialog);
    review.PickFile("BESIDE.INI");
    EXPECT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == L"75°"; }));
}

TEST_F(SettingsReview, AFileThatCannotBeComparedIsToldWithTheReason)
{
    const struct {
        const char* name;
        std::string bytes;
        const wchar_t* reason;
    } files[] = {
        {"EMPTY.INI", "", L"Файл пуст."},
        {"UTF16.INI", std::string("\xff\xfe[\0A\0]\0", 8), L"UTF-16"},
        {"ZEROS.INI", std::string("[Options2x]\0\0", 13), L"нулевые байты"},
        {"TEXT.INI", "no settings at all", L"нет ни одного раздела"},
        {"LARGE.INI", "[Options2x]\r\n" + std::string(5 << 20, ' '), L"слишком велик для файла параметров: 5.0 МБ"},
    };
    OpenReview review(dialog);
    const std::wstring before = review.Shown(k2Axis, kAngle, Compared);
    for (const auto& file : files) {
        const std::string path = host.folder + "\\" + file.name;
        WriteWholeFile(path, file.bytes);
        review.PickFile(path);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_NE(std::wstring::npos, box.text.find(file.reason)) << file.name;
        EXPECT_NE(std::wstring::npos, box.text.find(Wide(file.name))) << file.name;
        ui::Answer(box, IDOK);
        EXPECT_EQ(L"Заводские значения", ui::TextOf(review.window, kCompared));
        EXPECT_EQ(before, review.Shown(k2Axis, kAngle, Compared));
    }
}

TEST_F(SettingsReview, AComparedFileThatIsGoneGivesWayToTheFactoryValues)
{
    const std::string other = host.folder + "\\OTHER.INI";
    WriteWholeFile(other, "[Options2x]\r\nUnits=0\r\nCornerAngle=75\r\n");
    OpenReview review(dialog);
    const std::wstring before = review.Shown(k2Axis, kAngle, Compared);
    review.PickFile(other);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == L"75°"; }));
    ASSERT_TRUE(DeleteFileA(other.c_str()));
    review.Press(VK_F5);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_NE(std::wstring::npos, box.text.find(L"OTHER.INI"));
    ui::Answer(box, IDOK);
    ASSERT_TRUE(ui::WaitUntil([&] { return review.Shown(k2Axis, kAngle, Compared) == before; }));
    EXPECT_EQ(L"Заводские значения", ui::TextOf(review.window, kCompared));
    EXPECT_FALSE(IsWindowEnabled(ui::Control(review.window, kFactory)));
}

// ---- findings ----

/// A file, and what must be told of it.
struct FoundIn {
    const char* what;
    std::string file;
    const wchar_t* told;

    friend void PrintTo(const FoundIn& row, std::ostream* out) { *out << row.what; }
};

class FindingsShown : public SettingsReview, public testing::WithParamInterface<FoundIn> {};

TEST_P(FindingsShown, StandInARow)
{
    host.WriteSettings(GetParam().file);
    OpenReview review(dialog);
    review.Show(Faulty);
    bool isTold = false;
    for (const std::wstring& finding : review.Cells(Finding))
        isTold = isTold || finding.find(GetParam().told) != std::wstring::npos;
    EXPECT_TRUE(isTold) << review.Count();
    review.End(IDCANCEL);
    EXPECT_EQ(GetParam().file, host.ReadSettings());
}

const std::string k2AxisHead = "[Options2x]\r\nUnits=0\r\n";

INSTANTIATE_TEST_SUITE_P(
    EveryKind, FindingsShown,
    testing::Values(
        FoundIn{"FileIsEmpty", "", L"Файл пуст."},
        FoundIn{"FileIsUtf16", std::string("\xff\xfe[\0A\0]\0", 8), L"Файл записан в UTF-16."},
        FoundIn{"FileIsUtf8Marked", "\xef\xbb\xbf[Options2x]\r\n", L"Файл начинается с метки UTF-8."},
        FoundIn{"FileHasZeros", std::string("[A]\0\0", 5), L"В файле нулевые байты"},
        FoundIn{"FileIsTooLarge", "[Options2x]\r\n" + std::string(5 << 20, ' '), L"слишком велик"},
        FoundIn{"UnknownSection", "[Option2x]\r\nUnits=0\r\n", L"Неизвестный раздел «[Option2x]»"},
        FoundIn{"RepeatedSection", "[Settings]\r\nDecimals=4\r\n[settings]\r\n", L"Раздел «[settings]» уже был."},
        FoundIn{"NoSection", "Decimals=4\r\n", L"Строка стоит до первого раздела."},
        FoundIn{"NoEntry", "[Settings]\r\nDecimals\r\n", L"В строке «Decimals» нет знака «=»."},
        FoundIn{"UnknownKey", k2AxisHead + "SideRoughtStep=1\r\n", L"Похоже на «SideRoughStep»."},
        FoundIn{"RepeatedKey", k2AxisHead + "SortType=1\r\nSortType=2\r\n", L"Ключ уже был, «2» не читается."},
        FoundIn{"NotANumber", k2AxisHead + "SideRoughStep=half\r\n", L"«half» — не число. Используется: 0.8."},
        FoundIn{"OutOfRange", k2AxisHead + "CornerAngle=20\r\n", L"«20» вне допустимых границ (от 30 до 150)."},
        FoundIn{"NoSuchItem", k2AxisHead + "SortType=9\r\n", L"Нет варианта с номером «9»."},
        FoundIn{"OtherUnits", "[Options2x]\r\nUnits=0\r\n[Options3x]\r\nUnits=0\r\n[Options4x]\r\nUnits=1\r\n",
                L"Единицы раздела (мм) не те"},
        FoundIn{"MissingKey", k2AxisHead, L"Ключа нет."}),
    [](const auto& row) { return row.param.what; });

TEST_F(SettingsReview, TheFindingOfTheRowWithTheFocusStandsBelowTheList)
{
    host.WriteSettings(k2AxisHead + "SortType=9\r\n");
    OpenReview review(dialog);
    EXPECT_EQ(L"", ui::TextOf(review.window, kDetail));
    review.Search(L"Options2x.SortType");
    review.Select(0);
    EXPECT_EQ(review.Cell(0, Finding), ui::TextOf(review.window, kDetail));
    EXPECT_NE(L"", ui::TextOf(review.window, kDetail));
    review.Search(L"нет такого");
    EXPECT_EQ(L"", ui::TextOf(review.window, kDetail));
}

TEST_F(SettingsReview, AFolderInTheFilesPlaceIsTold)
{
    DeleteFileA(host.settings.c_str());
    ASSERT_TRUE(CreateDirectoryA(host.settings.c_str(), nullptr));
    {
        OpenReview review(dialog);
        review.Show(Faulty);
        ASSERT_EQ(1, review.Count());
        EXPECT_EQ(L"Это папка, а не файл параметров.", review.Cell(0, Finding));
    }
    RemoveDirectoryA(host.settings.c_str());
}

TEST_F(SettingsReview, AFileThatAnotherProgramKeepsToItselfIsToldWithTheSystemsReason)
{
    host.WriteSettings(k2AxisHead);
    const HANDLE kept = CreateFileA(host.settings.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, kept);
    {
        OpenReview review(dialog);
        review.Show(Faulty);
        ASSERT_EQ(1, review.Count());
        wchar_t reason[512] = L"";
        FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, ERROR_SHARING_VIOLATION, 0,
                      reason, 512, nullptr);
        const std::wstring told = review.Cell(0, Finding);
        EXPECT_EQ(std::wstring(L"Файл не читается. ") + std::wstring(reason).substr(0, std::wcscspn(reason, L"\r\n")),
                  told);
    }
    CloseHandle(kept);
}

TEST_F(SettingsReview, AFileOf100MegabytesIsNotReadAndToldWithItsSize)
{
    const HANDLE file =
        CreateFileA(host.settings.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    SetFilePointer(file, 100 << 20, nullptr, FILE_BEGIN);
    SetEndOfFile(file);
    CloseHandle(file);
    OpenReview review(dialog);
    review.Show(Faulty);
    ASSERT_EQ(1, review.Count());
    EXPECT_EQ(L"Файл слишком велик для файла параметров: 100.0 МБ.", review.Cell(0, Finding));
}

TEST_F(SettingsReview, AMissingFileIsNoFault)
{
    OpenReview review(dialog);
    review.Show(Faulty);
    EXPECT_EQ(0, review.Count());
}

TEST_F(SettingsReview, F5ReadsTheFileAnewAndKeepsWhatWasChanged)
{
    Restore(k2AxisHead + "SortType=9\r\n");
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.Enter(L"75");
    host.WriteSettings(k2AxisHead + "Nonsense=1\r\n");
    review.Press(VK_F5);
    EXPECT_GE(review.RowOf(k2Axis, L"Nonsense"), 0);
    EXPECT_EQ(L"75°", review.Shown(k2Axis, kAngle));
    EXPECT_NE(std::wstring::npos, ui::TextOf(review.window, kStatus).find(L"Изменено: 1"));
}

// ---- OK and Cancel ----

TEST_F(SettingsReview, CancelAfterEverythingLeavesRecordsAndFileAsTheyWere)
{
    const std::string bytes = k2AxisHead + "CornerAngle=75.000000\r\nSideRoughStep=0.5\r\nSideRoughStepType=0\r\n";
    Restore(bytes);
    const C2AxisOptionsInfo before = *GetLast2xOptions();
    OpenReview review(dialog);
    review.Search(L"2-осевая");
    review.Show(Different);
    review.ClickHead(Value);
    review.Select(k2Axis, kAngle);
    review.Enter(L"100");
    review.Select(k2Axis, kSideStep);
    review.PressButton(kTake);
    review.PressButton(kCopy);
    review.Press(VK_F5);
    review.Select(k2Axis, kAngle);
    review.BeginEdit(L"110");
    review.End(IDCANCEL);
    EXPECT_EQ(ui::BytesOf(before), ui::BytesOf(*GetLast2xOptions()));
    EXPECT_EQ(bytes, host.ReadSettings());
}

TEST_F(SettingsReview, OkChangesWhatWasEditedAndNothingElse)
{
    Restore(k2AxisHead + "RapidPlane=1.123456\r\n");
    C2AxisOptionsInfo expected = *GetLast2xOptions();
    expected.CornerAngle = 75;
    OpenReview review(dialog);
    review.Select(k2Axis, kAngle);
    review.Enter(L"75");
    review.End(IDOK);
    EXPECT_EQ(ui::BytesOf(expected), ui::BytesOf(*GetLast2xOptions()));
    ui::UiThread::Get().Call([] { GetLast2xOptions()->vOptions_Save(); });
    EXPECT_EQ("75.000000", ::Value(host.settings, "Options2x", "CornerAngle"));
    EXPECT_EQ("1.123456", ::Value(host.settings, "Options2x", "RapidPlane"));
}

TEST_F(SettingsReview, CanBeCreatedDynamically)
{
    EXPECT_EQ(CDialog::GetThisClass(), CSettingsReviewDlg::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CSettingsReviewDlg::GetThisClass()->CreateObject(); });
}

TEST_F(SettingsReview, OneObjectCanBeShownAgain)
{
    for (int time = 0; time < 2; ++time) {
        OpenReview review(dialog);
        EXPECT_EQ(L"", ui::TextOf(review.window, kSearch));
        review.Select(k2Axis, kAngle);
        review.Enter(time ? L"75" : L"85");
        review.End(IDOK);
        EXPECT_EQ(time ? 75 : 85, GetLast2xOptions()->CornerAngle);
    }
}

// ---- the window ----

void ExpectControlsInside(HWND window)
{
    RECT client;
    GetClientRect(window, &client);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    for (const HWND child : ui::Children(window)) {
        const RECT area = AreaOf(child);
        EXPECT_TRUE(area.left >= client.left && area.top >= client.top && area.right <= client.right &&
                    area.bottom <= client.bottom)
            << GetDlgCtrlID(child);
    }
}

void Resize(HWND window, int width, int height)
{
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    ui::Settle(window);
}

TEST_F(SettingsReview, ControlsStayInsideHoweverItIsResized)
{
    const OpenReview review(dialog);
    const RECT first = AreaOf(review.list);
    Resize(review.window, 1000, 700);
    const RECT large = AreaOf(review.list);
    EXPECT_NE(first.right - first.left, large.right - large.left);
    ExpectControlsInside(review.window);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(review.window));
    Resize(review.window, 10, 10);
    const RECT least = AreaOf(review.window);
    EXPECT_GT(least.right - least.left, 300);
    EXPECT_GT(least.bottom - least.top, 200);
    ExpectControlsInside(review.window);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(review.window));
}

/// Where the controls stand in their window, and its own area as the last.
std::vector<RECT> PlacesIn(HWND window)
{
    std::vector<RECT> places;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        places.push_back(AreaOf(child));
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&places.back()), 2);
    }
    GetClientRect(window, &places.emplace_back());
    return places;
}

TEST_F(SettingsReview, EachEdgeOfAControlStaysOrMovesAsTheWindowsDoes)
{
    const OpenReview review(dialog);
    const HWND labelOfList = GetWindow(review.list, GW_HWNDPREV);
    EXPECT_EQ(AreaOf(labelOfList).left, AreaOf(review.list).left) << "where its template has it";
    const std::vector<RECT> before = PlacesIn(review.window);
    const RECT first = AreaOf(review.window);
    Resize(review.window, first.right - first.left + 50, first.bottom - first.top + 30);
    const std::vector<RECT> after = PlacesIn(review.window);
    ASSERT_EQ(before.size(), after.size());
    ASSERT_EQ(50, after.back().right - before.back().right);
    ASSERT_EQ(30, after.back().bottom - before.back().bottom);
    const auto isMoved = [](LONG by, LONG whole) { return by == 0 || by == whole; };
    for (size_t index = 0; index < before.size(); ++index) {
        EXPECT_TRUE(isMoved(after[index].left - before[index].left, 50)) << index;
        EXPECT_TRUE(isMoved(after[index].right - before[index].right, 50)) << index;
        EXPECT_TRUE(isMoved(after[index].top - before[index].top, 30)) << index;
        EXPECT_TRUE(isMoved(after[index].bottom - before[index].bottom, 30)) << index;
    }
}

TEST_F(SettingsReview, TheFindingsTakeTheWidthThatIsLeftUntilTheUserChangesTheirs)
{
    {
        OpenReview review(dialog);
        int whole = 0;
        for (const int column : {Operation, Option, Value, Compared, Finding})
            whole += ListView_GetColumnWidth(review.list, column);
        RECT client;
        GetClientRect(review.list, &client); // without the scroll bar
        EXPECT_EQ(client.right, whole);
        ListView_SetColumnWidth(review.list, Finding, 91);
        review.End(IDCANCEL);
    }
    const OpenReview review(dialog);
    EXPECT_EQ(91, ListView_GetColumnWidth(review.list, Finding));
}

TEST_F(SettingsReview, SizeColumnsOrderAndFilterAreAsTheyWereAtTheEnd)
{
    {
        OpenReview review(dialog);
        Resize(review.window, 900, 640);
        ListView_SetColumnWidth(review.list, Option, 321);
        review.ClickHead(Option);
        review.ClickHead(Option);
        review.Show(Different);
        review.End(IDCANCEL);
    }
    EXPECT_EQ("900", Kept("Width"));
    EXPECT_EQ("640", Kept("Height"));
    EXPECT_EQ("-2", Kept("Order"));
    EXPECT_EQ("1", Kept("Shown"));
    const OpenReview review(dialog);
    const RECT area = AreaOf(review.window);
    EXPECT_EQ(900, area.right - area.left);
    EXPECT_EQ(640, area.bottom - area.top);
    EXPECT_EQ(321, ListView_GetColumnWidth(review.list, Option));
    EXPECT_EQ(Different, ui::Selection(review.window, kFilter));
    HDITEMW head{};
    head.mask = HDI_FORMAT;
    SendMessage(ListView_GetHeader(review.list), HDM_GETITEMW, Option, reinterpret_cast<LPARAM>(&head));
    EXPECT_TRUE(head.fmt & HDF_SORTDOWN);
}

TEST_F(SettingsReview, ComesUpInTheMiddleOfTheScreenWithTheSizeThatItHad)
{
    {
        OpenReview review(dialog);
        Resize(review.window, 900, 640);
        review.End(IDCANCEL);
    }
    const OpenReview review(dialog);
    RECT screen;
    SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    const RECT area = AreaOf(review.window);
    EXPECT_EQ(900, area.right - area.left);
    EXPECT_NEAR(screen.left + screen.right, area.left + area.right, 1);
    EXPECT_NEAR(screen.top + screen.bottom, area.top + area.bottom, 1);
}

TEST_F(SettingsReview, HostileSizesAreIgnoredOrKeptWithinTheScreen)
{
    RECT first;
    {
        OpenReview review(dialog);
        first = AreaOf(review.window);
        review.End(IDCANCEL);
    }
    const struct {
        const char* key;
        const char* text;
    } hostile[] = {
        {"Width", "99999999999999999999"},
        {"Width", "-5"},
        {"Width", "abc"},
        {"Height", "30000"},
        {"Columns", "1,2,3"},
        {"Columns", "999999,-1,0,50,50"},
        {"Columns", "50,50,50,50,50,50"},
        {"Order", "17"},
        {"Order", "-2147483648"},
        {"Shown", "-1"},
        {"Shown", "2147483647"},
        {"Columns", ",,,,"},
    };
    for (const auto& [key, text] : hostile) {
        WriteWholeFile(host.hostSettings, "");
        Keep("Width", "800");
        Keep("Height", "600");
        Keep(key, text);
        OpenReview review(dialog);
        const RECT area = AreaOf(review.window);
        EXPECT_LE(area.right - area.left, GetSystemMetrics(SM_CXSCREEN)) << text;
        EXPECT_LE(area.bottom - area.top, GetSystemMetrics(SM_CYSCREEN)) << text;
        EXPECT_GE(area.left, 0) << text;
        EXPECT_GE(area.top, 0) << text;
        EXPECT_GE(ListView_GetColumnWidth(review.list, 0), 20) << text;
        EXPECT_EQ(All, ui::Selection(review.window, kFilter)) << text;
        EXPECT_GT(review.Count(), 250) << text;
        ExpectControlsInside(review.window);
        review.End(IDCANCEL);
    }
    EXPECT_GT(first.right, first.left);
}

TEST_F(SettingsReview, ItsLayoutClipsAndOverlapsNothing)
{
    const OpenReview review(dialog);
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(review.window));
}

/// On a scaled display too.
TEST_F(SettingsReview, ItsLayoutHasRoomForOperationsAndForMostNames)
{
    const OpenReview review(dialog);
    const auto fits = [&](int row, int column) {
        constexpr int kBeside = 6; // that the list leaves free on both sides
        const int needed = ListView_GetStringWidth(review.list, review.Cell(row, column).c_str()) + 2 * kBeside;
        return needed <= ListView_GetColumnWidth(review.list, column);
    };
    int names = 0;
    const int count = ListView_GetItemCount(review.list);
    for (int row = 0; row < count; ++row) {
        EXPECT_TRUE(fits(row, Operation))
            << row << ": " << ListView_GetStringWidth(review.list, review.Cell(row, Operation).c_str());
        names += fits(row, Option) ? 1 : 0;
    }
    EXPECT_GT(names, count * 2 / 3);
}

/// On a scaled display too: the list is moved sideways to see all of them.
TEST_F(SettingsReview, ItsLayoutLeavesTheFindingsNearlyTwiceTheWidthOfOperationsInTheNarrowestWindow)
{
    Keep("Width", "1");
    Keep("Height", "1");
    const OpenReview review(dialog);
    const int operations = ListView_GetColumnWidth(review.list, Operation);
    EXPECT_GE(ListView_GetColumnWidth(review.list, Finding), operations * 19 / 10);
}

TEST_F(SettingsReview, TheTabKeyGoesThroughTheControlsAsOneReads)
{
    OpenReview review(dialog);
    EXPECT_EQ(ui::Control(review.window, kSearch), ui::Focus(review.window));
    review.Select(k2Axis, kAngle);
    std::vector<int> order;
    HWND control = ui::Control(review.window, kSearch);
    do {
        order.push_back(GetDlgCtrlID(control));
        control = GetNextDlgTabItem(review.window, control, FALSE);
    } while (control != ui::Control(review.window, kSearch));
    EXPECT_EQ(
        (std::vector<int>{kSearch, kFilter, kCompared, kPickFile, kList, kGoTo, kEdit, kCopy, IDOK, IDCANCEL, kHelp}),
        order);
}

TEST_F(SettingsReview, NoTwoControlsHaveTheSameAccessKey)
{
    const OpenReview review(dialog);
    std::wstring keys;
    for (const HWND child : ui::Children(review.window)) {
        const std::wstring text = ui::TextOf(child);
        const size_t mark = text.find(L'&');
        if (mark != std::wstring::npos && mark + 1 < text.size())
            keys += static_cast<wchar_t>(reinterpret_cast<UINT_PTR>(
                CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(text[mark + 1])))));
    }
    EXPECT_EQ(10u, keys.size());
    std::ranges::sort(keys);
    EXPECT_EQ(keys.end(), std::ranges::adjacent_find(keys));
}

TEST_F(SettingsReview, HelpShowsItsTopicAndThoseOfItsButtons)
{
    const OpenReview review(dialog);
    EXPECT_EQ("pelmar-_dialogs_settings_review.htm", TopicShownFor(review.window, 0));
    EXPECT_EQ("tvaux-_popupsj_r_hidc_ok_button.htm", TopicShownFor(review.window, IDOK));
}

} // namespace
