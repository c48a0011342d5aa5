#include "pages/hole_process.h"

#include <filesystem>

#include "frame/fixed_text.h"
#include "frame/module.h"
#include "frame/settings_locations.h"
#include "pages/description.h"
#include "pages/record_page_tables.h"
#include "resources/resource.h"

namespace {
using Record = HoleProcessDefsInfo;

// ---- the record ----

constexpr int kDirectionCount = 4;

constexpr bool IsDirection(int direction)
{
    return direction >= 0 && direction < kDirectionCount;
}

enum class Axis {
    None,
    Horizontal,
    Vertical,
};

constexpr Axis AxisOf(int direction)
{
    if (!IsDirection(direction))
        return Axis::None;
    return direction < 2 ? Axis::Horizontal : Axis::Vertical;
}

constexpr int SortTypeInRange(int sortType)
{
    return sortType == 1 || sortType == 2 ? sortType : 0;
}

constexpr int DirectionInRange(int direction)
{
    return IsDirection(direction) ? direction : 0;
}

// The template is not here: it is a text, and it is read from another place than it is written to.
constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    Field<Record>("RecalcAuto", &Record::RecalcAuto).AbsentFromDefaults(),
    Field<Record>("SortType", &Record::SortType).Sanitized(SortTypeInRange),
    Field<Record>("MajorDir", &Record::MajorDir).Sanitized(DirectionInRange),
    Field<Record>("StepDir", &Record::StepDir).Sanitized(DirectionInRange).ThenRun(&Record::Sync),
    {"Bidirectional", &Record::Bidirectional},
    {"UseBandWidth", &Record::UseBandWidth},
    {"BandWidth", &Record::BandWidth, Scaling::Always},
    {"AccurateMode", &Record::AccurateMode},
    Field<Record>("AccurateDir", &Record::AccurateDir).Sanitized(DirectionInRange),
    {"AccurateDist", &Record::AccurateDist, Scaling::Always},
    {"AccurateFeedRate", &Record::AccurateFeedRate, Scaling::Always},
    {"SortReverse", &Record::SortReverse},
    {"SortBiasToVector", &Record::SortBiasToVector},
};

constexpr char kSection[] = "HoleProcessLocation";
constexpr char kTemplateKey[] = "StartupTemplate";

RecordKind<Record> g_kind(kSection, kFields);

/// Paths of templates and of their folder, as a settings file holds them.
using TemplateText = FixedText<256>;

// ---- the page's controls ----

// The template comes before these.
constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_HOLE_BIDIRECTIONAL, &Record::Bidirectional, Binding::Check},
    {IDC_HOLE_ACCURATE_MODE, &Record::AccurateMode, Binding::Check},
    {IDC_HOLE_ACCURATE_DISTANCE, &Record::AccurateDist, kNotNegative},
    {IDC_HOLE_ACCURATE_FEED_RATE, &Record::AccurateFeedRate, kNotNegative},
    {IDC_HOLE_USE_BAND_WIDTH, &Record::UseBandWidth, Binding::Check},
    {IDC_HOLE_BAND_WIDTH, &Record::BandWidth, kNotNegative},
    {IDC_HOLE_SORT_REVERSE, &Record::SortReverse, Binding::Check},
    {IDC_HOLE_SORT_BIAS_TO_VECTOR, &Record::SortBiasToVector, Binding::Check},
    {IDC_HOLE_RECALC_AUTO, &Record::RecalcAuto, Binding::Check},
};

const DescribedPage<Record> g_description(IDD_HOLE_PROCESS, g_kind, kExchange);

constexpr UINT kSorts[] = {IDS_HOLE_SORT_MANUAL, IDS_HOLE_SORT_DISTANCE, IDS_HOLE_SORT_ORTHOGONAL};

/// One direction of a row: its button and the button's icons.
struct DirectionButton {
    int id;
    UINT icon;
    UINT chosenIcon;
};

// In the order of the directions.
constexpr DirectionButton kMajorButtons[kDirectionCount] = {
    {IDC_HOLE_MAJOR_RIGHT, IDI_RIGHT, IDI_RIGHT_CHOSEN},
    {IDC_HOLE_MAJOR_LEFT, IDI_LEFT, IDI_LEFT_CHOSEN},
    {IDC_HOLE_MAJOR_UP, IDI_UP, IDI_UP_CHOSEN},
    {IDC_HOLE_MAJOR_DOWN, IDI_DOWN, IDI_DOWN_CHOSEN},
};

constexpr DirectionButton kStepButtons[kDirectionCount] = {
    {IDC_HOLE_STEP_RIGHT, IDI_RIGHT, IDI_RIGHT_CHOSEN},
    {IDC_HOLE_STEP_LEFT, IDI_LEFT, IDI_LEFT_CHOSEN},
    {IDC_HOLE_STEP_UP, IDI_UP, IDI_UP_CHOSEN},
    {IDC_HOLE_STEP_DOWN, IDI_DOWN, IDI_DOWN_CHOSEN},
};

constexpr DirectionButton kAccurateButtons[kDirectionCount] = {
    {IDC_HOLE_ACCURATE_RIGHT_DOWN, IDI_APPROACH_RIGHT_DOWN, IDI_APPROACH_RIGHT_DOWN_CHOSEN},
    {IDC_HOLE_ACCURATE_LEFT_DOWN, IDI_APPROACH_LEFT_DOWN, IDI_APPROACH_LEFT_DOWN_CHOSEN},
    {IDC_HOLE_ACCURATE_RIGHT_UP, IDI_APPROACH_RIGHT_UP, IDI_APPROACH_RIGHT_UP_CHOSEN},
    {IDC_HOLE_ACCURATE_LEFT_UP, IDI_APPROACH_LEFT_UP, IDI_APPROACH_LEFT_UP_CHOSEN},
};

using DirectionButtons = std::span<const DirectionButton, kDirectionCount>;

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
    if (IsDirection(direction))
        ShowIcon(page, buttons[static_cast<size_t>(direction)].id, buttons[static_cast<size_t>(direction)].icon);
}

void ShowChosen(const CWnd& page, DirectionButtons buttons, int direction)
{
    if (IsDirection(direction))
        ShowIcon(page, buttons[static_cast<size_t>(direction)].id, buttons[static_cast<size_t>(direction)].chosenIcon);
}

/// Keeps the state of a check box. True when it is another one than before.
bool StoreNewCheck(const CWnd& page, int id, int& value)
{
    const int before = value;
    StoreCheck(page, id, value);
    return value != before;
}

constexpr wchar_t kTemplateExtension[] = L"tvhpt";
constexpr wchar_t kTemplateFilter[] = L"Hole Process Template Files (*.tvhpt)|*.tvhpt|All (*.*)|*.*||";

constexpr char kPageTopic[] = "HM_Tools_defaults_hole_processing.htm";
constexpr char kOptionsTopic[] = "pelmar-_options_hole_processing_options.htm";
constexpr char kMajorDirTopic[] = "pelmar-_holeprocessing_hidc_hp_major_dir.htm";
constexpr char kStepDirTopic[] = "pelmar-_holeprocessing_hidc_hp_step_dir.htm";
constexpr char kAccurateDirTopic[] = "pelmar-_holeprocessing_hidc_hp_accurate_dir.htm";

constexpr HelpTopic kTopics[] = {
    {IDC_HOLE_SORT_TYPE, kOptionsTopic},
    {IDC_HOLE_TEMPLATE, kOptionsTopic},
    {IDC_HOLE_RECALC_AUTO, kOptionsTopic},
    {IDC_HOLE_SORT_REVERSE, kOptionsTopic},
    {IDC_HOLE_SORT_BIAS_TO_VECTOR, kOptionsTopic},
    {IDC_HOLE_BIDIRECTIONAL, "pelmar-_holeprocessing_hidc_hp_bidirectional.htm"},
    {IDC_HOLE_MAJOR_RIGHT, kMajorDirTopic},
    {IDC_HOLE_MAJOR_LEFT, kMajorDirTopic},
    {IDC_HOLE_MAJOR_UP, kMajorDirTopic},
    {IDC_HOLE_MAJOR_DOWN, kMajorDirTopic},
    {IDC_HOLE_STEP_RIGHT, kStepDirTopic},
    {IDC_HOLE_STEP_LEFT, kStepDirTopic},
    {IDC_HOLE_STEP_UP, kStepDirTopic},
    {IDC_HOLE_STEP_DOWN, kStepDirTopic},
    {IDC_HOLE_ACCURATE_RIGHT_DOWN, kAccurateDirTopic},
    {IDC_HOLE_ACCURATE_LEFT_DOWN, kAccurateDirTopic},
    {IDC_HOLE_ACCURATE_RIGHT_UP, kAccurateDirTopic},
    {IDC_HOLE_ACCURATE_LEFT_UP, kAccurateDirTopic},
    {IDC_HOLE_ACCURATE_FEED_RATE, "pelmar-_holeprocessing_hidc_hp_accurate_feedrate.htm"},
    {IDC_HOLE_BAND_WIDTH, "pelmar-_holeprocessing_hidc_hp_bandwidth.htm"},
};

const PageTables<Record> kTables{g_kind, kExchange, {}, {}, kPageTopic, kTopics};

} // namespace

// ---- the record's operations ----

void HoleProcessDefsInfo::Defaults()
{
    Record builtIn;
    builtIn.StartupTemplate = StartupTemplate;
    // The units alone stand in a section of their own.
    g_kind.Defaults(*this, builtIn, ReadDefaultWhole("HoleProcess", "Units", Units));
}

void HoleProcessDefsInfo::HoleProcessDefs_Save()
{
    g_kind.Save(*this);
    // The system-wide profile knows the template whatever settings file is in use.
    WriteProfileStringA(kSection, kTemplateKey, StartupTemplate.c_str());
}

void HoleProcessDefsInfo::HoleProcessDefs_Restore()
{
    // Not what was saved, which is in the system-wide profile: a settings file names a template of its own or none.
    StartupTemplate =
        TemplateText::FromProfile(kSection, kTemplateKey, "", GetSettingsLocations().settingsFile.c_str()).c_str();
    g_kind.Restore(*this);
}

void HoleProcessDefsInfo::HoleProcessDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

void HoleProcessDefsInfo::Sync()
{
    const Axis axis = AxisOf(MajorDir);
    if (axis == Axis::None || axis != AxisOf(StepDir))
        return;
    StepDir = axis == Axis::Horizontal ? 2 : 0;
}

HoleProcessDefsInfo* GetLastHoleProcessDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{DefsHoleProcessPage::IDD} == IDD_HOLE_PROCESS);

IMPLEMENT_DYNCREATE(DefsHoleProcessPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(DefsHoleProcessPage, CExpRegenPropertyPage)
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
    ON_COMMAND(ID_HELP, &DefsHoleProcessPage::OnHelp)
    ON_MESSAGE(kSetDefaultsMessage, &DefsHoleProcessPage::SetDefaults)
END_MESSAGE_MAP()

DefsHoleProcessPage::DefsHoleProcessPage() : CRecordPage(IDD, kTables, *g_kind.Live()) {}

void DefsHoleProcessPage::DoDataExchange(CDataExchange* exchange)
{
    CExpRegenPropertyPage::DoDataExchange(exchange);
    ExchangeTemplate(exchange);
    ExchangeControls<Record>(exchange, m_options, kExchange);
}

void DefsHoleProcessPage::ExchangeTemplate(CDataExchange* exchange)
{
    if (!ControlOf(*this, IDC_HOLE_TEMPLATE))
        return;
    CString text(m_options.StartupTemplate.c_str());
    DDX_Text(exchange, IDC_HOLE_TEMPLATE, text);
    if (exchange->m_bSaveAndValidate)
        m_options.StartupTemplate = CStringA(text).GetString();
}

BOOL DefsHoleProcessPage::OnSetActive()
{
    ShowControls();
    FillList(*this, IDC_HOLE_SORT_TYPE, kSorts);
    SelectIndex(*this, IDC_HOLE_SORT_TYPE, m_options.SortType);
    ShowNormalIcons();
    vDisplayDirectSect();
    vHighlightMajorDir();
    vHighlightStepDir();
    vDisplayAccurateModeSect();
    vHighlightAccurateDir();
    vDisplayBandWidthSect();
    UpdateData(FALSE);
    return CExpRegenPropertyPage::OnSetActive();
}

// ---- what the options allow ----

/// "Реверс" is enabled here and disabled nowhere.
void DefsHoleProcessPage::vDisplayDirectSect()
{
    const bool manual = m_options.SortType == 0;
    const bool orthogonal = !manual && m_options.SortType != 1;
    EnableControl(*this, IDC_HOLE_BIDIRECTIONAL, orthogonal);
    EnableButtons(*this, kMajorButtons, !manual);
    EnableButtons(*this, kStepButtons, !manual);
    if (orthogonal)
        EnableControl(*this, IDC_HOLE_SORT_REVERSE, true);
    if (!manual)
        vDisplayStepDirSect();
}

/// The step can change its sense only: its axis follows the major direction.
void DefsHoleProcessPage::vDisplayStepDirSect()
{
    if (!IsDirection(m_options.StepDir))
        return;
    const bool horizontal = AxisOf(m_options.StepDir) == Axis::Horizontal;
    EnableControl(*this, IDC_HOLE_STEP_RIGHT, horizontal);
    EnableControl(*this, IDC_HOLE_STEP_LEFT, horizontal);
    EnableControl(*this, IDC_HOLE_STEP_UP, !horizontal);
    EnableControl(*this, IDC_HOLE_STEP_DOWN, !horizontal);
}

void DefsHoleProcessPage::vDisplayAccurateModeSect()
{
    if (m_options.AccurateMode != 0 && m_options.AccurateMode != 1)
        return;
    const bool accurate = m_options.AccurateMode == 1;
    EnableControl(*this, IDC_HOLE_ACCURATE_DISTANCE, accurate);
    EnableControl(*this, IDC_HOLE_ACCURATE_FEED_RATE, accurate);
    EnableButtons(*this, kAccurateButtons, accurate);
}

void DefsHoleProcessPage::vDisplayBandWidthSect()
{
    const bool bands = m_options.SortType != 0 && m_options.SortType != 1;
    EnableControl(*this, IDC_HOLE_USE_BAND_WIDTH, bands);
    if (!bands || m_options.UseBandWidth == 0)
        EnableControl(*this, IDC_HOLE_BAND_WIDTH, false);
    else if (m_options.UseBandWidth == 1)
        EnableControl(*this, IDC_HOLE_BAND_WIDTH, true);
}

// ---- handlers ----

/// What the sort type allows follows at the next activation.
void DefsHoleProcessPage::OnSelChangeSortBy()
{
    m_options.SortType = SortTypeInRange(SelectedIndex(*this, IDC_HOLE_SORT_TYPE).value_or(0));
    SetModified();
}

void DefsHoleProcessPage::OnSelFile()
{
    const auto folder = TemplateText::FromProfile("DefaultPath", "HoleProcessTemplates", "",
                                                  GetSettingsLocations().hostSettingsFile.c_str());
    const CString initialFolder(folder.c_str());
    CFileDialog dialog(TRUE, kTemplateExtension, CString(m_options.StartupTemplate.c_str()),
                       OFN_LONGNAMES | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kTemplateFilter, this);
    dialog.m_ofn.lpstrInitialDir = initialFolder;
    // The dialog moves the process's current folder, which relative settings paths start from.
    std::error_code ignored;
    const auto current = std::filesystem::current_path(ignored);
    const INT_PTR result = dialog.DoModal();
    std::filesystem::current_path(current, ignored);
    if (result != IDOK)
        return;
    m_options.StartupTemplate = CStringA(dialog.GetPathName()).GetString();
    // The other controls show their fields again too: what was typed and not yet taken is gone.
    UpdateData(FALSE);
    SetModified();
}

void DefsHoleProcessPage::OnCheckAccurateMode()
{
    if (StoreNewCheck(*this, IDC_HOLE_ACCURATE_MODE, m_options.AccurateMode))
        vDisplayAccurateModeSect();
    SetModified();
}

void DefsHoleProcessPage::OnCheckBandWidth()
{
    if (StoreNewCheck(*this, IDC_HOLE_USE_BAND_WIDTH, m_options.UseBandWidth))
        vDisplayBandWidthSect();
    SetModified();
}

/// The controls show the defaults at the next activation.
LRESULT DefsHoleProcessPage::SetDefaults(WPARAM, LPARAM)
{
    m_options.Defaults();
    return 0;
}

// ---- direction buttons ----

void DefsHoleProcessPage::ShowNormalIcons()
{
    for (int direction = 0; direction < kDirectionCount; ++direction) {
        vResetMajorDir(direction);
        vResetStepDir(direction);
        vResetAccurateDir(direction);
    }
}

void DefsHoleProcessPage::vHighlightMajorDir()
{
    ShowChosen(*this, kMajorButtons, m_options.MajorDir);
}

void DefsHoleProcessPage::vHighlightStepDir()
{
    ShowChosen(*this, kStepButtons, m_options.StepDir);
}

void DefsHoleProcessPage::vHighlightAccurateDir()
{
    ShowChosen(*this, kAccurateButtons, m_options.AccurateDir);
}

void DefsHoleProcessPage::vResetMajorDir(int direction)
{
    ShowNormal(*this, kMajorButtons, direction);
}

void DefsHoleProcessPage::vResetStepDir(int direction)
{
    ShowNormal(*this, kStepButtons, direction);
}

void DefsHoleProcessPage::vResetAccurateDir(int direction)
{
    ShowNormal(*this, kAccurateButtons, direction);
}

void DefsHoleProcessPage::TakeMajorDir(int direction)
{
    const int before = m_options.MajorDir;
    vResetMajorDir(before);
    m_options.MajorDir = direction;
    vHighlightMajorDir();
    if (AxisOf(direction) != AxisOf(before)) {
        vResetStepDir(m_options.StepDir);
        m_options.Sync();
        vDisplayStepDirSect();
        vHighlightStepDir();
    }
    SetModified();
}

void DefsHoleProcessPage::TakeStepDir(int direction)
{
    vResetStepDir(m_options.StepDir);
    m_options.StepDir = direction;
    vHighlightStepDir();
    SetModified();
}

void DefsHoleProcessPage::TakeAccurateDir(int direction)
{
    vResetAccurateDir(m_options.AccurateDir);
    m_options.AccurateDir = direction;
    vHighlightAccurateDir();
    SetModified();
}

void DefsHoleProcessPage::OnSelMajorRight()
{
    TakeMajorDir(0);
}

void DefsHoleProcessPage::OnSelMajorLeft()
{
    TakeMajorDir(1);
}

void DefsHoleProcessPage::OnSelMajorUp()
{
    TakeMajorDir(2);
}

void DefsHoleProcessPage::OnSelMajorDown()
{
    TakeMajorDir(3);
}

void DefsHoleProcessPage::OnSelStepRight()
{
    TakeStepDir(0);
}

void DefsHoleProcessPage::OnSelStepLeft()
{
    TakeStepDir(1);
}

void DefsHoleProcessPage::OnSelStepUp()
{
    TakeStepDir(2);
}

void DefsHoleProcessPage::OnSelStepDown()
{
    TakeStepDir(3);
}

void DefsHoleProcessPage::OnSelAccurateRD()
{
    TakeAccurateDir(0);
}

void DefsHoleProcessPage::OnSelAccurateLD()
{
    TakeAccurateDir(1);
}

void DefsHoleProcessPage::OnSelAccurateRU()
{
    TakeAccurateDir(2);
}

void DefsHoleProcessPage::OnSelAccurateLU()
{
    TakeAccurateDir(3);
}

template class CRecordPage<HoleProcessDefsInfo>;
