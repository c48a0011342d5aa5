#include "option_pages.h"

#include <PelmarDlgs.h>

#include "lathe_page.h"
#include "resource.h"

namespace {

/// A page's template, and how it is made.
struct PageRow {
    int templateId;
    std::unique_ptr<CPropertyPage> (*make)(int units);
};

template <class Page> std::unique_ptr<CPropertyPage> Make(int units)
{
    auto page = std::make_unique<Page>();
    page->GetData(units);
    return page;
}

/// The operation has one of three names.
template <class Record> void TakeDefaults(Record& record)
{
    if constexpr (requires { record.vOptions_Defaults(); })
        record.vOptions_Defaults();
    else if constexpr (requires { record.vOptions_Default(); })
        record.vOptions_Default();
    else
        record.Defaults();
}

template <class Page> constexpr PageRow kPage{Page::IDD, Make<Page>};

template <class Record> OptionPage Row(UINT tab, PageRow page, Record* record, void (Record::*checkUnits)(long),
                                       void (Record::*restore)(), void (Record::*save)())
{
    return {tab,
            page.templateId,
            page.make,
            [record] { TakeDefaults(*record); },
            [record, restore] { (record->*restore)(); },
            [record, save] { (record->*save)(); },
            [record, checkUnits](long units) { (record->*checkUnits)(units); }};
}

/// A record whose operations bear the usual names.
template <class Record> OptionPage Row(UINT tab, PageRow page, Record* record, void (Record::*checkUnits)(long))
{
    return Row(tab, page, record, checkUnits, &Record::vOptions_Restore, &Record::vOptions_Save);
}

/// The 4-axis page with the axis of its record. A page that is handed an axis shows the button that changes it.
std::unique_ptr<CPropertyPage> Make4xPage(int units)
{
    const C4AxisOptionsInfo& options = *GetLast4xOptions();
    double axis[2][3] = {{options.StartPX, options.StartPY, options.StartPZ},
                         {options.EndPX, options.EndPY, options.EndPZ}};
    auto page = std::make_unique<CDefs4xPage>();
    page->GetData(units, axis);
    return page;
}

/// The 5-axis page. No record holds its axis: the host keeps it while it runs, as the user stored it last.
class C5xPage : public CDefs5xPage {
public:
    explicit C5xPage(int units) { GetData(units, s_axis); }

    void OnOK() override
    {
        CDefs5xPage::OnOK();
        SetData(s_axis);
    }

private:
    static inline double s_axis[2][3] = {{0, 0, 0}, {1, 0, 0}};
};

std::unique_ptr<CPropertyPage> Make5xPage(int units)
{
    return std::make_unique<C5xPage>(units);
}

} // namespace

std::span<const OptionPage> OptionPages()
{
    // A further page is a further row.
    static const OptionPage pages[] = {
        Row(IDS_TAB_2X, kPage<CDefs2xPage>, GetLast2xOptions(), &C2AxisOptionsInfo::v2xOptionsCheckUnits),
        Row(IDS_TAB_3X, kPage<CDefs3xPage>, GetLast3xOptions(), &C3AxisOptionsInfo::v3xOptionsCheckUnits),
        Row(IDS_TAB_Z_ROUGH, kPage<CDefsZRoughPage>, GetLastZRoughOptions(),
            &CZRoughOptionsInfo::vZRoughOptionsCheckUnits),
        Row(IDS_TAB_Z_FINISH, kPage<CDefsZFinishPage>, GetLastZFinishOptions(),
            &CZFinishOptionsInfo::vZFinishOptionsCheckUnits),
        Row(IDS_TAB_FLAT_SURFACE, kPage<CDefsFlatSurfacePage>, GetLastFlatSurfaceOptions(),
            &CFlatSurfaceOptionsInfo::vFlatSurfaceOptionsCheckUnits),
        Row(IDS_TAB_4X, {CDefs4xPage::IDD, Make4xPage}, GetLast4xOptions(), &C4AxisOptionsInfo::v4xOptionsCheckUnits),
        Row(IDS_TAB_5X, {CDefs5xPage::IDD, Make5xPage}, GetLast5xOptions(), &C5AxisOptionsInfo::v5xOptionsCheckUnits),
        Row(IDS_TAB_EDM, kPage<CDefsEDMPage>, GetLastEDMOptions(), &CEDMOptionsInfo::vEDMOptionsCheckUnits),
        Row(IDS_TAB_FACE_MILL, kPage<CDefsFMPage>, GetLastFaceMillDefsInfo(),
            &CFaceMillDefsInfo::FaceMillDefsCheckUnits, &CFaceMillDefsInfo::vFaceMillDefs_Restore,
            &CFaceMillDefsInfo::vFaceMillDefs_Save),
        Row(IDS_TAB_CHAMFER_MILL, kPage<CDefsCMPage>, GetLastChamferMillDefsInfo(),
            &CChamferMillDefsInfo::ChamferMillDefsCheckUnits, &CChamferMillDefsInfo::vChamferMillDefs_Restore,
            &CChamferMillDefsInfo::vChamferMillDefs_Save),
        Row(IDS_TAB_ROUND_MILL, kPage<CDefsRMPage>, GetLastRoundMillDefsInfo(),
            &CRoundMillDefsInfo::RoundMillDefsCheckUnits, &CRoundMillDefsInfo::vRoundMillDefs_Restore,
            &CRoundMillDefsInfo::vRoundMillDefs_Save),
        Row(IDS_TAB_GROOVE_MILL, kPage<CDefsGMPage>, GetLastGrooveMillDefsInfo(),
            &CGrooveMillDefsInfo::GrooveMillDefsCheckUnits, &CGrooveMillDefsInfo::vGrooveMillDefs_Restore,
            &CGrooveMillDefsInfo::vGrooveMillDefs_Save),
        Row(IDS_TAB_SLOT_MILL, kPage<CDefsSlotMillPage>, GetLastSlotMillDefsInfo(),
            &CSlotMillDefsInfo::SlotMillDefsCheckUnits, &CSlotMillDefsInfo::vSlotMillDefs_Restore,
            &CSlotMillDefsInfo::vSlotMillDefs_Save),
        Row(IDS_TAB_HOLES, kPage<DefsHoleProcessPage>, GetLastHoleProcessDefsInfo(),
            &HoleProcessDefsInfo::HoleProcessDefsCheckUnits, &HoleProcessDefsInfo::HoleProcessDefs_Restore,
            &HoleProcessDefsInfo::HoleProcessDefs_Save),
        Row(IDS_TAB_LATHE, kPage<CLathePage>, GetLastLatheOptions(), &CLatheOptionsInfo::vLatheOptionsCheckUnits),
    };
    return pages;
}

void SaveAll()
{
    for (const OptionPage& page : OptionPages())
        page.save();
}
