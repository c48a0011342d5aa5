#include "pages/round_mill.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/feature_mill_options.h"

namespace {
using Record = CRoundMillDefsInfo;

// ---- the record ----

constexpr char kSectionOf2Axis[] = "Options2x";

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"DefCutingDir", &Record::DefCutingDir},
    {"DefLeaveStockZ", &Record::DefLeaveStockZ, Scaling::Always},
    {"DefMaxRoughDOCType", &Record::DefMaxRoughDOCType},
    {"DefMaxRoughDOC", &Record::DefMaxRoughDOC, &Record::DefMaxRoughDOCType},
    {"DefFinishDOCType", &Record::DefFinishDOCType},
    {"DefFinishDOC", &Record::DefFinishDOC, &Record::DefFinishDOCType},
    {"FinishPassZ", &Record::FinishPassZ},
    {"RapidPlane", &Record::RapidPlane, Scaling::Always},
    // The side clearance follows the one of 2-axis milling: what is written here is not what is read.
    Field<Record>("SideClearance", &Record::SideClearance, &Record::SideClearanceType).ReadFrom(kSectionOf2Axis),
    Field<Record>("SideClearanceType", &Record::SideClearanceType).ReadFrom(kSectionOf2Axis),
};

RecordKind<Record> g_kind("RoundMill", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_FEATURE_ROUGH_DEPTH, &Record::DefMaxRoughDOC, kNotNegative},
    {IDC_FEATURE_FINISH_PASSES, &Record::FinishPassZ},
    {IDC_FEATURE_FINISH_DEPTH, &Record::DefFinishDOC, kNotNegative},
    {IDC_FEATURE_STOCK, &Record::DefLeaveStockZ, kNotNegative},
    {IDC_FEATURE_RAPID_PLANE, &Record::RapidPlane, kNotNegative},
    ExchangeRow<Record>(IDC_RM_SIDE_CLEARANCE, &Record::SideClearance, kAnyReal).PlainEdit(),
};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_FEATURE_CUTTING_DIRECTION, &Record::DefCutingDir, kCuttingDirections, kFirstCuttingDirection},
    {IDC_FEATURE_ROUGH_DEPTH_TYPE, &Record::DefMaxRoughDOCType, kLengthTypes},
    {IDC_FEATURE_FINISH_DEPTH_TYPE, &Record::DefFinishDOCType, kLengthTypes},
    {IDC_RM_SIDE_CLEARANCE_TYPE, &Record::SideClearanceType, kLengthTypes},
};

const DescribedPage<Record> g_description(IDD_ROUND_MILL, g_kind, kExchange, kChoices);

// What the page tells its siblings.
constexpr WPARAM kSideClearanceTypeChosen = 0x8018;
} // namespace

// ---- the record's operations ----

void CRoundMillDefsInfo::Defaults()
{
    g_kind.Defaults(*this);
}

void CRoundMillDefsInfo::vRoundMillDefs_Save()
{
    g_kind.Save(*this);
}

void CRoundMillDefsInfo::vRoundMillDefs_Restore()
{
    g_kind.Restore(*this);
}

void CRoundMillDefsInfo::RoundMillDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CRoundMillDefsInfo* GetLastRoundMillDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsRMPage::IDD} == IDD_ROUND_MILL);

IMPLEMENT_DYNCREATE(CDefsRMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsRMPage, CRoughFinishMillPage)
    ON_EN_KILLFOCUS(IDC_RM_SIDE_CLEARANCE, &CDefsRMPage::OnKillFSideClearance)
    // The list's id on the 2-axis page. Here it has another one, so that nothing that is chosen in it arrives.
    ON_CBN_SELCHANGE(IDC_2X_SIDE_CLEARANCE_TYPE, &CDefsRMPage::OnSelSideClearType)
END_MESSAGE_MAP()

CDefsRMPage::CDefsRMPage()
    : CRoughFinishMillPage(IDD, std::make_unique<FeatureMillOptionsOf<Record>>(g_kind, kExchange, kChoices))
{
}

void CDefsRMPage::OnKillFSideClearance()
{
    LeaveEdit(IDC_RM_SIDE_CLEARANCE);
}

void CDefsRMPage::OnSelSideClearType()
{
    ShareNewSelection(*this, IDC_RM_SIDE_CLEARANCE_TYPE, Options().ChoiceOf(IDC_RM_SIDE_CLEARANCE_TYPE),
                      kSideClearanceTypeChosen);
}
