// Tips of a page or dialog: what is known of a control comes up while the pointer rests on it.
#pragma once

#include "pages/tip_text.h"

namespace pelmar {

/// The tips of one window; itself the window that shows a tip, which exists only while one is to be seen. Until the
/// pointer comes to rest on a control nothing is made and nothing computed.
///
/// A disabled control gets no messages of the mouse: its window does, so that places are compared, not windows.
class Tips : public CWnd {
public:
    explicit Tips(TipSource& source) : m_source(source) {}
    ~Tips() override { Hide(); }
    Tips(const Tips&) = delete;
    Tips& operator=(const Tips&) = delete;

    /// For the window's PreTranslateMessage: sees where the pointer is, and what ends a tip.
    void Watch(const CWnd& window, const MSG& message);

protected:
    void OnPaint();
    void OnTimer(UINT_PTR id);
    void OnDestroy();
    LRESULT OnNcHitTest(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void PointerMoved(const CWnd& window, CPoint place);
    static void CALLBACK OnRested(HWND window, UINT message, UINT_PTR tips, DWORD time);
    bool IsPointedAtStill() const;
    void Show();
    void Hide();
    CRect PlaceFor(const Tip& tip);

    TipSource& m_source;
    HWND m_watched = nullptr;           ///< the page or dialog
    const Control* m_control = nullptr; ///< on which the pointer is
    CPoint m_place;                     ///< of the pointer, as the last message of the mouse says
    CPoint m_pointer;                   ///< the same as the display says
    HBITMAP m_drawing = nullptr;
    CRect m_textArea;
    CRect m_drawingArea;
};

} // namespace pelmar
