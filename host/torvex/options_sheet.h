// The sheet of the NC option pages.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include <ControlLib.h>

/// Shows the pages of all operations and saves their records on OK and on Apply, unless they are only to be looked at.
class COptionsSheet : public CPropertySheetTVEx {
    DECLARE_DYNAMIC(COptionsSheet)
public:
    enum class Use {
        Edit,
        Look, ///< every control is disabled and nothing is saved
    };

    /// `units`: 0 inch, 1 millimetre.
    COptionsSheet(CWnd* parent, int units, Use use);

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPageDefaults();
    DECLARE_MESSAGE_MAP()

private:
    void SaveRecords() const;

    Use m_use;
    std::vector<std::unique_ptr<CPropertyPage>> m_ownPages;
    std::list<CString> m_tabs; ///< the pages point at these texts
    CButton m_defaults;
};
