#include <algorithm>
#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

#include "dialogs/dialog_driver.h"
#include "dialogs/folder_browser_driver.h"
#include "pages/page_driver.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFolder = 1326;
constexpr int kBrowse = 1330;
constexpr int kFiles = 4588;

constexpr wchar_t kRestartQuestion[] =
    L"Вы изменили параметры, требующие перезагрузки программы Torvex.  Нажмите \"ДА\" чтобы изменения вступили в "
    L"силу при следующем запуске Torvex.  Нажмите \"НЕТ\" для отмены.";

/// A host whose NC folder holds a few settings files, and the dialog.
class DefaultsFile : public testing::Test {
protected:
    DefaultsFile()
    {
        nc = host.folder + "\\NC";
        Write("DefaultPath", "NCDefaultPath", nc);
        for (const char* name : {"CURRENT.INI", "SHOP.INI", "Mill5.ini", "notes.txt"})
            WriteWholeFile(nc + "\\" + name, "[Settings]\r\n");
        hostDefaults = ProgramFolder() + "Def\\TORVEX.INI";
        fs::create_directories(ProgramFolder() + "Def");
    }
    ~DefaultsFile() override
    {
        open.reset();
        std::error_code ignored;
        fs::remove_all(ProgramFolder() + "Def", ignored);
    }

    void Write(const char* section, const char* key, const std::string& value) const
    {
        WritePrivateProfileStringA(section, key, value.c_str(), host.hostSettings.c_str());
    }
    std::string Stored(const char* section, const char* key) const { return Value(host.hostSettings, section, key); }
    std::string StoredKey() const { return Stored("DefaultNCParameter", "NCDefaultStartup"); }

    void Show()
    {
        open.reset();
        ui::UiThread::Get().Call([this] { dialog = std::make_unique<CNCDefaultPath>(); });
        open = std::make_unique<OpenInside>(*dialog, CNCDefaultPath::IDD);
    }
    HWND Window() const { return open->window; }
    std::wstring ShownFolder() const { return ui::TextOf(Window(), kFolder); }
    std::wstring ShownFile() const
    {
        const int index = ui::Selection(Window(), kFiles);
        return index < 0 ? L"" : ui::Items(Window(), kFiles)[static_cast<size_t>(index)];
    }
    void ChooseFile(const std::wstring& name) const
    {
        const std::vector<std::wstring> names = ui::Items(Window(), kFiles);
        const auto found = std::ranges::find(names, name);
        ASSERT_NE(names.end(), found);
        ui::Choose(Window(), kFiles, static_cast<int>(found - names.begin()));
    }
    /// Has the host say OK, and answers the question that must come.
    void Accept(int answer) const
    {
        PostMessage(Window(), kCheckSaveDataMessage, 0, 0);
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(kRestartQuestion, box.text);
        EXPECT_EQ((std::vector<int>{IDYES, IDNO}), box.buttons);
        ui::Answer(box, answer);
        ui::Settle(Window());
    }
    static std::wstring Wide(const std::string& text) { return CString(text.c_str()).GetString(); }

    HostFolder host;
    std::string nc;
    std::string hostDefaults;
    std::unique_ptr<CNCDefaultPath> dialog;
    std::unique_ptr<OpenInside> open;
};

TEST_F(DefaultsFile, ItShowsTheFolderAndListsItsSettingsFilesOnly)
{
    SetFileAttributesA((nc + "\\SHOP.INI").c_str(), FILE_ATTRIBUTE_READONLY);
    fs::create_directory(nc + "\\folder.ini");
    Show();
    EXPECT_EQ(Wide(nc), ShownFolder());
    std::vector<std::wstring> names = ui::Items(Window(), kFiles);
    std::ranges::sort(names);
    EXPECT_EQ((std::vector<std::wstring>{L"CURRENT.INI", L"Mill5.ini", L"SHOP.INI"}), names);
    EXPECT_EQ(L"CURRENT.INI", ShownFile());
    SetFileAttributesA((nc + "\\SHOP.INI").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DefaultsFile, TheStartUpFileIsFoundWhateverItsCase)
{
    Write("NCDefaultFile", "NCCurrentFileName", "shop.ini");
    Show();
    EXPECT_EQ(L"SHOP.INI", ShownFile());
}

TEST_F(DefaultsFile, AStartUpFileThatIsNotThereLeavesTheFirstOneSelected)
{
    Write("NCDefaultFile", "NCCurrentFileName", "GONE.INI");
    Show();
    EXPECT_EQ(0, ui::Selection(Window(), kFiles));
    Accept(IDYES);
    EXPECT_EQ("GONE.INI", Stored("NCDefaultFile", "NCCurrentFileName"));
}

TEST_F(DefaultsFile, TheStartUpKeySaysWhichLineNamesTheFile)
{
    Write("DefaultNCParameter", "NCDefaultStartup", "Shop");
    Write("NCDefaultFile", "NCCurrentFileName", "CURRENT.INI");
    Write("NCDefaultFile", "Shop", "SHOP.INI");
    Show();
    EXPECT_EQ(L"SHOP.INI", ShownFile());
}

TEST_F(DefaultsFile, AChosenFileIsStoredUnderItsKey)
{
    Write("NCDefaultFile", "NCCurrentFileName", "CURRENT.INI");
    Write("NCDefaultFile", "Shop", "SHOP.INI");
    Show();
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ("[DefaultPath]\r\nNCDefaultPath=" + nc +
                  "\r\n[NCDefaultFile]\r\nNCCurrentFileName=CURRENT.INI\r\nShop=SHOP.INI\r\n"
                  "[DefaultNCParameter]\r\nNCDefaultStartup=Shop\r\n",
              ReadWholeFile(host.hostSettings));
}

TEST_F(DefaultsFile, AFileThatNoLineNamesGetsAKeyFromItsName)
{
    Show();
    ChooseFile(L"Mill5.ini");
    Accept(IDYES);
    EXPECT_EQ("Mill5", StoredKey());
    EXPECT_EQ("Mill5.ini", Stored("NCDefaultFile", "Mill5"));
}

TEST_F(DefaultsFile, TheNameMustBeWrittenAsTheLineHasIt)
{
    Write("NCDefaultFile", "Five", "MILL5.INI");
    Show();
    ChooseFile(L"Mill5.ini");
    Accept(IDYES);
    EXPECT_EQ("Mill5", StoredKey());
}

TEST_F(DefaultsFile, AKeyEndsAtTheNamesFirstDot)
{
    WriteWholeFile(nc + "\\a.b.ini", "");
    WriteWholeFile(nc + "\\.ini", "");
    Show();
    ChooseFile(L"a.b.ini");
    Accept(IDYES);
    EXPECT_EQ("a", StoredKey());
    ChooseFile(L".ini");
    Accept(IDYES);
    EXPECT_EQ(".ini", StoredKey());
    EXPECT_EQ(".ini", Stored("NCDefaultFile", ".ini"));
}

TEST_F(DefaultsFile, OfSeveralKeysTheLastInByteOrderIsStored)
{
    // Neither the last line nor the last name of a dictionary: small letters come after capitals.
    WriteWholeFile(host.hostSettings, "[DefaultPath]\r\nNCDefaultPath=" + nc +
                                          "\r\n[NCDefaultFile]\r\nZz=SHOP.INI\r\naa=SHOP.INI\r\nMm=SHOP.INI\r\n");
    Show();
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ("aa", StoredKey());
}

TEST_F(DefaultsFile, NoRestoresWhatWasShownAtOpeningAndStoresNothing)
{
    fs::create_directories(host.folder + "\\Other");
    WriteWholeFile(host.folder + "\\Other\\ELSE.INI", "");
    const std::string before = ReadWholeFile(host.hostSettings);
    Show();
    ChooseFile(L"SHOP.INI");
    ui::Click(Window(), kBrowse);
    FolderBrowser().Choose(Wide(host.folder + "\\Other"));
    EXPECT_EQ(Wide(host.folder + "\\Other"), ShownFolder());
    EXPECT_EQ((std::vector<std::wstring>{L"ELSE.INI"}), ui::Items(Window(), kFiles));
    Accept(IDNO);
    EXPECT_EQ(Wide(nc), ShownFolder());
    EXPECT_EQ(L"CURRENT.INI", ShownFile());
    EXPECT_EQ(before, ReadWholeFile(host.hostSettings));
    // What restored the folder was no change of the user's.
    PostHostMessage(Window(), kCheckSaveDataMessage);
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(DefaultsFile, OpeningCountsAsAChangeBecauseTheFolderIsPutIntoTheEdit)
{
    Show();
    Accept(IDYES);
    EXPECT_EQ("CURRENT", StoredKey());
    PostHostMessage(Window(), kCheckSaveDataMessage);
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(DefaultsFile, WithoutAFolderNothingIsAChangeAtOpening)
{
    WriteWholeFile(host.hostSettings, "");
    Show();
    EXPECT_EQ(L"", ShownFolder());
    PostHostMessage(Window(), kCheckSaveDataMessage);
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(DefaultsFile, WhatIsTypedIsUndone)
{
    Show();
    ui::FocusOn(Window(), kFolder);
    ui::TypeAt(ui::Control(Window(), kFolder), L"x");
    EXPECT_EQ(Wide(nc), ShownFolder());
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(L"CURRENT.INI", ShownFile());
}

TEST_F(DefaultsFile, AnEmptyFactoryFolderAsksForOneAndBringsTheFirstOneBack)
{
    Show();
    WriteWholeFile(hostDefaults, "[NCDefaultFile]\r\nNCCurrentFileName=FACTORY.INI\r\n");
    // The factory settings name no folder: the edit is emptied, which asks at once.
    PostMessage(Window(), kSetDefaultsMessage, 0, 0);
    const ui::MessageBoxSeen box = ui::WaitForBox();
    EXPECT_EQ(L"Укажите существующую папку", box.text);
    EXPECT_EQ((std::vector<int>{IDOK}), box.buttons);
    ui::Answer(box, IDOK);
    ui::Settle(Window());
    EXPECT_EQ(Wide(nc), ShownFolder());
}

TEST_F(DefaultsFile, TypingWithoutAFolderAsksForOneAndIsUndone)
{
    WriteWholeFile(host.hostSettings, "");
    Show();
    const HWND edit = ui::Control(Window(), kFolder);
    ui::FocusOn(Window(), kFolder);
    PostMessage(edit, WM_CHAR, L'x', 1);
    // Taking the text back changes the edit again, with the folder as empty as before.
    for (int times = 0; times < 2; ++times) {
        const ui::MessageBoxSeen box = ui::WaitForBox();
        EXPECT_EQ(L"Укажите существующую папку", box.text);
        ui::Answer(box, IDOK);
    }
    ui::Settle(Window());
    EXPECT_FALSE(ui::IsBoxOpen());
    EXPECT_EQ(L"", ShownFolder());
}

TEST_F(DefaultsFile, DefaultsAndYesStoreTheFactoryFolderAndFile)
{
    fs::create_directories(host.folder + "\\Factory");
    WriteWholeFile(host.folder + "\\Factory\\FACTORY.INI", "");
    Write("NCDefaultFile", "Shop", "SHOP.INI");
    Show();
    WriteWholeFile(hostDefaults, "[DefaultPath]\r\nNCDefaultPath=" + host.folder +
                                     "\\Factory\r\n[DefaultNCParameter]\r\nNCDefaultStartup=Own\r\n"
                                     "[NCDefaultFile]\r\nOwn=FACTORY.INI\r\n");
    PostHostMessage(Window(), kSetDefaultsMessage);
    EXPECT_EQ(Wide(host.folder + "\\Factory"), ShownFolder());
    EXPECT_EQ(L"FACTORY.INI", ShownFile());
    Accept(IDYES);
    EXPECT_EQ(host.folder + "\\Factory", Stored("DefaultPath", "NCDefaultPath"));
    EXPECT_EQ("Own", StoredKey());
    EXPECT_EQ("FACTORY.INI", Stored("NCDefaultFile", "Own"));
    EXPECT_EQ("SHOP.INI", Stored("NCDefaultFile", "Shop"));
}

TEST_F(DefaultsFile, TheLinesOfTheFirstFileStayKnownAfterDefaults)
{
    Write("NCDefaultFile", "Shop", "SHOP.INI");
    Show();
    WriteWholeFile(hostDefaults, "[DefaultPath]\r\nNCDefaultPath=" + nc + "\r\n");
    PostHostMessage(Window(), kSetDefaultsMessage);
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ("Shop", StoredKey());
}

TEST_F(DefaultsFile, TheFolderBrowserStartsAtTheFolderAndCancelChangesNothing)
{
    WriteWholeFile(host.hostSettings, "[DefaultPath]\r\nNCDefaultPath=" + nc + "\r\n");
    Show();
    const StartFolderWatch watch;
    ui::Click(Window(), kBrowse);
    const FolderBrowser browser;
    EXPECT_EQ(L"Выбор папки настроек ЧПУ", browser.Title());
    EXPECT_EQ(nc, watch.Folder());
    browser.Cancel();
    EXPECT_EQ(Wide(nc), ShownFolder());
}

TEST_F(DefaultsFile, TheFolderBrowserDoesNotComeWhereTheDialogsDataAreRefused)
{
    struct Refusing : CNCDefaultPath {
        void DoDataExchange(CDataExchange* exchange) override
        {
            CNCDefaultPath::DoDataExchange(exchange);
            if (exchange->m_bSaveAndValidate)
                exchange->Fail();
        }
    };
    ui::UiThread::Get().Call([this] { dialog = std::make_unique<Refusing>(); });
    open = std::make_unique<OpenInside>(*dialog, CNCDefaultPath::IDD);
    // A browser would keep the click from returning.
    ui::UiThread::Get().Call([this] { SendMessage(Window(), WM_COMMAND, kBrowse, 0); });
    EXPECT_EQ(Wide(nc), ShownFolder());
}

TEST_F(DefaultsFile, AFolderWithoutSettingsFilesKeepsTheStartUpFile)
{
    fs::create_directories(host.folder + "\\Empty");
    Show();
    ui::Click(Window(), kBrowse);
    FolderBrowser().Choose(Wide(host.folder + "\\Empty"));
    EXPECT_EQ(Wide(host.folder + "\\Empty"), ShownFolder());
    EXPECT_TRUE(ui::Items(Window(), kFiles).empty());
    Accept(IDYES);
    EXPECT_EQ(host.folder + "\\Empty", Stored("DefaultPath", "NCDefaultPath"));
    EXPECT_EQ("CURRENT.INI", Stored("NCDefaultFile", StoredKey().c_str()));
}

TEST_F(DefaultsFile, AFolderThatDoesNotExistIsShownWithAnEmptyList)
{
    Write("DefaultPath", "NCDefaultPath", "C:\\no such folder");
    Show();
    EXPECT_EQ(L"C:\\no such folder", ShownFolder());
    EXPECT_TRUE(ui::Items(Window(), kFiles).empty());
}

/// The start of the paths of a folder's files. Wine compares a new file's name with all names of the folder, in
/// whatever case, but where the path is named as its own system does.
std::string QuickPath(const std::string& folder)
{
    const bool isWine = GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
    if (!isWine || !folder.starts_with("Z:\\"))
        return folder + "\\";
    return "\\\\?\\unix" + folder.substr(2) + "\\";
}

TEST_F(DefaultsFile, AFolderOfTenThousandFilesIsListed)
{
    const std::string crowded = host.folder + "\\Crowded";
    fs::create_directories(crowded);
    const std::string quick = QuickPath(crowded);
    for (int number = 0; number < 10000; ++number)
        CloseHandle(CreateFileA((quick + std::to_string(number) + ".ini").c_str(), GENERIC_WRITE, 0, nullptr,
                                CREATE_ALWAYS, 0, nullptr));
    Write("DefaultPath", "NCDefaultPath", crowded);
    Write("NCDefaultFile", "NCCurrentFileName", "9999.ini");
    Show();
    EXPECT_EQ(10000, SendMessage(ui::Control(Window(), kFiles), CB_GETCOUNT, 0, 0));
    const int index = ui::Selection(Window(), kFiles);
    wchar_t name[MAX_PATH] = {};
    SendMessage(ui::Control(Window(), kFiles), CB_GETLBTEXT, static_cast<WPARAM>(index),
                reinterpret_cast<LPARAM>(name));
    EXPECT_STREQ(L"9999.ini", name);
}

TEST_F(DefaultsFile, ASectionLargerThanItsBufferIsReadAsFarAsItFits)
{
    std::string text = "[DefaultPath]\r\nNCDefaultPath=" + nc + "\r\n[NCDefaultFile]\r\nFirst=SHOP.INI\r\n";
    for (int number = 0; text.size() < 60000; ++number)
        text += "Key" + std::to_string(number) + "=File" + std::to_string(number) + ".INI\r\n";
    WriteWholeFile(host.hostSettings, text + "Zlast=Mill5.ini\r\n");
    Show();
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ("First", StoredKey());
    ChooseFile(L"Mill5.ini"); // its line did not fit
    Accept(IDYES);
    EXPECT_EQ("Mill5", StoredKey());
}

TEST_F(DefaultsFile, LinesThatAreNoEntriesAreIgnored)
{
    const std::string longest(511, 'k');
    WriteWholeFile(host.hostSettings, "[DefaultPath]\r\nNCDefaultPath=" + nc +
                                          "\r\n[NCDefaultFile]\r\nSHOP.INI\r\n=SHOP.INI\r\nzempty=\r\n" + longest +
                                          "=SHOP.INI\r\n" + std::string(512, 'z') + "=SHOP.INI\r\n" + "zvalue=" +
                                          std::string(600, 'v') + "\r\n" + std::string(10000, 'y') + "\r\n");
    Show();
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ(longest, StoredKey());
}

TEST_F(DefaultsFile, ALongNameCountsUpToItsFirst511Characters)
{
    // The start-up file is cut off likewise, so that the last of the keys that name it is found.
    const std::string name(511, 'n');
    WriteWholeFile(host.hostSettings, "[DefaultPath]\r\nNCDefaultPath=" + nc +
                                          "\r\n[NCDefaultFile]\r\nNCCurrentFileName=" + name + "\r\nlonger=" + name +
                                          "mm\r\nmore=" + std::string(510, 'n') + "\r\n");
    Show();
    Accept(IDYES);
    EXPECT_EQ("longer", StoredKey());
}

TEST_F(DefaultsFile, ANameEndsAtASecondEqualsSign)
{
    WriteWholeFile(host.hostSettings,
                   "[DefaultPath]\r\nNCDefaultPath=" + nc + "\r\n[NCDefaultFile]\r\nTwice=SHOP.INI=x\r\n");
    Show();
    ChooseFile(L"SHOP.INI");
    Accept(IDYES);
    EXPECT_EQ("Twice", StoredKey());
}

TEST_F(DefaultsFile, ASettingsPathThatIsTooLongIsAFileThatIsMissing)
{
    WriteWholeFile(host.coreFile, "[DefaultPath]\r\nTorvexIniPath=" + std::string(400, 'x') + "\r\n");
    host.Initialize();
    Show();
    EXPECT_EQ(L"", ShownFolder());
    PostHostMessage(Window(), kCheckSaveDataMessage);
    EXPECT_FALSE(ui::IsBoxOpen());
}

TEST_F(DefaultsFile, AnOverlongFolderIsCutOffToItsBuffer)
{
    Write("DefaultPath", "NCDefaultPath", std::string(1000, 'x'));
    Show();
    EXPECT_EQ(std::wstring(255, L'x'), ShownFolder());
}

TEST_F(DefaultsFile, HelpShowsTheTopicOfTheFolderOrTheGeneralOne)
{
    Show();
    const char* const general = "tvaux-_toolsoptions_tools_options_nc_defaults_paths.htm";
    const char* const folder = "tvaux-_toolsoptionspopups_nc_defaults.htm";
    EXPECT_EQ(general, TopicShownFor(Window(), 0));
    EXPECT_EQ(folder, TopicShownFor(Window(), kFolder));
    EXPECT_EQ(general, TopicShownFor(Window(), kFiles));
    EXPECT_EQ(folder, TopicShownFor(Window(), kBrowse));
    EXPECT_FALSE(ui::On([] { return AfxGetApp()->m_bHelpMode; }));
}

TEST_F(DefaultsFile, ItsLayoutClipsAndOverlapsNothing)
{
    Show();
    EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(Window()));
    EXPECT_EQ(L"Dialog", ui::TextOf(Window()));
}

TEST_F(DefaultsFile, CanBeCreatedDynamically)
{
    EXPECT_EQ(105, int{CNCDefaultPath::IDD});
    EXPECT_EQ(CDialog::GetThisClass(), CNCDefaultPath::GetThisClass()->m_pfnGetBaseClass());
    ui::UiThread::Get().Call([] { delete CNCDefaultPath::GetThisClass()->CreateObject(); });
}

} // namespace
