#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "ui/ui_thread.h"

namespace {

/// How often a tool library has been told to close its files since the last reset.
size_t TimesClosed()
{
    char closed[64] = {};
    GetEnvironmentVariableA("PELMAR_TEST_CLOSED", closed, sizeof closed);
    return strlen(closed);
}

bool IsLoaded(const char* library)
{
    return GetModuleHandleA(library) != nullptr;
}

class ToolLibraryLoading : public testing::Test {
protected:
    ToolLibraryLoading() { SetEnvironmentVariableA("PELMAR_TEST_CLOSED", nullptr); }

    int InitializeWith(const std::string& library)
    {
        WriteWholeFile(host.folder + "\\TORVEXCore.ini", "[DefaultSystemFile]\r\nToolLib=" + library + "\r\n");
        return host.Initialize();
    }

    HostFolder host;
};

TEST_F(ToolLibraryLoading, SucceedsWhenEveryEntryPointIsThere)
{
    EXPECT_EQ(1, InitializeWith("CompleteToolLib.dll"));
    EXPECT_TRUE(IsLoaded("CompleteToolLib.dll"));
}

TEST_F(ToolLibraryLoading, FailsWithoutAMessageWhenTheLibraryIsMissingAndTheLocationsHold)
{
    EXPECT_EQ(0, InitializeWith("NoSuchToolLib.dll"));
    EXPECT_EQ("NoSuchToolLib.dll", GetSettingsLocations().toolLibraryName.view());
    EXPECT_EQ(host.settings, GetSettingsLocations().settingsFile.view());
}

TEST_F(ToolLibraryLoading, FailsAtTheFirstMissingEntryPointAndKeepsTheHandle)
{
    EXPECT_EQ(0, InitializeWith("ToolLibWithoutMaterial.dll"));
    EXPECT_TRUE(IsLoaded("ToolLibWithoutMaterial.dll"));
    FinalizePelmarDlgsDLL();
    EXPECT_FALSE(IsLoaded("ToolLibWithoutMaterial.dll"));
}

TEST_F(ToolLibraryLoading, FinalizingClosesAndFreesTheLibraryOnce)
{
    InitializeWith("CompleteToolLib.dll");
    FinalizePelmarDlgsDLL();
    EXPECT_EQ(1u, TimesClosed());
    EXPECT_FALSE(IsLoaded("CompleteToolLib.dll"));
    FinalizePelmarDlgsDLL();
    EXPECT_EQ(1u, TimesClosed());
}

TEST_F(ToolLibraryLoading, InitializingAgainKeepsOneReferenceToTheLibrary)
{
    InitializeWith("CompleteToolLib.dll");
    EXPECT_EQ(1, host.Initialize());
    EXPECT_EQ(0u, TimesClosed());
    FinalizePelmarDlgsDLL();
    EXPECT_FALSE(IsLoaded("CompleteToolLib.dll"));
}

TEST_F(ToolLibraryLoading, AnotherLibraryTakesTheFirstOnesPlace)
{
    InitializeWith("CompleteToolLib.dll");
    EXPECT_EQ(0, InitializeWith("ToolLibWithoutSetUnits.dll"));
    EXPECT_EQ(1u, TimesClosed());
    EXPECT_FALSE(IsLoaded("CompleteToolLib.dll"));
    EXPECT_TRUE(IsLoaded("ToolLibWithoutSetUnits.dll"));
}

TEST(Library, JoinsTheResourceChainOfItsHost)
{
    CDynLinkLibrary* const library = ui::On([] { return InitPelmarDlgsDLL(); });
    ASSERT_NE(nullptr, library);
    CString text;
    EXPECT_TRUE(text.LoadString(8047));
    EXPECT_STREQ(L"Вы изменили параметры, требующие перезагрузки программы Torvex.  Нажмите \"ДА\" чтобы изменения "
                 L"вступили в силу при следующем запуске Torvex.  Нажмите \"НЕТ\" для отмены.",
                 text.GetString());
}

TEST(Library, ExportsItsPlainFunctionsUnderTheirOwnNames)
{
    const HMODULE module = GetModuleHandleA("PelmarDlgs.dll");
    for (const char* name :
         {"InitPelmarDlgsDLL", "InitializePelmarDlgsDLL", "FinalizePelmarDlgsDLL", "PelmarUI_SetMachineSimPath"})
        EXPECT_NE(nullptr, GetProcAddress(module, name)) << name;
}

} // namespace
