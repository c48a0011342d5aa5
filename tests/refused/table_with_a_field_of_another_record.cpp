// refused: mistake::RowNamesAFieldOfAnotherRecord()
#include <afxdlgs.h>

#include "records/record_table.h"

using namespace pelmar;

struct Record {
    int Units = 0;
};
struct Other {
    double Step = 0;
};

constexpr Option kOptions[] = {Units<Record>(), Length<&Other::Step>("Step", "Шаг")};
constexpr RecordTable kTable{"Section", "Операция", kOptions};
