// What the user-interface thread and its process hold, for tests that look for leaks.
#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include <windows.h>

#include <gtest/gtest.h>

#include "ui/ui_thread.h"

namespace ui {

inline BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    ++*reinterpret_cast<size_t*>(count);
    if (GetAncestor(window, GA_PARENT) == GetDesktopWindow())
        EnumChildWindows(window, CountWindow, count);
    return TRUE;
}

struct Memory {
    size_t blocks = 0;
    size_t bytes = 0;
};

/// What is in use of the process's heaps.
inline Memory UsedMemory()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    EXPECT_LE(count, 64U);
    Memory used;
    for (DWORD index = 0; index < std::min<DWORD>(count, 64); ++index) {
        HeapLock(heaps[index]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[index], &entry)) {
            const bool isBusy = (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
            used.blocks += isBusy ? 1 : 0;
            used.bytes += isBusy ? entry.cbData : 0;
        }
        HeapUnlock(heaps[index]);
    }
    return used;
}

/// The highest place in the table of handles once `count` more are taken: as handles are given out anew when they are
/// free, it rises with every one that stays in use.
template <class Make, class Close> size_t HighestPlace(Make make, Close close)
{
    std::vector<size_t> places;
    for (int count = 0; count < 400; ++count)
        places.push_back(reinterpret_cast<size_t>(make()));
    size_t highest = 0;
    for (const size_t place : places) {
        highest = std::max(highest, place & 0xFFFF); // above that, a graphics object's handle counts its place's uses
        close(reinterpret_cast<HANDLE>(place));
    }
    return highest;
}

/// What the user-interface thread holds.
struct Holdings {
    static Holdings Now()
    {
        Holdings now;
        EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.windows));
        now.handles = HighestPlace([] { return CreateEvent(nullptr, FALSE, FALSE, nullptr); }, CloseHandle) / 4;
        now.graphics = HighestPlace([] { return CreatePen(PS_SOLID, 1, 0); }, DeleteObject);
        now.memory = UsedMemory();
        return now;
    }
    Memory memory;
    size_t windows = 0;
    size_t handles = 0;
    size_t graphics = 0;
};

/// Expects that many runs of `work` leave nothing behind, save what the system puts by once in a while.
inline void ExpectNothingLeft(size_t cycles, const std::function<void()>& work, int warmUps = 20)
{
    UiThread::Get().Call([&] {
        for (int warmUp = 0; warmUp < warmUps; ++warmUp)
            work();
        const Holdings before = Holdings::Now();
        for (size_t cycle = 0; cycle < cycles; ++cycle)
            work();
        const Holdings after = Holdings::Now();
        EXPECT_GT(before.memory.blocks, 100U); // the heaps can be looked into
        EXPECT_LE(after.memory.blocks, before.memory.blocks + cycles / 4);
        EXPECT_LE(after.memory.bytes, before.memory.bytes + cycles * 16);
        EXPECT_EQ(before.windows, after.windows);
        EXPECT_LE(after.handles, before.handles + cycles / 4);
        EXPECT_LE(after.graphics, before.graphics + cycles / 4);
    });
}

} // namespace ui
