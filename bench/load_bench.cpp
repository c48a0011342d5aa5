// What loading and starting the library costs, against a DLL that is empty.
#include <cstdio>

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
} // namespace

int main()
{
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
}
