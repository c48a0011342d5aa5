#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "ui/ui_thread.h"

namespace {

const SettingsLocations& Locations()
{
    return GetSettingsLocations();
}

std::string Upper(std::string text)
{
    CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

class SettingsLocation : public testing::Test {
protected:
    void HostSettings(const std::string& text)
    {
        WriteWholeFile(host.hostSettings, text);
        host.Initialize();
    }

    void Core(const std::string& text)
    {
        WriteWholeFile(host.coreFile, text);
        host.Initialize();
    }

    HostFolder host;
};

TEST_F(SettingsLocation, TheHostFolderIsTheProgramsAndEndsInASeparator)
{
    EXPECT_EQ(ProgramFolder(), Locations().hostFolder.view());
}

TEST_F(SettingsLocation, TheHostDefaultsFileKeepsTheDoubledSeparator)
{
    EXPECT_EQ(ProgramFolder() + "\\Def\\TORVEX.INI", Locations().hostDefaultsFile.view());
}

TEST_F(SettingsLocation, WithoutAPathInTheCoreFileTheCoreFileHoldsTheHostSettings)
{
    Core("[DefaultPath]\r\nNCDefaultPath=Q:\\NC\r\n[DefaultSystemFile]\r\nToolLib=Mine.dll\r\n");
    EXPECT_EQ(ProgramFolder() + "TORVEXCore.INI", Locations().hostSettingsFile.view());
    EXPECT_EQ("Q:\\NC\\CURRENT.INI", Locations().settingsFile.view());
    EXPECT_EQ("Mine.dll", Locations().toolLibraryName.view());
}

TEST_F(SettingsLocation, APathInTheCoreFileNamesTheFolderOfTheHostSettings)
{
    WriteWholeFile(host.folder + "\\TORVEXCore.ini", "[DefaultSystemFile]\r\nToolLib=ShopTools.dll\r\n");
    Core("[DefaultPath]\r\nTorvexIniPath=" + host.folder + "\r\n[DefaultSystemFile]\r\nToolLib=Other.dll\r\n");
    EXPECT_EQ(host.folder + "\\TORVEX.ini", Locations().hostSettingsFile.view());
    EXPECT_EQ("ShopTools.dll", Locations().toolLibraryName.view());
}

TEST_F(SettingsLocation, WithoutAnyKeyEveryFallbackHolds)
{
    HostSettings("");
    EXPECT_EQ(".\\NCDEFAULT\\CURRENT.INI", Locations().settingsFile.view());
    EXPECT_EQ(".\\NCDEFAULT\\DEFAULT.INI", Locations().defaultsFile.view());
    EXPECT_EQ("ToolLib.DLL", Locations().toolLibraryName.view());
}

TEST_F(SettingsLocation, TheStartupKeyNamesTheKeyOfTheSettingsFile)
{
    HostSettings("[DefaultPath]\r\nNCDefaultPath=D:\\NC\r\n[DefaultNCParameter]\r\nNCDefaultStartup=Job2\r\n"
                 "[NCDefaultFile]\r\nNCCurrentFileName=J1.INI\r\nJob2=J2.INI\r\nNCDefaultFileName=D2.INI\r\n");
    EXPECT_EQ("D:\\NC\\J2.INI", Locations().settingsFile.view());
    EXPECT_EQ("D:\\NC\\D2.INI", Locations().defaultsFile.view());
}

TEST_F(SettingsLocation, AStartupKeyThatNamesNoFileYieldsTheUsualOne)
{
    HostSettings("[DefaultPath]\r\nNCDefaultPath=D:\\NC\r\n[DefaultNCParameter]\r\nNCDefaultStartup=Gone\r\n"
                 "[NCDefaultFile]\r\nNCCurrentFileName=J1.INI\r\n");
    EXPECT_EQ("D:\\NC\\CURRENT.INI", Locations().settingsFile.view());
}

TEST_F(SettingsLocation, TheHelpFileStandsBesideAHostOfTheRightNameAndOnTheCurrentDriveOtherwise)
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program = Upper(path);
    const size_t found = program.find("\\TORVEX.EXE");
    const std::string folder = found == std::string::npos ? "" : program.substr(0, found);
    EXPECT_EQ(folder + "\\Help\\TORVEX.chm", Locations().helpFile.view());
}

TEST_F(SettingsLocation, TheHelpFileIsReadWholeWhileThreadsComeAndGo)
{
    const std::string whole(Locations().helpFile.view());
    std::atomic<bool> isOver = false;
    std::atomic<int> read = 0;
    std::atomic<int> different = 0;
    std::thread reader([&] {
        for (; !isOver; ++read)
            different += whole != Locations().helpFile.c_str();
    });
    for (int come = 0; come < 600; ++come)
        std::thread([] {}).join();
    isOver = true;
    reader.join();
    EXPECT_GT(read, 0);
    EXPECT_EQ(0, different) << "of " << read;
}

TEST_F(SettingsLocation, NoValueHoweverLongLeavesItsBuffer)
{
    const std::string longText(5000, 'L');
    HostSettings("[DefaultPath]\r\nNCDefaultPath=" + longText + "\r\nMachSimPath=" + longText +
                 "\r\nMachSimIniPath=" + longText + "\r\n[DefaultNCParameter]\r\nNCDefaultStartup=" + longText +
                 "\r\n[NCDefaultFile]\r\nNCCurrentFileName=" + longText + "\r\nNCDefaultFileName=" + longText + "\r\n");
    EXPECT_EQ(std::string(1283, 'L'), Locations().settingsFile.view());
    EXPECT_EQ(std::string(1283, 'L'), Locations().defaultsFile.view());

    WriteWholeFile(host.folder + "\\TORVEXCore.ini", "[DefaultSystemFile]\r\nToolLib=" + longText + "\r\n");
    EXPECT_EQ(0, host.Initialize());
    EXPECT_EQ(std::string(1283, 'L'), Locations().toolLibraryName.view());

    Core("[DefaultPath]\r\nTorvexIniPath=" + longText + "\r\n");
    EXPECT_EQ(std::string(511, 'L') + "\\TORVEX.ini", Locations().hostSettingsFile.view());
    EXPECT_EQ(".\\NCDEFAULT\\CURRENT.INI", Locations().settingsFile.view());
}

class MachineSimulation : public SettingsLocation {
protected:
    /// What becomes of a start-up machine when the simulation moves to a folder.
    std::string Moved(const std::string& machine, const char* folder)
    {
        WriteWholeFile(host.coreFile, "[DefaultPath]\r\nTorvexIniPath=" + host.folder +
                                          "\r\n[startup]\r\nmdfilename=" + machine + "\r\n");
        ui::UiThread::Get().Call([&] { PelmarUI_SetMachineSimPath(folder); });
        return Value(host.coreFile, "startup", "mdfilename");
    }
};

TEST_F(MachineSimulation, MovesTheMachineIntoAFolderOfItsNameWithDoubledSeparators)
{
    EXPECT_EQ("E:\\MS\\\\Lathe\\\\Lathe.xml", Moved("C:\\Sim\\Lathe.xml", "E:\\MS"));
    EXPECT_EQ("folder\\\\Mill\\\\Mill.xml", Moved("C:\\m\\Mill.xml", "folder"));
}

TEST_F(MachineSimulation, WithoutAMachineItIsTheGenericOne)
{
    EXPECT_EQ("E:\\MS\\3AxGeneric\\3AxGeneric.xml", Moved("", "E:\\MS"));
    EXPECT_EQ("E:\\MS\\3AxGeneric\\3AxGeneric.xml", Moved("Lathe.xml", "E:\\MS"));
    EXPECT_EQ("E:\\MS\\3AxGeneric\\3AxGeneric.xml", Moved("\\Lathe.xml", "E:\\MS"));
}

TEST_F(MachineSimulation, ALastPieceShorterThanAnExtensionHasNoStem)
{
    EXPECT_EQ("E:\\MS\\\\\\a", Moved("C:\\a", "E:\\MS"));
    EXPECT_EQ("E:\\MS\\\\\\", Moved("C:\\Sim\\", "E:\\MS"));
    EXPECT_EQ("E:\\MS\\\\\\abc", Moved("C:\\abc", "E:\\MS"));
    EXPECT_EQ("E:\\MS\\\\\\\\abcd", Moved("C:\\abcd", "E:\\MS"));
}

TEST_F(MachineSimulation, ANullFolderCountsAsTheEmptyText)
{
    EXPECT_EQ("\\3AxGeneric\\3AxGeneric.xml", Moved("", nullptr));
}

TEST_F(MachineSimulation, AnOverlongMachineIsCutAtTheBuffer)
{
    const std::string tail(3000, 't');
    const std::string moved = Moved("C:\\S\\" + tail, "E:\\MS");
    EXPECT_EQ("E:\\MS\\\\" + std::string(1278 - 4, 't') + "\\\\" + std::string(1278, 't'), moved);
}

TEST_F(MachineSimulation, TheStartupFileMayStandElsewhere)
{
    const std::string file = host.folder + "\\sim.ini";
    WriteWholeFile(file, "[startup]\r\nmdfilename=C:\\m\\Mill.xml\r\n");
    WriteWholeFile(host.coreFile, "[DefaultPath]\r\nTorvexIniPath=" + host.folder + "\r\n");
    HostSettings("[DefaultPath]\r\nMachSimIniPath=" + file + "\r\nMachSimPath=F:\\Sim\r\n");
    EXPECT_EQ("F:\\Sim\\\\Mill\\\\Mill.xml", Value(file, "startup", "mdfilename"));
    EXPECT_EQ("<absent>", Value(host.coreFile, "startup", "mdfilename"));
}

TEST_F(MachineSimulation, InitialisingWithoutAFolderTakesTheGenericMachineAsTheFolder)
{
    Core("[DefaultPath]\r\nTorvexIniPath=" + host.folder + "\r\n");
    EXPECT_EQ("\\3AxGeneric\\3AxGeneric.xml\\3AxGeneric\\3AxGeneric.xml",
              Value(host.coreFile, "startup", "mdfilename"));
}

} // namespace
