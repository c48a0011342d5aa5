// What loading and starting the library costs, against a DLL that is empty: in a host that has what it needs of the
// system's, and in a process that has nothing.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>

#include <windows.h>

#include "bench/stopwatch.h"

namespace {
bool g_loaded = true;

FARPROC Find(HMODULE module, const char* name)
{
    const FARPROC address = GetProcAddress(module, name);
    g_loaded = g_loaded && address;
    return address;
}

template <class Function> Function* As(FARPROC address)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

void LoadAndStart()
{
    const HMODULE module = LoadLibraryA("PelmarDlgs.dll");
    const auto join = As<void*()>(Find(module, "InitPelmarDlgsDLL"));
    const auto start = As<int()>(Find(module, "InitializePelmarDlgsDLL"));
    const auto end = As<void()>(Find(module, "FinalizePelmarDlgsDLL"));
    if (!g_loaded)
        return;
    join();
    start();
    end();
    FreeLibrary(module);
}

void LoadEmpty()
{
    const HMODULE module = LoadLibraryA("EmptyLibrary.dll");
    g_loaded = g_loaded && module;
    FreeLibrary(module);
}

/// What no library with a window is without.
void LoadSystem()
{
    for (const char* library : {"user32.dll", "gdi32.dll", "advapi32.dll"})
        g_loaded = g_loaded && LoadLibraryA(library);
}

/// Seconds that one call takes in a process which has nothing of it: this program, started anew.
double ColdTime(const wchar_t* program, const wchar_t* what)
{
    wchar_t command[MAX_PATH + 20];
    swprintf(command, std::size(command), L"\"%ls\" %ls", program, what);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        return -1.0;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD microseconds = 0;
    GetExitCodeProcess(process.hProcess, &microseconds);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return microseconds * 1e-6;
}

double BestColdTime(const wchar_t* what)
{
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < 20; ++round)
        best = std::min(best, ColdTime(program, what));
    return best;
}

/// Ends the process with the microseconds that the call has taken.
[[noreturn]] void TellTime(void (*call)())
{
    LARGE_INTEGER frequency, start, end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    call();
    QueryPerformanceCounter(&end);
    ExitProcess(static_cast<UINT>((end.QuadPart - start.QuadPart) * 1000000 / frequency.QuadPart));
}
} // namespace

int main(int count, char** arguments)
{
    if (count == 2 && std::strcmp(arguments[1], "--cold") == 0)
        TellTime(LoadAndStart);
    if (count == 2 && std::strcmp(arguments[1], "--cold-empty") == 0)
        TellTime(LoadEmpty);
    if (count == 2 && std::strcmp(arguments[1], "--cold-system") == 0)
        TellTime(LoadSystem);
    // A host has loaded the system's own libraries long before.
    for (const char* library : {"comctl32.dll", "comdlg32.dll", "shell32.dll", "ole32.dll", "libstdc++-6.dll"})
        LoadLibraryA(library);
    const auto [own, empty] = bench::BestTimes(100, 1, LoadAndStart, LoadEmpty);
    if (!g_loaded) {
        std::printf("load: a library is missing\n");
        return 1;
    }
    bench::PrintRatio("load: loading, starting and ending / loading an empty DLL", own / empty, "");
    std::printf("  milliseconds: %.2f against %.2f\n", own * 1e3, empty * 1e3);
    const double cold = BestColdTime(L"--cold");
    const double coldEmpty = BestColdTime(L"--cold-empty");
    bench::PrintRatio("load: the same in a process that has loaded nothing before", cold / coldEmpty, "");
    std::printf("  milliseconds: %.2f against %.2f; %.2f of them for the system's user32, gdi32 and advapi32\n",
                cold * 1e3, coldEmpty * 1e3, BestColdTime(L"--cold-system") * 1e3);
}
