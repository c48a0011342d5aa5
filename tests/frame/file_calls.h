// The calls that a save consists of, under a test's hands: each can be made to fail, or to be the last that the process
// makes, and the clock is the test's.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <windows.h>

namespace saving {

/// One call: its name, and the path that it is given where it is given one.
struct Call {
    std::string name;
    std::string path;

    bool IsOn(const std::string& part) const { return path.find(part) != path.npos; }
};

/// In force while it lives. Sleeping takes no time but the clock's, and of that a tenth of a second.
class FileCalls {
public:
    FileCalls();
    ~FileCalls();
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;

    /// Asked before each call; other than 0 the call fails with that error, and does nothing.
    std::function<DWORD(const Call&)> fails;
    /// Runs before each call that does not fail.
    std::function<void(const Call&)> before;
    std::function<void()> whileSleeping;

    /// The process is killed in the midst of this call, counted from 1: it is done by half, and no other call does
    /// anything. What the system does for a dead process, closing its files, is done.
    int killedAt = 0;

    int Made() const { return m_made; }
    bool IsDead() const { return m_isDead; }
    std::uint64_t Now() const { return m_now; }

    // For the calls themselves.
    bool Permits(const char* name, const char* path = nullptr);
    bool IsDying() const { return m_made == killedAt; }
    void Sleep(DWORD milliseconds);

private:
    int m_made = 0;
    bool m_isDead = false;
    std::uint64_t m_now = 1'000'000;
};

} // namespace saving
