// Stands in for the system's help viewer: records the file and the topic that it was asked to show.
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
