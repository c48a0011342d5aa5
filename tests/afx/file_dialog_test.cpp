#include <filesystem>
#include <fstream>

#include <afxdlgs.h>
#include <dlgs.h>

#include "modal.h"
#include "resource.h"
#include "ui/file_dialog.h"

namespace {

namespace fs = std::filesystem;

/// A folder with a few files, which is gone after the test.
class FileDialog : public testing::Test {
protected:
    FileDialog()
    {
        wchar_t temp[MAX_PATH];
        GetTempPath(MAX_PATH, temp);
        folder = fs::path(temp) / (L"afx files " + std::to_wstring(GetCurrentProcessId()));
        fs::create_directories(folder);
        for (const wchar_t* name : {L"first.tvhpt", L"second.tvhpt", L"other.txt"})
            std::ofstream(folder / name) << "x";
        before = fs::current_path();
    }
    ~FileDialog() override
    {
        if (const HWND open = ui::FindFileDialog())
            PostMessage(open, WM_COMMAND, IDCANCEL, 0);
        ui::UiThread::Get().WaitForStarted();
        fs::current_path(before); // the system's dialog leaves the chosen folder as the current one
        fs::remove_all(folder);
    }
    HWND Open(CFileDialog& dialog)
    {
        initial = folder.wstring();
        dialog.m_ofn.lpstrInitialDir = initial.c_str();
        ui::UiThread::Get().Start([this, &dialog] { result = dialog.DoModal(); });
        return ui::WaitForFileDialog();
    }
    INT_PTR Click(HWND window, int button)
    {
        ui::Click(window, button);
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
        return result;
    }
    INT_PTR Choose(HWND window, const wchar_t* name)
    {
        ui::NameFile(window, name);
        EXPECT_TRUE(ui::UiThread::Get().WaitForStarted());
        return result;
    }
    std::wstring PathOf(const wchar_t* name) { return (folder / name).wstring(); }

    fs::path folder;
    fs::path before;
    std::wstring initial;
    INT_PTR result = 0;
};

constexpr const wchar_t* kFilter = L"Шаблоны (*.tvhpt)|*.tvhpt|Все (*.*)|*.*||";

TEST_F(FileDialog, TellsTheChosenFile)
{
    CFileDialog dialog(TRUE, L"tvhpt", nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter);
    EXPECT_EQ(IDOK, Choose(Open(dialog), L"first.tvhpt"));
    EXPECT_EQ(PathOf(L"first.tvhpt"), dialog.GetPathName().GetString());
    EXPECT_STREQ(L"first.tvhpt", dialog.GetFileName());
}

TEST_F(FileDialog, TellsThatTheUserHasLeft)
{
    CFileDialog dialog(TRUE);
    EXPECT_EQ(IDCANCEL, Click(Open(dialog), IDCANCEL));
}

TEST_F(FileDialog, OffersTheFilterAndTheFirstOfItAtOnce)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, kFilter);
    const HWND window = Open(dialog);
    EXPECT_EQ((std::vector<std::wstring>{L"Шаблоны (*.tvhpt)", L"Все (*.*)"}), ui::FileTypes(window));
    EXPECT_EQ(0, ui::Selection(window, cmb1));
    Click(window, IDCANCEL);
}

TEST_F(FileDialog, TakesAFilterWithoutItsLastBars)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Шаблоны|*.tvhpt");
    const HWND window = Open(dialog);
    EXPECT_EQ(std::vector<std::wstring>{L"Шаблоны"}, ui::FileTypes(window));
    Click(window, IDCANCEL);
}

TEST_F(FileDialog, ShowsTheFileNameThatItStartsWith)
{
    CFileDialog dialog(TRUE, nullptr, L"second.tvhpt", OFN_FILEMUSTEXIST, kFilter);
    const HWND window = Open(dialog);
    EXPECT_EQ(L"second.tvhpt", ui::TextOf(ui::FileNameEdit(window)));
    EXPECT_EQ(IDOK, Click(window, IDOK));
    EXPECT_EQ(PathOf(L"second.tvhpt"), dialog.GetPathName().GetString());
}

TEST_F(FileDialog, AddsTheDefaultExtension)
{
    CFileDialog dialog(FALSE, L"tvhpt", nullptr, OFN_HIDEREADONLY, kFilter);
    EXPECT_EQ(IDOK, Choose(Open(dialog), L"fresh"));
    EXPECT_EQ(PathOf(L"fresh.tvhpt"), dialog.GetPathName().GetString());
}

TEST_F(FileDialog, KeepsAnotherExtensionThatIsTyped)
{
    CFileDialog dialog(TRUE, L"tvhpt", nullptr, OFN_FILEMUSTEXIST, kFilter);
    EXPECT_EQ(IDOK, Choose(Open(dialog), L"other.txt"));
    EXPECT_STREQ(L"other.txt", dialog.GetFileName());
}

TEST_F(FileDialog, StaysWhereTheFileMustExistAndDoesNot)
{
    CFileDialog dialog(TRUE, L"tvhpt", nullptr, OFN_FILEMUSTEXIST, kFilter);
    const HWND window = Open(dialog);
    ui::NameFile(window, L"missing.tvhpt");
    const ui::MessageBoxSeen box = ui::WaitForBox();
    ui::Answer(box, IDOK);
    EXPECT_TRUE(IsWindow(window));
    EXPECT_EQ(IDCANCEL, Click(window, IDCANCEL));
}

TEST_F(FileDialog, BelongsToItsParentsWholeWindow)
{
    CDialog owner(IDD_NUMBER);
    Modal open(owner, L"Проба");
    CEdit child;
    OnUi([&] { child.SubclassDlgItem(IDC_NUMBER, &owner); });
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, nullptr, &child);
    const HWND window = Open(dialog);
    EXPECT_EQ(open.window, GetWindow(window, GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(open.window));
    ui::Click(window, IDCANCEL);
    EXPECT_TRUE(ui::WaitForClose(window));
    EXPECT_EQ(IDOK, open.CloseBy(IDOK));
}

TEST_F(FileDialog, TakesAnOverlongFileNameForAsMuchAsAPathHolds)
{
    const std::wstring name(40000, L'x');
    const CFileDialog dialog(TRUE, nullptr, name.c_str());
    EXPECT_EQ(32767, dialog.GetPathName().GetLength());
}

} // namespace
