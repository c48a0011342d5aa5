// The dialog of the default toolpath templates.
#pragma once

#include "PelmarDlgs/dialogs/nc_dialog.h"

namespace pelmar {

/// After which change the sort lists are brought up to date.
enum SortOptionType : int {
    kSortsAtStart = -1,
    kFirstSortChanged = 0,
    kSecondSortChanged = 1,
};

class TemplateOptionsState;

} // namespace pelmar

using SortOptionType = pelmar::SortOptionType;

/// Edits the default template file of each toolpath operation, the three sort keys of the template manager and the
/// folder of the template database.
///
/// Templates and keys belong to the post-processor library PELMAR.dll, which is loaded for each use and let go after
/// it; what it hands out is copied. Where it is missing or lacks an entry point the lists stay empty and nothing is
/// stored; only who wants to choose a template file is told so. The folder is a key of the host's settings file.
///
/// Shown inside a window of the host's, which sends it the messages of messages.h.
class PELMAR_API CTemplateOptions : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CTemplateOptions)
public:
    enum { IDD = 4160 };

    /// Takes operations and sort options from the library.
    explicit CTemplateOptions(CWnd* parent = nullptr);
    ~CTemplateOptions() override;

    /// Takes the operations from the library, where there are none yet.
    void GetOperationList();
    /// A sort option; the empty text where there is none of this index.
    CString GetSortingString(int index) const;
    /// The index of the first sort option that reads so, 0 where none does.
    int GetSortingType(CString text) const;
    /// Reads the defaults of all operations from the library and shows the first operation's, if it has any, and the
    /// folder. The operations are appended to their list.
    void GetDefaults();
    /// Brings the items of the sort lists up to date: an option chosen in one list is not offered in the next ones.
    void UpdateSortingOptions(SortOptionType type);
    /// The help topic of a control: one for them all.
    const char* GetHelpInfo(UINT control) const;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    void OnHelp();
    LRESULT CheckSaveData(WPARAM, LPARAM);
    LRESULT SetDefaults(WPARAM, LPARAM);
    void OnBnClickedTemplateFileDirBtn();
    void OnBnClickedTemplateDbPathDirBtn();
    void OnCbnSelchangeCombo1stSort();
    void OnCbnSelchangeCombo2ndSort();
    void OnCbnSelchangeComboToolpathOperation();
    void OnTemplateDBPathChange();
    DECLARE_MESSAGE_MAP()

private:
    pelmar::TemplateOptionsState* m_state;
};
