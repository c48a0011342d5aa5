// Controls that keep their distance to the edges of a dialog that is resized.
#pragma once

#include <span>
#include <vector>

#include <afxwin.h>

namespace pelmar {

/// To which edges a control keeps. One that keeps to both opposite edges grows.
struct Anchor {
    int id;
    bool left = true;
    bool top = true;
    bool right = false;
    bool bottom = false;
};

class Anchors {
public:
    /// Notes where the controls stand. Those that are not named stay.
    void Begin(const CWnd& dialog, std::span<const Anchor> anchors);
    /// Moves them into the dialog as large as it is now, all at once.
    void Arrange() const;
    /// The dialog's size at the beginning, with its frame.
    CSize SizeAtStart() const { return m_size; }

private:
    struct Place {
        Anchor anchor;
        CRect rect;
    };
    HWND m_dialog = nullptr;
    CSize m_size;
    CRect m_client;
    std::vector<Place> m_places;
};

} // namespace pelmar
