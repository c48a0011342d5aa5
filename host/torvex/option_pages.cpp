#include "option_pages.h"

#include <PelmarDlgs.h>

#include "lathe_page.h"

namespace {

template <class Page, class Record> OptionPage Row(Record* record, void (Record::*checkUnits)(long))
{
    return {[](int units) {
                auto page = std::make_unique<Page>();
                page->GetData(units);
                return page;
            },
            [record] { record->vOptions_Restore(); }, [record] { record->vOptions_Save(); },
            [record, checkUnits](long units) { (record->*checkUnits)(units); }};
}

} // namespace

std::span<const OptionPage> OptionPages()
{
    // A further page is a further row.
    static const OptionPage pages[] = {
        Row<CDefs2xPage>(GetLast2xOptions(), &C2AxisOptionsInfo::v2xOptionsCheckUnits),
        Row<CLathePage>(GetLastLatheOptions(), &CLatheOptionsInfo::vLatheOptionsCheckUnits),
    };
    return pages;
}
