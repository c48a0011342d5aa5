// refused: mistake::FirstRowIsNotTheUnits()
#include <afxdlgs.h>

#include "records/record_table.h"

using namespace pelmar;

struct Record {
    int Units = 0;
    double Step = 0;
};

constexpr Option kOptions[] = {Length<&Record::Step>("Step", "Шаг"), Units<Record>()};
constexpr RecordTable kTable{"Section", "Операция", kOptions};
