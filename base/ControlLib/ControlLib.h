// The host's control library: the property page and property sheet that every option page of the host builds on.
// What they add to the framework's is help by key and by pointer.
#pragma once

#include <afxdlgs.h>

#ifdef CONTROLLIB_IMPLEMENTATION
#define CONTROLLIB_CLASS __declspec(dllexport)
#else
#define CONTROLLIB_CLASS __declspec(dllimport)
#endif

/// A property page with help: it has a Help button in its sheet, and sends itself the Help command (ID_HELP) when
/// the user asks for help with the keyboard or with the caption's "?".
///
/// F1 asks about the page. Shift+F1 and the "?" pointer ask about the control under the pointer: the application is
/// then in help mode (CWinApp::m_bHelpMode) while the page handles the command. A page without a handler for
/// ID_HELP shows nothing.
class CONTROLLIB_CLASS CPropertyPageTVEx : public CPropertyPage {
    DECLARE_DYNAMIC(CPropertyPageTVEx)
public:
    CPropertyPageTVEx();
    /// `templateId`: the dialog template. `caption`: string id of the tab's text, 0 to take the template's.
    explicit CPropertyPageTVEx(UINT templateId, UINT caption = 0);

protected:
    BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()
};

/// The property sheet for such pages. Help asked for while one of the sheet's own buttons has the focus goes to the
/// page in front.
class CONTROLLIB_CLASS CPropertySheetTVEx : public CPropertySheet {
    DECLARE_DYNAMIC(CPropertySheetTVEx)
public:
    /// `firstPage`: index of the page that is in front at first. The sheet does not own its pages.
    explicit CPropertySheetTVEx(LPCTSTR caption, CWnd* parent = nullptr, UINT firstPage = 0);

protected:
    BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()
};
