// The reference host, started as a program of its own in a folder of its own and used from outside.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include "host/torvex/resource.h"
#include "resources/resource.h"
#include "ui/person.h"
#include "ui/process.h"
#include "ui/ui_thread.h"

namespace fs = std::filesystem;

constexpr int kApplyButton = 0x3021;

constexpr wchar_t kInchSheet[] = L"Параметры ЧПУ (дюймы)";
constexpr wchar_t kMillimetreSheet[] = L"Параметры ЧПУ (миллиметры)";
constexpr wchar_t kNcDefaults[] = L"Параметры ЧПУ";
constexpr wchar_t kDefaultTools[] = L"Параметры ЧПУ > Сервис";

// The tool library's list.
constexpr wchar_t kInchMills[] = L"Выбор инструмента - фрезы (дюймы)";
constexpr int kToolList = 101;
constexpr int kOnlyBallTools = 102;

/// A program that lets nobody else have a file, until it ends.
class OccupiedFile {
public:
    explicit OccupiedFile(const fs::path& file)
        : m_handle(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(INVALID_HANDLE_VALUE, m_handle);
    }
    ~OccupiedFile() { CloseHandle(m_handle); }
    OccupiedFile(const OccupiedFile&) = delete;
    OccupiedFile& operator=(const OccupiedFile&) = delete;

private:
    HANDLE m_handle;
};

/// A folder that is out of reach for a while, as a share is.
class AbsentFolder {
public:
    explicit AbsentFolder(const fs::path& folder) : m_folder(folder), m_elsewhere(folder.wstring() + L".away")
    {
        fs::rename(m_folder, m_elsewhere);
    }
    ~AbsentFolder() { fs::rename(m_elsewhere, m_folder); }
    AbsentFolder(const AbsentFolder&) = delete;
    AbsentFolder& operator=(const AbsentFolder&) = delete;

private:
    fs::path m_folder;
    fs::path m_elsewhere;
};

/// Room in the memory of another program for what its windows read and write by address.
class RemoteItem {
public:
    explicit RemoteItem(HANDLE process)
        : m_process(process),
          m_memory(VirtualAllocEx(process, nullptr, sizeof(LVITEMW) + sizeof m_text, MEM_COMMIT, PAGE_READWRITE))
    {
    }
    ~RemoteItem() { VirtualFreeEx(m_process, m_memory, 0, MEM_RELEASE); }
    RemoteItem(const RemoteItem&) = delete;
    RemoteItem& operator=(const RemoteItem&) = delete;

    std::wstring Cell(HWND list, int row, int column)
    {
        char* const text = static_cast<char*>(m_memory) + sizeof(LVITEMW);
        LVITEMW item{};
        item.iSubItem = column;
        item.cchTextMax = static_cast<int>(std::size(m_text));
        item.pszText = reinterpret_cast<LPWSTR>(text);
        EXPECT_TRUE(WriteProcessMemory(m_process, m_memory, &item, sizeof item, nullptr));
        SendMessage(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(m_memory));
        EXPECT_TRUE(ReadProcessMemory(m_process, text, m_text, sizeof m_text, nullptr));
        return m_text;
    }

private:
    HANDLE m_process;
    void* m_memory;
    wchar_t m_text[200] = L"";
};

/// A folder with the host and its libraries, and the program running there.
class Torvex : public testing::Test {
protected:
    void SetUp() override
    {
        static int number = 0;
        const std::string name = std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number);
        m_folder = fs::temp_directory_path() / ("torvex-test-" + name);
        fs::remove_all(m_folder);
        fs::create_directory(m_folder);
        wchar_t self[MAX_PATH];
        GetModuleFileName(nullptr, self, MAX_PATH);
        for (const fs::directory_entry& file : fs::directory_iterator(fs::path(self).parent_path()))
            if (file.path().extension() == L".dll" || file.path().filename() == L"TORVEX.EXE")
                fs::copy_file(file.path(), m_folder / file.path().filename());
    }
    void TearDown() override
    {
        End();
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    /// Starts the program from another current directory than its own.
    void Launch()
    {
        m_process = ui::StartProcess((m_folder / L"TORVEX.EXE").wstring(), L"C:\\");
        ASSERT_TRUE(m_process.hProcess);
        CloseHandle(m_process.hThread);
    }
    void Start()
    {
        Launch();
        m_main = ui::WaitForWindow(L"TORVEX", m_process.dwProcessId);
    }
    /// Closes the program as a user does; 0 when it ended well.
    DWORD Close()
    {
        PostMessage(m_main, WM_CLOSE, 0, 0);
        DWORD code = STILL_ACTIVE;
        if (WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds) == WAIT_OBJECT_0)
            GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }
    void End()
    {
        if (!m_process.hProcess)
            return;
        TerminateProcess(m_process.hProcess, 1);
        WaitForSingleObject(m_process.hProcess, ui::kLimitMilliseconds);
        CloseHandle(m_process.hProcess);
        m_process = {};
    }

    void Command(UINT id) { PostMessage(m_main, WM_COMMAND, id, 0); }
    void OpenOptions(const wchar_t* title = kInchSheet, UINT command = ID_NC_OPTIONS)
    {
        Command(command);
        m_sheet = ui::WaitForWindow(title, m_process.dwProcessId);
        FindPage();
    }
    /// Turns to the page that is made from a template.
    void ShowPage(int templateId)
    {
        SendMessage(m_sheet, PSM_SETCURSELID, 0, templateId);
        FindPage();
    }
    /// Opens one of the dialogs of the NC settings from the menu.
    HWND OpenDialog(UINT command, const wchar_t* title)
    {
        Command(command);
        return ui::WaitForWindow(title, m_process.dwProcessId);
    }
    /// Presses OK; with an answer, the question about a restart comes first.
    void Accept(HWND dialog, int answer = 0)
    {
        ui::Click(dialog, IDOK);
        if (answer)
            ui::Answer(ui::WaitForBox(m_process.dwProcessId), answer);
        ASSERT_TRUE(ui::WaitForClose(dialog));
    }
    /// What the program says after its restart.
    std::wstring Restart()
    {
        Command(ID_FILE_RESTART);
        const ui::MessageBoxSeen box = ui::WaitForBox(m_process.dwProcessId);
        ui::Answer(box, IDOK);
        return box.text;
    }
    std::string HostText() const
    {
        std::ifstream file(m_folder / L"TORVEXCore.INI", std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }

    HWND OpenNcDefaults() { return OpenDialog(ID_NC_DEFAULTS, kNcDefaults); }
    HWND OpenDefaultTools() { return OpenDialog(ID_NC_DEFAULT_TOOLS, kDefaultTools); }
    void Cancel(HWND dialog)
    {
        ui::Click(dialog, IDCANCEL);
        ASSERT_TRUE(ui::WaitForClose(dialog));
    }
    /// Ends the program as a user does, and starts it again.
    void StartAgain()
    {
        EXPECT_EQ(0u, Close());
        End();
        Start();
    }
    /// The list that a button of the default tools opens.
    HWND OpenToolList(HWND tools, int button, const wchar_t* title)
    {
        ui::Click(tools, button);
        return ui::WaitForWindow(title, m_process.dwProcessId);
    }
    std::vector<std::wstring> ToolsIn(HWND list)
    {
        const HWND view = ui::Control(list, kToolList);
        RemoteItem item(m_process.hProcess);
        std::vector<std::wstring> ids;
        for (int row = 0; row < ListView_GetItemCount(view); ++row)
            ids.push_back(item.Cell(view, row, 0));
        return ids;
    }
    bool ComesToShow(HWND dialog, int id, const std::wstring& text)
    {
        return ui::WaitUntil([&] { return ui::TextOf(dialog, id) == text; });
    }
    void WriteNcFile(const wchar_t* name, const std::string& text)
    {
        fs::create_directory(NcFile().parent_path());
        std::ofstream(NcFile().parent_path() / name, std::ios::binary) << text;
    }

    void FindPage()
    {
        m_page = nullptr;
        for (const HWND child : ui::Children(m_sheet))
            if (ui::ClassOf(child) == L"#32770" && IsWindowVisible(child))
                m_page = child;
        ASSERT_NE(nullptr, m_page);
    }
    HWND OpenRotaryDialog()
    {
        ui::Click(m_page, IDC_MX_ROTARY_OPTIONS);
        return ui::WaitForWindow(L"Параметры осей поворота", m_process.dwProcessId);
    }
    void CloseOptions(int button)
    {
        ui::Click(m_sheet, button);
        ASSERT_TRUE(ui::WaitForClose(m_sheet));
    }
    void Type(int id, const std::wstring& text)
    {
        ui::Type(m_page, id, text);
        ASSERT_TRUE(ui::WaitUntil([&] { return ui::TextOf(m_page, id) == text; }));
    }
    bool ComesToHold(int id, const std::wstring& text)
    {
        return ui::WaitUntil([&] { return ui::TextOf(m_page, id) == text; });
    }

    fs::path NcFile() const { return m_folder / L"NCDEFAULT" / L"CURRENT.INI"; }
    std::string NcText() const
    {
        std::ifstream file(NcFile(), std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }
    bool ComesToWrite(const std::string& line)
    {
        return ui::WaitUntil([&] { return NcText().find("\r\n" + line + "\r\n") != std::string::npos; });
    }

    fs::path m_folder;
    PROCESS_INFORMATION m_process{};
    HWND m_main = nullptr;
    HWND m_sheet = nullptr;
    HWND m_page = nullptr;
};
