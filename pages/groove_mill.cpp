#include "pages/groove_mill.h"

#include "pages/groove_slot_tables.h"

namespace {
using Record = CGrooveMillDefsInfo;

constexpr GrooveSlotKeys<Record> kOwn = {"DefGrooveDepth",     &Record::DefGrooveDepth,
                                         "DefGrooveDepthType", &Record::DefGrooveDepthType,
                                         "DefGrooveGeomType",  &Record::DefGrooveGeomType};

constexpr auto kFields = GrooveSlotFields(kOwn);
constexpr auto kExchange = GrooveSlotExchange(kOwn);
constexpr auto kChoices = GrooveSlotChoices(kOwn);

RecordKind<Record> g_kind("GrooveMill", kFields);
const DescribedPage<Record> g_description(IDD_GROOVE_MILL, g_kind, kExchange, kChoices);
} // namespace

// ---- the record's operations ----

void CGrooveMillDefsInfo::Defaults()
{
    g_kind.Defaults(*this);
}

void CGrooveMillDefsInfo::vGrooveMillDefs_Save()
{
    g_kind.Save(*this);
}

void CGrooveMillDefsInfo::vGrooveMillDefs_Restore()
{
    g_kind.Restore(*this);
}

void CGrooveMillDefsInfo::GrooveMillDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CGrooveMillDefsInfo* GetLastGrooveMillDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsGMPage::IDD} == IDD_GROOVE_MILL);

IMPLEMENT_DYNCREATE(CDefsGMPage, CExpRegenPropertyPage)

CDefsGMPage::CDefsGMPage()
    : CGrooveSlotPage(IDD, std::make_unique<FeatureMillOptionsOf<Record>>(g_kind, kExchange, kChoices))
{
}
