// A host that is not built with the framework and not named as the usual one: it loads the library, starts it, stops it
// and lets go of it, many times over, and looks for what is left behind.
#include <cstdio>
#include <cstdlib>
#include <initializer_list>

#include <windows.h>

namespace {

template <class Function> Function* Resolve(HMODULE module, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// Bytes in use in all heaps of the process.
size_t BusyBytes()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    size_t busy = 0;
    for (DWORD index = 0; index < count && index < 64; ++index) {
        HeapLock(heaps[index]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[index], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                busy += entry.cbData;
        HeapUnlock(heaps[index]);
    }
    return busy;
}

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

/// What the process holds. A fresh handle's value climbs only where handles are left open.
struct Holdings {
    size_t bytes;
    UINT_PTR event;
    UINT_PTR pen;
    int windows;
    bool moduleLoaded;
};

Holdings Take()
{
    Holdings now{};
    const HANDLE event = CreateEvent(nullptr, FALSE, FALSE, nullptr);
    now.event = reinterpret_cast<UINT_PTR>(event);
    CloseHandle(event);
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    now.pen = reinterpret_cast<UINT_PTR>(pen);
    DeleteObject(pen);
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.windows));
    now.moduleLoaded = GetModuleHandleA("PelmarDlgs.dll") != nullptr;
    now.bytes = BusyBytes();
    return now;
}

void Cycle()
{
    const HMODULE module = LoadLibraryA("PelmarDlgs.dll");
    if (!module) {
        std::printf("PelmarDlgs.dll does not load\n");
        std::exit(2);
    }
    Resolve<void*()>(module, "InitPelmarDlgsDLL")();
    if (Resolve<int()>(module, "InitializePelmarDlgsDLL")() != 1) {
        std::printf("the tool library does not load\n");
        std::exit(2);
    }
    Resolve<void(const char*)>(module, "PelmarUI_SetMachineSimPath")("C:\\Sim");
    Resolve<void()>(module, "FinalizePelmarDlgsDLL")();
    FreeLibrary(module);
}

bool Expect(bool holds, const char* what)
{
    if (!holds)
        std::printf("left behind: %s\n", what);
    return holds;
}

/// A host has these loaded for itself. They are no part of the library, and some leave something behind when they go:
/// the compiler's run-time its reserve for exceptions, the platform's controls a handle.
void LoadWhatAHostHas()
{
    for (const char* name : {"comctl32.dll", "comdlg32.dll", "shell32.dll", "libstdc++-6.dll"})
        if (!LoadLibraryA(name))
            std::printf("not loaded: %s\n", name);
}

} // namespace

int main()
{
    LoadWhatAHostHas();
    constexpr int kWarmUp = 20;
    constexpr int kCycles = 1000;
    for (int cycle = 0; cycle < kWarmUp; ++cycle)
        Cycle();
    const Holdings before = Take();
    for (int cycle = 0; cycle < kCycles; ++cycle)
        Cycle();
    const Holdings after = Take();
    std::printf("%d cycles: heap %zu -> %zu bytes, event %zx -> %zx, pen %zx -> %zx, windows %d -> %d\n", kCycles,
                before.bytes, after.bytes, static_cast<size_t>(before.event), static_cast<size_t>(after.event),
                static_cast<size_t>(before.pen), static_cast<size_t>(after.pen), before.windows, after.windows);
    // One byte a cycle would already show.
    bool clean = Expect(after.bytes < before.bytes + kCycles, "memory");
    clean &= Expect(after.event <= before.event, "a kernel handle");
    clean &= Expect((after.pen & 0xFFFF) <= (before.pen & 0xFFFF), "a GDI object");
    clean &= Expect(after.windows <= before.windows, "a window");
    clean &= Expect(!after.moduleLoaded, "the library itself");
    std::printf(clean ? "[  PASSED  ] 1 test.\n" : "1 FAILED TEST\n");
    return clean ? 0 : 1;
}
