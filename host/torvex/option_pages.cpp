#include "option_pages.h"

#include <PelmarDlgs.h>

namespace {

template <class Page, class Record>
OptionPage Row(Record* record, void (Record::*checkUnits)(long), void (Record::*restore)(), void (Record::*save)())
{
    return {[](int units) {
                auto page = std::make_unique<Page>();
                page->GetData(units);
                return page;
            },
            [record, restore] { (record->*restore)(); }, [record, save] { (record->*save)(); },
            [record, checkUnits](long units) { (record->*checkUnits)(units); }};
}

template <class Page, class Record> OptionPage Row(Record* record, void (Record::*checkUnits)(long))
{
    return Row<Page>(record, checkUnits, &Record::vOptions_Restore, &Record::vOptions_Save);
}

} // namespace

std::span<const OptionPage> OptionPages()
{
    // A further page is a further row.
    static const OptionPage pages[] = {
        Row<CDefs2xPage>(GetLast2xOptions(), &C2AxisOptionsInfo::v2xOptionsCheckUnits),
        Row<CDefs3xPage>(GetLast3xOptions(), &C3AxisOptionsInfo::v3xOptionsCheckUnits),
        Row<CDefsZRoughPage>(GetLastZRoughOptions(), &CZRoughOptionsInfo::vZRoughOptionsCheckUnits),
        Row<CDefsZFinishPage>(GetLastZFinishOptions(), &CZFinishOptionsInfo::vZFinishOptionsCheckUnits),
        Row<CDefsFlatSurfacePage>(GetLastFlatSurfaceOptions(), &CFlatSurfaceOptionsInfo::vFlatSurfaceOptionsCheckUnits),
        Row<CDefsEDMPage>(GetLastEDMOptions(), &CEDMOptionsInfo::vEDMOptionsCheckUnits),
        Row<CDefsFMPage>(GetLastFaceMillDefsInfo(), &CFaceMillDefsInfo::FaceMillDefsCheckUnits,
                         &CFaceMillDefsInfo::vFaceMillDefs_Restore, &CFaceMillDefsInfo::vFaceMillDefs_Save),
        Row<CDefsCMPage>(GetLastChamferMillDefsInfo(), &CChamferMillDefsInfo::ChamferMillDefsCheckUnits,
                         &CChamferMillDefsInfo::vChamferMillDefs_Restore, &CChamferMillDefsInfo::vChamferMillDefs_Save),
        Row<CDefsRMPage>(GetLastRoundMillDefsInfo(), &CRoundMillDefsInfo::RoundMillDefsCheckUnits,
                         &CRoundMillDefsInfo::vRoundMillDefs_Restore, &CRoundMillDefsInfo::vRoundMillDefs_Save),
        Row<CDefsGMPage>(GetLastGrooveMillDefsInfo(), &CGrooveMillDefsInfo::GrooveMillDefsCheckUnits,
                         &CGrooveMillDefsInfo::vGrooveMillDefs_Restore, &CGrooveMillDefsInfo::vGrooveMillDefs_Save),
        Row<CDefsSlotMillPage>(GetLastSlotMillDefsInfo(), &CSlotMillDefsInfo::SlotMillDefsCheckUnits,
                               &CSlotMillDefsInfo::vSlotMillDefs_Restore, &CSlotMillDefsInfo::vSlotMillDefs_Save),
    };
    return pages;
}
