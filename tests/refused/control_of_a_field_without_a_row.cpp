// refused: mistake::FieldHasNoOptionRow()
#include <afxdlgs.h>

#include "pages/control.h"
#include "records/record_table.h"

using namespace pelmar;

struct Record {
    int Units = 0;
    double Step = 0;
    double Forgotten = 0;
};

template <> struct pelmar::RecordFacts<Record> {
    static constexpr Option options[] = {Units<Record>(), Length<&Record::Step>("Step", "Шаг")};
    static constexpr RecordTable table{"Section", "Операция", options};
};

constexpr Control kControls[] = {Edit<&Record::Forgotten>(1000)};
