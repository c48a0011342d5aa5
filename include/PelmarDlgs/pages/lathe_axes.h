// Axis modes of the lathe, and the sheet on which the user edits two of them.
#pragma once

#include <ControlLib.h>

#include "PelmarDlgs/export.h"

namespace pelmar {

/// One axis mode: what the three axes are called and where they point.
struct LatheAxisMode {
    int labels[3] = {};           ///< of the axes: index of "-", "X", "Y", "Z", "D", "R"
    int active = 0;               ///< shown at start-up: 0 or 1
    double directions[3][3] = {}; ///< of the axes, each X, Y, Z
};

/// What an axis mode is for.
enum class LatheAxisUse {
    Input,   ///< keyboard input
    Display, ///< the coordinate display
};

class LatheAxisEditor;

} // namespace pelmar

/// The page of one axis mode, in its own sheet (CLatheInputDisplayPS).
class PELMAR_API CLatheInputDisplayPage : public CPropertyPageTVEx {
    DECLARE_DYNAMIC(CLatheInputDisplayPage)
public:
    enum { IDD = 113 };

    explicit CLatheInputDisplayPage(pelmar::LatheAxisUse use);
    ~CLatheInputDisplayPage() override;

    /// Set it before the page is shown; OK changes it. A label that the lists do not hold is kept until another one is
    /// chosen.
    pelmar::LatheAxisMode m_mode;
    /// The mode of the other measure (radius or diameter) for the same use is active.
    bool m_otherIsActive = false;

    /// The user wants this mode active and the one of the other measure no longer so. Holds once the sheet has closed,
    /// however it closed.
    bool OverridesOther() const;

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    void OnOK() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnActiveAtStartup();
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    pelmar::LatheAxisEditor* m_editor;
};

/// The sheet of the two axis modes, input and display, of one measure. Shown modally, without an Apply button.
class PELMAR_API CLatheInputDisplayPS : public CPropertySheetTVEx {
    DECLARE_DYNAMIC(CLatheInputDisplayPS)
public:
    explicit CLatheInputDisplayPS(LPCTSTR caption, CWnd* parent = nullptr, UINT firstPage = 0);

    CLatheInputDisplayPage m_input{pelmar::LatheAxisUse::Input};
    CLatheInputDisplayPage m_display{pelmar::LatheAxisUse::Display};

    BOOL OnInitDialog() override;
};
