#include "PelmarDlgs/pages/hole_process.h"

#include <filesystem>

#include "PelmarDlgs/settings_locations.h"
#include "frame/fixed_text.h"
#include "frame/module.h"
#include "pages/hole_process_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

namespace {
/// One direction of a row: its button and the button's icons.
struct DirectionButton {
    int id;
    UINT icon;
    UINT chosenIcon;
};

// In the order of the directions.
constexpr DirectionButton kMajorButtons[kHoleDirections] = {
    {IDC_HOLE_MAJOR_RIGHT, IDI_RIGHT, IDI_RIGHT_CHOSEN},
    {IDC_HOLE_MAJOR_LEFT, IDI_LEFT, IDI_LEFT_CHOSEN},
    {IDC_HOLE_MAJOR_UP, IDI_UP, IDI_UP_CHOSEN},
    {IDC_HOLE_MAJOR_DOWN, IDI_DOWN, IDI_DOWN_CHOSEN},
};

constexpr DirectionButton kStepButtons[kHoleDirections] = {
    {IDC_HOLE_STEP_RIGHT, IDI_RIGHT, IDI_RIGHT_CHOSEN},
    {IDC_HOLE_STEP_LEFT, IDI_LEFT, IDI_LEFT_CHOSEN},
    {IDC_HOLE_STEP_UP, IDI_UP, IDI_UP_CHOSEN},
    {IDC_HOLE_STEP_DOWN, IDI_DOWN, IDI_DOWN_CHOSEN},
};

constexpr DirectionButton kAccurateButtons[kHoleDirections] = {
    {IDC_HOLE_ACCURATE_RIGHT_DOWN, IDI_APPROACH_RIGHT_DOWN, IDI_APPROACH_RIGHT_DOWN_CHOSEN},
    {IDC_HOLE_ACCURATE_LEFT_DOWN, IDI_APPROACH_LEFT_DOWN, IDI_APPROACH_LEFT_DOWN_CHOSEN},
    {IDC_HOLE_ACCURATE_RIGHT_UP, IDI_APPROACH_RIGHT_UP, IDI_APPROACH_RIGHT_UP_CHOSEN},
    {IDC_HOLE_ACCURATE_LEFT_UP, IDI_APPROACH_LEFT_UP, IDI_APPROACH_LEFT_UP_CHOSEN},
};

using DirectionButtons = std::span<const DirectionButton, kHoleDirections>;

void EnableButtons(const CWnd& page, DirectionButtons buttons, bool enable)
{
    for (const DirectionButton& button : buttons)
        EnableControl(page, button.id, enable);
}

void ShowIcon(const CWnd& page, int id, UINT icon)
{
    // A shared icon is loaded once and lives as long as the library.
    const HANDLE image = LoadImage(ModuleInstance(), MAKEINTRESOURCE(icon), IMAGE_ICON, 0, 0,
                                   LR_DEFAULTCOLOR | LR_DEFAULTSIZE | LR_SHARED);
    if (const HWND button = ControlOf(page, id))
        SendMessage(button, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(image));
}

void ShowNormal(const CWnd& page, DirectionButtons buttons, int direction)
{
    if (IsHoleDirection(direction))
        ShowIcon(page, buttons[static_cast<size_t>(direction)].id, buttons[static_cast<size_t>(direction)].icon);
}

void ShowChosen(const CWnd& page, DirectionButtons buttons, int direction)
{
    if (IsHoleDirection(direction))
        ShowIcon(page, buttons[static_cast<size_t>(direction)].id, buttons[static_cast<size_t>(direction)].chosenIcon);
}

/// Keeps the state of a check box. True when it is another one than before.
bool StoreNewCheck(const CWnd& page, int id, int& value)
{
    const int before = value;
    if (ControlOf(page, id))
        value = IsChecked(page, id) ? 1 : 0;
    return value != before;
}

constexpr wchar_t kTemplateExtension[] = L"tvhpt";
constexpr wchar_t kTemplateFilter[] = L"Hole Process Template Files (*.tvhpt)|*.tvhpt|All (*.*)|*.*||";

/// Paths of templates and of their folder, as a settings file holds them.
using TemplateText = FixedText<256>;

enum class Axis {
    None,
    Horizontal,
    Vertical,
};

constexpr Axis AxisOf(int direction)
{
    if (!IsHoleDirection(direction))
        return Axis::None;
    return direction < 2 ? Axis::Horizontal : Axis::Vertical;
}

/// The controls' state follows the options when the page is activated, and the clicks that change it.
class HoleBinding : public BindingOf<HoleProcessDefsInfo> {
public:
    explicit HoleBinding(CExpRegenPropertyPage& page) : BindingOf(kHoleProcessPage), m_page(page) {}

    /// What the sort type allows follows at the next activation.
    void TakeSort()
    {
        record.SortType = HoleSortInRange(SelectedIndex(m_page, IDC_HOLE_SORT_TYPE).value_or(0));
        m_page.SetModified();
    }

    void TakeAccurateMode() { TakeBox(IDC_HOLE_ACCURATE_MODE, record.AccurateMode); }
    void TakeBandWidth() { TakeBox(IDC_HOLE_USE_BAND_WIDTH, record.UseBandWidth); }

    void TakeMajorDir(int direction)
    {
        const int before = record.MajorDir;
        vResetMajorDir(before);
        record.MajorDir = direction;
        vHighlightMajorDir();
        if (AxisOf(direction) != AxisOf(before)) {
            vResetStepDir(record.StepDir);
            record.Sync();
            GoOver(m_page, {Occasion::Choice, kMajorButtons[0].id});
            vHighlightStepDir();
        }
        m_page.SetModified();
    }

    void TakeStepDir(int direction)
    {
        vResetStepDir(record.StepDir);
        record.StepDir = direction;
        vHighlightStepDir();
        m_page.SetModified();
    }

    void TakeAccurateDir(int direction)
    {
        vResetAccurateDir(record.AccurateDir);
        record.AccurateDir = direction;
        vHighlightAccurateDir();
        m_page.SetModified();
    }

private:
    void TakeBox(int id, int& value)
    {
        if (StoreNewCheck(m_page, id, value))
            GoOver(m_page, {Occasion::Choice, id});
        m_page.SetModified();
    }

    void Exchange(CWnd& page, CDataExchange* exchange) override
    {
        if (ControlOf(page, IDC_HOLE_TEMPLATE)) {
            CString text(record.StartupTemplate);
            DDX_Text(exchange, IDC_HOLE_TEMPLATE, text);
            if (exchange->m_bSaveAndValidate)
                record.StartupTemplate = CStringA(text);
        }
        BindingOf::Exchange(page, exchange);
    }

    void ShowMore(CPropertyPage& page) override
    {
        for (int direction = 0; direction < kHoleDirections; ++direction) {
            vResetMajorDir(direction);
            vResetStepDir(direction);
            vResetAccurateDir(direction);
        }
        vHighlightMajorDir();
        vHighlightStepDir();
        vHighlightAccurateDir();
        page.UpdateData(FALSE);
    }

    /// The controls show the defaults at the next activation. What would be refused gives way at once.
    void ShowDefaults(CExpRegenPropertyPage& page) override { ShowInPlaceOfRefused(page); }

    void ApplyRules(CWnd&, const Occasion& occasion) override
    {
        if (occasion.Is(Occasion::Activation))
            vDisplayDirectSect();
        if (occasion.IsChoiceOf(kMajorButtons[0].id))
            vDisplayStepDirSect();
        if (occasion.Is(Occasion::Activation) || occasion.IsChoiceOf(IDC_HOLE_ACCURATE_MODE))
            vDisplayAccurateModeSect();
        if (occasion.Is(Occasion::Activation) || occasion.IsChoiceOf(IDC_HOLE_USE_BAND_WIDTH))
            vDisplayBandWidthSect();
    }

    /// "Реверс" is enabled here and disabled nowhere.
    void vDisplayDirectSect()
    {
        const bool manual = record.SortType == 0;
        const bool orthogonal = !manual && record.SortType != 1;
        EnableControl(m_page, IDC_HOLE_BIDIRECTIONAL, orthogonal);
        EnableButtons(m_page, kMajorButtons, !manual);
        EnableButtons(m_page, kStepButtons, !manual);
        if (orthogonal)
            EnableControl(m_page, IDC_HOLE_SORT_REVERSE, true);
        if (!manual)
            vDisplayStepDirSect();
    }

    /// The step can change its sense only: its axis follows the major direction.
    void vDisplayStepDirSect()
    {
        if (!IsHoleDirection(record.StepDir))
            return;
        const bool horizontal = AxisOf(record.StepDir) == Axis::Horizontal;
        EnableControl(m_page, IDC_HOLE_STEP_RIGHT, horizontal);
        EnableControl(m_page, IDC_HOLE_STEP_LEFT, horizontal);
        EnableControl(m_page, IDC_HOLE_STEP_UP, !horizontal);
        EnableControl(m_page, IDC_HOLE_STEP_DOWN, !horizontal);
    }

    void vDisplayAccurateModeSect()
    {
        if (record.AccurateMode != 0 && record.AccurateMode != 1)
            return;
        const bool accurate = record.AccurateMode == 1;
        EnableControl(m_page, IDC_HOLE_ACCURATE_DISTANCE, accurate);
        EnableControl(m_page, IDC_HOLE_ACCURATE_FEED_RATE, accurate);
        EnableButtons(m_page, kAccurateButtons, accurate);
    }

    void vDisplayBandWidthSect()
    {
        const bool bands = record.SortType != 0 && record.SortType != 1;
        EnableControl(m_page, IDC_HOLE_USE_BAND_WIDTH, bands);
        if (!bands || record.UseBandWidth == 0)
            EnableControl(m_page, IDC_HOLE_BAND_WIDTH, false);
        else if (record.UseBandWidth == 1)
            EnableControl(m_page, IDC_HOLE_BAND_WIDTH, true);
    }

    void vHighlightMajorDir() { ShowChosen(m_page, kMajorButtons, record.MajorDir); }
    void vHighlightStepDir() { ShowChosen(m_page, kStepButtons, record.StepDir); }
    void vHighlightAccurateDir() { ShowChosen(m_page, kAccurateButtons, record.AccurateDir); }
    void vResetMajorDir(int direction) { ShowNormal(m_page, kMajorButtons, direction); }
    void vResetStepDir(int direction) { ShowNormal(m_page, kStepButtons, direction); }
    void vResetAccurateDir(int direction) { ShowNormal(m_page, kAccurateButtons, direction); }

    CExpRegenPropertyPage& m_page;
};

HoleBinding& HoleOf(PageBinding& binding)
{
    return static_cast<HoleBinding&>(binding);
}
} // namespace

static_assert(int{DefsHoleProcessPage::IDD} == IDD_HOLE_PROCESS);

IMPLEMENT_DYNCREATE(DefsHoleProcessPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(DefsHoleProcessPage, pelmar::CRecordPage)
    ON_CBN_SELCHANGE(IDC_HOLE_SORT_TYPE, &DefsHoleProcessPage::OnSelChangeSortBy)
    ON_BN_CLICKED(IDC_HOLE_CHOOSE_TEMPLATE, &DefsHoleProcessPage::OnSelFile)
    ON_BN_CLICKED(IDC_HOLE_MAJOR_RIGHT, &DefsHoleProcessPage::OnSelMajorRight)
    ON_BN_CLICKED(IDC_HOLE_MAJOR_LEFT, &DefsHoleProcessPage::OnSelMajorLeft)
    ON_BN_CLICKED(IDC_HOLE_MAJOR_UP, &DefsHoleProcessPage::OnSelMajorUp)
    ON_BN_CLICKED(IDC_HOLE_MAJOR_DOWN, &DefsHoleProcessPage::OnSelMajorDown)
    ON_BN_CLICKED(IDC_HOLE_STEP_RIGHT, &DefsHoleProcessPage::OnSelStepRight)
    ON_BN_CLICKED(IDC_HOLE_STEP_LEFT, &DefsHoleProcessPage::OnSelStepLeft)
    ON_BN_CLICKED(IDC_HOLE_STEP_UP, &DefsHoleProcessPage::OnSelStepUp)
    ON_BN_CLICKED(IDC_HOLE_STEP_DOWN, &DefsHoleProcessPage::OnSelStepDown)
    ON_BN_CLICKED(IDC_HOLE_ACCURATE_RIGHT_DOWN, &DefsHoleProcessPage::OnSelAccurateRD)
    ON_BN_CLICKED(IDC_HOLE_ACCURATE_LEFT_DOWN, &DefsHoleProcessPage::OnSelAccurateLD)
    ON_BN_CLICKED(IDC_HOLE_ACCURATE_RIGHT_UP, &DefsHoleProcessPage::OnSelAccurateRU)
    ON_BN_CLICKED(IDC_HOLE_ACCURATE_LEFT_UP, &DefsHoleProcessPage::OnSelAccurateLU)
    ON_BN_CLICKED(IDC_HOLE_ACCURATE_MODE, &DefsHoleProcessPage::OnCheckAccurateMode)
    ON_BN_CLICKED(IDC_HOLE_USE_BAND_WIDTH, &DefsHoleProcessPage::OnCheckBandWidth)
END_MESSAGE_MAP()

DefsHoleProcessPage::DefsHoleProcessPage() : CRecordPage(IDD, new HoleBinding(*this)) {}

void DefsHoleProcessPage::OnSelChangeSortBy()
{
    HoleOf(Binding()).TakeSort();
}

void DefsHoleProcessPage::OnCheckAccurateMode()
{
    HoleOf(Binding()).TakeAccurateMode();
}

void DefsHoleProcessPage::OnCheckBandWidth()
{
    HoleOf(Binding()).TakeBandWidth();
}

void DefsHoleProcessPage::OnSelFile()
{
    CStringA& startupTemplate = HoleOf(Binding()).record.StartupTemplate;
    const auto folder = TemplateText::FromProfile("DefaultPath", "HoleProcessTemplates", "",
                                                  GetSettingsLocations().hostSettingsFile.c_str());
    const CString initialFolder(folder.c_str());
    CFileDialog dialog(TRUE, kTemplateExtension, CString(startupTemplate),
                       OFN_LONGNAMES | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kTemplateFilter, this);
    dialog.m_ofn.lpstrInitialDir = initialFolder;
    // The dialog moves the process's current folder, which relative settings paths start from.
    std::error_code ignored;
    const auto current = std::filesystem::current_path(ignored);
    const INT_PTR result = dialog.DoModal();
    std::filesystem::current_path(current, ignored);
    if (result != IDOK)
        return;
    startupTemplate = CStringA(dialog.GetPathName());
    // The other controls show their fields again too: what was typed and not yet taken is gone.
    UpdateData(FALSE);
    SetModified();
}

// ---- direction buttons ----

void DefsHoleProcessPage::OnSelMajorRight()
{
    HoleOf(Binding()).TakeMajorDir(0);
}

void DefsHoleProcessPage::OnSelMajorLeft()
{
    HoleOf(Binding()).TakeMajorDir(1);
}

void DefsHoleProcessPage::OnSelMajorUp()
{
    HoleOf(Binding()).TakeMajorDir(2);
}

void DefsHoleProcessPage::OnSelMajorDown()
{
    HoleOf(Binding()).TakeMajorDir(3);
}

void DefsHoleProcessPage::OnSelStepRight()
{
    HoleOf(Binding()).TakeStepDir(0);
}

void DefsHoleProcessPage::OnSelStepLeft()
{
    HoleOf(Binding()).TakeStepDir(1);
}

void DefsHoleProcessPage::OnSelStepUp()
{
    HoleOf(Binding()).TakeStepDir(2);
}

void DefsHoleProcessPage::OnSelStepDown()
{
    HoleOf(Binding()).TakeStepDir(3);
}

void DefsHoleProcessPage::OnSelAccurateRD()
{
    HoleOf(Binding()).TakeAccurateDir(0);
}

void DefsHoleProcessPage::OnSelAccurateLD()
{
    HoleOf(Binding()).TakeAccurateDir(1);
}

void DefsHoleProcessPage::OnSelAccurateRU()
{
    HoleOf(Binding()).TakeAccurateDir(2);
}

void DefsHoleProcessPage::OnSelAccurateLU()
{
    HoleOf(Binding()).TakeAccurateDir(3);
}
