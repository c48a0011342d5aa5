#include "pages/chamfer_mill.h"

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/feature_mill_options.h"

namespace {
using Record = CChamferMillDefsInfo;

// ---- the record ----

constexpr Field<Record> kFields[] = {
    {"Units", &Record::Units},
    {"DefChamferLen", &Record::DefChamferLen, Scaling::Always},
    {"DefCutingDir", &Record::DefCutingDir},
    {"DefLeaveStockZ", &Record::DefLeaveStockZ, Scaling::Always},
    {"DefMaxRoughDOCType", &Record::DefMaxRoughDOCType},
    {"DefMaxRoughDOC", &Record::DefMaxRoughDOC, &Record::DefMaxRoughDOCType},
    {"DefFinishDOCType", &Record::DefFinishDOCType},
    {"DefFinishDOC", &Record::DefFinishDOC, &Record::DefFinishDOCType},
    {"FinishPassZ", &Record::FinishPassZ},
    {"RapidPlane", &Record::RapidPlane, Scaling::Always},
};

RecordKind<Record> g_kind("ChamferMill2x", kFields);

// ---- the page's controls ----

constexpr ExchangeRow<Record> kExchange[] = {
    {IDC_FEATURE_ROUGH_DEPTH, &Record::DefMaxRoughDOC, kNotNegative},
    {IDC_FEATURE_FINISH_PASSES, &Record::FinishPassZ},
    {IDC_FEATURE_FINISH_DEPTH, &Record::DefFinishDOC, kNotNegative},
    {IDC_FEATURE_STOCK, &Record::DefLeaveStockZ, kNotNegative},
    {IDC_FEATURE_RAPID_PLANE, &Record::RapidPlane, kNotNegative},
    {IDC_CM_CHAMFER_LENGTH, &Record::DefChamferLen, kNotNegative},
};

constexpr ChoiceRow<Record> kChoices[] = {
    {IDC_FEATURE_CUTTING_DIRECTION, &Record::DefCutingDir, kCuttingDirections, kFirstCuttingDirection},
    {IDC_FEATURE_ROUGH_DEPTH_TYPE, &Record::DefMaxRoughDOCType, kLengthTypes},
    {IDC_FEATURE_FINISH_DEPTH_TYPE, &Record::DefFinishDOCType, kLengthTypes},
};

const DescribedPage<Record> g_description(IDD_CHAMFER_MILL, g_kind, kExchange, kChoices);
} // namespace

// ---- the record's operations ----

void CChamferMillDefsInfo::Defaults()
{
    g_kind.Defaults(*this);
}

void CChamferMillDefsInfo::vChamferMillDefs_Save()
{
    g_kind.Save(*this);
}

void CChamferMillDefsInfo::vChamferMillDefs_Restore()
{
    g_kind.Restore(*this);
}

void CChamferMillDefsInfo::ChamferMillDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CChamferMillDefsInfo* GetLastChamferMillDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsCMPage::IDD} == IDD_CHAMFER_MILL);

IMPLEMENT_DYNCREATE(CDefsCMPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefsCMPage, CRoughFinishMillPage)
    ON_EN_KILLFOCUS(IDC_CM_CHAMFER_LENGTH, &CDefsCMPage::OnKillfocusDefChamferLength)
END_MESSAGE_MAP()

CDefsCMPage::CDefsCMPage()
    : CRoughFinishMillPage(IDD, std::make_unique<FeatureMillOptionsOf<Record>>(g_kind, kExchange, kChoices))
{
}

void CDefsCMPage::OnKillfocusDefChamferLength()
{
    LeaveEdit(IDC_CM_CHAMFER_LENGTH);
}
