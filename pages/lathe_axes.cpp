#include "PelmarDlgs/pages/lathe_axes.h"

#include "frame/module.h"
#include "pages/lathe_controls.h"
#include "pages/page_controls.h"
#include "resources/resource.h"

using namespace pelmar;

namespace {
constexpr ChoiceText kLabels[] = {"-", "X", "Y", "Z", "D", "R"};

constexpr int kLabelLists[] = {IDC_LATHE_AXES_LABEL_1, IDC_LATHE_AXES_LABEL_2, IDC_LATHE_AXES_LABEL_3};

/// The edits of the directions: a row for each axis, X, Y and Z in it.
constexpr int kDirectionEdits[3][3] = {
    {IDC_LATHE_AXES_X_1, IDC_LATHE_AXES_Y_1, IDC_LATHE_AXES_Z_1},
    {IDC_LATHE_AXES_X_2, IDC_LATHE_AXES_Y_2, IDC_LATHE_AXES_Z_2},
    {IDC_LATHE_AXES_X_3, IDC_LATHE_AXES_Y_3, IDC_LATHE_AXES_Z_3},
};

/// A text of the string table, and what stands for it where the table lacks it.
struct Text {
    UINT id;
    const wchar_t* fallback;

    CString Load() const
    {
        const CString text = LoadText(id);
        return text.IsEmpty() ? CString(fallback) : text;
    }
};

constexpr Text kInputAtStartup{IDS_LATHE_INPUT_AT_STARTUP, L"Match Keyboard Input labels on Startup"};
constexpr Text kDisplayAtStartup{IDS_LATHE_DISPLAY_AT_STARTUP, L"Match C-View Display labels on Startup"};
constexpr Text kBothInputsActive{
    IDS_LATHE_BOTH_INPUTS_ACTIVE,
    L"Cannot have Both Lathe Rad and Diam Keyboard input checked... Only one can be enabled at startup"};
constexpr Text kBothDisplaysActive{
    IDS_LATHE_BOTH_DISPLAYS_ACTIVE,
    L"Cannot have Both Lathe Rad and Diam Display Knome checked... Only one can be enabled at startup"};
constexpr Text kOverrideQuestion{IDS_LATHE_OVERRIDE_QUESTION,
                                 L"Do you want to overide the varible and set Current setting to active?"};

void RenameTab(CTabCtrl& tabs, int index, UINT text)
{
    CString name = LoadText(text);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(name.GetString()); // the tab only reads it
    tabs.SetItem(index, &item);
}
} // namespace

// ---- the page ----

static_assert(int{CLatheInputDisplayPage::IDD} == IDD_LATHE_AXES);

IMPLEMENT_DYNAMIC(CLatheInputDisplayPage, CPropertyPageTVEx)

BEGIN_MESSAGE_MAP(CLatheInputDisplayPage, CPropertyPageTVEx)
    ON_BN_CLICKED(IDC_LATHE_AXES_ACTIVE, &CLatheInputDisplayPage::OnActiveAtStartup)
    ON_COMMAND(ID_HELP, &CLatheInputDisplayPage::OnHelp)
END_MESSAGE_MAP()

/// The mode as the page edits it.
class pelmar::LatheAxisEditor {
public:
    explicit LatheAxisEditor(LatheAxisUse axisUse) : use(axisUse) {}

    void Show(CLatheInputDisplayPage& page)
    {
        const Text& atStartup = use == LatheAxisUse::Input ? kInputAtStartup : kDisplayAtStartup;
        page.SetDlgItemText(IDC_LATHE_AXES_ACTIVE, atStartup.Load());
        working = page.m_mode;
        for (size_t axis = 0; axis < std::size(kLabelLists); ++axis) {
            FillList(page, kLabelLists[axis], kLabels);
            SelectIndex(page, kLabelLists[axis], working.labels[axis]);
        }
        page.UpdateData(FALSE);
    }

    /// The page's window has been made, for the first time or once more.
    void Begin()
    {
        isFirstActivation = true;
        overridesOther = false;
    }

    const LatheAxisUse use;
    bool isFirstActivation = true;
    LatheAxisMode working;
    bool overridesOther = false;
};

CLatheInputDisplayPage::CLatheInputDisplayPage(LatheAxisUse use)
    : CPropertyPageTVEx(IDD), m_editor(new LatheAxisEditor(use))
{
    m_psp.hInstance = ModuleInstance();
    m_psp.dwFlags &= ~DWORD{PSP_HASHELP}; // the lathe's topic tells of it, which its page has a button for
}

CLatheInputDisplayPage::~CLatheInputDisplayPage()
{
    delete m_editor;
}

bool CLatheInputDisplayPage::OverridesOther() const
{
    return m_editor->overridesOther;
}

BOOL CLatheInputDisplayPage::OnInitDialog()
{
    m_editor->Begin();
    return CPropertyPageTVEx::OnInitDialog();
}

BOOL CLatheInputDisplayPage::OnSetActive()
{
    if (m_editor->isFirstActivation)
        m_editor->Show(*this);
    m_editor->isFirstActivation = false;
    return CPropertyPageTVEx::OnSetActive();
}

void CLatheInputDisplayPage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPageTVEx::DoDataExchange(exchange);
    LatheAxisMode& working = m_editor->working;
    for (size_t axis = 0; axis < std::size(kDirectionEdits); ++axis)
        for (size_t component = 0; component < std::size(kDirectionEdits[axis]); ++component)
            if (const int id = kDirectionEdits[axis][component]; ControlOf(*this, id))
                DDX_Expression(exchange, id, working.directions[axis][component]);
    if (!exchange->m_bSaveAndValidate)
        ShowCheck(*this, IDC_LATHE_AXES_ACTIVE, working.active != 0);
    else if (ControlOf(*this, IDC_LATHE_AXES_ACTIVE))
        working.active = IsChecked(*this, IDC_LATHE_AXES_ACTIVE) ? 1 : 0;
}

void CLatheInputDisplayPage::OnActiveAtStartup()
{
    // A number that is refused does not spare the question: both modes must not become active unasked.
    UpdateData(TRUE);
    if (!IsDlgButtonChecked(IDC_LATHE_AXES_ACTIVE) || !m_otherIsActive)
        return;
    const Text& conflict = m_editor->use == LatheAxisUse::Input ? kBothInputsActive : kBothDisplaysActive;
    AfxMessageBox(conflict.Load());
    m_editor->overridesOther = AfxMessageBox(kOverrideQuestion.Load(), MB_YESNO | MB_ICONSTOP) == IDYES;
    if (m_editor->overridesOther)
        return;
    m_editor->working.active = 0;
    ShowCheck(*this, IDC_LATHE_AXES_ACTIVE, false);
}

void CLatheInputDisplayPage::OnOK()
{
    for (size_t axis = 0; axis < std::size(kLabelLists); ++axis)
        StoreSelection(*this, kLabelLists[axis], m_editor->working.labels[axis]);
    m_mode = m_editor->working;
    CPropertyPageTVEx::OnOK();
}

void CLatheInputDisplayPage::OnHelp()
{
    ShowHelp(*this, GetCurrentMessage()->pt, kLathePage.topic, {});
}

// ---- the sheet ----

IMPLEMENT_DYNAMIC(CLatheInputDisplayPS, CPropertySheetTVEx)

CLatheInputDisplayPS::CLatheInputDisplayPS(LPCTSTR caption, CWnd* parent, UINT firstPage)
    : CPropertySheetTVEx(caption, parent, firstPage)
{
    AddPage(&m_input);
    AddPage(&m_display);
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

BOOL CLatheInputDisplayPS::OnInitDialog()
{
    const BOOL result = CPropertySheetTVEx::OnInitDialog();
    CTabCtrl& tabs = *GetTabControl();
    if (tabs.GetItemCount() == 2) {
        RenameTab(tabs, 0, IDS_LATHE_TAB_INPUT);
        RenameTab(tabs, 1, IDS_LATHE_TAB_DISPLAY);
    }
    return result;
}
