// Option pages in a real property sheet, as a host shows them.
#pragma once

#include <string>
#include <vector>

#include <ControlLib.h>
#include <PelmarDlgs.h>

#include "ui/person.h"
#include "ui/ui_thread.h"

using namespace pelmar;

/// A page that listens to what its siblings tell each other, and answers as told.
class SiblingSpy : public CPropertyPage {
public:
    SiblingSpy();

    struct Notice {
        WPARAM code;
        LPARAM argument;
        bool operator==(const Notice&) const = default;
    };
    std::vector<Notice> notices;
    std::vector<double> reals; ///< what the argument pointed to, for the codes that carry an address
    std::vector<WPARAM> realCodes;
    LRESULT answer = 0;

protected:
    LRESULT OnQuerySiblings(WPARAM code, LPARAM argument);
    DECLARE_MESSAGE_MAP()
};

/// A sheet that is open until OK, Cancel or the end of the test. The pages must outlive it.
class OpenSheet {
public:
    explicit OpenSheet(std::vector<CPropertyPage*> pages);
    ~OpenSheet();
    OpenSheet(const OpenSheet&) = delete;
    OpenSheet& operator=(const OpenSheet&) = delete;

    HWND window = nullptr;

    HWND Page(); ///< the page in front
    void Switch(int index);
    void Ok(); ///< presses OK and waits for the sheet to close
    void Cancel();
    void Press(int button); ///< IDOK, IDCANCEL, Apply (0x3021), without waiting for anything to close
    bool IsModified();      ///< whether Apply is enabled
    bool IsOpen() const { return IsWindow(window); }

private:
    CPropertySheetTVEx m_sheet;
};

constexpr int kApply = 0x3021;

/// What the layout of a dialog gets wrong: texts that do not fit their controls, controls that overlap or leave the
/// dialog. One line each.
std::vector<std::string> LayoutFaults(HWND dialog);

/// The help topic that the page shows when the user asks about a control with Shift+F1, or about the page with F1 when
/// `control` is 0. Read from the stand-in for the help viewer.
std::string TopicShownFor(HWND page, int control);
/// The topic that was shown last, and the help file that it was taken from.
std::string LastTopicShown();
/// Has the viewer show something else, so that what it shows next is known to be new.
void ForgetTopic();
std::string HelpFileShown();
