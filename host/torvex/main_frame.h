// The host's main window: the menu, below it the NC settings file as it stands on disk, and a line that says what was
// saved last.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

class CMainFrame : public CFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)
public:
    /// Creates the window. FALSE where the system refuses it.
    BOOL Create();

protected:
    void OnSize(UINT type, int width, int height);
    LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    void OnDestroy();
    void OnExit();
    void OnNcOptions();
    void OnNcOptionsReadOnly();
    void OnNcDefaults();
    void OnNcDefaultTools();
    void OnNcDefaultsFile();
    void OnNcTemplates();
    void OnNcSetupSheet();
    void OnNcReview();
    void OnRestart();
    void OnInch();
    void OnMillimetre();
    void OnHelpContents();
    void OnAbout();
    DECLARE_MESSAGE_MAP()

private:
    void CreateControls();
    /// Gives the window the size that it has on an unscaled display, as far as the display has room for it.
    void TakeUsualSize();
    /// Takes the fonts and the distances that this resolution asks for.
    void AdjustTo(int dpi);
    void Arrange();
    /// Restores the records and shows the settings file, as at the program's start.
    void LoadSettings();
    void ChangeUnits(int units);
    void ShowSettings();
    void ShowSaved(UINT what, const CString& file);

    int m_units = 0; ///< 0 inch, 1 millimetre
    int m_dpi = 96;
    HFONT m_font = nullptr;
    CStatic m_path;
    CEdit m_text;
    CStatusBarCtrl m_status;
};
