#include "dialogs/anchors.h"

namespace pelmar {

void Anchors::Begin(const CWnd& dialog, std::span<const Anchor> anchors)
{
    m_dialog = dialog.m_hWnd;
    CRect window;
    ::GetWindowRect(m_dialog, window);
    m_size = CSize(window.Width(), window.Height());
    ::GetClientRect(m_dialog, m_client);
    m_places.clear();
    for (const Anchor& anchor : anchors) {
        CRect rect;
        ::GetWindowRect(::GetDlgItem(m_dialog, anchor.id), rect);
        ::MapWindowPoints(nullptr, m_dialog, reinterpret_cast<POINT*>(&rect), 2);
        m_places.push_back({anchor, rect});
    }
}

void Anchors::Arrange() const
{
    CRect client;
    ::GetClientRect(m_dialog, client);
    const int wider = client.Width() - m_client.Width();
    const int higher = client.Height() - m_client.Height();
    HDWP moves = BeginDeferWindowPos(static_cast<int>(m_places.size()));
    for (const auto& [anchor, rect] : m_places) {
        const CRect moved(rect.left + (anchor.left ? 0 : wider), rect.top + (anchor.top ? 0 : higher),
                          rect.right + (anchor.right ? wider : 0), rect.bottom + (anchor.bottom ? higher : 0));
        if (moves)
            moves = DeferWindowPos(moves, ::GetDlgItem(m_dialog, anchor.id), nullptr, moved.left, moved.top,
                                   moved.Width(), moved.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    if (moves)
        EndDeferWindowPos(moves);
}

} // namespace pelmar
