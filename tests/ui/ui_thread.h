// The user-interface thread of the program under test. Test bodies run on the main thread and act as the person at
// the screen; everything that the product does runs here, as it does in its host.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include <windows.h>

namespace ui {

/// Time that a condition gets before the test gives up on it.
constexpr DWORD kLimitMilliseconds = 20000;

/// Waits until `condition` holds. False when the limit is over.
bool WaitUntil(const std::function<bool()>& condition, DWORD limitMilliseconds = kLimitMilliseconds);

class UiThread {
public:
    /// The one user-interface thread of the process, started on first use.
    static UiThread& Get();

    /// Runs `work` on the thread and waits for its end, inside whatever modal loop is running there.
    void Call(const std::function<void()>& work);
    /// Runs `work` on the thread without waiting: for what opens a modal window.
    void Start(const std::function<void()>& work);
    /// Waits until the work given to Start, and whatever it opened, has ended.
    bool WaitForStarted();
    /// Waits until everything posted to the thread before has been handled, keystrokes and clicks included.
    void Settle();
    DWORD Id() const { return m_id; }

private:
    UiThread();
    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
    DWORD m_id = 0;
    HANDLE m_ready = nullptr;
    volatile LONG m_started = 0;
};

/// The value of an expression on the user-interface thread.
template <class Work> auto On(Work work)
{
    decltype(work()) result{};
    UiThread::Get().Call([&] { result = work(); });
    return result;
}

} // namespace ui
