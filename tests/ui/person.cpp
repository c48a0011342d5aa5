#include "person.h"

#include <stdexcept>

#include "ui_thread.h"

namespace ui {
namespace {

struct Search {
    DWORD process;
    std::vector<HWND> found;
};

BOOL CALLBACK CollectOfProcess(HWND window, LPARAM parameter)
{
    auto* const search = reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search->process && IsWindowVisible(window))
        search->found.push_back(window);
    return TRUE;
}

BOOL CALLBACK CollectAll(HWND window, LPARAM parameter)
{
    reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

/// A message box holds one text, buttons and perhaps an icon, and nothing else.
bool LooksLikeBox(HWND window)
{
    if (ClassOf(window) != L"#32770")
        return false;
    bool hasText = false;
    bool hasButton = false;
    for (const HWND child : Children(window)) {
        const std::wstring name = ClassOf(child);
        if (name == L"Button")
            hasButton = true;
        else if (name == L"Static")
            hasText = true;
        else
            return false;
    }
    return hasText && hasButton && Children(window).size() <= 6;
}

std::vector<HWND> Boxes(DWORD process)
{
    std::vector<HWND> boxes;
    for (const HWND window : TopLevelWindows(process))
        if (LooksLikeBox(window))
            boxes.push_back(window);
    return boxes;
}

std::string Narrow(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string narrow(text.size() * 3, '\0'); // no UTF-16 unit takes more
    const int size = static_cast<int>(narrow.size());
    narrow.resize(static_cast<size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, narrow.data(), size, nullptr, nullptr)));
    return narrow;
}

} // namespace

std::wstring TextOf(HWND window)
{
    const auto length = static_cast<size_t>(SendMessage(window, WM_GETTEXTLENGTH, 0, 0));
    std::wstring text(length + 1, L'\0');
    text.resize(
        static_cast<size_t>(SendMessage(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[128];
    return std::wstring(name, static_cast<size_t>(GetClassName(window, name, 128)));
}

HWND Control(HWND dialog, int id)
{
    const HWND control = GetDlgItem(dialog, id);
    if (!control)
        throw std::runtime_error("no control " + std::to_string(id));
    return control;
}

std::wstring TextOf(HWND dialog, int id)
{
    return TextOf(Control(dialog, id));
}

bool IsEnabled(HWND dialog, int id)
{
    return IsWindowEnabled(Control(dialog, id));
}

bool IsShown(HWND dialog, int id)
{
    return (GetWindowLong(Control(dialog, id), GWL_STYLE) & WS_VISIBLE) != 0;
}

bool IsChecked(HWND dialog, int id)
{
    return SendMessage(Control(dialog, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int Selection(HWND dialog, int id)
{
    return static_cast<int>(SendMessage(Control(dialog, id), CB_GETCURSEL, 0, 0));
}

std::vector<std::wstring> Items(HWND dialog, int id)
{
    const HWND list = Control(dialog, id);
    std::vector<std::wstring> items;
    const auto count = static_cast<size_t>(SendMessage(list, CB_GETCOUNT, 0, 0));
    for (size_t index = 0; index < count; ++index) {
        std::wstring text(static_cast<size_t>(SendMessage(list, CB_GETLBTEXTLEN, index, 0)) + 1, L'\0');
        text.resize(static_cast<size_t>(SendMessage(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()))));
        items.push_back(text);
    }
    return items;
}

bool IsIn(const RECT& area, DWORD place)
{
    const POINTS point = MAKEPOINTS(place);
    return PtInRect(&area, {point.x, point.y}) != FALSE;
}

HWND Focus(HWND window)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    EnumChildWindows(window, CollectAll, reinterpret_cast<LPARAM>(&children));
    std::erase_if(children, [window](HWND child) { return GetAncestor(child, GA_PARENT) != window; });
    return children;
}

std::vector<HWND> TopLevelWindows(DWORD process)
{
    Search search{process ? process : GetCurrentProcessId(), {}};
    EnumWindows(CollectOfProcess, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND WaitForWindow(const std::wstring& title, DWORD process)
{
    HWND found = nullptr;
    const bool came = WaitUntil([&] {
        for (const HWND window : TopLevelWindows(process))
            if (TextOf(window) == title)
                found = window;
        return found != nullptr;
    });
    if (!came)
        throw std::runtime_error("no window came: " + Narrow(title));
    Settle(found);
    return found;
}

bool WaitForClose(HWND window)
{
    return WaitUntil([&] { return !IsWindow(window); });
}

MessageBoxSeen WaitForBox(DWORD process)
{
    std::vector<HWND> boxes;
    if (!WaitUntil([&] { return !(boxes = Boxes(process)).empty(); }))
        throw std::runtime_error("no message box came");
    MessageBoxSeen seen;
    seen.window = boxes.front();
    Settle(seen.window);
    seen.caption = TextOf(seen.window);
    for (const HWND child : Children(seen.window)) {
        if (!(GetWindowLong(child, GWL_STYLE) & WS_VISIBLE))
            continue;
        if (ClassOf(child) == L"Button")
            seen.buttons.push_back(GetDlgCtrlID(child));
        else if (const auto icon = reinterpret_cast<HICON>(SendMessage(child, STM_GETICON, 0, 0)))
            seen.icon = icon;
        else
            seen.text = TextOf(child);
    }
    return seen;
}

bool IsBoxOpen(DWORD process)
{
    for (const HWND window : TopLevelWindows(process)) {
        Settle(window);
        break;
    }
    return !Boxes(process).empty();
}

namespace {
/// Answers once, from the thread of `window`, when everything posted before it has been handled.
DWORD WINAPI WaitForPosted(HWND window)
{
    DWORD process = 0;
    const DWORD thread = GetWindowThreadProcessId(window, &process);
    if (!thread)
        return 0;
    if (process == GetCurrentProcessId() && thread == UiThread::Get().Id()) {
        UiThread::Get().Settle();
        return 1;
    }
    // Another process: its queue is empty once it waits for input, and posted messages count as input.
    const HANDLE other = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, process);
    if (!other)
        return 0;
    WaitForInputIdle(other, kLimitMilliseconds);
    CloseHandle(other);
    DWORD_PTR ignored = 0;
    SendMessageTimeout(window, WM_NULL, 0, 0, SMTO_NORMAL, kLimitMilliseconds, &ignored);
    return 1;
}
} // namespace

void Settle(HWND window)
{
    WaitForPosted(window);
}

void FocusOn(HWND dialog, int id)
{
    const HWND control = Control(dialog, id);
    PostMessage(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    Settle(dialog);
}

void TypeAt(HWND control, const std::wstring& text)
{
    for (const wchar_t character : text)
        PostMessage(control, WM_CHAR, character, 1);
    Settle(control);
}

void Type(HWND dialog, int id, const std::wstring& text)
{
    FocusOn(dialog, id);
    const HWND control = Control(dialog, id);
    SendMessage(control, EM_SETSEL, 0, -1);
    if (text.empty())
        PostMessage(control, WM_CHAR, VK_BACK, 1);
    TypeAt(control, text);
}

void Press(HWND control, WPARAM key)
{
    PostMessage(control, WM_KEYDOWN, key, 1);
    PostMessage(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Settle(control);
}

void PressF1(HWND control, bool withShift)
{
    constexpr UINT kKeyF1 = 0x004D; // what the system posts when F1 goes down
    constexpr BYTE kDown = 0x80;
    UiThread::Get().Call([&] {
        BYTE before[256];
        GetKeyboardState(before);
        BYTE pressed[256]{};
        pressed[VK_F1] = kDown;
        pressed[VK_SHIFT] = withShift ? kDown : 0;
        SetKeyboardState(pressed);
        SendMessage(control, kKeyF1, 0, 0);
        SetKeyboardState(before);
    });
}

void Click(HWND dialog, int id)
{
    const HWND control = Control(dialog, id);
    const auto canBeClicked = [control] { return IsWindowEnabled(control) && IsWindowVisible(control); };
    DWORD process = 0;
    GetWindowThreadProcessId(control, &process);
    // What another process has been told it may not have done yet.
    const bool isOurs = process == GetCurrentProcessId();
    if (!(isOurs ? canBeClicked() : WaitUntil(canBeClicked)))
        throw std::runtime_error("nobody can click control " + std::to_string(id));
    PostMessage(control, BM_CLICK, 0, 0);
    Settle(dialog);
}

void Choose(HWND dialog, int id, int index)
{
    const HWND list = Control(dialog, id);
    if (!IsWindowEnabled(list))
        throw std::runtime_error("nobody can choose in list " + std::to_string(id));
    SendMessage(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    PostMessage(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    Settle(dialog);
}

void Answer(const MessageBoxSeen& box, int button)
{
    PostMessage(Control(box.window, button), BM_CLICK, 0, 0);
    if (!WaitForClose(box.window))
        throw std::runtime_error("the message box did not close");
    for (const HWND window : TopLevelWindows())
        Settle(window);
}

void DismissBoxes()
{
    constexpr int kMostBoxes = 10;
    for (int count = 0; count < kMostBoxes && !Boxes(0).empty(); ++count) {
        const MessageBoxSeen box = WaitForBox();
        Answer(box, box.buttons.back());
    }
}

bool WaitForCloseWithBoxes(HWND window)
{
    return WaitUntil([window] {
        DismissBoxes();
        return !IsWindow(window);
    });
}

void PointAt(HWND window)
{
    RECT rect;
    GetWindowRect(window, &rect);
    const POINT middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    // The display reports the pointer's earlier moves late, so that it may jump back once.
    const auto isThere = [&] {
        POINT point;
        GetCursorPos(&point);
        return point.x == middle.x && point.y == middle.y;
    };
    const bool settled = WaitUntil([&] {
        SetCursorPos(middle.x, middle.y);
        Settle(window);
        Settle(window);
        return isThere();
    });
    if (!settled)
        throw std::runtime_error("the pointer does not stay where it is put");
}

} // namespace ui
