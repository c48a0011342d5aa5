#include "nc_dialogs.h"

#include <PelmarDlgs.h>

#include "dialog_frame.h"
#include "nc_data.h"
#include "option_pages.h"
#include "pending_save.h"
#include "resource.h"
#include "tool_library.h"

using namespace pelmar;

namespace {

template <class Dialog, class Data> Data DataOf(void (Dialog::*setData)(Data*));

/// What the host keeps for a dialog.
template <class Data> struct Kept {
    Data& data;
    UINT what;      ///< string id of what is saved
    void (*save)(); ///< saves what the dialog does not save by itself
};

/// A dialog of the library's with the host's data, and with a button for the defaults beside its own ones.
template <class Dialog> class CWithDefaults : public Dialog {
public:
    using Data = decltype(DataOf(&Dialog::SetData));

    CWithDefaults(CWnd* parent, Kept<Data> kept) : Dialog(parent), m_kept(kept) {}

    BOOL OnInitDialog() override
    {
        Dialog::OnInitDialog();
        this->GetData(&m_kept.data);
        this->UpdateData(FALSE);
        AddButton();
        return TRUE;
    }

protected:
    void OnOK() override
    {
        if (!this->UpdateData(TRUE))
            return;
        if (m_save.Save(m_kept.what, [this] { Store(); }))
            Dialog::OnOK();
    }
    void OnDefaults()
    {
        this->SendMessage(kSetDefaultsMessage);
        this->UpdateData(FALSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    /// The question first, which may take values back; then the data, with the settings that the last message writes.
    void Store()
    {
        this->SendMessage(kCheckSaveDataMessage);
        this->SetData(&m_kept.data);
        this->SendMessage(kWriteToIniMessage);
        m_kept.save();
    }

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

    Kept<Data> m_kept;
    PendingSave m_save;
    CButton m_defaults;
};

BEGIN_TEMPLATE_MESSAGE_MAP(CWithDefaults, Dialog, Dialog)
    ON_BN_CLICKED(IDC_PAGE_DEFAULTS, &CWithDefaults::OnDefaults)
END_MESSAGE_MAP()

/// The review of the settings, open until the records are saved.
class CReview : public CSettingsReviewDlg {
public:
    using CSettingsReviewDlg::CSettingsReviewDlg;

protected:
    void OnOK() override
    {
        if (!UpdateData(TRUE))
            return;
        const auto store = [this] {
            SetData();
            SaveAll();
            vSSheetOptions_Save();
        };
        if (m_save.Save(IDS_WHAT_OPTIONS, store))
            CSettingsReviewDlg::OnOK();
    }

private:
    PendingSave m_save;
};

/// Shows a dialog that keeps its settings by itself.
template <class Dialog> void ShowFramed(CWnd* parent, UINT title)
{
    Dialog dialog;
    CDialogFrame(parent, {dialog, Dialog::IDD, title, [] {}, [] {}, [] {}}).DoModal();
}

} // namespace

void ShowNcDefaults(CWnd* parent)
{
    CWithDefaults<CDefsNCDefaultsDlg>(parent, {NcDefaults(), IDS_WHAT_NC_DEFAULTS, SaveNcDefaults}).DoModal();
}

void ShowDefaultTools(CWnd* parent, int units)
{
    // The dialog opens in the units of the tool library, which stays in those that the dialog last had.
    SetToolLibraryUnits(units);
    CWithDefaults<CDefsNCToolsDlg>(parent, {DefaultTools(), IDS_WHAT_DEFAULT_TOOLS, SaveDefaultTools}).DoModal();
    // A click in a tool list counts at once, whatever the dialog was left with.
    PendingSave().Save(IDS_WHAT_TOOL_LISTS, SaveBallToolSwitch);
}

void ShowDefaultsFileChooser(CWnd* parent)
{
    ShowFramed<CNCDefaultPath>(parent, IDS_DEFAULTS_FILE_TITLE);
}

void ShowTemplateOptions(CWnd* parent)
{
    ShowFramed<CTemplateOptions>(parent, IDS_TEMPLATES_TITLE);
}

void ShowSetupSheetOptions(CWnd* parent, int units, int controlId)
{
    CDefsSetupsheet dialog;
    const auto fill = [&] {
        dialog.GetData(units);
        if (const HWND control = controlId ? ::GetDlgItem(dialog.m_hWnd, controlId) : nullptr)
            dialog.PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    };
    const auto store = [&dialog] {
        dialog.SetData();
        vSSheetOptions_Save();
    };
    CDialogFrame(parent, {dialog, CDefsSetupsheet::IDD, IDS_SETUP_SHEET_TITLE, fill, store,
                          [&dialog] { dialog.UpdateData(FALSE); }})
        .DoModal();
}

SettingPlace ShowSettingsReview(CWnd* parent)
{
    CReview review(parent);
    review.DoModal();
    return review.Destination();
}
