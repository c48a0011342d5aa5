#include "description/description.h"

#include <algorithm>

#include "dialogs/default_tools_controls.h"
#include "dialogs/defaults_file_chooser_controls.h"
#include "dialogs/nc_defaults_controls.h"
#include "dialogs/settings_review_controls.h"
#include "dialogs/setup_sheet_controls.h"
#include "dialogs/template_options_controls.h"
#include "pages/chamfer_mill_controls.h"
#include "pages/face_mill_controls.h"
#include "pages/flat_surface_controls.h"
#include "pages/groove_mill_controls.h"
#include "pages/hole_process_controls.h"
#include "pages/lathe_controls.h"
#include "pages/milling_2axis_controls.h"
#include "pages/milling_3axis_controls.h"
#include "pages/milling_4axis_controls.h"
#include "pages/milling_5axis_controls.h"
#include "pages/rotary_dialog_controls.h"
#include "pages/round_mill_controls.h"
#include "pages/slot_mill_controls.h"
#include "pages/wire_edm_controls.h"
#include "pages/z_finish_controls.h"
#include "pages/z_rough_controls.h"

namespace pelmar {
namespace {

template <class Record> double ValueAtStart(const Option& option, long units)
{
    Record record;
    RecordFacts<Record>::table.Convert(&record, units);
    return option.Value(&record);
}

template <class Record> AnyRecord CopyOf(const void* record)
{
    return AnyRecord(record ? new Record(*static_cast<const Record*>(record)) : new Record,
                     [](void* copy) { delete static_cast<Record*>(copy); });
}

template <class Record> void Assign(void* to, const void* from)
{
    *static_cast<Record*>(to) = *static_cast<const Record*>(from);
}

template <class Record> Record FactoryStart()
{
    if constexpr (requires { RecordFacts<Record>::FactoryStart(); })
        return RecordFacts<Record>::FactoryStart();
    else
        return Record();
}

template <class Record> constexpr const char* SectionOfFactoryUnits()
{
    if constexpr (requires { RecordFacts<Record>::unitsOfDefaultsSection; })
        return RecordFacts<Record>::unitsOfDefaultsSection;
    else
        return RecordFacts<Record>::table.Section();
}

template <class Record> void TakeFactory(void* record, const ValueSource& defaults, long units)
{
    constexpr const RecordTable& table = RecordFacts<Record>::table;
    *static_cast<Record*>(record) = FactoryStart<Record>();
    table.Convert(record, defaults.Whole(SectionOfFactoryUnits<Record>(), table.Options().front().key, 0));
    table.ReadDefaults(record, defaults);
    table.Convert(record, units);
}

template <class Record> constexpr RecordDescription Described(const PageFacts& page)
{
    return {.table = RecordFacts<Record>::table,
            .templateId = page.templateId,
            .controls = page.controls,
            .topic = page.topic,
            .valueAtStart = ValueAtStart<Record>,
            .copyOf = CopyOf<Record>,
            .assign = Assign<Record>,
            .takeFactory = TakeFactory<Record>};
}

constexpr RecordDescription kRecords[] = {
    Described<CChamferMillDefsInfo>(kChamferMillPage), Described<CFaceMillDefsInfo>(kFaceMillPage),
    Described<CGrooveMillDefsInfo>(kGrooveMillPage),   Described<HoleProcessDefsInfo>(kHoleProcessPage),
    Described<C2AxisOptionsInfo>(kMilling2AxisPage),   Described<C3AxisOptionsInfo>(kMilling3AxisPage),
    Described<C4AxisOptionsInfo>(kMilling4AxisPage),   Described<C5AxisOptionsInfo>(kMilling5AxisPage),
    Described<CEDMOptionsInfo>(kWireEdmPage),          Described<CFlatSurfaceOptionsInfo>(kFlatSurfacePage),
    Described<CLatheOptionsInfo>(kLathePage),          Described<CSSheetOptionsInfo>(kSetupSheetPage),
    Described<CZFinishOptionsInfo>(kZFinishPage),      Described<CZRoughOptionsInfo>(kZRoughPage),
    Described<CRoundMillDefsInfo>(kRoundMillPage),     Described<CSlotMillDefsInfo>(kSlotMillPage),
};

template <class Record> constexpr WindowDescription Edits(const PageFacts& page)
{
    return {&RecordFacts<Record>::table, page, ValueAtStart<Record>};
}

/// What the NC defaults hold does not scale.
double NCDefaultAtStart(const Option& option, long)
{
    constexpr NCDefaults kBuiltIn;
    return option.Value(&kBuiltIn);
}

constexpr WindowDescription kWindows[] = {
    Edits<C2AxisOptionsInfo>(kMilling2AxisPage),
    Edits<C3AxisOptionsInfo>(kMilling3AxisPage),
    Edits<C4AxisOptionsInfo>(kMilling4AxisPage),
    Edits<C5AxisOptionsInfo>(kMilling5AxisPage),
    Edits<CZRoughOptionsInfo>(kZRoughPage),
    Edits<CZFinishOptionsInfo>(kZFinishPage),
    Edits<CFlatSurfaceOptionsInfo>(kFlatSurfacePage),
    Edits<CFaceMillDefsInfo>(kFaceMillPage),
    Edits<CChamferMillDefsInfo>(kChamferMillPage),
    Edits<CRoundMillDefsInfo>(kRoundMillPage),
    Edits<CGrooveMillDefsInfo>(kGrooveMillPage),
    Edits<CSlotMillDefsInfo>(kSlotMillPage),
    Edits<HoleProcessDefsInfo>(kHoleProcessPage),
    Edits<CLatheOptionsInfo>(kLathePage),
    Edits<CEDMOptionsInfo>(kWireEdmPage),
    Edits<C4AxisOptionsInfo>(kRotaryPage),
    {nullptr, kNCDefaultsPage, NCDefaultAtStart},
    {nullptr, kDefaultToolsPage, nullptr},
    {nullptr, kChooserPage, nullptr},
    {nullptr, kTemplatesPage, nullptr},
    Edits<CSSheetOptionsInfo>(kSetupSheetPage),
    {nullptr, kSettingsReviewPage, nullptr},
};

} // namespace

const Control* RecordDescription::ControlOf(const Option& option) const
{
    const auto found = std::ranges::find(controls, &option, &Control::option);
    return found == controls.end() ? nullptr : &*found;
}

const Option* RecordDescription::TypeOf(const Option& option) const
{
    if (option.scaling != Scaling::WhileConstant)
        return nullptr;
    const auto found = std::ranges::find(table.Options(), option.lengthType, &Option::whole);
    return found == table.Options().end() ? nullptr : &*found;
}

std::span<const RecordDescription> DescribeRecords()
{
    return kRecords;
}

std::span<const WindowDescription> DescribeWindows()
{
    return kWindows;
}

} // namespace pelmar
