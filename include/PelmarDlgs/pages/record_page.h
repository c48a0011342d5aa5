// What all pages of operations share.
#pragma once

#include "PelmarDlgs/pages/option_page.h"

namespace pelmar {

class PageBinding;
class ControlRow;

/// A page that edits a copy of the live record of one operation. OK puts the copy back; the page writes no file.
///
/// Make it, call GetData, show it in a sheet. The page and the sheet are the host's. A host may derive from a page of
/// an operation; this class is for the library's own pages.
class PELMAR_API CRecordPage : public CExpRegenPropertyPage {
public:
    ~CRecordPage() override;

    /// Hands the page the host's units (1 millimetre, else inch): converts the live record to them and copies it.
    virtual void GetData(int units);

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    void OnOK() override;
    void OnReset() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// The page takes the binding over.
    CRecordPage(int templateId, PageBinding* binding);

    void DoDataExchange(CDataExchange* exchange) override;

    /// The user has left an edit, chosen from a list or clicked a box: does what the control's row says.
    void Handle(ControlRow row);
    /// The page's copy takes its defaults, and the controls show them.
    void RestoreDefaults();
    void OnHelp();
    /// Answers kSetDefaultsMessage: as the button that restores the defaults does.
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    PageBinding& Binding() const { return *m_binding; }

private:
    PageBinding* m_binding;
};

} // namespace pelmar
