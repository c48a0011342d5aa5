// The sheet of the NC option pages.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include <ControlLib.h>

/// Shows the pages of all operations and saves their records on OK and on Apply.
class COptionsSheet : public CPropertySheetTVEx {
    DECLARE_DYNAMIC(COptionsSheet)
public:
    /// `units`: 0 inch, 1 millimetre.
    COptionsSheet(CWnd* parent, int units);

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPageDefaults();
    DECLARE_MESSAGE_MAP()

private:
    static void SaveRecords();

    std::vector<std::unique_ptr<CPropertyPage>> m_ownPages;
    std::list<CString> m_tabs; ///< the pages point at these texts
    CButton m_defaults;
};
