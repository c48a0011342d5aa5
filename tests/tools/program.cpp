#include "program.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "option_pages.h"
#include "review/settings_text.h"
#include "ui/process.h"

namespace tool_testing {
namespace {

namespace fs = std::filesystem;

std::wstring Wide(std::string_view utf8)
{
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

/// By the rules of CommandLineToArgvW.
std::wstring Quoted(const std::wstring& word)
{
    std::wstring quoted = L"\"";
    std::size_t slashes = 0;
    for (const wchar_t letter : word) {
        slashes = letter == L'\\' ? slashes + 1 : 0;
        if (letter == L'"')
            quoted += L'\\';
        quoted += letter;
    }
    return quoted + std::wstring(slashes, L'\\') + L"\"";
}

class Handle {
public:
    Handle() = default;
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE Get() const { return m_handle; }
    HANDLE* Place() { return &m_handle; }
    void Close()
    {
        if (m_handle && m_handle != INVALID_HANDLE_VALUE)
            CloseHandle(m_handle);
        m_handle = nullptr;
    }

private:
    HANDLE m_handle = nullptr;
};

SECURITY_ATTRIBUTES Inherited()
{
    return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

std::string WithLineFeeds(const std::string& text)
{
    std::string plain;
    for (const char letter : text)
        if (letter != '\r')
            plain += letter;
    return plain;
}

std::string ReadToEnd(HANDLE pipe)
{
    std::string text;
    char part[4096];
    DWORD read = 0;
    while (ReadFile(pipe, part, sizeof part, &read, nullptr) && read > 0)
        text.append(part, read);
    return text;
}

} // namespace

std::wstring CommandLineOf(const std::vector<std::string>& words)
{
    std::wstring line = Quoted(Wide(ProgramFolder() + "PelmarSettings.exe"));
    for (const std::string& word : words)
        line += L" " + Quoted(Wide(word));
    return line;
}

Folder::Folder()
{
    static int made = 0;
    m_path = ProgramFolder() + "tool" + std::to_string(made++);
    fs::create_directories(m_path);
}

Folder::~Folder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void Folder::Write(std::string_view name, std::string_view bytes) const
{
    WriteWholeFile(Path(name), std::string(bytes));
}

std::string Folder::Read(std::string_view name) const
{
    return ReadWholeFile(Path(name));
}

std::size_t Folder::Count() const
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_path), fs::directory_iterator()));
}

Answer Folder::Run(const std::vector<std::string>& words) const
{
    SECURITY_ATTRIBUTES inherited = Inherited();
    const std::string errorFile = m_path + ".error";
    Handle ours;
    Handle out;
    CreatePipe(ours.Place(), out.Place(), &inherited, 0);
    SetHandleInformation(ours.Get(), HANDLE_FLAG_INHERIT, 0);
    Handle error(CreateFileA(errorFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr));
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = out.Get();
    startup.hStdError = error.Get();
    const PROCESS_INFORMATION process =
        ui::StartProcess(CommandLineOf(words), Wide(m_path).c_str(), ui::Inherits::Handles, startup);
    if (!process.hProcess)
        return {};
    const Handle thread(process.hThread);
    const Handle itself(process.hProcess);
    out.Close();
    error.Close();
    Answer answer;
    answer.out = WithLineFeeds(ReadToEnd(ours.Get()));
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &answer.status);
    answer.error = WithLineFeeds(ReadWholeFile(errorFile));
    fs::remove(errorFile);
    return answer;
}

PROCESS_INFORMATION Folder::Start(const std::vector<std::string>& words) const
{
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    return ui::StartProcess(CommandLineOf(words), Wide(m_path).c_str(), ui::Inherits::Nothing, startup);
}

std::map<std::string, std::string> ValuesIn(std::string_view bytes)
{
    std::map<std::string, std::string> values;
    const pelmar::review::SettingsText text{std::string(bytes)};
    for (const pelmar::review::TextLine& line : text.Lines())
        if (line.kind == pelmar::review::TextLine::Kind::Entry)
            values.emplace(std::string(line.section) + "." + std::string(line.key), line.value);
    return values;
}

std::string FactoryFile(int units)
{
    const HostFolder host;
    host.WriteDefaults("");
    host.WriteSettings("");
    for (const OptionPage& page : OptionPages()) {
        page.defaults();
        page.convert(units);
        page.save();
        page.convert(0);
    }
    GetLastSSheetOptions()->vOptions_Defaults();
    vSSheetOptions_Save();
    std::string file = host.ReadSettings();
    if (units != 0) { // the setup sheet is converted by nobody but its dialog
        const std::size_t sheet = file.find("[OptionsSSheet]");
        file.erase(sheet);
    }
    return file;
}

std::string RestoredAndSaved(const std::string& bytes)
{
    const HostFolder host;
    host.WriteSettings(bytes);
    for (const OptionPage& page : OptionPages())
        page.restore();
    vSSheetOptions_Restore();
    host.WriteSettings("");
    for (const OptionPage& page : OptionPages())
        page.save();
    vSSheetOptions_Save();
    return host.ReadSettings();
}

std::string SourceFile(std::string_view name)
{
    const std::string text = ReadWholeFile(PELMAR_SOURCES "/" + std::string(name));
    EXPECT_FALSE(text.empty()) << name;
    return text;
}

} // namespace tool_testing
