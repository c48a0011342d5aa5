#include "pages/slot_mill.h"

#include "pages/groove_slot_tables.h"

namespace {
using Record = CSlotMillDefsInfo;

constexpr GrooveSlotKeys<Record> kOwn = {"DefSlotDepth",     &Record::DefSlotDepth,
                                         "DefSlotDepthType", &Record::DefSlotDepthType,
                                         "DefSlotGeomType",  &Record::DefSlotGeomType};

constexpr auto kFields = GrooveSlotFields(kOwn);
constexpr auto kExchange = GrooveSlotExchange(kOwn);
constexpr auto kChoices = GrooveSlotChoices(kOwn);

RecordKind<Record> g_kind("SlotMill", kFields);
const DescribedPage<Record> g_description(IDD_SLOT_MILL, g_kind, kExchange, kChoices);
} // namespace

// ---- the record's operations ----

void CSlotMillDefsInfo::Defaults()
{
    g_kind.Defaults(*this);
}

void CSlotMillDefsInfo::vSlotMillDefs_Save()
{
    g_kind.Save(*this);
}

void CSlotMillDefsInfo::vSlotMillDefs_Restore()
{
    g_kind.Restore(*this);
}

void CSlotMillDefsInfo::SlotMillDefsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

CSlotMillDefsInfo* GetLastSlotMillDefsInfo()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefsSlotMillPage::IDD} == IDD_SLOT_MILL);

IMPLEMENT_DYNCREATE(CDefsSlotMillPage, CExpRegenPropertyPage)

CDefsSlotMillPage::CDefsSlotMillPage()
    : CGrooveSlotPage(IDD, std::make_unique<FeatureMillOptionsOf<Record>>(g_kind, kExchange, kChoices))
{
}
