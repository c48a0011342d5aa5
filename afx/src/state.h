// The framework's own state, shared by its files. One user-interface thread; see afxwin.h.
#pragma once

#include <afxwin.h>

struct AfxState {
    HINSTANCE self = nullptr; ///< the framework's module
    CWinApp* application = nullptr;
    HINSTANCE resources = nullptr; ///< set by AfxSetResourceHandle, else null
    HWND lockedOut = nullptr;      ///< the window that is exchanging data: its control notifications are ignored
    MSG currentMessage{};
    int messageDepth = 0;   ///< window procedures entered and not yet left
    CWnd* hooked = nullptr; ///< waits for the next window to be created
    HHOOK hook = nullptr;
};

AfxState& AfxGetState();

/// Restores a value when the scope ends.
template <class T> class Restore {
public:
    Restore(T& place, T value) : m_place(place), m_before(place) { place = value; }
    ~Restore() { m_place = m_before; }
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;

private:
    T& m_place;
    T m_before;
};
