// accepted
// The tables whose likes are refused, as they must be.
#include <afxdlgs.h>

#include "pages/control.h"
#include "records/record_table.h"

using namespace pelmar;

struct Record {
    int Units = 0;
    double Step = 0;
    int Way = 0;
};

constexpr ChoiceText kWays[] = {"Прямо", "Дугой"};

template <> struct pelmar::RecordFacts<Record> {
    static constexpr Option options[] = {Units<Record>(), Length<&Record::Step>("Step", "Шаг"),
                                         Choice<&Record::Way>("Way", "Путь", kWays)};
    static constexpr RecordTable table{"Section", "Операция", options};
};

struct Table {
    static constexpr Control controls[] = {Edit<&Record::Step>(1000), List<&Record::Way>(1001)};
};
constexpr ControlRow kRow = At<Table>(1001);
static_assert(kRow.Id() == 1001);
