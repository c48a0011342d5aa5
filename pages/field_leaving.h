// What becomes of the data of a page or dialog when one of its edits loses the focus.
#pragma once

#include <afxwin.h>

namespace pelmar {

class FieldLeaving {
public:
    FieldLeaving() = default;
    FieldLeaving(const FieldLeaving&) = delete;
    FieldLeaving& operator=(const FieldLeaving&) = delete;

    /// The window has come up.
    void Begin() { m_isGivenUp = false; }
    /// The user gives up what the window holds: until it comes up again nothing is taken and nothing asked.
    void GiveUp() { m_isGivenUp = true; }
    /// For the handler of an edit that loses the focus: takes the window's data, where the focus goes to leaves that to
    /// be done. True where they have been taken.
    bool TakeData(CWnd& window);

private:
    void AskIfFocusRests(const CWnd& window, HWND control);
    static void CALLBACK OnRested(HWND window, UINT message, UINT_PTR leaving, DWORD time);

    bool m_isGivenUp = false;
    HWND m_restingPlace = nullptr;
};

} // namespace pelmar
