// Controls that take keys which a dialog would take for itself: Enter, Esc, Tab.
#pragma once

#include <functional>

#include <afxcmn.h>
#include <afxwin.h>

namespace pelmar {

/// `Base`: the control. It asks for every key that the dialog would take.
template <class Base> class CWithKeys : public Base {
public:
    /// Answers whether it has taken the key; the control does not see it then. It may destroy the control.
    std::function<bool(UINT key)> onKey;
    std::function<bool(UINT key)> wantsKey; ///< whether the dialog is to leave the key to the control
    std::function<void()> onLeft;           ///< it has lost the focus

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto key = static_cast<UINT>(wParam);
        switch (message) {
        case WM_GETDLGCODE:
            return Base::WindowProc(message, wParam, lParam) | (lParam && Wants(key) ? DLGC_WANTMESSAGE : 0);
        case WM_KEYDOWN:
            if (onKey && onKey(key))
                return 0;
            break;
        case WM_CHAR:
            // The character of a key that has been taken would only beep. Control characters have their keys' numbers.
            if (key < VK_SPACE && Wants(key))
                return 0;
            break;
        case WM_KILLFOCUS: {
            const LRESULT result = Base::WindowProc(message, wParam, lParam);
            if (onLeft)
                onLeft();
            return result;
        }
        default:
            break;
        }
        return Base::WindowProc(message, wParam, lParam);
    }

private:
    bool Wants(UINT key) const { return wantsKey && wantsKey(key); }
};

} // namespace pelmar
