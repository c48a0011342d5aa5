// Every key of the dialogs with values that no sane file holds: the stated fallback holds, nothing is written that the
// user did not accept, and what is accepted changes the dialog's own keys only.
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "resources/resource.h"
#include "settings_text.h"

namespace {

namespace fs = std::filesystem;

/// A set of everything that a dialog reads, in whichever of the four files, and of keys that none does.
std::vector<Entry> SaneEntries()
{
    return {
        {"DefaultDisplayParameter", "NcDisplayMode", "1"},
        {"DefaultDisplayParameter", "NcMenuIcons", "1"},
        {"DefaultDisplayParameter", "Other", "kept"},
        {"DefaultNCParameter", "Classic3Axis", "1"},
        {"DefaultNCParameter", "FilterSpans", "1"},
        {"DefaultNCParameter", "FilterMaxSpan", "0.250000"},
        {"DefaultNCParameter", "FilterLineTol", "0.125000"},
        {"DefaultNCParameter", "FilterArcTol", "0.500000"},
        {"DefaultNCParameter", "NCDefaultStartup", "Shop"},
        {"DefaultNCParameter", "Other", "kept"},
        {"ALLTIPI", "DefToLastMaterial;", "1"},
        {"ALLTIPI", "DefToLastTool", "1"},
        {"ALLTIPI", "DefToLastCutCtrl", "1"},
        {"MILLTIPI", "ToolDefUS", "44"},
        {"THREADMILLTIPI", "ToolDefMM", "1"},
        {"Settings", "ProgramName", "1"},
        {"Settings", "UsePLXDialogs", "4"},
        {"Settings", "MillGaugeLength", "1"},
        {"Settings", "LatheGaugeLength", "1"},
        {"Settings", "ToolSortBy", "1"},
        {"Settings", "Other", "kept"},
        {"NCDefaultFile", "Shop", "SHOP.INI"},
        {"NCDefaultFile", "Other", "kept"},
        {"OptionsSSheet", "Units", "0"},
        {"OptionsSSheet", "RapidRate", "100.000000"},
        {"OptionsSSheet", "Other", "kept"},
        {"DefaultPath", "ToolpathTemplatesPath", "C:\\Templates"},
        {"DefaultPath", "NCDefaultPath", "C:\\NC"},
        {"DefaultPath", "Other", "kept"},
        {"Options2x", "Units", "0"},
        {"Options2x", "RapidPlane", "1.000000"},
        {"SettingsReview", "Width", "800"},
        {"SettingsReview", "Height", "600"},
        {"SettingsReview", "Columns", "100,100,100,100,100"},
        {"SettingsReview", "Order", "2"},
        {"SettingsReview", "Shown", "1"},
    };
}

// ---- how a host uses each dialog, and what may change in the files when the user says OK ----

void Fill(CDialog&) {}

void Fill(CDefsNCToolsDlg& dialog)
{
    const OptNCDefToolsData tools;
    dialog.GetData(&tools);
}

void Fill(CDefsSetupsheet& dialog)
{
    dialog.GetData(kInch);
}

/// The question of the restart, where there is one, is answered by Yes.
void Accept(CDialog& dialog)
{
    PostMessage(dialog.m_hWnd, kCheckSaveDataMessage, 0, 0);
    ui::Settle(dialog.m_hWnd);
    if (ui::IsBoxOpen())
        ui::Answer(ui::WaitForBox(), IDYES);
    ui::Settle(dialog.m_hWnd);
}

void Accept(CDefsNCToolsDlg& dialog)
{
    ui::UiThread::Get().Call([&] {
        OptNCDefToolsData tools;
        dialog.SetData(&tools);
        dialog.SendMessage(kWriteToIniMessage);
    });
}

void Accept(CDefsSetupsheet& dialog)
{
    ui::UiThread::Get().Call([&] {
        dialog.SetData();
        vSSheetOptions_Save();
    });
}

template <class Dialog> const std::set<std::string> kOwnKeys;
template <> const std::set<std::string> kOwnKeys<CDefsNCDefaultsDlg> = {
    "NcDisplayMode", "NcMenuIcons", "Classic3Axis", "FilterSpans", "FilterLineTol", "FilterArcTol"};
template <>
const std::set<std::string> kOwnKeys<CDefsNCToolsDlg> = {"MillGaugeLength", "LatheGaugeLength", "ToolSortBy"};
template <> const std::set<std::string> kOwnKeys<CTemplateOptions> = {"ToolpathTemplatesPath"};

/// The chooser stores the start-up file under a key that the files themselves may name.
template <class Dialog> bool IsOwn(const Entry& entry)
{
    return kOwnKeys<Dialog>.contains(entry.key);
}

template <> bool IsOwn<CNCDefaultPath>(const Entry& entry)
{
    return entry.key == "NCDefaultStartup" || entry.key == "NCDefaultPath" || entry.section == "NCDefaultFile";
}

template <> bool IsOwn<CDefsSetupsheet>(const Entry& entry)
{
    return entry.section == "OptionsSSheet" && entry.key != "Other";
}

/// A window's memory is written when it closes.
template <> bool IsOwn<CSettingsReviewDlg>(const Entry& entry)
{
    return entry.section == "SettingsReview";
}

/// The entries that are not the dialog's, without the blanks that the platform drops when it writes the file anew.
template <class Dialog> std::string OthersOf(const std::vector<Entry>& entries)
{
    std::vector<Entry> others;
    for (Entry entry : entries)
        if (!IsOwn<Dialog>(entry)) {
            entry.text.erase(0, entry.text.find_first_not_of(' '));
            others.push_back(entry);
        }
    return FileOf(others);
}

template <class Dialog> class HostileDialog : public testing::Test {
protected:
    HostileDialog() : hostDefaults(ProgramFolder() + "Def\\TORVEX.INI")
    {
        fs::create_directories(ProgramFolder() + "Def");
    }
    ~HostileDialog() override
    {
        FreeLibrary(kept);
        std::error_code ignored;
        fs::remove_all(ProgramFolder() + "Def", ignored);
    }

    std::vector<std::string> Files() const { return {host.hostSettings, host.settings, host.defaults, hostDefaults}; }

    /// Opens the dialog with every file holding these entries, and has the user ask for the defaults, or not.
    template <class Act> void Show(const std::vector<Entry>& entries, bool defaults, Act act)
    {
        for (const std::string& file : Files())
            WriteWholeFile(file, FileOf(entries));
        GetLastDefsNCToolsInfo()->Restore();
        vSSheetOptions_Restore();
        Dialog dialog;
        const OpenInside open(dialog, Dialog::IDD);
        ui::UiThread::Get().Call([&] { Fill(dialog); });
        if (defaults)
            PostMessage(open.window, kSetDefaultsMessage, 0, 0);
        ui::Settle(open.window);
        ui::DismissBoxes();
        act(dialog);
        ui::DismissBoxes();
    }
    /// The same with each hostile text under every key, with and without the defaults.
    template <class Act> void ShowEach(Act act)
    {
        for (const std::string& hostile : HostileTexts())
            for (const bool defaults : {false, true}) {
                std::vector<Entry> entries = SaneEntries();
                for (Entry& entry : entries)
                    if (entry.key != "Other")
                        entry.text = hostile;
                SCOPED_TRACE(hostile.substr(0, 20));
                Show(entries, defaults, [&](Dialog& dialog) { act(dialog, entries); });
            }
    }

    HostFolder host;
    std::string hostDefaults;
    HMODULE kept = LoadLibraryA("PELMAR.dll"); // as a host does
};

using Dialogs = testing::Types<CDefsNCDefaultsDlg, CDefsNCToolsDlg, CNCDefaultPath, CTemplateOptions, CDefsSetupsheet,
                               CSettingsReviewDlg>;
TYPED_TEST_SUITE(HostileDialog, Dialogs);

TYPED_TEST(HostileDialog, WritesNothingThatTheUserDidNotAccept)
{
    this->ShowEach([this](TypeParam& dialog, const std::vector<Entry>& entries) {
        PostMessage(dialog.m_hWnd, kCheckSaveDataMessage, 0, 0);
        ui::Settle(dialog.m_hWnd);
        ui::DismissBoxes(); // No
        for (const std::string& file : this->Files())
            EXPECT_EQ(FileOf(entries), ReadWholeFile(file)) << file;
    });
}

TYPED_TEST(HostileDialog, ChangesItsOwnKeysOnly)
{
    this->ShowEach([this](TypeParam& dialog, const std::vector<Entry>& entries) {
        Accept(dialog);
        for (const std::string& file : this->Files())
            EXPECT_EQ(OthersOf<TypeParam>(entries), OthersOf<TypeParam>(EntriesOf(ReadWholeFile(file)))) << file;
    });
}

} // namespace
