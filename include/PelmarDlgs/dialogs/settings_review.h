// The dialog that reviews the settings: what differs from the factory's values or from another file, what is wrong, and
// its repair in place.
#pragma once

#include "PelmarDlgs/dialogs/nc_dialog.h"

namespace pelmar {

class SettingsReviewState;

/// Where the user wants to go from the review.
struct SettingPlace {
    int templateId = 0; ///< of the page or dialog that edits the setting; 0: nowhere
    int controlId = 0;  ///< of the control in it; 0 where none edits the setting
};

} // namespace pelmar

/// Shows every setting of the settings file in one list, modally: operation, option, value, compared value, finding.
///
/// - The values are those of the live records, in each record's own units; compared are first the factory's values (the
///   built-in ones overlaid by the defaults file), or any settings file that the user picks, in the same units.
/// - The findings are what is wrong in the settings file and what a page would refuse of the live values.
/// - What belongs to no record (the default tools, the NC defaults) is shown as the settings file has it, and compared,
///   but edited in its own dialog only: a host holds these values itself. The host's own settings are not shown.
/// - The user edits values in the list, with the checks of the pages, and takes compared values over. Nothing of it
///   reaches a live record before OK, and never a settings file: the host saves the records after OK, all in one step.
///
///       CSettingsReviewDlg dialog(this);
///       if (dialog.DoModal() == IDOK)
///           SaveAllRecordsInOneStep();
///       if (const pelmar::SettingPlace place = dialog.Destination(); place.templateId)
///           OpenPage(place.templateId, place.controlId);
///
/// A host that keeps the dialog open until its save has succeeded derives from it and does this in OnOK: UpdateData
/// (nothing more where it fails), SetData, its save, and at last the OnOK of this class.
///
/// Width, height, the columns' widths, the order and the filter are kept in the host's settings file, section
/// [SettingsReview], in pixels. What stands there is kept within the screen, and ignored where it is no number.
class PELMAR_API CSettingsReviewDlg : public pelmar::CNCDialog {
    DECLARE_DYNCREATE(CSettingsReviewDlg)
public:
    enum { IDD = 4161 };

    explicit CSettingsReviewDlg(CWnd* parent = nullptr);
    ~CSettingsReviewDlg() override;

    /// Puts the values that the user has changed into the live records; all else of them stays as it is. OnOK does it
    /// too.
    void SetData();
    /// After DoModal: where the user wants to go ("Перейти", a double click, Enter). Before he goes he has been asked
    /// whether to keep what he changed; IDOK of DoModal says yes.
    pelmar::SettingPlace Destination() const;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;

    void OnSize(UINT type, int width, int height);
    void OnGetMinMaxInfo(MINMAXINFO* limits);
    void OnDestroy();
    void OnTextWanted(NMHDR* header, LRESULT* result);
    void OnFindWanted(NMHDR* header, LRESULT* result);
    void OnColumn(NMHDR* header, LRESULT* result);
    void OnSelection(NMHDR* header, LRESULT* result);
    void OnScrolled(NMHDR* header, LRESULT* result);
    void OnListKey(NMHDR* header, LRESULT* result);
    void OnRowDoubleClicked(NMHDR* header, LRESULT* result);
    void OnRowEntered(NMHDR* header, LRESULT* result);
    void OnSearch();
    void OnFilter();
    void OnPickFile();
    void OnFactory();
    void OnGoTo();
    void OnEdit();
    void OnTake();
    void OnCopy();
    void OnHelp();
    LRESULT OnCellLeft(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    pelmar::SettingsReviewState* m_state;
};
