// Property pages and sheets, and the common file dialog.
#pragma once

#include <memory>
#include <vector>

#include <afxcmn.h>
#include <afxwin.h>
#include <commdlg.h>
#include <prsht.h>

class CPropertySheet;

/// A page of a property sheet.
///
/// Life of a page: OnInitDialog loads its data into the controls, OnSetActive loads them again on every
/// activation but the first, OnKillActive takes them back and keeps the page when that fails. The sheet's OK and
/// Apply reach OnApply, which calls OnOK; Cancel reaches OnReset, which calls OnCancel.
class AFX_CLASS CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    CPropertyPage();
    /// `caption` 0 takes the tab's text from the template.
    explicit CPropertyPage(UINT templateId, UINT caption = 0);

    /// Adjust before the sheet is shown. The template is looked for in m_psp.hInstance, then through the chain; with
    /// PSP_DLGINDIRECT it is the one at m_psp.pResource, which stays the caller's. The page takes the sheet's font.
    PROPSHEETPAGEW m_psp{};

    /// Tells the sheet that this page has something to apply (TRUE) or no longer has (FALSE).
    void SetModified(BOOL changed = TRUE);
    /// Sends PSM_QUERYSIBLINGS to the other pages of the sheet that exist, until one answers non-zero.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    BOOL PreTranslateMessage(MSG* message) override;
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnApply();
    virtual void OnReset();
    void OnOK() override;
    void OnCancel() override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    friend class CPropertySheet;
    bool Prepare(CPropertySheet& sheet, PROPSHEETPAGEW& page);
    const DLGTEMPLATE* FindTemplate(PROPSHEETPAGEW& page) const;
    static UINT CALLBACK PageCallback(HWND window, UINT message, PROPSHEETPAGEW* page);

    CString m_caption;
    std::vector<BYTE> m_template;      ///< the page's own in the font of the sheet, where that differs
    CPropertySheet* m_sheet = nullptr; ///< while it shows this page
    bool m_activatedBefore = false;
};

/// A sheet of property pages, shown modally. It does not own its pages.
class AFX_CLASS CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
public:
    explicit CPropertySheet(LPCTSTR caption, CWnd* parent = nullptr, UINT firstPage = 0);

    PROPSHEETHEADERW m_psh{}; ///< adjust before the sheet is shown

    /// Each page once. Into a sheet that is shown it comes as the last tab, unless it has no template.
    void AddPage(CPropertyPage* page);
    void RemovePage(CPropertyPage* page);
    void RemovePage(int index);
    int GetPageCount() const;
    CPropertyPage* GetPage(int index) const;           ///< null where there is none
    int GetPageIndex(const CPropertyPage* page) const; ///< -1 for a page that is not of this sheet
    // Before the sheet is shown these choose, and tell, the page that it is to start with.
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    BOOL SetActivePage(int index);
    BOOL SetActivePage(CPropertyPage* page);
    void PressButton(int button); ///< one of PSBTN_OK, PSBTN_CANCEL, PSBTN_APPLYNOW, PSBTN_HELP
    CTabCtrl* GetTabControl() const;

    /// Shows the sheet until it closes: IDOK, IDCANCEL, or -1 where it could not be created, as when it has no pages
    /// or one of them lacks its template.
    virtual INT_PTR DoModal();
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL ContinueModal() override;

protected:
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    INT_PTR Show(HWND owner);
    bool ShowTab(CPropertyPage& page);

    CString m_caption;
    CWnd* m_parent;
    std::vector<CPropertyPage*> m_pages;
    mutable CTabCtrl m_tab; ///< lends the handle of the sheet's tab control
};

/// The system's dialog for choosing a file to open or to save.
class AFX_CLASS CFileDialog : public CObject {
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// `filter`: "Text|pattern|Text|pattern||", or null for none.
    CFileDialog(BOOL open, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr, CWnd* parent = nullptr);

    OPENFILENAMEW m_ofn{}; ///< adjust before DoModal, lpstrInitialDir for instance (the caller keeps that text alive)

    virtual INT_PTR DoModal(); ///< IDOK or IDCANCEL
    CString GetPathName() const;
    CString GetFileName() const;

private:
    bool m_open;
    CString m_defaultExtension;
    std::wstring m_filter;
    std::vector<wchar_t> m_path;
    CWnd* m_parent;
};
