#include "pages/face_mill.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/feature_mill_options.h"

namespace {
using Record = CFaceMillDefsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"DefFacingMethod", &Record::DefFacingMethod},
    {"DefCutingDir", &Record::DefCutingDir},
    {"Facing Angle", &Record::FacingAngle},
    {"DefClearEvery", &Record::DefClearEvery},
    {"DefKeepToolDown", &Record::DefKeepToolDown},
    {"DefEnableHSM", &Record::DefEnableHSM},
    {"DefMaxSideStepType", &Record::DefMaxSideStepType},
    {"DefMaxSideStep", &Record::DefMaxSideStep, &Record::DefMaxSideStepType},
    {"DefRemoveZ", &Record::DefRemoveZ, Scaling::Always},
    {"DefLeaveStockZ", &Record::DefLeaveStockZ, Scaling::Always},
    {"DefSideClearanceType", &Record::DefSideClearanceType},
    {"DefSideClearance", &Record::DefSideClearance, &Record::DefSideClearanceType},
    {"DefMaxRoughDOCType", &Record::DefMaxRoughDOCType},
    {"DefMaxRoughDOC", &Record::DefMaxRoughDOC, &Record::DefMaxRoughDOCType},
    {"DefFinishDOCType", &Record::DefFinishDOCType},
    {"DefFinishDOC", &Record::DefFinishDOC, &Record::DefFinishDOCType},
    {"FinishPassZ", &Record::FinishPassZ},
    {"MaxFeedBetween", &Record::MaxFeedBetween, &Record::FeedBetweenType},
    {"FeedBetweenType", &Record::FeedBetweenType},
    {"RapidPlane", &Record::RapidPlane, Scaling::Always},
};

RecordKind<Record> g_kind("FaceMill2x", kFields);

// ---- the page's controls ----

constexpr Range kMoreThanNothing{0.0001, kUnbounded};

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_FM_CLEAR_EVERY_PASS, &Record::DefClearEvery, Binding::Check},
    {IDC_FM_KEEP_TOOL_DOWN, &Record::DefKeepToolDown, Binding::Check},
    {IDC_FM_HIGH_SPEED, &Record::DefEnableHSM, Binding::Check},
    {IDC_FM_CUTTING_ANGLE, &Record::FacingAngle, kAnyReal},
    {IDC_FM_SIDE_CLEARANCE, &Record::DefSideClearance, kMoreThanNothing},
    {IDC_FM_REMOVE_Z, &Record::DefRemoveZ, kNotNegative},
    {IDC_FM_SIDE_STEP, &Record::DefMaxSideStep, kMoreThanNothing},
    {IDC_FEATURE_ROUGH_DEPTH, &Record::DefMaxRoughDOC, kNotNegative},
    {IDC_FEATURE_FINISH_PASSES, &Record::FinishPassZ},
    {IDC_FEATURE_FINISH_DEPTH, &Record::DefFinishDOC, kNotNegative},
    {IDC_FEATURE_STOCK, &Record::DefLeaveStockZ, kAnyReal},
    {IDC_FM_MAX_FEED_BETWEEN, &Record::MaxFeedBetween, kAnyReal},
    {IDC_FEATURE_RAPID_PLANE, &Record::RapidPlane, kAnyReal},
};

constexpr UINT kFacingMethods[] = {IDS_PATTERN_ONE_WAY, IDS_PATTERN_ZIGZAG, IDS_PATTERN_SPIRAL};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_FM_FACING_METHOD, &Record::DefFacingMethod, kFacingMethods},
    {IDC_FEATURE_CUTTING_DIRECTION, &Record::DefCutingDir, kCuttingDirections, kFirstCuttingDirection},
    {IDC_FM_SIDE_STEP_TYPE, &Record::DefMaxSideStepType, kLengthTypes},
    {IDC_FM_SIDE_CLEARANCE_TYPE, &Record::DefSideClearanceType, kLengthTypes},
    {IDC_FEATURE_ROUGH_DEPTH_TYPE, &Record::DefMaxRoughDOCType, kLengthTypes},
    {IDC_FEATURE_FINISH_DEPTH_TYPE, &Record::DefFinishDOCType, kLengthTypes},
    {IDC_FM_FEED_BETWEEN_TYPE, &Record::FeedBetweenType, kLengthTypes},
};

const DescribedPage<Record> g_description(IDD_FACE_MILL, g_kind, kExchange, kChoices);
} // namespace

// ---- the record's operations ----

void CFaceMillDefsInfo::Defaults()
{
    g_kind.Defaults(*this, Record(), g_kind.UnitsOfDefaults(Units));
}

void CFaceMillDefsInfo::vFaceMillDefs_Save()
{
    g_kind.Save(*this);
}

void CFaceMillDefsInfo::vFaceMillDefs_Restore()
{
    g_kind.Restore(*this);
}

void CFaceMillDefsInfo::FaceMillDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CFaceMillDefsInfo* GetLastFaceMillDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsFMPage::IDD} == IDD_FACE_MILL);

IMPLEMENT_DYNCREATE(CDefsFMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsFMPage, CRoughFinishMillPage)
    ON_CBN_SELCHANGE(IDC_FM_FACING_METHOD, &CDefsFMPage::OnSelchangeDefFacingMethod)
    ON_CBN_SELCHANGE(IDC_FM_SIDE_STEP_TYPE, &CDefsFMPage::OnSelchangeDefStepoverType)
    ON_CBN_SELCHANGE(IDC_FM_SIDE_CLEARANCE_TYPE, &CDefsFMPage::OnSelchangeDefSideclearType)
    ON_CBN_SELCHANGE(IDC_FM_FEED_BETWEEN_TYPE, &CDefsFMPage::OnSelchangeDefFbType)
    ON_EN_KILLFOCUS(IDC_FM_CUTTING_ANGLE, &CDefsFMPage::OnKillfocusDefCutAngle)
    ON_EN_KILLFOCUS(IDC_FM_REMOVE_Z, &CDefsFMPage::OnKillfocusDefAmountRemove)
    ON_EN_KILLFOCUS(IDC_FM_SIDE_STEP, &CDefsFMPage::OnKillfocusDefMaxSideStep)
    ON_EN_KILLFOCUS(IDC_FM_SIDE_CLEARANCE, &CDefsFMPage::OnKillfocusDefSideClear)
    ON_EN_KILLFOCUS(IDC_FM_MAX_FEED_BETWEEN, &CDefsFMPage::OnKillfocusDefFb)
    ON_EN_KILLFOCUS(IDC_FEATURE_FINISH_PASSES, &CDefsFMPage::OnKillfocusDefNoFinishPass)
END_MESSAGE_MAP()

CDefsFMPage::CDefsFMPage()
    : CRoughFinishMillPage(IDD, std::make_unique<FeatureMillOptionsOf<Record>>(g_kind, kExchange, kChoices))
{
}

void CDefsFMPage::OnSelchangeDefFacingMethod()
{
    StoreChoice(IDC_FM_FACING_METHOD);
}

void CDefsFMPage::OnSelchangeDefStepoverType()
{
    StoreChoice(IDC_FM_SIDE_STEP_TYPE);
}

void CDefsFMPage::OnSelchangeDefSideclearType()
{
    StoreChoice(IDC_FM_SIDE_CLEARANCE_TYPE);
}

/// The one list of the page that marks it modified.
void CDefsFMPage::OnSelchangeDefFbType()
{
    StoreChoice(IDC_FM_FEED_BETWEEN_TYPE);
    SetModified();
}

void CDefsFMPage::OnKillfocusDefCutAngle()
{
    LeaveEdit(IDC_FM_CUTTING_ANGLE);
}

void CDefsFMPage::OnKillfocusDefAmountRemove()
{
    LeaveEdit(IDC_FM_REMOVE_Z);
}

void CDefsFMPage::OnKillfocusDefMaxSideStep()
{
    LeaveEdit(IDC_FM_SIDE_STEP);
}

void CDefsFMPage::OnKillfocusDefSideClear()
{
    LeaveEdit(IDC_FM_SIDE_CLEARANCE);
}

void CDefsFMPage::OnKillfocusDefFb()
{
    LeaveEdit(IDC_FM_MAX_FEED_BETWEEN);
}

void CDefsFMPage::OnKillfocusDefNoFinishPass()
{
    UpdateData(TRUE);
}
