#include "nc_dialogs.h"

#include <PelmarDlgs.h>

#include "dialog_frame.h"
#include "resource.h"

using namespace pelmar;

namespace {

template <class Dialog, class Data> Data DataOf(void (Dialog::*setData)(Data*));

/// A dialog of the library's with the host's data, and with a button for the defaults beside its own ones.
template <class Dialog> class CWithDefaults : public Dialog {
public:
    using Data = decltype(DataOf(&Dialog::SetData));

    CWithDefaults(CWnd* parent, Data& data) : Dialog(parent), m_data(data) {}

    BOOL OnInitDialog() override
    {
        Dialog::OnInitDialog();
        this->GetData(&m_data);
        this->UpdateData(FALSE);
        AddButton();
        return TRUE;
    }

protected:
    void OnOK() override
    {
        if (!this->UpdateData(TRUE))
            return;
        this->SendMessage(kWriteToIniMessage);
        this->SendMessage(kCheckSaveDataMessage);
        this->SetData(&m_data);
        Dialog::OnOK();
    }
    void OnDefaults()
    {
        this->SendMessage(kSetDefaultsMessage);
        this->UpdateData(FALSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    /// In the row of the dialog's own buttons, at the left border.
    void AddButton()
    {
        CRect rect;
        ::GetWindowRect(::GetDlgItem(this->m_hWnd, IDOK), rect);
        MapWindowPoints(nullptr, this->m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        CRect margin(7, 0, 0, 0);
        MapDialogRect(this->m_hWnd, margin);
        rect.right = margin.left + rect.Width() * 5 / 4;
        rect.left = margin.left;
        CString text;
        text.LoadString(IDS_PAGE_DEFAULTS);
        m_defaults.CreateEx(0, L"BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, this, IDC_PAGE_DEFAULTS);
        m_defaults.SendMessage(WM_SETFONT, static_cast<WPARAM>(this->SendMessage(WM_GETFONT)), TRUE);
    }

    Data& m_data;
    CButton m_defaults;
};

BEGIN_TEMPLATE_MESSAGE_MAP(CWithDefaults, Dialog, Dialog)
    ON_BN_CLICKED(IDC_PAGE_DEFAULTS, &CWithDefaults::OnDefaults)
END_MESSAGE_MAP()

/// Shows a dialog that keeps its settings by itself.
template <class Dialog> void ShowFramed(CWnd* parent, UINT title)
{
    Dialog dialog;
    CDialogFrame(parent, {dialog, Dialog::IDD, title, [] {}, [] { return true; }, [] {}}).DoModal();
}

} // namespace

void ShowNcDefaults(CWnd* parent)
{
    static OptNCDefData kept;
    CWithDefaults<CDefsNCDefaultsDlg>(parent, kept).DoModal();
}

void ShowDefaultTools(CWnd* parent)
{
    static OptNCDefToolsData kept;
    CWithDefaults<CDefsNCToolsDlg>(parent, kept).DoModal();
}

void ShowDefaultsFileChooser(CWnd* parent)
{
    ShowFramed<CNCDefaultPath>(parent, IDS_DEFAULTS_FILE_TITLE);
}

void ShowTemplateOptions(CWnd* parent)
{
    ShowFramed<CTemplateOptions>(parent, IDS_TEMPLATES_TITLE);
}

void ShowSetupSheetOptions(CWnd* parent, int units)
{
    CDefsSetupsheet dialog;
    const auto accept = [&dialog] {
        dialog.SetData();
        vSSheetOptions_Save();
        return true;
    };
    CDialogFrame(parent, {dialog, CDefsSetupsheet::IDD, IDS_SETUP_SHEET_TITLE, [&] { dialog.GetData(units); }, accept,
                          [&dialog] { dialog.UpdateData(FALSE); }})
        .DoModal();
}
