#include "monkey.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include <prsht.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

namespace proof {
namespace {

constexpr size_t kRemembered = 20;

const wchar_t* const kTexts[] = {
    L"0",    L"1",  L"-1",    L"1/8+0.02",  L"45",          L"135",     L"0.001", L"",   L"abc", L"1/0",
    L"2*(3", L"7=", L"1.5e3", L"1.0e308*9", L"99999999999", L"0.00001", L"90",    L"31", L"x=",  L"((((((1))))))=",
};

int NumberOf(const char* variable, int otherwise)
{
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : otherwise;
}

bool CanBeUsed(HWND control)
{
    return IsWindowVisible(control) && IsWindowEnabled(control);
}

/// The window that has to be dealt with before `window` can be used again. A window that closes may ask something when
/// it is no longer to be seen; what it asks then is nobody's popup.
HWND InFrontOf(HWND window)
{
    if (!IsWindowVisible(window))
        for (const HWND other : ui::TopLevelWindows())
            if (other != window && CanBeUsed(other))
                return other;
    HWND front = GetLastActivePopup(window);
    while (front && GetLastActivePopup(front) != front)
        front = GetLastActivePopup(front);
    return front;
}

} // namespace

unsigned MonkeySeed()
{
    return static_cast<unsigned>(NumberOf("PELMAR_MONKEY_SEED", 1));
}

int MonkeyActions()
{
    return NumberOf("PELMAR_MONKEY_ACTIONS", 10000);
}

int Monkey::Below(int limit)
{
    return static_cast<int>(m_random() % static_cast<unsigned>(limit));
}

void Monkey::Note(const std::string& action)
{
    m_last.push_back(std::to_string(m_done) + ": " + action);
    if (m_last.size() > kRemembered)
        m_last.pop_front();
}

std::string Monkey::LastActions() const
{
    std::string text;
    for (const std::string& action : m_last)
        text += action + "\n";
    return text;
}

void Monkey::Play(int actions)
{
    for (m_done = 0; m_done < actions; ++m_done) {
        if (!IsWindow(m_window)) {
            m_window = m_playground.open();
            Note("open");
        }
        Act();
        AnswerWhatIsAsked();
        if (!IsWindow(m_window))
            m_playground.closed();
    }
    if (!m_playground.buttons.empty())
        Close();
}

void Monkey::Close()
{
    constexpr int kTries = 20;
    for (int attempt = 0; attempt < kTries && IsWindow(m_window); ++attempt) {
        PostMessage(m_window, WM_COMMAND, IDCANCEL, 0);
        AnswerWhatIsAsked();
    }
    if (IsWindow(m_window))
        throw std::runtime_error("the window does not close");
    m_playground.closed();
}

void Monkey::Act()
{
    const HWND dialog = m_playground.controlsOf(m_window);
    const int choice = Below(100);
    if (choice == 0 && !m_playground.buttons.empty()) {
        const int button =
            m_playground.buttons[static_cast<size_t>(Below(static_cast<int>(m_playground.buttons.size())))];
        Note("button " + std::to_string(button));
        PostMessage(m_window, WM_COMMAND, static_cast<WPARAM>(button),
                    reinterpret_cast<LPARAM>(GetDlgItem(m_window, button)));
    } else if (choice < 8 && m_playground.pages > 1) {
        const int page = Below(m_playground.pages);
        Note("page " + std::to_string(page));
        PostMessage(m_window, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
    } else if (choice < 10 && !m_playground.messages.empty()) {
        const UINT message =
            m_playground.messages[static_cast<size_t>(Below(static_cast<int>(m_playground.messages.size())))];
        Note("message " + std::to_string(message));
        PostMessage(dialog, message, 0, 0);
    } else if (choice < 14) {
        Note("tab");
        PostMessage(dialog, WM_NEXTDLGCTL, static_cast<WPARAM>(Below(2)), FALSE);
    } else {
        const std::vector<HWND> controls = ui::Children(dialog);
        if (!controls.empty())
            ActOnControl(dialog, controls[static_cast<size_t>(Below(static_cast<int>(controls.size())))]);
    }
    ui::UiThread::Get().Settle();
}

void Monkey::ActOnControl(HWND dialog, HWND control)
{
    const int id = GetDlgCtrlID(control);
    if (!CanBeUsed(control) || std::ranges::find(m_playground.avoided, id) != m_playground.avoided.end())
        return;
    const std::wstring name = ui::ClassOf(control);
    if (name == L"Edit") {
        const int text = Below(static_cast<int>(std::size(kTexts)));
        Note("type text " + std::to_string(text) + " into " + std::to_string(id));
        PostMessage(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        PostMessage(control, EM_SETSEL, 0, -1);
        PostMessage(control, WM_CHAR, VK_BACK, 1);
        for (const wchar_t* character = kTexts[text]; *character; ++character)
            PostMessage(control, WM_CHAR, *character, 1);
    } else if (name == L"ComboBox") {
        const auto count = static_cast<int>(SendMessage(control, CB_GETCOUNT, 0, 0));
        const int item = Below(count + 1) - 1;
        Note("choose " + std::to_string(item) + " of " + std::to_string(id));
        PostMessage(control, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
        PostMessage(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(control));
    } else if (name == L"Button") {
        Note("click " + std::to_string(id));
        PostMessage(control, BM_CLICK, 0, 0);
    }
}

bool Monkey::IsSomethingAsked() const
{
    return IsWindow(m_window) && !CanBeUsed(m_window);
}

/// Answers boxes and dialogs that have come up over the window, with whatever button.
void Monkey::AnswerWhatIsAsked()
{
    constexpr int kTries = 200;
    ui::UiThread::Get().Settle();
    for (int attempt = 0; attempt < kTries && IsSomethingAsked(); ++attempt) {
        const HWND front = InFrontOf(m_window);
        std::vector<int> answers;
        for (const int id : {IDOK, IDCANCEL, IDYES, IDNO})
            if (const HWND button = GetDlgItem(front, id); button && CanBeUsed(button))
                answers.push_back(id);
        if (front != m_window && !answers.empty()) {
            const int answer = answers[static_cast<size_t>(Below(static_cast<int>(answers.size())))];
            Note("answer " + std::to_string(answer));
            PostMessage(front, WM_COMMAND, static_cast<WPARAM>(answer),
                        reinterpret_cast<LPARAM>(GetDlgItem(front, answer)));
        }
        ui::UiThread::Get().Settle();
    }
    if (IsSomethingAsked())
        throw std::runtime_error("something stays open over the window");
}

} // namespace proof
