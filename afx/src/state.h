// The framework's own state, shared by its files. One user-interface thread; see afxwin.h.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

struct AfxState {
    HINSTANCE self = nullptr; ///< the framework's module
    CWinApp* application = nullptr;
    HINSTANCE resources = nullptr; ///< set by AfxSetResourceHandle, else null
    HWND lockedOut = nullptr;      ///< the window that is exchanging data: its control notifications are ignored
    MSG currentMessage{};
    int messageDepth = 0;         ///< window procedures entered and not yet left
    CWnd* awaiting = nullptr;     ///< the object whose window is about to be created
    HWND awaitedParent = nullptr; ///< what that window is to be a child of; null where that does not matter
    HHOOK creationHook = nullptr; ///< installed while an object waits
};

AfxState& AfxGetState();

/// Attaches `object` to the next window that this thread creates, before that window's first message. With `parent`
/// given it waits for a child window of that one.
void AfxAwaitWindow(CWnd* object, HWND parent = nullptr);
/// Ends AfxAwaitWindow, whether or not a window came.
void AfxStopAwaiting();

/// Drops the temporary objects that CWnd::FromHandle made; to be called where no message is being processed.
void AfxDropTemporaries();
void AfxDropTemporaryMenus();

/// The top-level window that a modal window of `parent` belongs to and returns to. Without a parent: the active
/// window, else the main window's last pop-up, else none.
HWND AfxModalOwner(const CWnd* parent);

struct AfxDialogFont {
    std::wstring face; ///< empty where a template names no font
    WORD points = 0;
};

/// A dialog template, valid as long as its module is loaded; null where the module holds none of that name.
const DLGTEMPLATE* AfxLoadTemplate(HINSTANCE module, LPCTSTR name);
AfxDialogFont AfxFontOf(const DLGTEMPLATE& dialogTemplate);
/// A copy of a template with another font.
std::vector<BYTE> AfxTemplateWithFont(const DLGTEMPLATE& dialogTemplate, const AfxDialogFont& font);

/// Whether a message is of keys or the mouse.
bool AfxIsInput(const MSG& message);

/// Takes the next message and has it handled. False when it is time to end, with the code to end with.
bool AfxPumpMessage(int& exitCode);

/// Keeps the owner of a modal window from input, if it takes any.
class AfxDisabledOwner {
public:
    explicit AfxDisabledOwner(HWND owner)
        : m_owner(owner && owner != GetDesktopWindow() && IsWindowEnabled(owner) ? owner : nullptr)
    {
        if (m_owner)
            EnableWindow(m_owner, FALSE);
    }
    ~AfxDisabledOwner()
    {
        if (m_owner)
            EnableWindow(m_owner, TRUE);
    }
    AfxDisabledOwner(const AfxDisabledOwner&) = delete;
    AfxDisabledOwner& operator=(const AfxDisabledOwner&) = delete;

private:
    HWND m_owner;
};

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
