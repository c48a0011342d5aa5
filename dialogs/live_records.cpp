#include "dialogs/live_records.h"

#include <algorithm>
#include <array>

#include "records/chamfer_mill_facts.h"
#include "records/face_mill_facts.h"
#include "records/flat_surface_facts.h"
#include "records/groove_mill_facts.h"
#include "records/hole_process_facts.h"
#include "records/lathe_facts.h"
#include "records/milling_2axis_facts.h"
#include "records/milling_3axis_facts.h"
#include "records/milling_4axis_facts.h"
#include "records/milling_5axis_facts.h"
#include "records/record_kind.h"
#include "records/round_mill_facts.h"
#include "records/setup_sheet_facts.h"
#include "records/slot_mill_facts.h"
#include "records/wire_edm_facts.h"
#include "records/z_finish_facts.h"
#include "records/z_rough_facts.h"

namespace pelmar {
namespace {

/// A record's table, and its live instance without its type.
struct LiveRow {
    const RecordTable* table;
    void* (*live)();
};

template <class... Records> constexpr std::array<LiveRow, sizeof...(Records)> Rows()
{
    return {LiveRow{&RecordFacts<Records>::table, []() -> void* { return RecordFacts<Records>::Kind().Live(); }}...};
}

constexpr auto kRows = Rows<CChamferMillDefsInfo, CFaceMillDefsInfo, CGrooveMillDefsInfo, HoleProcessDefsInfo,
                            C2AxisOptionsInfo, C3AxisOptionsInfo, C4AxisOptionsInfo, C5AxisOptionsInfo, CEDMOptionsInfo,
                            CFlatSurfaceOptionsInfo, CLatheOptionsInfo, CSSheetOptionsInfo, CZFinishOptionsInfo,
                            CZRoughOptionsInfo, CRoundMillDefsInfo, CSlotMillDefsInfo>();

} // namespace

void* LiveRecord(const RecordDescription& record)
{
    return std::ranges::find(kRows, &record.table, &LiveRow::table)->live();
}

} // namespace pelmar
