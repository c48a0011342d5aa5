#include "main_frame.h"

#include <algorithm>

#include <PelmarDlgs.h>

#include "about_box.h"
#include "display.h"
#include "nc_data.h"
#include "nc_dialogs.h"
#include "option_pages.h"
#include "options_sheet.h"
#include "pending_save.h"
#include "resource.h"
#include "settings.h"
#include "texts.h"
#include "tool_library.h"

using namespace pelmar;

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_DPICHANGED, &CMainFrame::OnDpiChanged)
    ON_WM_DESTROY()
    ON_COMMAND(ID_FILE_EXIT, &CMainFrame::OnExit)
    ON_COMMAND(ID_NC_OPTIONS, &CMainFrame::OnNcOptions)
    ON_COMMAND(ID_NC_OPTIONS_READ_ONLY, &CMainFrame::OnNcOptionsReadOnly)
    ON_COMMAND(ID_NC_DEFAULTS, &CMainFrame::OnNcDefaults)
    ON_COMMAND(ID_NC_DEFAULT_TOOLS, &CMainFrame::OnNcDefaultTools)
    ON_COMMAND(ID_NC_DEFAULTS_FILE, &CMainFrame::OnNcDefaultsFile)
    ON_COMMAND(ID_NC_TEMPLATES, &CMainFrame::OnNcTemplates)
    ON_COMMAND(ID_NC_SETUP_SHEET, &CMainFrame::OnNcSetupSheet)
    ON_COMMAND(ID_NC_REVIEW, &CMainFrame::OnNcReview)
    ON_COMMAND(ID_FILE_RESTART, &CMainFrame::OnRestart)
    ON_COMMAND(ID_UNITS_INCH, &CMainFrame::OnInch)
    ON_COMMAND(ID_UNITS_MILLIMETRE, &CMainFrame::OnMillimetre)
    ON_COMMAND(ID_HELP_CONTENTS, &CMainFrame::OnHelpContents)
    ON_COMMAND(ID_HELP_ABOUT, &CMainFrame::OnAbout)
END_MESSAGE_MAP()

namespace {

// In pixels of an unscaled display.
constexpr int kMargin = 8;
constexpr int kWidth = 760;
constexpr int kHeight = 720;

/// How the NC commands are offered.
UINT DisplayMode()
{
    if (!HostSetting("DefaultDisplayParameter", "NcDisplayMode"))
        return IDS_SHOWN_AS_TOOLBAR;
    return HostSetting("DefaultDisplayParameter", "NcMenuIcons") ? IDS_SHOWN_AS_MENU_WITH_ICONS : IDS_SHOWN_AS_MENU;
}

CString SettingsInEffect()
{
    const UINT threeAxis = HostSetting("DefaultNCParameter", "Classic3Axis") ? IDS_CLASSIC_3_AXIS : IDS_MODERN_3_AXIS;
    return Text(IDS_IN_EFFECT) + L"\n\n" + Text(DisplayMode()) + L"\n" + Text(threeAxis) + L"\n" + NcSettingsPath();
}

/// The part of the display around a window that is free for windows.
CRect WorkingArea(HWND window)
{
    MONITORINFO display{};
    display.cbSize = sizeof display;
    GetMonitorInfo(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &display);
    return display.rcWork;
}

void SetFont(CWnd& control, HFONT font)
{
    control.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

} // namespace

BOOL CMainFrame::Create()
{
    const LPCTSTR windowClass = AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW), GetSysColorBrush(COLOR_BTNFACE),
                                                    LoadIcon(nullptr, IDI_APPLICATION));
    if (!CFrameWnd::Create(windowClass, Text(IDS_MAIN_TITLE), WS_OVERLAPPEDWINDOW, CRect(40, 40, 800, 760), nullptr,
                           MAKEINTRESOURCE(IDR_MAIN_MENU)))
        return FALSE;

    CreateControls();
    AdjustTo(DpiOf(m_hWnd));
    TakeUsualSize();
    ListenToSaves([this](UINT what, const CString& file) { ShowSaved(what, file); });
    LoadSettings();
    return TRUE;
}

void CMainFrame::CreateControls()
{
    m_path.CreateEx(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE | SS_NOPREFIX | SS_PATHELLIPSIS, CRect(), this,
                    IDC_SETTINGS_PATH);
    m_text.CreateEx(WS_EX_CLIENTEDGE, L"EDIT", nullptr,
                    WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL, CRect(), this,
                    IDC_SETTINGS_TEXT);
    m_status.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM | SBARS_SIZEGRIP, CRect(), this, IDC_STATUS_LINE);
}

void CMainFrame::TakeUsualSize()
{
    CRect rect;
    GetWindowRect(rect);
    const CRect area = WorkingArea(m_hWnd);
    const int width = std::min<int>(Scaled(kWidth, m_dpi), area.right - rect.left);
    const int height = std::min<int>(Scaled(kHeight, m_dpi), area.bottom - rect.top);
    SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMainFrame::AdjustTo(int dpi)
{
    m_dpi = dpi;
    const HFONT before = m_font;
    m_font = MakeMessageFont(dpi);
    SetFont(m_path, m_font);
    SetFont(m_text, m_font);
    SetFont(m_status, m_font);
    DeleteObject(before);
    Arrange();
}

void CMainFrame::Arrange()
{
    CRect client;
    GetClientRect(client);
    m_status.SendMessage(WM_SIZE); // it places itself
    CRect status;
    m_status.GetWindowRect(status);
    const int margin = Scaled(kMargin, m_dpi);
    const int pathHeight = LineHeight(m_font);
    const int textTop = 2 * margin + pathHeight;
    const int width = client.Width() - 2 * margin;
    m_path.MoveWindow(margin, margin, width, pathHeight);
    m_text.MoveWindow(margin, textTop, width, client.Height() - status.Height() - textTop - margin);
}

void CMainFrame::LoadSettings()
{
    for (const OptionPage& page : OptionPages())
        page.restore();
    vSSheetOptions_Restore();
    GetLastDefsNCToolsInfo()->Restore();
    LoadNcData();
    m_units = LoadUnits();
    ChangeUnits(m_units);
    ShowSettings();
}

void CMainFrame::OnSize(UINT type, int width, int height)
{
    CFrameWnd::OnSize(type, width, height);
    if (m_font)
        Arrange();
}

/// The window has come to a display of another resolution, or its display has got one. The system says which place
/// keeps it the same size to the eye.
LRESULT CMainFrame::OnDpiChanged(WPARAM dpi, LPARAM suggested)
{
    const CRect place = *reinterpret_cast<const RECT*>(suggested);
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    AdjustTo(HIWORD(dpi));
    return 0;
}

void CMainFrame::OnDestroy()
{
    ListenToSaves({});
    DeleteObject(m_font);
    CFrameWnd::OnDestroy();
}

void CMainFrame::OnExit()
{
    PostMessage(WM_CLOSE);
}

void CMainFrame::OnNcOptions()
{
    COptionsSheet(this, m_units, COptionsSheet::Use::Edit).DoModal();
    ShowSettings();
}

void CMainFrame::OnNcOptionsReadOnly()
{
    COptionsSheet(this, m_units, COptionsSheet::Use::Look).DoModal();
}

void CMainFrame::OnNcDefaults()
{
    ShowNcDefaults(this);
    ShowSettings();
}

void CMainFrame::OnNcDefaultTools()
{
    ShowDefaultTools(this, m_units);
    ShowSettings();
}

void CMainFrame::OnNcDefaultsFile()
{
    ShowDefaultsFileChooser(this);
}

void CMainFrame::OnNcTemplates()
{
    ShowTemplateOptions(this);
}

void CMainFrame::OnNcSetupSheet()
{
    ShowSetupSheetOptions(this, m_units);
    ShowSettings();
}

/// The review, and from there the page or dialog that the user wants to see.
void CMainFrame::OnNcReview()
{
    const SettingPlace place = ShowSettingsReview(this);
    ShowSettings();
    if (!place.templateId)
        return;
    if (place.templateId == CDefsSetupsheet::IDD)
        ShowSetupSheetOptions(this, m_units, place.controlId);
    else
        COptionsSheet(this, m_units, COptionsSheet::Use::Edit, place).DoModal();
    ShowSettings();
}

void CMainFrame::OnHelpContents()
{
    ShowHelpContents(*this);
}

void CMainFrame::OnAbout()
{
    ShowAboutBox(this);
}

/// What a restart of the program does for the NC module, and a word on what it brought into effect.
void CMainFrame::OnRestart()
{
    FinalizePelmarDlgsDLL();
    StartNcModule();
    LoadSettings();
    AfxMessageBox(SettingsInEffect(), MB_OK | MB_ICONINFORMATION);
}

void CMainFrame::OnInch()
{
    ChangeUnits(0);
}

void CMainFrame::OnMillimetre()
{
    ChangeUnits(1);
}

void CMainFrame::ChangeUnits(int units)
{
    for (const OptionPage& page : OptionPages())
        page.convert(units);
    SetToolLibraryUnits(units);
    if (m_units != units)
        PendingSave().Save(IDS_WHAT_UNITS, [units] { SaveUnits(units); });
    m_units = units;
    const UINT item = units == 1 ? ID_UNITS_MILLIMETRE : ID_UNITS_INCH;
    CheckMenuRadioItem(::GetMenu(m_hWnd), ID_UNITS_INCH, ID_UNITS_MILLIMETRE, item, MF_BYCOMMAND);
}

void CMainFrame::ShowSettings()
{
    const CString text = NcSettingsText();
    m_path.SetWindowText(Text(IDS_SETTINGS_FILE) + L" " + NcSettingsPath());
    m_text.SetWindowText(text.IsEmpty() ? Text(IDS_NO_SETTINGS_YET) : text);
}

void CMainFrame::ShowSaved(UINT what, const CString& file)
{
    CString text;
    AfxFormatString2(text, IDS_SAVED, Text(what), file);
    m_status.SetText(text, 0, 0);
}
