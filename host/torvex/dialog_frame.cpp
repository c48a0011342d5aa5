#include "dialog_frame.h"

#include <PelmarDlgs.h>

using namespace pelmar;

BEGIN_MESSAGE_MAP(CDialogFrame, CDialog)
    ON_BN_CLICKED(IDC_PAGE_DEFAULTS, &CDialogFrame::OnDefaults)
    ON_COMMAND(ID_HELP, &CDialogFrame::OnHelp)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

CDialogFrame::CDialogFrame(CWnd* parent, FramedDialog framed)
    : CDialog(IDD_DIALOG_FRAME, parent), m_framed(std::move(framed))
{
}

BOOL CDialogFrame::OnInitDialog()
{
    CDialog::OnInitDialog();
    MarkAsDefaultsButton(::GetDlgItem(m_hWnd, IDC_PAGE_DEFAULTS));
    CString title;
    title.LoadString(m_framed.title);
    SetWindowText(title);
    if (!m_framed.dialog.Create(m_framed.templateId, this)) {
        EndDialog(IDCANCEL);
        return TRUE;
    }
    Arrange();
    m_framed.fill();
    m_framed.dialog.ShowWindow(SW_SHOW);
    return TRUE;
}

/// Takes the dialog's caption away, which the frame has instead, and makes the frame as large as the dialog and its own
/// row of buttons.
void CDialogFrame::Arrange()
{
    const HWND dialog = m_framed.dialog.m_hWnd;
    CRect size;
    ::GetClientRect(dialog, size);
    SetWindowLongPtr(dialog, GWL_STYLE, GetWindowLongPtr(dialog, GWL_STYLE) & ~LONG_PTR{WS_CAPTION});
    ::SetWindowPos(dialog, HWND_TOP, 0, 0, size.Width(), size.Height(), SWP_FRAMECHANGED);

    CRect row;
    GetClientRect(row);
    const int width = row.Width() > size.Width() ? row.Width() : size.Width();
    for (HWND button = ::GetWindow(m_hWnd, GW_CHILD); button; button = ::GetWindow(button, GW_HWNDNEXT)) {
        if (button == dialog)
            continue;
        CRect rect;
        ::GetWindowRect(button, rect);
        MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        // The defaults are for the whole dialog and stand apart at the left; the others keep to the right border.
        const int moved = ::GetDlgCtrlID(button) == IDC_PAGE_DEFAULTS ? 0 : width - row.Width();
        ::SetWindowPos(button, nullptr, rect.left + moved, rect.top + size.Height(), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    CRect frame;
    GetWindowRect(frame);
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, frame.Width() - row.Width() + width, frame.Height() + size.Height(),
                   SWP_NOMOVE | SWP_NOZORDER);
}

void CDialogFrame::OnOK()
{
    if (!m_framed.dialog.UpdateData(TRUE))
        return;
    const auto store = [this] {
        m_framed.dialog.SendMessage(kCheckSaveDataMessage);
        m_framed.store();
    };
    if (m_save.Save(m_framed.title, store))
        CDialog::OnOK();
}

void CDialogFrame::OnDefaults()
{
    m_framed.dialog.SendMessage(kSetDefaultsMessage);
    m_framed.defaults();
}

void CDialogFrame::OnHelp()
{
    m_framed.dialog.SendMessage(WM_COMMAND, ID_HELP);
}

/// Help that is asked for on the frame's own buttons is the dialog's.
BOOL CDialogFrame::OnHelpInfo(HELPINFO* info)
{
    return m_framed.dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(info)) != 0;
}
