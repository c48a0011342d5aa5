// Waiting for others to let go of a file, for a while.
#pragma once

#include <cstdint>

#include "frame/file_system.h"

namespace pelmar {

/// Whether a call may fare otherwise in a moment: somebody has the file open.
inline bool IsPassing(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_USER_MAPPED_FILE ||
           error == ERROR_DELETE_PENDING;
}

class Patience {
public:
    /// Lasts until the system's 64-bit tick count is `until`.
    explicit Patience(std::uint64_t until) : m_until(until) {}

    /// Lets a moment pass. False at the end of the patience.
    bool Wait() const
    {
        constexpr DWORD kMoment = 2; // as long as a small save takes
        if (Files().tickCount() >= m_until)
            return false;
        Files().sleep(kMoment);
        return true;
    }

    /// Calls until that succeeds. False, with the call's error, where it fails for good.
    template <class Call> bool Insist(Call call) const
    {
        while (!call()) {
            const DWORD error = GetLastError();
            if (!IsPassing(error) || !Wait()) {
                SetLastError(error);
                return false;
            }
        }
        return true;
    }

private:
    std::uint64_t m_until;
};

} // namespace pelmar
