// The host's main window: the menu, and below it the NC settings file as it stands on disk.
#pragma once

#include <afxwin.h>

class CMainFrame : public CFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)
public:
    /// Creates the window. FALSE where the system refuses it.
    BOOL Create();

protected:
    void OnSize(UINT type, int width, int height);
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
    DECLARE_MESSAGE_MAP()

private:
    /// Restores the records and shows the settings file, as at the program's start.
    void LoadSettings();
    void ChangeUnits(int units);
    void ShowSettings();

    int m_units = 0; ///< 0 inch, 1 millimetre
    HFONT m_font = nullptr;
    CStatic m_path;
    CEdit m_text;
};
