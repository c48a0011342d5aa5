#include "ui_thread.h"

#include <memory>

namespace ui {
namespace {
constexpr UINT kCall = WM_APP + 1;
constexpr UINT kSettle = WM_APP + 2;

using Work = std::function<void()>;
} // namespace

bool WaitUntil(const std::function<bool()>& condition, DWORD limitMilliseconds)
{
    const ULONGLONG end = GetTickCount64() + limitMilliseconds;
    while (!condition()) {
        if (GetTickCount64() > end)
            return false;
        Sleep(1);
    }
    return true;
}

UiThread& UiThread::Get()
{
    static UiThread thread;
    return thread;
}

UiThread::UiThread()
{
    m_ready = CreateEvent(nullptr, FALSE, FALSE, nullptr);
    const HANDLE thread = CreateThread(nullptr, 0, Run, this, 0, &m_id);
    if (!thread || WaitForSingleObject(m_ready, kLimitMilliseconds) != WAIT_OBJECT_0)
        throw std::runtime_error("the user-interface thread did not start");
    CloseHandle(thread);
}

DWORD WINAPI UiThread::Run(void* self)
{
    auto* const thread = static_cast<UiThread*>(self);
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandle(nullptr);
    windowClass.lpszClassName = L"PelmarUiThread";
    RegisterClass(&windowClass);
    thread->m_window = CreateWindow(windowClass.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                    windowClass.hInstance, nullptr);
    SetEvent(thread->m_ready);
    MSG message;
    while (GetMessage(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return 0;
}

LRESULT CALLBACK UiThread::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kCall) {
        const std::unique_ptr<Work> work(reinterpret_cast<Work*>(lParam));
        (*work)();
        return 0;
    }
    if (message == kSettle) {
        SetEvent(reinterpret_cast<HANDLE>(wParam));
        return 0;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

void UiThread::Call(const Work& work)
{
    if (GetCurrentThreadId() == m_id) {
        work();
        return;
    }
    std::exception_ptr thrown;
    const HANDLE done = CreateEvent(nullptr, TRUE, FALSE, nullptr);
    auto wrapped = std::make_unique<Work>([&] {
        try {
            work();
        } catch (...) {
            thrown = std::current_exception();
        }
        SetEvent(done);
    });
    PostMessage(m_window, kCall, 0, reinterpret_cast<LPARAM>(wrapped.release()));
    // A call that never ends would leave its references dangling; there is nothing left to test then.
    if (WaitForSingleObject(done, 6 * kLimitMilliseconds) != WAIT_OBJECT_0) {
        fprintf(stderr, "the user-interface thread hangs\n");
        TerminateProcess(GetCurrentProcess(), 3);
    }
    CloseHandle(done);
    if (thrown)
        std::rethrow_exception(thrown);
}

void UiThread::Start(const Work& work)
{
    InterlockedIncrement(&m_started);
    auto wrapped = std::make_unique<Work>([this, work] {
        work();
        InterlockedDecrement(&m_started);
    });
    PostMessage(m_window, kCall, 0, reinterpret_cast<LPARAM>(wrapped.release()));
}

bool UiThread::WaitForStarted()
{
    return WaitUntil([this] { return m_started == 0; });
}

void UiThread::Settle()
{
    const HANDLE done = CreateEvent(nullptr, TRUE, FALSE, nullptr);
    PostMessage(m_window, kSettle, reinterpret_cast<WPARAM>(done), 0);
    const DWORD waited = WaitForSingleObject(done, kLimitMilliseconds);
    CloseHandle(done);
    if (waited != WAIT_OBJECT_0)
        throw std::runtime_error("the user-interface thread does not answer");
}

} // namespace ui
