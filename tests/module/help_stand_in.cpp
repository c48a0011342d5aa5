// Stands in for the system's help viewer: records the file and the topic that it was asked to show. For a program that
// is watched from outside it also writes them, a line each, into the file that PELMAR_TEST_HELP_LOG names.
#include <cstdlib>
#include <fstream>
#include <string>

#include <windows.h>

namespace {
std::string g_file;
std::string g_topic;
} // namespace

extern "C" __declspec(dllexport) HWND WINAPI HtmlHelpA(HWND, const char* file, UINT command, DWORD_PTR data)
{
    constexpr UINT kDisplayTopic = 0;
    g_file = file;
    g_topic = command == kDisplayTopic ? reinterpret_cast<const char*>(data) : "<another command>";
    if (const char* const log = std::getenv("PELMAR_TEST_HELP_LOG"))
        std::ofstream(log, std::ios::app | std::ios::binary) << g_file << "\n" << g_topic << "\n";
    return nullptr;
}

extern "C" __declspec(dllexport) const char* HelpStandIn_File()
{
    return g_file.c_str();
}

extern "C" __declspec(dllexport) const char* HelpStandIn_Topic()
{
    return g_topic.c_str();
}
