// The sheet of the NC option pages.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include <ControlLib.h>
#include <PelmarDlgs/dialogs/settings_review.h>

#include "pending_save.h"

/// Shows the pages of all operations and saves their records on OK and on Apply, unless they are only to be looked at.
/// Where they could not be saved it stays open, until the user leaves it without. It opens on the page that was in
/// front when it was last closed.
class COptionsSheet : public CPropertySheetTVEx {
    DECLARE_DYNAMIC(COptionsSheet)
public:
    enum class Use {
        Edit,
        Look, ///< every control is disabled and nothing is saved
    };

    /// `units`: 0 inch, 1 millimetre. `place`: the page that it opens on, with the focus in the control.
    COptionsSheet(CWnd* parent, int units, Use use, pelmar::SettingPlace place = {});

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPageDefaults();
    LRESULT OnGoToControl(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    bool TakeAndSave();
    bool SaveRecords();

    Use m_use;
    pelmar::SettingPlace m_place;
    PendingSave m_save;
    bool m_isSaved = false; ///< by the OK that is under way
    int m_lastPage = -1;    ///< place of the page that was in front when the sheet was last to close
    std::vector<std::unique_ptr<CPropertyPage>> m_ownPages;
    std::list<CString> m_tabs; ///< the pages point at these texts
    CButton m_defaults;
};
