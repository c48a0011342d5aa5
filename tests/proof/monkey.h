// A user who does whatever comes to mind: types, chooses, clicks, tabs, turns pages and answers what is asked. The same
// seed does the same things.
#pragma once

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <afxwin.h>

namespace proof {

/// The numbers of a run: its seed and how many actions all monkeys do together. From PELMAR_MONKEY_SEED and
/// PELMAR_MONKEY_ACTIONS where they are set.
unsigned MonkeySeed();
int MonkeyActions();

/// What the monkey plays with.
struct Playground {
    std::function<HWND()> open;           ///< opens the window; it is asked for again whenever it has been closed
    std::function<HWND(HWND)> controlsOf; ///< the dialog that holds the controls now: the page in front, or itself
    std::function<void()> closed;         ///< the window has been closed, by whatever button
    std::vector<int> avoided;             ///< controls to leave alone
    std::vector<UINT> messages;           ///< that the host may send
    int pages = 1;                        ///< of a property sheet
    std::vector<int> buttons = {IDOK, IDCANCEL}; ///< of the window itself, which close it; none where it stays
};

class Monkey {
public:
    Monkey(Playground playground, unsigned seed) : m_playground(std::move(playground)), m_random(seed) {}

    /// Does so many things, then closes the window, unless it is one that stays. Throws where the window does not
    /// answer.
    void Play(int actions);
    /// What was done last, for whoever has to look into a failure.
    std::string LastActions() const;

private:
    void Act();
    void ActOnControl(HWND dialog, HWND control);
    bool IsSomethingAsked() const;
    void AnswerWhatIsAsked();
    void Close();
    int Below(int limit);
    void Note(const std::string& action);

    Playground m_playground;
    std::mt19937 m_random;
    HWND m_window = nullptr;
    int m_done = 0;
    std::deque<std::string> m_last;
};

} // namespace proof
