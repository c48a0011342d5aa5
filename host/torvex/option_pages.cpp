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
        Row<DefsHoleProcessPage>(GetLastHoleProcessDefsInfo(), &HoleProcessDefsInfo::HoleProcessDefsCheckUnits,
                                 &HoleProcessDefsInfo::HoleProcessDefs_Restore,
                                 &HoleProcessDefsInfo::HoleProcessDefs_Save),
    };
    return pages;
}
