#include "monkey.h"

#include <sstream>

#include <ControlLib.h>
#include <PelmarDlgs.h>
#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "module/host_folder.h"
#include "option_pages.h"
#include "resources/resource.h"
#include "ui/person.h"
#include "ui/ui_thread.h"

namespace {

using proof::Monkey;
using proof::Playground;

/// Lets a monkey play for its part of a run's actions, in percent.
void LetPlay(int part, Playground playground)
{
    Monkey monkey(std::move(playground), proof::MonkeySeed());
    try {
        monkey.Play(proof::MonkeyActions() * part / 100);
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    if (testing::Test::HasFailure())
        ADD_FAILURE() << "seed " << proof::MonkeySeed() << ", the last actions:\n" << monkey.LastActions();
}

/// All records, saved to a file of their own.
std::string SavedRecords(const HostFolder& host)
{
    host.WriteSettings("");
    for (const OptionPage& page : OptionPages())
        page.save();
    return host.ReadSettings();
}

/// What holds of the records whatever a user does: they are finite, and what is restored saves to the same file again.
/// (The first save may hold more digits: a real is restored in single precision.)
void ExpectSoundRecords(const HostFolder& host)
{
    const std::string saved = SavedRecords(host);
    std::istringstream lines(saved);
    for (std::string line; std::getline(lines, line);)
        EXPECT_TRUE(line.starts_with('[') || line.find_first_of("nN", line.find('=')) == std::string::npos) << line;
    const auto restoredAndSaved = [&] {
        for (const OptionPage& page : OptionPages())
            page.restore();
        return SavedRecords(host);
    };
    const std::string first = restoredAndSaved();
    EXPECT_EQ(first, restoredAndSaved());
}

TEST(MonkeyTest, AllPagesInOneSheet)
{
    const HostFolder host;
    std::vector<std::unique_ptr<CPropertyPage>> pages;
    std::unique_ptr<CPropertySheetTVEx> sheet;
    const auto open = [&] {
        ui::UiThread::Get().WaitForStarted();
        ui::UiThread::Get().Call([&] {
            sheet = std::make_unique<CPropertySheetTVEx>(L"Лист");
            pages.clear();
            for (const OptionPage& row : OptionPages())
                sheet->AddPage(pages.emplace_back(row.make(kInch)).get());
        });
        ui::UiThread::Get().Start([&] { sheet->DoModal(); });
        return ui::WaitForWindow(L"Лист");
    };
    const auto pageOf = [](HWND window) {
        return reinterpret_cast<HWND>(SendMessage(window, PSM_GETCURRENTPAGEHWND, 0, 0));
    };
    const auto closed = [&] {
        ui::UiThread::Get().WaitForStarted();
        ExpectSoundRecords(host);
    };
    LetPlay(50, {.open = open,
                 .controlsOf = pageOf,
                 .closed = closed,
                 .avoided = {IDC_HOLE_CHOOSE_TEMPLATE}, // the system's own dialog, which has tests of its own
                 .messages = {kSetDefaultsMessage},
                 .pages = static_cast<int>(OptionPages().size()),
                 .buttons = {IDOK, IDCANCEL, 0x3021}});
    ui::UiThread::Get().Call([&] {
        sheet.reset();
        pages.clear();
    });
}

/// Plays with a dialog that is a window of its own.
template <class Dialog>
void PlayModal(const std::wstring& title, std::vector<UINT> messages, std::vector<int> avoided = {})
{
    const HostFolder host;
    std::unique_ptr<Dialog> dialog;
    const auto open = [&] {
        ui::UiThread::Get().WaitForStarted();
        ui::UiThread::Get().Call([&] { dialog = std::make_unique<Dialog>(); });
        ui::UiThread::Get().Start([&] { dialog->DoModal(); });
        return ui::WaitForWindow(title);
    };
    LetPlay(10, {.open = open,
                 .controlsOf = [](HWND window) { return window; },
                 .closed = [] { ui::UiThread::Get().WaitForStarted(); },
                 .avoided = std::move(avoided),
                 .messages = std::move(messages)});
}

TEST(MonkeyTest, NcDefaults)
{
    PlayModal<CDefsNCDefaultsDlg>(L"Параметры ЧПУ", {kSetDefaultsMessage, kCheckSaveDataMessage}, {ID_HELP});
}

TEST(MonkeyTest, DefaultTools)
{
    PlayModal<CDefsNCToolsDlg>(L"Параметры ЧПУ > Сервис", {kSetDefaultsMessage, kWriteToIniMessage}, {ID_HELP});
}

/// Plays with a dialog inside a host's window, which stays open.
template <class Dialog, class Fill> void PlayInside(std::vector<UINT> messages, std::vector<int> avoided, Fill fill)
{
    const HostFolder host;
    Dialog dialog;
    {
        OpenInside open(dialog, Dialog::IDD);
        ui::UiThread::Get().Call([&] { fill(dialog); });
        LetPlay(10, {.open = [&] { return open.frame; },
                     .controlsOf = [&](HWND) { return open.window; },
                     .closed = [] {},
                     .avoided = std::move(avoided),
                     .messages = std::move(messages),
                     .buttons = {}});
    }
}

TEST(MonkeyTest, TheDefaultsFile)
{
    PlayInside<CNCDefaultPath>({kSetDefaultsMessage, kCheckSaveDataMessage}, {IDC_CHOOSER_BROWSE},
                               [](CNCDefaultPath&) {});
}

TEST(MonkeyTest, ToolpathTemplates)
{
    const HMODULE kept = LoadLibraryA("PELMAR.dll"); // as a host does
    PlayInside<CTemplateOptions>({kSetDefaultsMessage, kCheckSaveDataMessage},
                                 {IDC_TEMPLATES_CHOOSE_DEFAULT, IDC_TEMPLATES_CHOOSE_DATABASE},
                                 [](CTemplateOptions&) {});
    FreeLibrary(kept);
}

TEST(MonkeyTest, TheSetupSheet)
{
    PlayInside<CDefsSetupsheet>({kSetDefaultsMessage}, {}, [](CDefsSetupsheet& dialog) { dialog.GetData(kInch); });
    const CSSheetOptionsInfo& options = *GetLastSSheetOptions();
    EXPECT_TRUE(options.RapidRate >= 0.001 && options.RapidRate <= 1000000.0);
}

} // namespace
