// The help viewer as the system's registration has it. It is looked for once per process, so each of these tests runs
// in a process of its own.
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "pages/page_driver.h"

namespace {

constexpr wchar_t kKey[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr char kUsualViewer[] = "hhctrl.ocx";

/// A host with the stand-in under the usual viewer's name, and with no viewer registered.
class HelpViewer : public testing::Test {
protected:
    HelpViewer()
    {
        std::filesystem::copy_file(ProgramFolder() + "HelpStandIn.dll", ProgramFolder() + kUsualViewer);
        RegDeleteKeyW(HKEY_CLASSES_ROOT, kKey);
    }

    /// A registration without a path.
    static HKEY Register()
    {
        HKEY key = nullptr;
        EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyW(HKEY_CLASSES_ROOT, kKey, &key));
        return key;
    }
    static void Register(DWORD type, const void* value, size_t size)
    {
        EXPECT_EQ(ERROR_SUCCESS, RegSetValueExW(Register(), nullptr, 0, type, static_cast<const BYTE*>(value),
                                                static_cast<DWORD>(size)));
    }
    static void RegisterPath(const std::wstring& path, DWORD type = REG_EXPAND_SZ)
    {
        Register(type, path.c_str(), (path.size() + 1) * sizeof(wchar_t));
    }

    /// Asks for the help of a page. False where the viewer of the usual name has not shown it.
    bool IsShownByTheUsualViewer()
    {
        using ShownText = const char*();
        CDefs2xPage page;
        OpenSheet sheet({&page});
        TopicShownFor(sheet.Page(), 0);
        EXPECT_TRUE(sheet.IsOpen());
        const HMODULE viewer = GetModuleHandleA(kUsualViewer);
        auto* const topic = reinterpret_cast<void*>(GetProcAddress(viewer, "HelpStandIn_Topic"));
        if (!viewer || !topic)
            return false;
        EXPECT_STREQ("pelmar-_options_hidd_2axis_cut_opt.htm", reinterpret_cast<ShownText*>(topic)());
        return true;
    }

    HostFolder host;
};

TEST_F(HelpViewer, IsTheUsualOneWhereNoneIsRegistered)
{
    EXPECT_TRUE(IsShownByTheUsualViewer());
}

TEST_F(HelpViewer, IsTheUsualOneWhereTheRegistrationHasNoPath)
{
    Register();
    EXPECT_TRUE(IsShownByTheUsualViewer());
}

TEST_F(HelpViewer, IsTheUsualOneWhereTheRegistrationIsNoText)
{
    const DWORD number = 1;
    Register(REG_DWORD, &number, sizeof number);
    EXPECT_TRUE(IsShownByTheUsualViewer());
}

TEST_F(HelpViewer, IsTheUsualOneWhereTheRegisteredPathIsTooLong)
{
    SetEnvironmentVariableW(L"PELMAR_TEST_LONG", std::wstring(5000, L'x').c_str());
    RegisterPath(L"%PELMAR_TEST_LONG%.dll");
    EXPECT_TRUE(IsShownByTheUsualViewer());
}

TEST_F(HelpViewer, MayBeRegisteredWithoutAVariable)
{
    RegisterPath(L"HelpStandIn.dll", REG_SZ);
    EXPECT_FALSE(IsShownByTheUsualViewer());
    EXPECT_EQ("pelmar-_options_hidd_2axis_cut_opt.htm", LastTopicShown());
}

TEST_F(HelpViewer, ThatIsRegisteredButGoneShowsNothing)
{
    RegisterPath(L"NoSuchViewer.dll");
    EXPECT_FALSE(IsShownByTheUsualViewer());
}

TEST_F(HelpViewer, WithoutTheEntryPointShowsNothing)
{
    RegisterPath(L"CompleteToolLib.dll");
    EXPECT_FALSE(IsShownByTheUsualViewer());
}

/// What the host was told, in its order.
std::vector<std::string> g_told;

void Note(const HelpState& state)
{
    g_told.push_back(std::string(state.hasViewer ? "viewer" : "no viewer") + ", " +
                     (state.hasFile ? "file" : "no file"));
}

/// Where the library looks for the help file, with a file there while one lives.
class HelpFile {
public:
    HelpFile() : m_path(GetSettingsLocations().helpFile.c_str())
    {
        std::filesystem::create_directories(std::filesystem::path(m_path).parent_path());
        WriteWholeFile(m_path, "help");
    }
    ~HelpFile() { std::filesystem::remove(m_path); }
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

private:
    std::string m_path;
};

TEST_F(HelpViewer, AndFileAreToldOfWhetherTheyAreThere)
{
    HelpState state = GetHelpState();
    EXPECT_TRUE(state.hasViewer);
    EXPECT_FALSE(state.hasFile);
    EXPECT_FALSE(state.CanOpen());
    EXPECT_STREQ(kUsualViewer, state.viewerFile);
    EXPECT_STREQ(GetSettingsLocations().helpFile.c_str(), state.helpFile);
    {
        const HelpFile file;
        state = GetHelpState();
        EXPECT_TRUE(state.hasFile);
        EXPECT_TRUE(state.CanOpen());
    }
    EXPECT_FALSE(GetHelpState().hasFile);
}

TEST_F(HelpViewer, ThatIsGoneCannotOpenTheFile)
{
    RegisterPath(L"NoSuchViewer.dll");
    const HelpFile file;
    const HelpState state = GetHelpState();
    EXPECT_FALSE(state.hasViewer);
    EXPECT_TRUE(state.hasFile);
    EXPECT_FALSE(state.CanOpen());
    EXPECT_STREQ("NoSuchViewer.dll", state.viewerFile);
}

TEST_F(HelpViewer, ThatIsGoneIsToldToTheHostThatAskedForItWheneverHelpIsAskedFor)
{
    RegisterPath(L"NoSuchViewer.dll");
    EXPECT_FALSE(IsShownByTheUsualViewer());
    EXPECT_TRUE(g_told.empty());
    TellOfMissingHelp(Note);
    EXPECT_FALSE(IsShownByTheUsualViewer());
    EXPECT_FALSE(IsShownByTheUsualViewer());
    EXPECT_EQ((std::vector<std::string>(2, "no viewer, no file")), g_told);
    TellOfMissingHelp(nullptr);
    EXPECT_FALSE(IsShownByTheUsualViewer());
    EXPECT_EQ(2u, g_told.size());
}

TEST_F(HelpViewer, IsNotAskedForAFileOfWhichTheHostIsToldThatItIsMissing)
{
    TellOfMissingHelp(Note);
    {
        const HelpFile file;
        EXPECT_TRUE(IsShownByTheUsualViewer());
        EXPECT_TRUE(g_told.empty());
    }
    CDefs3xPage page;
    OpenSheet sheet({&page});
    TopicShownFor(sheet.Page(), 0);
    EXPECT_EQ(std::vector<std::string>{"viewer, no file"}, g_told);
    TellOfMissingHelp(nullptr);
}

} // namespace
