// Topics of the help file, and the application's context-help mode.
#pragma once

#include <optional>

#include <afxwin.h>

namespace pelmar {

/// Ends the application's context-help mode. The id of the control of `window` at `position` (screen coordinates), -1
/// where there is none; nothing where the application is not in that mode.
std::optional<INT_PTR> EndHelpMode(const CWnd& window, CPoint position);

/// The topic that the help file begins with.
inline constexpr char kIntroductionTopic[] = "introduction.htm";

/// Shows a topic of the help file. Where the system has no help viewer nothing happens, now and later, but that the
/// host is told if it wants to.
void ShowTopic(const CWnd& window, const char* topic);

/// Answers WM_HELP: has the window handle its Help command. Shift+F1 and the "?" pointer ask about the control under
/// the pointer, F1 about the window. The mode is over afterwards, whatever the window has done.
void AskForHelp(CWnd& window);

/// The "?" of a window's caption. The mode that it switches on ends with the question; without one, when the window
/// gives up its place in front or goes.
class CaptionHelp {
public:
    /// Sees a message of the window before the window handles it.
    CaptionHelp(const CWnd& window, UINT message, WPARAM wParam);
    /// And afterwards.
    ~CaptionHelp();
    CaptionHelp(const CaptionHelp&) = delete;
    CaptionHelp& operator=(const CaptionHelp&) = delete;

    static bool IsClickOn(UINT message, WPARAM wParam);
    /// For the window's PreTranslateMessage. True where the message was a part of the question: a click on what is
    /// asked about, or Esc.
    static bool Takes(CWnd& window, const MSG& message);

private:
    bool m_begins;
    LONG m_timeBefore = 0;
};

} // namespace pelmar
